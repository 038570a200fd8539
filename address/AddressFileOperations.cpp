// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "AddressFileOperations.h"

#include "AddressFolder.h"

#include <QtCore/QDebug>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QMimeData>
#include <QtGui/QClipboard>
#include <QtGui/QDesktopServices>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>

namespace Norvane {

namespace {

constexpr QLatin1StringView cutOrCopy("application/x-cut-or-copy");

// A link that leads nowhere does not exist to QFileInfo, but its name is taken.
bool isTaken(const QFileInfo &info)
{
    return info.exists() || info.isSymLink();
}

// Whether both are one file or folder, which links may give several paths. A link is not what it
// leads to.
bool isSame(const QFileInfo &one, const QFileInfo &other)
{
    if (one.absoluteFilePath() == other.absoluteFilePath())
        return true;
    if (!isTaken(other))
        return false;
    if (one.fileName() == other.fileName()
        && one.absoluteDir().canonicalPath() == other.absoluteDir().canonicalPath()) {
        return true;
    }
    return !other.isSymLink() && one.canonicalFilePath() == other.canonicalFilePath();
}

// Both without links. A folder that is gone has no such path, and nothing in it.
bool isInside(const QString &path, const QString &folder)
{
    return !folder.isEmpty() && (path == folder || path.startsWith(folder + u'/'));
}

bool isRefused(AddressFileOperations::CopyCheck code)
{
    using Operations = AddressFileOperations;
    return code != Operations::SamePath && code != Operations::TargetFree
        && code != Operations::FileExists && code != Operations::FolderExists;
}

QString freeName(const QString &path)
{
    const QFileInfo info(path);
    const QDir folder = info.dir();
    QString name = info.fileName();
    for (int n = 2; isTaken(QFileInfo(folder, name)); ++n)
        name = QStringLiteral("Copy_%1_of_%2").arg(QString::number(n), info.fileName());
    return folder.filePath(name);
}

} // namespace

AddressFileOperations::AddressFileOperations(const QString &trashPath)
    : m_trashPath(trashPath)
{
}

AddressFileOperations::CopyCheck AddressFileOperations::check(const QFileInfo &source,
                                                              const QFileInfo &target)
{
    if (!source.exists())
        return SourceMissing;
    if (isSame(source, target))
        return SamePath;
    if (target.absolutePath().contains(source.absoluteFilePath()))
        return TargetInsideSource;
    if (!target.exists())
        return TargetFree;
    if (source.isFile() != target.isFile())
        return TypeClash;
    return source.isFile() ? FileExists : FolderExists;
}

QMimeData *AddressFileOperations::clipboardData(const QList<QUrl> &urls, bool cut)
{
    auto *data = new QMimeData;
    data->setUrls(urls);
    data->setData(cutOrCopy, cut ? "cut" : "copy");
    return data;
}

QString AddressFileOperations::createFolder(const QString &folder)
{
    const QString prefix = folder + u'/';
    QString name = tr("New Folder");
    for (int n = 2; isTaken(QFileInfo(prefix + name)); ++n)
        name = tr("New Folder") + QStringLiteral(" (%1)").arg(n);
    QDir().mkpath(prefix + name);
    return prefix + name;
}

void AddressFileOperations::open(const QString &path)
{
    if (QFileInfo(path).isFile())
        QDesktopServices::openUrl(QUrl::fromLocalFile(path));
}

void AddressFileOperations::paste(QClipboard *clipboard, const QString &folder)
{
    const QMimeData *data = clipboard->mimeData();
    if (!data || !data->hasUrls() || folder.isEmpty())
        return;
    // What the clipboard holds may change while a dialog is open.
    const QList<QUrl> urls = data->urls();
    const bool cut = data->data(cutOrCopy) == "cut";
    const QFileInfo info(folder);
    const QDir destination = info.isFile() ? info.absoluteDir() : QDir(folder);
    if (!destination.exists())
        return;
    for (const QUrl &url : urls) {
        // Some programs end the path of a folder with "/", which would leave it without a name.
        if (url.isLocalFile())
            pasteOne(QDir::cleanPath(url.toLocalFile()), destination, cut);
    }
    if (cut)
        clipboard->clear();
}

void AddressFileOperations::copy(const QString &source, const QString &target, bool overwrite)
{
    const QFileInfo info(source);
    const CopyCheck code = check(info, QFileInfo(target));
    if (isRefused(code)) {
        showError(code, source, target);
        return;
    }
    // What is neither, a pipe for instance, would block whoever reads it.
    if (info.isFile())
        copyFile(source, target, overwrite);
    else if (info.isDir() && code != SamePath)
        copyFolder(source, target, overwrite);
}

bool AddressFileOperations::remove(const QString &path)
{
    m_trashPath.clear();
    const QFileInfo info(path);
    // What is in the root could be removed, although the root itself cannot.
    if (!isTaken(info) || info.isRoot())
        return false;
    if (QFile::moveToTrash(path, &m_trashPath))
        return true;
    // To go into a link would empty the folder that it leads to.
    if (info.isDir() && !info.isSymLink())
        return QDir(path).removeRecursively();
    return QFile::remove(path);
}

QString AddressFileOperations::trashPath() const
{
    return m_trashPath;
}

void AddressFileOperations::showError(int code, const QString &source, const QString &target)
{
    QString text;
    switch (code) {
    case SourceMissing:
        text = tr("Source file does not exist");
        break;
    case TargetInsideSource:
        text = tr("Cannot copy or move the file from %1 to %2. The Target folder is a subfolder of "
                  "the source folder.")
                   .arg(source, target);
        break;
    case TypeClash:
        text = tr("Cannot copy or move the file from %1 to %2. A file with the same name already "
                  "exist.")
                   .arg(source, target);
        break;
    case PermissionDenied:
        text = tr("Cannot copy or move the file from %1 to %2. File permission denied.")
                   .arg(source, target);
        break;
    default:
        text = QStringLiteral("unknown error!");
        break;
    }
    QMessageBox box;
    box.setWindowTitle(tr("Copy Error"));
    box.setTextFormat(Qt::PlainText);
    box.setText(text);
    box.setStandardButtons(QMessageBox::Ok);
    box.exec();
}

void AddressFileOperations::pasteOne(const QString &source, const QDir &folder, bool cut)
{
    const QFileInfo info(source);
    QString target = folder.filePath(info.fileName());
    CopyCheck code = check(info, QFileInfo(target));
    bool overwrite = false;
    // The text of the paths does not tell, if there are links in them.
    if ((code == TargetFree || code == FolderExists)
        && isInside(folder.canonicalPath(), info.canonicalFilePath())) {
        code = TargetInsideSource;
    }
    if (isRefused(code)) {
        showError(code, source, target);
        return;
    }
    if (code == SamePath) {
        if (cut)
            return;
        target = freeName(target);
    } else if (code != TargetFree) {
        QMessageBox box;
        box.setWindowTitle(tr("information"));
        box.setTextFormat(Qt::PlainText);
        box.setText(tr("This folder already contains a file named %1. Do you want to replace the "
                       "existing file or save the new file as a copy?")
                        .arg(info.fileName()));
        const auto *replace = box.addButton(tr("Replace Current"), QMessageBox::ActionRole);
        const QPushButton *keepBoth = nullptr;
        if (info.isFile()) {
            keepBoth = box.addButton(tr("Save a Copy"), QMessageBox::ActionRole);
            box.addButton(tr("Skip"), QMessageBox::ActionRole);
        }
        box.setEscapeButton(box.addButton(tr("Cancel"), QMessageBox::ActionRole));
        box.exec();
        overwrite = box.clickedButton() == replace;
        if (keepBoth && box.clickedButton() == keepBoth)
            target = freeName(target);
        else if (!overwrite)
            return;
    }
    if (cut && !QFileInfo::exists(source))
        return;
    copy(source, target, overwrite);
    if (cut)
        remove(source);
}

void AddressFileOperations::copyFile(const QString &source, const QString &target, bool overwrite)
{
    const QFileInfo info(target);
    if (overwrite && info.isFile() && !isSame(QFileInfo(source), info) && !remove(target)) {
        qDebug().noquote() << QStringLiteral("Error: copy file from %1 to %2").arg(source, target);
    }
    QFile::copy(source, target);
}

void AddressFileOperations::copyFolder(const QString &source, const QString &target, bool overwrite)
{
    QDir().mkpath(target);
    m_entered.append(QFileInfo(source).canonicalFilePath());
    const QDir from(source);
    const QDir to(target);
    auto names = AddressFolder::names(source, AddressFolder::Wanted::FilesAndFolders);
    names.files.sort(Qt::CaseInsensitive);
    names.folders.sort(Qt::CaseInsensitive);
    if (!names.complete)
        showError(Unknown, source, target);
    for (const QString &name : std::as_const(names.files))
        copyFile(from.filePath(name), to.filePath(name), overwrite);
    for (const QString &name : std::as_const(names.folders)) {
        // A link may lead back to where the copy comes from or goes to, and would do so for ever.
        const QString folder = QFileInfo(from, name).canonicalFilePath();
        if (!m_entered.contains(folder) && !isInside(to.canonicalPath(), folder))
            copy(from.filePath(name), to.filePath(name), overwrite);
    }
    m_entered.removeLast();
}

} // namespace Norvane
