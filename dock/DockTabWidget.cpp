// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "DockTabWidget.h"

#include "DockTabBar.h"

namespace Norvane {

DockTabWidget::DockTabWidget(QWidget *parent)
    : QTabWidget(parent)
{
    setObjectName(QStringLiteral("dockTabWidget"));
    // Without a parent it would be shown with no width at first, and come up scrolled.
    auto *bar = new DockTabBar(this);
    // The name must be there before the bar is polished, or it would keep the height of others.
    bar->setObjectName(QStringLiteral("dockTabBar"));
    setTabBar(bar);
    // The bar never gets more room than its tabs want, but QTabBar looks long for how to share it.
    bar->setExpanding(false);
    setTabsClosable(true);
    setMovable(true);
}

void DockTabWidget::tabRemoved(int index)
{
    QTabWidget::tabRemoved(index);
    Q_EMIT removed();
}

} // namespace Norvane
