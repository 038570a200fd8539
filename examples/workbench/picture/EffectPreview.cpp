// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "picture/EffectPreview.h"

#include <QtGui/QPainter>

namespace Workbench {

QImage EffectPreview::draw(const PictureEffect &effect, QSize size)
{
    QImage changed = effect.apply(sample(size));
    if (changed.width() > size.width() || changed.height() > size.height())
        changed = changed.scaled(size, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    QImage preview(size, QImage::Format_ARGB32_Premultiplied);
    preview.fill(Qt::transparent);
    const QSize room = (size - changed.size()) / 2;
    QPainter(&preview).drawImage(room.width(), room.height(), changed);
    return preview;
}

QImage EffectPreview::sample(QSize size)
{
    QImage sample(size, QImage::Format_RGB32);
    QPainter painter(&sample);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(size.width() / 48.0, size.height() / 32.0);
    painter.setPen(Qt::NoPen);
    QLinearGradient sky(0, 0, 0, 22);
    sky.setColorAt(0, QColor(64, 128, 200));
    sky.setColorAt(1, QColor(250, 205, 140));
    painter.fillRect(QRectF(0, 0, 48, 22), sky);
    QLinearGradient lake(0, 22, 0, 32);
    lake.setColorAt(0, QColor(110, 160, 190));
    lake.setColorAt(1, QColor(20, 60, 105));
    painter.fillRect(QRectF(0, 22, 48, 10), lake);
    painter.setBrush(QColor(255, 240, 190));
    painter.drawEllipse(QPointF(36, 10), 5, 5);
    painter.setBrush(QColor(95, 110, 140));
    painter.drawPolygon(QPolygonF({{14, 22}, {26, 9}, {38, 22}}));
    painter.setBrush(QColor(70, 130, 70));
    painter.drawPolygon(QPolygonF({{0, 17}, {12, 17}, {25, 23}, {0, 27}}));
    painter.setBrush(QColor(250, 245, 230));
    painter.drawRect(QRectF(4, 13, 9, 8));
    painter.setBrush(QColor(200, 60, 45));
    painter.drawPolygon(QPolygonF({{2.5, 13.5}, {8.5, 7}, {14.5, 13.5}}));
    painter.setBrush(QColor(60, 60, 80));
    painter.drawRect(QRectF(7, 16, 3, 5));
    return sample;
}

} // namespace Workbench
