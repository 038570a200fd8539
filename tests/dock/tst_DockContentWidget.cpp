// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "Gui.h"
#include "Steps.h"
#include "TestCase.h"

#include <Norvane/DockContentWidget.h>
#include <style/StyleSheet.h>

#include <QtCore/QRandomGenerator>
#include <QtCore/QTimer>
#include <QtTest/QSignalSpy>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLayout>
#include <QtWidgets/QMenu>
#include <QtWidgets/QTabBar>
#include <QtWidgets/QTabWidget>

using namespace Norvane;
using namespace Qt::StringLiterals;

class tst_DockContentWidget : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void isBuiltAsTheSheetSelectsIt();
    void hasSectionsWithoutEntriesAtFirst();
    void tellsOfTheFirstTab();
    void tellsOfTheLastTab();
    void tellsOfTheLastTabThatIsDeleted();
    void changesSectionsAndTabs();
    void tellsOfATabInAnotherSectionOnce();
    void tellsOfTheSameIndexInAnotherSection();
    void keepsTheEntryOfASectionWithHiddenTabs();
    void goesToASectionWithoutTabs();
    void tellsAgainThatThereIsNoTab();
    void answersForItsTabs();
    void ignoresWhatIsOutOfRange();
    void ignoresNullAndKeepsAWidgetThatIsAddedAgain();
    void movesAWidgetToAnotherSection();
    void requestsToCloseByTheButton();
    void requestsToCloseByAMiddleClick();
    void findsTheMiddleClickInTheCoordinatesOfTheTabWidget();
    void requestsToCloseInTheCurrentSection();
    void offersTheMenuOfATab_data();
    void offersTheMenuOfATab();
    void hasNoMenuBesideTheTabs();
    void movesTabsByDragging();
    void showsThePlaceholderWithoutTabs();
    void hidesItselfByItsAutoHide();
    void hidesAndDisablesSections();
    void hasBarsOfTheSheetsHeight();
    void asksForThePlaceOfItsTabs();
    void tellsTheModeAsAMetaType();
    void emitsNothingWhenItDies();
    void agreesWithAModel();
};

namespace {

using Signal = std::pair<QString, QList<int>>;

//! A content widget with two sections that writes down what it emits.
class Host : public QWidget
{
public:
    Host()
        : content(new DockContentWidget(this))
    {
        content->setStyleSheet(StyleSheet::read(u":/res/dockLight.css"_s));
        content->addSection(u"Texts"_s);
        content->addSection(u"Pictures"_s);
        connect(content, &DockContentWidget::signalTabCloseRequested, this,
                [this](CloseMode mode, int section, int index) {
                    record << Signal(u"close"_s, {mode, section, index});
                });
        connect(content, &DockContentWidget::signalCurrentSectionChanged, this,
                [this](int section) { record << Signal(u"section"_s, {section}); });
        connect(content, &DockContentWidget::signalCurrentTabChanged, this,
                [this](int section, int tab) { record << Signal(u"tab"_s, {section, tab}); });
        connect(content, &DockContentWidget::signalVisibleChanged, this,
                [this](bool visible) { record << Signal(u"visible"_s, {visible}); });
        resize(600, 300);
        content->resize(size());
    }

    int add(int section, const QString &text = u"tab"_s) const
    {
        return content->addTab(section, new QWidget, text);
    }

    // What was emitted since the last call.
    QList<Signal> emitted() { return std::exchange(record, {}); }

    QTabWidget *sections() const
    {
        return content->findChild<QTabWidget *>(u"dockSectionWidget"_s);
    }
    QTabWidget *tabs(int section) const
    {
        return sections()->widget(section)->findChild<QTabWidget *>(u"dockTabWidget"_s);
    }
    QTabBar *bar(int section) const { return tabs(section)->tabBar(); }

    DockContentWidget *content;
    QList<Signal> record;
};

// Where the sheet puts the close button: at the right end of the tab.
QPoint closeButtonAt(const QTabBar *bar, int index)
{
    const QRect tab = bar->tabRect(index);
    return {tab.right() - 11, tab.center().y()};
}

} // namespace

void tst_DockContentWidget::isBuiltAsTheSheetSelectsIt()
{
    const Host host;
    QCOMPARE(host.content->alignment(), Qt::AlignCenter);
    QCOMPARE(host.content->layout()->contentsMargins(), QMargins());
    QCOMPARE(host.content->layout()->spacing(), 0);
    const QTabWidget *sections = host.sections();
    QVERIFY(sections->isHidden());
    QCOMPARE(sections->tabPosition(), QTabWidget::South);
    QCOMPARE(sections->tabBar()->objectName(), u"dockSectionBar"_s);
    QCOMPARE(sections->widget(0)->layout()->contentsMargins(), QMargins(3, 3, 3, 3));
    for (int section : {0, 1}) {
        const QTabWidget *tabs = host.tabs(section);
        QCOMPARE(tabs->objectName(), u"dockTabWidget"_s);
        QVERIFY(tabs->tabsClosable());
        QVERIFY(tabs->isMovable());
        QCOMPARE(tabs->tabBar()->objectName(), u"dockTabBar"_s);
        QCOMPARE(tabs->tabBar()->contextMenuPolicy(), Qt::CustomContextMenu);
    }
}

void tst_DockContentWidget::hasSectionsWithoutEntriesAtFirst()
{
    Host host;
    QCOMPARE(host.content->addSection(u"More"_s), 2);
    QCOMPARE(host.content->sectionCount(), 3);
    QCOMPARE(host.content->sectionText(1), u"Pictures"_s);
    for (int section : {0, 1, 2})
        QVERIFY(!host.content->isSectionVisible(section));
    QVERIFY(host.emitted().isEmpty());
    host.add(1);
    QVERIFY(!host.content->isSectionVisible(0));
    QVERIFY(host.content->isSectionVisible(1));
    QCOMPARE(host.content->currentSection(), 1);
    host.add(0);
    QVERIFY(host.content->isSectionVisible(0));
    QCOMPARE(host.content->currentSection(), 1);
    host.content->removeTab(0, 0);
    QVERIFY(!host.content->isSectionVisible(0));
}

void tst_DockContentWidget::tellsOfTheFirstTab()
{
    for (bool shown : {false, true}) {
        Host host;
        if (shown)
            QVERIFY(Gui::open(&host));
        QCOMPARE(host.add(0), 0);
        QList<Signal> emitted = host.emitted();
        QList<Signal> expected{{u"tab"_s, {0, 0}}};
        if (!shown)
            expected << Signal(u"visible"_s, {1});
        expected << Signal(u"section"_s, {0});
        QCOMPARE(emitted, expected);
        QVERIFY(!host.sections()->isHidden());

        QCOMPARE(host.add(0), 1);
        emitted = host.emitted();
        QCOMPARE(emitted.contains(Signal(u"visible"_s, {1})), !shown);
        emitted.removeAll(Signal(u"visible"_s, {1}));
        QVERIFY(emitted.isEmpty());
    }
    // Callers rely on hearing of another section a second time, after the tab is there.
    Host host;
    QVERIFY(Gui::open(&host));
    host.add(1);
    QCOMPARE(host.emitted(),
             QList<Signal>({{u"section"_s, {1}}, {u"tab"_s, {1, 0}}, {u"section"_s, {1}}}));
}

void tst_DockContentWidget::tellsOfTheLastTab()
{
    for (bool shown : {false, true}) {
        for (bool autoHide : {false, true}) {
            Host host;
            host.content->setAutoHide(autoHide);
            host.content->show();
            if (shown)
                QVERIFY(Gui::open(&host));
            auto *widget = new QWidget;
            host.content->addTab(0, widget, u"one"_s);
            host.emitted();
            host.content->removeTab(0, 0);
            QList<Signal> expected;
            if (shown && autoHide)
                expected << Signal(u"visible"_s, {0});
            expected << Signal(u"section"_s, {-1}) << Signal(u"tab"_s, {-1, -1});
            QCOMPARE(host.emitted(), expected);
            QCOMPARE(host.sections()->isHidden(), shown);
            QVERIFY(widget->isHidden());
            // The same place again is a new tab.
            host.content->addTab(0, widget, u"one"_s);
            QVERIFY(host.emitted().contains(Signal(u"tab"_s, {0, 0})));
        }
    }
}

void tst_DockContentWidget::tellsOfTheLastTabThatIsDeleted()
{
    Host host;
    auto *widget = new QWidget;
    host.content->addTab(1, widget, u"one"_s);
    QVERIFY(Gui::open(&host));
    host.emitted();
    delete widget;
    QCOMPARE(host.content->tabCount(1), 0);
    const QList<Signal> emitted = host.emitted();
    QCOMPARE(emitted.last(3),
             QList<Signal>({{u"visible"_s, {0}}, {u"section"_s, {-1}}, {u"tab"_s, {-1, -1}}}));
    QVERIFY(host.sections()->isHidden());
    host.add(0);
    QCOMPARE(host.emitted().constLast(), Signal(u"section"_s, {0}));
}

void tst_DockContentWidget::changesSectionsAndTabs()
{
    Host host;
    for (int section : {0, 0, 1, 1})
        host.add(section);
    QVERIFY(Gui::open(&host));
    host.emitted();
    QCOMPARE(host.content->currentSection(), 0);
    Gui::click(host.bar(0), host.bar(0)->tabRect(1).topLeft() + QPoint(12, 12));
    QCOMPARE(host.emitted(), QList<Signal>({{u"tab"_s, {0, 1}}}));
    QCOMPARE(host.content->currentTab(0), 1);

    QTabBar *sectionBar = host.sections()->tabBar();
    Gui::click(sectionBar, sectionBar->tabRect(1).center());
    QCOMPARE(host.emitted(), QList<Signal>({{u"section"_s, {1}}, {u"tab"_s, {1, 0}}}));
    Gui::click(sectionBar, sectionBar->tabRect(0).center());
    QCOMPARE(host.emitted(), QList<Signal>({{u"section"_s, {0}}, {u"tab"_s, {0, 1}}}));

    host.content->setCurrentTab(1, 1);
    QCOMPARE(host.content->currentSection(), 1);
    QCOMPARE(host.content->currentTab(1), 1);
    QCOMPARE(host.content->currentWidget(1), host.content->widget(1, 1));
    QCOMPARE(host.emitted(),
             QList<Signal>({{u"section"_s, {1}}, {u"tab"_s, {1, 0}}, {u"tab"_s, {1, 1}}}));
    host.content->setCurrentTab(1, 1);
    QVERIFY(host.emitted().isEmpty());
    // The section is right, whatever the tab is.
    host.content->setCurrentTab(0, 99);
    QCOMPARE(host.content->currentSection(), 0);
    QCOMPARE(host.content->currentTab(0), 1);
}

void tst_DockContentWidget::tellsOfATabInAnotherSectionOnce()
{
    Host host;
    for (int section : {0, 0, 1})
        host.add(section);
    QVERIFY(Gui::open(&host));
    host.content->setCurrentTab(1, 0);
    host.emitted();
    host.tabs(0)->setCurrentIndex(1);
    QCOMPARE(host.emitted(), QList<Signal>({{u"tab"_s, {0, 1}}}));
    QTabBar *sectionBar = host.sections()->tabBar();
    Gui::click(sectionBar, sectionBar->tabRect(0).center());
    QCOMPARE(host.emitted(), QList<Signal>({{u"section"_s, {0}}}));
}

void tst_DockContentWidget::tellsOfTheSameIndexInAnotherSection()
{
    Host host;
    QVERIFY(Gui::open(&host));
    host.add(0);
    host.emitted();
    host.add(1);
    QCOMPARE(host.emitted(), QList<Signal>({{u"tab"_s, {1, 0}}}));
    host.content->setCurrentTab(1, 0);
    host.emitted();
    host.content->setCurrentTab(0, 0);
    QCOMPARE(host.emitted(), QList<Signal>({{u"section"_s, {0}}, {u"tab"_s, {0, 0}}}));
}

void tst_DockContentWidget::keepsTheEntryOfASectionWithHiddenTabs()
{
    Host host;
    host.add(0);
    host.add(0);
    host.content->setTabVisible(0, 1, false);
    QVERIFY(Gui::open(&host));
    QWidget *first = host.content->widget(0, 0);
    host.content->removeTab(0, 0);
    delete first;
    QCOMPARE(host.content->currentTab(0), -1);
    QCOMPARE(host.content->tabCount(0), 1);
    QVERIFY(host.content->isSectionVisible(0));
}

void tst_DockContentWidget::goesToASectionWithoutTabs()
{
    Host host;
    host.add(0);
    QVERIFY(Gui::open(&host));
    host.content->setSectionVisible(1, true);
    host.emitted();
    QTabBar *sectionBar = host.sections()->tabBar();
    Gui::click(sectionBar, sectionBar->tabRect(1).center());
    QCOMPARE(host.emitted(), QList<Signal>({{u"section"_s, {1}}, {u"tab"_s, {1, -1}}}));
    QCOMPARE(host.content->currentSection(), 1);
    Gui::click(sectionBar, sectionBar->tabRect(0).center());
    QCOMPARE(host.emitted(), QList<Signal>({{u"section"_s, {0}}, {u"tab"_s, {0, 0}}}));
}

void tst_DockContentWidget::tellsAgainThatThereIsNoTab()
{
    Host host;
    host.content->removeTab(0, 3);
    QCOMPARE(host.emitted(), QList<Signal>({{u"section"_s, {-1}}, {u"tab"_s, {-1, -1}}}));
    host.content->removeTab(2, 0);
    QVERIFY(host.emitted().isEmpty());
}

void tst_DockContentWidget::answersForItsTabs()
{
    const Host host;
    auto *widget = new QWidget;
    host.add(0);
    QCOMPARE(host.content->addTab(0, widget, u"name"_s), 1);
    QCOMPARE(host.content->tabCount(0), 2);
    QCOMPARE(host.content->tabCount(1), 0);
    QCOMPARE(host.content->widget(0, 1), widget);
    QVERIFY(host.content->contains(widget));
    QCOMPARE(host.content->sectionOf(widget), 0);
    QCOMPARE(host.content->tabOf(widget), 1);
    QCOMPARE(host.content->tabText(0, 1), u"name"_s);
    host.content->setTabText(0, 1, u"other"_s);
    QCOMPARE(host.content->tabText(0, 1), u"other"_s);
    QCOMPARE(host.bar(0)->tabText(1), u"other"_s);
    host.content->setTabToolTip(0, 1, u"tip"_s);
    QCOMPARE(host.content->tabToolTip(0, 1), u"tip"_s);
    QCOMPARE(host.bar(0)->tabToolTip(1), u"tip"_s);
    host.content->setTabData(0, 1, 42);
    QCOMPARE(host.content->tabData(0, 1), 42);
    QVERIFY(host.content->isTabEnabled(0, 1));
    host.content->setTabEnabled(0, 1, false);
    QVERIFY(!host.content->isTabEnabled(0, 1));
    QVERIFY(host.content->isTabVisible(0, 1));
    host.content->setTabVisible(0, 1, false);
    QVERIFY(!host.content->isTabVisible(0, 1));
    QVERIFY(host.content->isTabVisible(0, 0));
}

void tst_DockContentWidget::ignoresWhatIsOutOfRange()
{
    Host host;
    host.add(0);
    host.emitted();
    QWidget widget;
    for (int section : {-2, -1, 2, 1000}) {
        QCOMPARE(host.content->addTab(section, &widget, u"x"_s), -1);
        QCOMPARE(widget.parent(), nullptr);
        host.content->removeTab(section, 0);
        QCOMPARE(host.content->currentTab(section), -1);
        QCOMPARE(host.content->currentWidget(section), nullptr);
        QCOMPARE(host.content->widget(section, 0), nullptr);
        QCOMPARE(host.content->tabCount(section), -1);
        QVERIFY(host.content->sectionText(section).isEmpty());
        QVERIFY(!host.content->isSectionVisible(section));
        QVERIFY(!host.content->isSectionEnbaled(section));
        host.content->setSectionVisible(section, true);
        host.content->setSectionEnabled(section, false);
        host.content->setCurrentTab(section, 0);
    }
    const QList<std::pair<int, int>> places{{-1, 0}, {2, 0}, {0, -1}, {0, 1}, {1, 0}};
    for (const auto &[section, index] : places) {
        host.content->setTabText(section, index, u"x"_s);
        host.content->setTabToolTip(section, index, u"x"_s);
        host.content->setTabData(section, index, 1);
        host.content->setTabEnabled(section, index, false);
        host.content->setTabVisible(section, index, false);
        QVERIFY(host.content->tabText(section, index).isEmpty());
        QVERIFY(host.content->tabToolTip(section, index).isEmpty());
        QVERIFY(!host.content->tabData(section, index).isValid());
        QVERIFY(!host.content->isTabEnabled(section, index));
        QVERIFY(!host.content->isTabVisible(section, index));
        QCOMPARE(host.content->widget(section, index), nullptr);
    }
    host.content->removeTab(0, 1);
    host.content->removeTab(0, -1);
    host.content->setCurrentTab(0, 7);
    QCOMPARE(host.content->tabCount(0), 1);
    QCOMPARE(host.content->tabText(0, 0), u"tab"_s);
    QCOMPARE(host.content->currentTab(0), 0);
    QVERIFY(host.emitted().isEmpty());
    QVERIFY(!host.content->contains(&widget));
    QCOMPARE(host.content->sectionOf(&widget), -1);
    QCOMPARE(host.content->tabOf(&widget), -1);
    QVERIFY(!host.content->contains(nullptr));
}

void tst_DockContentWidget::ignoresNullAndKeepsAWidgetThatIsAddedAgain()
{
    Host host;
    QCOMPARE(host.content->addTab(0, nullptr, u"x"_s), -1);
    QVERIFY(host.emitted().isEmpty());
    QVERIFY(host.sections()->isHidden());
    auto *widget = new QWidget;
    QCOMPARE(host.content->addTab(0, widget, u"one"_s), 0);
    host.add(0);
    host.emitted();
    QCOMPARE(host.content->addTab(0, widget, u"again"_s), 0);
    QCOMPARE(host.content->tabCount(0), 2);
    QCOMPARE(host.content->tabText(0, 0), u"one"_s);
    QVERIFY(host.emitted().isEmpty());
}

void tst_DockContentWidget::movesAWidgetToAnotherSection()
{
    Host host;
    QVERIFY(Gui::open(&host));
    auto *widget = new QWidget;
    host.content->addTab(0, widget, u"one"_s);
    QCOMPARE(host.content->addTab(1, widget, u"two"_s), 0);
    QCOMPARE(host.content->tabCount(0), 0);
    QCOMPARE(host.content->sectionOf(widget), 1);
    QVERIFY(!host.content->isSectionVisible(0));
    QVERIFY(host.content->isSectionVisible(1));
    QCOMPARE(host.content->currentSection(), 1);
    QVERIFY(host.sections()->isVisible());
    QVERIFY(widget->isVisible());
}

void tst_DockContentWidget::requestsToCloseByTheButton()
{
    Host host;
    for (int i = 0; i < 3; ++i)
        host.add(1, u"a longer text"_s);
    QVERIFY(Gui::open(&host));
    host.emitted();
    Gui::click(host.bar(1), closeButtonAt(host.bar(1), 2));
    QCOMPARE(host.emitted(), QList<Signal>({{u"close"_s, {CloseCurrent, 1, 2}}}));
    QCOMPARE(host.content->tabCount(1), 3);
    QCOMPARE(host.content->currentTab(1), 0);
}

void tst_DockContentWidget::requestsToCloseByAMiddleClick()
{
    Host host;
    for (int i = 0; i < 3; ++i)
        host.add(0);
    QVERIFY(Gui::open(&host));
    host.emitted();
    const QRect second = host.bar(0)->tabRect(1);
    Gui::click(host.bar(0), second.topLeft() + QPoint(10, 10), Qt::MiddleButton);
    QCOMPARE(host.emitted(), QList<Signal>({{u"close"_s, {CloseCurrent, 0, 1}}}));
    const QPoint beside(host.bar(0)->tabRect(2).right() + 40, 10);
    Gui::click(host.tabs(0), beside, Qt::MiddleButton);
    Gui::click(host.content->widget(0, 0), {50, 50}, Qt::MiddleButton);
    QVERIFY(host.emitted().isEmpty());
    QCOMPARE(host.content->tabCount(0), 3);
}

void tst_DockContentWidget::findsTheMiddleClickInTheCoordinatesOfTheTabWidget()
{
    Host host;
    for (int i = 0; i < 3; ++i)
        host.add(0);
    host.tabs(0)->setTabPosition(QTabWidget::South);
    QVERIFY(Gui::open(&host));
    QTRY_VERIFY(host.bar(0)->y() > 100);
    host.emitted();
    // The bar is elsewhere now, which nobody takes into account.
    Gui::click(host.bar(0), host.bar(0)->tabRect(1).center(), Qt::MiddleButton);
    QVERIFY(host.emitted().isEmpty());
    Gui::click(host.tabs(0), host.bar(0)->tabRect(1).center(), Qt::MiddleButton);
    QCOMPARE(host.emitted(), QList<Signal>({{u"close"_s, {CloseCurrent, 0, 1}}}));
}

void tst_DockContentWidget::requestsToCloseInTheCurrentSection()
{
    Host host;
    host.add(0);
    host.add(1);
    host.content->setCurrentTab(1, 0);
    host.emitted();
    Q_EMIT host.bar(0)->tabCloseRequested(0);
    QCOMPARE(host.emitted(), QList<Signal>({{u"close"_s, {CloseCurrent, 1, 0}}}));
}

void tst_DockContentWidget::offersTheMenuOfATab_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("tab");
    QTest::addColumn<QStringList>("texts");
    const QString current = u"Close Current"_s;
    const QString left = u"Close All Left"_s;
    const QString right = u"Close All Right"_s;
    const QStringList several{u"Close All(Except Current)"_s, u"Close All"_s};
    QTest::newRow("only") << 1 << 0 << QStringList(current);
    QTest::newRow("first of three") << 3 << 0 << QStringList({current, right}) + several;
    QTest::newRow("second of three") << 3 << 1 << QStringList({current, left, right}) + several;
    QTest::newRow("last of three") << 3 << 2 << QStringList({current, left}) + several;
}

void tst_DockContentWidget::offersTheMenuOfATab()
{
    QFETCH(int, count);
    QFETCH(int, tab);
    QFETCH(QStringList, texts);
    const QHash<QString, CloseMode> modes{{u"Close Current"_s, CloseCurrent},
                                          {u"Close All Left"_s, CloseAllLeft},
                                          {u"Close All Right"_s, CloseAllRight},
                                          {u"Close All(Except Current)"_s, CloseAllExceptCurrent},
                                          {u"Close All"_s, CloseAll}};
    Host host;
    for (int i = 0; i < count; ++i)
        host.add(1);
    QVERIFY(Gui::open(&host));
    QTabBar *bar = host.bar(1);
    const QPoint position = bar->tabRect(tab).topLeft() + QPoint(12, 12);
    for (int entry = 0; entry < texts.size(); ++entry) {
        host.emitted();
        QStringList seen;
        QPoint place;
        QTimer watch;
        connect(&watch, &QTimer::timeout, &host, [&] {
            auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
            if (!menu || !seen.isEmpty())
                return;
            const QList<QAction *> actions = menu->actions();
            for (const QAction *action : actions)
                seen << action->text();
            place = menu->pos();
            QTest::mouseClick(menu, Qt::LeftButton, {},
                              menu->actionGeometry(actions.at(entry)).center());
        });
        watch.start(0);
        QContextMenuEvent event(QContextMenuEvent::Mouse, position, bar->mapToGlobal(position));
        QCoreApplication::sendEvent(bar, &event);
        watch.stop();
        QCOMPARE(seen, texts);
        QCOMPARE(place, bar->mapToGlobal(position));
        QCOMPARE(host.emitted(),
                 QList<Signal>({{u"close"_s, {modes.value(texts.at(entry)), 1, tab}}}));
    }
    QCOMPARE(host.content->tabCount(1), count);
    QCOMPARE(host.content->currentTab(1), 0);
}

void tst_DockContentWidget::hasNoMenuBesideTheTabs()
{
    Host host;
    host.add(0);
    QVERIFY(Gui::open(&host));
    QTimer watch;
    bool seen = false;
    connect(&watch, &QTimer::timeout, &host, [&] {
        if (QWidget *menu = QApplication::activePopupWidget()) {
            seen = true;
            menu->close();
        }
    });
    watch.start(0);
    const QPoint beside(host.bar(0)->tabRect(0).right() + 20, 10);
    QContextMenuEvent event(QContextMenuEvent::Mouse, beside, host.bar(0)->mapToGlobal(beside));
    QCoreApplication::sendEvent(host.bar(0), &event);
    QVERIFY(!seen);
}

void tst_DockContentWidget::movesTabsByDragging()
{
    Host host;
    for (int i = 0; i < 3; ++i)
        host.add(0, u"tab %1"_s.arg(i));
    QVERIFY(Gui::open(&host));
    QTabBar *bar = host.bar(0);
    QWidget *first = host.content->widget(0, 0);
    const QPoint from = bar->tabRect(0).topLeft() + QPoint(12, 12);
    const QPoint to = bar->tabRect(2).center();
    Gui::press(bar, from);
    for (int x = from.x(); x <= to.x(); x += 5)
        QTest::mouseMove(host.windowHandle(), Gui::inWindow(bar, {x, from.y()}));
    Gui::release(bar, to);
    QTRY_COMPARE(host.content->tabOf(first), 2);
    QCOMPARE(bar->tabText(0), u"tab 1"_s);
    QCOMPARE(bar->tabText(2), u"tab 0"_s);
}

void tst_DockContentWidget::showsThePlaceholderWithoutTabs()
{
    Host host;
    QPixmap picture(50, 40);
    picture.fill(Qt::red);
    host.content->setPlaceholderPixmap(picture);
    QVERIFY(Gui::open(&host));
    const QPoint centre = host.content->rect().center();
    QCOMPARE(Gui::pixel(host.content, centre), QColor(Qt::red));
    QCOMPARE(Gui::pixel(host.content, centre - QPoint(30, 0)), QColor(Qt::white));
    host.add(0);
    QVERIFY(host.content->pixmap().isNull());
    QVERIFY(Gui::pixel(host.content, centre) != QColor(Qt::red));
    host.content->removeTab(0, 0);
    QCOMPARE(Gui::pixel(host.content, centre), QColor(Qt::red));
    host.content->setPlaceholderPixmap(QPixmap());
    QCOMPARE(Gui::pixel(host.content, centre), QColor(Qt::white));
}

void tst_DockContentWidget::hidesItselfByItsAutoHide()
{
    Host host;
    QVERIFY(Gui::open(&host));
    host.emitted();
    host.content->setAutoHide(true);
    QVERIFY(!host.content->isVisible());
    host.content->setAutoHide(false);
    QVERIFY(host.content->isVisible());
    QVERIFY(host.emitted().isEmpty());
}

void tst_DockContentWidget::hidesAndDisablesSections()
{
    Host host;
    host.add(0);
    host.add(1);
    QVERIFY(!host.content->isSectionBarVisible());
    QVERIFY(Gui::open(&host));
    QVERIFY(host.content->isSectionBarVisible());
    QVERIFY(host.content->isSectionEnbaled(1));
    host.content->setSectionEnabled(1, false);
    QVERIFY(!host.content->isSectionEnbaled(1));
    QVERIFY(!host.sections()->isTabEnabled(1));
    host.content->setSectionVisible(1, false);
    QVERIFY(!host.content->isSectionVisible(1));
    host.content->setSectionVisible(1, true);
    QVERIFY(host.content->isSectionVisible(1));
    host.content->setSectionBarVisible(false);
    QVERIFY(!host.sections()->isVisible());
    QVERIFY(!host.content->isSectionBarVisible());
    host.add(1);
    QVERIFY(host.content->isSectionBarVisible());
}

void tst_DockContentWidget::hasBarsOfTheSheetsHeight()
{
    for (bool shown : {false, true}) {
        Host host;
        if (shown)
            QVERIFY(Gui::open(&host));
        host.add(0);
        host.add(1);
        host.add(1);
        QVERIFY(Gui::open(&host));
        QCOMPARE(host.sections()->tabBar()->height(), 26);
        for (int section : {0, 1}) {
            host.content->setCurrentTab(section, 0);
            QTRY_COMPARE(host.bar(section)->height(), 26);
        }
    }
}

void tst_DockContentWidget::asksForThePlaceOfItsTabs()
{
    Host host;
    QPixmap picture(2000, 2000);
    picture.fill(Qt::red);
    host.content->setPlaceholderPixmap(picture);
    QVERIFY(host.content->minimumSizeHint().width() < 100);
    auto *widget = new QWidget;
    widget->setMinimumSize(333, 222);
    host.content->addTab(0, widget, u"one"_s);
    QVERIFY(Gui::open(&host));
    QTRY_VERIFY(host.content->sizeHint().width() >= 333 + 6);
    QVERIFY(host.content->sizeHint().height() >= 222 + 2 * 26);
    QVERIFY(host.content->minimumSizeHint().height() >= 222 + 2 * 26);
}

void tst_DockContentWidget::tellsTheModeAsAMetaType()
{
    const Host host;
    QSignalSpy spy(host.content, &DockContentWidget::signalTabCloseRequested);
    Q_EMIT host.content->signalTabCloseRequested(CloseAllRight, 1, 2);
    QCOMPARE(spy.constFirst().constFirst().typeName(), "Norvane::CloseMode");
    QCOMPARE(spy.constFirst().constFirst().value<CloseMode>(), CloseAllRight);
    QCOMPARE(int(CloseCurrent), 0);
    QCOMPARE(int(CloseAllLeft), 1);
    QCOMPARE(int(CloseAllRight), 2);
    QCOMPARE(int(CloseAllExceptCurrent), 3);
    QCOMPARE(int(CloseAll), 4);
}

void tst_DockContentWidget::emitsNothingWhenItDies()
{
    Host host;
    host.add(0);
    host.add(1);
    QVERIFY(Gui::open(&host));
    host.content->setCurrentTab(1, 0);
    host.emitted();
    delete host.content;
    QVERIFY(host.emitted().isEmpty());
}

void tst_DockContentWidget::agreesWithAModel()
{
    const auto player = [](const QList<Steps::Step> &steps, QStringList *story) -> QString {
        Host host;
        if (!Gui::open(&host))
            return u"no window"_s;
        QList<QList<QWidget *>> model(2);
        for (const auto &[kind, number] : steps) {
            const int section = number % 2;
            QList<QWidget *> &tabs = model[section];
            const int index = tabs.isEmpty() ? -1 : number / 2 % int(tabs.size());
            if (kind > 1 && index < 0)
                continue;
            switch (kind) {
            case 0:
            case 1:
                *story << u"add to %1"_s.arg(section);
                tabs << new QWidget;
                if (host.content->addTab(section, tabs.constLast(), u"tab"_s) != tabs.size() - 1)
                    return u"other index"_s;
                break;
            case 2:
                *story << u"remove %1 of %2"_s.arg(index).arg(section);
                host.content->removeTab(section, index);
                delete tabs.takeAt(index);
                break;
            case 3:
                *story << u"delete %1 of %2"_s.arg(index).arg(section);
                delete tabs.takeAt(index);
                break;
            default:
                *story << u"current %1 of %2"_s.arg(index).arg(section);
                host.content->setCurrentTab(section, index);
                if (host.content->currentSection() != section
                    || host.content->currentTab(section) != index)
                    return u"another tab is current"_s;
                break;
            }
            for (int i = 0; i < 2; ++i) {
                const bool filled = !model.at(i).isEmpty();
                if (host.content->tabCount(i) != model.at(i).size())
                    return u"other number of tabs"_s;
                if (host.content->isSectionVisible(i) != filled)
                    return u"section %1 is wrongly visible or hidden"_s.arg(i);
                if ((host.content->currentTab(i) >= 0) != filled)
                    return u"section %1 has a wrong current tab"_s.arg(i);
                for (int tab = 0; tab < model.at(i).size(); ++tab) {
                    if (host.content->widget(i, tab) != model.at(i).at(tab)
                        || host.content->tabOf(model.at(i).at(tab)) != tab)
                        return u"other order"_s;
                }
            }
            const bool any = !model.at(0).isEmpty() || !model.at(1).isEmpty();
            if (host.sections()->isHidden() == any)
                return u"the area of sections is wrongly visible or hidden"_s;
            // What was told last is what is so.
            QList<int> lastTab{-1, -1};
            int lastSection = -1;
            for (const Signal &signal : std::as_const(host.record)) {
                if (signal.first == u"tab"_s)
                    lastTab = signal.second;
                else if (signal.first == u"section"_s)
                    lastSection = signal.second.constFirst();
            }
            if (!any && (lastTab != QList<int>({-1, -1}) || lastSection != -1))
                return u"nobody was told that the last tab went"_s;
            if (any && lastSection != host.content->currentSection())
                return u"another section was told"_s;
        }
        return {};
    };
    QRandomGenerator random(2);
    for (int round = 0; round < 30; ++round) {
        QList<Steps::Step> steps;
        for (int i = 0; i < 80; ++i)
            steps.append({random.bounded(5), random.bounded(1000)});
        const QString wrong = Steps::play(steps, player);
        QVERIFY2(wrong.isEmpty(), qPrintable(wrong));
    }
}

NORVANE_TEST_MAIN(tst_DockContentWidget)
#include "tst_DockContentWidget.moc"
