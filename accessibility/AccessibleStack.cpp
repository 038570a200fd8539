// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "AccessibleStack.h"

#include <QtWidgets/QStackedWidget>

namespace Norvane {

AccessibleStack::AccessibleStack(QStackedWidget *stack)
    : QAccessibleWidget(stack, QAccessible::LayeredPane)
{
}

int AccessibleStack::childCount() const
{
    return page() ? 1 : 0;
}

QAccessibleInterface *AccessibleStack::child(int index) const
{
    return index == 0 ? QAccessible::queryAccessibleInterface(page()) : nullptr;
}

int AccessibleStack::indexOfChild(const QAccessibleInterface *child) const
{
    return child && page() && child->object() == page() ? 0 : -1;
}

QWidget *AccessibleStack::page() const
{
    return static_cast<QStackedWidget *>(object())->currentWidget();
}

} // namespace Norvane
