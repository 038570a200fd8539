// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "ribbon/DocumentPage.h"

class QActionGroup;
class QFontComboBox;
class QSpinBox;
class QTextCursor;

namespace Workbench {

class SnippetGallery;
class TextDocument;
class TextOptions;

/*!
    What applies to texts only; shown while one is in front.
*/
class TextPage : public DocumentPage
{
    Q_OBJECT

public:
    explicit TextPage(TextOptions *options, QWidget *parent = nullptr);

protected:
    void refresh() override;

private:
    TextDocument *text() const;
    void addFontGroup();
    void addFileFormatGroup();
    void addLinesGroup();
    void addCaseGroup();
    void addSnippetsGroup();
    void showFont();
    //! A command that runs one of TextEdits.
    QAction *addEdit(const Command &command, void (*edit)(QTextCursor *));

    TextOptions *m_options;
    QFontComboBox *m_family;
    QSpinBox *m_size;
    QMenu *m_encodingMenu;
    QMenu *m_lineEndMenu;
    QActionGroup *m_encodings;
    QActionGroup *m_lineEnds;
    QList<QAction *> m_edits;
    SnippetGallery *m_snippets;
};

} // namespace Workbench
