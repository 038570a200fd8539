// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "documents/Document.h"

#include <Norvane/RibbonBar.h>

#include <QtCore/QList>

#include <optional>

class QAction;

namespace Workbench {

class DocumentPage;
class FileCommands;
class RecentFiles;
class TextOptions;
class ViewPage;

/*!
    The window's ribbon. The page for the kind of document that is in front comes and goes with it.
*/
class WorkbenchRibbon : public Norvane::RibbonBar
{
    Q_OBJECT

public:
    WorkbenchRibbon(FileCommands *files, RecentFiles *recent, TextOptions *textOptions,
                    QWidget *parent = nullptr);

    //! The document in front, or null.
    void setDocument(Document *document);
    void setFullScreen(bool fullScreen);

    //! The commands of all pages and of the corner, for the window.
    QList<QAction *> commands() const;

Q_SIGNALS:
    void fullScreenWanted(bool fullScreen);
    void helpWanted();
    void findInAllWanted();

private:
    void addHelpButton();
    void showPagesFor(std::optional<Document::Kind> kind);
    void openMenuOfButton(QPoint position);

    QList<DocumentPage *> m_pages;
    DocumentPage *m_homePage;
    ViewPage *m_viewPage;
    DocumentPage *m_textPage;
    DocumentPage *m_picturePage;
    QAction *m_help;
    std::optional<Document::Kind> m_kind;
};

} // namespace Workbench
