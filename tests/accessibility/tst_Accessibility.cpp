// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "Gui.h"
#include "TestCase.h"

#include <Norvane/AddressBar.h>
#include <Norvane/DockContainer.h>
#include <Norvane/DockContentWidget.h>
#include <Norvane/DockPanelWidget.h>
#include <Norvane/NorvaneAgent.h>
#include <Norvane/RibbonBar.h>
#include <Norvane/RibbonGallery.h>
#include <Norvane/RibbonGroup.h>
#include <Norvane/RibbonPage.h>
#include <Norvane/RibbonSubgroup.h>

#include <QtCore/QTemporaryDir>
#include <QtGui/QAccessible>
#include <QtGui/QAccessibleActionInterface>
#include <QtGui/QAction>
#include <QtTest/QSignalSpy>
#include <QtWidgets/QApplication>
#include <QtWidgets/QMainWindow>
#include <QtWidgets/QMenu>

using namespace Norvane;
using namespace Qt::StringLiterals;

class tst_Accessibility : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void tellsTabsOfTheRibbon();
    void selectsATab();
    void tellsTheCurrentPageOnly();
    void namesGroupsByTheirTitles();
    void tellsButtonsOfTheRibbon_data();
    void tellsButtonsOfTheRibbon();
    void namesButtonsInOneLine();
    void pressesAButton();
    void togglesAButton();
    void opensTheMenuOfAButton();
    void doesNothingWithADisabledButton();
    void survivesAButtonWithoutItsAction();
    void tellsItemsOfAGallery();
    void tellsPanelsAndTheirButtons();
    void namesTheButtonsOfTitles();
    void namesCrumbsByTheirPaths();
    void namesTheButtonsOfTheAddressBar();

    void cleanup();
};

namespace {

QAccessibleInterface *accessible(const QWidget *widget)
{
    return QAccessible::queryAccessibleInterface(const_cast<QWidget *>(widget));
}

//! Everything below \a root that has the role and, unless it is empty, the name.
QList<QAccessibleInterface *> find(QAccessibleInterface *root, QAccessible::Role role,
                                   const QString &name = QString())
{
    QList<QAccessibleInterface *> found;
    for (int i = 0; i < root->childCount(); ++i) {
        QAccessibleInterface *child = root->child(i);
        if (child->role() == role && (name.isEmpty() || child->text(QAccessible::Name) == name))
            found << child;
        found << find(child, role, name);
    }
    return found;
}

QStringList names(const QList<QAccessibleInterface *> &interfaces)
{
    QStringList names;
    for (const QAccessibleInterface *interface : interfaces)
        names << interface->text(QAccessible::Name);
    return names;
}

//! A frame with one page, a group of actions in it, a panel and a document.
class Frame
{
public:
    Frame()
    {
        agent.setup(&window, true, true);
        page = agent.ribbonBar()->addPage(u"Home"_s, false);
        agent.ribbonBar()->addPage(u"View"_s, false);
        group = page->addGroup(u"Clipboard"_s);
        window.resize(900, 600);
    }

    QAction *add(const QString &text)
    {
        auto *action = new QAction(text, &window);
        group->addAction(action);
        return action;
    }
    //! The one button of the ribbon's first group.
    QAccessibleInterface *button() const { return accessible(group->findChild<QToolButton *>()); }

    QMainWindow window;
    NorvaneAgent agent;
    RibbonPage *page;
    RibbonGroup *group;
};

} // namespace

void tst_Accessibility::cleanup()
{
    qApp->setStyleSheet(QString());
    TestCase::cleanup();
}

void tst_Accessibility::tellsTabsOfTheRibbon()
{
    const Frame frame;
    const auto lists = find(accessible(frame.agent.ribbonBar()), QAccessible::PageTabList);
    QCOMPARE(lists.size(), 1);
    const auto tabs = find(lists.first(), QAccessible::PageTab);
    QCOMPARE(names(tabs), QStringList({u"Home"_s, u"View"_s}));
    for (const QAccessibleInterface *tab : tabs) {
        QCOMPARE(bool(tab->state().selected), tab == tabs.first());
        QVERIFY(tab->state().selectable);
        QVERIFY(!tab->state().checkable);
        QCOMPARE(tab->parent(), lists.first());
    }
}

void tst_Accessibility::selectsATab()
{
    Frame frame;
    QVERIFY(Gui::open(&frame.window));
    const QSignalSpy changes(frame.agent.ribbonBar(), &RibbonBar::signalCurrentPageChanged);
    auto *tab = find(accessible(frame.agent.ribbonBar()), QAccessible::PageTab).constLast();
    tab->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QCOMPARE(changes.count(), 1);
    QVERIFY(tab->state().selected);
}

void tst_Accessibility::tellsTheCurrentPageOnly()
{
    const Frame frame;
    RibbonBar *ribbon = frame.agent.ribbonBar();
    ribbon->showPage(1);
    const auto page = [ribbon] {
        const auto pages = find(accessible(ribbon), QAccessible::PropertyPage);
        return pages.size() == 1 ? pages.first()->object() : nullptr;
    };
    QCOMPARE(page(), ribbon->page(0));
    ribbon->setCurrentIndex(1);
    QCOMPARE(page(), ribbon->page(1));
    QAccessibleInterface *stack = accessible(ribbon->page(1)->parentWidget());
    QCOMPARE(stack->indexOfChild(accessible(ribbon->page(1))), 0);
    QCOMPARE(stack->indexOfChild(accessible(ribbon->page(0))), -1);
    QVERIFY(!stack->child(1));
}

void tst_Accessibility::namesGroupsByTheirTitles()
{
    const Frame frame;
    QCOMPARE(names(find(accessible(frame.page), QAccessible::Grouping)),
             QStringList(u"Clipboard"_s));
}

void tst_Accessibility::tellsButtonsOfTheRibbon_data()
{
    QTest::addColumn<bool>("checkable");
    QTest::addColumn<bool>("withMenu");
    QTest::addColumn<QToolButton::ToolButtonPopupMode>("mode");
    QTest::addColumn<QAccessible::Role>("role");
    QTest::addColumn<QStringList>("actions");
    const QString press = QAccessibleActionInterface::pressAction();
    const QString toggle = QAccessibleActionInterface::toggleAction();
    const QString menu = QAccessibleActionInterface::showMenuAction();
    QTest::newRow("plain") << false << false << QToolButton::DelayedPopup << QAccessible::Button
                           << QStringList{press};
    QTest::newRow("checkable") << true << false << QToolButton::DelayedPopup
                               << QAccessible::CheckBox << QStringList{toggle};
    QTest::newRow("menu and press") << false << true << QToolButton::MenuButtonPopup
                                    << QAccessible::ButtonDropDown << QStringList{menu, press};
    QTest::newRow("menu after a while") << false << true << QToolButton::DelayedPopup
                                        << QAccessible::ButtonDropDown << QStringList{menu, press};
    QTest::newRow("menu") << false << true << QToolButton::InstantPopup << QAccessible::ButtonMenu
                          << QStringList{menu};
}

void tst_Accessibility::tellsButtonsOfTheRibbon()
{
    QFETCH(const bool, checkable);
    QFETCH(const bool, withMenu);
    QFETCH(const QToolButton::ToolButtonPopupMode, mode);
    QFETCH(const QAccessible::Role, role);
    QFETCH(const QStringList, actions);
    Frame frame;
    QMenu menu(u"Paste"_s);
    QAction *action = nullptr;
    if (withMenu) {
        action = frame.group->addMenu(&menu, mode);
    } else {
        action = frame.add(u"Paste"_s);
        action->setCheckable(checkable);
    }
    action->setShortcut(QKeySequence(u"Ctrl+V"_s));
    action->setToolTip(u"Insert what was copied"_s);
    QAccessibleInterface *button = frame.button();
    QCOMPARE(button->text(QAccessible::Name), u"Paste"_s);
    QCOMPARE(button->text(QAccessible::Accelerator), u"Ctrl+V"_s);
    QVERIFY(button->text(QAccessible::Description).startsWith(u"Insert what was copied"_s));
    QCOMPARE(button->role(), role);
    QCOMPARE(bool(button->state().hasPopup), withMenu);
    QCOMPARE(bool(button->state().checkable), checkable);
    QVERIFY(!button->state().checked);
    const QStringList offered = button->actionInterface()->actionNames();
    QCOMPARE(offered.first(actions.size()), actions);
    action->setEnabled(false);
    QVERIFY(button->state().disabled);
}

void tst_Accessibility::namesButtonsInOneLine()
{
    Frame frame;
    QAction *action = frame.add(u"&Save\nAll && Close"_s);
    QCOMPARE(frame.button()->text(QAccessible::Name), u"Save All & Close"_s);
    action->setText(u"Save As"_s);
    QCOMPARE(frame.button()->text(QAccessible::Name), u"Save As"_s);

    // What an application calls it is what it is called.
    frame.group->findChild<QToolButton *>()->setAccessibleName(u"Keep"_s);
    QCOMPARE(frame.button()->text(QAccessible::Name), u"Keep"_s);
}

void tst_Accessibility::pressesAButton()
{
    Frame frame;
    QAction *action = frame.add(u"Copy"_s);
    action->setShortcut(QKeySequence(u"Ctrl+C"_s));
    const QSignalSpy triggers(action, &QAction::triggered);
    QAccessibleActionInterface *actions = frame.button()->actionInterface();
    actions->doAction(QAccessibleActionInterface::pressAction());
    QCOMPARE(triggers.count(), 1);
    QCOMPARE(actions->keyBindingsForAction(QAccessibleActionInterface::pressAction()),
             QStringList(u"Ctrl+C"_s));
    // What is not offered is not done.
    actions->doAction(QAccessibleActionInterface::toggleAction());
    actions->doAction(QAccessibleActionInterface::showMenuAction());
    QCOMPARE(triggers.count(), 1);
}

void tst_Accessibility::togglesAButton()
{
    Frame frame;
    QAction *action = frame.add(u"Wrap"_s);
    action->setCheckable(true);
    QAccessibleInterface *button = frame.button();
    button->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    QVERIFY(action->isChecked());
    QVERIFY(button->state().checked);
}

void tst_Accessibility::opensTheMenuOfAButton()
{
    Frame frame;
    QMenu menu(u"More"_s);
    menu.addAction(u"One"_s);
    frame.group->addMenu(&menu, QToolButton::InstantPopup);
    QVERIFY(Gui::open(&frame.window));
    frame.button()->actionInterface()->doAction(QAccessibleActionInterface::showMenuAction());
    QTRY_VERIFY(menu.isVisible());
    const auto *button = frame.group->findChild<QToolButton *>();
    QCOMPARE(menu.pos().x(), button->mapToGlobal(QPoint()).x());
    menu.close();
}

void tst_Accessibility::doesNothingWithADisabledButton()
{
    Frame frame;
    QAction *action = frame.add(u"Copy"_s);
    action->setEnabled(false);
    const QSignalSpy triggers(action, &QAction::triggered);
    QAccessibleActionInterface *actions = frame.button()->actionInterface();
    QVERIFY(!actions->actionNames().contains(QAccessibleActionInterface::pressAction()));
    actions->doAction(QAccessibleActionInterface::pressAction());
    QCOMPARE(triggers.count(), 0);
}

void tst_Accessibility::survivesAButtonWithoutItsAction()
{
    Frame frame;
    delete frame.add(u"Copy"_s);
    QAccessibleInterface *button = frame.button();
    QVERIFY(button->text(QAccessible::Accelerator).isEmpty());
    QVERIFY(button->isValid());
    QCOMPARE(button->role(), QAccessible::Button);
    button->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
}

void tst_Accessibility::tellsItemsOfAGallery()
{
    Frame frame;
    auto *gallery = new RibbonGallery;
    frame.group->addWidget(gallery);
    QAction blur(u"Soft\nBlur"_s);
    blur.setCheckable(true);
    const int group = gallery->addGroup(u"Effects"_s);
    QVERIFY(group >= 0);
    gallery->addItem(group, &blur);
    QVERIFY(Gui::open(&frame.window));
    QAccessibleInterface *root = accessible(gallery);
    const auto opener = find(root, QAccessible::Button, u"All Items"_s);
    QCOMPARE(opener.size(), 1);
    const auto items = find(root, QAccessible::CheckBox, u"Soft Blur"_s);
    QCOMPARE(items.size(), 1);

    opener.first()->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QTRY_VERIFY(QApplication::activePopupWidget());
    QAccessibleInterface *popup = accessible(QApplication::activePopupWidget());
    QCOMPARE(find(popup, QAccessible::EditableText, u"Search"_s).size(), 1);
    QCOMPARE(find(popup, QAccessible::Grouping, u"Effects"_s).size(), 1);
    QCOMPARE(find(popup, QAccessible::CheckBox, u"Soft Blur"_s).size(), 1);
    QVERIFY(!find(popup, QAccessible::Button, u"Close"_s).isEmpty());
    QVERIFY(!find(popup, QAccessible::Button, u"Move Up"_s).isEmpty());
    QVERIFY(!find(popup, QAccessible::Button, u"Move Down"_s).isEmpty());
    QVERIFY(!find(popup, QAccessible::CheckBox, u"Collect"_s).isEmpty());
    QApplication::activePopupWidget()->close();
}

void tst_Accessibility::tellsPanelsAndTheirButtons()
{
    Frame frame;
    DockPanelWidget *left = frame.agent.dockContainer()->panelWidget(DockContainer::LeftDockArea);
    const int page = left->addView(new QWidget, QIcon(), u"Files"_s);
    left->tabifyView(page, new QWidget, QIcon(), u"Outline"_s);
    left->addView(new QWidget, QIcon(), u"Notes"_s);
    QVERIFY(Gui::open(&frame.window));
    QAccessibleInterface *bar = accessible(left->panel());
    QCOMPARE(bar->role(), QAccessible::ToolBar);
    const auto buttons = find(bar, QAccessible::CheckBox);
    QCOMPARE(names(buttons), QStringList({u"Files, Outline"_s, u"Notes"_s}));
    QVERIFY(buttons.first()->state().checked);
    QVERIFY(!buttons.last()->state().checked);
    buttons.last()->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    QVERIFY(!buttons.first()->state().checked);
    QVERIFY(buttons.last()->state().checked);
}

void tst_Accessibility::namesTheButtonsOfTitles()
{
    Frame frame;
    DockPanelWidget *left = frame.agent.dockContainer()->panelWidget(DockContainer::LeftDockArea);
    const int page = left->addView(new QWidget, QIcon(), u"Files"_s);
    left->tabifyView(page, new QWidget, QIcon(), u"Outline"_s);
    QVERIFY(Gui::open(&frame.window));
    QAccessibleInterface *root = accessible(&frame.window);
    for (const QString &view : {u"Files"_s, u"Outline"_s}) {
        QCOMPARE(find(root, QAccessible::Button, u"Menu of "_s + view).size(), 1);
        QCOMPARE(find(root, QAccessible::CheckBox, u"Collapse "_s + view).size(), 1);
    }
}

void tst_Accessibility::namesCrumbsByTheirPaths()
{
    Frame frame;
    const QTemporaryDir folder;
    QVERIFY(QDir(folder.path()).mkpath(u"one/two"_s));
    frame.agent.addressBar()->setPath(folder.path() + u"/one"_s);
    QVERIFY(Gui::open(&frame.window));
    QAccessibleInterface *bar = accessible(frame.agent.addressBar());
    const auto crumbs = find(bar, QAccessible::ButtonDropDown, folder.path() + u"/one"_s);
    QCOMPARE(crumbs.size(), 1);
    QVERIFY(crumbs.first()->state().hasPopup);
    QCOMPARE(find(bar, QAccessible::ButtonDropDown, folder.path()).size(), 1);
    QCOMPARE(find(bar, QAccessible::ButtonMenu, u"Root"_s).size(), 1);
    find(bar, QAccessible::ButtonDropDown, folder.path())
        .constFirst()
        ->actionInterface()
        ->doAction(QAccessibleActionInterface::pressAction());
}

void tst_Accessibility::namesTheButtonsOfTheAddressBar()
{
    const Frame frame;
    const auto buttons = find(accessible(frame.agent.addressBar()), QAccessible::Button);
    QStringList told = names(buttons);
    for (const QString &name : {u"Back"_s, u"Forward"_s, u"Up"_s, u"Browse"_s})
        QVERIFY2(told.removeOne(name), qPrintable(name));
}

NORVANE_TEST_MAIN(tst_Accessibility)

#include "tst_Accessibility.moc"
