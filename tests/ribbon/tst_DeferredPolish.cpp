// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "PolishCounter.h"
#include "RibbonWindow.h"
#include "TestCase.h"

#include <Norvane/RibbonSubgroup.h>

#include <QtGui/QAction>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMenu>

#include <memory>

using namespace Norvane;

namespace {

// A ribbon whose pages have every kind of control.
struct FilledRibbon : RibbonWindow
{
    FilledRibbon()
    {
        for (int i = 0; i < 8; ++i) {
            auto *action = new QAction(QIcon(QStringLiteral(":/res/search.svg")),
                                       QStringLiteral("Action\n%1").arg(i), this);
            action->setCheckable(i % 2);
            action->setChecked(i == 3);
            action->setEnabled(i != 2);
            actions << action;
        }
        menu.addAction(QStringLiteral("Item"));
    }

    void fill(RibbonPage *page)
    {
        RibbonGroup *large = page->addGroup(QStringLiteral("Large"));
        for (int i = 0; i < 4; ++i)
            large->addAction(actions[i]);
        large->addSeparator();
        large->addMenu(&menu, QToolButton::MenuButtonPopup);
        RibbonGroup *small = page->addGroup(QStringLiteral("Small ones"));
        RibbonSubgroup *column = small->addSubgroup();
        for (int i = 0; i < 2; ++i)
            column->addAction(actions[i]);
        column->addActions(actions);
        RibbonSubgroup *widgets = small->addSubgroup();
        auto *choice = new QComboBox;
        choice->addItems({QStringLiteral("one"), QStringLiteral("two and a half")});
        widgets->addWidget(choice);
        widgets->addWidget(new QLineEdit(QStringLiteral("text")));
    }

    void fillPages(int count = 3)
    {
        for (int i = 0; i < count; ++i)
            fill(bar->addPage(QChar(u'A' + i), false));
    }

    QList<QAction *> actions;
    QMenu menu{QStringLiteral("Menu")};
};

/*
    The widgets that the ribbon has made for a page. The application's own are not among them: they
    are shown by the call that adds them, and Qt polishes what is shown.
*/
QWidgetList widgetsOf(const RibbonPage *page)
{
    QWidgetList widgets;
    const auto collect = [&](const QObject *parent, const auto &next) -> void {
        for (QObject *child : parent->children()) {
            auto *widget = qobject_cast<QWidget *>(child);
            if (!widget || qobject_cast<QComboBox *>(child) || qobject_cast<QLineEdit *>(child))
                continue;
            widgets << widget;
            next(child, next);
        }
    };
    collect(page, collect);
    return widgets;
}

// A button takes its size when it is first resized, which makes the layouts round it start again.
void settle()
{
    for (int i = 0; i < 10; ++i)
        QCoreApplication::processEvents();
}

QString nameOf(const QWidget *widget)
{
    return QString::fromLatin1(widget->metaObject()->className()) + u' ' + widget->objectName();
}

using Way = std::function<void(FilledRibbon &)>;

} // namespace

class tst_DeferredPolish : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void leavesUnseenPagesAlone_data();
    void leavesUnseenPagesAlone();
    void polishesEachWidgetOnceAtTheFirstVisit_data();
    void polishesEachWidgetOnceAtTheFirstVisit();
    void polishesWhatIsAddedToASeenPage();
    void hidesNothingOfAnUnseenPage();

    void looksAsIfFilledWhileShown_data();
    void looksAsIfFilledWhileShown();
    void followsNamesAndPropertiesSetBeforeTheVisit();
    void followsSheetsSetBeforeTheVisit();
    void followsFontsAndPalettesSetBeforeTheVisit();
    void followsActionsChangedBeforeTheVisit();
    void survivesDeletionsBeforeTheVisit();
    void showsAPageOnItsOwn();
    void paintsAPageOnceAndInPlaceAtItsFirstVisit();
};

void tst_DeferredPolish::leavesUnseenPagesAlone_data()
{
    QTest::addColumn<Way>("fill");
    // Qt has its style polish all that is below a widget with a sheet whose parent changes, and
    // below one whose sheet changes, even what was never polished itself.
    QTest::addColumn<bool>("restyled");
    QTest::newRow("before the window is open") << Way([](FilledRibbon &window) {
        window.fillPages();
        window.open();
    }) << false;
    QTest::newRow("before, with events in between") << Way([](FilledRibbon &window) {
        window.fillPages();
        settle();
        window.open();
        settle();
    }) << false;
    QTest::newRow("before the bar is in its window") << Way([](FilledRibbon &window) {
        window.bar->setParent(nullptr);
        window.fillPages();
        settle();
        static_cast<QBoxLayout *>(window.layout())->insertWidget(0, window.bar);
        window.open();
    }) << true;
    QTest::newRow("while the window is open") << Way([](FilledRibbon &window) {
        window.open();
        window.fillPages();
        settle();
    }) << false;
    QTest::newRow("before the bar goes to another window") << Way([](FilledRibbon &window) {
        QWidget other;
        window.bar->setParent(&other);
        window.fillPages();
        other.show();
        window.bar->show();
        settle();
        static_cast<QBoxLayout *>(window.layout())->insertWidget(0, window.bar);
        window.bar->show();
        window.open();
        settle();
    }) << true;
    QTest::newRow("before the window has a sheet") << Way([](FilledRibbon &window) {
        window.fillPages();
        window.setStyleSheet(QStringLiteral("QWidget { color: black; }"));
        window.open();
    }) << true;
    QTest::newRow("with pages of the application") << Way([](FilledRibbon &window) {
        for (int i = 0; i < 3; ++i) {
            auto *page = new RibbonPage;
            window.fill(page);
            settle();
            window.bar->addPage(QString::number(i), page, false);
        }
        window.open();
        settle();
    }) << false;
    QTest::newRow("with pages filled after they were added") << Way([](FilledRibbon &window) {
        for (int i = 0; i < 3; ++i)
            window.bar->addPage(QString::number(i), new RibbonPage, false);
        window.open();
        settle();
        for (int i = 0; i < 3; ++i)
            window.fill(window.bar->page(i));
        settle();
    }) << false;
    QTest::newRow("with temporary pages") << Way([](FilledRibbon &window) {
        window.addPages(1);
        for (int i = 0; i < 2; ++i)
            window.fill(window.bar->addPage(QString::number(i), true));
        window.open();
        window.bar->hideTemporaryPages();
        settle();
    }) << false;
    QTest::newRow("with hints asked for") << Way([](FilledRibbon &window) {
        window.fillPages();
        window.bar->sizeHint();
        window.bar->minimumSizeHint();
        window.sizeHint();
        window.minimumSizeHint();
        window.layout()->maximumSize();
        window.adjustSize();
        window.open();
        window.adjustSize();
        window.resize(700, 300);
        settle();
    }) << false;
}

void tst_DeferredPolish::leavesUnseenPagesAlone()
{
    QFETCH(Way, fill);
    QFETCH(bool, restyled);
    PolishCounter counter;
    FilledRibbon window;
    fill(window);
    QVERIFY(window.isVisible());
    QVERIFY(window.bar->isVisible());
    QCOMPARE(window.bar->count(), 3);
    for (int i : {1, 2}) {
        const QWidgetList widgets = widgetsOf(window.bar->page(i));
        QVERIFY(widgets.size() > 20);
        for (QWidget *widget : widgets) {
            const QString name = nameOf(widget);
            QVERIFY2(!counter.events.contains(widget), qPrintable(name));
            QVERIFY2(!widget->testAttribute(Qt::WA_WState_Polished), qPrintable(name));
            QVERIFY2(restyled || !counter.styled.contains(widget), qPrintable(name));
        }
    }
}

void tst_DeferredPolish::polishesEachWidgetOnceAtTheFirstVisit_data()
{
    leavesUnseenPagesAlone_data();
}

void tst_DeferredPolish::polishesEachWidgetOnceAtTheFirstVisit()
{
    QFETCH(Way, fill);
    QFETCH(bool, restyled);
    PolishCounter counter;
    FilledRibbon window;
    fill(window);
    QVERIFY(window.isVisible());
    const auto check = [&](const RibbonPage *page) {
        const QWidgetList widgets = widgetsOf(page);
        for (QWidget *widget : widgets) {
            const QString name = nameOf(widget);
            QVERIFY2(counter.events.value(widget) == 1, qPrintable(name));
            QVERIFY2(restyled || counter.styled.value(widget) == 1,
                     qPrintable(name + u' ' + QString::number(counter.styled.value(widget))));
        }
    };
    window.bar->setCurrentIndex(1);
    settle();
    check(window.bar->page(1));
    const QList<QWidget *> widgets = widgetsOf(window.bar->page(2));
    for (QWidget *widget : widgets)
        QVERIFY(!counter.events.contains(widget));
    window.bar->setCurrentIndex(2);
    settle();
    check(window.bar->page(2));
    window.bar->setCurrentIndex(1);
    window.bar->setCurrentIndex(2);
    settle();
    check(window.bar->page(1));
    check(window.bar->page(2));
}

void tst_DeferredPolish::polishesWhatIsAddedToASeenPage()
{
    PolishCounter counter;
    FilledRibbon window;
    window.fillPages(2);
    QVERIFY(window.open());
    window.bar->setCurrentIndex(1);
    settle();
    const int before = int(widgetsOf(window.bar->page(1)).size());
    window.fill(window.bar->page(1));
    settle();
    QCOMPARE(widgetsOf(window.bar->page(1)).size(), 2 * before);
    const QList<QWidget *> widgets = widgetsOf(window.bar->page(1));
    for (QWidget *widget : widgets) {
        QVERIFY2(widget->isVisible(), qPrintable(nameOf(widget)));
        QVERIFY2(counter.events.value(widget) == 1, qPrintable(nameOf(widget)));
    }

    // A page that was seen before is as any other widget, current or not.
    window.bar->setCurrentIndex(0);
    auto *edit = new QLineEdit;
    window.bar->page(1)->group(0)->addWidget(edit);
    QTRY_COMPARE(counter.events.value(edit), 1);
}

void tst_DeferredPolish::hidesNothingOfAnUnseenPage()
{
    FilledRibbon window;
    window.fillPages(2);
    QVERIFY(window.open());
    settle();
    const RibbonPage *page = window.bar->page(1);
    QVERIFY(page->isHidden());
    QCOMPARE(page->group(0)->parentWidget(), page);
    for (int i : {0, 1}) {
        QVERIFY(!page->group(i)->isHidden());
        QVERIFY(page->group(i)->isVisibleTo(page));
        QVERIFY(!page->group(i)->isVisible());
    }
    const auto buttons = page->findChildren<QToolButton *>();
    QCOMPARE(buttons.size(), 4 + 1 + 2 + 8);
    for (const QToolButton *button : buttons)
        QVERIFY(button->isVisibleTo(page));
}

void tst_DeferredPolish::looksAsIfFilledWhileShown_data()
{
    leavesUnseenPagesAlone_data();
}

void tst_DeferredPolish::looksAsIfFilledWhileShown()
{
    QFETCH(Way, fill);
    FilledRibbon window;
    fill(window);

    // Filled while it is shown nothing of a page is put off.
    FilledRibbon reference;
    reference.setStyleSheet(window.styleSheet());
    QVERIFY(reference.open());
    reference.resize(window.size());
    reference.addPages(1);
    reference.fill(reference.bar->page(0));
    settle();
    const QImage expected = Gui::picture(reference.stack());
    QStringList places;
    const QList<QWidget *> widgets = widgetsOf(reference.bar->page(0));
    for (const QWidget *widget : widgets)
        places << QDebug::toString(widget->geometry());

    for (int i : {1, 2}) {
        window.bar->setCurrentIndex(i);
        QTRY_COMPARE(Gui::picture(window.stack()), expected);
        QStringList seen;
        const QList<QWidget *> widgets = widgetsOf(window.bar->page(i));
        for (const QWidget *widget : widgets)
            seen << QDebug::toString(widget->geometry());
        QCOMPARE(seen, places);
    }
}

void tst_DeferredPolish::followsNamesAndPropertiesSetBeforeTheVisit()
{
    FilledRibbon window;
    window.bar->setStyleSheet(
        window.bar->styleSheet()
        + QStringLiteral(
            "Norvane--RibbonGroup#named>QLabel#groupTitle { color: rgb(1, 2, 3); }"
            "Norvane--RibbonGroup[kind=marked]>QLabel#groupTitle { color: rgb(2, 3, 4); }"
            "Norvane--RibbonPage#warm QLabel#groupTitle { color: rgb(3, 4, 5); }"
            "Norvane--RibbonPage[kind=cold] QLabel#groupTitle { color: rgb(4, 5, 6); }"
            "QLabel#renamed { color: rgb(5, 6, 7); }"));
    const QString solid(6, QChar(0x2588));
    const auto title = [](const RibbonPage *page) {
        return page->group(0)->findChild<QLabel *>(Qt::FindDirectChildrenOnly);
    };
    QList<RibbonPage *> pages;
    for (int i = 0; i < 7; ++i) {
        pages << window.bar->addPage(QString::number(i), false);
        pages.last()->addGroup(solid);
    }
    pages[1]->setObjectName(QStringLiteral("warm"));
    pages[2]->group(0)->setObjectName(QStringLiteral("named"));
    QVERIFY(window.open());
    settle();
    pages[3]->group(0)->setProperty("kind", QStringLiteral("marked"));
    pages[4]->setObjectName(QStringLiteral("warm"));
    pages[5]->setProperty("kind", QStringLiteral("cold"));
    title(pages[6])->setObjectName(QStringLiteral("renamed"));

    const QList<QColor> expected{{97, 97, 97}, {3, 4, 5}, {1, 2, 3}, {2, 3, 4},
                                 {3, 4, 5},    {4, 5, 6}, {5, 6, 7}};
    for (int i = 0; i < 7; ++i) {
        window.bar->setCurrentPage(pages[i]);
        settle();
        const QImage picture = Gui::picture(title(pages[i]));
        QHash<QRgb, int> colours;
        for (int x = 0; x < title(pages[i])->width(); ++x)
            ++colours[Gui::pixel(picture, {x, 6}).rgb()];
        QVERIFY2(colours.value(expected[i].rgb()) >= 30, qPrintable(QString::number(i)));
    }
}

void tst_DeferredPolish::followsSheetsSetBeforeTheVisit()
{
    for (int where = 0; where < 3; ++where) {
        FilledRibbon window;
        window.fillPages(2);
        QVERIFY(window.open());
        settle();
        const QString sheet =
            QStringLiteral("Norvane--RibbonGroup QLabel { background-color: rgb(7, 8, 9); }");
        if (where == 0)
            window.bar->setStyleSheet(window.bar->styleSheet() + sheet);
        else if (where == 1)
            window.setStyleSheet(sheet);
        else
            qApp->setStyleSheet(sheet);
        window.bar->setCurrentIndex(1);
        settle();
        auto *title = window.bar->page(1)->findChild<QLabel *>(QStringLiteral("groupTitle"));
        const QColor seen = Gui::pixel(title, {1, 1});
        const QImage visited = Gui::picture(window.bar->page(1));
        window.bar->setCurrentIndex(0);
        settle();
        const QImage other = Gui::picture(window.bar->page(0));
        qApp->setStyleSheet(QString());
        QCOMPARE(seen, QColor(7, 8, 9));
        QCOMPARE(visited, other);
    }
}

void tst_DeferredPolish::followsFontsAndPalettesSetBeforeTheVisit()
{
    FilledRibbon window;
    window.fillPages(2);
    QVERIFY(window.open());
    settle();
    QFont font = window.font();
    font.setPixelSize(9);
    font.setBold(true);
    QPalette colours = window.palette();
    colours.setColor(QPalette::Base, Qt::yellow);
    window.setFont(font);
    window.setPalette(colours);
    for (int i : {0, 1}) {
        auto *button = window.bar->page(i)->findChild<QToolButton *>();
        button->setFont(font);
        button->setPalette(colours);
    }
    window.bar->setCurrentIndex(1);
    settle();
    const QWidgetList seen = widgetsOf(window.bar->page(0));
    const QWidgetList visited = widgetsOf(window.bar->page(1));
    QCOMPARE(visited.size(), seen.size());
    for (int i = 0; i < seen.size(); ++i) {
        QCOMPARE(visited[i]->font(), seen[i]->font());
        QCOMPARE(visited[i]->palette(), seen[i]->palette());
    }
    const auto *button = window.bar->page(1)->findChild<QToolButton *>();
    QVERIFY(button->font().bold());
    QCOMPARE(button->palette().color(QPalette::Base), QColor(Qt::yellow));
}

void tst_DeferredPolish::followsActionsChangedBeforeTheVisit()
{
    FilledRibbon window;
    window.fillPages(2);
    QVERIFY(window.open());
    settle();
    window.actions[0]->setVisible(false);
    window.actions[1]->setText(QStringLiteral("A text of some length"));
    window.actions[2]->setEnabled(true);
    delete window.actions.takeLast();
    window.bar->setCurrentIndex(1);
    settle();
    const auto buttons = window.bar->page(1)->group(0)->findChildren<QToolButton *>();
    QVERIFY(buttons[0]->isHidden());
    QCOMPARE(buttons[1]->width(),
             10 + buttons[1]->fontMetrics().horizontalAdvance(window.actions[1]->text()));
    QVERIFY(buttons[2]->isEnabled());
}

void tst_DeferredPolish::survivesDeletionsBeforeTheVisit()
{
    FilledRibbon window;
    window.fillPages(4);
    QVERIFY(window.open());
    settle();
    delete window.bar->page(1)->findChild<QLineEdit *>();
    delete window.bar->page(1)->group(0);
    const std::unique_ptr<QWidget> taken(window.bar->page(2)->findChild<QToolButton *>());
    taken->setParent(nullptr);
    delete window.bar->page(3);
    for (int i : {1, 2}) {
        window.bar->setCurrentIndex(i);
        settle();
        const QList<QWidget *> widgets = widgetsOf(window.bar->page(i));
        for (QWidget *widget : widgets)
            QVERIFY2(widget->testAttribute(Qt::WA_WState_Polished), qPrintable(nameOf(widget)));
    }
    // What has left the page is polished when it is shown, wherever that is.
    taken->show();
    QVERIFY(taken->testAttribute(Qt::WA_WState_Polished));
}

void tst_DeferredPolish::showsAPageOnItsOwn()
{
    PolishCounter counter;
    FilledRibbon window;
    RibbonPage page;
    window.fill(&page);
    page.resize(800, 95);
    QVERIFY(Gui::open(&page));
    const QList<QWidget *> widgets = widgetsOf(&page);
    for (QWidget *widget : widgets) {
        QVERIFY2(widget->isVisible(), qPrintable(nameOf(widget)));
        QVERIFY2(counter.events.value(widget) == 1, qPrintable(nameOf(widget)));
    }
    QVERIFY(page.group(0)->width() > 100);
}

void tst_DeferredPolish::paintsAPageOnceAndInPlaceAtItsFirstVisit()
{
    struct PaintRecord : QObject
    {
        bool eventFilter(QObject *watched, QEvent *event) override
        {
            if (event->type() == QEvent::Paint)
                places[watched] << static_cast<QWidget *>(watched)->geometry();
            return false;
        }
        QHash<QObject *, QList<QRect>> places;
    };
    FilledRibbon window;
    window.fillPages(3);
    QVERIFY(window.open());
    settle();
    for (int i : {1, 2}) {
        PaintRecord record;
        const QWidgetList widgets = widgetsOf(window.bar->page(i));
        for (QWidget *widget : widgets)
            widget->installEventFilter(&record);
        Gui::click(window.tab(i));
        QTRY_VERIFY(!record.places.isEmpty());
        settle();
        for (QWidget *widget : widgets)
            QCOMPARE(record.places.value(widget), QList<QRect>{widget->geometry()});
    }
}

NORVANE_TEST_MAIN(tst_DeferredPolish)
#include "tst_DeferredPolish.moc"
