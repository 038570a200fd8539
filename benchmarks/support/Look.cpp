// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "Look.h"

#include <QtGui/QFontDatabase>
#include <QtGui/QPainter>
#include <QtWidgets/QApplication>
#include <QtWidgets/QStyleFactory>

void Look::apply()
{
    QFontDatabase::addApplicationFont(QStringLiteral(":/benchmark/DejaVuSans.ttf"));
    // The sheets ask for a font that most machines lack.
    QFont::insertSubstitution(QStringLiteral("微软雅黑"), QStringLiteral("DejaVu Sans"));
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(12);
    QApplication::setFont(font);
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
}

QIcon Look::createIcon(int number)
{
    QIcon icon;
    for (const int size : {16, 24}) {
        QPixmap pixmap(size, size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor::fromHsv(number * 37 % 360, 200, 180));
        painter.drawRect(number % 3, 2, size - 6, size - 4);
        painter.end();
        icon.addPixmap(pixmap);
    }
    return icon;
}
