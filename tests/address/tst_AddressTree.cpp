// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "Answers.h"
#include "Fault.h"
#include "Files.h"
#include "Gui.h"
#include "OpenedUrls.h"
#include "TestCase.h"
#include "Unprivileged.h"

#include <address/AddressTree.h>

#include <QtCore/QMetaMethod>
#include <QtCore/QMimeData>
#include <QtCore/QRegularExpression>
#include <QtCore/QScopeGuard>
#include <QtGui/QAction>
#include <QtGui/QClipboard>
#include <QtGui/QDragEnterEvent>
#include <QtGui/QFileSystemModel>
#include <QtTest/QSignalSpy>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMenu>

#include <functional>
#include <memory>

using Norvane::AddressTree;
using namespace Qt::StringLiterals;

class tst_AddressTree : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void hasTwoSignalsAndASlot();
    void isAViewOfFiles();
    void namesItsActions();

    void showsAFolder();
    void showsTheRoot();
    void showsPathsAsTheyAreEdited();
    void ignoresTheCurrentPath();
    void staysWhereItIsWithoutAFolder();
    void showsFoldersThatMayNotBeRead();
    void actsOnNothingBeforeItShowsAFolder();
    void actsOnNothingAfterItsFolderIsGone();
    void namesItsFolderAfterItIsGone();
    void selectsWhereItCameFrom_data();
    void selectsWhereItCameFrom();
    void selectsWhereItCameFromWithAKeyDown_data();
    void selectsWhereItCameFromWithAKeyDown();
    void opensNoFoldersOnItsWay();
    void deletesNothingAfterANavigation();
    void knowsItsTarget();

    void enablesActionsForTheSelection();
    void enablesPasteForFiles();

    void followsADoubleClickOnAFolder();
    void reportsFilesWithASuffix_data();
    void reportsFilesWithASuffix();
    void offersToOpenOtherFiles_data();
    void offersToOpenOtherFiles();

    void offersWhatCanBeDone_data();
    void offersWhatCanBeDone();
    void opensItsMenuUnderTheMouse();
    void showsMenusWithoutADestination();
    void doesWhatIsPicked();
    void takesNewActions();

    void takesKeys_data();
    void takesKeys();
    void swallowsKeys_data();
    void swallowsKeys();
    void leavesOtherKeysToTheView();

    void copiesInTheOrderOfSelection();
    void copiesNothing();
    void pastesIntoItsTarget_data();
    void pastesIntoItsTarget();
    void deletesWithoutAsking();
    void createsAFolderAndEditsItsName();
    void createsAFolderInAClosedFolder();
    void createsAFolderBesideAFile();
    void renames_data();
    void renames();
    void renamesNothing_data();
    void renamesNothing();
    void renamesNothingThatMayNotBeWritten();
    void renamesOneEntryOnly();
    void actsOnItsFolderWithoutACurrentEntry();

    void takesFilesOnly();
    void tellsMoveFromCopyByTheDrive_data();
    void tellsMoveFromCopyByTheDrive();
    void acceptsEveryMove();
    void takesADrop_data();
    void takesADrop();
    void dropsOnTheNearestRow();
    void ignoresADropOfText();
    void isDeletedWhileItAsks_data();
    void isDeletedWhileItAsks();
    void isDeletedWhileItLists();
    void leavesAFolderBeforeItIsListed();
    void actsOnAFolderBeforeItIsListed();
    void renamesNothingThatIsGoneMeanwhile();
    void followsChangesOnTheDisk();
};

namespace {

class Tree : public AddressTree
{
public:
    explicit Tree(const Files &files)
        : AddressTree(nullptr)
        , m_files(files)
    {
        resize(600, 400);
    }

    //! Shows the folder and waits for what is in it.
    bool open(const QString &name = {})
    {
        slotPathChanged(name.isEmpty() ? m_files.path() : m_files.path(name));
        return Gui::open(this) && QTest::qWaitForWindowActive(this, patience) && load();
    }

    //! Rows come first and find their order then: who clicks in between hits another.
    bool load()
    {
        setFocus();
        const QDir folder(files()->rootPath());
        const QStringList names = folder.entryList(QDir::AllEntries | QDir::NoDotAndDotDot,
                                                   QDir::Name | QDir::IgnoreCase | QDir::DirsFirst);
        return QTest::qWaitFor(
            [this, names] {
                QStringList rows;
                for (int row = 0; row < files()->rowCount(rootIndex()); ++row)
                    rows << files()->fileName(files()->index(row, 0, rootIndex()));
                return rows == names;
            },
            patience);
    }

    QFileSystemModel *files() const { return qobject_cast<QFileSystemModel *>(model()); }
    QModelIndex index(const QString &name) const { return files()->index(m_files.path(name)); }
    QPoint position(const QString &name) const { return visualRect(index(name)).center(); }
    QPoint emptyPosition() const { return viewport()->rect().bottomRight() - QPoint(5, 5); }

    void click(const QString &name, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::mouseClick(windowHandle(), Qt::LeftButton, modifiers,
                          Gui::inWindow(viewport(), position(name)));
    }

    void doubleClick(const QString &name)
    {
        click(name);
        QTest::mouseDClick(windowHandle(), Qt::LeftButton, {},
                           Gui::inWindow(viewport(), position(name)));
    }

    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(windowHandle(), key, modifiers);
    }

    QStringList selected() const
    {
        QStringList names;
        const QStringList paths = selectedPaths();
        for (const QString &path : paths)
            names << QFileInfo(path).fileName();
        return names;
    }

    QAction *action(const QString &text) const
    {
        const QList<QAction *> actions = findChildren<QAction *>(Qt::FindDirectChildrenOnly);
        for (QAction *action : actions) {
            if (action->text() == text)
                return action;
        }
        return nullptr;
    }

    QLineEdit *editor() const { return viewport()->findChild<QLineEdit *>(); }

private:
    const Files &m_files;
};

//! "Text", "-" for a line, and "Text>" before the entries of a menu, which end with "<".
QStringList described(const QMenu *menu)
{
    QStringList texts;
    const QList<QAction *> actions = menu->actions();
    for (const QAction *action : actions) {
        if (action->isSeparator())
            texts << u"-"_s;
        else if (action->menu())
            texts << action->text() + u'>' << described(action->menu()) << u"<"_s;
        else
            texts << action->text();
    }
    return texts;
}

/*!
    Opens the context menu with the right mouse button and clicks through the given entries; without
    any, it closes the menu again. Returns what was in the menu, which \a look can look at before.
*/
QStringList menuAt(Tree *tree, QPoint position, QStringList picks = {},
                   const std::function<void(const QMenu *)> &look = {})
{
    QStringList seen;
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, &poll, [&] {
        auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        if (!menu || !menu->windowHandle() || !menu->windowHandle()->isExposed())
            return;
        if (seen.isEmpty()) {
            seen = described(menu);
            if (look)
                look(menu);
            // It opened under a button that is still down.
            Gui::release(tree->viewport(), position, Qt::RightButton);
        }
        if (picks.isEmpty()) {
            QTest::keyClick(menu->windowHandle(), Qt::Key_Escape);
            return;
        }
        const QList<QAction *> actions = menu->actions();
        for (QAction *action : actions) {
            if (action->text() != picks.constFirst())
                continue;
            picks.removeFirst();
            const QPoint place = menu->actionGeometry(action).center();
            QTest::mouseMove(menu->windowHandle(), place);
            QTest::mouseClick(menu->windowHandle(), Qt::LeftButton, {}, place);
            return;
        }
    });
    poll.start(1);
    Gui::press(tree->viewport(), position, Qt::RightButton);
    return seen;
}

void toClipboard(const QStringList &paths, const QByteArray &mark = "copy")
{
    auto *data = new QMimeData;
    QList<QUrl> urls;
    for (const QString &path : paths)
        urls << QUrl::fromLocalFile(path);
    data->setUrls(urls);
    data->setData(u"application/x-cut-or-copy"_s, mark);
    QGuiApplication::clipboard()->setMimeData(data);
}

QStringList clipboardNames()
{
    QStringList names;
    const QList<QUrl> urls = QGuiApplication::clipboard()->mimeData()->urls();
    for (const QUrl &url : urls)
        names << url.fileName();
    return names;
}

bool clipboardHasUrls()
{
    const QMimeData *data = QGuiApplication::clipboard()->mimeData();
    return data && data->hasUrls();
}

QByteArray clipboardMark()
{
    return QGuiApplication::clipboard()->mimeData()->data(u"application/x-cut-or-copy"_s);
}

//! Drags over the widget and drops, as Qt reports it. Returns whether each event was accepted.
struct Drop
{
    Drop(QWidget *widget, const QMimeData *data, QPointF position)
    {
        QDragEnterEvent enter(position.toPoint(), Qt::CopyAction | Qt::MoveAction, data,
                              Qt::LeftButton, {});
        QApplication::sendEvent(widget, &enter);
        entered = enter.isAccepted();
        QDropEvent drop(position, Qt::CopyAction | Qt::MoveAction, data, Qt::LeftButton, {});
        QApplication::sendEvent(widget, &drop);
        dropped = drop.isAccepted();
    }

    bool entered;
    bool dropped;
};

std::unique_ptr<QMimeData> filesOf(const QStringList &paths)
{
    auto data = std::make_unique<QMimeData>();
    QList<QUrl> urls;
    for (const QString &path : paths)
        urls << QUrl::fromLocalFile(path);
    data->setUrls(urls);
    return data;
}

// As root nobody could say that it may not be read.
constexpr QLatin1StringView elsewhere("/etc/passwd");

} // namespace

void tst_AddressTree::hasTwoSignalsAndASlot()
{
    const QMetaObject &meta = AddressTree::staticMetaObject;
    QCOMPARE(meta.superClass(), &QTreeView::staticMetaObject);
    const QByteArrayList signatures{"signalFileOpen(QString)", "signalPathChanged(QString)",
                                    "slotPathChanged(QString)"};
    QCOMPARE(meta.methodCount(), meta.methodOffset() + signatures.size());
    for (int i = 0; i < signatures.size(); ++i) {
        const QMetaMethod method = meta.method(meta.methodOffset() + i);
        QCOMPARE(method.methodSignature(), signatures.at(i));
        QCOMPARE(method.methodType(), i < 2 ? QMetaMethod::Signal : QMetaMethod::Slot);
    }
}

void tst_AddressTree::isAViewOfFiles()
{
    QWidget parent;
    const AddressTree tree(&parent);
    QCOMPARE(tree.parentWidget(), &parent);
    const auto *model = qobject_cast<QFileSystemModel *>(tree.model());
    QVERIFY(model);
    QCOMPARE(model->parent(), &tree);
    QVERIFY(!model->isReadOnly());
    QCOMPARE(model->nameFilters(), QStringList());
    QCOMPARE(tree.selectionMode(), QAbstractItemView::ExtendedSelection);
    QCOMPARE(tree.selectionBehavior(), QAbstractItemView::SelectRows);
    QCOMPARE(tree.editTriggers(), QAbstractItemView::NoEditTriggers);
    QVERIFY(tree.acceptDrops());
    QVERIFY(tree.dragEnabled());
    QVERIFY(tree.showDropIndicator());
    QCOMPARE(tree.contextMenuPolicy(), Qt::CustomContextMenu);
    QCOMPARE(tree.columnWidth(0), 200);
    for (int column = 1; column <= 3; ++column)
        QCOMPARE(tree.columnWidth(column), 100);
    QCOMPARE(int(tree.header()->defaultAlignment()), 129);
}

void tst_AddressTree::namesItsActions()
{
    const AddressTree tree;
    struct Named
    {
        QString text;
        QKeySequence keys;
    };
    const QList<Named> expected{{u"Open"_s, {}},
                                {u"Cut"_s, QKeySequence::Cut},
                                {u"Copy"_s, QKeySequence::Copy},
                                {u"Paste"_s, QKeySequence::Paste},
                                {u"Delete"_s, QKeySequence::Delete},
                                {u"Rename"_s, Qt::Key_F2},
                                {u"Folder"_s, {}},
                                {u"Open in Explorer"_s, {}},
                                {u"Open with Default"_s, {}},
                                {u"Copy Absolute Path"_s, {}},
                                {u"Copy Relative Path"_s, {}}};
    const auto actions = tree.findChildren<QAction *>(Qt::FindDirectChildrenOnly);
    QCOMPARE(actions.size(), expected.size());
    for (qsizetype i = 0; i < expected.size(); ++i) {
        QCOMPARE(actions.at(i)->text(), expected.at(i).text);
        QCOMPARE(actions.at(i)->shortcut(), expected.at(i).keys);
    }
    // Their keys are the view's own business and would be ambiguous otherwise.
    QCOMPARE(tree.actions(), QList<QAction *>());
}

void tst_AddressTree::showsAFolder()
{
    const Files files({u"d/e"_s, u"d/f=1"_s, u"d/.hidden=2"_s, u"d/.folder"_s});
    Tree tree(files);
    QVERIFY(tree.open(u"d"_s));
    QCOMPARE(tree.files()->filePath(tree.rootIndex()), files.path(u"d"_s));
    QCOMPARE(tree.files()->rowCount(tree.rootIndex()), 2);
    QCOMPARE(tree.targetPath(), files.path(u"d"_s));
    QVERIFY(tree.visualRect(tree.index(u"d/f"_s)).isValid());
}

void tst_AddressTree::showsTheRoot()
{
    const Files files;
    Tree tree(files);
    QVERIFY(tree.open());
    tree.slotPathChanged({});
    QCOMPARE(tree.targetPath(), u"/"_s);
    QCOMPARE(tree.rootIndex(), tree.files()->index(u"/"_s));
    QTRY_VERIFY(tree.files()->rowCount(tree.rootIndex()) > 3);
}

void tst_AddressTree::showsPathsAsTheyAreEdited()
{
    const Files files({u"d"_s});
    Tree tree(files);
    tree.slotPathChanged(files.path(u"d"_s).replace(u'/', u'\\'));
    QCOMPARE(tree.targetPath(), files.path(u"d"_s));
    QCOMPARE(tree.files()->filePath(tree.rootIndex()), files.path(u"d"_s));
}

void tst_AddressTree::ignoresTheCurrentPath()
{
    const Files files({u"d"_s, u"f=1"_s});
    Tree tree(files);
    QVERIFY(tree.open());
    tree.click(u"f"_s);
    const QSignalSpy roots(tree.files(), &QFileSystemModel::rootPathChanged);
    const QSignalSpy selections(tree.selectionModel(), &QItemSelectionModel::selectionChanged);
    tree.slotPathChanged(files.path());
    QCOMPARE(roots.size(), 0);
    QCOMPARE(selections.size(), 0);
    QCOMPARE(tree.selected(), QStringList{u"f"_s});
}

void tst_AddressTree::staysWhereItIsWithoutAFolder()
{
    const Files files({u"d"_s, u"f=1"_s});
    Tree tree(files);
    QVERIFY(tree.open());
    tree.click(u"f"_s);
    for (const QString &path :
         {files.path(u"no"_s), u"no"_s, u"   "_s, u"C:/no"_s, QString(10'000, u'x')}) {
        tree.slotPathChanged(path);
        QCOMPARE(tree.files()->filePath(tree.rootIndex()), files.path());
        QCOMPARE(tree.selected(), QStringList());
        QCOMPARE(tree.targetPath(), files.path());
    }
    QVERIFY(QDir(files.path(u"d"_s)).removeRecursively());
    QTRY_COMPARE(tree.files()->rowCount(tree.rootIndex()), 1);
    tree.slotPathChanged(files.path(u"d"_s));
    QCOMPARE(tree.targetPath(), files.path());
    tree.slotPathChanged(files.path());
    QCOMPARE(tree.targetPath(), files.path());
}

void tst_AddressTree::showsFoldersThatMayNotBeRead()
{
    const Unprivileged user;
    const Files files({u"locked"_s, u"locked/f=1"_s, u"g=1"_s});
    const QString locked = files.path(u"locked"_s);
    QVERIFY(QFile::setPermissions(locked, {}));
    const auto unlock = qScopeGuard([&] {
        QFile::setPermissions(locked, QFile::ReadUser | QFile::WriteUser | QFile::ExeUser);
    });
    Tree tree(files);
    QVERIFY(tree.open());
    // The model says that it cannot follow what happens there.
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"^inotify_add_watch.*/locked"_s));
    tree.slotPathChanged(locked);
    QCOMPARE(tree.files()->filePath(tree.rootIndex()), locked);
    QCOMPARE(tree.targetPath(), locked);
    QCOMPARE(tree.files()->rowCount(tree.rootIndex()), 0);
    // Nothing can be put there, and nothing says so.
    const Answers answers;
    toClipboard({files.path(u"g"_s)});
    tree.key(Qt::Key_V, Qt::ControlModifier);
    tree.action(u"Folder"_s)->trigger();
    QVERIFY(!tree.editor());
    QCOMPARE(answers.texts(), QStringList());
    QCOMPARE(clipboardNames(), QStringList{u"g"_s});
    tree.slotPathChanged(files.path());
    QVERIFY(tree.load());
    QCOMPARE(tree.selected(), QStringList{u"locked"_s});
    QVERIFY(QFile::setPermissions(locked, QFile::ReadUser | QFile::WriteUser | QFile::ExeUser));
    QCOMPARE(files.entries(), QStringList({u"g=1"_s, u"locked/"_s, u"locked/f=1"_s}));
}

void tst_AddressTree::actsOnNothingBeforeItShowsAFolder()
{
    const Files files({u"cwd"_s, u"f=1"_s});
    const QStringList before = files.entries();
    const QString here = QDir::currentPath();
    QVERIFY(QDir::setCurrent(files.path(u"cwd"_s)));
    const auto back = qScopeGuard([here] { QDir::setCurrent(here); });
    Tree tree(files);
    QVERIFY(Gui::open(&tree) && QTest::qWaitForWindowActive(&tree, patience));
    QCOMPARE(tree.targetPath(), QString());
    toClipboard({files.path(u"f"_s)});
    tree.setFocus();
    tree.key(Qt::Key_V, Qt::ControlModifier);
    tree.action(u"Folder"_s)->trigger();
    QVERIFY(!tree.editor());
    tree.key(Qt::Key_Delete);
    tree.key(Qt::Key_F2);
    const Drop drop(tree.viewport(), filesOf({files.path(u"f"_s)}).get(), tree.emptyPosition());
    QVERIFY(drop.entered);
    QCOMPARE(files.entries(), before);
}

void tst_AddressTree::actsOnNothingAfterItsFolderIsGone()
{
    const Files files({u"d"_s, u"d/f=1"_s, u"g=1"_s});
    Tree tree(files);
    QVERIFY(tree.open(u"d"_s));
    tree.click(u"d/f"_s);
    QVERIFY(QDir(files.path(u"d"_s)).removeRecursively());
    toClipboard({files.path(u"g"_s)});
    for (int i = 0; i < 2; ++i) {
        tree.key(Qt::Key_V, Qt::ControlModifier);
        tree.key(Qt::Key_Delete);
        tree.key(Qt::Key_X, Qt::ControlModifier);
        QCOMPARE(files.entries(), QStringList{u"g=1"_s});
        tree.selectionModel()->clear();
        QCOMPARE(tree.targetPath(), files.path(u"d"_s));
    }
}

void tst_AddressTree::namesItsFolderAfterItIsGone()
{
    const Files files({u"a/d"_s, u"a/d/f=1"_s, u"g=1"_s});
    Tree tree(files);
    QVERIFY(tree.open());
    // So that the model follows what happens in the folder above it.
    tree.expand(tree.index(u"a"_s));
    QTRY_COMPARE(tree.files()->rowCount(tree.index(u"a"_s)), 1);
    const QString gone = files.path(u"a/d"_s);
    tree.slotPathChanged(gone);
    QVERIFY(tree.load());
    QVERIFY(QDir(gone).removeRecursively());
    QTRY_VERIFY(!tree.rootIndex().isValid());
    QCOMPARE(tree.selectedPaths(), QStringList());
    QCOMPARE(tree.targetPath(), gone);
    const Answers answers;
    toClipboard({files.path(u"g"_s)});
    tree.key(Qt::Key_V, Qt::ControlModifier);
    const Drop drop(tree.viewport(), filesOf({files.path(u"g"_s)}).get(), tree.emptyPosition());
    QVERIFY(drop.entered);
    QCOMPARE(answers.texts(), QStringList());
    QCOMPARE(files.entries(), QStringList({u"a/"_s, u"g=1"_s}));
    // The missing folder is made along with the new one.
    tree.action(u"Folder"_s)->trigger();
    QCOMPARE(files.entries(), QStringList({u"a/"_s, u"a/d/"_s, u"a/d/New Folder/"_s, u"g=1"_s}));
}

void tst_AddressTree::selectsWhereItCameFrom_data()
{
    QTest::addColumn<QString>("from");
    QTest::addColumn<QString>("to");
    QTest::addColumn<QStringList>("selected");
    QTest::newRow("up") << u"a/b"_s << u"a"_s << QStringList{u"b"_s};
    QTest::newRow("up by two") << u"a/b/c"_s << u"a"_s << QStringList();
    QTest::newRow("down") << u"a"_s << u"a/b"_s << QStringList();
    QTest::newRow("down by two") << u"a"_s << u"a/b/c"_s << QStringList();
    QTest::newRow("aside") << u"a"_s << u"z"_s << QStringList();
    QTest::newRow("to what is not there") << u"a"_s << u"no"_s << QStringList();
}

void tst_AddressTree::selectsWhereItCameFrom()
{
    QFETCH(QString, from);
    QFETCH(QString, to);
    QFETCH(QStringList, selected);
    const Files files({u"a/b/c"_s, u"a/f=1"_s, u"a/b/f=2"_s, u"a/b/c/f=3"_s, u"z"_s});
    Tree tree(files);
    QVERIFY(tree.open(from));
    tree.click(from + u"/f"_s);
    QCOMPARE(tree.selected(), QStringList{u"f"_s});
    tree.slotPathChanged(files.path(to));
    QCOMPARE(tree.selected(), selected);
    const QString folder = to == u"no"_s ? from : to;
    QCOMPARE(tree.targetPath(),
             files.path(selected.isEmpty() ? folder : folder + u'/' + selected.constFirst()));
    QVERIFY(tree.load());
    QCOMPARE(tree.selected(), selected);
    const QModelIndexList rows = tree.selectionModel()->selectedRows();
    for (const QModelIndex &row : rows)
        QCOMPARE(row.parent(), tree.rootIndex());
}

void tst_AddressTree::selectsWhereItCameFromWithAKeyDown_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::newRow("control") << Qt::Key_Control << Qt::KeyboardModifiers(Qt::ControlModifier);
    QTest::newRow("shift") << Qt::Key_Shift << Qt::KeyboardModifiers(Qt::ShiftModifier);
}

// With one of these keys a view adds to its selection.
void tst_AddressTree::selectsWhereItCameFromWithAKeyDown()
{
    QFETCH(Qt::Key, key);
    QFETCH(Qt::KeyboardModifiers, modifiers);
    const Files files({u"a/b"_s, u"a/b/f=1"_s, u"z"_s});
    Tree tree(files);
    QVERIFY(tree.open(u"a/b"_s));
    tree.click(u"a/b/f"_s);
    QTest::keyPress(tree.windowHandle(), key, modifiers);
    QCOMPARE(QGuiApplication::keyboardModifiers(), modifiers);
    tree.slotPathChanged(files.path(u"a"_s));
    QCOMPARE(tree.selected(), QStringList{u"b"_s});
    tree.slotPathChanged(files.path(u"z"_s));
    QCOMPARE(tree.selected(), QStringList());
    QTest::keyRelease(tree.windowHandle(), key);
}

void tst_AddressTree::opensNoFoldersOnItsWay()
{
    const Files files({u"a/b/c"_s, u"a/d"_s, u"z"_s});
    Tree tree(files);
    QVERIFY(tree.open(u"a/b/c"_s));
    const QSignalSpy opened(&tree, &QTreeView::expanded);
    for (const QString &path : {u"a/b"_s, u"a"_s, u"z"_s, u"a/b/c"_s, u"a"_s}) {
        tree.slotPathChanged(files.path(path));
        QVERIFY(tree.load());
    }
    QCOMPARE(opened.size(), 0);
    QVERIFY(!tree.isExpanded(tree.index(u"a/b"_s)));
    // The view still scrolls to what a person goes to.
    QVERIFY(tree.hasAutoScroll());
}

void tst_AddressTree::deletesNothingAfterANavigation()
{
    const Files files({u"a/b"_s, u"a/f=1"_s, u"z"_s});
    const QStringList before = files.entries();
    Tree tree(files);
    QVERIFY(tree.open(u"a"_s));
    for (const QString &name : {u"f"_s, u"b"_s}) {
        tree.slotPathChanged(files.path(u"a"_s));
        QVERIFY(tree.load());
        tree.click(u"a/"_s + name);
        for (const QString &next : {u"z"_s, u"a"_s, u"a/b"_s}) {
            tree.slotPathChanged(files.path(next));
            QVERIFY(tree.load());
            tree.key(Qt::Key_Delete);
            tree.key(Qt::Key_X, Qt::ControlModifier);
            tree.key(Qt::Key_F2);
            QVERIFY(!tree.editor());
        }
    }
    QCOMPARE(files.entries(), before);
}

void tst_AddressTree::knowsItsTarget()
{
    const Files files({u"a"_s, u"b"_s, u"f=1"_s});
    Tree tree(files);
    QVERIFY(tree.open());
    QCOMPARE(tree.targetPath(), files.path());
    tree.click(u"b"_s);
    QCOMPARE(tree.targetPath(), files.path(u"b"_s));
    tree.click(u"f"_s, Qt::ControlModifier);
    QCOMPARE(tree.selected(), QStringList({u"b"_s, u"f"_s}));
    QCOMPARE(tree.targetPath(), files.path(u"f"_s));
    // The last one that was clicked stays current, and something is still selected.
    tree.click(u"f"_s, Qt::ControlModifier);
    QCOMPARE(tree.selected(), QStringList{u"b"_s});
    QCOMPARE(tree.targetPath(), files.path(u"f"_s));
    tree.click(u"b"_s, Qt::ControlModifier);
    QCOMPARE(tree.targetPath(), files.path());
}

void tst_AddressTree::enablesActionsForTheSelection()
{
    const Files files({u"a=1"_s, u"b=1"_s, u"c=1"_s});
    Tree tree(files);
    QVERIFY(tree.open());
    const auto enabled = [&] {
        QStringList texts;
        const auto actions = tree.findChildren<QAction *>(Qt::FindDirectChildrenOnly);
        for (const QAction *action : actions) {
            if (action->isEnabled() && action->text() != u"Paste"_s)
                texts << action->text();
        }
        return texts;
    };
    const QStringList one{u"Open"_s,
                          u"Cut"_s,
                          u"Copy"_s,
                          u"Delete"_s,
                          u"Rename"_s,
                          u"Folder"_s,
                          u"Open in Explorer"_s,
                          u"Open with Default"_s,
                          u"Copy Absolute Path"_s,
                          u"Copy Relative Path"_s};
    const QStringList several{u"Cut"_s, u"Copy"_s, u"Delete"_s, u"Folder"_s};
    const QStringList none{u"Copy"_s, u"Folder"_s};
    tree.click(u"a"_s);
    QCOMPARE(enabled(), one);
    tree.click(u"b"_s, Qt::ControlModifier);
    QCOMPARE(enabled(), several);
    tree.click(u"c"_s, Qt::ControlModifier);
    QCOMPARE(enabled(), several);
    tree.click(u"c"_s);
    QCOMPARE(enabled(), one);
    tree.click(u"c"_s, Qt::ControlModifier);
    QCOMPARE(enabled(), none);
    tree.click(u"a"_s);
    QVERIFY(QFile::remove(files.path(u"a"_s)));
    QTRY_COMPARE(enabled(), none);
}

void tst_AddressTree::enablesPasteForFiles()
{
    const Files files;
    QGuiApplication::clipboard()->clear();
    Tree tree(files);
    const QAction *paste = tree.action(u"Paste"_s);
    QVERIFY(!paste->isEnabled());
    toClipboard({});
    QVERIFY(paste->isEnabled());
    QGuiApplication::clipboard()->setText(files.path());
    QVERIFY(!paste->isEnabled());
    toClipboard({files.path()});
    QVERIFY(paste->isEnabled());
    QVERIFY(Tree(files).action(u"Paste"_s)->isEnabled());
    QGuiApplication::clipboard()->clear();
    QVERIFY(!paste->isEnabled());
}

void tst_AddressTree::followsADoubleClickOnAFolder()
{
    const Files files({u"d.txt"_s, u"link->d.txt"_s});
    Tree tree(files);
    tree.setSuffixes({u"txt"_s, QString()});
    QVERIFY(tree.open());
    const QSignalSpy paths(&tree, &AddressTree::signalPathChanged);
    const QSignalSpy opened(&tree, &AddressTree::signalFileOpen);
    tree.doubleClick(u"d.txt"_s);
    tree.doubleClick(u"link"_s);
    QCOMPARE(paths, (QList<QVariantList>{{files.path(u"d.txt"_s)}, {files.path(u"link"_s)}}));
    QCOMPARE(opened.size(), 0);
    // It waits to be told.
    QCOMPARE(tree.files()->filePath(tree.rootIndex()), files.path());
}

void tst_AddressTree::reportsFilesWithASuffix_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QStringList>("suffixes");
    QTest::addColumn<bool>("reported");
    QTest::newRow("same") << u"f.txt"_s << QStringList{u"png"_s, u"txt"_s} << true;
    QTest::newRow("none") << u"f.txt"_s << QStringList() << false;
    QTest::newRow("another") << u"f.txt"_s << QStringList{u"png"_s} << false;
    QTest::newRow("another case") << u"f.TXT"_s << QStringList{u"txt"_s} << false;
    QTest::newRow("part") << u"f.txt"_s << QStringList{u"tx"_s, u"*.txt"_s} << false;
    QTest::newRow("last of two") << u"f.tar.gz"_s << QStringList{u"gz"_s} << true;
    QTest::newRow("both of two") << u"f.tar.gz"_s << QStringList{u"tar.gz"_s} << false;
    QTest::newRow("no suffix") << u"f"_s << QStringList{QString()} << true;
    QTest::newRow("no suffix, none wanted") << u"f"_s << QStringList{u"txt"_s} << false;
    QTest::newRow("the ones before") << u"f.was"_s << QStringList{u"txt"_s} << false;
    QTest::newRow("a blank") << u"f. "_s << QStringList{u" "_s} << true;
}

void tst_AddressTree::reportsFilesWithASuffix()
{
    QFETCH(QString, name);
    QFETCH(QStringList, suffixes);
    QFETCH(bool, reported);
    const Files files({name + u"=1"_s});
    Tree tree(files);
    tree.setSuffixes({u"was"_s});
    tree.setSuffixes(suffixes);
    QVERIFY(tree.open());
    const QSignalSpy paths(&tree, &AddressTree::signalPathChanged);
    const QSignalSpy opened(&tree, &AddressTree::signalFileOpen);
    const Answers answers({{u"Cancel"_s}});
    const OpenedUrls urls;
    tree.doubleClick(name);
    QCOMPARE(opened, reported ? QList<QVariantList>{{files.path(name)}} : QList<QVariantList>());
    QCOMPARE(answers.boxes().size(), reported ? 0 : 1);
    QCOMPARE(paths.size(), 0);
    QCOMPARE(urls.paths, QStringList());
}

void tst_AddressTree::offersToOpenOtherFiles_data()
{
    QTest::addColumn<QString>("answer");
    QTest::addColumn<bool>("opened");
    QTest::newRow("OK") << u"OK"_s << true;
    QTest::newRow("Cancel") << u"Cancel"_s << false;
    QTest::newRow("Escape") << QString() << false;
}

void tst_AddressTree::offersToOpenOtherFiles()
{
    QFETCH(QString, answer);
    QFETCH(bool, opened);
    const Files files({u"f.txt=1"_s});
    Tree tree(files);
    QVERIFY(tree.open());
    const QSignalSpy reported(&tree, &AddressTree::signalFileOpen);
    const OpenedUrls urls;
    const Answers answers({{answer}, {answer, [&] { QFile::remove(files.path(u"f.txt"_s)); }}});
    tree.doubleClick(u"f.txt"_s);
    QCOMPARE(urls.paths, opened ? QStringList{files.path(u"f.txt"_s)} : QStringList());
    tree.doubleClick(u"f.txt"_s);
    QCOMPARE(urls.paths.size(), opened ? 1 : 0);
    QCOMPARE(answers.boxes().size(), 2);
    const Answers::Box box = answers.boxes().constFirst();
    QCOMPARE(box.title, u"Infomation"_s);
    QCOMPARE(box.text, u"Open the selected file with the external default program?"_s);
    QCOMPARE(box.buttons, QStringList({u"OK"_s, u"Cancel"_s}));
    QCOMPARE(box.icon, QMessageBox::Information);
    QCOMPARE(box.parent, &tree);
    QCOMPARE(reported.size(), 0);
}

void tst_AddressTree::offersWhatCanBeDone_data()
{
    QTest::addColumn<QStringList>("selected");
    QTest::addColumn<QString>("under");
    QTest::addColumn<QStringList>("entries");
    const QStringList edit{u"Cut"_s, u"Copy"_s, u"Paste"_s, u"-"_s, u"Delete"_s};
    const QStringList rename{u"Rename"_s, u"-"_s};
    const QStringList file{u"Open with Default"_s,  u"Copy Path>"_s, u"Copy Absolute Path"_s,
                           u"Copy Relative Path"_s, u"<"_s,          u"Open in Explorer"_s};
    const QStringList create{u"New>"_s, u"Folder"_s, u"<"_s};
    QTest::newRow("file") << QStringList() << u"f.txt"_s << edit + rename + file;
    QTest::newRow("file with a suffix")
        << QStringList() << u"f.png"_s << QStringList{u"Open"_s} + edit + rename + file;
    QTest::newRow("folder") << QStringList() << u"d"_s
                            << edit + rename + QStringList{u"Open in Explorer"_s} + create;
    QTest::newRow("folder with a suffix")
        << QStringList() << u"d.png"_s
        << QStringList{u"Open"_s} + edit + rename + QStringList{u"Open in Explorer"_s} + create;
    QTest::newRow("link to nothing")
        << QStringList() << u"no"_s << edit + rename + QStringList{u"Open in Explorer"_s};
    QTest::newRow("several") << QStringList{u"f.png"_s, u"d"_s} << u"f.png"_s
                             << edit + QStringList{u"-"_s, u"Open in Explorer"_s};
    QTest::newRow("nothing") << QStringList() << QString()
                             << QStringList{u"Paste"_s, u"-"_s} + create;
    QTest::newRow("beside what is selected")
        << QStringList{u"f.png"_s} << QString() << QStringList{u"Paste"_s, u"-"_s} + create;
}

void tst_AddressTree::offersWhatCanBeDone()
{
    QFETCH(QStringList, selected);
    QFETCH(QString, under);
    const Files files({u"f.txt=1"_s, u"f.png=1"_s, u"d"_s, u"d.png"_s, u"no->nowhere"_s});
    Tree tree(files);
    tree.setSuffixes({u"png"_s});
    // A link to nothing is only found by its row.
    tree.files()->setFilter(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::System);
    tree.slotPathChanged(files.path());
    QVERIFY(Gui::open(&tree) && QTest::qWaitForWindowActive(&tree, patience));
    QTRY_COMPARE(tree.files()->rowCount(tree.rootIndex()), 5);
    for (const QString &name : selected)
        tree.click(name, Qt::ControlModifier);
    QPoint position = under.isEmpty() ? tree.emptyPosition() : tree.position(under);
    for (int row = 0; under == u"no"_s && row < 5; ++row) {
        const QModelIndex index = tree.files()->index(row, 0, tree.rootIndex());
        if (index.data() == under)
            position = tree.visualRect(index).center();
    }
    QTEST(menuAt(&tree, position), "entries");
}

void tst_AddressTree::opensItsMenuUnderTheMouse()
{
    const Files files({u"f=1"_s});
    Tree tree(files);
    QVERIFY(tree.open());
    tree.move(40, 50);
    for (const QPoint position : {tree.position(u"f"_s), tree.emptyPosition() - QPoint(300, 200)}) {
        QPointer<const QMenu> shown;
        QPoint place;
        bool orphan = false;
        menuAt(&tree, position, {}, [&](const QMenu *menu) {
            shown = menu;
            place = menu->pos();
            orphan = !menu->parent();
        });
        QCOMPARE(place, tree.viewport()->mapToGlobal(position));
        QVERIFY(orphan);
        QVERIFY(!shown);
    }
}

void tst_AddressTree::showsMenusWithoutADestination()
{
    const Files files;
    Tree tree(files);
    QVERIFY(Gui::open(&tree) && QTest::qWaitForWindowActive(&tree, patience));
    QCOMPARE(menuAt(&tree, tree.emptyPosition()).constFirst(), u"Paste"_s);
}

void tst_AddressTree::doesWhatIsPicked()
{
    const Files files({u"d/sub"_s, u"d/sub/f.txt=1"_s, u"d/g=2"_s});
    Tree tree(files);
    tree.setSuffixes({u"txt"_s});
    QVERIFY(tree.open(u"d"_s));
    tree.expand(tree.index(u"d/sub"_s));
    QTRY_VERIFY(tree.visualRect(tree.index(u"d/sub/f.txt"_s)).isValid());
    const auto at = [&](const QString &name) { return tree.position(name); };
    const OpenedUrls opened;
    QStringList expected;

    menuAt(&tree, at(u"d/sub/f.txt"_s), {u"Open"_s});
    menuAt(&tree, at(u"d/g"_s), {u"Open with Default"_s});
    expected << files.path(u"d/sub/f.txt"_s) << files.path(u"d/g"_s);
    QCOMPARE(opened.paths, expected);
    menuAt(&tree, at(u"d/sub/f.txt"_s), {u"Open in Explorer"_s});
    menuAt(&tree, at(u"d/sub"_s), {u"Open in Explorer"_s});
    expected << files.path(u"d/sub"_s) << files.path(u"d/sub"_s);
    QCOMPARE(opened.paths, expected);

    // Whoever listens to the clipboard hears that it is emptied first.
    QSignalSpy changes(QGuiApplication::clipboard(), &QClipboard::dataChanged);
    menuAt(&tree, at(u"d/sub/f.txt"_s), {u"Copy Path"_s, u"Copy Absolute Path"_s});
    QCOMPARE(QGuiApplication::clipboard()->text(), files.path(u"d/sub/f.txt"_s));
    QCOMPARE(changes.count(), 2);
    menuAt(&tree, at(u"d/sub/f.txt"_s), {u"Copy Path"_s, u"Copy Relative Path"_s});
    QCOMPARE(QGuiApplication::clipboard()->text(), u"sub/f.txt"_s);
    QCOMPARE(changes.count(), 4);
    QVERIFY(!clipboardHasUrls());
    tree.click(u"d/sub"_s);
    tree.action(u"Copy Absolute Path"_s)->trigger();
    tree.action(u"Copy Relative Path"_s)->trigger();
    QCOMPARE(QGuiApplication::clipboard()->text(), u"sub/f.txt"_s);
    QCOMPARE(changes.count(), 4);

    menuAt(&tree, at(u"d/sub/f.txt"_s), {u"Copy"_s});
    QCOMPARE(clipboardNames(), QStringList{u"f.txt"_s});
    menuAt(&tree, tree.emptyPosition(), {u"Paste"_s});
    QCOMPARE(files.entries(u"d/sub"_s), QStringList({u"Copy_2_of_f.txt=1"_s, u"f.txt=1"_s}));
    menuAt(&tree, at(u"d/sub"_s), {u"Paste"_s});
    QVERIFY(files.entries(u"d/sub"_s).contains(u"Copy_3_of_f.txt=1"_s));
    menuAt(&tree, at(u"d/g"_s), {u"Cut"_s});
    menuAt(&tree, at(u"d/sub"_s), {u"Paste"_s});
    QVERIFY(files.entries(u"d/sub"_s).contains(u"g=2"_s));
    QVERIFY(!QFileInfo::exists(files.path(u"d/g"_s)));
    menuAt(&tree, at(u"d/sub/f.txt"_s), {u"Delete"_s});
    QVERIFY(!QFileInfo::exists(files.path(u"d/sub/f.txt"_s)));
    menuAt(&tree, at(u"d/sub"_s), {u"Rename"_s});
    QVERIFY(tree.editor());
}

void tst_AddressTree::takesNewActions()
{
    const Files files({u"d"_s});
    Tree tree(files);
    QVERIFY(tree.open());
    auto *action = new QAction(u"Text Document"_s, &tree);
    const QSignalSpy triggered(action, &QAction::triggered);
    QString path;
    connect(action, &QAction::triggered, &tree, [&] { path = tree.targetPath(); });
    tree.addNewAction(nullptr);
    tree.addNewAction(action);
    QCOMPARE(menuAt(&tree, tree.emptyPosition(), {u"New"_s, u"Text Document"_s}),
             QStringList({u"Paste"_s, u"-"_s, u"New>"_s, u"Folder"_s, u"Text Document"_s, u"<"_s}));
    QCOMPARE(triggered.size(), 1);
    QCOMPARE(path, files.path());
    menuAt(&tree, tree.position(u"d"_s), {u"New"_s, u"Text Document"_s});
    QCOMPARE(triggered.size(), 2);
    QCOMPARE(path, files.path(u"d"_s));
    delete action;
    QCOMPARE(menuAt(&tree, tree.emptyPosition()).size(), 5);
}

void tst_AddressTree::takesKeys_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::addColumn<QString>("action");
    const auto row = [](const char *name, Qt::Key key, Qt::KeyboardModifiers modifiers,
                        const QString &action) {
        QTest::newRow(name) << key << modifiers << action;
    };
    row("copy", Qt::Key_C, Qt::ControlModifier, u"Copy"_s);
    row("paste", Qt::Key_V, Qt::ControlModifier, u"Paste"_s);
    row("cut", Qt::Key_X, Qt::ControlModifier, u"Cut"_s);
    row("delete", Qt::Key_Delete, Qt::NoModifier, u"Delete"_s);
    row("rename", Qt::Key_F2, Qt::NoModifier, u"Rename"_s);
}

void tst_AddressTree::takesKeys()
{
    QFETCH(Qt::Key, key);
    QFETCH(Qt::KeyboardModifiers, modifiers);
    QFETCH(QString, action);
    const Files files({u"f=1"_s, u"x=1"_s, u"c=1"_s, u"v=1"_s});
    Tree tree(files);
    QVERIFY(tree.open());
    toClipboard({});
    tree.click(u"f"_s);
    QList<QSignalSpy *> others;
    const auto actions = tree.findChildren<QAction *>(Qt::FindDirectChildrenOnly);
    for (QAction *each : actions) {
        if (each->text() != action)
            others << new QSignalSpy(each, &QAction::triggered);
    }
    const QSignalSpy triggered(tree.action(action), &QAction::triggered);
    const QSignalSpy current(tree.selectionModel(), &QItemSelectionModel::currentChanged);
    tree.action(action)->setEnabled(false);
    tree.key(key, modifiers);
    QCOMPARE(triggered.size(), 0);
    // Nor does the view search for an entry with the letter.
    QCOMPARE(current.size(), 0);
    tree.action(action)->setEnabled(true);
    tree.key(key, modifiers);
    QCOMPARE(triggered, QList<QVariantList>{{false}});
    for (const QSignalSpy *other : std::as_const(others))
        QCOMPARE(other->size(), 0);
    qDeleteAll(others);
}

void tst_AddressTree::swallowsKeys_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    const Qt::KeyboardModifiers all[]{Qt::NoModifier,
                                      Qt::ShiftModifier,
                                      Qt::ControlModifier,
                                      Qt::AltModifier,
                                      Qt::ControlModifier | Qt::ShiftModifier,
                                      Qt::ControlModifier | Qt::KeypadModifier,
                                      Qt::KeypadModifier};
    for (const Qt::Key key : {Qt::Key_C, Qt::Key_V, Qt::Key_X, Qt::Key_Delete, Qt::Key_F2}) {
        const bool plain = key == Qt::Key_Delete || key == Qt::Key_F2;
        for (const Qt::KeyboardModifiers modifiers : all) {
            if (modifiers == (plain ? Qt::NoModifier : Qt::ControlModifier))
                continue;
            QTest::addRow("%x with %x", uint(key), uint(modifiers.toInt())) << key << modifiers;
        }
    }
}

void tst_AddressTree::swallowsKeys()
{
    QFETCH(Qt::Key, key);
    QFETCH(Qt::KeyboardModifiers, modifiers);
    const Files files({u"f=1"_s, u"x=1"_s, u"c=1"_s, u"v=1"_s});
    const QStringList before = files.entries();
    Tree tree(files);
    QVERIFY(tree.open());
    toClipboard({files.path(u"f"_s)});
    tree.click(u"f"_s);
    const QSignalSpy current(tree.selectionModel(), &QItemSelectionModel::currentChanged);
    const QSignalSpy clipboard(QGuiApplication::clipboard(), &QClipboard::dataChanged);
    QKeyEvent event(QEvent::KeyPress, key, modifiers, modifiers ? QString() : u"x"_s);
    QApplication::sendEvent(&tree, &event);
    QVERIFY(event.isAccepted());
    QCOMPARE(current.size(), 0);
    QCOMPARE(clipboard.size(), 0);
    QCOMPARE(files.entries(), before);
    QVERIFY(!tree.editor());
}

void tst_AddressTree::leavesOtherKeysToTheView()
{
    const Files files({u"a=1"_s, u"b=1"_s, u"c=1"_s});
    Tree tree(files);
    QVERIFY(tree.open());
    tree.click(u"a"_s);
    tree.key(Qt::Key_Down);
    QCOMPARE(tree.targetPath(), files.path(u"b"_s));
    tree.key(Qt::Key_A);
    QCOMPARE(tree.targetPath(), files.path(u"a"_s));
    tree.key(Qt::Key_A, Qt::ControlModifier);
    QCOMPARE(tree.selected().size(), 3);
}

void tst_AddressTree::copiesInTheOrderOfSelection()
{
    const Files files({u"a=1"_s, u"b=1"_s, u"c=1"_s, u"d=1"_s});
    Tree tree(files);
    QVERIFY(tree.open());
    tree.click(u"d"_s);
    tree.click(u"b"_s, Qt::ControlModifier);
    tree.click(u"c"_s, Qt::ControlModifier);
    QCOMPARE(tree.selected(), QStringList({u"d"_s, u"b"_s, u"c"_s}));
    tree.key(Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(clipboardNames(), tree.selected());
    QCOMPARE(clipboardMark(), "copy");
    tree.key(Qt::Key_X, Qt::ControlModifier);
    QCOMPARE(clipboardNames(), tree.selected());
    QCOMPARE(clipboardMark(), "cut");
    QCOMPARE(files.entries().size(), 4);
}

void tst_AddressTree::copiesNothing()
{
    const Files files({u"a=1"_s});
    Tree tree(files);
    QVERIFY(tree.open());
    QGuiApplication::clipboard()->setText(u"text"_s);
    tree.key(Qt::Key_C, Qt::ControlModifier);
    QVERIFY(clipboardHasUrls());
    QCOMPARE(clipboardNames(), QStringList());
    QCOMPARE(clipboardMark(), "copy");
    tree.key(Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(files.entries(), QStringList{u"a=1"_s});
}

void tst_AddressTree::pastesIntoItsTarget_data()
{
    QTest::addColumn<QString>("selected");
    QTest::addColumn<QString>("pasted");
    QTest::newRow("the shown folder") << QString() << u"shown/f=1"_s;
    QTest::newRow("a folder") << u"shown/d"_s << u"shown/d/f=1"_s;
    QTest::newRow("the folder of a file") << u"shown/g"_s << u"shown/f=1"_s;
}

void tst_AddressTree::pastesIntoItsTarget()
{
    QFETCH(QString, selected);
    QFETCH(QString, pasted);
    const Files files({u"shown/d"_s, u"shown/g=2"_s, u"from"_s, u"from/f=1"_s});
    Tree tree(files);
    QVERIFY(tree.open(u"shown"_s));
    toClipboard({files.path(u"from/f"_s)}, "cut");
    if (!selected.isEmpty())
        tree.click(selected);
    tree.key(Qt::Key_V, Qt::ControlModifier);
    QStringList expected{u"from/"_s, u"shown/"_s, u"shown/d/"_s, u"shown/g=2"_s, pasted};
    expected.sort();
    QCOMPARE(files.entries(), expected);
    // What was cut is gone from the clipboard, and there is nothing to paste.
    QVERIFY(!tree.action(u"Paste"_s)->isEnabled());
}

void tst_AddressTree::deletesWithoutAsking()
{
    for (const Files::Trash trash : {Files::Trash::Working, Files::Trash::Missing}) {
        const Files files({u"a=1"_s, u"d"_s, u"d/f=2"_s, u"t"_s, u"t/f=3"_s, u"l->t"_s, u"z=4"_s},
                          trash);
        Tree tree(files);
        QVERIFY(tree.open());
        const Answers answers;
        for (const QString &name : {u"a"_s, u"d"_s, u"l"_s})
            tree.click(name, Qt::ControlModifier);
        tree.key(Qt::Key_Delete);
        QCOMPARE(files.entries(), QStringList({u"t/"_s, u"t/f=3"_s, u"z=4"_s}));
        QCOMPARE(files.trashed(),
                 trash == Files::Trash::Working
                     ? QStringList({u"a=1"_s, u"d/"_s, u"d/f=2"_s, u"l->"_s + u"t"_s})
                     : QStringList());
        QCOMPARE(answers.texts(), QStringList());
        QTRY_COMPARE(tree.files()->rowCount(tree.rootIndex()), 2);
        QVERIFY(!tree.action(u"Delete"_s)->isEnabled() || !tree.selected().isEmpty());
    }
}

void tst_AddressTree::createsAFolderAndEditsItsName()
{
    const Files files({u"New Folder"_s, u"New Folder (2)"_s});
    Tree tree(files);
    QVERIFY(tree.open());
    menuAt(&tree, tree.emptyPosition(), {u"New"_s, u"Folder"_s});
    QVERIFY(QFileInfo(files.path(u"New Folder (3)"_s)).isDir());
    QCOMPARE(tree.targetPath(), files.path(u"New Folder (3)"_s));
    QTRY_VERIFY(tree.editor());
    QCOMPARE(tree.editor()->text(), u"New Folder (3)"_s);
    QCOMPARE(tree.editor()->selectedText(), u"New Folder (3)"_s);
    QTest::keyClicks(tree.editor(), u"mine"_s);
    QTest::keyClick(tree.editor(), Qt::Key_Return);
    QTRY_COMPARE(files.entries(),
                 QStringList({u"New Folder (2)/"_s, u"New Folder/"_s, u"mine/"_s}));
    QTRY_VERIFY(!tree.editor());
}

void tst_AddressTree::createsAFolderInAClosedFolder()
{
    const Files files({u"d/e"_s, u"d/f=1"_s});
    Tree tree(files);
    QVERIFY(tree.open());
    QVERIFY(!tree.isExpanded(tree.index(u"d"_s)));
    menuAt(&tree, tree.position(u"d"_s), {u"New"_s, u"Folder"_s});
    QCOMPARE(files.entries(u"d"_s), QStringList({u"New Folder/"_s, u"e/"_s, u"f=1"_s}));
    QVERIFY(tree.isExpanded(tree.index(u"d"_s)));
    QTRY_VERIFY(tree.editor());
    QTest::keyClicks(tree.editor(), u"in"_s);
    QTest::keyClick(tree.editor(), Qt::Key_Return);
    QTRY_COMPARE(files.entries(u"d"_s), QStringList({u"e/"_s, u"f=1"_s, u"in/"_s}));
}

void tst_AddressTree::createsAFolderBesideAFile()
{
    const Files files({u"f=1"_s});
    Tree tree(files);
    QVERIFY(tree.open());
    tree.click(u"f"_s);
    tree.action(u"Folder"_s)->trigger();
    QCOMPARE(files.entries(), QStringList({u"New Folder/"_s, u"f=1"_s}));
    QTRY_VERIFY(tree.editor());
    QTest::keyClick(tree.editor(), Qt::Key_Escape);
    QCOMPARE(files.entries(), QStringList({u"New Folder/"_s, u"f=1"_s}));
}

void tst_AddressTree::renames_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("plain") << u"name.txt"_s;
    QTest::newRow("percent") << u"%1 %2 %n %41"_s;
    QTest::newRow("line feed") << u"line\nfeed"_s;
    QTest::newRow("ampersand") << u"one & two && three"_s;
    QTest::newRow("markup") << u"<b>bold<b>&amp;"_s;
    QTest::newRow("blanks") << u"  blanks  "_s;
    QTest::newRow("backslash") << u"back\\slash"_s;
    QTest::newRow("of a URL") << u"a#b?c:d@e;f"_s;
    QTest::newRow("letters") << u"äöü 文件 🙂"_s;
    QTest::newRow("hidden") << u"x.hidden"_s;
    QTest::newRow("254 bytes") << QString(127, u'ä');
}

void tst_AddressTree::renames()
{
    QFETCH(QString, name);
    for (const bool folder : {false, true}) {
        const Files files(folder ? QStringList{name} : QStringList{name + u"=1"_s});
        Tree tree(files);
        QVERIFY(tree.open());
        tree.click(name);
        QCOMPARE(tree.selectedPaths(), QStringList{files.path(name)});
        tree.key(Qt::Key_F2);
        QVERIFY(tree.editor());
        QTest::keyClick(tree.editor(), Qt::Key_End);
        QTest::keyClicks(tree.editor(), u"x"_s);
        QTest::keyClick(tree.editor(), Qt::Key_Return);
        QTRY_COMPARE(files.entries(), QStringList{name + (folder ? u"x/"_s : u"x=1"_s)});
        QTRY_VERIFY(!tree.editor());
        tree.key(Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QGuiApplication::clipboard()->mimeData()->urls(),
                 QList<QUrl>{QUrl::fromLocalFile(files.path(name + u'x'))});
        tree.key(Qt::Key_Delete);
        QCOMPARE(files.entries(), QStringList());
    }
}

void tst_AddressTree::renamesNothing_data()
{
    QTest::addColumn<QString>("typed");
    QTest::newRow("taken") << u"other"_s;
    QTest::newRow("taken by a folder") << u"folder"_s;
    QTest::newRow("empty") << QString();
    QTest::newRow("a path") << u"folder/f"_s;
    QTest::newRow("a path above") << u"../f"_s;
    QTest::newRow("256 bytes") << QString(256, u'x');
}

void tst_AddressTree::renamesNothing()
{
    QFETCH(QString, typed);
    const Files files({u"f=1"_s, u"other=2"_s, u"folder"_s});
    const QStringList before = files.entries();
    Tree tree(files);
    QVERIFY(tree.open());
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
        tree.click(u"f"_s);
        tree.key(Qt::Key_F2);
        QVERIFY(tree.editor());
        tree.editor()->setText(typed);
        // Qt looks whether the two names are those of one file.
        if (typed.size() > 255 && key == Qt::Key_Return)
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"^stat\\(\\) failed"_s));
        QTest::keyClick(tree.editor(), key);
        QTRY_VERIFY(!tree.editor());
        QCOMPARE(files.entries(), before);
        QCOMPARE(tree.selectedPaths(), QStringList{files.path(u"f"_s)});
    }
}

// Qt lets nothing be renamed that may not be written, and would complain.
void tst_AddressTree::renamesNothingThatMayNotBeWritten()
{
    const Unprivileged user;
    const Files files({u"f=1"_s});
    QVERIFY(QFile::setPermissions(files.path(u"f"_s), QFile::ReadUser));
    Tree tree(files);
    QVERIFY(tree.open());
    tree.click(u"f"_s);
    tree.key(Qt::Key_F2);
    QVERIFY(!tree.editor());
    QCOMPARE(tree.selected(), QStringList{u"f"_s});
}

void tst_AddressTree::renamesOneEntryOnly()
{
    const Files files({u"a=1"_s, u"b=1"_s});
    Tree tree(files);
    QVERIFY(tree.open());
    QAction *rename = tree.action(u"Rename"_s);
    rename->trigger();
    QVERIFY(!tree.editor());
    tree.click(u"a"_s);
    tree.click(u"b"_s, Qt::ControlModifier);
    Q_EMIT rename->triggered();
    QVERIFY(!tree.editor());
    tree.click(u"b"_s);
    rename->trigger();
    QVERIFY(tree.editor());
    // Once more while it is being edited.
    rename->trigger();
    QVERIFY(tree.editor());
    QTest::keyClick(tree.editor(), Qt::Key_Escape);
    QTRY_VERIFY(!tree.editor());
    // The letters that are keys of the tree are letters in the editor.
    rename->trigger();
    QTest::keyClicks(tree.editor(), u"cvx"_s);
    QTest::keyClick(tree.editor(), Qt::Key_Return);
    QTRY_COMPARE(files.entries(), QStringList({u"a=1"_s, u"cvx=1"_s}));
}

void tst_AddressTree::actsOnItsFolderWithoutACurrentEntry()
{
    // Only a program selects without making current.
    const Files files({u"d"_s, u"f=1"_s, u"from"_s, u"from/g=1"_s});
    Tree tree(files);
    QVERIFY(tree.open());
    tree.selectionModel()->select(tree.index(u"d"_s),
                                  QItemSelectionModel::Select | QItemSelectionModel::Rows);
    QVERIFY(!tree.currentIndex().isValid());
    QCOMPARE(tree.selected(), QStringList{u"d"_s});
    QCOMPARE(tree.targetPath(), files.path());
    tree.action(u"Rename"_s)->trigger();
    QVERIFY(!tree.editor());
    toClipboard({files.path(u"from/g"_s)});
    tree.key(Qt::Key_V, Qt::ControlModifier);
    QVERIFY(QFile::exists(files.path(u"g"_s)));
}

void tst_AddressTree::takesFilesOnly()
{
    const Files files({u"f=1"_s});
    Tree tree(files);
    QVERIFY(tree.open());
    QMimeData text;
    text.setText(files.path(u"f"_s));
    QDragEnterEvent enter({5, 5}, Qt::CopyAction | Qt::MoveAction, &text, Qt::LeftButton, {});
    enter.accept();
    QApplication::sendEvent(tree.viewport(), &enter);
    QVERIFY(!enter.isAccepted());
    const auto data = filesOf({files.path(u"f"_s)});
    QDragEnterEvent other({5, 5}, Qt::CopyAction | Qt::MoveAction, data.get(), Qt::LeftButton, {});
    other.setDropAction(Qt::IgnoreAction);
    QApplication::sendEvent(tree.viewport(), &other);
    QVERIFY(other.isAccepted());
    QCOMPARE(other.dropAction(), other.proposedAction());
}

void tst_AddressTree::tellsMoveFromCopyByTheDrive_data()
{
    QTest::addColumn<QStringList>("sources");
    QTest::addColumn<bool>("moved");
    QTest::newRow("same") << QStringList{u"/tmp/norvane-none"_s} << true;
    QTest::newRow("alike") << QStringList{u"/tmz/norvane-none"_s} << true;
    QTest::newRow("another") << QStringList{u"/etc/norvane-none"_s} << false;
    QTest::newRow("another case") << QStringList{u"/Tmp/norvane-none"_s} << false;
    QTest::newRow("the first counts")
        << QStringList{u"/etc/norvane-none"_s, u"/tmp/norvane-none"_s} << false;
    QTest::newRow("the others do not")
        << QStringList{u"/tmp/norvane-none"_s, u"/etc/norvane-none"_s} << true;
    QTest::newRow("none") << QStringList() << false;
    QTest::newRow("short") << QStringList{u"/t"_s} << false;
    QTest::newRow("relative") << QStringList{u"norvane-none"_s} << true;
}

void tst_AddressTree::tellsMoveFromCopyByTheDrive()
{
    QFETCH(QStringList, sources);
    QFETCH(bool, moved);
    const Files files;
    if (!files.path().startsWith(u"/tmp/"_s))
        QSKIP("temporary files are not where the table has them");
    const auto back = qScopeGuard([here = QDir::currentPath()] { QDir::setCurrent(here); });
    QVERIFY(QDir::setCurrent(files.path()));
    // While it is edited the path has the other separators.
    for (const QString &root : {files.path(), files.path().replace(u'/', u'\\')}) {
        Tree tree(files);
        tree.slotPathChanged(root);
        QVERIFY(Gui::open(&tree));
        const Answers answers;
        const Drop drop(tree.viewport(), filesOf(sources).get(), tree.emptyPosition());
        QVERIFY(drop.entered);
        // A move leaves nothing on the clipboard.
        QCOMPARE(clipboardHasUrls(), !moved);
        if (!moved)
            QCOMPARE(clipboardMark(), "copy");
        QCOMPARE(answers.boxes().size(), sources.size());
    }
}

void tst_AddressTree::acceptsEveryMove()
{
    const Files files;
    Tree tree(files);
    QVERIFY(tree.open());
    const auto data = filesOf({files.path()});
    QDragEnterEvent enter({5, 5}, Qt::CopyAction, data.get(), Qt::LeftButton, {});
    QApplication::sendEvent(tree.viewport(), &enter);
    QDragMoveEvent move({5, 5}, Qt::CopyAction, data.get(), Qt::LeftButton, {});
    move.ignore();
    QApplication::sendEvent(tree.viewport(), &move);
    QVERIFY(move.isAccepted());
}

void tst_AddressTree::takesADrop_data()
{
    QTest::addColumn<QString>("under");
    QTest::addColumn<bool>("moved");
    QTest::addColumn<QString>("folder");
    for (const bool moved : {false, true}) {
        const char *name = moved ? "moved" : "copied";
        QTest::addRow("%s beside all", name) << QString() << moved << u"shown"_s;
        QTest::addRow("%s onto a folder", name) << u"shown/d"_s << moved << u"shown/d"_s;
        QTest::addRow("%s onto a file", name) << u"shown/g"_s << moved << u"shown"_s;
    }
}

void tst_AddressTree::takesADrop()
{
    QFETCH(QString, under);
    QFETCH(bool, moved);
    QFETCH(QString, folder);
    const Files files({u"shown/d"_s, u"shown/g=2"_s, u"from"_s, u"from/f=1"_s});
    Tree tree(files);
    QVERIFY(tree.open(u"shown"_s));
    // What is selected does not count.
    tree.click(u"shown/d"_s);
    const QString source = moved ? files.path(u"from/f"_s) : QString(elsewhere);
    const QString target = files.path(folder) + u'/' + QFileInfo(source).fileName();
    const auto data = filesOf({source});
    const Drop drop(tree.viewport(), data.get(),
                    under.isEmpty() ? tree.emptyPosition() : tree.position(under));
    QVERIFY(drop.entered);
    // Whoever dragged must not take it for moved, and remove it once more.
    QVERIFY(!drop.dropped);
    QVERIFY(QFileInfo(target).isFile());
    QCOMPARE(QFileInfo::exists(source), !moved);
    if (moved) {
        QVERIFY(!clipboardHasUrls());
    } else {
        QCOMPARE(clipboardNames(), QStringList{QFileInfo(source).fileName()});
        QCOMPARE(clipboardMark(), "copy");
    }
}

void tst_AddressTree::dropsOnTheNearestRow()
{
    const Files files({u"shown/a"_s, u"shown/b"_s, u"from"_s, u"from/f=1"_s, u"from/g=1"_s});
    Tree tree(files);
    QVERIFY(tree.open(u"shown"_s));
    const auto top = [&](const QString &name) { return tree.visualRect(tree.index(name)).top(); };
    QTRY_VERIFY(top(u"shown/a"_s) < top(u"shown/b"_s));
    const QRectF row = tree.visualRect(tree.index(u"shown/b"_s));
    const Drop above(tree.viewport(), filesOf({files.path(u"from/f"_s)}).get(),
                     row.topLeft() + QPointF(20, -0.6));
    const Drop below(tree.viewport(), filesOf({files.path(u"from/g"_s)}).get(),
                     row.topLeft() + QPointF(20, -0.5));
    QCOMPARE(files.entries(u"shown"_s), QStringList({u"a/"_s, u"a/f=1"_s, u"b/"_s, u"b/g=1"_s}));
}

void tst_AddressTree::ignoresADropOfText()
{
    const Files files({u"f=1"_s});
    Tree tree(files);
    QVERIFY(tree.open());
    QMimeData text;
    text.setText(u"text"_s);
    toClipboard({files.path(u"f"_s)});
    const Drop drop(tree.viewport(), &text, tree.emptyPosition());
    QVERIFY(!drop.entered && !drop.dropped);
    QCOMPARE(files.entries(), QStringList{u"f=1"_s});
    QCOMPARE(clipboardNames(), QStringList{u"f"_s});
}

void tst_AddressTree::isDeletedWhileItAsks_data()
{
    QTest::addColumn<QString>("by");
    QTest::newRow("key") << u"key"_s;
    QTest::newRow("menu") << u"menu"_s;
    QTest::newRow("drop") << u"drop"_s;
}

void tst_AddressTree::isDeletedWhileItAsks()
{
    QFETCH(QString, by);
    const Files files({u"shown"_s, u"shown/f=old"_s, u"shown/g=old"_s, u"from"_s, u"from/f=new"_s,
                       u"from/g=new"_s});
    const QPointer<Tree> tree = new Tree(files);
    QVERIFY(tree->open(u"shown"_s));
    const QStringList sources{files.path(u"from/f"_s), files.path(u"from/g"_s)};
    const Answers answers(
        {{u"Replace Current"_s, [&] { delete tree.data(); }}, {u"Replace Current"_s}});
    toClipboard(sources, "cut");
    if (by == u"key"_s)
        tree->key(Qt::Key_V, Qt::ControlModifier);
    else if (by == u"menu"_s)
        menuAt(tree, tree->emptyPosition(), {u"Paste"_s});
    else
        Drop(tree->viewport(), filesOf(sources).get(), tree->emptyPosition());
    QVERIFY(!tree);
    // What was begun is brought to its end.
    QCOMPARE(answers.boxes().size(), 2);
    QCOMPARE(files.entries(),
             QStringList({u"from/"_s, u"shown/"_s, u"shown/f=new"_s, u"shown/g=new"_s}));
}

void tst_AddressTree::isDeletedWhileItLists()
{
    const Files files({u"slow"_s, u"slow/f=1"_s});
    auto tree = std::make_unique<Tree>(files);
    QVERIFY(tree->open());
    Hold hold(files.path(u"slow"_s));
    tree->slotPathChanged(files.path(u"slow"_s));
    QTRY_VERIFY(hold.isReached());
    // The model, which goes after this, waits for its thread.
    connect(tree.get(), &QObject::destroyed, this, [&hold] { hold.release(); });
    tree.reset();
    QCOMPARE(files.entries(u"slow"_s), QStringList{u"f=1"_s});
}

void tst_AddressTree::leavesAFolderBeforeItIsListed()
{
    const Files files({u"slow"_s, u"slow/f=1"_s, u"slow/g=1"_s, u"other"_s, u"other/h=1"_s});
    Tree tree(files);
    QVERIFY(tree.open());
    Hold hold(files.path(u"slow"_s));
    const QSignalSpy loads(tree.files(), &QFileSystemModel::directoryLoaded);
    tree.slotPathChanged(files.path(u"slow"_s));
    QTRY_VERIFY(hold.isReached());
    tree.slotPathChanged(files.path(u"other"_s));
    QCOMPARE(tree.targetPath(), files.path(u"other"_s));
    QCOMPARE(tree.selectedPaths(), QStringList());
    const QVariantList slow{files.path(u"slow"_s)};
    QVERIFY(!loads.contains(slow));
    hold.release();
    QTRY_VERIFY(loads.contains(slow));
    QVERIFY(tree.load());
    QCOMPARE(tree.targetPath(), files.path(u"other"_s));
    QCOMPARE(tree.selectedPaths(), QStringList());
    QVERIFY(tree.visualRect(tree.index(u"other/h"_s)).isValid());
    QVERIFY(!tree.visualRect(tree.index(u"slow/f"_s)).isValid());
    tree.slotPathChanged(files.path(u"slow"_s));
    QVERIFY(tree.load());
    QTRY_VERIFY(tree.visualRect(tree.index(u"slow/f"_s)).isValid());
}

void tst_AddressTree::actsOnAFolderBeforeItIsListed()
{
    const Files files({u"slow"_s, u"slow/f=1"_s, u"slow/g=1"_s, u"h=1"_s});
    Tree tree(files);
    QVERIFY(tree.open());
    Hold hold(files.path(u"slow"_s));
    tree.slotPathChanged(files.path(u"slow"_s));
    QTRY_VERIFY(hold.isReached());
    tree.key(Qt::Key_Delete);
    tree.key(Qt::Key_F2);
    QVERIFY(!tree.editor());
    toClipboard({files.path(u"h"_s)});
    tree.key(Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(menuAt(&tree, tree.emptyPosition(), {u"New"_s, u"Folder"_s}).constFirst(), u"Paste"_s);
    QCOMPARE(files.entries(u"slow"_s),
             QStringList({u"New Folder/"_s, u"f=1"_s, u"g=1"_s, u"h=1"_s}));
    QTRY_VERIFY(tree.editor());
    QTest::keyClicks(tree.editor(), u"my"_s);
    // The rows come and find their order under the editor.
    hold.release();
    QTRY_COMPARE(tree.files()->rowCount(tree.rootIndex()), 4);
    QTRY_VERIFY(tree.visualRect(tree.index(u"slow/f"_s)).isValid());
    QVERIFY(tree.editor());
    QTest::keyClicks(tree.editor(), u" own"_s);
    QTest::keyClick(tree.editor(), Qt::Key_Return);
    QTRY_COMPARE(files.entries(u"slow"_s),
                 QStringList({u"f=1"_s, u"g=1"_s, u"h=1"_s, u"my own/"_s}));
    QTRY_COMPARE(tree.targetPath(), files.path(u"slow/my own"_s));
    QTRY_VERIFY(!tree.editor());
}

void tst_AddressTree::renamesNothingThatIsGoneMeanwhile()
{
    const Files files({u"f=1"_s, u"g=2"_s});
    Tree tree(files);
    QVERIFY(tree.open());
    tree.click(u"f"_s);
    tree.key(Qt::Key_F2);
    QVERIFY(tree.editor());
    tree.editor()->setText(u"new"_s);
    {
        const Delay delay(Fault::Name, 1, [&] { QFile::remove(files.path(u"f"_s)); });
        QTest::keyClick(tree.editor(), Qt::Key_Return);
        QTRY_VERIFY(delay.isOver());
    }
    QTRY_VERIFY(!tree.editor());
    QCOMPARE(files.entries(), QStringList{u"g=2"_s});
    QTRY_COMPARE(tree.files()->rowCount(tree.rootIndex()), 1);
    QVERIFY(!tree.index(u"new"_s).isValid());
    QVERIFY(!tree.selected().contains(u"f"_s));
}

void tst_AddressTree::followsChangesOnTheDisk()
{
    const Files files({u"d"_s, u"f=1"_s});
    Tree tree(files);
    QVERIFY(tree.open());
    tree.click(u"f"_s);
    files.make({u"g=1"_s});
    QTRY_COMPARE(tree.files()->rowCount(tree.rootIndex()), 3);
    QVERIFY(QFile::remove(files.path(u"f"_s)));
    QTRY_COMPARE(tree.files()->rowCount(tree.rootIndex()), 2);
    QVERIFY(!tree.selected().contains(u"f"_s));
}

NORVANE_TEST_MAIN(tst_AddressTree)
#include "tst_AddressTree.moc"
