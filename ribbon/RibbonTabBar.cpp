// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "RibbonTabBar_p.h"

#include "DeferredPolish.h"
#include "RibbonTab.h"

#include <QtGui/QPainter>
#include <QtWidgets/QButtonGroup>
#include <QtWidgets/QHBoxLayout>

namespace Norvane {

RibbonTabBarPrivate::RibbonTabBarPrivate()
    : buttonGroup(new QButtonGroup)
    , layout(new QHBoxLayout)
{
    layout->setContentsMargins(3, 3, 3, 0);
    layout->setSpacing(4);
}

RibbonTabBarPrivate::~RibbonTabBarPrivate() = default;

RibbonTab *RibbonTabBarPrivate::tab(int index) const
{
    return index < 0 ? nullptr : qobject_cast<RibbonTab *>(buttonGroup->button(index));
}

RibbonTabBar::RibbonTabBar(QWidget *parent)
    : RibbonTabBar(*new RibbonTabBarPrivate, parent)
{
}

RibbonTabBar::RibbonTabBar(RibbonTabBarPrivate &dd, QWidget *parent)
    : QFrame(parent)
    , d_ptr(&dd)
{
    Q_D(RibbonTabBar);
    d->q_ptr = this;
    setLayout(d->layout);
    d->buttonGroup->setParent(this);
    setFixedHeight(28);
    connect(d->buttonGroup, &QButtonGroup::idClicked, this, &RibbonTabBar::idClicked);
}

RibbonTabBar::~RibbonTabBar() = default;

int RibbonTabBar::addTab(const QString &text, bool temporary)
{
    Q_D(RibbonTabBar);
    // A hidden tab is polished when it is shown: showing a polished bar does not descend to it.
    ensurePolished();
    DeferredPolish::putOffHiddenChildren(this);
    auto *tab = new RibbonTab(text, this);
    tab->setTemporary(temporary);
    if (d->tabs.isEmpty())
        tab->setChecked(true);
    d->tabs.insert(text, tab);
    d->layout->addWidget(tab);
    d->buttonGroup->addButton(tab, count());
    return d->buttonGroup->id(tab);
}

int RibbonTabBar::count() const
{
    Q_D(const RibbonTabBar);
    return int(d->buttonGroup->buttons().size());
}

void RibbonTabBar::hideTab(int index)
{
    Q_D(RibbonTabBar);
    if (RibbonTab *tab = d->tab(index))
        tab->hide();
}

void RibbonTabBar::showTab(int index)
{
    Q_D(RibbonTabBar);
    if (RibbonTab *tab = d->tab(index))
        tab->show();
}

void RibbonTabBar::setTabEnabled(int index, bool enabled)
{
    Q_D(RibbonTabBar);
    if (RibbonTab *tab = d->tab(index))
        tab->setEnabled(enabled);
}

void RibbonTabBar::setCurrentIndex(int index)
{
    Q_D(RibbonTabBar);
    if (RibbonTab *tab = d->tab(index))
        tab->setChecked(true);
}

bool RibbonTabBar::isTabTemporary(int index) const
{
    Q_D(const RibbonTabBar);
    const RibbonTab *tab = d->tab(index);
    return tab && tab->isTemporary();
}

void RibbonTabBar::paintEvent(QPaintEvent *event)
{
    Q_UNUSED(event)
    Q_D(RibbonTabBar);
    QPainter painter(this);
    painter.setPen(Qt::NoPen);
    painter.setBrush(d->temporaryColor);
    const QList<QAbstractButton *> buttons = d->buttonGroup->buttons();
    for (const QAbstractButton *button : buttons) {
        const auto *tab = qobject_cast<const RibbonTab *>(button);
        if (tab && tab->isVisible() && tab->isTemporary())
            painter.drawRect(tab->geometry().adjusted(-2, -3, 2, 0));
    }
}

} // namespace Norvane
