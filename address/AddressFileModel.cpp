// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "AddressFileModel_p.h"

namespace Norvane {

AddressFileModelPrivate::~AddressFileModelPrivate() = default;

AddressFileModel::AddressFileModel(QObject *parent)
    : AddressFileModel(*new AddressFileModelPrivate, parent)
{
}

AddressFileModel::AddressFileModel(AddressFileModelPrivate &dd, QObject *parent)
    : QFileSystemModel(parent)
    , d_ptr(&dd)
{
    Q_D(AddressFileModel);
    d->q_ptr = this;
}

AddressFileModel::~AddressFileModel() = default;

QVariant AddressFileModel::data(const QModelIndex &index, int role) const
{
    if (role == Qt::TextAlignmentRole && index.column() >= 0 && index.column() <= 3)
        return int(Qt::AlignLeft | Qt::AlignVCenter);
    return QFileSystemModel::data(index, role);
}

} // namespace Norvane
