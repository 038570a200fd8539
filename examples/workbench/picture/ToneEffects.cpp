// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "picture/ToneEffects.h"

#include "picture/Pixels.h"

#include <array>
#include <cmath>

namespace Workbench {

// Changes red, green and blue alike; \a curve gets and returns values from 0 to 255.
template<typename Curve>
static QImage toned(const QImage &image, Curve curve)
{
    std::array<int, 256> values;
    for (int i = 0; i < 256; ++i)
        values[size_t(i)] = Pixels::limited(curve(i));
    return Pixels::recoloured(image, [&](QRgb pixel) {
        return qRgb(values[size_t(qRed(pixel))], values[size_t(qGreen(pixel))],
                    values[size_t(qBlue(pixel))]);
    });
}

static QImage inContrast(const QImage &image, qreal factor)
{
    return toned(image, [factor](int value) { return (value - 127.5) * factor + 127.5; });
}

static QImage overFullRange(const QImage &image)
{
    int darkest = 255;
    int lightest = 0;
    const QImage straight = Pixels::straight(image);
    for (int y = 0; y < straight.height(); ++y) {
        const auto *line = reinterpret_cast<const QRgb *>(straight.constScanLine(y));
        for (int x = 0; x < straight.width(); ++x) {
            for (const int value : {qRed(line[x]), qGreen(line[x]), qBlue(line[x])}) {
                darkest = std::min(darkest, value);
                lightest = std::max(lightest, value);
            }
        }
    }
    const int range = std::max(1, lightest - darkest);
    return toned(straight, [=](int value) { return 255.0 * (value - darkest) / range; });
}

PictureEffectGroup ToneEffects::group()
{
    return {
        tr("Tone"),
        {{tr("Brighter"), tr("Make the picture brighter"),
          [](const QImage &image) { return toned(image, [](int value) { return value + 32; }); }},
         {tr("Darker"), tr("Make the picture darker"),
          [](const QImage &image) { return toned(image, [](int value) { return value - 32; }); }},
         {tr("Contrast"), tr("Make light places lighter and dark ones darker"),
          [](const QImage &image) { return inContrast(image, 1.5); }},
         {tr("Flat"), tr("Bring light and dark places nearer to each other"),
          [](const QImage &image) { return inContrast(image, 0.6); }},
         {tr("Full Range"), tr("Spread the tones from black to white"), &overFullRange},
         {tr("Shadows"), tr("Show more of what is dark"),
          [](const QImage &image) {
              return toned(image, [](int value) { return 255 * std::pow(value / 255.0, 0.6); });
          }},
         {tr("Negative"), tr("Swap light and dark"),
          [](const QImage &image) { return toned(image, [](int value) { return 255 - value; }); }}},
    };
}

} // namespace Workbench
