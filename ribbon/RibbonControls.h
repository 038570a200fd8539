// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtWidgets/QToolButton>

class QMenu;
class QWidgetAction;

// What groups and columns do alike with the actions that are added to them.
namespace Norvane {

class RibbonButton;

namespace RibbonControls {

RibbonButton *createButton(QAction *action, Qt::ToolButtonStyle style, QWidget *parent);
RibbonButton *createButton(QAction *action, Qt::ToolButtonStyle style,
                           QToolButton::ToolButtonPopupMode mode, QWidget *parent);

//! Makes \a parent the owner of \a action and returns its widget, shown; null if it has none.
QWidget *takeWidget(QWidgetAction *action, QWidget *parent);

QAction *addMenu(QWidget *owner, QMenu *menu);
QAction *addWidget(QWidget *owner, QWidget *widget);

} // namespace RibbonControls

} // namespace Norvane
