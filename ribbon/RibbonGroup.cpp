// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "RibbonGroup_p.h"

#include "DeferredPolish.h"
#include "RibbonButton.h"
#include "RibbonControls.h"
#include "RibbonSubgroup.h"

#include <QtGui/QActionEvent>
#include <QtWidgets/QMenu>
#include <QtWidgets/QWidgetAction>

namespace Norvane {

RibbonGroupPrivate::RibbonGroupPrivate()
    : titleLabel(new QLabel)
    , contentLayout(new QHBoxLayout)
{
    titleLabel->setObjectName(QStringLiteral("groupTitle"));
    titleLabel->setAlignment(Qt::AlignCenter);
    titleLabel->setFixedHeight(12);
    contentLayout->setContentsMargins(0, 0, 0, 0);
    contentLayout->setSpacing(4);
}

RibbonGroupPrivate::~RibbonGroupPrivate() = default;

QFrame *RibbonGroupPrivate::createSeparator()
{
    auto *separator = new QFrame(DeferredPolish::nursery(q_func()));
    separator->setObjectName(QStringLiteral("separator"));
    separator->setFrameShape(QFrame::VLine);
    separator->setFixedSize(1, 80);
    DeferredPolish::adopt(separator, q_func());
    return separator;
}

RibbonGroup::RibbonGroup(const QString &title, QWidget *parent)
    : RibbonGroup(*new RibbonGroupPrivate, parent)
{
    Q_D(RibbonGroup);
    d->titleLabel->setText(title);
    setAccessibleName(title);
}

RibbonGroup::RibbonGroup(RibbonGroupPrivate &dd, QWidget *parent)
    : QWidget(parent)
    , d_ptr(&dd)
{
    Q_D(RibbonGroup);
    d->q_ptr = this;
    auto *column = new QVBoxLayout;
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addLayout(d->contentLayout);
    column->addWidget(d->titleLabel);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 1, 3, 1);
    row->setSpacing(3);
    row->addLayout(column);
    row->addWidget(d->createSeparator());
    setFixedHeight(95);
    setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Maximum);
}

RibbonGroup::~RibbonGroup() = default;

void RibbonGroup::addAction(QAction *action)
{
    if (action)
        QWidget::addAction(action);
}

QAction *RibbonGroup::addMenu(QMenu *menu, QToolButton::ToolButtonPopupMode mode)
{
    Q_D(RibbonGroup);
    if (!menu)
        return nullptr;
    d->popupMode = mode;
    return RibbonControls::addMenu(this, menu);
}

QAction *RibbonGroup::addSeparator()
{
    auto *action = new QAction;
    action->setSeparator(true);
    connect(this, &QObject::destroyed, action, [action] { delete action; });
    QWidget::addAction(action);
    return action;
}

QAction *RibbonGroup::addWidget(QWidget *widget)
{
    return widget ? RibbonControls::addWidget(this, widget) : nullptr;
}

RibbonSubgroup *RibbonGroup::addSubgroup()
{
    Q_D(RibbonGroup);
    auto *subgroup = new RibbonSubgroup(DeferredPolish::nursery(this));
    DeferredPolish::adopt(subgroup, this);
    if (d->contentLayout)
        d->contentLayout->addWidget(subgroup);
    d->subgroups.append(subgroup);
    return subgroup;
}

RibbonSubgroup *RibbonGroup::subgroup(int index) const
{
    Q_D(const RibbonGroup);
    return d->subgroups.value(index);
}

int RibbonGroup::indexOfSubgroup(RibbonSubgroup *subgroup) const
{
    Q_D(const RibbonGroup);
    return int(d->subgroups.indexOf(subgroup));
}

void RibbonGroup::actionEvent(QActionEvent *event)
{
    Q_D(RibbonGroup);
    // Callers rely on a control staying where it is when its action changes or is removed.
    if (event->type() != QEvent::ActionAdded)
        return;
    QAction *action = event->action();
    QWidget *control = nullptr;
    if (auto *widgetAction = qobject_cast<QWidgetAction *>(action)) {
        control = RibbonControls::takeWidget(widgetAction, this);
    } else if (action->isSeparator()) {
        control = d->createSeparator();
    } else {
        control =
            RibbonControls::createButton(action, Qt::ToolButtonTextUnderIcon, d->popupMode, this);
    }
    if (control && d->contentLayout)
        d->contentLayout->addWidget(control);
}

} // namespace Norvane
