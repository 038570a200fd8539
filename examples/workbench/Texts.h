// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QString>
#include <QtGui/QGuiApplication>

namespace Workbench {

//! The text as it reads alone: from right to left, "640 × 400 pixels" would begin at its end.
inline QString isolated(const QString &text)
{
    return QGuiApplication::isRightToLeft() ? QChar(0x2068) + text + QChar(0x2069) : text;
}

} // namespace Workbench
