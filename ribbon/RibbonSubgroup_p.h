// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "RibbonSubgroup.h"

class QVBoxLayout;

namespace Norvane {

class RibbonSubgroupPrivate
{
    Q_DECLARE_PUBLIC(RibbonSubgroup)

public:
    RibbonSubgroupPrivate();
    virtual ~RibbonSubgroupPrivate();

    QToolButton::ToolButtonPopupMode popupMode = QToolButton::DelayedPopup;
    QVBoxLayout *layout;
    RibbonSubgroup *q_ptr = nullptr;
};

} // namespace Norvane
