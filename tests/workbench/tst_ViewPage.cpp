// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "WorkbenchWindow.h"

using namespace Workbench;

class tst_ViewPage : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void zoomsTexts();
    void zoomsPictures();
    void zoomsByTheWheel();
    void wrapsAllTexts();
    void usesTheWholeScreen();
    void offersOnlyWhatApplies();
};

void tst_ViewPage::zoomsTexts()
{
    const Files files;
    const WorkbenchWindow window(
        {files.write(QStringLiteral("a.txt"), "a"), files.write(QStringLiteral("b.txt"), "b")});
    window.clickPage(QStringLiteral("View"));
    const qreal size = window.editor()->font().pointSizeF();
    window.clickButton(QStringLiteral("Zoom\nIn"));
    QVERIFY(window.editor()->font().pointSizeF() > size);
    window.clickButton(QStringLiteral("100%"));
    QCOMPARE(window.editor()->font().pointSizeF(), size);
    window.clickButton(QStringLiteral("Zoom\nOut"));
    QVERIFY(window.editor()->font().pointSizeF() < size);
    // Each document has a zoom of its own.
    window.clickTab(QStringLiteral("a.txt"));
    QCOMPARE(window.editor()->font().pointSizeF(), size);
    QVERIFY(!window.document()->isModified());
}

void tst_ViewPage::zoomsPictures()
{
    const Files files;
    const WorkbenchWindow window({files.writeQuarters(QStringLiteral("a.png"), QSize(40, 20))});
    window.clickPage(QStringLiteral("View"));
    window.clickButton(QStringLiteral("Zoom\nIn"));
    QCOMPARE(window.view()->zoom(), 1.1);
    window.clickButton(QStringLiteral("Zoom\nOut"));
    window.clickButton(QStringLiteral("Zoom\nOut"));
    QCOMPARE(window.view()->zoom(), 0.9);
    window.clickButton(QStringLiteral("100%"));
    QCOMPARE(window.view()->zoom(), 1.0);
}

void tst_ViewPage::zoomsByTheWheel()
{
    const Files files;
    const WorkbenchWindow window({files.writeQuarters(QStringLiteral("a.png"), QSize(40, 20)),
                                  files.write(QStringLiteral("a.txt"), "a")});
    const auto turn = [&](int delta) {
        const QPoint position = window.document()->mapTo(&window, QPoint(200, 200));
        QTest::wheelEvent(window.windowHandle(), position, QPoint(0, delta), QPoint(),
                          Qt::ControlModifier);
    };
    for (int i = 0; i < 2; ++i) {
        window.setCurrent(i);
        turn(120);
        QTRY_COMPARE(window.document()->zoom(), 1.1);
        turn(-120);
        QTRY_COMPARE(window.document()->zoom(), 1.0);
    }
}

void tst_ViewPage::wrapsAllTexts()
{
    const Files files;
    WorkbenchWindow window(
        {files.write(QStringLiteral("a.txt"), "a"), files.write(QStringLiteral("b.txt"), "b")});
    window.clickPage(QStringLiteral("View"));
    QVERIFY(!window.button(QStringLiteral("Wrap\nLines"))->isChecked());
    window.clickButton(QStringLiteral("Wrap\nLines"));
    window.open({files.write(QStringLiteral("c.txt"), "c")});
    const QList<TextEditor *> editors = window.findChildren<TextEditor *>();
    for (TextEditor *editor : editors)
        QCOMPARE(editor->lineWrapMode(), QPlainTextEdit::WidgetWidth);
    QVERIFY(window.button(QStringLiteral("Wrap\nLines"))->isChecked());
    window.clickButton(QStringLiteral("Wrap\nLines"));
    QCOMPARE(window.editor()->lineWrapMode(), QPlainTextEdit::NoWrap);
}

void tst_ViewPage::usesTheWholeScreen()
{
    const WorkbenchWindow window;
    window.clickPage(QStringLiteral("View"));
    const QString fullScreen = QStringLiteral("Full\nScreen");
    window.clickButton(fullScreen);
    QTRY_VERIFY(window.isFullScreen());
    QVERIFY(window.button(fullScreen)->isChecked());
    window.key(Qt::Key_F11);
    QTRY_VERIFY(!window.isFullScreen());
    QVERIFY(!window.button(fullScreen)->isChecked());
}

void tst_ViewPage::offersOnlyWhatApplies()
{
    const Files files;
    WorkbenchWindow window;
    window.clickPage(QStringLiteral("View"));
    for (const char *command : {"Zoom\nIn", "Zoom\nOut", "100%", "Wrap\nLines"})
        QVERIFY(!window.button(QString::fromLatin1(command))->isEnabled());
    QVERIFY(window.button(QStringLiteral("Full\nScreen"))->isEnabled());
    window.open({files.writeQuarters(QStringLiteral("a.png"), QSize(40, 20))});
    QVERIFY(window.button(QStringLiteral("Zoom\nIn"))->isEnabled());
    QVERIFY(!window.button(QStringLiteral("Wrap\nLines"))->isEnabled());
}

NORVANE_TEST_MAIN(tst_ViewPage)
#include "tst_ViewPage.moc"
