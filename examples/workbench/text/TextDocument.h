// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "documents/Document.h"
#include "text/LineEnds.h"
#include "text/TextCodec.h"

#include <QtGui/QTextDocument>

#include <functional>
#include <optional>

class QTextCursor;

namespace Workbench {

class TextEditor;
class TextOptions;

/*!
    A text file. What was not changed is written as it was read: encoding, byte order mark and
    every line's end. A text that could not be decoded in full cannot be changed.
*/
class TextDocument : public Document
{
    Q_OBJECT

public:
    explicit TextDocument(TextOptions *options, QWidget *parent = nullptr);

    const QTextDocument *content() const;
    QString selectedText() const;
    //! Selects \a length characters from \a position and brings them into view.
    void select(int position, int length);

    //! What read() refused holds bytes that are no text.
    bool isBinary() const;
    bool isReadOnly() const;

    TextCodec::Encoding encoding() const;
    //! The encoding that the text is saved in from now on.
    void setEncoding(TextCodec::Encoding encoding);
    //! Nothing if the lines end in different ways.
    std::optional<LineEnds::LineEnd> lineEnd() const;
    void setLineEnd(LineEnds::LineEnd end);

    //! Runs one of TextEdits on the selection.
    void edit(const std::function<void(QTextCursor *)> &operation);

    /*!
        Selects the next place with \a text, from the other end if there is none before the end.
        With \a incremental the selected place itself may be found again.
    */
    bool find(const QString &text, QTextDocument::FindFlags flags, bool incremental = false);

    Kind kind() const override;
    QString summary() const override;
    bool isModified() const override;
    bool canUndo() const override;
    bool canRedo() const override;
    bool canCut() const override;
    bool canCopy() const override;
    bool canPaste() const override;
    void undo() override;
    void redo() override;
    void cut() override;
    void copy() override;
    void paste() override;
    void selectAll() override;
    qreal zoom() const override;
    void setZoom(qreal zoom) override;

protected:
    bool read(QFile &file, QString *error) override;
    bool write(QSaveFile &file, QString *error) override;
    void markSaved() override;
    void markUnsaved() override;

private:
    QString noticeOf(const TextCodec::Decoded &decoded, const QByteArray &bytes) const;

    TextEditor *m_editor;
    TextCodec::Encoding m_encoding = TextCodec::Encoding::Utf8;
    TextCodec::Encoding m_savedEncoding = TextCodec::Encoding::Utf8;
    bool m_binary = false;
    // Asking every line at every key would make long texts slow.
    mutable std::optional<std::optional<LineEnds::LineEnd>> m_lineEnd;
    int m_knownLines = 0;
};

} // namespace Workbench
