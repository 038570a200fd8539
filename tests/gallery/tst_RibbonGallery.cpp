// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "GalleryWindow.h"
#include "TestCase.h"

#include <QtCore/QMetaMethod>
#include <QtCore/QPointer>
#include <QtGui/QScreen>
#include <QtTest/QSignalSpy>
#include <QtWidgets/QApplication>
#include <QtWidgets/QWidgetAction>

#include <limits>

using namespace Norvane;
using namespace Qt::StringLiterals;

class tst_RibbonGallery : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void hasOneSignal();
    void standsInARibbon();
    void hasItsSheetsColours();

    void numbersItsGroups();
    void numbersTheItemsOfAGroup();
    void findsGroupsByTheirExactTitle();
    void refusesGroupsThatItDoesNotHave();
    void refusesNullActions();
    void takesAnyTitle();

    void tellsOfEveryTrigger();
    void tellsOnceForEachAddition();
    void tellsOfActionsThatItRefused();
    void closesThePopupBeforeItTells();
    void triggersFromTheStrip();

    void stripIsFilledWhenShown();
    void stripFollowsThePopup();
    void stripFollowsMovedGroups();
    void stripStaysIfNothingChanged();
    void stripCannotBeCollected();
    void emptyCatalogueHasNoPlaceholders();
    void placeholdersAccumulate();
    void placeholdersFollowTheDisplayCount();
    void showsNoMoreThanTheDisplayCount();
    void takesAnyDisplayCount_data();
    void takesAnyDisplayCount();
    void newSizesAreForNewItems();
    void itemsHaveTheSizesOfASheet();

    void existingItemsKeepWhetherTheyCanBeCollected();
    void collectsIfEnabled();
    void collectsNothingOutOfRange();
    void savesAPlaceholder();

    void popupCoversTheStrip();
    void popupEndsAboveTheScreensBottom();
    void popupOnAScreenThatIsTooSmall();
    void popupOfAGalleryBelowTheScreen();
    void popupOpensAtItsTop();
    void popupFollowsTheSearch();
    void popupGetsAScrollBarByCollecting();
    void menuHasRoomForGroupsThatStayHidden();

    void deletedActionsLeaveTheStrip();
    void actionAtTheSameAddressIsAnotherOne();
    void deletedWithItsPopupOpen();
    void deletedWhileItTells();
    void deletedWithItsPopupsUpdateToCome();
};

namespace {

constexpr int cellWidth = 90;
constexpr int cellHeight = 60;

QImage pictureOf(const QIcon &icon, int size)
{
    return icon.pixmap(QSize(size, size), 1).toImage();
}

QStringList texts(int count)
{
    QStringList result;
    for (int i = 0; i < count; ++i)
        result << u"Item %1"_s.arg(i);
    return result;
}

int neededHeight(int items, int inARow = 6)
{
    return items == 0 ? 98 : 98 + 74 * ((items - 1) / inARow);
}

int screenHeight()
{
    return QGuiApplication::primaryScreen()->geometry().height();
}

QPoint cornerOf(const QWidget *widget)
{
    return widget->mapToGlobal(QPoint());
}

} // namespace

void tst_RibbonGallery::hasOneSignal()
{
    const QMetaObject &meta = RibbonGallery::staticMetaObject;
    QCOMPARE(meta.superClass(), &QWidget::staticMetaObject);
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
    QCOMPARE(meta.methodCount(), meta.methodOffset() + 1);
    const QMetaMethod method = meta.method(meta.methodOffset());
    QCOMPARE(method.methodSignature(), "signalTriggered(QAction*)");
    QCOMPARE(method.methodType(), QMetaMethod::Signal);
    QCOMPARE(method.parameterNames(), QByteArrayList{"action"});
}

void tst_RibbonGallery::standsInARibbon()
{
    GalleryWindow window;
    window.add(u"Tone"_s, texts(2));
    QVERIFY(window.open());
    const QRect strip = window.itemsFrame()->geometry();
    const QRect button = window.popupButton()->geometry();
    QCOMPARE(window.gallery->height(), 68);
    // Six cells with a border and five pixels at either end.
    QCOMPARE(strip, QRect(0, 0, 6 * cellWidth + 2 * (5 + 1), 68));
    // A border on the right only.
    QCOMPARE(button, QRect(strip.width(), 0, 19, 68));
    QCOMPARE(window.gallery->width(), strip.width() + button.width());
    for (int i = 0; i < 6; ++i) {
        QCOMPARE(window.cells().at(i)->size(), QSize(cellWidth, cellHeight));
        QCOMPARE(window.cells().at(i)->x(), 1 + 5 + i * cellWidth);
    }

    QCOMPARE(window.popupButton()->focusPolicy(), Qt::NoFocus);
    QCOMPARE(window.popupButton()->iconSize(), QSize(17, 17));
    QCOMPARE(pictureOf(window.popupButton()->icon(), 17),
             pictureOf(QIcon(u":/res/downArrowNormal.svg"_s), 17));
    QCOMPARE(window.popupButton()->sizePolicy().verticalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(window.itemsFrame()->sizePolicy().verticalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(window.itemsFrame()->layout()->alignment(), Qt::AlignLeft);
    const auto *row = qobject_cast<QHBoxLayout *>(window.gallery->layout());
    QVERIFY(row);
    QCOMPARE(row->count(), 2);
    for (int i = 0; i < 2; ++i) {
        QCOMPARE(row->stretch(i), 0);
        QCOMPARE(row->itemAt(i)->alignment(), Qt::Alignment());
    }
    QCOMPARE(window.menu()->parentWidget(), window.popupButton());
    QVERIFY(window.menu()->isHidden());
    QCOMPARE(window.menu()->actions().size(), 1);
    const auto *action = qobject_cast<QWidgetAction *>(window.menu()->actions().constFirst());
    QVERIFY(action);
    QCOMPARE(action->parent(), window.gallery);
    QCOMPARE(action->defaultWidget(), window.popup());
}

void tst_RibbonGallery::hasItsSheetsColours()
{
    GalleryWindow window;
    window.add(u"Tone"_s, texts(1));
    QVERIFY(window.open());
    const QColor line(191, 191, 191);
    const int right = window.itemsFrame()->width() - 1;
    for (const QPoint &corner : {QPoint(0, 0), QPoint(right, 0), QPoint(0, 67), QPoint(right, 67)})
        QCOMPARE(Gui::pixel(window.gallery, corner), line);
    QCOMPARE(Gui::pixel(window.gallery, {1, 1}), QColor(Qt::white));
    QCOMPARE(Gui::pixel(window.gallery, {right - 1, 66}), QColor(Qt::white));
    // A gap in a placeholder's cell shows the strip, also under the mouse.
    Gui::moveMouse(window.cells().at(3), {45, 30});
    QCOMPARE(Gui::pixel(window.gallery, {1 + 5 + 3 * cellWidth + 45, 34}), QColor(Qt::white));

    const QPoint inButton(right + 3, 5);
    const QColor backdrop = Gui::pixel(window.gallery, inButton);
    QCOMPARE(Gui::pixel(window.gallery, {right + 5, 0}), line);
    QCOMPARE(Gui::pixel(window.gallery, {right + 1, 34}), backdrop);
    Gui::press(window.popupButton(), {9, 30});
    QCOMPARE(Gui::pixel(window.gallery, inButton), QColor(220, 220, 220));
    Gui::release(&window, {5, 190});
    QCOMPARE(Gui::pixel(window.gallery, inButton), backdrop);
    QVERIFY(window.menu()->isHidden());
}

void tst_RibbonGallery::numbersItsGroups()
{
    GalleryWindow window;
    QCOMPARE(window.gallery->addGroup(u"One"_s), 0);
    QCOMPARE(window.gallery->addGroup(u"Two"_s), 1);
    QCOMPARE(window.gallery->addGroup(u"One"_s), 2);
    QCOMPARE(window.gallery->addGroup(QString()), 3);
    QCOMPARE(window.group(0)->title(), u"One"_s);
    QCOMPARE(window.group(2)->title(), u"One"_s);
    QVERIFY(window.group(0) != window.group(2));
    QCOMPARE(window.group(3)->title(), QString());
    // No group has an icon.
    QVERIFY(window.group(1)->findChildren<QLabel *>().constFirst()->isHidden());
}

void tst_RibbonGallery::numbersTheItemsOfAGroup()
{
    GalleryWindow window;
    window.gallery->addGroup(u"One"_s);
    window.gallery->addGroup(u"Two"_s);
    QAction *action = window.createAction(u"Item"_s);
    QCOMPARE(window.gallery->addItem(0, action), 0);
    QCOMPARE(window.gallery->addItem(0, action), 1);
    QCOMPARE(window.gallery->addItem(1, action), 0);
    QCOMPARE(window.gallery->addItem(u"One"_s, action), 2);
    QCOMPARE(window.group(0)->count(), 3);
    QCOMPARE(window.group(1)->count(), 1);
    QCOMPARE(window.item(1, 0)->defaultAction(), action);
}

void tst_RibbonGallery::findsGroupsByTheirExactTitle()
{
    GalleryWindow window;
    QAction *action = window.createAction(u"Item"_s);
    QCOMPARE(window.gallery->addItem(u"New"_s, action), 0);
    QCOMPARE(window.gallery->addItem(u"new"_s, action), 0);
    QCOMPARE(window.gallery->addItem(u"New "_s, action), 0);
    QCOMPARE(window.groups().size(), 1 + 3);
    QCOMPARE(window.gallery->addGroup(u"New"_s), 3);
    // The first one wins.
    QCOMPARE(window.gallery->addItem(u"New"_s, action), 1);
    QCOMPARE(window.group(0)->count(), 2);
    QCOMPARE(window.group(3)->count(), 0);
    // The collected group is none of them.
    QCOMPARE(window.gallery->addItem(window.collected()->title(), action), 0);
    QCOMPARE(window.collected()->count(), 0);
    QCOMPARE(window.groups().size(), 1 + 5);
}

void tst_RibbonGallery::refusesGroupsThatItDoesNotHave()
{
    GalleryWindow window;
    QAction *action = window.createAction(u"Item"_s);
    QCOMPARE(window.gallery->addItem(0, action), -1);
    window.gallery->addGroup(u"One"_s);
    window.gallery->addGroup(u"Two"_s);
    for (const int group :
         {-1, 2, 5, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()}) {
        QCOMPARE(window.gallery->addItem(group, action), -1);
    }
    QCOMPARE(window.group(0)->count() + window.group(1)->count(), 0);
    QCOMPARE(window.groups().size(), 1 + 2);
}

void tst_RibbonGallery::refusesNullActions()
{
    GalleryWindow window;
    window.gallery->addGroup(u"One"_s);
    QCOMPARE(window.gallery->addItem(0, nullptr), -1);
    QCOMPARE(window.gallery->addItem(7, nullptr), -1);
    QCOMPARE(window.gallery->addItem(u"One"_s, nullptr), -1);
    QCOMPARE(window.group(0)->count(), 0);
    QCOMPARE(window.gallery->addItem(u"Two"_s, nullptr), -1);
    QCOMPARE(window.group(1)->title(), u"Two"_s);
    QCOMPARE(window.group(1)->count(), 0);
}

void tst_RibbonGallery::takesAnyTitle()
{
    GalleryWindow window;
    const QStringList titles = {QString(),        u" "_s,          u"&One && two"_s,
                                u"<b>bold</b>"_s, u"two\nlines"_s, QString(10000, u'W')};
    for (int i = 0; i < titles.size(); ++i) {
        QCOMPARE(window.gallery->addItem(titles.at(i), window.createAction(titles.at(i))), 0);
        QCOMPARE(window.gallery->addItem(titles.at(i), window.createAction(titles.at(i))), 1);
        QCOMPARE(window.group(i)->title(), titles.at(i));
    }
    QVERIFY(window.open());
    QVERIFY(window.openPopup());
    // The longest title makes nothing wider.
    QCOMPARE(window.group(5)->width(), window.popup()->widget()->width());
    QCOMPARE(window.menu()->width(), window.popup()->width() + 2);
    window.closePopup();
}

void tst_RibbonGallery::tellsOfEveryTrigger()
{
    GalleryWindow window;
    window.add(u"One"_s, texts(2));
    QSignalSpy told(window.gallery, &RibbonGallery::signalTriggered);
    QAction *first = window.item(0, 0)->defaultAction();
    QAction *second = window.item(0, 1)->defaultAction();
    second->trigger();
    first->trigger();
    QCOMPARE(told.count(), 2);
    QCOMPARE(told.at(0).constFirst().value<QAction *>(), second);
    QCOMPARE(told.at(1).constFirst().value<QAction *>(), first);
    first->setEnabled(false);
    first->trigger();
    QCOMPARE(told.count(), 2);
}

void tst_RibbonGallery::tellsOnceForEachAddition()
{
    GalleryWindow window;
    QAction *action = window.createAction(u"Item"_s);
    for (const QString &title : {u"One"_s, u"One"_s, u"Two"_s})
        window.gallery->addItem(title, action);
    QSignalSpy told(window.gallery, &RibbonGallery::signalTriggered);
    action->trigger();
    QCOMPARE(told.count(), 3);
}

void tst_RibbonGallery::tellsOfActionsThatItRefused()
{
    GalleryWindow window;
    QAction *action = window.createAction(u"Item"_s);
    QCOMPARE(window.gallery->addItem(3, action), -1);
    QSignalSpy told(window.gallery, &RibbonGallery::signalTriggered);
    action->trigger();
    QCOMPARE(told.count(), 1);
}

void tst_RibbonGallery::closesThePopupBeforeItTells()
{
    GalleryWindow window;
    window.add(u"One"_s, texts(2));
    QVERIFY(window.open());
    QVERIFY(window.openPopup());
    QSignalSpy told(window.gallery, &RibbonGallery::signalTriggered);
    connect(window.gallery, &RibbonGallery::signalTriggered, &window,
            [&window] { QVERIFY(!window.menu()->isVisible()); });
    Gui::click(window.item(0, 1), {45, 40});
    QCOMPARE(told.count(), 1);
    QCOMPARE(told.constFirst().constFirst().value<QAction *>()->text(), u"Item 1"_s);
    QVERIFY(!window.menu()->isVisible());

    // Whatever triggers the action closes the popup.
    QVERIFY(window.openPopup());
    window.item(0, 0)->defaultAction()->trigger();
    QVERIFY(!window.menu()->isVisible());
    QCOMPARE(told.count(), 2);

    QVERIFY(window.openPopup());
    window.item(0, 0)->defaultAction()->setEnabled(false);
    Gui::click(window.item(0, 0), {45, 40});
    QVERIFY(window.menu()->isVisible());
    QCOMPARE(told.count(), 2);
    window.closePopup();
}

void tst_RibbonGallery::triggersFromTheStrip()
{
    GalleryWindow window;
    window.add(u"One"_s, texts(2));
    QVERIFY(window.open());
    QSignalSpy told(window.gallery, &RibbonGallery::signalTriggered);
    Gui::click(window.cells().at(1));
    QCOMPARE(told.count(), 1);
    QCOMPARE(told.constFirst().constFirst().value<QAction *>(), window.item(0, 1)->defaultAction());
    // Placeholders do nothing.
    for (int i = 2; i < 6; ++i)
        Gui::click(window.cells().at(i));
    QCOMPARE(told.count(), 1);
    QVERIFY(window.menu()->isHidden());
}

void tst_RibbonGallery::stripIsFilledWhenShown()
{
    GalleryWindow window;
    window.add(u"One"_s, texts(2));
    QCOMPARE(window.strip(), QStringList());
    QVERIFY(window.open());
    const QStringList before = {u"Item 0"_s, u"Item 1"_s, u"-"_s, u"-"_s, u"-"_s, u"-"_s};
    QCOMPARE(window.strip(), before);
    // Not by an addition, but when it is shown the next time.
    window.add(u"Two"_s, {u"Late"_s});
    QCoreApplication::processEvents();
    QCOMPARE(window.strip(), before);
    window.gallery->hide();
    QCOMPARE(window.strip(), before);
    window.gallery->show();
    QCOMPARE(window.strip(),
             QStringList({u"-"_s, u"-"_s, u"-"_s, u"-"_s, u"Item 0"_s, u"Item 1"_s, u"Late"_s,
                          u"-"_s, u"-"_s, u"-"_s}));
}

void tst_RibbonGallery::stripFollowsThePopup()
{
    GalleryWindow window;
    window.gallery->setDispalyCount(3);
    window.add(u"One"_s, texts(5));
    QVERIFY(window.open());
    QCOMPARE(window.strip(), texts(3));
    QVERIFY(window.openPopup());
    GalleryWindow::clickMarker(window.item(0, 3));
    GalleryWindow::clickMarker(window.item(0, 1));
    QCOMPARE(window.strip(), texts(3));
    window.menu()->close();
    // Not before the event loop is reached.
    QCOMPARE(window.strip(), texts(3));
    QTRY_COMPARE(window.strip(), QStringList({u"Item 3"_s, u"Item 1"_s, u"Item 0"_s}));
}

void tst_RibbonGallery::stripFollowsMovedGroups()
{
    GalleryWindow window;
    window.gallery->setDispalyCount(3);
    window.add(u"One"_s, {u"1a"_s, u"1b"_s});
    window.add(u"Two"_s, {u"2a"_s, u"2b"_s});
    QVERIFY(window.open());
    QCOMPARE(window.strip(), QStringList({u"1a"_s, u"1b"_s, u"2a"_s}));
    QVERIFY(window.openPopup());
    Gui::click(GalleryWindow::toTopOf(window.group(1)));
    QVERIFY(window.menu()->isVisible());
    QCOMPARE(window.strip(), QStringList({u"2a"_s, u"2b"_s, u"1a"_s}));
    window.closePopup();
}

void tst_RibbonGallery::stripStaysIfNothingChanged()
{
    GalleryWindow window;
    window.add(u"One"_s, texts(7));
    QVERIFY(window.open());
    QList<QPointer<RibbonGalleryItem>> before;
    const QList<RibbonGalleryItem *> cells = window.cells();
    for (RibbonGalleryItem *cell : cells)
        before << cell;
    QCOMPARE(before.size(), 6);
    window.gallery->hide();
    window.gallery->show();
    QSignalSpy updated(window.popup(), &RibbonGalleryPopup::signalUpdateDisplayedItems);
    QVERIFY(window.openPopup());
    window.closePopup();
    QTRY_COMPARE(updated.count(), 1);
    const QList<RibbonGalleryItem *> after = window.cells();
    QCOMPARE(after.size(), 6);
    for (int i = 0; i < 6; ++i)
        QCOMPARE(after.at(i), before.at(i));

    // The same actions in another order are something else.
    window.gallery->setItemCollected(0, 1, true);
    window.gallery->hide();
    window.gallery->show();
    QVERIFY(!before.at(0));
    QCOMPARE(window.strip().sliced(0, 2), QStringList({u"Item 1"_s, u"Item 0"_s}));
}

void tst_RibbonGallery::stripCannotBeCollected()
{
    GalleryWindow window;
    window.add(u"One"_s, texts(2));
    window.gallery->setItemCollected(0, 0, true);
    QVERIFY(window.open());
    const QList<RibbonGalleryItem *> cells = window.cells();
    for (const RibbonGalleryItem *cell : cells) {
        QVERIFY(GalleryWindow::markerOf(cell)->isHidden());
        Gui::moveMouse(cell, {45, 30});
        QVERIFY(GalleryWindow::markerOf(cell)->isHidden());
    }
}

void tst_RibbonGallery::emptyCatalogueHasNoPlaceholders()
{
    GalleryWindow window;
    QVERIFY(window.open());
    QCOMPARE(window.strip(), QStringList());
    window.gallery->hide();
    window.gallery->addGroup(u"One"_s);
    window.gallery->show();
    QCOMPARE(window.strip(), QStringList());
}

void tst_RibbonGallery::placeholdersAccumulate()
{
    GalleryWindow window;
    window.add(u"One"_s, {u"a"_s, u"b"_s});
    QVERIFY(window.open());
    QCOMPARE(window.strip(), QStringList({u"a"_s, u"b"_s, u"-"_s, u"-"_s, u"-"_s, u"-"_s}));
    for (int i = 2; i < 6; ++i) {
        QCOMPARE(window.cells().at(i)->size(), QSize(cellWidth, cellHeight));
        QVERIFY(!window.cells().at(i)->defaultAction()->isEnabled());
        QVERIFY(!window.cells().at(i)->defaultAction()->parent());
    }
    QVERIFY(window.openPopup());
    GalleryWindow::clickMarker(window.item(0, 1));
    window.closePopup();
    QStringList expected = {u"-"_s, u"-"_s, u"-"_s, u"-"_s, u"b"_s, u"a"_s};
    QTRY_COMPARE(window.strip().sliced(0, 6), expected);
    // There is room for four more.
    expected << QStringList(4, u"-"_s);
    QCOMPARE(window.strip(), expected);
}

void tst_RibbonGallery::placeholdersFollowTheDisplayCount()
{
    GalleryWindow window;
    window.gallery->setActionSize({40, 50});
    window.gallery->setIconSize({16, 16});
    window.gallery->setDispalyCount(3);
    window.add(u"One"_s, {u"a"_s});
    QVERIFY(window.open());
    QCOMPARE(window.strip(), QStringList({u"a"_s, u"-"_s, u"-"_s}));
    QCOMPARE(window.cells().at(2)->size(), QSize(40, 50));
    // There is no icon for it.
    QCOMPARE(window.cells().at(2)->iconSize(), QSize(24, 24));
    QCOMPARE(window.cells().at(0)->iconSize(), QSize(16, 16));
    // What stands in the strip is not checked again until the actions differ.
    window.gallery->setDispalyCount(5);
    window.gallery->hide();
    window.gallery->show();
    QCOMPARE(window.strip(), QStringList({u"a"_s, u"-"_s, u"-"_s}));
}

void tst_RibbonGallery::showsNoMoreThanTheDisplayCount()
{
    GalleryWindow window;
    window.gallery->setDispalyCount(4);
    window.add(u"One"_s, {u"a"_s, u"b"_s, u"c"_s});
    window.add(u"Two"_s, {u"d"_s, u"e"_s});
    window.gallery->setItemCollected(0, 2, true);
    window.gallery->setItemCollected(1, 1, true);
    QVERIFY(window.open());
    QCOMPARE(window.strip(), QStringList({u"c"_s, u"e"_s, u"a"_s, u"b"_s}));
    // A second copy of the same item takes a cell of its own.
    window.gallery->setItemCollected(0, 2, true);
    window.gallery->hide();
    window.gallery->show();
    QCOMPARE(window.strip(), QStringList({u"c"_s, u"e"_s, u"c"_s, u"a"_s}));
    // Collected items alone fill it.
    window.gallery->setDispalyCount(2);
    window.gallery->hide();
    window.gallery->show();
    QCOMPARE(window.strip(), QStringList({u"c"_s, u"e"_s}));
}

void tst_RibbonGallery::takesAnyDisplayCount_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("inARow");
    QTest::addColumn<int>("cells");
    QTest::newRow("none") << 0 << 1 << 0;
    QTest::newRow("negative") << -1 << 1 << 0;
    QTest::newRow("least") << std::numeric_limits<int>::min() << 1 << 0;
    QTest::newRow("one") << 1 << 1 << 1;
    QTest::newRow("most") << std::numeric_limits<int>::max() << 1000000 << 8 + 1000;
}

void tst_RibbonGallery::takesAnyDisplayCount()
{
    QFETCH(int, count);
    QFETCH(int, inARow);
    QFETCH(int, cells);
    GalleryWindow window;
    window.gallery->setDispalyCount(count);
    window.add(u"One"_s, texts(8));
    QVERIFY(window.open());
    QCOMPARE(window.cells().size(), cells);
    // The button may be out of reach, and the popup too narrow to be clicked at.
    window.popupButton()->click();
    QVERIFY(window.menu()->isVisible());
    QCOMPARE(window.popup()->widget()->height(), 32 + neededHeight(8, inARow));
    QVERIFY(window.gallery->setItemCollected(0, 1, true));
    QCOMPARE(window.collected()->count(), 1);
    window.edit()->setText(u"7"_s);
    QCOMPARE(GalleryWindow::visibleTexts(window.group(0)), QStringList(u"Item 7"_s));
    window.menu()->close();
    QCOMPARE(GalleryWindow::visibleTexts(window.group(0)), texts(8));
    QCoreApplication::processEvents();
    QCOMPARE(window.cells().size(), cells == 0 ? 0 : cells == 1 ? 1 : cells + 1000);
}

void tst_RibbonGallery::newSizesAreForNewItems()
{
    GalleryWindow window;
    window.add(u"One"_s, {u"a"_s});
    window.gallery->setIconSize({16, 18});
    window.gallery->setActionSize({50, 40});
    window.gallery->addItem(0, window.createAction(u"b"_s));
    QCOMPARE(window.item(0, 0)->iconSize(), QSize(24, 24));
    QCOMPARE(window.item(0, 0)->minimumSize(), QSize(90, 60));
    QCOMPARE(window.item(0, 0)->maximumSize(), QSize(90, 60));
    QCOMPARE(window.item(0, 1)->iconSize(), QSize(16, 18));
    QCOMPARE(window.item(0, 1)->minimumSize(), QSize(50, 40));
    QCOMPARE(window.item(0, 1)->maximumSize(), QSize(50, 40));

    // The strip's items and the collected copies are new ones too.
    QVERIFY(window.open());
    const QList<RibbonGalleryItem *> cells = window.cells();
    for (const RibbonGalleryItem *cell : cells)
        QCOMPARE(cell->size(), QSize(50, 40));
    QCOMPARE(window.cells().at(0)->iconSize(), QSize(16, 18));
    window.gallery->setActionSize({60, 45});
    window.gallery->setItemCollected(0, 0, true);
    QCOMPARE(window.collected()->item(0)->iconSize(), QSize(16, 18));
    QCOMPARE(window.collected()->item(0)->minimumSize(), QSize(60, 45));
    window.gallery->setIconSize({20, 20});
    window.gallery->setItemCollected(0, 1, true);
    QCOMPARE(window.collected()->item(1)->iconSize(), QSize(20, 20));
    QCOMPARE(window.collected()->item(1)->minimumSize(), QSize(60, 45));
    // Those that are there keep theirs.
    QCOMPARE(window.collected()->item(0)->iconSize(), QSize(16, 18));
    QCOMPARE(window.cells().at(0)->size(), QSize(50, 40));
    QCOMPARE(window.cells().at(0)->iconSize(), QSize(16, 18));
}

void tst_RibbonGallery::itemsHaveTheSizesOfASheet()
{
    GalleryWindow window;
    window.add(u"One"_s, texts(100));
    window.setStyleSheet(u"Norvane--RibbonGalleryItem { min-width: 120px; max-width: 120px }"_s);
    QVERIFY(window.open());
    // With a border on each side.
    for (int i = 0; i < 6; ++i)
        QTRY_COMPARE(window.cells().at(i)->geometry(), QRect(6 + i * 122, 4, 122, 60));
    window.popupButton()->click();
    const int columns = (window.popup()->widget()->width() - 7) / 122;
    for (int i = 0; i < 100; ++i) {
        QTRY_COMPARE(window.item(0, i)->geometry(),
                     QRect(3 + i % columns * 122, 5 + i / columns * 60, 122, 60));
    }
    window.menu()->close();
}

void tst_RibbonGallery::existingItemsKeepWhetherTheyCanBeCollected()
{
    GalleryWindow window(false);
    window.add(u"One"_s, {u"never"_s});
    window.gallery->setCollectEnabled(true);
    window.add(u"Two"_s, {u"ever"_s});
    window.gallery->setCollectEnabled(false);
    QVERIFY(window.open());
    QVERIFY(window.openPopup());
    Gui::moveMouse(window.item(0, 0), {45, 40});
    QVERIFY(GalleryWindow::markerOf(window.item(0, 0))->isHidden());
    Gui::moveMouse(window.item(1, 0), {45, 40});
    QVERIFY(GalleryWindow::markerOf(window.item(1, 0))->isVisible());
    GalleryWindow::clickMarker(window.item(1, 0));
    QCOMPARE(window.collected()->count(), 1);
    window.closePopup();

    // The popup does not heed what becomes of items that could not be collected.
    window.gallery->setCollectEnabled(true);
    QVERIFY(window.gallery->setItemCollected(0, 0, true));
    QVERIFY(window.item(0, 0)->isCollected());
    QCOMPARE(window.collected()->count(), 1);
}

void tst_RibbonGallery::collectsIfEnabled()
{
    GalleryWindow window;
    window.add(u"One"_s, texts(2));
    window.gallery->setCollectEnabled(false);
    QVERIFY(!window.gallery->setItemCollected(0, 0, true));
    QVERIFY(!window.gallery->setItemCollected(0, 0, false));
    QVERIFY(!window.item(0, 0)->isCollected());
    QCOMPARE(window.collected()->count(), 0);
    window.gallery->setCollectEnabled(true);
    QSignalSpy collected(window.item(0, 1), &RibbonGalleryItem::signalCollected);
    QVERIFY(window.gallery->setItemCollected(0, 1, true));
    QVERIFY(window.item(0, 1)->isCollected());
    QCOMPARE(window.collected()->count(), 1);
    QVERIFY(window.gallery->setItemCollected(0, 1, false));
    QVERIFY(!window.item(0, 1)->isCollected());
    QCOMPARE(window.collected()->count(), 0);
    QCOMPARE(collected.count(), 2);
}

void tst_RibbonGallery::collectsNothingOutOfRange()
{
    GalleryWindow window;
    window.add(u"One"_s, texts(2));
    const int least = std::numeric_limits<int>::min();
    const int most = std::numeric_limits<int>::max();
    for (const bool collected : {true, false}) {
        for (const int index : {-1, 2, least, most})
            QVERIFY(!window.gallery->setItemCollected(0, index, collected));
        for (const int group : {-1, 1, least, most})
            QVERIFY(!window.gallery->setItemCollected(group, 0, collected));
    }
    QCOMPARE(window.collected()->count(), 0);
}

void tst_RibbonGallery::savesAPlaceholder()
{
    GalleryWindow window;
    QCOMPARE(window.gallery->saveState(), QByteArray());
    window.add(u"One"_s, texts(3));
    window.gallery->setItemCollected(0, 1, true);
    for (const int count : {1, -1, 100}) {
        window.gallery->setDispalyCount(count);
        QCOMPARE(window.gallery->saveState(), QByteArray());
    }
    window.gallery->setDispalyCount(0);
    QCOMPARE(window.gallery->saveState(), QByteArray("AAAA"));
    QCOMPARE(window.gallery->saveState().size(), 4);

    window.gallery->setDispalyCount(6);
    for (const QByteArray &state : {QByteArray(), QByteArray("AAAA"), QByteArray(5000, '\xff')})
        window.gallery->restoreState(state);
    QCOMPARE(window.gallery->saveState(), QByteArray());
    QCOMPARE(window.group(0)->count(), 3);
    QCOMPARE(window.collected()->count(), 1);
}

void tst_RibbonGallery::popupCoversTheStrip()
{
    GalleryWindow window;
    window.add(u"One"_s, texts(7));
    window.add(u"Two"_s, texts(1));
    QVERIFY(window.open());
    QSignalSpy told(window.gallery, &RibbonGallery::signalTriggered);
    QVERIFY(window.openPopup());
    const int height = 32 + neededHeight(7) + neededHeight(1);
    QCOMPARE(window.menu()->pos(), cornerOf(window.gallery));
    QCOMPARE(window.popup()->size(), QSize(window.gallery->width(), height));
    QCOMPARE(window.menu()->size(), QSize(window.gallery->width() + 2, height + 2));
    for (const QWidget *fixed :
         {static_cast<QWidget *>(window.popup()), static_cast<QWidget *>(window.menu())}) {
        QCOMPARE(fixed->minimumSize(), fixed->size());
        QCOMPARE(fixed->maximumSize(), fixed->size());
    }
    QVERIFY(!window.popup()->verticalScrollBar()->isVisible());
    QCOMPARE(window.popup()->widget()->size(), QSize(window.gallery->width(), height));
    // The popup's row is as long as the strip.
    QCOMPARE(window.item(0, 5)->y(), window.item(0, 0)->y());
    QCOMPARE(window.item(0, 6)->y(), window.item(0, 0)->y() + cellHeight);
    window.closePopup();
    QVERIFY(window.menu()->isHidden());
    QCOMPARE(told.count(), 0);
}

void tst_RibbonGallery::popupEndsAboveTheScreensBottom()
{
    GalleryWindow window;
    window.add(u"One"_s, texts(7));
    QVERIFY(window.open());
    const int wanted = 32 + neededHeight(7);
    const int offset = cornerOf(window.gallery).y() - window.y();
    for (const int missing : {0, 1, 100, wanted - 40}) {
        window.move(10, screenHeight() - 30 - wanted - offset + missing);
        QTRY_COMPARE(cornerOf(window.gallery).y(), screenHeight() - 30 - wanted + missing);
        QVERIFY(window.openPopup());
        const int extra = missing > 0 ? 17 : 0;
        QCOMPARE(window.popup()->size(), QSize(window.gallery->width() + extra, wanted - missing));
        QCOMPARE(window.menu()->size(), window.popup()->size() + QSize(2, 2));
        QCOMPARE(window.menu()->pos(), cornerOf(window.gallery));
        QCOMPARE(window.popup()->verticalScrollBar()->isVisible(), missing > 0);
        // The bar takes nothing of the items' room.
        QCOMPARE(window.popup()->widget()->size(), QSize(window.gallery->width(), wanted));
        window.closePopup();
    }
}

void tst_RibbonGallery::popupOnAScreenThatIsTooSmall()
{
    GalleryWindow window;
    window.add(u"One"_s, texts(400));
    QVERIFY(window.open());
    QVERIFY(window.openPopup());
    const int wanted = 32 + neededHeight(400);
    QVERIFY(wanted > screenHeight());
    const int top = cornerOf(window.gallery).y();
    QCOMPARE(window.popup()->size(),
             QSize(window.gallery->width() + 17, screenHeight() - 30 - top));
    QCOMPARE(window.menu()->pos(), cornerOf(window.gallery));
    QCOMPARE(window.menu()->geometry().bottom() + 1, screenHeight() - 30 + 2);
    QCOMPARE(window.popup()->widget()->size(), QSize(window.gallery->width(), wanted));
    QVERIFY(window.popup()->verticalScrollBar()->isVisible());
    QVERIFY(!window.popup()->horizontalScrollBar()->isVisible());
    // The last item can be reached.
    window.popup()->ensureWidgetVisible(window.item(0, 399));
    QVERIFY(window.popup()->viewport()->rect().contains(
        window.item(0, 399)->mapTo(window.popup()->viewport(), QPoint(89, 59))));
    window.closePopup();
}

void tst_RibbonGallery::popupOfAGalleryBelowTheScreen()
{
    GalleryWindow window;
    window.add(u"One"_s, texts(7));
    QVERIFY(window.open());
    window.move(10, screenHeight() + 100);
    QTRY_COMPARE(window.y(), screenHeight() + 100);
    QVERIFY(window.popupButton()->isVisible());
    window.popupButton()->click();
    QCOMPARE(window.popup()->height(), 0);
    window.menu()->close();
}

void tst_RibbonGallery::popupOpensAtItsTop()
{
    GalleryWindow window;
    window.add(u"One"_s, texts(100));
    QVERIFY(window.open());
    QVERIFY(window.openPopup());
    QScrollBar *bar = window.popup()->verticalScrollBar();
    QCOMPARE(bar->value(), 0);
    bar->setValue(bar->maximum());
    QVERIFY(bar->value() > 0);
    window.closePopup();
    QVERIFY(window.openPopup());
    QCOMPARE(bar->value(), 0);
    window.closePopup();
}

void tst_RibbonGallery::popupFollowsTheSearch()
{
    GalleryWindow window;
    window.add(u"One"_s, QStringList({u"x"_s}) + texts(60));
    window.add(u"Two"_s, texts(7));
    QVERIFY(window.open());
    QVERIFY(window.openPopup());
    const int top = cornerOf(window.gallery).y();
    const int width = window.gallery->width();
    const int tall = screenHeight() - 30 - top;
    QCOMPARE(window.popup()->size(), QSize(width + 17, tall));
    // Only the first group is left; its hidden items count all the same.
    window.search(u"x"_s);
    const int one = 32 + neededHeight(61);
    QCOMPARE(window.popup()->size(), QSize(width + (one > tall ? 17 : 0), qMin(one, tall)));
    window.search(u"none of them"_s);
    QCOMPARE(window.popup()->size(), QSize(width, 62));
    QCOMPARE(window.menu()->size(), QSize(width + 2, 64));
    QCOMPARE(window.menu()->pos(), cornerOf(window.gallery));
    window.search(QString());
    QCOMPARE(window.popup()->size(), QSize(width + 17, tall));
    QCOMPARE(window.menu()->size(), QSize(width + 19, tall + 2));
    window.closePopup();
}

void tst_RibbonGallery::popupGetsAScrollBarByCollecting()
{
    GalleryWindow window;
    window.add(u"One"_s, texts(7));
    QVERIFY(window.open());
    const int wanted = 32 + neededHeight(7);
    const int offset = cornerOf(window.gallery).y() - window.y();
    window.move(10, screenHeight() - 30 - wanted - 50 - offset);
    QTRY_COMPARE(cornerOf(window.gallery).y(), screenHeight() - 30 - wanted - 50);
    QVERIFY(window.openPopup());
    const int width = window.gallery->width();
    QCOMPARE(window.popup()->size(), QSize(width, wanted));
    GalleryWindow::clickMarker(window.item(0, 0));
    QCOMPARE(window.popup()->size(), QSize(width + 17, wanted + 50));
    QCOMPARE(window.menu()->size(), QSize(width + 19, wanted + 52));
    QCOMPARE(window.popup()->widget()->size(), QSize(width, wanted + 98));
    GalleryWindow::clickMarker(window.collected()->item(0));
    QCOMPARE(window.popup()->size(), QSize(width, wanted));
    QCOMPARE(window.popup()->widget()->size(), QSize(width, wanted));
    window.closePopup();
}

// The menu gets its height before anybody knows what is shown, and keeps it.
void tst_RibbonGallery::menuHasRoomForGroupsThatStayHidden()
{
    GalleryWindow window;
    window.add(u"One"_s, texts(1));
    window.add(u"Empty"_s, {});
    QVERIFY(window.open());
    QVERIFY(window.openPopup());
    QCOMPARE(window.menu()->height(), 32 + 98 + 98 + 2);
    window.search(u"I"_s);
    window.search(QString());
    QVERIFY(window.group(1)->isHidden());
    QCOMPARE(window.menu()->height(), 32 + 98 + 2);
    window.closePopup();
    QVERIFY(window.openPopup());
    QVERIFY(window.group(1)->isHidden());
    QCOMPARE(window.popup()->size(), QSize(window.gallery->width(), 32 + 98));
    QCOMPARE(window.menu()->size(), QSize(window.gallery->width() + 2, 32 + 98 + 98 + 2));
    window.search(u"I"_s);
    QCOMPARE(window.menu()->height(), 32 + 98 + 2);
    window.closePopup();
}

void tst_RibbonGallery::deletedActionsLeaveTheStrip()
{
    GalleryWindow window;
    window.gallery->setDispalyCount(3);
    window.add(u"One"_s, texts(4));
    window.gallery->setItemCollected(0, 2, true);
    QVERIFY(window.open());
    QCOMPARE(window.strip(), QStringList({u"Item 2"_s, u"Item 0"_s, u"Item 1"_s}));
    QVERIFY(window.openPopup());
    delete window.item(0, 0)->defaultAction();
    delete window.item(0, 2)->defaultAction();
    QSignalSpy told(window.gallery, &RibbonGallery::signalTriggered);
    Gui::click(window.item(0, 0), {45, 40});
    Gui::click(window.collected()->item(0), {45, 40});
    GalleryWindow::clickMarker(window.collected()->item(0));
    GalleryWindow::clickMarker(window.item(0, 2));
    GalleryWindow::clickMarker(window.item(0, 0));
    window.search(u"Item 3"_s);
    window.closePopup();
    QTRY_COMPARE(window.strip(), QStringList({u"Item 1"_s, u"Item 3"_s, u"-"_s}));
    QCOMPARE(told.count(), 0);
    delete window.item(0, 3)->defaultAction();
    Gui::click(window.cells().at(1));
    QCOMPARE(told.count(), 0);
}

// Qt may give a new action the memory of a deleted one.
void tst_RibbonGallery::actionAtTheSameAddressIsAnotherOne()
{
    GalleryWindow window;
    window.gallery->setDispalyCount(1);
    window.gallery->addGroup(u"One"_s);
    alignas(QAction) std::byte memory[sizeof(QAction)];
    auto *action = new (memory) QAction(u"old"_s);
    window.gallery->addItem(0, action);
    QVERIFY(window.open());
    QCOMPARE(window.strip(), QStringList(u"old"_s));
    action->~QAction();
    action = new (memory) QAction(u"new"_s);
    window.gallery->addItem(0, action);
    window.gallery->hide();
    window.gallery->show();
    QCOMPARE(window.strip(), QStringList(u"new"_s));
    QTRY_COMPARE(window.cells().at(0)->pos(), QPoint(6, 4));
    QSignalSpy told(window.gallery, &RibbonGallery::signalTriggered);
    Gui::click(window.cells().at(0));
    QCOMPARE(told.count(), 1);
    action->~QAction();
}

void tst_RibbonGallery::deletedWithItsPopupOpen()
{
    for (const QString &text : {QString(), u"Item 1"_s, u"nothing"_s}) {
        GalleryWindow window;
        window.add(u"One"_s, texts(3));
        window.gallery->setItemCollected(0, 1, true);
        QVERIFY(window.open());
        QVERIFY(window.openPopup());
        window.search(text);
        QCOMPARE(window.edit()->text(), text);
        delete window.gallery;
        QCOMPARE(QApplication::activePopupWidget(), nullptr);
        QCoreApplication::processEvents();
    }
}

void tst_RibbonGallery::deletedWhileItTells()
{
    GalleryWindow window;
    window.add(u"One"_s, texts(2));
    QVERIFY(window.open());
    QVERIFY(window.openPopup());
    const QPointer<RibbonGallery> gallery = window.gallery;
    QAction *action = window.item(0, 0)->defaultAction();
    connect(window.gallery, &RibbonGallery::signalTriggered, &window,
            [gallery] { delete gallery.data(); });
    action->trigger();
    QVERIFY(!gallery);
}

void tst_RibbonGallery::deletedWithItsPopupsUpdateToCome()
{
    GalleryWindow window;
    window.add(u"One"_s, texts(2));
    QVERIFY(window.open());
    QVERIFY(window.openPopup());
    window.closePopup();
    delete window.gallery;
    QCoreApplication::processEvents();
}

NORVANE_TEST_MAIN(tst_RibbonGallery)
#include "tst_RibbonGallery.moc"
