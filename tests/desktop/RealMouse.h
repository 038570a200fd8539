// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QPointer>
#include <QtCore/QProcess>
#include <QtCore/QTimer>
#include <QtGui/QCursor>
#include <QtGui/QWindow>
#include <QtTest/QTest>
#include <QtWidgets/QMenu>
#include <QtWidgets/QWidget>

#include <functional>

//! The mouse and the keyboard of the X server, as a person's hands move them.
namespace RealMouse {

inline void xdotool(const QStringList &arguments)
{
    QCOMPARE(QProcess::execute(QStringLiteral("xdotool"), arguments), 0);
}

inline void moveTo(QPoint target)
{
    xdotool(
        {QStringLiteral("mousemove"), QString::number(target.x()), QString::number(target.y())});
    QTRY_COMPARE(QCursor::pos(), target);
}

inline void move(const QWidget *widget, QPoint position)
{
    moveTo(widget->mapToGlobal(position));
}

inline void move(const QWidget *widget)
{
    move(widget, widget->rect().center());
}

inline void click(int button = 1)
{
    xdotool({QStringLiteral("click"), QString::number(button)});
}

//! Presses where the mouse is and takes it along.
inline void drag(QPoint by)
{
    const QPoint start = QCursor::pos();
    xdotool({QStringLiteral("mousedown"), QStringLiteral("1")});
    for (int step = 1; step <= 4; ++step)
        moveTo(start + by * step / 4);
    xdotool({QStringLiteral("mouseup"), QStringLiteral("1")});
}

/*!
    Drags from one point to another and comes back at once: while something is dragged, Qt comes
    back to nobody.
*/
inline bool startDrag(QPoint from, QPoint to)
{
    // As slow as a hand, or windows are passed without being entered.
    const QStringList pause{QStringLiteral("sleep"), QStringLiteral("0.05")};
    QStringList arguments;
    const auto moveTo = [&](QPoint point) {
        arguments << QStringLiteral("mousemove") << QString::number(point.x())
                  << QString::number(point.y()) << pause;
    };
    moveTo(from);
    arguments << QStringLiteral("mousedown") << QStringLiteral("1") << pause;
    for (int step = 1; step <= 8; ++step)
        moveTo(from + (to - from) * step / 8);
    // Who lets go before the window below could answer drops nothing.
    arguments << QStringLiteral("sleep") << QStringLiteral("0.5");
    arguments << QStringLiteral("mouseup") << QStringLiteral("1");
    return QProcess::startDetached(QStringLiteral("xdotool"), arguments);
}

inline void key(const QString &name)
{
    xdotool({QStringLiteral("key"), name});
}

/*!
    Clicks where the mouse is, which is to open \a menu, and then acts. A press that opens a menu
    comes back when the menu is closed, so what is done with it is done inside its event loop.
*/
inline void clickToOpen(QMenu *menu, const std::function<void()> &act, int button = 1)
{
    bool acted = false;
    const QPointer<QMenu> guard(menu);
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &timer, [&] {
        if (acted || !menu->isVisible() || !menu->windowHandle()->isExposed())
            return;
        acted = true;
        act();
    });
    timer.start(10);
    click(button);
    QTRY_VERIFY(acted);
    QTRY_VERIFY(!guard || !guard->isVisible());
}

} // namespace RealMouse
