// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "DockPanelWidget_p.h"

#include "DeferredPolish.h"
#include "DockPageStack.h"
#include "DockPanel.h"
#include "DockView.h"

#include <QtWidgets/QMenu>
#include <QtWidgets/QSplitter>

namespace Norvane {

DockPanelWidgetPrivate::DockPanelWidgetPrivate()
    : stackedWidget(new DockPageStack)
{
}

DockPanelWidgetPrivate::~DockPanelWidgetPrivate()
{
    // Placed nowhere, they have no other owner.
    if (panel && !panel->parent())
        delete panel;
    if (stackedWidget && !stackedWidget->parent())
        delete stackedWidget;
}

QSplitter *DockPanelWidgetPrivate::page(int index) const
{
    return stackedWidget ? static_cast<QSplitter *>(stackedWidget->widget(index)) : nullptr;
}

DockView *DockPanelWidgetPrivate::createView(QWidget *widget, const QString &text)
{
    Q_Q(DockPanelWidget);
    auto *view = new DockView;
    view->setTitle(text);
    view->setWidget(widget);
    views.append(view);
    QObject::connect(view, &DockView::signalMinimize, q, [this, q] {
        if (minimized)
            return;
        Q_EMIT q->signalMinimized(true);
        minimized = true;
        if (panel)
            panel->setChecked(panel->checkedId(), false);
    });
    return view;
}

void DockPanelWidgetPrivate::onButton(int index)
{
    Q_Q(DockPanelWidget);
    if (index >= 0 && stackedWidget)
        stackedWidget->setCurrentIndex(index);
    if (minimized && index >= 0) {
        Q_EMIT q->signalMinimized(false);
        minimized = false;
    } else if (!minimized && index < 0) {
        Q_EMIT q->signalMinimized(true);
        minimized = true;
    }
}

void DockPanelWidgetPrivate::collapse(QSplitter *page, const DockView *view)
{
    QList<int> sizes = page->sizes();
    const int position = page->indexOf(const_cast<DockView *>(view));
    if (position < 0 || sizes.size() < 2)
        return;
    const int neighbour = position > 0 ? position - 1 : position + 1;
    sizes[neighbour] += sizes[position] - view->titleHeight();
    sizes[position] = view->titleHeight();
    page->setSizes(sizes);
}

DockPanelWidget::DockPanelWidget(DockPanelDirection direction, QWidget *parent)
    : DockPanelWidget(*new DockPanelWidgetPrivate, parent)
{
    Q_D(DockPanelWidget);
    d->panel = new DockPanel(direction == BottomDirection ? Qt::Horizontal : Qt::Vertical);
    const QString name = direction == LeftDirection ? QStringLiteral("left")
        : direction == BottomDirection              ? QStringLiteral("bottom")
                                                    : QStringLiteral("right");
    d->panel->setProperty("direction", name);
    d->stackedWidget->setProperty("direction", name);
    connect(d->panel, &DockPanel::signalCurrentChanged, this,
            [d](int index) { d->onButton(index); });
}

DockPanelWidget::DockPanelWidget(DockPanelWidgetPrivate &dd, QWidget *parent)
    : QObject(parent)
    , d_ptr(&dd)
{
    Q_D(DockPanelWidget);
    d->q_ptr = this;
    connect(d->stackedWidget, &QStackedWidget::currentChanged, this,
            &DockPanelWidget::signalCurrentIndexChanged);
}

DockPanelWidget::~DockPanelWidget()
{
    Q_D(DockPanelWidget);
    // A stack that goes with its owner tells nobody of its pages.
    if (d->stackedWidget)
        d->stackedWidget->disconnect(this);
}

QWidget *DockPanelWidget::panel() const
{
    Q_D(const DockPanelWidget);
    return d->panel;
}

QWidget *DockPanelWidget::stackedWidget() const
{
    Q_D(const DockPanelWidget);
    return d->stackedWidget;
}

int DockPanelWidget::addView(QWidget *widget, const QIcon &icon, const QString &text)
{
    Q_D(DockPanelWidget);
    if (!d->stackedWidget || !d->panel)
        return -1;
    const int button = d->panel->addButton(text, icon);
    // The bar checks its first button, which would then take a click to do nothing.
    if (d->minimized)
        d->panel->setChecked(button, false);
    auto *page = new QSplitter(d->panel->orientation());
    page->setHandleWidth(0);
    new DeferredPolish(page);
    page->ensurePolished();
    page->addWidget(d->createView(widget, text));
    page->setCollapsible(0, false);
    // One that is not hidden measures its views as soon as it is under the sheet, and one that
    // waits for its size shares the room among them when the window is shown.
    page->hide();
    page->setAttribute(Qt::WA_PendingResizeEvent, false);
    DeferredPolish::adopt(page, d->stackedWidget);
    return d->stackedWidget->addWidget(page);
}

int DockPanelWidget::tabifyView(int index, QWidget *widget, const QIcon &icon, const QString &text)
{
    Q_D(DockPanelWidget);
    QSplitter *page = d->page(index);
    if (!page || page->count() >= 2 || !d->panel)
        return -1;
    d->panel->tabifyButton(index, text, icon);
    DockView *view = d->createView(widget, text);
    DeferredPolish::adopt(view, page);
    page->addWidget(view);
    const int position = page->indexOf(view);
    page->setCollapsible(position, false);
    if (d->panel->orientation() == Qt::Vertical)
        view->setProperty("tabified", true);
    connect(view, &DockView::signalCollapsed, page, [page, view](bool collapsed) {
        if (collapsed)
            DockPanelWidgetPrivate::collapse(page, view);
    });
    if (page->orientation() != Qt::Vertical)
        return position;
    view->setCollapseButtonVisible(false);
    if (position == 1) {
        auto *first = static_cast<DockView *>(page->widget(0));
        first->setCollapseButtonVisible(false);
        connect(first, &DockView::signalCollapsed, page, [page, first](bool collapsed) {
            if (collapsed)
                DockPanelWidgetPrivate::collapse(page, first);
        });
    }
    return position;
}

void DockPanelWidget::addSeparator()
{
    Q_D(DockPanelWidget);
    if (d->panel)
        d->panel->addSeparator();
}

int DockPanelWidget::count() const
{
    Q_D(const DockPanelWidget);
    return d->stackedWidget ? d->stackedWidget->count() : 0;
}

int DockPanelWidget::currentIndex() const
{
    Q_D(const DockPanelWidget);
    return d->stackedWidget && d->stackedWidget->width() >= 1 ? d->stackedWidget->currentIndex()
                                                              : -1;
}

void DockPanelWidget::setCurrentIndex(int index)
{
    Q_D(DockPanelWidget);
    if (index < 0 || index >= count())
        return;
    if (d->panel)
        d->panel->setCurrentIndex(index);
    d->stackedWidget->setCurrentIndex(index);
}

bool DockPanelWidget::isViewVisible(int index) const
{
    Q_D(const DockPanelWidget);
    const QSplitter *page = d->page(index);
    return page && page->isVisible();
}

void DockPanelWidget::setViewVisible(int index, bool visible)
{
    Q_D(DockPanelWidget);
    if (index < 0 || index >= count() || !d->panel)
        return;
    if (visible) {
        if (d->minimized) {
            setCurrentIndex(index);
            Q_EMIT signalMinimized(false);
            d->minimized = false;
        }
    } else if (d->stackedWidget->width() > 0 && index == d->stackedWidget->currentIndex()
               && !d->minimized) {
        // Callers rely on it: the page that is hidden is asked, not the one that would take over.
        for (int other = 0; other < count(); ++other) {
            if (other != index && isViewVisible(index)) {
                setCurrentIndex(other);
                break;
            }
        }
    }
    d->panel->setButtonVisible(index, visible);
}

QMenu *DockPanelWidget::menu(QWidget *widget) const
{
    Q_D(const DockPanelWidget);
    for (const QPointer<DockView> &view : d->views) {
        if (view && widget && view->widget() == widget)
            return view->menu();
    }
    return nullptr;
}

void DockPanelWidget::setMinimized(bool minimized)
{
    Q_D(DockPanelWidget);
    d->minimized = minimized;
    if (d->panel && d->stackedWidget)
        d->panel->setChecked(d->stackedWidget->currentIndex(), !minimized);
}

bool DockPanelWidget::isMinimized() const
{
    Q_D(const DockPanelWidget);
    return d->minimized;
}

} // namespace Norvane
