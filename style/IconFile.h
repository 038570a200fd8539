// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGui/QIcon>

namespace Norvane::IconFile {

/*!
    What the icon file \a file shows in \a size, off and in \a mode. An icon renders its file anew
    for every object that holds it, so the pixmaps are kept by name.
*/
QPixmap pixmap(const QString &file, QSize size, qreal devicePixelRatio, QIcon::Mode mode);

} // namespace Norvane::IconFile
