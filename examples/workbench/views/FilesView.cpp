// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "views/FilesView.h"

#include "Icons.h"
#include "files/FileCommands.h"
#include "views/FileIcons.h"

#include <Norvane/AddressBar.h>

#include <QtCore/QFileInfo>
#include <QtCore/QPersistentModelIndex>
#include <QtGui/QAction>
#include <QtGui/QFileSystemModel>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QAbstractItemDelegate>
#include <QtWidgets/QTreeView>

namespace Workbench {

using namespace Qt::StringLiterals;
using Norvane::AddressBar;

FilesView::FilesView(AddressBar *bar, FileCommands *files)
    : QObject(bar)
    , m_bar(bar)
    , m_files(files)
    , m_tree(bar->treeView())
    , m_model(qobject_cast<QFileSystemModel *>(m_tree->model()))
{
    const QStringList suffixes = FileCommands::suffixes();
    for (const QString &suffix : suffixes) {
        m_bar->addSuffix(suffix);
        m_bar->addSuffix(suffix.toUpper());
    }
    m_model->setIconProvider(new FileIcons(m_model));
    // Otherwise every row above the one that is shown would be measured first.
    m_tree->setUniformRowHeights(true);
    auto *text = new QAction(icon("text-file"_L1), tr("Text Document"), this);
    m_bar->addNewAction(text);
    m_tree->installEventFilter(this);
    connect(text, &QAction::triggered, this, &FilesView::createText);
    connect(m_bar, &AddressBar::signalFileOpen, m_files,
            [files](const QString &path) { files->openPaths({path}); });
}

QTreeView *FilesView::tree() const
{
    return m_tree;
}

void FilesView::showFile(const QString &path)
{
    const QString folder = QFileInfo(path).absolutePath();
    const QString shown = m_model->rootPath();
    if (folder != shown && !folder.startsWith(shown.endsWith(u'/') ? shown : shown + u'/'))
        m_bar->setPath(folder);
    const QModelIndex index = m_model->index(path);
    m_tree->setCurrentIndex(index);
    m_tree->scrollTo(index);
}

// The tree's own keys are those of the text, too, whose commands would get them first.
bool FilesView::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_tree && event->type() == QEvent::ShortcutOverride) {
        const auto *key = static_cast<QKeyEvent *>(event);
        for (const auto own : {QKeySequence::Cut, QKeySequence::Copy, QKeySequence::Paste,
                               QKeySequence::SelectAll}) {
            if (key->matches(own))
                event->accept();
        }
    }
    return QObject::eventFilter(watched, event);
}

void FilesView::createText()
{
    QString target = m_bar->actionTriggeredPath();
    // The shown folder may have been deleted, which is to be said of it by name.
    if (target.isEmpty())
        target = m_bar->path();
    const QFileInfo info(target);
    const QString path = m_files->createText(info.isFile() ? info.absolutePath() : target);
    const QPersistentModelIndex index = m_model->index(path);
    if (!index.isValid())
        return;
    m_tree->setCurrentIndex(index);
    m_tree->edit(index);
    // Once it has its name.
    connect(
        m_tree->itemDelegate(), &QAbstractItemDelegate::closeEditor, this,
        [this, index] { m_files->openPaths({m_model->filePath(index)}); },
        Qt::ConnectionType(Qt::QueuedConnection | Qt::SingleShotConnection));
}

} // namespace Workbench
