// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "documents/Document.h"

#include <QtCore/QList>
#include <QtCore/QObject>

class QAction;
class QPoint;

namespace Norvane {
class RibbonBar;
}

namespace Workbench {

class DocumentPage;
class FileCommands;
class RecentFiles;
class TextOptions;
class ViewPage;

//! Fills the window's ribbon with the commands, and keeps them in step with the document in front.
class WorkbenchRibbon : public QObject
{
    Q_OBJECT

public:
    WorkbenchRibbon(Norvane::RibbonBar *bar, FileCommands *files, RecentFiles *recent,
                    TextOptions *textOptions);

    //! The page that is there for documents of this kind only.
    DocumentPage *page(Document::Kind kind) const;

    /*!
        The document in front, or null. Whoever stands on Home or View stays there; from the page of
        another kind of document the ribbon goes on to that of this one.
    */
    void setDocument(Document *document);
    void setFullScreen(bool fullScreen);

    //! The commands of all pages and of the corner, for the window.
    QList<QAction *> commands() const;

Q_SIGNALS:
    void fullScreenWanted(bool fullScreen);
    void helpWanted();
    void optionsWanted();
    void findInAllWanted();

private:
    void addHelpButton();
    void openMenuOfButton(QPoint position);

    Norvane::RibbonBar *m_bar;
    QList<DocumentPage *> m_pages;
    DocumentPage *m_homePage;
    ViewPage *m_viewPage;
    DocumentPage *m_textPage;
    DocumentPage *m_picturePage;
    QAction *m_help;
};

} // namespace Workbench
