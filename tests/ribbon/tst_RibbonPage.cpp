// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "Gui.h"
#include "TestCase.h"

#include <Norvane/RibbonGroup.h>
#include <Norvane/RibbonPage.h>

#include <QtWidgets/QLabel>

#include <limits>
#include <memory>

using namespace Norvane;

class tst_RibbonPage : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void isAPlainWidgetToTheMetaObjectSystem();
    void numbersItsGroupsInOrderOfAddition();
    void answersNothingForIndexesOutOfRange();
    void knowsOnlyItsOwnGroups();
    void packsItsGroupsToTheLeft();
    void packsItsGroupsToTheRightInRightToLeftLayout();
    void doesNotStretchItsGroups();
    void centresItsGroupsVertically();
    void makesRoomForAGroupAddedWhileShown();
    void takesTitlesAsTheyAre_data();
    void takesTitlesAsTheyAre();
    void isTheOwnerOfItsGroups();
    void survivesTheDeletionOfAGroup();
};

namespace {

// A group whose width is known: its content is wider than its title.
RibbonGroup *addGroup(RibbonPage *page, const QString &title, int width)
{
    RibbonGroup *group = page->addGroup(title);
    auto *content = new QWidget;
    content->setFixedSize(width, 40);
    group->addWidget(content);
    return group;
}

} // namespace

void tst_RibbonPage::isAPlainWidgetToTheMetaObjectSystem()
{
    const QMetaObject &meta = RibbonPage::staticMetaObject;
    QCOMPARE(meta.className(), "Norvane::RibbonPage");
    QCOMPARE(meta.superClass(), &QWidget::staticMetaObject);
    QCOMPARE(meta.methodCount(), meta.methodOffset());
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
}

void tst_RibbonPage::numbersItsGroupsInOrderOfAddition()
{
    RibbonPage page;
    QList<RibbonGroup *> groups;
    for (const QString &title : {QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("A")})
        groups << page.addGroup(title);
    for (int i = 0; i < groups.size(); ++i) {
        QCOMPARE(page.group(i), groups[i]);
        QCOMPARE(page.indexOf(groups[i]), i);
        QCOMPARE(groups[i]->parentWidget(), &page);
    }
}

void tst_RibbonPage::answersNothingForIndexesOutOfRange()
{
    RibbonPage page;
    QCOMPARE(page.group(0), nullptr);
    QCOMPARE(page.group(-1), nullptr);
    page.addGroup(QStringLiteral("A"));
    for (int index : {-1, 1, 2, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()})
        QCOMPARE(page.group(index), nullptr);
}

void tst_RibbonPage::knowsOnlyItsOwnGroups()
{
    RibbonPage page;
    QCOMPARE(page.indexOf(nullptr), -1);
    page.addGroup(QStringLiteral("A"));
    QCOMPARE(page.indexOf(nullptr), -1);

    RibbonPage other;
    QCOMPARE(page.indexOf(other.addGroup(QStringLiteral("A"))), -1);
    RibbonGroup child(QStringLiteral("A"), &page);
    QCOMPARE(page.indexOf(&child), -1);
}

void tst_RibbonPage::packsItsGroupsToTheLeft()
{
    RibbonPage page;
    const RibbonGroup *a = addGroup(&page, QStringLiteral("A"), 50);
    const RibbonGroup *b = addGroup(&page, QStringLiteral("B"), 80);
    const RibbonGroup *c = addGroup(&page, QStringLiteral("C"), 20);
    page.resize(900, 95);
    QVERIFY(Gui::open(&page));
    QCOMPARE(a->x(), 3);
    QCOMPARE(b->x(), a->x() + a->width());
    QCOMPARE(c->x(), b->x() + b->width());
    // The row ends where its last group ends.
    QCOMPARE(page.sizeHint(), QSize(3 + a->width() + b->width() + c->width(), 95));
}

void tst_RibbonPage::packsItsGroupsToTheRightInRightToLeftLayout()
{
    RibbonPage page;
    page.setLayoutDirection(Qt::RightToLeft);
    const RibbonGroup *a = addGroup(&page, QStringLiteral("A"), 50);
    const RibbonGroup *b = addGroup(&page, QStringLiteral("B"), 80);
    page.resize(900, 95);
    QVERIFY(Gui::open(&page));
    QCOMPARE(a->geometry().right(), page.rect().right());
    QCOMPARE(b->geometry().right() + 1, a->x());
}

void tst_RibbonPage::doesNotStretchItsGroups()
{
    RibbonPage page;
    const RibbonGroup *a = addGroup(&page, QStringLiteral("A"), 50);
    const RibbonGroup *b = addGroup(&page, QStringLiteral("B"), 80);
    page.resize(900, 300);
    QVERIFY(Gui::open(&page));
    QCOMPARE(a->size(), QSize(a->sizeHint().width(), 95));
    QCOMPARE(b->size(), QSize(b->sizeHint().width(), 95));
    QCOMPARE(b->width() - a->width(), 30);
}

void tst_RibbonPage::centresItsGroupsVertically()
{
    RibbonPage page;
    const RibbonGroup *group = addGroup(&page, QStringLiteral("A"), 50);
    page.resize(300, 95 + 40);
    QVERIFY(Gui::open(&page));
    QCOMPARE(group->y(), 20);
    QCOMPARE(group->height(), 95);
    page.resize(300, 95);
    QTRY_COMPARE(group->y(), 0);
}

void tst_RibbonPage::makesRoomForAGroupAddedWhileShown()
{
    RibbonPage page;
    const RibbonGroup *a = addGroup(&page, QStringLiteral("A"), 50);
    page.resize(900, 95);
    QVERIFY(Gui::open(&page));
    const RibbonGroup *b = addGroup(&page, QStringLiteral("B"), 80);
    QTRY_VERIFY(b->isVisible());
    QTRY_COMPARE(b->x(), a->x() + a->width());
    QCOMPARE(b->size(), QSize(b->sizeHint().width(), 95));
}

void tst_RibbonPage::takesTitlesAsTheyAre_data()
{
    QTest::addColumn<QString>("title");
    QTest::newRow("empty") << QString();
    QTest::newRow("ampersand") << QStringLiteral("Cut & paste");
    QTest::newRow("two lines") << QStringLiteral("one\ntwo");
    QTest::newRow("right to left") << QStringLiteral("שלום עולם");
    QTest::newRow("long") << QString(500, u'w');
}

void tst_RibbonPage::takesTitlesAsTheyAre()
{
    QFETCH(QString, title);
    RibbonPage page;
    const RibbonGroup *group = page.addGroup(title);
    page.resize(500, 95);
    QVERIFY(Gui::open(&page));
    QCOMPARE(group->findChild<QLabel *>(QStringLiteral("groupTitle"))->text(), title);
    QCOMPARE(group->x(), 3);
    QCOMPARE(group->height(), 95);
}

void tst_RibbonPage::isTheOwnerOfItsGroups()
{
    auto page = std::make_unique<RibbonPage>();
    const QPointer<RibbonGroup> group = page->addGroup(QStringLiteral("A"));
    page.reset();
    QVERIFY(!group);
}

void tst_RibbonPage::survivesTheDeletionOfAGroup()
{
    RibbonPage page;
    const RibbonGroup *a = addGroup(&page, QStringLiteral("A"), 50);
    const RibbonGroup *b = addGroup(&page, QStringLiteral("B"), 80);
    page.resize(500, 95);
    QVERIFY(Gui::open(&page));
    delete a;
    QTRY_COMPARE(b->x(), 3);
    const RibbonGroup *c = addGroup(&page, QStringLiteral("C"), 20);
    QTRY_COMPARE(c->x(), 3 + b->width());
}

NORVANE_TEST_MAIN(tst_RibbonPage)
#include "tst_RibbonPage.moc"
