// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "Look.h"

#include <QtGui/QFontDatabase>
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
