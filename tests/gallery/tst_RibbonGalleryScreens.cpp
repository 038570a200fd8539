// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "GalleryWindow.h"
#include "TestCase.h"

#include <QtGui/QGuiApplication>
#include <QtGui/QScreen>

using namespace Norvane;
using namespace Qt::StringLiterals;

//! Runs with the screens that screens.json describes.
class tst_RibbonGalleryScreens : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void popupOpensOnItsScreen_data();
    void popupOpensOnItsScreen();
};

void tst_RibbonGalleryScreens::popupOpensOnItsScreen_data()
{
    QTest::addColumn<QString>("screen");
    QTest::addColumn<QPoint>("corner");
    // Of 376 that it wants; the first screen is 600 high, wherever the gallery stands.
    QTest::addColumn<int>("height");
    QTest::newRow("first") << u"first"_s << QPoint(40, 100) << 376;
    QTest::newRow("first, low") << u"first"_s << QPoint(40, 400) << 170;
    QTest::newRow("right") << u"right"_s << QPoint(850, 100) << 376;
    QTest::newRow("right, low") << u"right"_s << QPoint(850, 400) << 170;
    QTest::newRow("left") << u"left"_s << QPoint(-850, 250) << 320;
    QTest::newRow("left, low") << u"left"_s << QPoint(-850, 500) << 70;
}

void tst_RibbonGalleryScreens::popupOpensOnItsScreen()
{
    QFETCH(QString, screen);
    QFETCH(QPoint, corner);
    QFETCH(int, height);
    QCOMPARE(QGuiApplication::screens().size(), 3);
    QCOMPARE(QGuiApplication::primaryScreen()->name(), u"first"_s);
    GalleryWindow window;
    window.add(u"One"_s, {u"a"_s, u"b"_s, u"c"_s, u"d"_s, u"e"_s, u"f"_s, u"g"_s});
    window.add(u"Two"_s, {u"a"_s, u"b"_s, u"c"_s, u"d"_s, u"e"_s, u"f"_s, u"g"_s});
    QVERIFY(window.open());
    window.move(window.pos() + corner - window.gallery->mapToGlobal(QPoint()));
    QTRY_COMPARE(window.gallery->mapToGlobal(QPoint()), corner);
    QTRY_COMPARE(window.screen()->name(), screen);
    // Twice: Qt makes the popup's window when it opens for the first time.
    for (int i = 0; i < 2; ++i) {
        window.popupButton()->click();
        QTRY_COMPARE(window.menu()->pos(), corner);
        QTRY_COMPARE(window.menu()->windowHandle()->screen()->name(), screen);
        QCOMPARE(window.popup()->mapToGlobal(QPoint()), corner + QPoint(1, 1));
        const int scrollBar = height < 376 ? 17 : 0;
        QCOMPARE(window.popup()->size(), QSize(window.gallery->width() + scrollBar, height));
        QCOMPARE(window.menu()->height(), height + 2);
        window.menu()->close();
    }
}

NORVANE_TEST_MAIN(tst_RibbonGalleryScreens)

#include "tst_RibbonGalleryScreens.moc"
