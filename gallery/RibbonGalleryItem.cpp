// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "RibbonGalleryItem_p.h"

namespace Norvane {

namespace {

// The same for all items, as long as there are any.
template<typename Icons>
std::shared_ptr<const Icons> sharedIcons()
{
    static std::weak_ptr<const Icons> shared;
    std::shared_ptr<const Icons> icons = shared.lock();
    if (!icons) {
        icons = std::make_shared<const Icons>();
        shared = icons;
    }
    return icons;
}

} // namespace

RibbonGalleryItemPrivate::RibbonGalleryItemPrivate()
    : icons(sharedIcons<Icons>())
{
}

RibbonGalleryItemPrivate::~RibbonGalleryItemPrivate() = default;

void RibbonGalleryItemPrivate::toggle()
{
    collected = !collected;
    apply();
}

void RibbonGalleryItemPrivate::apply()
{
    Q_Q(RibbonGalleryItem);
    if (collected) {
        showCollectButton();
        collectButton->setIcon(icons->filled);
    } else {
        collectButton->setIcon(icons->hollow);
        collectButton->hide();
    }
    Q_EMIT q->signalCollected(collected);
}

// It takes its size from the sheet when it is shown.
void RibbonGalleryItemPrivate::showCollectButton()
{
    collectButton->polish();
    collectButton->show();
}

RibbonGalleryItem::RibbonGalleryItem(QAction *action, QWidget *parent)
    : RibbonGalleryItem(*new RibbonGalleryItemPrivate, action, parent)
{
}

RibbonGalleryItem::RibbonGalleryItem(RibbonGalleryItemPrivate &dd, QAction *action, QWidget *parent)
    : d_ptr(&dd)
{
    Q_D(RibbonGalleryItem);
    d->q_ptr = this;
    setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    setIconSize({24, 24});
    setDefaultAction(action);
    d->collectButton = new RibbonGalleryMarker(this);
    d->collectButton->setObjectName(QStringLiteral("collectedButton"));
    d->collectButton->setCheckable(true);
    d->collectButton->setIconSize({16, 16});
    connect(
        d->collectButton, &QToolButton::clicked, this, [d] { d->toggle(); }, Qt::DirectConnection);
    d->apply();
    // Tool buttons ask their style when they are made: not yet under the sheets of the parents.
    if (parent)
        setParent(parent);
}

RibbonGalleryItem::~RibbonGalleryItem() = default;

void RibbonGalleryItem::setCollectEnabled(bool enabled)
{
    Q_D(RibbonGalleryItem);
    d->collectEnabled = enabled;
    if (!enabled)
        d->collectButton->hide();
}

bool RibbonGalleryItem::isCollected() const
{
    Q_D(const RibbonGalleryItem);
    return d->collected;
}

void RibbonGalleryItem::setCollected(bool collected)
{
    Q_D(RibbonGalleryItem);
    d->collected = collected;
    d->apply();
}

void RibbonGalleryItem::enterEvent(QEnterEvent *event)
{
    Q_D(RibbonGalleryItem);
    if (d->collectEnabled)
        d->showCollectButton();
    LazyToolButton::enterEvent(event);
}

void RibbonGalleryItem::leaveEvent(QEvent *event)
{
    Q_D(RibbonGalleryItem);
    if (!d->collected)
        d->collectButton->hide();
    LazyToolButton::leaveEvent(event);
}

} // namespace Norvane
