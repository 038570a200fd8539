// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "Patience.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QPointer>
#include <QtCore/QProcess>
#include <QtCore/QTimer>
#include <QtGui/QCursor>
#include <QtGui/QDragMoveEvent>
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

//! Where \a window stands on the screen, as the X server knows.
inline QPoint placeOf(const QWidget *window)
{
    QProcess xwininfo;
    xwininfo.start(QStringLiteral("xwininfo"),
                   {QStringLiteral("-id"), QString::number(window->winId())});
    if (!xwininfo.waitForFinished())
        return {};
    QPoint place;
    const QList<QByteArray> lines = xwininfo.readAllStandardOutput().split('\n');
    for (const QByteArray &line : lines) {
        const int number = line.sliced(line.lastIndexOf(' ') + 1).toInt();
        if (line.contains("Absolute upper-left X"))
            place.setX(number);
        else if (line.contains("Absolute upper-left Y"))
            place.setY(number);
    }
    return place;
}

/*!
    Shows \a window, and waits until it has its frame and the keyboard. A window manager moves a
    window when it gives it a frame, and who looks for a place in it before that clicks beside it.
*/
inline bool open(QWidget *window)
{
    window->show();
    return QTest::qWaitForWindowActive(window, patience)
        && QTest::qWaitFor([window] { return window->windowHandle()->frameMargins().top() > 0; },
                           patience)
        && QTest::qWaitFor([window] { return placeOf(window) == window->mapToGlobal(QPoint()); },
                           patience);
}

inline void moveTo(QPoint target)
{
    xdotool(
        {QStringLiteral("mousemove"), QString::number(target.x()), QString::number(target.y())});
    QTRY_COMPARE(QCursor::pos(), target);
}

inline void move(const QWidget *widget, QPoint position)
{
    // The place that it has once all that was changed is laid out.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
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
    Drags from one point to another while the test waits, because Qt comes back to nobody while
    something is dragged. Lets go once the widget below the end, which is in this program, has been
    told that something is dragged over it: who lets go earlier drops nothing.
*/
class Drag : public QObject
{
public:
    Drag(QPoint from, QPoint to)
        : m_from(from)
        , m_to(to)
    {
        QCoreApplication::instance()->installEventFilter(this);
        QObject::connect(&m_timer, &QTimer::timeout, this, &Drag::step);
        moveTo(from);
        xdotool({QStringLiteral("mousedown"), QStringLiteral("1")});
        m_timer.start(20);
    }

    ~Drag() override
    {
        if (m_timer.isActive())
            letGo();
    }
    Q_DISABLE_COPY_MOVE(Drag)

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        auto *widget = qobject_cast<QWidget *>(watched);
        if (widget && event->type() == QEvent::DragMove) {
            const QPoint at = static_cast<QDragMoveEvent *>(event)->position().toPoint();
            m_arrived = (widget->mapToGlobal(at) - m_to).manhattanLength() <= 1;
        }
        return false;
    }

private:
    void step()
    {
        if (m_arrived)
            return letGo();
        ++m_step;
        // A hand is never still, and a view needs more than one movement to begin.
        const QPoint at = m_step <= Steps ? m_from + (m_to - m_from) * m_step / Steps
                                          : m_to + QPoint(m_step % 2, 0);
        xdotool({QStringLiteral("mousemove"), QString::number(at.x()), QString::number(at.y())});
    }

    void letGo()
    {
        m_timer.stop();
        xdotool({QStringLiteral("mouseup"), QStringLiteral("1")});
    }

    static constexpr int Steps = 8;

    const QPoint m_from;
    const QPoint m_to;
    QTimer m_timer;
    int m_step = 0;
    bool m_arrived = false;
};

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
