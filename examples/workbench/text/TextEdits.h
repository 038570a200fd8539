// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGui/QTextCursor>

namespace Workbench {

/*!
    Edits of whole selections. Each is one step that can be undone, keeps the lines' own ends and,
    but for insert(), leaves \a cursor selecting what was edited.
*/
class TextEdits
{
public:
    enum class LetterCase { Upper, Lower };

    //! Moves the selected lines, or the cursor's line, four columns to the right.
    static void indent(QTextCursor *cursor);
    //! Takes up to four spaces or one tab from the start of the lines.
    static void outdent(QTextCursor *cursor);
    //! Sorts the selected lines, or all lines if nothing is selected, as the user's
    //! language has it.
    static void sortLines(QTextCursor *cursor, Qt::SortOrder order);
    //! Changes the selection, or the word at the cursor if nothing is selected.
    static void setCase(QTextCursor *cursor, LetterCase letterCase);
    //! Puts \a text in the place of the selection, or at the cursor, and the cursor behind it.
    static void insert(QTextCursor *cursor, const QString &text);
};

} // namespace Workbench
