// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "DockContainer.h"

#include <QtCore/QPointer>
#include <QtWidgets/QMainWindow>

class QSplitter;

namespace Norvane {

class DockStatusBar;

class DockContainerPrivate
{
    Q_DECLARE_PUBLIC(DockContainer)

public:
    DockContainerPrivate();
    virtual ~DockContainerPrivate();

    void build();
    void onOuterMoved();
    void onInnerMoved();
    void arrange(QSplitter *splitter) const;
    void rememberShares();
    void onFirstView(QSplitter *splitter, const QWidget *pane);
    bool isAway(const QWidget *pane) const;
    void minimizeSide(int pane, qint32 *width, bool minimized);
    void minimizeBottom(bool minimized);
    void setContentVisible(bool visible);
    void updateStatusBar();

    QSplitter *outerSplitter;
    QSplitter *innerSplitter;
    QPointer<DockPanelWidget> leftPanelWidget;
    QPointer<DockPanelWidget> bottomPanelWidget;
    QPointer<DockPanelWidget> rightPanelWidget;
    DockContentWidget *contentWidget;
    QPointer<DockStatusBar> statusBar;
    QPointer<QMainWindow> mainWindow;
    qint32 leftWidth = 0;
    qint32 bottomHeight = 0;
    qint32 rightWidth = 0;
    qint32 hiddenContentHeight = 0;
    DockContainer *q_ptr = nullptr;
    QWidget *centreWidget;
    bool wasShown = false;
    bool restored = false;
    bool contentWasShown = false;
};

} // namespace Norvane
