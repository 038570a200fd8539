// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "text/TextOptions.h"

#include <QtGui/QFontDatabase>
#include <QtGui/QFontInfo>

namespace Workbench {

TextOptions::TextOptions(QObject *parent)
    : QObject(parent)
    , m_font(QFontDatabase::systemFont(QFontDatabase::FixedFont))
{
    if (m_font.pointSize() <= 0)
        m_font.setPointSize(QFontInfo(m_font).pointSize());
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

} // namespace Workbench
