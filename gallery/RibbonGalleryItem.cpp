// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "RibbonGalleryItem_p.h"

namespace Norvane {

RibbonGalleryItemPrivate::RibbonGalleryItemPrivate() = default;

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
        collectButton->show();
        collectButton->setIcon(QIcon(QStringLiteral(":/res/collected.svg")));
    } else {
        collectButton->setIcon(QIcon(QStringLiteral(":/res/collect.svg")));
        collectButton->hide();
    }
    Q_EMIT q->signalCollected(collected);
}

RibbonGalleryItem::RibbonGalleryItem(QAction *action, QWidget *parent)
    : RibbonGalleryItem(*new RibbonGalleryItemPrivate, action, parent)
{
}

RibbonGalleryItem::RibbonGalleryItem(RibbonGalleryItemPrivate &dd, QAction *action, QWidget *parent)
    : QToolButton(parent)
    , d_ptr(&dd)
{
    Q_D(RibbonGalleryItem);
    d->q_ptr = this;
    setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    setIconSize({24, 24});
    setDefaultAction(action);
    d->collectButton = new QToolButton(this);
    d->collectButton->setObjectName(QStringLiteral("collectedButton"));
    d->collectButton->setCheckable(true);
    d->collectButton->setIconSize({16, 16});
    connect(
        d->collectButton, &QToolButton::clicked, this, [d] { d->toggle(); }, Qt::DirectConnection);
    d->apply();
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
        d->collectButton->show();
    QToolButton::enterEvent(event);
}

void RibbonGalleryItem::leaveEvent(QEvent *event)
{
    Q_D(RibbonGalleryItem);
    if (!d->collected)
        d->collectButton->hide();
    QToolButton::leaveEvent(event);
}

} // namespace Norvane
