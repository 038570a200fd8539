// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

//! What stands in a folder of the file system.
namespace Norvane::AddressFolder {

enum class Wanted {
    Folders,
    FilesAndFolders,
};

struct Names
{
    QStringList files;
    QStringList folders;
    bool complete = true; //!< False if there are names that no QString can hold.
};

/*!
    The names in \a folder, in no order, without the hidden ones and without those that no QString
    can hold. A link counts as what it leads to; what is neither file nor folder is left out. A
    folder that does not exist or may not be read has none.
*/
Names names(const QString &folder, Wanted wanted);

} // namespace Norvane::AddressFolder
