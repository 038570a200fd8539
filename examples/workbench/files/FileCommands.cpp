// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "files/FileCommands.h"

#include "DocumentTabs.h"
#include "documents/Document.h"
#include "files/RecentFiles.h"
#include "picture/PictureFormats.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QMessageBox>

#include <algorithm>

namespace Workbench {

static QStringList textPatterns()
{
    return QStringLiteral("*.txt *.md *.csv *.log *.ini *.json *.xml *.html *.cpp *.h *.py")
        .split(u' ');
}

FileCommands::FileCommands(DocumentTabs *tabs, RecentFiles *recent, TextOptions *textOptions,
                           QWidget *window)
    : QObject(window)
    , m_tabs(tabs)
    , m_recent(recent)
    , m_loader(textOptions)
    , m_window(window)
{
    connect(m_recent, &RecentFiles::picked, this,
            [this](const QString &path) { openPaths({path}); });
}

QStringList FileCommands::suffixes()
{
    QStringList suffixes = textPatterns() + PictureFormats::readPatterns();
    suffixes.replaceInStrings(QStringLiteral("*."), QString());
    return suffixes;
}

void FileCommands::open()
{
    const Document *current = m_tabs->currentDocument();
    const QStringList filters{tr("All files (*)"), tr("Texts (%1)").arg(textPatterns().join(u' ')),
                              tr("Pictures (%1)").arg(PictureFormats::readPatterns().join(u' '))};
    openPaths(QFileDialog::getOpenFileNames(m_window, tr("Open"),
                                            current ? QFileInfo(current->path()).path() : QString(),
                                            filters.join(QStringLiteral(";;"))));
}

void FileCommands::openPaths(const QStringList &paths)
{
    QStringList failed;
    QStringList reasons;
    for (const QString &path : paths) {
        if (QFileInfo(path).isDir()) {
            openFolder(path);
            continue;
        }
        const QString reason = openFile(path);
        if (!reason.isEmpty()) {
            failed << QDir::toNativeSeparators(path);
            reasons << tr("“%1”: %2").arg(failed.last(), reason);
        }
    }
    if (failed.size() == 1) {
        warn(tr("Open"), tr("“%1” could not be opened.").arg(QFileInfo(failed.first()).fileName()),
             reasons.first());
    } else if (!failed.isEmpty()) {
        warn(tr("Open"), tr("%1 files could not be opened.").arg(failed.size()),
             reasons.join(QStringLiteral("\n\n")));
    }
}

QString FileCommands::createText(const QString &folder)
{
    const QString name = tr("New Text Document");
    QFile file(QDir(folder).filePath(tr("%1.txt").arg(name)));
    for (int number = 2; !file.open(QIODevice::NewOnly); ++number) {
        if (!QFileInfo::exists(file.fileName())) {
            warn(tr("New"), tr("A text could not be made in “%1”.").arg(QDir(folder).dirName()),
                 file.errorString());
            return QString();
        }
        file.setFileName(QDir(folder).filePath(tr("%1 (%2).txt").arg(name).arg(number)));
    }
    return file.fileName();
}

bool FileCommands::save(Document *document)
{
    if (document->isFileForeign() && !mayReplace(document))
        return false;
    return saveTo(document, document->path());
}

bool FileCommands::saveAs(Document *document)
{
    const QString filter = document->kind() == Document::Kind::Picture
        ? tr("Pictures (%1)").arg(PictureFormats::writePatterns().join(u' '))
        : tr("Texts (*)");
    const QString path = QFileDialog::getSaveFileName(
        m_window, tr("Save “%1” As").arg(document->title()), document->path(), filter);
    if (path.isEmpty())
        return false;
    const Document *other = m_tabs->find(path);
    if (other && other != document) {
        warn(tr("Save"), tr("“%1” could not be saved.").arg(other->title()),
             tr("It is open in another tab. Close it there first."));
        return false;
    }
    if (!saveTo(document, path))
        return false;
    m_recent->add(document->path());
    return true;
}

bool FileCommands::saveAll()
{
    bool all = true;
    const QList<Document *> documents = m_tabs->documents();
    for (Document *document : documents) {
        if (document->isModified())
            all = save(document) && all;
    }
    return all;
}

bool FileCommands::close(Document *document)
{
    return close(QList<Document *>{document});
}

bool FileCommands::closeOthers(Document *document)
{
    QList<Document *> others = m_tabs->documents();
    others.removeOne(document);
    return close(others);
}

bool FileCommands::closeAll()
{
    return close(m_tabs->documents());
}

bool FileCommands::mayCloseAll()
{
    return mayClose(m_tabs->documents());
}

QString FileCommands::openFile(const QString &path)
{
    if (Document *document = m_tabs->find(path)) {
        m_tabs->setCurrentDocument(document);
        m_recent->add(document->path());
        return QString();
    }
    QString error;
    std::unique_ptr<Document> document = m_loader.load(path, &error);
    if (!document) {
        m_recent->remove(QFileInfo(path).absoluteFilePath());
        return error;
    }
    m_recent->add(document->path());
    m_tabs->add(std::move(document));
    return QString();
}

void FileCommands::openFolder(const QString &path)
{
    const QFileInfoList files =
        QDir(path).entryInfoList(QDir::Files | QDir::Readable, QDir::Name | QDir::LocaleAware);
    int opened = 0;
    Document *first = nullptr;
    for (const QFileInfo &file : files) {
        if (opened == mostOfFolder)
            break;
        // What is neither text nor picture is not meant.
        if (!openFile(file.filePath()).isEmpty())
            continue;
        ++opened;
        if (!first)
            first = m_tabs->currentDocument();
    }
    if (first)
        m_tabs->setCurrentDocument(first);
    Q_EMIT message(tr("Opened from “%1”: %2 of %3 files")
                       .arg(QDir::toNativeSeparators(path))
                       .arg(opened)
                       .arg(files.size()));
}

bool FileCommands::saveTo(Document *document, const QString &path)
{
    QString error;
    if (document->saveAs(path, &error)) {
        Q_EMIT message(tr("Saved “%1”").arg(QDir::toNativeSeparators(document->path())));
        return true;
    }
    warn(tr("Save"), tr("“%1” could not be saved.").arg(QFileInfo(path).fileName()), error);
    return false;
}

bool FileCommands::mayReplace(const Document *document)
{
    QMessageBox box(QMessageBox::Warning, tr("Save"), tr("Replace “%1”?").arg(document->title()),
                    QMessageBox::Save | QMessageBox::Cancel, m_window);
    box.setInformativeText(tr("Another program has changed the file since it was read. What that "
                              "program wrote is lost if you save."));
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(QMessageBox::Cancel);
    return box.exec() == QMessageBox::Save;
}

bool FileCommands::mayClose(Document *document)
{
    if (!document->isModified())
        return true;
    m_tabs->setCurrentDocument(document);
    QMessageBox box(QMessageBox::Question, tr("Close"),
                    tr("Save the changes to “%1”?").arg(document->title()),
                    QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, m_window);
    box.setInformativeText(tr("They are lost otherwise."));
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(QMessageBox::Save);
    switch (box.exec()) {
    case QMessageBox::Save:
        return save(document);
    case QMessageBox::Discard:
        return true;
    default:
        return false;
    }
}

bool FileCommands::mayClose(const QList<Document *> &documents)
{
    return std::all_of(documents.begin(), documents.end(),
                       [this](Document *document) { return mayClose(document); });
}

bool FileCommands::close(const QList<Document *> &documents)
{
    // All are asked first: a cancelled close must not have closed half of them.
    if (!mayClose(documents))
        return false;
    for (Document *document : documents)
        m_tabs->remove(document);
    return true;
}

void FileCommands::warn(const QString &title, const QString &text, const QString &reason)
{
    QMessageBox box(QMessageBox::Warning, title, text, QMessageBox::Ok, m_window);
    box.setInformativeText(reason);
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

} // namespace Workbench
