// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "RealMouse.h"
#include "TestCase.h"

#include <Norvane/RibbonBar.h>
#include <Norvane/RibbonGroup.h>
#include <Norvane/RibbonPage.h>
#include <Norvane/RibbonSubgroup.h>
#include <ribbon/RibbonButton.h>
#include <ribbon/RibbonTab.h>

#include <QtGui/QScreen>
#include <QtTest/QSignalSpy>
#include <QtWidgets/QMenu>
#include <QtWidgets/QStyle>
#include <QtWidgets/QVBoxLayout>

using namespace Norvane;

class tst_RibbonDesktop : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void hoverPaintsTheButton();
    void clickTriggers();
    void rightButtonDoesNothing();
    void clickOnTabSwitchesPage();
    void instantMenuIsPicked();
    void splitButtonHasTwoParts();
    void menuStandsOnePixelHigher();
    void delayedMenuStaysClosed();
    void pageOffStageGetsNoClicks();
};

namespace {

// A window as an application builds it, with one page of every kind of control.
struct Window : QWidget
{
    Window()
    {
        auto *column = new QVBoxLayout(this);
        column->setContentsMargins(0, 0, 0, 0);
        column->addWidget(bar);
        column->addStretch();
        resize(900, 400);
        menu.addAction(&first);
        menu.addAction(&second);
        home = bar->addPage(QStringLiteral("Home"), false);
        group = home->addGroup(QStringLiteral("Group"));
        group->addAction(&plain);
        plainButton = lastButton();
        view = bar->addPage(QStringLiteral("View"), false);
        view->addGroup(QStringLiteral("Other"))->addAction(&other);
    }

    RibbonButton *lastButton() const { return group->findChildren<RibbonButton *>().constLast(); }

    RibbonButton *addMenu(QToolButton::ToolButtonPopupMode mode)
    {
        group->addMenu(&menu, mode);
        return lastButton();
    }

    bool open() { return RealMouse::open(this); }

    QAction plain{QStringLiteral("Plain")};
    QAction other{QStringLiteral("Other")};
    QAction first{QStringLiteral("First")};
    QAction second{QStringLiteral("Second")};
    QMenu menu{QStringLiteral("Menu")};
    RibbonBar *bar = new RibbonBar;
    RibbonPage *home;
    RibbonPage *view;
    RibbonGroup *group;
    RibbonButton *plainButton;
};

QColor pixel(QWidget *widget, QPoint position)
{
    QWidget *window = widget->window();
    return window->grab().toImage().pixelColor(widget->mapTo(window, position));
}

} // namespace

void tst_RibbonDesktop::hoverPaintsTheButton()
{
    Window window;
    QVERIFY(window.open());
    RealMouse::move(&window, {600, 300});
    QTRY_COMPARE(pixel(window.plainButton, {5, 60}), QColor(245, 245, 245));
    RealMouse::move(window.plainButton);
    QTRY_COMPARE(pixel(window.plainButton, {5, 60}), QColor(Qt::white));
    RealMouse::move(&window, {600, 300});
    QTRY_COMPARE(pixel(window.plainButton, {5, 60}), QColor(245, 245, 245));
}

void tst_RibbonDesktop::clickTriggers()
{
    Window window;
    QVERIFY(window.open());
    QSignalSpy triggered(&window.plain, &QAction::triggered);
    RealMouse::move(window.plainButton);
    RealMouse::click();
    QTRY_COMPARE(triggered.count(), 1);
}

void tst_RibbonDesktop::rightButtonDoesNothing()
{
    Window window;
    QVERIFY(window.open());
    QSignalSpy triggered(&window.plain, &QAction::triggered);
    RealMouse::move(window.plainButton);
    RealMouse::click(3);
    // Events come in order: when the left click is there, the right one was, too.
    RealMouse::click(1);
    QTRY_COMPARE(triggered.count(), 1);
}

void tst_RibbonDesktop::clickOnTabSwitchesPage()
{
    Window window;
    QVERIFY(window.open());
    QSignalSpy changed(window.bar, &RibbonBar::signalCurrentPageChanged);
    RealMouse::move(window.bar->findChildren<RibbonTab *>().constLast());
    RealMouse::click();
    QTRY_COMPARE(changed.count(), 1);
    QCOMPARE(changed.constFirst().constFirst().toInt(), 1);
    QCOMPARE(window.bar->currentPage(), window.view);
    QTRY_VERIFY(window.view->isVisible());
    QVERIFY(!window.home->isVisible());
}

void tst_RibbonDesktop::instantMenuIsPicked()
{
    Window window;
    RibbonButton *button = window.addMenu(QToolButton::InstantPopup);
    QVERIFY(window.open());
    QSignalSpy picked(&window.second, &QAction::triggered);
    RealMouse::move(button);
    RealMouse::clickToOpen(&window.menu, [&] {
        RealMouse::move(&window.menu, window.menu.actionGeometry(&window.second).center());
        RealMouse::click();
    });
    QTRY_COMPARE(picked.count(), 1);
}

void tst_RibbonDesktop::splitButtonHasTwoParts()
{
    Window window;
    RibbonButton *button = window.addMenu(QToolButton::MenuButtonPopup);
    QVERIFY(window.open());
    QSignalSpy triggered(window.menu.menuAction(), &QAction::triggered);
    QSignalSpy shown(&window.menu, &QMenu::aboutToShow);
    RealMouse::move(button, {button->width() / 2, 20});
    RealMouse::click();
    QTRY_COMPARE(triggered.count(), 1);
    QCOMPARE(shown.count(), 0);
    RealMouse::move(button, {button->width() / 2, 60});
    RealMouse::clickToOpen(&window.menu, [] { RealMouse::key(QStringLiteral("Escape")); });
    QCOMPARE(shown.count(), 1);
    QCOMPARE(triggered.count(), 1);
}

void tst_RibbonDesktop::menuStandsOnePixelHigher()
{
    Window window;
    RibbonButton *button = window.addMenu(QToolButton::InstantPopup);
    QVERIFY(window.open());
    RealMouse::move(button);
    int top = 0;
    RealMouse::clickToOpen(&window.menu, [&] {
        top = window.menu.y();
        RealMouse::key(QStringLiteral("Escape"));
    });
    // Qt places a menu right under its button.
    QCOMPARE(top, button->mapToGlobal(QPoint(0, button->height())).y() - 1);
}

void tst_RibbonDesktop::delayedMenuStaysClosed()
{
    Window window;
    RibbonButton *button = window.addMenu(QToolButton::DelayedPopup);
    QVERIFY(window.open());
    QSignalSpy triggered(window.menu.menuAction(), &QAction::triggered);
    QSignalSpy shown(&window.menu, &QMenu::aboutToShow);
    RealMouse::move(button);
    RealMouse::xdotool({QStringLiteral("mousedown"), QStringLiteral("1")});
    QTRY_VERIFY(button->isDown());
    QVERIFY(!QTest::qWaitFor([&] { return shown.count() > 0; },
                             2 * button->style()->styleHint(QStyle::SH_ToolButton_PopupDelay)));
    RealMouse::xdotool({QStringLiteral("mouseup"), QStringLiteral("1")});
    QTRY_COMPARE(triggered.count(), 1);
    QCOMPARE(shown.count(), 0);
}

void tst_RibbonDesktop::pageOffStageGetsNoClicks()
{
    Window window;
    QVERIFY(window.open());
    QSignalSpy shown(&window.plain, &QAction::triggered);
    QSignalSpy current(&window.other, &QAction::triggered);
    window.bar->setCurrentIndex(1);
    window.bar->showPage(0);
    QVERIFY(window.home->isVisible());
    QTRY_VERIFY(window.view->isVisible());
    RealMouse::move(window.view->findChild<RibbonButton *>());
    RealMouse::click();
    QTRY_COMPARE(current.count(), 1);
    QCOMPARE(shown.count(), 0);
}

NORVANE_TEST_MAIN(tst_RibbonDesktop)
#include "tst_RibbonDesktop.moc"
