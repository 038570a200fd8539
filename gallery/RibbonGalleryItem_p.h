// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "RibbonGalleryItem.h"

namespace Norvane {

/*!
    The marker. Its name is found by its accessible interface: to set an accessible name makes such
    an interface at once, which takes longer than to make the marker, and hardly one is ever asked
    for.
*/
class RibbonGalleryMarker : public LazyToolButton
{
    Q_OBJECT
    Q_PROPERTY(QString label READ label CONSTANT)

public:
    using LazyToolButton::LazyToolButton;

    QString label() const { return RibbonGalleryItem::tr("Collect"); }
};

class RibbonGalleryItemPrivate
{
    Q_DECLARE_PUBLIC(RibbonGalleryItem)

public:
    RibbonGalleryItemPrivate();
    virtual ~RibbonGalleryItemPrivate();

    void toggle();
    void apply();
    void showCollectButton();

    RibbonGalleryMarker *collectButton = nullptr;
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
