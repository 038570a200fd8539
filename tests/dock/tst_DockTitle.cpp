// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "Gui.h"
#include "TestCase.h"

#include <dock/DockTitle.h>

#include <QtCore/QTimer>
#include <QtTest/QSignalSpy>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLayout>
#include <QtWidgets/QMenu>
#include <QtWidgets/QPushButton>

using namespace Norvane;
using namespace Qt::StringLiterals;

class tst_DockTitle : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void holdsCollapseButtonNameAndMenuButton();
    void showsItsName();
    void offersToMinimizeFirst();
    void hidesItsCollapseButtonUntilAsked();
    void tellsWhetherItIsCollapsed();
    void opensItsMenuBelowTheButton();
    void opensItsMenuAtARightClick();
    void isTheOwnerOfItsMenu();
};

namespace {

QPushButton *buttonOf(const DockTitle &title, int index)
{
    return title.findChildren<QPushButton *>(Qt::FindDirectChildrenOnly).value(index);
}

// Opens a menu by what open does, and returns where it stood.
QPoint placeOfMenu(const std::function<void()> &open)
{
    QPoint place(-1, -1);
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, qApp, [&] {
        if (QWidget *menu = QApplication::activePopupWidget()) {
            place = menu->pos();
            menu->close();
        }
    });
    watch.start(0);
    open();
    return place;
}

} // namespace

void tst_DockTitle::holdsCollapseButtonNameAndMenuButton()
{
    const DockTitle title;
    const QLayout *row = title.layout();
    QCOMPARE(row->contentsMargins(), QMargins(4, 0, 4, 0));
    QCOMPARE(row->spacing(), 4);
    QCOMPARE(row->count(), 3);
    const auto *collapse = qobject_cast<QPushButton *>(row->itemAt(0)->widget());
    const auto *name = qobject_cast<QLabel *>(row->itemAt(1)->widget());
    const auto *menu = qobject_cast<QPushButton *>(row->itemAt(2)->widget());
    QVERIFY(collapse && name && menu);
    QVERIFY(collapse->isFlat() && menu->isFlat());
    QVERIFY(collapse->isCheckable() && !menu->isCheckable());
    QCOMPARE(collapse->iconSize(), QSize(17, 17));
    QCOMPARE(menu->iconSize(), QSize(10, 10));
    QCOMPARE(name->sizePolicy().verticalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(title.contextMenuPolicy(), Qt::CustomContextMenu);
    QCOMPARE(title.menu()->parent(), nullptr);

    const auto picture = [](const QIcon &icon, QIcon::State state) {
        return icon.pixmap(QSize(17, 17), 1, QIcon::Normal, state).toImage();
    };
    QCOMPARE(picture(collapse->icon(), QIcon::Off),
             picture(QIcon(u":/res/downArrowNormal.svg"_s), QIcon::Off));
    QCOMPARE(picture(collapse->icon(), QIcon::On),
             picture(QIcon(u":/res/rightArrowNormal.svg"_s), QIcon::Off));
    QVERIFY(picture(collapse->icon(), QIcon::On) != picture(collapse->icon(), QIcon::Off));
    QCOMPARE(picture(menu->icon(), QIcon::Off), picture(QIcon(u":/res/menu.svg"_s), QIcon::Off));
}

void tst_DockTitle::showsItsName()
{
    DockTitle title;
    title.setText(u"Files"_s);
    QCOMPARE(title.findChild<QLabel *>()->text(), u"Files"_s);
}

void tst_DockTitle::offersToMinimizeFirst()
{
    DockTitle title;
    title.menu()->addAction(u"mine"_s);
    QCOMPARE(title.menu()->actions().constFirst()->text(), u"minimize to bar"_s);
    QSignalSpy minimize(&title, &DockTitle::signalMinimize);
    title.menu()->actions().constFirst()->trigger();
    QCOMPARE(minimize.count(), 1);
    title.menu()->actions().constLast()->trigger();
    QCOMPARE(minimize.count(), 1);
}

void tst_DockTitle::hidesItsCollapseButtonUntilAsked()
{
    DockTitle title;
    title.resize(200, 24);
    QVERIFY(Gui::open(&title));
    QVERIFY(!buttonOf(title, 0)->isVisible());
    title.setCollapseButtonVisible(true);
    QVERIFY(buttonOf(title, 0)->isVisible());
    title.setCollapseButtonVisible(false);
    QVERIFY(!buttonOf(title, 0)->isVisible());
}

void tst_DockTitle::tellsWhetherItIsCollapsed()
{
    DockTitle title;
    title.setCollapseButtonVisible(true);
    title.resize(200, 24);
    QVERIFY(Gui::open(&title));
    QSignalSpy collapsed(&title, &DockTitle::signalCollapsed);
    Gui::click(buttonOf(title, 0));
    Gui::click(buttonOf(title, 0));
    QCOMPARE(collapsed, QList<QVariantList>({{true}, {false}}));
}

void tst_DockTitle::opensItsMenuBelowTheButton()
{
    DockTitle title;
    title.resize(200, 24);
    QVERIFY(Gui::open(&title));
    const QPushButton *button = buttonOf(title, 1);
    const QPoint expected = button->mapToGlobal(QPoint(0, button->height()));
    QCOMPARE(placeOfMenu([&] { Gui::click(button); }), expected);
}

void tst_DockTitle::opensItsMenuAtARightClick()
{
    DockTitle title;
    title.resize(200, 24);
    QVERIFY(Gui::open(&title));
    const QPoint position(60, 12);
    const QPoint place = placeOfMenu([&] {
        QContextMenuEvent event(QContextMenuEvent::Mouse, position, title.mapToGlobal(position));
        QCoreApplication::sendEvent(&title, &event);
    });
    QCOMPARE(place, title.mapToGlobal(position));
}

void tst_DockTitle::isTheOwnerOfItsMenu()
{
    auto *title = new DockTitle;
    const QPointer<QMenu> menu(title->menu());
    delete title;
    QVERIFY(!menu);
}

NORVANE_TEST_MAIN(tst_DockTitle)
#include "tst_DockTitle.moc"
