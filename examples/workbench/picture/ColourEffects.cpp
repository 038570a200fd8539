// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "picture/ColourEffects.h"

#include "picture/Pixels.h"

#include <array>

namespace Workbench {

static QImage saturated(const QImage &image, qreal factor)
{
    return Pixels::recoloured(image, [factor](QRgb pixel) {
        const int grey = qGray(pixel);
        return qRgb(Pixels::limited(grey + (qRed(pixel) - grey) * factor),
                    Pixels::limited(grey + (qGreen(pixel) - grey) * factor),
                    Pixels::limited(grey + (qBlue(pixel) - grey) * factor));
    });
}

static QImage balanced(const QImage &image, int red, int blue)
{
    return Pixels::recoloured(image, [=](QRgb pixel) {
        return qRgb(Pixels::limited(qRed(pixel) + red), qGreen(pixel),
                    Pixels::limited(qBlue(pixel) + blue));
    });
}

// From \a dark over grey tones to \a light.
static QImage tinted(const QImage &image, QRgb dark, QRgb light)
{
    std::array<QRgb, 256> tones;
    for (int i = 0; i < 256; ++i)
        tones[size_t(i)] = Pixels::mixed(dark, light, i / 255.0);
    return Pixels::recoloured(image, [&](QRgb pixel) { return tones[size_t(qGray(pixel))]; });
}

PictureEffectGroup ColourEffects::group()
{
    return {
        tr("Colour"),
        {{tr("Grey"), tr("Take away all colour"),
          [](const QImage &image) { return saturated(image, 0); }},
         {tr("Sepia"), tr("Show the picture in the browns of an old photograph"),
          [](const QImage &image) { return tinted(image, qRgb(38, 22, 8), qRgb(255, 240, 205)); }},
         {tr("Blueprint"), tr("Show the picture in white on blue"),
          [](const QImage &image) { return tinted(image, qRgb(0, 40, 110), qRgb(235, 245, 255)); }},
         {tr("Vivid"), tr("Make the colours stronger"),
          [](const QImage &image) { return saturated(image, 1.7); }},
         {tr("Muted"), tr("Make the colours weaker"),
          [](const QImage &image) { return saturated(image, 0.5); }},
         {tr("Warm"), tr("Give the picture the light of the evening"),
          [](const QImage &image) { return balanced(image, 24, -24); }},
         {tr("Cool"), tr("Give the picture the light of a winter morning"),
          [](const QImage &image) { return balanced(image, -24, 24); }}},
    };
}

} // namespace Workbench
