// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "DockWindow.h"
#include "PolishCounter.h"
#include "TestCase.h"

#include <dock/DockPageStack.h>
#include <dock/DockTitle.h>
#include <dock/DockView.h>

#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QVBoxLayout>

using namespace Norvane;
using namespace Qt::StringLiterals;

namespace {

//! Content that writes down how often it was asked for its size.
class Content : public QWidget
{
public:
    explicit Content(QSize least = {0, 0})
        : least(least)
    {
        auto *column = new QVBoxLayout(this);
        column->addWidget(new QLineEdit(u"text"_s));
        column->addStretch();
    }

    QSize minimumSizeHint() const override
    {
        ++asked;
        return least.expandedTo(QWidget::minimumSizeHint());
    }

    QSize least;
    mutable int asked = 0;
};

// The sheet draws one between a side panel and the content.
constexpr int line = 1;

void settle()
{
    for (int i = 0; i < 5; ++i)
        QCoreApplication::processEvents();
}

QWidget *pageOf(const DockPanelWidget *panelWidget, int index)
{
    return static_cast<QStackedWidget *>(panelWidget->stackedWidget())->widget(index);
}

QWidget *contentOf(const DockPanelWidget *panelWidget, int index)
{
    return pageOf(panelWidget, index)->findChild<DockView *>()->widget();
}

QString nameOf(const QWidget *widget)
{
    return QString::fromLatin1(widget->metaObject()->className());
}

//! Three pages in every panel, of which the second has two views.
void fill(const DockWindow &window)
{
    for (auto *panelWidget : {window.left, window.right, window.bottom}) {
        for (int i = 0; i < 3; ++i)
            panelWidget->addView(new Content, QIcon(), u"View"_s);
        panelWidget->tabifyView(1, new Content, QIcon(), u"Second"_s);
    }
}

using Way = std::function<void(DockWindow &)>;

} // namespace

class tst_DockPageStack : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void leavesUnseenPagesAlone_data();
    void leavesUnseenPagesAlone();
    void polishesEachWidgetOnceAtTheFirstVisit_data();
    void polishesEachWidgetOnceAtTheFirstVisit();
    void polishesAViewThatComesToASeenPage();
    void looksAsIfSeenFromTheStart_data();
    void looksAsIfSeenFromTheStart();
    void followsSheetsAndFontsSetBeforeTheVisit();
    void survivesDeletionsBeforeTheVisit();

    void hasRoomForPagesThatWereNotSeen();
    void asksNoPageAgainForAnotherSplit();
    void followsThePageThatIsShown();
    void followsItsPages();
};

void tst_DockPageStack::leavesUnseenPagesAlone_data()
{
    QTest::addColumn<Way>("build");
    QTest::newRow("before the window is open") << Way([](DockWindow &window) {
        fill(window);
        Gui::open(&window);
    });
    QTest::newRow("before, with events in between") << Way([](DockWindow &window) {
        fill(window);
        settle();
        Gui::open(&window);
    });
    QTest::newRow("while the window is open") << Way([](DockWindow &window) {
        Gui::open(&window);
        fill(window);
    });
    QTest::newRow("tabified while the window is open") << Way([](DockWindow &window) {
        Gui::open(&window);
        for (auto *panelWidget : {window.left, window.right, window.bottom}) {
            for (int i = 0; i < 3; ++i)
                panelWidget->addView(new Content, QIcon(), u"View"_s);
        }
        settle();
        for (auto *panelWidget : {window.left, window.right, window.bottom})
            panelWidget->tabifyView(1, new Content, QIcon(), u"Second"_s);
    });
    QTest::newRow("minimized and restored") << Way([](DockWindow &window) {
        fill(window);
        Gui::open(&window);
        for (auto *panelWidget : {window.left, window.right, window.bottom}) {
            Gui::click(DockWindow::button(panelWidget, 0));
            settle();
            Gui::click(DockWindow::button(panelWidget, 0));
        }
        window.container->restoreState(window.container->saveState());
        window.resize(800, 600);
    });
}

void tst_DockPageStack::leavesUnseenPagesAlone()
{
    QFETCH(Way, build);
    PolishCounter counter;
    DockWindow window(0);
    window.addTab();
    build(window);
    settle();
    for (const auto *panelWidget : {window.left, window.right, window.bottom}) {
        const QWidget *seen = pageOf(panelWidget, 0);
        QVERIFY(seen->isVisible());
        const QList<QWidget *> all = seen->findChildren<QWidget *>();
        for (const QWidget *widget : all)
            QVERIFY2(widget->testAttribute(Qt::WA_WState_Polished), qPrintable(nameOf(widget)));
        for (int i : {1, 2}) {
            const QList<QWidget *> widgets = pageOf(panelWidget, i)->findChildren<QWidget *>();
            QVERIFY(widgets.size() >= 8);
            for (const QWidget *widget : widgets) {
                // Qt asks a handle for its width as soon as it is there.
                if (qobject_cast<const QSplitterHandle *>(widget))
                    continue;
                QVERIFY2(!counter.events.contains(widget), qPrintable(nameOf(widget)));
                QVERIFY2(!counter.styled.contains(widget), qPrintable(nameOf(widget)));
            }
        }
    }
}

void tst_DockPageStack::polishesEachWidgetOnceAtTheFirstVisit_data()
{
    leavesUnseenPagesAlone_data();
}

void tst_DockPageStack::polishesEachWidgetOnceAtTheFirstVisit()
{
    QFETCH(Way, build);
    PolishCounter counter;
    DockWindow window(0);
    window.addTab();
    build(window);
    settle();
    for (auto *panelWidget : {window.left, window.right, window.bottom}) {
        for (int index : {1, 2, 1, 2}) {
            Gui::click(DockWindow::button(panelWidget, index));
            settle();
            const QList<QWidget *> widgets = pageOf(panelWidget, index)->findChildren<QWidget *>();
            for (const QWidget *widget : widgets) {
                QVERIFY2(counter.events.value(widget) == 1, qPrintable(nameOf(widget)));
                QVERIFY2(counter.styled.value(widget) == 1, qPrintable(nameOf(widget)));
            }
        }
    }
}

void tst_DockPageStack::polishesAViewThatComesToASeenPage()
{
    PolishCounter counter;
    DockWindow window;
    window.addTab();
    QVERIFY(Gui::open(&window));
    for (auto *panelWidget : {window.left, window.right, window.bottom}) {
        auto *content = new Content;
        panelWidget->tabifyView(0, content, QIcon(), u"Second"_s);
        settle();
        QVERIFY(content->isVisible());
        const QWidget *view = content->parentWidget();
        const QList<QWidget *> widgets = view->findChildren<QWidget *>();
        for (const QWidget *widget : widgets) {
            if (widget->isVisible())
                QVERIFY2(counter.events.value(widget) == 1, qPrintable(nameOf(widget)));
        }
    }
}

void tst_DockPageStack::looksAsIfSeenFromTheStart_data()
{
    QTest::addColumn<bool>("tabified");
    QTest::addColumn<bool>("shown");
    for (bool tabified : {false, true}) {
        for (bool shown : {false, true}) {
            QTest::addRow("%s, %s", tabified ? "two views" : "one view",
                          shown ? "added to a window that is open" : "added before")
                << tabified << shown;
        }
    }
}

void tst_DockPageStack::looksAsIfSeenFromTheStart()
{
    QFETCH(bool, tabified);
    QFETCH(bool, shown);
    const auto addViews = [&](const DockWindow &window) {
        for (auto *panelWidget : {window.left, window.right, window.bottom}) {
            for (int page : {0, 1}) {
                panelWidget->addView(new Content, QIcon(), u"View"_s);
                if (tabified)
                    panelWidget->tabifyView(page, new Content, QIcon(), u"Second"_s);
            }
        }
    };
    const auto geometries = [](const QWidget *page) {
        QStringList all;
        const QList<QWidget *> widgets = page->findChildren<QWidget *>();
        for (const QWidget *widget : widgets)
            all << nameOf(widget) + QDebug::toString(widget->geometry());
        return all;
    };
    DockWindow reference(0);
    reference.addTab();
    addViews(reference);
    QVERIFY(Gui::open(&reference));
    DockWindow window(0);
    window.addTab();
    if (shown)
        QVERIFY(Gui::open(&window));
    addViews(window);
    QVERIFY(Gui::open(&window));
    settle();
    window.outer()->setSizes(reference.outer()->sizes());
    window.inner()->setSizes(reference.inner()->sizes());
    settle();
    const QList<std::pair<DockPanelWidget *, DockPanelWidget *>> panels{
        {window.left, reference.left},
        {window.right, reference.right},
        {window.bottom, reference.bottom}};
    for (const auto &[panelWidget, other] : panels) {
        const QImage expected = Gui::picture(pageOf(other, 0));
        panelWidget->setCurrentIndex(1);
        QCOMPARE(Gui::picture(pageOf(panelWidget, 1)), expected);
        settle();
        QCOMPARE(panelWidget->currentIndex(), 1);
        QCOMPARE(geometries(pageOf(panelWidget, 1)), geometries(pageOf(other, 0)));
        QCOMPARE(Gui::picture(pageOf(panelWidget, 1)), expected);
    }
}

void tst_DockPageStack::followsSheetsAndFontsSetBeforeTheVisit()
{
    DockWindow window(0);
    window.addTab();
    for (int i = 0; i < 2; ++i)
        window.left->addView(new Content, QIcon(), u"View"_s);
    QVERIFY(Gui::open(&window));
    settle();
    window.container->setStyleSheet(
        window.container->styleSheet()
        + u"Norvane--DockTitle { background-color: rgb(7, 8, 9); font: bold 20px; }"_s);
    window.left->setCurrentIndex(1);
    settle();
    auto *title = pageOf(window.left, 1)->findChild<DockTitle *>();
    QCOMPARE(Gui::pixel(title, {2, 2}), QColor(7, 8, 9));
    const QImage visited = Gui::picture(pageOf(window.left, 1));
    window.left->setCurrentIndex(0);
    settle();
    QCOMPARE(Gui::picture(pageOf(window.left, 0)), visited);
}

void tst_DockPageStack::survivesDeletionsBeforeTheVisit()
{
    DockWindow window(0);
    window.addTab();
    fill(window);
    QVERIFY(Gui::open(&window));
    settle();
    delete contentOf(window.left, 1);
    delete pageOf(window.left, 2)->findChild<DockView *>();
    delete pageOf(window.right, 1);
    const std::unique_ptr<QWidget> taken(contentOf(window.bottom, 2));
    taken->setParent(nullptr);
    for (auto *panelWidget : {window.left, window.right, window.bottom}) {
        for (int index = 0; index < panelWidget->count(); ++index) {
            panelWidget->setCurrentIndex(index);
            settle();
            QVERIFY(panelWidget->isViewVisible(index));
        }
    }
    taken->show();
    QVERIFY(taken->testAttribute(Qt::WA_WState_Polished));
}

void tst_DockPageStack::hasRoomForPagesThatWereNotSeen()
{
    DockWindow window(0);
    window.addTab();
    auto *wide = new Content;
    wide->setMinimumWidth(300);
    auto *demanding = new Content({400, 10});
    for (auto *content : {new Content, wide, demanding})
        window.left->addView(content, QIcon(), u"View"_s);
    QVERIFY(Gui::open(&window));
    settle();
    QCOMPARE(window.left->stackedWidget()->width(), 300 + line);
    window.left->setCurrentIndex(1);
    settle();
    QVERIFY(wide->isVisible());
    QCOMPARE(window.left->stackedWidget()->width(), 300 + line);
    // What a widget asks for by itself is not known before.
    QCOMPARE(demanding->asked, 0);
    window.left->setCurrentIndex(2);
    QTRY_COMPARE(window.left->stackedWidget()->width(), 400 + line);
    window.left->setCurrentIndex(0);
    settle();
    QCOMPARE(window.left->stackedWidget()->width(), 400 + line);
}

void tst_DockPageStack::asksNoPageAgainForAnotherSplit()
{
    DockWindow window(0);
    window.addTab();
    QList<Content *> contents;
    for (int i = 0; i < 3; ++i) {
        contents << new Content;
        window.left->addView(contents.constLast(), QIcon(), u"View"_s);
    }
    QVERIFY(Gui::open(&window));
    for (int i : {1, 2, 0})
        window.left->setCurrentIndex(i);
    settle();
    for (Content *content : std::as_const(contents))
        content->asked = 0;
    const int width = window.outer()->width();
    window.outer()->setSizes({200, width - 200, 0});
    const QByteArray state = window.container->saveState();
    window.outer()->setSizes({300, width - 300, 0});
    window.container->restoreState(state);
    QCOMPARE(window.outer()->sizes().at(0), 200);
    for (const Content *content : std::as_const(contents))
        QCOMPARE(content->asked, 0);
}

void tst_DockPageStack::followsThePageThatIsShown()
{
    DockWindow window(0);
    window.addTab();
    auto *shown = new Content;
    auto *hidden = new Content;
    window.left->addView(shown, QIcon(), u"View"_s);
    window.left->addView(hidden, QIcon(), u"View"_s);
    QVERIFY(Gui::open(&window));
    window.outer()->setSizes({150, window.outer()->width() - 150, 0});
    settle();
    const QWidget *stack = window.left->stackedWidget();
    QCOMPARE(stack->width(), 150);
    shown->least = {222, 10};
    shown->updateGeometry();
    QTRY_COMPARE(stack->width(), 222 + line);
    hidden->least = {333, 10};
    hidden->updateGeometry();
    settle();
    QCOMPARE(stack->width(), 222 + line);
    window.left->setCurrentIndex(1);
    QTRY_COMPARE(stack->width(), 333 + line);
}

void tst_DockPageStack::followsItsPages()
{
    DockPageStack stack;
    const QSize none = QStackedWidget().minimumSizeHint();
    QCOMPARE(stack.minimumSizeHint(), none);
    auto *page = new QLabel(u"a text of some length"_s);
    page->setMinimumSize(120, 80);
    stack.addWidget(page);
    QCOMPARE(stack.minimumSizeHint(), QSize(120, 80));
    QCOMPARE(stack.sizeHint().width(), page->sizeHint().width());
    auto *other = new QLabel;
    other->setMinimumSize(50, 200);
    stack.addWidget(other);
    QCOMPARE(stack.minimumSizeHint(), QSize(120, 200));
    delete page;
    QCOMPARE(stack.minimumSizeHint().width(), 50);
    delete other;
    QCOMPARE(stack.minimumSizeHint(), none);
}

NORVANE_TEST_MAIN(tst_DockPageStack)
#include "tst_DockPageStack.moc"
