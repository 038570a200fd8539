// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "TestCase.h"
#include "ribbon/RibbonButton.h"

#include <Norvane/RibbonBar.h>
#include <Norvane/RibbonGroup.h>
#include <Norvane/RibbonPage.h>
#include <Norvane/RibbonSubgroup.h>

#include <QtWidgets/QApplication>
#include <QtWidgets/QMenu>
#include <QtWidgets/QProxyStyle>
#include <QtWidgets/QStyleFactory>
#include <QtWidgets/QVBoxLayout>

#include <memory>

using Norvane::RibbonBar;
using Norvane::RibbonButton;
using Norvane::RibbonGroup;
using Norvane::RibbonPage;

namespace {

//! What each button was asked to do since the last reset.
struct Calls
{
    QHash<const QObject *, int> sizeHints;
    QHash<const QObject *, int> paints;
    QHash<const QObject *, int> resizes;

    void reset() { *this = {}; }

    int most(const QHash<const QObject *, int> &calls) const
    {
        return calls.isEmpty() ? 0 : *std::max_element(calls.begin(), calls.end());
    }
};

class CountingStyle : public QProxyStyle
{
public:
    explicit CountingStyle(Calls *calls)
        : QProxyStyle(QStringLiteral("Fusion"))
        , m_calls(calls)
    {
    }

    QSize sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &size,
                           const QWidget *widget) const override
    {
        if (type == CT_ToolButton && qobject_cast<const RibbonButton *>(widget))
            ++m_calls->sizeHints[widget];
        return QProxyStyle::sizeFromContents(type, option, size, widget);
    }

private:
    Calls *const m_calls;
};

class CountingFilter : public QObject
{
public:
    explicit CountingFilter(Calls *calls)
        : m_calls(calls)
    {
        qApp->installEventFilter(this);
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (!qobject_cast<RibbonButton *>(watched))
            return false;
        if (event->type() == QEvent::Paint)
            ++m_calls->paints[watched];
        else if (event->type() == QEvent::Resize)
            ++m_calls->resizes[watched];
        return false;
    }

private:
    Calls *const m_calls;
};

//! A window with three pages of buttons of every size.
class Window : public QWidget
{
public:
    Window()
        : bar(new RibbonBar(this))
    {
        auto *layout = new QVBoxLayout(this);
        layout->addWidget(bar);
        layout->addStretch();
        for (int i = 0; i < 3; ++i) {
            RibbonPage *page = bar->addPage(QStringLiteral("Page %1").arg(i), false);
            for (int j = 0; j < 3; ++j)
                fill(page->addGroup(QStringLiteral("Group")));
        }
        resize(760, 300);
    }

    void fill(RibbonGroup *group)
    {
        const auto newAction = [group](const QString &text) { return new QAction(text, group); };
        group->addAction(newAction(QStringLiteral("One line")));
        group->addAction(newAction(QStringLiteral("Two\nlines")));
        auto *column = group->addSubgroup();
        column->addAction(newAction(QStringLiteral("Small")));
        column->addMenu(&menu, QToolButton::MenuButtonPopup);
        column->addActions({newAction(QStringLiteral("Icon")), newAction(QString())});
    }

    //! Does now what the window would do in a while: layouts, and the painting of what is dirty.
    void settle()
    {
        QCoreApplication::processEvents();
        QEvent update(QEvent::UpdateRequest);
        QCoreApplication::sendEvent(this, &update);
    }

    QList<RibbonButton *> buttons(int page) const
    {
        return bar->page(page)->findChildren<RibbonButton *>();
    }

    QMenu menu;
    RibbonBar *bar;
};

} // namespace

/*!
    What a ribbon costs is how often its buttons are measured, resized and painted: these tests
    count it.
*/
class tst_RibbonButtonCost : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();

    void firstShow();
    void firstVisit();
    void laterVisits();
    void narrowerWindow();
    void hoveringPaintsOneButton();
    void changedText();

private:
    bool open(Window &window);
    bool allPainted(const QList<RibbonButton *> &buttons) const;

    Calls m_calls;
    std::unique_ptr<CountingFilter> m_filter;
};

void tst_RibbonButtonCost::initTestCase()
{
    QApplication::setStyle(new CountingStyle(&m_calls));
    m_filter = std::make_unique<CountingFilter>(&m_calls);
}

void tst_RibbonButtonCost::cleanupTestCase()
{
    m_filter.reset();
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
}

bool tst_RibbonButtonCost::allPainted(const QList<RibbonButton *> &buttons) const
{
    return std::all_of(buttons.begin(), buttons.end(), [this](const RibbonButton *button) {
        return m_calls.paints.contains(button);
    });
}

//! Shows \a window until nothing more is going to happen in it.
bool tst_RibbonButtonCost::open(Window &window)
{
    m_calls.reset();
    window.show();
    const bool active = QTest::qWaitForWindowActive(&window, patience);
    const bool painted = QTest::qWaitFor([&] { return allPainted(window.buttons(0)); }, patience);
    window.settle();
    return active && painted;
}

void tst_RibbonButtonCost::firstShow()
{
    Window window;
    QVERIFY(open(window));
    QCOMPARE(window.buttons(0).size(), 18);
    QCOMPARE(m_calls.paints.size(), 18);
    QCOMPARE(m_calls.most(m_calls.paints), 1);
    QCOMPARE(m_calls.resizes.size(), 18);
    QCOMPARE_LE(m_calls.most(m_calls.sizeHints), 1);
    for (const int page : {1, 2}) {
        const QList<RibbonButton *> buttons = window.buttons(page);
        for (const RibbonButton *button : buttons)
            QVERIFY(!m_calls.sizeHints.contains(button));
    }
}

void tst_RibbonButtonCost::firstVisit()
{
    Window window;
    QVERIFY(open(window));
    m_calls.reset();
    window.bar->setCurrentIndex(1);
    QTRY_VERIFY(allPainted(window.buttons(1)));
    window.settle();
    QCOMPARE(m_calls.paints.size(), 18);
    QCOMPARE(m_calls.most(m_calls.paints), 1);
    QCOMPARE_LE(m_calls.most(m_calls.sizeHints), 1);
}

void tst_RibbonButtonCost::laterVisits()
{
    Window window;
    QVERIFY(open(window));
    for (const int page : {1, 2, 0}) {
        window.bar->setCurrentIndex(page);
        QTRY_VERIFY(allPainted(window.buttons(page)));
        window.settle();
    }
    for (const int page : {1, 0, 2, 1}) {
        m_calls.reset();
        window.bar->setCurrentIndex(page);
        QTRY_VERIFY(allPainted(window.buttons(page)));
        window.settle();
        QCOMPARE(m_calls.paints.size(), 18);
        QCOMPARE(m_calls.most(m_calls.paints), 1);
        QCOMPARE(m_calls.most(m_calls.sizeHints), 0);
        QCOMPARE(m_calls.most(m_calls.resizes), 0);
    }
}

void tst_RibbonButtonCost::narrowerWindow()
{
    Window window;
    QVERIFY(open(window));
    for (int width = 740; width >= 400; width -= 20) {
        m_calls.reset();
        window.resize(width, 300);
        QTRY_COMPARE(window.bar->width(), width - window.bar->x() * 2);
        window.settle();
        QCOMPARE(m_calls.most(m_calls.sizeHints), 0);
        QCOMPARE(m_calls.most(m_calls.resizes), 0);
        QCOMPARE_LE(m_calls.most(m_calls.paints), 1);
    }
}

void tst_RibbonButtonCost::hoveringPaintsOneButton()
{
    Window window;
    QVERIFY(open(window));
    RibbonButton *button = window.buttons(0).constFirst();
    QTest::mouseMove(window.windowHandle(), QPoint(window.width() - 2, window.height() - 2));
    window.settle();
    m_calls.reset();
    QTest::mouseMove(window.windowHandle(), button->mapTo(&window, QPoint(10, 10)));
    QTRY_COMPARE(m_calls.paints.value(button), 1);
    window.settle();
    QCOMPARE(m_calls.paints.size(), 1);
    QCOMPARE(m_calls.most(m_calls.paints), 1);
    QVERIFY(m_calls.sizeHints.isEmpty());
}

// A button keeps its size, so a new text costs its painting and nothing of its neighbours.
void tst_RibbonButtonCost::changedText()
{
    Window window;
    QVERIFY(open(window));
    RibbonButton *button = window.buttons(0).constFirst();
    m_calls.reset();
    button->defaultAction()->setText(QStringLiteral("Another line"));
    QTRY_COMPARE(m_calls.paints.value(button), 1);
    window.settle();
    QVERIFY(m_calls.resizes.isEmpty());
    QCOMPARE(m_calls.paints.size(), 1);
    QCOMPARE_LE(m_calls.sizeHints.size(), 1);
}

NORVANE_TEST_MAIN(tst_RibbonButtonCost)
#include "tst_RibbonButtonCost.moc"
