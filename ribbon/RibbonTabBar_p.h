// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "RibbonTabBar.h"

#include <QtCore/QHash>
#include <QtGui/QColor>

class QButtonGroup;
class QHBoxLayout;

namespace Norvane {

class RibbonTab;

class RibbonTabBarPrivate
{
    Q_DECLARE_PUBLIC(RibbonTabBar)

public:
    RibbonTabBarPrivate();
    virtual ~RibbonTabBarPrivate();

    RibbonTab *tab(int index) const;

    QColor temporaryColor{17, 113, 190};
    QColor secondColor{22, 81, 170};
    QHash<QString, RibbonTab *> tabs;
    QButtonGroup *buttonGroup;
    QHBoxLayout *layout;
    RibbonTabBar *q_ptr = nullptr;
};

} // namespace Norvane
