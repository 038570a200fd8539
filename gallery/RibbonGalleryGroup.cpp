// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "RibbonGalleryGroup_p.h"

#include "RibbonGalleryItem.h"
#include "RibbonGalleryLayout.h"

#include <QtGui/QAction>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

namespace Norvane {

namespace {

// From here on it takes longer to show items one by one than to hide and show all that are there.
constexpr int ManyItems = 50;
// Up to here it saves nothing that is felt not to show what is not seen.
constexpr int FewItems = 24;

} // namespace

RibbonGalleryGroupPrivate::RibbonGalleryGroupPrivate()
    : iconLabel(new QLabel)
    , titleLabel(new QLabel)
    , groupFrame(new QFrame)
    , itemsLayout(new RibbonGalleryLayout(groupFrame, 0, 0, 0))
    , toTopButton(new QPushButton)
    , toBottomButton(new QPushButton)
{
    groupFrame->setObjectName(QStringLiteral("galleryGroupFrame"));
    QSizePolicy roomEvenIfHidden = groupFrame->sizePolicy();
    roomEvenIfHidden.setRetainSizeWhenHidden(true);
    groupFrame->setSizePolicy(roomEvenIfHidden);
    itemsLayout->setContentsMargins(3, 5, 3, 5);
    toTopButton->setAccessibleName(RibbonGalleryGroup::tr("Move Up"));
    toTopButton->setIcon(QIcon(QStringLiteral(":/res/toTop.svg")));
    toTopButton->setIconSize({16, 16});
    toBottomButton->setAccessibleName(RibbonGalleryGroup::tr("Move Down"));
    toBottomButton->setIcon(QIcon(QStringLiteral(":/res/toBottom.svg")));
    toBottomButton->setIconSize({16, 16});
}

RibbonGalleryGroupPrivate::~RibbonGalleryGroupPrivate() = default;

int RibbonGalleryGroupPrivate::indexOf(const QAction *action) const
{
    // Items of deleted actions have none.
    for (int i = 0; action && i < items.size(); ++i) {
        if (items[i]->defaultAction() == action)
            return i;
    }
    return -1;
}

const QStringList &RibbonGalleryGroupPrivate::searchedTexts()
{
    if (texts.isEmpty()) {
        for (const RibbonGalleryItem *item : std::as_const(items))
            texts.append(item->text());
    }
    return texts;
}

// Qt does with a widget whose parent cannot be seen nearly all that it does with one that can be
// seen, and none of it is needed by items, which get to know all of it when their frame is shown.
void RibbonGalleryGroupPrivate::setHidden(RibbonGalleryItem *item, bool hidden)
{
    if (groupFrame->isVisible()) {
        item->setHidden(hidden);
        return;
    }
    item->setAttribute(Qt::WA_WState_Hidden, hidden);
    item->setAttribute(Qt::WA_WState_ExplicitShowHide);
}

bool RibbonGalleryGroupPrivate::hasFocus() const
{
    return groupFrame->isAncestorOf(QApplication::focusWidget());
}

RibbonGalleryGroup::RibbonGalleryGroup(const QIcon &icon, const QString &title, QWidget *parent)
    : RibbonGalleryGroup(*new RibbonGalleryGroupPrivate, icon, title, parent)
{
}

RibbonGalleryGroup::RibbonGalleryGroup(RibbonGalleryGroupPrivate &dd, const QIcon &icon,
                                       const QString &title, QWidget *parent)
    : QFrame(parent)
    , d_ptr(&dd)
{
    Q_D(RibbonGalleryGroup);
    d->q_ptr = this;
    auto *titleRow = new QHBoxLayout;
    titleRow->setSpacing(0);
    titleRow->setContentsMargins(4, 0, 4, 0);
    titleRow->setDirection(QBoxLayout::LeftToRight);
    titleRow->addWidget(d->iconLabel);
    titleRow->addWidget(d->titleLabel);
    titleRow->addStretch(1);
    titleRow->addWidget(d->toTopButton);
    titleRow->addWidget(d->toBottomButton);
    auto *titleBar = new QFrame;
    titleBar->setObjectName(QStringLiteral("galleryGroupTitle"));
    titleBar->setLayout(titleRow);
    auto *column = new QVBoxLayout(this);
    column->setSpacing(0);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(titleBar);
    column->addWidget(d->groupFrame);
    connect(d->toTopButton, &QPushButton::clicked, this,
            [this] { Q_EMIT signalPositionChange(Top); });
    connect(d->toBottomButton, &QPushButton::clicked, this,
            [this] { Q_EMIT signalPositionChange(Bottom); });
    d->titleLabel->setText(title);
    setAccessibleName(title);
    if (icon.isNull())
        d->iconLabel->hide();
    else
        d->iconLabel->setPixmap(icon.pixmap(QSize(16, 16), QIcon::Normal, QIcon::Off));
}

RibbonGalleryGroup::~RibbonGalleryGroup() = default;

int RibbonGalleryGroup::addItem(QAction *action, const QSize &iconSize, const QSize &fixedSize,
                                bool collectEnabled)
{
    Q_D(RibbonGalleryGroup);
    // The layout would bring it there in any case, at more than the price of the item.
    auto *item = new RibbonGalleryItem(action, d->groupFrame);
    item->setIconSize(iconSize);
    item->setFixedSize(fixedSize);
    item->setCollectEnabled(collectEnabled);
    connect(action, &QAction::changed, item, [d] { d->texts.clear(); });
    d->texts.clear();
    d->items.append(item);
    d->itemsLayout->addWidget(item);
    return count() - 1;
}

int RibbonGalleryGroup::count() const
{
    Q_D(const RibbonGalleryGroup);
    return int(d->items.size());
}

RibbonGalleryItem *RibbonGalleryGroup::item(int index) const
{
    Q_D(const RibbonGalleryGroup);
    return d->items.value(index);
}

bool RibbonGalleryGroup::isItemCollected(int index) const
{
    const RibbonGalleryItem *at = item(index);
    return at && at->isCollected();
}

bool RibbonGalleryGroup::setItemCollected(int index, bool collected)
{
    RibbonGalleryItem *at = item(index);
    if (!at)
        return false;
    at->setCollected(collected);
    return true;
}

bool RibbonGalleryGroup::setItemCollected(QAction *action, bool collected)
{
    Q_D(RibbonGalleryGroup);
    return setItemCollected(d->indexOf(action), collected);
}

bool RibbonGalleryGroup::removeItem(QAction *action)
{
    Q_D(RibbonGalleryGroup);
    const int index = d->indexOf(action);
    if (index < 0)
        return false;
    d->texts.clear();
    RibbonGalleryItem *item = d->items.takeAt(index);
    d->itemsLayout->removeWidget(item);
    delete item;
    return true;
}

void RibbonGalleryGroup::setItemVisible(int index, bool visible)
{
    Q_D(RibbonGalleryGroup);
    d->items[index]->setVisible(visible);
}

void RibbonGalleryGroup::setPosition(Position position)
{
    Q_D(RibbonGalleryGroup);
    d->toTopButton->setVisible(position == Middle || position == Bottom);
    d->toBottomButton->setVisible(position == Top || position == Middle);
}

QString RibbonGalleryGroup::title() const
{
    Q_D(const RibbonGalleryGroup);
    return d->titleLabel->text();
}

bool RibbonGalleryGroup::filter(const QString &text)
{
    Q_D(RibbonGalleryGroup);
    QList<RibbonGalleryItem *> changed;
    bool anyMatches = false;
    const QStringList &texts = d->searchedTexts();
    for (qsizetype i = 0; i < texts.size(); ++i) {
        const bool matches = texts[i].contains(text);
        anyMatches = anyMatches || matches;
        if (matches == d->items[i]->isHidden())
            changed.append(d->items[i]);
    }
    if (!anyMatches)
        hide();
    if (changed.size() > ManyItems && !d->hasFocus())
        d->groupFrame->hide();
    // Each item that is shown would have all of them laid out.
    d->itemsLayout->setEnabled(false);
    layout()->setEnabled(false);
    for (RibbonGalleryItem *item : std::as_const(changed))
        d->setHidden(item, !item->isHidden());
    d->itemsLayout->setEnabled(true);
    layout()->setEnabled(true);
    if (!anyMatches)
        return false;
    if (!changed.isEmpty()) {
        d->itemsLayout->invalidate();
        d->groupFrame->updateGeometry();
    }
    show();
    return true;
}

void RibbonGalleryGroup::showItems(bool show)
{
    Q_D(RibbonGalleryGroup);
    const bool shown = show || count() <= FewItems || d->hasFocus();
    // Moving them costs least before they are shown.
    if (shown)
        d->itemsLayout->activate();
    if (shown != showsItems())
        d->groupFrame->setVisible(shown);
}

bool RibbonGalleryGroup::showsItems() const
{
    Q_D(const RibbonGalleryGroup);
    return !d->groupFrame->isHidden();
}

void RibbonGalleryGroup::updateLayout()
{
    Q_D(RibbonGalleryGroup);
    d->itemsLayout->update();
}

} // namespace Norvane
