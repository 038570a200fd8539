// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QPointF>
#include <QtGui/QImage>

namespace Workbench {

/*!
    What picture effects are made of: operations on pictures of 32 bits a pixel. They keep what else
    a picture holds, as its resolution.
*/
class Pixels
{
public:
    //! The picture in a format in which colours are not multiplied with their opacity.
    static QImage straight(const QImage &image);
    //! The picture in a format in which colours can be averaged.
    static QImage premultiplied(const QImage &image);
    //! An empty picture of another size that is like \a image otherwise; null if it is too large.
    static QImage blank(const QImage &image, QSize size);

    //! The nearest value that a colour can have.
    static int limited(qreal value) { return qBound(0, qRound(value), 255); }
    //! The colour that lies \a share of the way from \a first to \a second, and its opacity.
    static QRgb mixed(QRgb first, QRgb second, qreal share);

    //! Calls \a colour with the colour of every pixel, which becomes what it returns; the opacity
    //! stays.
    template<typename Colour>
    static QImage recoloured(const QImage &image, Colour colour)
    {
        return recolouredAt(image, [&](QRgb pixel, QPoint) { return colour(pixel); });
    }

    //! Calls \a colour with the place of every pixel, too.
    template<typename Colour>
    static QImage recolouredAt(const QImage &image, Colour colour)
    {
        QImage result = straight(image);
        for (int y = 0; y < result.height(); ++y) {
            auto *line = reinterpret_cast<QRgb *>(result.scanLine(y));
            for (int x = 0; x < result.width(); ++x) {
                const QRgb changed = colour(line[x], QPoint(x, y));
                line[x] = (line[x] & 0xff000000) | (changed & RGB_MASK);
            }
        }
        return result;
    }

    //! Averages over (2 * \a radius + 1) pixels in each direction.
    static QImage averaged(const QImage &image, QSize radius);
    //! A soft blur that reaches about \a radius pixels.
    static QImage blurred(const QImage &image, int radius);

    //! Calls \a origin with every place of the result, which becomes what is there in the picture.
    //! Places outside of the picture show its edge.
    template<typename Origin>
    static QImage warped(const QImage &image, Origin origin)
    {
        const QImage source = premultiplied(image);
        QImage result = blank(source, source.size());
        for (int y = 0; y < result.height(); ++y) {
            auto *line = reinterpret_cast<QRgb *>(result.scanLine(y));
            for (int x = 0; x < result.width(); ++x)
                line[x] = between(source, origin(QPointF(x, y)));
        }
        return straight(result);
    }

    //! How light the pixel is; the nearest one if the place is outside of the picture.
    static int lightness(const QImage &image, int x, int y);

private:
    static QRgb between(const QImage &image, QPointF place);
};

} // namespace Workbench
