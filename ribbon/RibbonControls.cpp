// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "RibbonControls.h"

#include "DeferredPolish.h"
#include "RibbonButton.h"

#include <QtWidgets/QMenu>
#include <QtWidgets/QWidgetAction>

namespace Norvane::RibbonControls {

RibbonButton *createButton(QAction *action, Qt::ToolButtonStyle style, QWidget *parent)
{
    auto *button = new RibbonButton(DeferredPolish::nursery(parent));
    button->setFocusPolicy(Qt::NoFocus);
    button->setToolButtonStyle(style);
    button->bindAction(action);
    DeferredPolish::adopt(button, parent);
    return button;
}

RibbonButton *createButton(QAction *action, Qt::ToolButtonStyle style,
                           QToolButton::ToolButtonPopupMode mode, QWidget *parent)
{
    RibbonButton *button = createButton(action, style, parent);
    // After the binding, which gives a button with a menu a mode of Qt's choice.
    button->setPopupMode(mode);
    return button;
}

QWidget *takeWidget(QWidgetAction *action, QWidget *parent)
{
    action->setParent(parent);
    QWidget *widget = action->requestWidget(parent);
    if (widget)
        widget->show();
    return widget;
}

QAction *addMenu(QWidget *owner, QMenu *menu)
{
    menu->setWindowFlag(Qt::NoDropShadowWindowHint);
    owner->addAction(menu->menuAction());
    return menu->menuAction();
}

QAction *addWidget(QWidget *owner, QWidget *widget)
{
    auto *action = new QWidgetAction(owner);
    action->setDefaultWidget(widget);
    owner->addAction(action);
    return action;
}

} // namespace Norvane::RibbonControls
