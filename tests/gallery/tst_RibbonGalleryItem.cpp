// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "Gui.h"
#include "TestCase.h"

#include <gallery/RibbonGalleryItem.h>
#include <style/StyleSheet.h>

#include <QtCore/QMetaMethod>
#include <QtGui/QAction>
#include <QtGui/QPainter>
#include <QtTest/QSignalSpy>

using namespace Norvane;
using namespace Qt::StringLiterals;

class tst_RibbonGalleryItem : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void hasOneSignal();
    void showsItsAction();
    void triggersItsAction();
    void hidesItsMarkerAtFirst();
    void showsItsMarkerUnderTheMouse();
    void keepsItsMarkerHiddenIfItCannotBeCollected();
    void showsNothingWhenCollectingIsEnabled();
    void hidesItsMarkerWhenCollectingIsDisabled();
    void isCollectedByItsMarker();
    void isCollectedAtOnce();
    void staysMarkedWhileItIsCollected();
    void tellsEachTime();
    void marksItselfEvenIfItCannotBeCollectedByHand();
    void ignoresOtherMouseButtonsOnItsMarker();
    void mayBeDeletedByItsSignal();
    void lastsWithoutItsAction();
    void hasItsSheetsColours();
    void hasItsSheetsTextColours();
    void hasItsSheetsMarker();
    void hasItsSheetsPressedMarker();
    void takesItsSizeFromTheSheetsModes_data();
    void takesItsSizeFromTheSheetsModes();
    void followsAChangedSheet();
};

namespace {

// A window under the ribbon's sheet with an item that has some room around it.
struct Window : QWidget
{
    explicit Window(QAction *action)
        : item(new RibbonGalleryItem(action, this))
    {
        setStyleSheet(StyleSheet::read(u":/res/ribbonLight.css"_s));
        item->setFixedSize(90, 60);
        item->move(20, 20);
        resize(200, 120);
    }

    bool open()
    {
        if (!Gui::open(this))
            return false;
        moveMouseAway();
        return true;
    }

    void moveMouseAway() { Gui::moveMouse(this, QPoint(190, 110)); }
    void moveMouseIn() { Gui::moveMouse(item, QPoint(45, 40)); }

    QToolButton *marker() const { return item->findChild<QToolButton *>(u"collectedButton"_s); }

    RibbonGalleryItem *item;
};

QImage pictureOf(const QIcon &icon)
{
    return icon.pixmap(QSize(16, 16), 1).toImage();
}

QImage drawing(const QString &name)
{
    return pictureOf(QIcon(u":/res/%1.svg"_s.arg(name)));
}

QList<bool> told(const QSignalSpy &spy)
{
    QList<bool> values;
    for (const QVariantList &arguments : spy)
        values << arguments.constFirst().toBool();
    return values;
}

} // namespace

void tst_RibbonGalleryItem::hasOneSignal()
{
    const QMetaObject &meta = RibbonGalleryItem::staticMetaObject;
    QVERIFY(meta.inherits(&QToolButton::staticMetaObject));
    QCOMPARE(meta.methodCount(), meta.methodOffset() + 1);
    const QMetaMethod method = meta.method(meta.methodOffset());
    QCOMPARE(method.methodSignature(), "signalCollected(bool)");
    QCOMPARE(method.methodType(), QMetaMethod::Signal);
    QCOMPARE(method.parameterNames(), QByteArrayList{"collect"});
}

void tst_RibbonGalleryItem::showsItsAction()
{
    QAction action(QIcon(u":/res/search.svg"_s), u"Search"_s);
    const RibbonGalleryItem item(&action);
    QCOMPARE(item.toolButtonStyle(), Qt::ToolButtonTextUnderIcon);
    QCOMPARE(item.iconSize(), QSize(24, 24));
    QCOMPARE(item.defaultAction(), &action);
    QCOMPARE(item.text(), u"Search"_s);
    QCOMPARE(pictureOf(item.icon()), drawing(u"search"_s));
    action.setText(u"Find"_s);
    QCOMPARE(item.text(), u"Find"_s);
    action.setEnabled(false);
    QVERIFY(!item.isEnabled());
}

void tst_RibbonGalleryItem::triggersItsAction()
{
    QAction action(u"Action"_s);
    Window window(&action);
    QVERIFY(window.open());
    QSignalSpy triggered(&action, &QAction::triggered);
    QSignalSpy collected(window.item, &RibbonGalleryItem::signalCollected);
    Gui::click(window.item, {45, 40});
    QCOMPARE(triggered.count(), 1);
    Gui::click(window.item, {45, 40}, Qt::RightButton);
    QCOMPARE(triggered.count(), 1);
    // The place of the marker belongs to the button while there is no marker.
    Gui::click(window.item, {5, 5});
    QCOMPARE(triggered.count(), 2);
    action.setEnabled(false);
    Gui::click(window.item, {45, 40});
    QCOMPARE(triggered.count(), 2);
    QCOMPARE(collected.count(), 0);
}

void tst_RibbonGalleryItem::hidesItsMarkerAtFirst()
{
    QAction action;
    Window window(&action);
    QVERIFY(window.open());
    const QToolButton *marker = window.marker();
    QVERIFY(marker);
    QCOMPARE(marker->parentWidget(), window.item);
    QVERIFY(marker->isCheckable());
    QVERIFY(!marker->isChecked());
    QCOMPARE(marker->pos(), QPoint(0, 0));
    QCOMPARE(marker->iconSize(), QSize(16, 16));
    QVERIFY(marker->isHidden());
    QCOMPARE(pictureOf(marker->icon()), drawing(u"collect"_s));
    QVERIFY(!window.item->isCollected());
}

void tst_RibbonGalleryItem::showsItsMarkerUnderTheMouse()
{
    QAction action;
    Window window(&action);
    window.item->setCollectEnabled(true);
    QVERIFY(window.open());
    QSignalSpy collected(window.item, &RibbonGalleryItem::signalCollected);
    const QSignalSpy hovered(&action, &QAction::hovered);
    for (int i = 0; i < 2; ++i) {
        window.moveMouseIn();
        // As every tool button, it tells its action.
        QCOMPARE(hovered.count(), i + 1);
        QVERIFY(window.marker()->isVisible());
        QCOMPARE(pictureOf(window.marker()->icon()), drawing(u"collect"_s));
        // On the marker the mouse is still over the item.
        Gui::moveMouse(window.item, {6, 6});
        QVERIFY(window.marker()->isVisible());
        window.moveMouseAway();
        QVERIFY(window.marker()->isHidden());
    }
    QCOMPARE(collected.count(), 0);
    QVERIFY(!window.item->isCollected());
}

void tst_RibbonGalleryItem::keepsItsMarkerHiddenIfItCannotBeCollected()
{
    QAction action;
    Window window(&action);
    QVERIFY(window.open());
    window.moveMouseIn();
    QVERIFY(window.item->underMouse());
    QVERIFY(window.marker()->isHidden());
}

void tst_RibbonGalleryItem::showsNothingWhenCollectingIsEnabled()
{
    QAction action;
    Window window(&action);
    QVERIFY(window.open());
    window.moveMouseIn();
    window.item->setCollectEnabled(true);
    QVERIFY(window.marker()->isHidden());
    window.moveMouseAway();
    QVERIFY(window.marker()->isHidden());
    window.moveMouseIn();
    QVERIFY(window.marker()->isVisible());
}

void tst_RibbonGalleryItem::hidesItsMarkerWhenCollectingIsDisabled()
{
    QAction action;
    Window window(&action);
    window.item->setCollectEnabled(true);
    QVERIFY(window.open());
    QSignalSpy collected(window.item, &RibbonGalleryItem::signalCollected);
    window.moveMouseIn();
    QVERIFY(window.marker()->isVisible());
    window.item->setCollectEnabled(false);
    QVERIFY(window.marker()->isHidden());
    QCOMPARE(collected.count(), 0);

    window.item->setCollected(true);
    QVERIFY(window.marker()->isVisible());
    window.item->setCollectEnabled(false);
    QVERIFY(window.marker()->isHidden());
    QVERIFY(window.item->isCollected());
    QCOMPARE(collected.count(), 1);
}

void tst_RibbonGalleryItem::isCollectedByItsMarker()
{
    QAction action;
    Window window(&action);
    window.item->setCollectEnabled(true);
    QVERIFY(window.open());
    QSignalSpy triggered(&action, &QAction::triggered);
    QSignalSpy collected(window.item, &RibbonGalleryItem::signalCollected);
    window.moveMouseIn();
    Gui::click(window.marker());
    QCOMPARE(told(collected), QList<bool>({true}));
    QVERIFY(window.item->isCollected());
    QVERIFY(window.marker()->isVisible());
    QCOMPARE(pictureOf(window.marker()->icon()), drawing(u"collected"_s));

    Gui::click(window.marker());
    QCOMPARE(told(collected), QList<bool>({true, false}));
    QVERIFY(!window.item->isCollected());
    QCOMPARE(pictureOf(window.marker()->icon()), drawing(u"collect"_s));
    // Hidden although the mouse is over the item.
    QVERIFY(window.marker()->isHidden());
    QCOMPARE(triggered.count(), 0);
}

// Not when the event loop is reached.
void tst_RibbonGalleryItem::isCollectedAtOnce()
{
    QAction action;
    RibbonGalleryItem item(&action);
    const QSignalSpy collected(&item, &RibbonGalleryItem::signalCollected);
    item.findChild<QToolButton *>()->click();
    QVERIFY(item.isCollected());
    QCOMPARE(told(collected), QList<bool>({true}));
}

void tst_RibbonGalleryItem::staysMarkedWhileItIsCollected()
{
    QAction action;
    Window window(&action);
    window.item->setCollectEnabled(true);
    QVERIFY(window.open());
    window.item->setCollected(true);
    window.moveMouseIn();
    QVERIFY(window.marker()->isVisible());
    window.moveMouseAway();
    QVERIFY(window.marker()->isVisible());
    QCOMPARE(pictureOf(window.marker()->icon()), drawing(u"collected"_s));
    window.item->setCollected(false);
    QVERIFY(window.marker()->isHidden());
}

void tst_RibbonGalleryItem::tellsEachTime()
{
    QAction action;
    RibbonGalleryItem item(&action);
    const QSignalSpy collected(&item, &RibbonGalleryItem::signalCollected);
    for (const bool value : {true, true, false, false}) {
        item.setCollected(value);
        QCOMPARE(item.isCollected(), value);
    }
    QCOMPARE(told(collected), QList<bool>({true, true, false, false}));
}

void tst_RibbonGalleryItem::marksItselfEvenIfItCannotBeCollectedByHand()
{
    QAction action;
    Window window(&action);
    window.item->setCollected(true);
    QVERIFY(window.open());
    QVERIFY(window.marker()->isVisible());
    QCOMPARE(pictureOf(window.marker()->icon()), drawing(u"collected"_s));
    Gui::click(window.marker());
    QVERIFY(!window.item->isCollected());
    QVERIFY(window.marker()->isHidden());
}

void tst_RibbonGalleryItem::ignoresOtherMouseButtonsOnItsMarker()
{
    QAction action;
    Window window(&action);
    window.item->setCollectEnabled(true);
    QVERIFY(window.open());
    QSignalSpy collected(window.item, &RibbonGalleryItem::signalCollected);
    window.moveMouseIn();
    Gui::click(window.marker(), Qt::RightButton);
    Gui::click(window.marker(), Qt::MiddleButton);
    Gui::press(window.marker(), {8, 8});
    Gui::release(window.item, {45, 40});
    QCOMPARE(collected.count(), 0);
}

// A collected copy goes when its marker is clicked.
void tst_RibbonGalleryItem::mayBeDeletedByItsSignal()
{
    QAction action;
    Window window(&action);
    const QPointer<RibbonGalleryItem> item(window.item);
    item->setCollectEnabled(true);
    QVERIFY(window.open());
    connect(item, &RibbonGalleryItem::signalCollected, &window, [&item] { delete item; });
    window.moveMouseIn();
    Gui::click(window.marker());
    QVERIFY(!item);
    Gui::click(&window, {65, 60});

    auto *other = new RibbonGalleryItem(&action);
    connect(other, &RibbonGalleryItem::signalCollected, &window, [other] { delete other; });
    other->setCollected(true);
}

void tst_RibbonGalleryItem::lastsWithoutItsAction()
{
    auto *action = new QAction(u"Action"_s);
    Window window(action);
    RibbonGalleryItem never(nullptr, &window);
    never.setGeometry(120, 20, 70, 60);
    QCOMPARE(never.defaultAction(), nullptr);
    QVERIFY(window.open());
    delete action;
    QCOMPARE(window.item->defaultAction(), nullptr);
    Gui::click(window.item, {45, 40});
    Gui::click(&never, {2, 2});
    window.item->setCollectEnabled(true);
    window.moveMouseAway();
    window.moveMouseIn();
    Gui::click(window.marker());
    QVERIFY(window.item->isCollected());
}

void tst_RibbonGalleryItem::hasItsSheetsColours()
{
    QAction action(QString(QChar(0x2588)));
    Window window(&action);
    QVERIFY(window.open());
    const QPoint edge(window.item->pos() + QPoint(45, 59));
    const QPoint inside(window.item->pos() + QPoint(45, 20));
    const QColor backdrop = Gui::pixel(&window, {5, 5});
    QCOMPARE(Gui::pixel(&window, edge), backdrop);
    QCOMPARE(Gui::pixel(&window, inside), backdrop);
    window.moveMouseIn();
    QCOMPARE(Gui::pixel(&window, edge), QColor(125, 125, 125));
    QCOMPARE(Gui::pixel(&window, inside), backdrop);
    Gui::press(window.item, {45, 40});
    QCOMPARE(Gui::pixel(&window, edge), QColor(125, 125, 125));
    QCOMPARE(Gui::pixel(&window, inside), QColor(217, 217, 217));
    Gui::release(window.item, {45, 40});
    window.moveMouseAway();
    QCOMPARE(Gui::pixel(&window, edge), backdrop);
}

void tst_RibbonGalleryItem::hasItsSheetsTextColours()
{
    // Blocks that fill their cells, so that some pixels have nothing but the text's colour.
    QAction action(QString(3, QChar(0x2588)));
    Window window(&action);
    QVERIFY(window.open());
    const auto has = [&](const QColor &colour) {
        const QImage picture = Gui::picture(&window);
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                if (picture.pixelColor(x, y) == colour)
                    return true;
            }
        }
        return false;
    };
    const QColor disabled(107, 118, 125);
    QVERIFY(has(Qt::black));
    QVERIFY(!has(disabled));
    action.setEnabled(false);
    QVERIFY(has(disabled));
    QVERIFY(!has(Qt::black));
}

void tst_RibbonGalleryItem::hasItsSheetsMarker()
{
    QAction action;
    Window window(&action);
    window.item->setCollectEnabled(true);
    QVERIFY(window.open());
    const QImage without = Gui::picture(&window);
    window.moveMouseIn();
    // Sixteen pixels and a border on each side.
    QCOMPARE(window.marker()->geometry(), QRect(0, 0, 18, 18));
    window.item->setCollected(true);
    window.moveMouseAway();
    QCOMPARE(window.marker()->geometry(), QRect(0, 0, 18, 18));

    // The drawing, and nothing else, is on top of what was there.
    QImage expected = without;
    QPainter(&expected).drawPixmap(
        window.item->pos() + QPoint(1, 1),
        QIcon(u":/res/collected.svg"_s).pixmap(QSize(16, 16), window.devicePixelRatio()));
    QCOMPARE(Gui::picture(&window), expected);
}

void tst_RibbonGalleryItem::hasItsSheetsPressedMarker()
{
    QAction action;
    Window window(&action);
    window.item->setCollectEnabled(true);
    QVERIFY(window.open());
    const QColor backdrop = Gui::pixel(&window, {5, 5});
    // The marker's edge and what is inside it, away from the corners, which are round.
    const QPoint edge = window.item->pos() + QPoint(9, 0);
    const QPoint inside = window.item->pos() + QPoint(2, 2);
    Gui::moveMouse(window.item, {9, 9});
    QCOMPARE(window.marker()->geometry(), QRect(0, 0, 18, 18));
    QCOMPARE(Gui::pixel(&window, inside), backdrop);
    Gui::press(window.item, {9, 9});
    QCOMPARE(Gui::pixel(&window, edge), QColor(125, 125, 125));
    QCOMPARE(Gui::pixel(&window, inside), QColor(217, 217, 217));
    // Outside the marker nothing is pressed.
    QCOMPARE(Gui::pixel(&window, window.item->pos() + QPoint(45, 20)), backdrop);
    Gui::release(window.item, {9, 9});
    QVERIFY(window.item->isCollected());
    QCOMPARE(Gui::pixel(&window, inside), backdrop);
}

void tst_RibbonGalleryItem::takesItsSizeFromTheSheetsModes_data()
{
    QTest::addColumn<QString>("mode");
    QTest::addColumn<QSize>("size");
    QTest::newRow("none") << QString() << QSize(90, 60);
    QTest::newRow("app") << u"app"_s << QSize(90, 64);
    QTest::newRow("figure") << u"figure"_s << QSize(64, 68);
}

// Applications set the mode; the sheet's sizes are those without the border and the padding.
void tst_RibbonGalleryItem::takesItsSizeFromTheSheetsModes()
{
    QFETCH(QString, mode);
    QFETCH(QSize, size);
    QAction action;
    Window window(&action);
    if (!mode.isEmpty())
        window.item->setProperty("mode", mode);
    // Before it is painted, so that the first layout is the last.
    window.show();
    QCOMPARE(window.item->minimumSize(), size);
    QVERIFY(window.open());
    QCOMPARE(window.item->minimumSize(), size);
    QCOMPARE(window.item->maximumSize(), size);
    QCOMPARE(window.item->size(), size);
}

void tst_RibbonGalleryItem::followsAChangedSheet()
{
    QAction action;
    Window window(&action);
    QVERIFY(window.open());
    window.setStyleSheet(
        u"Norvane--RibbonGalleryItem { background: rgb(1, 2, 3); border: none }"_s);
    QCOMPARE(Gui::pixel(&window, {65, 30}), QColor(1, 2, 3));
    window.setStyleSheet(
        u"Norvane--RibbonGalleryItem { background: rgb(4, 5, 6); border: none }"_s);
    QCOMPARE(Gui::pixel(&window, {65, 30}), QColor(4, 5, 6));
}

NORVANE_TEST_MAIN(tst_RibbonGalleryItem)
#include "tst_RibbonGalleryItem.moc"
