// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "Patience.h"

#include "Popup.h"
#include "Shot.h"
#include "ribbon/RibbonButton.h"

#include <QtGui/QWindow>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QMenu>

/*!
    A window in a colour that nothing else has, so that what a ribbon widget paints can be told
    from what it leaves alone, with a mouse that goes the way of the real one: through the window.
*/
class Scene : public QWidget
{
public:
    static constexpr QColor backdrop = QColor(255, 0, 255);

    Scene()
    {
        QPalette colours;
        colours.setColor(QPalette::Window, backdrop);
        setPalette(colours);
        resize(360, 130);
    }

    //! A button that is bound and set up in the order in which a group does it.
    Norvane::RibbonButton *addButton(Qt::ToolButtonStyle style, QAction *action,
                                     QToolButton::ToolButtonPopupMode mode)
    {
        auto *button = new Norvane::RibbonButton(this);
        button->setToolButtonStyle(style);
        button->bindAction(action);
        button->setPopupMode(mode);
        button->move(20, 10);
        return button;
    }

    //! Shows the window with the mouse in its far corner.
    bool open()
    {
        show();
        if (!QTest::qWaitForWindowExposed(this, patience))
            return false;
        moveMouseTo(this, QPoint(width() - 2, height() - 2));
        return true;
    }

    void moveMouseTo(QWidget *widget, QPoint position)
    {
        QTest::mouseMove(windowHandle(), widget->mapTo(this, position));
    }

    void press(QWidget *widget, QPoint position, Qt::MouseButton button = Qt::LeftButton)
    {
        QTest::mousePress(windowHandle(), button, {}, widget->mapTo(this, position));
    }

    void release(QWidget *widget, QPoint position, Qt::MouseButton button = Qt::LeftButton)
    {
        QTest::mouseRelease(windowHandle(), button, {}, widget->mapTo(this, position));
    }

    void click(QWidget *widget, QPoint position, Qt::MouseButton button = Qt::LeftButton)
    {
        press(widget, position, button);
        release(widget, position, button);
    }
};

//! A text whose letters are blocks that fill their cells.
inline QString blocks(int count)
{
    return QString(count, QChar(0x2588));
}

inline int advanceOf(const QString &text)
{
    return QFontMetrics(QApplication::font()).horizontalAdvance(text);
}

//! Where a button shows the arrow of its menu.
inline QRegion arrowOf(const Norvane::RibbonButton *button)
{
    if (!button->defaultAction()->menu())
        return {};
    switch (button->toolButtonStyle()) {
    case Qt::ToolButtonTextUnderIcon:
        return QRect((button->width() - 8) / 2, button->height() - 12, 8, 4);
    case Qt::ToolButtonTextBesideIcon:
        return QRect(button->width() - 14, (button->height() - 4) / 2, 8, 4);
    default:
        return {};
    }
}
