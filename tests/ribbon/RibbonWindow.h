// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "Gui.h"

#include <Norvane/RibbonBar.h>
#include <Norvane/RibbonGroup.h>
#include <Norvane/RibbonPage.h>
#include <ribbon/RibbonStackedWidget.h>
#include <ribbon/RibbonTab.h>
#include <ribbon/RibbonTabBar.h>

#include <QtGui/QMouseEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QButtonGroup>
#include <QtWidgets/QVBoxLayout>

//! A coloured rectangle that counts the presses that reach it.
class Patch : public QWidget
{
public:
    Patch(const QColor &colour, QSize size)
        : m_colour(colour)
    {
        setFixedSize(size);
    }

    int presses = 0;

protected:
    void paintEvent(QPaintEvent *) override { QPainter(this).fillRect(rect(), m_colour); }
    void mousePressEvent(QMouseEvent *) override { ++presses; }

private:
    const QColor m_colour;
};

//! A window with a ribbon at its top, as applications build it.
class RibbonWindow : public QWidget
{
public:
    explicit RibbonWindow(int width = 800)
    {
        auto *column = new QVBoxLayout(this);
        column->setContentsMargins(0, 0, 0, 0);
        column->setSpacing(0);
        column->addWidget(bar);
        column->addStretch();
        resize(width, 300);
    }

    bool open()
    {
        if (!Gui::open(this))
            return false;
        // No tab shall look hovered because a window of an earlier test left the mouse there.
        Gui::moveMouse(this, rect().bottomLeft() + QPoint(10, -10));
        return true;
    }

    Norvane::RibbonTabBar *tabBar() const { return bar->findChild<Norvane::RibbonTabBar *>(); }
    Norvane::RibbonStackedWidget *stack() const
    {
        return bar->findChild<Norvane::RibbonStackedWidget *>();
    }
    Norvane::RibbonTab *tab(int index) const
    {
        auto *button = tabBar()->findChild<QButtonGroup *>()->button(index);
        return qobject_cast<Norvane::RibbonTab *>(button);
    }

    //! Adds \a count pages named "A", "B", ...
    void addPages(int count)
    {
        for (int i = 0; i < count; ++i)
            bar->addPage(QChar(u'A' + i), false);
    }

    Patch *addPatch(Norvane::RibbonPage *page, const QColor &colour, int width)
    {
        auto *patch = new Patch(colour, {width, 60});
        page->addGroup(QString())->addWidget(patch);
        return patch;
    }

    Norvane::RibbonBar *bar = new Norvane::RibbonBar;
};
