// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "AccessibleButton.h"

#include <QtGui/QAction>
#include <QtWidgets/QMenu>
#include <QtWidgets/QToolButton>

namespace Norvane {

namespace {

QString inOneLine(const QString &text)
{
    QString line;
    for (qsizetype i = 0; i < text.size(); ++i) {
        // An ampersand marks the letter behind it, which may be another ampersand.
        if (text.at(i) == u'&' && i + 1 < text.size())
            ++i;
        line += text.at(i);
    }
    return line.simplified();
}

} // namespace

AccessibleButton::AccessibleButton(QAbstractButton *button, QAccessible::Role role)
    : QAccessibleWidget(button, role)
{
    addControllingSignal(button->isCheckable() ? QStringLiteral("toggled(bool)")
                                               : QStringLiteral("clicked()"));
}

QString AccessibleButton::text(QAccessible::Text kind) const
{
    if (kind == QAccessible::Name && widget()->accessibleName().isEmpty()) {
        const QString text = inOneLine(button()->text());
        return text.isEmpty() ? button()->property("label").toString() : text;
    }
    if (kind == QAccessible::Accelerator && action())
        return action()->shortcut().toString(QKeySequence::NativeText);
    return QAccessibleWidget::text(kind);
}

QAccessible::Role AccessibleButton::role() const
{
    if (menu())
        return opensMenuOnly() ? QAccessible::ButtonMenu : QAccessible::ButtonDropDown;
    if (button()->isCheckable() && !isTab())
        return QAccessible::CheckBox;
    return QAccessibleWidget::role();
}

QAccessible::State AccessibleButton::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    const bool checked = button()->isChecked();
    if (isTab()) {
        state.selectable = true;
        state.selected = checked;
    } else {
        state.checkable = button()->isCheckable();
        state.checked = checked;
    }
    state.pressed = button()->isDown();
    state.hasPopup = menu() != nullptr;
    return state;
}

QStringList AccessibleButton::actionNames() const
{
    QStringList names;
    if (button()->isEnabled()) {
        if (menu())
            names << showMenuAction();
        if (!opensMenuOnly())
            names << (button()->isCheckable() && !isTab() ? toggleAction() : pressAction());
    }
    return names << QAccessibleWidget::actionNames();
}

void AccessibleButton::doAction(const QString &name)
{
    if (!actionNames().contains(name))
        return;
    if (name == pressAction() || name == toggleAction())
        button()->click();
    else if (name == showMenuAction())
        menu()->popup(button()->mapToGlobal(button()->rect().bottomLeft()));
    else
        QAccessibleWidget::doAction(name);
}

QStringList AccessibleButton::keyBindingsForAction(const QString &name) const
{
    if (action() && (name == pressAction() || name == toggleAction()))
        return {action()->shortcut().toString()};
    return {};
}

QAbstractButton *AccessibleButton::button() const
{
    return static_cast<QAbstractButton *>(object());
}

QAction *AccessibleButton::action() const
{
    const auto *toolButton = qobject_cast<const QToolButton *>(object());
    return toolButton ? toolButton->defaultAction() : nullptr;
}

QMenu *AccessibleButton::menu() const
{
    const auto *toolButton = qobject_cast<const QToolButton *>(object());
    if (toolButton && toolButton->menu())
        return toolButton->menu();
    return action() ? action()->menu<QMenu *>() : nullptr;
}

bool AccessibleButton::opensMenuOnly() const
{
    const auto *toolButton = qobject_cast<const QToolButton *>(object());
    return menu() && toolButton && toolButton->popupMode() == QToolButton::InstantPopup;
}

bool AccessibleButton::isTab() const
{
    return QAccessibleWidget::role() == QAccessible::PageTab;
}

} // namespace Norvane
