// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "RibbonSubgroup_p.h"

#include "RibbonButton.h"
#include "RibbonControls.h"

#include <QtGui/QActionEvent>
#include <QtWidgets/QMenu>
#include <QtWidgets/QVBoxLayout>
#include <QtWidgets/QWidgetAction>

namespace Norvane {

RibbonSubgroupPrivate::RibbonSubgroupPrivate()
    : layout(new QVBoxLayout)
{
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);
    layout->setAlignment(Qt::AlignCenter);
}

RibbonSubgroupPrivate::~RibbonSubgroupPrivate() = default;

RibbonSubgroup::RibbonSubgroup(QWidget *parent)
    : RibbonSubgroup(*new RibbonSubgroupPrivate, parent)
{
}

RibbonSubgroup::RibbonSubgroup(RibbonSubgroupPrivate &dd, QWidget *parent)
    : QWidget(parent)
    , d_ptr(&dd)
{
    Q_D(RibbonSubgroup);
    d->q_ptr = this;
    setLayout(d->layout);
    setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Maximum);
}

RibbonSubgroup::~RibbonSubgroup() = default;

void RibbonSubgroup::addAction(QAction *action)
{
    if (action)
        QWidget::addAction(action);
}

void RibbonSubgroup::addActions(const QList<QAction *> &actions)
{
    Q_D(RibbonSubgroup);
    auto *row = new QHBoxLayout;
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(1);
    row->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    for (QAction *action : actions) {
        if (!action)
            continue;
        RibbonButton *button = RibbonControls::createButton(action, Qt::ToolButtonIconOnly, this);
        button->setIconSize(QSize(16, 16));
        row->addWidget(button);
    }
    d->layout->addLayout(row);
}

QAction *RibbonSubgroup::addMenu(QMenu *menu, QToolButton::ToolButtonPopupMode mode)
{
    Q_D(RibbonSubgroup);
    if (!menu)
        return nullptr;
    d->popupMode = mode;
    return RibbonControls::addMenu(this, menu);
}

QAction *RibbonSubgroup::addWidget(QWidget *widget)
{
    return widget ? RibbonControls::addWidget(this, widget) : nullptr;
}

void RibbonSubgroup::actionEvent(QActionEvent *event)
{
    Q_D(RibbonSubgroup);
    // Callers rely on a control staying where it is when its action changes or is removed.
    if (event->type() != QEvent::ActionAdded)
        return;
    QAction *action = event->action();
    QWidget *control = nullptr;
    if (auto *widgetAction = qobject_cast<QWidgetAction *>(action)) {
        control = RibbonControls::takeWidget(widgetAction, this);
    } else {
        control =
            RibbonControls::createButton(action, Qt::ToolButtonTextBesideIcon, d->popupMode, this);
    }
    if (control)
        d->layout->addWidget(control);
}

} // namespace Norvane
