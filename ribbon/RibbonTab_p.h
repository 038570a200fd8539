// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "RibbonTab.h"

namespace Norvane {

class RibbonTabPrivate
{
    Q_DECLARE_PUBLIC(RibbonTab)

public:
    virtual ~RibbonTabPrivate() = default;

    bool temporary = false;
    int padding = 10;
    RibbonTab *q_ptr = nullptr;
};

} // namespace Norvane
