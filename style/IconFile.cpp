// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "IconFile.h"

#include <QtGui/QPixmapCache>

namespace Norvane {

QPixmap IconFile::pixmap(const QString &file, QSize size, qreal devicePixelRatio, QIcon::Mode mode)
{
    const QString key = QStringLiteral("%1-%2x%3-%4-%5")
                            .arg(file)
                            .arg(size.width())
                            .arg(size.height())
                            .arg(devicePixelRatio)
                            .arg(mode);
    QPixmap pixmap;
    if (!QPixmapCache::find(key, &pixmap)) {
        pixmap = QIcon(file).pixmap(size, devicePixelRatio, mode, QIcon::Off);
        QPixmapCache::insert(key, pixmap);
    }
    return pixmap;
}

} // namespace Norvane
