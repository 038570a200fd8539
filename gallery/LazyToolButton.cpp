// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "LazyToolButton.h"

#include <QtCore/QCoreApplication>
#include <QtGui/QPaintEvent>

namespace Norvane {

void LazyToolButton::polish()
{
    if (testAttribute(Qt::WA_WState_Polished))
        return;
    QEvent polish(QEvent::Polish);
    QToolButton::event(&polish);
}

QSize LazyToolButton::sizeHint() const
{
    return minimumSize() == maximumSize() ? minimumSize() : QToolButton::sizeHint();
}

bool LazyToolButton::event(QEvent *event)
{
    switch (event->type()) {
    case QEvent::Polish:
        // Properties may select a size, which must be there before the first layout.
        if (!dynamicPropertyNames().isEmpty())
            polish();
        return true;
    case QEvent::PolishRequest:
        return true;
    case QEvent::StyleChange:
        if (!testAttribute(Qt::WA_WState_Polished))
            return true;
        break;
    case QEvent::UpdateLater:
        // It follows every show, and each button that it marks is compared with all others.
        if (visibleRegion().isEmpty())
            return true;
        break;
    case QEvent::Paint:
        if (!testAttribute(Qt::WA_WState_Polished)) {
            polish();
            // What it asks for is about to happen.
            if (static_cast<QPaintEvent *>(event)->rect() == rect())
                QCoreApplication::removePostedEvents(this, QEvent::UpdateLater);
        }
        break;
    default:
        break;
    }
    return QToolButton::event(event);
}

} // namespace Norvane
