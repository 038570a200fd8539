// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "GalleryWindow.h"
#include "TestCase.h"

#include <QtCore/QMetaMethod>
#include <QtCore/QPointer>
#include <QtCore/QRandomGenerator>
#include <QtTest/QSignalSpy>
#include <QtWidgets/QApplication>
#include <QtWidgets/QGesture>
#include <QtWidgets/QGestureRecognizer>

#include <functional>

using namespace Norvane;
using namespace Qt::StringLiterals;

class tst_RibbonGalleryPopup : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void hasThreeSignals();
    void hasASearchRow();
    void isScrolledVertically();
    void standsItsPartsInAColumn();
    void collectedGroupCannotBeMoved();
    void hasItsSheetsColours();
    void isClosedByItsButton();
    void isClosedFromOutside();
    void staysOpenForClicksOnNothing();

    void groupsKnowWhereTheyStand();
    void groupsAreMoved();
    void groupMovesLikeTheModel();
    void groupThatIsMovedElsewhereIsLeftOut();

    void estimatesItsHeight_data();
    void estimatesItsHeight();
    void countsHiddenGroupsIfAsked();
    void tellsItsHeight();
    void makesRoomForItsScrollBar();

    void searchesByTyping();
    void searchHeedsCase();
    void searchHidesGroupsWithoutMatches();
    void searchThatFindsNothing();
    void searchIsTextNotAPattern();
    void searchFindsTextsAsTheyAre();
    void searchCoversCollectedItemsIfEnabled();
    void searchHidesGroupsWithoutItems();
    void searchForThousandsOfLetters();
    void searchIsClearedWhenItCloses();
    void searchOfAnEmptyCatalogue();
    void searchIsLeftByTab_data();
    void searchIsLeftByTab();

    void showsItemsNearby();
    void placesWhatItFindsAtOnce_data();
    void placesWhatItFindsAtOnce();
    void showsManyCollectedItems();
    void heedsGesturesWhileItIsOpen();
    void lacksNoItemThatIsSeen_data();
    void lacksNoItemThatIsSeen();

    void updatesTheStripAfterItIsHidden();
    void collectsACopy();
    void collectsACopyForEachTime();
    void uncollectsTheCopyOfAnItem();
    void uncollectsByTheCopy();
    void uncollectsByTheCopyAtOnce();
    void uncollectsAnActionInSeveralGroups();
    void copyThatWasUncollectedGoesWhenItIsCollected();
    void collectsWhileItIsSearched();
    void collectedItemsFindTheirPlacesAgain();
};

namespace {

constexpr int searchHeight = 32;

int neededHeight(int items, int inARow = 6)
{
    return 98 + (items > 1 ? 74 * ((items - 1) / inARow) : 0);
}

QStringList texts(int count)
{
    QStringList result;
    for (int i = 0; i < count; ++i)
        result << u"Item %1"_s.arg(i);
    return result;
}

QList<int> heights(const QSignalSpy &spy)
{
    QList<int> values;
    for (const QVariantList &arguments : spy)
        values << arguments.constFirst().toInt();
    return values;
}

QStringList titles(const GalleryWindow &window)
{
    QStringList result;
    const QList<RibbonGalleryGroup *> groups = window.groups();
    for (const RibbonGalleryGroup *group : groups)
        result << group->title();
    result.removeFirst();
    return result;
}

// The titles of the groups that can be moved to the top, and of those that can to the bottom.
QString buttons(const GalleryWindow &window)
{
    QString up;
    QString down;
    const QList<RibbonGalleryGroup *> groups = window.groups();
    for (const RibbonGalleryGroup *group : groups) {
        up += GalleryWindow::toTopOf(group)->isHidden() ? QString() : group->title();
        down += GalleryWindow::toBottomOf(group)->isHidden() ? QString() : group->title();
    }
    return up + u'/' + down;
}

// Tells each time that a widget is shown.
class ShowWatch : public QObject
{
public:
    ShowWatch(QWidget *widget, const std::function<void()> &tell)
        : m_tell(tell)
    {
        widget->installEventFilter(this);
    }

    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Show)
            m_tell();
        return false;
    }

private:
    std::function<void()> m_tell;
};

// Counts the events that may be part of somebody's pan gesture. Qt owns the recognisers, and loses
// those that are taken back.
class PanWatch : public QGestureRecognizer
{
public:
    QGesture *create(QObject *) override { return new QPanGesture; }
    Result recognize(QGesture *, QObject *, QEvent *) override
    {
        ++asked;
        return Ignore;
    }

    static inline int asked = 0;
};

// The first item that should be seen and is not, or that is not where it should be.
QString notSeen(const GalleryWindow &window)
{
    const QRect page = window.popup()->viewport()->rect();
    const QList<RibbonGalleryGroup *> groups = window.groups();
    for (const RibbonGalleryGroup *group : groups) {
        const int columns = (group->width() - 6) / 90;
        int place = 0;
        for (int i = 0; i < group->count() && group->isVisible(); ++i) {
            const RibbonGalleryItem *item = group->item(i);
            if (item->isHidden())
                continue;
            const QRect cell(3 + place % columns * 90, 24 + 5 + place / columns * 60, 90, 60);
            const QPoint corner = group->mapTo(window.popup()->viewport(), QPoint());
            if (page.intersects(cell.translated(corner))
                && (!item->isVisible()
                    || QRect(item->mapTo(group, QPoint()), item->size()) != cell)) {
                return u"%1 of group %2"_s.arg(i).arg(group->title());
            }
            ++place;
        }
    }
    return {};
}

bool isMarked(const RibbonGalleryItem *item)
{
    const QImage filled = QIcon(u":/res/collected.svg"_s).pixmap(QSize(16, 16), 1).toImage();
    const QToolButton *marker = GalleryWindow::markerOf(item);
    return !marker->isHidden() && marker->icon().pixmap(QSize(16, 16), 1).toImage() == filled;
}

} // namespace

void tst_RibbonGalleryPopup::hasThreeSignals()
{
    const QMetaObject &meta = RibbonGalleryPopup::staticMetaObject;
    QCOMPARE(meta.superClass(), &QScrollArea::staticMetaObject);
    const QByteArrayList signatures{"signalGroupUpdated()", "signalHeightChanged(int)",
                                    "signalUpdateDisplayedItems()"};
    QCOMPARE(meta.methodCount(), meta.methodOffset() + signatures.size());
    for (int i = 0; i < signatures.size(); ++i) {
        const QMetaMethod method = meta.method(meta.methodOffset() + i);
        QCOMPARE(method.methodSignature(), signatures.at(i));
        QCOMPARE(method.methodType(), QMetaMethod::Signal);
    }
    QCOMPARE(meta.method(meta.methodOffset() + 1).parameterNames(), QByteArrayList{"height"});
}

void tst_RibbonGalleryPopup::hasASearchRow()
{
    GalleryWindow window;
    window.add(u"One"_s, texts(1));
    QVERIFY(window.open());
    QVERIFY(window.openPopup());
    QLineEdit *edit = window.edit();
    const QPushButton *close = window.closeButton();
    const int width = window.popup()->widget()->width();
    QCOMPARE(edit->geometry().left(), 4);
    QCOMPARE(close->geometry().left(), edit->geometry().right() + 1 + 8);
    QCOMPARE(close->geometry().right() + 1, width - 4);
    QCOMPARE(qMin(edit->y(), close->y()), 4);
    QCOMPARE(edit->text(), QString());
    QCOMPARE(close->iconSize(), QSize(12, 12));
    QCOMPARE(close->icon().pixmap(QSize(12, 12), 1).toImage(),
             QIcon(u":/res/close.svg"_s).pixmap(QSize(12, 12), 1).toImage());
    // The glass stands at the field's end.
    const QToolButton *glass = edit->findChild<QToolButton *>();
    QVERIFY(glass);
    QVERIFY(glass->x() > edit->width() / 2);
    QCOMPARE(glass->icon().pixmap(QSize(16, 16), 1).toImage(),
             QIcon(u":/res/search.svg"_s).pixmap(QSize(16, 16), 1).toImage());
    window.closePopup();
}

void tst_RibbonGalleryPopup::isScrolledVertically()
{
    const RibbonGalleryPopup popup;
    QVERIFY(!popup.widgetResizable());
    QCOMPARE(popup.alignment(), Qt::AlignLeft | Qt::AlignVCenter);
    QCOMPARE(popup.horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
    QCOMPARE(popup.verticalScrollBarPolicy(), Qt::ScrollBarAsNeeded);
    QCOMPARE(popup.widget()->sizePolicy().horizontalPolicy(), QSizePolicy::Ignored);
    QCOMPARE(popup.widget()->sizePolicy().verticalPolicy(), QSizePolicy::Ignored);
    QCOMPARE(popup.widget()->layout()->alignment(), Qt::AlignTop);
}

void tst_RibbonGalleryPopup::standsItsPartsInAColumn()
{
    GalleryWindow window;
    window.add(u"One"_s, texts(7));
    window.add(u"Two"_s, {});
    window.add(u"Three"_s, texts(1));
    window.gallery->setItemCollected(0, 1, true);
    QVERIFY(window.open());
    QVERIFY(window.openPopup());
    const QWidget *content = window.popup()->widget();
    const int top =
        qMax(window.edit()->geometry().bottom(), window.closeButton()->geometry().bottom()) + 1 + 4;
    // A title bar, the margins and the rows.
    int y = top;
    for (const auto &[title, rows] : {std::pair(u"collected"_s, 1), std::pair(u"One"_s, 2),
                                      std::pair(u"Two"_s, 0), std::pair(u"Three"_s, 1)}) {
        const RibbonGalleryGroup *group = nullptr;
        const QList<RibbonGalleryGroup *> groups = window.groups();
        for (const RibbonGalleryGroup *candidate : groups)
            group = candidate->title() == title ? candidate : group;
        QVERIFY(group);
        QCOMPARE(group->mapTo(content, QPoint()), QPoint(0, y));
        QCOMPARE(group->size(), QSize(content->width(), 24 + 10 + rows * 60));
        y += group->height();
    }
    const QLayout *column = content->layout()->itemAt(1)->layout();
    QCOMPARE(column->alignment(), Qt::AlignTop);
    QCOMPARE(column->contentsMargins(), QMargins());
    QCOMPARE(column->spacing(), 0);
    QLabel *label = window.noMatchLabel();
    QVERIFY(label->isHidden());
    QCOMPARE(column->indexOf(label), column->count() - 1);
    QCOMPARE(label->text(), u"No items match your search criteria."_s);
    QCOMPARE(label->alignment().toInt(), 0xa4);
    QCOMPARE(label->height(), 30);
    window.closePopup();
}

void tst_RibbonGalleryPopup::collectedGroupCannotBeMoved()
{
    GalleryWindow window;
    window.add(u"One"_s, texts(2));
    QVERIFY(window.open());
    QVERIFY(window.openPopup());
    QCOMPARE(window.collected()->title(), u"collected"_s);
    QVERIFY(window.collected()->isHidden());
    GalleryWindow::clickMarker(window.item(0, 1));
    QVERIFY(window.collected()->isVisible());
    QVERIFY(GalleryWindow::toTopOf(window.collected())->isHidden());
    QVERIFY(GalleryWindow::toBottomOf(window.collected())->isHidden());
    const QLabel *icon = window.collected()->findChildren<QLabel *>().constFirst();
    QVERIFY(icon->isVisible());
    QCOMPARE(
        icon->pixmap().toImage(),
        QIcon(u":/res/collected.svg"_s).pixmap(QSize(16, 16), window.devicePixelRatio()).toImage());
    window.closePopup();
}

void tst_RibbonGalleryPopup::hasItsSheetsColours()
{
    GalleryWindow window;
    window.add(u"One"_s, texts(1));
    QVERIFY(window.open());
    QVERIFY(window.openPopup());
    const QImage picture = Gui::picture(window.menu());
    const QColor line(190, 190, 190);
    QCOMPARE(Gui::pixel(picture, {0, 0}), line);
    QCOMPARE(Gui::pixel(picture, {window.menu()->width() - 1, window.menu()->height() - 1}), line);
    QCOMPARE(Gui::pixel(picture, {1, window.menu()->height() / 2}),
             Gui::pixel(picture, {2, window.menu()->height() / 2}));
    window.closePopup();
}

void tst_RibbonGalleryPopup::isClosedByItsButton()
{
    GalleryWindow window;
    window.add(u"One"_s, texts(1));
    QVERIFY(window.open());
    QVERIFY(window.openPopup());
    Gui::click(window.closeButton());
    QVERIFY(window.menu()->isHidden());
    QVERIFY(window.openPopup());
    window.closePopup();
    // It has nothing to close on its own.
    RibbonGalleryPopup popup;
    popup.widget()
        ->findChildren<QPushButton *>(QString(), Qt::FindDirectChildrenOnly)
        .at(0)
        ->click();
}

void tst_RibbonGalleryPopup::isClosedFromOutside()
{
    GalleryWindow window;
    window.add(u"One"_s, texts(1));
    QVERIFY(window.open());
    QSignalSpy triggered(window.gallery, &RibbonGallery::signalTriggered);
    QVERIFY(window.openPopup());
    window.closePopup();
    QVERIFY(window.menu()->isHidden());
    QVERIFY(window.openPopup());
    Gui::click(&window, window.rect().bottomRight() - QPoint(5, 5));
    QVERIFY(window.menu()->isHidden());
    QCOMPARE(triggered.count(), 0);
}

void tst_RibbonGalleryPopup::staysOpenForClicksOnNothing()
{
    GalleryWindow window;
    window.add(u"One"_s, texts(1));
    QVERIFY(window.open());
    QSignalSpy triggered(window.gallery, &RibbonGallery::signalTriggered);
    QVERIFY(window.openPopup());
    const RibbonGalleryGroup *group = window.group(0);
    // A title, the room beside an item, and below all groups.
    Gui::click(group->findChildren<QLabel *>().value(1));
    Gui::click(group, {group->width() - 50, 60});
    Gui::click(window.popup()->widget(), {50, window.popup()->widget()->height() - 2});
    Gui::click(window.item(0, 0), {45, 40}, Qt::RightButton);
    QVERIFY(window.menu()->isVisible());
    QCOMPARE(triggered.count(), 0);
    window.closePopup();
}

void tst_RibbonGalleryPopup::groupsKnowWhereTheyStand()
{
    GalleryWindow window;
    window.add(u"A"_s, {});
    QCOMPARE(buttons(window), u"/A"_s);
    window.add(u"B"_s, {});
    QCOMPARE(buttons(window), u"B/A"_s);
    window.add(u"C"_s, {});
    QCOMPARE(buttons(window), u"BC/AB"_s);
    window.add(u"D"_s, {});
    QCOMPARE(buttons(window), u"BCD/ABC"_s);
    QCOMPARE(titles(window), QStringList({u"A"_s, u"B"_s, u"C"_s, u"D"_s}));
}

void tst_RibbonGalleryPopup::groupsAreMoved()
{
    GalleryWindow window;
    window.gallery->setDispalyCount(3);
    for (const QString &title : {u"A"_s, u"B"_s, u"C"_s})
        window.add(title, {title + u'0'});
    QVERIFY(window.open());
    QVERIFY(window.openPopup());
    QSignalSpy updated(window.popup(), &RibbonGalleryPopup::signalGroupUpdated);
    QSignalSpy told(window.popup(), &RibbonGalleryPopup::signalHeightChanged);
    Gui::click(GalleryWindow::toBottomOf(window.group(0)));
    QCOMPARE(titles(window), QStringList({u"B"_s, u"C"_s, u"A"_s}));
    QCOMPARE(buttons(window), u"CA/BC"_s);
    QCOMPARE(updated.count(), 1);
    QCOMPARE(window.strip(), QStringList({u"B0"_s, u"C0"_s, u"A0"_s}));
    QTRY_VERIFY(window.group(0)->y() < window.group(1)->y());
    QVERIFY(window.group(1)->y() < window.group(2)->y());
    Gui::click(GalleryWindow::toTopOf(window.group(1)));
    QCOMPARE(titles(window), QStringList({u"C"_s, u"B"_s, u"A"_s}));
    QCOMPARE(updated.count(), 2);
    QCOMPARE(told.count(), 0);
    QVERIFY(window.menu()->isVisible());
    // Numbers and titles mean the groups where they stand now.
    QCOMPARE(window.popup()->indexOfGroup(u"B"_s), 1);
    QCOMPARE(window.gallery->addItem(0, window.createAction(u"C1"_s)), 1);
    QCOMPARE(window.group(0)->title(), u"C"_s);
    QCOMPARE(window.group(0)->count(), 2);
    window.closePopup();
    // The collected group stays above all.
    window.gallery->setItemCollected(2, 0, true);
    QVERIFY(window.openPopup());
    Gui::click(GalleryWindow::toTopOf(window.group(2)));
    QTRY_VERIFY(window.collected()->y() < window.group(0)->y());
    QCOMPARE(window.collected()->title(), u"collected"_s);
    window.closePopup();
}

void tst_RibbonGalleryPopup::groupMovesLikeTheModel()
{
    QRandomGenerator random(7);
    GalleryWindow window;
    window.gallery->setDispalyCount(5);
    QStringList model;
    for (int i = 0; i < 5; ++i) {
        model << QString(QChar('A' + i));
        window.add(model.constLast(), {model.constLast()});
    }
    QVERIFY(window.open());
    QVERIFY(window.openPopup());
    for (int step = 0; step < 100; ++step) {
        const int at = int(random.bounded(model.size()));
        const bool up = at == model.size() - 1 || (at > 0 && random.bounded(2) == 0);
        Gui::click(up ? GalleryWindow::toTopOf(window.group(at))
                      : GalleryWindow::toBottomOf(window.group(at)));
        model.move(at, up ? 0 : model.size() - 1);
        QCoreApplication::processEvents();
        QCOMPARE(titles(window), model);
        QCOMPARE(buttons(window),
                 model.mid(1).join(QString()) + u'/' + model.first(4).join(QString()));
        QCOMPARE(window.strip(), model);
    }
    window.closePopup();
}

// No button asks for another place than the first or the last.
void tst_RibbonGalleryPopup::groupThatIsMovedElsewhereIsLeftOut()
{
    for (const auto position : {RibbonGalleryGroup::Fixed, RibbonGalleryGroup::Middle}) {
        GalleryWindow window;
        window.gallery->setDispalyCount(3);
        for (const QString &title : {u"A"_s, u"B"_s, u"C"_s})
            window.add(title, {title + u'0'});
        QVERIFY(window.open());
        RibbonGalleryGroup *moved = window.group(1);
        QSignalSpy updated(window.popup(), &RibbonGalleryPopup::signalGroupUpdated);
        Q_EMIT moved->signalPositionChange(position);
        QCOMPARE(updated.count(), 1);
        QCOMPARE(window.popup()->indexOfGroup(u"A"_s), 0);
        QCOMPARE(window.popup()->indexOfGroup(u"B"_s), -1);
        QCOMPARE(window.popup()->indexOfGroup(u"C"_s), 1);
        QCOMPARE(window.popup()->computedHeight(true), searchHeight + 98 + 98);
        const QStringList strip = window.strip();
        QCOMPARE(strip.last(3), QStringList({u"A0"_s, u"C0"_s, u"-"_s}));
        // The buttons take it back.
        Q_EMIT moved->signalPositionChange(RibbonGalleryGroup::Bottom);
        QCOMPARE(titles(window), QStringList({u"A"_s, u"C"_s, u"B"_s}));
        QCOMPARE(buttons(window), u"CB/AC"_s);
        QCOMPARE(window.popup()->indexOfGroup(u"B"_s), 2);
    }
}

void tst_RibbonGalleryPopup::estimatesItsHeight_data()
{
    QTest::addColumn<QList<int>>("items");
    QTest::addColumn<int>("collected");
    QTest::addColumn<int>("displayCount");
    QTest::addColumn<int>("height");
    QTest::newRow("nothing") << QList<int>() << 0 << 6 << 62;
    QTest::newRow("a group without items") << QList<int>{0} << 0 << 6 << 130;
    QTest::newRow("one item") << QList<int>{1} << 0 << 6 << 130;
    QTest::newRow("a full row") << QList<int>{6} << 0 << 6 << 130;
    QTest::newRow("one more") << QList<int>{7} << 0 << 6 << 204;
    QTest::newRow("two full rows") << QList<int>{12} << 0 << 6 << 204;
    QTest::newRow("three rows") << QList<int>{13} << 0 << 6 << 278;
    QTest::newRow("two groups") << QList<int>{7, 2} << 0 << 6 << 302;
    QTest::newRow("a collected item") << QList<int>{7, 2} << 1 << 6 << 400;
    QTest::newRow("two rows of collected items") << QList<int>{7, 2} << 7 << 6 << 474;
    QTest::newRow("short rows") << QList<int>{7} << 0 << 2 << 352;
    QTest::newRow("one in a row") << QList<int>{7} << 0 << 1 << 574;
    QTest::newRow("no row at all") << QList<int>{7} << 0 << 0 << 574;
    QTest::newRow("a negative row") << QList<int>{7} << 0 << -6 << 574;
    QTest::newRow("long rows") << QList<int>{20} << 0 << 25 << 130;
}

void tst_RibbonGalleryPopup::estimatesItsHeight()
{
    QFETCH(QList<int>, items);
    QFETCH(int, collected);
    QFETCH(int, displayCount);
    QFETCH(int, height);
    GalleryWindow window;
    window.gallery->setDispalyCount(displayCount);
    for (const int count : std::as_const(items))
        window.add(u"Group"_s, texts(count));
    for (int i = 0; i < collected; ++i)
        window.gallery->setItemCollected(0, i, true);
    QCOMPARE(window.popup()->computedHeight(true), height);
    QVERIFY(window.open());
    window.popupButton()->click();
    QVERIFY(window.menu()->isVisible());
    QCOMPARE(window.popup()->computedHeight(true), height);
    QCOMPARE(window.popup()->computedHeight(false), height);
    QCOMPARE(window.popup()->height(), height);
    QCOMPARE(window.popup()->widget()->height(), height);
    QCOMPARE(window.collected()->isVisible(), collected > 0);
    window.menu()->close();
}

void tst_RibbonGalleryPopup::countsHiddenGroupsIfAsked()
{
    GalleryWindow window;
    window.add(u"One"_s, texts(7));
    window.add(u"Two"_s, {u"x"_s});
    window.gallery->setItemCollected(0, 0, true);
    QVERIFY(window.open());
    // Nothing is visible in a closed popup.
    QCOMPARE(window.popup()->computedHeight(false), 62);
    QVERIFY(window.openPopup());
    window.search(u"x"_s);
    QCOMPARE(window.popup()->computedHeight(false), searchHeight + 98);
    QCOMPARE(window.popup()->computedHeight(true), searchHeight + 98 + neededHeight(7) + 98);
    window.search(u"xx"_s);
    QCOMPARE(window.popup()->computedHeight(false), 62);
    QCOMPARE(window.popup()->computedHeight(true), searchHeight + 98 + neededHeight(7) + 98);
    QVERIFY(window.group(0)->isHidden());
    window.closePopup();
}

void tst_RibbonGalleryPopup::tellsItsHeight()
{
    GalleryWindow window;
    window.add(u"One"_s, texts(7));
    window.add(u"Two"_s, {u"x"_s});
    QVERIFY(window.open());
    QSignalSpy told(window.popup(), &RibbonGalleryPopup::signalHeightChanged);
    // What is told has come true already.
    connect(window.popup(), &RibbonGalleryPopup::signalHeightChanged, &window,
            [&window](int height) { QCOMPARE(window.popup()->widget()->height(), height); });
    QVERIFY(window.openPopup());
    const int all = searchHeight + neededHeight(7) + 98;
    QVERIFY(!told.isEmpty());
    const QList<int> first = heights(told);
    for (const int height : first)
        QCOMPARE(height, all);
    told.clear();
    window.search(u"x"_s);
    QCOMPARE(heights(told), QList<int>{searchHeight + 98});
    // Once for every letter, also if nothing changes.
    told.clear();
    window.search(QString());
    QCOMPARE(heights(told), QList<int>{all});
    told.clear();
    window.search(u"Item"_s);
    QCOMPARE(heights(told), QList<int>(4, searchHeight + neededHeight(7)));
    window.search(QString());
    told.clear();
    GalleryWindow::clickMarker(window.item(0, 0));
    QCOMPARE(heights(told), QList<int>{all + 98});
    told.clear();
    GalleryWindow::clickMarker(window.item(0, 0));
    QCOMPARE(told.constLast().constFirst().toInt(), all);
    told.clear();
    window.closePopup();
    QCoreApplication::processEvents();
    QCOMPARE(told.count(), 0);
}

void tst_RibbonGalleryPopup::makesRoomForItsScrollBar()
{
    GalleryWindow window;
    window.add(u"One"_s, texts(100));
    window.add(u"Two"_s, {u"x"_s});
    QVERIFY(window.open());
    QVERIFY(window.openPopup());
    const int width = window.gallery->width();
    const QWidget *content = window.popup()->widget();
    const auto frameIsAsWideAs = [&](int expected) {
        QCOMPARE(content->minimumWidth(), expected);
        QCOMPARE(content->maximumWidth(), expected);
        QCOMPARE(content->width(), expected);
    };
    frameIsAsWideAs(width);
    QCOMPARE(window.popup()->width(), width + 17);
    QVERIFY(window.popup()->viewport()->width() >= width);
    window.search(u"x"_s);
    frameIsAsWideAs(width);
    QCOMPARE(window.popup()->width(), width);
    QCOMPARE(content->minimumHeight(), searchHeight + 98);
    QCOMPARE(content->maximumHeight(), searchHeight + 98);
    // A popup that nobody gives more width loses the bar's.
    RibbonGalleryPopup popup;
    popup.addGroup(u"One"_s, QIcon());
    popup.resize(300, 400);
    popup.show();
    QCOMPARE(popup.widget()->width(), 300);
    popup.hide();
    popup.resize(300, 129);
    popup.show();
    QCOMPARE(popup.widget()->size(), QSize(283, 130));
    window.closePopup();
}

void tst_RibbonGalleryPopup::searchesByTyping()
{
    GalleryWindow window;
    window.add(u"One"_s, {u"alpha"_s, u"beta"_s, u"alphabet"_s, u"gamma"_s});
    QVERIFY(window.open());
    QVERIFY(window.openPopup());
    Gui::click(window.edit());
    const auto found = [&] { return GalleryWindow::visibleTexts(window.group(0)); };
    QTest::keyClick(window.windowHandle(), 'b');
    QCOMPARE(found(), QStringList({u"beta"_s, u"alphabet"_s}));
    QTest::keyClick(window.windowHandle(), 'e');
    QTest::keyClick(window.windowHandle(), 't');
    QCOMPARE(found(), QStringList({u"beta"_s, u"alphabet"_s}));
    QTest::keyClick(window.windowHandle(), 'a');
    QCOMPARE(found(), QStringList({u"beta"_s}));
    // What is found closes up.
    QTRY_COMPARE(window.item(0, 1)->pos(), QPoint(3, 5));
    QTest::keyClick(window.windowHandle(), Qt::Key_Home);
    QTest::keyClick(window.windowHandle(), 'a');
    QCOMPARE(found(), QStringList());
    for (int i = 0; i < 5; ++i)
        QTest::keyClick(window.windowHandle(), Qt::Key_Delete);
    QCOMPARE(window.edit()->text(), u"a"_s);
    QCOMPARE(found().size(), 4);
    QTest::keyClick(window.windowHandle(), Qt::Key_Backspace);
    QCOMPARE(found().size(), 4);
    QTRY_COMPARE(window.item(0, 3)->pos(), QPoint(3 + 3 * 90, 5));
    window.closePopup();
}

void tst_RibbonGalleryPopup::searchHeedsCase()
{
    GalleryWindow window;
    window.add(u"One"_s, {u"ABC"_s, u"abc"_s, u"xabcx"_s, u"aBc"_s});
    QVERIFY(window.open());
    QVERIFY(window.openPopup());
    window.search(u"abc"_s);
    QCOMPARE(GalleryWindow::visibleTexts(window.group(0)), QStringList({u"abc"_s, u"xabcx"_s}));
    window.search(u"B"_s);
    QCOMPARE(GalleryWindow::visibleTexts(window.group(0)), QStringList({u"ABC"_s, u"aBc"_s}));
    window.closePopup();
}

void tst_RibbonGalleryPopup::searchHidesGroupsWithoutMatches()
{
    GalleryWindow window;
    window.add(u"x"_s, {u"one"_s});
    window.add(u"Two"_s, {u"x"_s, u"two"_s});
    window.add(u"Three"_s, {u"xx"_s});
    QVERIFY(window.open());
    QVERIFY(window.openPopup());
    window.search(u"x"_s);
    // A title is no match.
    QVERIFY(window.group(0)->isHidden());
    QVERIFY(window.group(1)->isVisible());
    QVERIFY(window.group(2)->isVisible());
    QCOMPARE(GalleryWindow::visibleTexts(window.group(1)), QStringList(u"x"_s));
    QTRY_COMPARE(window.group(1)->y() + window.group(1)->height(), window.group(2)->y());
    QVERIFY(window.noMatchLabel()->isHidden());
    window.search(u"xx"_s);
    QVERIFY(window.group(1)->isHidden());
    QVERIFY(window.group(2)->isVisible());
    window.search(QString());
    for (int i = 0; i < 3; ++i) {
        QVERIFY(window.group(i)->isVisible());
        QCOMPARE(GalleryWindow::visibleTexts(window.group(i)).size(), window.group(i)->count());
    }
    window.closePopup();
}

void tst_RibbonGalleryPopup::searchThatFindsNothing()
{
    GalleryWindow window;
    window.add(u"One"_s, texts(3));
    QVERIFY(window.open());
    QVERIFY(window.openPopup());
    window.search(u"z"_s);
    QVERIFY(window.group(0)->isHidden());
    const QLabel *label = window.noMatchLabel();
    QVERIFY(label->isVisible());
    QCOMPARE(window.popup()->height(), 62);
    const QRect where(label->mapTo(window.popup(), QPoint()), label->size());
    QVERIFY(window.popup()->rect().contains(where.center()));
    QCOMPARE(where.width(), window.popup()->width());
    QVERIFY(window.edit()->hasFocus());
    window.search(u"Item"_s);
    QVERIFY(label->isHidden());
    window.search(u"z"_s);
    QVERIFY(label->isVisible());
    window.search(QString());
    QVERIFY(label->isHidden());
    window.closePopup();
}

void tst_RibbonGalleryPopup::searchIsTextNotAPattern()
{
    GalleryWindow window;
    window.add(u"One"_s, {u"a.c"_s, u"abc"_s, u"&Save"_s, u"two\nlines"_s, u"Open..."_s});
    QVERIFY(window.open());
    QVERIFY(window.openPopup());
    // What is searched is what stands on the button, which shortens the action's text.
    for (const auto &[text, found] :
         {std::pair(u"."_s, u"a.c"_s), std::pair(u"Save"_s, u"Save"_s),
          std::pair(u"lin"_s, u"two\nlines"_s), std::pair(u"Open"_s, u"Open"_s)}) {
        window.search(text);
        QCOMPARE(GalleryWindow::visibleTexts(window.group(0)), QStringList(found));
    }
    for (const QString &text : {u"*"_s, u"&S"_s, u"^a"_s, u"Open."_s}) {
        window.search(text);
        QCOMPARE(GalleryWindow::visibleTexts(window.group(0)), QStringList());
    }
    window.closePopup();
}

void tst_RibbonGalleryPopup::searchFindsTextsAsTheyAre()
{
    GalleryWindow window;
    window.add(u"One"_s, {u"one"_s, u"two"_s});
    QVERIFY(window.open());
    window.item(0, 1)->defaultAction()->setText(u"new"_s);
    QVERIFY(window.openPopup());
    window.search(u"new"_s);
    QCOMPARE(GalleryWindow::visibleTexts(window.group(0)), QStringList(u"new"_s));
    // A text that changes is not searched before the next letter.
    window.item(0, 0)->defaultAction()->setText(u"newest"_s);
    QCOMPARE(GalleryWindow::visibleTexts(window.group(0)), QStringList(u"new"_s));
    QTest::keyClick(window.windowHandle(), 'e');
    QCOMPARE(GalleryWindow::visibleTexts(window.group(0)), QStringList(u"newest"_s));
    // What is added meanwhile is shown.
    window.gallery->addItem(0, window.createAction(u"other"_s));
    QTRY_COMPARE(GalleryWindow::visibleTexts(window.group(0)),
                 QStringList({u"newest"_s, u"other"_s}));
    QTest::keyClick(window.windowHandle(), 's');
    QCOMPARE(GalleryWindow::visibleTexts(window.group(0)), QStringList(u"newest"_s));
    window.closePopup();
}

void tst_RibbonGalleryPopup::searchCoversCollectedItemsIfEnabled()
{
    GalleryWindow window;
    window.add(u"One"_s, {u"a"_s, u"b"_s});
    window.gallery->setItemCollected(0, 0, true);
    window.gallery->setItemCollected(0, 1, true);
    QVERIFY(window.open());
    QVERIFY(window.openPopup());
    window.search(u"a"_s);
    QCOMPARE(GalleryWindow::visibleTexts(window.collected()), QStringList(u"a"_s));
    QCOMPARE(GalleryWindow::visibleTexts(window.group(0)), QStringList(u"a"_s));
    window.search(u"z"_s);
    QVERIFY(window.collected()->isHidden());
    window.closePopup();

    window.gallery->setCollectEnabled(false);
    QVERIFY(window.openPopup());
    window.search(u"a"_s);
    QVERIFY(window.collected()->isVisible());
    QCOMPARE(GalleryWindow::visibleTexts(window.collected()), QStringList({u"a"_s, u"b"_s}));
    QCOMPARE(GalleryWindow::visibleTexts(window.group(0)), QStringList(u"a"_s));
    window.search(u"z"_s);
    QVERIFY(window.collected()->isVisible());
    QVERIFY(window.noMatchLabel()->isVisible());
    QTRY_VERIFY(window.noMatchLabel()->y() > window.collected()->geometry().bottom());
    QCOMPARE(window.popup()->height(), searchHeight + 98);
    window.closePopup();
}

// No item of theirs matches, not even an empty text.
void tst_RibbonGalleryPopup::searchHidesGroupsWithoutItems()
{
    GalleryWindow window;
    window.add(u"One"_s, texts(1));
    window.add(u"Empty"_s, {});
    QVERIFY(window.open());
    QVERIFY(window.openPopup());
    QVERIFY(window.group(1)->isVisible());
    QCOMPARE(window.popup()->height(), searchHeight + 98 + 98);
    window.search(u"I"_s);
    QVERIFY(window.group(1)->isHidden());
    window.search(QString());
    QVERIFY(window.group(0)->isVisible());
    QVERIFY(window.group(1)->isHidden());
    QVERIFY(window.collected()->isHidden());
    QCOMPARE(window.popup()->height(), searchHeight + 98);
    window.closePopup();
}

void tst_RibbonGalleryPopup::searchForThousandsOfLetters()
{
    GalleryWindow window;
    const QString longText(20000, u'w');
    window.add(u"One"_s, {u"w"_s, longText});
    QVERIFY(window.open());
    QVERIFY(window.openPopup());
    window.edit()->setMaxLength(1 << 20);
    window.edit()->setText(longText.first(9000));
    QCOMPARE(GalleryWindow::visibleTexts(window.group(0)), QStringList(longText));
    window.edit()->setText(longText + longText);
    QCOMPARE(GalleryWindow::visibleTexts(window.group(0)), QStringList());
    QCOMPARE(window.popup()->height(), 62);
    window.closePopup();
}

void tst_RibbonGalleryPopup::searchIsClearedWhenItCloses()
{
    GalleryWindow window;
    window.add(u"One"_s, texts(2));
    window.add(u"Two"_s, {u"x"_s});
    QVERIFY(window.open());
    for (const QString &text : {u"x"_s, u"nothing"_s}) {
        QVERIFY(window.openPopup());
        window.search(text);
        window.closePopup();
        QVERIFY(window.menu()->isHidden());
        QCOMPARE(window.edit()->text(), QString());
        QVERIFY(window.openPopup());
        QCOMPARE(GalleryWindow::visibleTexts(window.group(0)), texts(2));
        QVERIFY(window.group(0)->isVisible());
        QVERIFY(window.group(1)->isVisible());
        QVERIFY(window.noMatchLabel()->isHidden());
        QCOMPARE(window.popup()->height(), searchHeight + 98 + 98);
        window.closePopup();
    }
}

// Before there is a group, the label that tells of no match has no place in the popup. It comes up
// as a window of its own, but not to stay.
void tst_RibbonGalleryPopup::searchOfAnEmptyCatalogue()
{
    GalleryWindow window;
    QVERIFY(window.open());
    window.popupButton()->click();
    QVERIFY(window.menu()->isVisible());
    QCOMPARE(window.popup()->height(), 62);
    QCOMPARE(window.noMatchLabel(), nullptr);
    QLabel *label = nullptr;
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *widget : windows) {
        if (auto *candidate = qobject_cast<QLabel *>(widget))
            label = candidate;
    }
    QVERIFY(label);
    QVERIFY(label->isHidden());
    QCOMPARE(label->text(), u"No items match your search criteria."_s);
    QList<bool> shownAsWindow;
    ShowWatch watch(label, [&] { shownAsWindow << label->isWindow(); });
    window.edit()->setText(u"x"_s);
    QVERIFY(!shownAsWindow.isEmpty() && !shownAsWindow.contains(false));
    QCoreApplication::processEvents();
    window.menu()->close();
    QVERIFY(label->isHidden());
    QCOMPARE(QApplication::activePopupWidget(), nullptr);
    QCOMPARE(window.edit()->text(), QString());

    // The first group gives it its place.
    window.add(u"One"_s, texts(1));
    QCOMPARE(window.noMatchLabel(), label);
    QVERIFY(label->isHidden());
    window.popupButton()->click();
    shownAsWindow.clear();
    window.edit()->setText(u"x"_s);
    QCOMPARE(shownAsWindow, QList<bool>{false});
    QVERIFY(label->isVisible());
    QVERIFY(window.menu()->isVisible());
    window.menu()->close();
}

void tst_RibbonGalleryPopup::searchIsLeftByTab_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("key");
    QTest::newRow("all shown, forwards") << 20 << int(Qt::Key_Tab);
    QTest::newRow("all shown, backwards") << 20 << int(Qt::Key_Backtab);
    QTest::newRow("some shown, forwards") << 100 << int(Qt::Key_Tab);
    QTest::newRow("some shown, backwards") << 100 << int(Qt::Key_Backtab);
}

// In a menu these keys go from action to action, and the popup is its only one: no item gets the
// focus, whether it is shown or not.
void tst_RibbonGalleryPopup::searchIsLeftByTab()
{
    QFETCH(int, count);
    QFETCH(int, key);
    GalleryWindow window;
    for (const QString &title : {u"One"_s, u"Two"_s, u"Three"_s, u"Four"_s})
        window.add(title, texts(count));
    QVERIFY(window.open());
    QVERIFY(window.openPopup());
    Gui::click(window.edit());
    QCOMPARE(QApplication::focusWidget(), window.edit());
    QTest::keyClick(window.menu()->windowHandle(), Qt::Key(key));
    QCOMPARE(QApplication::focusWidget(), window.popup());
    QTest::keyClick(window.menu()->windowHandle(), Qt::Key(key));
    QCOMPARE(QApplication::focusWidget(), window.menu());
    window.closePopup();
}

void tst_RibbonGalleryPopup::showsItemsNearby()
{
    GalleryWindow window;
    for (const QString &title : {u"One"_s, u"Two"_s, u"Three"_s, u"Four"_s})
        window.add(title, texts(100));
    QVERIFY(window.open());
    QVERIFY(window.openPopup());
    // 24 pixels of title and 17 rows.
    constexpr int groupHeight = 24 + 5 + 17 * 60 + 5;
    for (int i = 0; i < 4; ++i) {
        QCOMPARE(window.group(i)->y(), window.group(0)->y() + i * groupHeight);
        QVERIFY(window.group(i)->isVisible());
        QVERIFY(!window.item(i, 99)->isHidden());
        // The last two are more than a page away.
        QCOMPARE(window.item(i, 99)->isVisible(), i < 2);
    }

    window.popup()->verticalScrollBar()->setValue(window.group(2)->y());
    QVERIFY(window.item(2, 0)->isVisible());
    // What was shown once is not hidden again while it may be scrolled back to.
    QVERIFY(window.item(0, 0)->isVisible());
    QSignalSpy triggered(window.gallery, &RibbonGallery::signalTriggered);
    Gui::click(window.item(2, 7));
    QCOMPARE(triggered.count(), 1);
    QVERIFY(!window.menu()->isVisible());

    QVERIFY(window.openPopup());
    QVERIFY(window.item(0, 0)->isVisible());
    QVERIFY(!window.item(2, 7)->isVisible());
    window.edit()->setText(u"Item 9"_s);
    for (int i = 0; i < 4; ++i) {
        QVERIFY(window.item(i, 99)->isVisible());
        QVERIFY(window.item(i, 8)->isHidden());
    }
    window.search(QString());
    for (int i = 0; i < 4; ++i) {
        QVERIFY(!window.item(i, 8)->isHidden());
        QCOMPARE(window.item(i, 99)->isVisible(), i < 2);
    }
    window.closePopup();
}

void tst_RibbonGalleryPopup::placesWhatItFindsAtOnce_data()
{
    QTest::addColumn<int>("count");
    QTest::newRow("few") << 30;
    QTest::newRow("more") << 45;
    QTest::newRow("many") << 100;
}

// Otherwise what is painted first would be painted twice.
void tst_RibbonGalleryPopup::placesWhatItFindsAtOnce()
{
    QFETCH(int, count);
    GalleryWindow window;
    for (const QString &title : {u"One"_s, u"Two"_s, u"Three"_s})
        window.add(title, texts(count));
    QVERIFY(window.open());
    QVERIFY(window.openPopup());
    QCoreApplication::processEvents();
    // Item 2 and ten more, in two rows; and then others in as many rows.
    for (const int first : {2, 1}) {
        window.edit()->setText(u"Item %1"_s.arg(first));
        for (int i = 0; i < 3; ++i) {
            QCOMPARE(window.group(i)->y(), window.group(0)->y() + i * (24 + 5 + 2 * 60 + 5));
            QCOMPARE(window.item(i, first)->pos(), QPoint(3, 5));
            QCOMPARE(window.item(i, first * 10 + 9)->pos(), QPoint(3 + 4 * 90, 5 + 60));
        }
    }
    // Without anything to see there is no scroll bar.
    window.edit()->setText(u"x"_s);
    window.edit()->clear();
    const int height = 24 + 5 + (count + 5) / 6 * 60 + 5;
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(window.group(i)->width(), window.popup()->widget()->width());
        QCOMPARE(window.group(i)->y(), window.group(0)->y() + i * height);
        QCOMPARE(window.item(i, 5)->pos(), QPoint(3 + 5 * 90, 5));
    }
    window.closePopup();
}

void tst_RibbonGalleryPopup::showsManyCollectedItems()
{
    GalleryWindow window;
    window.add(u"One"_s, texts(60));
    for (int i = 0; i < 60; ++i)
        window.gallery->setItemCollected(0, i, true);
    QVERIFY(window.open());
    QVERIFY(window.openPopup());
    QVERIFY(window.collected()->item(0)->isVisible());
    window.popup()->verticalScrollBar()->setValue(window.popup()->verticalScrollBar()->maximum());
    window.closePopup();
    QVERIFY(window.openPopup());
    QVERIFY(window.collected()->item(0)->isVisible());
    window.search(u"x"_s);
    QVERIFY(!window.collected()->item(0)->isVisible());
    window.search(QString());
    QVERIFY(window.collected()->item(0)->isVisible());
    window.closePopup();
}

// As other scroll areas, but not for the thousands of events of a search.
void tst_RibbonGalleryPopup::heedsGesturesWhileItIsOpen()
{
    QGestureRecognizer::registerRecognizer(new PanWatch);
    GalleryWindow window;
    window.add(u"One"_s, texts(100));
    QVERIFY(window.open());
    const auto heeds = [&] {
        PanWatch::asked = 0;
        QEvent event(QEvent::User);
        QCoreApplication::sendEvent(window.popup()->viewport(), &event);
        return PanWatch::asked > 0;
    };
    for (int i = 0; i < 2; ++i) {
        QVERIFY(!heeds());
        QVERIFY(window.openPopup());
        QVERIFY(heeds());
        PanWatch::asked = 0;
        window.edit()->setText(u"12"_s);
        QVERIFY(PanWatch::asked < 50);
        QVERIFY(window.item(0, 99)->isHidden());
        QVERIFY(heeds());
        window.closePopup();
    }
}

void tst_RibbonGalleryPopup::lacksNoItemThatIsSeen_data()
{
    QTest::addColumn<int>("seed");
    for (int seed = 0; seed < 4; ++seed)
        QTest::addRow("%d", seed) << seed;
}

// Whatever is searched, scrolled, collected, moved and added: what is to be seen of the popup is
// there, each item in its place.
void tst_RibbonGalleryPopup::lacksNoItemThatIsSeen()
{
    QFETCH(int, seed);
    QRandomGenerator random(seed);
    GalleryWindow window;
    for (int group = 0; group < 6; ++group)
        window.add(QString::number(group), texts(random.bounded(80)));
    QVERIFY(window.open());
    QVERIFY(window.openPopup());
    for (int step = 0; step < 40; ++step) {
        const int group = random.bounded(6);
        switch (random.bounded(8)) {
        case 0:
        case 1:
            window.edit()->setText(random.bounded(2) ? QString() : QString::number(group));
            break;
        case 2:
        case 3:
            window.popup()->verticalScrollBar()->setValue(
                random.bounded(window.popup()->verticalScrollBar()->maximum() + 1));
            break;
        case 4:
            window.gallery->setItemCollected(group, random.bounded(80), random.bounded(3));
            break;
        case 5:
            if (random.bounded(2))
                GalleryWindow::toTopOf(window.group(group))->click();
            else
                GalleryWindow::toBottomOf(window.group(group))->click();
            break;
        case 6: {
            const QStringList added = texts(random.bounded(40));
            for (const QString &text : added)
                window.gallery->addItem(group, window.createAction(text));
            break;
        }
        default:
            window.closePopup();
            QVERIFY(window.openPopup());
            break;
        }
        QCoreApplication::processEvents();
        const QString wrong = notSeen(window);
        QVERIFY2(wrong.isEmpty(), qPrintable(u"step %1: %2"_s.arg(step).arg(wrong)));
    }
    window.closePopup();
}

void tst_RibbonGalleryPopup::updatesTheStripAfterItIsHidden()
{
    GalleryWindow window;
    window.add(u"One"_s, texts(1));
    QVERIFY(window.open());
    QSignalSpy update(window.popup(), &RibbonGalleryPopup::signalUpdateDisplayedItems);
    for (int i = 1; i < 4; ++i) {
        QVERIFY(window.openPopup());
        QCoreApplication::processEvents();
        QCOMPARE(update.count(), i - 1);
        window.menu()->close();
        QCOMPARE(update.count(), i - 1);
        QTRY_COMPARE(update.count(), i);
        QCoreApplication::processEvents();
        QCOMPARE(update.count(), i);
    }
}

void tst_RibbonGalleryPopup::collectsACopy()
{
    GalleryWindow window;
    window.add(u"One"_s, texts(3));
    QVERIFY(window.open());
    window.gallery->setIconSize({16, 16});
    window.gallery->setActionSize({70, 50});
    QVERIFY(window.openPopup());
    QSignalSpy triggered(window.gallery, &RibbonGallery::signalTriggered);
    GalleryWindow::clickMarker(window.item(0, 1));
    QCOMPARE(window.collected()->count(), 1);
    QVERIFY(window.collected()->isVisible());
    const RibbonGalleryItem *copy = window.collected()->item(0);
    QCOMPARE(copy->defaultAction(), window.item(0, 1)->defaultAction());
    QCOMPARE(copy->iconSize(), QSize(16, 16));
    QCOMPARE(copy->size(), QSize(70, 50));
    QVERIFY(copy->isVisible());
    QVERIFY(copy->isCollected());
    QVERIFY(isMarked(copy));
    QVERIFY(isMarked(window.item(0, 1)));
    QCOMPARE(window.popup()->height(), searchHeight + 98 + 98);
    QTRY_COMPARE(copy->pos(), QPoint(3, 5));
    QCOMPARE(triggered.count(), 0);

    // It stays marked without the mouse, and it triggers the same action.
    Gui::moveMouse(window.edit(), {3, 3});
    QVERIFY(isMarked(copy));
    Gui::click(copy, {35, 35});
    QCOMPARE(triggered.count(), 1);
    QCOMPARE(triggered.constFirst().constFirst().value<QAction *>()->text(), u"Item 1"_s);
}

void tst_RibbonGalleryPopup::collectsACopyForEachTime()
{
    GalleryWindow window;
    window.add(u"One"_s, texts(2));
    for (int i = 1; i < 4; ++i) {
        QVERIFY(window.gallery->setItemCollected(0, 1, true));
        QCOMPARE(window.collected()->count(), i);
    }
    const QPointer<RibbonGalleryItem> first = window.collected()->item(0);
    for (int i = 2; i >= 0; --i) {
        QVERIFY(window.gallery->setItemCollected(0, 1, false));
        QVERIFY(!first);
        QCOMPARE(window.collected()->count(), i);
    }
    QVERIFY(window.gallery->setItemCollected(0, 1, false));
    QCOMPARE(window.collected()->count(), 0);
}

void tst_RibbonGalleryPopup::uncollectsTheCopyOfAnItem()
{
    GalleryWindow window;
    window.add(u"One"_s, texts(3));
    for (int i = 0; i < 3; ++i)
        window.gallery->setItemCollected(0, i, true);
    QVERIFY(window.open());
    QVERIFY(window.openPopup());
    QCOMPARE(GalleryWindow::visibleTexts(window.collected()), texts(3));
    const QPointer<RibbonGalleryItem> copy = window.collected()->item(1);
    GalleryWindow::clickMarker(window.item(0, 1));
    QVERIFY(!copy);
    QCOMPARE(GalleryWindow::visibleTexts(window.collected()),
             QStringList({u"Item 0"_s, u"Item 2"_s}));
    QVERIFY(!window.item(0, 1)->isCollected());
    GalleryWindow::clickMarker(window.item(0, 0));
    GalleryWindow::clickMarker(window.item(0, 2));
    QCOMPARE(window.collected()->count(), 0);
    QVERIFY(window.collected()->isHidden());
    QCOMPARE(window.popup()->height(), searchHeight + 98);
    window.closePopup();
}

void tst_RibbonGalleryPopup::uncollectsByTheCopy()
{
    GalleryWindow window;
    window.add(u"One"_s, texts(3));
    window.gallery->setItemCollected(0, 0, true);
    window.gallery->setItemCollected(0, 2, true);
    QVERIFY(window.open());
    QVERIFY(window.openPopup());
    QSignalSpy told(window.item(0, 2), &RibbonGalleryItem::signalCollected);
    QSignalSpy other(window.item(0, 0), &RibbonGalleryItem::signalCollected);
    QSignalSpy heightTold(window.popup(), &RibbonGalleryPopup::signalHeightChanged);
    const QPointer<RibbonGalleryItem> copy = window.collected()->item(1);
    GalleryWindow::clickMarker(copy);
    // For the copy that is gone, and for the item that is not collected any more.
    QCOMPARE(heights(heightTold), QList<int>(2, searchHeight + 98 + 98));
    QVERIFY(!copy);
    QVERIFY(!window.item(0, 2)->isCollected());
    QVERIFY(!isMarked(window.item(0, 2)));
    QVERIFY(window.item(0, 0)->isCollected());
    QCOMPARE(told.count(), 1);
    QCOMPARE(other.count(), 0);
    QVERIFY(window.menu()->isVisible());
    GalleryWindow::clickMarker(window.collected()->item(0));
    QCOMPARE(window.collected()->count(), 0);
    QVERIFY(window.collected()->isHidden());
    QCOMPARE(window.popup()->height(), searchHeight + 98);
    window.closePopup();
    QTRY_COMPARE(window.strip().sliced(3, 3), texts(3));
}

// Not when the event loop is reached.
void tst_RibbonGalleryPopup::uncollectsByTheCopyAtOnce()
{
    GalleryWindow window;
    window.add(u"One"_s, texts(2));
    window.gallery->setItemCollected(0, 1, true);
    const QPointer<RibbonGalleryItem> copy = window.collected()->item(0);
    GalleryWindow::markerOf(copy)->click();
    QVERIFY(!copy);
    QCOMPARE(window.collected()->count(), 0);
    QVERIFY(!window.item(0, 1)->isCollected());
}

void tst_RibbonGalleryPopup::uncollectsAnActionInSeveralGroups()
{
    GalleryWindow window;
    QAction *action = window.createAction(u"shared"_s);
    window.gallery->addItem(u"One"_s, action);
    window.gallery->addItem(u"One"_s, action);
    window.gallery->addItem(u"Two"_s, action);
    QVERIFY(window.open());
    QVERIFY(window.openPopup());
    for (const auto &[group, item] : {std::pair(0, 0), std::pair(0, 1), std::pair(1, 0)})
        GalleryWindow::clickMarker(window.item(group, item));
    QCOMPARE(window.collected()->count(), 3);
    // One copy for the click and one for the first item of each group; the second item of the
    // first group stays collected without a copy.
    GalleryWindow::clickMarker(window.collected()->item(0));
    QCOMPARE(window.collected()->count(), 0);
    QVERIFY(!window.item(0, 0)->isCollected());
    QVERIFY(window.item(0, 1)->isCollected());
    QVERIFY(!window.item(1, 0)->isCollected());
    window.closePopup();
}

// An action whose first item cannot be collected: nothing takes its second copy away.
void tst_RibbonGalleryPopup::copyThatWasUncollectedGoesWhenItIsCollected()
{
    GalleryWindow window(false);
    QAction *action = window.createAction(u"twice"_s);
    window.gallery->addItem(u"One"_s, action);
    window.gallery->setCollectEnabled(true);
    window.gallery->addItem(u"One"_s, action);
    for (int i = 0; i < 2; ++i)
        QVERIFY(window.gallery->setItemCollected(0, 1, true));
    QVERIFY(window.open());
    QVERIFY(window.openPopup());
    QSignalSpy triggered(window.gallery, &RibbonGallery::signalTriggered);
    const QPointer<RibbonGalleryItem> copy = window.collected()->item(1);
    GalleryWindow::clickMarker(copy);
    // The first copy goes for the second.
    QCOMPARE(window.collected()->count(), 1);
    QCOMPARE(window.collected()->item(0), copy);
    QVERIFY(!copy->isCollected());
    QVERIFY(GalleryWindow::markerOf(copy)->isHidden());
    QVERIFY(window.item(0, 1)->isCollected());
    // It is collected like any item, and goes.
    QTRY_COMPARE(copy->pos(), QPoint(3, 5));
    Gui::moveMouse(window.edit(), {3, 3});
    GalleryWindow::clickMarker(copy);
    QVERIFY(!copy);
    QCOMPARE(window.collected()->count(), 0);
    QVERIFY(window.collected()->isHidden());
    QVERIFY(window.item(0, 1)->isCollected());
    QVERIFY(window.menu()->isVisible());
    QCOMPARE(triggered.count(), 0);
    window.closePopup();
}

void tst_RibbonGalleryPopup::collectsWhileItIsSearched()
{
    GalleryWindow window;
    window.add(u"One"_s, {u"a"_s, u"b"_s, u"ab"_s});
    window.gallery->setItemCollected(0, 0, true);
    QVERIFY(window.open());
    QVERIFY(window.openPopup());
    window.search(u"b"_s);
    QVERIFY(window.collected()->isHidden());
    GalleryWindow::clickMarker(window.item(0, 2));
    QVERIFY(window.collected()->isVisible());
    QCOMPARE(GalleryWindow::visibleTexts(window.collected()), QStringList(u"ab"_s));
    QCOMPARE(window.popup()->height(), searchHeight + 98 + 98);
    GalleryWindow::clickMarker(window.collected()->item(1));
    QCOMPARE(window.collected()->count(), 1);
    // Where nothing that matches is left, the hidden items keep the group's place.
    QVERIFY(window.collected()->isVisible());
    window.search(QString());
    QCOMPARE(GalleryWindow::visibleTexts(window.collected()), QStringList(u"a"_s));
    window.closePopup();
}

// With every new height, whatever it comes from.
void tst_RibbonGalleryPopup::collectedItemsFindTheirPlacesAgain()
{
    GalleryWindow window;
    window.add(u"One"_s, texts(2));
    window.gallery->setItemCollected(0, 0, true);
    // A search leaves the collected items alone then.
    window.gallery->setCollectEnabled(false);
    QVERIFY(window.open());
    QVERIFY(window.openPopup());
    QTRY_COMPARE(window.collected()->item(0)->pos(), QPoint(3, 5));
    window.collected()->item(0)->move(7, 7);
    QCoreApplication::processEvents();
    QCOMPARE(window.collected()->item(0)->pos(), QPoint(7, 7));
    window.search(u"I"_s);
    QTRY_COMPARE(window.collected()->item(0)->pos(), QPoint(3, 5));
    window.closePopup();
}

NORVANE_TEST_MAIN(tst_RibbonGalleryPopup)
#include "tst_RibbonGalleryPopup.moc"
