// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "Scene.h"
#include "TestCase.h"

#include <Norvane/RibbonSubgroup.h>

#include <QtTest/QSignalSpy>
#include <QtWidgets/QFrame>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QWidgetAction>

using Norvane::RibbonButton;
using Norvane::RibbonSubgroup;

namespace {

//! A window that gives a column the room it asks for, and leaves the rest empty.
class Host : public Scene
{
public:
    Host()
        : subgroup(new RibbonSubgroup)
    {
        auto *layout = new QHBoxLayout(this);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->setAlignment(Qt::AlignLeft | Qt::AlignTop);
        layout->addWidget(subgroup);
    }

    QPointer<RibbonSubgroup> subgroup;
};

QList<RibbonButton *> buttonsOf(const RibbonSubgroup *subgroup)
{
    return subgroup->findChildren<RibbonButton *>(Qt::FindDirectChildrenOnly);
}

RibbonButton *buttonOf(const RibbonSubgroup *subgroup, const QAction *action)
{
    const auto buttons = buttonsOf(subgroup);
    for (RibbonButton *button : buttons) {
        if (button->defaultAction() == action)
            return button;
    }
    return nullptr;
}

} // namespace

class tst_RibbonSubgroup : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void metaObject();
    void newSubgroup();

    void actionBecomesSmallButton();
    void buttonsStandTwoPixelsApart();
    void moreRoomThanNeeded();
    void separatorBecomesButton();
    void inheritedWaysToAddActions();
    void insertedActionGoesToTheEnd();

    void addMenu();
    void popupModeSticks();
    void menuOpensFromTheColumn();

    void addWidget();
    void widgetActionIsAskedForAWidget();
    void widgetActionWithoutWidget();

    void rowOfIcons();
    void rowsStandBelowEachOther();
    void rowsStandAtTheLeft();
    void rowIgnoresThePopupMode();
    void rowActionsAreNotTheColumns();
    void rowMakesButtonsOfEverything();
    void rowButtonsTrigger();
    void emptyRow();

    void removedActionLeavesItsControl();
    void changedActionAddsNothing();
    void hiddenActionTakesNoRoom();
    void nullPointers();

    void actionDeletedWhileShown();
    void actionInColumnAndRow();
    void menuDeletedBeforeTheColumn();
    void subgroupDeletedFirst();
};

void tst_RibbonSubgroup::metaObject()
{
    const QMetaObject &meta = RibbonSubgroup::staticMetaObject;
    QCOMPARE(meta.className(), "Norvane::RibbonSubgroup");
    QCOMPARE(meta.superClass(), &QWidget::staticMetaObject);
    QCOMPARE(meta.methodOffset(), meta.methodCount());
    QCOMPARE(meta.propertyOffset(), meta.propertyCount());
    QCOMPARE(meta.enumeratorOffset(), meta.enumeratorCount());
}

void tst_RibbonSubgroup::newSubgroup()
{
    QWidget parent;
    const RibbonSubgroup subgroup(&parent);
    QCOMPARE(subgroup.parentWidget(), &parent);
    QCOMPARE(subgroup.sizePolicy().horizontalPolicy(), QSizePolicy::Maximum);
    QCOMPARE(subgroup.sizePolicy().verticalPolicy(), QSizePolicy::Maximum);
    QCOMPARE(subgroup.sizeHint(), QSize(0, 0));
    QVERIFY(subgroup.findChildren<QWidget *>().isEmpty());
}

void tst_RibbonSubgroup::actionBecomesSmallButton()
{
    QAction action(QStringLiteral("Cut"));
    RibbonSubgroup subgroup(nullptr);
    subgroup.addAction(&action);
    QCOMPARE(subgroup.actions(), {&action});
    QCOMPARE(action.parent(), nullptr);
    QCOMPARE(buttonsOf(&subgroup).size(), 1);
    const RibbonButton *button = buttonsOf(&subgroup).constFirst();
    QCOMPARE(button->defaultAction(), &action);
    QCOMPARE(button->toolButtonStyle(), Qt::ToolButtonTextBesideIcon);
    QCOMPARE(button->focusPolicy(), Qt::NoFocus);
    QCOMPARE(button->popupMode(), QToolButton::DelayedPopup);
}

void tst_RibbonSubgroup::buttonsStandTwoPixelsApart()
{
    QAction first;
    QAction wide(blocks(4));
    QAction last;
    Host host;
    for (QAction *action : {&first, &wide, &last})
        host.subgroup->addAction(action);
    QVERIFY(host.open());
    const int width = 34 + advanceOf(blocks(4));
    QTRY_COMPARE(host.subgroup->size(), QSize(width, 22 + 2 + 22 + 2 + 22));
    QCOMPARE(buttonOf(host.subgroup, &first)->geometry(), QRect(0, 0, 34, 22));
    QCOMPARE(buttonOf(host.subgroup, &wide)->geometry(), QRect(0, 24, width, 22));
    QCOMPARE(buttonOf(host.subgroup, &last)->geometry(), QRect(0, 48, 34, 22));
}

// The column as a whole stands in the middle of more room than it needs, and does not spread.
void tst_RibbonSubgroup::moreRoomThanNeeded()
{
    QAction first;
    QAction last;
    Scene scene;
    RibbonSubgroup subgroup(&scene);
    subgroup.addAction(&first);
    subgroup.addAction(&last);
    subgroup.setGeometry(10, 10, 134, 106);
    QVERIFY(scene.open());
    QTRY_COMPARE(buttonOf(&subgroup, &first)->geometry(), QRect(50, 30, 34, 22));
    QCOMPARE(buttonOf(&subgroup, &last)->geometry(), QRect(50, 54, 34, 22));
}

void tst_RibbonSubgroup::separatorBecomesButton()
{
    QAction separator;
    separator.setSeparator(true);
    Host host;
    host.subgroup->addAction(&separator);
    QVERIFY(host.open());
    const RibbonButton *button = buttonOf(host.subgroup, &separator);
    QVERIFY(button);
    QTRY_COMPARE(button->size(), QSize(34, 22));
    QVERIFY(host.subgroup->findChildren<QFrame *>().isEmpty());
}

void tst_RibbonSubgroup::inheritedWaysToAddActions()
{
    QAction action;
    QAction another;
    RibbonSubgroup subgroup(nullptr);
    QAction *fromText = subgroup.addAction(QStringLiteral("Cut"));
    static_cast<QWidget &>(subgroup).addActions({&action, &another});
    QCOMPARE(buttonsOf(&subgroup).size(), 3);
    for (const QAction *each : {fromText, &action, &another}) {
        const RibbonButton *button = buttonOf(&subgroup, each);
        QVERIFY(button);
        QCOMPARE(button->toolButtonStyle(), Qt::ToolButtonTextBesideIcon);
    }
}

void tst_RibbonSubgroup::insertedActionGoesToTheEnd()
{
    QAction first;
    QAction second;
    Host host;
    host.subgroup->addAction(&first);
    host.subgroup->insertAction(&first, &second);
    QVERIFY(host.open());
    QTRY_COMPARE(buttonOf(host.subgroup, &second)->y(), 24);
    QCOMPARE(buttonOf(host.subgroup, &first)->y(), 0);
}

void tst_RibbonSubgroup::addMenu()
{
    QMenu menu(QStringLiteral("Recent"));
    RibbonSubgroup subgroup(nullptr);
    QAction *action = subgroup.addMenu(&menu, QToolButton::MenuButtonPopup);
    QCOMPARE(action, menu.menuAction());
    QCOMPARE(subgroup.actions(), {action});
    QVERIFY(menu.windowFlags().testFlag(Qt::NoDropShadowWindowHint));
    QCOMPARE(menu.windowType(), Qt::Popup);
    QCOMPARE(menu.parent(), nullptr);
    const RibbonButton *button = buttonOf(&subgroup, action);
    QVERIFY(button);
    QCOMPARE(button->toolButtonStyle(), Qt::ToolButtonTextBesideIcon);
    QCOMPARE(button->popupMode(), QToolButton::MenuButtonPopup);
}

void tst_RibbonSubgroup::popupModeSticks()
{
    QMenu own;
    QAction before;
    before.setMenu(&own);
    QMenu instant;
    QAction afterInstant;
    afterInstant.setMenu(&own);
    QMenu split;
    QAction afterSplit;
    Host host;
    host.subgroup->addAction(&before);
    host.subgroup->addMenu(&instant, QToolButton::InstantPopup);
    host.subgroup->addAction(&afterInstant);
    host.subgroup->addMenu(&split, QToolButton::MenuButtonPopup);
    host.subgroup->addAction(&afterSplit);
    const auto modeOf = [&host](const QAction *action) {
        return buttonOf(host.subgroup, action)->popupMode();
    };
    QCOMPARE(modeOf(&before), QToolButton::DelayedPopup);
    QCOMPARE(modeOf(instant.menuAction()), QToolButton::InstantPopup);
    QCOMPARE(modeOf(&afterInstant), QToolButton::InstantPopup);
    QCOMPARE(modeOf(split.menuAction()), QToolButton::MenuButtonPopup);
    QCOMPARE(modeOf(&afterSplit), QToolButton::MenuButtonPopup);
    // A mode that shows an arrow makes room for it, menu or not.
    QVERIFY(host.open());
    QTRY_COMPARE(buttonOf(host.subgroup, &afterSplit)->width(), 46);
    QCOMPARE(buttonOf(host.subgroup, &before)->width(), 34);
}

void tst_RibbonSubgroup::menuOpensFromTheColumn()
{
    QMenu menu;
    QAction *entry = menu.addAction(QStringLiteral("First"));
    Host host;
    host.subgroup->addMenu(&menu, QToolButton::MenuButtonPopup);
    QVERIFY(host.open());
    RibbonButton *button = buttonOf(host.subgroup, menu.menuAction());
    QTRY_COMPARE(button->size(), QSize(46, 22));
    QSignalSpy picked(entry, &QAction::triggered);
    QVERIFY(whileOpen(
        &menu, [&] { host.press(button, QPoint(40, 10)); },
        [&] {
            QCOMPARE(menu.pos(), button->mapToGlobal(QPoint(0, 21)));
            QTest::mouseClick(menu.windowHandle(), Qt::LeftButton, {},
                              menu.actionGeometry(entry).center());
        }));
    host.release(button, QPoint(40, 10));
    QCOMPARE(picked.count(), 1);
}

void tst_RibbonSubgroup::addWidget()
{
    QAction before;
    QAction after;
    Host host;
    auto *box = new QLineEdit;
    box->hide();
    box->setFixedSize(34, 30);
    host.subgroup->addAction(&before);
    QAction *action = host.subgroup->addWidget(box);
    host.subgroup->addAction(&after);
    QVERIFY(action);
    QCOMPARE(action->parent(), host.subgroup);
    QCOMPARE(host.subgroup->actions(), (QList<QAction *>{&before, action, &after}));
    QCOMPARE(qobject_cast<QWidgetAction *>(action)->defaultWidget(), box);
    QCOMPARE(box->parentWidget(), host.subgroup);
    QCOMPARE(buttonsOf(host.subgroup).size(), 2);
    QVERIFY(host.open());
    QVERIFY(box->isVisible());
    QTRY_COMPARE(host.subgroup->size(), QSize(34, 22 + 2 + 30 + 2 + 22));
    QCOMPARE(box->geometry(), QRect(0, 24, 34, 30));
    QCOMPARE(buttonOf(host.subgroup, &after)->y(), 56);
}

void tst_RibbonSubgroup::widgetActionIsAskedForAWidget()
{
    QObject owner;
    auto *action = new QWidgetAction(&owner);
    auto *box = new QLineEdit;
    action->setDefaultWidget(box);
    Host host;
    QVERIFY(host.open());
    host.subgroup->addAction(action);
    QCOMPARE(action->parent(), host.subgroup);
    QCOMPARE(box->parentWidget(), host.subgroup);
    QVERIFY(box->isVisible());
}

void tst_RibbonSubgroup::widgetActionWithoutWidget()
{
    Host host;
    auto *action = new QWidgetAction(nullptr);
    QAction plain;
    host.subgroup->addAction(action);
    host.subgroup->addAction(&plain);
    QCOMPARE(action->parent(), host.subgroup);
    QVERIFY(host.open());
    QTRY_COMPARE(host.subgroup->size(), QSize(34, 22));
}

void tst_RibbonSubgroup::rowOfIcons()
{
    QAction actions[3];
    actions[0].setText(QStringLiteral("A long text that does not count"));
    Host host;
    host.subgroup->addActions({&actions[0], &actions[1], &actions[2]});
    QVERIFY(host.open());
    QTRY_COMPARE(host.subgroup->size(), QSize(22 + 1 + 22 + 1 + 22, 22));
    for (int i = 0; i < 3; ++i) {
        const RibbonButton *button = buttonOf(host.subgroup, &actions[i]);
        QVERIFY(button);
        QCOMPARE(button->geometry(), QRect(i * 23, 0, 22, 22));
        QCOMPARE(button->toolButtonStyle(), Qt::ToolButtonIconOnly);
        QCOMPARE(button->iconSize(), QSize(16, 16));
        QCOMPARE(button->focusPolicy(), Qt::NoFocus);
        QCOMPARE(button->parentWidget(), host.subgroup);
    }
}

void tst_RibbonSubgroup::rowsStandBelowEachOther()
{
    QAction above;
    QAction first[2];
    QAction second[3];
    QAction below;
    Host host;
    host.subgroup->addAction(&above);
    host.subgroup->addActions({&first[0], &first[1]});
    host.subgroup->addActions({&second[0], &second[1], &second[2]});
    host.subgroup->addAction(&below);
    QVERIFY(host.open());
    QTRY_COMPARE(host.subgroup->size(), QSize(68, 22 + 2 + 22 + 2 + 22 + 2 + 22));
    const auto placeOf = [&host](const QAction &action) {
        return buttonOf(host.subgroup, &action)->pos();
    };
    QCOMPARE(placeOf(above), QPoint(0, 0));
    QCOMPARE(placeOf(first[0]), QPoint(0, 24));
    QCOMPARE(placeOf(first[1]), QPoint(23, 24));
    QCOMPARE(placeOf(second[0]), QPoint(0, 48));
    QCOMPARE(placeOf(second[2]), QPoint(46, 48));
    QCOMPARE(placeOf(below), QPoint(0, 72));
}

void tst_RibbonSubgroup::rowsStandAtTheLeft()
{
    QAction wide(blocks(8));
    QAction icons[2];
    for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        Host host;
        host.subgroup->addActions({&icons[0], &icons[1]});
        host.subgroup->addAction(&wide);
        QVERIFY(host.open());
        host.subgroup->setLayoutDirection(direction);
        const int width = 34 + advanceOf(blocks(8));
        QTRY_COMPARE(host.subgroup->size(), QSize(width, 46));
        const bool mirrored = direction == Qt::RightToLeft;
        QTRY_COMPARE(buttonOf(host.subgroup, &icons[0])->x(), mirrored ? width - 22 : 0);
        QCOMPARE(buttonOf(host.subgroup, &icons[1])->x(), mirrored ? width - 45 : 23);
    }
}

void tst_RibbonSubgroup::rowIgnoresThePopupMode()
{
    QMenu instant;
    QMenu own;
    QAction plain;
    QAction withMenu;
    withMenu.setMenu(&own);
    RibbonSubgroup subgroup(nullptr);
    subgroup.addMenu(&instant, QToolButton::InstantPopup);
    subgroup.addActions({&plain, &withMenu});
    QCOMPARE(buttonOf(&subgroup, &plain)->popupMode(), QToolButton::DelayedPopup);
    // Qt's own choice for a button whose action has a menu.
    QCOMPARE(buttonOf(&subgroup, &withMenu)->popupMode(), QToolButton::MenuButtonPopup);
    QVERIFY(!own.windowFlags().testFlag(Qt::NoDropShadowWindowHint));
}

void tst_RibbonSubgroup::rowActionsAreNotTheColumns()
{
    QAction column;
    QAction icon;
    RibbonSubgroup subgroup(nullptr);
    subgroup.addAction(&column);
    subgroup.addActions({&icon});
    QCOMPARE(subgroup.actions(), {&column});
    QCOMPARE(icon.associatedObjects(), {buttonOf(&subgroup, &icon)});
}

void tst_RibbonSubgroup::rowMakesButtonsOfEverything()
{
    QAction separator;
    separator.setSeparator(true);
    QWidgetAction widgetAction(nullptr);
    auto *box = new QLineEdit;
    widgetAction.setDefaultWidget(box);
    Host host;
    host.subgroup->addActions({&separator, &widgetAction});
    QVERIFY(host.open());
    QCOMPARE(buttonsOf(host.subgroup).size(), 2);
    QCOMPARE(widgetAction.parent(), nullptr);
    QVERIFY(!box->isVisible());
    QTRY_COMPARE(host.subgroup->size(), QSize(45, 22));
}

void tst_RibbonSubgroup::rowButtonsTrigger()
{
    QAction actions[2];
    Host host;
    host.subgroup->addActions({&actions[0], &actions[1]});
    QVERIFY(host.open());
    RibbonButton *button = buttonOf(host.subgroup, &actions[1]);
    QTRY_COMPARE(button->geometry(), QRect(23, 0, 22, 22));
    QSignalSpy first(&actions[0], &QAction::triggered);
    QSignalSpy second(&actions[1], &QAction::triggered);
    host.click(button, QPoint(10, 10));
    QCOMPARE(first.count(), 0);
    QCOMPARE(second.count(), 1);
}

void tst_RibbonSubgroup::emptyRow()
{
    QAction above;
    QAction below;
    Host host;
    host.subgroup->addAction(&above);
    host.subgroup->addActions({});
    host.subgroup->addActions({nullptr, nullptr});
    host.subgroup->addAction(&below);
    QVERIFY(host.open());
    QTRY_COMPARE(host.subgroup->size(), QSize(34, 46));
    QCOMPARE(buttonOf(host.subgroup, &below)->y(), 24);
}

void tst_RibbonSubgroup::removedActionLeavesItsControl()
{
    QAction action;
    QAction last;
    Host host;
    auto *box = new QWidget;
    box->setFixedSize(34, 22);
    host.subgroup->addAction(&action);
    QAction *boxAction = host.subgroup->addWidget(box);
    host.subgroup->addAction(&last);
    QVERIFY(host.open());
    QTRY_COMPARE(buttonOf(host.subgroup, &last)->y(), 48);
    host.subgroup->removeAction(&action);
    host.subgroup->removeAction(boxAction);
    QCOMPARE(host.subgroup->actions(), {&last});
    QCoreApplication::processEvents();
    RibbonButton *button = buttonOf(host.subgroup, &action);
    QVERIFY(button && button->isVisible());
    QVERIFY(box->isVisible());
    QCOMPARE(buttonOf(host.subgroup, &last)->y(), 48);
    QSignalSpy triggered(&action, &QAction::triggered);
    host.click(button, QPoint(10, 10));
    QCOMPARE(triggered.count(), 1);
}

void tst_RibbonSubgroup::changedActionAddsNothing()
{
    QAction action(QStringLiteral("Cut"));
    QAction icon;
    Host host;
    host.subgroup->addAction(&action);
    host.subgroup->addActions({&icon});
    QVERIFY(host.open());
    const auto children = host.subgroup->findChildren<QWidget *>();
    for (QAction *each : {&action, &icon}) {
        each->setText(QStringLiteral("Cut all"));
        each->setEnabled(false);
        each->setSeparator(true);
        each->setVisible(false);
        each->setVisible(true);
    }
    QCOMPARE(host.subgroup->findChildren<QWidget *>(), children);
}

void tst_RibbonSubgroup::hiddenActionTakesNoRoom()
{
    QAction hidden;
    hidden.setVisible(false);
    QAction hiddenIcon;
    hiddenIcon.setVisible(false);
    QAction icon;
    Host host;
    host.subgroup->addAction(&hidden);
    host.subgroup->addActions({&hiddenIcon, &icon});
    QVERIFY(host.open());
    QTRY_COMPARE(host.subgroup->size(), QSize(22, 22));
    QVERIFY(!buttonOf(host.subgroup, &hidden)->isVisible());
    QVERIFY(!buttonOf(host.subgroup, &hiddenIcon)->isVisible());
    hiddenIcon.setVisible(true);
    hidden.setVisible(true);
    QTRY_COMPARE(host.subgroup->size(), QSize(45, 46));
    QVERIFY(buttonOf(host.subgroup, &hidden)->isVisible());
    QCOMPARE(buttonOf(host.subgroup, &hiddenIcon)->geometry(), QRect(0, 24, 22, 22));
    QCOMPARE(buttonOf(host.subgroup, &icon)->geometry(), QRect(23, 24, 22, 22));
}

void tst_RibbonSubgroup::nullPointers()
{
    Host host;
    const auto children = host.subgroup->findChildren<QWidget *>();
    host.subgroup->addAction(static_cast<QAction *>(nullptr));
    QCOMPARE(host.subgroup->addMenu(nullptr, QToolButton::InstantPopup), nullptr);
    QCOMPARE(host.subgroup->addWidget(nullptr), nullptr);
    QCOMPARE(host.subgroup->actions(), QList<QAction *>());
    QCOMPARE(host.subgroup->findChildren<QWidget *>(), children);
    QAction action;
    QAction icon;
    host.subgroup->addAction(&action);
    host.subgroup->addActions({nullptr, &icon, nullptr});
    QCOMPARE(buttonsOf(host.subgroup).size(), 2);
    QCOMPARE(buttonOf(host.subgroup, &action)->popupMode(), QToolButton::DelayedPopup);
    QVERIFY(host.open());
    QTRY_COMPARE(buttonOf(host.subgroup, &icon)->geometry(), QRect(0, 24, 22, 22));
}

void tst_RibbonSubgroup::actionDeletedWhileShown()
{
    auto *action = new QAction(QStringLiteral("Cut"));
    auto *icon = new QAction(QStringLiteral("Copy"));
    Host host;
    host.subgroup->addAction(action);
    host.subgroup->addActions({icon});
    QVERIFY(host.open());
    RibbonButton *button = buttonOf(host.subgroup, action);
    RibbonButton *iconButton = buttonOf(host.subgroup, icon);
    QTRY_COMPARE(iconButton->size(), QSize(22, 22));
    host.moveMouseTo(button, QPoint(10, 10));
    const QRect before = button->geometry();
    delete action;
    delete icon;
    QCoreApplication::processEvents();
    QVERIFY(button->isVisible());
    QVERIFY(iconButton->isVisible());
    QCOMPARE(button->geometry(), before);
    host.grab();
    host.click(button, QPoint(10, 10));
    host.click(iconButton, QPoint(10, 10));
}

void tst_RibbonSubgroup::actionInColumnAndRow()
{
    auto *action = new QAction(QStringLiteral("Cut"));
    Host host;
    host.subgroup->addAction(action);
    host.subgroup->addActions({action, action});
    QVERIFY(host.open());
    QCOMPARE(buttonsOf(host.subgroup).size(), 3);
    action->setVisible(false);
    const QList<RibbonButton *> buttons = buttonsOf(host.subgroup);
    for (const RibbonButton *button : buttons)
        QVERIFY(button->isHidden());
    action->setVisible(true);
    QTRY_COMPARE(host.subgroup->height(), 46);
    QSignalSpy triggered(action, &QAction::triggered);
    for (RibbonButton *button : buttons)
        host.click(button, QPoint(10, 10));
    QCOMPARE(triggered.count(), 3);
    delete action;
    host.grab();
}

void tst_RibbonSubgroup::menuDeletedBeforeTheColumn()
{
    auto *menu = new QMenu(QStringLiteral("Recent"));
    Host host;
    host.subgroup->addMenu(menu, QToolButton::InstantPopup);
    QVERIFY(host.open());
    RibbonButton *button = buttonsOf(host.subgroup).constFirst();
    delete menu;
    QCOMPARE(host.subgroup->actions(), QList<QAction *>());
    host.grab();
    host.click(button, QPoint(10, 10));
    QVERIFY(button->isVisible());
}

void tst_RibbonSubgroup::subgroupDeletedFirst()
{
    QMenu menu;
    QAction action;
    QAction icon;
    Host host;
    host.subgroup->addMenu(&menu, QToolButton::InstantPopup);
    host.subgroup->addAction(&action);
    host.subgroup->addActions({&icon});
    QVERIFY(host.open());
    delete host.subgroup;
    for (QAction *each : {menu.menuAction(), &action, &icon}) {
        each->setVisible(false);
        each->setVisible(true);
        QCOMPARE(each->associatedObjects(), QList<QObject *>());
    }
}

NORVANE_TEST_MAIN(tst_RibbonSubgroup)
#include "tst_RibbonSubgroup.moc"
