// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QObject>

class QStackedWidget;

namespace Norvane {

/*!
    Keeps pages that are shown without being current out of sight. Pages are transparent: such a
    page would shine through the current one and take its clicks. It stays visible to isVisible(),
    at a place below the stack, where the stack clips it.
*/
class OffstagePages : public QObject
{
    Q_OBJECT

public:
    //! Watches over \a stack, which owns it.
    explicit OffstagePages(QStackedWidget *stack);

    void watch(QWidget *page);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QStackedWidget *const m_stack;
};

} // namespace Norvane
