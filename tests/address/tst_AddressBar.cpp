// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "Crumbs.h"
#include "Folders.h"
#include "History.h"
#include "Modal.h"
#include "Popup.h"
#include "Steps.h"
#include "TestCase.h"

#include <Norvane/AddressBar.h>
#include <address/AddressTree.h>

#include <QtCore/QMetaMethod>
#include <QtCore/QRandomGenerator>
#include <QtGui/QAction>
#include <QtGui/QClipboard>
#include <QtGui/QFileSystemModel>
#include <QtTest/QSignalSpy>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

#include <memory>

using Norvane::AddressBar;
using Norvane::AddressEntry;
using Norvane::AddressStrip;
using Norvane::AddressTree;

class tst_AddressBar : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void hasTwoSignals();
    void numbersItsButtons();
    void consistsOfButtonsAndAStrip();
    void standsInARow();
    void startsAtHome();
    void setsTheIconOfAButton();
    void turnsItsArrowsWithTheDirection();

    void reportsANavigation();
    void resetsItsHistory();
    void keepsAButtonWithoutAWay();
    void goesBackwardAndForward();
    void goesUpToTheRoot();
    void letsAFolderBeChosen();
    void followsCrumbs();
    void rewritesTheHistoryWhenTheEditorIsLeft();
    void leavesTheEditorForAButton();
    void agreesWithAModel_data();
    void agreesWithAModel();

    void opensItsContextMenu_data();
    void opensItsContextMenu();
    void listsWhatCanBeDoneToThePath();
    void copiesThePath();
    void cutsThePath();
    void pastesAPath();
    void pastesAPathAndGoesThere();
    void pastesNothing();
    void selectsThePath();
    void deletesThePath();
    void leavesItsShortcutsToOthers();
    void leavesTheEditorForItsContextMenu();

    void makesOneTree();
    void showsItsPathInTheTree();
    void showsAPathThatIsEditedInTheTree();
    void followsTheTree();
    void reportsFilesWithItsSuffixes();
    void keepsASuffixOnce();
    void removesSuffixes();
    void clearsSuffixesEvenOfNone();
    void leavesSuffixesFromBeforeTheTree();
    void offersNewActions();
    void makesTheTreeForNewActions();
    void makesTheTreeForTheirPath();
    void tellsWhereNewActionsAct();

    void takesItsTreeAlong();
    void leavesATreeThatHasAParent();
    void replacesADeletedTree();
    void isDeletedInAnyOrder_data();
    void isDeletedInAnyOrder();
    void isDeletedWithTheFocusAndItsWindow();
    void isDeletedWhileItsMenuIsOpen();
};

namespace {

const QStringList buttonIcons{
    QStringLiteral(":/res/backward.svg"), QStringLiteral(":/res/forward.svg"),
    QStringLiteral(":/res/dirup.svg"), QStringLiteral(":/res/browse.svg")};

AddressStrip *stripOf(const AddressBar *bar)
{
    return bar->findChild<AddressStrip *>();
}

//! In the order in which they were made.
QList<QPushButton *> buttonsOf(const AddressBar *bar)
{
    return bar->findChildren<QPushButton *>(QStringLiteral("addressButton"),
                                            Qt::FindDirectChildrenOnly);
}

QList<bool> enabledButtonsOf(const AddressBar *bar)
{
    QList<bool> enabled;
    const QList<QPushButton *> buttons = buttonsOf(bar);
    for (const QPushButton *button : buttons)
        enabled << button->isEnabled();
    return enabled;
}

QMenu *menuOf(const AddressBar *bar)
{
    const auto *action = bar->findChild<QAction *>(Qt::FindDirectChildrenOnly);
    return qobject_cast<QMenu *>(action->associatedObjects().value(0));
}

QString shownBy(const QTreeView *tree)
{
    return static_cast<QFileSystemModel *>(tree->model())->filePath(tree->rootIndex());
}

QImage pixels(const QIcon &icon)
{
    return icon.pixmap(QSize(16, 16), 1).toImage();
}

QStringList pathsIn(const QSignalSpy &signal)
{
    QStringList paths;
    for (const QVariantList &arguments : signal)
        paths << arguments.constFirst().toString();
    return paths;
}

//! A bar over something else that can be clicked.
class Window : public QWidget
{
public:
    explicit Window(bool withTree = false)
        : bar(new AddressBar)
        , strip(stripOf(bar))
        , patch(new QWidget)
        , field(new QLineEdit)
    {
        auto *column = new QVBoxLayout(this);
        column->addWidget(bar);
        if (withTree)
            column->addWidget(bar->treeView(), 3);
        column->addWidget(patch, 1);
        column->addWidget(field);
        resize(700, withTree ? 400 : 150);
    }

    bool open()
    {
        if (!Gui::open(this) || !QTest::qWaitForWindowActive(this, patience))
            return false;
        Gui::moveMouse(patch, patch->rect().center());
        return true;
    }

    //! Clicks as a person does, who moves the mouse there first.
    void click(QWidget *widget, QPoint position, Qt::MouseButton button = Qt::LeftButton)
    {
        Gui::moveMouse(widget, position);
        Gui::click(widget, position, button);
    }
    void click(QWidget *widget) { click(widget, widget->rect().center()); }
    void click(AddressBar::AddressButton button) { click(buttonsOf(bar).at(button)); }
    void clickIntoStrip() { click(strip, freePlace()); }

    QPoint freePlace() const { return {strip->width() * 3 / 4, strip->height() / 2}; }

    //! Picks from the context menu with the mouse.
    bool pick(const QString &text)
    {
        QMenu *menu = menuOf(bar);
        return whileOpen(
            menu, [this] { click(strip, freePlace(), Qt::RightButton); },
            [menu, &text] {
                const QList<QAction *> actions = menu->actions();
                for (QAction *action : actions) {
                    if (action->text() != text)
                        continue;
                    Gui::moveMouse(menu, menu->actionGeometry(action).center());
                    Gui::click(menu, menu->actionGeometry(action).center());
                    return;
                }
            });
    }

    void type(const QString &text)
    {
        QTest::keyClicks(QApplication::focusWidget(), text);
        QTest::keyClick(windowHandle(), Qt::Key_Return);
    }

    AddressTree *tree() const { return findChild<AddressTree *>(); }

    bool doubleClickInTree(const QString &path)
    {
        AddressTree *view = tree();
        auto *model = static_cast<QFileSystemModel *>(view->model());
        // The entries come one by one and are sorted when all have come.
        const QStringList entries =
            QDir(shownBy(view))
                .entryList(QDir::AllEntries | QDir::NoDotAndDotDot, QDir::Name | QDir::DirsFirst);
        const auto rows = [=] {
            QStringList rows;
            const QModelIndex root = view->rootIndex();
            for (int row = 0; row < model->rowCount(root); ++row)
                rows << model->index(row, 0, root).data().toString();
            return rows;
        };
        if (!QTest::qWaitFor([&] { return rows() == entries; }, patience))
            return false;
        const QRect place = view->visualRect(model->index(path));
        const QPoint position = place.topLeft() + QPoint(30, place.height() / 2);
        Gui::moveMouse(view->viewport(), position);
        QTest::mouseDClick(windowHandle(), Qt::LeftButton, {},
                           Gui::inWindow(view->viewport(), position));
        return true;
    }

    AddressBar *const bar;
    AddressStrip *const strip;
    QWidget *const patch;
    QLineEdit *const field;
};

bool write(const QString &path)
{
    return QFile(path).open(QIODevice::WriteOnly);
}

} // namespace

void tst_AddressBar::hasTwoSignals()
{
    const QMetaObject &meta = AddressBar::staticMetaObject;
    QCOMPARE(meta.superClass(), &QFrame::staticMetaObject);
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
    const QByteArrayList signatures{"signalFileOpen(QString)", "signalPathChanged(QString)"};
    QCOMPARE(meta.methodCount(), meta.methodOffset() + signatures.size());
    for (int i = 0; i < signatures.size(); ++i) {
        const QMetaMethod method = meta.method(meta.methodOffset() + i);
        QCOMPARE(method.methodSignature(), signatures.at(i));
        QCOMPARE(method.methodType(), QMetaMethod::Signal);
        QCOMPARE(method.parameterNames(), QByteArrayList{"path"});
    }
}

void tst_AddressBar::numbersItsButtons()
{
    QCOMPARE(int(AddressBar::Backward), 0);
    QCOMPARE(int(AddressBar::Forward), 1);
    QCOMPARE(int(AddressBar::DirUp), 2);
    QCOMPARE(int(AddressBar::Browse), 3);
}

void tst_AddressBar::consistsOfButtonsAndAStrip()
{
    QWidget parent;
    const AddressBar bar(&parent);
    QCOMPARE(bar.parentWidget(), &parent);
    QCOMPARE(bar.contextMenuPolicy(), Qt::CustomContextMenu);
    QCOMPARE(bar.minimumHeight(), 24);
    QCOMPARE(bar.maximumHeight(), 24);
    QFile sheet(QStringLiteral(":/res/addressLight.css"));
    QVERIFY(sheet.open(QIODevice::ReadOnly));
    QCOMPARE(bar.styleSheet(), QString::fromUtf8(sheet.readAll()));

    const auto *row = qobject_cast<QHBoxLayout *>(bar.layout());
    QVERIFY(row);
    QCOMPARE(row->contentsMargins(), QMargins(5, 0, 5, 0));
    QCOMPARE(row->spacing(), 5);
    QCOMPARE(row->count(), 2);
    QCOMPARE(row->itemAt(1)->widget(), stripOf(&bar));
    const auto *inner = qobject_cast<QHBoxLayout *>(row->itemAt(0)->layout());
    QVERIFY(inner);
    QCOMPARE(inner->contentsMargins(), QMargins());
    QCOMPARE(inner->spacing(), 1);
    QCOMPARE(inner->count(), 4);
    QCOMPARE(row->stretch(0), 0);
    QCOMPARE(row->stretch(1), 0);

    const QList<QPushButton *> buttons = buttonsOf(&bar);
    QCOMPARE(buttons.size(), 4);
    for (int i = 0; i < 4; ++i) {
        QCOMPARE(inner->itemAt(i)->widget(), buttons.at(i));
        QCOMPARE(inner->stretch(i), 0);
        QVERIFY(buttons.at(i)->isFlat());
        QCOMPARE(pixels(buttons.at(i)->icon()), pixels(QIcon(buttonIcons.at(i))));
    }
}

void tst_AddressBar::standsInARow()
{
    // The sheet makes the bar and what is in it a little taller than the bar asks to be.
    Window window;
    QVERIFY(window.open());
    QCOMPARE(window.bar->height(), 28);
    int x = 5;
    const QList<QPushButton *> buttons = buttonsOf(window.bar);
    for (const QPushButton *button : buttons) {
        QCOMPARE(button->geometry(), QRect(x, (28 - 22) / 2, 22, 22));
        x += 23;
    }
    QCOMPARE(window.strip->geometry(),
             QRect(x - 1 + 5, (28 - 24) / 2, window.bar->width() - 5 - (x - 1 + 5), 24));
}

void tst_AddressBar::startsAtHome()
{
    const AddressBar bar;
    QCOMPARE(bar.path(), QDir::homePath());
    QCOMPARE(crumbsOf(stripOf(&bar)), QDir::homePath().mid(1).split(u'/'));
    QCOMPARE(enabledButtonsOf(&bar), (QList{false, false, true, true}));
}

void tst_AddressBar::setsTheIconOfAButton()
{
    QPixmap red(16, 16);
    red.fill(Qt::red);
    const QIcon icon(red);
    for (int set = -1; set <= 4; ++set) {
        AddressBar bar;
        bar.setButtonIcon(AddressBar::AddressButton(set), icon);
        for (int i = 0; i < 4; ++i) {
            QCOMPARE(pixels(buttonsOf(&bar).at(i)->icon()),
                     pixels(i == set ? icon : QIcon(buttonIcons.at(i))));
        }
    }
}

void tst_AddressBar::turnsItsArrowsWithTheDirection()
{
    QWidget window;
    auto *bar = new AddressBar(&window);
    const auto shown = [bar] {
        const auto buttons = buttonsOf(bar);
        QList<QImage> images;
        for (const QPushButton *button : buttons)
            images << pixels(button->icon());
        return images;
    };
    const QList<QImage> before = shown();
    QList<QImage> turned = before;
    turned.swapItemsAt(0, 1);
    QVERIFY(turned != before);
    window.setLayoutDirection(Qt::RightToLeft);
    QCOMPARE(shown(), turned);
    bar->setLayoutDirection(Qt::LeftToRight);
    QCOMPARE(shown(), before);
    QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    const auto back = qScopeGuard([] { QGuiApplication::setLayoutDirection(Qt::LeftToRight); });
    QCOMPARE(shown(), before);
    bar->unsetLayoutDirection();
    QCOMPARE(shown(), turned);
    // An icon that was set stays, even with what the other button shows.
    bar->setButtonIcon(AddressBar::Backward, QIcon(buttonIcons.at(AddressBar::Backward)));
    window.setLayoutDirection(Qt::LeftToRight);
    QCOMPARE(shown(), before);
    window.setLayoutDirection(Qt::RightToLeft);
    turned[0] = before.at(0);
    QCOMPARE(shown(), turned);
    AddressBar other;
    QCOMPARE(pixels(buttonsOf(&other).at(0)->icon()), before.at(1));
}

void tst_AddressBar::reportsANavigation()
{
    const Folders folders({QStringLiteral("a/b")});
    AddressBar bar;
    QSignalSpy changes(&bar, &AddressBar::signalPathChanged);
    const QSignalSpy opened(&bar, &AddressBar::signalFileOpen);
    const QString path = folders.path(QStringLiteral("a/b"));
    bar.setPath(withBackslashes(path) + u'\\');
    QCOMPARE(bar.path(), path);
    QCOMPARE(pathsIn(changes), QStringList{path});
    changes.clear();
    bar.setPath(path);
    bar.setPath(path + u'/');
    bar.setPath(QString());
    QCOMPARE(changes.count(), 0);
    QCOMPARE(opened.count(), 0);
    QCOMPARE(enabledButtonsOf(&bar), (QList{true, false, true, true}));
}

void tst_AddressBar::resetsItsHistory()
{
    AddressBar bar;
    bar.setPath(QStringLiteral("/usr"));
    bar.setPath(QStringLiteral("/usr/share"));
    const QSignalSpy changes(&bar, &AddressBar::signalPathChanged);
    bar.resetPath(QStringLiteral("/usr/"));
    QCOMPARE(pathsIn(changes), QStringList{QStringLiteral("/usr")});
    QCOMPARE(enabledButtonsOf(&bar), (QList{false, false, true, true}));
}

void tst_AddressBar::keepsAButtonWithoutAWay()
{
    // A reset to the current path says nothing, so the button does not hear of the lost history.
    Window window;
    QVERIFY(window.open());
    window.bar->setPath(QStringLiteral("/usr"));
    const QSignalSpy changes(window.bar, &AddressBar::signalPathChanged);
    window.bar->resetPath(QStringLiteral("/usr"));
    QCOMPARE(enabledButtonsOf(window.bar), (QList{true, false, true, true}));
    window.click(AddressBar::Backward);
    window.click(AddressBar::Backward);
    QCOMPARE(changes.count(), 0);
    QCOMPARE(window.bar->path(), QStringLiteral("/usr"));
    QVERIFY(showsCrumbs(window.strip));
}

void tst_AddressBar::goesBackwardAndForward()
{
    const QStringList paths{QStringLiteral("/usr"), QStringLiteral("/usr/share"),
                            QStringLiteral("/usr/lib")};
    Window window;
    QVERIFY(window.open());
    window.bar->resetPath(paths.at(0));
    window.bar->setPath(paths.at(1));
    window.bar->setPath(paths.at(2));
    QSignalSpy changes(window.bar, &AddressBar::signalPathChanged);
    const auto goes = [&](AddressBar::AddressButton button, int to) {
        changes.clear();
        window.click(button);
        return pathsIn(changes) == QStringList{paths.at(to)} && window.bar->path() == paths.at(to)
            && showsCrumbs(window.strip)
            && enabledButtonsOf(window.bar) == QList{to > 0, to < 2, true, true};
    };
    QVERIFY(goes(AddressBar::Backward, 1));
    QVERIFY(goes(AddressBar::Backward, 0));
    window.click(AddressBar::Backward);
    QCOMPARE(window.bar->path(), paths.at(0));
    QVERIFY(goes(AddressBar::Forward, 1));
    QVERIFY(goes(AddressBar::Forward, 2));
    window.click(AddressBar::Forward);
    QCOMPARE(window.bar->path(), paths.at(2));
    QCOMPARE(changes.count(), 1);
}

void tst_AddressBar::goesUpToTheRoot()
{
    const Folders folders({QStringLiteral("a")});
    Window window(true);
    QVERIFY(window.open());
    window.bar->setPath(folders.path(QStringLiteral("a")));
    QString expected = folders.path(QStringLiteral("a"));
    while (!expected.isEmpty()) {
        QVERIFY(enabledButtonsOf(window.bar).at(AddressBar::DirUp));
        window.click(AddressBar::DirUp);
        expected = expected.section(u'/', 0, -2);
        QCOMPARE(window.bar->path(), expected);
        QVERIFY(showsCrumbs(window.strip) || expected.isEmpty());
        QCOMPARE(shownBy(window.tree()), expected.isEmpty() ? QStringLiteral("/") : expected);
    }
    QCOMPARE(entriesOf(window.strip).size(), 1);
    QCOMPARE(enabledButtonsOf(window.bar), (QList{true, false, false, true}));
}

void tst_AddressBar::letsAFolderBeChosen()
{
    const Folders folders({QStringLiteral("a")});
    Window window;
    QVERIFY(window.open());
    QVERIFY(whileModal([&] { window.click(AddressBar::Browse); },
                       [&](QWidget *dialog) {
                           auto *name = dialog->findChild<QLineEdit *>();
                           name->setText(folders.path(QStringLiteral("a")));
                           QTest::keyClick(name, Qt::Key_Return);
                       }));
    QCOMPARE(window.bar->path(), folders.path(QStringLiteral("a")));
    QVERIFY(showsCrumbs(window.strip));
    QCOMPARE(enabledButtonsOf(window.bar), (QList{true, false, true, true}));
}

void tst_AddressBar::followsCrumbs()
{
    const Folders folders({QStringLiteral("a/b"), QStringLiteral("a/c")});
    Window window;
    QVERIFY(window.open());
    window.bar->setPath(folders.path(QStringLiteral("a/b")));
    QVERIFY(waitForCrumbs(window.strip));
    const QSignalSpy changes(window.bar, &AddressBar::signalPathChanged);
    AddressEntry *a = entriesOf(window.strip).at(entriesOf(window.strip).size() - 2);
    const QPoint arrow(a->width() - 4, 11);
    QVERIFY(whileOpen(
        a->menu(),
        [&] {
            Gui::moveMouse(a, arrow);
            Gui::press(a, arrow);
        },
        [&] {
            const QRect second = a->menu()->actionGeometry(a->menu()->actions().at(1));
            Gui::moveMouse(a->menu(), second.center());
            Gui::click(a->menu(), second.center());
        }));
    QCOMPARE(window.bar->path(), folders.path(QStringLiteral("a/c")));
    window.click(entriesOf(window.strip).at(entriesOf(window.strip).size() - 2), QPoint(4, 11));
    QCOMPARE(pathsIn(changes),
             (QStringList{folders.path(QStringLiteral("a/c")), folders.path(QStringLiteral("a"))}));
}

void tst_AddressBar::rewritesTheHistoryWhenTheEditorIsLeft()
{
    // Programs were written for it: a look at the path costs the way forward.
    const QStringList paths{QStringLiteral("/usr"), QStringLiteral("/usr/share"),
                            QStringLiteral("/usr/lib")};
    Window window;
    QVERIFY(window.open());
    window.bar->resetPath(paths.at(0));
    window.bar->setPath(paths.at(1));
    window.bar->setPath(paths.at(2));
    window.click(AddressBar::Backward);
    window.clickIntoStrip();
    QVERIFY(isEditing(window.strip));
    QCOMPARE(window.bar->path(), withBackslashes(paths.at(1)));
    const QSignalSpy changes(window.bar, &AddressBar::signalPathChanged);
    window.click(window.patch);
    QCOMPARE(pathsIn(changes), QStringList{paths.at(1)});
    QVERIFY(showsCrumbs(window.strip));
    QCOMPARE(enabledButtonsOf(window.bar), (QList{true, false, true, true}));
    window.click(AddressBar::Backward);
    QCOMPARE(window.bar->path(), paths.at(1));
    window.click(AddressBar::Backward);
    QCOMPARE(window.bar->path(), paths.at(0));
    QCOMPARE(enabledButtonsOf(window.bar), (QList{false, true, true, true}));
}

void tst_AddressBar::leavesTheEditorForAButton()
{
    Window window;
    QVERIFY(window.open());
    window.bar->resetPath(QStringLiteral("/usr"));
    window.bar->setPath(QStringLiteral("/usr/share"));
    window.clickIntoStrip();
    QTest::keyClicks(window.strip, QStringLiteral("not committed"));
    const QSignalSpy changes(window.bar, &AddressBar::signalPathChanged);
    window.click(AddressBar::Backward);
    QCOMPARE(
        changes,
        (QList{QVariantList{QStringLiteral("/usr/share")}, QVariantList{QStringLiteral("/usr")}}));
    QVERIFY(showsCrumbs(window.strip));
    QCOMPARE(enabledButtonsOf(window.bar), (QList{false, true, true, true}));
}

void tst_AddressBar::agreesWithAModel_data()
{
    QTest::addColumn<quint32>("seed");
    for (quint32 seed = 1; seed <= 20; ++seed)
        QTest::addRow("seed %u", seed) << seed;
}

void tst_AddressBar::agreesWithAModel()
{
    QFETCH(quint32, seed);
    const Folders folders(
        {QStringLiteral("a/b/c"), QStringLiteral("a/d"), QStringLiteral("e f/g")});
    const QStringList paths{folders.path(),
                            folders.path(QStringLiteral("a")),
                            folders.path(QStringLiteral("a/b")),
                            folders.path(QStringLiteral("a/b/c")),
                            folders.path(QStringLiteral("a/d")),
                            folders.path(QStringLiteral("e f/g"))};

    const auto play = [&](const QList<Steps::Step> &steps, QStringList *story) -> QString {
        Window window(true);
        if (!window.open())
            return QStringLiteral("no window");
        window.bar->resetPath(folders.path());
        History model;
        model.reset(folders.path());
        model.log.clear();
        QSignalSpy changes(window.bar, &AddressBar::signalPathChanged);
        for (const Steps::Step &step : steps) {
            const QString &path = paths.at(step.number % paths.size());
            switch (step.kind) {
            case 0:
                story->append(QStringLiteral("back"));
                window.click(AddressBar::Backward);
                model.step(-1);
                break;
            case 1:
                story->append(QStringLiteral("forward"));
                window.click(AddressBar::Forward);
                model.step(1);
                break;
            case 2:
                if (model.path == folders.path())
                    continue;
                story->append(QStringLiteral("up"));
                window.click(AddressBar::DirUp);
                model.up();
                break;
            case 3: {
                const QList<AddressEntry *> entries = entriesOf(window.strip);
                const bool above = step.number % 2 && model.path != folders.path();
                const qsizetype at = entries.size() - 1 - above;
                story->append(QStringLiteral("crumb %1").arg(at));
                window.click(entries.at(at), QPoint(4, 11));
                model.navigate(model.path.section(u'/', 0, at));
                break;
            }
            case 4:
                story->append(QStringLiteral("click in and elsewhere"));
                window.clickIntoStrip();
                window.click(window.patch);
                model.edit();
                model.navigate(model.path);
                break;
            case 5:
                story->append(QStringLiteral("type ") + path);
                window.clickIntoStrip();
                window.type(path);
                model.path = withBackslashes(path);
                model.navigate(model.path);
                break;
            case 6:
                story->append(QStringLiteral("paste and go ") + path);
                QGuiApplication::clipboard()->setText(withBackslashes(path));
                if (!window.pick(QStringLiteral("Paste and Go")))
                    return QStringLiteral("no menu");
                model.navigate(path);
                break;
            case 7: {
                const QStringList names =
                    QDir(model.path).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
                if (names.isEmpty())
                    continue;
                const QString into = model.path + u'/' + names.at(step.number % names.size());
                story->append(QStringLiteral("enter ") + into);
                if (!window.doubleClickInTree(into))
                    return QStringLiteral("not in the tree");
                model.slot(into);
                break;
            }
            default:
                story->append(QStringLiteral("reset to ") + path);
                window.bar->resetPath(path);
                model.reset(path);
                break;
            }
            if (window.bar->path() != model.path)
                return QStringLiteral("path %1, not %2").arg(window.bar->path(), model.path);
            if (shownBy(window.tree()) != model.path)
                return QStringLiteral("the tree shows %1").arg(shownBy(window.tree()));
            if (!showsCrumbs(window.strip))
                return QStringLiteral("no crumbs");
            // A reset to the current path says nothing, also about the ways that are lost with it.
            const QStringList log = std::exchange(model.log, {});
            if (changes.size() != log.filter(QStringLiteral("/")).size())
                return QStringLiteral("%1 signals").arg(changes.size());
            changes.clear();
            if (log.isEmpty())
                continue;
            const QList<bool> ways = enabledButtonsOf(window.bar).mid(0, 2);
            if (ways != QList{model.index != 0, model.index != model.paths.size() - 1})
                return QStringLiteral("wrong buttons");
        }
        return {};
    };

    QRandomGenerator random(seed);
    QList<Steps::Step> steps;
    for (int i = 0; i < 50; ++i)
        steps << Steps::Step{random.bounded(9), random.bounded(1000)};
    const QString wrong = Steps::play(steps, play);
    QVERIFY2(wrong.isEmpty(), qPrintable(wrong));
}

void tst_AddressBar::opensItsContextMenu_data()
{
    using Place = std::function<std::pair<QWidget *, QPoint>(const Window &)>;
    QTest::addColumn<Place>("place");
    const auto row = [](const char *name, const Place &place) { QTest::newRow(name) << place; };
    row("beside the crumbs", [](const Window &window) {
        return std::pair<QWidget *, QPoint>(window.strip, window.freePlace());
    });
    row("crumb", [](const Window &window) {
        return std::pair<QWidget *, QPoint>(entriesOf(window.strip).constLast(), QPoint(5, 5));
    });
    row("folder icon", [](const Window &window) {
        return std::pair<QWidget *, QPoint>(window.strip, QPoint(5, 12));
    });
    row("button", [](const Window &window) {
        return std::pair<QWidget *, QPoint>(buttonsOf(window.bar).at(3), QPoint(5, 5));
    });
    row("edge", [](const Window &window) {
        return std::pair<QWidget *, QPoint>(window.bar, QPoint(2, 2));
    });
}

void tst_AddressBar::opensItsContextMenu()
{
    using Place = std::function<std::pair<QWidget *, QPoint>(const Window &)>;
    QFETCH(Place, place);
    Window window;
    QVERIFY(window.open());
    const auto [widget, position] = place(window);
    QPoint shownAt;
    QMenu *menu = menuOf(window.bar);
    const QSignalSpy changes(window.bar, &AddressBar::signalPathChanged);
    QVERIFY(whileOpen(
        menu,
        [&, widget = widget, position = position] {
            window.click(widget, position, Qt::RightButton);
        },
        [&] { shownAt = menu->pos(); }));
    QCOMPARE(shownAt, widget->mapToGlobal(position));
    QCOMPARE(changes.count(), 0);
    QVERIFY(showsCrumbs(window.strip));
}

void tst_AddressBar::listsWhatCanBeDoneToThePath()
{
    const AddressBar bar;
    const QMenu *menu = menuOf(&bar);
    QVERIFY(!menu->parent());
    QStringList texts;
    QList<QKeySequence> shortcuts;
    const QList<QAction *> actions = menu->actions();
    for (const QAction *action : actions) {
        QCOMPARE(action->parent(), &bar);
        QVERIFY(action->isEnabled());
        texts << action->text();
        shortcuts << action->shortcut();
    }
    QCOMPARE(texts,
             (QStringList{QStringLiteral("Cut"), QStringLiteral("Copy"), QStringLiteral("Paste"),
                          QStringLiteral("Paste and Go"), QStringLiteral("Select All"),
                          QStringLiteral("Delete")}));
    QCOMPARE(shortcuts,
             (QList<QKeySequence>{QKeySequence::Cut, QKeySequence::Copy, QKeySequence::Paste,
                                  QKeySequence(), QKeySequence::SelectAll, QKeySequence::Delete}));
}

void tst_AddressBar::copiesThePath()
{
    Window window;
    QVERIFY(window.open());
    window.bar->setPath(QStringLiteral("/usr/share"));
    QGuiApplication::clipboard()->setText(QStringLiteral("before"));
    const QSignalSpy changes(window.bar, &AddressBar::signalPathChanged);
    QVERIFY(window.pick(QStringLiteral("Copy")));
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("/usr/share"));
    QVERIFY(showsCrumbs(window.strip));
    QCOMPARE(changes.count(), 0);
}

void tst_AddressBar::cutsThePath()
{
    Window window;
    QVERIFY(window.open());
    window.bar->setPath(QStringLiteral("/usr/share"));
    QGuiApplication::clipboard()->setText(QStringLiteral("before"));
    QVERIFY(window.pick(QStringLiteral("Cut")));
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("/usr/share"));
    QVERIFY(isEditing(window.strip));
    QCOMPARE(window.strip->text(), QString());
    // Nothing was typed, so the path stays.
    window.click(window.patch);
    QVERIFY(showsCrumbs(window.strip));
    QCOMPARE(window.bar->path(), QStringLiteral("/usr/share"));
}

void tst_AddressBar::pastesAPath()
{
    Window window;
    QVERIFY(window.open());
    window.bar->resetPath(QStringLiteral("/usr/share"));
    QGuiApplication::clipboard()->setText(QStringLiteral("/usr/lib"));
    const QSignalSpy changes(window.bar, &AddressBar::signalPathChanged);
    QVERIFY(window.pick(QStringLiteral("Paste")));
    QVERIFY(isEditing(window.strip));
    QCOMPARE(window.strip->text(), QStringLiteral("/usr/lib"));
    QCOMPARE(window.strip->selectedText(), QStringLiteral("/usr/lib"));
    QCOMPARE(window.bar->path(), QStringLiteral("\\usr\\share"));
    QCOMPARE(changes.count(), 0);
    QTest::keyClick(window.windowHandle(), Qt::Key_Return);
    QCOMPARE(pathsIn(changes), QStringList{QStringLiteral("/usr/lib")});
    QVERIFY(showsCrumbs(window.strip));
}

void tst_AddressBar::pastesAPathAndGoesThere()
{
    Window window;
    QVERIFY(window.open());
    QGuiApplication::clipboard()->setText(QStringLiteral("\\no such\\folder\\"));
    const QSignalSpy changes(window.bar, &AddressBar::signalPathChanged);
    QVERIFY(window.pick(QStringLiteral("Paste and Go")));
    QCOMPARE(pathsIn(changes), QStringList{QStringLiteral("/no such/folder")});
    QVERIFY(showsCrumbs(window.strip));
    QVERIFY(window.pick(QStringLiteral("Paste and Go")));
    QCOMPARE(changes.count(), 1);
    QVERIFY(showsCrumbs(window.strip));
}

void tst_AddressBar::pastesNothing()
{
    Window window;
    QVERIFY(window.open());
    window.bar->setPath(QStringLiteral("/usr/share"));
    const QSignalSpy changes(window.bar, &AddressBar::signalPathChanged);
    QGuiApplication::clipboard()->clear();
    QVERIFY(window.pick(QStringLiteral("Paste and Go")));
    QVERIFY(showsCrumbs(window.strip));
    QCOMPARE(changes.count(), 0);
    QVERIFY(window.pick(QStringLiteral("Paste")));
    QVERIFY(isEditing(window.strip));
    QCOMPARE(window.strip->text(), QString());
    QTest::keyClick(window.windowHandle(), Qt::Key_Return);
    QVERIFY(showsCrumbs(window.strip));
    QCOMPARE(window.bar->path(), QStringLiteral("/usr/share"));
}

void tst_AddressBar::selectsThePath()
{
    // Unlike after a click, the text has the separators of the path.
    Window window;
    QVERIFY(window.open());
    window.bar->setPath(QStringLiteral("/usr/share"));
    QVERIFY(window.pick(QStringLiteral("Select All")));
    QVERIFY(isEditing(window.strip));
    QCOMPARE(window.strip->text(), QStringLiteral("/usr/share"));
    QCOMPARE(window.strip->selectedText(), QStringLiteral("/usr/share"));
    QCOMPARE(window.bar->path(), QStringLiteral("\\usr\\share"));
}

void tst_AddressBar::deletesThePath()
{
    Window window;
    QVERIFY(window.open());
    window.bar->setPath(QStringLiteral("/usr/share"));
    QGuiApplication::clipboard()->setText(QStringLiteral("kept"));
    QVERIFY(window.pick(QStringLiteral("Delete")));
    QVERIFY(isEditing(window.strip));
    QCOMPARE(window.strip->text(), QString());
    QCOMPARE(window.bar->path(), QStringLiteral("\\usr\\share"));
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("kept"));
}

void tst_AddressBar::leavesItsShortcutsToOthers()
{
    Window window;
    QVERIFY(window.open());
    window.bar->setPath(QStringLiteral("/usr/share"));
    const QSignalSpy changes(window.bar, &AddressBar::signalPathChanged);
    QGuiApplication::clipboard()->setText(QStringLiteral("text"));
    const auto press = [&](QKeySequence::StandardKey key) {
        QTest::keySequence(window.windowHandle(), QKeySequence(key));
    };
    for (const auto key : {QKeySequence::Copy, QKeySequence::Cut, QKeySequence::Paste,
                           QKeySequence::SelectAll, QKeySequence::Delete})
        press(key);
    QVERIFY(showsCrumbs(window.strip));
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("text"));
    window.click(window.field);
    press(QKeySequence::Paste);
    QCOMPARE(window.field->text(), QStringLiteral("text"));
    window.clickIntoStrip();
    press(QKeySequence::Cut);
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("\\usr\\share"));
    QCOMPARE(window.strip->text(), QString());
    QCOMPARE(changes.count(), 0);
}

void tst_AddressBar::leavesTheEditorForItsContextMenu()
{
    Window window;
    QVERIFY(window.open());
    window.bar->resetPath(QStringLiteral("/usr/share"));
    window.clickIntoStrip();
    const QSignalSpy changes(window.bar, &AddressBar::signalPathChanged);
    QVERIFY(window.pick(QStringLiteral("Copy")));
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("/usr/share"));
    QVERIFY(showsCrumbs(window.strip));
    QCOMPARE(pathsIn(changes), QStringList{QStringLiteral("/usr/share")});
    window.clickIntoStrip();
    QVERIFY(window.pick(QStringLiteral("Select All")));
    QVERIFY(isEditing(window.strip));
}

void tst_AddressBar::makesOneTree()
{
    AddressBar bar;
    QVERIFY(!bar.findChild<QTreeView *>());
    QTreeView *tree = bar.treeView();
    QVERIFY(qobject_cast<AddressTree *>(tree));
    QVERIFY(!tree->parent());
    QVERIFY(!tree->isVisible());
    QCOMPARE(tree->styleSheet(), bar.styleSheet());
    QCOMPARE(bar.treeView(), tree);
}

void tst_AddressBar::showsItsPathInTheTree()
{
    const Folders folders({QStringLiteral("a/b")});
    AddressBar bar;
    bar.setPath(folders.path(QStringLiteral("a")));
    const QTreeView *tree = bar.treeView();
    QCOMPARE(shownBy(tree), folders.path(QStringLiteral("a")));
    bar.setPath(folders.path(QStringLiteral("a/b")));
    QCOMPARE(shownBy(tree), folders.path(QStringLiteral("a/b")));
    bar.setPath(QStringLiteral("/"));
    QCOMPARE(shownBy(tree), QStringLiteral("/"));
    bar.resetPath(folders.path());
    QCOMPARE(shownBy(tree), folders.path());
}

void tst_AddressBar::showsAPathThatIsEditedInTheTree()
{
    const Folders folders({QStringLiteral("a")});
    Window window;
    QVERIFY(window.open());
    window.bar->setPath(folders.path(QStringLiteral("a")));
    window.clickIntoStrip();
    const QTreeView *tree = window.bar->treeView();
    QCOMPARE(shownBy(tree), folders.path(QStringLiteral("a")));
    QVERIFY(isEditing(window.strip));
    window.click(window.patch);
    QCOMPARE(shownBy(tree), folders.path(QStringLiteral("a")));
    window.bar->setPath(folders.path());
    QCOMPARE(shownBy(tree), folders.path());
}

void tst_AddressBar::followsTheTree()
{
    const Folders folders({QStringLiteral("a/b")});
    Window window(true);
    QVERIFY(window.open());
    window.bar->resetPath(folders.path());
    QSignalSpy changes(window.bar, &AddressBar::signalPathChanged);
    QVERIFY(window.doubleClickInTree(folders.path(QStringLiteral("a"))));
    QVERIFY(window.doubleClickInTree(folders.path(QStringLiteral("a/b"))));
    QCOMPARE(pathsIn(changes),
             (QStringList{folders.path(QStringLiteral("a")), folders.path(QStringLiteral("a/b"))}));
    QCOMPARE(window.bar->path(), folders.path(QStringLiteral("a/b")));
    QVERIFY(showsCrumbs(window.strip));
    QCOMPARE(shownBy(window.tree()), folders.path(QStringLiteral("a/b")));
    window.click(AddressBar::Backward);
    QCOMPARE(shownBy(window.tree()), folders.path(QStringLiteral("a")));
    // The editor's path differs from the stored one, but the tree has nothing to change.
    window.clickIntoStrip();
    QVERIFY(window.doubleClickInTree(folders.path(QStringLiteral("a/b"))));
    QCOMPARE(window.bar->path(), folders.path(QStringLiteral("a/b")));
    QVERIFY(showsCrumbs(window.strip));
}

namespace {

const QStringList suffixFiles{QStringLiteral("a.txt"), QStringLiteral("b.TXT"),
                              QStringLiteral("c.png")};

//! The files that the bar reports after a double click; the others ask.
QString openedFiles(Window *window, const Folders &folders)
{
    QString opened;
    for (const QString &file : suffixFiles) {
        const QString path = folders.path(file);
        const QSignalSpy opens(window->bar, &AddressBar::signalFileOpen);
        const bool asked = whileModal([&] { window->doubleClickInTree(path); },
                                      [](QWidget *dialog) {
                                          auto *box = qobject_cast<QMessageBox *>(dialog);
                                          Gui::click(box->button(QMessageBox::Cancel));
                                      });
        if (pathsIn(opens) == QStringList{path} && !asked)
            opened += file + u' ';
        else if (!opens.isEmpty() || !asked)
            opened += QStringLiteral("(%1 %2 %3)").arg(file).arg(opens.size()).arg(asked);
    }
    return opened.trimmed();
}

//! A window on a folder with a file of each of the suffixes.
struct SuffixWindow : Window
{
    SuffixWindow()
        : Window(true)
    {
        for (const QString &file : suffixFiles)
            write(folders.path(file));
        bar->setPath(folders.path());
    }

    QString opened() { return openedFiles(this, folders); }

    //! Makes the tree forget what it was told, to see whether it is told again.
    void forget() { tree()->setSuffixes({}); }

    const Folders folders;
};

} // namespace

void tst_AddressBar::reportsFilesWithItsSuffixes()
{
    SuffixWindow window;
    QVERIFY(window.open());
    QCOMPARE(window.opened(), QString());
    window.bar->addSuffix(QStringLiteral("txt"));
    QCOMPARE(window.opened(), QStringLiteral("a.txt"));
    window.bar->addSuffix(QStringLiteral("png"));
    QCOMPARE(window.opened(), QStringLiteral("a.txt c.png"));
    window.bar->addSuffix(QStringLiteral("TXT"));
    QCOMPARE(window.opened(), QStringLiteral("a.txt b.TXT c.png"));
}

void tst_AddressBar::keepsASuffixOnce()
{
    SuffixWindow window;
    QVERIFY(window.open());
    window.bar->addSuffix(QStringLiteral("txt"));
    window.forget();
    window.bar->addSuffix(QStringLiteral("txt"));
    QCOMPARE(window.opened(), QString());
    window.bar->addSuffix(QStringLiteral("TXT"));
    QCOMPARE(window.opened(), QStringLiteral("a.txt b.TXT"));
    window.bar->removeSuffix(QStringLiteral("txt"));
    QCOMPARE(window.opened(), QStringLiteral("b.TXT"));
}

void tst_AddressBar::removesSuffixes()
{
    SuffixWindow window;
    QVERIFY(window.open());
    window.bar->removeSuffix(QStringLiteral("txt"));
    window.bar->addSuffix(QStringLiteral("txt"));
    window.bar->addSuffix(QStringLiteral("png"));
    window.forget();
    for (const QString &absent : {QStringLiteral("TXT"), QStringLiteral("gif"), QString()})
        window.bar->removeSuffix(absent);
    QCOMPARE(window.opened(), QString());
    window.bar->removeSuffix(QStringLiteral("txt"));
    QCOMPARE(window.opened(), QStringLiteral("c.png"));
}

void tst_AddressBar::clearsSuffixesEvenOfNone()
{
    SuffixWindow window;
    QVERIFY(window.open());
    window.bar->addSuffix(QStringLiteral("txt"));
    window.bar->clearSuffixs();
    QCOMPARE(window.opened(), QString());
    window.tree()->setSuffixes({QStringLiteral("png")});
    QCOMPARE(window.opened(), QStringLiteral("c.png"));
    window.bar->clearSuffixs();
    QCOMPARE(window.opened(), QString());
}

void tst_AddressBar::leavesSuffixesFromBeforeTheTree()
{
    // Programs rely on it: only a change after the first treeView() reaches the tree.
    const Folders folders;
    for (const QString &file : suffixFiles)
        QVERIFY(write(folders.path(file)));
    Window window;
    for (const QString &suffix :
         {QStringLiteral("txt"), QStringLiteral("png"), QStringLiteral("gif"), QString()})
        window.bar->addSuffix(suffix);
    window.bar->removeSuffix(QStringLiteral("png"));
    window.bar->setPath(folders.path());
    window.layout()->addWidget(window.bar->treeView());
    window.resize(700, 400);
    QVERIFY(window.open());
    QCOMPARE(openedFiles(&window, folders), QString());
    window.bar->removeSuffix(QStringLiteral("jpg"));
    window.bar->addSuffix(QStringLiteral("txt"));
    QCOMPARE(openedFiles(&window, folders), QString());
    window.bar->removeSuffix(QStringLiteral("gif"));
    QCOMPARE(openedFiles(&window, folders), QStringLiteral("a.txt"));
}

namespace {

QMenu *newMenuOf(const QTreeView *tree)
{
    const QList<QMenu *> menus = tree->findChildren<QMenu *>();
    for (QMenu *menu : menus) {
        if (menu->title() == QStringLiteral("New"))
            return menu;
    }
    return nullptr;
}

} // namespace

void tst_AddressBar::offersNewActions()
{
    AddressBar bar;
    const QMenu *menu = newMenuOf(bar.treeView());
    QCOMPARE(menu->actions().size(), 1);
    QAction text;
    bar.addNewAction(nullptr);
    QCOMPARE(menu->actions().size(), 1);
    bar.addNewAction(&text);
    QCOMPARE(menu->actions().size(), 2);
    QCOMPARE(menu->actions().constLast(), &text);
    QVERIFY(!text.parent());
}

void tst_AddressBar::makesTheTreeForNewActions()
{
    AddressBar bar;
    QAction text;
    bar.addNewAction(&text);
    QCOMPARE(newMenuOf(bar.treeView())->actions().constLast(), &text);
    AddressBar other;
    other.addNewAction(nullptr);
    QCOMPARE(newMenuOf(other.treeView())->actions().size(), 1);
}

void tst_AddressBar::makesTheTreeForTheirPath()
{
    const Folders folders;
    AddressBar bar;
    bar.setPath(folders.path());
    QCOMPARE(bar.actionTriggeredPath(), folders.path());
    QCOMPARE(shownBy(bar.treeView()), folders.path());
}

void tst_AddressBar::tellsWhereNewActionsAct()
{
    const Folders folders({QStringLiteral("a"), QStringLiteral("b")});
    Window window(true);
    QVERIFY(window.open());
    window.bar->setPath(folders.path());
    auto *model = static_cast<QFileSystemModel *>(window.tree()->model());
    const QString b = folders.path(QStringLiteral("b"));
    QTRY_VERIFY(window.tree()->visualRect(model->index(b)).isValid());
    QCOMPARE(window.bar->actionTriggeredPath(), folders.path());
    const QRect row = window.tree()->visualRect(model->index(b));
    window.click(window.tree()->viewport(), row.topLeft() + QPoint(30, row.height() / 2));
    QCOMPARE(window.bar->actionTriggeredPath(), b);
    window.click(window.tree()->viewport(), QPoint(30, window.tree()->viewport()->height() - 3));
    QCOMPARE(window.bar->actionTriggeredPath(), folders.path());
}

void tst_AddressBar::takesItsTreeAlong()
{
    auto bar = std::make_unique<AddressBar>();
    const QPointer<QTreeView> tree = bar->treeView();
    const QPointer<QMenu> menu = menuOf(bar.get());
    QVERIFY(menu);
    bar.reset();
    QVERIFY(!tree);
    QVERIFY(!menu);
}

void tst_AddressBar::leavesATreeThatHasAParent()
{
    const Folders folders({QStringLiteral("a")});
    Window window(true);
    QVERIFY(window.open());
    window.bar->setPath(folders.path());
    const QPointer<QTreeView> tree = window.tree();
    delete window.bar;
    QVERIFY(tree);
    QCOMPARE(tree->parentWidget(), &window);
    // What it says reaches nobody any more.
    QVERIFY(window.doubleClickInTree(folders.path(QStringLiteral("a"))));
    QCOMPARE(shownBy(tree), folders.path());
}

void tst_AddressBar::replacesADeletedTree()
{
    AddressBar bar;
    delete bar.treeView();
    bar.setPath(QStringLiteral("/usr"));
    bar.addSuffix(QStringLiteral("txt"));
    QCOMPARE(bar.actionTriggeredPath(), QStringLiteral("/usr"));
    QCOMPARE(shownBy(bar.treeView()), QStringLiteral("/usr"));
}

void tst_AddressBar::isDeletedInAnyOrder_data()
{
    QTest::addColumn<bool>("treeFirst");
    QTest::addColumn<bool>("editing");
    for (const bool treeFirst : {false, true}) {
        for (const bool editing : {false, true}) {
            QTest::addRow("%s%s", treeFirst ? "tree first" : "bar first",
                          editing ? ", editing" : "")
                << treeFirst << editing;
        }
    }
}

void tst_AddressBar::isDeletedInAnyOrder()
{
    QFETCH(bool, treeFirst);
    QFETCH(bool, editing);
    auto window = std::make_unique<Window>(true);
    QVERIFY(window->open());
    window->bar->setPath(QStringLiteral("/usr"));
    if (editing)
        window->clickIntoStrip();
    const QPointer<AddressBar> bar = window->bar;
    if (treeFirst)
        window->bar->setParent(nullptr);
    else
        window->tree()->setParent(nullptr);
    if (editing && !treeFirst)
        QVERIFY(isEditing(stripOf(bar)));
    window.reset();
    if (bar)
        delete bar;
}

void tst_AddressBar::isDeletedWithTheFocusAndItsWindow()
{
    // A window that closes takes the focus from its editor, which then navigates.
    auto bar = std::make_unique<AddressBar>();
    bar->setPath(QStringLiteral("/usr"));
    QVERIFY(Gui::open(bar.get()));
    QVERIFY(QTest::qWaitForWindowActive(bar.get(), patience));
    const AddressStrip *strip = stripOf(bar.get());
    Gui::click(strip, QPoint(strip->width() - 3, 12));
    QVERIFY(isEditing(strip));
    bar.reset();
    QVERIFY(!QApplication::focusWidget());
}

void tst_AddressBar::isDeletedWhileItsMenuIsOpen()
{
    Window window;
    QVERIFY(window.open());
    const QPointer<QMenu> menu = menuOf(window.bar);
    QVERIFY(whileOpen(
        menu, [&] { Gui::press(window.strip, window.freePlace(), Qt::RightButton); },
        [&] { delete window.bar; }));
    QVERIFY(!menu);
    QVERIFY(!QApplication::activePopupWidget());
}

NORVANE_TEST_MAIN(tst_AddressBar)
#include "tst_AddressBar.moc"
