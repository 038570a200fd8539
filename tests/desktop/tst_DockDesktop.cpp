// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "RealMouse.h"
#include "TestCase.h"

#include <Norvane/DockContainer.h>
#include <Norvane/DockContentWidget.h>
#include <Norvane/DockPanelWidget.h>
#include <dock/DockButton.h>
#include <dock/DockTitle.h>

#include <QtCore/QTimer>
#include <QtTest/QSignalSpy>
#include <QtWidgets/QApplication>
#include <QtWidgets/QMainWindow>
#include <QtWidgets/QMenu>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QSplitter>
#include <QtWidgets/QSplitterHandle>
#include <QtWidgets/QTabBar>

using namespace Norvane;
using namespace Qt::StringLiterals;

class tst_DockDesktop : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void sideHandleIsDraggedToNothingAndBack();
    void bottomHandleIsDraggedToNothingAndBack();
    void buttonsMinimizeAndRestore();
    void barStaysBelowTheContent();
    void titleMenuMinimizes();
    void tabMenuRequestsToClose();
    void middleClickRequestsToClose();
    void toolTipNamesTheView();
};

namespace {

struct Window : QMainWindow
{
    Window()
    {
        setCentralWidget(docks);
        docks->setupMainWindow(this);
        for (DockPanelWidget *panel : {left, right, bottom})
            panel->addView(new QWidget, QIcon(u":/res/menu.svg"_s), u"View"_s);
        content->addSection(u"Texts"_s);
        for (int i = 0; i < 3; ++i)
            content->addTab(0, new QWidget, u"document %1"_s.arg(i));
        resize(900, 600);
    }

    bool open()
    {
        return RealMouse::open(this)
            && QTest::qWaitFor([this] { return bottom->stackedWidget()->height() > 0; }, patience);
    }

    QSplitter *outer() const { return docks->findChild<QSplitter *>(Qt::FindDirectChildrenOnly); }
    QSplitter *inner() const
    {
        return outer()->widget(1)->findChild<QSplitter *>(Qt::FindDirectChildrenOnly);
    }
    QTabBar *bar() const { return content->findChild<QTabBar *>(u"dockTabBar"_s); }

    static void grab(const QSplitterHandle *handle)
    {
        RealMouse::move(handle, handle->visibleRegion().boundingRect().center());
    }

    DockContainer *docks = new DockContainer;
    DockContentWidget *content = docks->contentWidget();
    DockPanelWidget *left = docks->panelWidget(DockContainer::LeftDockArea);
    DockPanelWidget *right = docks->panelWidget(DockContainer::RightDockArea);
    DockPanelWidget *bottom = docks->panelWidget(DockContainer::BottomDockArea);
};

// A click that opens a menu comes back when the menu is closed.
void pick(const QString &entry, QPoint *place = nullptr)
{
    bool picked = false;
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, &watch, [&] {
        auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        if (picked || !menu || !menu->windowHandle()->isExposed())
            return;
        picked = true;
        if (place)
            *place = menu->pos();
        const QList<QAction *> actions = menu->actions();
        for (QAction *action : actions) {
            if (action->text() == entry)
                RealMouse::move(menu, menu->actionGeometry(action).center());
        }
        RealMouse::click();
    });
    watch.start(10);
    QTRY_VERIFY(picked);
    QTRY_VERIFY(!QApplication::activePopupWidget());
}

} // namespace

void tst_DockDesktop::sideHandleIsDraggedToNothingAndBack()
{
    Window window;
    QVERIFY(window.open());
    const QWidget *pane = window.left->stackedWidget();
    const int width = pane->width();
    Window::grab(window.outer()->handle(1));
    RealMouse::drag({60, 0});
    QTRY_VERIFY(qAbs(pane->width() - width - 60) <= 3);
    Window::grab(window.outer()->handle(1));
    RealMouse::drag({-pane->width() - 20, 0});
    QTRY_COMPARE(pane->width(), 0);
    QTRY_VERIFY(window.left->isMinimized());
    Window::grab(window.outer()->handle(1));
    RealMouse::drag({150, 0});
    QTRY_VERIFY(qAbs(pane->width() - 150) <= 3);
    QVERIFY(!window.left->isMinimized());
}

void tst_DockDesktop::bottomHandleIsDraggedToNothingAndBack()
{
    Window window;
    QVERIFY(window.open());
    const QWidget *pane = window.bottom->stackedWidget();
    Window::grab(window.inner()->handle(1));
    RealMouse::drag({0, pane->height() + 20});
    QTRY_COMPARE(pane->height(), 0);
    QVERIFY(window.bottom->isMinimized());
    Window::grab(window.inner()->handle(1));
    RealMouse::drag({0, -140});
    QTRY_VERIFY(qAbs(pane->height() - 140) <= 3);
    QVERIFY(!window.bottom->isMinimized());
}

void tst_DockDesktop::buttonsMinimizeAndRestore()
{
    Window window;
    QVERIFY(window.open());
    for (const DockPanelWidget *panel : {window.left, window.right, window.bottom}) {
        const QSize size = panel->stackedWidget()->size();
        RealMouse::move(panel->panel()->findChild<DockButton *>());
        RealMouse::click();
        QTRY_VERIFY(panel->isMinimized());
        QTRY_VERIFY(panel->stackedWidget()->width() == 0 || panel->stackedWidget()->height() == 0);
        RealMouse::click();
        QTRY_VERIFY(!panel->isMinimized());
        QTRY_COMPARE(panel->stackedWidget()->size(), size);
    }
}

void tst_DockDesktop::barStaysBelowTheContent()
{
    Window window;
    QVERIFY(window.open());
    const auto gap = [&] {
        return window.bottom->panel()->mapToGlobal(QPoint()).x()
            - window.content->mapToGlobal(QPoint()).x();
    };
    QTRY_COMPARE(gap(), 0);
    const QString id = QString::number(window.winId());
    for (const auto &size : {QSize(1300, 700), QSize(700, 500), QSize(1000, 650)}) {
        RealMouse::xdotool({u"windowsize"_s, u"--sync"_s, id, QString::number(size.width()),
                            QString::number(size.height())});
        QTRY_COMPARE(window.size(), size);
        QTRY_COMPARE(gap(), 0);
        const DockButton *button = window.bottom->panel()->findChild<DockButton *>();
        QTRY_VERIFY(
            window.rect().contains(QRect(button->mapTo(&window, QPoint()), button->size())));
    }
}

void tst_DockDesktop::titleMenuMinimizes()
{
    Window window;
    QVERIFY(window.open());
    const auto *title = window.right->stackedWidget()->findChild<DockTitle *>();
    const QPushButton *button = title->findChildren<QPushButton *>().constLast();
    const QPoint below = button->mapToGlobal(QPoint(0, button->height()));
    RealMouse::move(button);
    RealMouse::click();
    QPoint place;
    pick(u"minimize to bar"_s, &place);
    QCOMPARE(place, below);
    QTRY_VERIFY(window.right->isMinimized());
}

void tst_DockDesktop::tabMenuRequestsToClose()
{
    Window window;
    QVERIFY(window.open());
    QSignalSpy requested(window.content, &DockContentWidget::signalTabCloseRequested);
    RealMouse::move(window.bar(), window.bar()->tabRect(1).topLeft() + QPoint(12, 12));
    RealMouse::click(3);
    pick(u"Close All Right"_s);
    QTRY_COMPARE(requested.count(), 1);
    QCOMPARE(requested.constFirst().at(0).value<CloseMode>(), CloseAllRight);
    QCOMPARE(requested.constFirst().at(2), 1);
}

void tst_DockDesktop::middleClickRequestsToClose()
{
    Window window;
    QVERIFY(window.open());
    QSignalSpy requested(window.content, &DockContentWidget::signalTabCloseRequested);
    RealMouse::move(window.bar(), window.bar()->tabRect(2).topLeft() + QPoint(12, 12));
    RealMouse::click(2);
    QTRY_COMPARE(requested.count(), 1);
    QCOMPARE(requested.constFirst().at(2), 2);
    QCOMPARE(window.content->currentTab(0), 0);
}

void tst_DockDesktop::toolTipNamesTheView()
{
    Window window;
    window.left->tabifyView(0, new QWidget, QIcon(), u"Second"_s);
    QVERIFY(window.open());
    const auto *button = window.left->panel()->findChild<DockButton *>();
    RealMouse::move(button, {15, 10});
    QTRY_COMPARE(button->toolTip(), u"View"_s);
    RealMouse::move(button, {15, 45});
    QTRY_COMPARE(button->toolTip(), u"Second"_s);
}

NORVANE_TEST_MAIN(tst_DockDesktop)
#include "tst_DockDesktop.moc"
