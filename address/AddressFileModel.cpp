// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "AddressFileModel_p.h"

namespace Norvane {

QString AddressFileIcons::type(const QFileInfo &info) const
{
    if (!info.isFile())
        return QFileIconProvider::type(info);
    if (const QLocale locale; locale != m_locale) {
        m_locale = locale;
        m_names.clear();
    }
    const QMimeType type = m_database.mimeTypeForFile(info);
    QString &name = m_names[type.name()];
    if (name.isEmpty())
        name = type.comment();
    return name;
}

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
    setIconProvider(&d->icons);
}

AddressFileModel::~AddressFileModel()
{
    setIconProvider(nullptr);
}

QVariant AddressFileModel::data(const QModelIndex &index, int role) const
{
    if (role == Qt::TextAlignmentRole && index.column() >= 0 && index.column() <= 3)
        return int(Qt::AlignLeft | Qt::AlignVCenter);
    return QFileSystemModel::data(index, role);
}

} // namespace Norvane
