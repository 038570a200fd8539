// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "RibbonGallery_p.h"

#include "RibbonGalleryItem.h"
#include "RibbonGalleryPopup.h"

#include <QtGui/QScreen>
#include <QtWidgets/QAccessibleWidget>
#include <QtWidgets/QApplication>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QMenu>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QWidgetAction>

#include <algorithm>

namespace Norvane {

namespace {

constexpr int RoomBelowPopup = 30;
constexpr int MenuFrame = 2;
// More cells than fit on any screen.
constexpr int MaximumPlaceholders = 1000;

} // namespace

RibbonGalleryPrivate::RibbonGalleryPrivate()
    : itemsLayout(new QHBoxLayout)
    , popupButton(new QPushButton)
    , popupMenu(new QMenu(popupButton))
{
    itemsLayout->setContentsMargins(5, 0, 5, 0);
    itemsLayout->setSpacing(0);
    itemsLayout->setAlignment(Qt::AlignLeft);
    popupButton->setObjectName(QStringLiteral("popupButton"));
    popupButton->setAccessibleName(RibbonGallery::tr("All Items"));
    popupButton->setFocusPolicy(Qt::NoFocus);
    popupButton->setIcon(QIcon(QStringLiteral(":/res/downArrowNormal.svg")));
    popupButton->setIconSize({17, 17});
    popupButton->setSizePolicy(popupButton->sizePolicy().horizontalPolicy(),
                               QSizePolicy::Expanding);
    popupMenu->setObjectName(QStringLiteral("galleryPopupMenu"));
    // Of a menu Qt tells assistive tools the actions, and nothing of the widgets in them.
    QAccessible::registerAccessibleInterface(
        new QAccessibleWidget(popupMenu, QAccessible::PopupMenu));
}

RibbonGalleryPrivate::~RibbonGalleryPrivate()
{
    qDeleteAll(placeholders);
}

void RibbonGalleryPrivate::initialise()
{
    Q_Q(RibbonGallery);
    popup = new RibbonGalleryPopup;
    auto *row = new QHBoxLayout(q);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    auto *itemsFrame = new QFrame(q);
    itemsFrame->setObjectName(QStringLiteral("itemsFrame"));
    itemsFrame->setLayout(itemsLayout);
    itemsFrame->setSizePolicy(itemsFrame->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
    row->addWidget(itemsFrame);
    row->addWidget(popupButton);
    popupAction = new QWidgetAction(q);
    popupAction->setDefaultWidget(popup);
    popupMenu->addAction(popupAction);
    QObject::connect(popup, &RibbonGalleryPopup::signalHeightChanged, q,
                     [this](int height) { fitPopup(height); });
    QObject::connect(popup, &RibbonGalleryPopup::signalUpdateDisplayedItems, q,
                     [this] { refresh(); });
    QObject::connect(popupButton, &QPushButton::clicked, q, [this] { openPopup(); });
    QObject::connect(popup, &RibbonGalleryPopup::signalGroupUpdated, q, [this] { refresh(); });
}

// An action that was deleted may have come back as another one at the same address.
bool RibbonGalleryPrivate::displays(const QList<QAction *> &actions) const
{
    return actions == displayedActions
        && std::equal(items.begin(), items.end(), actions.begin(), actions.end(),
                      [](const RibbonGalleryItem *item, const QAction *action) {
                          return item->defaultAction() == action;
                      });
}

void RibbonGalleryPrivate::refresh()
{
    const QList<QAction *> actions = popup->displayedActions();
    if (displays(actions))
        return;
    displayedActions = actions;
    // Each cell that is shown would have all of them laid out.
    QWidget *frame = itemsLayout->parentWidget();
    frame->hide();
    for (RibbonGalleryItem *item : std::as_const(items)) {
        itemsLayout->removeWidget(item);
        delete item;
    }
    items.clear();
    for (QAction *action : actions) {
        auto *item = new RibbonGalleryItem(action);
        item->setIconSize(iconSize);
        item->setFixedSize(actionSize);
        item->setCollectEnabled(false);
        itemsLayout->addWidget(item);
        items.append(item);
    }
    // Those of earlier refreshes stay before the items.
    const qsizetype missing = displayCount - actions.size();
    for (qsizetype i = 0; i < qMin<qsizetype>(missing, MaximumPlaceholders); ++i)
        addPlaceholder();
    frame->show();
}

void RibbonGalleryPrivate::addPlaceholder()
{
    auto *action = new QAction;
    action->setEnabled(false);
    placeholders.append(action);
    auto *item = new RibbonGalleryItem(action);
    item->setFixedSize(actionSize);
    itemsLayout->addWidget(item);
}

void RibbonGalleryPrivate::trigger(QAction *action)
{
    Q_Q(RibbonGallery);
    if (popupMenu->isVisible())
        popupMenu->close();
    Q_EMIT q->signalTriggered(action);
}

int RibbonGalleryPrivate::room() const
{
    Q_Q(const RibbonGallery);
    const int screenHeight = QGuiApplication::primaryScreen()->geometry().height();
    return qMax(0, screenHeight - RoomBelowPopup - q->mapToGlobal(QPoint()).y());
}

void RibbonGalleryPrivate::openPopup()
{
    Q_Q(RibbonGallery);
    const int wanted = popup->computedHeight(true);
    const int height = qMin(wanted, room());
    popup->setFixedHeight(height);
    popup->verticalScrollBar()->setValue(0);
    popup->setFixedWidth(q->width() + (height < wanted ? RibbonGalleryPopup::ScrollBarWidth : 0));
    // Items find their places before they are shown, when moving them costs nothing.
    popup->sizeContent(wanted);
    popup->arrange();
    const QPoint corner = q->mapToGlobal(QPoint());
    popupMenu->popup(corner);
    popupMenu->move(corner);
    popupMenu->setFixedHeight(height + MenuFrame);
}

void RibbonGalleryPrivate::fitPopup(int height)
{
    Q_Q(RibbonGallery);
    const int fitting = qMin(height, room());
    popup->setFixedHeight(fitting);
    popupMenu->setFixedHeight(fitting + MenuFrame);
    const bool scrolls = fitting < popup->computedHeight(false);
    popup->setFixedWidth(q->width() + (scrolls ? RibbonGalleryPopup::ScrollBarWidth : 0));
    popupMenu->setFixedWidth(popup->width() + MenuFrame);
}

RibbonGallery::RibbonGallery(QWidget *parent)
    : RibbonGallery(*new RibbonGalleryPrivate, parent)
{
}

RibbonGallery::RibbonGallery(RibbonGalleryPrivate &dd, QWidget *parent)
    : QWidget(parent)
    , d_ptr(&dd)
{
    Q_D(RibbonGallery);
    d->q_ptr = this;
    d->initialise();
}

RibbonGallery::~RibbonGallery()
{
    Q_D(RibbonGallery);
    // With its popup, which the menu would hide and give back when it goes itself: it would clear
    // its search, and each of its items would get another style.
    delete d->popupAction;
}

int RibbonGallery::addGroup(const QString &title)
{
    Q_D(RibbonGallery);
    return d->popup->addGroup(title, QIcon());
}

int RibbonGallery::addItem(const QString &group, QAction *action)
{
    Q_D(RibbonGallery);
    const int index = d->popup->indexOfGroup(group);
    return addItem(index < 0 ? addGroup(group) : index, action);
}

int RibbonGallery::addItem(int group, QAction *action)
{
    Q_D(RibbonGallery);
    const int index =
        d->popup->addItem(group, action, d->iconSize, d->actionSize, d->collectEnabled);
    if (action)
        connect(action, &QAction::triggered, this, [d, action] { d->trigger(action); });
    return index;
}

void RibbonGallery::setIconSize(const QSize &size)
{
    Q_D(RibbonGallery);
    d->iconSize = size;
    d->popup->setCollectedSizes(d->iconSize, d->actionSize);
}

void RibbonGallery::setActionSize(const QSize &size)
{
    Q_D(RibbonGallery);
    d->actionSize = size;
    d->popup->setCollectedSizes(d->iconSize, d->actionSize);
}

void RibbonGallery::setCollectEnabled(bool enabled)
{
    Q_D(RibbonGallery);
    d->collectEnabled = enabled;
    d->popup->setCollectEnabled(enabled);
}

void RibbonGallery::setDispalyCount(int count)
{
    Q_D(RibbonGallery);
    d->displayCount = count;
    d->popup->setDisplayCount(count);
}

bool RibbonGallery::setItemCollected(int group, int item, bool collected)
{
    Q_D(RibbonGallery);
    return d->collectEnabled && d->popup->setItemCollected(group, item, collected);
}

QByteArray RibbonGallery::saveState() const
{
    Q_D(const RibbonGallery);
    return d->popup->saveState();
}

void RibbonGallery::restoreState(const QByteArray &state)
{
    Q_UNUSED(state)
}

void RibbonGallery::showEvent(QShowEvent *event)
{
    Q_D(RibbonGallery);
    QWidget::showEvent(event);
    d->refresh();
}

} // namespace Norvane
