// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "Gui.h"
#include "TestCase.h"

#include <Norvane/RibbonCorner.h>

#include <QtWidgets/QLayout>

#include <memory>

using namespace Norvane;

class tst_RibbonCorner : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void isAPlainFrameToTheMetaObjectSystem();
    void takesOnlyItsRightMarginWhenEmpty();
    void laysItsWidgetsOutFromLeftToRight();
    void laysItsWidgetsOutFromRightToLeft();
    void takesAWidgetFromItsParent();
    void movesAWidgetThatIsAddedAgainToTheEnd();
    void ignoresANullWidget();
    void closesTheGapOfADeletedWidget();
    void isTheOwnerOfItsWidgets();
};

namespace {

QWidget *box(int width, int height = 20)
{
    auto *widget = new QWidget;
    widget->setFixedSize(width, height);
    return widget;
}

} // namespace

void tst_RibbonCorner::isAPlainFrameToTheMetaObjectSystem()
{
    const QMetaObject &meta = RibbonCorner::staticMetaObject;
    QCOMPARE(meta.className(), "Norvane::RibbonCorner");
    QCOMPARE(meta.superClass(), &QFrame::staticMetaObject);
    QCOMPARE(meta.methodCount(), meta.methodOffset());
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
}

void tst_RibbonCorner::takesOnlyItsRightMarginWhenEmpty()
{
    const RibbonCorner corner;
    QCOMPARE(corner.sizeHint(), QSize(5, 0));
    QVERIFY(corner.findChildren<QWidget *>().isEmpty());
}

void tst_RibbonCorner::laysItsWidgetsOutFromLeftToRight()
{
    RibbonCorner corner;
    QWidget *first = box(30);
    QWidget *second = box(40);
    QWidget *third = box(50);
    for (QWidget *widget : {first, second, third})
        corner.addWidget(widget);
    QCOMPARE(corner.sizeHint(), QSize(30 + 2 + 40 + 2 + 50 + 5, 20));

    corner.resize(corner.sizeHint());
    QVERIFY(Gui::open(&corner));
    QCOMPARE(first->geometry(), QRect(0, 0, 30, 20));
    QCOMPARE(second->geometry(), QRect(32, 0, 40, 20));
    QCOMPARE(third->geometry(), QRect(74, 0, 50, 20));
}

void tst_RibbonCorner::laysItsWidgetsOutFromRightToLeft()
{
    RibbonCorner corner;
    corner.setLayoutDirection(Qt::RightToLeft);
    QWidget *first = box(30);
    QWidget *second = box(40);
    corner.addWidget(first);
    corner.addWidget(second);
    corner.resize(corner.sizeHint());
    QVERIFY(Gui::open(&corner));
    QCOMPARE(first->x(), second->geometry().right() + 1 + 2);
}

void tst_RibbonCorner::takesAWidgetFromItsParent()
{
    QWidget parent;
    RibbonCorner corner;
    QWidget *widget = box(30);
    widget->setParent(&parent);
    corner.addWidget(widget);
    QCOMPARE(widget->parentWidget(), &corner);
}

void tst_RibbonCorner::movesAWidgetThatIsAddedAgainToTheEnd()
{
    RibbonCorner corner;
    QWidget *first = box(30);
    QWidget *second = box(40);
    for (QWidget *widget : {first, second, first})
        corner.addWidget(widget);
    corner.resize(corner.sizeHint());
    QVERIFY(Gui::open(&corner));
    QCOMPARE(corner.width(), 40 + 2 + 30 + 5);
    QCOMPARE(second->x(), 0);
    QCOMPARE(first->x(), 42);
}

void tst_RibbonCorner::ignoresANullWidget()
{
    RibbonCorner corner;
    corner.addWidget(nullptr);
    QCOMPARE(corner.sizeHint(), QSize(5, 0));
    QCOMPARE(corner.layout()->count(), 0);
}

void tst_RibbonCorner::closesTheGapOfADeletedWidget()
{
    RibbonCorner corner;
    QWidget *first = box(30);
    QWidget *second = box(40);
    QWidget *third = box(50);
    for (QWidget *widget : {first, second, third, second})
        corner.addWidget(widget);
    delete second;
    corner.resize(corner.sizeHint());
    QVERIFY(Gui::open(&corner));
    QCOMPARE(corner.width(), 30 + 2 + 50 + 5);
    QCOMPARE(third->x(), 32);
    corner.addWidget(box(10));
    QTRY_COMPARE(corner.sizeHint().width(), 30 + 2 + 50 + 2 + 10 + 5);
}

void tst_RibbonCorner::isTheOwnerOfItsWidgets()
{
    auto corner = std::make_unique<RibbonCorner>();
    QPointer<QWidget> widget = box(30);
    corner->addWidget(widget);
    corner->addWidget(widget);
    corner.reset();
    QVERIFY(!widget);
}

NORVANE_TEST_MAIN(tst_RibbonCorner)
#include "tst_RibbonCorner.moc"
