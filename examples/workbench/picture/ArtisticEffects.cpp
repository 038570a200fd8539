// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "picture/ArtisticEffects.h"

#include "picture/Pixels.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace Workbench {

// Each pixel becomes the grey that is made of the three above it, beside it and below it.
template<typename Grey>
static QImage greyed(const QImage &image, Grey grey)
{
    const QImage light = Pixels::withLightness(image);
    if (light.isNull())
        return {};
    const Pixels::Lines<const QRgb> lines(light);
    return Pixels::recolouredAt(image, [=](QRgb, QPoint place) {
        const auto at = [=](int dy) { return lines[place.y() + dy] + place.x(); };
        const int level = Pixels::limited(grey(at(0), at(1), at(2)));
        return qRgb(level, level, level);
    });
}

static QImage embossed(const QImage &image)
{
    return greyed(image, [](const QRgb *above, const QRgb *, const QRgb *below) {
        return 128 + qAlpha(below[2]) - qAlpha(above[0]);
    });
}

static QImage drawn(const QImage &image)
{
    return greyed(image, [](const QRgb *above, const QRgb *beside, const QRgb *below) {
        const int across = qAlpha(above[2]) + 2 * qAlpha(beside[2]) + qAlpha(below[2])
            - qAlpha(above[0]) - 2 * qAlpha(beside[0]) - qAlpha(below[0]);
        const int down = qAlpha(below[0]) + 2 * qAlpha(below[1]) + qAlpha(below[2])
            - qAlpha(above[0]) - 2 * qAlpha(above[1]) - qAlpha(above[2]);
        return 255 - std::sqrt(across * across + down * down);
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

// How many pixels there are, and what their colours add up to: 16 bits each in one number.
static quint64 counted(QRgb pixel)
{
    return quint64(1) << 48 | quint64(qRed(pixel)) << 32 | quint64(qGreen(pixel)) << 16
        | quint64(qBlue(pixel));
}

// Each pixel becomes the average of those around it that are of the most common lightness.
static QImage painted(const QImage &image)
{
    constexpr int reach = 3;
    const QImage light = Pixels::withLightness(image);
    if (light.isNull())
        return {};
    const Pixels::Lines<const QRgb> from(light);
    QImage result = Pixels::straight(image);
    const Pixels::Lines<QRgb> to(result);
    const int width = image.width();
    const int height = image.height();
    Pixels::inBands(height, [=](int first, int end) {
        for (int y = first; y < end; ++y) {
            const int top = std::max(0, y - reach);
            const int bottom = std::min(height - 1, y + reach);
            std::array<quint64, 16> sums{};
            // From one place to the next only the columns at both ends change.
            const auto add = [&](int x, int sign) {
                if (x < 0 || x >= width)
                    return;
                for (int row = top; row <= bottom; ++row) {
                    const QRgb pixel = from[row + 1][x + 1];
                    sums[pixel >> 28] += quint64(sign) * counted(pixel);
                }
            };
            for (int x = 0; x < reach; ++x)
                add(x, 1);
            for (int x = 0; x < width; ++x) {
                add(x + reach, 1);
                add(x - reach - 1, -1);
                quint64 most = 0;
                for (const quint64 sum : sums)
                    most = (sum >> 48) > (most >> 48) ? sum : most;
                const auto average = [count = uint(most >> 48)](quint64 sum) {
                    return int(uint(sum & 0xffff) / count);
                };
                to[y][x] = (to[y][x] & ~RGB_MASK)
                    | (qRgb(average(most >> 32), average(most >> 16), average(most)) & RGB_MASK);
            }
        }
    });
    return result;
}

static QImage vignetted(const QImage &image)
{
    const QPointF centre((image.width() - 1) / 2.0, (image.height() - 1) / 2.0);
    const qreal corner = std::max(1.0, QPointF::dotProduct(centre, centre));
    return Pixels::recolouredAt(image, [=](QRgb pixel, QPoint place) {
        const QPointF arm = place - centre;
        return Pixels::mixed(pixel, qRgb(0, 0, 0), 0.85 * QPointF::dotProduct(arm, arm) / corner);
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
