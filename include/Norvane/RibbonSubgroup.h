// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <Norvane/NorvaneExport.h>

#include <QtWidgets/QToolButton>
#include <QtWidgets/QWidget>

#include <memory>

class QMenu;

namespace Norvane {

class RibbonSubgroupPrivate;

/*!
    A column inside a RibbonGroup that stacks small buttons (icon, text beside it), widgets and
    rows of icon-only buttons from top to bottom, 2 pixels apart.

    Made by RibbonGroup::addSubgroup(). Every action added becomes a button; removing the action
    leaves the button in place. Actions stay the caller's unless said otherwise. A separator has
    no line of its own in a column: it becomes a button like any other action.
*/
class NORVANE_EXPORT RibbonSubgroup : public QWidget
{
    Q_OBJECT
    Q_DECLARE_PRIVATE(RibbonSubgroup)
    Q_DISABLE_COPY_MOVE(RibbonSubgroup)

public:
    //! Makes an empty column. A group makes its own.
    explicit RibbonSubgroup(QWidget *parent = nullptr);
    ~RibbonSubgroup() override;

    using QWidget::addAction;

    /*!
        Adds a small button for \a action, or its widget if it is a QWidgetAction. The button
        gets the popup mode of the last addMenu(). A null pointer is ignored.
    */
    void addAction(QAction *action);

    /*!
        Adds one row of icon-only buttons of 22 x 22 pixels for \a actions, under what the column
        holds already. The actions do not become actions of the subgroup (actions() does not list
        them), and the popup mode of addMenu() does not apply to them. Null pointers are skipped.
    */
    void addActions(const QList<QAction *> &actions);

    /*!
        Adds a small button that opens \a menu and returns the menu's action; see
        RibbonGroup::addMenu().
    */
    QAction *addMenu(QMenu *menu, QToolButton::ToolButtonPopupMode mode);

    /*!
        Adds \a widget to the column and shows it; the subgroup becomes its owner. Returns the
        action that stands for it, or null for a null pointer.
    */
    QAction *addWidget(QWidget *widget);

protected:
    RibbonSubgroup(RibbonSubgroupPrivate &dd, QWidget *parent);

    void actionEvent(QActionEvent *event) override;

    const std::unique_ptr<RibbonSubgroupPrivate> d_ptr;
};

} // namespace Norvane
