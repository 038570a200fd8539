// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGui/QFileSystemModel>

#include <memory>

namespace Norvane {

class AddressFileModelPrivate;

//! The file system with every column aligned to the left.
class AddressFileModel : public QFileSystemModel
{
    Q_OBJECT
    Q_DECLARE_PRIVATE(AddressFileModel)
    Q_DISABLE_COPY_MOVE(AddressFileModel)

public:
    explicit AddressFileModel(QObject *parent = nullptr);
    ~AddressFileModel() override;

    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;

protected:
    AddressFileModel(AddressFileModelPrivate &dd, QObject *parent);

    const std::unique_ptr<AddressFileModelPrivate> d_ptr;
};

} // namespace Norvane
