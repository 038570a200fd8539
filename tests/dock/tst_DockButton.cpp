// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "Gui.h"
#include "TestCase.h"

#include <dock/DockButton.h>

#include <QtGui/QGuiApplication>
#include <QtGui/QScreen>

using namespace Norvane;
using namespace Qt::StringLiterals;

class tst_DockButton : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void keepsIconsAndTexts();
    void showsItsOnlyIcon();
    void stacksTwoIconsInAColumn();
    void showsOnlyTheFirstOfTwoIconsInARow();
    void isGreyWhileItIsNotChecked();
    void composesItsIconAgainForAnotherScreenResolution();
    void takesNullIcons();
    void tellsTheViewUnderTheMouse_data();
    void tellsTheViewUnderTheMouse();
    void tellsTheNearestViewWhileItIsDragged();
    void hasNoToolTipWithoutTexts();
};

namespace {

QIcon icon(Qt::GlobalColor colour)
{
    QPixmap pixmap(96, 96);
    pixmap.fill(colour);
    return QIcon(pixmap);
}

qreal ratio()
{
    return QGuiApplication::primaryScreen()->devicePixelRatio();
}

// What the button draws, in its icon's own coordinates.
QColor at(const DockButton &button, QPoint position)
{
    const QImage image = button.icon().pixmap(button.iconSize(), ratio()).toImage();
    return image.pixelColor(position * ratio());
}

} // namespace

void tst_DockButton::keepsIconsAndTexts()
{
    DockButton button(Qt::Vertical);
    QVERIFY(button.isCheckable());
    button.setIcons({icon(Qt::red), icon(Qt::blue)});
    button.setTexts({u"a"_s, u"b"_s});
    QCOMPARE(button.icons().size(), 2);
    QCOMPARE(button.texts(), QStringList({u"a"_s, u"b"_s}));
}

void tst_DockButton::showsItsOnlyIcon()
{
    DockButton button(Qt::Vertical);
    button.setIconSize({24, 24});
    button.setChecked(true);
    const QIcon red = icon(Qt::red);
    button.setIcons({red});
    QCOMPARE(button.icon().cacheKey(), red.cacheKey());
    QCOMPARE(at(button, {12, 12}), QColor(Qt::red));
}

void tst_DockButton::stacksTwoIconsInAColumn()
{
    DockButton button(Qt::Vertical);
    button.setIconSize({24, 51});
    button.setChecked(true);
    button.setIcons({icon(Qt::red), icon(Qt::blue)});
    const QSize expected(qRound(24 * ratio()), 2 * qRound(24 * ratio()) + int(3 * ratio()));
    QCOMPARE(button.icon().availableSizes(), QList<QSize>({expected}));
    for (int y : {1, 12, 22})
        QCOMPARE(at(button, {12, y}), QColor(Qt::red));
    QCOMPARE(at(button, {12, 25}).alpha(), 0);
    for (int y : {28, 38, 49})
        QCOMPARE(at(button, {12, y}), QColor(Qt::blue));

    // What an icon has for a button that is on counts only for one that stands alone.
    QIcon other = icon(Qt::blue);
    other.addPixmap(icon(Qt::green).pixmap(96), QIcon::Normal, QIcon::On);
    button.setIcons({icon(Qt::red), other});
    QCOMPARE(at(button, {12, 38}), QColor(Qt::blue));
}

void tst_DockButton::showsOnlyTheFirstOfTwoIconsInARow()
{
    DockButton button(Qt::Horizontal);
    button.setIconSize({24, 51});
    button.setChecked(true);
    button.setIcons({icon(Qt::red), icon(Qt::blue)});
    const QSize expected(qRound(24 * ratio()), 2 * qRound(24 * ratio()) + int(3 * ratio()));
    QCOMPARE(button.icon().availableSizes(), QList<QSize>({expected}));
    QCOMPARE(at(button, {12, 12}), QColor(Qt::red));
    for (int y : {25, 28, 38, 49})
        QCOMPARE(at(button, {12, y}).alpha(), 0);
}

void tst_DockButton::isGreyWhileItIsNotChecked()
{
    DockButton button(Qt::Vertical);
    button.setFixedSize(30, 57);
    button.setIconSize({24, 51});
    button.setIcons({icon(Qt::red), icon(Qt::blue)});
    const auto isGrey = [](const QColor &colour) {
        return qMax(qMax(colour.red(), colour.green()), colour.blue())
            - qMin(qMin(colour.red(), colour.green()), colour.blue())
            < 40;
    };
    QVERIFY(isGrey(at(button, {12, 12})));
    QVERIFY(isGrey(at(button, {12, 40})));
    QVERIFY(Gui::open(&button));
    Gui::click(&button);
    QCOMPARE(at(button, {12, 12}), QColor(Qt::red));
    QCOMPARE(at(button, {12, 40}), QColor(Qt::blue));
    QCOMPARE(Gui::pixel(&button, {15, 3 + 40}), QColor(Qt::blue));
    Gui::click(&button);
    QVERIFY(isGrey(at(button, {12, 12})));
}

void tst_DockButton::composesItsIconAgainForAnotherScreenResolution()
{
    DockButton button(Qt::Vertical);
    button.setIconSize({24, 51});
    button.setChecked(true);
    button.setIcons({icon(Qt::red), icon(Qt::blue)});
    const qint64 before = button.icon().cacheKey();
    Q_EMIT QGuiApplication::primaryScreen()->physicalDotsPerInchChanged(123);
    QVERIFY(button.icon().cacheKey() != before);
    QCOMPARE(at(button, {12, 38}), QColor(Qt::blue));
}

void tst_DockButton::takesNullIcons()
{
    DockButton button(Qt::Vertical);
    button.setIconSize({24, 51});
    button.setIcons({QIcon()});
    QVERIFY(button.icon().pixmap(24, 24).isNull());
    button.setIcons({QIcon(), icon(Qt::blue)});
    button.setChecked(true);
    QCOMPARE(at(button, {12, 12}).alpha(), 0);
    QCOMPARE(at(button, {12, 40}), QColor(Qt::blue));
    button.setIcons({});
    QVERIFY(button.icon().pixmap(24, 24).isNull());
}

void tst_DockButton::tellsTheViewUnderTheMouse_data()
{
    QTest::addColumn<int>("height");
    QTest::addColumn<int>("y");
    QTest::addColumn<QString>("text");
    QTest::newRow("top") << 57 << 0 << u"one"_s;
    QTest::newRow("in the first") << 57 << 27 << u"one"_s;
    QTest::newRow("on the line") << 57 << 28 << u"one"_s;
    QTest::newRow("below the line") << 57 << 29 << u"two"_s;
    QTest::newRow("end of the second") << 57 << 55 << u"two"_s;
    QTest::newRow("the remainder") << 57 << 56 << u"two"_s;
    QTest::newRow("on the line of an even height") << 60 << 30 << u"one"_s;
    QTest::newRow("below it") << 60 << 31 << u"two"_s;
}

void tst_DockButton::tellsTheViewUnderTheMouse()
{
    QFETCH(int, height);
    QFETCH(int, y);
    QFETCH(QString, text);
    QWidget window;
    window.resize(100, 100);
    DockButton button(Qt::Vertical, &window);
    button.setTexts({u"one"_s, u"two"_s});
    button.setGeometry(10, 10, 30, height);
    QVERIFY(Gui::open(&window));
    Gui::moveMouse(&window, {80, 80});
    Gui::moveMouse(&button, {15, y});
    QTRY_COMPARE(button.toolTip(), text);
}

void tst_DockButton::tellsTheNearestViewWhileItIsDragged()
{
    QWidget window;
    window.resize(100, 200);
    DockButton button(Qt::Vertical, &window);
    button.setTexts({u"one"_s, u"two"_s});
    button.setGeometry(10, 60, 30, 57);
    QVERIFY(Gui::open(&window));
    Gui::press(&button, {15, 20});
    Gui::moveMouse(&button, {15, 130});
    QTRY_COMPARE(button.toolTip(), u"two"_s);
    Gui::moveMouse(&button, {15, -50});
    QTRY_COMPARE(button.toolTip(), u"one"_s);
    Gui::release(&button, {15, -50});
}

void tst_DockButton::hasNoToolTipWithoutTexts()
{
    DockButton button(Qt::Vertical);
    button.resize(30, 30);
    QVERIFY(Gui::open(&button));
    Gui::moveMouse(&button, {15, 15});
    Gui::click(&button);
    QVERIFY(button.toolTip().isEmpty());
}

NORVANE_TEST_MAIN(tst_DockButton)
#include "tst_DockButton.moc"
