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
    void showCollectButton();

    LazyToolButton *collectButton = nullptr;
    bool collected = false;
    bool collectEnabled = false;
    RibbonGalleryItem *q_ptr = nullptr;

    struct Icons
    {
        QIcon hollow{QStringLiteral(":/res/collect.svg")};
        QIcon filled{QStringLiteral(":/res/collected.svg")};
    };
    // Reading a drawing takes longer than making an item.
    const std::shared_ptr<const Icons> icons;
};

} // namespace Norvane
