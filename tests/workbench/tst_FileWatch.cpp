// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "WorkbenchWindow.h"

#include "documents/NoticeBar.h"

#include <QtCore/QDir>
#include <QtWidgets/QPushButton>

using namespace Qt::StringLiterals;
using namespace Workbench;

class tst_FileWatch : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void readsATextAgain();
    void readsAPictureAgain();
    void followsAFileThatIsReplaced();
    void asksWhereWorkWouldBeLost();
    void readsAgainWhenAsked();
    void asksBeforeItReplacesWhatAnotherWrote_data();
    void asksBeforeItReplacesWhatAnotherWrote();
    void keepsWhatIsInNoFileAnyMore();
    void keepsTheTextIfTheFileIsNoTextAnyMore();
    void ignoresItsOwnSaving();
    void followsASavedCopy();
};

namespace {

QString shownText(const WorkbenchWindow &window)
{
    return window.editor()->toPlainText();
}

const QPushButton *noticeButton(const WorkbenchWindow &window, const QString &text)
{
    const QList<QPushButton *> buttons =
        window.document()->findChild<NoticeBar *>()->findChildren<QPushButton *>();
    for (const QPushButton *button : buttons) {
        if (button->text() == text && button->isVisible())
            return button;
    }
    return nullptr;
}

} // namespace

void tst_FileWatch::readsATextAgain()
{
    const Files files;
    const QString path = files.write(u"a.txt"_s, "one two three");
    const WorkbenchWindow window({path});
    QTextCursor cursor = window.editor()->textCursor();
    cursor.setPosition(4);
    window.editor()->setTextCursor(cursor);
    files.write(u"a.txt"_s, "one two three four");
    QTRY_COMPARE(shownText(window), u"one two three four"_s);
    QCOMPARE(window.editor()->textCursor().position(), 4);
    QVERIFY(!window.document()->isModified());
    QVERIFY(!window.document()->canUndo());
    QVERIFY(window.document()->notice().isEmpty());

    // A shorter text, and once more.
    files.write(u"a.txt"_s, "on");
    QTRY_COMPARE(shownText(window), u"on"_s);
    QCOMPARE(window.editor()->textCursor().position(), 2);
}

void tst_FileWatch::readsAPictureAgain()
{
    const Files files;
    const WorkbenchWindow window({files.writeQuarters(u"a.png"_s, {8, 8})});
    files.writeQuarters(u"a.png"_s, {20, 10});
    QTRY_COMPARE(window.view()->image().size(), QSize(20, 10));
    QVERIFY(!window.document()->isModified());
}

void tst_FileWatch::followsAFileThatIsReplaced()
{
    const Files files;
    const QString path = files.write(u"a.txt"_s, "old");
    const WorkbenchWindow window({path});
    for (const QByteArray &content : {QByteArray("newer"), QByteArray("newest")}) {
        const QString other = files.write(u"b.tmp"_s, content);
        QVERIFY(QFile::remove(path));
        QVERIFY(QFile::rename(other, path));
        QTRY_COMPARE(shownText(window), QString::fromLatin1(content));
    }
}

void tst_FileWatch::asksWhereWorkWouldBeLost()
{
    const Files files;
    const WorkbenchWindow window({files.write(u"a.txt"_s, "old")});
    window.type(u"my "_s);
    files.write(u"a.txt"_s, "theirs");
    QTRY_VERIFY(noticeButton(window, u"Read Again"_s));
    QCOMPARE(shownText(window), u"my old"_s);
    Gui::click(noticeButton(window, u"Got it"_s));
    QVERIFY(!noticeButton(window, u"Read Again"_s));
    QCOMPARE(shownText(window), u"my old"_s);
    QVERIFY(window.document()->isModified());
}

void tst_FileWatch::readsAgainWhenAsked()
{
    const Files files;
    const WorkbenchWindow window({files.write(u"a.txt"_s, "old")});
    window.type(u"my "_s);
    files.write(u"a.txt"_s, "theirs");
    QTRY_VERIFY(noticeButton(window, u"Read Again"_s));
    Gui::click(noticeButton(window, u"Read Again"_s));
    QCOMPARE(shownText(window), u"theirs"_s);
    QVERIFY(!window.document()->isModified());
    QVERIFY(window.document()->notice().isEmpty());
}

void tst_FileWatch::asksBeforeItReplacesWhatAnotherWrote_data()
{
    QTest::addColumn<QMessageBox::StandardButton>("answer");
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("save") << QMessageBox::Save << QByteArray("my old");
    QTest::newRow("cancel") << QMessageBox::Cancel << QByteArray("theirs");
}

void tst_FileWatch::asksBeforeItReplacesWhatAnotherWrote()
{
    QFETCH(const QMessageBox::StandardButton, answer);
    QFETCH(const QByteArray, content);
    const Files files;
    const QString path = files.write(u"a.txt"_s, "old");
    const WorkbenchWindow window({path});
    window.type(u"my "_s);
    files.write(u"a.txt"_s, "theirs");
    const BoxAnswer box(answer);
    window.key(Qt::Key_S, Qt::ControlModifier);
    QVERIFY(box.answered());
    QCOMPARE(files.read(u"a.txt"_s), content);
    QCOMPARE(window.document()->isModified(), answer == QMessageBox::Cancel);
}

void tst_FileWatch::keepsWhatIsInNoFileAnyMore()
{
    const Files files;
    const QString path = files.write(u"a.txt"_s, "precious");
    const WorkbenchWindow window({path});
    QVERIFY(QFile::remove(path));
    QTRY_VERIFY(!window.document()->notice().isEmpty());
    QCOMPARE(shownText(window), u"precious"_s);
    QVERIFY(window.document()->isModified());
    window.key(Qt::Key_S, Qt::ControlModifier);
    QCOMPARE(files.read(u"a.txt"_s), QByteArray("precious"));
    QVERIFY(!window.document()->isModified());
    QVERIFY(window.document()->notice().isEmpty());
}

void tst_FileWatch::keepsTheTextIfTheFileIsNoTextAnyMore()
{
    const Files files;
    const WorkbenchWindow window({files.write(u"a.txt"_s, "precious")});
    files.write(u"a.txt"_s, QByteArray("\0\1\2\3", 4));
    QTRY_VERIFY(!window.document()->notice().isEmpty());
    QCOMPARE(shownText(window), u"precious"_s);
    QVERIFY(window.document()->isModified());
}

void tst_FileWatch::ignoresItsOwnSaving()
{
    const Files files;
    const QString path = files.write(u"a.txt"_s, "old");
    const QString other = files.write(u"b.txt"_s, "other");
    const WorkbenchWindow window({path, other});
    window.setCurrent(0);
    window.type(u"my "_s);
    window.key(Qt::Key_S, Qt::ControlModifier);
    QCOMPARE(files.read(u"a.txt"_s), QByteArray("my old"));
    // When the other change has arrived, this one would have arrived as well.
    files.write(u"b.txt"_s, "changed");
    window.setCurrent(1);
    QTRY_COMPARE(shownText(window), u"changed"_s);
    window.setCurrent(0);
    QCOMPARE(shownText(window), u"my old"_s);
    QVERIFY(window.document()->canUndo());
    QVERIFY(window.document()->notice().isEmpty());
}

void tst_FileWatch::followsASavedCopy()
{
    const Files files;
    const QString path = files.write(u"a.txt"_s, "old");
    const WorkbenchWindow window({path});
    QString error;
    QVERIFY(window.document()->saveAs(files.path(u"b.txt"_s), &error));
    files.write(u"a.txt"_s, "not shown any more");
    files.write(u"b.txt"_s, "the copy");
    QTRY_COMPARE(shownText(window), u"the copy"_s);
}

NORVANE_TEST_MAIN(tst_FileWatch)
#include "tst_FileWatch.moc"
