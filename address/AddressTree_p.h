// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "AddressTree.h"

#include <QtCore/QList>
#include <QtCore/QStringList>

class QClipboard;
class QMenu;

namespace Norvane {

class AddressFileModel;
class AddressFileOperations;

class AddressTreePrivate
{
    Q_DECLARE_PUBLIC(AddressTree)

public:
    AddressTreePrivate();
    virtual ~AddressTreePrivate();

    void createActions();
    void updatePasteAction();
    void updateSelectionActions();
    QString shownFolder() const;
    QString targetFolder() const;
    void openIndex(const QModelIndex &index);
    void showContextMenu(QPoint position);

    void toClipboard(bool cut);
    void paste(const QString &target);
    void deleteSelected();
    void rename();
    void createFolder();
    void copyPath(bool relative);

    AddressFileModel *model = nullptr;
    QString rootPath;
    QString trashPath;
    QStringList nameFilters;
    int dropAction = Qt::IgnoreAction;
    QAction *openAction = nullptr;
    QAction *cutAction = nullptr;
    QAction *copyAction = nullptr;
    QAction *pasteAction = nullptr;
    QAction *deleteAction = nullptr;
    QAction *renameAction = nullptr;
    QAction *folderAction = nullptr;
    QAction *openInExplorerAction = nullptr;
    QAction *openWithDefaultAction = nullptr;
    QAction *copyAbsolutePathAction = nullptr;
    QAction *copyRelativePathAction = nullptr;
    QMenu *newMenu = nullptr;
    QClipboard *clipboard;
    QList<QAction *> reserved;
    QStringList suffixes;
    AddressTree *q_ptr = nullptr;
};

} // namespace Norvane
