// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "documents/DocumentLoader.h"

#include <QtCore/QList>
#include <QtCore/QObject>

class QWidget;

namespace Workbench {

class Document;
class DocumentTabs;
class RecentFiles;

/*!
    Opens, saves and closes documents as the user sees it: with the dialogs that ask what to do
    and say what went wrong.
*/
class FileCommands : public QObject
{
    Q_OBJECT

public:
    //! Of a folder that is opened, no more than this many files are.
    static constexpr int mostOfFolder = 20;

    //! The dialogs stand over \a window.
    FileCommands(DocumentTabs *tabs, RecentFiles *recent, TextOptions *textOptions,
                 QWidget *window);

    //! Of the files that it knows to be texts and pictures.
    static QStringList suffixes();

    //! Asks for files to open.
    void open();
    /*!
        Opens every file, and of every folder the texts and pictures that lie directly in it, and
        says which of the files could not be opened and why.
    */
    void openPaths(const QStringList &paths);

    //! Makes an empty text with a new name in \a folder. Returns its path, or nothing if it failed.
    QString createText(const QString &folder);

    //! These return whether the document's content is in its file.
    bool save(Document *document);
    bool saveAs(Document *document);
    bool saveAll();

    //! These ask for every document that is not saved, and return whether all were closed.
    bool close(Document *document);
    bool closeOthers(Document *document);
    bool closeAll();
    bool close(const QList<Document *> &documents);
    //! Asks for each unsaved document, and leaves all of them open.
    bool mayCloseAll();

Q_SIGNALS:
    //! Something went well that the user cannot see otherwise.
    void message(const QString &text);

private:
    //! Returns what went wrong.
    QString openFile(const QString &path);
    void openFolder(const QString &path);
    bool saveTo(Document *document, const QString &path);
    bool mayReplace(const Document *document);
    bool mayClose(Document *document);
    bool mayClose(const QList<Document *> &documents);
    void warn(const QString &title, const QString &text, const QString &reason);

    DocumentTabs *m_tabs;
    RecentFiles *m_recent;
    DocumentLoader m_loader;
    QWidget *m_window;
};

} // namespace Workbench
