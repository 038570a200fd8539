// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "DockPageStack.h"

#include <QtCore/QEvent>

namespace Norvane {

DockPageStack::DockPageStack(QWidget *parent)
    : QStackedWidget(parent)
{
}

QSize DockPageStack::sizeHint() const
{
    if (!m_hint)
        m_hint = QStackedWidget::sizeHint();
    return *m_hint;
}

QSize DockPageStack::minimumSizeHint() const
{
    if (!m_minimum)
        m_minimum = QStackedWidget::minimumSizeHint();
    return *m_minimum;
}

bool DockPageStack::event(QEvent *event)
{
    switch (event->type()) {
    case QEvent::ChildAdded:
    case QEvent::ChildRemoved:
    case QEvent::LayoutRequest:
    case QEvent::StyleChange:
        m_hint.reset();
        m_minimum.reset();
        break;
    default:
        break;
    }
    return QStackedWidget::event(event);
}

} // namespace Norvane
