// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "AddressBar.h"

#include <QtCore/QPointer>
#include <QtCore/QStringList>
#include <QtGui/QIcon>

#include <utility>

class QClipboard;
class QMenu;
class QPushButton;

namespace Norvane {

class AddressStrip;
class AddressTree;

class AddressBarPrivate
{
    Q_DECLARE_PUBLIC(AddressBar)

public:
    void init();
    void turnArrows();
    void createContextMenu();
    QPushButton *button(AddressBar::AddressButton button) const;
    void follow(QPushButton *clicked);
    AddressTree *ensureTree();
    void pushSuffixes();

    AddressStrip *strip = nullptr;
    QPointer<AddressTree> tree;
    QPushButton *backwardButton = nullptr;
    QPushButton *forwardButton = nullptr;
    QPushButton *dirupButton = nullptr;
    QPushButton *browseButton = nullptr;
    QStringList suffixes;
    QAction *copyAction = nullptr;
    QAction *cutAction = nullptr;
    QAction *pasteAction = nullptr;
    QAction *pasteAndGoAction = nullptr;
    QAction *selectAllAction = nullptr;
    QAction *deleteAction = nullptr;
    QMenu *contextMenu = nullptr;
    QClipboard *clipboard = nullptr;
    AddressBar *q_ptr = nullptr;

    // What points to the left and to the right.
    std::pair<QIcon, QIcon> arrows;
};

} // namespace Norvane
