// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "AddressFileModel.h"

#include <QtCore/QHash>
#include <QtCore/QLocale>
#include <QtCore/QMimeDatabase>
#include <QtCore/QStringList>
#include <QtWidgets/QFileIconProvider>

namespace Norvane {

/*!
    The icons and type names that Qt gives, and without an icon theme the icons of the style, as in
    its file dialog. The text of a type is asked for once in a language: Qt looks it up twice for
    every file, which is a quarter of what most files take.
*/
class AddressFileIcons : public QFileIconProvider
{
public:
    QString type(const QFileInfo &info) const override;

private:
    QMimeDatabase m_database;
    mutable QLocale m_locale;
    mutable QHash<QString, QString> m_names;
};

class AddressFileModelPrivate
{
    Q_DECLARE_PUBLIC(AddressFileModel)

public:
    virtual ~AddressFileModelPrivate();

    QString path;
    QStringList names;
    AddressFileModel *q_ptr = nullptr;

    AddressFileIcons icons;
};

} // namespace Norvane
