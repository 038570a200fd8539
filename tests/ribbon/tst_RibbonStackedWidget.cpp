// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "Gui.h"
#include "TestCase.h"

#include <Norvane/RibbonPage.h>
#include <ribbon/RibbonStackedWidget.h>

#include <QtTest/QSignalSpy>
#include <QtWidgets/QVBoxLayout>

#include <limits>
#include <memory>

using namespace Norvane;

class tst_RibbonStackedWidget : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void isAPlainStackToTheMetaObjectSystem();
    void isAlwaysAsHighAsAPage();
    void takesAPageWithoutMakingItCurrent();
    void makesAPageAndReturnsToTheFirst();
    void hidesAndShowsAPageWithoutMakingItCurrent();
    void countsTitlesToBoundHidingAndShowing();
    void ignoresIndexesOutOfRange_data();
    void ignoresIndexesOutOfRange();
    void answersOnlyPages();
    void isTheOwnerOfItsPages();
    void survivesTheDeletionOfAPage();
};

void tst_RibbonStackedWidget::isAPlainStackToTheMetaObjectSystem()
{
    const QMetaObject &meta = RibbonStackedWidget::staticMetaObject;
    QCOMPARE(meta.className(), "Norvane::RibbonStackedWidget");
    QCOMPARE(meta.superClass(), &QStackedWidget::staticMetaObject);
    QCOMPARE(meta.methodCount(), meta.methodOffset());
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
}

void tst_RibbonStackedWidget::isAlwaysAsHighAsAPage()
{
    QWidget window;
    auto *stack = new RibbonStackedWidget(&window);
    QCOMPARE(stack->parentWidget(), &window);
    QCOMPARE(stack->minimumHeight(), 95);
    QCOMPARE(stack->maximumHeight(), 95);

    auto *page = new RibbonPage;
    page->setMinimumHeight(400);
    stack->addPage(QStringLiteral("A"), page);
    auto *layout = new QVBoxLayout(&window);
    layout->addWidget(stack);
    window.resize(500, 800);
    QVERIFY(Gui::open(&window));
    QCOMPARE(stack->height(), 95);
}

void tst_RibbonStackedWidget::takesAPageWithoutMakingItCurrent()
{
    RibbonStackedWidget stack(nullptr);
    const QSignalSpy changes(&stack, &QStackedWidget::currentChanged);
    QList<RibbonPage *> pages;
    for (const QString &title : {QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("C")}) {
        pages << new RibbonPage;
        QCOMPARE(stack.addPage(title, pages.last()), pages.size() - 1);
        QCOMPARE(stack.currentIndex(), 0);
    }
    QCOMPARE(changes.count(), 1);
    stack.setCurrentIndex(2);
    QCOMPARE(stack.addPage(QStringLiteral("D"), new RibbonPage), 3);
    QCOMPARE(stack.currentIndex(), 2);
    QCOMPARE(stack.count(), 4);
    for (int i = 0; i < pages.size(); ++i) {
        QCOMPARE(stack.page(i), pages[i]);
        QCOMPARE(stack.indexOf(pages[i]), i);
        QCOMPARE(pages[i]->isHidden(), i != 2);
    }
}

void tst_RibbonStackedWidget::makesAPageAndReturnsToTheFirst()
{
    RibbonStackedWidget stack(nullptr);
    RibbonPage *first = stack.addPage(QStringLiteral("A"));
    QCOMPARE(stack.currentWidget(), first);
    QVERIFY(stack.isAncestorOf(first));
    for (int i = 1; i < 4; ++i)
        QCOMPARE(stack.indexOf(stack.addPage(QString::number(i))), i);
    QCOMPARE(stack.currentIndex(), 0);

    stack.setCurrentIndex(3);
    RibbonPage *last = stack.addPage(QStringLiteral("E"));
    QCOMPARE(stack.indexOf(last), 4);
    QCOMPARE(stack.currentIndex(), 0);
    QVERIFY(!first->isHidden());
    QVERIFY(stack.page(3)->isHidden());
    QVERIFY(last->isHidden());
}

void tst_RibbonStackedWidget::hidesAndShowsAPageWithoutMakingItCurrent()
{
    RibbonStackedWidget stack(nullptr);
    for (const QString &title : {QStringLiteral("A"), QStringLiteral("B")})
        stack.addPage(title);
    stack.hidePage(0);
    QVERIFY(stack.page(0)->isHidden());
    QCOMPARE(stack.currentIndex(), 0);
    stack.showPage(1);
    QVERIFY(!stack.page(1)->isHidden());
    QCOMPARE(stack.currentIndex(), 0);
    stack.showPage(0);
    QVERIFY(!stack.page(0)->isHidden());
    stack.hidePage(1);
    QVERIFY(stack.page(1)->isHidden());
}

void tst_RibbonStackedWidget::countsTitlesToBoundHidingAndShowing()
{
    RibbonStackedWidget stack(nullptr);
    stack.addPage(QStringLiteral("A"));
    stack.addPage(QStringLiteral("B"), new RibbonPage);
    stack.addPage(QStringLiteral("A"), new RibbonPage);

    stack.showPage(1);
    stack.showPage(2);
    QVERIFY(!stack.page(1)->isHidden());
    QVERIFY(stack.page(2)->isHidden());

    stack.setCurrentIndex(2);
    stack.hidePage(2);
    QVERIFY(!stack.page(2)->isHidden());
    stack.showPage(1);
    stack.hidePage(1);
    QVERIFY(stack.page(1)->isHidden());

    // A title of its own raises the bound, but only by one.
    stack.addPage(QStringLiteral("C"), new RibbonPage);
    stack.hidePage(2);
    QVERIFY(stack.page(2)->isHidden());
    stack.showPage(3);
    QVERIFY(stack.page(3)->isHidden());
}

void tst_RibbonStackedWidget::ignoresIndexesOutOfRange_data()
{
    QTest::addColumn<int>("index");
    QTest::newRow("count") << 2;
    QTest::newRow("greatest") << std::numeric_limits<int>::max();
    QTest::newRow("-1") << -1;
    QTest::newRow("least") << std::numeric_limits<int>::min();
}

void tst_RibbonStackedWidget::ignoresIndexesOutOfRange()
{
    QFETCH(int, index);
    RibbonStackedWidget stack(nullptr);
    stack.hidePage(index);
    stack.showPage(index);
    QCOMPARE(stack.page(index), nullptr);
    stack.addPage(QStringLiteral("A"));
    stack.addPage(QStringLiteral("B"));
    stack.hidePage(index);
    QVERIFY(!stack.page(0)->isHidden());
    stack.showPage(index);
    QVERIFY(stack.page(1)->isHidden());
    QCOMPARE(stack.page(index), nullptr);
    QCOMPARE(stack.currentIndex(), 0);
}

void tst_RibbonStackedWidget::answersOnlyPages()
{
    RibbonStackedWidget stack(nullptr);
    stack.addWidget(new QWidget);
    RibbonPage *page = stack.addPage(QStringLiteral("A"));
    QCOMPARE(stack.page(0), nullptr);
    QCOMPARE(stack.page(1), page);
}

void tst_RibbonStackedWidget::isTheOwnerOfItsPages()
{
    auto stack = std::make_unique<RibbonStackedWidget>(nullptr);
    const QPointer<RibbonPage> made = stack->addPage(QStringLiteral("A"));
    const QPointer<RibbonPage> given = new RibbonPage;
    stack->addPage(QStringLiteral("B"), given);
    stack.reset();
    QVERIFY(!made);
    QVERIFY(!given);
}

void tst_RibbonStackedWidget::survivesTheDeletionOfAPage()
{
    RibbonStackedWidget stack(nullptr);
    for (const QString &title : {QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("C")})
        stack.addPage(title);
    delete stack.page(2);
    QCOMPARE(stack.page(2), nullptr);
    stack.hidePage(2);
    stack.showPage(2);
    delete stack.page(0);
    QCOMPARE(stack.count(), 1);
    QCOMPARE(stack.currentIndex(), 0);
    stack.hidePage(0);
    QVERIFY(stack.page(0)->isHidden());
    stack.addPage(QStringLiteral("D"));
    QCOMPARE(stack.count(), 2);
}

NORVANE_TEST_MAIN(tst_RibbonStackedWidget)
#include "tst_RibbonStackedWidget.moc"
