// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "RibbonGalleryItem.h"

namespace Norvane {

class RibbonGalleryItemPrivate
{
    Q_DECLARE_PUBLIC(RibbonGalleryItem)

public:
    RibbonGalleryItemPrivate();
    virtual ~RibbonGalleryItemPrivate();

    void toggle();
    void apply();

    QToolButton *collectButton = nullptr;
    bool collected = false;
    bool collectEnabled = false;
    RibbonGalleryItem *q_ptr = nullptr;
};

} // namespace Norvane
