// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "text/TextDocument.h"

#include "text/TextEditor.h"

#include <QtCore/QFile>
#include <QtCore/QSaveFile>
#include <QtGui/QTextBlock>
#include <QtGui/QTextCursor>

#include <algorithm>

namespace Workbench {

static constexpr qint64 largestText = qint64(64) * 1024 * 1024;

TextDocument::TextDocument(TextOptions *options, QWidget *parent)
    : Document(parent)
    , m_editor(new TextEditor(options))
{
    m_editor->setAccessibleName(tr("Text"));
    setView(m_editor);
    connect(m_editor, &TextEditor::zoomWanted, this,
            [this](int steps) { steps > 0 ? zoomIn() : zoomOut(); });
    const QTextDocument *document = m_editor->document();
    connect(document, &QTextDocument::contentsChange, this, [this](int, int removed, int added) {
        if (removed + added > 1 || m_knownLines != m_editor->blockCount())
            m_lineEnd.reset();
        m_knownLines = m_editor->blockCount();
    });
    connect(document, &QTextDocument::modificationChanged, this, &Document::changed);
    connect(document, &QTextDocument::undoAvailable, this, &Document::changed);
    connect(document, &QTextDocument::redoAvailable, this, &Document::changed);
    connect(m_editor, &QPlainTextEdit::copyAvailable, this, &Document::changed);
    connect(m_editor, &QPlainTextEdit::cursorPositionChanged, this, &Document::changed);
}

const QTextDocument *TextDocument::content() const
{
    return m_editor->document();
}

QString TextDocument::selectedText() const
{
    return m_editor->textCursor().selectedText();
}

void TextDocument::select(int position, int length)
{
    QTextCursor cursor(m_editor->document());
    const int last = m_editor->document()->characterCount() - 1;
    cursor.setPosition(std::clamp(position, 0, last));
    cursor.setPosition(std::clamp(position + length, 0, last), QTextCursor::KeepAnchor);
    m_editor->setTextCursor(cursor);
    m_editor->centerCursor();
}

bool TextDocument::isBinary() const
{
    return m_binary;
}

bool TextDocument::isReadOnly() const
{
    return m_editor->isReadOnly();
}

TextCodec::Encoding TextDocument::encoding() const
{
    return m_encoding;
}

void TextDocument::setEncoding(TextCodec::Encoding encoding)
{
    if (isReadOnly() || m_encoding == encoding)
        return;
    m_encoding = encoding;
    Q_EMIT changed();
}

std::optional<LineEnds::LineEnd> TextDocument::lineEnd() const
{
    if (!m_lineEnd)
        m_lineEnd = LineEnds::common(m_editor->document());
    return *m_lineEnd;
}

void TextDocument::setLineEnd(LineEnds::LineEnd end)
{
    if (isReadOnly() || lineEnd() == end)
        return;
    LineEnds::convert(m_editor->document(), end);
    Q_EMIT changed();
}

void TextDocument::edit(const std::function<void(QTextCursor *)> &operation)
{
    if (isReadOnly())
        return;
    QTextCursor cursor = m_editor->textCursor();
    operation(&cursor);
    m_editor->setTextCursor(cursor);
}

bool TextDocument::find(const QString &text, QTextDocument::FindFlags flags, bool incremental)
{
    if (text.isEmpty())
        return false;
    const QTextDocument *document = m_editor->document();
    QTextCursor from = m_editor->textCursor();
    if (incremental)
        from.setPosition(from.selectionStart());
    QTextCursor found = document->find(text, from, flags);
    if (found.isNull()) {
        from.movePosition(flags & QTextDocument::FindBackward ? QTextCursor::End
                                                              : QTextCursor::Start);
        found = document->find(text, from, flags);
    }
    if (found.isNull())
        return false;
    m_editor->setTextCursor(found);
    return true;
}

Document::Kind TextDocument::kind() const
{
    return Kind::Text;
}

QString TextDocument::summary() const
{
    const QTextCursor cursor = m_editor->textCursor();
    const std::optional<LineEnds::LineEnd> end = lineEnd();
    return tr("Line %1, column %2").arg(cursor.blockNumber() + 1).arg(cursor.columnNumber() + 1)
        + tr("   |   %1   |   %2   |   %3%")
              .arg(TextCodec::name(m_encoding), end ? LineEnds::name(*end) : tr("Mixed line ends"))
              .arg(qRound(zoom() * 100));
}

bool TextDocument::isModified() const
{
    return m_editor->document()->isModified() || m_encoding != m_savedEncoding;
}

bool TextDocument::canUndo() const
{
    return m_editor->document()->isUndoAvailable();
}

bool TextDocument::canRedo() const
{
    return m_editor->document()->isRedoAvailable();
}

bool TextDocument::canCut() const
{
    return canCopy() && !isReadOnly();
}

bool TextDocument::canCopy() const
{
    return m_editor->textCursor().hasSelection();
}

bool TextDocument::canPaste() const
{
    return m_editor->canPaste();
}

void TextDocument::undo()
{
    m_editor->undo();
}

void TextDocument::redo()
{
    m_editor->redo();
}

void TextDocument::cut()
{
    m_editor->cut();
}

void TextDocument::copy()
{
    m_editor->copy();
}

void TextDocument::paste()
{
    m_editor->paste();
}

void TextDocument::selectAll()
{
    m_editor->selectAll();
}

qreal TextDocument::zoom() const
{
    return m_editor->zoom();
}

void TextDocument::setZoom(qreal zoom)
{
    m_editor->setZoom(zoom);
    Q_EMIT changed();
}

bool TextDocument::read(QFile &file, QString *error)
{
    if (file.size() > largestText) {
        *error = tr("It has %1; texts can be shown up to %2.")
                     .arg(locale().formattedDataSize(file.size()),
                          locale().formattedDataSize(largestText));
        return false;
    }
    const QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError) {
        *error = file.errorString();
        return false;
    }
    TextCodec::Decoded decoded = TextCodec::decode(bytes);
    m_binary = decoded.text.contains(QChar(u'\0'));
    if (m_binary) {
        *error = tr("It is neither a text nor a picture of a known format.");
        return false;
    }
    const int position = m_editor->textCursor().position();
    LineEnds::load(m_editor->document(), decoded.text);
    QTextCursor cursor(m_editor->document());
    cursor.setPosition(std::min(position, m_editor->document()->characterCount() - 1));
    m_editor->setTextCursor(cursor);
    // A few characters have a meaning of their own in a QTextDocument and do not come back.
    if (LineEnds::text(m_editor->document()) != decoded.text)
        decoded.damaged = true;
    m_encoding = m_savedEncoding = decoded.encoding;
    m_editor->setTextInteractionFlags(decoded.damaged
                                          ? Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard
                                          : Qt::TextInteractionFlags(Qt::TextEditorInteraction));
    setNotice(noticeOf(decoded, bytes));
    return true;
}

QString TextDocument::noticeOf(const TextCodec::Decoded &decoded, const QByteArray &bytes) const
{
    if (decoded.damaged) {
        return tr("Some of this file's bytes are not valid %1. They cannot be shown, and saving "
                  "would lose them: the text cannot be changed or saved.")
            .arg(TextCodec::name(decoded.encoding));
    }
    if (decoded.guessed) {
        const QByteArray valid = QString::fromUtf8(bytes).toUtf8();
        const auto first = std::mismatch(bytes.begin(), bytes.end(), valid.begin(), valid.end());
        return tr("This file is not valid UTF-8 (first in line %1). It was read as Latin-1, which "
                  "keeps every byte, and is saved so until you choose another encoding.")
            .arg(std::count(bytes.begin(), first.first, '\n') + 1);
    }
    if (!lineEnd()) {
        return tr("The lines of this file end in different ways. Each keeps its own end until you "
                  "choose one for all.");
    }
    return QString();
}

bool TextDocument::write(QSaveFile &file, QString *error)
{
    if (isReadOnly()) {
        *error = tr("Its bytes could not be decoded in full; saving would lose some.");
        return false;
    }
    const auto bytes = TextCodec::encode(LineEnds::text(m_editor->document()), m_encoding);
    if (!bytes) {
        QTextBlock block = m_editor->document()->begin();
        while (block.next().isValid() && TextCodec::encode(block.text(), m_encoding))
            block = block.next();
        *error = tr("Line %1 holds characters that %2 cannot express. Choose another encoding.")
                     .arg(block.blockNumber() + 1)
                     .arg(TextCodec::name(m_encoding));
        return false;
    }
    if (file.write(*bytes) != bytes->size()) {
        *error = file.errorString();
        return false;
    }
    return true;
}

void TextDocument::markSaved()
{
    m_savedEncoding = m_encoding;
    m_editor->document()->setModified(false);
}

void TextDocument::markUnsaved()
{
    m_editor->document()->setModified(true);
}

} // namespace Workbench
