// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "RibbonBar.h"

namespace Norvane {

class RibbonStackedWidget;
class RibbonTabBar;

class RibbonBarPrivate
{
    Q_DECLARE_PUBLIC(RibbonBar)

public:
    RibbonBarPrivate();
    virtual ~RibbonBarPrivate();

    RibbonTabBar *tabBar;
    RibbonCorner *corner;
    RibbonStackedWidget *stackedWidget;
    RibbonBar *q_ptr = nullptr;
};

} // namespace Norvane
