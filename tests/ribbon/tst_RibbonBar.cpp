// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "RibbonWindow.h"
#include "TestCase.h"

#include <Norvane/RibbonCorner.h>

#include <QtCore/QFile>
#include <QtTest/QSignalSpy>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>

#include <limits>
#include <memory>

using namespace Norvane;

class tst_RibbonBar : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void hasOneSignalOfItsOwn();
    void startsEmpty();
    void hasANameASheetAndAMenuPolicy();
    void doesWithoutItsSheet();
    void standsItsTabsAndCornerOverItsPages();
    void keepsTheHeightOfItsConstruction();
    void mirrorsItsTabsAndCorner();

    void makesAPage();
    void takesAPage();
    void hidesTheTabOfATemporaryPageThatItMakes();
    void showsTheTabOfATemporaryPageThatItTakes();
    void showsTheFirstPageAgainWhenItMakesAPage();
    void keepsTheCurrentPageWhenItTakesAPage();
    void ignoresANullPage();
    void ignoresAPageThatItHas();
    void ignoresAPageOfAnotherBar();
    void takesAPageOfAnotherWidget();
    void takesTitlesAsTheyAre_data();
    void takesTitlesAsTheyAre();
    void findsItsPages();

    void makesAPageCurrentByIndex();
    void makesAPageCurrentByPage();
    void makesAHiddenPageCurrent();
    void ignoresAForeignPageAsCurrent();
    void hidesAndShowsAPageAndItsTab();
    void boundsHidingByTheNumberOfTitles();
    void disablesOnlyTheTab();
    void hidesTemporaryPagesTogether();
    void leavesAHiddenTemporaryPageCurrent();
    void ignoresIndexesOutOfRange_data();
    void ignoresIndexesOutOfRange();

    void reportsAClickOnceAndAfterTheChange();
    void reportsAClickOnTheCurrentTab();
    void reportsNothingButClicks();
    void asksForAContextMenuWhereverItIsClicked();

    void drawsItsBackgrounds();
    void drawsTabsInEachState();
    void drawsRoundTabs();
    void sizesTabs();
    void standsTemporaryTabsOnABlock();
    void drawsTitlesAndSeparatorsOfGroups();

    void leavesTheWindowAsWideAsAsked_data();
    void leavesTheWindowAsWideAsAsked();
    void clipsGroupsThatDoNotFit();
    void clipsAtTheEndInRightToLeftLayout();
    void paintsAPageOncePerSwitch();

    void survivesTheDeletionOfAPage_data();
    void survivesTheDeletionOfAPage();
    void survivesTheDeletionOfACornerWidget();
    void isDeletedBeforeItsWindow();
    void isDeletedByAClick();
    void isTheOwnerOfItsPages();
};

namespace {

const QColor BarColour(0, 64, 115);
const QColor StackColour(245, 245, 245);
const QColor BlockColour(17, 113, 190);
const QColor HoverColour(38, 140, 221);

// All that the bar's operations can change, to compare before and after.
QStringList state(const RibbonWindow &window)
{
    const auto *group = window.tabBar()->findChild<QButtonGroup *>();
    QStringList lines{QStringLiteral("tab %1, page %2 of %3")
                          .arg(group->checkedId())
                          .arg(window.stack()->currentIndex())
                          .arg(window.stack()->count())};
    for (int i = 0; i < group->buttons().size(); ++i) {
        const RibbonTab *tab = window.tab(i);
        const QWidget *page = window.stack()->widget(i);
        lines << QStringLiteral(
                     "%1: tab hidden %2 enabled %3 temporary %4, page hidden %5 enabled %6")
                     .arg(tab->text())
                     .arg(tab->isHidden())
                     .arg(tab->isEnabled())
                     .arg(tab->isTemporary())
                     .arg(page && page->isHidden())
                     .arg(page && page->isEnabled());
    }
    return lines;
}

bool checkedOnly(const RibbonWindow &window, int index)
{
    for (int i = 0; i < window.tabBar()->count(); ++i) {
        if (window.tab(i)->isChecked() != (i == index))
            return false;
    }
    return true;
}

} // namespace

void tst_RibbonBar::hasOneSignalOfItsOwn()
{
    const QMetaObject &meta = RibbonBar::staticMetaObject;
    QCOMPARE(meta.className(), "Norvane::RibbonBar");
    QCOMPARE(meta.superClass(), &QFrame::staticMetaObject);
    QCOMPARE(meta.methodCount(), meta.methodOffset() + 1);
    const QMetaMethod signal = meta.method(meta.methodOffset());
    QCOMPARE(signal.methodSignature(), "signalCurrentPageChanged(int)");
    QCOMPARE(signal.parameterNames(), QByteArrayList{"index"});
    QCOMPARE(signal.methodType(), QMetaMethod::Signal);
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
}

void tst_RibbonBar::startsEmpty()
{
    QWidget parent;
    RibbonBar bar(&parent);
    QCOMPARE(bar.parentWidget(), &parent);
    QCOMPARE(bar.count(), 0);
    QCOMPARE(bar.currentPage(), nullptr);
    QCOMPARE(bar.page(0), nullptr);
    QCOMPARE(bar.indexOf(nullptr), -1);
    QVERIFY(!bar.contains(nullptr));
    bar.setCurrentIndex(0);
    bar.setCurrentPage(nullptr);
    bar.hideTemporaryPages();
    QCOMPARE(bar.currentPage(), nullptr);
    QVERIFY(bar.corner());
    QVERIFY(bar.isAncestorOf(bar.corner()));
    QVERIFY(!bar.findChild<RibbonTab *>());
}

void tst_RibbonBar::hasANameASheetAndAMenuPolicy()
{
    const RibbonBar bar;
    QCOMPARE(bar.objectName(), QStringLiteral("RibbonBar"));
    QCOMPARE(bar.contextMenuPolicy(), Qt::CustomContextMenu);
    QFile sheet(QStringLiteral(":/res/ribbonLight.css"));
    QVERIFY(sheet.open(QIODevice::ReadOnly));
    const QByteArray text = sheet.readAll();
    QVERIFY(text.size() > 7000);
    QCOMPARE(bar.styleSheet(), QString::fromUtf8(text));
}

void tst_RibbonBar::doesWithoutItsSheet()
{
    Q_CLEANUP_RESOURCE(norvane_ribbon);
    const bool missing = !QFile::exists(QStringLiteral(":/res/ribbonLight.css"));
    const auto bar = std::make_unique<RibbonBar>();
    Q_INIT_RESOURCE(norvane_ribbon);
    QVERIFY(missing);
    QVERIFY(QFile::exists(QStringLiteral(":/res/ribbonLight.css")));
    QCOMPARE(bar->styleSheet(), QString());
    QCOMPARE(bar->height(), 123);
}

void tst_RibbonBar::standsItsTabsAndCornerOverItsPages()
{
    RibbonWindow window;
    window.addPages(2);
    QVERIFY(window.open());
    const RibbonCorner *corner = window.bar->corner();
    for (int width : {800, 500}) {
        window.resize(width, 300);
        QTRY_COMPARE(window.stack()->geometry(), QRect(0, 28, width, 95));
        QCOMPARE(window.tabBar()->geometry(), QRect(0, 0, 3 + 100 + 4 + 100 + 3, 28));
        QCOMPARE(corner->x(), width - 5);
        QCOMPARE(corner->width(), 5);
        QCOMPARE(window.bar->currentPage()->geometry(), QRect(0, 0, width, 95));
    }
    auto *button = new QWidget;
    button->setFixedSize(30, 20);
    window.bar->corner()->addWidget(button);
    QTRY_COMPARE(corner->width(), 35);
    QCOMPARE(corner->geometry().right(), 499);
    QCOMPARE(button->mapTo(&window, QPoint(29, 0)).x(), 494);
}

void tst_RibbonBar::keepsTheHeightOfItsConstruction()
{
    RibbonWindow window;
    QCOMPARE(window.bar->minimumHeight(), 123);
    QCOMPARE(window.bar->maximumHeight(), 123);

    auto *tall = new QWidget;
    tall->setFixedSize(20, 60);
    window.bar->corner()->addWidget(tall);
    window.addPages(2);
    window.bar->page(0)->setMinimumHeight(300);
    auto *content = new QWidget;
    content->setFixedSize(20, 200);
    window.bar->page(1)->addGroup(QString())->addWidget(content);
    QVERIFY(window.open());
    QCOMPARE(window.bar->height(), 123);
    // What is too tall is cut; the rows keep their places.
    QCOMPARE(window.tabBar()->geometry().bottom(), 27);
    QCOMPARE(window.stack()->geometry(), QRect(0, 28, 800, 95));
    window.bar->setCurrentIndex(1);
    QCoreApplication::processEvents();
    QCOMPARE(window.bar->height(), 123);
    QCOMPARE(window.stack()->geometry(), QRect(0, 28, 800, 95));
}

void tst_RibbonBar::mirrorsItsTabsAndCorner()
{
    RibbonWindow window;
    window.setLayoutDirection(Qt::RightToLeft);
    window.addPages(2);
    QVERIFY(window.open());
    QCOMPARE(window.tabBar()->geometry().right(), 799);
    QCOMPARE(window.tab(0)->x(), 3 + 100 + 4);
    QCOMPARE(window.tab(1)->x(), 3);
    QCOMPARE(window.bar->corner()->geometry(), QRect(0, 0, 5, window.bar->corner()->height()));
    QCOMPARE(window.stack()->geometry(), QRect(0, 28, 800, 95));

    QSignalSpy changes(window.bar, &RibbonBar::signalCurrentPageChanged);
    Gui::click(window.tab(1));
    QCOMPARE(changes.count(), 1);
    QCOMPARE(changes.takeFirst(), QVariantList{1});
}

void tst_RibbonBar::makesAPage()
{
    RibbonWindow window;
    const QSignalSpy changes(window.bar, &RibbonBar::signalCurrentPageChanged);
    RibbonPage *a = window.bar->addPage(QStringLiteral("A"), false);
    RibbonPage *b = window.bar->addPage(QStringLiteral("B"), false);
    QCOMPARE(a->metaObject(), &RibbonPage::staticMetaObject);
    QCOMPARE(window.bar->count(), 2);
    QCOMPARE(window.bar->page(0), a);
    QCOMPARE(window.bar->page(1), b);
    QCOMPARE(window.bar->currentPage(), a);
    QVERIFY(checkedOnly(window, 0));
    QCOMPARE(window.tab(1)->text(), QStringLiteral("B"));
    QVERIFY(!window.tab(1)->isTemporary());
    QVERIFY(!window.tab(1)->isHidden());
    QCOMPARE(changes.count(), 0);
}

void tst_RibbonBar::takesAPage()
{
    class OwnPage : public RibbonPage
    {
    };
    RibbonWindow window;
    auto *a = new OwnPage;
    auto *b = new RibbonPage;
    QCOMPARE(window.bar->addPage(QStringLiteral("A"), a, false), 0);
    QCOMPARE(window.bar->addPage(QStringLiteral("B"), b, false), 1);
    QCOMPARE(window.bar->page(0), a);
    QCOMPARE(window.bar->page(1), b);
    QCOMPARE(window.bar->currentPage(), a);
    QVERIFY(window.bar->isAncestorOf(b));
    QVERIFY(checkedOnly(window, 0));
    QCOMPARE(window.tab(1)->text(), QStringLiteral("B"));
    QVERIFY(!window.tab(1)->isTemporary());
}

void tst_RibbonBar::hidesTheTabOfATemporaryPageThatItMakes()
{
    RibbonWindow window;
    window.addPages(1);
    RibbonPage *page = window.bar->addPage(QStringLiteral("T"), true);
    QVERIFY(page);
    QCOMPARE(window.bar->indexOf(page), 1);
    QVERIFY(window.tab(1)->isTemporary());
    QVERIFY(window.tab(1)->isHidden());
    QVERIFY(window.open());
    QVERIFY(!window.tab(1)->isVisible());
    window.bar->showPage(1);
    QVERIFY(window.tab(1)->isVisible());

    RibbonWindow lone;
    lone.bar->addPage(QStringLiteral("T"), true);
    QVERIFY(lone.tab(0)->isHidden());
    QVERIFY(lone.tab(0)->isChecked());
    QCOMPARE(lone.stack()->currentIndex(), 0);
}

void tst_RibbonBar::showsTheTabOfATemporaryPageThatItTakes()
{
    RibbonWindow window;
    window.addPages(1);
    QCOMPARE(window.bar->addPage(QStringLiteral("T"), new RibbonPage, true), 1);
    QVERIFY(window.tab(1)->isTemporary());
    QVERIFY(window.open());
    QVERIFY(window.tab(1)->isVisible());
    window.bar->hideTemporaryPages();
    QVERIFY(!window.tab(1)->isVisible());
}

void tst_RibbonBar::showsTheFirstPageAgainWhenItMakesAPage()
{
    RibbonWindow window;
    window.addPages(3);
    QVERIFY(window.open());
    const QSignalSpy changes(window.bar, &RibbonBar::signalCurrentPageChanged);
    Gui::click(window.tab(2));
    QCOMPARE(window.bar->currentPage(), window.bar->page(2));

    window.bar->addPage(QStringLiteral("D"), false);
    QCOMPARE(window.bar->currentPage(), window.bar->page(0));
    QVERIFY(window.bar->page(0)->isVisible());
    QVERIFY(!window.bar->page(2)->isVisible());
    QVERIFY(checkedOnly(window, 2));
    QCOMPARE(changes.count(), 1);

    Gui::click(window.tab(2));
    QCOMPARE(window.bar->currentPage(), window.bar->page(2));
    window.bar->setCurrentIndex(1);
    window.bar->addPage(QStringLiteral("E"), true);
    QCOMPARE(window.bar->currentPage(), window.bar->page(0));
    QVERIFY(checkedOnly(window, 1));
}

void tst_RibbonBar::keepsTheCurrentPageWhenItTakesAPage()
{
    RibbonWindow window;
    window.addPages(3);
    window.bar->setCurrentIndex(2);
    window.bar->addPage(QStringLiteral("D"), new RibbonPage, false);
    QCOMPARE(window.bar->currentPage(), window.bar->page(2));
    QVERIFY(checkedOnly(window, 2));
}

void tst_RibbonBar::ignoresANullPage()
{
    RibbonWindow window;
    QCOMPARE(window.bar->addPage(QStringLiteral("A"), nullptr, false), -1);
    QCOMPARE(window.bar->count(), 0);
    QCOMPARE(window.tabBar()->count(), 0);
    window.addPages(2);
    const QStringList before = state(window);
    QCOMPARE(window.bar->addPage(QStringLiteral("N"), nullptr, true), -1);
    QCOMPARE(state(window), before);
}

void tst_RibbonBar::ignoresAPageThatItHas()
{
    RibbonWindow window;
    window.addPages(3);
    window.bar->setCurrentIndex(2);
    const QStringList before = state(window);
    QCOMPARE(window.bar->addPage(QStringLiteral("N"), window.bar->page(1), true), 1);
    QCOMPARE(state(window), before);
    // Nor does the title count for hiding.
    window.bar->addPage(QStringLiteral("A"), new RibbonPage, false);
    window.bar->showPage(3);
    QVERIFY(window.bar->page(3)->isHidden());
}

void tst_RibbonBar::ignoresAPageOfAnotherBar()
{
    RibbonWindow window;
    window.addPages(2);
    RibbonWindow other;
    other.addPages(2);
    const QStringList before = state(window);
    const QStringList otherBefore = state(other);
    QCOMPARE(window.bar->addPage(QStringLiteral("N"), other.bar->page(1), false), -1);
    QCOMPARE(state(window), before);
    QCOMPARE(state(other), otherBefore);
}

void tst_RibbonBar::takesAPageOfAnotherWidget()
{
    QWidget owner;
    auto *page = new RibbonPage(&owner);
    RibbonWindow window;
    QCOMPARE(window.bar->addPage(QStringLiteral("A"), page, false), 0);
    QVERIFY(window.bar->isAncestorOf(page));
}

void tst_RibbonBar::takesTitlesAsTheyAre_data()
{
    QTest::addColumn<QString>("title");
    QTest::newRow("empty") << QString();
    QTest::newRow("ampersand") << QStringLiteral("Cut && &paste &");
    QTest::newRow("two lines") << QStringLiteral("one\ntwo");
    QTest::newRow("right to left") << QStringLiteral("שלום עולם");
    QTest::newRow("long") << QString(3000, u'w');
}

void tst_RibbonBar::takesTitlesAsTheyAre()
{
    QFETCH(QString, title);
    RibbonWindow window;
    window.addPages(1);
    window.bar->addPage(title, false);
    QCOMPARE(window.bar->addPage(title, new RibbonPage, true), 2);
    QVERIFY(window.open());
    for (int i : {1, 2}) {
        QCOMPARE(window.tab(i)->text(), title);
        const int wanted = window.tab(i)->fontMetrics().horizontalAdvance(title) + 20;
        QCOMPARE(window.tab(i)->sizeHint().width(), wanted);
        if (wanted < 300)
            QCOMPARE(window.tab(i)->size(), QSize(qMax(100, wanted), 25));
    }
    QCOMPARE(window.bar->size(), QSize(800, 123));
    const QSignalSpy changes(window.bar, &RibbonBar::signalCurrentPageChanged);
    Gui::click(window.tab(1), {5, 5});
    QCOMPARE(changes.count(), 1);
    QCOMPARE(window.bar->currentPage(), window.bar->page(1));
}

void tst_RibbonBar::findsItsPages()
{
    RibbonWindow window;
    window.addPages(3);
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(window.bar->indexOf(window.bar->page(i)), i);
        QVERIFY(window.bar->contains(window.bar->page(i)));
    }
    RibbonPage foreign;
    QCOMPARE(window.bar->indexOf(&foreign), -1);
    QVERIFY(!window.bar->contains(&foreign));
    QCOMPARE(window.bar->indexOf(nullptr), -1);
    QVERIFY(!window.bar->contains(nullptr));

    window.stack()->addWidget(new QWidget);
    window.stack()->setCurrentIndex(3);
    QCOMPARE(window.bar->count(), 4);
    QCOMPARE(window.bar->page(3), nullptr);
    QCOMPARE(window.bar->currentPage(), nullptr);
}

void tst_RibbonBar::makesAPageCurrentByIndex()
{
    RibbonWindow window;
    window.addPages(3);
    QVERIFY(window.open());
    const QSignalSpy changes(window.bar, &RibbonBar::signalCurrentPageChanged);
    for (int index : {2, 0, 1, 1}) {
        window.bar->setCurrentIndex(index);
        QCOMPARE(window.bar->currentPage(), window.bar->page(index));
        QVERIFY(checkedOnly(window, index));
        for (int i = 0; i < 3; ++i)
            QCOMPARE(window.bar->page(i)->isVisible(), i == index);
    }
    QCOMPARE(changes.count(), 0);
}

void tst_RibbonBar::makesAPageCurrentByPage()
{
    RibbonWindow window;
    window.addPages(3);
    const QSignalSpy changes(window.bar, &RibbonBar::signalCurrentPageChanged);
    window.bar->setCurrentPage(window.bar->page(2));
    QCOMPARE(window.stack()->currentIndex(), 2);
    QVERIFY(checkedOnly(window, 2));
    QCOMPARE(changes.count(), 0);
}

void tst_RibbonBar::makesAHiddenPageCurrent()
{
    RibbonWindow window;
    window.addPages(3);
    QVERIFY(window.open());
    window.bar->hidePage(1);
    window.bar->setPageEnabled(1, false);
    window.bar->setCurrentIndex(1);
    QVERIFY(window.bar->page(1)->isVisible());
    QCOMPARE(window.bar->currentPage(), window.bar->page(1));
    QVERIFY(checkedOnly(window, 1));
    QVERIFY(!window.tab(1)->isVisible());
    QVERIFY(!window.tab(1)->isEnabled());
}

void tst_RibbonBar::ignoresAForeignPageAsCurrent()
{
    RibbonWindow window;
    window.addPages(3);
    window.bar->setCurrentIndex(1);
    const QStringList before = state(window);
    RibbonPage foreign;
    RibbonWindow other;
    other.addPages(3);
    window.bar->setCurrentPage(&foreign);
    window.bar->setCurrentPage(other.bar->page(2));
    window.bar->setCurrentPage(nullptr);
    QCOMPARE(state(window), before);
}

void tst_RibbonBar::hidesAndShowsAPageAndItsTab()
{
    RibbonWindow window;
    window.addPages(3);
    const QList<std::function<void(int)>> hiding{
        [&](int index) { window.bar->hidePage(index); },
        [&](int index) { window.bar->setPageHidden(index, true); },
        [&](int index) { window.bar->setPageVisible(index, false); },
    };
    const QList<std::function<void(int)>> showing{
        [&](int index) { window.bar->showPage(index); },
        [&](int index) { window.bar->setPageHidden(index, false); },
        [&](int index) { window.bar->setPageVisible(index, true); },
    };
    for (int i = 0; i < 3; ++i) {
        hiding[i](0);
        QVERIFY(window.tab(0)->isHidden());
        QVERIFY(window.bar->page(0)->isHidden());
        QCOMPARE(window.stack()->currentIndex(), 0);
        QVERIFY(checkedOnly(window, 0));
        showing[i](0);
        QVERIFY(!window.tab(0)->isHidden());
        QVERIFY(!window.bar->page(0)->isHidden());

        showing[i](2);
        QVERIFY(!window.tab(2)->isHidden());
        QVERIFY(!window.bar->page(2)->isHidden());
        QCOMPARE(window.stack()->currentIndex(), 0);
        hiding[i](2);
        QVERIFY(window.tab(2)->isHidden());
        QVERIFY(window.bar->page(2)->isHidden());
        QVERIFY(!window.tab(1)->isHidden());
    }
}

void tst_RibbonBar::boundsHidingByTheNumberOfTitles()
{
    RibbonWindow window;
    window.bar->addPage(QStringLiteral("A"), false);
    window.bar->addPage(QStringLiteral("B"), false);
    window.bar->addPage(QStringLiteral("A"), new RibbonPage, true);
    window.bar->setCurrentIndex(2);
    window.bar->hidePage(2);
    QVERIFY(window.tab(2)->isHidden());
    QVERIFY(!window.bar->page(2)->isHidden());
    window.bar->showPage(2);
    QVERIFY(!window.tab(2)->isHidden());
    window.bar->hideTemporaryPages();
    QVERIFY(window.tab(2)->isHidden());
    QVERIFY(!window.bar->page(2)->isHidden());

    window.bar->setCurrentIndex(0);
    window.bar->showPage(2);
    QVERIFY(!window.tab(2)->isHidden());
    QVERIFY(window.bar->page(2)->isHidden());
    window.bar->showPage(1);
    QVERIFY(!window.bar->page(1)->isHidden());
    window.bar->hidePage(1);
    QVERIFY(window.bar->page(1)->isHidden());
}

void tst_RibbonBar::disablesOnlyTheTab()
{
    RibbonWindow window;
    window.addPages(2);
    QVERIFY(window.open());
    window.bar->setPageEnabled(0, false);
    QVERIFY(!window.tab(0)->isEnabled());
    QVERIFY(window.bar->page(0)->isEnabled());
    QVERIFY(window.bar->page(0)->isVisible());
    window.bar->setPageEnabled(1, false);
    window.bar->setCurrentIndex(1);
    QCOMPARE(window.bar->currentPage(), window.bar->page(1));
    QVERIFY(window.bar->page(1)->isEnabled());

    const QSignalSpy changes(window.bar, &RibbonBar::signalCurrentPageChanged);
    Gui::click(window.tab(0));
    QCOMPARE(changes.count(), 0);
    QCOMPARE(window.bar->currentPage(), window.bar->page(1));
    window.bar->setPageEnabled(0, true);
    Gui::click(window.tab(0));
    QCOMPARE(changes.count(), 1);
}

void tst_RibbonBar::hidesTemporaryPagesTogether()
{
    RibbonWindow window;
    window.bar->addPage(QStringLiteral("A"), false);
    window.bar->addPage(QStringLiteral("B"), true);
    window.bar->addPage(QStringLiteral("C"), new RibbonPage, true);
    window.bar->addPage(QStringLiteral("D"), new RibbonPage, false);
    for (int i = 0; i < 4; ++i)
        window.bar->showPage(i);
    window.bar->hideTemporaryPages();
    for (int i = 0; i < 4; ++i) {
        const bool temporary = i == 1 || i == 2;
        QCOMPARE(window.tab(i)->isHidden(), temporary);
        QCOMPARE(window.bar->page(i)->isHidden(), temporary);
    }
    const QStringList before = state(window);
    window.bar->hideTemporaryPages();
    QCOMPARE(state(window), before);
}

void tst_RibbonBar::leavesAHiddenTemporaryPageCurrent()
{
    RibbonWindow window;
    window.addPages(1);
    window.bar->addPage(QStringLiteral("T"), new RibbonPage, true);
    window.addPatch(window.bar->page(1), Qt::red, 400);
    QVERIFY(window.open());
    const QSignalSpy changes(window.bar, &RibbonBar::signalCurrentPageChanged);
    window.bar->setCurrentIndex(1);
    QCOMPARE(Gui::pixel(window.stack(), {100, 40}), QColor(Qt::red));
    window.bar->hideTemporaryPages();
    QCOMPARE(window.bar->currentPage(), window.bar->page(1));
    QVERIFY(!window.bar->page(1)->isVisible());
    QVERIFY(checkedOnly(window, 1));
    QCOMPARE(Gui::pixel(window.stack(), {100, 40}), StackColour);
    QCOMPARE(changes.count(), 0);

    window.bar->setPageVisible(1, true);
    window.bar->setCurrentIndex(1);
    QCOMPARE(Gui::pixel(window.stack(), {100, 40}), QColor(Qt::red));
}

void tst_RibbonBar::ignoresIndexesOutOfRange_data()
{
    QTest::addColumn<int>("index");
    QTest::newRow("count") << 3;
    QTest::newRow("after count") << 4;
    QTest::newRow("greatest") << std::numeric_limits<int>::max();
    QTest::newRow("-1") << -1;
    QTest::newRow("-2") << -2;
    QTest::newRow("least") << std::numeric_limits<int>::min();
}

void tst_RibbonBar::ignoresIndexesOutOfRange()
{
    QFETCH(int, index);
    RibbonWindow window;
    const auto misuse = [&] {
        const QStringList before = state(window);
        window.bar->setCurrentIndex(index);
        window.bar->hidePage(index);
        window.bar->showPage(index);
        window.bar->setPageHidden(index, true);
        window.bar->setPageHidden(index, false);
        window.bar->setPageVisible(index, true);
        window.bar->setPageVisible(index, false);
        window.bar->setPageEnabled(index, false);
        QCOMPARE(window.bar->page(index), nullptr);
        QCOMPARE(state(window), before);
    };
    misuse();
    window.addPages(2);
    window.bar->addPage(QStringLiteral("T"), true);
    window.bar->setCurrentIndex(1);
    window.bar->hidePage(0);
    misuse();
}

void tst_RibbonBar::reportsAClickOnceAndAfterTheChange()
{
    RibbonWindow window;
    window.addPages(3);
    QVERIFY(window.open());
    QList<int> reported;
    connect(window.bar, &RibbonBar::signalCurrentPageChanged, &window, [&](int index) {
        reported << index;
        QCOMPARE(window.bar->currentPage(), window.bar->page(index));
        QVERIFY(checkedOnly(window, index));
    });
    Gui::press(window.tab(2), {50, 10});
    QVERIFY(reported.isEmpty());
    QCOMPARE(window.bar->currentPage(), window.bar->page(0));
    Gui::release(window.tab(2), {50, 10});
    QCOMPARE(reported, QList<int>{2});
    QVERIFY(window.bar->page(2)->isVisible());
    QVERIFY(!window.bar->page(0)->isVisible());
    Gui::click(window.tab(1));
    QCOMPARE(reported, (QList<int>{2, 1}));
}

void tst_RibbonBar::reportsAClickOnTheCurrentTab()
{
    RibbonWindow window;
    window.addPages(2);
    QVERIFY(window.open());
    QSignalSpy changes(window.bar, &RibbonBar::signalCurrentPageChanged);
    Gui::click(window.tab(0));
    QCOMPARE(changes.count(), 1);
    QCOMPARE(changes.takeFirst(), QVariantList{0});
    QVERIFY(checkedOnly(window, 0));
}

void tst_RibbonBar::reportsNothingButClicks()
{
    RibbonWindow window;
    const QSignalSpy changes(window.bar, &RibbonBar::signalCurrentPageChanged);
    window.addPages(3);
    window.bar->addPage(QStringLiteral("T"), new RibbonPage, true);
    QVERIFY(window.open());
    window.bar->setCurrentIndex(3);
    window.bar->hidePage(3);
    window.bar->showPage(3);
    window.bar->hideTemporaryPages();
    window.bar->setPageEnabled(1, false);
    window.bar->setCurrentPage(window.bar->page(1));
    window.bar->addPage(QStringLiteral("E"), false);
    Gui::click(window.tab(2), Qt::RightButton);
    Gui::click(window.bar, {600, 14});
    Gui::click(window.bar, {600, 80});
    QCOMPARE(changes.count(), 0);
}

void tst_RibbonBar::asksForAContextMenuWhereverItIsClicked()
{
    RibbonWindow window;
    window.addPages(2);
    window.bar->page(0)->addGroup(QStringLiteral("Group"));
    QVERIFY(window.open());
    QSignalSpy requests(window.bar, &QWidget::customContextMenuRequested);
    for (const QPoint position :
         {QPoint(600, 14), QPoint(150, 20), QPoint(600, 80), QPoint(10, 60)}) {
        Gui::click(window.bar, position, Qt::RightButton);
        QCOMPARE(requests.count(), 1);
        QCOMPARE(requests.takeFirst(), QVariantList{position});
    }
    QCOMPARE(window.bar->currentPage(), window.bar->page(0));
    QVERIFY(!QApplication::activePopupWidget());
}

void tst_RibbonBar::drawsItsBackgrounds()
{
    RibbonWindow window;
    window.addPages(2);
    window.bar->corner()->addWidget(new Patch(Qt::red, {20, 20}));
    QVERIFY(window.open());
    const QImage picture = Gui::picture(window.bar);
    // Right of the tabs, in the corner, and round the tabs.
    for (const QPoint point : {QPoint(400, 0), QPoint(400, 27), QPoint(797, 14), QPoint(1, 14),
                               QPoint(150, 1), QPoint(150, 26), QPoint(104, 20)})
        QCOMPARE(Gui::pixel(picture, point), BarColour);
    for (const QPoint point : {QPoint(0, 28), QPoint(799, 28), QPoint(0, 122), QPoint(799, 122)})
        QCOMPARE(Gui::pixel(picture, point), StackColour);
}

void tst_RibbonBar::drawsTabsInEachState()
{
    // The full block is a glyph whose inside has the text's colour without any blending.
    const QString solid(3, QChar(0x2588));
    RibbonWindow window;
    for (int i = 0; i < 3; ++i)
        window.bar->addPage(solid, false);
    window.bar->addPage(solid, new RibbonPage, true);
    QVERIFY(window.open());
    const auto background = [&](int tab) { return Gui::pixel(window.tab(tab), {8, 12}); };
    const auto text = [&](int tab) { return Gui::pixel(window.tab(tab), {50, 12}); };
    const auto inBar = [&](int tab) {
        return Gui::pixel(window.bar, window.tab(tab)->mapTo(window.bar, QPoint(8, 12)));
    };

    QCOMPARE(background(0), StackColour);
    QCOMPARE(text(0), QColor(Qt::black));
    QCOMPARE(inBar(1), BarColour);
    QCOMPARE(text(1), QColor(Qt::white));
    QCOMPARE(inBar(3), BlockColour);
    QCOMPARE(text(3), QColor(Qt::white));

    Gui::moveMouse(window.tab(1), {20, 10});
    QTRY_COMPARE(background(1), HoverColour);
    QCOMPARE(text(1), QColor(Qt::white));
    QCOMPARE(inBar(2), BarColour);
    Gui::moveMouse(window.tab(3), {20, 10});
    QTRY_COMPARE(background(3), HoverColour);
    QTRY_COMPARE(inBar(1), BarColour);
    Gui::moveMouse(window.tab(0), {20, 10});
    QTRY_COMPARE(inBar(3), BlockColour);
    QCOMPARE(background(0), StackColour);
    Gui::moveMouse(&window, {10, 290});

    window.tab(2)->setDown(true);
    QCOMPARE(background(2), HoverColour);
    window.tab(2)->setDown(false);
    QCOMPARE(inBar(2), BarColour);

    window.bar->setPageEnabled(2, false);
    QCOMPARE(background(2), QColor(248, 249, 250));
    QCOMPARE(text(2), QColor(173, 181, 189));
    window.bar->setPageEnabled(0, false);
    QCOMPARE(background(0), QColor(248, 249, 250));
    QCOMPARE(text(0), QColor(173, 181, 189));
}

void tst_RibbonBar::drawsRoundTabs()
{
    RibbonWindow window;
    window.bar->addPage(QString(), false);
    QVERIFY(window.open());
    const QImage picture = Gui::picture(window.bar);
    const QRect tab = window.tab(0)->geometry();
    QCOMPARE(tab, QRect(3, 3, 100, 25));
    for (const QPoint corner : {tab.topLeft(), tab.topRight()})
        QVERIFY(Gui::pixel(picture, corner) != StackColour);
    for (const QPoint corner : {tab.bottomLeft(), tab.bottomRight()})
        QCOMPARE(Gui::pixel(picture, corner), StackColour);
    QCOMPARE(Gui::pixel(picture, {tab.center().x(), tab.top()}), StackColour);
}

void tst_RibbonBar::sizesTabs()
{
    RibbonWindow window;
    const QString wide(30, u'w');
    for (const QString &title : {QString(), QStringLiteral("B"), wide, QStringLiteral("D")})
        window.bar->addPage(title, false);
    QVERIFY(window.open());
    QCOMPARE(window.tab(1)->font().pixelSize(), 12);
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(12);
    const int advance = QFontMetrics(font).horizontalAdvance(wide);
    QVERIFY(advance > 100);
    QCOMPARE(window.tab(0)->geometry(), QRect(3, 3, 100, 25));
    QCOMPARE(window.tab(1)->geometry(), QRect(107, 3, 100, 25));
    QCOMPARE(window.tab(2)->geometry(), QRect(211, 3, 20 + advance, 25));
    QCOMPARE(window.tab(3)->geometry(), QRect(211 + 20 + advance + 4, 3, 100, 25));
}

void tst_RibbonBar::standsTemporaryTabsOnABlock()
{
    RibbonWindow window;
    window.bar->addPage(QString(), false);
    window.bar->addPage(QString(), new RibbonPage, true);
    window.bar->addPage(QString(), new RibbonPage, false);
    window.bar->addPage(QString(), true);
    window.bar->addPage(QString(), new RibbonPage, true);
    QVERIFY(window.open());
    const auto check = [&](const QList<int> &lefts) {
        const QImage picture = Gui::picture(window.bar);
        for (int y = 0; y < 28; ++y) {
            for (int x = 0; x < 800; ++x) {
                if (window.tab(0)->geometry().contains(x, y))
                    continue;
                QColor expected = BarColour;
                for (int left : lefts) {
                    if (x >= left - 2 && x < left + 100 + 2)
                        expected = BlockColour;
                }
                if (Gui::pixel(picture, {x, y}) != expected)
                    return QPoint(x, y);
            }
        }
        return QPoint(-1, -1);
    };
    // The hidden fourth tab leaves its place to the fifth.
    QTRY_COMPARE(check({107, 315}), QPoint(-1, -1));
    window.bar->showPage(3);
    QTRY_COMPARE(check({107, 315, 419}), QPoint(-1, -1));
    window.bar->hideTemporaryPages();
    QTRY_COMPARE(check({}), QPoint(-1, -1));

    // A checked tab covers its block but for the border.
    window.bar->showPage(1);
    window.bar->setCurrentIndex(1);
    const QPoint left(106, 14);
    QTRY_COMPARE(Gui::pixel(window.bar, left), BlockColour);
    QCOMPARE(Gui::pixel(window.bar, {107, 14}), StackColour);
    QCOMPARE(Gui::pixel(window.bar, {157, 1}), BlockColour);
}

void tst_RibbonBar::drawsTitlesAndSeparatorsOfGroups()
{
    RibbonWindow window;
    window.addPages(1);
    RibbonGroup *group = window.bar->page(0)->addGroup(QString(6, QChar(0x2588)));
    QVERIFY(window.open());
    auto *title = group->findChild<QLabel *>(QStringLiteral("groupTitle"));
    auto *separator = group->findChild<QFrame *>(QStringLiteral("separator"));
    QVERIFY(title);
    QVERIFY(separator);
    const QImage text = Gui::picture(title);
    int inTitleColour = 0;
    for (int x = 0; x < title->width(); ++x)
        inTitleColour += Gui::pixel(text, {x, 6}) == QColor(97, 97, 97);
    QVERIFY2(inTitleColour >= 30, qPrintable(QString::number(inTitleColour)));
    for (int y : {1, 40, 78}) {
        QCOMPARE(Gui::pixel(window.bar, separator->mapTo(window.bar, QPoint(0, y))),
                 QColor(191, 191, 191));
    }
    const QPoint beside = separator->mapTo(window.bar, QPoint(2, 40));
    QCOMPARE(Gui::pixel(window.bar, beside), StackColour);
}

void tst_RibbonBar::leavesTheWindowAsWideAsAsked_data()
{
    QTest::addColumn<bool>("currentIsWide");
    QTest::addColumn<bool>("filledWhileOpen");
    QTest::newRow("current page, filled before") << true << false;
    QTest::newRow("current page, filled after") << true << true;
    QTest::newRow("hidden page, filled before") << false << false;
    QTest::newRow("hidden page, filled after") << false << true;
}

void tst_RibbonBar::leavesTheWindowAsWideAsAsked()
{
    QFETCH(bool, currentIsWide);
    QFETCH(bool, filledWhileOpen);
    RibbonWindow window(800);
    if (filledWhileOpen)
        QVERIFY(window.open());
    window.addPages(3);
    for (int i = currentIsWide ? 0 : 1; i < 3; ++i) {
        for (int j = 0; j < 10; ++j)
            window.addPatch(window.bar->page(i), Qt::red, 400);
    }
    if (!filledWhileOpen)
        QVERIFY(window.open());
    QCoreApplication::processEvents();
    QCOMPARE(window.width(), 800);
    QCOMPARE(window.bar->width(), 800);
    for (int i : {1, 2, 0}) {
        window.bar->setCurrentIndex(i);
        QCoreApplication::processEvents();
        QCOMPARE(window.width(), 800);
        QCOMPARE(window.stack()->width(), 800);
    }
    window.bar->showPage(1);
    window.resize(400, 300);
    QCoreApplication::processEvents();
    QCOMPARE(window.width(), 400);
    QCOMPARE(window.stack()->width(), 400);
}

void tst_RibbonBar::clipsGroupsThatDoNotFit()
{
    RibbonWindow window(800);
    window.addPages(1);
    RibbonPage *page = window.bar->page(0);
    const QList<QColor> colours{Qt::red, Qt::green, Qt::blue};
    QList<Patch *> patches;
    for (const QColor &colour : colours)
        patches << window.addPatch(page, colour, 500);
    QVERIFY(window.open());
    for (int width : {800, 2500, 600}) {
        window.resize(width, 300);
        QTRY_COMPARE(window.stack()->width(), width);
        int x = 3;
        for (int i = 0; i < 3; ++i) {
            QCOMPARE(page->group(i)->geometry(),
                     QRect(x, 0, page->group(i)->sizeHint().width(), 95));
            QCOMPARE(patches[i]->mapTo(page, QPoint()).x(), x);
            QVERIFY(page->group(i)->width() >= 500);
            x += page->group(i)->width();
        }
        const QImage picture = Gui::picture(window.bar);
        QCOMPARE(Gui::pixel(picture, {3, 28 + 40}), QColor(Qt::red));
        QCOMPARE(Gui::pixel(picture, {599, 28 + 40}), QColor(Qt::green));
        QCOMPARE(Gui::pixel(picture, {width - 1, 28 + 40}),
                 width == 2500 ? StackColour : QColor(Qt::green));
    }
}

void tst_RibbonBar::clipsAtTheEndInRightToLeftLayout()
{
    RibbonWindow window(800);
    window.setLayoutDirection(Qt::RightToLeft);
    window.addPages(1);
    RibbonPage *page = window.bar->page(0);
    for (const QColor &colour : {QColor(Qt::red), QColor(Qt::green), QColor(Qt::blue)})
        window.addPatch(page, colour, 500);
    QVERIFY(window.open());
    const int width = page->group(0)->sizeHint().width();
    for (int room : {800, 2500, 600, 700}) {
        window.resize(room, 300);
        QTRY_COMPARE(window.stack()->width(), room);
        for (int i = 0; i < 3; ++i)
            QTRY_COMPARE(page->group(i)->geometry(), QRect(room - (i + 1) * width, 0, width, 95));
        const QImage picture = Gui::picture(window.bar);
        QCOMPARE(Gui::pixel(picture, {room - 10, 28 + 40}), QColor(Qt::red));
        QCOMPARE(Gui::pixel(picture, {room - 490, 28 + 40}), QColor(Qt::red));
        QCOMPARE(Gui::pixel(picture, {room - 590, 28 + 40}), QColor(Qt::green));
        QCOMPARE(Gui::pixel(picture, {0, 28 + 40}), room == 2500 ? StackColour : QColor(Qt::green));
    }
    page->group(0)->hide();
    QTRY_COMPARE(page->group(1)->x(), 700 - width);
}

void tst_RibbonBar::paintsAPageOncePerSwitch()
{
    struct PaintCounter : QObject
    {
        bool eventFilter(QObject *watched, QEvent *event) override
        {
            if (event->type() == QEvent::Paint)
                ++paints[watched];
            return false;
        }
        QHash<QObject *, int> paints;
    } counter;
    RibbonWindow window;
    window.addPages(2);
    QList<Patch *> patches;
    for (int i = 0; i < 5; ++i)
        patches << window.addPatch(window.bar->page(1), Qt::red, 40);
    QVERIFY(window.open());
    for (int round = 0; round < 3; ++round) {
        window.bar->setCurrentIndex(0);
        QCoreApplication::processEvents();
        for (Patch *patch : std::as_const(patches))
            patch->installEventFilter(&counter);
        counter.paints.clear();
        window.bar->setCurrentIndex(1);
        QTRY_COMPARE(counter.paints.size(), patches.size());
        QCoreApplication::processEvents();
        for (Patch *patch : std::as_const(patches))
            QCOMPARE(counter.paints.value(patch), 1);
    }
}

void tst_RibbonBar::survivesTheDeletionOfAPage_data()
{
    QTest::addColumn<int>("index");
    QTest::newRow("current") << 0;
    QTest::newRow("middle") << 1;
    QTest::newRow("last") << 2;
}

void tst_RibbonBar::survivesTheDeletionOfAPage()
{
    QFETCH(int, index);
    RibbonWindow window;
    window.addPages(3);
    QVERIFY(window.open());
    delete window.bar->page(index);
    QCOMPARE(window.bar->count(), 2);
    QVERIFY(window.bar->currentPage());
    QCOMPARE(window.bar->page(2), nullptr);
    for (int i = 0; i < 4; ++i) {
        window.bar->setCurrentIndex(i);
        window.bar->hidePage(i);
        window.bar->showPage(i);
        window.bar->setPageEnabled(i, true);
    }
    window.bar->hideTemporaryPages();
    for (int i = 0; i < 3; ++i)
        Gui::click(window.tab(i));
    QVERIFY(window.bar->addPage(QStringLiteral("D"), false));
    QCoreApplication::processEvents();
}

void tst_RibbonBar::survivesTheDeletionOfACornerWidget()
{
    RibbonWindow window;
    auto *first = new Patch(Qt::red, {20, 20});
    auto *second = new Patch(Qt::green, {20, 20});
    window.bar->corner()->addWidget(first);
    window.bar->corner()->addWidget(second);
    QVERIFY(window.open());
    delete first;
    QTRY_COMPARE(window.bar->corner()->width(), 25);
    QCOMPARE(second->mapTo(&window, QPoint()).x(), 800 - 25);
}

void tst_RibbonBar::isDeletedBeforeItsWindow()
{
    RibbonWindow window;
    window.addPages(3);
    window.bar->corner()->addWidget(new Patch(Qt::red, {20, 20}));
    QVERIFY(window.open());
    delete window.bar;
    QCoreApplication::processEvents();
    QVERIFY(window.findChildren<QWidget *>().isEmpty());
}

void tst_RibbonBar::isDeletedByAClick()
{
    RibbonWindow window;
    window.addPages(3);
    QVERIFY(window.open());
    const QPointer<RibbonBar> bar = window.bar;
    connect(window.bar, &RibbonBar::signalCurrentPageChanged, &window, [&] { delete window.bar; });
    Gui::click(window.tab(1));
    QVERIFY(!bar);
}

void tst_RibbonBar::isTheOwnerOfItsPages()
{
    auto bar = std::make_unique<RibbonBar>();
    const QPointer<RibbonPage> made = bar->addPage(QStringLiteral("A"), true);
    const QPointer<RibbonPage> given = new RibbonPage;
    bar->addPage(QStringLiteral("B"), given, false);
    const QPointer<RibbonCorner> corner = bar->corner();
    bar.reset();
    QVERIFY(!made);
    QVERIFY(!given);
    QVERIFY(!corner);
}

NORVANE_TEST_MAIN(tst_RibbonBar)
#include "tst_RibbonBar.moc"
