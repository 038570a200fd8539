// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "text/TextEdits.h"

#include <QtCore/QCollator>
#include <QtCore/QStringList>
#include <QtGui/QTextBlock>
#include <QtGui/QTextDocument>

#include <algorithm>
#include <utility>

namespace Workbench {

static constexpr qsizetype indentWidth = 4;

// The first and the last selected block. A line that the selection only reaches is not selected.
static std::pair<QTextBlock, QTextBlock> selectedBlocks(const QTextCursor &cursor)
{
    const QTextDocument *document = cursor.document();
    const QTextBlock first = document->findBlock(cursor.selectionStart());
    QTextBlock last = document->findBlock(cursor.selectionEnd());
    if (last != first && cursor.selectionEnd() == last.position())
        last = last.previous();
    return {first, last};
}

static void replace(const QTextBlock &block, int from, int to, const QString &text)
{
    QTextCursor cursor(block);
    cursor.setPosition(block.position() + from);
    cursor.setPosition(block.position() + to, QTextCursor::KeepAnchor);
    if (cursor.selectedText() != text)
        cursor.insertText(text);
}

static void select(QTextCursor *cursor, int from, int to)
{
    cursor->setPosition(from);
    cursor->setPosition(to, QTextCursor::KeepAnchor);
}

void TextEdits::indent(QTextCursor *cursor)
{
    const auto [first, last] = selectedBlocks(*cursor);
    const bool empty = first == last && first.length() == 1;
    cursor->beginEditBlock();
    for (QTextBlock block = first; block.isValid(); block = block.next()) {
        if (block.length() > 1 || empty)
            QTextCursor(block).insertText(QString(indentWidth, u' '));
        if (block == last)
            break;
    }
    cursor->endEditBlock();
}

void TextEdits::outdent(QTextCursor *cursor)
{
    const auto [first, last] = selectedBlocks(*cursor);
    cursor->beginEditBlock();
    for (QTextBlock block = first; block.isValid(); block = block.next()) {
        const QString text = block.text();
        int taken = 0;
        while (taken < std::min(text.size(), indentWidth) && text.at(taken) == u' ')
            ++taken;
        if (taken < indentWidth && taken < text.size() && text.at(taken) == u'\t')
            ++taken;
        replace(block, 0, taken, QString());
        if (block == last)
            break;
    }
    cursor->endEditBlock();
}

void TextEdits::sortLines(QTextCursor *cursor, Qt::SortOrder order)
{
    const bool all = !cursor->hasSelection();
    if (all)
        cursor->select(QTextCursor::Document);
    auto [first, last] = selectedBlocks(*cursor);
    // The line end at the end of a file starts no line of its own.
    if (all && last != first && last.length() == 1)
        last = last.previous();

    QStringList lines;
    for (QTextBlock block = first; block.isValid(); block = block.next()) {
        lines << block.text();
        if (block == last)
            break;
    }
    const QCollator collator;
    std::stable_sort(lines.begin(), lines.end(), [&](const QString &a, const QString &b) {
        return order == Qt::AscendingOrder ? collator.compare(a, b) < 0
                                           : collator.compare(b, a) < 0;
    });

    cursor->beginEditBlock();
    QTextBlock block = first;
    for (const QString &line : std::as_const(lines)) {
        replace(block, 0, block.length() - 1, line);
        block = block.next();
    }
    cursor->endEditBlock();
    select(cursor, first.position(), last.position() + last.length() - 1);
}

void TextEdits::setCase(QTextCursor *cursor, LetterCase letterCase)
{
    if (!cursor->hasSelection())
        cursor->select(QTextCursor::WordUnderCursor);
    const int start = cursor->selectionStart();
    QTextCursor end(cursor->document());
    end.setPosition(cursor->selectionEnd());
    const QTextBlock first = cursor->document()->findBlock(start);
    const QTextBlock last = cursor->document()->findBlock(end.position());

    cursor->beginEditBlock();
    for (QTextBlock block = first; block.isValid(); block = block.next()) {
        const int from = block == first ? start - block.position() : 0;
        const int to = block == last ? end.position() - block.position() : block.length() - 1;
        const QString text = block.text().mid(from, to - from);
        replace(block, from, to, letterCase == LetterCase::Upper ? text.toUpper() : text.toLower());
        if (block == last)
            break;
    }
    cursor->endEditBlock();
    select(cursor, start, end.position());
}

void TextEdits::insert(QTextCursor *cursor, const QString &text)
{
    // Without a block of its own it would be undone with what is typed before.
    cursor->beginEditBlock();
    cursor->insertText(text);
    cursor->endEditBlock();
}

} // namespace Workbench
