// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "Gui.h"
#include "TestCase.h"

#include <ribbon/RibbonTab.h>
#include <ribbon/RibbonTabBar.h>

#include <QtTest/QSignalSpy>
#include <QtWidgets/QButtonGroup>
#include <QtWidgets/QLayout>

#include <limits>

using namespace Norvane;

class tst_RibbonTabBar : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void hasOneSignalOfItsOwn();
    void isAlwaysTwentyEightPixelsHigh();
    void laysItsTabsOut();
    void laysItsTabsOutFromRightToLeft();
    void ownsTheGroupThatNumbersItsTabs();
    void checksOnlyTheFirstTab();
    void acceptsATextTwice();
    void knowsWhichTabsAreTemporary();
    void keepsATemporaryTabVisible();
    void checksATabWithoutAClick();
    void hidesAndShowsATab();
    void disablesAndEnablesATab();
    void ignoresIndexesOutOfRange_data();
    void ignoresIndexesOutOfRange();
    void reportsAClickOnce();
    void reportsAClickOnTheCheckedTab();
    void reportsNoClickOfAnotherKind();
    void takesNoFocusByAClick();
    void standsTemporaryTabsOnABlock();
    void standsNoHiddenTabOnABlock();
    void followsAFlagSetLater();
    void drawsNoFrame();
};

namespace {

const QColor Background(10, 20, 30);
const QColor Block(17, 113, 190);

/*
    A tab bar in a window of a known colour, its tabs see-through and of a known size: what is seen
    is the block behind them.
*/
struct Window : QWidget
{
    Window()
    {
        setStyleSheet(QStringLiteral(
            "Norvane--RibbonTabBar { border: none; background-color: transparent; }"
            "Norvane--RibbonTab { min-width: 40px; max-width: 40px; min-height: 25px;"
            "    max-height: 25px; border: none; background-color: transparent; }"));
        QPalette colours = palette();
        colours.setColor(QPalette::Window, Background);
        setPalette(colours);
        resize(400, 60);
        bar.move(20, 10);
    }

    RibbonTab *tab(int index) const
    {
        return qobject_cast<RibbonTab *>(bar.findChild<QButtonGroup *>()->button(index));
    }

    bool open()
    {
        bar.resize(bar.sizeHint());
        return Gui::open(this);
    }

    RibbonTabBar bar{this};
};

} // namespace

void tst_RibbonTabBar::hasOneSignalOfItsOwn()
{
    const QMetaObject &meta = RibbonTabBar::staticMetaObject;
    QCOMPARE(meta.className(), "Norvane::RibbonTabBar");
    QCOMPARE(meta.superClass(), &QFrame::staticMetaObject);
    QCOMPARE(meta.methodCount(), meta.methodOffset() + 1);
    QCOMPARE(meta.method(meta.methodOffset()).methodSignature(), "idClicked(int)");
    QCOMPARE(meta.method(meta.methodOffset()).methodType(), QMetaMethod::Signal);
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
}

void tst_RibbonTabBar::isAlwaysTwentyEightPixelsHigh()
{
    RibbonTabBar bar(nullptr);
    QCOMPARE(bar.minimumHeight(), 28);
    QCOMPARE(bar.maximumHeight(), 28);
    QFont font = bar.font();
    font.setPixelSize(60);
    bar.setFont(font);
    bar.addTab(QStringLiteral("Large"), false);
    QVERIFY(Gui::open(&bar));
    QCOMPARE(bar.height(), 28);
}

void tst_RibbonTabBar::laysItsTabsOut()
{
    Window window;
    for (const QString &text : {QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("C")})
        window.bar.addTab(text, false);
    QVERIFY(window.open());
    QCOMPARE(window.tab(0)->geometry(), QRect(3, 3, 40, 25));
    QCOMPARE(window.tab(1)->geometry(), QRect(3 + 40 + 4, 3, 40, 25));
    QCOMPARE(window.tab(2)->geometry(), QRect(3 + 2 * (40 + 4), 3, 40, 25));
    QCOMPARE(window.bar.size(), QSize(3 + 3 * 40 + 2 * 4 + 3, 28));

    window.bar.hideTab(1);
    window.bar.resize(window.bar.sizeHint());
    QTRY_COMPARE(window.tab(2)->geometry(), QRect(3 + 40 + 4, 3, 40, 25));
}

void tst_RibbonTabBar::laysItsTabsOutFromRightToLeft()
{
    Window window;
    window.setLayoutDirection(Qt::RightToLeft);
    window.bar.addTab(QStringLiteral("A"), false);
    window.bar.addTab(QStringLiteral("B"), false);
    QVERIFY(window.open());
    QCOMPARE(window.tab(1)->x(), 3);
    QCOMPARE(window.tab(0)->x(), 3 + 40 + 4);
}

void tst_RibbonTabBar::ownsTheGroupThatNumbersItsTabs()
{
    RibbonTabBar bar(nullptr);
    const auto *group = bar.findChild<QButtonGroup *>(Qt::FindDirectChildrenOnly);
    QVERIFY(group);
    QVERIFY(group->exclusive());
    QCOMPARE(bar.count(), 0);
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(bar.addTab(QString::number(i), i == 1), i);
        QCOMPARE(bar.count(), i + 1);
        QCOMPARE(group->button(i)->text(), QString::number(i));
        QCOMPARE(group->button(i)->parentWidget(), &bar);
    }
}

void tst_RibbonTabBar::checksOnlyTheFirstTab()
{
    Window window;
    window.bar.addTab(QStringLiteral("A"), true);
    window.bar.addTab(QStringLiteral("B"), false);
    QVERIFY(window.tab(0)->isChecked());
    QVERIFY(!window.tab(1)->isChecked());
    window.bar.setCurrentIndex(1);
    window.bar.addTab(QStringLiteral("C"), false);
    QVERIFY(window.tab(1)->isChecked());
}

void tst_RibbonTabBar::acceptsATextTwice()
{
    Window window;
    QCOMPARE(window.bar.addTab(QStringLiteral("A"), false), 0);
    QCOMPARE(window.bar.addTab(QStringLiteral("A"), false), 1);
    QCOMPARE(window.bar.addTab(QString(), false), 2);
    QCOMPARE(window.bar.addTab(QString(), false), 3);
    QCOMPARE(window.bar.count(), 4);
    for (int i = 0; i < 4; ++i)
        QCOMPARE(window.tab(i)->isChecked(), i == 0);
}

void tst_RibbonTabBar::knowsWhichTabsAreTemporary()
{
    Window window;
    window.bar.addTab(QStringLiteral("A"), false);
    window.bar.addTab(QStringLiteral("B"), true);
    QVERIFY(!window.bar.isTabTemporary(0));
    QVERIFY(window.bar.isTabTemporary(1));
    QVERIFY(!window.tab(0)->isTemporary());
    QVERIFY(window.tab(1)->isTemporary());
}

void tst_RibbonTabBar::keepsATemporaryTabVisible()
{
    Window window;
    window.bar.addTab(QStringLiteral("A"), true);
    QVERIFY(window.open());
    QVERIFY(window.tab(0)->isVisible());
}

void tst_RibbonTabBar::checksATabWithoutAClick()
{
    Window window;
    const QSignalSpy clicks(&window.bar, &RibbonTabBar::idClicked);
    for (const QString &text : {QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("C")})
        window.bar.addTab(text, false);
    for (int current : {2, 1, 1, 0}) {
        window.bar.setCurrentIndex(current);
        for (int i = 0; i < 3; ++i)
            QCOMPARE(window.tab(i)->isChecked(), i == current);
    }
    window.bar.setTabEnabled(1, false);
    window.bar.hideTab(1);
    window.bar.setCurrentIndex(1);
    QVERIFY(window.tab(1)->isChecked());
    QVERIFY(!window.tab(0)->isChecked());
    QCOMPARE(clicks.count(), 0);
}

void tst_RibbonTabBar::hidesAndShowsATab()
{
    Window window;
    window.bar.addTab(QStringLiteral("A"), false);
    window.bar.addTab(QStringLiteral("B"), false);
    QVERIFY(window.open());
    window.bar.hideTab(1);
    QVERIFY(!window.tab(1)->isVisible());
    QVERIFY(window.tab(0)->isVisible());
    window.bar.showTab(1);
    QVERIFY(window.tab(1)->isVisible());
    window.bar.hideTab(0);
    QVERIFY(!window.tab(0)->isVisible());
    QVERIFY(window.tab(0)->isChecked());
}

void tst_RibbonTabBar::disablesAndEnablesATab()
{
    Window window;
    window.bar.addTab(QStringLiteral("A"), false);
    window.bar.addTab(QStringLiteral("B"), false);
    window.bar.setTabEnabled(1, false);
    QVERIFY(!window.tab(1)->isEnabled());
    QVERIFY(window.tab(0)->isEnabled());
    window.bar.setTabEnabled(1, true);
    QVERIFY(window.tab(1)->isEnabled());
}

void tst_RibbonTabBar::ignoresIndexesOutOfRange_data()
{
    QTest::addColumn<int>("index");
    QTest::newRow("count") << 2;
    QTest::newRow("greatest") << std::numeric_limits<int>::max();
    QTest::newRow("-1") << -1;
    QTest::newRow("least") << std::numeric_limits<int>::min();
}

void tst_RibbonTabBar::ignoresIndexesOutOfRange()
{
    QFETCH(int, index);
    Window window;
    const auto misuse = [&] {
        window.bar.hideTab(index);
        window.bar.setTabEnabled(index, false);
        window.bar.setCurrentIndex(index);
        QVERIFY(!window.bar.isTabTemporary(index));
    };
    misuse();
    window.bar.addTab(QStringLiteral("A"), true);
    window.bar.addTab(QStringLiteral("B"), true);
    window.bar.setCurrentIndex(1);
    misuse();
    for (int i = 0; i < 2; ++i) {
        QVERIFY(!window.tab(i)->isHidden());
        QVERIFY(window.tab(i)->isEnabled());
        QCOMPARE(window.tab(i)->isChecked(), i == 1);
    }
    window.bar.hideTab(0);
    window.bar.showTab(index);
    QVERIFY(window.tab(0)->isHidden());
}

void tst_RibbonTabBar::reportsAClickOnce()
{
    Window window;
    for (const QString &text : {QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("C")})
        window.bar.addTab(text, false);
    QVERIFY(window.open());
    QSignalSpy clicks(&window.bar, &RibbonTabBar::idClicked);
    Gui::press(window.tab(2), {5, 5});
    QCOMPARE(clicks.count(), 0);
    Gui::release(window.tab(2), {5, 5});
    QCOMPARE(clicks.count(), 1);
    QCOMPARE(clicks.takeFirst(), QVariantList{2});
    for (int i = 0; i < 3; ++i)
        QCOMPARE(window.tab(i)->isChecked(), i == 2);
    Gui::click(window.tab(0));
    QCOMPARE(clicks.count(), 1);
    QCOMPARE(clicks.takeFirst(), QVariantList{0});
    QVERIFY(window.tab(0)->isChecked());
    QVERIFY(!window.tab(2)->isChecked());
}

void tst_RibbonTabBar::reportsAClickOnTheCheckedTab()
{
    Window window;
    window.bar.addTab(QStringLiteral("A"), false);
    window.bar.addTab(QStringLiteral("B"), false);
    QVERIFY(window.open());
    QSignalSpy clicks(&window.bar, &RibbonTabBar::idClicked);
    Gui::click(window.tab(0));
    QCOMPARE(clicks.count(), 1);
    QCOMPARE(clicks.takeFirst(), QVariantList{0});
    QVERIFY(window.tab(0)->isChecked());
}

void tst_RibbonTabBar::reportsNoClickOfAnotherKind()
{
    Window window;
    for (const QString &text : {QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("C")})
        window.bar.addTab(text, false);
    QVERIFY(window.open());
    const QSignalSpy clicks(&window.bar, &RibbonTabBar::idClicked);

    Gui::click(window.tab(1), Qt::RightButton);
    Gui::click(window.tab(1), Qt::MiddleButton);
    Gui::press(window.tab(1), {5, 5});
    Gui::moveMouse(window.tab(2), {5, 5});
    Gui::release(window.tab(2), {5, 5});
    Gui::click(&window.bar, {1, 1});
    window.bar.setTabEnabled(1, false);
    Gui::click(window.tab(1));
    const QPoint lastTab = window.tab(2)->geometry().center();
    window.bar.hideTab(2);
    Gui::click(&window.bar, lastTab);

    QCOMPARE(clicks.count(), 0);
    QVERIFY(window.tab(0)->isChecked());
}

void tst_RibbonTabBar::takesNoFocusByAClick()
{
    Window window;
    window.bar.addTab(QStringLiteral("A"), false);
    window.bar.addTab(QStringLiteral("B"), false);
    window.setFocusPolicy(Qt::StrongFocus);
    window.setFocus();
    QVERIFY(window.open());
    QVERIFY(QTest::qWaitForWindowActive(&window, patience));
    QTRY_VERIFY(window.hasFocus());
    Gui::click(window.tab(1));
    QVERIFY(window.tab(1)->isChecked());
    QVERIFY(window.hasFocus());
}

void tst_RibbonTabBar::standsTemporaryTabsOnABlock()
{
    Window window;
    const QList<bool> temporary{true, false, true, true, false};
    for (bool flag : temporary)
        window.bar.addTab(QString(), flag);
    window.bar.setTabEnabled(3, false);
    QVERIFY(window.open());
    for (Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        window.setLayoutDirection(direction);
        const int step = direction == Qt::LeftToRight ? 44 : -44;
        const int first = direction == Qt::LeftToRight ? 3 : 3 + 4 * 44;
        QTRY_COMPARE(window.tab(0)->x(), first);

        const QImage picture = Gui::picture(&window);
        for (int y = 0; y < window.height(); ++y) {
            for (int x = 0; x < window.width(); ++x) {
                // From 2 pixels left of a tab to 2 pixels right, from the bar's top to its bottom.
                bool inBlock = false;
                for (int i = 0; i < temporary.size(); ++i) {
                    const int left = window.bar.x() + first + i * step - 2;
                    inBlock |= temporary[i] && x >= left && x < left + 44 && y >= window.bar.y()
                        && y < window.bar.y() + 28;
                }
                const QColor seen = Gui::pixel(picture, {x, y});
                QVERIFY2(seen == (inBlock ? Block : Background),
                         qPrintable(QStringLiteral("%1 at %2, %3").arg(seen.name()).arg(x).arg(y)));
            }
        }
    }
}

void tst_RibbonTabBar::standsNoHiddenTabOnABlock()
{
    Window window;
    window.bar.addTab(QString(), false);
    window.bar.addTab(QString(), true);
    QVERIFY(window.open());
    const QPoint inBlock = window.bar.pos() + window.tab(1)->geometry().center();
    QCOMPARE(Gui::pixel(&window, inBlock), Block);
    window.bar.hideTab(1);
    QCOMPARE(Gui::pixel(&window, inBlock), Background);
    window.bar.showTab(1);
    QTRY_COMPARE(Gui::pixel(&window, inBlock), Block);
}

void tst_RibbonTabBar::followsAFlagSetLater()
{
    Window window;
    window.bar.addTab(QString(), false);
    QVERIFY(window.open());
    const QPoint inBlock = window.bar.pos() + window.tab(0)->geometry().center();
    window.tab(0)->setTemporary(true);
    QCOMPARE(Gui::pixel(&window, inBlock), Block);
    QVERIFY(window.bar.isTabTemporary(0));
    window.tab(0)->setTemporary(false);
    QCOMPARE(Gui::pixel(&window, inBlock), Background);
}

void tst_RibbonTabBar::drawsNoFrame()
{
    RibbonTabBar bar(nullptr);
    bar.setFrameStyle(QFrame::Box | QFrame::Plain);
    bar.setLineWidth(3);
    QPalette colours = bar.palette();
    colours.setColor(QPalette::Window, Background);
    colours.setColor(QPalette::WindowText, Qt::red);
    bar.setPalette(colours);
    bar.resize(200, 28);
    QVERIFY(Gui::open(&bar));
    for (const QPoint point : {QPoint(0, 0), QPoint(100, 1), QPoint(199, 27), QPoint(1, 14)})
        QCOMPARE(Gui::pixel(&bar, point), Background);
}

NORVANE_TEST_MAIN(tst_RibbonTabBar)
#include "tst_RibbonTabBar.moc"
