// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "DockPanel.h"
#include "DockPanelWidget.h"
#include "DockView.h"

#include <QtCore/QList>
#include <QtCore/QPointer>
#include <QtWidgets/QStackedWidget>

class QSplitter;

namespace Norvane {

class DockPanelWidgetPrivate
{
    Q_DECLARE_PUBLIC(DockPanelWidget)

public:
    DockPanelWidgetPrivate();
    virtual ~DockPanelWidgetPrivate();

    QSplitter *page(int index) const;
    DockView *createView(QWidget *widget, const QString &text);
    void onButton(int index);
    static void collapse(QSplitter *page, const DockView *view);

    QPointer<DockPanel> panel;
    QPointer<QStackedWidget> stackedWidget;
    bool minimized = false;
    // The application may delete a view.
    QList<QPointer<DockView>> views;
    DockPanelWidget *q_ptr = nullptr;
};

} // namespace Norvane
