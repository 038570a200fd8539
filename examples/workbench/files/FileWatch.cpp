// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "files/FileWatch.h"

#include "DocumentTabs.h"
#include "documents/Document.h"

#include <QtCore/QFileInfo>
#include <QtGui/QGuiApplication>

namespace Workbench {

FileWatch::FileWatch(DocumentTabs *tabs)
    : QObject(tabs)
    , m_tabs(tabs)
{
    // Programs write in several steps, and some remove the old file first.
    m_settled.setSingleShot(true);
    m_settled.setInterval(200);
    connect(&m_settled, &QTimer::timeout, this, &FileWatch::followFiles);
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, [this] { m_settled.start(); });
    connect(qGuiApp, &QGuiApplication::applicationStateChanged, this,
            [this](Qt::ApplicationState state) {
                if (state == Qt::ApplicationActive)
                    m_settled.start();
            });
    connect(tabs, &DocumentTabs::documentsChanged, this, &FileWatch::watchFiles);
    connect(tabs, &DocumentTabs::documentAdded, this, [this](Document *document) {
        connect(document, &Document::followed, this, [this, document] {
            Q_EMIT message(tr("“%1” was changed by another program").arg(document->title()));
        });
    });
}

void FileWatch::watchFiles()
{
    QStringList paths;
    const QList<Document *> documents = m_tabs->documents();
    for (const Document *document : documents) {
        if (QFileInfo::exists(document->path()))
            paths << document->path();
    }
    const QStringList watched = m_watcher.files();
    for (const QString &path : watched) {
        if (!paths.removeOne(path))
            m_watcher.removePath(path);
    }
    if (!paths.isEmpty())
        m_watcher.addPaths(paths);
}

void FileWatch::followFiles()
{
    const QList<Document *> documents = m_tabs->documents();
    for (Document *document : documents)
        document->followFile();
    // A file that was replaced is another one for the system, and no longer watched.
    watchFiles();
}

} // namespace Workbench
