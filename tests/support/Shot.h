// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGui/QImage>
#include <QtGui/QRegion>
#include <QtWidgets/QWidget>

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
