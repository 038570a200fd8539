// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "DockTabWidget.h"

#include <QtWidgets/QTabBar>

namespace Norvane {

DockTabWidget::DockTabWidget(QWidget *parent)
    : QTabWidget(parent)
{
    setObjectName(QStringLiteral("dockTabWidget"));
    // The name must be there before the bar is polished, or it would keep the height of others.
    tabBar()->setObjectName(QStringLiteral("dockTabBar"));
    setTabsClosable(true);
    setMovable(true);
}

void DockTabWidget::tabRemoved(int index)
{
    QTabWidget::tabRemoved(index);
    Q_EMIT removed();
}

} // namespace Norvane
