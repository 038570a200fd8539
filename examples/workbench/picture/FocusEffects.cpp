// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "picture/FocusEffects.h"

#include "picture/Pixels.h"

#include <algorithm>
#include <array>

namespace Workbench {

// The part of the shorter side that is \a share of it, so that pictures of all sizes look alike.
static int radius(const QImage &image, qreal share)
{
    return std::max(1, qRound(std::min(image.width(), image.height()) * share));
}

// Adds to each pixel \a amount times what sets it apart from its surroundings.
static QImage sharpened(const QImage &image, qreal amount)
{
    const QImage soft = Pixels::blurred(image, 1);
    return Pixels::recolouredAt(image, [&](QRgb pixel, QPoint place) {
        return Pixels::mixed(
            pixel, reinterpret_cast<const QRgb *>(soft.constScanLine(place.y()))[place.x()],
            -amount);
    });
}

static QImage glowing(const QImage &image)
{
    const QImage soft = Pixels::blurred(image, radius(image, 0.04));
    const auto screen = [](int a, int b) { return 255 - (255 - a) * (255 - b) / 255; };
    return Pixels::recolouredAt(image, [&](QRgb pixel, QPoint place) {
        const QRgb light = reinterpret_cast<const QRgb *>(soft.constScanLine(place.y()))[place.x()];
        return Pixels::mixed(pixel,
                             qRgb(screen(qRed(pixel), qRed(light)),
                                  screen(qGreen(pixel), qGreen(light)),
                                  screen(qBlue(pixel), qBlue(light))),
                             0.6);
    });
}

// Each pixel becomes the one of middle lightness around it.
static QImage despeckled(const QImage &image)
{
    const QImage source = Pixels::straight(image);
    return Pixels::recolouredAt(source, [&](QRgb, QPoint place) {
        std::array<QRgb, 9> around;
        auto next = around.begin();
        for (int y = place.y() - 1; y <= place.y() + 1; ++y) {
            const auto *line = reinterpret_cast<const QRgb *>(
                source.constScanLine(qBound(0, y, source.height() - 1)));
            for (int x = place.x() - 1; x <= place.x() + 1; ++x)
                *next++ = line[qBound(0, x, source.width() - 1)];
        }
        std::nth_element(around.begin(), around.begin() + 4, around.end(),
                         [](QRgb a, QRgb b) { return qGray(a) < qGray(b); });
        return around[4];
    });
}

PictureEffectGroup FocusEffects::group()
{
    return {
        tr("Blur and Sharpen"),
        {{tr("Soften"), tr("Blur the picture a little"),
          [](const QImage &image) { return Pixels::blurred(image, radius(image, 0.005)); }},
         {tr("Blur"), tr("Blur the picture"),
          [](const QImage &image) { return Pixels::blurred(image, radius(image, 0.05)); }},
         {tr("Motion"), tr("Blur the picture as if it moved to the side"),
          [](const QImage &image) {
              return Pixels::averaged(image, QSize(radius(image, 0.05), 0));
          }},
         {tr("Glow"), tr("Let what is light shine over its surroundings"), &glowing},
         {tr("Despeckle"), tr("Take away single spots"), &despeckled},
         {tr("Sharpen"), tr("Make edges clearer"),
          [](const QImage &image) { return sharpened(image, 0.7); }},
         {tr("Crisp"), tr("Make edges much clearer"),
          [](const QImage &image) { return sharpened(image, 1.8); }}},
    };
}

} // namespace Workbench
