// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "OffstagePages.h"

#include <QtCore/QEvent>
#include <QtWidgets/QStackedWidget>

namespace Norvane {

OffstagePages::OffstagePages(QStackedWidget *stack)
    : QObject(stack)
    , m_stack(stack)
{
    connect(stack, &QStackedWidget::currentChanged, this, [stack] {
        if (QWidget *page = stack->currentWidget())
            page->setGeometry(stack->contentsRect());
    });
}

void OffstagePages::watch(QWidget *page)
{
    page->installEventFilter(this);
}

bool OffstagePages::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Show && watched != m_stack->currentWidget())
        static_cast<QWidget *>(watched)->move(0, m_stack->height());
    return false;
}

} // namespace Norvane
