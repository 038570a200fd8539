// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "picture/Pixels.h"

#include <QtGui/QColorSpace>

#include <cmath>

namespace Workbench {

static QRgb pixel(const QImage &image, int x, int y)
{
    const auto *line =
        reinterpret_cast<const QRgb *>(image.constScanLine(qBound(0, y, image.height() - 1)));
    return line[qBound(0, x, image.width() - 1)];
}

// Averages one line of pixels, which lie \a stride apart.
static void average(const QRgb *from, QRgb *to, qsizetype count, qsizetype stride, int radius)
{
    const int width = 2 * radius + 1;
    int alpha = 0;
    int red = 0;
    int green = 0;
    int blue = 0;
    const auto add = [&](qsizetype index, int sign) {
        const QRgb pixel = from[qBound(qsizetype(0), index, count - 1) * stride];
        alpha += sign * qAlpha(pixel);
        red += sign * qRed(pixel);
        green += sign * qGreen(pixel);
        blue += sign * qBlue(pixel);
    };
    for (int i = -radius; i <= radius; ++i)
        add(i, 1);
    for (qsizetype i = 0; i < count; ++i) {
        const int half = width / 2;
        to[i * stride] = qRgba((red + half) / width, (green + half) / width, (blue + half) / width,
                               (alpha + half) / width);
        add(i + radius + 1, 1);
        add(i - radius, -1);
    }
}

QImage Pixels::straight(const QImage &image)
{
    return image.convertToFormat(image.hasAlphaChannel() ? QImage::Format_ARGB32
                                                         : QImage::Format_RGB32);
}

QImage Pixels::premultiplied(const QImage &image)
{
    return image.convertToFormat(image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied
                                                         : QImage::Format_RGB32);
}

QImage Pixels::blank(const QImage &image, QSize size)
{
    QImage blank(size, image.format());
    blank.setDotsPerMeterX(image.dotsPerMeterX());
    blank.setDotsPerMeterY(image.dotsPerMeterY());
    blank.setColorSpace(image.colorSpace());
    return blank;
}

QRgb Pixels::mixed(QRgb first, QRgb second, qreal share)
{
    const auto mix = [share](int a, int b) { return limited(a + (b - a) * share); };
    return qRgba(mix(qRed(first), qRed(second)), mix(qGreen(first), qGreen(second)),
                 mix(qBlue(first), qBlue(second)), mix(qAlpha(first), qAlpha(second)));
}

QImage Pixels::averaged(const QImage &image, QSize radius)
{
    QImage source = premultiplied(image);
    QImage result = blank(source, source.size());
    for (int y = 0; y < source.height(); ++y) {
        average(reinterpret_cast<const QRgb *>(source.constScanLine(y)),
                reinterpret_cast<QRgb *>(result.scanLine(y)), source.width(), 1, radius.width());
    }
    source = result.copy();
    const qsizetype stride = source.bytesPerLine() / qsizetype(sizeof(QRgb));
    const auto *from = reinterpret_cast<const QRgb *>(source.constBits());
    auto *to = reinterpret_cast<QRgb *>(result.bits());
    for (int x = 0; x < source.width(); ++x)
        average(from + x, to + x, source.height(), stride, radius.height());
    return straight(result);
}

QImage Pixels::blurred(const QImage &image, int radius)
{
    QImage result = image;
    for (int i = 0; i < 3; ++i)
        result = averaged(result, QSize(radius, radius));
    return result;
}

int Pixels::lightness(const QImage &image, int x, int y)
{
    return qGray(pixel(image, x, y));
}

QRgb Pixels::between(const QImage &image, QPointF place)
{
    const int x = int(std::floor(place.x()));
    const int y = int(std::floor(place.y()));
    const qreal right = place.x() - x;
    const qreal below = place.y() - y;
    return mixed(mixed(pixel(image, x, y), pixel(image, x + 1, y), right),
                 mixed(pixel(image, x, y + 1), pixel(image, x + 1, y + 1), right), below);
}

} // namespace Workbench
