// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "DockWindow.h"
#include "Steps.h"
#include "TestCase.h"

#include <dock/DockContainer_p.h>
#include <dock/DockPanel.h>
#include <dock/DockStatusBar.h>
#include <style/StyleSheet.h>

#include <QtCore/QFile>
#include <QtCore/QRandomGenerator>
#include <QtCore/QtEndian>
#include <QtTest/QSignalSpy>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QMenu>
#include <QtWidgets/QStackedWidget>
#include <QtWidgets/QStatusBar>
#include <QtWidgets/QTextEdit>

using namespace Norvane;
using namespace Qt::StringLiterals;

class tst_DockContainer : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void isLaidOutAroundItsCentre();
    void leavesTheSheetToItsPublicConstructor();
    void takesAnyOtherAreaForTheRight();
    void hidesItsContentUntilThereIsATab();
    void comesUpWithTheShares_data();
    void comesUpWithTheShares();
    void givesViewsThatComeLaterTheirShare();
    void comesUpWithMinimizedPanels_data();
    void comesUpWithMinimizedPanels();
    void comesUpWithHiddenPanes();
    void minimizesASidePanel();
    void minimizesTheBottomPanel();
    void givesTheBottomPanelAQuarter();
    void givesTheBottomPanelAHeightFromALargerWindow();
    void givesTheBottomPanelTheColumnOfNoContent();
    void keepsTheCentreWithAWidthFromALargerWindow();
    void keepsTheHeightsWhenTheContentComesBack();
    void leavesTheContentCollapsedThatWasSo();
    void linesTheBarUpInAWindowThatOnlyGetsWider();
    void sharesTheColumnWhenTheContentComesBack();
    void leavesAHiddenPaneMinimizedWhenTheContentComesBack();
    void opensTheBottomPanelWhenTheContentGoes();
    void marksADraggedSidePanel();
    void looksAtBothSidesWhicheverHandleIsDragged();
    void marksADraggedBottomPanel();
    void knowsNoWidthOfAPanelThatWasDraggedToNothingAtOnce();
    void setsPanesCollapsible();
    void keepsTheLeastSizeOfAPaneThatDoesNotCollapse();
    void hidesAllPanes();
    void takesAMainWindowOver();
    void takesOnlyAnotherMainWindowOver();
    void linesTheBarUpWithTheContent();
    void linesTheBarUpWhenTheBottomPaneMoves();
    void letsEventsThrough();
    void savesTheOuterSplitterAndItsSizes();
    void restoresWhatItSaved();
    void marksRestoredPanelsWithoutWidth();
    void linesTheBarUpAfterARestore();
    void isRestoredBeforeItIsShown();
    void isRestoredBeforeItHasViews();
    void keepsTwoContainersApart();
    void diesInAnyOrder_data();
    void diesInAnyOrder();
    void agreesWithAModel();
};

namespace {

void settle()
{
    for (int i = 0; i < 3; ++i)
        QCoreApplication::processEvents();
}

// A handle without a width of its own is grabbed a little beside the line that it moves.
bool isNear(int size, int expected)
{
    return qAbs(size - expected) <= 3;
}

qint32 remembered(const QByteArray &state, qsizetype number)
{
    return qFromLittleEndian<qint32>(state.constData() + state.size() - 12 + 4 * number);
}

} // namespace

void tst_DockContainer::isLaidOutAroundItsCentre()
{
    const DockWindow window;
    const QLayout *row = window.container->layout();
    QVERIFY(qobject_cast<const QHBoxLayout *>(row));
    QCOMPARE(row->contentsMargins(), QMargins());
    QCOMPARE(row->spacing(), 0);
    QCOMPARE(row->count(), 3);
    QCOMPARE(row->itemAt(0)->widget(), window.left->panel());
    QCOMPARE(row->itemAt(1)->widget(), window.outer());
    QCOMPARE(row->itemAt(2)->widget(), window.right->panel());

    const QSplitter *outer = window.outer();
    QCOMPARE(outer->orientation(), Qt::Horizontal);
    QCOMPARE(outer->handleWidth(), 0);
    QCOMPARE(outer->count(), 3);
    QCOMPARE(outer->widget(0), window.left->stackedWidget());
    QCOMPARE(outer->widget(2), window.right->stackedWidget());
    QList<int> stretches;
    QList<bool> collapsible;
    for (int i = 0; i < 3; ++i) {
        stretches << outer->widget(i)->sizePolicy().horizontalStretch();
        collapsible << outer->isCollapsible(i);
    }
    QCOMPARE(stretches, QList<int>({1, 5, 1}));
    QCOMPARE(collapsible, QList<bool>({true, false, true}));

    const QLayout *column = outer->widget(1)->layout();
    QVERIFY(qobject_cast<const QVBoxLayout *>(column));
    QCOMPARE(column->contentsMargins(), QMargins());
    QCOMPARE(column->spacing(), 0);
    QCOMPARE(column->count(), 2);
    QCOMPARE(column->itemAt(0)->widget(), window.inner());
    QCOMPARE(column->itemAt(1)->widget(), window.bottom->panel());

    const QSplitter *inner = window.inner();
    QCOMPARE(inner->orientation(), Qt::Vertical);
    QCOMPARE(inner->handleWidth(), 0);
    QCOMPARE(inner->widget(0), window.content);
    QCOMPARE(inner->widget(1), window.bottom->stackedWidget());
    QCOMPARE(inner->widget(0)->sizePolicy().verticalStretch(), 50);
    QCOMPARE(inner->widget(1)->sizePolicy().verticalStretch(), 1);
    QVERIFY(inner->isCollapsible(0) && inner->isCollapsible(1));
    QCOMPARE(window.container->styleSheet(), StyleSheet::read(u":/res/dockLight.css"_s));
    QVERIFY(!window.container->styleSheet().isEmpty());
}

void tst_DockContainer::leavesTheSheetToItsPublicConstructor()
{
    struct Bare : DockContainer
    {
        Bare()
            : DockContainer(*new DockContainerPrivate, nullptr)
        {
        }
    };
    Bare container;
    QVERIFY(container.styleSheet().isEmpty());
    DockPanelWidget *left = container.panelWidget(DockContainer::LeftDockArea);
    left->addView(new QWidget, QIcon(), u"view"_s);
    container.contentWidget()->addSection(u"Texts"_s);
    container.contentWidget()->addTab(0, new QWidget, u"tab"_s);
    container.resize(800, 500);
    QVERIFY(Gui::open(&container));
    QVERIFY(left->currentIndex() == 0);
    Gui::click(DockWindow::button(left, 0));
    QCOMPARE(left->currentIndex(), -1);
}

void tst_DockContainer::takesAnyOtherAreaForTheRight()
{
    const DockContainer container;
    for (int area : {1, 3, 5, -1})
        QCOMPARE(container.panelWidget(DockContainer::DockArea(area)),
                 container.panelWidget(DockContainer::RightDockArea));
    QVERIFY(container.panelWidget(DockContainer::LeftDockArea)
            != container.panelWidget(DockContainer::RightDockArea));
    QVERIFY(container.panelWidget(DockContainer::BottomDockArea)
            != container.panelWidget(DockContainer::RightDockArea));
    QCOMPARE(container.panelWidget(DockContainer::BottomDockArea)->panel()->property("direction"),
             u"bottom"_s);
    QCOMPARE(container.panelWidget(DockContainer::LeftDockArea)->panel()->property("direction"),
             u"left"_s);
}

void tst_DockContainer::hidesItsContentUntilThereIsATab()
{
    DockWindow window;
    QVERIFY(Gui::open(&window));
    QVERIFY(window.content->isHidden());
    window.addTab();
    QVERIFY(window.content->isVisible());
    window.content->removeTab(0, 0);
    QVERIFY(window.content->isHidden());
}

void tst_DockContainer::comesUpWithTheShares_data()
{
    QTest::addColumn<bool>("tabFirst");
    QTest::addColumn<bool>("statusBar");
    QTest::addColumn<bool>("wideViews");
    for (bool tabFirst : {false, true}) {
        for (bool statusBar : {false, true}) {
            for (bool wideViews : {false, true}) {
                QTest::addRow("%s, %s, %s", tabFirst ? "with a tab" : "tab later",
                              statusBar ? "status bar" : "no status bar",
                              wideViews ? "wide views" : "narrow views")
                    << tabFirst << statusBar << wideViews;
            }
        }
    }
}

void tst_DockContainer::comesUpWithTheShares()
{
    QFETCH(bool, tabFirst);
    QFETCH(bool, statusBar);
    QFETCH(bool, wideViews);
    DockWindow window(0);
    if (statusBar)
        window.container->setupMainWindow(&window);
    for (auto *panelWidget : {window.left, window.right, window.bottom}) {
        if (wideViews)
            panelWidget->addView(new QTextEdit, QIcon(), u"view"_s);
        else
            panelWidget->addView(new QWidget, QIcon(), u"view"_s);
    }
    if (tabFirst)
        window.content->addTab(0, new QTextEdit, u"tab"_s);
    QVERIFY(Gui::open(&window));
    settle();
    const int width = window.outer()->width();
    const QList<int> sizes = window.outer()->sizes();
    QVERIFY2(qAbs(sizes.at(0) - width / 7) <= 2, qPrintable(QDebug::toString(sizes)));
    QVERIFY2(qAbs(sizes.at(1) - width * 5 / 7) <= 2, qPrintable(QDebug::toString(sizes)));
    QVERIFY2(qAbs(sizes.at(2) - width / 7) <= 2, qPrintable(QDebug::toString(sizes)));
    if (!tabFirst)
        window.content->addTab(0, new QTextEdit, u"tab"_s);
    settle();
    QCOMPARE(window.content->width(), sizes.at(1));
    QVERIFY2(window.content->height() >= window.inner()->height() * 3 / 4,
             qPrintable(QDebug::toString(window.inner()->sizes())));
    QVERIFY(window.bottom->stackedWidget()->height() > 0);
}

void tst_DockContainer::givesViewsThatComeLaterTheirShare()
{
    DockWindow window(0);
    window.addTab();
    QVERIFY(Gui::open(&window));
    const int width = window.outer()->width();
    QCOMPARE(window.outer()->sizes(), QList<int>({0, width, 0}));
    for (auto *panelWidget : {window.left, window.right, window.bottom}) {
        panelWidget->addView(new QWidget, QIcon(), u"view"_s);
        settle();
        QVERIFY(!panelWidget->isMinimized());
        QCOMPARE(panelWidget->currentIndex(), 0);
        QVERIFY(panelWidget->isViewVisible(0));
    }
    QCOMPARE(window.outer()->sizes(), QList<int>({width / 7, width - 2 * (width / 7), width / 7}));
    QVERIFY(window.bottom->stackedWidget()->height() > 0);

    // A second view changes nothing.
    const QList<int> sizes{200, width - 350, 150};
    window.outer()->setSizes(sizes);
    window.left->addView(new QWidget, QIcon(), u"view"_s);
    settle();
    QCOMPARE(window.outer()->sizes(), sizes);

    // Nor does another page, in a pane that was made narrow by a program.
    window.outer()->setSizes({0, width - 150, 150});
    window.left->setCurrentIndex(1);
    QCOMPARE(window.outer()->sizes(), QList<int>({0, width - 150, 150}));
}

void tst_DockContainer::comesUpWithMinimizedPanels_data()
{
    QTest::addColumn<bool>("byMenu");
    QTest::addColumn<bool>("viewsLater");
    QTest::addColumn<bool>("tab");
    for (bool tab : {true, false}) {
        const QByteArray content = tab ? "with a tab" : "no tab";
        QTest::addRow("told to, %s", content.constData()) << false << false << tab;
        QTest::addRow("by menu, %s", content.constData()) << true << false << tab;
        QTest::addRow("views later, %s", content.constData()) << false << true << tab;
    }
}

void tst_DockContainer::comesUpWithMinimizedPanels()
{
    QFETCH(bool, byMenu);
    QFETCH(bool, viewsLater);
    QFETCH(bool, tab);
    DockWindow window(0);
    if (tab)
        window.addTab();
    const QList<DockPanelWidget *> panels{window.left, window.right, window.bottom};
    const auto addViews = [&] {
        for (auto *panelWidget : panels) {
            auto *widget = new QTextEdit;
            panelWidget->addView(widget, QIcon(), u"view"_s);
            if (byMenu)
                panelWidget->menu(widget)->actions().constFirst()->trigger();
        }
    };
    if (!viewsLater)
        addViews();
    if (!byMenu) {
        for (auto *panelWidget : panels)
            panelWidget->setMinimized(true);
    }
    QVERIFY(Gui::open(&window));
    if (viewsLater)
        addViews();
    settle();
    QCOMPARE(window.outer()->sizes(), QList<int>({0, window.outer()->width(), 0}));
    if (!tab) {
        // Alone in the column, the bottom panel is seen all the same.
        QCOMPARE(window.bottom->stackedWidget()->height(), window.inner()->height());
        window.addTab();
        settle();
    }
    QCOMPARE(window.inner()->sizes(), QList<int>({window.inner()->height(), 0}));
    for (auto *panelWidget : panels) {
        QVERIFY(panelWidget->isMinimized());
        QVERIFY(!DockWindow::button(panelWidget, 0)->isChecked());
        Gui::click(DockWindow::button(panelWidget, 0));
        QVERIFY(!panelWidget->isMinimized());
    }
    settle();
    const int width = window.outer()->width();
    QCOMPARE(window.outer()->sizes(), QList<int>({width / 7, width - 2 * (width / 7), width / 7}));
    const int height = window.inner()->height();
    QCOMPARE(window.bottom->stackedWidget()->height(), height / 4);
}

void tst_DockContainer::comesUpWithHiddenPanes()
{
    DockWindow window;
    window.addTab();
    window.container->setAllDockViewVisible(false);
    QVERIFY(Gui::open(&window));
    const int width = window.outer()->width();
    QCOMPARE(window.content->width(), width);
    window.container->setAllDockViewVisible(true);
    settle();
    const QList<int> sizes = window.outer()->sizes();
    for (int pane : {0, 2})
        QVERIFY2(qAbs(sizes.at(pane) - width / 7) <= 2, qPrintable(QDebug::toString(sizes)));
    QVERIFY(window.bottom->stackedWidget()->height() > 0);
}

void tst_DockContainer::minimizesASidePanel()
{
    for (int pane : {0, 2}) {
        DockWindow window;
        window.addTab();
        QVERIFY(Gui::open(&window));
        auto *panelWidget = pane == 0 ? window.left : window.right;
        QList<int> sizes{200, 600, 130};
        sizes[1] = window.outer()->width() - 330;
        window.outer()->setSizes(sizes);
        QCOMPARE(window.outer()->sizes(), sizes);
        QList<int> minimized = sizes;
        minimized[1] += minimized.at(pane);
        minimized[pane] = 0;

        Gui::click(DockWindow::button(panelWidget, 0));
        QVERIFY(panelWidget->isMinimized());
        QCOMPARE(panelWidget->currentIndex(), -1);
        QCOMPARE(window.outer()->sizes(), minimized);
        QCOMPARE(remembered(window.container->saveState(), pane), sizes.at(pane));
        Gui::click(DockWindow::button(panelWidget, 1));
        QVERIFY(!panelWidget->isMinimized());
        QCOMPARE(window.outer()->sizes(), sizes);
        QCOMPARE(panelWidget->currentIndex(), 1);
    }
}

void tst_DockContainer::minimizesTheBottomPanel()
{
    DockWindow window;
    window.addTab();
    QVERIFY(Gui::open(&window));
    const int height = window.inner()->height();
    window.inner()->setSizes({height - 150, 150});
    QCOMPARE(window.inner()->sizes(), QList<int>({height - 150, 150}));
    Gui::click(DockWindow::button(window.bottom, 0));
    QCOMPARE(window.inner()->sizes(), QList<int>({height, 0}));
    QCOMPARE(remembered(window.container->saveState(), 1), 150);
    Gui::click(DockWindow::button(window.bottom, 0));
    QCOMPARE(window.inner()->sizes(), QList<int>({height - 150, 150}));
}

void tst_DockContainer::givesTheBottomPanelAQuarter()
{
    // Nothing remembered, or the whole column.
    for (bool whole : {false, true}) {
        DockWindow window;
        if (!whole)
            window.addTab();
        QVERIFY(Gui::open(&window));
        const int height = window.inner()->height();
        if (whole) {
            Gui::click(DockWindow::button(window.bottom, 0));
            QCOMPARE(remembered(window.container->saveState(), 1), height);
            window.addTab();
            settle();
            QCOMPARE(window.inner()->sizes(), QList<int>({height, 0}));
        } else {
            window.inner()->setSizes({height, 0});
            window.bottom->setMinimized(true);
        }
        settle();
        Gui::click(DockWindow::button(window.bottom, 0));
        QCOMPARE(window.inner()->height(), height);
        QCOMPARE(window.inner()->sizes(), QList<int>({height - height / 4, height / 4}));
    }
}

void tst_DockContainer::givesTheBottomPanelAHeightFromALargerWindow()
{
    DockWindow window;
    window.addTab();
    QVERIFY(Gui::open(&window));
    window.inner()->setSizes({100, window.inner()->height() - 100});
    Gui::click(DockWindow::button(window.bottom, 0));
    window.resize(600, 300);
    settle();
    const int height = window.inner()->height();
    QVERIFY(remembered(window.container->saveState(), 1) > height);
    Gui::click(DockWindow::button(window.bottom, 0));
    QCOMPARE(window.inner()->sizes(), QList<int>({0, height}));
    // Then the column is what it remembers, and the content has its three quarters again.
    Gui::click(DockWindow::button(window.bottom, 0));
    QCOMPARE(window.inner()->sizes(), QList<int>({height, 0}));
    Gui::click(DockWindow::button(window.bottom, 0));
    QCOMPARE(window.inner()->sizes(), QList<int>({height - height / 4, height / 4}));
    QCOMPARE(window.size(), QSize(600, 300));
}

void tst_DockContainer::givesTheBottomPanelTheColumnOfNoContent()
{
    DockWindow window;
    QVERIFY(Gui::open(&window));
    const QByteArray nothingRemembered = window.container->saveState();
    Gui::click(DockWindow::button(window.bottom, 0));
    window.container->restoreState(nothingRemembered);
    Gui::click(DockWindow::button(window.bottom, 0));
    QCOMPARE(window.bottom->stackedWidget()->height(), window.inner()->height());
    // Without content beside it a height that was the whole column stays what it was.
    Gui::click(DockWindow::button(window.bottom, 0));
    Gui::click(DockWindow::button(window.bottom, 0));
    QCOMPARE(remembered(window.container->saveState(), 1), window.inner()->height());
    window.container->restoreState(nothingRemembered);
    window.addTab();
    settle();
    QVERIFY(window.content->height() >= window.inner()->height() * 3 / 4);
    QVERIFY(window.bottom->stackedWidget()->height() > 0);
}

void tst_DockContainer::keepsTheCentreWithAWidthFromALargerWindow()
{
    for (int pane : {0, 2}) {
        DockWindow window;
        window.addTab();
        QVERIFY(Gui::open(&window));
        auto *panelWidget = pane == 0 ? window.left : window.right;
        QList<int> sizes{100, window.outer()->width() - 800, 100};
        sizes[pane] = 700;
        window.outer()->setSizes(sizes);
        Gui::click(DockWindow::button(panelWidget, 0));
        window.resize(450, 400);
        settle();
        QVERIFY(remembered(window.container->saveState(), pane) > window.outer()->width());
        for (int round = 0; round < 2; ++round) {
            Gui::click(DockWindow::button(panelWidget, 0));
            settle();
            QVERIFY(panelWidget->stackedWidget()->width() > 0);
            QVERIFY(window.content->width() > 0);
            Gui::click(DockWindow::button(panelWidget, 0));
            settle();
            QCOMPARE(panelWidget->stackedWidget()->width(), 0);
        }
        QCOMPARE(window.size(), QSize(450, 400));
    }
}

void tst_DockContainer::keepsTheHeightsWhenTheContentComesBack()
{
    DockWindow window;
    window.addTab();
    QVERIFY(Gui::open(&window));
    const int height = window.inner()->height();
    const QList<int> sizes{height - 150, 150};
    window.inner()->setSizes(sizes);
    window.content->removeTab(0, 0);
    settle();
    QCOMPARE(window.bottom->stackedWidget()->height(), height);
    window.addTab();
    settle();
    QCOMPARE(window.inner()->sizes(), sizes);
}

void tst_DockContainer::leavesTheContentCollapsedThatWasSo()
{
    DockWindow window;
    window.addTab();
    QVERIFY(Gui::open(&window));
    const QList<int> sizes{0, window.inner()->height()};
    window.inner()->setSizes(sizes);
    QCOMPARE(window.inner()->sizes(), sizes);
    window.content->removeTab(0, 0);
    settle();
    window.addTab();
    settle();
    QVERIFY(window.content->isVisible());
    QCOMPARE(window.inner()->sizes(), sizes);
}

void tst_DockContainer::linesTheBarUpInAWindowThatOnlyGetsWider()
{
    DockWindow window;
    window.addTab();
    window.container->setupMainWindow(&window);
    QVERIFY(Gui::open(&window));
    settle();
    const int before = window.bottom->panel()->mapTo(&window, QPoint()).x();
    const QRect bottom = window.bottom->stackedWidget()->geometry();
    window.resize(window.width() + 500, window.height());
    QCOMPARE(window.bottom->stackedWidget()->pos(), bottom.topLeft());
    const int after = window.content->mapTo(&window, QPoint()).x();
    QVERIFY(after > before);
    QCOMPARE(window.bottom->panel()->mapTo(&window, QPoint()).x(), after);
}

void tst_DockContainer::sharesTheColumnWhenTheContentComesBack()
{
    DockWindow window;
    window.addTab();
    QVERIFY(Gui::open(&window));
    const int height = window.inner()->height();
    window.inner()->setSizes({height - 150, 150});
    window.content->removeTab(0, 0);
    settle();
    QCOMPARE(window.bottom->stackedWidget()->height(), height);
    // Sent away and brought back alone in the column, the panel collapses the content.
    Gui::click(DockWindow::button(window.bottom, 0));
    Gui::click(DockWindow::button(window.bottom, 0));
    window.addTab();
    settle();
    QCOMPARE(window.inner()->sizes(), QList<int>({height * 3 / 4, height - height * 3 / 4}));
}

void tst_DockContainer::leavesAHiddenPaneMinimizedWhenTheContentComesBack()
{
    DockWindow window;
    window.addTab();
    QVERIFY(Gui::open(&window));
    Gui::click(DockWindow::button(window.bottom, 0));
    window.container->setAllDockViewVisible(false);
    window.content->removeTab(0, 0);
    window.bottom->setMinimized(true);
    settle();
    window.addTab();
    settle();
    const int height = window.inner()->height();
    QCOMPARE(window.content->height(), height);
    window.container->setAllDockViewVisible(true);
    settle();
    QCOMPARE(window.inner()->sizes(), QList<int>({height, 0}));
}

void tst_DockContainer::opensTheBottomPanelWhenTheContentGoes()
{
    DockWindow window;
    window.addTab();
    QVERIFY(Gui::open(&window));
    Gui::click(DockWindow::button(window.bottom, 0));
    QVERIFY(window.bottom->isMinimized());
    QSignalSpy minimized(window.bottom, &DockPanelWidget::signalMinimized);
    window.content->removeTab(0, 0);
    QVERIFY(!window.bottom->isMinimized());
    QVERIFY(DockWindow::button(window.bottom, 0)->isChecked());
    QCOMPARE(minimized.count(), 0);

    // With a bottom pane open beside it nothing is marked.
    DockWindow other;
    other.addTab();
    QVERIFY(Gui::open(&other));
    other.bottom->setMinimized(true);
    other.content->removeTab(0, 0);
    QVERIFY(other.bottom->isMinimized());
}

void tst_DockContainer::marksADraggedSidePanel()
{
    DockWindow window;
    window.addTab();
    QVERIFY(Gui::open(&window));
    window.outer()->setSizes({200, window.outer()->width() - 330, 130});
    QSignalSpy minimized(window.left, &DockPanelWidget::signalMinimized);
    QSplitterHandle *handle = window.outer()->handle(1);
    const auto width = [&] { return window.left->stackedWidget()->width(); };
    DockWindow::drag(handle, {50, 0});
    QVERIFY(isNear(width(), 250));
    QCOMPARE(remembered(window.container->saveState(), 0), width());
    QCOMPARE(remembered(window.container->saveState(), 2), 130);
    DockWindow::drag(handle, {-300, 0});
    QCOMPARE(width(), 0);
    QVERIFY(window.left->isMinimized());
    QVERIFY(!DockWindow::button(window.left, 0)->isChecked());
    QVERIFY(!window.right->isMinimized());
    QVERIFY(remembered(window.container->saveState(), 0) > 0);
    DockWindow::drag(handle, {220, 0});
    QVERIFY(isNear(width(), 220));
    QVERIFY(!window.left->isMinimized());
    QVERIFY(DockWindow::button(window.left, 0)->isChecked());
    QCOMPARE(remembered(window.container->saveState(), 0), width());
    QCOMPARE(minimized.count(), 0);
}

void tst_DockContainer::looksAtBothSidesWhicheverHandleIsDragged()
{
    DockWindow window;
    window.addTab();
    QVERIFY(Gui::open(&window));
    window.outer()->setSizes({200, window.outer()->width() - 330, 130});
    window.right->setMinimized(true);
    DockWindow::drag(window.outer()->handle(1), {30, 0});
    QVERIFY(!window.right->isMinimized());
    QCOMPARE(remembered(window.container->saveState(), 2), 130);
    window.left->setMinimized(true);
    DockWindow::drag(window.outer()->handle(2), {-30, 0});
    QVERIFY(!window.left->isMinimized());
    window.outer()->setSizes({0, window.outer()->width() - 130, 130});
    DockWindow::drag(window.outer()->handle(2), {-30, 0});
    QVERIFY(window.left->isMinimized());
    QVERIFY(!window.right->isMinimized());
}

void tst_DockContainer::marksADraggedBottomPanel()
{
    DockWindow window;
    window.addTab();
    QVERIFY(Gui::open(&window));
    const int height = window.inner()->height();
    window.inner()->setSizes({height - 200, 200});
    QSplitterHandle *handle = window.inner()->handle(1);
    const QWidget *pane = window.bottom->stackedWidget();
    DockWindow::drag(handle, {0, -40});
    QVERIFY(isNear(pane->height(), 240));
    QCOMPARE(remembered(window.container->saveState(), 1), pane->height());
    DockWindow::drag(handle, {0, 260});
    QCOMPARE(window.inner()->sizes(), QList<int>({height, 0}));
    QVERIFY(window.bottom->isMinimized());
    QVERIFY(remembered(window.container->saveState(), 1) > 0);
    DockWindow::drag(handle, {0, -180});
    QVERIFY(!window.bottom->isMinimized());
    QVERIFY(isNear(pane->height(), 180));
    QCOMPARE(remembered(window.container->saveState(), 1), pane->height());
}

void tst_DockContainer::knowsNoWidthOfAPanelThatWasDraggedToNothingAtOnce()
{
    DockWindow window;
    window.addTab();
    QVERIFY(Gui::open(&window));
    QSplitterHandle *handle = window.outer()->handle(1);
    const QPoint start = handle->mapTo(&window, handle->rect().center());
    Gui::press(handle, handle->rect().center());
    QTest::mouseMove(window.windowHandle(), QPoint(0, start.y()));
    QTest::mouseRelease(window.windowHandle(), Qt::LeftButton, {}, QPoint(0, start.y()));
    QVERIFY(window.left->isMinimized());
    Gui::click(DockWindow::button(window.left, 0));
    QVERIFY(!window.left->isMinimized());
    QCOMPARE(window.left->stackedWidget()->width(), 0);
    DockWindow::drag(handle, {200, 0});
    QVERIFY(isNear(window.left->stackedWidget()->width(), 200));
    QCOMPARE(remembered(window.container->saveState(), 0), window.left->stackedWidget()->width());
}

void tst_DockContainer::setsPanesCollapsible()
{
    const DockWindow window;
    for (bool collapsible : {false, true}) {
        window.container->setPanelCollapsible(collapsible);
        QCOMPARE(window.outer()->isCollapsible(0), collapsible);
        QVERIFY(!window.outer()->isCollapsible(1));
        QCOMPARE(window.outer()->isCollapsible(2), collapsible);
        QCOMPARE(window.inner()->isCollapsible(0), collapsible);
        QCOMPARE(window.inner()->isCollapsible(1), collapsible);
    }
}

void tst_DockContainer::keepsTheLeastSizeOfAPaneThatDoesNotCollapse()
{
    DockWindow window;
    window.addTab();
    window.container->setPanelCollapsible(false);
    QVERIFY(Gui::open(&window));
    const QWidget *pane = window.left->stackedWidget();
    window.outer()->setSizes({250, window.outer()->width() - 350, 100});
    Gui::click(DockWindow::button(window.left, 0));
    QVERIFY(window.left->isMinimized());
    QVERIFY(pane->width() > 0);
    QCOMPARE(pane->width(), pane->minimumSizeHint().width());
    Gui::click(DockWindow::button(window.left, 0));
    QVERIFY(pane->width() >= 250);
}

void tst_DockContainer::hidesAllPanes()
{
    DockWindow window;
    QVERIFY(Gui::open(&window));
    window.container->setAllDockViewVisible(false);
    for (const auto *panelWidget : {window.left, window.right, window.bottom}) {
        QVERIFY(!panelWidget->stackedWidget()->isVisible());
        QVERIFY(panelWidget->panel()->isVisible());
    }
    window.container->setAllDockViewVisible(true);
    for (const auto *panelWidget : {window.left, window.right, window.bottom})
        QVERIFY(panelWidget->stackedWidget()->isVisible());
}

void tst_DockContainer::takesAMainWindowOver()
{
    DockWindow window;
    window.container->setupMainWindow(nullptr);
    QCOMPARE(window.findChild<QStatusBar *>(), nullptr);
    window.container->updateState();
    window.container->setupMainWindow(&window);
    auto *bar = qobject_cast<DockStatusBar *>(window.statusBar());
    QVERIFY(bar);
    QVERIFY(bar->isAncestorOf(window.bottom->panel()));
    QCOMPARE(window.outer()->widget(1)->layout()->count(), 1);
    QVERIFY(Gui::open(&window));
    const DockButton *button = DockWindow::button(window.bottom, 1);
    QVERIFY(button->isVisible());
    QVERIFY(bar->rect().contains(QRect(button->mapTo(bar, QPoint()), button->size())));
    Gui::click(button);
    QCOMPARE(window.bottom->currentIndex(), 1);
}

void tst_DockContainer::takesOnlyAnotherMainWindowOver()
{
    DockWindow window;
    window.container->setupMainWindow(&window);
    const QPointer<QStatusBar> bar(window.statusBar());
    window.bottom->panel()->layout()->setContentsMargins(1, 2, 3, 4);
    window.container->setupMainWindow(&window);
    QCOMPARE(window.statusBar(), bar);
    QCOMPARE(window.bottom->panel()->layout()->contentsMargins(), QMargins(1, 2, 3, 4));
    QMainWindow other;
    window.container->setupMainWindow(&other);
    QCOMPARE(other.statusBar(), bar);
    QVERIFY(bar->isAncestorOf(window.bottom->panel()));
}

void tst_DockContainer::linesTheBarUpWithTheContent()
{
    DockWindow window;
    window.addTab();
    window.container->setupMainWindow(&window);
    QVERIFY(Gui::open(&window));
    const auto barAt = [&] { return window.bottom->panel()->mapTo(&window, QPoint()).x(); };
    const auto contentAt = [&] { return window.content->mapTo(&window, QPoint()).x(); };
    QTRY_COMPARE(barAt(), contentAt());
    window.outer()->setSizes({300, window.outer()->width() - 400, 100});
    QTRY_COMPARE(contentAt(), window.left->panel()->width() + 300);
    QTRY_COMPARE(barAt(), contentAt());
    for (bool minimized : {false, true}) {
        if (minimized)
            Gui::click(DockWindow::button(window.left, 0));
        QTRY_COMPARE(barAt(), contentAt());
        for (int width : {1400, 700, 1100}) {
            const int before = contentAt();
            window.resize(width, 500);
            QTRY_VERIFY((contentAt() == before) == minimized);
            QTRY_COMPARE(barAt(), contentAt());
        }
    }
    window.bottom->panel()->move(500, 0);
    window.container->updateState();
    QCOMPARE(barAt(), contentAt());
}

void tst_DockContainer::linesTheBarUpWhenTheBottomPaneMoves()
{
    DockWindow window;
    window.addTab();
    window.container->setupMainWindow(&window);
    QVERIFY(Gui::open(&window));
    window.bottom->panel()->move(444, 0);
    const int height = window.inner()->height();
    window.inner()->setSizes({height - 170, 170});
    QCOMPARE(window.bottom->panel()->mapTo(&window, QPoint()).x(),
             window.content->mapTo(&window, QPoint()).x());
}

void tst_DockContainer::letsEventsThrough()
{
    struct Open : DockContainer
    {
        using DockContainer::eventFilter;
    };
    Open container;
    QMoveEvent move({0, 1}, {0, 2});
    auto *pane = container.panelWidget(DockContainer::BottomDockArea)->stackedWidget();
    QVERIFY(!container.eventFilter(pane, &move));
    QVERIFY(!container.eventFilter(container.contentWidget(), &move));
}

void tst_DockContainer::savesTheOuterSplitterAndItsSizes()
{
    DockWindow window;
    window.addTab();
    QVERIFY(Gui::open(&window));
    const QByteArray splitter = window.outer()->saveState();
    QCOMPARE(window.container->saveState(),
             splitter + QByteArray::fromHex("7c000000000000000000000000"));
    DockWindow::drag(window.outer()->handle(1), {300, 0});
    const QList<int> sizes = window.outer()->sizes();
    const QByteArray state = window.container->saveState();
    QCOMPARE(state.first(splitter.size()), window.outer()->saveState());
    QCOMPARE(state.at(splitter.size()), '\x7c');
    const qsizetype at = splitter.size() + 1;
    QCOMPARE(uchar(state.at(at)) + 256 * uchar(state.at(at + 1)), sizes.at(0));
    QCOMPARE(state.mid(at + 2, 6), QByteArray(6, '\0'));
    QCOMPARE(uchar(state.at(at + 8)) + 256 * uchar(state.at(at + 9)), sizes.at(2));
}

void tst_DockContainer::restoresWhatItSaved()
{
    QByteArray state;
    QList<int> sizes;
    {
        DockWindow window;
        window.addTab();
        QVERIFY(Gui::open(&window));
        sizes = {210, window.outer()->width() - 350, 140};
        window.outer()->setSizes(sizes);
        window.inner()->setSizes({window.inner()->height() - 170, 170});
        for (auto *panelWidget : {window.left, window.right, window.bottom}) {
            Gui::click(DockWindow::button(panelWidget, 0));
            Gui::click(DockWindow::button(panelWidget, 0));
        }
        state = window.container->saveState();
    }
    DockWindow window;
    window.addTab();
    QVERIFY(Gui::open(&window));
    const QList<int> heights = window.inner()->sizes();
    window.container->restoreState(state);
    QCOMPARE(window.outer()->sizes(), sizes);
    const QList<int> known{210, 170, 140};
    for (int number : {0, 1, 2})
        QCOMPARE(remembered(window.container->saveState(), number), known.at(number));
    QCOMPARE(window.inner()->sizes(), heights);
    QCOMPARE(window.container->saveState(), state);
    window.container->restoreState(QByteArray());
    QCOMPARE(window.container->saveState(), state);
}

void tst_DockContainer::marksRestoredPanelsWithoutWidth()
{
    QByteArray state;
    {
        DockWindow window;
        window.addTab();
        QVERIFY(Gui::open(&window));
        window.outer()->setSizes({200, 600, 140});
        Gui::click(DockWindow::button(window.left, 0));
        Gui::click(DockWindow::button(window.right, 0));
        state = window.container->saveState();
    }
    DockWindow window;
    window.addTab();
    QVERIFY(Gui::open(&window));
    QSignalSpy minimized(window.left, &DockPanelWidget::signalMinimized);
    const QByteArray open = window.container->saveState();
    window.container->restoreState(state);
    QVERIFY(window.left->isMinimized());
    QVERIFY(window.right->isMinimized());
    QVERIFY(!window.bottom->isMinimized());
    QCOMPARE(minimized.count(), 0);
    // A width does not clear a mark.
    window.container->restoreState(open);
    QVERIFY(window.outer()->sizes().at(0) > 0);
    QVERIFY(window.left->isMinimized());
    QVERIFY(window.right->isMinimized());
}

void tst_DockContainer::linesTheBarUpAfterARestore()
{
    DockWindow window;
    window.addTab();
    window.container->setupMainWindow(&window);
    QVERIFY(Gui::open(&window));
    const QByteArray state = window.container->saveState();
    window.bottom->panel()->move(555, 0);
    window.container->restoreState(state);
    QCOMPARE(window.bottom->panel()->x(), 555);
    QTRY_COMPARE(window.bottom->panel()->mapTo(&window, QPoint()).x(),
                 window.content->mapTo(&window, QPoint()).x());
}

void tst_DockContainer::isRestoredBeforeItIsShown()
{
    QByteArray state;
    {
        DockWindow window;
        window.addTab();
        QVERIFY(Gui::open(&window));
        window.outer()->setSizes({250, window.outer()->width() - 370, 120});
        state = window.container->saveState();
    }
    DockWindow window;
    window.addTab();
    window.container->restoreState(state);
    QVERIFY(Gui::open(&window));
    QCOMPARE(window.outer()->sizes(), QList<int>({250, window.outer()->width() - 370, 120}));
}

void tst_DockContainer::isRestoredBeforeItHasViews()
{
    QByteArray state;
    {
        DockWindow window;
        window.addTab();
        QVERIFY(Gui::open(&window));
        window.outer()->setSizes({200, window.outer()->width() - 350, 150});
        Gui::click(DockWindow::button(window.left, 0));
        state = window.container->saveState();
    }
    for (bool shown : {false, true}) {
        DockWindow window(0);
        window.addTab();
        if (shown)
            QVERIFY(Gui::open(&window));
        window.container->restoreState(state);
        for (auto *panelWidget : {window.left, window.right, window.bottom})
            panelWidget->addView(new QWidget, QIcon(), u"view"_s);
        QVERIFY(Gui::open(&window));
        settle();
        const int width = window.outer()->width();
        QCOMPARE(window.outer()->sizes(), QList<int>({0, width - 150, 150}));
        QVERIFY(window.left->isMinimized());
        Gui::click(DockWindow::button(window.left, 0));
        QCOMPARE(window.outer()->sizes(), QList<int>({200, width - 350, 150}));
    }
}

void tst_DockContainer::keepsTwoContainersApart()
{
    DockWindow one;
    DockWindow two;
    one.addTab();
    two.addTab();
    one.container->setupMainWindow(&one);
    two.container->setupMainWindow(&two);
    QVERIFY(Gui::open(&one));
    QVERIFY(Gui::open(&two));
    const QByteArray before = two.container->saveState();
    Gui::click(DockWindow::button(one.left, 0));
    one.content->removeTab(0, 0);
    one.container->restoreState(before);
    QCOMPARE(two.container->saveState(), before);
    QVERIFY(!two.left->isMinimized());
    QVERIFY(two.content->isVisible());
    QVERIFY(one.statusBar() != two.statusBar());
}

void tst_DockContainer::diesInAnyOrder_data()
{
    QTest::addColumn<QString>("order");
    for (const char *order :
         {"container, window", "status bar, container", "panels, container", "content, container",
          "panes, container", "views", "window of the status bar"})
        QTest::newRow(order) << QString::fromLatin1(order);
}

void tst_DockContainer::diesInAnyOrder()
{
    QFETCH(QString, order);
    auto *window = new DockWindow;
    window->addTab();
    window->container->setupMainWindow(window);
    QVERIFY(Gui::open(window));
    DockContainer *container = window->container;
    if (order == u"container, window"_s) {
        delete container;
        settle();
        delete window;
        return;
    }
    if (order == u"status bar, container"_s) {
        window->setStatusBar(nullptr);
        settle();
        container->updateState();
        Gui::click(DockWindow::button(window->left, 0));
    } else if (order == u"panels, container"_s) {
        delete window->left;
        delete window->bottom;
        QCOMPARE(container->panelWidget(DockContainer::LeftDockArea), nullptr);
        container->setAllDockViewVisible(false);
        container->updateState();
        window->content->removeTab(0, 0);
        window->content->addTab(0, new QWidget, u"tab"_s);
        container->restoreState(container->saveState());
    } else if (order == u"content, container"_s) {
        delete window->content->widget(0, 0);
        settle();
    } else if (order == u"panes, container"_s) {
        delete window->right->stackedWidget();
        settle();
        Gui::click(DockWindow::button(window->right, 1));
        Gui::click(DockWindow::button(window->right, 1));
        Gui::click(DockWindow::button(window->left, 0));
        const QByteArray state = container->saveState();
        container->restoreState(state);
        container->setPanelCollapsible(false);
    } else if (order == u"views"_s) {
        auto *view = new QWidget;
        const int index = window->left->addView(view, QIcon(), u"view"_s);
        window->left->setCurrentIndex(index);
        settle();
        delete view;
        Gui::click(DockWindow::button(window->left, index));
        Gui::click(DockWindow::button(window->left, index));
    } else {
        auto *other = new QMainWindow;
        container->setupMainWindow(other);
        delete other;
        settle();
        container->updateState();
        container->setupMainWindow(window);
        QVERIFY(qobject_cast<DockStatusBar *>(window->statusBar()));
    }
    settle();
    delete window;
}

void tst_DockContainer::agreesWithAModel()
{
    const auto player = [](const QList<Steps::Step> &steps, QStringList *story) -> QString {
        DockWindow window;
        window.addTab();
        if (!Gui::open(&window))
            return u"no window"_s;
        const int width = window.outer()->width();
        window.outer()->setSizes({200, width - 350, 150});
        int known[2] = {0, 0};
        bool minimized[2] = {false, false};
        QList<int> sizes = window.outer()->sizes();
        for (const auto &[kind, number] : steps) {
            const int side = number % 2;
            const int pane = 2 * side;
            auto *panelWidget = side == 0 ? window.left : window.right;
            if (kind == 0) {
                *story << u"click %1"_s.arg(side);
                Gui::click(DockWindow::button(panelWidget, 0));
                minimized[side] = !minimized[side];
                if (minimized[side]) {
                    known[side] = sizes.at(pane);
                    sizes[1] += sizes.at(pane);
                    sizes[pane] = 0;
                } else {
                    sizes[pane] = known[side];
                    sizes[1] -= known[side];
                }
            } else {
                const int by = number / 2 % 90 - 30;
                if (sizes.at(pane) + by < 120 || sizes.at(1) - by < 200)
                    continue;
                *story << u"drag %1 by %2"_s.arg(side).arg(by);
                DockWindow::drag(window.outer()->handle(1 + side), {side == 0 ? by : -by, 0});
                const QList<int> dragged = window.outer()->sizes();
                if (!isNear(dragged.at(pane), sizes.at(pane) + by))
                    return u"the handle went elsewhere"_s;
                if (dragged.at(2 - pane) != sizes.at(2 - pane))
                    return u"the other pane changed"_s;
                if (dragged.at(0) + dragged.at(1) + dragged.at(2) != width)
                    return u"room was lost"_s;
                sizes = dragged;
                for (const qsizetype other : {0, 1}) {
                    if (sizes.at(2 * other) > 0)
                        known[other] = sizes.at(2 * other);
                }
            }
            if (window.outer()->sizes() != sizes)
                return u"sizes "_s + QDebug::toString(window.outer()->sizes()) + u" instead of "_s
                    + QDebug::toString(sizes);
            if (window.left->isMinimized() != minimized[0]
                || window.right->isMinimized() != minimized[1])
                return u"other state"_s;
            const QByteArray state = window.container->saveState();
            if (remembered(state, 0) != known[0] || remembered(state, 2) != known[1])
                return u"other remembered widths"_s;
        }
        return {};
    };
    QRandomGenerator random(3);
    for (int round = 0; round < 20; ++round) {
        QList<Steps::Step> steps;
        for (int i = 0; i < 40; ++i)
            steps.append({random.bounded(2), random.bounded(1000)});
        const QString wrong = Steps::play(steps, player);
        QVERIFY2(wrong.isEmpty(), qPrintable(wrong));
    }
}

NORVANE_TEST_MAIN(tst_DockContainer)
#include "tst_DockContainer.moc"
