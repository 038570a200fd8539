// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QPointF>
#include <QtGui/QImage>

#include <functional>
#include <type_traits>

namespace Workbench {

/*!
    What picture effects are made of: operations on pictures of 32 bits a pixel. They keep what else
    a picture holds, as its resolution. What they are given to call is called from several threads.
*/
class Pixels
{
public:
    //! The lines of a picture, for several threads at a time; \a Pixel tells whether to change it.
    template<typename Pixel>
    class Lines
    {
        using Image = std::conditional_t<std::is_const_v<Pixel>, const QImage, QImage>;

    public:
        explicit Lines(Image &image)
            : m_first(reinterpret_cast<Pixel *>(image.bits()))
            , m_stride(image.bytesPerLine() / qsizetype(sizeof(Pixel)))
        {
        }

        Pixel *operator[](int y) const { return m_first + y * m_stride; }
        qsizetype stride() const { return m_stride; }

    private:
        Pixel *m_first;
        qsizetype m_stride;
    };

    //! The picture in a format in which colours are not multiplied with their opacity.
    static QImage straight(const QImage &image);
    //! The picture in a format in which colours can be averaged.
    static QImage premultiplied(const QImage &image);
    //! The picture with the lightness of each pixel in place of its opacity, and around it a copy
    //! of its outermost pixels; null if it is too large.
    static QImage withLightness(const QImage &image);
    //! An empty picture of another size that is like \a image otherwise; null if it is too large.
    static QImage blank(const QImage &image, QSize size);

    //! The nearest value that a colour can have.
    static int limited(int value) { return qBound(0, value, 255); }
    static int limited(qreal value) { return limited(qRound(value)); }

    //! The colour that lies \a share of the way from \a first to \a second, and its opacity.
    static QRgb mixed(QRgb first, QRgb second, qreal share)
    {
        const int parts = qRound(share * 0x10000);
        const auto mix = [parts](int a, int b) {
            return limited(a + (((b - a) * parts + 0x8000) >> 16));
        };
        return qRgba(mix(qRed(first), qRed(second)), mix(qGreen(first), qGreen(second)),
                     mix(qBlue(first), qBlue(second)), mix(qAlpha(first), qAlpha(second)));
    }

    //! Calls \a work with the first of some lines and the one behind their last, until \a lines
    //! are done.
    static void inBands(int lines, const std::function<void(int, int)> &work);

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
        const Lines<QRgb> to(result);
        inBands(result.height(), [&, width = result.width()](int first, int end) {
            for (int y = first; y < end; ++y) {
                QRgb *line = to[y];
                for (int x = 0; x < width; ++x) {
                    const QRgb changed = colour(line[x], QPoint(x, y));
                    line[x] = (line[x] & 0xff000000) | (changed & RGB_MASK);
                }
            }
        });
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
        const Lines<const QRgb> from(source);
        const Lines<QRgb> to(result);
        inBands(result.height(), [&, size = result.size()](int first, int end) {
            for (int y = first; y < end; ++y) {
                for (int x = 0; x < size.width(); ++x)
                    to[y][x] = between(from, size, origin(QPointF(x, y)));
            }
        });
        return straight(result);
    }

private:
    static QRgb between(const Lines<const QRgb> &lines, QSize size, QPointF place);
};

} // namespace Workbench
