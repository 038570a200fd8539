// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "WorkbenchWindow.h"

#include "files/FileCommands.h"
#include "files/RecentFiles.h"

#include <QtTest/QSignalSpy>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QLineEdit>

using namespace Workbench;

class tst_FileCommands : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void opensEachKindOfFile();
    void opensAFileOnce();
    void opensAPictureUnderAForeignName();
    void saysWhatCannotBeOpened_data();
    void saysWhatCannotBeOpened();
    void saysAllThatCannotBeOpened();
    void opensTheRestWhenOneFails();
    void opensAFolder();
    void opensNoMoreOfAFolderThanItMay();
    void opensAnEmptyFolder();
    void opensThroughTheDialog();
    void savesThroughTheDialog();
    void savesAPictureInAnotherFormatThroughTheDialog();
    void savesNothingWhenTheDialogIsCancelled();
    void refusesToSaveOverAnOpenFile();
    void saysWhatCannotBeSaved();
    void savesAll();
    void closesWhatIsSavedWithoutAsking();
    void asksBeforeItClosesWhatIsNotSaved_data();
    void asksBeforeItClosesWhatIsNotSaved();
    void keepsADocumentThatCannotBeSaved();
    void closesNothingWhenOneIsKept();
    void closesOthers();
    void remembersRecentFiles();
};

void tst_FileCommands::initTestCase()
{
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
}

static FileCommands *commands(const WorkbenchWindow &window)
{
    return window.findChild<FileCommands *>();
}

// Types a path into the next file dialog and leaves it with a key.
static std::function<void(QWidget *)> enter(const QString &path, Qt::Key key = Qt::Key_Return)
{
    return [path, key](QWidget *dialog) {
        auto *field = dialog->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
        if (!field) {
            dialog->close();
            return;
        }
        field->selectAll();
        QTest::keyClicks(field, path);
        QTest::keyClick(field, key);
    };
}

void tst_FileCommands::opensEachKindOfFile()
{
    const Files files;
    const WorkbenchWindow window({files.write(QStringLiteral("a.txt"), "a"),
                                  files.writeQuarters(QStringLiteral("b.png"), QSize(8, 8)),
                                  files.write(QStringLiteral("no suffix"), "c")});
    QVERIFY(window.opened);
    QCOMPARE(window.tabs()->documents().size(), 3);
    QCOMPARE(window.tabs()->documents().at(0)->kind(), Document::Kind::Text);
    QCOMPARE(window.tabs()->documents().at(1)->kind(), Document::Kind::Picture);
    QCOMPARE(window.tabs()->documents().at(2)->kind(), Document::Kind::Text);
    QCOMPARE(window.tabText(1), QStringLiteral("b.png"));
    QCOMPARE(window.currentIndex(), 2);
    QVERIFY(window.editor()->hasFocus());
}

void tst_FileCommands::opensAFileOnce()
{
    const Files files;
    const QString a = files.write(QStringLiteral("a.txt"), "a");
    const QString b = files.write(QStringLiteral("b.txt"), "b");
    QVERIFY(QFile::link(a, files.path(QStringLiteral("link.txt"))));
    WorkbenchWindow window({a, b});
    for (const QString &path :
         {a, files.folder() + QStringLiteral("/./a.txt"), files.path(QStringLiteral("link.txt"))}) {
        window.setCurrent(1);
        window.open({path});
        QCOMPARE(window.tabs()->documents().size(), 2);
        QCOMPARE(window.currentIndex(), 0);
    }
    // Of two files that are gone, neither is the other.
    QVERIFY(QFile::remove(a));
    QVERIFY(!window.tabs()->find(files.path(QStringLiteral("none.txt"))));
}

void tst_FileCommands::opensAPictureUnderAForeignName()
{
    const Files files;
    files.writeQuarters(QStringLiteral("a.png"), QSize(8, 8));
    const WorkbenchWindow window(
        {files.write(QStringLiteral("a.dat"), files.read(QStringLiteral("a.png")))});
    QVERIFY(window.picture());
}

void tst_FileCommands::saysWhatCannotBeOpened_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("exists");
    QTest::newRow("missing text") << QStringLiteral("none.txt") << false;
    QTest::newRow("missing picture") << QStringLiteral("none.png") << false;
    QTest::newRow("neither text nor picture") << QStringLiteral("a.bin") << true;
    QTest::newRow("broken picture") << QStringLiteral("a.png") << true;
    QTest::newRow("a name that is markup") << QStringLiteral("<b>&.bin") << true;
}

void tst_FileCommands::saysWhatCannotBeOpened()
{
    QFETCH(QString, name);
    QFETCH(bool, exists);
    const Files files;
    if (exists)
        files.write(name, QByteArray("\0\1\2", 3));
    BoxAnswer box(QMessageBox::Ok);
    const WorkbenchWindow window({files.path(name)});
    QVERIFY(box.answered());
    QVERIFY2(box.text.contains(name), qPrintable(box.text));
    QVERIFY2(box.information.contains(QDir::toNativeSeparators(files.path(name))),
             qPrintable(box.information));
    QVERIFY(box.information.size() > files.path(name).size() + 10);
    QVERIFY(box.plain);
    QCOMPARE(window.tabs()->documents().size(), 0);
}

void tst_FileCommands::saysAllThatCannotBeOpened()
{
    const Files files;
    BoxAnswer box(QMessageBox::Ok);
    const WorkbenchWindow window(
        {files.path(QStringLiteral("none.txt")), files.path(QStringLiteral("nil.png"))});
    QVERIFY(box.answered());
    QVERIFY(box.text.contains(u'2'));
    QVERIFY(box.information.contains(QStringLiteral("none.txt")));
    QVERIFY(box.information.contains(QStringLiteral("nil.png")));
}

void tst_FileCommands::opensTheRestWhenOneFails()
{
    const Files files;
    BoxAnswer box(QMessageBox::Ok);
    const WorkbenchWindow window(
        {files.path(QStringLiteral("none.txt")), files.write(QStringLiteral("a.txt"), "a")});
    QVERIFY(box.answered());
    QCOMPARE(window.tabs()->documents().size(), 1);
}

void tst_FileCommands::opensAFolder()
{
    const Files files;
    files.write(QStringLiteral("b.txt"), "b");
    files.writeQuarters(QStringLiteral("a.png"), QSize(8, 8));
    files.write(QStringLiteral("c.bin"), QByteArray("\0", 1));
    QVERIFY(QDir(files.folder()).mkdir(QStringLiteral("sub")));
    files.write(QStringLiteral("sub/d.txt"), "d");
    const WorkbenchWindow window({files.folder()});
    QCOMPARE(window.tabs()->documents().size(), 2);
    QCOMPARE(window.tabText(0), QStringLiteral("a.png"));
    QCOMPARE(window.tabText(1), QStringLiteral("b.txt"));
    QCOMPARE(window.currentIndex(), 0);
}

void tst_FileCommands::opensNoMoreOfAFolderThanItMay()
{
    const Files files;
    for (int i = 0; i < FileCommands::mostOfFolder + 5; ++i)
        files.write(QStringLiteral("%1.txt").arg(i, 3, 10, QChar(u'0')), "x");
    const WorkbenchWindow window({files.folder()});
    QCOMPARE(window.tabs()->documents().size(), FileCommands::mostOfFolder);
}

void tst_FileCommands::opensAnEmptyFolder()
{
    const Files files;
    WorkbenchWindow window;
    QSignalSpy message(commands(window), &FileCommands::message);
    window.open({files.folder()});
    QCOMPARE(window.tabs()->documents().size(), 0);
    QCOMPARE(message.count(), 1);
}

void tst_FileCommands::opensThroughTheDialog()
{
    const Files files;
    files.write(QStringLiteral("b.txt"), "b");
    const WorkbenchWindow window({files.write(QStringLiteral("a.txt"), "a")});
    const ModalAnswer answer(enter(files.path(QStringLiteral("b.txt"))));
    window.clickButton(QStringLiteral("Open"));
    QVERIFY(answer.answered);
    QCOMPARE(window.document()->title(), QStringLiteral("b.txt"));
}

void tst_FileCommands::savesThroughTheDialog()
{
    const Files files;
    const WorkbenchWindow window({files.write(QStringLiteral("a.txt"), "a\r\n")});
    const ModalAnswer answer(enter(files.path(QStringLiteral("b.txt"))));
    window.clickButton(QStringLiteral("Save As"));
    QVERIFY(answer.answered);
    QCOMPARE(files.read(QStringLiteral("b.txt")), QByteArray("a\r\n"));
    QCOMPARE(window.tabText(0), QStringLiteral("b.txt"));
    QVERIFY(window.windowTitle().startsWith(QStringLiteral("b.txt")));
}

void tst_FileCommands::savesAPictureInAnotherFormatThroughTheDialog()
{
    const Files files;
    const WorkbenchWindow window({files.writeQuarters(QStringLiteral("a.png"), QSize(8, 8))});
    const ModalAnswer answer(enter(files.path(QStringLiteral("b.bmp"))));
    window.clickButton(QStringLiteral("Save As"));
    QVERIFY(answer.answered);
    QVERIFY(files.read(QStringLiteral("b.bmp")).startsWith("BM"));
    QCOMPARE(QImage(files.path(QStringLiteral("b.bmp"))), Files::quarters(QSize(8, 8)));
}

void tst_FileCommands::savesNothingWhenTheDialogIsCancelled()
{
    const Files files;
    const WorkbenchWindow window({files.write(QStringLiteral("a.txt"), "a")});
    const ModalAnswer answer(enter(files.path(QStringLiteral("b.txt")), Qt::Key_Escape));
    window.clickButton(QStringLiteral("Save As"));
    QVERIFY(answer.answered);
    QVERIFY(!QFile::exists(files.path(QStringLiteral("b.txt"))));
    QCOMPARE(window.document()->title(), QStringLiteral("a.txt"));
}

void tst_FileCommands::refusesToSaveOverAnOpenFile()
{
    const Files files;
    const WorkbenchWindow window(
        {files.write(QStringLiteral("b.txt"), "b"), files.write(QStringLiteral("a.txt"), "a")});
    const ModalAnswer dialog(enter(files.path(QStringLiteral("b.txt"))));
    const BoxAnswer replace(QMessageBox::Yes);
    BoxAnswer refusal(QMessageBox::Ok);
    window.clickButton(QStringLiteral("Save As"));
    QVERIFY(dialog.answered);
    QVERIFY(replace.answered());
    QVERIFY(refusal.answered());
    QVERIFY(refusal.information.contains(QStringLiteral("another tab")));
    QCOMPARE(files.read(QStringLiteral("b.txt")), QByteArray("b"));
    QCOMPARE(window.document()->title(), QStringLiteral("a.txt"));
}

void tst_FileCommands::saysWhatCannotBeSaved()
{
    const Files files;
    QVERIFY(QDir(files.folder()).mkdir(QStringLiteral("sub")));
    const WorkbenchWindow window({files.write(QStringLiteral("sub/a.txt"), "a")});
    QTest::keyClicks(window.editor(), QStringLiteral("x"));
    QVERIFY(QDir(files.path(QStringLiteral("sub"))).removeRecursively());
    BoxAnswer box(QMessageBox::Ok);
    window.clickButton(QStringLiteral("Save"));
    QVERIFY(box.answered());
    QVERIFY(box.text.contains(QStringLiteral("a.txt")));
    QVERIFY(!box.information.isEmpty());
    QVERIFY(window.document()->isModified());
}

void tst_FileCommands::savesAll()
{
    const Files files;
    const WorkbenchWindow window({files.write(QStringLiteral("a.txt"), "a"),
                                  files.writeQuarters(QStringLiteral("b.png"), QSize(8, 4)),
                                  files.write(QStringLiteral("c.txt"), "c")});
    QTest::keyClicks(window.editor(), QStringLiteral("x"));
    window.setCurrent(1);
    window.picture()->turn(PictureTurnCommand::Turn::Left);
    window.pick(QStringLiteral("Save"), QStringLiteral("Save All"));
    QCOMPARE(files.read(QStringLiteral("a.txt")), QByteArray("a"));
    QCOMPARE(QImage(files.path(QStringLiteral("b.png"))).size(), QSize(4, 8));
    QCOMPARE(files.read(QStringLiteral("c.txt")), QByteArray("xc"));
    const QList<Document *> documents = window.tabs()->documents();
    for (const Document *document : documents)
        QVERIFY(!document->isModified());
}

void tst_FileCommands::closesWhatIsSavedWithoutAsking()
{
    const Files files;
    const WorkbenchWindow window({files.write(QStringLiteral("a.txt"), "a")});
    window.clickButton(QStringLiteral("Close"));
    QCOMPARE(window.tabs()->documents().size(), 0);
    QCOMPARE(window.pages(), (QStringList{QStringLiteral("Home"), QStringLiteral("View")}));
}

void tst_FileCommands::asksBeforeItClosesWhatIsNotSaved_data()
{
    QTest::addColumn<QMessageBox::StandardButton>("button");
    QTest::addColumn<bool>("closes");
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("save") << QMessageBox::Save << true << QByteArray("xa");
    QTest::newRow("discard") << QMessageBox::Discard << true << QByteArray("a");
    QTest::newRow("cancel") << QMessageBox::Cancel << false << QByteArray("a");
}

void tst_FileCommands::asksBeforeItClosesWhatIsNotSaved()
{
    QFETCH(QMessageBox::StandardButton, button);
    QFETCH(bool, closes);
    QFETCH(QByteArray, content);
    const Files files;
    const WorkbenchWindow window({files.write(QStringLiteral("a.txt"), "a")});
    QTest::keyClicks(window.editor(), QStringLiteral("x"));
    BoxAnswer box(button);
    window.clickCloseButton(0);
    QVERIFY(box.answered());
    QVERIFY(box.text.contains(QStringLiteral("a.txt")));
    QVERIFY(box.plain);
    QCOMPARE(window.tabs()->documents().size(), closes ? 0 : 1);
    QCOMPARE(files.read(QStringLiteral("a.txt")), content);
}

void tst_FileCommands::keepsADocumentThatCannotBeSaved()
{
    const Files files;
    const WorkbenchWindow window({files.write(QStringLiteral("a.txt"), "\xE2\x82\xAC")});
    window.text()->setEncoding(TextCodec::Encoding::Latin1);
    const BoxAnswer save(QMessageBox::Save);
    BoxAnswer refusal(QMessageBox::Ok);
    window.clickButton(QStringLiteral("Close"));
    QVERIFY(save.answered());
    QVERIFY(refusal.answered());
    QVERIFY(refusal.information.contains(QStringLiteral("Latin-1")));
    QCOMPARE(window.tabs()->documents().size(), 1);
}

void tst_FileCommands::closesNothingWhenOneIsKept()
{
    const Files files;
    const WorkbenchWindow window({files.write(QStringLiteral("a.txt"), "a"),
                                  files.write(QStringLiteral("b.txt"), "b"),
                                  files.write(QStringLiteral("c.txt"), "c")});
    window.setCurrent(1);
    QTest::keyClicks(window.editor(), QStringLiteral("x"));
    window.setCurrent(0);
    BoxAnswer box(QMessageBox::Cancel);
    QVERIFY(!commands(window)->closeAll());
    QVERIFY(box.answered());
    QCOMPARE(window.tabs()->documents().size(), 3);
    // What is asked about is in front.
    QCOMPARE(window.currentIndex(), 1);
}

void tst_FileCommands::closesOthers()
{
    const Files files;
    const WorkbenchWindow window({files.write(QStringLiteral("a.txt"), "a"),
                                  files.write(QStringLiteral("b.txt"), "b"),
                                  files.write(QStringLiteral("c.txt"), "c")});
    window.setCurrent(1);
    QVERIFY(commands(window)->closeOthers(window.document()));
    QCOMPARE(window.tabs()->documents().size(), 1);
    QCOMPARE(window.document()->title(), QStringLiteral("b.txt"));
}

void tst_FileCommands::remembersRecentFiles()
{
    const Files files;
    RecentFiles().clear();
    const QString a = files.write(QStringLiteral("a.txt"), "a");
    const QString b = files.write(QStringLiteral("b.txt"), "b");
    const WorkbenchWindow window({a, b});
    QCOMPARE(RecentFiles().paths(), (QStringList{b, a}));
    commands(window)->closeAll();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);

    const QString entry = QStringLiteral("a.txt  –  ") + QDir(files.folder()).dirName();
    window.pick(QStringLiteral("Open"), entry);
    QCOMPARE(window.document()->path(), a);
    QCOMPARE(RecentFiles().paths(), (QStringList{a, b}));

    // A file that is gone is said to be so, and forgotten.
    QVERIFY(QFile::remove(b));
    BoxAnswer box(QMessageBox::Ok);
    commands(window)->openPaths({b});
    QVERIFY(box.answered());
    QCOMPARE(RecentFiles().paths(), QStringList{a});
}

NORVANE_TEST_MAIN(tst_FileCommands)
#include "tst_FileCommands.moc"
