// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "Gui.h"
#include "TestCase.h"

#include <dock/DockTitle.h>
#include <dock/DockView.h>
#include <style/StyleSheet.h>

#include <QtTest/QSignalSpy>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLayout>
#include <QtWidgets/QMenu>
#include <QtWidgets/QPushButton>

using namespace Norvane;
using namespace Qt::StringLiterals;

class tst_DockView : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void putsItsWidgetBelowItsTitle();
    void deletesTheWidgetBefore();
    void keepsAWidgetThatIsSetAgain();
    void forgetsAWidgetThatWasDeleted();
    void forgetsAWidgetThatWasTakenAway();
    void passesItsTitleOn();
    void showsTheBorderOfATabifiedView_data();
    void showsTheBorderOfATabifiedView();
};

void tst_DockView::putsItsWidgetBelowItsTitle()
{
    DockView view;
    QCOMPARE(view.widget(), nullptr);
    auto *widget = new QWidget;
    widget->setMinimumHeight(100);
    view.setWidget(widget);
    QCOMPARE(view.widget(), widget);
    QCOMPARE(widget->minimumHeight(), 0);
    QCOMPARE(view.layout()->contentsMargins(), QMargins());
    QCOMPARE(view.layout()->spacing(), 0);
    view.setStyleSheet(StyleSheet::read(u":/res/dockLight.css"_s));
    view.resize(200, 100);
    QVERIFY(Gui::open(&view));
    QCOMPARE(view.titleHeight(), 25);
    QCOMPARE(widget->geometry(), QRect(0, 25, 200, 75));
}

void tst_DockView::deletesTheWidgetBefore()
{
    DockView view;
    const QPointer<QWidget> first(new QWidget);
    const QPointer<QWidget> second(new QWidget);
    view.setWidget(first);
    view.setWidget(second);
    QVERIFY(!first);
    QCOMPARE(view.widget(), second);
    QCOMPARE(view.layout()->count(), 2);
    view.setWidget(nullptr);
    QVERIFY(!second);
    QCOMPARE(view.widget(), nullptr);
}

void tst_DockView::keepsAWidgetThatIsSetAgain()
{
    DockView view;
    const QPointer<QWidget> widget(new QWidget);
    view.setWidget(widget);
    view.setWidget(widget);
    QVERIFY(widget);
    QCOMPARE(view.layout()->count(), 2);
}

void tst_DockView::forgetsAWidgetThatWasDeleted()
{
    DockView view;
    auto *widget = new QWidget;
    view.setWidget(widget);
    QVERIFY(Gui::open(&view));
    delete widget;
    QCOMPARE(view.widget(), nullptr);
    auto *other = new QWidget;
    view.setWidget(other);
    QCOMPARE(view.widget(), other);
}

void tst_DockView::forgetsAWidgetThatWasTakenAway()
{
    DockView view;
    QWidget widget;
    view.setWidget(&widget);
    widget.setParent(nullptr);
    QCOMPARE(view.widget(), nullptr);
    view.setWidget(new QWidget);
    QCOMPARE(widget.parent(), nullptr);
}

void tst_DockView::passesItsTitleOn()
{
    DockView view;
    auto *title = view.findChild<DockTitle *>();
    view.setTitle(u"Outline"_s);
    QCOMPARE(title->findChild<QLabel *>()->text(), u"Outline"_s);
    QCOMPARE(view.menu(), title->menu());
    QSignalSpy minimize(&view, &DockView::signalMinimize);
    QSignalSpy collapsed(&view, &DockView::signalCollapsed);
    view.menu()->actions().constFirst()->trigger();
    QCOMPARE(minimize.count(), 1);
    view.resize(200, 100);
    view.setCollapseButtonVisible(true);
    QVERIFY(Gui::open(&view));
    Gui::click(title->findChildren<QPushButton *>().constFirst());
    QCOMPARE(collapsed, QList<QVariantList>({{true}}));
    QCOMPARE(minimize.count(), 1);
}

void tst_DockView::showsTheBorderOfATabifiedView_data()
{
    QTest::addColumn<bool>("shown");
    QTest::newRow("marked before it is shown") << false;
    QTest::newRow("marked while it is shown") << true;
}

void tst_DockView::showsTheBorderOfATabifiedView()
{
    QFETCH(bool, shown);
    DockView view;
    view.setWidget(new QWidget);
    view.setStyleSheet(StyleSheet::read(u":/res/dockLight.css"_s));
    view.resize(200, 100);
    if (shown)
        QVERIFY(Gui::open(&view));
    view.setProperty("tabified", true);
    QVERIFY(Gui::open(&view));
    QTRY_COMPARE(view.findChild<DockTitle *>()->y(), 1);
    QCOMPARE(Gui::pixel(&view, {100, 0}), QColor(191, 191, 191));
}

NORVANE_TEST_MAIN(tst_DockView)
#include "tst_DockView.moc"
