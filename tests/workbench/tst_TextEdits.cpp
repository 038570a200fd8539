// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "TestCase.h"
#include "text/LineEnds.h"
#include "text/TextEdits.h"

#include <QtGui/QTextCursor>
#include <QtGui/QTextDocument>

using namespace Workbench;

class tst_TextEdits : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void edits_data();
    void edits();
};

using Edit = void (*)(QTextCursor *);
Q_DECLARE_METATYPE(Edit)

// In the texts, "[" and "]" stand for the two ends of the selection.
static QTextCursor load(QTextDocument *document, QString text)
{
    const qsizetype from = text.indexOf(u'[');
    text.remove(from, 1);
    const qsizetype to = text.indexOf(u']');
    text.remove(to, 1);
    LineEnds::load(document, text);
    QTextCursor cursor(document);
    // Of a line end, a document counts one character.
    const auto position = [&](qsizetype at) { return int(at - text.first(at).count(u"\r\n")); };
    cursor.setPosition(position(from));
    cursor.setPosition(position(to), QTextCursor::KeepAnchor);
    return cursor;
}

void tst_TextEdits::edits_data()
{
    QTest::addColumn<Edit>("edit");
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("after");
    QTest::addColumn<QString>("selected");
    const auto row = [](const char *name, Edit edit, const char *before, const char *after,
                        const char *selected) {
        QTest::newRow(name) << edit << QString::fromUtf8(before) << QString::fromUtf8(after)
                            << QString::fromUtf8(selected);
    };

    const Edit indent = &TextEdits::indent;
    row("indents the cursor's line", indent, "a\nb[]c\nd", "a\n    bc\nd", "");
    row("indents an empty line", indent, "[]", "    ", "");
    row("indents the selected lines", indent, "a\nb[c\nd]e\nf", "a\n    bc\n    de\nf", "c\n    d");
    row("spares the line that it only reaches", indent, "[a\n]b", "    a\nb", "a\n");
    row("spares empty lines", indent, "[a\n\nb]", "    a\n\n    b", "a\n\n    b");
    row("keeps mixed ends", indent, "[a\r\nb\nc]\rd", "    a\r\n    b\n    c\rd",
        "a\n    b\n    c");

    const Edit outdent = &TextEdits::outdent;
    row("takes four spaces", outdent, "      a[]", "  a", "");
    row("takes what there is", outdent, "  a[]", "a", "");
    row("takes a tab", outdent, "\t\ta[]", "\ta", "");
    row("takes a tab after spaces", outdent, "  \ta[]", "a", "");
    row("takes nothing from text", outdent, "a   []", "a   ", "");
    row("outdents the selected lines", outdent, "[    a\n\n\tb]", "a\n\nb", "a\n\nb");

    const Edit ascending = [](QTextCursor *cursor) {
        TextEdits::sortLines(cursor, Qt::AscendingOrder);
    };
    const Edit descending = [](QTextCursor *cursor) {
        TextEdits::sortLines(cursor, Qt::DescendingOrder);
    };
    row("sorts all lines", ascending, "c\na\nb[]", "a\nb\nc", "a\nb\nc");
    row("leaves the last line end last", ascending, "c\na\nb[]\n", "a\nb\nc\n", "a\nb\nc");
    row("sorts the selected lines", ascending, "z\n[c\na]\nb", "z\na\nc\nb", "a\nc");
    row("sorts whole lines", ascending, "xc[1\nx]a2", "xa2\nxc1", "xa2\nxc1");
    row("sorts down", descending, "a\nc\nb[]", "c\nb\na", "c\nb\na");
    row("keeps the ends where they are", ascending, "c\r\na\nb\r[]", "a\r\nb\nc\r", "a\nb\nc");
    row("keeps equal lines", ascending, "b\na\nb\na[]", "a\na\nb\nb", "a\na\nb\nb");
    row("leaves what is sorted", ascending, "a\nb\nc[]", "a\nb\nc", "a\nb\nc");
    row("sorts nothing", ascending, "[]", "", "");

    const Edit upper = [](QTextCursor *cursor) {
        TextEdits::setCase(cursor, TextEdits::LetterCase::Upper);
    };
    const Edit lower = [](QTextCursor *cursor) {
        TextEdits::setCase(cursor, TextEdits::LetterCase::Lower);
    };
    row("raises the selection", upper, "a[bc]d", "aBCd", "BC");
    row("raises the word", upper, "one tw[]o three", "one TWO three", "TWO");
    row("raises over lines", upper, "a[b\r\nc\nd]e", "aB\r\nC\nDe", "B\nC\nD");
    row("grows where capitals do", upper, "[straße]n", "STRASSEn", "STRASSE");
    row("lowers", lower, "[ÄB\nC]D", "äb\ncD", "äb\nc");
}

void tst_TextEdits::edits()
{
    QFETCH(Edit, edit);
    QFETCH(QString, before);
    QFETCH(QString, after);
    QFETCH(QString, selected);

    QTextDocument document;
    QTextCursor cursor = load(&document, before);
    const QString original = LineEnds::text(&document);
    edit(&cursor);
    QCOMPARE(LineEnds::text(&document), after);
    QCOMPARE(cursor.selectedText().replace(QChar(QChar::ParagraphSeparator), u'\n'), selected);

    if (original == after) {
        QVERIFY(!document.isUndoAvailable());
        return;
    }
    document.undo();
    QCOMPARE(LineEnds::text(&document), original);
    QVERIFY(!document.isUndoAvailable());
}

NORVANE_TEST_MAIN(tst_TextEdits)
#include "tst_TextEdits.moc"
