// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "Scene.h"
#include "TestCase.h"

#include <QtCore/QScopeGuard>
#include <QtGui/QPainter>
#include <QtGui/QPainterPath>

using Norvane::RibbonButton;

namespace {

constexpr auto large = Qt::ToolButtonTextUnderIcon;
constexpr auto small = Qt::ToolButtonTextBesideIcon;
constexpr auto iconOnly = Qt::ToolButtonIconOnly;

constexpr QColor unpainted = Scene::backdrop;
constexpr QColor grey(125, 125, 125);
constexpr QColor lightGrey(191, 191, 191);
constexpr QColor blue(38, 140, 221);
constexpr QColor white(255, 255, 255);
constexpr QColor pressedFill(245, 245, 245);
constexpr QColor checkedFill(217, 217, 217);

// A button without text: its sizes and its menu part are plain numbers.
constexpr QSize largeSize(36, 72);
constexpr QRect largeMenu(0, 35, 36, 37);
constexpr QSize smallSize(34, 22);
constexpr QSize smallArrowSize(46, 22);
constexpr QRect smallMenu(26, 0, 20, 22);

//! Where the one-pixel border of a button of \a size is not \a colour, its corners left out.
QString otherBorder(const Shot &shot, const QColor &colour, QSize size)
{
    constexpr int corner = 3;
    const int width = size.width();
    const int height = size.height();
    QString other;
    for (const QRect &side :
         {QRect(corner, 0, width - 2 * corner, 1), QRect(corner, height - 1, width - 2 * corner, 1),
          QRect(0, corner, 1, height - 2 * corner),
          QRect(width - 1, corner, 1, height - 2 * corner)})
        other += shot.otherThan(colour, side);
    return other;
}

QColor between(const QColor &one, const QColor &other)
{
    return QColor((one.red() + other.red()) / 2, (one.green() + other.green()) / 2,
                  (one.blue() + other.blue()) / 2);
}

/*!
    What the only button of a scene looks like when \a open has it open \a menu: at the moment
    before the menu is there, for what a window hears of the mouse after that is the platform's
    choice. Null when the menu was not opened.
*/
std::unique_ptr<Shot> shotWhileOpening(QMenu *menu, const std::function<void()> &open)
{
    std::unique_ptr<Shot> shot;
    const QObject context;
    QObject::connect(menu, &QMenu::aboutToShow, &context, [&shot] {
        auto *window = QApplication::activeWindow();
        shot = std::make_unique<Shot>(window->findChild<RibbonButton *>());
    });
    return whileOpen(menu, open, [] { }) ? std::move(shot) : nullptr;
}

} // namespace

class tst_RibbonButtonPainting : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void scaleIsAsAsked();

    void nothingBehindAnIdleButton_data();
    void nothingBehindAnIdleButton();
    void plainBackground_data();
    void plainBackground();
    void instantMenuIsPaintedPlain_data();
    void instantMenuIsPaintedPlain();
    void downAloneIsNotPainted();
    void pressedLookGoesWhenReleased();
    void checkedWhileDisabled();
    void corners_data();
    void corners();
    void sizeOtherThanMeasured();

    void splitLargeMainPart_data();
    void splitLargeMainPart();
    void splitLargeMenuPart_data();
    void splitLargeMenuPart();
    void splitSmallMainPart_data();
    void splitSmallMainPart();
    void splitSmallMenuPart_data();
    void splitSmallMenuPart();
    void splitSmallOfOddWidth();
    void splitSmallWithDelayedPopup();
    void splitIconOnly();
    void iconOnlyKeepsTheMenuPartOfBefore();
    void largeDelayedMenuDownOnArrow();
    void largeMenuOpenFromArrow();
    void smallMenuOpenFromArrow();
    void instantMenuOpen();
    void arrowHoverOutlivesLeaving();
    void pressMovesTheHoverOnlyWhenSplit_data();
    void pressMovesTheHoverOnlyWhenSplit();
};

// The second registration of this program runs it at twice the pixels.
void tst_RibbonButtonPainting::scaleIsAsAsked()
{
    QWidget window;
    const int asked = qEnvironmentVariable("QT_SCALE_FACTOR", QStringLiteral("1")).toInt();
    QCOMPARE(qRound(window.grab().devicePixelRatio()), asked);
}

void tst_RibbonButtonPainting::nothingBehindAnIdleButton_data()
{
    QTest::addColumn<Qt::ToolButtonStyle>("style");
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<bool>("mouseOver");
    QTest::addColumn<bool>("withMenu");

    for (const bool withMenu : {false, true}) {
        for (const auto style : {large, small, iconOnly}) {
            const auto row = [&](const char *name, bool enabled, bool mouseOver) {
                QTest::addRow("style %d, %s, %s", int(style), name, withMenu ? "menu" : "no menu")
                    << style << enabled << mouseOver << withMenu;
            };
            row("enabled", true, false);
            row("disabled", false, false);
            row("disabled under the mouse", false, true);
        }
    }
}

void tst_RibbonButtonPainting::nothingBehindAnIdleButton()
{
    QFETCH(const Qt::ToolButtonStyle, style);
    QFETCH(const bool, enabled);
    QFETCH(const bool, mouseOver);
    QFETCH(const bool, withMenu);
    QMenu menu;
    QAction action;
    if (withMenu)
        action.setMenu(&menu);
    Scene scene;
    RibbonButton *button = scene.addButton(style, &action, QToolButton::MenuButtonPopup);
    QVERIFY(scene.open());
    if (mouseOver)
        scene.moveMouseTo(button, QPoint(10, 10));
    action.setEnabled(enabled);
    QCOMPARE(Shot(button).otherThan(unpainted, QRegion(button->rect()) - arrowOf(button)),
             QString());
    action.setEnabled(true);
    if (mouseOver)
        QVERIFY(Shot(button).at(10, 10) == white);
}

void tst_RibbonButtonPainting::plainBackground_data()
{
    QTest::addColumn<Qt::ToolButtonStyle>("style");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<bool>("checked");
    QTest::addColumn<bool>("mouseOver");
    QTest::addColumn<bool>("down");
    QTest::addColumn<QColor>("fill");

    const auto rows = [](const char *name, Qt::ToolButtonStyle style, QSize size) {
        const auto row = [&](const char *state, bool checked, bool mouseOver, bool down,
                             const QColor &fill) {
            QTest::addRow("%s, %s", name, state)
                << style << size << checked << mouseOver << down << fill;
        };
        row("hovered", false, true, false, white);
        row("pressed", false, true, true, pressedFill);
        row("checked", true, false, false, checkedFill);
        row("checked, hovered", true, true, false, checkedFill);
        row("checked, pressed", true, true, true, pressedFill);
    };
    rows("large", large, largeSize);
    rows("small", small, smallSize);
    rows("icon-only", iconOnly, QSize(22, 22));
}

void tst_RibbonButtonPainting::plainBackground()
{
    QFETCH(const Qt::ToolButtonStyle, style);
    QFETCH(const QSize, size);
    QFETCH(const bool, checked);
    QFETCH(const bool, mouseOver);
    QFETCH(const bool, down);
    QFETCH(const QColor, fill);
    QAction action;
    action.setCheckable(true);
    action.setChecked(checked);
    Scene scene;
    RibbonButton *button = scene.addButton(style, &action, QToolButton::DelayedPopup);
    QVERIFY(scene.open());
    QCOMPARE(button->size(), size);
    if (mouseOver)
        scene.moveMouseTo(button, QPoint(10, 10));
    if (down)
        scene.press(button, QPoint(10, 10));
    const Shot shot(button);
    QCOMPARE(otherBorder(shot, grey, size), QString());
    QCOMPARE(shot.otherThan(fill, button->rect().adjusted(2, 2, -2, -2)), QString());
    QCOMPARE(shot.otherThan(fill, button->rect().adjusted(1, 3, -1, -3)), QString());
    QCOMPARE(shot.otherThan(unpainted, QRect(-2, -2, size.width() + 4, 2)), QString());
    QCOMPARE(shot.otherThan(unpainted, QRect(-2, size.height(), size.width() + 4, 2)), QString());
    if (down)
        scene.release(button, QPoint(10, 10));
}

void tst_RibbonButtonPainting::instantMenuIsPaintedPlain_data()
{
    QTest::addColumn<Qt::ToolButtonStyle>("style");
    QTest::addColumn<bool>("checked");

    for (const auto style : {large, small, iconOnly}) {
        for (const bool checked : {false, true})
            QTest::addRow("style %d, %s", int(style), checked ? "checked" : "hovered")
                << style << checked;
    }
}

void tst_RibbonButtonPainting::instantMenuIsPaintedPlain()
{
    QFETCH(const Qt::ToolButtonStyle, style);
    QFETCH(const bool, checked);
    QMenu menu;
    QAction action;
    action.setMenu(&menu);
    action.setCheckable(true);
    action.setChecked(checked);
    Scene scene;
    RibbonButton *button = scene.addButton(style, &action, QToolButton::InstantPopup);
    QVERIFY(scene.open());
    // Over what would be the menu part of a split button.
    scene.moveMouseTo(button, QPoint(button->width() - 5, button->height() - 5));
    const Shot shot(button);
    QCOMPARE(otherBorder(shot, grey, button->size()), QString());
    QCOMPARE(shot.otherThan(checked ? checkedFill : white,
                            QRegion(button->rect().adjusted(2, 2, -2, -2)) - arrowOf(button)),
             QString());
}

void tst_RibbonButtonPainting::downAloneIsNotPainted()
{
    QAction action;
    Scene scene;
    RibbonButton *button = scene.addButton(large, &action, QToolButton::DelayedPopup);
    QVERIFY(scene.open());
    button->setDown(true);
    QCOMPARE(Shot(button).otherThan(unpainted, button->rect()), QString());
}

void tst_RibbonButtonPainting::pressedLookGoesWhenReleased()
{
    QAction action;
    Scene scene;
    RibbonButton *button = scene.addButton(large, &action, QToolButton::DelayedPopup);
    QVERIFY(scene.open());
    scene.moveMouseTo(button, QPoint(10, 10));
    scene.press(button, QPoint(10, 10));
    QCOMPARE(Shot(button).at(10, 10), pressedFill);
    scene.release(button, QPoint(10, 10));
    QCOMPARE(Shot(button).at(10, 10), white);
    scene.moveMouseTo(&scene, QPoint(1, 1));
    QCOMPARE(Shot(button).otherThan(unpainted, button->rect()), QString());
}

void tst_RibbonButtonPainting::checkedWhileDisabled()
{
    for (const bool withMenu : {false, true}) {
        QMenu menu;
        QAction action;
        if (withMenu)
            action.setMenu(&menu);
        action.setCheckable(true);
        action.setChecked(true);
        action.setEnabled(false);
        Scene scene;
        RibbonButton *button = scene.addButton(large, &action, QToolButton::InstantPopup);
        QVERIFY(scene.open());
        const Shot shot(button);
        QCOMPARE(otherBorder(shot, grey, largeSize), QString());
        QCOMPARE(shot.otherThan(checkedFill,
                                QRegion(button->rect().adjusted(2, 2, -2, -2)) - arrowOf(button)),
                 QString());
    }
}

void tst_RibbonButtonPainting::corners_data()
{
    QTest::addColumn<Qt::ToolButtonStyle>("style");
    QTest::addColumn<bool>("split");

    QTest::newRow("large") << large << false;
    QTest::newRow("small") << small << false;
    QTest::newRow("icon-only") << iconOnly << false;
    QTest::newRow("large, split") << large << true;
    QTest::newRow("small, split") << small << true;
}

// The corners are arcs of radius 2 around the middle of the border.
void tst_RibbonButtonPainting::corners()
{
    QFETCH(const Qt::ToolButtonStyle, style);
    QFETCH(const bool, split);
    QMenu menu;
    QAction action;
    if (split)
        action.setMenu(&menu);
    Scene scene;
    RibbonButton *button = scene.addButton(style, &action, QToolButton::MenuButtonPopup);
    QVERIFY(scene.open());
    scene.moveMouseTo(button, QPoint(10, 10));
    const Shot shot(button);

    const int ratio = shot.ratio();
    QImage expected(button->size() * ratio, QImage::Format_RGB32);
    expected.setDevicePixelRatio(ratio);
    expected.fill(unpainted);
    QPainter painter(&expected);
    painter.setRenderHint(QPainter::Antialiasing);
    QPainterPath outline;
    outline.addRoundedRect(0.5, 0.5, button->width() - 1, button->height() - 1, 2, 2);
    if (!split)
        painter.fillPath(outline, white);
    painter.strokePath(outline, QPen(grey, 1));
    painter.end();

    for (const bool right : {false, true}) {
        for (const bool bottom : {false, true}) {
            // A split button has no fill to compare but beyond the divider.
            if (split && !(style == large ? bottom : right))
                continue;
            for (int y = 0; y < 3 * ratio; ++y) {
                for (int x = 0; x < 3 * ratio; ++x) {
                    const QPoint pixel(right ? expected.width() - 1 - x : x,
                                       bottom ? expected.height() - 1 - y : y);
                    const QColor colour = shot.device(pixel.x(), pixel.y());
                    QVERIFY2(isClose(colour, expected.pixelColor(pixel), 3),
                             qPrintable(QStringLiteral("(%1, %2) is %3")
                                            .arg(pixel.x())
                                            .arg(pixel.y())
                                            .arg(colour.name())));
                }
            }
        }
    }
}

void tst_RibbonButtonPainting::sizeOtherThanMeasured()
{
    // A style change counts from the next resize on; until then the old size is filled.
    QAction action;
    Scene scene;
    RibbonButton *button = scene.addButton(large, &action, QToolButton::DelayedPopup);
    QVERIFY(scene.open());
    button->setToolButtonStyle(iconOnly);
    scene.moveMouseTo(button, QPoint(10, 10));
    const Shot shot(button);
    QCOMPARE(otherBorder(shot, grey, largeSize), QString());
    QCOMPARE(shot.otherThan(white, button->rect().adjusted(2, 2, -2, -2)), QString());
}

void tst_RibbonButtonPainting::splitLargeMainPart_data()
{
    QTest::addColumn<bool>("checked");
    QTest::addColumn<bool>("mouseOver");
    QTest::addColumn<bool>("down");
    QTest::addColumn<QColor>("fill");

    QTest::newRow("hovered") << false << true << false << white;
    QTest::newRow("pressed") << false << true << true << checkedFill;
    QTest::newRow("checked") << true << false << false << checkedFill;
    QTest::newRow("checked, hovered") << true << true << false << checkedFill;
}

void tst_RibbonButtonPainting::splitLargeMainPart()
{
    QFETCH(const bool, checked);
    QFETCH(const bool, mouseOver);
    QFETCH(const bool, down);
    QFETCH(const QColor, fill);
    for (const auto mode : {QToolButton::MenuButtonPopup, QToolButton::DelayedPopup}) {
        QMenu menu;
        QAction action;
        action.setMenu(&menu);
        action.setCheckable(true);
        action.setChecked(checked);
        Scene scene;
        RibbonButton *button = scene.addButton(large, &action, mode);
        QVERIFY(scene.open());
        QCOMPARE(button->size(), largeSize);
        const QPoint overMainPart(10, 34);
        if (mouseOver)
            scene.moveMouseTo(button, overMainPart);
        if (down)
            scene.press(button, overMainPart);
        const Shot shot(button);
        const auto release = qScopeGuard([&] {
            if (down)
                scene.release(button, overMainPart);
        });
        QCOMPARE(otherBorder(shot, grey, largeSize), QString());
        QCOMPARE(shot.otherThan(fill, QRect(2, 2, 32, 33)), QString());
        // The fill is squared where it meets the divider.
        QCOMPARE(shot.otherThan(fill, QRect(1, 3, 34, 32)), QString());
        QCOMPARE(shot.otherThan(lightGrey, QRect(1, 35, 34, 1)), QString());
        QCOMPARE(shot.at(0, 35), grey);
        QCOMPARE(shot.at(35, 35), grey);
        QCOMPARE(shot.otherThan(unpainted, QRegion(QRect(2, 36, 32, 34)) - arrowOf(button)),
                 QString());
    }
}

void tst_RibbonButtonPainting::splitLargeMenuPart_data()
{
    QTest::addColumn<bool>("checked");
    QTest::addColumn<QColor>("fill");

    QTest::newRow("hovered") << false << white;
    QTest::newRow("checked, hovered") << true << checkedFill;
}

void tst_RibbonButtonPainting::splitLargeMenuPart()
{
    QFETCH(const bool, checked);
    QFETCH(const QColor, fill);
    for (const auto mode : {QToolButton::MenuButtonPopup, QToolButton::DelayedPopup}) {
        QMenu menu;
        QAction action;
        action.setMenu(&menu);
        action.setCheckable(true);
        action.setChecked(checked);
        Scene scene;
        RibbonButton *button = scene.addButton(large, &action, mode);
        QVERIFY(scene.open());
        scene.moveMouseTo(button, largeMenu.topLeft() + QPoint(10, 0));
        const Shot shot(button);
        QCOMPARE(otherBorder(shot, grey, largeSize), QString());
        QCOMPARE(shot.otherThan(unpainted, QRect(2, 2, 32, 33)), QString());
        QCOMPARE(shot.otherThan(grey, QRect(0, 35, 36, 1)), QString());
        QCOMPARE(shot.otherThan(fill, QRegion(QRect(2, 36, 32, 34)) - arrowOf(button)), QString());
        QCOMPARE(shot.otherThan(fill, QRect(1, 36, 34, 10)), QString());
    }
}

void tst_RibbonButtonPainting::splitSmallMainPart_data()
{
    splitLargeMainPart_data();
}

void tst_RibbonButtonPainting::splitSmallMainPart()
{
    QFETCH(const bool, checked);
    QFETCH(const bool, mouseOver);
    QFETCH(const bool, down);
    QFETCH(const QColor, fill);
    QMenu menu;
    QAction action;
    action.setMenu(&menu);
    action.setCheckable(true);
    action.setChecked(checked);
    Scene scene;
    RibbonButton *button = scene.addButton(small, &action, QToolButton::MenuButtonPopup);
    QVERIFY(scene.open());
    QCOMPARE(button->size(), smallArrowSize);
    const QPoint overMainPart(25, 10);
    if (mouseOver)
        scene.moveMouseTo(button, overMainPart);
    if (down)
        scene.press(button, overMainPart);
    const Shot shot(button);
    const auto release = qScopeGuard([&] {
        if (down)
            scene.release(button, overMainPart);
    });
    QCOMPARE(otherBorder(shot, grey, smallArrowSize), QString());
    QCOMPARE(shot.otherThan(fill, QRect(2, 2, 24, 18)), QString());
    // The fill is squared where it meets the divider.
    QCOMPARE(shot.otherThan(fill, QRect(3, 1, 23, 20)), QString());
    QCOMPARE(shot.otherThan(grey, QRect(26, 0, 1, 22)), QString());
    // The squaring reaches half a pixel beyond the divider when the main part is even.
    QVERIFY(isClose(shot.mean(27, 10), between(fill, unpainted), 2));
    QCOMPARE(shot.otherThan(unpainted, QRegion(QRect(28, 2, 16, 18)) - arrowOf(button)), QString());
}

void tst_RibbonButtonPainting::splitSmallMenuPart_data()
{
    splitLargeMenuPart_data();
}

void tst_RibbonButtonPainting::splitSmallMenuPart()
{
    QFETCH(const bool, checked);
    QFETCH(const QColor, fill);
    QMenu menu;
    QAction action;
    action.setMenu(&menu);
    action.setCheckable(true);
    action.setChecked(checked);
    Scene scene;
    RibbonButton *button = scene.addButton(small, &action, QToolButton::MenuButtonPopup);
    QVERIFY(scene.open());
    scene.moveMouseTo(button, smallMenu.topLeft() + QPoint(0, 10));
    const Shot shot(button);
    QCOMPARE(otherBorder(shot, grey, smallArrowSize), QString());
    QCOMPARE(shot.otherThan(unpainted, QRect(2, 2, 24, 18)), QString());
    QCOMPARE(shot.otherThan(grey, QRect(26, 0, 1, 22)), QString());
    QCOMPARE(shot.otherThan(fill, QRegion(QRect(27, 2, 17, 18)) - arrowOf(button)), QString());
    QCOMPARE(shot.otherThan(fill, QRegion(27, 1, 9, 20) - arrowOf(button)), QString());
}

void tst_RibbonButtonPainting::splitSmallOfOddWidth()
{
    const QString text = blocks(1);
    const int advance = advanceOf(text);
    QCOMPARE(advance % 2, 1);
    QMenu menu;
    QAction action(text);
    action.setMenu(&menu);
    Scene scene;
    RibbonButton *button = scene.addButton(small, &action, QToolButton::MenuButtonPopup);
    QVERIFY(scene.open());
    const QSize size(46 + advance, 22);
    QCOMPARE(button->size(), size);
    const int divider = 26 + advance;

    scene.moveMouseTo(button, QPoint(divider - 1, 10));
    const Shot main(button);
    QCOMPARE(main.otherThan(grey, QRect(divider, 0, 1, 22)), QString());
    QCOMPARE(main.otherThan(white, QRect(3, 1, 20, 20)), QString());
    QCOMPARE(main.at(divider - 1, 1), white);
    QCOMPARE(main.at(divider - 1, 20), white);
    QCOMPARE(main.otherThan(unpainted, QRegion(QRect(divider + 1, 2, 17, 18)) - arrowOf(button)),
             QString());

    scene.moveMouseTo(button, QPoint(divider, 10));
    const Shot arrow(button);
    QCOMPARE(arrow.otherThan(grey, QRect(divider, 0, 1, 22)), QString());
    QCOMPARE(arrow.otherThan(unpainted, QRect(2, 2, 20, 18)), QString());
    QCOMPARE(arrow.otherThan(white, QRegion(QRect(divider + 1, 2, 17, 18)) - arrowOf(button)),
             QString());
}

// The menu part keeps its width of 20, of which a button without room for an arrow shows 8.
void tst_RibbonButtonPainting::splitSmallWithDelayedPopup()
{
    QMenu menu;
    QAction action;
    action.setMenu(&menu);
    Scene scene;
    RibbonButton *button = scene.addButton(small, &action, QToolButton::DelayedPopup);
    QVERIFY(scene.open());
    QCOMPARE(button->size(), smallSize);
    const QRegion arrow = arrowOf(button);

    scene.moveMouseTo(button, QPoint(25, 4));
    const Shot main(button);
    QCOMPARE(otherBorder(main, grey, smallSize), QString());
    QCOMPARE(main.otherThan(white, QRect(2, 2, 13, 18)), QString());
    QVERIFY(isClose(main.mean(15, 10), between(white, unpainted), 2));
    QCOMPARE(main.otherThan(unpainted, QRegion(QRect(16, 2, 10, 18)) - arrow), QString());
    QCOMPARE(main.otherThan(grey, QRegion(QRect(26, 0, 1, 22)) - arrow), QString());
    QCOMPARE(main.otherThan(unpainted, QRegion(QRect(27, 2, 5, 18)) - arrow), QString());

    scene.moveMouseTo(button, QPoint(26, 4));
    const Shot part(button);
    QCOMPARE(part.otherThan(unpainted, QRegion(QRect(2, 2, 24, 18)) - arrow), QString());
    QCOMPARE(part.otherThan(grey, QRegion(QRect(26, 0, 1, 22)) - arrow), QString());
    QCOMPARE(part.otherThan(white, QRegion(27, 1, 4, 20) - arrow), QString());
}

// An icon-only button has no menu part: the divider lies on its left border.
void tst_RibbonButtonPainting::splitIconOnly()
{
    for (const auto mode : {QToolButton::DelayedPopup, QToolButton::MenuButtonPopup}) {
        QMenu menu;
        QAction action;
        action.setMenu(&menu);
        Scene scene;
        RibbonButton *button = scene.addButton(iconOnly, &action, mode);
        QVERIFY(scene.open());
        for (const QPoint position : {QPoint(3, 10), QPoint(20, 10), QPoint(10, 20)}) {
            scene.moveMouseTo(button, position);
            const Shot shot(button);
            QCOMPARE(otherBorder(shot, grey, QSize(22, 22)), QString());
            QCOMPARE(shot.otherThan(grey, QRect(0, 1, 1, 20)), QString());
            QCOMPARE(shot.otherThan(white, QRect(2, 2, 18, 18)), QString());
        }
        scene.press(button, QPoint(10, 10));
        QCOMPARE(Shot(button).otherThan(checkedFill, QRect(2, 2, 18, 18)), QString());
        scene.release(button, QPoint(10, 10));
    }
}

void tst_RibbonButtonPainting::iconOnlyKeepsTheMenuPartOfBefore()
{
    QMenu menu;
    QAction action;
    action.setMenu(&menu);
    Scene scene;
    RibbonButton *button = scene.addButton(small, &action, QToolButton::MenuButtonPopup);
    QVERIFY(scene.open());
    button->setToolButtonStyle(iconOnly);
    button->setFixedSize(5, 5);
    QCOMPARE(button->size(), QSize(22, 22));
    scene.moveMouseTo(button, QPoint(5, 5));
    const Shot shot(button);
    QCOMPARE(otherBorder(shot, grey, QSize(22, 22)), QString());
    // The menu part still takes 20 of the width: 2 are left to fill, and the squaring.
    QCOMPARE(shot.otherThan(unpainted, QRect(4, 2, 16, 18)), QString());
}

void tst_RibbonButtonPainting::largeDelayedMenuDownOnArrow()
{
    QMenu menu;
    QAction action;
    action.setMenu(&menu);
    Scene scene;
    RibbonButton *button = scene.addButton(large, &action, QToolButton::DelayedPopup);
    QVERIFY(scene.open());
    scene.moveMouseTo(button, QPoint(10, 50));
    scene.press(button, QPoint(10, 50));
    const Shot shot(button);
    scene.release(button, QPoint(10, 50));
    QCOMPARE(shot.otherThan(blue, QRect(1, 35, 34, 1)), QString());
    QCOMPARE(shot.at(0, 35), grey);
    QCOMPARE(shot.at(35, 35), grey);
    QCOMPARE(shot.otherThan(unpainted, QRect(2, 2, 32, 33)), QString());
    QCOMPARE(shot.otherThan(checkedFill, QRegion(QRect(2, 36, 32, 34)) - arrowOf(button)),
             QString());
}

void tst_RibbonButtonPainting::largeMenuOpenFromArrow()
{
    QMenu menu;
    menu.addAction(QStringLiteral("Recent"));
    QAction action;
    action.setMenu(&menu);
    Scene scene;
    RibbonButton *button = scene.addButton(large, &action, QToolButton::MenuButtonPopup);
    QVERIFY(scene.open());
    scene.moveMouseTo(button, QPoint(10, 10));
    const auto shot = shotWhileOpening(&menu, [&] { scene.press(button, QPoint(10, 50)); });
    scene.release(button, QPoint(10, 50));
    QVERIFY(shot);
    QCOMPARE(otherBorder(*shot, grey, largeSize), QString());
    QCOMPARE(shot->otherThan(blue, QRect(1, 35, 34, 1)), QString());
    QCOMPARE(shot->otherThan(unpainted, QRect(2, 2, 32, 33)), QString());
    QCOMPARE(shot->otherThan(checkedFill, QRegion(2, 36, 32, 34) - arrowOf(button)), QString());
}

void tst_RibbonButtonPainting::smallMenuOpenFromArrow()
{
    QMenu menu;
    menu.addAction(QStringLiteral("Recent"));
    QAction action;
    action.setMenu(&menu);
    Scene scene;
    RibbonButton *button = scene.addButton(small, &action, QToolButton::MenuButtonPopup);
    QVERIFY(scene.open());
    const auto shot = shotWhileOpening(&menu, [&] { scene.press(button, QPoint(26, 10)); });
    scene.release(button, QPoint(26, 10));
    QVERIFY(shot);
    QCOMPARE(otherBorder(*shot, grey, smallArrowSize), QString());
    QCOMPARE(shot->otherThan(grey, QRect(26, 0, 1, 22)), QString());
    QCOMPARE(shot->otherThan(unpainted, QRect(2, 2, 24, 18)), QString());
    QCOMPARE(shot->otherThan(checkedFill, QRegion(27, 2, 17, 18) - arrowOf(button)), QString());
}

void tst_RibbonButtonPainting::instantMenuOpen()
{
    for (const auto style : {large, small, iconOnly}) {
        QMenu menu;
        menu.addAction(QStringLiteral("Recent"));
        QAction action;
        action.setMenu(&menu);
        Scene scene;
        RibbonButton *button = scene.addButton(style, &action, QToolButton::InstantPopup);
        QVERIFY(scene.open());
        const auto shot = shotWhileOpening(&menu, [&] { scene.press(button, QPoint(10, 10)); });
        scene.release(button, QPoint(10, 10));
        QVERIFY(shot);
        QCOMPARE(otherBorder(*shot, grey, button->size()), QString());
        const QRect inside = button->rect().adjusted(2, 2, -2, -2);
        QCOMPARE(shot->otherThan(checkedFill, QRegion(inside) - arrowOf(button)), QString());
    }
}

void tst_RibbonButtonPainting::arrowHoverOutlivesLeaving()
{
    QMenu menu;
    QAction action;
    action.setMenu(&menu);
    action.setCheckable(true);
    action.setChecked(true);
    Scene scene;
    RibbonButton *button = scene.addButton(large, &action, QToolButton::MenuButtonPopup);
    QVERIFY(scene.open());
    scene.moveMouseTo(button, QPoint(10, 50));
    scene.moveMouseTo(&scene, QPoint(1, 1));
    const Shot left(button);
    QCOMPARE(left.at(10, 50), checkedFill);
    QCOMPARE(left.at(10, 20), unpainted);
    QCOMPARE(left.otherThan(grey, QRect(1, 35, 34, 1)), QString());
    scene.moveMouseTo(button, QPoint(10, 20));
    QCOMPARE(Shot(button).at(10, 20), checkedFill);
    QCOMPARE(Shot(button).at(10, 50), unpainted);
}

void tst_RibbonButtonPainting::pressMovesTheHoverOnlyWhenSplit_data()
{
    QTest::addColumn<QToolButton::ToolButtonPopupMode>("mode");
    QTest::addColumn<bool>("moves");

    QTest::newRow("delayed") << QToolButton::DelayedPopup << false;
    QTest::newRow("split") << QToolButton::MenuButtonPopup << true;
}

// A press without a move before it, as a touch screen gives it.
void tst_RibbonButtonPainting::pressMovesTheHoverOnlyWhenSplit()
{
    QFETCH(const QToolButton::ToolButtonPopupMode, mode);
    QFETCH(const bool, moves);
    QMenu menu;
    QAction action;
    action.setMenu(&menu);
    Scene scene;
    RibbonButton *button = scene.addButton(large, &action, mode);
    QVERIFY(scene.open());
    scene.moveMouseTo(button, QPoint(10, 50));
    QCOMPARE(Shot(button).at(10, 50), white);
    QTest::mousePress(button, Qt::LeftButton, {}, QPoint(10, 20));
    const Shot shot(button);
    QCOMPARE(shot.at(10, 20), moves ? checkedFill : unpainted);
    QCOMPARE(shot.at(10, 50), moves ? unpainted : checkedFill);
    QTest::mouseRelease(button, Qt::LeftButton, {}, QPoint(10, 20));
}

NORVANE_TEST_MAIN(tst_RibbonButtonPainting)
#include "tst_RibbonButtonPainting.moc"
