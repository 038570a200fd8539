// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "WorkbenchWindow.h"

#include <Norvane/DockContainer.h>
#include <Norvane/DockPanelWidget.h>

#include <QtCore/QMimeData>
#include <QtGui/QDropEvent>
#include <QtWidgets/QLabel>
#include <QtWidgets/QStatusBar>

#include <algorithm>
#include <memory>

using namespace Workbench;

class tst_MainWindow : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void showsTheDocumentInFront();
    void shortcutsWorkWhicheverPageIsInFront();
    void closesWithoutAskingWhenAllIsSaved();
    void asksBeforeItClosesWithUnsavedDocuments_data();
    void asksBeforeItClosesWithUnsavedDocuments();
    void staysWhenOneDocumentIsKept();
    void opensDroppedFiles_data();
    void opensDroppedFiles();
    void ignoresOtherDrops();
    void goesWithUnsavedDocuments();
    void showsANoticeUntilItIsClosed();
    void leavesThePanelsButtonsTheirPlace();
};

void tst_MainWindow::showsTheDocumentInFront()
{
    const Files files;
    const WorkbenchWindow window({files.write(QStringLiteral("a & b.txt"), "a"),
                                  files.writeQuarters(QStringLiteral("b.png"), QSize(40, 20))});
    QVERIFY(window.windowTitle().startsWith(QStringLiteral("b.png")));
    const auto summary = [&] {
        QStringList texts;
        const QList<QLabel *> labels = window.statusBar()->findChildren<QLabel *>();
        for (const QLabel *label : labels)
            texts << label->text();
        return texts.join(u' ');
    };
    QVERIFY(summary().contains(QStringLiteral("40 × 20")));
    window.setCurrent(0);
    QVERIFY(window.windowTitle().startsWith(QStringLiteral("a & b.txt")));
    QCOMPARE(window.tabText(0), QStringLiteral("a && b.txt"));
    QVERIFY(summary().contains(QStringLiteral("UTF-8")));
    QCOMPARE(window.tabToolTip(0),
             QDir::toNativeSeparators(files.path(QStringLiteral("a & b.txt"))));
}

void tst_MainWindow::shortcutsWorkWhicheverPageIsInFront()
{
    const Files files;
    const WorkbenchWindow window({files.write(QStringLiteral("a.txt"), "b\na\n")});
    for (const char *page : {"Home", "View", "Text"}) {
        window.clickPage(QString::fromLatin1(page));
        window.editor()->setFocus();
        window.key(Qt::Key_F9);
        QTRY_COMPARE(window.editor()->toPlainText(), QStringLiteral("a\nb\n"));
        window.key(Qt::Key_S, Qt::ControlModifier);
        QTRY_COMPARE(files.read(QStringLiteral("a.txt")), QByteArray("a\nb\n"));
        window.key(Qt::Key_Z, Qt::ControlModifier);
        QTRY_COMPARE(window.editor()->toPlainText(), QStringLiteral("b\na\n"));
        window.key(Qt::Key_Plus, Qt::ControlModifier);
        QTRY_VERIFY(window.document()->zoom() > 1);
        window.key(Qt::Key_0, Qt::ControlModifier);
        QTRY_COMPARE(window.document()->zoom(), 1.0);
        window.key(Qt::Key_S, Qt::ControlModifier);
        QTRY_COMPARE(files.read(QStringLiteral("a.txt")), QByteArray("b\na\n"));
    }
    window.clickPage(QStringLiteral("View"));
    window.key(Qt::Key_W, Qt::ControlModifier);
    QTRY_COMPARE(window.tabs()->documents().size(), 0);
}

void tst_MainWindow::closesWithoutAskingWhenAllIsSaved()
{
    const Files files;
    WorkbenchWindow window({files.write(QStringLiteral("a.txt"), "a")});
    QVERIFY(window.close());
    QVERIFY(!window.isVisible());
}

void tst_MainWindow::asksBeforeItClosesWithUnsavedDocuments_data()
{
    QTest::addColumn<QMessageBox::StandardButton>("button");
    QTest::addColumn<bool>("closes");
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("save") << QMessageBox::Save << true << QByteArray("xa");
    QTest::newRow("discard") << QMessageBox::Discard << true << QByteArray("a");
    QTest::newRow("cancel") << QMessageBox::Cancel << false << QByteArray("a");
}

void tst_MainWindow::asksBeforeItClosesWithUnsavedDocuments()
{
    QFETCH(QMessageBox::StandardButton, button);
    QFETCH(bool, closes);
    QFETCH(QByteArray, content);
    const Files files;
    WorkbenchWindow window(
        {files.write(QStringLiteral("a.txt"), "a"), files.write(QStringLiteral("b.txt"), "b")});
    window.setCurrent(0);
    QTest::keyClicks(window.editor(), QStringLiteral("x"));
    BoxAnswer box(button);
    QCOMPARE(window.close(), closes);
    QVERIFY(box.answered());
    QVERIFY(box.text.contains(QStringLiteral("a.txt")));
    QCOMPARE(window.isVisible(), !closes);
    QCOMPARE(files.read(QStringLiteral("a.txt")), content);
    if (!closes)
        return;
    // The program's end closes it once more.
    const BoxAnswer again(QMessageBox::Cancel);
    QVERIFY(window.close());
    QVERIFY(!again.answered());
}

void tst_MainWindow::staysWhenOneDocumentIsKept()
{
    const Files files;
    WorkbenchWindow window(
        {files.write(QStringLiteral("a.txt"), "a"), files.write(QStringLiteral("b.txt"), "b")});
    for (int i : {0, 1}) {
        window.setCurrent(i);
        QTest::keyClicks(window.editor(), QStringLiteral("x"));
    }
    QStringList asked;
    QTimer timer;
    connect(&timer, &QTimer::timeout, &timer, [&] {
        if (auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget())) {
            asked << box->text();
            Gui::click(box->button(asked.size() == 1 ? QMessageBox::Discard : QMessageBox::Cancel));
        }
    });
    timer.start(5);
    QVERIFY(!window.close());
    QCOMPARE(asked.size(), 2);
    QVERIFY(window.isVisible());
    QCOMPARE(window.tabs()->documents().size(), 2);
    const QList<Document *> documents = window.tabs()->documents();
    for (const Document *document : documents)
        QVERIFY(document->isModified());
}

void tst_MainWindow::opensDroppedFiles_data()
{
    QTest::addColumn<bool>("onText");
    QTest::newRow("on the empty window") << false;
    QTest::newRow("on a text") << true;
}

void tst_MainWindow::opensDroppedFiles()
{
    QFETCH(bool, onText);
    const Files files;
    const WorkbenchWindow window(onText ? QStringList{files.write(QStringLiteral("z.txt"), "z")}
                                        : QStringList());
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(files.write(QStringLiteral("a.txt"), "a")),
                  QUrl::fromLocalFile(files.writeQuarters(QStringLiteral("b.png"), QSize(8, 8)))});
    const QPoint position = window.content()->mapTo(&window, QPoint(200, 200));
    QDragEnterEvent enter(position, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(window.windowHandle(), &enter);
    QVERIFY(enter.isAccepted());
    QDragMoveEvent move(position, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    // As the system does it once the entry was accepted.
    move.acceptProposedAction();
    QCoreApplication::sendEvent(window.windowHandle(), &move);
    QVERIFY(move.isAccepted());
    QDropEvent drop(position, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    drop.acceptProposedAction();
    QCoreApplication::sendEvent(window.windowHandle(), &drop);
    QVERIFY(drop.isAccepted());
    QTRY_COMPARE(window.tabs()->documents().size(), onText ? 3 : 2);
    QCOMPARE(window.document()->title(), QStringLiteral("b.png"));
    const QList<Document *> documents = window.tabs()->documents();
    for (const Document *document : documents)
        QVERIFY(!document->isModified());
}

void tst_MainWindow::ignoresOtherDrops()
{
    const WorkbenchWindow window;
    QMimeData data;
    data.setUrls({QUrl(QStringLiteral("https://example.org/a.txt"))});
    QDragEnterEvent enter(QPoint(200, 300), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(window.windowHandle(), &enter);
    QVERIFY(!enter.isAccepted());
}

void tst_MainWindow::goesWithUnsavedDocuments()
{
    const Files files;
    auto window = std::make_unique<WorkbenchWindow>(
        QStringList{files.write(QStringLiteral("a.txt"), "a"),
                    files.writeQuarters(QStringLiteral("b.png"), QSize(8, 8))});
    window->picture()->turn(PictureTurnCommand::Turn::Left);
    window->picture()->turn(PictureTurnCommand::Turn::Left);
    window->picture()->undo();
    window->setCurrent(0);
    QTest::keyClicks(window->editor(), QStringLiteral("x"));
    window.reset();
    QCOMPARE(files.read(QStringLiteral("a.txt")), QByteArray("a"));
}

void tst_MainWindow::showsANoticeUntilItIsClosed()
{
    const Files files;
    const WorkbenchWindow window({files.write(QStringLiteral("a.txt"), "caf\xE9")});
    auto *bar = window.document()->findChild<QWidget *>(QStringLiteral("noticeBar"));
    QVERIFY(bar->isVisible());
    Gui::click(bar->findChild<QAbstractButton *>(QStringLiteral("closeNotice")));
    QVERIFY(!bar->isVisible());
    QVERIFY(window.document()->notice().isEmpty());
}

// A message with a path of any length must not push the bottom panel's buttons aside.
void tst_MainWindow::leavesThePanelsButtonsTheirPlace()
{
    const Files files;
    const QString name(200, u'n');
    QVERIFY(QDir(files.folder()).mkdir(name));
    files.write(name + QStringLiteral("/a.txt"), "a");
    WorkbenchWindow window;
    const auto *docks = window.findChild<Norvane::DockContainer *>();
    const QWidget *bar = docks->panelWidget(Norvane::DockContainer::BottomDockArea)->panel();
    const auto place = [&] { return bar->mapTo(&window, QPoint()).x(); };
    window.open({files.path(name)});
    QTRY_COMPARE(place(), window.content()->mapTo(&window, QPoint()).x());
    const QList<QLabel *> labels = window.statusBar()->findChildren<QLabel *>();
    const auto message = std::find_if(labels.begin(), labels.end(), [&](const QLabel *label) {
        return label->toolTip().contains(name);
    });
    QVERIFY(message != labels.end());
    QCOMPARE_LE((*message)->fontMetrics().horizontalAdvance((*message)->text()),
                window.width() / 3);
}

NORVANE_TEST_MAIN(tst_MainWindow)
#include "tst_MainWindow.moc"
