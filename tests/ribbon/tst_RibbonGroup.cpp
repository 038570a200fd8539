// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "Scene.h"
#include "TestCase.h"

#include <Norvane/RibbonBar.h>
#include <Norvane/RibbonGroup.h>
#include <Norvane/RibbonPage.h>
#include <Norvane/RibbonSubgroup.h>

#include <QtTest/QSignalSpy>
#include <QtWidgets/QFrame>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QVBoxLayout>
#include <QtWidgets/QWidgetAction>

#include <limits>

using Norvane::RibbonBar;
using Norvane::RibbonButton;
using Norvane::RibbonGroup;
using Norvane::RibbonSubgroup;

namespace {

//! A window that gives a group the room it asks for, and leaves the rest empty.
class Host : public Scene
{
public:
    explicit Host(const QString &title = QString())
        : group(new RibbonGroup(title))
    {
        resize(600, 110);
        auto *layout = new QHBoxLayout(this);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->setAlignment(Qt::AlignLeft | Qt::AlignTop);
        layout->addWidget(group);
    }

    QPointer<RibbonGroup> group;
};

QList<RibbonButton *> buttonsOf(const QWidget *widget)
{
    return widget->findChildren<RibbonButton *>(Qt::FindDirectChildrenOnly);
}

RibbonButton *buttonOf(const QWidget *widget, const QAction *action)
{
    const auto buttons = buttonsOf(widget);
    for (RibbonButton *button : buttons) {
        if (button->defaultAction() == action)
            return button;
    }
    return nullptr;
}

QLabel *titleOf(const RibbonGroup *group)
{
    return group->findChild<QLabel *>(QStringLiteral("groupTitle"), Qt::FindDirectChildrenOnly);
}

//! The group's lines from left to right, the one at its end last.
QList<QFrame *> separatorsOf(const RibbonGroup *group)
{
    auto lines =
        group->findChildren<QFrame *>(QStringLiteral("separator"), Qt::FindDirectChildrenOnly);
    std::sort(lines.begin(), lines.end(),
              [](const QFrame *one, const QFrame *other) { return one->x() < other->x(); });
    return lines;
}

/*!
    Where a group's controls and its title come to stand when the controls have these sizes: the
    group's boxes with plain widgets in them. Qt spreads what is left of the height over the row
    and the title.
*/
class Plan
{
public:
    Plan(const QString &title, const QList<QSize> &sizes)
    {
        auto *row = new QHBoxLayout;
        row->setContentsMargins(0, 0, 0, 0);
        row->setSpacing(4);
        for (const QSize &size : sizes) {
            m_controls << new QWidget(&m_group);
            m_controls.last()->setFixedSize(size);
            row->addWidget(m_controls.last());
        }
        m_title = new QLabel(title, &m_group);
        m_title->setFixedHeight(12);
        auto *column = new QVBoxLayout;
        column->setContentsMargins(0, 0, 0, 0);
        column->setSpacing(0);
        column->addLayout(row);
        column->addWidget(m_title);
        auto *line = new QWidget(&m_group);
        line->setFixedSize(1, 80);
        auto *outer = new QHBoxLayout(&m_group);
        outer->setContentsMargins(0, 1, 3, 1);
        outer->setSpacing(3);
        outer->addLayout(column);
        outer->addWidget(line);
        m_group.setFixedHeight(95);
        m_group.resize(outer->sizeHint().width(), 95);
        outer->activate();
    }

    QRect control(int index) const { return m_controls.at(index)->geometry(); }
    QRect title() const { return m_title->geometry(); }

private:
    QWidget m_group;
    QList<QWidget *> m_controls;
    QLabel *m_title;
};

//! A widget action that makes a widget of its own for everyone who asks.
class Maker : public QWidgetAction
{
public:
    explicit Maker(QObject *parent)
        : QWidgetAction(parent)
    {
    }

    QWidget *askedBy = nullptr;
    QPointer<QWidget> made;

protected:
    QWidget *createWidget(QWidget *parent) override
    {
        askedBy = parent;
        made = new QLineEdit(parent);
        return made;
    }
};

} // namespace

class tst_RibbonGroup : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void metaObject();
    void newGroup();
    void emptyGroupsGeometry();
    void widthIsWhatTheContentNeeds();
    void titleWiderThanTheContent();
    void oddTitles_data();
    void oddTitles();
    void coloursInABar();

    void actionBecomesLargeButton();
    void buttonsStandFourPixelsApart();
    void everythingKeepsTheOrderOfTheCalls();
    void inheritedWaysToAddActions();
    void actionAddedAgainGetsAnotherButton();
    void insertedActionGoesToTheEnd();

    void addMenu();
    void popupModeSticks();
    void popupModeOfActionsWithMenuIsTheGroups();
    void menuOpensFromTheGroup();

    void addSeparator();
    void separatorActionOfTheCaller();
    void separatorActionDeletedByTheCaller();
    void actionThatBecomesASeparatorStaysAButton();

    void addWidget();
    void addHiddenWidget();
    void widgetActionIsAskedForAWidget();
    void widgetActionWithoutWidget();
    void widgetActionInTwoGroups();
    void widgetDeletedByTheCaller();
    void widgetActionDeletedByTheCaller();

    void subgroups();
    void subgroupIndexesOutOfRange();
    void subgroupsPlace();

    void removedActionLeavesItsControl();
    void changedActionAddsNothing();
    void hiddenActionTakesNoRoom();
    void nullPointers();

    void actionDeletedWhileShown();
    void actionInTwoGroups();
    void menuInTwoGroups();
    void menuDeletedBeforeTheGroup();
    void groupDeletedWhileItsMenuIsOpen();
    void titleDeletedByTheCaller();
    void layoutDeletedByTheCaller();
    void contentLayoutDeletedByTheCaller();
};

void tst_RibbonGroup::metaObject()
{
    const QMetaObject &meta = RibbonGroup::staticMetaObject;
    QCOMPARE(meta.className(), "Norvane::RibbonGroup");
    QCOMPARE(meta.superClass(), &QWidget::staticMetaObject);
    QCOMPARE(meta.methodOffset(), meta.methodCount());
    QCOMPARE(meta.propertyOffset(), meta.propertyCount());
    QCOMPARE(meta.enumeratorOffset(), meta.enumeratorCount());
}

void tst_RibbonGroup::newGroup()
{
    QWidget parent;
    const RibbonGroup group(QStringLiteral("Clipboard"), &parent);
    QCOMPARE(group.parentWidget(), &parent);
    QCOMPARE(group.minimumHeight(), 95);
    QCOMPARE(group.maximumHeight(), 95);
    QCOMPARE(group.sizePolicy().horizontalPolicy(), QSizePolicy::Maximum);
    QCOMPARE(group.sizePolicy().verticalPolicy(), QSizePolicy::Maximum);
    QCOMPARE(group.actions(), QList<QAction *>());
    QCOMPARE(group.subgroup(0), nullptr);

    const QLabel *title = titleOf(&group);
    QVERIFY(title);
    QCOMPARE(title->text(), QStringLiteral("Clipboard"));
    QCOMPARE(title->alignment(), Qt::AlignCenter);
    QCOMPARE(title->minimumHeight(), 12);
    QCOMPARE(title->maximumHeight(), 12);

    QCOMPARE(separatorsOf(&group).size(), 1);
    const QFrame *line = separatorsOf(&group).constFirst();
    QCOMPARE(line->frameShape(), QFrame::VLine);
    QCOMPARE(line->minimumSize(), QSize(1, 80));
    QCOMPARE(line->maximumSize(), QSize(1, 80));
}

void tst_RibbonGroup::emptyGroupsGeometry()
{
    Host host(QStringLiteral("Clipboard"));
    QVERIFY(host.open());
    const int width = titleOf(host.group)->sizeHint().width();
    QVERIFY(width > 20);
    QTRY_COMPARE(host.group->size(), QSize(width + 3 + 1 + 3, 95));
    QCOMPARE(titleOf(host.group)->geometry(), Plan(QStringLiteral("Clipboard"), {}).title());
    QCOMPARE(separatorsOf(host.group).constFirst()->geometry(), QRect(width + 3, 7, 1, 80));
}

void tst_RibbonGroup::widthIsWhatTheContentNeeds()
{
    QAction action;
    Host host;
    host.group->addAction(&action);
    QVERIFY(host.open());
    QTRY_COMPARE(host.group->size(), QSize(36 + 3 + 1 + 3, 95));
    // As much as the content needs, however much there is.
    host.resize(900, 300);
    QCoreApplication::processEvents();
    QCOMPARE(host.group->size(), QSize(36 + 3 + 1 + 3, 95));
    QCOMPARE(buttonOf(host.group, &action)->geometry(), QRect(0, 4, 36, 72));
    QCOMPARE(titleOf(host.group)->geometry(), QRect(0, 79, 36, 12));
    QCOMPARE(separatorsOf(host.group).constFirst()->geometry(), QRect(39, 7, 1, 80));
}

void tst_RibbonGroup::titleWiderThanTheContent()
{
    QAction action;
    const QString title = QStringLiteral("A title that is wider than one button");
    Host host(title);
    host.group->addAction(&action);
    QVERIFY(host.open());
    const int width = titleOf(host.group)->sizeHint().width();
    QVERIFY(width > 100);
    QTRY_COMPARE(host.group->width(), width + 7);
    QCOMPARE(titleOf(host.group)->geometry(), QRect(0, 79, width, 12));
    QCOMPARE(buttonOf(host.group, &action)->geometry(), QRect((width - 36) / 2, 4, 36, 72));
}

void tst_RibbonGroup::oddTitles_data()
{
    QTest::addColumn<QString>("title");

    QTest::newRow("empty") << QString();
    QTest::newRow("ampersand") << QStringLiteral("&Cut && paste");
    QTest::newRow("line feeds") << QStringLiteral("Cut\nand\npaste");
    QTest::newRow("right to left") << QStringLiteral("לוח הגזירים");
    QTest::newRow("long") << QStringLiteral("long ").repeated(2000);
}

void tst_RibbonGroup::oddTitles()
{
    QFETCH(const QString, title);
    Host host(title);
    QVERIFY(host.open());
    QCOMPARE(titleOf(host.group)->text(), title);
    QCOMPARE(titleOf(host.group)->height(), 12);
    QCOMPARE(host.group->height(), 95);
    QCOMPARE(host.group->sizeHint().width(), titleOf(host.group)->sizeHint().width() + 7);
    host.grab();
}

void tst_RibbonGroup::coloursInABar()
{
    RibbonBar bar(nullptr);
    RibbonGroup *group = bar.addPage(QStringLiteral("Home"), false)->addGroup(blocks(8));
    QAction action;
    group->addAction(&action);
    group->addSeparator();
    bar.resize(400, bar.height());
    bar.show();
    QVERIFY(QTest::qWaitForWindowExposed(&bar, patience));
    const int width = titleOf(group)->sizeHint().width() + 7;
    QTRY_COMPARE(group->width(), width);
    QTRY_COMPARE(separatorsOf(group).constLast()->x(), width - 4);
    const Shot shot(group);
    const QList<QFrame *> lines = separatorsOf(group);
    for (const QFrame *line : lines)
        QCOMPARE(shot.otherThan(QColor(191, 191, 191), line->geometry()), QString());
    QCOMPARE(shot.otherThan(QColor(245, 245, 245), QRect(group->width() - 3, 0, 3, 95)), QString());
    const QRect title = shot.bounds(QColor(97, 97, 97), titleOf(group)->geometry());
    QCOMPARE_GE(title.width(), advanceOf(blocks(8)) - 2);
    // Inside a block: where two of them meet, the colour is mixed.
    const QPoint inside = titleOf(group)->geometry().center() + QPoint(3, 0);
    QCOMPARE(shot.at(inside.x(), inside.y()), QColor(97, 97, 97));
}

void tst_RibbonGroup::actionBecomesLargeButton()
{
    QAction action(QStringLiteral("Paste"));
    RibbonGroup group(QStringLiteral("Clipboard"), nullptr);
    group.addAction(&action);
    QCOMPARE(group.actions(), {&action});
    QCOMPARE(action.parent(), nullptr);
    QCOMPARE(buttonsOf(&group).size(), 1);
    const RibbonButton *button = buttonsOf(&group).constFirst();
    QCOMPARE(button->defaultAction(), &action);
    QCOMPARE(button->toolButtonStyle(), Qt::ToolButtonTextUnderIcon);
    QCOMPARE(button->focusPolicy(), Qt::NoFocus);
    QCOMPARE(button->popupMode(), QToolButton::DelayedPopup);
}

void tst_RibbonGroup::buttonsStandFourPixelsApart()
{
    QAction first;
    QAction second(blocks(6));
    QAction third;
    Host host;
    for (QAction *action : {&first, &second, &third})
        host.group->addAction(action);
    QVERIFY(host.open());
    const int wide =
        QFontMetrics(QApplication::font()).size(Qt::TextSingleLine, blocks(6)).width() + 10;
    QVERIFY(wide > 36);
    QTRY_COMPARE(host.group->width(), 36 + 4 + wide + 4 + 36 + 7);
    QCOMPARE(buttonOf(host.group, &first)->geometry(), QRect(0, 4, 36, 72));
    QCOMPARE(buttonOf(host.group, &second)->geometry(), QRect(40, 4, wide, 72));
    QCOMPARE(buttonOf(host.group, &third)->geometry(), QRect(44 + wide, 4, 36, 72));
    QCOMPARE(titleOf(host.group)->width(), 80 + wide);
}

void tst_RibbonGroup::everythingKeepsTheOrderOfTheCalls()
{
    QAction first;
    QMenu menu;
    QAction last;
    QAction inSubgroup;
    Host host;
    auto *box = new QWidget;
    box->setFixedSize(50, 20);
    host.group->addAction(&first);
    host.group->addSeparator();
    host.group->addWidget(box);
    RibbonSubgroup *subgroup = host.group->addSubgroup();
    subgroup->addAction(&inSubgroup);
    host.group->addMenu(&menu, QToolButton::InstantPopup);
    host.group->addAction(&last);
    QVERIFY(host.open());
    QTRY_COMPARE(host.group->width(), 36 + 4 + 1 + 4 + 50 + 4 + 34 + 4 + 36 + 4 + 36 + 7);
    const Plan plan(QString(), {{36, 72}, {1, 80}, {50, 20}, {34, 22}, {36, 72}, {36, 72}});
    QCOMPARE(buttonOf(host.group, &first)->geometry(), plan.control(0));
    QCOMPARE(separatorsOf(host.group).constFirst()->geometry(), plan.control(1));
    QCOMPARE(separatorsOf(host.group).constFirst()->x(), 40);
    QCOMPARE(box->geometry(), plan.control(2));
    QCOMPARE(box->x(), 45);
    QCOMPARE(subgroup->geometry(), plan.control(3));
    QCOMPARE(subgroup->x(), 99);
    QCOMPARE(buttonOf(host.group, menu.menuAction())->x(), 137);
    QCOMPARE(buttonOf(host.group, &last)->x(), 177);
    QCOMPARE(separatorsOf(host.group).constLast()->x(), 216);
}

void tst_RibbonGroup::inheritedWaysToAddActions()
{
    QAction action;
    QAction another;
    RibbonGroup group(QString(), nullptr);
    QAction *fromText = group.addAction(QStringLiteral("Paste"));
    static_cast<QWidget &>(group).addActions({&action, &another});
    QCOMPARE(buttonsOf(&group).size(), 3);
    for (const QAction *each : {fromText, &action, &another}) {
        const RibbonButton *button = buttonOf(&group, each);
        QVERIFY(button);
        QCOMPARE(button->toolButtonStyle(), Qt::ToolButtonTextUnderIcon);
    }
}

void tst_RibbonGroup::actionAddedAgainGetsAnotherButton()
{
    QAction action;
    RibbonGroup group(QString(), nullptr);
    group.addAction(&action);
    group.addAction(&action);
    QCOMPARE(group.actions(), {&action});
    QCOMPARE(buttonsOf(&group).size(), 2);
}

void tst_RibbonGroup::insertedActionGoesToTheEnd()
{
    QAction first;
    QAction second;
    Host host;
    host.group->addAction(&first);
    host.group->insertAction(&first, &second);
    QVERIFY(host.open());
    QTRY_COMPARE(buttonOf(host.group, &second)->x(), 40);
    QCOMPARE(buttonOf(host.group, &first)->x(), 0);
}

void tst_RibbonGroup::addMenu()
{
    QMenu menu(QStringLiteral("Recent"));
    RibbonGroup group(QString(), nullptr);
    QVERIFY(!menu.windowFlags().testFlag(Qt::NoDropShadowWindowHint));
    QAction *action = group.addMenu(&menu, QToolButton::MenuButtonPopup);
    QCOMPARE(action, menu.menuAction());
    QCOMPARE(group.actions(), {action});
    QVERIFY(menu.windowFlags().testFlag(Qt::NoDropShadowWindowHint));
    QCOMPARE(menu.windowType(), Qt::Popup);
    QCOMPARE(menu.parent(), nullptr);
    const RibbonButton *button = buttonOf(&group, action);
    QVERIFY(button);
    QCOMPARE(button->toolButtonStyle(), Qt::ToolButtonTextUnderIcon);
    QCOMPARE(button->popupMode(), QToolButton::MenuButtonPopup);
}

void tst_RibbonGroup::popupModeSticks()
{
    QAction before;
    QMenu instant;
    QAction afterInstant;
    QMenu split;
    QAction afterSplit;
    QMenu delayed;
    QAction afterDelayed;
    RibbonGroup group(QString(), nullptr);
    group.addAction(&before);
    group.addMenu(&instant, QToolButton::InstantPopup);
    group.addAction(&afterInstant);
    group.addMenu(&split, QToolButton::MenuButtonPopup);
    group.addSeparator();
    group.addAction(&afterSplit);
    group.addMenu(&delayed, QToolButton::DelayedPopup);
    group.addAction(&afterDelayed);
    const auto modeOf = [&group](const QAction *action) {
        return buttonOf(&group, action)->popupMode();
    };
    QCOMPARE(modeOf(&before), QToolButton::DelayedPopup);
    QCOMPARE(modeOf(instant.menuAction()), QToolButton::InstantPopup);
    QCOMPARE(modeOf(&afterInstant), QToolButton::InstantPopup);
    QCOMPARE(modeOf(split.menuAction()), QToolButton::MenuButtonPopup);
    QCOMPARE(modeOf(&afterSplit), QToolButton::MenuButtonPopup);
    QCOMPARE(modeOf(delayed.menuAction()), QToolButton::DelayedPopup);
    QCOMPARE(modeOf(&afterDelayed), QToolButton::DelayedPopup);
    // Groups do not share it.
    QAction other;
    RibbonGroup otherGroup(QString(), nullptr);
    group.addMenu(&instant, QToolButton::InstantPopup);
    otherGroup.addAction(&other);
    QCOMPARE(buttonOf(&otherGroup, &other)->popupMode(), QToolButton::DelayedPopup);
}

// Qt would split the button of an action with a menu; the group's mode is set after that.
void tst_RibbonGroup::popupModeOfActionsWithMenuIsTheGroups()
{
    QMenu menu;
    QAction action;
    action.setMenu(&menu);
    QMenu instant;
    QAction another;
    another.setMenu(&menu);
    RibbonGroup group(QString(), nullptr);
    group.addAction(&action);
    QCOMPARE(buttonOf(&group, &action)->popupMode(), QToolButton::DelayedPopup);
    group.addMenu(&instant, QToolButton::InstantPopup);
    group.addAction(&another);
    QCOMPARE(buttonOf(&group, &another)->popupMode(), QToolButton::InstantPopup);
    action.setText(QStringLiteral("Changed"));
    QCOMPARE(buttonOf(&group, &action)->popupMode(), QToolButton::DelayedPopup);
}

void tst_RibbonGroup::menuOpensFromTheGroup()
{
    QMenu menu(QStringLiteral("Recent"));
    QAction *entry = menu.addAction(QStringLiteral("First"));
    Host host;
    host.group->addMenu(&menu, QToolButton::MenuButtonPopup);
    QVERIFY(host.open());
    RibbonButton *button = buttonOf(host.group, menu.menuAction());
    QTRY_COMPARE(button->height(), 72);
    QSignalSpy picked(entry, &QAction::triggered);
    QVERIFY(whileOpen(
        &menu, [&] { host.press(button, QPoint(10, 60)); },
        [&] {
            QTest::mouseClick(menu.windowHandle(), Qt::LeftButton, {},
                              menu.actionGeometry(entry).center());
        }));
    host.release(button, QPoint(10, 60));
    QCOMPARE(picked.count(), 1);
}

void tst_RibbonGroup::addSeparator()
{
    QAction first;
    QAction last;
    Host host;
    host.group->addAction(&first);
    const QPointer<QAction> separator = host.group->addSeparator();
    host.group->addAction(&last);
    QVERIFY(separator);
    QVERIFY(separator->isSeparator());
    QCOMPARE(separator->parent(), nullptr);
    QCOMPARE(host.group->actions(), (QList<QAction *>{&first, separator, &last}));
    QCOMPARE(buttonsOf(host.group).size(), 2);
    QVERIFY(host.open());
    QTRY_COMPARE(host.group->width(), 36 + 4 + 1 + 4 + 36 + 7);
    QCOMPARE(separatorsOf(host.group).size(), 2);
    const QFrame *line = separatorsOf(host.group).constFirst();
    QCOMPARE(line->frameShape(), QFrame::VLine);
    QCOMPARE(line->geometry(), QRect(40, 1, 1, 80));
    QCOMPARE(line->minimumSize(), QSize(1, 80));
    QCOMPARE(line->maximumSize(), QSize(1, 80));
    // It has no parent that would take it along: it goes with the group all the same.
    delete host.group;
    QVERIFY(!separator);
}

void tst_RibbonGroup::separatorActionOfTheCaller()
{
    QAction separator;
    separator.setSeparator(true);
    {
        Host host;
        host.group->addAction(&separator);
        QVERIFY(host.open());
        QCOMPARE(buttonsOf(host.group).size(), 0);
        QCOMPARE(separatorsOf(host.group).size(), 2);
        QCOMPARE(separatorsOf(host.group).constFirst()->size(), QSize(1, 80));
    }
    // The caller's stays the caller's.
    QVERIFY(separator.isSeparator());
    QCOMPARE(separator.associatedObjects(), QList<QObject *>());
}

void tst_RibbonGroup::separatorActionDeletedByTheCaller()
{
    Host host;
    QAction *separator = host.group->addSeparator();
    QVERIFY(host.open());
    delete separator;
    QCOMPARE(separatorsOf(host.group).size(), 2);
    QCOMPARE(host.group->actions(), QList<QAction *>());
}

void tst_RibbonGroup::actionThatBecomesASeparatorStaysAButton()
{
    QAction action;
    RibbonGroup group(QString(), nullptr);
    group.addAction(&action);
    QAction *line = group.addSeparator();
    action.setSeparator(true);
    line->setSeparator(false);
    QCOMPARE(buttonsOf(&group).size(), 1);
    QCOMPARE(separatorsOf(&group).size(), 2);
}

void tst_RibbonGroup::addWidget()
{
    Host host;
    auto *box = new QLineEdit;
    box->setFixedSize(60, 22);
    QAction *action = host.group->addWidget(box);
    QVERIFY(action);
    QCOMPARE(action->parent(), host.group);
    QCOMPARE(host.group->actions(), {action});
    auto *widgetAction = qobject_cast<QWidgetAction *>(action);
    QVERIFY(widgetAction);
    QCOMPARE(widgetAction->defaultWidget(), box);
    QCOMPARE(box->parentWidget(), host.group);
    QCOMPARE(buttonsOf(host.group).size(), 0);
    QVERIFY(host.open());
    QVERIFY(box->isVisible());
    QTRY_COMPARE(box->geometry(), Plan(QString(), {{60, 22}}).control(0));
    const QPointer<QWidget> guard(box);
    delete host.group;
    QVERIFY(!guard);
}

void tst_RibbonGroup::addHiddenWidget()
{
    Host host;
    auto *box = new QWidget;
    box->hide();
    host.group->addWidget(box);
    QVERIFY(host.open());
    QVERIFY(box->isVisible());
}

void tst_RibbonGroup::widgetActionIsAskedForAWidget()
{
    QObject owner;
    auto *maker = new Maker(&owner);
    Host host;
    QVERIFY(host.open());
    host.group->addAction(maker);
    QCOMPARE(maker->parent(), host.group);
    QCOMPARE(maker->askedBy, host.group);
    QCOMPARE(buttonsOf(host.group).size(), 0);
    QVERIFY(maker->made->isVisible());
    QCOMPARE(maker->made->parentWidget(), host.group);
    QTRY_COMPARE(maker->made->geometry(), Plan(QString(), {maker->made->size()}).control(0));
}

void tst_RibbonGroup::widgetActionWithoutWidget()
{
    Host host;
    auto *action = new QWidgetAction(nullptr);
    QAction plain;
    host.group->addAction(action);
    host.group->addAction(&plain);
    QCOMPARE(action->parent(), host.group);
    QVERIFY(host.open());
    QTRY_COMPARE(host.group->width(), 36 + 7);
    QCOMPARE(buttonOf(host.group, &plain)->x(), 0);
}

// The one widget goes to the group that asks first, the action to the one that asks last.
void tst_RibbonGroup::widgetActionInTwoGroups()
{
    for (const bool firstDiesFirst : {true, false}) {
        auto *first = new RibbonGroup(QStringLiteral("First"), nullptr);
        auto *second = new RibbonGroup(QStringLiteral("Second"), nullptr);
        QPointer<QWidget> box = new QLineEdit;
        const QPointer<QAction> action = first->addWidget(box);
        second->addAction(action);
        QCOMPARE(action->parent(), second);
        QCOMPARE(box->parentWidget(), first);
        delete (firstDiesFirst ? first : second);
        delete (firstDiesFirst ? second : first);
        QVERIFY(!box);
        QVERIFY(!action);
    }
}

void tst_RibbonGroup::widgetDeletedByTheCaller()
{
    QAction last;
    Host host;
    auto *box = new QWidget;
    box->setFixedSize(60, 22);
    host.group->addWidget(box);
    host.group->addAction(&last);
    QVERIFY(host.open());
    QTRY_COMPARE(buttonOf(host.group, &last)->x(), 64);
    delete box;
    QTRY_COMPARE(buttonOf(host.group, &last)->x(), 0);
}

void tst_RibbonGroup::widgetActionDeletedByTheCaller()
{
    QAction last;
    Host host;
    auto *box = new QWidget;
    box->setFixedSize(60, 22);
    QAction *action = host.group->addWidget(box);
    host.group->addAction(&last);
    QVERIFY(host.open());
    delete action;
    QCOMPARE(host.group->actions(), {&last});
    QTRY_COMPARE(buttonOf(host.group, &last)->x(), 0);
    host.grab();
}

void tst_RibbonGroup::subgroups()
{
    RibbonGroup group(QString(), nullptr);
    RibbonSubgroup *first = group.addSubgroup();
    RibbonSubgroup *second = group.addSubgroup();
    QVERIFY(first);
    QVERIFY(second && second != first);
    QCOMPARE(first->parentWidget(), &group);
    QCOMPARE(group.subgroup(0), first);
    QCOMPARE(group.subgroup(1), second);
    QCOMPARE(group.indexOfSubgroup(first), 0);
    QCOMPARE(group.indexOfSubgroup(second), 1);
    QCOMPARE(group.actions(), QList<QAction *>());
}

void tst_RibbonGroup::subgroupIndexesOutOfRange()
{
    RibbonGroup empty(QString(), nullptr);
    RibbonGroup group(QString(), nullptr);
    group.addSubgroup();
    group.addSubgroup();
    RibbonSubgroup foreign(nullptr);
    for (const int index :
         {2, 3, -1, -2, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()})
        QCOMPARE(group.subgroup(index), nullptr);
    QCOMPARE(empty.subgroup(0), nullptr);
    QCOMPARE(group.indexOfSubgroup(nullptr), -1);
    QCOMPARE(group.indexOfSubgroup(&foreign), -1);
    QCOMPARE(empty.indexOfSubgroup(nullptr), -1);
}

void tst_RibbonGroup::subgroupsPlace()
{
    QAction large;
    QAction small[3];
    Host host;
    host.group->addAction(&large);
    RibbonSubgroup *first = host.group->addSubgroup();
    RibbonSubgroup *second = host.group->addSubgroup();
    second->addAction(&small[0]);
    for (QAction &action : small)
        first->addAction(&action);
    QVERIFY(host.open());
    QTRY_COMPARE(host.group->width(), 36 + 4 + 34 + 4 + 34 + 7);
    const Plan plan(QString(), {{36, 72}, {34, 70}, {34, 22}});
    QCOMPARE(first->geometry(), plan.control(1));
    QCOMPARE(first->x(), 40);
    QCOMPARE(second->geometry(), plan.control(2));
    QCOMPARE(second->x(), 78);
}

void tst_RibbonGroup::removedActionLeavesItsControl()
{
    QAction action;
    QAction line;
    line.setSeparator(true);
    QAction last;
    Host host;
    auto *box = new QWidget;
    box->setFixedSize(60, 22);
    host.group->addAction(&action);
    host.group->addAction(&line);
    QAction *boxAction = host.group->addWidget(box);
    host.group->addAction(&last);
    QVERIFY(host.open());
    QTRY_COMPARE(buttonOf(host.group, &last)->x(), 36 + 4 + 1 + 4 + 60 + 4);
    for (QAction *each : {&action, &line, boxAction})
        host.group->removeAction(each);
    QCOMPARE(host.group->actions(), {&last});
    QCoreApplication::processEvents();
    RibbonButton *button = buttonOf(host.group, &action);
    QVERIFY(button && button->isVisible());
    QVERIFY(box->isVisible());
    QCOMPARE(separatorsOf(host.group).size(), 2);
    QCOMPARE(buttonOf(host.group, &last)->x(), 36 + 4 + 1 + 4 + 60 + 4);
    QSignalSpy triggered(&action, &QAction::triggered);
    host.click(button, QPoint(10, 10));
    QCOMPARE(triggered.count(), 1);
}

void tst_RibbonGroup::changedActionAddsNothing()
{
    QAction action(QStringLiteral("Paste"));
    Host host;
    host.group->addAction(&action);
    QVERIFY(host.open());
    const auto children = host.group->findChildren<QWidget *>();
    action.setText(QStringLiteral("Paste what was cut"));
    action.setEnabled(false);
    action.setCheckable(true);
    action.setVisible(false);
    action.setVisible(true);
    QCOMPARE(host.group->findChildren<QWidget *>(), children);
}

void tst_RibbonGroup::hiddenActionTakesNoRoom()
{
    QAction hidden;
    hidden.setVisible(false);
    QAction last;
    Host host;
    host.group->addAction(&hidden);
    host.group->addAction(&last);
    QVERIFY(host.open());
    QTRY_COMPARE(host.group->width(), 36 + 7);
    QVERIFY(!buttonOf(host.group, &hidden)->isVisible());
    QCOMPARE(buttonOf(host.group, &last)->x(), 0);
    hidden.setVisible(true);
    QVERIFY(buttonOf(host.group, &hidden)->isVisible());
    QTRY_COMPARE(host.group->width(), 36 + 4 + 36 + 7);
    QCOMPARE(buttonOf(host.group, &hidden)->geometry(), QRect(0, 4, 36, 72));
    hidden.setVisible(false);
    QTRY_COMPARE(host.group->width(), 36 + 7);
}

void tst_RibbonGroup::nullPointers()
{
    Host host;
    const auto children = host.group->findChildren<QObject *>();
    host.group->addAction(static_cast<QAction *>(nullptr));
    QCOMPARE(host.group->addMenu(nullptr, QToolButton::InstantPopup), nullptr);
    QCOMPARE(host.group->addWidget(nullptr), nullptr);
    QCOMPARE(host.group->actions(), QList<QAction *>());
    QCOMPARE(host.group->findChildren<QObject *>(), children);
    QAction action;
    host.group->addAction(&action);
    QCOMPARE(buttonOf(host.group, &action)->popupMode(), QToolButton::DelayedPopup);
}

void tst_RibbonGroup::actionDeletedWhileShown()
{
    auto *action = new QAction(QStringLiteral("Paste"));
    QAction last;
    Host host;
    host.group->addAction(action);
    host.group->addAction(&last);
    QVERIFY(host.open());
    RibbonButton *button = buttonOf(host.group, action);
    host.moveMouseTo(button, QPoint(10, 10));
    const QRect before = button->geometry();
    delete action;
    QCoreApplication::processEvents();
    QCOMPARE(host.group->actions(), {&last});
    QVERIFY(button->isVisible());
    QCOMPARE(button->geometry(), before);
    host.grab();
    host.click(button, QPoint(10, 10));
}

void tst_RibbonGroup::actionInTwoGroups()
{
    auto *action = new QAction(QStringLiteral("Paste"));
    Host first;
    Host second;
    first.group->addAction(action);
    second.group->addAction(action);
    QVERIFY(first.open());
    QVERIFY(second.open());
    action->setVisible(false);
    QVERIFY(buttonOf(first.group, action)->isHidden());
    QVERIFY(buttonOf(second.group, action)->isHidden());
    action->setVisible(true);
    QSignalSpy triggered(action, &QAction::triggered);
    first.click(buttonOf(first.group, action), QPoint(10, 10));
    second.click(buttonOf(second.group, action), QPoint(10, 10));
    QCOMPARE(triggered.count(), 2);
    delete first.group;
    second.click(buttonOf(second.group, action), QPoint(10, 10));
    QCOMPARE(triggered.count(), 3);
    RibbonButton *button = buttonOf(second.group, action);
    delete action;
    QVERIFY(button->isVisible());
    second.grab();
}

void tst_RibbonGroup::menuInTwoGroups()
{
    QMenu menu;
    menu.addAction(QStringLiteral("First"));
    Host first;
    Host second;
    first.group->addMenu(&menu, QToolButton::InstantPopup);
    second.group->addMenu(&menu, QToolButton::InstantPopup);
    QVERIFY(first.open());
    for (Host *host : {&first, &second}) {
        host->raise();
        RibbonButton *button = buttonOf(host->group, menu.menuAction());
        QVERIFY(host->open());
        QTRY_COMPARE(button->height(), 72);
        QVERIFY(whileOpen(
            &menu, [&] { host->press(button, QPoint(10, 10)); },
            [&] {
                // One pixel, not one for each button.
                QCOMPARE(menu.pos(), button->mapToGlobal(QPoint(0, 71)));
            }));
        host->release(button, QPoint(10, 10));
    }
}

void tst_RibbonGroup::menuDeletedBeforeTheGroup()
{
    auto *menu = new QMenu(QStringLiteral("Recent"));
    Host host;
    host.group->addMenu(menu, QToolButton::InstantPopup);
    QVERIFY(host.open());
    RibbonButton *button = buttonsOf(host.group).constFirst();
    delete menu;
    QCOMPARE(host.group->actions(), QList<QAction *>());
    host.grab();
    host.click(button, QPoint(10, 60));
    QVERIFY(button->isVisible());
}

void tst_RibbonGroup::groupDeletedWhileItsMenuIsOpen()
{
    QMenu menu;
    QAction *entry = menu.addAction(QStringLiteral("Close"));
    Host host;
    host.group->addMenu(&menu, QToolButton::InstantPopup);
    QVERIFY(host.open());
    RibbonButton *button = buttonsOf(host.group).constFirst();
    connect(entry, &QAction::triggered, &menu, [&host] { delete host.group; });
    QVERIFY(whileOpen(
        &menu, [&] { host.press(button, QPoint(10, 10)); },
        [&] {
            QTest::mouseClick(menu.windowHandle(), Qt::LeftButton, {},
                              menu.actionGeometry(entry).center());
        }));
    host.release(&host, QPoint(2, 2));
    QVERIFY(!host.group);
}

void tst_RibbonGroup::titleDeletedByTheCaller()
{
    QAction action;
    Host host(QStringLiteral("Clipboard"));
    delete titleOf(host.group);
    host.group->addAction(&action);
    host.group->addSeparator();
    QVERIFY(host.open());
    QCOMPARE(host.group->height(), 95);
    host.grab();
}

void tst_RibbonGroup::layoutDeletedByTheCaller()
{
    QAction action;
    QMenu menu;
    Host host(QStringLiteral("Clipboard"));
    delete host.group->layout();
    host.group->addAction(&action);
    QCOMPARE(host.group->addMenu(&menu, QToolButton::InstantPopup), menu.menuAction());
    QVERIFY(host.group->addSeparator());
    QVERIFY(host.group->addWidget(new QWidget));
    QVERIFY(host.group->addSubgroup());
    QVERIFY(host.open());
    host.grab();
}

void tst_RibbonGroup::contentLayoutDeletedByTheCaller()
{
    QAction action;
    Host host(QStringLiteral("Clipboard"));
    delete host.group->layout()->itemAt(0)->layout()->itemAt(0)->layout();
    host.group->addAction(&action);
    QVERIFY(host.group->addSubgroup());
    QVERIFY(host.open());
    QCOMPARE(host.group->height(), 95);
    host.grab();
}

NORVANE_TEST_MAIN(tst_RibbonGroup)
#include "tst_RibbonGroup.moc"
