// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "WorkbenchWindow.h"

#include "ribbon/FindField.h"

#include <QtGui/QClipboard>

using namespace Workbench;

class tst_HomePage : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void savesByClick();
    void movesTextThroughTheClipboard();
    void movesPicturesThroughTheClipboard();
    void selectsAll();
    void undoesAndRedoesText();
    void undoesAndRedoesPictures();
    void offersOnlyWhatApplies();
    void offersPasteForTheKindOfClipboard();
    void findsByButtons();
    void goesToTheFieldFromAnyPage();
    void offersFindOnlyForTexts();
};

void tst_HomePage::savesByClick()
{
    const Files files;
    const WorkbenchWindow window({files.write(QStringLiteral("a.txt"), "a\r\n")});
    QVERIFY(!window.button(QStringLiteral("Save"))->isEnabled());
    QTest::keyClicks(window.editor(), QStringLiteral("b"));
    QCOMPARE(window.tabText(0), QStringLiteral("a.txt *"));
    QVERIFY(window.isWindowModified());
    window.clickButton(QStringLiteral("Save"));
    QCOMPARE(files.read(QStringLiteral("a.txt")), QByteArray("ba\r\n"));
    QCOMPARE(window.tabText(0), QStringLiteral("a.txt"));
    QVERIFY(!window.isWindowModified());
    QVERIFY(!window.button(QStringLiteral("Save"))->isEnabled());
}

void tst_HomePage::movesTextThroughTheClipboard()
{
    const Files files;
    const WorkbenchWindow window({files.write(QStringLiteral("a.txt"), "one two")});
    window.editor()->moveCursor(QTextCursor::EndOfWord, QTextCursor::KeepAnchor);
    window.clickButton(QStringLiteral("Copy"));
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("one"));
    window.clickButton(QStringLiteral("Cut"));
    QCOMPARE(window.editor()->toPlainText(), QStringLiteral(" two"));
    window.editor()->moveCursor(QTextCursor::End);
    window.clickButton(QStringLiteral("Paste"));
    QCOMPARE(window.editor()->toPlainText(), QStringLiteral(" twoone"));
    QGuiApplication::clipboard()->clear();
}

void tst_HomePage::movesPicturesThroughTheClipboard()
{
    const Files files;
    const WorkbenchWindow window({files.writeQuarters(QStringLiteral("a.png"), QSize(40, 20))});
    window.view()->setSelection(QRect(0, 0, 10, 5));
    window.clickButton(QStringLiteral("Copy"));
    QCOMPARE(QGuiApplication::clipboard()->image().size(), QSize(10, 5));
    window.clickButton(QStringLiteral("Cut"));
    QCOMPARE(window.view()->image().pixelColor(0, 0), QColor(Qt::white));
    QCOMPARE(window.view()->image().pixelColor(10, 0), QColor(Qt::red));
    window.view()->setSelection(QRect(30, 15, 1, 1));
    window.clickButton(QStringLiteral("Paste"));
    QCOMPARE(window.view()->image().pixelColor(30, 15), QColor(Qt::red));
    QCOMPARE(window.view()->image().pixelColor(29, 15), QColor(Qt::white));
    window.clickButton(QStringLiteral("Save"));
    QCOMPARE(QImage(files.path(QStringLiteral("a.png"))).pixelColor(30, 15), QColor(Qt::red));
    QGuiApplication::clipboard()->clear();
}

void tst_HomePage::selectsAll()
{
    const Files files;
    const WorkbenchWindow window({files.write(QStringLiteral("a.txt"), "one\ntwo"),
                                  files.writeQuarters(QStringLiteral("a.png"), QSize(40, 20))});
    window.clickButton(QStringLiteral("Select All"));
    QCOMPARE(window.view()->selection(), QRect(0, 0, 40, 20));
    window.clickTab(QStringLiteral("a.txt"));
    window.clickButton(QStringLiteral("Select All"));
    QCOMPARE(window.editor()->textCursor().selectionEnd(), 7);
}

void tst_HomePage::undoesAndRedoesText()
{
    const Files files;
    const WorkbenchWindow window({files.write(QStringLiteral("a.txt"), "a")});
    QTest::keyClicks(window.editor(), QStringLiteral("bc"));
    window.clickButton(QStringLiteral("Undo"));
    QCOMPARE(window.editor()->toPlainText(), QStringLiteral("a"));
    QVERIFY(!window.button(QStringLiteral("Undo"))->isEnabled());
    QVERIFY(!window.button(QStringLiteral("Save"))->isEnabled());
    window.clickButton(QStringLiteral("Redo"));
    QCOMPARE(window.editor()->toPlainText(), QStringLiteral("bca"));
    QVERIFY(!window.button(QStringLiteral("Redo"))->isEnabled());
}

void tst_HomePage::undoesAndRedoesPictures()
{
    const Files files;
    const WorkbenchWindow window({files.writeQuarters(QStringLiteral("a.png"), QSize(40, 20))});
    window.picture()->turn(PictureTurnCommand::Turn::Left);
    window.clickButton(QStringLiteral("Undo"));
    QCOMPARE(window.view()->image(), Files::quarters(QSize(40, 20)));
    window.clickButton(QStringLiteral("Redo"));
    QCOMPARE(window.view()->image().size(), QSize(20, 40));
}

void tst_HomePage::offersOnlyWhatApplies()
{
    QGuiApplication::clipboard()->clear();
    const Files files;
    WorkbenchWindow window;
    const auto enabled = [&](const char *command) {
        return window.button(QString::fromLatin1(command))->isEnabled();
    };
    QVERIFY(enabled("Open"));
    for (const char *command : {"Save", "Save As", "Close", "Paste", "Cut", "Copy", "Select All",
                                "Undo", "Redo", "Find Next"})
        QVERIFY2(!enabled(command), command);

    window.open({files.write(QStringLiteral("a.txt"), "one two")});
    for (const char *command : {"Save As", "Close", "Select All", "Find Next", "Find Previous"})
        QVERIFY2(enabled(command), command);
    for (const char *command : {"Save", "Paste", "Cut", "Copy", "Undo", "Redo"})
        QVERIFY2(!enabled(command), command);
    window.editor()->selectAll();
    QVERIFY(enabled("Cut"));
    QVERIFY(enabled("Copy"));
    window.editor()->moveCursor(QTextCursor::Start);
    QVERIFY(!enabled("Copy"));

    // Commands that the mouse does not reach are not carried out, either.
    window.clickButton(QStringLiteral("Close"));
    const QList<QAction *> commands = window.commands();
    for (QAction *command : commands) {
        if (!command->isEnabled())
            command->trigger();
    }
    QCOMPARE(window.tabs()->documents().size(), 0);
}

void tst_HomePage::offersPasteForTheKindOfClipboard()
{
    const Files files;
    const WorkbenchWindow window({files.write(QStringLiteral("a.txt"), "a"),
                                  files.writeQuarters(QStringLiteral("a.png"), QSize(40, 20))});
    QGuiApplication::clipboard()->setText(QStringLiteral("text"));
    QTRY_VERIFY(!window.button(QStringLiteral("Paste"))->isEnabled());
    window.clickTab(QStringLiteral("a.txt"));
    QVERIFY(window.button(QStringLiteral("Paste"))->isEnabled());
    QGuiApplication::clipboard()->setImage(Files::quarters(QSize(4, 4)));
    QTRY_VERIFY(!window.button(QStringLiteral("Paste"))->isEnabled());
    window.clickTab(QStringLiteral("a.png"));
    QVERIFY(window.button(QStringLiteral("Paste"))->isEnabled());
    QGuiApplication::clipboard()->clear();
}

void tst_HomePage::findsByButtons()
{
    const Files files;
    const WorkbenchWindow window({files.write(QStringLiteral("a.txt"), "ab AB abc ab")});
    auto *field = window.findChild<FindField *>();
    Gui::click(field);
    QVERIFY(field->hasFocus());
    window.type(QStringLiteral("ab"));
    const auto at = [&] { return window.editor()->textCursor().selectionStart(); };
    QCOMPARE(at(), 0);
    window.clickButton(QStringLiteral("Find Next"));
    QCOMPARE(at(), 3);
    window.clickButton(QStringLiteral("Match Case"));
    QCOMPARE(at(), 6);
    window.clickButton(QStringLiteral("Whole Words"));
    QCOMPARE(at(), 10);
    window.clickButton(QStringLiteral("Find Previous"));
    QCOMPARE(at(), 0);
    window.clickButton(QStringLiteral("Match Case"));
    window.clickButton(QStringLiteral("Find Next"));
    QCOMPARE(at(), 3);
}

void tst_HomePage::goesToTheFieldFromAnyPage()
{
    const Files files;
    const WorkbenchWindow window({files.write(QStringLiteral("a.txt"), "a")});
    auto *field = window.findChild<FindField *>();
    for (const char *page : {"View", "Text", "Home"}) {
        window.clickPage(QString::fromLatin1(page));
        window.editor()->setFocus();
        window.key(Qt::Key_F, Qt::ControlModifier);
        QTRY_VERIFY(field->hasFocus());
        QVERIFY(field->isVisible());
        QCOMPARE(window.currentPage(), QStringLiteral("Home"));
    }
}

void tst_HomePage::offersFindOnlyForTexts()
{
    const Files files;
    const WorkbenchWindow window({files.write(QStringLiteral("a.txt"), "a"),
                                  files.writeQuarters(QStringLiteral("a.png"), QSize(40, 20))});
    auto *field = window.findChild<FindField *>();
    QVERIFY(!field->isEnabled());
    QVERIFY(!window.button(QStringLiteral("Find Next"))->isEnabled());
    window.clickTab(QStringLiteral("a.txt"));
    QVERIFY(field->isEnabled());
}

NORVANE_TEST_MAIN(tst_HomePage)
#include "tst_HomePage.moc"
