// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "AddressTree_p.h"

#include "AddressFileModel.h"
#include "AddressFileOperations.h"
#include "AddressPath.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QMimeData>
#include <QtCore/QPersistentModelIndex>
#include <QtCore/QPointer>
#include <QtCore/QUrl>
#include <QtGui/QAction>
#include <QtGui/QClipboard>
#include <QtGui/QDesktopServices>
#include <QtGui/QDragEnterEvent>
#include <QtGui/QGuiApplication>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMessageBox>

namespace Norvane {

AddressTreePrivate::AddressTreePrivate()
    : clipboard(QGuiApplication::clipboard())
{
}

AddressTreePrivate::~AddressTreePrivate() = default;

void AddressTreePrivate::createActions()
{
    Q_Q(AddressTree);
    const auto create = [q](const QString &text, const auto &act) {
        auto *action = new QAction(text, q);
        QObject::connect(action, &QAction::triggered, q, act);
        return action;
    };
    const auto openTarget = [q] { AddressFileOperations::open(q->targetPath()); };
    openAction = create(AddressTree::tr("Open"), openTarget);
    cutAction = create(AddressTree::tr("Cut"), [this] { toClipboard(true); });
    cutAction->setShortcut(QKeySequence::Cut);
    copyAction = create(AddressTree::tr("Copy"), [this] { toClipboard(false); });
    copyAction->setShortcut(QKeySequence::Copy);
    pasteAction = create(AddressTree::tr("Paste"), [this, q] { paste(q->targetPath()); });
    pasteAction->setShortcut(QKeySequence::Paste);
    deleteAction = create(AddressTree::tr("Delete"), [this] { deleteSelected(); });
    deleteAction->setShortcut(QKeySequence::Delete);
    renameAction = create(AddressTree::tr("Rename"), [this] { rename(); });
    renameAction->setShortcut(Qt::Key_F2);
    folderAction = create(AddressTree::tr("Folder"), [this] { createFolder(); });
    openInExplorerAction = create(AddressTree::tr("Open in Explorer"), [this] {
        QDesktopServices::openUrl(QUrl::fromLocalFile(targetFolder()));
    });
    openWithDefaultAction = create(AddressTree::tr("Open with Default"), openTarget);
    copyAbsolutePathAction =
        create(AddressTree::tr("Copy Absolute Path"), [this] { copyPath(false); });
    copyRelativePathAction =
        create(AddressTree::tr("Copy Relative Path"), [this] { copyPath(true); });
    newMenu = new QMenu(AddressTree::tr("New"), q);
    newMenu->addAction(folderAction);
}

void AddressTreePrivate::updatePasteAction()
{
    const QMimeData *data = clipboard->mimeData();
    pasteAction->setEnabled(data && data->hasUrls());
}

void AddressTreePrivate::updateSelectionActions()
{
    Q_Q(AddressTree);
    const qsizetype count = q->selectionModel()->selectedRows().size();
    for (QAction *action : {openAction, renameAction, openInExplorerAction, openWithDefaultAction,
                            copyAbsolutePathAction, copyRelativePathAction}) {
        action->setEnabled(count == 1);
    }
    cutAction->setEnabled(count > 0);
    deleteAction->setEnabled(count > 0);
}

QString AddressTreePrivate::shownFolder() const
{
    Q_Q(const AddressTree);
    // Before it is told of any folder, the model names the working directory and shows drives. It
    // shows them again, but names the folder, when that was deleted.
    const bool told = q->rootIndex().isValid() || !rootPath.isEmpty();
    return told ? model->rootPath() : QString();
}

QString AddressTreePrivate::targetFolder() const
{
    Q_Q(const AddressTree);
    const QString path = q->targetPath();
    const QFileInfo info(path);
    return info.isFile() ? info.absolutePath() : path;
}

void AddressTreePrivate::openIndex(const QModelIndex &index)
{
    Q_Q(AddressTree);
    const QString path = model->filePath(index);
    const QFileInfo info(path);
    if (info.isDir()) {
        Q_EMIT q->signalPathChanged(path);
        return;
    }
    if (suffixes.contains(info.suffix())) {
        Q_EMIT q->signalFileOpen(path);
        return;
    }
    const auto answer = QMessageBox::information(
        q, AddressTree::tr("Infomation"),
        AddressTree::tr("Open the selected file with the external default program?"),
        QMessageBox::Ok, QMessageBox::Cancel);
    if (answer == QMessageBox::Ok)
        AddressFileOperations::open(q->targetPath());
}

void AddressTreePrivate::showContextMenu(QPoint position)
{
    Q_Q(AddressTree);
    QMenu menu;
    const QModelIndex index = q->indexAt(position);
    const bool several = q->selectedPaths().size() > 1;
    if (index.isValid()) {
        const QFileInfo info(model->filePath(index));
        if (!several && suffixes.contains(info.suffix()))
            menu.addAction(openAction);
        menu.addActions({cutAction, copyAction, pasteAction});
        menu.addSeparator();
        menu.addAction(deleteAction);
        if (several) {
            menu.addSeparator();
            menu.addAction(openInExplorerAction);
        } else {
            menu.addAction(renameAction);
            menu.addSeparator();
            if (info.isFile()) {
                menu.addAction(openWithDefaultAction);
                menu.addMenu(AddressTree::tr("Copy Path"))
                    ->addActions({copyAbsolutePathAction, copyRelativePathAction});
            }
            menu.addAction(openInExplorerAction);
            if (info.isDir())
                menu.addMenu(newMenu);
        }
    } else {
        menu.addAction(pasteAction);
        menu.addSeparator();
        menu.addMenu(newMenu);
    }
    menu.exec(q->viewport()->mapToGlobal(position));
}

void AddressTreePrivate::toClipboard(bool cut)
{
    Q_Q(AddressTree);
    QList<QUrl> urls;
    const QStringList paths = q->selectedPaths();
    for (const QString &path : paths)
        urls << QUrl::fromLocalFile(path);
    clipboard->setMimeData(AddressFileOperations::clipboardData(urls, cut));
}

void AddressTreePrivate::paste(const QString &target)
{
    Q_Q(AddressTree);
    const QPointer<AddressTree> that = q;
    AddressFileOperations operations(trashPath);
    operations.paste(clipboard, target);
    if (that)
        trashPath = operations.trashPath();
}

void AddressTreePrivate::deleteSelected()
{
    Q_Q(AddressTree);
    AddressFileOperations operations(trashPath);
    const QStringList paths = q->selectedPaths();
    for (const QString &path : paths)
        operations.remove(path);
    trashPath = operations.trashPath();
}

void AddressTreePrivate::rename()
{
    Q_Q(AddressTree);
    if (q->selectedPaths().size() != 1 || !q->currentIndex().isValid())
        return;
    const QModelIndex index = model->index(q->targetPath());
    // The view complains about an entry that may not be renamed, or is being renamed.
    if (index.flags().testFlag(Qt::ItemIsEditable) && q->state() != AddressTree::EditingState)
        q->edit(index);
}

void AddressTreePrivate::createFolder()
{
    Q_Q(AddressTree);
    const QString folder = targetFolder();
    if (folder.isEmpty())
        return;
    const QModelIndex index = model->index(AddressFileOperations::createFolder(folder));
    if (!index.isValid())
        return;
    q->setCurrentIndex(index);
    q->edit(index);
}

void AddressTreePrivate::copyPath(bool relative)
{
    Q_Q(AddressTree);
    const QString path = q->targetPath();
    const QFileInfo info(path);
    if (!info.isFile())
        return;
    clipboard->clear();
    clipboard->setText(relative ? QDir(model->rootPath()).relativeFilePath(info.absoluteFilePath())
                                : path);
}

AddressTree::AddressTree(QWidget *parent)
    : AddressTree(*new AddressTreePrivate, parent)
{
    Q_D(AddressTree);
    d->model = new AddressFileModel(this);
    d->model->setNameFilters(d->nameFilters);
    d->model->setReadOnly(false);
    setModel(d->model);

    setSelectionMode(QAbstractItemView::ExtendedSelection);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setAcceptDrops(true);
    setDragEnabled(true);
    setDropIndicatorShown(true);
    setContextMenuPolicy(Qt::CustomContextMenu);
    connect(this, &QWidget::customContextMenuRequested, this,
            [d](QPoint position) { d->showContextMenu(position); });
    setColumnWidth(0, 200);
    for (int column = 1; column <= 3; ++column)
        setColumnWidth(column, 100);
    connect(this, &QAbstractItemView::doubleClicked, this,
            [d](const QModelIndex &index) { d->openIndex(index); });
    header()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);

    d->createActions();
    d->updatePasteAction();
    connect(d->clipboard, &QClipboard::dataChanged, this, [d] { d->updatePasteAction(); });
    connect(selectionModel(), &QItemSelectionModel::selectionChanged, this,
            [d] { d->updateSelectionActions(); });
}

AddressTree::AddressTree(AddressTreePrivate &dd, QWidget *parent)
    : QTreeView(parent)
    , d_ptr(&dd)
{
    Q_D(AddressTree);
    d->q_ptr = this;
}

AddressTree::~AddressTree() = default;

void AddressTree::setSuffixes(const QStringList &suffixes)
{
    Q_D(AddressTree);
    d->suffixes = suffixes;
}

void AddressTree::addNewAction(QAction *action)
{
    Q_D(AddressTree);
    if (action)
        d->newMenu->addAction(action);
}

QString AddressTree::targetPath() const
{
    Q_D(const AddressTree);
    if (!selectionModel()->selectedRows().isEmpty() && currentIndex().isValid())
        return d->model->filePath(currentIndex());
    return d->shownFolder();
}

QStringList AddressTree::selectedPaths() const
{
    Q_D(const AddressTree);
    QStringList paths;
    const QModelIndexList rows = selectionModel()->selectedRows();
    for (const QModelIndex &row : rows)
        paths << d->model->filePath(row);
    return paths;
}

void AddressTree::slotPathChanged(const QString &path)
{
    Q_D(AddressTree);
    if (path == d->rootPath)
        return;
    d->rootPath = path;
    const bool drives = AddressPath::nativeStyle() == AddressPath::Style::DriveLetters;
    d->model->setRootPath(drives ? path : AddressPath::folder(path));
    const QPersistentModelIndex previous = rootIndex();
    selectionModel()->clear();
    // To scroll to it would open, and list, every folder above it.
    const bool scrolls = hasAutoScroll();
    setAutoScroll(false);
    setCurrentIndex(previous);
    setAutoScroll(scrolls);
    setRootIndex(d->model->index(d->model->rootPath()));
    // What is selected can be deleted, so it must be seen.
    if (previous.parent() != rootIndex())
        selectionModel()->clear();
}

void AddressTree::keyPressEvent(QKeyEvent *event)
{
    Q_D(AddressTree);
    QAction *action = nullptr;
    Qt::KeyboardModifiers modifiers = Qt::ControlModifier;
    switch (event->key()) {
    case Qt::Key_C:
        action = d->copyAction;
        break;
    case Qt::Key_V:
        action = d->pasteAction;
        break;
    case Qt::Key_X:
        action = d->cutAction;
        break;
    case Qt::Key_Delete:
        action = d->deleteAction;
        modifiers = Qt::NoModifier;
        break;
    case Qt::Key_F2:
        action = d->renameAction;
        modifiers = Qt::NoModifier;
        break;
    default:
        QTreeView::keyPressEvent(event);
        return;
    }
    if (event->modifiers() == modifiers && action->isEnabled())
        Q_EMIT action->triggered(false);
}

void AddressTree::dragEnterEvent(QDragEnterEvent *event)
{
    Q_D(AddressTree);
    if (!event->mimeData()->hasUrls()) {
        event->ignore();
        return;
    }
    event->acceptProposedAction();
    const auto drive = [](const QString &path) {
        return QFileInfo(path).absoluteFilePath().left(3);
    };
    const QString source = event->mimeData()->urls().value(0).toLocalFile();
    d->dropAction =
        drive(source) == drive(AddressPath::folder(d->rootPath)) ? Qt::MoveAction : Qt::CopyAction;
}

void AddressTree::dragMoveEvent(QDragMoveEvent *event)
{
    event->accept();
}

// The drop is not accepted: whoever dragged must not remove what this has moved already.
void AddressTree::dropEvent(QDropEvent *event)
{
    Q_D(AddressTree);
    if (!event->mimeData()->hasUrls())
        return;
    d->clipboard->setMimeData(AddressFileOperations::clipboardData(
        event->mimeData()->urls(), d->dropAction == Qt::MoveAction));
    const QModelIndex index = indexAt(event->position().toPoint());
    d->paste(index.isValid() ? d->model->filePath(index) : d->shownFolder());
}

} // namespace Norvane
