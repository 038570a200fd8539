// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "Gui.h"
#include "TestCase.h"

#include <Norvane/AddressBar.h>
#include <Norvane/DockContainer.h>
#include <Norvane/DockContentWidget.h>
#include <Norvane/DockPanelWidget.h>
#include <Norvane/NorvaneAgent.h>
#include <Norvane/RibbonBar.h>
#include <Norvane/RibbonPage.h>
#include <ribbon/RibbonTab.h>

#include <QtCore/QFile>
#include <QtCore/QMetaMethod>
#include <QtGui/QStyleHints>
#include <QtTest/QSignalSpy>
#include <QtWidgets/QApplication>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QDialog>
#include <QtWidgets/QMainWindow>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QStatusBar>
#include <QtWidgets/QTabBar>

#include <optional>
#include <stdexcept>

using namespace Norvane;
using namespace Qt::StringLiterals;

class tst_NorvaneAgent : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void hasARibbonBarBeforeAnySetup();
    void asksForTheLightColourScheme();
    void isAPlainObject();
    void laysOutAMainWindow_data();
    void laysOutAMainWindow();
    void laysOutADialog();
    void keepsTheTextOfTheLine();
    void setsUpOnce_data();
    void setsUpOnce();
    void spendsItsSetupOnANullWindow();
    void setsUpAgainAfterAThrow();
    void leavesADialogWithALayoutAsItIs();
    void acceptsADialogWithoutContent();
    void replacesTheSheetOfTheApplication();
    void takesOverWhatTheWindowHas();
    void refusesBindings();
    void hidesTemporaryPagesAndSelectsPageZero();
    void showsTheBoundPages();
    void keepsTheLastBindingOfASection();
    void changesNothingAtBinding();
    void keepsTheCurrentPageIfTheFirstIsNull();
    void passesOverForeignAndDeletedPages();
    void followsTheUser();
    void letsTwoAgentsLiveSideBySide();
    void leavesTheWindowWhenItDies();
    void outlivesItsWindow();

    void cleanup();
};

static std::optional<Qt::ColorScheme> requestedScheme;

// Not every desktop can be asked, so the request is caught on its way.
void QStyleHints::setColorScheme(Qt::ColorScheme scheme)
{
    requestedScheme = scheme;
}

namespace {

QString frameSheet()
{
    QFile file(u":/norvane/norvanelight.css"_s);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QWidgetList widgetsOf(const QLayout *layout)
{
    QWidgetList widgets;
    for (int i = 0; layout && i < layout->count(); ++i)
        widgets << layout->itemAt(i)->widget();
    return widgets;
}

//! A window with three pages, the last two temporary, and three sections.
class Frame
{
public:
    Frame()
    {
        agent.setup(&window, false, true);
        ribbon = agent.ribbonBar();
        content = agent.dockContainer()->contentWidget();
        for (const auto &title : {u"Home"_s, u"Text"_s, u"Picture"_s})
            pages << ribbon->addPage(title, title != "Home"_L1);
        for (int section = 0; section < 3; ++section)
            content->addTab(content->addSection(QString::number(section)), new QWidget, u"tab"_s);
        window.resize(800, 600);
    }

    QList<bool> visibleTabs() const
    {
        QList<bool> visible;
        const auto tabs = ribbon->findChildren<RibbonTab *>();
        for (const RibbonTab *tab : tabs)
            visible << !tab->isHidden();
        return visible;
    }

    QMainWindow window;
    NorvaneAgent agent;
    RibbonBar *ribbon;
    DockContentWidget *content;
    QList<RibbonPage *> pages;
};

} // namespace

void tst_NorvaneAgent::cleanup()
{
    qApp->setStyleSheet(QString());
    TestCase::cleanup();
}

void tst_NorvaneAgent::hasARibbonBarBeforeAnySetup()
{
    const NorvaneAgent agent;
    const std::unique_ptr<RibbonBar> bar(agent.ribbonBar());
    QVERIFY(bar);
    QVERIFY(!bar->parent());
    QVERIFY(!agent.addressBar());
    QVERIFY(!agent.dockContainer());
    QVERIFY(qApp->styleSheet().isEmpty());
}

void tst_NorvaneAgent::asksForTheLightColourScheme()
{
    requestedScheme.reset();
    const NorvaneAgent agent;
    const std::unique_ptr<RibbonBar> bar(agent.ribbonBar());
    QCOMPARE(requestedScheme, Qt::ColorScheme::Light);
}

void tst_NorvaneAgent::isAPlainObject()
{
    const QMetaObject &meta = NorvaneAgent::staticMetaObject;
    QCOMPARE(meta.className(), "NorvaneAgent");
    QCOMPARE(meta.superClass(), &QObject::staticMetaObject);
    QCOMPARE(meta.methodCount(), meta.methodOffset());
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
}

void tst_NorvaneAgent::laysOutAMainWindow_data()
{
    QTest::addColumn<bool>("withAddressBar");
    QTest::addColumn<bool>("withDockPanels");
    QTest::newRow("ribbon and centre") << false << false;
    QTest::newRow("address bar") << true << false;
    QTest::newRow("panels") << false << true;
    QTest::newRow("everything") << true << true;
}

void tst_NorvaneAgent::laysOutAMainWindow()
{
    QFETCH(const bool, withAddressBar);
    QFETCH(const bool, withDockPanels);
    QMainWindow window;
    window.resize(900, 600);
    NorvaneAgent agent;
    RibbonBar *ribbon = agent.ribbonBar();
    agent.setup(&window, withAddressBar, withDockPanels);

    const QWidget *centre = window.centralWidget();
    QVERIFY(centre);
    QCOMPARE(centre->metaObject(), &QWidget::staticMetaObject);
    const auto *column = qobject_cast<QVBoxLayout *>(centre->layout());
    QVERIFY(column);
    QCOMPARE(column->contentsMargins(), QMargins());
    QCOMPARE(column->spacing(), 0);

    QCOMPARE(agent.ribbonBar(), ribbon);
    QCOMPARE(agent.addressBar() != nullptr, withAddressBar);
    QVERIFY(agent.dockContainer());
    QWidgetList expected{ribbon};
    if (withAddressBar)
        expected << agent.addressBar();
    expected << agent.dockContainer();
    QCOMPARE(widgetsOf(column), expected);
    for (int i = 0; i < column->count(); ++i) {
        QCOMPARE(column->stretch(i), 0);
        QCOMPARE(column->itemAt(i)->alignment(), Qt::Alignment());
    }

    for (const auto area :
         {DockContainer::LeftDockArea, DockContainer::RightDockArea, DockContainer::BottomDockArea})
        QCOMPARE(agent.dockContainer()->panelWidget(area)->panel()->isHidden(), !withDockPanels);
    const auto *statusBar = window.findChild<QStatusBar *>(u"dockStatusBar"_s);
    QCOMPARE(statusBar != nullptr, withDockPanels);

    QVERIFY(Gui::open(&window));
    QCOMPARE(ribbon->geometry(), QRect(0, 0, 900, 123));
    const int top = withAddressBar ? agent.addressBar()->geometry().bottom() + 1 : 123;
    const int bottom = withDockPanels ? statusBar->y() : 600;
    QCOMPARE(agent.dockContainer()->geometry(), QRect(0, top, 900, bottom - top));
}

void tst_NorvaneAgent::laysOutADialog()
{
    QDialog dialog;
    dialog.resize(500, 400);
    auto *content = new QPlainTextEdit;
    NorvaneAgent agent;
    agent.setup(&dialog, content);
    QVERIFY(!agent.addressBar());
    QVERIFY(!agent.dockContainer());

    const auto *column = qobject_cast<QVBoxLayout *>(dialog.layout());
    QVERIFY(column);
    QCOMPARE(column->contentsMargins(), QMargins());
    QCOMPARE(column->spacing(), 0);
    QCOMPARE(column->count(), 3);
    const auto *line = qobject_cast<QFrame *>(column->itemAt(1)->widget());
    QVERIFY(line);
    QCOMPARE(widgetsOf(column),
             QWidgetList({agent.ribbonBar(), column->itemAt(1)->widget(), content}));
    QCOMPARE(line->frameShape(), QFrame::HLine);
    for (int i = 0; i < column->count(); ++i)
        QCOMPARE(column->stretch(i), 0);

    QVERIFY(Gui::open(&dialog));
    QCOMPARE(agent.ribbonBar()->geometry(), QRect(0, 0, 500, 123));
    QCOMPARE(line->geometry(), QRect(0, 123, 500, 1));
    QCOMPARE(content->geometry(), QRect(0, 124, 500, 276));
    QCOMPARE(qApp->styleSheet(), frameSheet());
    QCOMPARE(Gui::pixel(&dialog, {250, 123}), QColor(125, 125, 125));
}

void tst_NorvaneAgent::keepsTheTextOfTheLine()
{
    QDialog dialog;
    NorvaneAgent agent;
    agent.setup(&dialog, new QWidget);
    QCOMPARE(dialog.layout()->itemAt(1)->widget()->styleSheet(),
             u"border:none; background-color: rgb(125, 125, 125;)"_s);
}

void tst_NorvaneAgent::setsUpOnce_data()
{
    QTest::addColumn<bool>("windowFirst");
    QTest::addColumn<bool>("windowThen");
    QTest::newRow("window, window") << true << true;
    QTest::newRow("window, dialog") << true << false;
    QTest::newRow("dialog, window") << false << true;
    QTest::newRow("dialog, dialog") << false << false;
}

void tst_NorvaneAgent::setsUpOnce()
{
    QFETCH(const bool, windowFirst);
    QFETCH(const bool, windowThen);
    NorvaneAgent agent;
    QMainWindow window;
    QDialog dialog;
    if (windowFirst) {
        agent.setup(&window, true, true);
    } else {
        agent.setup(&dialog, new QWidget);
    }
    const QPointer<QWidget> parent = agent.ribbonBar()->parentWidget();
    const QPointer<QWidget> container = agent.dockContainer();

    QMainWindow otherWindow;
    otherWindow.setStyleSheet(u"QLabel { color: red; }"_s);
    QDialog otherDialog;
    otherDialog.setStyleSheet(otherWindow.styleSheet());
    QWidget content;
    if (windowThen)
        agent.setup(&otherWindow, true, true);
    else
        agent.setup(&otherDialog, &content);
    QVERIFY(!otherWindow.centralWidget());
    QVERIFY(!otherDialog.layout());
    QVERIFY(!content.parent());
    QCOMPARE(agent.ribbonBar()->parentWidget(), parent.data());
    QCOMPARE(agent.dockContainer(), container.data());
    QCOMPARE(qApp->styleSheet(), frameSheet());
}

void tst_NorvaneAgent::spendsItsSetupOnANullWindow()
{
    for (const bool dialogFirst : {false, true}) {
        NorvaneAgent agent;
        const std::unique_ptr<RibbonBar> bar(agent.ribbonBar());
        QWidget content;
        if (dialogFirst)
            agent.setup(nullptr, &content);
        else
            agent.setup(static_cast<QMainWindow *>(nullptr), true, true);
        QVERIFY(!content.parent());
        QMainWindow window;
        agent.setup(&window, true, true);
        QVERIFY(!window.centralWidget());
        QVERIFY(!bar->parent());
        QVERIFY(!agent.addressBar());
        QVERIFY(!agent.dockContainer());
        QVERIFY(qApp->styleSheet().isEmpty());
    }
}

void tst_NorvaneAgent::setsUpAgainAfterAThrow()
{
    class Throwing : public QMainWindow
    {
    protected:
        void childEvent(QChildEvent *) override { throw std::runtime_error("no child"); }
    };
    NorvaneAgent agent;
    {
        Throwing window;
        QVERIFY_THROWS_EXCEPTION(std::runtime_error, agent.setup(&window, true, true));
        QVERIFY(!agent.dockContainer());
    }
    QMainWindow window;
    agent.setup(&window, true, true);
    QCOMPARE(window.centralWidget(), agent.ribbonBar()->parentWidget());
    QVERIFY(agent.dockContainer());
}

void tst_NorvaneAgent::leavesADialogWithALayoutAsItIs()
{
    QDialog dialog;
    auto *row = new QHBoxLayout(&dialog);
    auto *button = new QPushButton;
    row->addWidget(button);
    QWidget content;
    NorvaneAgent agent;
    const std::unique_ptr<RibbonBar> bar(agent.ribbonBar());
    agent.setup(&dialog, &content);
    QCOMPARE(dialog.layout(), row);
    QCOMPARE(widgetsOf(row), QWidgetList{button});
    QVERIFY(!bar->parent());
    QVERIFY(!content.parent());
}

void tst_NorvaneAgent::acceptsADialogWithoutContent()
{
    QDialog dialog;
    NorvaneAgent agent;
    agent.setup(&dialog, nullptr);
    QCOMPARE(dialog.layout()->count(), 2);
    QCOMPARE(dialog.layout()->itemAt(0)->widget(), agent.ribbonBar());
}

void tst_NorvaneAgent::replacesTheSheetOfTheApplication()
{
    QVERIFY(!frameSheet().isEmpty());
    const QString own = u"QLabel { color: rgb(1, 2, 3); }"_s;
    for (const bool dialogs : {false, true}) {
        qApp->setStyleSheet(u"QLabel { color: rgb(9, 9, 9); }"_s);
        QMainWindow window;
        QDialog dialog;
        window.setStyleSheet(own);
        dialog.setStyleSheet(own);
        NorvaneAgent agent;
        if (dialogs) {
            agent.setup(&dialog, new QWidget);
        } else {
            agent.setup(&window, false, false);
        }
        QCOMPARE(qApp->styleSheet(), own + frameSheet());
        QCOMPARE(window.styleSheet(), own);
        QCOMPARE(dialog.styleSheet(), own);
    }
}

void tst_NorvaneAgent::takesOverWhatTheWindowHas()
{
    QMainWindow window;
    const QPointer<QWidget> centre = new QWidget;
    const QPointer<QStatusBar> statusBar = new QStatusBar;
    window.setCentralWidget(centre);
    window.setStatusBar(statusBar);
    NorvaneAgent agent;
    agent.setup(&window, true, true);
    QCOMPARE(window.centralWidget(), agent.ribbonBar()->parentWidget());
    QCOMPARE(window.statusBar()->objectName(), u"dockStatusBar"_s);
    QVERIFY(Gui::open(&window));
    QTRY_VERIFY(!centre);
    QTRY_VERIFY(!statusBar);
}

void tst_NorvaneAgent::refusesBindings()
{
    QMainWindow window;
    QDialog dialog;
    NorvaneAgent agent;
    RibbonPage *page = agent.ribbonBar()->addPage(u"Home"_s, false);
    QVERIFY(!agent.bindRibbonPagesAndDockPartition({page}, 0));
    agent.setup(&window, false, false);
    QVERIFY(!agent.bindRibbonPagesAndDockPartition({}, 0));
    QVERIFY(agent.bindRibbonPagesAndDockPartition({page}, 0));
    QVERIFY(agent.bindRibbonPagesAndDockPartition({nullptr}, -7));

    NorvaneAgent other;
    page = other.ribbonBar()->addPage(u"Home"_s, false);
    other.setup(&dialog, new QWidget);
    QVERIFY(!other.bindRibbonPagesAndDockPartition({page}, 0));
}

void tst_NorvaneAgent::hidesTemporaryPagesAndSelectsPageZero()
{
    Frame frame;
    frame.ribbon->showPage(1);
    frame.ribbon->showPage(2);
    frame.ribbon->setCurrentIndex(2);
    const QSignalSpy clicks(frame.ribbon, &RibbonBar::signalCurrentPageChanged);
    frame.content->setCurrentTab(1, 0);
    QCOMPARE(frame.visibleTabs(), QList<bool>({true, false, false}));
    QCOMPARE(frame.ribbon->currentPage(), frame.pages.at(0));
    QCOMPARE(clicks.count(), 0);
}

void tst_NorvaneAgent::showsTheBoundPages()
{
    Frame frame;
    QVERIFY(frame.agent.bindRibbonPagesAndDockPartition({frame.pages.at(2), frame.pages.at(1)}, 1));
    QVERIFY(frame.agent.bindRibbonPagesAndDockPartition({frame.pages.at(1)}, 2));
    frame.content->setCurrentTab(1, 0);
    QCOMPARE(frame.visibleTabs(), QList<bool>({true, true, true}));
    QCOMPARE(frame.ribbon->currentPage(), frame.pages.at(2));
    frame.content->setCurrentTab(2, 0);
    QCOMPARE(frame.visibleTabs(), QList<bool>({true, true, false}));
    QCOMPARE(frame.ribbon->currentPage(), frame.pages.at(1));
    frame.content->setCurrentTab(0, 0);
    QCOMPARE(frame.visibleTabs(), QList<bool>({true, false, false}));
    QCOMPARE(frame.ribbon->currentPage(), frame.pages.at(0));

    // A page that is not temporary is shown again and selected as well.
    frame.ribbon->hidePage(0);
    QVERIFY(frame.agent.bindRibbonPagesAndDockPartition({frame.pages.at(0)}, 2));
    frame.content->setCurrentTab(2, 0);
    QCOMPARE(frame.visibleTabs(), QList<bool>({true, false, false}));
    QCOMPARE(frame.ribbon->currentPage(), frame.pages.at(0));
}

void tst_NorvaneAgent::keepsTheLastBindingOfASection()
{
    Frame frame;
    QVERIFY(frame.agent.bindRibbonPagesAndDockPartition({frame.pages.at(1)}, 1));
    QVERIFY(frame.agent.bindRibbonPagesAndDockPartition({frame.pages.at(2)}, 1));
    QVERIFY(!frame.agent.bindRibbonPagesAndDockPartition({}, 1));
    frame.content->setCurrentTab(1, 0);
    QCOMPARE(frame.visibleTabs(), QList<bool>({true, false, true}));
    QCOMPARE(frame.ribbon->currentPage(), frame.pages.at(2));
}

void tst_NorvaneAgent::changesNothingAtBinding()
{
    Frame frame;
    frame.content->setCurrentTab(1, 0);
    QVERIFY(frame.agent.bindRibbonPagesAndDockPartition({frame.pages.at(1)}, 1));
    QCOMPARE(frame.visibleTabs(), QList<bool>({true, false, false}));
    QCOMPARE(frame.ribbon->currentPage(), frame.pages.at(0));
}

void tst_NorvaneAgent::keepsTheCurrentPageIfTheFirstIsNull()
{
    Frame frame;
    frame.ribbon->showPage(2);
    frame.ribbon->setCurrentIndex(2);
    QVERIFY(frame.agent.bindRibbonPagesAndDockPartition({nullptr, frame.pages.at(1)}, 1));
    frame.content->setCurrentTab(1, 0);
    QCOMPARE(frame.visibleTabs(), QList<bool>({true, true, false}));
    QCOMPARE(frame.ribbon->currentPage(), frame.pages.at(2));
}

void tst_NorvaneAgent::passesOverForeignAndDeletedPages()
{
    Frame frame;
    RibbonPage foreign;
    auto *deleted = new RibbonPage;
    QVERIFY(frame.agent.bindRibbonPagesAndDockPartition({&foreign, deleted, frame.pages.at(1)}, 1));
    QVERIFY(frame.agent.bindRibbonPagesAndDockPartition({deleted}, 2));
    delete deleted;
    frame.content->setCurrentTab(1, 0);
    QCOMPARE(frame.visibleTabs(), QList<bool>({true, true, false}));
    QCOMPARE(frame.ribbon->currentPage(), frame.pages.at(0));
    frame.content->setCurrentTab(2, 0);
    QCOMPARE(frame.visibleTabs(), QList<bool>({true, false, false}));
    QCOMPARE(frame.ribbon->currentPage(), frame.pages.at(0));
}

void tst_NorvaneAgent::followsTheUser()
{
    Frame frame;
    QVERIFY(frame.agent.bindRibbonPagesAndDockPartition({frame.pages.at(2)}, 2));
    QVERIFY(Gui::open(&frame.window));
    auto *bar = frame.content->findChild<QTabBar *>(u"dockSectionBar"_s);
    QVERIFY(bar);
    Gui::click(bar, bar->tabRect(2).center());
    QCOMPARE(frame.ribbon->currentPage(), frame.pages.at(2));
    QCOMPARE(frame.visibleTabs(), QList<bool>({true, false, true}));
    QVERIFY(frame.pages.at(2)->isVisible());
    Gui::click(bar, bar->tabRect(1).center());
    QCOMPARE(frame.ribbon->currentPage(), frame.pages.at(0));
    QCOMPARE(frame.visibleTabs(), QList<bool>({true, false, false}));
}

void tst_NorvaneAgent::letsTwoAgentsLiveSideBySide()
{
    Frame first;
    Frame second;
    QVERIFY(first.agent.bindRibbonPagesAndDockPartition({first.pages.at(1)}, 1));
    QVERIFY(second.agent.bindRibbonPagesAndDockPartition({second.pages.at(2)}, 1));
    first.content->setCurrentTab(1, 0);
    QCOMPARE(first.ribbon->currentPage(), first.pages.at(1));
    QCOMPARE(second.visibleTabs(), QList<bool>({true, false, false}));
    QCOMPARE(second.ribbon->currentPage(), second.pages.at(0));
    second.content->setCurrentTab(1, 0);
    QCOMPARE(second.ribbon->currentPage(), second.pages.at(2));
    QCOMPARE(first.visibleTabs(), QList<bool>({true, true, false}));
}

void tst_NorvaneAgent::leavesTheWindowWhenItDies()
{
    QMainWindow window;
    auto agent = std::make_unique<NorvaneAgent>();
    agent->setup(&window, true, true);
    const QPointer<RibbonBar> ribbon = agent->ribbonBar();
    RibbonPage *home = ribbon->addPage(u"Home"_s, false);
    ribbon->addPage(u"Text"_s, true);
    ribbon->showPage(1);
    ribbon->setCurrentIndex(1);
    DockContentWidget *content = agent->dockContainer()->contentWidget();
    for (const auto &title : {u"Texts"_s, u"Pictures"_s})
        content->addTab(content->addSection(title), new QWidget, u"tab"_s);
    ribbon->setCurrentIndex(1);
    agent.reset();
    QVERIFY(ribbon);
    QVERIFY(Gui::open(&window));
    content->setCurrentTab(1, 0);
    QVERIFY(ribbon->currentPage() != home);
}

void tst_NorvaneAgent::outlivesItsWindow()
{
    auto window = std::make_unique<QMainWindow>();
    auto *agent = new NorvaneAgent(this);
    QCOMPARE(agent->parent(), this);
    agent->setup(window.get(), true, true);
    RibbonPage *page = agent->ribbonBar()->addPage(u"Home"_s, false);
    DockContentWidget *content = agent->dockContainer()->contentWidget();
    content->addTab(content->addSection(u"Texts"_s), new QWidget, u"tab"_s);
    QVERIFY(agent->bindRibbonPagesAndDockPartition({page}, 0));
    window.reset();
    QVERIFY(!agent->ribbonBar());
    QVERIFY(!agent->addressBar());
    QVERIFY(!agent->dockContainer());
    QVERIFY(!agent->bindRibbonPagesAndDockPartition({nullptr}, 0));
    delete agent;
}

NORVANE_TEST_MAIN(tst_NorvaneAgent)

#include "tst_NorvaneAgent.moc"
