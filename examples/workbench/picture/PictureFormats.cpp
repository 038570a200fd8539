// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "picture/PictureFormats.h"

#include <QtCore/QFileInfo>
#include <QtGui/QImageReader>
#include <QtGui/QImageWriter>

namespace Workbench {

static QByteArray suffixOf(const QString &path)
{
    return QFileInfo(path).suffix().toLower().toLatin1();
}

static QStringList patterns(const QList<QByteArray> &formats)
{
    QStringList patterns;
    for (const QByteArray &format : formats)
        patterns << QStringLiteral("*.") + QString::fromLatin1(format);
    return patterns;
}

bool PictureFormats::canRead(const QString &path)
{
    return QImageReader::supportedImageFormats().contains(suffixOf(path));
}

QByteArray PictureFormats::writeFormat(const QString &path)
{
    const QByteArray suffix = suffixOf(path);
    return QImageWriter::supportedImageFormats().contains(suffix) ? suffix : QByteArray();
}

bool PictureFormats::hasTransparency(const QByteArray &format)
{
    static const QList<QByteArray> opaque{"bmp", "jpeg", "jpg", "pbm", "pgm", "ppm", "xbm"};
    return !opaque.contains(format);
}

QStringList PictureFormats::readPatterns()
{
    return patterns(QImageReader::supportedImageFormats());
}

QStringList PictureFormats::writePatterns()
{
    return patterns(QImageWriter::supportedImageFormats());
}

} // namespace Workbench
