// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "Gui.h"
#include "TestCase.h"

#include <gallery/RibbonGalleryLayout.h>

#include <QtCore/QRandomGenerator>
#include <QtWidgets/QApplication>
#include <QtWidgets/QProxyStyle>
#include <QtWidgets/QVBoxLayout>

using namespace Norvane;
using namespace Qt::StringLiterals;

class tst_RibbonGalleryLayout : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void flowsLikeTheModel_data();
    void flowsLikeTheModel();
    void followsChanges();

    void isEmptyAtFirst();
    void itemThatFillsTheWidthBeginsARow();
    void firstItemStaysInItsRow();
    void flatItemsDoNotEndARow();
    void hiddenItemsTakeNoRoom();
    void preferredSizeIsTheLargestItem();
    void givesItsItemsAway();
    void deletesItsItems();
    void ownsNoWidgets();
    void isMirrored();
    void laysOutAWindow();
    void takesItemsWithoutWidgets();
};

namespace {

struct Cell
{
    QSize hint;
    QSize minimum;
    bool hidden;
};

struct Gaps
{
    int across;
    int down;
};

// What the rows are, written down without walking along them: an item ends a row before it if its
// end passes the right edge, which is the last column that belongs to the rectangle, and something
// in the row is higher than nothing.
struct Flow
{
    Flow(const QList<Cell> &cells, const QRect &rect, const QMargins &margins, Gaps gaps)
    {
        const int room = rect.width() - margins.left() - margins.right() - 1;
        QList<QList<QSize>> rows(1);
        for (const Cell &cell : cells) {
            const QSize size = cell.hidden ? QSize(0, 0) : cell.hint;
            if (widthOf(rows.constLast(), gaps) + size.width() > room
                && heightOf(rows.constLast()) > 0) {
                rows.append(QList<QSize>());
            }
            rows.last().append(size);
        }
        int top = rect.top() + margins.top();
        for (const QList<QSize> &row : std::as_const(rows)) {
            for (qsizetype i = 0; i < row.size(); ++i) {
                const int left = rect.left() + margins.left() + widthOf(row.first(i), gaps);
                places.append(QRect(QPoint(left, top), row.at(i)));
            }
            height += heightOf(row);
            top += heightOf(row) + gaps.down;
        }
        height += int(rows.size() - 1) * gaps.down + margins.top() + margins.bottom();
    }

    QList<QRect> places;
    int height = 0;

private:
    static int widthOf(const QList<QSize> &row, Gaps gaps)
    {
        int width = int(row.size()) * gaps.across;
        for (const QSize &size : row)
            width += size.width();
        return width;
    }

    static int heightOf(const QList<QSize> &row)
    {
        int height = 0;
        for (const QSize &size : row)
            height = qMax(height, size.height());
        return height;
    }
};

class Box : public QWidget
{
public:
    explicit Box(const Cell &cell, QWidget *parent = nullptr)
        : QWidget(parent)
    {
        become(cell);
    }

    void become(const Cell &cell)
    {
        m_cell = cell;
        setHidden(cell.hidden);
        updateGeometry();
    }

    QSize sizeHint() const override { return m_cell.hint; }
    QSize minimumSizeHint() const override { return m_cell.minimum; }

private:
    Cell m_cell;
};

// Answers one question for one widget, and all others with nonsense.
class Spaces : public QProxyStyle
{
public:
    Spaces()
        : QProxyStyle(u"Fusion"_s)
    {
    }

    int pixelMetric(PixelMetric metric, const QStyleOption *option,
                    const QWidget *widget) const override
    {
        switch (metric) {
        case PM_LayoutHorizontalSpacing:
            return widget && widget == host ? metrics.across : 500;
        case PM_LayoutVerticalSpacing:
            return widget && widget == host ? metrics.down : 500;
        default:
            return QProxyStyle::pixelMetric(metric, option, widget);
        }
    }

    int layoutSpacing(QSizePolicy::ControlType one, QSizePolicy::ControlType other,
                      Qt::Orientation orientation, const QStyleOption *,
                      const QWidget *) const override
    {
        if (one != QSizePolicy::PushButton || other != QSizePolicy::PushButton)
            return 700;
        return orientation == Qt::Horizontal ? between.across : between.down;
    }

    QWidget *host = nullptr;
    Gaps metrics{600, 600};
    Gaps between{600, 600};
};

enum Parent { NoParent, WidgetParent, LayoutParent };

class Dice
{
public:
    explicit Dice(quint32 seed)
        : m_generator(seed)
    {
    }

    int roll(int least, int most) { return m_generator.bounded(least, most + 1); }
    bool luck(int sides) { return m_generator.bounded(sides) == 0; }
    Gaps gaps(int least, int most) { return {roll(least, most), roll(least, most)}; }

    Cell cell()
    {
        const QSize hint(luck(10) ? 0 : roll(1, 120), luck(10) ? 0 : roll(1, 70));
        return {hint, QSize(roll(0, hint.width()), roll(0, hint.height())), luck(4)};
    }

private:
    QRandomGenerator m_generator;
};

int choose(int wanted, int fromParent, int fromItems)
{
    if (wanted >= 0)
        return wanted;
    return fromParent == -1 ? fromItems : fromParent;
}

QList<QRect> placesOf(const QLayout &layout)
{
    QList<QRect> places;
    for (int i = 0; i < layout.count(); ++i)
        places << layout.itemAt(i)->geometry();
    return places;
}

// A hidden widget stays where it is.
QString difference(const QList<Cell> &cells, const QList<QRect> &actual,
                   const QList<QRect> &expected)
{
    for (qsizetype i = 0; i < cells.size(); ++i) {
        if (!cells.at(i).hidden && actual.at(i) != expected.at(i)) {
            return u"item %1 of %2 is at %3,%4 %5x%6, not at %7,%8"_s.arg(i)
                .arg(cells.size())
                .arg(actual.at(i).x())
                .arg(actual.at(i).y())
                .arg(actual.at(i).width())
                .arg(actual.at(i).height())
                .arg(expected.at(i).x())
                .arg(expected.at(i).y());
        }
    }
    return {};
}

// An item as an application could write it.
class BareItem : public QLayoutItem
{
public:
    explicit BareItem(QSize size, int *deleted = nullptr)
        : m_size(size)
        , m_deleted(deleted)
    {
    }

    ~BareItem() override
    {
        if (m_deleted)
            ++*m_deleted;
    }

    QSize sizeHint() const override { return m_size; }
    QSize minimumSize() const override { return m_size; }
    QSize maximumSize() const override { return m_size; }
    Qt::Orientations expandingDirections() const override { return {}; }
    void setGeometry(const QRect &rect) override { m_rect = rect; }
    QRect geometry() const override { return m_rect; }
    bool isEmpty() const override { return false; }

private:
    QSize m_size;
    QRect m_rect;
    int *m_deleted;
};

} // namespace

void tst_RibbonGalleryLayout::flowsLikeTheModel_data()
{
    QTest::addColumn<Parent>("parent");
    QTest::addColumn<bool>("styled");
    QTest::newRow("no parent") << NoParent << false;
    QTest::newRow("no parent, the items' style") << NoParent << true;
    QTest::newRow("in a widget") << WidgetParent << false;
    QTest::newRow("in a widget, its style") << WidgetParent << true;
    QTest::newRow("in a layout") << LayoutParent << false;
    QTest::newRow("in a layout, its spacing") << LayoutParent << true;
}

void tst_RibbonGalleryLayout::flowsLikeTheModel()
{
    QFETCH(Parent, parent);
    QFETCH(bool, styled);
    Spaces hostStyle;
    Spaces itemStyle;
    for (quint32 seed = 0; seed < 500; ++seed) {
        Dice dice(seed);
        const Gaps wanted = styled ? Gaps{dice.roll(-9, 3), dice.roll(-9, 3)} : dice.gaps(0, 20);
        const int margin = dice.roll(0, 20);

        QWidget host;
        host.setStyle(&hostStyle);
        hostStyle.host = &host;
        hostStyle.metrics = dice.luck(2) ? Gaps{-1, -1} : dice.gaps(-3, 12);
        itemStyle.between = dice.gaps(-1, 12);
        Gaps ofParent{-1, -1};
        auto *layout = new RibbonGalleryLayout(parent == WidgetParent ? &host : nullptr, margin,
                                               wanted.across, wanted.down);
        const std::unique_ptr<QLayout> orphan(parent == NoParent ? layout : nullptr);
        if (parent == WidgetParent) {
            ofParent = hostStyle.metrics;
        } else if (parent == LayoutParent) {
            auto *column = new QVBoxLayout(&host);
            const int spacing = dice.roll(0, 12);
            column->setSpacing(spacing);
            ofParent = {spacing, spacing};
            column->addLayout(layout);
        }
        const Gaps gaps{choose(wanted.across, ofParent.across, itemStyle.between.across),
                        choose(wanted.down, ofParent.down, itemStyle.between.down)};
        QMargins margins(margin, margin, margin, margin);
        if (dice.luck(2)) {
            margins = QMargins(dice.roll(0, 9), dice.roll(0, 9), dice.roll(0, 9), dice.roll(0, 9));
            layout->setContentsMargins(margins);
        }

        QList<Cell> cells;
        for (int count = dice.roll(0, 30); count > 0; --count)
            cells << dice.cell();
        for (const Cell &cell : std::as_const(cells)) {
            auto *box = new Box(cell, &host);
            box->setStyle(&itemStyle);
            layout->addWidget(box);
        }

        QSize minimum;
        for (const Cell &cell : std::as_const(cells))
            minimum = minimum.expandedTo(cell.hidden ? QSize(0, 0) : cell.minimum);
        minimum = minimum.expandedTo({0, 0}).grownBy(margins);
        QCOMPARE(layout->minimumSize(), minimum);
        QCOMPARE(layout->sizeHint(), minimum);

        for (int step = 0; step < 6; ++step) {
            const int width = dice.luck(8) ? dice.roll(-5, 30) : dice.roll(0, 500);
            const QRect measured(0, 0, width, 0);
            const int height = layout->heightForWidth(width);
            const QString at = u"seed %1, width %2: "_s.arg(seed).arg(width);
            if (Flow(cells, measured, margins, gaps).height != height) {
                QFAIL(qPrintable(at
                                 + u"the height is %1, not %2"_s.arg(height).arg(
                                     Flow(cells, measured, margins, gaps).height)));
            }
            const QRect rect(dice.roll(0, 50), dice.roll(0, 50), width, dice.roll(0, 300));
            layout->setGeometry(rect);
            QCOMPARE(layout->geometry(), rect);
            const QString wrong =
                difference(cells, placesOf(*layout), Flow(cells, rect, margins, gaps).places);
            QVERIFY2(wrong.isEmpty(), qPrintable(at + wrong));
        }
    }
}

// Whatever happens to the items, the layout forgets what it knew.
void tst_RibbonGalleryLayout::followsChanges()
{
    for (quint32 seed = 0; seed < 40; ++seed) {
        Dice dice(seed);
        QWidget host;
        const Gaps gaps = dice.gaps(0, 10);
        auto *layout = new RibbonGalleryLayout(&host, 0, gaps.across, gaps.down);
        layout->setContentsMargins(3, 5, 3, 5);
        QList<Cell> cells;
        QList<Box *> boxes;
        const auto add = [&] {
            cells << dice.cell();
            boxes << new Box(cells.constLast(), &host);
            layout->addWidget(boxes.constLast());
        };
        add();
        QString story;
        for (int step = 0; step < 120; ++step) {
            const int at = cells.isEmpty() ? -1 : dice.roll(0, int(cells.size()) - 1);
            const int what = at < 0 ? 0 : dice.roll(0, 5);
            story += u" %1@%2"_s.arg(what).arg(at);
            switch (what) {
            case 0:
                add();
                break;
            case 1:
                cells.removeAt(at);
                delete boxes.takeAt(at);
                break;
            case 2:
                cells[at] = dice.cell();
                boxes.at(at)->become(cells.at(at));
                break;
            case 3:
                cells[at].hidden = !cells.at(at).hidden;
                boxes.at(at)->setHidden(cells.at(at).hidden);
                break;
            case 4: {
                const std::unique_ptr<QLayoutItem> item(layout->takeAt(at));
                QCOMPARE(item->widget(), boxes.at(at));
                cells.append(cells.takeAt(at));
                boxes.append(boxes.takeAt(at));
                layout->addWidget(boxes.constLast());
                break;
            }
            default:
                break;
            }
            QCOMPARE(layout->count(), int(cells.size()));
            const QRect rect(0, 0, dice.roll(1, 400), 100);
            const Flow flow(cells, rect, {3, 5, 3, 5}, gaps);
            if (layout->heightForWidth(rect.width()) != flow.height)
                QFAIL(qPrintable(u"seed %1: the height is wrong after"_s.arg(seed) + story));
            layout->setGeometry(rect);
            const QString wrong = difference(cells, placesOf(*layout), flow.places);
            QVERIFY2(wrong.isEmpty(), qPrintable(u"seed %1: "_s.arg(seed) + wrong + story));
        }
    }
}

void tst_RibbonGalleryLayout::isEmptyAtFirst()
{
    const RibbonGalleryLayout layout(nullptr, 7, 1, 2);
    QCOMPARE(layout.contentsMargins(), QMargins(7, 7, 7, 7));
    QCOMPARE(layout.count(), 0);
    QCOMPARE(layout.heightForWidth(100), 14);
    QCOMPARE(layout.heightForWidth(0), 14);
    QCOMPARE(layout.minimumSize(), QSize(14, 14));
    QCOMPARE(layout.sizeHint(), QSize(14, 14));
    QCOMPARE(layout.expandingDirections(), Qt::Orientations());
    QVERIFY(layout.hasHeightForWidth());
    QCOMPARE(layout.itemAt(0), nullptr);
    QCOMPARE(layout.itemAt(-1), nullptr);
}

// The right edge is a rectangle's last column, so two items of 50 pixels need 101 for one row.
void tst_RibbonGalleryLayout::itemThatFillsTheWidthBeginsARow()
{
    RibbonGalleryLayout layout(nullptr, 0, 0, 0);
    layout.addItem(new BareItem({50, 20}));
    layout.addItem(new BareItem({50, 20}));
    QCOMPARE(layout.heightForWidth(101), 20);
    QCOMPARE(layout.heightForWidth(100), 40);
    QCOMPARE(layout.heightForWidth(99), 40);
}

void tst_RibbonGalleryLayout::firstItemStaysInItsRow()
{
    RibbonGalleryLayout layout(nullptr, 0, 4, 3);
    layout.setContentsMargins(3, 5, 3, 5);
    for (int i = 0; i < 3; ++i)
        layout.addItem(new BareItem({90, 60}));
    layout.setGeometry({10, 20, 40, 10});
    QCOMPARE(layout.itemAt(0)->geometry(), QRect(13, 25, 90, 60));
    QCOMPARE(layout.itemAt(1)->geometry(), QRect(13, 88, 90, 60));
    QCOMPARE(layout.itemAt(2)->geometry(), QRect(13, 151, 90, 60));
    QCOMPARE(layout.heightForWidth(40), 5 + 3 * 60 + 2 * 3 + 5);
    QCOMPARE(layout.heightForWidth(-40), 5 + 3 * 60 + 2 * 3 + 5);
}

void tst_RibbonGalleryLayout::flatItemsDoNotEndARow()
{
    RibbonGalleryLayout layout(nullptr, 0, 0, 0);
    layout.addItem(new BareItem({80, 0}));
    layout.addItem(new BareItem({80, 10}));
    layout.addItem(new BareItem({80, 10}));
    layout.setGeometry({0, 0, 100, 100});
    QCOMPARE(layout.itemAt(1)->geometry(), QRect(80, 0, 80, 10));
    QCOMPARE(layout.itemAt(2)->geometry(), QRect(0, 10, 80, 10));
}

// They have no size, but keep their distance.
void tst_RibbonGalleryLayout::hiddenItemsTakeNoRoom()
{
    QWidget host;
    auto *layout = new RibbonGalleryLayout(&host, 0, 6, 0);
    QList<Box *> boxes;
    for (int i = 0; i < 3; ++i) {
        boxes << new Box({{40, 20}, {10, 10}, i == 1}, &host);
        layout->addWidget(boxes.constLast());
    }
    layout->setGeometry({0, 0, 400, 100});
    QCOMPARE(boxes.at(0)->geometry(), QRect(0, 0, 40, 20));
    QCOMPARE(boxes.at(2)->geometry(), QRect(52, 0, 40, 20));
    boxes.at(1)->show();
    layout->setGeometry({0, 0, 400, 100});
    QCOMPARE(boxes.at(1)->geometry(), QRect(46, 0, 40, 20));
    QCOMPARE(boxes.at(2)->geometry(), QRect(92, 0, 40, 20));
}

void tst_RibbonGalleryLayout::preferredSizeIsTheLargestItem()
{
    QWidget host;
    auto *layout = new RibbonGalleryLayout(&host, 0, 6, 6);
    layout->setContentsMargins(1, 2, 3, 4);
    layout->addWidget(new Box({{80, 20}, {70, 10}, false}, &host));
    layout->addWidget(new Box({{50, 60}, {20, 55}, false}, &host));
    auto *largest = new Box({{900, 900}, {900, 900}, true}, &host);
    layout->addWidget(largest);
    QCOMPARE(layout->minimumSize(), QSize(74, 61));
    QCOMPARE(layout->sizeHint(), QSize(74, 61));
    largest->show();
    QCOMPARE(layout->minimumSize(), QSize(904, 906));
}

void tst_RibbonGalleryLayout::givesItsItemsAway()
{
    int deleted = 0;
    RibbonGalleryLayout layout(nullptr, 0, 0, 0);
    QList<BareItem *> items;
    for (int i = 0; i < 3; ++i) {
        items << new BareItem({10, 10}, &deleted);
        layout.addItem(items.constLast());
    }
    QCOMPARE(layout.takeAt(-1), nullptr);
    QCOMPARE(layout.takeAt(3), nullptr);
    QCOMPARE(layout.count(), 3);
    QCOMPARE(layout.heightForWidth(10), 30);
    const std::unique_ptr<QLayoutItem> taken(layout.takeAt(1));
    QCOMPARE(layout.heightForWidth(10), 20);
    QCOMPARE(taken.get(), items.at(1));
    QCOMPARE(deleted, 0);
    QCOMPARE(layout.count(), 2);
    QCOMPARE(layout.itemAt(0), items.at(0));
    QCOMPARE(layout.itemAt(1), items.at(2));
    QCOMPARE(layout.itemAt(2), nullptr);
    layout.setGeometry({0, 0, 100, 100});
    QCOMPARE(items.at(2)->geometry(), QRect(10, 0, 10, 10));
    QCOMPARE(taken->geometry(), QRect());
}

void tst_RibbonGalleryLayout::deletesItsItems()
{
    int deleted = 0;
    {
        RibbonGalleryLayout layout(nullptr, 0, 0, 0);
        for (int i = 0; i < 5; ++i)
            layout.addItem(new BareItem({10, 10}, &deleted));
        delete layout.takeAt(0);
        QCOMPARE(deleted, 1);
    }
    QCOMPARE(deleted, 5);
}

void tst_RibbonGalleryLayout::ownsNoWidgets()
{
    QWidget host;
    const QPointer<Box> box(new Box({{10, 10}, {10, 10}, false}, &host));
    {
        RibbonGalleryLayout layout(&host, 0, 0, 0);
        layout.addWidget(box);
    }
    QVERIFY(box);
    RibbonGalleryLayout layout(&host, 0, 0, 0);
    layout.addWidget(box);
    delete box;
    QCOMPARE(layout.count(), 0);
}

void tst_RibbonGalleryLayout::isMirrored()
{
    QWidget host;
    host.setLayoutDirection(Qt::RightToLeft);
    auto *layout = new RibbonGalleryLayout(&host, 0, 0, 0);
    auto *box = new Box({{40, 20}, {10, 10}, false}, &host);
    layout->addWidget(box);
    layout->setGeometry({0, 0, 400, 100});
    QCOMPARE(box->geometry(), QRect(360, 0, 40, 20));
    layout->setContentsMargins(3, 0, 7, 0);
    layout->setGeometry({10, 0, 400, 100});
    QCOMPARE(box->geometry(), QRect(10 + 400 - 7 - 40, 0, 40, 20));
}

void tst_RibbonGalleryLayout::laysOutAWindow()
{
    QWidget window;
    auto *layout = new RibbonGalleryLayout(&window, 0, 0, 0);
    layout->setContentsMargins(3, 5, 3, 5);
    const auto addBox = [&] {
        auto *box = new Box({{90, 60}, {90, 60}, false});
        layout->addWidget(box);
        return box;
    };
    QList<Box *> boxes{addBox(), addBox(), addBox()};
    window.resize(277, 200);
    QVERIFY(Gui::open(&window));
    const auto places = [&] {
        QList<QPoint> result;
        for (const Box *box : std::as_const(boxes))
            result << box->pos();
        return result;
    };
    QTRY_COMPARE(places(), QList<QPoint>({{3, 5}, {93, 5}, {183, 5}}));
    window.resize(276, 200);
    QTRY_COMPARE(places(), QList<QPoint>({{3, 5}, {93, 5}, {3, 65}}));
    boxes.first()->hide();
    delete boxes.takeFirst();
    QTRY_COMPARE(places(), QList<QPoint>({{3, 5}, {93, 5}}));
    boxes.first()->hide();
    boxes << addBox();
    QTRY_VERIFY(boxes.constLast()->isVisible());
    QTRY_COMPARE(boxes.at(1)->pos(), QPoint(3, 5));
    QTRY_COMPARE(boxes.at(2)->pos(), QPoint(93, 5));
    boxes.first()->show();
    QTRY_COMPARE(places(), QList<QPoint>({{3, 5}, {93, 5}, {3, 65}}));
}

// Nobody can tell their distance then, but nothing breaks.
void tst_RibbonGalleryLayout::takesItemsWithoutWidgets()
{
    RibbonGalleryLayout layout(nullptr, 0, -1, -1);
    layout.addItem(new BareItem({40, 20}));
    layout.addItem(new QSpacerItem(40, 30));
    QVERIFY(layout.heightForWidth(400) >= 30);
    layout.setGeometry({0, 0, 400, 100});
    QCOMPARE(layout.itemAt(0)->geometry(), QRect(0, 0, 40, 20));
}

NORVANE_TEST_MAIN(tst_RibbonGalleryLayout)
#include "tst_RibbonGalleryLayout.moc"
