// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>

/*!
    What the address bar knows about paths, without any widget.

    A \e stored path has "/" between its names and none at its end; a bare drive is stored as "C:/".
    The empty path stands for what lies above all: the list of drives, or the folder "/". The style
    tells which of the two; everything else is the same in both, so "C:/Users" has the crumbs
    "C:" and "Users" on every system.
*/
namespace Norvane::AddressPath {

enum class Style {
    DriveLetters, //!< "C:/Users"; a "/" at the start means nothing.
    SingleRoot,   //!< "/home"; a "/" at the start is kept in every prefix.
};

//! The style of the system that the program runs on.
Style nativeStyle();

//! One name of a path, and the path that ends with it.
struct Crumb
{
    QString label;
    QString path;
};

//! The names of the stored \a path in order, without the root; none for the empty path.
QList<Crumb> crumbs(const QString &path, Style style);

//! \a path with "/" only and without those at its end. A lone "/" becomes the empty path.
QString stored(const QString &path);

//! Whether \a path is two characters long and names a drive, which is stored as "C:/".
bool isBareDrive(const QString &path, Style style);

/*!
    What QDir takes for \a path, which may be the edited form with its "\": it ends with "/", so the
    empty path is the folder "/".
*/
QString folder(const QString &path);

/*!
    The names that the crumb of the stored \a path offers, in the order of names: the folders in it
    without the hidden ones, or for the empty path the drives where there are drives. A folder that
    does not exist or may not be read offers none.
*/
QStringList children(const QString &path, Style style);

//! The path of the child \a name of the stored \a path.
QString child(const QString &path, const QString &name, Style style);

//! "C:" for the drive's root folder "C:/".
QString driveName(const QString &root);

/*!
    The edited form of what the user typed: names trimmed, empty ones dropped, "\" between them. A
    name of blanks only was not empty and leaves two separators side by side. With a single root
    the separator at the start stays.
*/
QString typed(const QString &text, Style style);

} // namespace Norvane::AddressPath
