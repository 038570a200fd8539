// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtWidgets/QAccessibleWidget>

class QStackedWidget;

namespace Norvane {

/*!
    A stack of pages of which only the current one exists for assistive tools: another page may be
    shown as well, without being seen.
*/
class AccessibleStack : public QAccessibleWidget
{
public:
    explicit AccessibleStack(QStackedWidget *stack);

    int childCount() const override;
    QAccessibleInterface *child(int index) const override;
    int indexOfChild(const QAccessibleInterface *child) const override;

protected:
    ~AccessibleStack() override = default;

private:
    QWidget *page() const;
};

} // namespace Norvane
