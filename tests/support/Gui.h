// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "Patience.h"

#include <QtGui/QImage>
#include <QtGui/QWindow>
#include <QtTest/QTest>
#include <QtWidgets/QWidget>

/*!
    What tests of widgets do to a window, and what they see of it. Input goes through the window
    system's queue to the window, so that Qt itself finds the widget under the mouse; positions are
    those of the widget that is meant.
*/
namespace Gui {

inline bool open(QWidget *window)
{
    window->show();
    return QTest::qWaitForWindowExposed(window, patience);
}

inline QPoint inWindow(const QWidget *widget, QPoint position)
{
    return widget->mapTo(widget->window(), position);
}

inline void moveMouse(const QWidget *widget, QPoint position)
{
    QTest::mouseMove(widget->window()->windowHandle(), inWindow(widget, position));
}

inline void press(const QWidget *widget, QPoint position, Qt::MouseButton button = Qt::LeftButton)
{
    QTest::mousePress(widget->window()->windowHandle(), button, {}, inWindow(widget, position));
}

inline void release(const QWidget *widget, QPoint position, Qt::MouseButton button = Qt::LeftButton)
{
    QTest::mouseRelease(widget->window()->windowHandle(), button, {}, inWindow(widget, position));
}

inline void click(const QWidget *widget, QPoint position, Qt::MouseButton button = Qt::LeftButton)
{
    press(widget, position, button);
    release(widget, position, button);
}

inline void click(const QWidget *widget, Qt::MouseButton button = Qt::LeftButton)
{
    click(widget, widget->rect().center(), button);
}

//! The picture of \a widget, of which pixel() takes positions in the widget's own coordinates.
inline QImage picture(QWidget *widget)
{
    return widget->grab().toImage().convertToFormat(QImage::Format_RGB32);
}

inline QColor pixel(const QImage &picture, QPoint position)
{
    return picture.pixelColor(position * picture.devicePixelRatio());
}

inline QColor pixel(QWidget *widget, QPoint position)
{
    return pixel(picture(widget), position);
}

} // namespace Gui
