// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QHash>
#include <QtCore/QObject>
#include <QtGui/QAbstractFileIconProvider>
#include <QtGui/QIcon>

namespace Workbench {

/*!
    The tree's icons, which not every desktop has, and the names of types. Both come from the names
    of files alone: to look into thousands of files would keep the window from being used.

    The model that uses them is their parent, as it uses them until its end.
*/
class FileIcons : public QObject, public QAbstractFileIconProvider
{
    Q_OBJECT

public:
    explicit FileIcons(QObject *parent);

    QIcon icon(IconType type) const override;
    QIcon icon(const QFileInfo &info) const override;
    QString type(const QFileInfo &info) const override;

private:
    const QIcon m_folder;
    const QIcon m_other;
    QHash<QString, QIcon> m_icons;
    mutable QHash<QString, QString> m_types;
};

} // namespace Workbench
