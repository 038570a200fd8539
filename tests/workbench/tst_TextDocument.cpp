// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "Files.h"
#include "TestCase.h"
#include "text/TextDocument.h"
#include "text/TextEditor.h"
#include "text/TextOptions.h"

#include <QtCore/QMimeData>
#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>
#include <QtGui/QTextBlock>
#include <QtTest/QSignalSpy>

#ifdef Q_OS_UNIX
#    include <sys/stat.h>
#endif

using namespace Workbench;

Q_DECLARE_METATYPE(Workbench::TextCodec::Encoding)

class tst_TextDocument : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void savesWhatItRead_data();
    void savesWhatItRead();
    void savesInAnotherEncoding_data();
    void savesInAnotherEncoding();
    void savesWithOtherLineEnds_data();
    void savesWithOtherLineEnds();
    void keepsLineEndsWhileTyping();
    void reportsWhatIsNoUtf8();
    void reportsMixedLineEnds();
    void protectsWhatItCannotDecode();
    void protectsWhatATextDocumentCannotHold();
    void refusesToLoseCharacters();
    void leavesTheFileWhenItCannotSave();
    void refusesWhatIsNoText();
    void refusesWhatIsNoFile();
    void isModifiedByEncodingAlone();
    void startsAtTheTop();
    void followsTheLineEndsThroughUndo();
    void makesAPlainLineOfShiftEnter();
    void zoomsInStepsAndBack();
    void followsTheOptions();
    void pastesTextButNoFiles();
    void summarises();
};

void tst_TextDocument::savesWhatItRead_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("UTF-8, LF") << QByteArray("caf\xC3\xA9\nb");
    QTest::newRow("UTF-8 with BOM, CRLF") << QByteArray("\xEF\xBB\xBF"
                                                        "a\r\n");
    QTest::newRow("UTF-16 LE, CR") << QByteArray("\xFF\xFE"
                                                 "a\0\r\0b\0",
                                                 8);
    QTest::newRow("UTF-16 BE") << QByteArray("\xFE\xFF\0a\0\n", 6);
    QTest::newRow("Latin-1, mixed") << QByteArray("caf\xE9\nb\r\nc\r\xA0");
    QTest::newRow("tabs and trailing space") << QByteArray("\ta \n \n\n");
}

void tst_TextDocument::savesWhatItRead()
{
    QFETCH(QByteArray, bytes);
    const Files files;
    TextOptions options;
    TextDocument document(&options);
    QString error;
    QVERIFY2(document.load(files.write(QStringLiteral("in.txt"), bytes), &error),
             qPrintable(error));
    QVERIFY(!document.isModified());
    QVERIFY2(document.saveAs(files.path(QStringLiteral("out.txt")), &error), qPrintable(error));
    QCOMPARE(files.read(QStringLiteral("out.txt")), bytes);
    QCOMPARE(document.path(), files.path(QStringLiteral("out.txt")));
    QCOMPARE(document.title(), QStringLiteral("out.txt"));
    QCOMPARE(files.read(QStringLiteral("in.txt")), bytes);
}

void tst_TextDocument::savesInAnotherEncoding_data()
{
    using Encoding = TextCodec::Encoding;
    QTest::addColumn<Encoding>("encoding");
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("UTF-8") << Encoding::Utf8 << QByteArray("\xC3\xA9\n");
    QTest::newRow("UTF-8 with BOM") << Encoding::Utf8Bom << QByteArray("\xEF\xBB\xBF\xC3\xA9\n");
    QTest::newRow("UTF-16 LE") << Encoding::Utf16Le << QByteArray("\xFF\xFE\xE9\0\n\0", 6);
    QTest::newRow("UTF-16 BE") << Encoding::Utf16Be << QByteArray("\xFE\xFF\0\xE9\0\n", 6);
}

void tst_TextDocument::savesInAnotherEncoding()
{
    QFETCH(TextCodec::Encoding, encoding);
    QFETCH(QByteArray, bytes);
    const Files files;
    TextOptions options;
    TextDocument document(&options);
    QString error;
    QVERIFY(document.load(files.write(QStringLiteral("a.txt"), "\xE9\n"), &error));
    QSignalSpy changed(&document, &Document::changed);
    document.setEncoding(encoding);
    QCOMPARE(changed.count(), 1);
    QVERIFY(document.isModified());
    QVERIFY2(document.save(&error), qPrintable(error));
    QVERIFY(!document.isModified());
    QCOMPARE(files.read(QStringLiteral("a.txt")), bytes);
}

void tst_TextDocument::savesWithOtherLineEnds_data()
{
    QTest::addColumn<int>("end");
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("LF") << int(LineEnds::LineEnd::Lf) << QByteArray("a\nb\nc\n");
    QTest::newRow("CRLF") << int(LineEnds::LineEnd::CrLf) << QByteArray("a\r\nb\r\nc\r\n");
    QTest::newRow("CR") << int(LineEnds::LineEnd::Cr) << QByteArray("a\rb\rc\r");
}

void tst_TextDocument::savesWithOtherLineEnds()
{
    QFETCH(int, end);
    QFETCH(QByteArray, bytes);
    const Files files;
    TextOptions options;
    TextDocument document(&options);
    QString error;
    QVERIFY(document.load(files.write(QStringLiteral("a.txt"), "a\nb\r\nc\r"), &error));
    document.setLineEnd(LineEnds::LineEnd(end));
    QCOMPARE(document.lineEnd(), LineEnds::LineEnd(end));
    QVERIFY(document.isModified());
    QVERIFY(document.save(&error));
    QCOMPARE(files.read(QStringLiteral("a.txt")), bytes);

    document.undo();
    QVERIFY(!document.lineEnd());
    QVERIFY(document.isModified());
}

void tst_TextDocument::keepsLineEndsWhileTyping()
{
    const Files files;
    TextOptions options;
    TextDocument document(&options);
    QString error;
    QVERIFY(document.load(files.write(QStringLiteral("a.txt"), "a\r\nb\r\n"), &error));
    auto *editor = document.findChild<TextEditor *>();
    QTest::keyClick(editor, Qt::Key_End);
    QTest::keyClick(editor, Qt::Key_Return);
    QTest::keyClicks(editor, QStringLiteral("new"));
    editor->moveCursor(QTextCursor::End);
    QTest::keyClicks(editor, QStringLiteral("last"));
    QTest::keyClick(editor, Qt::Key_Return);
    QCOMPARE(document.lineEnd(), LineEnds::LineEnd::CrLf);
    QVERIFY(document.save(&error));
    QCOMPARE(files.read(QStringLiteral("a.txt")), QByteArray("a\r\nnew\r\nb\r\nlast\r\n"));
}

void tst_TextDocument::reportsWhatIsNoUtf8()
{
    const Files files;
    TextOptions options;
    TextDocument document(&options);
    QString error;
    QVERIFY(document.load(files.write(QStringLiteral("a.txt"), "one\ntw\xF6\n"), &error));
    QVERIFY(document.notice().contains(QStringLiteral("line 2")));
    QVERIFY(document.notice().contains(QStringLiteral("Latin-1")));
    QVERIFY(!document.isReadOnly());

    TextDocument clean(&options);
    QVERIFY(clean.load(files.write(QStringLiteral("b.txt"), "tw\xC3\xB6\n"), &error));
    QCOMPARE(clean.notice(), QString());
}

void tst_TextDocument::reportsMixedLineEnds()
{
    const Files files;
    TextOptions options;
    TextDocument document(&options);
    QString error;
    QVERIFY(document.load(files.write(QStringLiteral("a.txt"), "a\nb\r\n"), &error));
    QVERIFY(document.notice().contains(QStringLiteral("different ways")));
    QVERIFY(document.summary().contains(QStringLiteral("Mixed")));
}

void tst_TextDocument::protectsWhatItCannotDecode()
{
    const QByteArray bytes("\xFF\xFE"
                           "a\0b",
                           5);
    const Files files;
    TextOptions options;
    TextDocument document(&options);
    QString error;
    QVERIFY(document.load(files.write(QStringLiteral("a.txt"), bytes), &error));
    QVERIFY(document.isReadOnly());
    QVERIFY(document.notice().contains(QStringLiteral("UTF-16 LE")));

    auto *editor = document.findChild<TextEditor *>();
    QTest::keyClicks(editor, QStringLiteral("x"));
    QTest::keyClick(editor, Qt::Key_Return, Qt::ShiftModifier);
    document.setEncoding(TextCodec::Encoding::Utf8);
    document.setLineEnd(LineEnds::LineEnd::CrLf);
    document.edit([](QTextCursor *cursor) { cursor->insertText(QStringLiteral("y")); });
    QVERIFY(!document.isModified());
    QVERIFY(!document.canPaste());
    QVERIFY(!document.saveAs(files.path(QStringLiteral("b.txt")), &error));
    QVERIFY(!error.isEmpty());
    QVERIFY(!QFile::exists(files.path(QStringLiteral("b.txt"))));
    QCOMPARE(files.read(QStringLiteral("a.txt")), bytes);
}

void tst_TextDocument::protectsWhatATextDocumentCannotHold()
{
    // U+FDD0 is valid UTF-8, but a mark of its own to a QTextDocument.
    const Files files;
    TextOptions options;
    TextDocument document(&options);
    QString error;
    QVERIFY(document.load(files.write(QStringLiteral("a.txt"),
                                      "a\xEF\xB7\x90"
                                      "b"),
                          &error));
    QVERIFY(document.isReadOnly());
}

void tst_TextDocument::refusesToLoseCharacters()
{
    const QByteArray bytes("one\ntwo \xE2\x82\xAC\n");
    const Files files;
    TextOptions options;
    TextDocument document(&options);
    QString error;
    QVERIFY(document.load(files.write(QStringLiteral("a.txt"), bytes), &error));
    document.setEncoding(TextCodec::Encoding::Latin1);
    QVERIFY(!document.save(&error));
    QVERIFY(error.contains(QStringLiteral("Line 2")));
    QVERIFY(error.contains(QStringLiteral("Latin-1")));
    QVERIFY(document.isModified());
    QCOMPARE(files.read(QStringLiteral("a.txt")), bytes);
}

void tst_TextDocument::leavesTheFileWhenItCannotSave()
{
    const Files files;
    TextOptions options;
    TextDocument document(&options);
    QString error;
    QVERIFY(document.load(files.write(QStringLiteral("a.txt"), "a"), &error));
    document.setEncoding(TextCodec::Encoding::Utf8Bom);
    QVERIFY(!document.saveAs(files.path(QStringLiteral("none/a.txt")), &error));
    QVERIFY(!error.isEmpty());
    QVERIFY(document.isModified());
    QCOMPARE(document.path(), files.path(QStringLiteral("a.txt")));
}

void tst_TextDocument::refusesWhatIsNoText()
{
    const Files files;
    TextOptions options;
    TextDocument document(&options);
    QString error;
    QVERIFY(!document.load(files.write(QStringLiteral("a.bin"), QByteArray("a\0b", 3)), &error));
    QVERIFY(document.isBinary());
    QVERIFY(!error.isEmpty());
}

void tst_TextDocument::refusesWhatIsNoFile()
{
    const Files files;
    TextOptions options;
    TextDocument document(&options);
    QString error;
    QVERIFY(!document.load(files.path(QStringLiteral("none.txt")), &error));
    QVERIFY(!error.isEmpty());
    error.clear();
    QVERIFY(!document.load(files.folder(), &error));
    QVERIFY(!error.isEmpty());
    QVERIFY(!document.isBinary());
#ifdef Q_OS_UNIX
    // Nobody writes to the pipe: opening it would wait for ever.
    const QString pipe = files.path(QStringLiteral("pipe"));
    QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    error.clear();
    QVERIFY(!document.load(pipe, &error));
    QVERIFY(!error.isEmpty());
#endif
}

void tst_TextDocument::isModifiedByEncodingAlone()
{
    const Files files;
    TextOptions options;
    TextDocument document(&options);
    QString error;
    QVERIFY(document.load(files.write(QStringLiteral("a.txt"), "a"), &error));
    document.setEncoding(TextCodec::Encoding::Utf16Be);
    QVERIFY(document.isModified());
    document.setEncoding(TextCodec::Encoding::Utf8);
    QVERIFY(!document.isModified());
}

void tst_TextDocument::startsAtTheTop()
{
    const Files files;
    TextOptions options;
    TextDocument document(&options);
    QString error;
    QVERIFY(document.load(files.write(QStringLiteral("a.txt"), "a\nb\n"), &error));
    QCOMPARE(document.findChild<TextEditor *>()->textCursor().position(), 0);
    QVERIFY(!document.canUndo());
    QVERIFY(!document.canCopy());
}

void tst_TextDocument::followsTheLineEndsThroughUndo()
{
    const Files files;
    TextOptions options;
    TextDocument document(&options);
    QString error;
    QVERIFY(document.load(files.write(QStringLiteral("a.txt"), "\n"), &error));
    QCOMPARE(document.lineEnd(), LineEnds::LineEnd::Lf);
    // The shortest changes of format: of two empty lines, and of one.
    document.setLineEnd(LineEnds::LineEnd::Cr);
    QCOMPARE(document.lineEnd(), LineEnds::LineEnd::Cr);
    document.undo();
    QCOMPARE(document.lineEnd(), LineEnds::LineEnd::Lf);
    auto *editor = document.findChild<TextEditor *>();
    QTest::keyClick(editor, Qt::Key_Delete);
    document.setLineEnd(LineEnds::LineEnd::CrLf);
    QCOMPARE(document.lineEnd(), LineEnds::LineEnd::CrLf);
}

void tst_TextDocument::makesAPlainLineOfShiftEnter()
{
    const Files files;
    TextOptions options;
    TextDocument document(&options);
    QString error;
    QVERIFY(document.load(files.write(QStringLiteral("a.txt"), "ab"), &error));
    auto *editor = document.findChild<TextEditor *>();
    QTest::keyClick(editor, Qt::Key_Right);
    QTest::keyClick(editor, Qt::Key_Return, Qt::ShiftModifier);
    QVERIFY(document.save(&error));
    QCOMPARE(files.read(QStringLiteral("a.txt")), QByteArray("a\nb"));
}

void tst_TextDocument::zoomsInStepsAndBack()
{
    TextOptions options;
    TextDocument document(&options);
    const qreal size = document.findChild<TextEditor *>()->font().pointSizeF();
    document.zoomIn();
    QVERIFY(document.zoom() > 1);
    QVERIFY(document.findChild<TextEditor *>()->font().pointSizeF() > size);
    document.zoomOut();
    QCOMPARE(document.zoom(), 1.0);
    QCOMPARE(document.findChild<TextEditor *>()->font().pointSizeF(), size);
    for (int i = 0; i < 50; ++i)
        document.zoomOut();
    QVERIFY(document.zoom() > 0);
    const qreal least = document.zoom();
    document.zoomIn();
    QVERIFY(document.zoom() > least);
    for (int i = 0; i < 50; ++i)
        document.zoomIn();
    const qreal most = document.zoom();
    document.zoomOut();
    QVERIFY(document.zoom() < most);
}

void tst_TextDocument::followsTheOptions()
{
    TextOptions options;
    TextDocument document(&options);
    auto *editor = document.findChild<TextEditor *>();
    document.setZoom(2);
    QFont font = options.font();
    font.setPointSize(21);
    options.setFont(font);
    QCOMPARE(editor->font().pointSizeF(), 42.0);
    options.setWrap(true);
    QCOMPARE(editor->lineWrapMode(), QPlainTextEdit::WidgetWidth);
    options.setWrap(false);
    QCOMPARE(editor->lineWrapMode(), QPlainTextEdit::NoWrap);
}

void tst_TextDocument::pastesTextButNoFiles()
{
    TextOptions options;
    TextDocument document(&options);
    QGuiApplication::clipboard()->setText(QStringLiteral("text"));
    QVERIFY(document.canPaste());
    auto *files = new QMimeData;
    files->setUrls({QUrl::fromLocalFile(QStringLiteral("/a.txt"))});
    QGuiApplication::clipboard()->setMimeData(files);
    QVERIFY(!document.canPaste());
    QGuiApplication::clipboard()->setText(QStringLiteral("text"));
    document.paste();
    QCOMPARE(document.findChild<TextEditor *>()->toPlainText(), QStringLiteral("text"));
    QGuiApplication::clipboard()->clear();
}

void tst_TextDocument::summarises()
{
    const Files files;
    TextOptions options;
    TextDocument document(&options);
    QString error;
    QVERIFY(document.load(files.write(QStringLiteral("a.txt"),
                                      "\xEF\xBB\xBF"
                                      "a\r\nbc"),
                          &error));
    auto *editor = document.findChild<TextEditor *>();
    QTest::keyClick(editor, Qt::Key_Down);
    QTest::keyClick(editor, Qt::Key_End);
    const QString summary = document.summary();
    for (const QString &part :
         {QStringLiteral("Line 2, column 3"), QStringLiteral("UTF-8 with BOM"),
          QStringLiteral("CRLF"), QStringLiteral("100%")})
        QVERIFY2(summary.contains(part), qPrintable(summary));
}

NORVANE_TEST_MAIN(tst_TextDocument)
#include "tst_TextDocument.moc"
