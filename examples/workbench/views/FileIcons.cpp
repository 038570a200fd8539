// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "views/FileIcons.h"

#include "Icons.h"
#include "files/FileCommands.h"
#include "picture/PictureFormats.h"

#include <QtCore/QFileInfo>
#include <QtCore/QMimeDatabase>

namespace Workbench {

FileIcons::FileIcons(QObject *parent)
    : QObject(parent)
    , m_folder(Workbench::icon(QLatin1StringView("folder")))
    , m_other(Workbench::icon(QLatin1StringView("other-file")))
{
    const QIcon text = Workbench::icon(QLatin1StringView("text-file"));
    const QIcon picture = Workbench::icon(QLatin1StringView("picture-file"));
    const QStringList suffixes = FileCommands::suffixes();
    for (const QString &suffix : suffixes)
        m_icons.insert(suffix, PictureFormats::canRead(u'.' + suffix) ? picture : text);
}

QIcon FileIcons::icon(IconType type) const
{
    return type == File ? m_other : m_folder;
}

QIcon FileIcons::icon(const QFileInfo &info) const
{
    return info.isDir() ? m_folder : m_icons.value(info.suffix().toLower(), m_other);
}

QString FileIcons::type(const QFileInfo &info) const
{
    if (!info.isFile())
        return QAbstractFileIconProvider::type(info);
    QString &type = m_types[info.suffix()];
    if (type.isEmpty()) {
        // The first file's own name, CMakeLists.txt say, would speak for all that have its suffix.
        const QMimeType known = QMimeDatabase().mimeTypeForFile(
            QStringLiteral("x.") + info.suffix(), QMimeDatabase::MatchExtension);
        type = known.isDefault() ? tr("File") : known.comment();
    }
    return type;
}

} // namespace Workbench
