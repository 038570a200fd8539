// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "DockContainer_p.h"

#include "DockContentWidget.h"
#include "DockPanelWidget.h"
#include "DockState.h"
#include "DockStatusBar.h"
#include "StyleSheet.h"

#include <QtCore/QEvent>
#include <QtCore/QTimer>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QSplitter>

#include <utility>

namespace Norvane {

namespace {

// What a pane without a size of its own is to have, by its stretch factor.
int shareOf(const QSplitter *splitter, const QWidget *pane)
{
    const bool across = splitter->orientation() == Qt::Horizontal;
    const auto factor = [across](const QWidget *widget) {
        const QSizePolicy policy = widget->sizePolicy();
        return across ? policy.horizontalStretch() : policy.verticalStretch();
    };
    int sum = 0;
    for (int i = 0; i < splitter->count(); ++i)
        sum += factor(splitter->widget(i));
    const int room = across ? splitter->width() : splitter->height();
    return qMax(1, room * factor(pane) / qMax(1, sum));
}

} // namespace

DockContainerPrivate::DockContainerPrivate()
    : outerSplitter(new QSplitter(Qt::Horizontal))
    , innerSplitter(new QSplitter(Qt::Vertical))
    , leftPanelWidget(new DockPanelWidget(DockPanelWidget::LeftDirection))
    , bottomPanelWidget(new DockPanelWidget(DockPanelWidget::BottomDirection))
    , rightPanelWidget(new DockPanelWidget(DockPanelWidget::RightDirection))
    , contentWidget(new DockContentWidget)
    , centreWidget(new QWidget)
{
}

DockContainerPrivate::~DockContainerPrivate() = default;

void DockContainerPrivate::build()
{
    Q_Q(DockContainer);
    for (DockPanelWidget *panelWidget :
         {leftPanelWidget.data(), bottomPanelWidget.data(), rightPanelWidget.data()})
        panelWidget->setParent(q);

    innerSplitter->setHandleWidth(0);
    innerSplitter->addWidget(contentWidget);
    innerSplitter->addWidget(bottomPanelWidget->stackedWidget());
    innerSplitter->setStretchFactor(0, 50);
    innerSplitter->setStretchFactor(1, 1);
    contentWidget->hide();

    auto *column = new QVBoxLayout(centreWidget);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(innerSplitter);
    column->addWidget(bottomPanelWidget->panel());

    outerSplitter->setHandleWidth(0);
    outerSplitter->addWidget(leftPanelWidget->stackedWidget());
    outerSplitter->addWidget(centreWidget);
    outerSplitter->addWidget(rightPanelWidget->stackedWidget());
    outerSplitter->setStretchFactor(0, 1);
    outerSplitter->setStretchFactor(1, 5);
    outerSplitter->setStretchFactor(2, 1);
    outerSplitter->setCollapsible(1, false);

    auto *row = new QHBoxLayout(q);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    row->addWidget(leftPanelWidget->panel());
    row->addWidget(outerSplitter);
    row->addWidget(rightPanelWidget->panel());

    bottomPanelWidget->stackedWidget()->installEventFilter(q);
    // A window that only gets wider moves the content and not the bottom pane in it.
    centreWidget->installEventFilter(q);
}

void DockContainerPrivate::onOuterMoved()
{
    const auto examine = [](DockPanelWidget *panelWidget, qint32 *known) {
        if (!panelWidget || !panelWidget->stackedWidget())
            return;
        const int width = panelWidget->stackedWidget()->width();
        panelWidget->setMinimized(width == 0);
        if (width != 0)
            *known = width;
    };
    examine(leftPanelWidget, &leftWidth);
    examine(rightPanelWidget, &rightWidth);
}

void DockContainerPrivate::onInnerMoved()
{
    if (!bottomPanelWidget || !bottomPanelWidget->stackedWidget())
        return;
    const int height = bottomPanelWidget->stackedWidget()->height();
    bottomPanelWidget->setMinimized(height == 0);
    if (height != 0)
        bottomHeight = height;
}

bool DockContainerPrivate::isAway(const QWidget *pane) const
{
    for (const DockPanelWidget *panelWidget :
         {leftPanelWidget.data(), bottomPanelWidget.data(), rightPanelWidget.data()}) {
        if (panelWidget && panelWidget->stackedWidget() == pane)
            return panelWidget->isMinimized() || panelWidget->count() == 0;
    }
    return false;
}

void DockContainerPrivate::arrange(QSplitter *splitter) const
{
    // Whatever the panes asked for before they had their style and content. A hidden pane has its
    // share too, for when it is shown.
    QList<int> sizes;
    for (int i = 0; i < splitter->count(); ++i) {
        const QWidget *pane = splitter->widget(i);
        sizes << (isAway(pane) ? 0 : shareOf(splitter, pane));
    }
    splitter->setSizes(sizes);
}

void DockContainerPrivate::rememberShares()
{
    // A panel that is minimized before it has a width comes back with its share.
    const auto remember = [this](const DockPanelWidget *panelWidget, int pane, qint32 *width) {
        if (panelWidget && panelWidget->isMinimized() && *width == 0 && outerSplitter->widget(pane))
            *width = shareOf(outerSplitter, outerSplitter->widget(pane));
    };
    remember(leftPanelWidget, 0, &leftWidth);
    remember(rightPanelWidget, 2, &rightWidth);
}

void DockContainerPrivate::onFirstView(QSplitter *splitter, const QWidget *pane)
{
    const int index = splitter->indexOf(const_cast<QWidget *>(pane));
    const int centre = splitter->indexOf(splitter == outerSplitter ? centreWidget : contentWidget);
    QList<int> sizes = splitter->sizes();
    // Before it is shown all panes are still to be arranged, and a restored size stays.
    if (!wasShown || index < 0 || centre < 0 || (sizes.at(index) > 0 && !isAway(pane)))
        return;
    rememberShares();
    sizes[centre] += sizes.at(index);
    sizes[index] = isAway(pane) ? 0 : shareOf(splitter, pane);
    sizes[centre] -= sizes.at(index);
    splitter->setSizes(sizes);
}

void DockContainerPrivate::minimizeSide(int pane, qint32 *width, bool minimized)
{
    QList<int> sizes = outerSplitter->sizes();
    if (sizes.size() != 3)
        return;
    if (minimized) {
        *width = sizes.at(pane);
        sizes[1] += sizes.at(pane);
        sizes[pane] = 0;
    } else {
        sizes[pane] = *width;
        sizes[1] -= *width;
    }
    outerSplitter->setSizes(sizes);
}

void DockContainerPrivate::minimizeBottom(bool minimized)
{
    QList<int> sizes = innerSplitter->sizes();
    if (sizes.size() != 2)
        return;
    if (minimized) {
        if (contentWidget->isHidden())
            hiddenContentHeight = sizes.at(1);
        bottomHeight = sizes.at(1);
        sizes[0] += sizes.at(1);
        sizes[1] = 0;
    } else {
        const int height = innerSplitter->height();
        if (contentWidget->isVisible() && (bottomHeight == 0 || bottomHeight == height))
            bottomHeight = height / 4;
        if (bottomHeight > 0) {
            sizes[1] = bottomHeight;
            sizes[0] -= bottomHeight;
        } else {
            // Alone in the column the pane has all of it, until the content comes.
            sizes = {shareOf(innerSplitter, innerSplitter->widget(0)),
                     shareOf(innerSplitter, innerSplitter->widget(1))};
        }
    }
    innerSplitter->setSizes(sizes);
}

void DockContainerPrivate::setContentVisible(bool visible)
{
    if (!visible) {
        hiddenContentHeight = contentWidget->height();
        contentWidget->hide();
        if (hiddenContentHeight == innerSplitter->height() && bottomPanelWidget)
            bottomPanelWidget->setMinimized(false);
        return;
    }
    contentWidget->show();
    QList<int> sizes = innerSplitter->sizes();
    if (sizes.size() != 2)
        return;
    const bool minimized = bottomPanelWidget && bottomPanelWidget->isMinimized();
    // A splitter lets no pane that is alone stay collapsed, so that the content would not come up
    // with all that the panel left it.
    if (!std::exchange(contentWasShown, true) && minimized && sizes.at(1) != 0) {
        innerSplitter->setSizes({innerSplitter->height(), 0});
        return;
    }
    if (contentWidget->height() != 0 || hiddenContentHeight == 0)
        return;
    if (sizes.at(1) != 0) {
        sizes[0] = hiddenContentHeight;
        sizes[1] -= hiddenContentHeight;
    }
    if (!minimized && (sizes.at(0) == 0 || sizes.at(1) == 0)) {
        const int height = innerSplitter->height();
        sizes[0] = height * 3 / 4;
        sizes[1] = height - sizes.at(0);
    }
    innerSplitter->setSizes(sizes);
}

void DockContainerPrivate::updateStatusBar()
{
    if (!mainWindow || !statusBar || !leftPanelWidget || !leftPanelWidget->panel())
        return;
    statusBar->setPanelOffset(outerSplitter->sizes().value(0) + leftPanelWidget->panel()->width());
}

DockContainer::DockContainer(QWidget *parent)
    : DockContainer(*new DockContainerPrivate, parent)
{
    setStyleSheet(StyleSheet::read(QStringLiteral(":/res/dockLight.css")));
}

DockContainer::DockContainer(DockContainerPrivate &dd, QWidget *parent)
    : QFrame(parent)
    , d_ptr(&dd)
{
    Q_D(DockContainer);
    d->q_ptr = this;
    d->build();
    connect(d->outerSplitter, &QSplitter::splitterMoved, this, [d] { d->onOuterMoved(); });
    connect(d->innerSplitter, &QSplitter::splitterMoved, this, [d] { d->onInnerMoved(); });
    connect(d->leftPanelWidget, &DockPanelWidget::signalMinimized, this,
            [d](bool minimized) { d->minimizeSide(0, &d->leftWidth, minimized); });
    connect(d->rightPanelWidget, &DockPanelWidget::signalMinimized, this,
            [d](bool minimized) { d->minimizeSide(2, &d->rightWidth, minimized); });
    connect(d->bottomPanelWidget, &DockPanelWidget::signalMinimized, this,
            [d](bool minimized) { d->minimizeBottom(minimized); });
    for (DockPanelWidget *panelWidget :
         {d->leftPanelWidget.data(), d->bottomPanelWidget.data(), d->rightPanelWidget.data()}) {
        connect(panelWidget, &DockPanelWidget::signalCurrentIndexChanged, this, [d, panelWidget] {
            if (panelWidget->count() == 1) {
                d->onFirstView(panelWidget == d->bottomPanelWidget ? d->innerSplitter
                                                                   : d->outerSplitter,
                               panelWidget->stackedWidget());
            }
        });
    }
    connect(d->contentWidget, &DockContentWidget::signalVisibleChanged, this,
            [d](bool visible) { d->setContentVisible(visible); });
}

DockContainer::~DockContainer() = default;

DockPanelWidget *DockContainer::panelWidget(DockArea area) const
{
    Q_D(const DockContainer);
    switch (int(area)) {
    case LeftDockArea:
        return d->leftPanelWidget;
    case BottomDockArea:
        return d->bottomPanelWidget;
    default:
        return d->rightPanelWidget;
    }
}

DockContentWidget *DockContainer::contentWidget() const
{
    Q_D(const DockContainer);
    return d->contentWidget;
}

void DockContainer::setupMainWindow(QMainWindow *window)
{
    Q_D(DockContainer);
    if (!window || window == d->mainWindow)
        return;
    d->mainWindow = window;
    if (!d->statusBar)
        d->statusBar = new DockStatusBar;
    d->statusBar->setPanel(d->bottomPanelWidget ? d->bottomPanelWidget->panel() : nullptr);
    window->setStatusBar(d->statusBar);
}

void DockContainer::setPanelCollapsible(bool collapsible)
{
    Q_D(DockContainer);
    for (int i = 0; i < d->outerSplitter->count(); ++i) {
        if (i != 1)
            d->outerSplitter->setCollapsible(i, collapsible);
    }
    for (int i = 0; i < d->innerSplitter->count(); ++i)
        d->innerSplitter->setCollapsible(i, collapsible);
}

void DockContainer::setAllDockViewVisible(bool visible)
{
    Q_D(DockContainer);
    for (const DockPanelWidget *panelWidget :
         {d->leftPanelWidget.data(), d->bottomPanelWidget.data(), d->rightPanelWidget.data()}) {
        if (panelWidget && panelWidget->stackedWidget())
            panelWidget->stackedWidget()->setVisible(visible);
    }
}

void DockContainer::updateState()
{
    Q_D(DockContainer);
    d->updateStatusBar();
}

QByteArray DockContainer::saveState() const
{
    Q_D(const DockContainer);
    return DockState{d->outerSplitter->saveState(), d->leftWidth, d->bottomHeight, d->rightWidth}
        .toBytes();
}

void DockContainer::restoreState(const QByteArray &state)
{
    Q_D(DockContainer);
    const std::optional<DockState> saved =
        DockState::fromBytes(state, d->outerSplitter->saveState());
    if (!saved)
        return;
    d->restored = true;
    d->outerSplitter->restoreState(state);
    const QList<int> sizes = d->outerSplitter->sizes();
    if (sizes.value(0) == 0 && d->leftPanelWidget)
        d->leftPanelWidget->setMinimized(true);
    if (sizes.value(2) == 0 && d->rightPanelWidget)
        d->rightPanelWidget->setMinimized(true);
    d->leftWidth = saved->leftWidth;
    d->bottomHeight = saved->bottomHeight;
    d->rightWidth = saved->rightWidth;
    QTimer::singleShot(0, this, [d] { d->updateStatusBar(); });
}

void DockContainer::showEvent(QShowEvent *event)
{
    Q_D(DockContainer);
    QFrame::showEvent(event);
    if (d->wasShown)
        return;
    d->wasShown = true;
    if (!d->restored)
        d->arrange(d->outerSplitter);
    d->arrange(d->innerSplitter);
    d->rememberShares();
}

bool DockContainer::eventFilter(QObject *watched, QEvent *event)
{
    Q_D(DockContainer);
    if (event->type() == QEvent::Move
        && (watched == d->centreWidget
            || (d->bottomPanelWidget && watched == d->bottomPanelWidget->stackedWidget())))
        d->updateStatusBar();
    return QFrame::eventFilter(watched, event);
}

} // namespace Norvane
