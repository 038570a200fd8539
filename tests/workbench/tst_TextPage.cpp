// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "WorkbenchWindow.h"
#include "text/SnippetGallery.h"

#include <QtCore/QDate>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QFontComboBox>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QSpinBox>

using namespace Workbench;

class tst_TextPage : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void savesInThePickedEncoding_data();
    void savesInThePickedEncoding();
    void savesWithThePickedLineEnds_data();
    void savesWithThePickedLineEnds();
    void marksNoLineEndOfAMixedText();
    void sortsByClickAndFromTheMenu();
    void editsByClick_data();
    void editsByClick();
    void setsTheFontOfAllTexts();
    void insertsSnippets();
    void replacesTheSelectionByASnippet();
    void protectsATextThatCannotBeChanged();
};

static QStringList checked(const WorkbenchWindow &window, const QString &command)
{
    QStringList texts;
    const QList<QAction *> actions = window.command(command)->menu()->actions();
    for (const QAction *action : actions) {
        if (action->isChecked())
            texts << action->text();
    }
    return texts;
}

void tst_TextPage::savesInThePickedEncoding_data()
{
    QTest::addColumn<QString>("encoding");
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("UTF-8") << QStringLiteral("UTF-8") << QByteArray("\xC3\xA9");
    QTest::newRow("UTF-8 with BOM")
        << QStringLiteral("UTF-8 with BOM") << QByteArray("\xEF\xBB\xBF\xC3\xA9");
    QTest::newRow("UTF-16 LE") << QStringLiteral("UTF-16 LE") << QByteArray("\xFF\xFE\xE9\0", 4);
    QTest::newRow("UTF-16 BE") << QStringLiteral("UTF-16 BE") << QByteArray("\xFE\xFF\0\xE9", 4);
    QTest::newRow("Latin-1") << QStringLiteral("Latin-1") << QByteArray("\xE9");
}

void tst_TextPage::savesInThePickedEncoding()
{
    QFETCH(QString, encoding);
    QFETCH(QByteArray, bytes);
    const Files files;
    const bool fromLatin1 = encoding == QStringLiteral("UTF-8");
    const WorkbenchWindow window(
        {files.write(QStringLiteral("a.txt"), fromLatin1 ? "\xE9" : "\xC3\xA9")});
    window.clickPage(QStringLiteral("Text"));
    QCOMPARE(checked(window, QStringLiteral("Encoding")),
             QStringList{fromLatin1 ? QStringLiteral("Latin-1") : QStringLiteral("UTF-8")});
    window.pick(QStringLiteral("Encoding"), encoding);
    QCOMPARE(checked(window, QStringLiteral("Encoding")), QStringList{encoding});
    QVERIFY(window.document()->summary().contains(encoding));
    window.clickPage(QStringLiteral("Home"));
    window.clickButton(QStringLiteral("Save"));
    QCOMPARE(files.read(QStringLiteral("a.txt")), bytes);
}

void tst_TextPage::savesWithThePickedLineEnds_data()
{
    QTest::addColumn<QString>("end");
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("LF") << QStringLiteral("LF (Unix)") << QByteArray("a\nb\nc");
    QTest::newRow("CRLF") << QStringLiteral("CRLF (Windows)") << QByteArray("a\r\nb\r\nc");
    QTest::newRow("CR") << QStringLiteral("CR (old Mac)") << QByteArray("a\rb\rc");
}

void tst_TextPage::savesWithThePickedLineEnds()
{
    QFETCH(QString, end);
    QFETCH(QByteArray, bytes);
    const Files files;
    const WorkbenchWindow window({files.write(QStringLiteral("a.txt"), "a\nb\r\nc")});
    window.clickPage(QStringLiteral("Text"));
    window.pick(QStringLiteral("Line Ends"), end);
    QCOMPARE(checked(window, QStringLiteral("Line Ends")), QStringList{end});
    window.clickPage(QStringLiteral("Home"));
    window.clickButton(QStringLiteral("Save"));
    QCOMPARE(files.read(QStringLiteral("a.txt")), bytes);
    window.clickButton(QStringLiteral("Undo"));
    QVERIFY(checked(window, QStringLiteral("Line Ends")).isEmpty());
}

void tst_TextPage::marksNoLineEndOfAMixedText()
{
    const Files files;
    const WorkbenchWindow window({files.write(QStringLiteral("a.txt"), "a\nb\r\nc")});
    window.clickPage(QStringLiteral("Text"));
    QVERIFY(checked(window, QStringLiteral("Line Ends")).isEmpty());
    window.pick(QStringLiteral("Line Ends"), QStringLiteral("LF (Unix)"));
    // What is picked again stays.
    window.pick(QStringLiteral("Line Ends"), QStringLiteral("LF (Unix)"));
    QCOMPARE(checked(window, QStringLiteral("Line Ends")),
             QStringList{QStringLiteral("LF (Unix)")});
}

void tst_TextPage::sortsByClickAndFromTheMenu()
{
    const Files files;
    const WorkbenchWindow window({files.write(QStringLiteral("a.txt"), "b\r\nc\r\na\r\n")});
    window.clickPage(QStringLiteral("Text"));
    window.clickButton(QStringLiteral("Sort"));
    QCOMPARE(window.editor()->toPlainText(), QStringLiteral("a\nb\nc\n"));
    window.editor()->moveCursor(QTextCursor::Start);
    window.pick(QStringLiteral("Sort"), QStringLiteral("Sort Z to A"));
    QCOMPARE(window.editor()->toPlainText(), QStringLiteral("c\nb\na\n"));
    window.editor()->moveCursor(QTextCursor::Start);
    window.pick(QStringLiteral("Sort"), QStringLiteral("Sort A to Z"));
    QCOMPARE(window.editor()->toPlainText(), QStringLiteral("a\nb\nc\n"));
    window.key(Qt::Key_S, Qt::ControlModifier);
    QTRY_COMPARE(files.read(QStringLiteral("a.txt")), QByteArray("a\r\nb\r\nc\r\n"));
}

void tst_TextPage::editsByClick_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<QString>("after");
    QTest::newRow("indent") << QStringLiteral("Indent") << QStringLiteral("        One\n    two");
    QTest::newRow("outdent") << QStringLiteral("Outdent") << QStringLiteral("One\ntwo");
    QTest::newRow("upper") << QStringLiteral("Upper Case") << QStringLiteral("    ONE\nTWO");
    QTest::newRow("lower") << QStringLiteral("Lower Case") << QStringLiteral("    one\ntwo");
}

void tst_TextPage::editsByClick()
{
    QFETCH(QString, command);
    QFETCH(QString, after);
    const Files files;
    const WorkbenchWindow window({files.write(QStringLiteral("a.txt"), "    One\ntwo")});
    window.editor()->selectAll();
    window.clickPage(QStringLiteral("Text"));
    window.clickButton(command);
    QCOMPARE(window.editor()->toPlainText(), after);
    window.document()->undo();
    QCOMPARE(window.editor()->toPlainText(), QStringLiteral("    One\ntwo"));
    QVERIFY(!window.document()->isModified());
}

void tst_TextPage::setsTheFontOfAllTexts()
{
    const Files files;
    const WorkbenchWindow window(
        {files.write(QStringLiteral("a.txt"), "a"), files.write(QStringLiteral("b.txt"), "b")});
    window.clickPage(QStringLiteral("Text"));
    auto *size = window.ribbon()->findChild<QSpinBox *>();
    QCOMPARE(size->value(), window.editor()->font().pointSize());
    Gui::click(size, QPoint(20, 10));
    window.key(Qt::Key_A, Qt::ControlModifier);
    window.type(QStringLiteral("23"));
    window.key(Qt::Key_Return);
    const QList<TextEditor *> editors = window.findChildren<TextEditor *>();
    for (const TextEditor *editor : editors)
        QCOMPARE(editor->font().pointSize(), 23);

    auto *family = window.ribbon()->findChild<QFontComboBox *>();
    family->setCurrentIndex(family->findText(QStringLiteral("DejaVu Sans")));
    for (const TextEditor *editor : editors) {
        QCOMPARE(editor->font().family(), QStringLiteral("DejaVu Sans"));
        QCOMPARE(editor->font().pointSize(), 23);
    }
    QVERIFY(!window.document()->isModified());
}

static void pickSnippet(const WorkbenchWindow &window, const QString &name)
{
    const auto *gallery = window.ribbon()->findChild<SnippetGallery *>();
    const auto *opener = gallery->findChild<QPushButton *>(QStringLiteral("popupButton"));
    WorkbenchWindow::openMenu([opener] { Gui::click(opener); },
                              [&name](QMenu *menu) {
                                  const auto items = menu->findChildren<QToolButton *>();
                                  for (const QToolButton *item : items) {
                                      if (item->text() == name) {
                                          Gui::click(item);
                                          return;
                                      }
                                  }
                              });
}

void tst_TextPage::insertsSnippets()
{
    const Files files;
    const WorkbenchWindow window({files.write(QStringLiteral("a.txt"), "one\r\ntwo")});
    window.clickPage(QStringLiteral("Text"));
    window.editor()->setFocus();
    window.key(Qt::Key_End);
    window.type(QStringLiteral("!"));
    pickSnippet(window, QStringLiteral("Bullets"));
    QCOMPARE(window.editor()->toPlainText(),
             QStringLiteral("one!- First\n- Second\n- Third\n\ntwo"));
    window.clickButton(QStringLiteral("ISO Date"));
    const QString date = QDate::currentDate().toString(Qt::ISODate);
    QCOMPARE(window.editor()->toPlainText(),
             QStringLiteral("one!- First\n- Second\n- Third\n%1\ntwo").arg(date));
    // The keys go on to the text, behind what was inserted.
    window.type(QStringLiteral("?"));
    window.key(Qt::Key_S, Qt::ControlModifier);
    QTRY_COMPARE(files.read(QStringLiteral("a.txt")),
                 "one!- First\r\n- Second\r\n- Third\r\n" + date.toLatin1() + "?\r\ntwo");
    // What is typed next is undone with the snippet, as after pasting.
    window.document()->undo();
    QCOMPARE(window.editor()->toPlainText(),
             QStringLiteral("one!- First\n- Second\n- Third\n\ntwo"));
    window.document()->undo();
    QCOMPARE(window.editor()->toPlainText(), QStringLiteral("one!\ntwo"));
}

void tst_TextPage::replacesTheSelectionByASnippet()
{
    const Files files;
    const WorkbenchWindow window({files.write(QStringLiteral("a.txt"), "one\ntwo")});
    window.clickPage(QStringLiteral("Text"));
    window.editor()->selectAll();
    pickSnippet(window, QStringLiteral("Arrow"));
    QCOMPARE(window.editor()->toPlainText(), QString(QChar(0x2192)));
    window.document()->undo();
    QCOMPARE(window.editor()->toPlainText(), QStringLiteral("one\ntwo"));
    QVERIFY(!window.document()->isModified());
}

void tst_TextPage::protectsATextThatCannotBeChanged()
{
    const Files files;
    const WorkbenchWindow window({files.write(QStringLiteral("a.txt"),
                                              QByteArray("\xFF\xFE"
                                                         "a\0b",
                                                         5))});
    window.clickPage(QStringLiteral("Text"));
    for (const char *command :
         {"Encoding", "Line Ends", "Sort", "Indent", "Outdent", "Upper Case", "Lower Case"})
        QVERIFY2(!window.button(QString::fromLatin1(command))->isEnabled(), command);
    QVERIFY(!window.ribbon()->findChild<SnippetGallery *>()->isEnabled());
}

NORVANE_TEST_MAIN(tst_TextPage)
#include "tst_TextPage.moc"
