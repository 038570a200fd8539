// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "Scene.h"
#include "TestCase.h"

#include <QtGui/QIconEngine>
#include <QtGui/QPainter>

using Norvane::RibbonButton;

namespace {

constexpr auto large = Qt::ToolButtonTextUnderIcon;
constexpr auto small = Qt::ToolButtonTextBesideIcon;
constexpr auto iconOnly = Qt::ToolButtonIconOnly;

constexpr QColor unpainted = Scene::backdrop;
constexpr QColor lightGrey(191, 191, 191);
constexpr QColor white(255, 255, 255);

//! An icon of one colour per mode and state.
QIcon plainIcon()
{
    QIcon icon;
    const auto add = [&icon](const QColor &colour, QIcon::Mode mode, QIcon::State state) {
        for (const int size : {16, 24, 32, 48}) {
            QPixmap pixmap(size, size);
            pixmap.fill(colour);
            icon.addPixmap(pixmap, mode, state);
        }
    };
    add(Qt::red, QIcon::Normal, QIcon::Off);
    add(Qt::darkRed, QIcon::Normal, QIcon::On);
    add(Qt::green, QIcon::Disabled, QIcon::Off);
    add(Qt::darkGreen, QIcon::Disabled, QIcon::On);
    add(Qt::cyan, QIcon::Active, QIcon::Off);
    add(Qt::darkCyan, QIcon::Active, QIcon::On);
    add(Qt::yellow, QIcon::Selected, QIcon::Off);
    add(Qt::darkYellow, QIcon::Selected, QIcon::On);
    return icon;
}

//! An icon of upright stripes, each as thin as a pixel of the screen.
class StripesEngine : public QIconEngine
{
public:
    QPixmap scaledPixmap(const QSize &size, QIcon::Mode, QIcon::State, qreal scale) override
    {
        QImage image(size * scale, QImage::Format_RGB32);
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x)
                image.setPixelColor(x, y, x % 2 ? Qt::green : Qt::red);
        }
        return QPixmap::fromImage(image);
    }

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override
    {
        painter->drawPixmap(rect, scaledPixmap(rect.size(), mode, state, 1));
    }

    QIconEngine *clone() const override { return new StripesEngine(*this); }
};

} // namespace

class tst_RibbonButtonContents : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void scaleIsAsAsked();

    void iconPlace_data();
    void iconPlace();
    void iconModeAndState_data();
    void iconModeAndState();
    void iconIsSharp_data();
    void iconIsSharp();
    void noIcon();

    void textPlace_data();
    void textPlace();
    void textOfTwoLinesIsCentredLineByLine();
    void textOfThreeLines();
    void ampersandIsDrawn();
    void iconOnlyTextIsClipped();
    void textColour_data();
    void textColour();
    void textChangedAfterMeasuring();
    void textInOwnFont();

    void arrowPlace_data();
    void arrowPlace();
    void arrowOnlyWithMenu();
    void styleSheetDrawsNothing();
    void rightToLeft();
};

// The second registration of this program runs it at twice the pixels.
void tst_RibbonButtonContents::scaleIsAsAsked()
{
    QWidget window;
    const int asked = qEnvironmentVariable("QT_SCALE_FACTOR", QStringLiteral("1")).toInt();
    QCOMPARE(qRound(window.grab().devicePixelRatio()), asked);
}

void tst_RibbonButtonContents::iconPlace_data()
{
    QTest::addColumn<Qt::ToolButtonStyle>("style");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QRect>("expected");

    const auto wide = [](const QString &text) {
        return QFontMetrics(QApplication::font()).size(Qt::TextSingleLine, text).width() + 10;
    };
    const QString even = QStringLiteral("Paste Special");
    const QString odd = QStringLiteral("Paste Special.");
    QTest::newRow("large") << large << QString() << QRect(6, 7, 24, 24);
    QTest::newRow("large, wide") << large << even << QRect((wide(even) - 24) / 2, 7, 24, 24);
    QTest::newRow("large, wide, another") << large << odd << QRect((wide(odd) - 24) / 2, 7, 24, 24);
    QTest::newRow("small") << small << QString() << QRect(3, 3, 16, 16);
    QTest::newRow("small, wide") << small << even << QRect(3, 3, 16, 16);
    QTest::newRow("icon-only") << iconOnly << QString() << QRect(3, 3, 16, 16);
}

void tst_RibbonButtonContents::iconPlace()
{
    QFETCH(const Qt::ToolButtonStyle, style);
    QFETCH(const QString, text);
    QFETCH(const QRect, expected);
    QAction action(plainIcon(), text);
    Scene scene;
    RibbonButton *button = scene.addButton(style, &action, QToolButton::DelayedPopup);
    // The icon size of the tool button is not what counts.
    button->setIconSize(QSize(40, 40));
    QVERIFY(scene.open());
    const Shot shot(button);
    QCOMPARE(shot.otherThan(Qt::red, expected), QString());
    const QRect found = shot.bounds(Qt::red, button->rect());
    QCOMPARE(found, QRect(expected.topLeft() * shot.ratio(), expected.size() * shot.ratio()));
}

void tst_RibbonButtonContents::iconModeAndState_data()
{
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<bool>("checked");
    QTest::addColumn<bool>("mouseOver");
    QTest::addColumn<bool>("down");
    QTest::addColumn<QColor>("expected");

    QTest::newRow("idle") << true << false << false << false << QColor(Qt::red);
    QTest::newRow("hovered") << true << false << true << false << QColor(Qt::red);
    QTest::newRow("pressed") << true << false << true << true << QColor(Qt::red);
    QTest::newRow("checked") << true << true << false << false << QColor(Qt::red);
    QTest::newRow("checked, hovered") << true << true << true << false << QColor(Qt::red);
    QTest::newRow("disabled") << false << false << false << false << QColor(Qt::green);
    QTest::newRow("disabled, checked") << false << true << false << false << QColor(Qt::green);
    QTest::newRow("disabled, hovered") << false << false << true << false << QColor(Qt::green);
}

void tst_RibbonButtonContents::iconModeAndState()
{
    QFETCH(const bool, enabled);
    QFETCH(const bool, checked);
    QFETCH(const bool, mouseOver);
    QFETCH(const bool, down);
    QFETCH(const QColor, expected);
    for (const auto style : {large, small, iconOnly}) {
        QAction action(plainIcon(), QString());
        action.setCheckable(true);
        action.setChecked(checked);
        action.setEnabled(enabled);
        Scene scene;
        RibbonButton *button = scene.addButton(style, &action, QToolButton::DelayedPopup);
        QVERIFY(scene.open());
        if (mouseOver)
            scene.moveMouseTo(button, QPoint(10, 10));
        if (down)
            scene.press(button, QPoint(10, 10));
        const Shot shot(button);
        if (down)
            scene.release(button, QPoint(10, 10));
        QCOMPARE(
            shot.otherThan(expected, style == large ? QRect(6, 7, 24, 24) : QRect(3, 3, 16, 16)),
            QString());
    }
}

void tst_RibbonButtonContents::iconIsSharp_data()
{
    iconPlace_data();
}

void tst_RibbonButtonContents::iconIsSharp()
{
    QFETCH(const Qt::ToolButtonStyle, style);
    QFETCH(const QString, text);
    QFETCH(const QRect, expected);
    QAction action(QIcon(new StripesEngine), text);
    Scene scene;
    RibbonButton *button = scene.addButton(style, &action, QToolButton::DelayedPopup);
    QVERIFY(scene.open());
    const Shot shot(button);
    const int ratio = shot.ratio();
    for (int y = 0; y < expected.height() * ratio; ++y) {
        for (int x = 0; x < expected.width() * ratio; ++x) {
            QCOMPARE(shot.device(expected.x() * ratio + x, expected.y() * ratio + y),
                     QColor(x % 2 ? Qt::green : Qt::red));
        }
    }
}

void tst_RibbonButtonContents::noIcon()
{
    for (const auto style : {large, small, iconOnly}) {
        QAction action;
        Scene scene;
        RibbonButton *button = scene.addButton(style, &action, QToolButton::DelayedPopup);
        QVERIFY(scene.open());
        QCOMPARE(Shot(button).otherThan(unpainted, button->rect()), QString());
        action.setIcon(plainIcon());
        QCOMPARE(Shot(button).at(10, 10), QColor(Qt::red));
        action.setIcon(QIcon());
        QCOMPARE(Shot(button).otherThan(unpainted, button->rect()), QString());
    }
}

void tst_RibbonButtonContents::textPlace_data()
{
    QTest::addColumn<Qt::ToolButtonStyle>("style");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QToolButton::ToolButtonPopupMode>("mode");

    for (const int count : {1, 2, 3, 7}) {
        QTest::addRow("large, %d", count) << large << blocks(count) << QToolButton::DelayedPopup;
        QTest::addRow("small, %d", count) << small << blocks(count) << QToolButton::DelayedPopup;
        QTest::addRow("split, %d", count) << small << blocks(count) << QToolButton::MenuButtonPopup;
    }
}

void tst_RibbonButtonContents::textPlace()
{
    QFETCH(const Qt::ToolButtonStyle, style);
    QFETCH(const QString, text);
    QFETCH(const QToolButton::ToolButtonPopupMode, mode);
    QAction action(text);
    Scene scene;
    RibbonButton *button = scene.addButton(style, &action, mode);
    QVERIFY(scene.open());
    const Shot shot(button);

    const QFontMetrics metrics(QApplication::font());
    const int width = metrics.size(Qt::TextSingleLine, text).width();
    const QPoint topLeft = style == large ? QPoint(qMax(5, (qMax(36, width + 10) - width) / 2), 37)
                                          : QPoint(24, (22 - metrics.height()) / 2);
    const QRectF block = QFontMetricsF(QApplication::font()).tightBoundingRect(blocks(1));
    const qreal baseline = topLeft.y() + metrics.ascent();
    const qreal advance = QFontMetricsF(QApplication::font()).horizontalAdvance(text);
    const qreal left = topLeft.x() + (style == large ? (width - advance) / 2 : 0);
    const QRectF expected(left, baseline + block.top(), advance, block.height());
    const QRect found = shot.bounds(Qt::black, button->rect());
    QVERIFY(!found.isEmpty());
    const int ratio = shot.ratio();
    QCOMPARE_LE(qAbs(found.x() - expected.x() * ratio), ratio);
    QCOMPARE_LE(qAbs(found.right() + 1 - expected.right() * ratio), ratio);
    QCOMPARE_LE(qAbs(found.y() - qMax(0., expected.y()) * ratio), ratio);
    const qreal bottom = qMin(qreal(button->height()), expected.bottom());
    QCOMPARE_LE(qAbs(found.bottom() + 1 - bottom * ratio), ratio);
}

void tst_RibbonButtonContents::textOfTwoLinesIsCentredLineByLine()
{
    const QFontMetrics metrics(QApplication::font());
    const int width = metrics.size(Qt::TextSingleLine, blocks(5)).width();
    const int narrow = metrics.horizontalAdvance(blocks(1));
    for (const QString &text : {blocks(5) + u'\n' + blocks(1), blocks(1) + u'\n' + blocks(5)}) {
        const bool firstIsWide = text.at(1) != u'\n';
        QAction action(text);
        Scene scene;
        RibbonButton *button = scene.addButton(large, &action, QToolButton::DelayedPopup);
        QVERIFY(scene.open());
        QCOMPARE(button->width(), width + 10);
        const Shot shot(button);
        const int ratio = shot.ratio();
        for (const bool first : {true, false}) {
            const int middle = 37 + metrics.height() / 2 + (first ? 0 : metrics.lineSpacing());
            const QRect line = shot.bounds(Qt::black, QRect(0, middle, button->width(), 1));
            const int expectedWidth = first == firstIsWide ? width : narrow;
            QVERIFY(!line.isEmpty());
            QCOMPARE_LE(qAbs(line.width() - expectedWidth * ratio), 2 * ratio);
            QCOMPARE_LE(qAbs(line.center().x() - button->width() * ratio / 2), ratio);
        }
        const int below = 37 + 2 * metrics.lineSpacing() + 3;
        QCOMPARE(shot.otherThan(unpainted, QRect(0, below, button->width(), 72 - below)),
                 QString());
    }
}

void tst_RibbonButtonContents::textOfThreeLines()
{
    const QFontMetrics metrics(QApplication::font());
    QAction action(blocks(1) + u'\n' + blocks(5) + u'\n' + blocks(3));
    Scene scene;
    RibbonButton *button = scene.addButton(large, &action, QToolButton::DelayedPopup);
    QVERIFY(scene.open());
    const Shot shot(button);
    const int ratio = shot.ratio();
    int line = 0;
    for (const int count : {1, 5}) {
        const int middle = 37 + metrics.height() / 2 + line++ * metrics.lineSpacing();
        const QRect found = shot.bounds(Qt::black, QRect(0, middle, button->width(), 1));
        QCOMPARE_LE(qAbs(found.width() - advanceOf(blocks(count)) * ratio), 2 * ratio);
        QCOMPARE_LE(qAbs(found.center().x() - button->width() * ratio / 2), ratio);
    }
}

void tst_RibbonButtonContents::ampersandIsDrawn()
{
    const QString text = blocks(1) + u'&' + blocks(1);
    const int advance = advanceOf(text);
    for (const auto style : {large, small}) {
        QAction action(text);
        Scene scene;
        RibbonButton *button = scene.addButton(style, &action, QToolButton::DelayedPopup);
        QVERIFY(scene.open());
        const Shot shot(button);
        const QRect found = shot.bounds(Qt::black, button->rect());
        QCOMPARE_LE(qAbs(found.width() - advance * shot.ratio()), 2 * shot.ratio());
    }
}

void tst_RibbonButtonContents::iconOnlyTextIsClipped()
{
    QAction action(blocks(3));
    Scene scene;
    RibbonButton *button = scene.addButton(iconOnly, &action, QToolButton::DelayedPopup);
    QVERIFY(scene.open());
    QCOMPARE(Shot(button).otherThan(unpainted, QRect(-10, -5, 100, 40)), QString());

    // The text is there: a button that is still as wide as it was shows it where a small one does.
    button->setToolButtonStyle(large);
    button->setFixedSize(5, 5);
    button->setToolButtonStyle(iconOnly);
    QVERIFY(button->width() > 30);
    const Shot shot(button);
    const QRect found = shot.bounds(Qt::black, button->rect());
    QCOMPARE_LE(qAbs(found.left() - 24 * shot.ratio()), shot.ratio());
    QCOMPARE(found.right(), button->width() * shot.ratio() - 1);
    QVERIFY(found.top() > 20 * shot.ratio());
    QVERIFY(found.bottom() < 52 * shot.ratio());
}

void tst_RibbonButtonContents::textColour_data()
{
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<bool>("checked");
    QTest::addColumn<bool>("mouseOver");
    QTest::addColumn<bool>("down");
    QTest::addColumn<QColor>("expected");

    QTest::newRow("idle") << true << false << false << false << QColor(Qt::black);
    QTest::newRow("hovered") << true << false << true << false << QColor(Qt::black);
    QTest::newRow("pressed") << true << false << true << true << QColor(Qt::black);
    QTest::newRow("checked") << true << true << false << false << QColor(Qt::black);
    QTest::newRow("disabled") << false << false << false << false << lightGrey;
    QTest::newRow("disabled, checked") << false << true << false << false << lightGrey;
}

void tst_RibbonButtonContents::textColour()
{
    QFETCH(const bool, enabled);
    QFETCH(const bool, checked);
    QFETCH(const bool, mouseOver);
    QFETCH(const bool, down);
    QFETCH(const QColor, expected);
    for (const auto style : {large, small}) {
        QAction action(blocks(2));
        action.setCheckable(true);
        action.setChecked(checked);
        action.setEnabled(enabled);
        Scene scene;
        // The colours are the button's own, whatever palette it is given.
        QPalette colours = scene.palette();
        for (const auto role : {QPalette::ButtonText, QPalette::WindowText, QPalette::Text})
            colours.setColor(role, Qt::red);
        scene.setPalette(colours);
        RibbonButton *button = scene.addButton(style, &action, QToolButton::DelayedPopup);
        QVERIFY(scene.open());
        if (mouseOver)
            scene.moveMouseTo(button, QPoint(10, 10));
        if (down)
            scene.press(button, QPoint(10, 10));
        const Shot shot(button);
        if (down)
            scene.release(button, QPoint(10, 10));
        QCOMPARE(
            shot.otherThan(expected, style == large ? QRect(15, 40, 6, 6) : QRect(26, 8, 12, 6)),
            QString());
    }
}

void tst_RibbonButtonContents::textChangedAfterMeasuring()
{
    QAction action(blocks(7));
    Scene scene;
    RibbonButton *button = scene.addButton(large, &action, QToolButton::DelayedPopup);
    QVERIFY(scene.open());
    // Drawn from where the measured text began, in its own size.
    action.setText(blocks(1));
    const Shot shorter(button);
    const QRect found = shorter.bounds(Qt::black, button->rect());
    QCOMPARE_LE(qAbs(found.left() - 5 * shorter.ratio()), shorter.ratio());
    QCOMPARE_LE(qAbs(found.width() - advanceOf(blocks(1)) * shorter.ratio()), 2 * shorter.ratio());

    action.setText(blocks(20));
    const Shot longer(button);
    const QRect cut = longer.bounds(Qt::black, QRect(-10, 0, button->width() + 60, 72));
    QCOMPARE_LE(qAbs(cut.left() - 5 * longer.ratio()), longer.ratio());
    QCOMPARE(cut.right(), button->width() * longer.ratio() - 1);
}

void tst_RibbonButtonContents::textInOwnFont()
{
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(20);
    const int width = QFontMetrics(font).horizontalAdvance(blocks(3));
    for (const auto style : {large, small}) {
        QAction action(blocks(3));
        action.setFont(font);
        Scene scene;
        RibbonButton *button = scene.addButton(style, &action, QToolButton::DelayedPopup);
        QVERIFY(scene.open());
        const Shot shot(button);
        const QRect found = shot.bounds(Qt::black, button->rect());
        QCOMPARE_LE(qAbs(found.width() - width * shot.ratio()), 2 * shot.ratio());
        QCOMPARE_LE(qAbs(found.left() - (style == large ? 5 : 24) * shot.ratio()), shot.ratio());
    }
}

void tst_RibbonButtonContents::arrowPlace_data()
{
    QTest::addColumn<Qt::ToolButtonStyle>("style");
    QTest::addColumn<QToolButton::ToolButtonPopupMode>("mode");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("enabled");

    const QMap<QToolButton::ToolButtonPopupMode, const char *> modes{
        {QToolButton::DelayedPopup, "delayed"},
        {QToolButton::MenuButtonPopup, "split"},
        {QToolButton::InstantPopup, "instant"}};
    for (auto mode = modes.begin(); mode != modes.end(); ++mode) {
        for (const auto style : {large, small}) {
            for (const QString &text :
                 {QString(), QStringLiteral("Paste it"), QStringLiteral("Paste it."),
                  QStringLiteral("Paste it..")}) {
                for (const bool enabled : {true, false}) {
                    QTest::addRow("%s, %s, \"%s\", %s", style == large ? "large" : "small",
                                  mode.value(), qPrintable(text), enabled ? "enabled" : "disabled")
                        << style << mode.key() << text << enabled;
                }
            }
        }
    }
}

void tst_RibbonButtonContents::arrowPlace()
{
    QFETCH(const Qt::ToolButtonStyle, style);
    QFETCH(const QToolButton::ToolButtonPopupMode, mode);
    QFETCH(const QString, text);
    QFETCH(const bool, enabled);
    QMenu menu;
    QAction action(text);
    action.setMenu(&menu);
    action.setEnabled(enabled);
    Scene scene;
    RibbonButton *button = scene.addButton(style, &action, mode);
    QVERIFY(scene.open());
    const Shot shot(button);
    const int ratio = shot.ratio();

    const auto drawing = [ratio](QIcon::Mode iconMode) {
        const QPixmap pixmap =
            QIcon(QStringLiteral(":/res/arrow.svg")).pixmap(QSize(8, 4), ratio, iconMode);
        QImage image(QSize(8, 4) * ratio, QImage::Format_RGB32);
        image.setDevicePixelRatio(ratio);
        image.fill(unpainted);
        QPainter painter(&image);
        painter.drawPixmap(0, 0, pixmap);
        return image;
    };
    const QImage expected = drawing(enabled ? QIcon::Normal : QIcon::Disabled);
    QVERIFY(drawing(QIcon::Normal) != drawing(QIcon::Disabled));
    const QPoint place = arrowOf(button).boundingRect().topLeft() * ratio;
    int inked = 0;
    for (int y = 0; y < expected.height(); ++y) {
        for (int x = 0; x < expected.width(); ++x) {
            inked += expected.pixelColor(x, y) != unpainted;
            if (style == small && mode == QToolButton::DelayedPopup && !text.isEmpty())
                continue; // Without room of its own the arrow lies on the text.
            QVERIFY2(
                isClose(shot.device(place.x() + x, place.y() + y), expected.pixelColor(x, y), 2),
                qPrintable(QStringLiteral("%1 %2").arg(x).arg(y)));
        }
    }
    QVERIFY(inked >= 4 * ratio * ratio);
    if (text.isEmpty()) {
        QCOMPARE(shot.otherThan(unpainted, QRegion(button->rect()) - arrowOf(button)), QString());
    }
}

void tst_RibbonButtonContents::arrowOnlyWithMenu()
{
    for (const auto style : {large, small, iconOnly}) {
        QMenu menu;
        QAction action;
        Scene scene;
        RibbonButton *button = scene.addButton(style, &action, QToolButton::MenuButtonPopup);
        QVERIFY(scene.open());
        QCOMPARE(Shot(button).otherThan(unpainted, button->rect()), QString());
        action.setMenu(&menu);
        const QString other = Shot(button).otherThan(unpainted, button->rect());
        QCOMPARE(other.isEmpty(), style == iconOnly);
        action.setMenu(nullptr);
        QCOMPARE(Shot(button).otherThan(unpainted, button->rect()), QString());
    }
}

void tst_RibbonButtonContents::styleSheetDrawsNothing()
{
    QAction action(blocks(2));
    Scene scene;
    scene.setStyleSheet(QStringLiteral(
        "QToolButton, QToolButton:hover { background: red; border: 2px solid red; color: red }"));
    RibbonButton *button = scene.addButton(large, &action, QToolButton::DelayedPopup);
    QVERIFY(scene.open());
    QVERIFY(Shot(button).bounds(Qt::red, button->rect()).isEmpty());
    QCOMPARE(Shot(button).otherThan(unpainted, QRect(0, 0, button->width(), 36)), QString());
    QCOMPARE(Shot(button).at(18, 44), QColor(Qt::black));
    scene.moveMouseTo(button, QPoint(10, 10));
    QVERIFY(Shot(button).bounds(Qt::red, button->rect()).isEmpty());
    QCOMPARE(Shot(button).at(10, 10), white);
}

// Nothing is mirrored.
void tst_RibbonButtonContents::rightToLeft()
{
    QMenu menu;
    QAction action(plainIcon(), blocks(3));
    action.setMenu(&menu);
    const auto grab = [&action](Qt::ToolButtonStyle style, Qt::LayoutDirection direction) {
        Scene scene;
        scene.setLayoutDirection(direction);
        RibbonButton *button = scene.addButton(style, &action, QToolButton::MenuButtonPopup);
        if (!scene.open())
            return QImage();
        scene.moveMouseTo(button, QPoint(3, 3));
        return scene.grab().toImage();
    };
    for (const auto style : {large, small, iconOnly}) {
        const QImage usual = grab(style, Qt::LeftToRight);
        QVERIFY(!usual.isNull());
        QCOMPARE(grab(style, Qt::RightToLeft), usual);
    }
}

NORVANE_TEST_MAIN(tst_RibbonButtonContents)
#include "tst_RibbonButtonContents.moc"
