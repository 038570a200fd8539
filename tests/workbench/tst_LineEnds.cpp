// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "TestCase.h"
#include "text/LineEnds.h"

#include <QtGui/QTextCursor>
#include <QtGui/QTextDocument>

using Workbench::LineEnds;

class tst_LineEnds : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void keepsEveryEnd_data();
    void keepsEveryEnd();
    void startsWithoutHistory();
    void tellsTheCommonEnd();
    void convertsAllAsOneStep();
    void givesNewLinesTheEndOfTheirNeighbour();
    void restoresTheEndsOfLinesThatComeBack();
};

void tst_LineEnds::keepsEveryEnd_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << QString();
    QTest::newRow("one line") << QStringLiteral("a");
    QTest::newRow("LF") << QStringLiteral("a\nb\n");
    QTest::newRow("CRLF") << QStringLiteral("a\r\nb\r\n\r\n");
    QTest::newRow("CR") << QStringLiteral("a\rb\r");
    QTest::newRow("mixed") << QStringLiteral("a\nb\r\nc\rd\r\r\ne\n\r");
    QTest::newRow("only ends") << QStringLiteral("\r\n\n\r");
    QTest::newRow("other separators") << QStringLiteral("a\u2029b\u2028c\u0085d\fe");
    QTest::newRow("no-break spaces") << QStringLiteral("a\u00A0b\n\u00A0");
}

void tst_LineEnds::keepsEveryEnd()
{
    QFETCH(QString, text);
    QTextDocument document;
    LineEnds::load(&document, text);
    QCOMPARE(LineEnds::text(&document), text);
}

void tst_LineEnds::startsWithoutHistory()
{
    QTextDocument document(QStringLiteral("before"));
    LineEnds::load(&document, QStringLiteral("a\r\nb"));
    QVERIFY(!document.isUndoAvailable());
    QVERIFY(document.isUndoRedoEnabled());
    QVERIFY(!document.isModified());
}

void tst_LineEnds::tellsTheCommonEnd()
{
    QTextDocument document;
    LineEnds::load(&document, QStringLiteral("a\r\nb\r\nc"));
    QCOMPARE(LineEnds::common(&document), LineEnds::LineEnd::CrLf);
    LineEnds::load(&document, QStringLiteral("a\rb\nc"));
    QVERIFY(!LineEnds::common(&document));
    LineEnds::load(&document, QStringLiteral("a"));
    QCOMPARE(LineEnds::common(&document), LineEnds::LineEnd::Lf);
}

void tst_LineEnds::convertsAllAsOneStep()
{
    QTextDocument document;
    LineEnds::load(&document, QStringLiteral("a\nb\r\nc\rd"));
    LineEnds::convert(&document, LineEnds::LineEnd::CrLf);
    QCOMPARE(LineEnds::text(&document), QStringLiteral("a\r\nb\r\nc\r\nd"));
    QVERIFY(document.isModified());

    document.undo();
    QCOMPARE(LineEnds::text(&document), QStringLiteral("a\nb\r\nc\rd"));
    QVERIFY(!document.isModified());
    QVERIFY(!document.isUndoAvailable());
    document.redo();
    QCOMPARE(LineEnds::text(&document), QStringLiteral("a\r\nb\r\nc\r\nd"));
}

void tst_LineEnds::givesNewLinesTheEndOfTheirNeighbour()
{
    QTextDocument document;
    LineEnds::load(&document, QStringLiteral("a\r\nb\r\n"));
    QTextCursor cursor(&document);
    cursor.movePosition(QTextCursor::EndOfBlock);
    cursor.insertBlock();
    cursor.insertText(QStringLiteral("new"));
    cursor.movePosition(QTextCursor::End);
    cursor.insertText(QStringLiteral("x\ny\nz"));
    QCOMPARE(LineEnds::text(&document), QStringLiteral("a\r\nnew\r\nb\r\nx\r\ny\r\nz"));
}

void tst_LineEnds::restoresTheEndsOfLinesThatComeBack()
{
    const QString text = QStringLiteral("a\nb\r\nc\rd\ne");
    QTextDocument document;
    LineEnds::load(&document, text);
    QTextCursor cursor(&document);
    cursor.select(QTextCursor::Document);
    cursor.removeSelectedText();
    document.undo();
    QCOMPARE(LineEnds::text(&document), text);
}

NORVANE_TEST_MAIN(tst_LineEnds)
#include "tst_LineEnds.moc"
