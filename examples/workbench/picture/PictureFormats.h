// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtCore/QStringList>

namespace Workbench {

/*!
    The picture formats that this machine's plugins know.
*/
class PictureFormats
{
public:
    //! Whether the file's suffix is that of a picture.
    static bool canRead(const QString &path);
    //! The format in which a file of this suffix is written, or nothing.
    static QByteArray writeFormat(const QString &path);

    //! Whether files of \a format can be transparent.
    static bool hasTransparency(const QByteArray &format);

    //! As "*.png", for file dialogs.
    static QStringList readPatterns();
    static QStringList writePatterns();
};

} // namespace Workbench
