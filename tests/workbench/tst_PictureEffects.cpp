// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "Files.h"
#include "TestCase.h"
#include "picture/EffectPreview.h"
#include "picture/PictureEffects.h"

#include <QtCore/QSet>
#include <QtGui/QColorSpace>
#include <QtTest/QTest>

#include <algorithm>
#include <cmath>
#include <functional>
#include <numeric>

using namespace Workbench;

class tst_PictureEffects : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void offersFiveGroups();
    void changesColours_data();
    void changesColours();
    void spreadsOverTheFullRange();
    void keepsOpacity_data();
    void keepsOpacity();
    void blursEdges_data();
    void blursEdges();
    void blursToTheSidesOnly();
    void blursInBothDirections();
    void doesNotBleedWhatIsTransparent();
    void glowsAroundLight();
    void takesAwaySpots();
    void overshootsAtEdges();
    void changesTheSize_data();
    void changesTheSize();
    void keepsTheMiddle();
    void putsAWhiteBorderAround();
    void mirrorsTheLeftHalf();
    void movesLinesInAWave();
    void turnsTheMiddle();
    void drawsOutlines();
    void paintsFlatPatches();
    void printsFewColours();
    void laysTiles();
    void embossesEdges();
    void darkensTheCorners();
    void scattersTheSameGrain();
    void worksOnLargePictures_data();
    void worksOnLargePictures();
    void takesEveryKindOfPicture_data();
    void takesEveryKindOfPicture();
    void previewsDiffer();
};

static PictureEffect find(const QString &name)
{
    const QList<PictureEffectGroup> groups = PictureEffects::groups();
    for (const PictureEffectGroup &group : groups) {
        for (const PictureEffect &effect : group.effects) {
            if (effect.name == name)
                return effect;
        }
    }
    qFatal("There is no such effect");
}

static QImage apply(const char *name, const QImage &image)
{
    return find(QString::fromLatin1(name)).apply(image);
}

static QImage filled(QSize size, QColor colour)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(colour);
    return image;
}

// The left half dark, the right half light.
static QImage edge(int side, int dark = 0, int light = 255)
{
    QImage image = filled(QSize(side, side), QColor(dark, dark, dark));
    for (int y = 0; y < side; ++y) {
        for (int x = side / 2; x < side; ++x)
            image.setPixelColor(x, y, QColor(light, light, light));
    }
    return image;
}

static QImage turned(const QImage &image)
{
    return image.transformed(QTransform().rotate(90));
}

static QImage spot(int side)
{
    QImage image = filled(QSize(side, side), Qt::black);
    image.setPixelColor(side / 2, side / 2, Qt::white);
    return image;
}

// Colours of all kinds, the same each time.
static QImage colourful(QSize size)
{
    QImage image(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x)
            image.setPixelColor(x, y, QColor(x * 37 % 256, y * 59 % 256, (x * y + 11 * x) % 256));
    }
    return image;
}

static int red(const QImage &image, int x, int y)
{
    return image.pixelColor(x, y).red();
}

static bool near(int a, int b, int tolerance)
{
    return std::abs(a - b) <= tolerance;
}

void tst_PictureEffects::offersFiveGroups()
{
    const QList<PictureEffectGroup> groups = PictureEffects::groups();
    QCOMPARE(groups.size(), 5);
    QSet<QString> names;
    for (const PictureEffectGroup &group : groups) {
        QVERIFY(!group.title.isEmpty());
        for (const PictureEffect &effect : group.effects) {
            QVERIFY(!effect.purpose.isEmpty());
            QVERIFY2(!names.contains(effect.name), qPrintable(effect.name));
            names << effect.name;
        }
    }
    QCOMPARE_GE(names.size(), 24);
}

void tst_PictureEffects::changesColours_data()
{
    QTest::addColumn<QColor>("black");
    QTest::addColumn<QColor>("blue");
    QTest::addColumn<QColor>("white");
    const auto grey = [](int value) { return QColor(value, value, value); };
    QTest::newRow("Brighter") << grey(32) << QColor(132, 182, 232) << grey(255);
    QTest::newRow("Darker") << grey(0) << QColor(68, 118, 168) << grey(223);
    QTest::newRow("Contrast") << grey(0) << QColor(86, 161, 236) << grey(255);
    QTest::newRow("Flat") << grey(51) << QColor(111, 141, 171) << grey(204);
    QTest::newRow("Full Range") << grey(0) << QColor(100, 150, 200) << grey(255);
    QTest::newRow("Shadows") << grey(0) << QColor(145, 185, 220) << grey(255);
    QTest::newRow("Negative") << grey(255) << QColor(155, 105, 55) << grey(0);
    // Lightness 140.
    QTest::newRow("Grey") << grey(0) << grey(140) << grey(255);
    QTest::newRow("Sepia") << QColor(38, 22, 8) << QColor(157, 142, 116) << QColor(255, 240, 205);
    QTest::newRow("Blueprint") << QColor(0, 40, 110) << QColor(129, 153, 190)
                               << QColor(235, 245, 255);
    QTest::newRow("Vivid") << grey(0) << QColor(72, 157, 242) << grey(255);
    QTest::newRow("Muted") << grey(0) << QColor(120, 145, 170) << grey(255);
    QTest::newRow("Warm") << QColor(24, 0, 0) << QColor(124, 150, 176) << QColor(255, 255, 231);
    QTest::newRow("Cool") << QColor(0, 0, 24) << QColor(76, 150, 224) << QColor(231, 255, 255);
    QTest::newRow("Poster") << grey(0) << QColor(85, 170, 170) << grey(255);
}

void tst_PictureEffects::changesColours()
{
    QFETCH(QColor, black);
    QFETCH(QColor, blue);
    QFETCH(QColor, white);
    QImage image(3, 1, QImage::Format_RGB32);
    image.setPixelColor(0, 0, Qt::black);
    image.setPixelColor(1, 0, QColor(100, 150, 200));
    image.setPixelColor(2, 0, Qt::white);
    const QImage changed = apply(QTest::currentDataTag(), image);
    QCOMPARE(changed.size(), image.size());
    QCOMPARE(changed.pixelColor(0, 0), black);
    QCOMPARE(changed.pixelColor(1, 0), blue);
    QCOMPARE(changed.pixelColor(2, 0), white);
}

void tst_PictureEffects::spreadsOverTheFullRange()
{
    QImage image = filled(QSize(3, 1), QColor(50, 50, 50));
    image.setPixelColor(1, 0, QColor(50, 80, 100));
    image.setPixelColor(2, 0, QColor(150, 100, 60));
    const QImage changed = apply("Full Range", image);
    QCOMPARE(changed.pixelColor(0, 0), QColor(0, 0, 0));
    QCOMPARE(changed.pixelColor(1, 0), QColor(0, 77, 128));
    QCOMPARE(changed.pixelColor(2, 0), QColor(255, 128, 26));
    // A picture of one colour has no range.
    QCOMPARE(apply("Full Range", filled(QSize(2, 2), QColor(50, 50, 50))).size(), QSize(2, 2));
}

void tst_PictureEffects::keepsOpacity_data()
{
    QTest::addColumn<QString>("name");
    const QList<PictureEffectGroup> groups = PictureEffects::groups();
    for (const PictureEffectGroup &group : groups) {
        for (const PictureEffect &effect : group.effects)
            QTest::newRow(qPrintable(effect.name)) << effect.name;
    }
}

void tst_PictureEffects::keepsOpacity()
{
    QFETCH(QString, name);
    QImage image(40, 24, QImage::Format_ARGB32);
    image.fill(QColor(200, 120, 40, 128));
    const QImage changed = find(name).apply(image);
    const QPoint middle(changed.width() / 2, changed.height() / 2);
    QCOMPARE(changed.pixelColor(middle).alpha(), 128);
}

void tst_PictureEffects::blursEdges_data()
{
    QTest::addColumn<int>("reach");
    QTest::addColumn<int>("fromNear");
    // Three averages over one pixel, or over five, to each side.
    QTest::newRow("Soften") << 3 << 1;
    QTest::newRow("Blur") << 15 << 7;
    QTest::newRow("Motion") << 5 << 4;
}

void tst_PictureEffects::blursEdges()
{
    QFETCH(int, reach);
    QFETCH(int, fromNear);
    const QImage changed = apply(QTest::currentDataTag(), edge(100));
    QCOMPARE(changed.size(), QSize(100, 100));
    for (int x = 1; x < 100; ++x)
        QCOMPARE_GE(red(changed, x, 40), red(changed, x - 1, 40));
    QCOMPARE(red(changed, 49 - reach, 40), 0);
    QCOMPARE(red(changed, 50 + reach, 40), 255);
    QCOMPARE_GT(red(changed, 49 - fromNear, 40), 0);
    QCOMPARE_LT(red(changed, 50 + fromNear, 40), 255);
    QVERIFY(near(red(changed, 49, 40) + red(changed, 50, 40), 255, 4));
}

void tst_PictureEffects::blursToTheSidesOnly()
{
    const QImage lying = turned(edge(100));
    QCOMPARE(apply("Motion", lying), lying);
    QVERIFY(apply("Blur", lying) != lying);
}

void tst_PictureEffects::doesNotBleedWhatIsTransparent()
{
    QImage image(40, 40, QImage::Format_ARGB32);
    // Green that is not seen.
    image.fill(QColor(0, 255, 0, 0));
    for (int y = 0; y < 40; ++y) {
        for (int x = 0; x < 20; ++x)
            image.setPixelColor(x, y, Qt::red);
    }
    const QColor colour = apply("Blur", image).pixelColor(20, 20);
    QVERIFY(colour.alpha() > 0 && colour.alpha() < 255);
    QVERIFY(colour.red() > 240 && colour.green() < 10);
}

void tst_PictureEffects::glowsAroundLight()
{
    const QImage before = edge(50);
    const QImage changed = apply("Glow", before);
    QCOMPARE(red(changed, 5, 20), 0);
    QCOMPARE_GT(red(changed, 24, 20), 20);
    QCOMPARE(red(changed, 40, 20), 255);
}

void tst_PictureEffects::takesAwaySpots()
{
    QCOMPARE(apply("Despeckle", spot(9)), filled(QSize(9, 9), Qt::black));
    QCOMPARE(apply("Despeckle", edge(10)), edge(10));
}

void tst_PictureEffects::overshootsAtEdges()
{
    const QImage before = edge(40, 100, 150);
    const QImage sharp = apply("Sharpen", before);
    const QImage crisp = apply("Crisp", before);
    QCOMPARE_LT(red(sharp, 19, 20), 98);
    QCOMPARE_GT(red(sharp, 20, 20), 152);
    QCOMPARE_LT(red(crisp, 19, 20), red(sharp, 19, 20));
    QCOMPARE_GT(red(crisp, 20, 20), red(sharp, 20, 20));
    for (const QImage &image : {sharp, crisp}) {
        QCOMPARE(red(image, 5, 20), 100);
        QCOMPARE(red(image, 35, 20), 150);
    }
}

void tst_PictureEffects::changesTheSize_data()
{
    QTest::addColumn<QSize>("before");
    QTest::addColumn<QSize>("after");
    QTest::newRow("Half Size") << QSize(40, 20) << QSize(20, 10);
    QTest::newRow("Half Size ") << QSize(41, 21) << QSize(21, 11);
    QTest::newRow("Half Size  ") << QSize(1, 1) << QSize(1, 1);
    QTest::newRow("Double Size") << QSize(41, 20) << QSize(82, 40);
    QTest::newRow("Square") << QSize(41, 20) << QSize(20, 20);
    QTest::newRow("Square ") << QSize(20, 41) << QSize(20, 20);
    QTest::newRow("Border") << QSize(40, 20) << QSize(42, 22);
    QTest::newRow("Border ") << QSize(320, 160) << QSize(340, 180);
    const QList<PictureEffectGroup> groups = PictureEffects::groups();
    const QSet<QString> others = {QStringLiteral("Half Size"), QStringLiteral("Double Size"),
                                  QStringLiteral("Square"), QStringLiteral("Border")};
    for (const PictureEffectGroup &group : groups) {
        for (const PictureEffect &effect : group.effects) {
            if (!others.contains(effect.name))
                QTest::newRow(qPrintable(effect.name)) << QSize(41, 20) << QSize(41, 20);
        }
    }
}

void tst_PictureEffects::changesTheSize()
{
    QFETCH(QSize, before);
    QFETCH(QSize, after);
    QImage image = Files::quarters(before);
    image.setDotsPerMeterX(1234);
    image.setDotsPerMeterY(2345);
    image.setColorSpace(QColorSpace::AdobeRgb);
    const QImage changed = apply(QByteArray(QTest::currentDataTag()).trimmed(), image);
    QCOMPARE(changed.size(), after);
    QCOMPARE(changed.dotsPerMeterX(), 1234);
    QCOMPARE(changed.dotsPerMeterY(), 2345);
    QCOMPARE(changed.colorSpace(), QColorSpace(QColorSpace::AdobeRgb));
}

void tst_PictureEffects::keepsTheMiddle()
{
    const QImage image = colourful(QSize(40, 20));
    QCOMPARE(apply("Square", image), image.copy(10, 0, 20, 20));
    QCOMPARE(apply("Square", turned(image)), turned(image).copy(0, 10, 20, 20));
    for (const char *name : {"Half Size", "Double Size"}) {
        const QImage resized = apply(name, Files::quarters(QSize(40, 20)));
        const int right = resized.width() - 2;
        const int bottom = resized.height() - 2;
        QCOMPARE(resized.pixelColor(1, 1), QColor(Qt::red));
        QCOMPARE(resized.pixelColor(right, 1), QColor(Qt::green));
        QCOMPARE(resized.pixelColor(1, bottom), QColor(Qt::blue));
        QCOMPARE(resized.pixelColor(right, bottom), QColor(Qt::white));
    }
}

void tst_PictureEffects::putsAWhiteBorderAround()
{
    const QImage image = colourful(QSize(64, 48));
    QImage expected = filled(QSize(70, 54), Qt::white);
    for (int y = 0; y < 48; ++y) {
        for (int x = 0; x < 64; ++x)
            expected.setPixelColor(x + 3, y + 3, image.pixelColor(x, y));
    }
    QCOMPARE(apply("Border", image), expected);
}

void tst_PictureEffects::mirrorsTheLeftHalf()
{
    const QImage image = colourful(QSize(41, 20));
    const QImage changed = apply("Symmetry", image);
    for (int y = 0; y < 20; ++y) {
        for (int x = 0; x <= 20; ++x) {
            QCOMPARE(changed.pixelColor(x, y), image.pixelColor(x, y));
            QCOMPARE(changed.pixelColor(40 - x, y), image.pixelColor(x, y));
        }
    }
}

void tst_PictureEffects::movesLinesInAWave()
{
    const QImage image = colourful(QSize(60, 120));
    const QImage changed = apply("Wave", image);
    for (int x = 2; x < 58; ++x) {
        // A wave is 40 lines long and two pixels high.
        QCOMPARE(changed.pixelColor(x, 0), image.pixelColor(x, 0));
        QCOMPARE(changed.pixelColor(x, 10), image.pixelColor(x + 2, 10));
        QCOMPARE(changed.pixelColor(x, 30), image.pixelColor(x - 2, 30));
    }
}

void tst_PictureEffects::turnsTheMiddle()
{
    // The colours tell where a pixel was.
    QImage image(101, 101, QImage::Format_RGB32);
    for (int y = 0; y < 101; ++y) {
        for (int x = 0; x < 101; ++x)
            image.setPixelColor(x, y, QColor(2 * x, 2 * y, 0));
    }
    const QImage changed = apply("Swirl", image);
    const QPointF centre(50, 50);
    for (int y = 0; y < 101; ++y) {
        for (int x = 0; x < 101; ++x) {
            const QColor colour = changed.pixelColor(x, y);
            const QPointF was = QPointF(colour.red() / 2.0, colour.green() / 2.0) - centre;
            const QPointF is = QPointF(x, y) - centre;
            const qreal distance = std::hypot(is.x(), is.y());
            QVERIFY(std::abs(std::hypot(was.x(), was.y()) - distance) < 1);
            if (distance < 5)
                continue;
            const qreal share = std::max(0.0, 1 - distance / 50.5);
            const qreal angle = std::atan2(was.y(), was.x()) - std::atan2(is.y(), is.x());
            QVERIFY(std::abs(std::remainder(angle - 3 * share * share, 2 * M_PI)) < 0.2);
        }
    }
}

void tst_PictureEffects::drawsOutlines()
{
    const QImage changed = apply("Pencil", edge(20));
    for (int x = 0; x < 20; ++x)
        QCOMPARE(changed.pixelColor(x, 10), QColor(x == 9 || x == 10 ? Qt::black : Qt::white));
    QCOMPARE(apply("Pencil", turned(edge(20))).pixelColor(10, 10), QColor(Qt::black));
}

void tst_PictureEffects::paintsFlatPatches()
{
    QCOMPARE(apply("Oil Paint", spot(21)), filled(QSize(21, 21), Qt::black));
    QCOMPARE(apply("Oil Paint", edge(20)), edge(20));
    const QImage painted = apply("Oil Paint", colourful(QSize(40, 40)));
    QVERIFY(painted != colourful(QSize(40, 40)));
}

void tst_PictureEffects::printsFewColours()
{
    const QImage changed = apply("Poster", colourful(QSize(64, 64)));
    const QSet<int> levels = {0, 85, 170, 255};
    for (int y = 0; y < 64; ++y) {
        for (int x = 0; x < 64; ++x) {
            const QColor colour = changed.pixelColor(x, y);
            QVERIFY(levels.contains(colour.red()) && levels.contains(colour.green())
                    && levels.contains(colour.blue()));
        }
    }
    QCOMPARE(apply("Poster", changed), changed);
}

void tst_PictureEffects::laysTiles()
{
    const QImage image = colourful(QSize(66, 64));
    const QImage changed = apply("Mosaic", image);
    for (int top = 0; top < 64; top += 4) {
        for (int left = 0; left < 66; left += 4) {
            const int width = std::min(4, 66 - left);
            int sum = 0;
            for (int y = top; y < top + 4; ++y) {
                for (int x = left; x < left + width; ++x) {
                    QCOMPARE(changed.pixel(x, y), changed.pixel(left, top));
                    sum += red(image, x, y);
                }
            }
            QVERIFY(near(red(changed, left, top), sum / (4 * width), 3));
        }
    }
}

void tst_PictureEffects::embossesEdges()
{
    const QImage changed = apply("Emboss", edge(20, 100, 150));
    const QColor flat(128, 128, 128);
    QCOMPARE(changed.pixelColor(4, 10), flat);
    QCOMPARE(changed.pixelColor(15, 10), flat);
    QCOMPARE(changed.pixelColor(9, 10), QColor(178, 178, 178));
    const QImage other = apply("Emboss", edge(20, 150, 100));
    QCOMPARE(other.pixelColor(9, 10), QColor(78, 78, 78));
}

void tst_PictureEffects::darkensTheCorners()
{
    const QImage changed = apply("Vignette", filled(QSize(101, 101), QColor(200, 200, 200)));
    QCOMPARE(red(changed, 50, 50), 200);
    for (const QPoint corner : {QPoint(0, 0), QPoint(100, 0), QPoint(0, 100), QPoint(100, 100)})
        QCOMPARE(changed.pixelColor(corner), QColor(30, 30, 30));
    for (int i = 1; i <= 50; ++i)
        QCOMPARE_GE(red(changed, i, i), red(changed, i - 1, i - 1));
}

void tst_PictureEffects::scattersTheSameGrain()
{
    const QImage image = filled(QSize(100, 100), QColor(128, 128, 128));
    const QImage changed = apply("Grain", image);
    QCOMPARE(apply("Grain", image), changed);
    qint64 sum = 0;
    QSet<int> values;
    for (int y = 0; y < 100; ++y) {
        for (int x = 0; x < 100; ++x) {
            sum += red(changed, x, y);
            values << red(changed, x, y);
        }
    }
    QVERIFY(near(int(sum / 10000), 128, 1));
    QCOMPARE(values.size(), 61);
    QCOMPARE(*std::min_element(values.cbegin(), values.cend()), 98);
    QCOMPARE(*std::max_element(values.cbegin(), values.cend()), 158);
}

// A picture as it is defined at each place, computed without regard to time.
using Definition = std::function<QRgb(const QImage &, int, int)>;

static QRgb at(const QImage &image, int x, int y)
{
    return image.pixel(qBound(0, x, image.width() - 1), qBound(0, y, image.height() - 1));
}

static QRgb meanAround(const QImage &image, int x, int y, int across, int down)
{
    int red = 0;
    int green = 0;
    int blue = 0;
    for (int row = y - down; row <= y + down; ++row) {
        for (int column = x - across; column <= x + across; ++column) {
            const QRgb pixel = at(image, column, row);
            red += qRed(pixel);
            green += qGreen(pixel);
            blue += qBlue(pixel);
        }
    }
    const double count = (2 * across + 1) * (2 * down + 1);
    return qRgb(qRound(red / count), qRound(green / count), qRound(blue / count));
}

static QRgb medianAround(const QImage &image, int x, int y)
{
    QList<QRgb> pixels;
    for (int i = 0; i < 9; ++i)
        pixels << at(image, x + i % 3 - 1, y + i / 3 - 1);
    std::sort(pixels.begin(), pixels.end(),
              [](QRgb a, QRgb b) { return qGray(a) != qGray(b) ? qGray(a) < qGray(b) : a < b; });
    return pixels.at(4);
}

static QRgb mostCommonAround(const QImage &image, int x, int y)
{
    QList<QList<QRgb>> pixels(16);
    for (int row = std::max(0, y - 3); row <= std::min(image.height() - 1, y + 3); ++row) {
        for (int column = std::max(0, x - 3); column <= std::min(image.width() - 1, x + 3);
             ++column)
            pixels[qGray(image.pixel(column, row)) / 16] << image.pixel(column, row);
    }
    const QList<QRgb> most =
        *std::max_element(pixels.cbegin(), pixels.cend(),
                          [](const auto &a, const auto &b) { return a.size() < b.size(); });
    const auto mean = [&](int (*channel)(QRgb)) {
        const int sum = std::accumulate(most.cbegin(), most.cend(), 0,
                                        [&](int sum, QRgb pixel) { return sum + channel(pixel); });
        return sum / int(most.size());
    };
    return qRgb(mean(&qRed), mean(&qGreen), mean(&qBlue));
}

static QRgb slopeAround(const QImage &image, int x, int y)
{
    const auto light = [&](int right, int below) { return qGray(at(image, x + right, y + below)); };
    const int across = light(1, -1) + 2 * light(1, 0) + light(1, 1) - light(-1, -1)
        - 2 * light(-1, 0) - light(-1, 1);
    const int down = light(-1, 1) + 2 * light(0, 1) + light(1, 1) - light(-1, -1) - 2 * light(0, -1)
        - light(1, -1);
    const int grey = std::max(0, qRound(255 - std::hypot(across, down)));
    return qRgb(grey, grey, grey);
}

static QRgb reliefAround(const QImage &image, int x, int y)
{
    const int grey =
        qBound(0, 128 + qGray(at(image, x + 1, y + 1)) - qGray(at(image, x - 1, y - 1)), 255);
    return qRgb(grey, grey, grey);
}

void tst_PictureEffects::worksOnLargePictures_data()
{
    QTest::addColumn<Definition>("definition");
    QTest::newRow("Negative") << Definition(
        [](const QImage &image, int x, int y) { return ~image.pixel(x, y) | 0xff000000; });
    QTest::newRow("Motion") << Definition(
        [](const QImage &image, int x, int y) { return meanAround(image, x, y, 8, 0); });
    QTest::newRow("Despeckle") << Definition(&medianAround);
    QTest::newRow("Symmetry") << Definition([](const QImage &image, int x, int y) {
        return image.pixel(std::min(x, image.width() - 1 - x), y);
    });
    QTest::newRow("Pencil") << Definition(&slopeAround);
    QTest::newRow("Oil Paint") << Definition(&mostCommonAround);
    QTest::newRow("Emboss") << Definition(&reliefAround);
}

void tst_PictureEffects::worksOnLargePictures()
{
    QFETCH(const Definition, definition);
    // More lines than one thread is given, and a last part that is smaller than the others.
    const QImage image = colourful(QSize(151, 300));
    const QImage changed = apply(QTest::currentDataTag(), image);
    QCOMPARE(changed.size(), image.size());
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (changed.pixel(x, y) != definition(image, x, y)) {
                QFAIL(qPrintable(QStringLiteral("%1, %2: %3 and not %4")
                                     .arg(x)
                                     .arg(y)
                                     .arg(changed.pixelColor(x, y).name(),
                                          QColor(definition(image, x, y)).name())));
            }
        }
    }
}

void tst_PictureEffects::blursInBothDirections()
{
    // More columns and lines than one thread is given.
    const QImage image = colourful(QSize(140, 150));
    QImage expected = image;
    for (int i = 0; i < 3; ++i) {
        const QImage before = expected;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x)
                expected.setPixel(x, y, meanAround(before, x, y, 7, 7));
        }
    }
    const QImage changed = apply("Blur", image);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor is = changed.pixelColor(x, y);
            const QColor wanted = expected.pixelColor(x, y);
            QVERIFY(near(is.red(), wanted.red(), 2) && near(is.green(), wanted.green(), 2)
                    && near(is.blue(), wanted.blue(), 2));
        }
    }
}

void tst_PictureEffects::takesEveryKindOfPicture_data()
{
    QTest::addColumn<QImage>("image");
    for (const QImage::Format format :
         {QImage::Format_Mono, QImage::Format_Indexed8, QImage::Format_ARGB32_Premultiplied,
          QImage::Format_RGB16, QImage::Format_Grayscale8, QImage::Format_RGBA64,
          QImage::Format_RGBA16FPx4}) {
        QTest::addRow("format %d", int(format)) << colourful(QSize(19, 13)).convertToFormat(format);
    }
    QTest::newRow("a pixel") << filled(QSize(1, 1), Qt::red);
    QTest::newRow("a line") << filled(QSize(50, 1), Qt::red);
    QTest::newRow("a column") << filled(QSize(1, 50), Qt::red);
}

void tst_PictureEffects::takesEveryKindOfPicture()
{
    QFETCH(QImage, image);
    const QImage copy = image.copy();
    const QList<PictureEffectGroup> groups = PictureEffects::groups();
    for (const PictureEffectGroup &group : groups) {
        for (const PictureEffect &effect : group.effects) {
            QVERIFY2(!effect.apply(image).isNull(), qPrintable(effect.name));
            QCOMPARE(image, copy);
        }
    }
}

void tst_PictureEffects::previewsDiffer()
{
    for (const int scale : {1, 2}) {
        const QSize size = QSize(48, 32) * scale;
        QList<QImage> seen = {
            EffectPreview::sample(size).convertToFormat(QImage::Format_ARGB32_Premultiplied)};
        const QList<PictureEffectGroup> groups = PictureEffects::groups();
        for (const PictureEffectGroup &group : groups) {
            for (const PictureEffect &effect : group.effects) {
                const QImage preview = EffectPreview::draw(effect, size);
                QCOMPARE(preview.size(), size);
                QVERIFY2(!seen.contains(preview), qPrintable(effect.name));
                seen << preview;
            }
        }
    }
}

NORVANE_TEST_MAIN(tst_PictureEffects)
#include "tst_PictureEffects.moc"
