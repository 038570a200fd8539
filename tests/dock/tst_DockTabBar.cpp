// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "Gui.h"
#include "Steps.h"
#include "TestCase.h"

#include <dock/DockTabBar.h>
#include <dock/DockTabWidget.h>
#include <style/StyleSheet.h>

#include <QtCore/QRandomGenerator>
#include <QtTest/QSignalSpy>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QLabel>
#include <QtWidgets/QProxyStyle>
#include <QtWidgets/QToolTip>
#include <QtWidgets/QVBoxLayout>

#include <memory>
#include <optional>

using namespace Norvane;
using namespace Qt::StringLiterals;

class tst_DockTabBar : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void looksLikeABarOfQt_data();
    void looksLikeABarOfQt();
    void hasNoWidgetsForItsButtons();
    void keepsSizesInStepWithTheTabs();
    void closesByPressAndRelease();
    void changesItsMindBesideTheButton();
    void closesADisabledTabLikeABarOfQt();
    void highlightsTheButtonUnderTheMouse();
    void namesTheButton();
    void hidesTheButtonsWhileATabIsMoved();
    void movesByTheKeyboard();
    void laysTabsOutLikeABarOfQt_data();
    void laysTabsOutLikeABarOfQt();
    void measuresOnlyTheTabsThatChange();
    void measuresTheNeighboursOfTheCurrentTab();
    void followsItsStyle();
    void showsThatTheButtonIsHeld();
    void paintsWhenTheButtonChanges();
    void leavesTheButtonsWhileNothingIsMoved();
    void forgetsTheButtonWhenTabsComeAndGo_data();
    void forgetsTheButtonWhenTabsComeAndGo();
};

namespace {

// A tab widget under the sheet, with our bar in it or with Qt's own.
class Host : public QWidget
{
public:
    explicit Host(bool ours, const QString &more = {})
        : tabs(ours ? new DockTabWidget : new QTabWidget)
    {
        setStyleSheet(StyleSheet::read(u":/res/dockLight.css"_s) + more);
        tabs->setObjectName(u"dockTabWidget"_s);
        tabs->tabBar()->setObjectName(u"dockTabBar"_s);
        tabs->setTabsClosable(true);
        tabs->setMovable(true);
        auto *column = new QVBoxLayout(this);
        column->addWidget(tabs);
        resize(500, 120);
    }

    bool open()
    {
        if (!Gui::open(this))
            return false;
        Gui::moveMouse(this, rect().bottomRight() - QPoint(1, 1));
        return true;
    }

    QTabBar *bar() const { return tabs->tabBar(); }

    QTabWidget *tabs;
};

using Way = std::function<void(Host &)>;

void add(Host &host, int count)
{
    for (int i = 0; i < count; ++i)
        host.tabs->addTab(new QWidget, u"document %1.txt"_s.arg(i));
}

QPoint buttonAt(const QTabBar *bar, int index)
{
    const QRect tab = bar->tabRect(index);
    return {tab.right() - 11, tab.center().y()};
}

QImage picture(QTabBar *bar, const QRect &part)
{
    const QImage whole = Gui::picture(bar);
    const qreal ratio = whole.devicePixelRatio();
    return whole.copy({part.topLeft() * ratio, part.size() * ratio});
}

constexpr QColor highlight(243, 144, 141);

// Whether the button of a tab shows this colour.
bool shows(const Host &host, int index, const QColor &colour)
{
    const QImage picture = Gui::picture(host.bar());
    const QPoint place = buttonAt(host.bar(), index);
    for (int y = place.y() - 8; y <= place.y() + 8; ++y) {
        for (int x = place.x() - 8; x <= place.x() + 8; ++x) {
            if (Gui::pixel(picture, {x, y}) == colour)
                return true;
        }
    }
    return false;
}

// Large close buttons on the left.
class LeftStyle : public QProxyStyle
{
public:
    explicit LeftStyle(QObject *parent) { setParent(parent); }

    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *data) const override
    {
        return hint == SH_TabBar_CloseButtonPosition
            ? int(QTabBar::LeftSide)
            : QProxyStyle::styleHint(hint, option, widget, data);
    }
    int pixelMetric(PixelMetric metric, const QStyleOption *option,
                    const QWidget *widget) const override
    {
        return metric == PM_TabCloseIndicatorWidth
            ? 34
            : QProxyStyle::pixelMetric(metric, option, widget);
    }
};

} // namespace

void tst_DockTabBar::looksLikeABarOfQt_data()
{
    QTest::addColumn<Way>("prepare");
    QTest::addColumn<QString>("more");
    QTest::newRow("one tab") << Way([](Host &host) { add(host, 1); }) << QString();
    QTest::newRow("three tabs") << Way([](Host &host) { add(host, 3); }) << QString();
    QTest::newRow("the last selected") << Way([](Host &host) {
        add(host, 3);
        host.tabs->setCurrentIndex(2);
    }) << QString();
    QTest::newRow("a little wider than the window") << Way([](Host &host) {
        add(host, 4);
        host.tabs->setCurrentIndex(1);
    }) << QString();
    QTest::newRow("wider than the window") << Way([](Host &host) { add(host, 12); }) << QString();
    QTest::newRow("scrolled to the end") << Way([](Host &host) {
        add(host, 12);
        host.tabs->setCurrentIndex(11);
    }) << QString();
    QTest::newRow("a hidden and a disabled tab") << Way([](Host &host) {
        add(host, 4);
        host.tabs->setTabVisible(0, false);
        host.tabs->setTabEnabled(2, false);
    }) << QString();
    QTest::newRow("texts and icons changed") << Way([](Host &host) {
        add(host, 3);
        host.tabs->setTabText(1, u"&a"_s);
        host.tabs->setTabIcon(0, QIcon(u":/res/menu.svg"_s));
    }) << QString();
    QTest::newRow("removed and inserted") << Way([](Host &host) {
        add(host, 3);
        host.tabs->removeTab(1);
        host.tabs->insertTab(0, new QWidget, u"first of all"_s);
        host.tabs->removeTab(2);
    }) << QString();
    QTest::newRow("not closable") << Way([](Host &host) {
        add(host, 3);
        host.tabs->setTabsClosable(false);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }) << QString();
    QTest::newRow("buttons of an application") << Way([](Host &host) {
        add(host, 4);
        host.bar()->setTabButton(1, QTabBar::RightSide, new QLabel(u"mine"_s));
        host.bar()->setTabButton(2, QTabBar::LeftSide, new QLabel(u"another"_s));
    }) << QString();
    const QString states =
        u"QTabBar#dockTabBar::close-button:selected { background: rgb(0, 99, 0); }"
        "QTabBar#dockTabBar::close-button:disabled { background: rgb(0, 0, 99); }"_s;
    QTest::newRow("buttons by state") << Way([](Host &host) {
        add(host, 3);
        host.tabs->setTabEnabled(2, false);
        host.tabs->setCurrentIndex(1);
    }) << states;
    QTest::newRow("a disabled bar") << Way([](Host &host) {
        add(host, 3);
        host.bar()->setEnabled(false);
    }) << states;
    for (const Qt::TextElideMode mode : {Qt::ElideRight, Qt::ElideMiddle}) {
        const auto cutShort = [mode](Host &host) {
            host.tabs->setElideMode(mode);
            host.tabs->setUsesScrollButtons(false);
            for (int i = 0; i < 7; ++i)
                host.tabs->addTab(new QWidget, u"a &long name of document %1.txt"_s.arg(i));
        };
        QTest::addRow("cut short, %d", int(mode)) << Way(cutShort) << QString();
    }
    QTest::newRow("an application's sheet")
        << Way([](Host &host) { add(host, 3); })
        << u"QTabBar#dockTabBar::tab:selected { font: bold; }"
           "QTabBar#dockTabBar::tab:last { padding-right: 30px; }"
           "QTabBar#dockTabBar::tab:first { padding-left: 25px; }"_s;
}

void tst_DockTabBar::looksLikeABarOfQt()
{
    QFETCH(Way, prepare);
    QFETCH(QString, more);
    for (const bool before : {true, false}) {
        QImage pictures[2];
        QList<QRect> places[2];
        for (const bool ours : {false, true}) {
            Host host(ours, more);
            if (before)
                prepare(host);
            QVERIFY(host.open());
            if (!before)
                prepare(host);
            QCoreApplication::processEvents();
            for (int i = 0; i < host.bar()->count(); ++i)
                places[ours] << host.bar()->tabRect(i);
            // Through their round corners the scroll buttons show a little of what lies below.
            int end = host.bar()->width();
            const QList<QAbstractButton *> buttons =
                host.bar()->findChildren<QAbstractButton *>(Qt::FindDirectChildrenOnly);
            for (const QAbstractButton *button : buttons) {
                if (button->isVisible() && button->inherits("QToolButton"))
                    end = qMin(end, button->x());
            }
            pictures[ours] = picture(host.bar(), {0, 0, end, host.bar()->height()});
        }
        QCOMPARE(places[true], places[false]);
        QCOMPARE(pictures[true], pictures[false]);
    }
}

void tst_DockTabBar::hasNoWidgetsForItsButtons()
{
    Host host(true);
    QVERIFY(host.open());
    add(host, 5);
    QVERIFY(host.tabs->tabsClosable());
    for (int i = 0; i < 5; ++i)
        QVERIFY(!host.bar()->tabButton(i, QTabBar::RightSide));
    const QList<QAbstractButton *> buttons = host.bar()->findChildren<QAbstractButton *>();
    QCOMPARE(buttons.size(), 2); // to scroll
}

void tst_DockTabBar::keepsSizesInStepWithTheTabs()
{
    Host host(true);
    QVERIFY(host.open());
    add(host, 3);
    const int width = host.bar()->tabRect(1).width();
    host.tabs->setTabText(1, u"a much longer text than before"_s);
    QVERIFY(host.bar()->tabRect(1).width() > width + 50);
    host.tabs->setTabText(1, u"document 1.txt"_s);
    QCOMPARE(host.bar()->tabRect(1).width(), width);
    QFont font = host.bar()->font();
    font.setPixelSize(30);
    host.bar()->setFont(font);
    QTRY_VERIFY(host.bar()->tabRect(1).width() > width + 50);
}

void tst_DockTabBar::closesByPressAndRelease()
{
    Host host(true);
    add(host, 3);
    QVERIFY(host.open());
    QSignalSpy requested(host.bar(), &QTabBar::tabCloseRequested);
    QSignalSpy clicked(host.bar(), &QTabBar::tabBarClicked);
    Gui::press(host.bar(), buttonAt(host.bar(), 1));
    QCOMPARE(requested.count(), 0);
    Gui::release(host.bar(), buttonAt(host.bar(), 1));
    QCOMPARE(requested.count(), 1);
    QCOMPARE(requested.constFirst(), QVariantList{1});
    QCOMPARE(clicked.count(), 0);
    QCOMPARE(host.tabs->currentIndex(), 0);
    // A second click that comes at once is a click as well.
    QTest::mouseDClick(host.windowHandle(), Qt::LeftButton, {},
                       Gui::inWindow(host.bar(), buttonAt(host.bar(), 2)));
    QCOMPARE(requested.constLast(), QVariantList{2});
    QCOMPARE(requested.count(), 3);
    QCOMPARE(clicked.count(), 0);
    Gui::click(host.bar(), buttonAt(host.bar(), 1), Qt::RightButton);
    QCOMPARE(host.tabs->currentIndex(), 0);
    QCOMPARE(clicked.count(), 1);

    // The first tab is one like the others.
    host.tabs->setCurrentIndex(1);
    QTest::mouseDClick(host.windowHandle(), Qt::LeftButton, {},
                       Gui::inWindow(host.bar(), buttonAt(host.bar(), 0)));
    QCOMPARE(requested.constLast(), QVariantList{0});
    QCOMPARE(requested.count(), 5);
    QCOMPARE(host.tabs->currentIndex(), 1);

    // Another button that is let go meanwhile is none of its business.
    Gui::press(host.bar(), buttonAt(host.bar(), 2));
    Gui::click(host.bar(), buttonAt(host.bar(), 2), Qt::RightButton);
    QCOMPARE(requested.count(), 5);
    Gui::release(host.bar(), buttonAt(host.bar(), 2));
    QCOMPARE(requested.count(), 6);

    // Only beside the button a double click is one.
    QSignalSpy twice(host.bar(), &QTabBar::tabBarDoubleClicked);
    const auto clickTwice = [&](QPoint position, Qt::MouseButton button) {
        QTest::mouseDClick(host.windowHandle(), button, {}, Gui::inWindow(host.bar(), position));
    };
    for (const int index : {0, 2}) {
        clickTwice(buttonAt(host.bar(), index), Qt::LeftButton);
        QCOMPARE(twice.count(), 0);
    }
    clickTwice(buttonAt(host.bar(), 2), Qt::RightButton);
    QCOMPARE(twice.count(), 1);
    clickTwice(host.bar()->tabRect(2).center() - QPoint(20, 0), Qt::LeftButton);
    QCOMPARE(twice.count(), 2);
}

void tst_DockTabBar::changesItsMindBesideTheButton()
{
    Host host(true);
    add(host, 3);
    QVERIFY(host.open());
    QSignalSpy requested(host.bar(), &QTabBar::tabCloseRequested);
    Gui::press(host.bar(), buttonAt(host.bar(), 1));
    Gui::moveMouse(host.bar(), buttonAt(host.bar(), 1) - QPoint(40, 0));
    Gui::release(host.bar(), buttonAt(host.bar(), 1) - QPoint(40, 0));
    Gui::press(host.bar(), buttonAt(host.bar(), 1) - QPoint(40, 0));
    Gui::release(host.bar(), buttonAt(host.bar(), 1));
    Gui::press(host.bar(), buttonAt(host.bar(), 1));
    Gui::release(host.bar(), buttonAt(host.bar(), 2));
    QCOMPARE(requested.count(), 0);

    // The tab goes while its button is held.
    Gui::press(host.bar(), buttonAt(host.bar(), 2));
    delete host.tabs->widget(2);
    Gui::release(host.bar(), QPoint(5, 5));
    QCOMPARE(requested.count(), 0);
    QCOMPARE(host.tabs->count(), 2);
}

void tst_DockTabBar::closesADisabledTabLikeABarOfQt()
{
    for (const bool ours : {false, true}) {
        Host host(ours);
        add(host, 3);
        host.tabs->setTabEnabled(1, false);
        QVERIFY(host.open());
        QSignalSpy requested(host.bar(), &QTabBar::tabCloseRequested);
        Gui::click(host.bar(), buttonAt(host.bar(), 1));
        QCOMPARE(requested.count(), 1);
        QCOMPARE(requested.constFirst(), QVariantList{1});
        QCOMPARE(host.tabs->currentIndex(), 0);
        host.bar()->setEnabled(false);
        Gui::click(host.bar(), buttonAt(host.bar(), 2));
        QCOMPARE(requested.count(), 1);
    }
}

void tst_DockTabBar::highlightsTheButtonUnderTheMouse()
{
    Host host(true);
    add(host, 3);
    QVERIFY(host.open());
    const QColor red(243, 144, 141);
    const QPoint inside = buttonAt(host.bar(), 1) + QPoint(0, 6);
    const auto seen = [&] {
        const QImage picture = Gui::picture(host.bar());
        bool found = false;
        const QRect tab = host.bar()->tabRect(1);
        for (int y = tab.top(); y < tab.bottom(); ++y) {
            for (int x = tab.right() - 22; x < tab.right(); ++x)
                found = found || Gui::pixel(picture, {x, y}) == red;
        }
        return found;
    };
    QVERIFY(!seen());
    Gui::moveMouse(host.bar(), inside);
    QTRY_VERIFY(seen());
    Gui::moveMouse(host.bar(), host.bar()->tabRect(1).center() - QPoint(20, 0));
    QTRY_VERIFY(!seen());
    Gui::moveMouse(host.bar(), inside);
    QTRY_VERIFY(seen());
    Gui::moveMouse(&host, host.rect().bottomRight() - QPoint(1, 1));
    QTRY_VERIFY(!seen());
}

void tst_DockTabBar::namesTheButton()
{
    Host host(true);
    add(host, 2);
    host.tabs->setTabToolTip(1, u"the tab"_s);
    QVERIFY(host.open());
    // What the bar did not answer, the window would.
    host.setToolTip(u"the window"_s);
    const auto tip = [&](QPoint position) {
        QHelpEvent event(QEvent::ToolTip, position, host.bar()->mapToGlobal(position));
        QCoreApplication::sendEvent(host.bar(), &event);
        return QToolTip::text();
    };
    for (const int index : {0, 1}) {
        QCOMPARE(tip(buttonAt(host.bar(), index)), u"Close Tab"_s);
        QToolTip::hideText();
        QTRY_VERIFY(!QToolTip::isVisible());
    }
    QCOMPARE(tip(host.bar()->tabRect(1).center() - QPoint(20, 0)), u"the tab"_s);
    QToolTip::hideText();
    QTRY_VERIFY(!QToolTip::isVisible());
}

void tst_DockTabBar::hidesTheButtonsWhileATabIsMoved()
{
    Host host(true);
    add(host, 3);
    QVERIFY(host.open());
    const QPoint from = host.bar()->tabRect(0).center() - QPoint(20, 0);
    const QPoint button = buttonAt(host.bar(), 2);
    const auto dark = [&] {
        const QImage picture = Gui::picture(host.bar());
        int count = 0;
        for (int y = button.y() - 6; y <= button.y() + 6; ++y) {
            for (int x = button.x() - 6; x <= button.x() + 6; ++x)
                count += Gui::pixel(picture, {x, y}).lightness() < 120;
        }
        return count > 5;
    };
    QVERIFY(dark());
    Gui::press(host.bar(), from);
    for (int x = 0; x <= 20; x += 5)
        Gui::moveMouse(host.bar(), from + QPoint(x, 0));
    QVERIFY(!dark());
    // Nor do they come back on the way back, or with another button.
    Gui::moveMouse(host.bar(), from + QPoint(1, 0));
    QVERIFY(!dark());
    Gui::click(host.bar(), from + QPoint(1, 0), Qt::RightButton);
    QVERIFY(!dark());
    Gui::release(host.bar(), from + QPoint(20, 0));
    QTRY_VERIFY(dark());
}

void tst_DockTabBar::movesByTheKeyboard()
{
    Host host(true);
    add(host, 3);
    QVERIFY(host.open());
    host.activateWindow();
    host.bar()->setFocus();
    QTest::keyClick(host.bar(), Qt::Key_Right);
    QCOMPARE(host.tabs->currentIndex(), 1);
    QTest::keyClick(host.bar(), Qt::Key_Left);
    QCOMPARE(host.tabs->currentIndex(), 0);
}

void tst_DockTabBar::laysTabsOutLikeABarOfQt_data()
{
    QTest::addColumn<QString>("more");
    QTest::addColumn<Qt::TextElideMode>("mode");
    QTest::newRow("the last is wider") << u"QTabBar#dockTabBar::tab:selected { font: bold; }"
                                          "QTabBar#dockTabBar::tab:last { padding-right: 30px; }"_s
                                       << Qt::ElideNone;
    QTest::newRow("the first is wider")
        << u"QTabBar#dockTabBar::tab:first { padding-left: 25px; }"
           "QTabBar#dockTabBar::tab:disabled { padding-left: 14px; }"_s
        << Qt::ElideRight;
    QTest::newRow("neighbours are wider")
        << u"QTabBar#dockTabBar::tab:previous-selected { padding-right: 28px; }"
           "QTabBar#dockTabBar::tab:next-selected { padding-left: 23px; }"
           "QTabBar#dockTabBar::tab:only-one { padding-left: 60px; }"_s
        << Qt::ElideMiddle;
}

void tst_DockTabBar::laysTabsOutLikeABarOfQt()
{
    QFETCH(QString, more);
    QFETCH(Qt::TextElideMode, mode);
    const auto player = [&](const QList<Steps::Step> &steps, QStringList *story) -> QString {
        Host ours(true, more);
        Host plain(false, more);
        // Else QTabBar looks for other rooms than ours, which never has more than it wants.
        plain.bar()->setExpanding(false);
        for (const Host *host : {&ours, &plain})
            host->tabs->setElideMode(mode);
        if (!ours.open() || !plain.open())
            return u"no window"_s;
        for (const auto &[kind, number] : steps) {
            const int count = ours.tabs->count();
            const int index = count > 0 ? number % count : 0;
            const QString text(number % 23, u'x');
            const bool on = number / 100 % 2;
            bool hidden = false;
            for (int i = 0; i < count; ++i)
                hidden = hidden || !ours.tabs->isTabVisible(i);
            *story << u"%1 with %2 of %3"_s.arg(kind).arg(index).arg(count);
            for (const Host *host : {&ours, &plain}) {
                QTabWidget *tabs = host->tabs;
                switch (kind) {
                case 0:
                case 1:
                case 2:
                    tabs->addTab(new QWidget, text);
                    break;
                case 3:
                    tabs->insertTab(index, new QWidget, text);
                    break;
                case 4:
                    delete tabs->widget(index);
                    break;
                case 5:
                    tabs->setCurrentIndex(index);
                    break;
                case 6:
                    tabs->setTabText(index, text);
                    break;
                case 7:
                    tabs->setTabIcon(index, on ? QIcon(u":/res/menu.svg"_s) : QIcon());
                    break;
                case 8:
                    tabs->setTabEnabled(index, on);
                    break;
                case 9:
                    if (on || index != tabs->currentIndex())
                        tabs->setTabVisible(index, on);
                    break;
                case 10:
                    // QTabBar loses sight of its first and last tab when hidden ones move, or all
                    // hide.
                    if (!hidden)
                        tabs->tabBar()->moveTab(index, number / 100 % qMax(1, count));
                    break;
                case 11:
                    tabs->tabBar()->setVisible(on);
                    break;
                case 12:
                    tabs->setUsesScrollButtons(on);
                    break;
                case 13:
                    tabs->setTabsClosable(on || number / 200 % 2);
                    break;
                case 14:
                    tabs->tabBar()->setTabButton(index, QTabBar::LeftSide,
                                                 on && count > 0 ? new QLabel(text) : nullptr);
                    break;
                default:
                    tabs->window()->resize(200 + number % 1000, 120);
                    break;
                }
            }
            QCoreApplication::processEvents();
            const QTabBar *bar = ours.bar();
            const QTabBar *other = plain.bar();
            if (bar->currentIndex() != other->currentIndex())
                return u"another tab is current"_s;
            if (!bar->isVisible())
                continue;
            // How far a bar is scrolled depends on what it went through: QTabBar's new tabs have no
            // button at first.
            std::optional<int> scrolled;
            for (int i = 0; i < other->count(); ++i) {
                if (!other->isTabVisible(i))
                    continue;
                if (!scrolled)
                    scrolled = other->tabRect(i).x() - bar->tabRect(i).x();
                if (bar->tabRect(i).translated(*scrolled, 0) != other->tabRect(i)) {
                    return u"tab %1 is at %2 instead of %3"_s.arg(
                        QString::number(i), QDebug::toString(bar->tabRect(i)),
                        QDebug::toString(other->tabRect(i)));
                }
            }
            if (bar->geometry() != other->geometry())
                return u"another place"_s;
            if (bar->sizeHint() != other->sizeHint()
                || bar->minimumSizeHint() != other->minimumSizeHint())
                return u"another size is wanted"_s;
        }
        return {};
    };
    QRandomGenerator random(5);
    for (int round = 0; round < 10; ++round) {
        QList<Steps::Step> steps;
        for (int i = 0; i < 60; ++i)
            steps.append({random.bounded(16), random.bounded(100000)});
        const QString wrong = Steps::play(steps, player);
        QVERIFY2(wrong.isEmpty(), qPrintable(wrong));
    }
}

void tst_DockTabBar::measuresOnlyTheTabsThatChange()
{
    struct Style : QProxyStyle
    {
        QSize sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &size,
                               const QWidget *widget) const override
        {
            measured += type == CT_TabBarTab;
            return QProxyStyle::sizeFromContents(type, option, size, widget);
        }
        mutable int measured = 0;
    };
    Style style;
    DockTabWidget tabs;
    tabs.tabBar()->setStyle(&style);
    QVERIFY(Gui::open(&tabs));
    for (int i = 0; i < 100; ++i)
        tabs.addTab(new QWidget, u"document %1.txt"_s.arg(i));
    QCoreApplication::processEvents();
    const QList<std::function<void()>> changes{
        [&] { tabs.addTab(new QWidget, u"last"_s); },
        [&] { tabs.insertTab(0, new QWidget, u"first"_s); },
        [&] { tabs.insertTab(50, new QWidget, u"middle"_s); },
        [&] { delete tabs.widget(0); },
        [&] { delete tabs.widget(50); },
        [&] { delete tabs.widget(100); },
        [&] { tabs.setCurrentIndex(70); },
        [&] { tabs.setTabText(40, u"another text"_s); },
    };
    int most = 0;
    for (qsizetype i = 0; i < changes.size(); ++i) {
        style.measured = 0;
        changes.at(i)();
        QCoreApplication::processEvents();
        most = qMax(most, style.measured);
        QVERIFY2(style.measured < 80, qPrintable(u"%1: %2"_s.arg(i).arg(style.measured)));
    }
    QVERIFY(most > 0);
}

void tst_DockTabBar::measuresTheNeighboursOfTheCurrentTab()
{
    // In a full bar nothing is laid out again afterwards.
    for (const int place : {3, 4, 5, 6, 7}) {
        QList<int> widths[2];
        for (const bool ours : {false, true}) {
            Host host(ours,
                      u"QTabBar#dockTabBar::tab:previous-selected { padding-right: 28px; }"
                      "QTabBar#dockTabBar::tab:next-selected { padding-left: 23px; }"_s);
            add(host, 12);
            host.tabs->setCurrentIndex(5);
            QVERIFY(host.open());
            host.tabs->insertTab(place, new QWidget, u"another"_s);
            for (int i = 0; i < host.bar()->count(); ++i)
                widths[ours] << host.bar()->tabRect(i).width();
        }
        QCOMPARE(widths[true], widths[false]);
    }
}

void tst_DockTabBar::followsItsStyle()
{
    DockTabWidget tabs;
    tabs.resize(800, 100);
    QVERIFY(Gui::open(&tabs));
    for (int i = 0; i < 3; ++i)
        tabs.addTab(new QWidget, u"document %1.txt"_s.arg(i));
    QCoreApplication::processEvents();
    const QRect before = tabs.tabBar()->tabRect(1);
    const int size = tabs.style()->pixelMetric(QStyle::PM_TabCloseIndicatorWidth);
    tabs.tabBar()->setStyle(new LeftStyle(&tabs));
    QCoreApplication::processEvents();
    const QRect tab = tabs.tabBar()->tabRect(1);
    QCOMPARE(tab.width(), before.width() + 34 - size);

    QSignalSpy requested(tabs.tabBar(), &QTabBar::tabCloseRequested);
    Gui::click(tabs.tabBar(), QPoint(tab.left() + 20, tab.center().y()));
    QCOMPARE(requested.count(), 1);
    Gui::click(tabs.tabBar(), QPoint(tab.right() - 12, tab.center().y()));
    QCOMPARE(requested.count(), 1);
}

void tst_DockTabBar::showsThatTheButtonIsHeld()
{
    const QColor blue(0, 0, 255);
    Host host(true, u"QTabBar#dockTabBar::close-button:pressed { background: rgb(0, 0, 255); }"_s);
    add(host, 3);
    QVERIFY(host.open());
    for (const int index : {0, 1}) {
        const QPoint button = buttonAt(host.bar(), index) + QPoint(0, 5);
        const QPoint beside = button - QPoint(40, 0);
        Gui::moveMouse(host.bar(), button);
        QTRY_VERIFY(shows(host, index, highlight));
        Gui::press(host.bar(), button);
        QTRY_VERIFY(shows(host, index, blue));
        QVERIFY(!shows(host, index, highlight));
        Gui::moveMouse(host.bar(), beside);
        QTRY_VERIFY(!shows(host, index, blue));
        QVERIFY(!shows(host, index, highlight));
        Gui::moveMouse(host.bar(), button);
        QTRY_VERIFY(shows(host, index, blue));
        Gui::release(host.bar(), button);
        QTRY_VERIFY(!shows(host, index, blue));
        QVERIFY(shows(host, index, highlight));
    }
}

void tst_DockTabBar::paintsWhenTheButtonChanges()
{
    struct Paints : QObject
    {
        bool eventFilter(QObject *, QEvent *event) override
        {
            count += int(event->type() == QEvent::Paint);
            return false;
        }
        int count = 0;
    };
    Host host(true);
    add(host, 3);
    QVERIFY(host.open());
    const QPoint button = buttonAt(host.bar(), 1);
    Gui::moveMouse(host.bar(), button - QPoint(40, 0));
    Paints paints;
    host.bar()->installEventFilter(&paints);
    const QList<std::function<void()>> steps{[&] { Gui::moveMouse(host.bar(), button); },
                                             [&] { Gui::press(host.bar(), button); },
                                             [&] { Gui::release(host.bar(), button); }};
    for (const auto &step : steps) {
        for (int i = 0; i < 3; ++i)
            QCoreApplication::processEvents();
        paints.count = 0;
        step();
        QTRY_VERIFY(paints.count > 0);
    }
    host.bar()->removeEventFilter(&paints);
}

void tst_DockTabBar::leavesTheButtonsWhileNothingIsMoved()
{
    for (const bool movable : {false, true}) {
        Host host(true);
        add(host, 3);
        host.tabs->setMovable(movable);
        QVERIFY(host.open());
        const QPoint text = host.bar()->tabRect(0).center() - QPoint(20, 0);
        const QRect other = host.bar()->tabRect(2);
        const QImage before = picture(host.bar(), other);
        Gui::press(host.bar(), text);
        // Not far enough, too many buttons, or a bar whose tabs stay where they are.
        Gui::moveMouse(host.bar(), text + QPoint(3, 0));
        QCOMPARE(picture(host.bar(), other), before);
        if (movable)
            Gui::press(host.bar(), text, Qt::RightButton);
        for (int x = 5; x <= 20; x += 5)
            Gui::moveMouse(host.bar(), text + QPoint(x, 0));
        QCOMPARE(picture(host.bar(), other), before);
        Gui::moveMouse(host.bar(), buttonAt(host.bar(), 2));
        QVERIFY(!shows(host, 2, highlight));
        if (movable)
            Gui::release(host.bar(), text, Qt::RightButton);
        Gui::release(host.bar(), text);
    }
}

void tst_DockTabBar::forgetsTheButtonWhenTabsComeAndGo_data()
{
    QTest::addColumn<bool>("comes");
    QTest::newRow("one comes") << true;
    QTest::newRow("one goes") << false;
}

void tst_DockTabBar::forgetsTheButtonWhenTabsComeAndGo()
{
    QFETCH(bool, comes);
    Host host(true);
    add(host, 4);
    QVERIFY(host.open());
    const auto change = [&] {
        if (comes)
            host.tabs->insertTab(0, new QWidget, u"document 9.txt"_s);
        else
            delete host.tabs->widget(0);
        QCoreApplication::processEvents();
    };
    QSignalSpy requested(host.bar(), &QTabBar::tabCloseRequested);
    const QPoint button = buttonAt(host.bar(), 1);
    Gui::moveMouse(host.bar(), button);
    QTRY_VERIFY(shows(host, 1, highlight));
    change();
    QVERIFY(!shows(host, 1, highlight));

    Gui::press(host.bar(), button);
    change();
    Gui::release(host.bar(), button);
    QCOMPARE(requested.count(), 0);
}

NORVANE_TEST_MAIN(tst_DockTabBar)
#include "tst_DockTabBar.moc"
