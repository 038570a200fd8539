// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QString>

namespace Norvane::StyleSheet {

//! The text of the sheet compiled in under \a path, or nothing, silently, if there is none.
QString read(const QString &path);

} // namespace Norvane::StyleSheet
