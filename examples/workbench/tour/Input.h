// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QPoint>
#include <QtCore/QString>

class QWidget;

namespace Workbench {

/*!
    A hand on mouse and keyboard: events that the widgets' windows get as from the system, and
    spread themselves over widgets, menus and dialogs. All of them are posted, so that one that
    opens a menu or a dialog does not hold up who makes them.
*/
class Input
{
public:
    static void moveTo(QWidget *widget, QPoint position);
    static void click(QWidget *widget, QPoint position, Qt::MouseButton button = Qt::LeftButton);
    //! Clicks in the middle.
    static void click(QWidget *widget);
    static void doubleClick(QWidget *widget, QPoint position);
    //! Draws the left button from \a from to \a to.
    static void drag(QWidget *widget, QPoint from, QPoint to);
    //! To the widget of \a window that has the focus.
    static void type(QWidget *window, const QString &text);
    static void press(QWidget *window, int key);
};

} // namespace Workbench
