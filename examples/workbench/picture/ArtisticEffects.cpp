// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "picture/ArtisticEffects.h"

#include "picture/Pixels.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace Workbench {

static QImage embossed(const QImage &image)
{
    const QImage source = Pixels::straight(image);
    return Pixels::recolouredAt(source, [&](QRgb, QPoint place) {
        const int slope = Pixels::lightness(source, place.x() + 1, place.y() + 1)
            - Pixels::lightness(source, place.x() - 1, place.y() - 1);
        const int grey = Pixels::limited(128 + slope);
        return qRgb(grey, grey, grey);
    });
}

static QImage drawn(const QImage &image)
{
    const QImage source = Pixels::straight(image);
    return Pixels::recolouredAt(source, [&](QRgb, QPoint place) {
        const auto light = [&](int x, int y) {
            return Pixels::lightness(source, place.x() + x, place.y() + y);
        };
        const int across = light(1, -1) + 2 * light(1, 0) + light(1, 1) - light(-1, -1)
            - 2 * light(-1, 0) - light(-1, 1);
        const int down = light(-1, 1) + 2 * light(0, 1) + light(1, 1) - light(-1, -1)
            - 2 * light(0, -1) - light(1, -1);
        const int grey = Pixels::limited(255 - std::hypot(across, down));
        return qRgb(grey, grey, grey);
    });
}

static QImage tiled(const QImage &image)
{
    const int side = std::max(2, std::min(image.width(), image.height()) / 16);
    QImage result = Pixels::straight(image);
    for (int top = 0; top < image.height(); top += side) {
        for (int left = 0; left < image.width(); left += side) {
            const QRect tile = QRect(left, top, side, side) & image.rect();
            const QImage average =
                Pixels::premultiplied(image.copy(tile))
                    .scaled(1, 1, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
            const QRgb colour = average.pixel(0, 0);
            for (int y = tile.top(); y <= tile.bottom(); ++y) {
                auto *line = reinterpret_cast<QRgb *>(result.scanLine(y));
                std::fill(line + tile.left(), line + tile.right() + 1, colour);
            }
        }
    }
    return result;
}

static QImage posterised(const QImage &image)
{
    const auto level = [](int value) { return qRound(value / 85.0) * 85; };
    return Pixels::recoloured(image, [&](QRgb pixel) {
        return qRgb(level(qRed(pixel)), level(qGreen(pixel)), level(qBlue(pixel)));
    });
}

// Each pixel becomes the average of those around it that are of the most common lightness.
static QImage painted(const QImage &image)
{
    constexpr int reach = 3;
    struct Sum
    {
        int count = 0;
        int red = 0;
        int green = 0;
        int blue = 0;
    };
    const QImage source = Pixels::straight(image);
    return Pixels::recolouredAt(source, [&](QRgb, QPoint place) {
        std::array<Sum, 16> sums;
        for (int y = std::max(0, place.y() - reach);
             y <= std::min(source.height() - 1, place.y() + reach); ++y) {
            const auto *line = reinterpret_cast<const QRgb *>(source.constScanLine(y));
            for (int x = std::max(0, place.x() - reach);
                 x <= std::min(source.width() - 1, place.x() + reach); ++x) {
                Sum &sum = sums[size_t(qGray(line[x]) / 16)];
                ++sum.count;
                sum.red += qRed(line[x]);
                sum.green += qGreen(line[x]);
                sum.blue += qBlue(line[x]);
            }
        }
        const Sum &most =
            *std::max_element(sums.cbegin(), sums.cend(),
                              [](const Sum &a, const Sum &b) { return a.count < b.count; });
        return qRgb(most.red / most.count, most.green / most.count, most.blue / most.count);
    });
}

static QImage vignetted(const QImage &image)
{
    const QPointF centre((image.width() - 1) / 2.0, (image.height() - 1) / 2.0);
    const qreal corner = std::max(1.0, std::hypot(centre.x(), centre.y()));
    return Pixels::recolouredAt(image, [=](QRgb pixel, QPoint place) {
        const QPointF arm = place - centre;
        const qreal distance = std::hypot(arm.x(), arm.y()) / corner;
        return Pixels::mixed(pixel, qRgb(0, 0, 0), 0.85 * distance * distance);
    });
}

// The same picture gets the same grain each time.
static QImage grainy(const QImage &image)
{
    return Pixels::recolouredAt(image, [](QRgb pixel, QPoint place) {
        quint32 noise = quint32(place.x()) * 374761393u + quint32(place.y()) * 668265263u;
        noise = (noise ^ (noise >> 13)) * 1274126177u;
        const int change = int((noise ^ (noise >> 16)) % 61) - 30;
        return qRgb(Pixels::limited(qRed(pixel) + change), Pixels::limited(qGreen(pixel) + change),
                    Pixels::limited(qBlue(pixel) + change));
    });
}

PictureEffectGroup ArtisticEffects::group()
{
    return {
        tr("Artistic"),
        {{tr("Pencil"), tr("Draw the outlines in pencil"), &drawn},
         {tr("Oil Paint"), tr("Paint the picture with a small brush"), &painted},
         {tr("Poster"), tr("Print the picture with few colours"), &posterised},
         {tr("Mosaic"), tr("Lay the picture out in square tiles"), &tiled},
         {tr("Emboss"), tr("Press the picture into metal"), &embossed},
         {tr("Vignette"), tr("Make the picture darker towards the corners"), &vignetted},
         {tr("Grain"), tr("Scatter the grain of a film over the picture"), &grainy}},
    };
}

} // namespace Workbench
