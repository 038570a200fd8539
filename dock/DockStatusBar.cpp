// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "DockStatusBar_p.h"

#include <QtCore/QEvent>
#include <QtWidgets/QLayout>
#include <QtWidgets/QStyle>

namespace Norvane {

DockStatusBarPrivate::DockStatusBarPrivate()
    : panelHolder(new QWidget)
{
}

DockStatusBarPrivate::~DockStatusBarPrivate() = default;

void DockStatusBarPrivate::place()
{
    if (!panel || !offset)
        return;
    const auto mirrored = [this](const QWidget *around, const QRect &rect) {
        return QStyle::visualRect(panelHolder->layoutDirection(), around->rect(), rect);
    };
    int x = *offset - mirrored(q_func(), panelHolder->geometry()).x();
    if (panelHolder->width() - x < panel->width())
        x = panelHolder->width() - panel->width();
    panel->move(mirrored(panelHolder, QRect(QPoint(x, 0), panel->size())).topLeft());
}

DockStatusBar::DockStatusBar(QWidget *parent)
    : DockStatusBar(*new DockStatusBarPrivate, parent)
{
}

DockStatusBar::DockStatusBar(DockStatusBarPrivate &dd, QWidget *parent)
    : QStatusBar(parent)
    , d_ptr(&dd)
{
    Q_D(DockStatusBar);
    d->q_ptr = this;
    addWidget(d->panelHolder, 1);
    d->panelHolder->installEventFilter(this);
    setObjectName(QStringLiteral("dockStatusBar"));
}

DockStatusBar::~DockStatusBar() = default;

void DockStatusBar::setPanel(QWidget *panel)
{
    Q_D(DockStatusBar);
    d->panel = panel;
    if (!panel)
        return;
    const bool hidden = panel->isHidden() && panel->testAttribute(Qt::WA_WState_ExplicitShowHide);
    if (panel->layout())
        panel->layout()->setContentsMargins(0, 1, 0, 0);
    // The margin needs its place before the height is taken.
    panel->resize(panel->width(), qMax(panel->height(), panel->minimumSizeHint().height()));
    panel->setParent(d->panelHolder);
    panel->setVisible(!hidden);
    d->panelHolder->setFixedHeight(panel->height());
    d->place();
}

void DockStatusBar::setPanelOffset(int x)
{
    Q_D(DockStatusBar);
    d->offset = x;
    d->place();
}

bool DockStatusBar::eventFilter(QObject *watched, QEvent *event)
{
    Q_D(DockStatusBar);
    if (watched == d->panelHolder
        && (event->type() == QEvent::Resize || event->type() == QEvent::Move
            || event->type() == QEvent::LayoutDirectionChange))
        d->place();
    return QStatusBar::eventFilter(watched, event);
}

} // namespace Norvane
