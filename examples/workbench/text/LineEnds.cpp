// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "text/LineEnds.h"

#include <QtGui/QTextBlock>
#include <QtGui/QTextCursor>
#include <QtGui/QTextDocument>

namespace Workbench {

static constexpr int endProperty = QTextFormat::UserProperty + 1;

static LineEnds::LineEnd endOf(const QTextBlock &block)
{
    return LineEnds::LineEnd(block.blockFormat().intProperty(endProperty));
}

static QString characters(LineEnds::LineEnd end)
{
    switch (end) {
    case LineEnds::LineEnd::Lf:
        return QStringLiteral("\n");
    case LineEnds::LineEnd::CrLf:
        return QStringLiteral("\r\n");
    case LineEnds::LineEnd::Cr:
        return QStringLiteral("\r");
    case LineEnds::LineEnd::ParagraphSeparator:
        return QString(QChar(QChar::ParagraphSeparator));
    }
    Q_UNREACHABLE_RETURN(QString());
}

static void setEnd(QTextDocument *document, int firstLine, int lastLine, LineEnds::LineEnd end)
{
    QTextCursor cursor(document->findBlockByNumber(firstLine));
    cursor.setPosition(document->findBlockByNumber(lastLine).position(), QTextCursor::KeepAnchor);
    QTextBlockFormat format;
    format.setProperty(endProperty, int(end));
    cursor.mergeBlockFormat(format);
}

QList<LineEnds::LineEnd> LineEnds::offered()
{
    return {LineEnd::Lf, LineEnd::CrLf, LineEnd::Cr};
}

QString LineEnds::name(LineEnd end)
{
    switch (end) {
    case LineEnd::Lf:
        return tr("LF (Unix)");
    case LineEnd::CrLf:
        return tr("CRLF (Windows)");
    case LineEnd::Cr:
        return tr("CR (old Mac)");
    case LineEnd::ParagraphSeparator:
        return tr("Paragraph separators");
    }
    Q_UNREACHABLE_RETURN(QString());
}

void LineEnds::load(QTextDocument *document, const QString &text)
{
    struct Run
    {
        LineEnd end;
        int lines;
    };
    QList<Run> runs;
    QString plain;
    plain.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        LineEnd end;
        if (c == u'\n') {
            end = LineEnd::Lf;
        } else if (c == u'\r' && i + 1 < text.size() && text.at(i + 1) == u'\n') {
            end = LineEnd::CrLf;
            ++i;
        } else if (c == u'\r') {
            end = LineEnd::Cr;
        } else if (c == QChar::ParagraphSeparator) {
            end = LineEnd::ParagraphSeparator;
        } else {
            plain += c;
            continue;
        }
        plain += u'\n';
        if (runs.isEmpty() || runs.last().end != end)
            runs.append({end, 0});
        ++runs.last().lines;
    }

    document->setUndoRedoEnabled(false);
    document->setPlainText(plain);
    int line = 0;
    for (const Run &run : std::as_const(runs)) {
        // What is written after the last line continues as that line does.
        const bool last = &run == &runs.last();
        setEnd(document, line, line + run.lines - (last ? 0 : 1), run.end);
        line += run.lines;
    }
    document->setUndoRedoEnabled(true);
    document->setModified(false);
}

QString LineEnds::text(const QTextDocument *document)
{
    // QTextDocument::toPlainText() would turn no-break spaces into spaces.
    QString text;
    text.reserve(document->characterCount());
    for (QTextBlock block = document->begin(); block.isValid(); block = block.next()) {
        text += block.text();
        if (block.next().isValid())
            text += characters(endOf(block));
    }
    return text;
}

std::optional<LineEnds::LineEnd> LineEnds::common(const QTextDocument *document)
{
    const LineEnd end = endOf(document->begin());
    for (QTextBlock block = document->begin(); block.next().isValid(); block = block.next()) {
        if (endOf(block) != end)
            return std::nullopt;
    }
    return end;
}

void LineEnds::convert(QTextDocument *document, LineEnd end)
{
    setEnd(document, 0, document->blockCount() - 1, end);
}

} // namespace Workbench
