// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "RibbonGalleryLayout_p.h"

#include <QtWidgets/QWidget>

namespace Norvane {

RibbonGalleryLayoutPrivate::RibbonGalleryLayoutPrivate() = default;

RibbonGalleryLayoutPrivate::~RibbonGalleryLayoutPrivate()
{
    qDeleteAll(items);
}

int RibbonGalleryLayoutPrivate::gap(int spacing, QStyle::PixelMetric metric,
                                    Qt::Orientation orientation, const QLayoutItem *item) const
{
    Q_Q(const RibbonGalleryLayout);
    if (spacing >= 0)
        return spacing;
    int smart = -1;
    if (const auto *parentWidget = qobject_cast<QWidget *>(q->parent()))
        smart = parentWidget->style()->pixelMetric(metric, nullptr, parentWidget);
    else if (const auto *parentLayout = qobject_cast<QLayout *>(q->parent()))
        smart = parentLayout->spacing();
    const QWidget *widget = item->widget();
    if (smart != -1 || !widget)
        return smart;
    return widget->style()->layoutSpacing(QSizePolicy::PushButton, QSizePolicy::PushButton,
                                          orientation);
}

void RibbonGalleryLayoutPrivate::measure() const
{
    Q_Q(const RibbonGalleryLayout);
    if (minimumSize.isValid())
        return;
    QSize size(0, 0);
    sizes.clear();
    for (const QLayoutItem *item : items) {
        sizes.append(item->sizeHint());
        size = size.expandedTo(item->minimumSize());
    }
    minimumSize = size.grownBy(q->contentsMargins());
}

int RibbonGalleryLayoutPrivate::flow(const QRect &rect, bool place) const
{
    Q_Q(const RibbonGalleryLayout);
    const QRect area = rect.marginsRemoved(q->contentsMargins());
    const QWidget *host = q->parentWidget();
    const Qt::LayoutDirection direction = host ? host->layoutDirection() : Qt::LeftToRight;
    int x = area.left();
    int y = area.top();
    int lineHeight = 0;
    measure();
    for (qsizetype i = 0; i < items.size(); ++i) {
        QLayoutItem *item = items[i];
        const int hGap = gap(hSpacing, QStyle::PM_LayoutHorizontalSpacing, Qt::Horizontal, item);
        const int vGap = gap(vSpacing, QStyle::PM_LayoutVerticalSpacing, Qt::Vertical, item);
        const QSize size = sizes[i];
        int nextX = x + size.width() + hGap;
        if (nextX - hGap > area.right() && lineHeight > 0) {
            x = area.left();
            y += lineHeight + vGap;
            nextX = x + size.width() + hGap;
            lineHeight = 0;
        }
        if (place)
            item->setGeometry(QStyle::visualRect(direction, area, {{x, y}, size}));
        x = nextX;
        lineHeight = qMax(lineHeight, size.height());
    }
    return y + lineHeight - rect.top() + q->contentsMargins().bottom();
}

RibbonGalleryLayout::RibbonGalleryLayout(QWidget *parent, int margin, int hSpacing, int vSpacing)
    : RibbonGalleryLayout(*new RibbonGalleryLayoutPrivate, parent, margin, hSpacing, vSpacing)
{
}

RibbonGalleryLayout::RibbonGalleryLayout(RibbonGalleryLayoutPrivate &dd, QWidget *parent,
                                         int margin, int hSpacing, int vSpacing)
    : QLayout(parent)
    , d_ptr(&dd)
{
    Q_D(RibbonGalleryLayout);
    d->q_ptr = this;
    setContentsMargins(margin, margin, margin, margin);
    d->hSpacing = hSpacing;
    d->vSpacing = vSpacing;
}

RibbonGalleryLayout::~RibbonGalleryLayout() = default;

void RibbonGalleryLayout::addItem(QLayoutItem *item)
{
    Q_D(RibbonGalleryLayout);
    d->items.append(item);
    invalidate();
}

QLayoutItem *RibbonGalleryLayout::itemAt(int index) const
{
    Q_D(const RibbonGalleryLayout);
    return d->items.value(index);
}

QLayoutItem *RibbonGalleryLayout::takeAt(int index)
{
    Q_D(RibbonGalleryLayout);
    if (index < 0 || index >= count())
        return nullptr;
    invalidate();
    return d->items.takeAt(index);
}

int RibbonGalleryLayout::count() const
{
    Q_D(const RibbonGalleryLayout);
    return int(d->items.size());
}

QSize RibbonGalleryLayout::sizeHint() const
{
    return minimumSize();
}

QSize RibbonGalleryLayout::minimumSize() const
{
    Q_D(const RibbonGalleryLayout);
    d->measure();
    return d->minimumSize;
}

Qt::Orientations RibbonGalleryLayout::expandingDirections() const
{
    return {};
}

void RibbonGalleryLayout::setGeometry(const QRect &rect)
{
    Q_D(RibbonGalleryLayout);
    QLayout::setGeometry(rect);
    d->flow(rect, true);
}

void RibbonGalleryLayout::invalidate()
{
    Q_D(RibbonGalleryLayout);
    d->minimumSize = {};
    d->heights.clear();
    QLayout::invalidate();
}

bool RibbonGalleryLayout::hasHeightForWidth() const
{
    return true;
}

int RibbonGalleryLayout::heightForWidth(int width) const
{
    Q_D(const RibbonGalleryLayout);
    const auto known = d->heights.constFind(width);
    if (known != d->heights.constEnd())
        return *known;
    const int height = d->flow({0, 0, width, 0}, false);
    d->heights.insert(width, height);
    return height;
}

} // namespace Norvane
