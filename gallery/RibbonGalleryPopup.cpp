// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "RibbonGalleryPopup_p.h"

#include "RibbonGalleryItem.h"

#include <QtCore/QTimer>
#include <QtGui/QAccessible>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

namespace Norvane {

namespace {

constexpr int SearchHeight = 32;
constexpr int EmptyHeight = 62;
constexpr int FirstRowHeight = 98;
constexpr int RowHeight = 74;

} // namespace

RibbonGalleryPopupPrivate::RibbonGalleryPopupPrivate()
    : collectedGroup(new RibbonGalleryGroup(QIcon(QStringLiteral(":/res/collected.svg")),
                                            RibbonGalleryPopup::tr("collected")))
    , groupsLayout(new QVBoxLayout)
    , searchEdit(new QLineEdit)
    , closeButton(new QPushButton)
    , noMatchLabel(new QLabel(RibbonGalleryPopup::tr("No items match your search criteria.")))
    , contentFrame(new QFrame)
{
    groupsLayout->setContentsMargins(0, 0, 0, 0);
    groupsLayout->setSpacing(0);
    groupsLayout->setAlignment(Qt::AlignTop);
    searchEdit->addAction(QIcon(QStringLiteral(":/res/search.svg")), QLineEdit::TrailingPosition);
    searchEdit->setAccessibleName(RibbonGalleryPopup::tr("Search"));
    closeButton->setAccessibleName(RibbonGalleryPopup::tr("Close"));
    closeButton->setIcon(QIcon(QStringLiteral(":/res/close.svg")));
    closeButton->setIconSize({12, 12});
    noMatchLabel->setAlignment(Qt::AlignHCenter | Qt::AlignTop | Qt::AlignVCenter);
    noMatchLabel->setFixedHeight(30);
    noMatchLabel->hide();
}

RibbonGalleryPopupPrivate::~RibbonGalleryPopupPrivate()
{
    if (!noMatchLabel->parentWidget())
        delete noMatchLabel;
}

void RibbonGalleryPopupPrivate::reorder()
{
    for (RibbonGalleryGroup *group : std::as_const(groups))
        groupsLayout->removeWidget(group);
    groupsLayout->removeWidget(noMatchLabel);
    for (RibbonGalleryGroup *group : std::as_const(groups)) {
        groupsLayout->addWidget(group);
        if (group == groups.first())
            group->setPosition(RibbonGalleryGroup::Top);
        else if (group == groups.last())
            group->setPosition(RibbonGalleryGroup::Bottom);
        else
            group->setPosition(RibbonGalleryGroup::Middle);
    }
    groupsLayout->addWidget(noMatchLabel);
}

void RibbonGalleryPopupPrivate::move(RibbonGalleryGroup *group,
                                     RibbonGalleryGroup::Position position)
{
    Q_Q(RibbonGalleryPopup);
    groups.removeOne(group);
    if (position == RibbonGalleryGroup::Top)
        groups.prepend(group);
    else if (position == RibbonGalleryGroup::Bottom)
        groups.append(group);
    reorder();
    Q_EMIT q->signalGroupUpdated();
}

void RibbonGalleryPopupPrivate::collect(QAction *action, bool collected)
{
    Q_Q(RibbonGalleryPopup);
    if (!action)
        return;
    if (!collected) {
        collectedGroup->removeItem(action);
        updateHeight();
        if (collectedGroup->count() == 0)
            collectedGroup->hide();
        return;
    }
    const int index = collectedGroup->addItem(action, iconSize, actionSize, true);
    collectedGroup->show();
    updateHeight();
    RibbonGalleryItem *copy = collectedGroup->item(index);
    copy->setCollected(true);
    QObject::connect(
        copy, &RibbonGalleryItem::signalCollected, q,
        [this, copy] { uncollect(copy->defaultAction()); }, Qt::DirectConnection);
}

void RibbonGalleryPopupPrivate::uncollect(QAction *action)
{
    collectedGroup->removeItem(action);
    updateHeight();
    for (RibbonGalleryGroup *group : std::as_const(groups))
        group->setItemCollected(action, false);
}

void RibbonGalleryPopupPrivate::filter(const QString &text)
{
    Q_Q(RibbonGalleryPopup);
    QList<RibbonGalleryGroup *> searched = groups;
    if (collectEnabled)
        searched.prepend(collectedGroup);
    contentFrame->layout()->setEnabled(false);
    heedGestures(false);
    bool anyMatches = false;
    for (RibbonGalleryGroup *group : std::as_const(searched))
        anyMatches = group->filter(text) || anyMatches;
    noMatchLabel->setVisible(!anyMatches);
    updateHeight();
    contentFrame->layout()->setEnabled(true);
    // It heard of no new size meanwhile, and would lay out what was painted already.
    contentFrame->layout()->invalidate();
    q->arrange();
    heedGestures(q->isVisible());
}

// Of every event of every widget on a widget that heeds gestures Qt finds out whether it is part of
// one, which takes as long as all else that becomes of the events of an item that is hidden or
// shown.
void RibbonGalleryPopupPrivate::heedGestures(bool heed)
{
    Q_Q(RibbonGalleryPopup);
    if (heed)
        q->viewport()->grabGesture(Qt::PanGesture);
    else
        q->viewport()->ungrabGesture(Qt::PanGesture);
}

// Showing and hiding thousands of items takes longer than all else that a search does, so those are
// shown that stand on the page that is seen and on the pages before and after it.
void RibbonGalleryPopupPrivate::showNearItems()
{
    Q_Q(RibbonGalleryPopup);
    if (!contentFrame->layout()->isEnabled())
        return;
    const QSize page = q->viewport()->size();
    const QRect pages(-contentFrame->pos() - QPoint(0, page.height()),
                      page + QSize(0, 2 * page.height()));
    const auto show = [&](RibbonGalleryGroup *group) {
        const bool near = !group->isHidden() && pages.intersects(group->geometry());
        // What was seen stays as long as the popup is open; assistive tools look everywhere.
        const bool stays = q->isVisible() && group->showsItems();
        group->showItems(near || stays || QAccessible::isActive());
    };
    show(collectedGroup);
    for (RibbonGalleryGroup *group : std::as_const(groups))
        show(group);
}

int RibbonGalleryPopupPrivate::estimate(const RibbonGalleryGroup *group) const
{
    return FirstRowHeight + RowHeight * (qMax(0, group->count() - 1) / qMax(1, displayCount));
}

void RibbonGalleryPopupPrivate::updateHeight()
{
    Q_Q(RibbonGalleryPopup);
    const int height = q->computedHeight(false);
    contentFrame->setFixedHeight(height);
    Q_EMIT q->signalHeightChanged(height);
    q->sizeContent(height);
    collectedGroup->updateLayout();
}

RibbonGalleryPopup::RibbonGalleryPopup(QWidget *parent)
    : RibbonGalleryPopup(*new RibbonGalleryPopupPrivate, parent)
{
}

RibbonGalleryPopup::RibbonGalleryPopup(RibbonGalleryPopupPrivate &dd, QWidget *parent)
    : QScrollArea(parent)
    , d_ptr(&dd)
{
    Q_D(RibbonGalleryPopup);
    d->q_ptr = this;
    setWidgetResizable(false);
    setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    // A click on no button would go on to the menu, which it would close.
    setAttribute(Qt::WA_NoMousePropagation);
    d->contentFrame->setParent(this);
    auto *column = new QVBoxLayout(d->contentFrame);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->setAlignment(Qt::AlignTop);
    auto *searchRow = new QHBoxLayout;
    searchRow->setContentsMargins(4, 4, 4, 4);
    searchRow->setSpacing(8);
    searchRow->addWidget(d->searchEdit);
    searchRow->addWidget(d->closeButton);
    column->addLayout(searchRow);
    column->addLayout(d->groupsLayout);
    d->collectedGroup->setPosition(RibbonGalleryGroup::Fixed);
    d->groupsLayout->addWidget(d->collectedGroup);
    connect(d->searchEdit, &QLineEdit::textChanged, this,
            [d](const QString &text) { d->filter(text); });
    d->contentFrame->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    setWidget(d->contentFrame);
    d->heedGestures(false);
    connect(d->closeButton, &QPushButton::clicked, this, [this] {
        if (parentWidget())
            parentWidget()->close();
    });
}

RibbonGalleryPopup::~RibbonGalleryPopup() = default;

int RibbonGalleryPopup::addGroup(const QString &title, const QIcon &icon)
{
    Q_D(RibbonGalleryPopup);
    auto *group = new RibbonGalleryGroup(icon, title);
    d->groups.append(group);
    d->groupsLayout->addWidget(group);
    d->reorder();
    connect(
        group, &RibbonGalleryGroup::signalPositionChange, this,
        [d, group](RibbonGalleryGroup::Position position) { d->move(group, position); },
        Qt::DirectConnection);
    return int(d->groups.size()) - 1;
}

int RibbonGalleryPopup::indexOfGroup(const QString &title) const
{
    Q_D(const RibbonGalleryPopup);
    for (int i = 0; i < d->groups.size(); ++i) {
        if (d->groups[i]->title() == title)
            return i;
    }
    return -1;
}

int RibbonGalleryPopup::addItem(int group, QAction *action, const QSize &iconSize,
                                const QSize &actionSize, bool collectEnabled)
{
    Q_D(RibbonGalleryPopup);
    RibbonGalleryGroup *to = d->groups.value(group);
    if (!to || !action)
        return -1;
    const int index = to->addItem(action, iconSize, actionSize, collectEnabled);
    if (collectEnabled) {
        RibbonGalleryItem *item = to->item(index);
        connect(
            item, &RibbonGalleryItem::signalCollected, this,
            [d, item](bool collected) { d->collect(item->defaultAction(), collected); },
            Qt::DirectConnection);
    }
    return index;
}

bool RibbonGalleryPopup::setItemCollected(int group, int item, bool collected)
{
    Q_D(RibbonGalleryPopup);
    RibbonGalleryGroup *in = d->groups.value(group);
    return in && in->setItemCollected(item, collected);
}

void RibbonGalleryPopup::setCollectEnabled(bool enabled)
{
    Q_D(RibbonGalleryPopup);
    d->collectEnabled = enabled;
}

void RibbonGalleryPopup::setDisplayCount(int count)
{
    Q_D(RibbonGalleryPopup);
    d->displayCount = count;
}

void RibbonGalleryPopup::setCollectedSizes(const QSize &iconSize, const QSize &actionSize)
{
    Q_D(RibbonGalleryPopup);
    d->iconSize = iconSize;
    d->actionSize = actionSize;
}

QList<QAction *> RibbonGalleryPopup::displayedActions() const
{
    Q_D(const RibbonGalleryPopup);
    QList<QAction *> actions;
    const auto append = [d, &actions](const RibbonGalleryGroup *group, bool collected) {
        for (int i = 0; i < group->count() && actions.size() < d->displayCount; ++i) {
            QAction *action = group->item(i)->defaultAction();
            if (action && (collected || !group->isItemCollected(i)))
                actions.append(action);
        }
    };
    append(d->collectedGroup, true);
    for (const RibbonGalleryGroup *group : d->groups)
        append(group, false);
    return actions;
}

int RibbonGalleryPopup::computedHeight(bool countHiddenGroups)
{
    Q_D(RibbonGalleryPopup);
    int height = SearchHeight;
    if (d->collectedGroup->count() == 0)
        d->collectedGroup->hide();
    else if (countHiddenGroups || d->collectedGroup->isVisible())
        height += d->estimate(d->collectedGroup);
    for (const RibbonGalleryGroup *group : std::as_const(d->groups)) {
        if (countHiddenGroups || group->isVisible())
            height += d->estimate(group);
    }
    return height == SearchHeight ? EmptyHeight : height;
}

void RibbonGalleryPopup::sizeContent(int contentHeight)
{
    Q_D(RibbonGalleryPopup);
    const int barWidth = contentHeight > height() ? ScrollBarWidth : 0;
    d->contentFrame->setFixedSize(qMax(0, width() - barWidth), contentHeight);
}

void RibbonGalleryPopup::arrange()
{
    Q_D(RibbonGalleryPopup);
    d->contentFrame->layout()->activate();
    d->showNearItems();
}

QByteArray RibbonGalleryPopup::saveState() const
{
    Q_D(const RibbonGalleryPopup);
    return d->displayCount == 0 ? QByteArrayLiteral("AAAA") : QByteArray();
}

// The scroll area watches its content.
bool RibbonGalleryPopup::eventFilter(QObject *watched, QEvent *event)
{
    Q_D(RibbonGalleryPopup);
    const bool done = QScrollArea::eventFilter(watched, event);
    const QEvent::Type type = event->type();
    if (watched == d->contentFrame
        && (type == QEvent::Move || type == QEvent::Resize || type == QEvent::LayoutRequest))
        d->showNearItems();
    return done;
}

void RibbonGalleryPopup::resizeEvent(QResizeEvent *event)
{
    Q_D(RibbonGalleryPopup);
    QScrollArea::resizeEvent(event);
    d->showNearItems();
}

void RibbonGalleryPopup::showEvent(QShowEvent *event)
{
    Q_D(RibbonGalleryPopup);
    d->updateHeight();
    d->heedGestures(true);
    QScrollArea::showEvent(event);
}

void RibbonGalleryPopup::hideEvent(QHideEvent *event)
{
    Q_D(RibbonGalleryPopup);
    d->heedGestures(false);
    d->searchEdit->clear();
    // Before the first group comes, the label is a window of its own.
    if (d->noMatchLabel->isWindow())
        d->noMatchLabel->hide();
    QTimer::singleShot(0, this, &RibbonGalleryPopup::signalUpdateDisplayedItems);
    QScrollArea::hideEvent(event);
}

} // namespace Norvane
