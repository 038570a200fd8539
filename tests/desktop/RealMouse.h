// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QProcess>
#include <QtGui/QCursor>
#include <QtTest/QTest>
#include <QtWidgets/QWidget>

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
    arguments << QStringLiteral("mouseup") << QStringLiteral("1");
    return QProcess::startDetached(QStringLiteral("xdotool"), arguments);
}

inline void key(const QString &name)
{
    xdotool({QStringLiteral("key"), name});
}

} // namespace RealMouse
