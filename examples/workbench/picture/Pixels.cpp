// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "picture/Pixels.h"

#include <QtCore/QThreadPool>
#include <QtGui/QColorSpace>

#include <algorithm>
#include <cmath>
#include <vector>

namespace Workbench {

// Averages columns of \a count bytes, which lie side by side, and \a stride bytes below each other.
template<typename Columns>
static void average(const uchar *from, uchar *to, int count, qsizetype stride, Columns columns,
                    int radius)
{
    std::vector<int> sums(size_t{columns});
    const auto add = [&](int index, int sign) {
        const uchar *bytes = from + qBound(0, index, count - 1) * stride;
        for (size_t i = 0; i < columns; ++i)
            sums[i] += sign * bytes[i];
    };
    const auto width = float(2 * radius + 1);
    const float part = 1 / width;
    for (int i = -radius; i <= radius; ++i)
        add(i, 1);
    for (int i = 0; i < count; ++i) {
        uchar *bytes = to + i * stride;
        for (size_t column = 0; column < columns; ++column)
            bytes[column] = uchar(int((float(sums[column]) + width / 2) * part));
        add(i + radius + 1, 1);
        add(i - radius, -1);
    }
}

// The colour that lies \a share parts of 256 of the way; two channels at a time.
static QRgb blended(QRgb first, QRgb second, uint share)
{
    constexpr uint even = 0x00ff00ff;
    const auto blend = [share](uint a, uint b) {
        return (a & even) * (256 - share) + (b & even) * share + 0x00800080;
    };
    return (blend(first, second) >> 8 & even) | (blend(first >> 8, second >> 8) & ~even);
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

QImage Pixels::withLightness(const QImage &image)
{
    const QImage source = straight(image);
    QImage result = blank(source, source.size().grownBy({1, 1, 1, 1}));
    const Lines<const QRgb> from(source);
    const Lines<QRgb> to(result);
    inBands(result.height(), [&, width = source.width()](int first, int end) {
        for (int y = first; y < end; ++y) {
            const QRgb *line = from[qBound(0, y - 1, source.height() - 1)];
            QRgb *next = to[y];
            for (int x = -1; x <= width; ++x) {
                const QRgb pixel = line[qBound(0, x, width - 1)];
                *next++ = uint(qGray(pixel)) << 24 | (pixel & RGB_MASK);
            }
        }
    });
    return result;
}

void Pixels::inBands(int lines, const std::function<void(int, int)> &work)
{
    constexpr int band = 128;
    if (lines <= band) {
        work(0, lines);
        return;
    }
    QThreadPool threads;
    for (int first = 0; first < lines; first += band)
        threads.start([&, first] { work(first, std::min(first + band, lines)); });
    threads.waitForDone();
}

QImage Pixels::averaged(const QImage &image, QSize radius)
{
    const QImage source = premultiplied(image);
    QImage across = blank(source, source.size());
    QImage result = blank(source, source.size());
    const Lines<const uchar> from(source);
    const Lines<uchar> between(across);
    const Lines<uchar> to(result);
    constexpr std::integral_constant<size_t, sizeof(QRgb)> pixel;
    inBands(source.height(), [&](int first, int end) {
        for (int y = first; y < end; ++y)
            average(from[y], between[y], source.width(), pixel, pixel, radius.width());
    });
    inBands(source.width(), [&](int first, int end) {
        average(between[0] + first * pixel, to[0] + first * pixel, source.height(), to.stride(),
                size_t(end - first) * pixel, radius.height());
    });
    return straight(result);
}

QImage Pixels::blurred(const QImage &image, int radius)
{
    QImage result = image;
    for (int i = 0; i < 3; ++i)
        result = averaged(result, QSize(radius, radius));
    return result;
}

QRgb Pixels::between(const Lines<const QRgb> &lines, QSize size, QPointF place)
{
    const int x = int(std::floor(place.x()));
    const int y = int(std::floor(place.y()));
    const auto right = uint((place.x() - x) * 256);
    const auto below = uint((place.y() - y) * 256);
    const int left = qBound(0, x, size.width() - 1);
    const int next = qBound(0, x + 1, size.width() - 1);
    const QRgb *upper = lines[qBound(0, y, size.height() - 1)];
    const QRgb *lower = lines[qBound(0, y + 1, size.height() - 1)];
    return blended(blended(upper[left], upper[next], right),
                   blended(lower[left], lower[next], right), below);
}

} // namespace Workbench
