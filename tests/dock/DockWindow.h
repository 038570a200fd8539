// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "Gui.h"

#include <Norvane/DockContainer.h>
#include <Norvane/DockContentWidget.h>
#include <Norvane/DockPanelWidget.h>
#include <dock/DockButton.h>

#include <QtWidgets/QMainWindow>
#include <QtWidgets/QSplitter>
#include <QtWidgets/QSplitterHandle>

//! A main window with a dock container as its central widget, as applications build it.
class DockWindow : public QMainWindow
{
public:
    using Container = Norvane::DockContainer;
    using PanelWidget = Norvane::DockPanelWidget;

    explicit DockWindow(int views = 2)
        : container(new Container)
        , content(container->contentWidget())
        , left(container->panelWidget(Container::LeftDockArea))
        , right(container->panelWidget(Container::RightDockArea))
        , bottom(container->panelWidget(Container::BottomDockArea))
    {
        setCentralWidget(container);
        for (PanelWidget *panelWidget : {left, right, bottom}) {
            for (int i = 0; i < views; ++i)
                panelWidget->addView(new QWidget, QIcon(), QStringLiteral("view"));
        }
        section = content->addSection(QStringLiteral("Texts"));
        resize(1000, 700);
    }

    int addTab(int toSection = 0) const
    {
        return content->addTab(toSection, new QWidget, QStringLiteral("tab"));
    }

    // At an edge only a part of the handle can be grabbed.
    static void drag(QSplitterHandle *handle, QPoint by)
    {
        const QPoint from = handle->visibleRegion().boundingRect().center();
        const QPoint start = handle->mapTo(handle->window(), from);
        Gui::press(handle, from);
        for (int step = 1; step <= 10; ++step)
            QTest::mouseMove(handle->window()->windowHandle(), start + by * step / 10);
        QTest::mouseRelease(handle->window()->windowHandle(), Qt::LeftButton, {}, start + by);
    }

    QSplitter *outer() const
    {
        return container->findChild<QSplitter *>(Qt::FindDirectChildrenOnly);
    }
    QSplitter *inner() const
    {
        return outer()->widget(1)->findChild<QSplitter *>(Qt::FindDirectChildrenOnly);
    }

    static Norvane::DockButton *button(const PanelWidget *panelWidget, int index)
    {
        return panelWidget->panel()->findChildren<Norvane::DockButton *>().value(index);
    }

    Container *const container;
    Norvane::DockContentWidget *const content;
    PanelWidget *const left;
    PanelWidget *const right;
    PanelWidget *const bottom;
    int section;
};
