// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "AddressFolder.h"

#include <QtCore/QDirListing>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>

// Elsewhere every name can be decoded, and what is hidden is not told by its name alone.
#if defined(Q_OS_UNIX) && !defined(Q_OS_DARWIN)
#    define NORVANE_READS_FOLDERS
#    include <dirent.h>
#endif

namespace Norvane::AddressFolder {

namespace {

#ifdef NORVANE_READS_FOLDERS
// QDir leaves out not only the names that it cannot decode, but all that come after one.
Names read(const QString &folder, Wanted wanted)
{
    Names names;
    DIR *stream = opendir(QFile::encodeName(folder).constData());
    if (!stream)
        return names;
    while (const dirent *entry = readdir(stream)) {
        const QByteArrayView raw(entry->d_name);
        if (raw.startsWith('.') || (entry->d_type == DT_REG && wanted == Wanted::Folders))
            continue;
        const QString name = QString::fromUtf8(raw);
        if (name.contains(QChar::ReplacementCharacter) && name.toUtf8() != raw) {
            names.complete = false;
            continue;
        }
        bool isFolder = entry->d_type == DT_DIR;
        bool isFile = entry->d_type == DT_REG;
        if (entry->d_type == DT_LNK || entry->d_type == DT_UNKNOWN) {
            const QFileInfo info(folder + u'/' + name);
            isFolder = info.isDir();
            isFile = info.isFile();
        }
        if (isFolder)
            names.folders << name;
        else if (isFile && wanted == Wanted::FilesAndFolders)
            names.files << name;
    }
    closedir(stream);
    return names;
}
#endif

// What Qt brings as a folder, its resources for instance, nobody else can read.
Names list(const QString &folder, Wanted wanted)
{
    using Flag = QDirListing::IteratorFlag;
    Names names;
    QDirListing::IteratorFlags flags = Flag::ResolveSymlinks | Flag::ExcludeSpecial;
    flags.setFlag(Flag::DirsOnly, wanted == Wanted::Folders);
    for (const auto &entry : QDirListing(folder, flags))
        (entry.isDir() ? names.folders : names.files) << entry.fileName();
    return names;
}

} // namespace

Names names(const QString &folder, Wanted wanted)
{
#ifdef NORVANE_READS_FOLDERS
    if (const QFileInfo info(folder); info.isNativePath())
        return read(info.filePath(), wanted);
#endif
    return list(folder, wanted);
}

} // namespace Norvane::AddressFolder
