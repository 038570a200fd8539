// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "text/TextOptions.h"

#include <QtGui/QFontDatabase>
#include <QtGui/QFontInfo>

#include <algorithm>

namespace Workbench {

TextOptions::TextOptions(QObject *parent)
    : QObject(parent)
    , m_font(defaultFont())
{
}

QFont TextOptions::defaultFont()
{
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    if (font.pointSize() <= 0)
        font.setPointSize(QFontInfo(font).pointSize());
    return font;
}

QFont TextOptions::font() const
{
    return m_font;
}

void TextOptions::setFont(const QFont &font)
{
    if (m_font == font)
        return;
    m_font = font;
    Q_EMIT changed();
}

bool TextOptions::wrap() const
{
    return m_wrap;
}

void TextOptions::setWrap(bool wrap)
{
    if (m_wrap == wrap)
        return;
    m_wrap = wrap;
    Q_EMIT changed();
}

int TextOptions::tabWidth() const
{
    return m_tabWidth;
}

void TextOptions::setTabWidth(int spaces)
{
    const int bounded = std::clamp(spaces, 1, 16);
    if (m_tabWidth == bounded)
        return;
    m_tabWidth = bounded;
    Q_EMIT changed();
}

} // namespace Workbench
