// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "DockView_p.h"

#include "DeferredPolish.h"
#include "DockTitle.h"

#include <QtCore/QChildEvent>
#include <QtCore/QCoreApplication>
#include <QtWidgets/QStyle>
#include <QtWidgets/QVBoxLayout>

namespace Norvane {

DockViewPrivate::DockViewPrivate()
    : title(new DockTitle)
{
}

DockViewPrivate::~DockViewPrivate() = default;

bool DockViewPrivate::isOffstage() const
{
    Q_Q(const DockView);
    const QWidget *page = q->parentWidget();
    return page && page->isHidden() && DeferredPolish::isUnseen(q);
}

DockView::DockView(QWidget *parent)
    : DockView(*new DockViewPrivate, parent)
{
}

DockView::DockView(DockViewPrivate &dd, QWidget *parent)
    : QFrame(parent)
    , d_ptr(&dd)
{
    Q_D(DockView);
    d->q_ptr = this;
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(d->title);
    connect(d->title, &DockTitle::signalCollapsed, this, &DockView::signalCollapsed);
    connect(d->title, &DockTitle::signalMinimize, this, &DockView::signalMinimize);
}

DockView::~DockView() = default;

void DockView::setTitle(const QString &text)
{
    Q_D(DockView);
    d->title->setText(text);
}

void DockView::setWidget(QWidget *widget)
{
    Q_D(DockView);
    if (d->widget == widget)
        return;
    if (d->widget) {
        layout()->removeWidget(d->widget);
        delete d->widget;
    }
    d->widget = widget;
    if (widget) {
        widget->setMinimumHeight(0);
        layout()->addWidget(widget);
    }
}

QWidget *DockView::widget() const
{
    Q_D(const DockView);
    return d->widget;
}

QMenu *DockView::menu() const
{
    Q_D(const DockView);
    return d->title->menu();
}

int DockView::titleHeight() const
{
    Q_D(const DockView);
    return d->title->height();
}

void DockView::setCollapseButtonVisible(bool visible)
{
    Q_D(DockView);
    d->title->setCollapseButtonVisible(visible);
}

// A view on a page that was never in front would be polished for the answer, and its widget with
// it. Until then only what the application has set counts.
QSize DockView::sizeHint() const
{
    Q_D(const DockView);
    return d->isOffstage() ? QSize(0, 0) : QFrame::sizeHint();
}

QSize DockView::minimumSizeHint() const
{
    Q_D(const DockView);
    if (!d->isOffstage())
        return QFrame::minimumSizeHint();
    return d->widget ? d->widget->minimumSize() : QSize(0, 0);
}

bool DockView::event(QEvent *event)
{
    Q_D(DockView);
    // A widget that the application takes away is not the view's to delete any more.
    if (event->type() == QEvent::ChildRemoved
        && static_cast<QChildEvent *>(event)->child() == d->widget)
        d->widget = nullptr;
    if (event->type() == QEvent::DynamicPropertyChange && testAttribute(Qt::WA_WState_Polished)) {
        // A frame takes the width of its border, which the sheet selects by property, only when its
        // style changes.
        style()->unpolish(this);
        style()->polish(this);
        QEvent change(QEvent::StyleChange);
        QCoreApplication::sendEvent(this, &change);
    }
    return QFrame::event(event);
}

} // namespace Norvane
