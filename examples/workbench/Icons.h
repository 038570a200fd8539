// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGui/QIcon>

namespace Workbench {

//! The drawing icons/\a name.svg.
inline QIcon icon(QLatin1StringView name)
{
    return QIcon(QStringLiteral(":/workbench/icons/%1.svg").arg(name));
}

} // namespace Workbench
