// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "files/RecentFiles.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QSettings>
#include <QtWidgets/QMenu>

namespace Workbench {

static constexpr qsizetype mostFiles = 10;

static QString key()
{
    return QStringLiteral("recentFiles");
}

RecentFiles::RecentFiles(QObject *parent)
    : QObject(parent)
{
}

QStringList RecentFiles::paths() const
{
    return QSettings().value(key()).toStringList();
}

void RecentFiles::add(const QString &path)
{
    QStringList paths = this->paths();
    paths.removeAll(path);
    paths.prepend(path);
    store(paths.first(std::min(paths.size(), mostFiles)));
}

void RecentFiles::remove(const QString &path)
{
    QStringList paths = this->paths();
    paths.removeAll(path);
    store(paths);
}

void RecentFiles::clear()
{
    store({});
}

void RecentFiles::fill(QMenu *menu)
{
    menu->setToolTipsVisible(true);
    connect(menu, &QMenu::aboutToShow, this, [this, menu] { refill(menu); });
}

void RecentFiles::store(const QStringList &paths)
{
    QSettings().setValue(key(), paths);
}

void RecentFiles::refill(QMenu *menu)
{
    menu->clear();
    const QStringList paths = this->paths();
    if (paths.isEmpty()) {
        menu->addAction(tr("No recent files"))->setEnabled(false);
        return;
    }
    for (const QString &path : paths) {
        const QFileInfo info(path);
        QString text =
            tr("%1  –  %2", "file name, folder").arg(info.fileName(), info.absoluteDir().dirName());
        text.replace(u'&', QStringLiteral("&&"));
        QAction *action = menu->addAction(text);
        action->setToolTip(QDir::toNativeSeparators(path));
        connect(action, &QAction::triggered, this, [this, path] { Q_EMIT picked(path); });
    }
    menu->addSeparator();
    connect(menu->addAction(tr("Clear List")), &QAction::triggered, this, &RecentFiles::clear);
}

} // namespace Workbench
