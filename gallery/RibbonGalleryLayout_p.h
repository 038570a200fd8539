// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "RibbonGalleryLayout.h"

#include <QtCore/QHash>
#include <QtCore/QList>
#include <QtWidgets/QStyle>

namespace Norvane {

class RibbonGalleryLayoutPrivate
{
    Q_DECLARE_PUBLIC(RibbonGalleryLayout)

public:
    RibbonGalleryLayoutPrivate();
    virtual ~RibbonGalleryLayoutPrivate();

    int gap(int spacing, QStyle::PixelMetric metric, Qt::Orientation orientation,
            const QLayoutItem *item) const;
    void measure() const;
    int flow(const QRect &rect, bool place) const;

    QList<QLayoutItem *> items;
    int hSpacing = 0;
    int vSpacing = 0;
    RibbonGalleryLayout *q_ptr = nullptr;

    // What was asked for since something changed; layouts around it ask several times.
    mutable QSize minimumSize;
    mutable QList<QSize> sizes;
    mutable QHash<int, int> heights;
};

} // namespace Norvane
