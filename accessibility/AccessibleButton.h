// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtWidgets/QAccessibleWidget>

class QAbstractButton;
class QAction;
class QMenu;

namespace Norvane {

/*!
    A button as assistive tools see it: named by its text in one line, or by its property "label" if
    it has none, with the shortcut of its action, its menu and its state. A page tab is selected
    where another button is checked.
*/
class AccessibleButton : public QAccessibleWidget
{
public:
    //! \a role is that of a button that is neither checkable nor has a menu.
    AccessibleButton(QAbstractButton *button, QAccessible::Role role);

    QString text(QAccessible::Text kind) const override;
    QAccessible::Role role() const override;
    QAccessible::State state() const override;

    QStringList actionNames() const override;
    void doAction(const QString &name) override;
    QStringList keyBindingsForAction(const QString &name) const override;

protected:
    ~AccessibleButton() override = default;

private:
    QAbstractButton *button() const;
    QAction *action() const;
    QMenu *menu() const;
    bool opensMenuOnly() const;
    bool isTab() const;
};

} // namespace Norvane
