// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QObject>
#include <QtCore/QStringList>

class QMenu;

namespace Workbench {

/*!
    The files opened last, kept from one start to the next.
*/
class RecentFiles : public QObject
{
    Q_OBJECT

public:
    explicit RecentFiles(QObject *parent = nullptr);

    //! The latest first.
    QStringList paths() const;
    void add(const QString &path);
    void remove(const QString &path);
    void clear();

    //! Keeps \a menu filled with the files.
    void fill(QMenu *menu);

Q_SIGNALS:
    //! The user picked \a path from a menu.
    void picked(const QString &path);

private:
    void store(const QStringList &paths);
    void refill(QMenu *menu);
};

} // namespace Workbench
