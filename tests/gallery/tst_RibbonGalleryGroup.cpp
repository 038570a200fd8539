// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "Gui.h"
#include "TestCase.h"

#include <gallery/RibbonGalleryGroup.h>
#include <gallery/RibbonGalleryItem.h>
#include <style/StyleSheet.h>

#include <QtCore/QMetaEnum>
#include <QtCore/QMetaMethod>
#include <QtCore/QPointer>
#include <QtGui/QAction>
#include <QtTest/QSignalSpy>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>

using namespace Norvane;
using namespace Qt::StringLiterals;

class tst_RibbonGalleryGroup : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void hasTwoSignals();
    void numbersItsPositions();
    void hasATitle();
    void withoutAnIconTheTitleStartsAtTheMargin();
    void anIconStandsBeforeTheTitle();
    void titleTakesNoRoomOfTheButtons();
    void showsTheButtonsOfItsPosition_data();
    void showsTheButtonsOfItsPosition();
    void asksToBeMoved_data();
    void asksToBeMoved();
    void addsItems();
    void itemsFlow();
    void hiddenItemsTakeNoRoom();
    void hasNoItemOutOfRange();
    void collectsByIndex();
    void collectsTheFirstItemOfAnAction();
    void removesTheFirstItemOfAnAction();
    void closesUpAfterARemoval();
    void keepsItemsOfDeletedActions();
    void laysOutAgain();
    void neverTellsOfCollecting();
    void filtersFewAndMany_data();
    void filtersFewAndMany();
    void hidesItsManyItems();
    void showsItemsThatHaveTheFocus();
    void keepsTheFocusWhileItFilters();
    void hasItsSheetsColours();
};

namespace {

constexpr QSize itemSize(90, 60);
constexpr QSize iconSize(24, 24);
constexpr int titleHeight = 24;

// A window under the ribbon's sheet with a group at the left edge.
struct Window : QWidget
{
    explicit Window(const QString &title = u"Tone"_s, const QIcon &icon = QIcon(), int width = 300)
        : group(new RibbonGalleryGroup(icon, title, this))
    {
        setStyleSheet(StyleSheet::read(u":/res/ribbonLight.css"_s));
        group->setGeometry(0, 0, width, 300);
        resize(width, 320);
    }

    ~Window() override { qDeleteAll(actions); }

    QAction *add(const QString &text = u"Item"_s, bool collectEnabled = false)
    {
        actions.append(new QAction(text));
        group->addItem(actions.constLast(), iconSize, itemSize, collectEnabled);
        return actions.constLast();
    }

    bool open()
    {
        if (!Gui::open(this))
            return false;
        moveMouseAway();
        return true;
    }

    void moveMouseAway() { Gui::moveMouse(this, rect().bottomRight()); }

    QFrame *bar() const { return group->findChild<QFrame *>(u"galleryGroupTitle"_s); }
    QFrame *frame() const { return group->findChild<QFrame *>(u"galleryGroupFrame"_s); }
    QLabel *iconLabel() const { return bar()->findChildren<QLabel *>().value(0); }
    QLabel *titleLabel() const { return bar()->findChildren<QLabel *>().value(1); }
    QPushButton *toTop() const { return bar()->findChildren<QPushButton *>().value(0); }
    QPushButton *toBottom() const { return bar()->findChildren<QPushButton *>().value(1); }
    // In the frame's coordinates, which start below the title bar.
    QRect place(int item) const { return group->item(item)->geometry(); }

    QList<QAction *> actions;
    RibbonGalleryGroup *group;
};

QImage pictureOf(const QIcon &icon)
{
    return icon.pixmap(QSize(16, 16), 1).toImage();
}

QRect cell(int column, int row)
{
    return {QPoint(3 + column * 90, 5 + row * 60), itemSize};
}

} // namespace

void tst_RibbonGalleryGroup::hasTwoSignals()
{
    const QMetaObject &meta = RibbonGalleryGroup::staticMetaObject;
    QCOMPARE(meta.superClass(), &QFrame::staticMetaObject);
    const QByteArrayList names{"signalCollect", "signalPositionChange"};
    QCOMPARE(meta.methodCount(), meta.methodOffset() + names.size());
    for (int i = 0; i < names.size(); ++i) {
        const QMetaMethod method = meta.method(meta.methodOffset() + i);
        QCOMPARE(method.name(), names.at(i));
        QCOMPARE(method.methodType(), QMetaMethod::Signal);
    }
    QCOMPARE(meta.method(meta.methodOffset()).parameterNames(),
             (QByteArrayList{"item", "collected"}));
}

void tst_RibbonGalleryGroup::numbersItsPositions()
{
    const auto positions = QMetaEnum::fromType<RibbonGalleryGroup::Position>();
    QCOMPARE(positions.keyCount(), 4);
    const QByteArrayList names{"Fixed", "Top", "Middle", "Bottom"};
    for (int i = 0; i < names.size(); ++i) {
        QCOMPARE(positions.key(i), names.at(i));
        QCOMPARE(positions.value(i), i);
    }
}

void tst_RibbonGalleryGroup::hasATitle()
{
    for (const QString &title : {u"Tone"_s, QString(), QString(5000, u'x')}) {
        Window window(title);
        QVERIFY(window.open());
        QCOMPARE(window.group->title(), title);
        QCOMPARE(window.titleLabel()->text(), title);
        QCOMPARE(window.bar()->geometry(), QRect(0, 0, window.group->width(), titleHeight));
        QCOMPARE(window.frame()->geometry(),
                 QRect(0, titleHeight, window.group->width(), 300 - titleHeight));
    }
}

void tst_RibbonGalleryGroup::withoutAnIconTheTitleStartsAtTheMargin()
{
    Window window;
    QVERIFY(window.open());
    QVERIFY(window.iconLabel()->isHidden());
    QCOMPARE(window.titleLabel()->x(), 4);
}

void tst_RibbonGalleryGroup::anIconStandsBeforeTheTitle()
{
    const QIcon icon(u":/res/collected.svg"_s);
    Window window(u"Tone"_s, icon);
    QVERIFY(window.open());
    QVERIFY(window.iconLabel()->isVisible());
    QCOMPARE(window.iconLabel()->pixmap().deviceIndependentSize(), QSizeF(16, 16));
    QCOMPARE(window.iconLabel()->pixmap().toImage(),
             icon.pixmap(QSize(16, 16), window.devicePixelRatio()).toImage());
    QCOMPARE(window.iconLabel()->x(), 4);
    QCOMPARE(window.titleLabel()->x(), 4 + 16);

    // Of an icon with several pictures it is the one of a button that is not checked.
    QIcon several;
    for (const auto &[state, colour] :
         {std::pair(QIcon::Off, Qt::blue), std::pair(QIcon::On, Qt::red)}) {
        QPixmap picture(16, 16);
        picture.fill(colour);
        several.addPixmap(picture, QIcon::Normal, state);
    }
    const Window other(u"Tone"_s, several);
    QCOMPARE(other.iconLabel()->pixmap().toImage().pixelColor(8, 8), QColor(Qt::blue));
}

void tst_RibbonGalleryGroup::titleTakesNoRoomOfTheButtons()
{
    Window window;
    window.group->setPosition(RibbonGalleryGroup::Middle);
    QVERIFY(window.open());
    // Twenty pixels and a border on each side.
    QCOMPARE(window.toBottom()->size(), QSize(22, 22));
    QCOMPARE(window.toTop()->size(), QSize(22, 22));
    QCOMPARE(window.toBottom()->x(), 300 - 4 - 22);
    QCOMPARE(window.toTop()->x(), 300 - 4 - 44);
    QCOMPARE(window.titleLabel()->width(), window.titleLabel()->sizeHint().width());
    QCOMPARE(pictureOf(window.toTop()->icon()), pictureOf(QIcon(u":/res/toTop.svg"_s)));
    QCOMPARE(pictureOf(window.toBottom()->icon()), pictureOf(QIcon(u":/res/toBottom.svg"_s)));
    const auto *row = qobject_cast<QHBoxLayout *>(window.bar()->layout());
    QVERIFY(row);
    QCOMPARE(row->count(), 5);
    for (int i = 0; i < 5; ++i)
        QCOMPARE(row->stretch(i), i == 2 ? 1 : 0);
    QCOMPARE(window.toTop()->iconSize(), QSize(16, 16));
    QCOMPARE(window.toBottom()->iconSize(), QSize(16, 16));
    // Of a lone button nothing is kept free for the other.
    window.group->setPosition(RibbonGalleryGroup::Bottom);
    QTRY_COMPARE(window.toTop()->x(), 300 - 4 - 22);
}

void tst_RibbonGalleryGroup::showsTheButtonsOfItsPosition_data()
{
    QTest::addColumn<int>("position");
    QTest::addColumn<bool>("toTop");
    QTest::addColumn<bool>("toBottom");
    QTest::newRow("fixed") << 0 << false << false;
    QTest::newRow("top") << 1 << false << true;
    QTest::newRow("middle") << 2 << true << true;
    QTest::newRow("bottom") << 3 << true << false;
}

void tst_RibbonGalleryGroup::showsTheButtonsOfItsPosition()
{
    QFETCH(int, position);
    QFETCH(bool, toTop);
    QFETCH(bool, toBottom);
    for (int before = 0; before < 4; ++before) {
        Window window;
        window.group->setPosition(RibbonGalleryGroup::Position(before));
        QVERIFY(window.open());
        window.group->setPosition(RibbonGalleryGroup::Position(position));
        QCOMPARE(window.toTop()->isVisible(), toTop);
        QCOMPARE(window.toBottom()->isVisible(), toBottom);
    }
}

void tst_RibbonGalleryGroup::asksToBeMoved_data()
{
    QTest::addColumn<int>("position");
    QTest::addColumn<bool>("toTop");
    QTest::newRow("to the bottom from the top") << 1 << false;
    QTest::newRow("to the bottom from the middle") << 2 << false;
    QTest::newRow("to the top from the middle") << 2 << true;
    QTest::newRow("to the top from the bottom") << 3 << true;
}

void tst_RibbonGalleryGroup::asksToBeMoved()
{
    QFETCH(int, position);
    QFETCH(bool, toTop);
    Window window;
    window.group->setPosition(RibbonGalleryGroup::Position(position));
    QVERIFY(window.open());
    QSignalSpy asked(window.group, &RibbonGalleryGroup::signalPositionChange);
    const QPushButton *button = toTop ? window.toTop() : window.toBottom();
    Gui::click(button, Qt::RightButton);
    Gui::click(window.titleLabel());
    QCOMPARE(asked.count(), 0);
    Gui::click(button);
    QCOMPARE(asked.count(), 1);
    QCOMPARE(asked.constFirst().constFirst().toInt(),
             int(toTop ? RibbonGalleryGroup::Top : RibbonGalleryGroup::Bottom));
    // Asks, but leaves it to the popup to be moved.
    QVERIFY(button->isVisible());
}

void tst_RibbonGalleryGroup::addsItems()
{
    Window window;
    QAction first(u"First"_s);
    QAction second(QIcon(u":/res/search.svg"_s), u"Second"_s);
    QCOMPARE(window.group->count(), 0);
    QCOMPARE(window.group->addItem(&first, QSize(20, 10), QSize(50, 40), false), 0);
    QCOMPARE(window.group->addItem(&second, QSize(30, 30), QSize(60, 45), true), 1);
    QCOMPARE(window.group->addItem(&first, QSize(20, 10), QSize(50, 40), false), 2);
    QCOMPARE(window.group->count(), 3);
    QVERIFY(window.open());

    RibbonGalleryItem *item = window.group->item(0);
    QCOMPARE(item->defaultAction(), &first);
    QCOMPARE(item->iconSize(), QSize(20, 10));
    QCOMPARE(item->size(), QSize(50, 40));
    QVERIFY(item->isVisible());
    Gui::moveMouse(item, {25, 30});
    QVERIFY(item->findChild<QToolButton *>()->isHidden());
    item = window.group->item(1);
    QCOMPARE(item->defaultAction(), &second);
    QCOMPARE(item->iconSize(), QSize(30, 30));
    QCOMPARE(item->size(), QSize(60, 45));
    Gui::moveMouse(item, {25, 30});
    QVERIFY(item->findChild<QToolButton *>()->isVisible());
    QVERIFY(window.group->item(2) != window.group->item(0));
    QCOMPARE(window.group->item(2)->defaultAction(), &first);
    QVERIFY(window.group->isAncestorOf(window.group->item(2)));

    QSignalSpy triggered(&first, &QAction::triggered);
    Gui::click(window.group->item(0), {25, 30});
    Gui::click(window.group->item(2), {25, 30});
    QCOMPARE(triggered.count(), 2);
}

void tst_RibbonGalleryGroup::itemsFlow()
{
    Window window;
    for (int i = 0; i < 7; ++i)
        window.add();
    QVERIFY(window.open());
    for (int i = 0; i < 7; ++i)
        QCOMPARE(window.place(i), cell(i % 3, i / 3));
    // Three items and both margins are 276 wide; the last column stays empty.
    for (const auto &[width, columns] : {std::pair(277, 3), std::pair(276, 2), std::pair(50, 1)}) {
        window.group->resize(width, 600);
        for (int i = 0; i < 7; ++i)
            QCOMPARE(window.place(i), cell(i % columns, i / columns));
    }
}

void tst_RibbonGalleryGroup::hiddenItemsTakeNoRoom()
{
    Window window;
    for (int i = 0; i < 4; ++i)
        window.add();
    QVERIFY(window.open());
    window.group->setItemVisible(0, false);
    window.group->setItemVisible(2, false);
    QVERIFY(window.group->item(0)->isHidden());
    QVERIFY(window.group->item(1)->isVisible());
    QTRY_COMPARE(window.place(1), cell(0, 0));
    QCOMPARE(window.place(3), cell(1, 0));
    QCOMPARE(window.group->count(), 4);
    window.group->setItemVisible(0, true);
    QTRY_COMPARE(window.place(3), cell(2, 0));
    QCOMPARE(window.place(0), cell(0, 0));
}

void tst_RibbonGalleryGroup::hasNoItemOutOfRange()
{
    Window window;
    for (int count = 0; count < 3; ++count) {
        for (const int index : {-1, count, count + 1, std::numeric_limits<int>::min(),
                                std::numeric_limits<int>::max()}) {
            QCOMPARE(window.group->item(index), nullptr);
            QVERIFY(!window.group->isItemCollected(index));
            QVERIFY(!window.group->setItemCollected(index, true));
            QVERIFY(!window.group->setItemCollected(index, false));
        }
        window.add();
    }
}

void tst_RibbonGalleryGroup::collectsByIndex()
{
    Window window;
    window.add();
    window.add();
    QSignalSpy first(window.group->item(0), &RibbonGalleryItem::signalCollected);
    QSignalSpy second(window.group->item(1), &RibbonGalleryItem::signalCollected);
    QVERIFY(window.group->setItemCollected(1, true));
    QVERIFY(window.group->setItemCollected(1, true));
    QVERIFY(!window.group->isItemCollected(0));
    QVERIFY(window.group->isItemCollected(1));
    QVERIFY(window.group->setItemCollected(1, false));
    QVERIFY(!window.group->isItemCollected(1));
    QCOMPARE(first.count(), 0);
    QCOMPARE(second.count(), 3);
}

void tst_RibbonGalleryGroup::collectsTheFirstItemOfAnAction()
{
    Window window;
    window.add();
    QAction *twice = window.add();
    window.group->addItem(twice, iconSize, itemSize, false);
    QAction stranger;
    QVERIFY(window.group->setItemCollected(twice, true));
    QVERIFY(!window.group->isItemCollected(0));
    QVERIFY(window.group->isItemCollected(1));
    QVERIFY(!window.group->isItemCollected(2));
    QVERIFY(window.group->setItemCollected(2, true));
    QSignalSpy told(window.group->item(1), &RibbonGalleryItem::signalCollected);
    QVERIFY(window.group->setItemCollected(twice, false));
    QVERIFY(!window.group->isItemCollected(1));
    QVERIFY(window.group->isItemCollected(2));
    QCOMPARE(told.count(), 1);
    QVERIFY(!window.group->setItemCollected(&stranger, true));
    QVERIFY(!window.group->setItemCollected(static_cast<QAction *>(nullptr), true));
}

void tst_RibbonGalleryGroup::removesTheFirstItemOfAnAction()
{
    Window window;
    QAction *twice = window.add();
    QAction *once = window.add();
    window.group->addItem(twice, iconSize, itemSize, false);
    const QPointer<RibbonGalleryItem> first = window.group->item(0);
    const QPointer<RibbonGalleryItem> last = window.group->item(2);
    QAction stranger;
    QVERIFY(!window.group->removeItem(&stranger));
    QVERIFY(!window.group->removeItem(nullptr));
    QCOMPARE(window.group->count(), 3);
    QVERIFY(window.group->removeItem(twice));
    QVERIFY(!first);
    QVERIFY(last);
    QCOMPARE(window.group->count(), 2);
    QCOMPARE(window.group->item(0)->defaultAction(), once);
    QCOMPARE(window.group->item(1), last);
    QVERIFY(window.group->removeItem(twice));
    QVERIFY(!last);
    QVERIFY(!window.group->removeItem(twice));
    QVERIFY(window.group->removeItem(once));
    QCOMPARE(window.group->count(), 0);
}

void tst_RibbonGalleryGroup::closesUpAfterARemoval()
{
    Window window;
    for (int i = 0; i < 5; ++i)
        window.add();
    QVERIFY(window.open());
    QCOMPARE(window.place(4), cell(1, 1));
    QVERIFY(window.group->removeItem(window.actions.at(1)));
    QTRY_COMPARE(window.place(3), cell(0, 1));
    QCOMPARE(window.place(0), cell(0, 0));
    QCOMPARE(window.place(1), cell(1, 0));
    QCOMPARE(window.place(2), cell(2, 0));
}

void tst_RibbonGalleryGroup::keepsItemsOfDeletedActions()
{
    Window window;
    window.add();
    window.add();
    QVERIFY(window.open());
    delete window.actions.takeFirst();
    QCOMPARE(window.group->count(), 2);
    QCOMPARE(window.group->item(0)->defaultAction(), nullptr);
    QVERIFY(!window.group->removeItem(nullptr));
    QCOMPARE(window.place(0), cell(0, 0));
    Gui::click(window.group->item(0));
    QVERIFY(window.group->setItemCollected(0, true));
    QVERIFY(window.group->removeItem(window.actions.constFirst()));
    QCOMPARE(window.group->count(), 1);
}

void tst_RibbonGalleryGroup::laysOutAgain()
{
    Window window;
    window.add();
    window.add();
    QVERIFY(window.open());
    window.group->item(1)->move(7, 7);
    QCoreApplication::processEvents();
    QCOMPARE(window.place(1).topLeft(), QPoint(7, 7));
    window.group->updateLayout();
    QTRY_COMPARE(window.place(1), cell(1, 0));
}

void tst_RibbonGalleryGroup::neverTellsOfCollecting()
{
    Window window;
    int told = 0;
    connect(window.group, &RibbonGalleryGroup::signalCollect, &window, [&told] { ++told; });
    const QSignalSpy moved(window.group, &RibbonGalleryGroup::signalPositionChange);
    window.add(u"Item"_s, true);
    QVERIFY(window.open());
    Gui::moveMouse(window.group->item(0), {45, 40});
    Gui::click(window.group->item(0), {8, 8});
    QVERIFY(window.group->isItemCollected(0));
    Gui::click(window.group->item(0), {8, 8});
    QVERIFY(!window.group->isItemCollected(0));
    window.group->setItemCollected(0, true);
    window.group->setItemCollected(window.actions.constFirst(), false);
    window.group->removeItem(window.actions.constFirst());
    for (int position = 0; position < 4; ++position)
        window.group->setPosition(RibbonGalleryGroup::Position(position));
    QCOMPARE(told, 0);
    QCOMPARE(moved.count(), 0);
}

void tst_RibbonGalleryGroup::filtersFewAndMany_data()
{
    QTest::addColumn<int>("count");
    QTest::newRow("few") << 20;
    QTest::newRow("many") << 300;
}

// From each text to each other one; the visible items stand as if there were no others.
void tst_RibbonGalleryGroup::filtersFewAndMany()
{
    QFETCH(int, count);
    Window window;
    for (int i = 0; i < count; ++i)
        window.add(u"Item %1"_s.arg(i));
    QVERIFY(window.open());
    const QStringList texts = {QString(), u"1"_s, u"none"_s, u"12"_s, u"Item"_s};
    for (const QString &from : texts) {
        for (const QString &to : texts) {
            window.group->filter(from);
            window.group->showItems(true);
            int place = 0;
            const bool any = window.group->filter(to);
            window.group->showItems(true);
            for (int i = 0; i < count; ++i) {
                const bool matches = u"Item %1"_s.arg(i).contains(to);
                QCOMPARE(window.group->item(i)->isHidden(), !matches);
                QCOMPARE(window.group->item(i)->isVisible(), matches);
                if (matches) {
                    const QPoint corner(3 + place % 3 * 90, 5 + place / 3 * 60);
                    QCOMPARE(window.place(i), QRect(corner, itemSize));
                    ++place;
                }
            }
            QCOMPARE(any, place > 0);
            QCOMPARE(window.group->isHidden(), !any);
            QVERIFY(!window.frame()->isHidden());
        }
    }
}

void tst_RibbonGalleryGroup::hidesItsManyItems()
{
    Window window;
    for (int i = 0; i < 24; ++i)
        window.add();
    QVERIFY(window.open());
    window.group->showItems(false);
    QVERIFY(window.group->showsItems());
    QVERIFY(window.group->item(0)->isVisible());

    window.add();
    QCoreApplication::processEvents();
    const int height = window.group->heightForWidth(300);
    const QRect frame = window.frame()->geometry();
    window.group->showItems(false);
    QVERIFY(!window.group->showsItems());
    for (int i = 0; i < 25; ++i) {
        QVERIFY(!window.group->item(i)->isHidden());
        QVERIFY(!window.group->item(i)->isVisible());
    }
    QCoreApplication::processEvents();
    QCOMPARE(window.group->heightForWidth(300), height);
    QCOMPARE(window.frame()->geometry(), frame);

    window.group->setItemVisible(0, false);
    window.add();
    window.group->showItems(true);
    QVERIFY(window.group->showsItems());
    QVERIFY(!window.group->item(0)->isVisible());
    for (int i = 1; i < 26; ++i) {
        QVERIFY(window.group->item(i)->isVisible());
        QCOMPARE(window.place(i), cell((i - 1) % 3, (i - 1) / 3));
    }
}

void tst_RibbonGalleryGroup::showsItemsThatHaveTheFocus()
{
    Window window;
    for (int i = 0; i < 25; ++i)
        window.add();
    QVERIFY(window.open());
    window.group->item(7)->setFocus();
    window.group->showItems(false);
    QVERIFY(window.group->showsItems());
    QVERIFY(window.group->item(7)->hasFocus());
    window.group->item(7)->clearFocus();
    window.group->showItems(false);
    QVERIFY(!window.group->showsItems());
}

void tst_RibbonGalleryGroup::keepsTheFocusWhileItFilters()
{
    Window window;
    for (int i = 0; i < 100; ++i)
        window.add(u"Item %1"_s.arg(i));
    QVERIFY(window.open());
    window.group->item(7)->setFocus();
    QVERIFY(window.group->item(7)->hasFocus());
    window.group->filter(u"7"_s);
    QVERIFY(window.group->item(7)->hasFocus());
    window.group->filter(QString());
    QVERIFY(window.group->item(7)->hasFocus());
    QVERIFY(window.group->item(99)->isVisible());
}

void tst_RibbonGalleryGroup::hasItsSheetsColours()
{
    Window window(QString(QChar(0x2588)));
    window.group->setPosition(RibbonGalleryGroup::Top);
    QVERIFY(window.open());
    const QColor bar(230, 230, 230);
    QCOMPARE(window.titleLabel()->font().pixelSize(), 11);
    QVERIFY(window.titleLabel()->font().bold());
    QCOMPARE(Gui::pixel(&window, window.titleLabel()->geometry().center()), QColor(Qt::black));
    QCOMPARE(Gui::pixel(&window, {150, 0}), bar);
    QCOMPARE(Gui::pixel(&window, {150, 23}), bar);
    QVERIFY(Gui::pixel(&window, {150, 24}) != bar);

    const QPushButton *button = window.toBottom();
    const QPoint border = button->geometry().topLeft();
    QCOMPARE(Gui::pixel(&window, border), bar);
    Gui::moveMouse(button, {11, 11});
    QCOMPARE(Gui::pixel(&window, border), QColor(97, 97, 97));
    Gui::press(button, {11, 11});
    QCOMPARE(Gui::pixel(&window, border), QColor(0, 153, 255));
    QCOMPARE(Gui::pixel(&window, border + QPoint(1, 1)), bar);
    Gui::release(button, {11, 11});
    window.moveMouseAway();
    QCOMPARE(Gui::pixel(&window, border), bar);
}

NORVANE_TEST_MAIN(tst_RibbonGalleryGroup)
#include "tst_RibbonGalleryGroup.moc"
