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
    const Pixels::Lines<const QRgb> lines(soft);
    return Pixels::recolouredAt(image, [=](QRgb pixel, QPoint place) {
        return Pixels::mixed(pixel, lines[place.y()][place.x()], -amount);
    });
}

static QImage glowing(const QImage &image)
{
    const QImage soft = Pixels::blurred(image, radius(image, 0.04));
    const Pixels::Lines<const QRgb> lines(soft);
    const auto screen = [](int a, int b) { return 255 - (255 - a) * (255 - b) / 255; };
    return Pixels::recolouredAt(image, [=](QRgb pixel, QPoint place) {
        const QRgb light = lines[place.y()][place.x()];
        return Pixels::mixed(pixel,
                             qRgb(screen(qRed(pixel), qRed(light)),
                                  screen(qGreen(pixel), qGreen(light)),
                                  screen(qBlue(pixel), qBlue(light))),
                             0.6);
    });
}

static QRgb middleOf(QRgb a, QRgb b, QRgb c)
{
    return std::max(std::min(a, b), std::min(std::max(a, b), c));
}

// Each pixel becomes the one of middle lightness around it.
static QImage despeckled(const QImage &image)
{
    const QImage light = Pixels::withLightness(image);
    if (light.isNull())
        return {};
    const Pixels::Lines<const QRgb> lines(light);
    return Pixels::recolouredAt(image, [=](QRgb, QPoint place) {
        // The lightness comes first in the number. The middle one of nine is among the highest of
        // the lowest, the middle of the middle and the lowest of the highest of each column.
        QRgb lowest = 0;
        std::array<QRgb, 3> middle;
        QRgb highest = ~QRgb(0);
        for (int i = 0; i < 3; ++i) {
            const int x = place.x() + i;
            const QRgb a = lines[place.y()][x];
            const QRgb b = lines[place.y() + 1][x];
            const QRgb c = lines[place.y() + 2][x];
            lowest = std::max(lowest, std::min(a, std::min(b, c)));
            middle[size_t(i)] = middleOf(a, b, c);
            highest = std::min(highest, std::max(a, std::max(b, c)));
        }
        return middleOf(lowest, middleOf(middle[0], middle[1], middle[2]), highest);
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
