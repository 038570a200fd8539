// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QCoreApplication>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QUrl>

class QClipboard;
class QDir;
class QFileInfo;
class QMimeData;

namespace Norvane {

/*!
    What the folder tree does to files. Everything runs to its end before it returns, dialogs
    included; while a dialog is open, the tree may go and files may come and go.

    What goes wrong is shown in a dialog if it can be told beforehand, a folder with names that
    cannot be decoded as an unknown error. What the file system refuses later is not: a file that
    cannot be written is missing from the copy, and no more. Hidden entries of a folder are not
    copied.

    A symbolic link is copied as what it leads to, and removed as a link.
*/
class AddressFileOperations
{
    Q_DECLARE_TR_FUNCTIONS(Norvane::AddressTree)

public:
    //! What a copy would meet. The numbers are the codes of showError().
    enum CopyCheck {
        SourceMissing = 0,
        SamePath = 1,
        TargetInsideSource = 2,
        FileExists = 3,
        FolderExists = 4,
        TypeClash = 5,
        PermissionDenied = 6, //!< No check finds it.
        TargetFree = 7,
        Unknown = 8, //!< Nor this.
    };

    //! \a trashPath is what trashPath() returns as long as nothing is removed.
    explicit AddressFileOperations(const QString &trashPath = QString());

    /*!
        The first of these that holds. TargetInsideSource also holds if the path of the folder that
        \a target lies in merely begins with that of \a source, as "/abc" with "/ab".
    */
    static CopyCheck check(const QFileInfo &source, const QFileInfo &target);

    //! What the clipboard holds after a cut or a copy. The caller owns it.
    static QMimeData *clipboardData(const QList<QUrl> &urls, bool cut);

    //! Makes a folder with a new name in \a folder, and returns its path.
    static QString createFolder(const QString &folder);

    //! Opens \a path with the system's program for it, if it is a file.
    static void open(const QString &path);

    /*!
        Copies what \a clipboard holds into \a folder, or into the folder of the file \a folder,
        and asks about what is there already. Nothing happens without such a folder. If the
       clipboard says "cut", every source is removed after its copy, whatever became of the copy,
       and the clipboard is cleared.
    */
    void paste(QClipboard *clipboard, const QString &folder);

    /*!
        Copies a file, or a folder with what is in it. A file that exists is only replaced with
        \a overwrite, and then removed first; a folder that exists keeps what else is in it.
    */
    void copy(const QString &source, const QString &target, bool overwrite);

    //! Moves \a path to the trash or, where that fails, deletes it for good. Returns its success.
    bool remove(const QString &path);

    //! Where the trash has what was removed last; empty if that was deleted for good.
    QString trashPath() const;

private:
    static void showError(int code, const QString &source, const QString &target);

    void pasteOne(const QString &source, const QDir &folder, bool cut);
    void copyFile(const QString &source, const QString &target, bool overwrite);
    void copyFolder(const QString &source, const QString &target, bool overwrite);

    QString m_trashPath;
    QStringList m_entered;
};

} // namespace Norvane
