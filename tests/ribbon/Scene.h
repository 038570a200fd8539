// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "ribbon/RibbonButton.h"

#include <QtCore/QTimer>
#include <QtGui/QRegion>
#include <QtGui/QWindow>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QMenu>

#include <functional>

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
        if (!QTest::qWaitForWindowExposed(this))
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

inline bool isClose(const QColor &one, const QColor &other, int tolerance)
{
    return qAbs(one.red() - other.red()) <= tolerance
        && qAbs(one.green() - other.green()) <= tolerance
        && qAbs(one.blue() - other.blue()) <= tolerance;
}

//! What a widget and its surroundings look like now, in the widget's own logical pixels.
class Shot
{
public:
    explicit Shot(QWidget *widget)
        : m_image(widget->window()->grab().toImage().convertToFormat(QImage::Format_RGB32))
        , m_origin(widget->mapTo(widget->window(), QPoint()))
        , m_ratio(qRound(m_image.devicePixelRatio()))
    {
    }

    int ratio() const { return m_ratio; }

    QColor device(int x, int y) const
    {
        return m_image.pixelColor(m_origin.x() * m_ratio + x, m_origin.y() * m_ratio + y);
    }

    //! The colour of a logical pixel; an invalid colour when its device pixels differ.
    QColor at(int x, int y) const
    {
        const QColor first = device(x * m_ratio, y * m_ratio);
        for (int dy = 0; dy < m_ratio; ++dy) {
            for (int dx = 0; dx < m_ratio; ++dx) {
                if (device(x * m_ratio + dx, y * m_ratio + dy) != first)
                    return {};
            }
        }
        return first;
    }

    //! The mean colour of a logical pixel.
    QColor mean(int x, int y) const
    {
        int red = 0;
        int green = 0;
        int blue = 0;
        for (int dy = 0; dy < m_ratio; ++dy) {
            for (int dx = 0; dx < m_ratio; ++dx) {
                const QColor colour = device(x * m_ratio + dx, y * m_ratio + dy);
                red += colour.red();
                green += colour.green();
                blue += colour.blue();
            }
        }
        const int count = m_ratio * m_ratio;
        return QColor(red / count, green / count, blue / count);
    }

    //! Empty when every pixel of \a area has \a colour, else where the first other one is.
    QString otherThan(const QColor &colour, const QRegion &area) const
    {
        for (const QRect &rect : area) {
            for (int y = rect.top(); y <= rect.bottom(); ++y) {
                for (int x = rect.left(); x <= rect.right(); ++x) {
                    if (at(x, y) != colour) {
                        return QStringLiteral("(%1, %2) is %3 in the mean, not %4")
                            .arg(x)
                            .arg(y)
                            .arg(mean(x, y).name(), colour.name());
                    }
                }
            }
        }
        return {};
    }

    //! The smallest rectangle, in device pixels, with all pixels in \a area closest to \a colour.
    QRect bounds(const QColor &colour, const QRect &area) const
    {
        QRect found;
        for (int y = area.top() * m_ratio; y < (area.bottom() + 1) * m_ratio; ++y) {
            for (int x = area.left() * m_ratio; x < (area.right() + 1) * m_ratio; ++x) {
                if (isClose(device(x, y), colour, 127))
                    found |= QRect(x, y, 1, 1);
            }
        }
        return found;
    }

private:
    QImage m_image;
    QPoint m_origin;
    int m_ratio;
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

/*!
    Calls \a open, which is to open \a menu, and \a look as soon as the menu is there; then closes
    the menu if \a look did not. Returns whether the menu was opened.
*/
inline bool whileOpen(QMenu *menu, const std::function<void()> &open,
                      const std::function<void()> &look)
{
    bool opened = false;
    const QPointer<QMenu> guard(menu);
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, menu, [&] {
        if (QApplication::activePopupWidget() != menu || !menu->windowHandle()->isExposed())
            return;
        poll.stop();
        opened = true;
        look();
        if (guard && guard->isVisible())
            QTest::keyClick(guard->windowHandle(), Qt::Key_Escape);
    });
    poll.start(1);
    open();
    return opened;
}
