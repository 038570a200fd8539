// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "Gui.h"
#include "TestCase.h"

#include <ribbon/RibbonTab.h>

using namespace Norvane;

class tst_RibbonTab : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void isAPlainPushButtonToTheMetaObjectSystem();
    void startsCheckableUncheckedAndOutOfTheFocusChain();
    void belongsToItsParent();
    void remembersThatItIsTemporary();
    void becomingTemporaryAsksForNoRepaint();
    void widthHintIsTheTextAndTenPixelsOnEachSide_data();
    void widthHintIsTheTextAndTenPixelsOnEachSide();
    void widthHintFollowsTheFont();
};

void tst_RibbonTab::isAPlainPushButtonToTheMetaObjectSystem()
{
    const QMetaObject &meta = RibbonTab::staticMetaObject;
    QCOMPARE(meta.className(), "Norvane::RibbonTab");
    QCOMPARE(meta.superClass(), &QPushButton::staticMetaObject);
    QCOMPARE(meta.methodCount(), meta.methodOffset());
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
}

void tst_RibbonTab::startsCheckableUncheckedAndOutOfTheFocusChain()
{
    const RibbonTab tab(QStringLiteral("Home"), nullptr);
    QCOMPARE(tab.text(), QStringLiteral("Home"));
    QVERIFY(tab.isCheckable());
    QVERIFY(!tab.isChecked());
    QVERIFY(!tab.isTemporary());
    QCOMPARE(tab.focusPolicy(), Qt::NoFocus);
}

void tst_RibbonTab::belongsToItsParent()
{
    QWidget parent;
    const auto *tab = new RibbonTab(QStringLiteral("Home"), &parent);
    QCOMPARE(tab->parentWidget(), &parent);
}

void tst_RibbonTab::remembersThatItIsTemporary()
{
    RibbonTab tab(QString(), nullptr);
    tab.setTemporary(true);
    QVERIFY(tab.isTemporary());
    tab.setTemporary(false);
    QVERIFY(!tab.isTemporary());
}

void tst_RibbonTab::becomingTemporaryAsksForNoRepaint()
{
    struct PaintCounter : QObject
    {
        bool eventFilter(QObject *, QEvent *event) override
        {
            paints += event->type() == QEvent::Paint;
            return false;
        }
        int paints = 0;
    } counter;
    QWidget window;
    window.resize(200, 100);
    RibbonTab tab(QStringLiteral("Home"), &window);
    QVERIFY(Gui::open(&window));
    tab.installEventFilter(&counter);
    window.installEventFilter(&counter);

    tab.update();
    QTRY_VERIFY(counter.paints > 0);
    do {
        counter.paints = 0;
        QCoreApplication::processEvents();
    } while (counter.paints > 0);
    tab.setTemporary(true);
    QCoreApplication::processEvents();
    QCOMPARE(counter.paints, 0);
}

void tst_RibbonTab::widthHintIsTheTextAndTenPixelsOnEachSide_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << QString();
    QTest::newRow("one letter") << QStringLiteral("I");
    QTest::newRow("word") << QStringLiteral("Home");
    QTest::newRow("ampersand") << QStringLiteral("Search && &replace");
    QTest::newRow("two lines") << QStringLiteral("one\ntwo");
    QTest::newRow("right to left") << QStringLiteral("שלום עולם");
    QTest::newRow("long") << QString(2000, u'w');
}

void tst_RibbonTab::widthHintIsTheTextAndTenPixelsOnEachSide()
{
    QFETCH(QString, text);
    const RibbonTab tab(text, nullptr);
    QPushButton button(text);
    button.setCheckable(true);
    QCOMPARE(tab.sizeHint().width(), 20 + tab.fontMetrics().horizontalAdvance(text));
    QCOMPARE(tab.sizeHint().height(), button.sizeHint().height());
}

void tst_RibbonTab::widthHintFollowsTheFont()
{
    RibbonTab tab(QStringLiteral("Home"), nullptr);
    const QSize before = tab.sizeHint();
    QFont font = tab.font();
    font.setPixelSize(40);
    tab.setFont(font);
    QCOMPARE(tab.sizeHint().width(),
             20 + QFontMetrics(font).horizontalAdvance(QStringLiteral("Home")));
    QVERIFY(tab.sizeHint().width() > before.width());
    QVERIFY(tab.sizeHint().height() > before.height());
}

NORVANE_TEST_MAIN(tst_RibbonTab)
#include "tst_RibbonTab.moc"
