// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "RibbonWindow.h"
#include "TestCase.h"

#include <QtGui/QScreen>

using namespace Norvane;

namespace {

using Step = std::function<void(RibbonWindow &)>;

/*
    A ribbon as a program has it that binds two temporary pages to one part of its content: page 0
    for all, pages 1 and 2 for the part. Each has a patch of its own colour at the left end, page 2
    a longer one.
*/
struct BoundPages : RibbonWindow
{
    BoundPages()
    {
        addPages(1);
        bar->addPage(QStringLiteral("First"), true);
        bar->addPage(QStringLiteral("Second"), true);
        patches = {addPatch(bar->page(0), Qt::red, 50), addPatch(bar->page(1), Qt::green, 100),
                   addPatch(bar->page(2), Qt::blue, 300)};
    }

    // What a program does when the part comes to the front.
    void enterPart(const QList<int> &pages = {1, 2})
    {
        bar->hideTemporaryPages();
        for (int page : pages) {
            bar->setPageVisible(page, true);
            if (page == pages.first())
                bar->setCurrentIndex(page);
        }
    }

    QList<Patch *> patches;
};

} // namespace

class tst_OffstagePages : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void showsOnlyTheCurrentOfTwoBoundPages_data();
    void showsOnlyTheCurrentOfTwoBoundPages();
    void passesClicksToTheCurrentPage();
    void leavesTheStackEmptyWhenTheCurrentPageIsHidden();
    void bringsAShownPageOnStage();
    void staysOffStageWhenTheWindowChanges();
    void staysOffStageInAPictureTakenBeforeTheWindowIsOpen();

private:
    QImage stackOnScreen(const RibbonWindow &window) const;
};

// What the window has really painted, as opposed to what its widgets would paint if asked.
QImage tst_OffstagePages::stackOnScreen(const RibbonWindow &window) const
{
    const RibbonStackedWidget *stack = window.stack();
    const QPoint at = stack->mapToGlobal(QPoint()) - window.screen()->geometry().topLeft();
    return window.screen()
        ->grabWindow(0, at.x(), at.y(), stack->width(), stack->height())
        .toImage()
        .convertToFormat(QImage::Format_RGB32);
}

void tst_OffstagePages::showsOnlyTheCurrentOfTwoBoundPages_data()
{
    QTest::addColumn<Step>("prepare");
    QTest::addColumn<Step>("show");
    const Step enter = [](RibbonWindow &window) { static_cast<BoundPages &>(window).enterPart(); };
    const Step none = [](RibbonWindow &) { };

    QTest::newRow("neither current") << none << enter;
    QTest::newRow("the first current and hidden") << Step([](RibbonWindow &window) {
        window.bar->setCurrentIndex(1);
        window.bar->hideTemporaryPages();
    }) << enter;
    QTest::newRow("the first current and visible")
        << Step([](RibbonWindow &window) { window.bar->setCurrentIndex(1); }) << enter;
    QTest::newRow("the second current")
        << Step([](RibbonWindow &window) { window.bar->setCurrentIndex(2); }) << enter;
    QTest::newRow("entered for the second time") << enter << enter;
    QTest::newRow("the second shown first") << none << Step([](RibbonWindow &window) {
        window.bar->showPage(2);
        window.bar->showPage(1);
        window.bar->setCurrentIndex(1);
        window.bar->showPage(2);
    });
    QTest::newRow("after a visit to the second by its tab") << Step([](RibbonWindow &window) {
        static_cast<BoundPages &>(window).enterPart();
        Gui::click(window.tab(2));
    }) << enter;
    QTest::newRow("right to left")
        << Step([](RibbonWindow &window) { window.setLayoutDirection(Qt::RightToLeft); }) << enter;
}

void tst_OffstagePages::showsOnlyTheCurrentOfTwoBoundPages()
{
    QFETCH(Step, prepare);
    QFETCH(Step, show);
    BoundPages window;
    QVERIFY(window.open());
    prepare(window);
    QCoreApplication::processEvents();

    // The same ribbon whose second page is not shown is what it must look like.
    BoundPages reference;
    reference.setLayoutDirection(window.layoutDirection());
    QVERIFY(reference.open());
    reference.enterPart({1});
    QCoreApplication::processEvents();
    const QImage expected = Gui::picture(reference.stack());
    const bool mirrored = window.isRightToLeft();
    QCOMPARE(Gui::pixel(expected, {mirrored ? 740 : 60, 40}), QColor(Qt::green));
    QCOMPARE(Gui::pixel(expected, {mirrored ? 600 : 200, 40}), QColor(245, 245, 245));
    reference.hide();

    show(window);
    for (int i : {1, 2}) {
        QVERIFY(!window.bar->page(i)->isHidden());
        QVERIFY(window.bar->page(i)->isVisible());
        QVERIFY(window.tab(i)->isVisible());
    }
    QVERIFY(window.bar->page(0)->isHidden());
    QCOMPARE(window.bar->currentPage(), window.bar->page(1));
    QCOMPARE(Gui::picture(window.stack()), expected);
    QTRY_COMPARE(stackOnScreen(window), expected);
    QCOMPARE(window.bar->currentPage()->geometry(), window.stack()->rect());
}

void tst_OffstagePages::passesClicksToTheCurrentPage()
{
    for (bool firstWasCurrent : {false, true}) {
        BoundPages window;
        QVERIFY(window.open());
        if (firstWasCurrent)
            window.enterPart({1});
        window.enterPart();
        QCoreApplication::processEvents();
        Gui::click(window.stack(), {60, 40});
        QCOMPARE(window.patches[1]->presses, 1);
        Gui::click(window.stack(), {200, 40});
        QCOMPARE(window.patches[1]->presses, 1);
        QCOMPARE(window.patches[2]->presses, 0);
        QCOMPARE(window.patches[0]->presses, 0);
        QCOMPARE(window.stack()->childAt(200, 40), window.bar->page(1));
    }
}

void tst_OffstagePages::leavesTheStackEmptyWhenTheCurrentPageIsHidden()
{
    BoundPages window;
    QVERIFY(window.open());
    window.bar->hidePage(0);
    window.bar->showPage(2);
    QCoreApplication::processEvents();
    QVERIFY(window.bar->page(2)->isVisible());
    const QImage picture = Gui::picture(window.stack());
    for (int y = 0; y < 95; ++y) {
        for (int x = 0; x < 800; ++x)
            QCOMPARE(Gui::pixel(picture, {x, y}), QColor(245, 245, 245));
    }
    Gui::click(window.stack(), {60, 40});
    QCOMPARE(window.patches[2]->presses, 0);
}

void tst_OffstagePages::bringsAShownPageOnStage()
{
    BoundPages window;
    QVERIFY(window.open());
    const auto shows = [&](int page, const QColor &colour) {
        QCOMPARE(window.bar->currentPage(), window.bar->page(page));
        QCOMPARE(window.bar->page(page)->geometry(), window.stack()->rect());
        QCOMPARE(Gui::pixel(window.stack(), {30, 40}), colour);
        const int before = window.patches[page]->presses;
        Gui::click(window.stack(), {30, 40});
        QCOMPARE(window.patches[page]->presses, before + 1);
    };
    for (int round = 0; round < 3; ++round) {
        window.enterPart();
        shows(1, Qt::green);
        Gui::click(window.tab(2));
        shows(2, Qt::blue);
        QVERIFY(window.bar->page(1)->isHidden());
        window.bar->showPage(1);
        shows(2, Qt::blue);
        window.bar->setCurrentIndex(1);
        shows(1, Qt::green);
        window.bar->showPage(2);
        shows(1, Qt::green);
        window.bar->hideTemporaryPages();
        window.bar->setCurrentIndex(0);
        shows(0, Qt::red);
    }
}

void tst_OffstagePages::staysOffStageWhenTheWindowChanges()
{
    BoundPages window;
    window.enterPart();
    QVERIFY(window.open());
    const auto check = [&] {
        QTRY_COMPARE(window.bar->page(1)->size(), QSize(window.width(), 95));
        QCoreApplication::processEvents();
        QVERIFY(window.bar->page(2)->isVisible());
        const QImage picture = Gui::picture(window.stack());
        const int x = window.isRightToLeft() ? window.width() - 1 : 0;
        const int sign = window.isRightToLeft() ? -1 : 1;
        QCOMPARE(Gui::pixel(picture, {x + sign * 60, 40}), QColor(Qt::green));
        QCOMPARE(Gui::pixel(picture, {x + sign * 200, 40}), QColor(245, 245, 245));
        QCOMPARE(window.stack()->childAt(x + sign * 200, 40), window.bar->page(1));
    };
    check();
    window.resize(500, 250);
    check();
    window.hide();
    QVERIFY(window.open());
    check();
    window.patches[2]->setFixedWidth(350);
    window.addPatch(window.bar->page(2), Qt::yellow, 200);
    check();
    window.setLayoutDirection(Qt::RightToLeft);
    check();
    window.bar->setStyleSheet(window.bar->styleSheet());
    check();
    QWidget other;
    other.resize(700, 300);
    window.bar->setParent(&other);
    window.bar->show();
    window.bar->resize(700, 123);
    QVERIFY(Gui::open(&other));
    QVERIFY(window.bar->page(2)->isVisible());
    QCOMPARE(window.stack()->childAt(500, 40), window.bar->page(1));
    window.bar->setParent(&window);
}

void tst_OffstagePages::staysOffStageInAPictureTakenBeforeTheWindowIsOpen()
{
    BoundPages window;
    window.enterPart();
    const QImage picture = Gui::picture(&window);
    QCOMPARE(Gui::pixel(picture, {60, 28 + 40}), QColor(Qt::green));
    QCOMPARE(Gui::pixel(picture, {5, 28 + 20}), QColor(Qt::green));
    for (int x : {108, 115, 200, 300})
        QCOMPARE(Gui::pixel(picture, {x, 28 + 40}), QColor(245, 245, 245));
}

NORVANE_TEST_MAIN(tst_OffstagePages)
#include "tst_OffstagePages.moc"
