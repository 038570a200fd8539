// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <Norvane/NorvaneExport.h>

#include <QtWidgets/QToolButton>
#include <QtWidgets/QWidget>

#include <memory>

class QMenu;

namespace Norvane {

class RibbonGroupPrivate;
class RibbonSubgroup;

/*!
    One titled block of controls on a RibbonPage: a row of large buttons, widgets, separators and
    columns (RibbonSubgroup), its title beneath, a thin line at its right end. It is 95 pixels high
    and as wide as its content.

    Every action added becomes a button; removing the action leaves the button in place. Actions
    stay the caller's unless said otherwise.
*/
class NORVANE_EXPORT RibbonGroup : public QWidget
{
    Q_OBJECT
    Q_DECLARE_PRIVATE(RibbonGroup)
    Q_DISABLE_COPY_MOVE(RibbonGroup)

public:
    //! Makes an empty group; RibbonPage::addGroup() makes one and adds it.
    explicit RibbonGroup(const QString &title, QWidget *parent = nullptr);
    ~RibbonGroup() override;

    using QWidget::addAction;

    /*!
        Adds \a action to the row: a QWidgetAction as its widget (the group becomes the action's
        parent), a separator as a line, any other as a large button with the popup mode of the
        last addMenu(). A line feed in the action's text starts a second line. A null pointer is
        ignored.
    */
    void addAction(QAction *action);

    /*!
        Adds a large button that opens \a menu and returns the menu's action; the menu stays the
        caller's. A null pointer is ignored and null returned.

        \a mode also holds for every button added after this one, until the next addMenu().
        A menu of mode QToolButton::DelayedPopup is not opened by the mouse: a click triggers the
        action. QToolButton::MenuButtonPopup splits the button in two.
    */
    QAction *addMenu(QMenu *menu, QToolButton::ToolButtonPopupMode mode);

    //! Adds a vertical line to the row and returns its action, which goes with the group.
    QAction *addSeparator();

    /*!
        Adds \a widget to the row and shows it; the group becomes its owner. Returns the action
        that stands for it, or null for a null pointer.
    */
    QAction *addWidget(QWidget *widget);

    //! Adds a column for smaller controls, owned by the group.
    RibbonSubgroup *addSubgroup();

    //! The column at \a index in order of addition, or null if \a index is out of range.
    RibbonSubgroup *subgroup(int index) const;

    //! The position of \a subgroup, or -1 if it is not one of this group's.
    int indexOfSubgroup(RibbonSubgroup *subgroup) const;

protected:
    RibbonGroup(RibbonGroupPrivate &dd, QWidget *parent);

    void actionEvent(QActionEvent *event) override;

    const std::unique_ptr<RibbonGroupPrivate> d_ptr;
};

} // namespace Norvane
