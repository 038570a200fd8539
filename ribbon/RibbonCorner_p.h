// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "RibbonCorner.h"

class QHBoxLayout;

namespace Norvane {

class RibbonCornerPrivate
{
    Q_DECLARE_PUBLIC(RibbonCorner)

public:
    RibbonCornerPrivate();
    virtual ~RibbonCornerPrivate();

    QHBoxLayout *layout;
    std::unique_ptr<QList<QWidget *>> widgets;
    RibbonCorner *q_ptr = nullptr;
};

} // namespace Norvane
