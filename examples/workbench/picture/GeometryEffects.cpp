// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "picture/GeometryEffects.h"

#include "picture/Pixels.h"

#include <QtCore/QtMath>
#include <QtGui/QPainter>

#include <algorithm>
#include <cmath>

namespace Workbench {

static QImage resized(const QImage &image, QSize size)
{
    return image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

static QImage squared(const QImage &image)
{
    QRect square(QPoint(), QSize(1, 1) * std::min(image.width(), image.height()));
    square.moveTo((image.width() - square.width()) / 2, (image.height() - square.height()) / 2);
    return image.copy(square);
}

static QImage bordered(const QImage &image)
{
    const QImage source = Pixels::straight(image);
    const int border = std::max(1, std::min(image.width(), image.height()) / 16);
    QImage result = Pixels::blank(source, source.size().grownBy({border, border, border, border}));
    if (result.isNull())
        return result;
    result.fill(Qt::white);
    QPainter painter(&result);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.drawImage(border, border, source);
    return result;
}

static QImage symmetric(const QImage &image)
{
    const int last = image.width() - 1;
    return Pixels::warped(image, [last](QPointF place) {
        return QPointF(std::min(place.x(), last - place.x()), place.y());
    });
}

static QImage waved(const QImage &image)
{
    const qreal height = image.width() / 30.0;
    const qreal length = std::max(image.height() / 3.0, 4.0);
    QList<qreal> moves(image.height());
    for (qsizetype y = 0; y < moves.size(); ++y)
        moves[y] = height * std::sin(2 * M_PI * qreal(y) / length);
    return Pixels::warped(image, [&moves = std::as_const(moves)](QPointF place) {
        return place + QPointF(moves[qsizetype(place.y())], 0);
    });
}

static QImage swirled(const QImage &image)
{
    const QPointF centre((image.width() - 1) / 2.0, (image.height() - 1) / 2.0);
    const qreal reach = std::min(image.width(), image.height()) / 2.0;
    return Pixels::warped(image, [=](QPointF place) {
        const QPointF arm = place - centre;
        const qreal distance = std::sqrt(QPointF::dotProduct(arm, arm));
        if (distance >= reach)
            return place;
        const qreal angle = 3 * (1 - distance / reach) * (1 - distance / reach);
        return centre
            + QPointF(arm.x() * std::cos(angle) - arm.y() * std::sin(angle),
                      arm.x() * std::sin(angle) + arm.y() * std::cos(angle));
    });
}

PictureEffectGroup GeometryEffects::group()
{
    return {
        tr("Geometry"),
        {{tr("Half Size"), tr("Make the picture half as wide and half as high"),
          [](const QImage &image) {
              return resized(image, {(image.width() + 1) / 2, (image.height() + 1) / 2});
          }},
         {tr("Double Size"), tr("Make the picture twice as wide and twice as high"),
          [](const QImage &image) { return resized(image, image.size() * 2); }},
         {tr("Square"), tr("Keep the largest square in the middle"), &squared},
         {tr("Border"), tr("Put a white border around the picture"), &bordered},
         {tr("Symmetry"), tr("Show the left half on both sides"), &symmetric},
         {tr("Wave"), tr("Move the lines to the left and to the right"), &waved},
         {tr("Swirl"), tr("Turn the middle of the picture"), &swirled}},
    };
}

} // namespace Workbench
