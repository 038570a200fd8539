// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "WorkbenchWindow.h"

#include "views/FilesView.h"

#include <Norvane/AddressBar.h>
#include <Norvane/DockContainer.h>
#include <Norvane/RibbonBar.h>

#include <QtCore/QMimeData>
#include <QtCore/QMimeDatabase>
#include <QtGui/QAbstractFileIconProvider>
#include <QtGui/QClipboard>
#include <QtGui/QDesktopServices>
#include <QtGui/QFileSystemModel>
#include <QtTest/QSignalSpy>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QTreeView>

using namespace Workbench;
using namespace Qt::StringLiterals;

class tst_FilesView : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void standsUnderTheRibbon();
    void showsWhereTheDocumentLies();
    void staysAboveTheDocument();
    void staysWhereAFileWasOpened();
    void opensTextsAndPictures_data();
    void opensTextsAndPictures();
    void leavesOtherFilesToTheSystem_data();
    void leavesOtherFilesToTheSystem();
    void entersATypedFolder();
    void makesATextDocument_data();
    void makesATextDocument();
    void numbersTextDocuments();
    void makesATextDocumentInTheChosenFolder();
    void saysThatNoTextCanBeMade();
    void keepsItsKeysToItself();
    void selectsAllFiles();
    void tellsKindsOfFilesApart();
    void leavesItsIconsToTheTree();
    void doesNotLookIntoFiles();
    void namesTypesBySuffix();
};

namespace {

//! The window on a folder with files.
class FilesWindow : public WorkbenchWindow
{
public:
    explicit FilesWindow(const Files &files)
        : bar(findChild<Norvane::AddressBar *>())
        , tree(findChild<FilesView *>()->tree())
        , model(static_cast<QFileSystemModel *>(tree->model()))
    {
        bar->setPath(files.folder());
    }

    //! Where the row of the file is, as soon as the rows have found their order.
    QPoint place(const QString &path) const
    {
        const QStringList entries =
            QDir(bar->path())
                .entryList(QDir::AllEntries | QDir::NoDotAndDotDot, QDir::Name | QDir::DirsFirst);
        if (!QTest::qWaitFor([&] { return rows() == entries; }, patience))
            QTest::qFail("the tree shows something else", __FILE__, __LINE__);
        const QRect row = tree->visualRect(model->index(path));
        return row.topLeft() + QPoint(30, row.height() / 2);
    }

    QStringList rows() const
    {
        QStringList rows;
        for (int row = 0; row < model->rowCount(tree->rootIndex()); ++row)
            rows << model->index(row, 0, tree->rootIndex()).data().toString();
        return rows;
    }

    void clickFile(const QString &path) const { Gui::click(tree->viewport(), place(path)); }
    void doubleClickFile(const QString &path) const
    {
        QTest::mouseDClick(windowHandle(), Qt::LeftButton, {},
                           Gui::inWindow(tree->viewport(), place(path)));
    }

    QPoint emptyPlace() const { return {40, tree->viewport()->height() - 4}; }

    //! Opens the context menu with the mouse, and picks from its submenu.
    void makeNew(const QString &entry, QPoint at) const
    {
        openMenu([&] { Gui::press(tree->viewport(), at, Qt::RightButton); },
                 [&](QMenu *menu) {
                     Gui::release(menu, QPoint(1, 1), Qt::RightButton);
                     pickEntry(menu, u"New"_s);
                     auto *submenu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
                     QTRY_VERIFY(submenu->windowHandle()->isExposed());
                     pickEntry(submenu, entry);
                 });
    }

    QLineEdit *nameEditor() const { return tree->viewport()->findChild<QLineEdit *>(); }

    Norvane::AddressBar *const bar;
    QTreeView *const tree;
    QFileSystemModel *const model;
};

//! Keeps what is asked to be opened by the system.
class SystemPrograms : public QObject
{
    Q_OBJECT

public:
    SystemPrograms() { QDesktopServices::setUrlHandler(u"file"_s, this, "open"); }
    ~SystemPrograms() override { QDesktopServices::unsetUrlHandler(u"file"_s); }

    Q_INVOKABLE void open(const QUrl &url) { opened << url.toLocalFile(); }

    QStringList opened;
};

} // namespace

void tst_FilesView::standsUnderTheRibbon()
{
    const Files files;
    const FilesWindow window(files);
    const auto place = [&](const QWidget *widget) {
        return QRect(widget->mapTo(&window, QPoint()), widget->size());
    };
    const QRect ribbon = place(window.findChild<Norvane::RibbonBar *>());
    const QRect bar = place(window.bar);
    const QRect docks = place(window.findChild<Norvane::DockContainer *>());
    QCOMPARE(bar.top(), ribbon.bottom() + 1);
    QCOMPARE(docks.top(), bar.bottom() + 1);
    QCOMPARE(bar.width(), window.width());
    QCOMPARE(window.bar->treeView(), window.tree);
    QVERIFY(window.tree->isVisible());
    QVERIFY(docks.contains(place(window.tree)));
}

void tst_FilesView::showsWhereTheDocumentLies()
{
    const Files here;
    const Files there;
    const QString a = here.write(u"a.txt"_s, "a");
    const QString b = there.write(u"b.txt"_s, "b");
    FilesWindow window(here);
    window.open({a, b});
    QTRY_COMPARE(window.bar->path(), there.folder());
    QCOMPARE(window.model->filePath(window.tree->currentIndex()), b);
    window.clickTab(u"a.txt"_s);
    QTRY_COMPARE(window.bar->path(), here.folder());
    QCOMPARE(window.model->filePath(window.tree->currentIndex()), a);
    QCOMPARE(window.model->filePath(window.tree->rootIndex()), here.folder());
}

void tst_FilesView::staysAboveTheDocument()
{
    const Files files;
    QVERIFY(QDir(files.folder()).mkpath(u"sub/deeper"_s));
    const QString text = files.write(u"sub/deeper/a.txt"_s, "a");
    FilesWindow window(files);
    window.open({text});
    QTRY_COMPARE(window.model->filePath(window.tree->currentIndex()), text);
    QCOMPARE(window.bar->path(), files.folder());
    QTRY_VERIFY(window.tree->visualRect(window.tree->currentIndex()).isValid());

    // The name of one folder may begin with that of the other.
    QVERIFY(QDir(files.folder()).mkpath(u"sub2"_s));
    const QString other = files.write(u"sub2/b.txt"_s, "b");
    window.bar->setPath(files.path(u"sub"_s));
    window.open({other});
    QTRY_COMPARE(window.bar->path(), files.path(u"sub2"_s));
}

void tst_FilesView::staysWhereAFileWasOpened()
{
    // The other section shows the picture that it showed last before it shows the new one.
    const Files files;
    QVERIFY(QDir(files.folder()).mkpath(u"sub"_s));
    const QString picture = files.writeQuarters(u"sub/b.png"_s, QSize(8, 8));
    FilesWindow window(files);
    window.open({files.writeQuarters(u"a.png"_s, QSize(8, 8)), files.write(u"a.txt"_s, "a")});
    QTRY_COMPARE(window.model->filePath(window.tree->currentIndex()), files.path(u"a.txt"_s));
    window.bar->setPath(files.path(u"sub"_s));
    const QSignalSpy changes(window.bar, &Norvane::AddressBar::signalPathChanged);
    window.doubleClickFile(picture);
    QCOMPARE(window.document()->path(), picture);
    QTRY_COMPARE(window.model->filePath(window.tree->currentIndex()), picture);
    QCOMPARE(changes.count(), 0);
    QCOMPARE(window.bar->path(), files.path(u"sub"_s));
}

void tst_FilesView::opensTextsAndPictures_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"a.txt", "A.TXT", "a.md", "a.cpp", "a.png", "a.PNG", "a.jpg"})
        QTest::newRow(name) << QString::fromLatin1(name);
}

void tst_FilesView::opensTextsAndPictures()
{
    QFETCH(QString, name);
    const Files files;
    const bool isPicture = QStringList({u"png"_s, u"jpg"_s}).contains(name.toLower().right(3));
    const QString path =
        isPicture ? files.writeQuarters(name, QSize(8, 8)) : files.write(name, "text");
    const FilesWindow window(files);
    window.doubleClickFile(path);
    QVERIFY(window.document());
    QCOMPARE(window.document()->path(), path);
    QCOMPARE(bool(window.picture()), isPicture);
    QVERIFY(!QApplication::activeModalWidget());
}

void tst_FilesView::leavesOtherFilesToTheSystem_data()
{
    QTest::addColumn<QMessageBox::StandardButton>("button");
    QTest::newRow("ok") << QMessageBox::Ok;
    QTest::newRow("cancel") << QMessageBox::Cancel;
}

void tst_FilesView::leavesOtherFilesToTheSystem()
{
    QFETCH(QMessageBox::StandardButton, button);
    const Files files;
    const QString path = files.write(u"a.bin"_s, "a");
    const FilesWindow window(files);
    const SystemPrograms programs;
    const BoxAnswer box(button);
    window.doubleClickFile(path);
    QVERIFY(box.answered());
    QCOMPARE(programs.opened, button == QMessageBox::Ok ? QStringList{path} : QStringList());
    QVERIFY(!window.document());
}

void tst_FilesView::entersATypedFolder()
{
    const Files files;
    QVERIFY(QDir(files.folder()).mkpath(u"sub"_s));
    const QString text = files.write(u"sub/a.txt"_s, "a");
    const FilesWindow window(files);
    const auto *strip = window.bar->findChild<QLineEdit *>();
    Gui::click(strip, QPoint(strip->width() - 4, 12));
    QTRY_VERIFY(strip->hasFocus());
    window.type(files.path(u"sub"_s));
    window.key(Qt::Key_Return);
    QCOMPARE(window.bar->path(), files.path(u"sub"_s));
    window.doubleClickFile(text);
    QCOMPARE(window.document()->path(), text);

    // A click into the text leaves the editor as it leaves any other field.
    Gui::click(strip, QPoint(strip->width() - 4, 12));
    QTRY_VERIFY(strip->hasFocus());
    window.type(u"nowhere"_s);
    Gui::moveMouse(window.editor()->viewport(), QPoint(50, 50));
    Gui::click(window.editor()->viewport(), QPoint(50, 50));
    QVERIFY(window.editor()->hasFocus());
    QCOMPARE(window.bar->path(), files.path(u"sub"_s));
    QCOMPARE(window.editor()->toPlainText(), u"a"_s);
}

void tst_FilesView::makesATextDocument_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<QString>("name");
    QTest::newRow("with a name") << u"Notes.md"_s << Qt::Key_Return << u"Notes.md"_s;
    QTest::newRow("with its own name") << QString() << Qt::Key_Return << u"New Text Document.txt"_s;
    QTest::newRow("cancelled") << u"Notes.md"_s << Qt::Key_Escape << u"New Text Document.txt"_s;
}

void tst_FilesView::makesATextDocument()
{
    QFETCH(QString, typed);
    QFETCH(Qt::Key, key);
    QFETCH(QString, name);
    const Files files;
    files.write(u"a.txt"_s, "a");
    const FilesWindow window(files);
    window.makeNew(u"Text Document"_s, window.emptyPlace());
    QCOMPARE(files.read(u"New Text Document.txt"_s), QByteArray());
    QTRY_VERIFY(window.nameEditor());
    QTRY_VERIFY(window.nameEditor()->hasFocus());
    QCOMPARE(window.nameEditor()->text(), u"New Text Document.txt"_s);
    QVERIFY(!window.document());
    if (!typed.isEmpty()) {
        window.key(Qt::Key_A, Qt::ControlModifier);
        window.type(typed);
    }
    window.key(key);
    QTRY_VERIFY(window.document());
    QCOMPARE(window.document()->path(), files.path(name));
    QStringList left = QDir(files.folder()).entryList(QDir::Files);
    left.removeOne(u"a.txt"_s);
    QCOMPARE(left, QStringList{name});
    // The tree goes to the document that has come to the front.
    QCoreApplication::processEvents();
    // The next editor of a name opens nothing.
    const QModelIndex index = window.model->index(files.path(u"a.txt"_s));
    window.tree->setCurrentIndex(index);
    window.tree->setFocus();
    window.key(Qt::Key_F2);
    QTRY_VERIFY(window.nameEditor());
    window.key(Qt::Key_Return);
    QTRY_VERIFY(!window.nameEditor());
    QCOMPARE(window.tabs()->documents().size(), 1);
}

void tst_FilesView::numbersTextDocuments()
{
    const Files files;
    const FilesWindow window(files);
    QStringList names{u"New Text Document.txt"_s, u"New Text Document (2).txt"_s,
                      u"New Text Document (3).txt"_s};
    for (int i = 0; i < 3; ++i) {
        window.makeNew(u"Text Document"_s, window.emptyPlace());
        QTRY_VERIFY(window.nameEditor());
        window.key(Qt::Key_Return);
        QTRY_COMPARE(window.tabs()->documents().size(), i + 1);
        QCOMPARE(window.document()->path(), files.path(names.at(i)));
        // What is selected would be the place of the next one.
        window.tree->clearSelection();
    }
}

void tst_FilesView::makesATextDocumentInTheChosenFolder()
{
    const Files files;
    QVERIFY(QDir(files.folder()).mkpath(u"sub"_s));
    files.write(u"sub/a.txt"_s, "a");
    const FilesWindow window(files);
    const QPoint sub = window.place(files.path(u"sub"_s));
    Gui::click(window.tree->viewport(), sub);
    window.makeNew(u"Text Document"_s, sub);
    QTRY_VERIFY(window.nameEditor());
    window.key(Qt::Key_Return);
    const QString made = files.path(u"sub/New Text Document.txt"_s);
    QTRY_VERIFY(window.document());
    QCOMPARE(window.document()->path(), made);
    QCOMPARE(window.bar->path(), files.folder());

    // A chosen file stands for its folder.
    QTRY_COMPARE(window.model->filePath(window.tree->currentIndex()), made);
    QCOMPARE(window.bar->actionTriggeredPath(), made);
    window.makeNew(u"Text Document"_s, window.emptyPlace());
    QTRY_VERIFY(window.nameEditor());
    window.key(Qt::Key_Return);
    QTRY_COMPARE(window.tabs()->documents().size(), 2);
    QCOMPARE(window.document()->path(), files.path(u"sub/New Text Document (2).txt"_s));
}

void tst_FilesView::saysThatNoTextCanBeMade()
{
    const Files files;
    QVERIFY(QDir(files.folder()).mkpath(u"gone"_s));
    const FilesWindow window(files);
    window.bar->setPath(files.path(u"gone"_s));
    QVERIFY(QDir(files.folder()).rmdir(u"gone"_s));
    const BoxAnswer box(QMessageBox::Ok);
    window.makeNew(u"Text Document"_s, window.emptyPlace());
    QVERIFY(box.answered());
    QVERIFY(box.text.contains(u"gone"_s));
    QVERIFY(!box.information.isEmpty());
    QVERIFY(box.plain);
    QVERIFY(!window.nameEditor());
}

void tst_FilesView::keepsItsKeysToItself()
{
    const Files files;
    const QString a = files.write(u"a.txt"_s, "text");
    const FilesWindow window(files);
    window.doubleClickFile(a);
    window.editor()->selectAll();
    window.clickFile(a);
    QVERIFY(window.tree->hasFocus());
    window.key(Qt::Key_C, Qt::ControlModifier);
    const QMimeData *data = QGuiApplication::clipboard()->mimeData();
    QCOMPARE(data->urls(), QList<QUrl>{QUrl::fromLocalFile(a)});
    window.key(Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(files.read(u"Copy_2_of_a.txt"_s), QByteArray("text"));
    QCOMPARE(window.editor()->toPlainText(), u"text"_s);
    window.key(Qt::Key_X, Qt::ControlModifier);
    QCOMPARE(QGuiApplication::clipboard()->mimeData()->data(u"application/x-cut-or-copy"_s),
             QByteArray("cut"));
    QCOMPARE(window.editor()->toPlainText(), u"text"_s);

    // In the text they are the text's.
    QGuiApplication::clipboard()->clear();
    window.editor()->setFocus();
    window.key(Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QGuiApplication::clipboard()->text(), u"text"_s);
}

void tst_FilesView::selectsAllFiles()
{
    const Files files;
    const QString a = files.write(u"a.txt"_s, "text");
    files.write(u"b.txt"_s, "other text");
    const FilesWindow window(files);
    window.doubleClickFile(a);
    window.clickFile(a);
    window.key(Qt::Key_A, Qt::ControlModifier);
    QCOMPARE(window.tree->selectionModel()->selectedRows().size(), 2);
    QVERIFY(!window.editor()->textCursor().hasSelection());

    // In the text they are the text's lines.
    window.editor()->setFocus();
    window.key(Qt::Key_A, Qt::ControlModifier);
    QCOMPARE(window.editor()->textCursor().selectedText(), u"text"_s);
}

void tst_FilesView::tellsKindsOfFilesApart()
{
    const Files files;
    files.write(u"a.txt"_s, "text");
    files.write(u"b.TXT"_s, "text");
    files.write(u"c.xyz"_s, "other");
    files.writeQuarters(u"d.png"_s, QSize(4, 4));
    QVERIFY(QDir(files.folder()).mkdir(u"e"_s));
    const FilesWindow window(files);
    QTRY_COMPARE(window.rows().size(), 5);
    const auto picture = [&](const QString &name) {
        const QModelIndex index = window.model->index(files.path(name));
        return index.data(Qt::DecorationRole).value<QIcon>().pixmap(16).toImage();
    };
    QVERIFY(!picture(u"a.txt"_s).isNull());
    QTRY_COMPARE(picture(u"b.TXT"_s), picture(u"a.txt"_s));
    QTRY_VERIFY(picture(u"d.png"_s) != picture(u"a.txt"_s));
    QTRY_VERIFY(picture(u"c.xyz"_s) != picture(u"a.txt"_s));
    QVERIFY(picture(u"c.xyz"_s) != picture(u"d.png"_s));
    QVERIFY(picture(u"e"_s) != picture(u"c.xyz"_s));
}

void tst_FilesView::leavesItsIconsToTheTree()
{
    const Files files;
    files.write(u"a.txt"_s, "text");
    const FilesWindow window(files);
    QTRY_COMPARE(window.rows().size(), 1);
    delete window.findChild<FilesView *>();
    const QModelIndex index = window.model->index(files.path(u"a.txt"_s));
    const auto picture = [](const QIcon &icon) { return icon.pixmap(16).toImage(); };
    QTRY_COMPARE(picture(window.model->iconProvider()->icon(QFileInfo(files.path(u"a.txt"_s)))),
                 picture(index.data(Qt::DecorationRole).value<QIcon>()));
}

void tst_FilesView::doesNotLookIntoFiles()
{
    const Files files;
    files.writeQuarters(u"a.png"_s, QSize(4, 4));
    QVERIFY(QFile::rename(files.path(u"a.png"_s), files.path(u"a"_s)));
    files.write(u"b"_s, "text");
    const FilesWindow window(files);
    QTRY_COMPARE(window.rows().size(), 2);
    const auto type = [&](const QString &name) {
        return window.model->type(window.model->index(files.path(name)));
    };
    QTRY_VERIFY(!type(u"b"_s).isEmpty());
    QTRY_COMPARE(type(u"a"_s), type(u"b"_s));
}

void tst_FilesView::namesTypesBySuffix()
{
    const Files files;
    // Known by its whole name, and the first of the tree.
    files.write(u"CMakeLists.txt"_s, "project(a)");
    files.write(u"a.txt"_s, "text");
    files.write(u"b.unheard-of"_s, "text");
    files.write(u"c"_s, "text");
    const FilesWindow window(files);
    QTRY_COMPARE(window.rows().size(), 4);
    const auto type = [&](const QString &name) {
        return window.model->type(window.model->index(files.path(name)));
    };
    const QString text = QMimeDatabase().mimeTypeForName(u"text/plain"_s).comment();
    QTRY_COMPARE(type(u"CMakeLists.txt"_s), text);
    QTRY_COMPARE(type(u"a.txt"_s), text);
    QTRY_COMPARE(type(u"b.unheard-of"_s), u"File"_s);
    QTRY_COMPARE(type(u"c"_s), u"File"_s);
}

NORVANE_TEST_MAIN(tst_FilesView)
#include "tst_FilesView.moc"
