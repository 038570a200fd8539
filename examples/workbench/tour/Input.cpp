// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "tour/Input.h"

#include <QtCore/QCoreApplication>
#include <QtGui/QMouseEvent>
#include <QtGui/QWindow>
#include <QtWidgets/QWidget>

namespace Workbench {

static void post(QEvent::Type type, QWidget *widget, QPoint position, Qt::MouseButton button,
                 Qt::MouseButtons buttons)
{
    const QPointF local = widget->mapTo(widget->window(), position);
    const QPointF global = widget->mapToGlobal(QPointF(position));
    QWindow *window = widget->window()->windowHandle();
    // Made only when its turn comes: mouse events share their position with the latest one made.
    QMetaObject::invokeMethod(
        window,
        [=] {
            QMouseEvent event(type, local, local, global, button, buttons, Qt::NoModifier);
            QCoreApplication::sendEvent(window, &event);
        },
        Qt::QueuedConnection);
}

static void postKey(QWidget *window, int key, const QString &text)
{
    for (QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QCoreApplication::postEvent(window->windowHandle(),
                                    new QKeyEvent(type, key, Qt::NoModifier, text));
    }
}

void Input::moveTo(QWidget *widget, QPoint position)
{
    // A menu believes in the mouse only after some moves.
    for (int distance = 8; distance >= 0; --distance) {
        post(QEvent::MouseMove, widget, position - QPoint(distance / 2, 0), Qt::NoButton,
             Qt::NoButton);
    }
}

void Input::click(QWidget *widget, QPoint position, Qt::MouseButton button)
{
    moveTo(widget, position);
    post(QEvent::MouseButtonPress, widget, position, button, button);
    post(QEvent::MouseButtonRelease, widget, position, button, Qt::NoButton);
}

void Input::click(QWidget *widget)
{
    click(widget, widget->rect().center());
}

void Input::doubleClick(QWidget *widget, QPoint position)
{
    click(widget, position);
    post(QEvent::MouseButtonDblClick, widget, position, Qt::LeftButton, Qt::LeftButton);
    post(QEvent::MouseButtonRelease, widget, position, Qt::LeftButton, Qt::NoButton);
}

void Input::drag(QWidget *widget, QPoint from, QPoint to)
{
    moveTo(widget, from);
    post(QEvent::MouseButtonPress, widget, from, Qt::LeftButton, Qt::LeftButton);
    post(QEvent::MouseMove, widget, (from + to) / 2, Qt::NoButton, Qt::LeftButton);
    post(QEvent::MouseMove, widget, to, Qt::NoButton, Qt::LeftButton);
    post(QEvent::MouseButtonRelease, widget, to, Qt::LeftButton, Qt::NoButton);
}

void Input::type(QWidget *window, const QString &text)
{
    for (QChar c : text) {
        const int key = c == u'\n' ? int(Qt::Key_Return) : int(c.toUpper().unicode());
        postKey(window, key, c == u'\n' ? QStringLiteral("\r") : QString(c));
    }
}

void Input::press(QWidget *window, int key)
{
    postKey(window, key, QString());
}

} // namespace Workbench
