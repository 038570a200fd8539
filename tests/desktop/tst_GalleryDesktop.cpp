// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "RealMouse.h"
#include "TestCase.h"

#include <tests/gallery/GalleryWindow.h>

#include <QtCore/QProcess>
#include <QtGui/QScreen>
#include <QtTest/QSignalSpy>
#include <QtWidgets/QApplication>

using namespace Norvane;
using namespace Qt::StringLiterals;

class tst_GalleryDesktop : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void popupCoversTheStrip();
    void itemIsPickedInTheStrip();
    void itemIsPickedInThePopup();
    void itemIsPickedAfterASearch();
    void escapeClosesAndClearsTheSearch();
    void clickAwayCloses();
    void closeButtonCloses();
    void markersCollect();
    void groupIsMoved();
    void wheelScrolls();
    void popupEndsAboveTheScreensBottom();
    void popupCoversWhatThePanelsHave();
    void emptyCatalogueIsSearched();
    void goesWithItsPopupOpen();
};

namespace {

QStringList texts(int count)
{
    QStringList result;
    for (int i = 0; i < count; ++i)
        result << u"item%1"_s.arg(i);
    return result;
}

// Tells it as a window manager does.
void setAvailable(const QRect &area)
{
    const QString value =
        u"%1,%2,%3,%4"_s.arg(area.x()).arg(area.y()).arg(area.width()).arg(area.height());
    const QString property = u"_NET_WORKAREA"_s;
    QCOMPARE(QProcess::execute(
                 u"xprop"_s, {u"-root"_s, u"-f"_s, property, u"32c"_s, u"-set"_s, property, value}),
             0);
}

// Two groups in a window that has the keyboard.
struct Window : GalleryWindow
{
    explicit Window(int first = 7)
    {
        setGeometry(50, 60, 700, 300);
        add(u"First"_s, texts(first));
        add(u"Second"_s, {u"other"_s, u"last"_s});
    }

    bool start()
    {
        if (!RealMouse::open(this))
            return false;
        moveAway();
        return QTest::qWaitFor([this] { return !strip().isEmpty(); }, patience);
    }

    void moveAway() { RealMouse::move(this, {650, 280}); }

    // Waits until nothing in the popup moves any more.
    void openByMouse()
    {
        RealMouse::move(popupButton());
        RealMouse::click();
        QTRY_VERIFY(menu()->isVisible() && menu()->windowHandle()->isExposed());
        QTRY_COMPARE(menu()->pos(), gallery->mapToGlobal(QPoint()));
    }

    void type(const QString &letters)
    {
        RealMouse::move(edit());
        RealMouse::click();
        QTRY_VERIFY(edit()->hasFocus());
        const QString before = edit()->text();
        for (const QChar letter : letters)
            RealMouse::key(letter);
        QTRY_COMPARE(edit()->text(), before + letters);
    }
};

} // namespace

void tst_GalleryDesktop::popupCoversTheStrip()
{
    Window window;
    QVERIFY(window.start());
    QTRY_COMPARE(window.strip(), texts(6));
    window.openByMouse();
    const int height = 32 + 98 + 74 + 98;
    QCOMPARE(window.menu()->size(), QSize(window.gallery->width() + 2, height + 2));
    QCOMPARE(window.popup()->size(), QSize(window.gallery->width(), height));
    QTRY_COMPARE(window.menu()->windowHandle()->geometry(), window.menu()->geometry());
    QCOMPARE(QApplication::activePopupWidget(), window.menu());
    RealMouse::key(u"Escape"_s);
    QTRY_VERIFY(!window.menu()->isVisible());
}

void tst_GalleryDesktop::itemIsPickedInTheStrip()
{
    Window window;
    QVERIFY(window.start());
    QSignalSpy told(window.gallery, &RibbonGallery::signalTriggered);
    RealMouse::move(window.cells().at(2));
    RealMouse::click();
    QTRY_COMPARE(told.count(), 1);
    QCOMPARE(told.constFirst().constFirst().value<QAction *>()->text(), u"item2"_s);
    QVERIFY(!window.menu()->isVisible());
}

void tst_GalleryDesktop::itemIsPickedInThePopup()
{
    Window window;
    QVERIFY(window.start());
    QSignalSpy told(window.gallery, &RibbonGallery::signalTriggered);
    window.openByMouse();
    RealMouse::move(window.item(1, 1));
    QTRY_VERIFY(GalleryWindow::markerOf(window.item(1, 1))->isVisible());
    RealMouse::click();
    QTRY_COMPARE(told.count(), 1);
    QCOMPARE(told.constFirst().constFirst().value<QAction *>()->text(), u"last"_s);
    QVERIFY(!window.menu()->isVisible());
    // The window has the mouse and the keyboard again.
    RealMouse::move(window.cells().at(0));
    RealMouse::click();
    QTRY_COMPARE(told.count(), 2);
}

void tst_GalleryDesktop::itemIsPickedAfterASearch()
{
    Window window;
    QVERIFY(window.start());
    QSignalSpy told(window.gallery, &RibbonGallery::signalTriggered);
    window.openByMouse();
    window.type(u"last"_s);
    QVERIFY(window.group(0)->isHidden());
    QCOMPARE(GalleryWindow::visibleTexts(window.group(1)), QStringList(u"last"_s));
    QTRY_COMPARE(window.menu()->windowHandle()->height(), 32 + 98 + 2);
    QVERIFY(window.menu()->isVisible());
    QTRY_COMPARE(window.item(1, 1)->pos(), QPoint(3, 5));
    RealMouse::move(window.item(1, 1));
    RealMouse::click();
    QTRY_COMPARE(told.count(), 1);
    QCOMPARE(told.constFirst().constFirst().value<QAction *>()->text(), u"last"_s);
    QVERIFY(!window.menu()->isVisible());
    QCOMPARE(window.edit()->text(), QString());
}

void tst_GalleryDesktop::escapeClosesAndClearsTheSearch()
{
    Window window;
    QVERIFY(window.start());
    QSignalSpy told(window.gallery, &RibbonGallery::signalTriggered);
    window.openByMouse();
    window.type(u"nothing"_s);
    QTRY_VERIFY(window.noMatchLabel()->isVisible());
    QTRY_COMPARE(window.menu()->windowHandle()->height(), 62 + 2);
    RealMouse::key(u"Escape"_s);
    QTRY_VERIFY(!window.menu()->isVisible());
    window.openByMouse();
    QCOMPARE(window.edit()->text(), QString());
    QVERIFY(window.group(0)->isVisible());
    QTRY_COMPARE(window.menu()->windowHandle()->height(), 32 + 98 + 74 + 98 + 2);
    RealMouse::key(u"Escape"_s);
    QTRY_VERIFY(!window.menu()->isVisible());
    QCOMPARE(told.count(), 0);
}

void tst_GalleryDesktop::clickAwayCloses()
{
    Window window;
    QVERIFY(window.start());
    QSignalSpy told(window.gallery, &RibbonGallery::signalTriggered);
    window.openByMouse();
    // Not on a title, nor beside the items.
    RealMouse::move(window.group(1), {200, 10});
    RealMouse::click();
    RealMouse::move(window.group(1), {window.group(1)->width() - 30, 60});
    RealMouse::click();
    // What comes after the clicks shows that they are over.
    window.type(u"a"_s);
    QVERIFY(window.menu()->isVisible());
    window.moveAway();
    RealMouse::click();
    QTRY_VERIFY(!window.menu()->isVisible());
    QCOMPARE(told.count(), 0);
}

void tst_GalleryDesktop::closeButtonCloses()
{
    Window window;
    QVERIFY(window.start());
    window.openByMouse();
    RealMouse::move(window.closeButton());
    RealMouse::click();
    QTRY_VERIFY(!window.menu()->isVisible());
    // The same click does not open it again, the next one does.
    window.openByMouse();
    RealMouse::key(u"Escape"_s);
    QTRY_VERIFY(!window.menu()->isVisible());
}

void tst_GalleryDesktop::markersCollect()
{
    Window window;
    QVERIFY(window.start());
    QSignalSpy told(window.gallery, &RibbonGallery::signalTriggered);
    window.openByMouse();
    RealMouse::move(window.item(1, 0));
    QTRY_VERIFY(GalleryWindow::markerOf(window.item(1, 0))->isVisible());
    RealMouse::move(GalleryWindow::markerOf(window.item(1, 0)));
    RealMouse::click();
    QTRY_COMPARE(window.collected()->count(), 1);
    QVERIFY(window.menu()->isVisible());
    QTRY_COMPARE(window.menu()->windowHandle()->height(), 32 + 98 + 98 + 74 + 98 + 2);
    QTRY_VERIFY(window.group(0)->y() > window.collected()->y());
    RealMouse::key(u"Escape"_s);
    QTRY_COMPARE(window.strip(), QStringList(u"other"_s) + texts(5));

    window.openByMouse();
    const QToolButton *marker = GalleryWindow::markerOf(window.collected()->item(0));
    QVERIFY(marker->isVisible());
    RealMouse::move(marker);
    RealMouse::click();
    QTRY_COMPARE(window.collected()->count(), 0);
    QVERIFY(!window.item(1, 0)->isCollected());
    QVERIFY(window.collected()->isHidden());
    RealMouse::key(u"Escape"_s);
    QTRY_COMPARE(window.strip(), texts(6));
    QCOMPARE(told.count(), 0);
}

void tst_GalleryDesktop::groupIsMoved()
{
    Window window;
    QVERIFY(window.start());
    window.openByMouse();
    RealMouse::move(GalleryWindow::toTopOf(window.group(1)));
    RealMouse::click();
    QTRY_COMPARE(window.group(0)->title(), u"Second"_s);
    QVERIFY(window.menu()->isVisible());
    QTRY_VERIFY(window.group(0)->y() < window.group(1)->y());
    QCOMPARE(window.strip(), QStringList({u"other"_s, u"last"_s}) + texts(4));
    RealMouse::move(GalleryWindow::toBottomOf(window.group(0)));
    RealMouse::click();
    QTRY_COMPARE(window.group(1)->title(), u"Second"_s);
    QCOMPARE(window.strip(), texts(6));
    RealMouse::key(u"Escape"_s);
    QTRY_VERIFY(!window.menu()->isVisible());
}

void tst_GalleryDesktop::wheelScrolls()
{
    Window window(400);
    QVERIFY(window.start());
    QSignalSpy told(window.gallery, &RibbonGallery::signalTriggered);
    window.openByMouse();
    const QScrollBar *bar = window.popup()->verticalScrollBar();
    QTRY_VERIFY(bar->isVisible());
    QCOMPARE(bar->value(), 0);
    RealMouse::move(window.popup(), {200, 200});
    RealMouse::click(5);
    QTRY_VERIFY(bar->value() > 0);
    const int step = bar->value();
    QVERIFY(window.menu()->isVisible());
    // The item that came under the mouse is the one that is picked.
    for (int i = 0; i < 5; ++i)
        RealMouse::click(5);
    QTRY_COMPARE(bar->value(), 6 * step);
    RealMouse::move(window.popup(), {205, 205});
    const QWidget *content = window.popup()->widget();
    const auto *under = qobject_cast<RibbonGalleryItem *>(
        window.popup()->widget()->childAt(content->mapFrom(window.popup(), QPoint(205, 205))));
    QVERIFY(under);
    QAction *action = under->defaultAction();
    QVERIFY(action != window.item(0, 0)->defaultAction());
    RealMouse::click();
    QTRY_COMPARE(told.count(), 1);
    QCOMPARE(told.constFirst().constFirst().value<QAction *>(), action);
}

void tst_GalleryDesktop::popupEndsAboveTheScreensBottom()
{
    Window window;
    const int screenHeight = QGuiApplication::primaryScreen()->geometry().height();
    window.move(50, screenHeight - 310);
    QVERIFY(window.start());
    QVERIFY(window.gallery->mapToGlobal(QPoint()).y() > screenHeight - 310);
    window.openByMouse();
    const int room = screenHeight - 30 - window.gallery->mapToGlobal(QPoint()).y();
    QVERIFY(room < 32 + 98 + 74 + 98);
    QCOMPARE(window.popup()->size(), QSize(window.gallery->width() + 17, room));
    QTRY_COMPARE(window.menu()->windowHandle()->size(),
                 QSize(window.gallery->width() + 19, room + 2));
    RealMouse::key(u"Escape"_s);
    QTRY_VERIFY(!window.menu()->isVisible());
}

// Its room is the whole screen, and not what panels leave of it.
void tst_GalleryDesktop::popupCoversWhatThePanelsHave()
{
    const QScreen *screen = QGuiApplication::primaryScreen();
    const QRect whole = screen->geometry();
    const QRect available = screen->availableGeometry();
    const QRect left = whole.adjusted(0, 0, 0, -400);
    setAvailable(left);
    QTRY_COMPARE(screen->availableGeometry(), left);
    Window window(200);
    QVERIFY(window.start());
    window.openByMouse();
    const int room = whole.height() - 30 - window.gallery->mapToGlobal(QPoint()).y();
    QCOMPARE(window.popup()->height(), room);
    QTRY_COMPARE(window.menu()->windowHandle()->height(), room + 2);
    QCOMPARE(window.menu()->geometry().bottom() + 1, whole.height() - 30 + 2);
    RealMouse::key(u"Escape"_s);
    QTRY_VERIFY(!window.menu()->isVisible());
    setAvailable(available);
    QTRY_COMPARE(screen->availableGeometry(), available);
}

// The label that tells of no match comes up as a window of its own then.
void tst_GalleryDesktop::emptyCatalogueIsSearched()
{
    GalleryWindow window;
    window.setGeometry(50, 60, 700, 300);
    window.gallery->setMinimumWidth(300);
    QVERIFY(RealMouse::open(&window));
    RealMouse::move(window.popupButton());
    RealMouse::click();
    QTRY_VERIFY(window.menu()->isVisible() && window.menu()->windowHandle()->isExposed());
    RealMouse::move(window.edit());
    RealMouse::click();
    QTRY_VERIFY(window.edit()->hasFocus());
    RealMouse::key(u"x"_s);
    QTRY_VERIFY(window.edit()->text() == u"x"_s || !window.menu()->isVisible());
    RealMouse::key(u"Escape"_s);
    QTRY_VERIFY(!window.menu()->isVisible());
    QCOMPARE(window.edit()->text(), QString());
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (const QWidget *other : windows)
        QTRY_VERIFY(other == &window || !other->isVisible());
    // All is as before.
    RealMouse::move(window.popupButton());
    RealMouse::click();
    QTRY_VERIFY(window.menu()->isVisible());
    RealMouse::key(u"Escape"_s);
    QTRY_VERIFY(!window.menu()->isVisible());
}

void tst_GalleryDesktop::goesWithItsPopupOpen()
{
    Window window;
    QVERIFY(window.start());
    window.openByMouse();
    window.type(u"last"_s);
    delete window.gallery;
    QCOMPARE(QApplication::activePopupWidget(), nullptr);
    // Nothing holds the mouse back.
    QPushButton button(u"Button"_s, &window);
    button.setGeometry(20, 200, 100, 40);
    button.show();
    QSignalSpy clicked(&button, &QPushButton::clicked);
    RealMouse::move(&button);
    RealMouse::click();
    QTRY_COMPARE(clicked.count(), 1);
}

NORVANE_TEST_MAIN(tst_GalleryDesktop)
#include "tst_GalleryDesktop.moc"
