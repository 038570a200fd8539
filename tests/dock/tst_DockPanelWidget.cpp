// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "Gui.h"
#include "Steps.h"
#include "TestCase.h"

#include <Norvane/DockPanelWidget.h>
#include <dock/DockButton.h>
#include <dock/DockPanel.h>
#include <dock/DockTitle.h>
#include <dock/DockView.h>
#include <style/StyleSheet.h>

#include <QtCore/QRandomGenerator>
#include <QtTest/QSignalSpy>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QMenu>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QSplitter>
#include <QtWidgets/QStackedWidget>

using namespace Norvane;
using namespace Qt::StringLiterals;

class tst_DockPanelWidget : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void hasABarAndAStackOfItsDirection_data();
    void hasABarAndAStackOfItsDirection();
    void addsOnePagePerView();
    void tabifiesASecondView();
    void refusesAThirdView();
    void marksTheSecondViewOfASidePanel();
    void leavesTheCollapseButtonsOfABottomPanel();
    void collapsesAViewToItsTitle();
    void collapsesOnlyTheSecondViewOfABottomPanel();
    void showsThePageOfAClickedButton();
    void minimizesWithAClickOnTheCurrentButton();
    void minimizesWithTheMenu();
    void emitsNothingWhenItIsToldToMinimize();
    void isMarkedAfterItHasToldSo();
    void staysMinimizedWithItsFirstView();
    void hasNoCurrentPageWithoutWidth();
    void makesAPageCurrent();
    void hidesTheViewThatIsShown();
    void hidesOtherViews();
    void showingAViewBringsAMinimizedPanelBack();
    void findsTheMenuOfAWidget();
    void ignoresIndexesOutOfRange();
    void takesNullAndDeletedWidgets();
    void diesBeforeAndAfterItsWidgets();
    void agreesWithAModel();
};

namespace {

//! A panel between an area that stands for the application and the window's edge.
class Host : public QWidget
{
public:
    explicit Host(DockPanelWidget::DockPanelDirection direction = DockPanelWidget::LeftDirection)
        : panelWidget(new DockPanelWidget(direction, this))
        , bar(qobject_cast<DockPanel *>(panelWidget->panel()))
        , stack(qobject_cast<QStackedWidget *>(panelWidget->stackedWidget()))
    {
        auto *row = new QHBoxLayout(this);
        row->setContentsMargins(0, 0, 0, 0);
        row->addWidget(bar);
        row->addWidget(stack, 1);
        resize(400, 400);
    }

    int add(const QString &text = u"view"_s) const
    {
        return panelWidget->addView(new QWidget, QIcon(), text);
    }

    DockButton *button(int index) const
    {
        return bar->findChildren<DockButton *>(Qt::FindDirectChildrenOnly).value(index);
    }

    QSplitter *page(int index) const { return qobject_cast<QSplitter *>(stack->widget(index)); }

    DockView *view(int page, int position) const
    {
        return qobject_cast<DockView *>(this->page(page)->widget(position));
    }

    DockPanelWidget *const panelWidget;
    DockPanel *const bar;
    QStackedWidget *const stack;
};

QPushButton *collapseButtonOf(const DockView *view)
{
    return view->findChild<DockTitle *>()->findChildren<QPushButton *>().constFirst();
}

//! What the calls and clicks of a user and an application ought to lead to.
struct Model
{
    int views = 0;
    int current = -1;
    int checked = -1;
    bool minimized = false;
    QList<bool> emitted;

    void add()
    {
        if (views++ > 0)
            return;
        current = 0;
        checked = minimized ? -1 : 0;
    }

    void click(int index)
    {
        if (checked == index) {
            checked = -1;
            if (!minimized)
                emitted << true;
            minimized = true;
            return;
        }
        checked = current = index;
        if (minimized)
            emitted << false;
        minimized = false;
    }

    void setCurrent(int index)
    {
        if (index >= 0 && index < views)
            current = checked = index;
    }

    void setMinimized(bool on)
    {
        minimized = on;
        if (on && checked == current)
            checked = -1;
        else if (!on)
            checked = current;
    }

    void showView(int index)
    {
        if (index < 0 || index >= views || !minimized)
            return;
        setCurrent(index);
        emitted << false;
        minimized = false;
    }

    void hideView(int index)
    {
        if (index == current && !minimized && views > 1)
            setCurrent(index == 0 ? 1 : 0);
    }

    void minimizeByMenu()
    {
        if (minimized)
            return;
        emitted << true;
        minimized = true;
        checked = -1;
    }
};

} // namespace

void tst_DockPanelWidget::hasABarAndAStackOfItsDirection_data()
{
    QTest::addColumn<int>("direction");
    QTest::addColumn<QString>("name");
    QTest::addColumn<Qt::Orientation>("orientation");
    QTest::newRow("left") << 0 << u"left"_s << Qt::Vertical;
    QTest::newRow("right") << 1 << u"right"_s << Qt::Vertical;
    QTest::newRow("bottom") << 2 << u"bottom"_s << Qt::Horizontal;
    QTest::newRow("unknown") << 3 << u"right"_s << Qt::Vertical;
}

void tst_DockPanelWidget::hasABarAndAStackOfItsDirection()
{
    QFETCH(int, direction);
    QFETCH(QString, name);
    QFETCH(Qt::Orientation, orientation);
    const Host host{DockPanelWidget::DockPanelDirection(direction)};
    QVERIFY(host.bar && host.stack);
    QCOMPARE(host.bar->orientation(), orientation);
    QCOMPARE(host.bar->property("direction"), name);
    QCOMPARE(host.stack->property("direction"), name);
    host.add();
    QCOMPARE(host.page(0)->orientation(), orientation);
    QCOMPARE(host.page(0)->handleWidth(), 0);
    QVERIFY(!host.page(0)->isCollapsible(0));
    QVERIFY(!host.panelWidget->isMinimized());
}

void tst_DockPanelWidget::addsOnePagePerView()
{
    const Host host;
    QSignalSpy minimized(host.panelWidget, &DockPanelWidget::signalMinimized);
    QSignalSpy current(host.panelWidget, &DockPanelWidget::signalCurrentIndexChanged);
    QCOMPARE(host.panelWidget->count(), 0);
    auto *widget = new QWidget;
    QCOMPARE(host.panelWidget->addView(widget, QIcon(), u"one"_s), 0);
    const int separators = int(host.bar->findChildren<QFrame *>().size());
    host.panelWidget->addSeparator();
    QCOMPARE(host.bar->findChildren<QFrame *>().size(), separators + 1);
    QCOMPARE(host.add(u"two"_s), 1);
    QCOMPARE(host.panelWidget->count(), 2);
    QCOMPARE(host.stack->count(), 2);
    QCOMPARE(host.view(0, 0)->widget(), widget);
    QCOMPARE(host.button(0)->texts(), QStringList(u"one"_s));
    QCOMPARE(host.button(1)->texts(), QStringList(u"two"_s));
    QVERIFY(host.button(0)->isChecked());
    QVERIFY(!host.button(1)->isChecked());
    QCOMPARE(minimized.count(), 0);
    QCOMPARE(current, QList<QVariantList>({{0}}));
}

void tst_DockPanelWidget::tabifiesASecondView()
{
    for (auto direction : {DockPanelWidget::LeftDirection, DockPanelWidget::BottomDirection}) {
        const Host host(direction);
        host.add(u"one"_s);
        auto *widget = new QWidget;
        QCOMPARE(host.panelWidget->tabifyView(0, widget, QIcon(), u"two"_s), 1);
        QCOMPARE(host.page(0)->count(), 2);
        QCOMPARE(host.view(0, 1)->widget(), widget);
        QVERIFY(!host.page(0)->isCollapsible(1));
        QCOMPARE(host.button(0)->texts(), QStringList({u"one"_s, u"two"_s}));
        QCOMPARE(host.panelWidget->count(), 1);
    }
}

void tst_DockPanelWidget::refusesAThirdView()
{
    const Host host;
    host.add(u"one"_s);
    host.panelWidget->tabifyView(0, new QWidget, QIcon(), u"two"_s);
    QWidget third;
    QCOMPARE(host.panelWidget->tabifyView(0, &third, QIcon(), u"three"_s), -1);
    QCOMPARE(host.button(0)->texts(), QStringList({u"one"_s, u"two"_s}));
    QCOMPARE(host.page(0)->count(), 2);
    QCOMPARE(third.parent(), nullptr);
}

void tst_DockPanelWidget::marksTheSecondViewOfASidePanel()
{
    const Host host(DockPanelWidget::RightDirection);
    host.add();
    host.view(0, 0)->setCollapseButtonVisible(true);
    host.panelWidget->tabifyView(0, new QWidget, QIcon(), u"two"_s);
    QVERIFY(!host.view(0, 0)->property("tabified").isValid());
    QCOMPARE(host.view(0, 1)->property("tabified"), true);
    QVERIFY(collapseButtonOf(host.view(0, 0))->isHidden());
    QVERIFY(collapseButtonOf(host.view(0, 1))->isHidden());
}

void tst_DockPanelWidget::leavesTheCollapseButtonsOfABottomPanel()
{
    const Host host(DockPanelWidget::BottomDirection);
    host.add();
    host.view(0, 0)->setCollapseButtonVisible(true);
    host.panelWidget->tabifyView(0, new QWidget, QIcon(), u"two"_s);
    QVERIFY(!host.view(0, 1)->property("tabified").isValid());
    QVERIFY(!collapseButtonOf(host.view(0, 0))->isHidden());
}

void tst_DockPanelWidget::collapsesAViewToItsTitle()
{
    for (int position : {0, 1}) {
        Host host;
        host.add();
        host.panelWidget->tabifyView(0, new QWidget, QIcon(), u"two"_s);
        DockView *view = host.view(0, position);
        view->setCollapseButtonVisible(true);
        host.setStyleSheet(StyleSheet::read(u":/res/dockLight.css"_s));
        QVERIFY(Gui::open(&host));
        host.page(0)->setSizes({150, 250});
        QCOMPARE(host.page(0)->sizes(), QList<int>({150, 250}));
        // The second view has a border above its title.
        const int title = qMax(view->titleHeight(), view->minimumSizeHint().height());
        QVERIFY(title < 50);
        Gui::click(collapseButtonOf(view));
        QList<int> expected{title, title};
        expected[1 - position] = 400 - title;
        QCOMPARE(host.page(0)->sizes(), expected);
        // What is made larger is not collapsed again by the button that is let go.
        host.page(0)->setSizes({150, 250});
        Gui::click(collapseButtonOf(view));
        QCOMPARE(host.page(0)->sizes(), QList<int>({150, 250}));
    }
}

void tst_DockPanelWidget::collapsesOnlyTheSecondViewOfABottomPanel()
{
    Host host(DockPanelWidget::BottomDirection);
    host.add();
    host.panelWidget->tabifyView(0, new QWidget, QIcon(), u"two"_s);
    for (int position : {0, 1})
        host.view(0, position)->setCollapseButtonVisible(true);
    host.resize(900, 200);
    QVERIFY(Gui::open(&host));
    const int width = host.page(0)->width();
    const QList<int> halves{width / 2, width - width / 2};
    host.page(0)->setSizes(halves);
    Gui::click(collapseButtonOf(host.view(0, 0)));
    QCOMPARE(host.page(0)->sizes(), halves);
    Gui::click(collapseButtonOf(host.view(0, 1)));
    // In a row it is narrow, and not narrower than its title lets it be.
    const int title =
        qMax(host.view(0, 1)->titleHeight(), host.view(0, 1)->minimumSizeHint().width());
    QCOMPARE(host.page(0)->sizes(), QList<int>({width - title, title}));
}

void tst_DockPanelWidget::showsThePageOfAClickedButton()
{
    Host host;
    for (int i = 0; i < 3; ++i)
        host.add();
    QVERIFY(Gui::open(&host));
    QSignalSpy minimized(host.panelWidget, &DockPanelWidget::signalMinimized);
    QSignalSpy current(host.panelWidget, &DockPanelWidget::signalCurrentIndexChanged);
    Gui::click(host.button(2));
    QCOMPARE(host.stack->currentIndex(), 2);
    QCOMPARE(host.panelWidget->currentIndex(), 2);
    QVERIFY(host.panelWidget->isViewVisible(2));
    QVERIFY(!host.panelWidget->isViewVisible(0));
    QCOMPARE(current, QList<QVariantList>({{2}}));
    QCOMPARE(minimized.count(), 0);
}

void tst_DockPanelWidget::minimizesWithAClickOnTheCurrentButton()
{
    Host host;
    for (int i = 0; i < 2; ++i)
        host.add();
    QVERIFY(Gui::open(&host));
    QSignalSpy minimized(host.panelWidget, &DockPanelWidget::signalMinimized);
    Gui::click(host.button(0));
    QCOMPARE(minimized, QList<QVariantList>({{true}}));
    QVERIFY(host.panelWidget->isMinimized());
    QCOMPARE(host.bar->checkedId(), -1);
    // A button that was checked for another page is unchecked first.
    host.panelWidget->setCurrentIndex(1);
    Gui::click(host.button(1));
    QCOMPARE(minimized, QList<QVariantList>({{true}}));
    QVERIFY(host.panelWidget->isMinimized());
    Gui::click(host.button(1));
    QCOMPARE(minimized, QList<QVariantList>({{true}, {false}}));
    QVERIFY(!host.panelWidget->isMinimized());
    QCOMPARE(host.stack->currentIndex(), 1);
}

void tst_DockPanelWidget::minimizesWithTheMenu()
{
    const Host host;
    host.add();
    host.panelWidget->tabifyView(0, new QWidget, QIcon(), u"two"_s);
    QSignalSpy minimized(host.panelWidget, &DockPanelWidget::signalMinimized);
    host.view(0, 1)->menu()->actions().constFirst()->trigger();
    QCOMPARE(minimized, QList<QVariantList>({{true}}));
    QVERIFY(host.panelWidget->isMinimized());
    QVERIFY(!host.button(0)->isChecked());
    host.view(0, 0)->menu()->actions().constFirst()->trigger();
    QCOMPARE(minimized.count(), 1);
}

void tst_DockPanelWidget::emitsNothingWhenItIsToldToMinimize()
{
    const Host host;
    host.panelWidget->setMinimized(true);
    QVERIFY(host.panelWidget->isMinimized());
    host.panelWidget->setMinimized(false);
    host.add();
    host.add();
    host.panelWidget->setCurrentIndex(1);
    QSignalSpy minimized(host.panelWidget, &DockPanelWidget::signalMinimized);
    QSignalSpy current(host.panelWidget, &DockPanelWidget::signalCurrentIndexChanged);
    host.panelWidget->setMinimized(true);
    QVERIFY(host.panelWidget->isMinimized());
    QCOMPARE(host.bar->checkedId(), -1);
    host.panelWidget->setMinimized(false);
    QVERIFY(!host.panelWidget->isMinimized());
    QCOMPARE(host.bar->checkedId(), 1);
    QCOMPARE(minimized.count(), 0);
    QCOMPARE(current.count(), 0);
}

void tst_DockPanelWidget::isMarkedAfterItHasToldSo()
{
    Host host;
    host.add();
    host.add();
    QVERIFY(Gui::open(&host));
    host.panelWidget->setViewVisible(1, false);
    // What is so while the signal is emitted: the mark, the checked button, the page, and whether
    // the second button is hidden.
    QList<QVariantList> seen;
    connect(host.panelWidget, &DockPanelWidget::signalMinimized, &host, [&](bool minimized) {
        seen << QVariantList{minimized, host.panelWidget->isMinimized(), host.bar->checkedId(),
                             host.stack->currentIndex(), host.button(1)->isHidden()};
    });
    Gui::click(host.button(0));
    Gui::click(host.button(0));
    host.view(0, 0)->menu()->actions().constFirst()->trigger();
    host.panelWidget->setViewVisible(1, true);
    QCOMPARE(seen,
             QList<QVariantList>({{true, false, -1, 0, true},
                                  {false, true, 0, 0, true},
                                  {true, false, 0, 0, true},
                                  {false, true, 1, 1, true}}));
    QVERIFY(!host.panelWidget->isMinimized());
    QVERIFY(!host.button(1)->isHidden());
}

void tst_DockPanelWidget::staysMinimizedWithItsFirstView()
{
    Host host;
    host.panelWidget->setMinimized(true);
    host.add();
    QVERIFY(host.panelWidget->isMinimized());
    QCOMPARE(host.bar->checkedId(), -1);
    QVERIFY(Gui::open(&host));
    QSignalSpy minimized(host.panelWidget, &DockPanelWidget::signalMinimized);
    Gui::click(host.button(0));
    QCOMPARE(minimized, QList<QVariantList>({{false}}));
    QCOMPARE(host.bar->checkedId(), 0);
}

void tst_DockPanelWidget::hasNoCurrentPageWithoutWidth()
{
    const Host host;
    QCOMPARE(host.panelWidget->currentIndex(), -1);
    host.add();
    host.stack->resize(1, 100);
    QCOMPARE(host.panelWidget->currentIndex(), 0);
    host.stack->resize(0, 100);
    QCOMPARE(host.panelWidget->currentIndex(), -1);
    QCOMPARE(host.stack->currentIndex(), 0);
}

void tst_DockPanelWidget::makesAPageCurrent()
{
    const Host host;
    for (int i = 0; i < 3; ++i)
        host.add();
    QSignalSpy minimized(host.panelWidget, &DockPanelWidget::signalMinimized);
    QSignalSpy current(host.panelWidget, &DockPanelWidget::signalCurrentIndexChanged);
    host.panelWidget->setCurrentIndex(1);
    host.panelWidget->setCurrentIndex(1);
    QCOMPARE(host.stack->currentIndex(), 1);
    QCOMPARE(host.bar->checkedId(), 1);
    QVERIFY(!host.button(0)->isChecked());
    QCOMPARE(current, QList<QVariantList>({{1}}));
    QCOMPARE(minimized.count(), 0);
}

void tst_DockPanelWidget::hidesTheViewThatIsShown()
{
    for (int index : {0, 1, 2}) {
        Host host;
        for (int i = 0; i < 3; ++i)
            host.add();
        host.panelWidget->setCurrentIndex(index);
        QVERIFY(Gui::open(&host));
        host.panelWidget->setViewVisible(index, false);
        QVERIFY(host.button(index)->isHidden());
        QCOMPARE(host.stack->currentIndex(), index == 0 ? 1 : 0);
        QCOMPARE(host.bar->checkedId(), index == 0 ? 1 : 0);
        QCOMPARE(host.panelWidget->count(), 3);
    }
    // One that nobody sees keeps its page.
    for (bool shown : {false, true}) {
        Host host;
        host.add();
        host.add();
        if (shown)
            QVERIFY(Gui::open(&host));
        host.stack->setFixedWidth(shown ? 0 : 100);
        QTRY_COMPARE(host.stack->width(), shown ? 0 : 100);
        host.panelWidget->setViewVisible(0, false);
        QVERIFY(host.button(0)->isHidden());
        QCOMPARE(host.stack->currentIndex(), 0);
    }
}

void tst_DockPanelWidget::hidesOtherViews()
{
    Host host;
    for (int i = 0; i < 3; ++i)
        host.add();
    QVERIFY(Gui::open(&host));
    QSignalSpy minimized(host.panelWidget, &DockPanelWidget::signalMinimized);
    host.panelWidget->setViewVisible(2, false);
    QVERIFY(host.button(2)->isHidden());
    QCOMPARE(host.stack->currentIndex(), 0);
    host.panelWidget->setViewVisible(2, true);
    QVERIFY(!host.button(2)->isHidden());
    QCOMPARE(host.stack->currentIndex(), 0);

    Gui::click(host.button(0));
    QCOMPARE(minimized.count(), 1);
    host.panelWidget->setViewVisible(0, false);
    QVERIFY(host.button(0)->isHidden());
    QCOMPARE(host.stack->currentIndex(), 0);
    QVERIFY(host.panelWidget->isMinimized());
    QCOMPARE(minimized.count(), 1);
}

void tst_DockPanelWidget::showingAViewBringsAMinimizedPanelBack()
{
    Host host;
    for (int i = 0; i < 2; ++i)
        host.add();
    QVERIFY(Gui::open(&host));
    host.panelWidget->setViewVisible(1, false);
    Gui::click(host.button(0));
    QSignalSpy minimized(host.panelWidget, &DockPanelWidget::signalMinimized);
    host.panelWidget->setViewVisible(1, true);
    QCOMPARE(minimized, QList<QVariantList>({{false}}));
    QVERIFY(!host.panelWidget->isMinimized());
    QVERIFY(!host.button(1)->isHidden());
    QCOMPARE(host.stack->currentIndex(), 1);
    QCOMPARE(host.bar->checkedId(), 1);
}

void tst_DockPanelWidget::findsTheMenuOfAWidget()
{
    const Host host;
    auto *first = new QWidget;
    auto *second = new QWidget;
    host.panelWidget->addView(first, QIcon(), u"one"_s);
    host.panelWidget->tabifyView(0, second, QIcon(), u"two"_s);
    QCOMPARE(host.panelWidget->menu(first), host.view(0, 0)->menu());
    QCOMPARE(host.panelWidget->menu(second), host.view(0, 1)->menu());
    QWidget foreign;
    QCOMPARE(host.panelWidget->menu(&foreign), nullptr);
    QCOMPARE(host.panelWidget->menu(nullptr), nullptr);
}

void tst_DockPanelWidget::ignoresIndexesOutOfRange()
{
    const Host host;
    host.add();
    QSignalSpy minimized(host.panelWidget, &DockPanelWidget::signalMinimized);
    host.panelWidget->setMinimized(true);
    for (int index : {-2, -1, 1, 99}) {
        host.panelWidget->setCurrentIndex(index);
        host.panelWidget->setViewVisible(index, true);
        host.panelWidget->setViewVisible(index, false);
        QVERIFY(!host.panelWidget->isViewVisible(index));
        QWidget widget;
        QCOMPARE(host.panelWidget->tabifyView(index, &widget, QIcon(), u"x"_s), -1);
    }
    QVERIFY(host.panelWidget->isMinimized());
    QCOMPARE(minimized.count(), 0);
}

void tst_DockPanelWidget::takesNullAndDeletedWidgets()
{
    Host host;
    QCOMPARE(host.panelWidget->addView(nullptr, QIcon(), QString()), 0);
    QCOMPARE(host.panelWidget->menu(nullptr), nullptr);
    auto *widget = new QWidget;
    QCOMPARE(host.panelWidget->addView(widget, QIcon(), u"two"_s), 1);
    QVERIFY(Gui::open(&host));
    host.panelWidget->setCurrentIndex(1);
    delete widget;
    QCOMPARE(host.panelWidget->count(), 2);
    Gui::click(host.button(1));
    Gui::click(host.button(0));
    QCOMPARE(host.panelWidget->currentIndex(), 0);

    // The same widget again moves.
    auto *twice = new QWidget;
    host.panelWidget->addView(twice, QIcon(), u"three"_s);
    host.panelWidget->addView(twice, QIcon(), u"four"_s);
    QCOMPARE(host.view(2, 0)->widget(), nullptr);
    QCOMPARE(host.panelWidget->menu(twice), host.view(3, 0)->menu());
    delete host.view(2, 0);
    QCOMPARE(host.panelWidget->menu(twice), host.view(3, 0)->menu());
}

void tst_DockPanelWidget::diesBeforeAndAfterItsWidgets()
{
    {
        const Host host;
        host.add();
        host.add();
        delete host.panelWidget;
        QVERIFY(host.bar && host.stack);
        host.stack->setCurrentIndex(1);
        Gui::open(const_cast<Host *>(&host));
        Gui::click(host.button(1));
    }
    {
        auto *placedNowhere = new DockPanelWidget(DockPanelWidget::LeftDirection);
        const QPointer<QWidget> panel(placedNowhere->panel());
        const QPointer<QWidget> stack(placedNowhere->stackedWidget());
        delete placedNowhere;
        QVERIFY(!panel);
        QVERIFY(!stack);
    }
    {
        // A view that is alone on its page has nobody to leave its room to.
        const Host host;
        host.add();
        host.panelWidget->tabifyView(0, new QWidget, QIcon(), u"two"_s);
        DockView *second = host.view(0, 1);
        delete host.view(0, 0);
        Q_EMIT second->signalCollapsed(true);
        QCOMPARE(host.page(0)->count(), 1);
    }
    DockPanelWidget panelWidget(DockPanelWidget::LeftDirection);
    panelWidget.addView(new QWidget, QIcon(), u"one"_s);
    delete panelWidget.stackedWidget();
    QCOMPARE(panelWidget.stackedWidget(), nullptr);
    QCOMPARE(panelWidget.count(), 0);
    QCOMPARE(panelWidget.currentIndex(), -1);
    QCOMPARE(panelWidget.addView(nullptr, QIcon(), u"two"_s), -1);
    panelWidget.setMinimized(true);
    panelWidget.setViewVisible(0, true);
    delete panelWidget.panel();
    panelWidget.setMinimized(false);
    panelWidget.addSeparator();
}

void tst_DockPanelWidget::agreesWithAModel()
{
    const auto player = [](const QList<Steps::Step> &steps, QStringList *story) -> QString {
        Host host;
        if (!Gui::open(&host))
            return u"no window"_s;
        Model model;
        QList<bool> emitted;
        connect(host.panelWidget, &DockPanelWidget::signalMinimized, &host,
                [&](bool minimized) { emitted << minimized; });
        for (const auto &[kind, number] : steps) {
            const int index = number % 6 - 1;
            const bool on = number % 2;
            const bool there = index >= 0 && index < model.views && !host.button(index)->isHidden();
            switch (kind) {
            case 0:
                if (!there)
                    continue;
                *story << u"click %1"_s.arg(index);
                Gui::click(host.button(index));
                model.click(index);
                break;
            case 1:
                *story << u"setCurrentIndex %1"_s.arg(index);
                host.panelWidget->setCurrentIndex(index);
                model.setCurrent(index);
                break;
            case 2:
                // Told to be minimized, the panel has no button checked but its current page's.
                if (on && model.checked != model.current)
                    continue;
                *story << u"setMinimized %1"_s.arg(on);
                host.panelWidget->setMinimized(on);
                model.setMinimized(on);
                break;
            case 3:
                *story << u"show %1"_s.arg(index);
                host.panelWidget->setViewVisible(index, true);
                model.showView(index);
                break;
            case 4:
                *story << u"hide %1"_s.arg(index);
                host.panelWidget->setViewVisible(index, false);
                model.hideView(index);
                break;
            case 5:
                if (model.views == 0)
                    continue;
                *story << u"minimize by menu"_s;
                host.view(0, 0)->menu()->actions().constFirst()->trigger();
                model.minimizeByMenu();
                break;
            default:
                if (model.views == 4)
                    continue;
                *story << u"add"_s;
                host.add();
                model.add();
                break;
            }
            if (host.panelWidget->count() != model.views)
                return u"other number of pages"_s;
            if (host.stack->currentIndex() != model.current)
                return u"page %1 instead of %2"_s.arg(host.stack->currentIndex())
                    .arg(model.current);
            if (host.bar->checkedId() != model.checked)
                return u"button %1 instead of %2"_s.arg(host.bar->checkedId()).arg(model.checked);
            if (host.panelWidget->isMinimized() != model.minimized)
                return u"other state"_s;
            if (emitted != model.emitted)
                return u"other signals"_s;
        }
        return {};
    };
    QRandomGenerator random(1);
    for (int round = 0; round < 40; ++round) {
        QList<Steps::Step> steps;
        for (int i = 0; i < 60; ++i)
            steps.append({random.bounded(7), random.bounded(100)});
        const QString wrong = Steps::play(steps, player);
        QVERIFY2(wrong.isEmpty(), qPrintable(wrong));
    }
}

NORVANE_TEST_MAIN(tst_DockPanelWidget)
#include "tst_DockPanelWidget.moc"
