// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "RibbonPage.h"

class QHBoxLayout;

namespace Norvane {

class RibbonPagePrivate
{
    Q_DECLARE_PUBLIC(RibbonPage)

public:
    RibbonPagePrivate();
    virtual ~RibbonPagePrivate();

    QHBoxLayout *layout;
    QList<RibbonGroup *> groups;
    RibbonPage *q_ptr = nullptr;
};

} // namespace Norvane
