// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QPointer>
#include <QtGui/QTextDocument>
#include <QtWidgets/QLineEdit>

namespace Workbench {

class TextDocument;

/*!
    Finds what is typed into it in a text: at every key, and on with Enter or back with Shift+Enter.
    Escape goes back to the text.
*/
class FindField : public QLineEdit
{
    Q_OBJECT

public:
    explicit FindField(QWidget *parent = nullptr);

    //! The text to search; null disables the field.
    void setDocument(TextDocument *document);

    void findNext();
    void findPrevious();
    void setMatchCase(bool match);
    void setWholeWords(bool whole);

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    void find(QTextDocument::FindFlags direction, bool incremental);
    void showFound(bool found);

    QPointer<TextDocument> m_document;
    QTextDocument::FindFlags m_flags;
};

} // namespace Workbench
