// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "Modal.h"
#include "RealMouse.h"
#include "TestCase.h"

#include <Norvane/AddressBar.h>
#include <address/AddressEntry.h>
#include <address/AddressStrip.h>

#include <QtCore/QDir>
#include <QtCore/QTemporaryDir>
#include <QtGui/QAction>
#include <QtGui/QClipboard>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

using namespace Norvane;
using namespace Qt::StringLiterals;

class tst_AddressBarDesktop : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void followsANameOfTheRow();
    void opensFoldersUnderTheArrow();
    void closesFoldersWithoutAChoice();
    void opensTheFoldersOfTheRoot();
    void entersATypedPath();
    void staysInTheEditorAfterEscape();
    void leavesTheEditor_data();
    void leavesTheEditor();
    void refusesAPathThatDoesNotExist();
    void editsFromItsContextMenu_data();
    void editsFromItsContextMenu();
    void goesBackwardAndForward();
};

namespace {

struct Window : QWidget
{
    Window()
    {
        for (const QString &path : {u"a/b"_s, u"a/c"_s})
            QDir(folder.path()).mkpath(path);
        auto *column = new QVBoxLayout(this);
        column->addWidget(bar);
        column->addWidget(patch, 1);
        column->addWidget(field);
        resize(700, 200);
        bar->resetPath(path(u"a"_s));
    }

    bool open()
    {
        show();
        return QTest::qWaitForWindowActive(this, patience)
            && QTest::qWaitFor([this] { return showsCrumbs(); }, patience);
    }

    QString path(const QString &name) const { return folder.filePath(name); }

    //! Counted from the end of the row.
    AddressEntry *crumb(int fromEnd) const
    {
        const QList<AddressEntry *> entries = bar->findChildren<AddressEntry *>();
        QList<AddressEntry *> shown;
        for (AddressEntry *entry : entries) {
            if (entry->isVisible())
                shown << entry;
        }
        return shown.at(shown.size() - 1 - fromEnd);
    }

    void moveToFreePlace() const { RealMouse::move(strip, {strip->width() - 150, 12}); }

    bool startEditing() const
    {
        moveToFreePlace();
        RealMouse::click();
        return QTest::qWaitFor([this] { return strip->hasFocus(); }, patience);
    }

    bool showsCrumbs() const
    {
        const int last = strip->layout()->count() - 1;
        return !strip->hasFocus() && last > 1
            && strip->layout()->itemAt(last)->widget()->isVisible();
    }

    QTemporaryDir folder;
    AddressBar *bar = new AddressBar;
    AddressStrip *strip = bar->findChild<AddressStrip *>();
    QWidget *patch = new QWidget;
    QLineEdit *field = new QLineEdit;
};

void type(const QString &text)
{
    RealMouse::xdotool({u"type"_s, u"--delay"_s, u"5"_s, text});
}

QPoint arrowOf(const AddressEntry *entry)
{
    return {entry->width() - 8, entry->height() / 2};
}

} // namespace

void tst_AddressBarDesktop::followsANameOfTheRow()
{
    Window window;
    QVERIFY(window.open());
    RealMouse::move(window.crumb(1), {6, 11});
    RealMouse::click();
    QTRY_COMPARE(window.bar->path(), window.folder.path());
    QTRY_VERIFY(window.showsCrumbs());
}

void tst_AddressBarDesktop::opensFoldersUnderTheArrow()
{
    Window window;
    QVERIFY(window.open());
    const AddressEntry *crumb = window.crumb(0);
    const QPoint under = crumb->mapToGlobal(QPoint(crumb->width() - 16, crumb->height()));
    RealMouse::move(crumb, arrowOf(crumb));
    QMenu *menu = crumb->menu();
    QPoint shownAt;
    RealMouse::clickToOpen(menu, [&] {
        shownAt = menu->pos();
        RealMouse::move(menu, menu->actionGeometry(menu->actions().at(1)).center());
        RealMouse::click();
    });
    QCOMPARE(shownAt, under);
    QTRY_COMPARE(window.bar->path(), window.path(u"a/c"_s));
    QTRY_VERIFY(window.showsCrumbs());
}

void tst_AddressBarDesktop::closesFoldersWithoutAChoice()
{
    Window window;
    QVERIFY(window.open());
    AddressEntry *crumb = window.crumb(0);
    QMenu *menu = crumb->menu();
    RealMouse::move(crumb, arrowOf(crumb));
    RealMouse::clickToOpen(menu, [] { RealMouse::key(u"Escape"_s); });
    RealMouse::clickToOpen(menu, [&] {
        RealMouse::move(window.patch);
        RealMouse::click();
    });
    QCOMPARE(window.bar->path(), window.path(u"a"_s));
    QCOMPARE(window.crumb(0), crumb);
    QVERIFY(!crumb->isDown());
    RealMouse::move(crumb, {6, 11});
    RealMouse::click();
    QTRY_VERIFY(window.showsCrumbs());
}

void tst_AddressBarDesktop::opensTheFoldersOfTheRoot()
{
    Window window;
    QVERIFY(window.open());
    const AddressEntry *root = window.bar->findChild<AddressEntry *>();
    RealMouse::move(root);
    QMenu *menu = root->menu();
    QString picked;
    RealMouse::clickToOpen(menu, [&] {
        picked = menu->actions().constFirst()->text();
        RealMouse::move(menu, menu->actionGeometry(menu->actions().constFirst()).center());
        RealMouse::click();
    });
    QTRY_COMPARE(window.bar->path(), u'/' + picked);
}

void tst_AddressBarDesktop::entersATypedPath()
{
    Window window;
    QVERIFY(window.open());
    QVERIFY(window.startEditing());
    QCOMPARE(window.strip->selectedText(), window.path(u"a"_s).replace(u'/', u'\\'));
    type(window.path(u"a/b"_s));
    QTRY_COMPARE(window.strip->text(), window.path(u"a/b"_s));
    RealMouse::key(u"Return"_s);
    QTRY_COMPARE(window.bar->path(), window.path(u"a/b"_s));
    QTRY_VERIFY(window.showsCrumbs());
    QCOMPARE(window.crumb(0)->text(), u"b"_s);
}

void tst_AddressBarDesktop::staysInTheEditorAfterEscape()
{
    Window window;
    QVERIFY(window.open());
    QVERIFY(window.startEditing());
    RealMouse::key(u"End"_s);
    RealMouse::key(u"Escape"_s);
    type(u"xy"_s);
    QTRY_VERIFY(window.strip->text().endsWith(u"axy"_s));
    QVERIFY(window.strip->hasFocus());
    RealMouse::move(window.strip, {window.strip->width() - 50, 12});
    RealMouse::click();
    type(u"z"_s);
    QTRY_VERIFY(window.strip->text().endsWith(u"axyz"_s));
    RealMouse::move(window.patch);
    RealMouse::click();
    QTRY_VERIFY(window.showsCrumbs());
    QCOMPARE(window.bar->path(), window.path(u"a"_s));
}

void tst_AddressBarDesktop::leavesTheEditor_data()
{
    using Leave = std::function<void(const Window &)>;
    QTest::addColumn<Leave>("leave");
    QTest::newRow("click beside it") << Leave([](const Window &window) {
        RealMouse::move(window.patch);
        RealMouse::click();
    });
    QTest::newRow("click into a field") << Leave([](const Window &window) {
        RealMouse::move(window.field);
        RealMouse::click();
        QTRY_VERIFY(window.field->hasFocus());
    });
    QTest::newRow("right click beside it") << Leave([](const Window &window) {
        RealMouse::move(window.patch);
        RealMouse::click(3);
    });
    QTest::newRow("tab") << Leave([](const Window &) { RealMouse::key(u"Tab"_s); });
    QTest::newRow("other window") << Leave([](const Window &window) {
        QWidget other;
        other.setGeometry(100, 400, 200, 100);
        other.show();
        QVERIFY(QTest::qWaitForWindowActive(&other, patience));
        RealMouse::move(&other);
        RealMouse::click();
        QTRY_VERIFY(!window.strip->hasFocus());
    });
}

void tst_AddressBarDesktop::leavesTheEditor()
{
    QFETCH(std::function<void(const Window &)>, leave);
    Window window;
    QVERIFY(window.open());
    QVERIFY(window.startEditing());
    type(u"not entered"_s);
    QTRY_COMPARE(window.strip->text(), u"not entered"_s);
    leave(window);
    QTRY_VERIFY(window.showsCrumbs());
    QCOMPARE(window.bar->path(), window.path(u"a"_s));
    QCOMPARE(window.strip->text(), QString());
}

void tst_AddressBarDesktop::refusesAPathThatDoesNotExist()
{
    Window window;
    QVERIFY(window.open());
    QVERIFY(window.startEditing());
    type(u"/no such folder"_s);
    QTRY_COMPARE(window.strip->text(), u"/no such folder"_s);
    QString text;
    QVERIFY(whileModal(
        [&] {
            RealMouse::key(u"Return"_s);
            QTRY_VERIFY(!text.isEmpty());
        },
        [&](QWidget *box) {
            text = qobject_cast<QMessageBox *>(box)->text();
            RealMouse::move(qobject_cast<QMessageBox *>(box)->button(QMessageBox::Ok));
            RealMouse::click();
            QTRY_VERIFY(!box->isVisible());
        }));
    QVERIFY(QTest::qWaitForWindowActive(&window, patience));
    QTRY_VERIFY(window.showsCrumbs());
    QCOMPARE(window.bar->path(), window.path(u"a"_s));
    QVERIFY(window.startEditing());
}

void tst_AddressBarDesktop::editsFromItsContextMenu_data()
{
    QTest::addColumn<bool>("editing");
    QTest::newRow("from crumbs") << false;
    QTest::newRow("from the editor") << true;
}

void tst_AddressBarDesktop::editsFromItsContextMenu()
{
    // The menu takes the focus and gives it back when it closes, which is when the editor opens.
    QFETCH(bool, editing);
    Window window;
    QVERIFY(window.open());
    if (editing)
        QVERIFY(window.startEditing());
    window.moveToFreePlace();
    const auto *first = window.bar->findChild<QAction *>(Qt::FindDirectChildrenOnly);
    auto *menu = qobject_cast<QMenu *>(first->associatedObjects().value(0));
    const auto pick = [&](int index) {
        window.moveToFreePlace();
        RealMouse::clickToOpen(
            menu,
            [menu, index] {
                RealMouse::move(menu, menu->actionGeometry(menu->actions().at(index)).center());
                RealMouse::click();
            },
            3);
    };
    pick(4);
    QTRY_VERIFY(window.strip->hasFocus());
    QCOMPARE(window.strip->selectedText(), window.path(u"a"_s));
    type(window.path(u"a/c"_s));
    RealMouse::key(u"Return"_s);
    QTRY_COMPARE(window.bar->path(), window.path(u"a/c"_s));
    QTRY_VERIFY(window.showsCrumbs());

    pick(1);
    QTRY_COMPARE(QGuiApplication::clipboard()->text(), window.path(u"a/c"_s));
    QTRY_VERIFY(window.showsCrumbs());
}

void tst_AddressBarDesktop::goesBackwardAndForward()
{
    Window window;
    QVERIFY(window.open());
    window.bar->setPath(window.path(u"a/b"_s));
    const QList<QPushButton *> buttons = window.bar->findChildren<QPushButton *>();
    const auto click = [&](AddressBar::AddressButton button) {
        RealMouse::move(buttons.at(button));
        RealMouse::click();
    };
    click(AddressBar::Backward);
    QTRY_COMPARE(window.bar->path(), window.path(u"a"_s));
    click(AddressBar::Forward);
    QTRY_COMPARE(window.bar->path(), window.path(u"a/b"_s));
    // From the editor: the click ends the editing first, which adds an entry of its own.
    click(AddressBar::DirUp);
    QTRY_COMPARE(window.bar->path(), window.path(u"a"_s));
    QVERIFY(window.startEditing());
    click(AddressBar::Backward);
    QTRY_COMPARE(window.bar->path(), window.path(u"a/b"_s));
    QTRY_VERIFY(window.showsCrumbs());
}

NORVANE_TEST_MAIN(tst_AddressBarDesktop)
#include "tst_AddressBarDesktop.moc"
