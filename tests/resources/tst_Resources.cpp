// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "TestCase.h"

#include <QtCore/QDirIterator>
#include <QtCore/QFile>
#include <QtCore/QResource>
#include <QtCore/QScopeGuard>
#include <QtCore/QXmlStreamReader>
#include <QtGui/QIcon>
#include <QtGui/QImage>

using namespace Qt::StringLiterals;

namespace {

constexpr QRgb Ink = qRgb(68, 68, 68);
constexpr QRgb On = qRgb(0, 75, 135);
constexpr QRgb Hover = qRgb(38, 140, 221);
constexpr QRgb Disabled = qRgb(168, 168, 168);
constexpr QRgb Pressed = qRgb(255, 255, 255);

struct Drawing
{
    const char *name;
    QSize size;
    QRgb colour = Ink;
};

const Drawing drawings[] = {
    {"backward", {16, 16}},
    {"forward", {16, 16}},
    {"dirup", {16, 16}},
    {"browse", {16, 16}},
    {"arrowDown", {8, 8}},
    {"arrowRight", {8, 8}},
    {"upArrowNormal", {17, 17}},
    {"upArrowPressed", {17, 17}, Pressed},
    {"downArrowNormal", {17, 17}},
    {"downArrowPressed", {17, 17}, Pressed},
    {"leftArrowNormal", {17, 17}},
    {"leftArrowPressed", {17, 17}, Pressed},
    {"rightArrowNormal", {17, 17}},
    {"rightArrowPressed", {17, 17}, Pressed},
    {"menu", {10, 10}},
    {"close", {16, 16}},
    {"addNormal", {10, 10}},
    {"addHover", {10, 10}, Hover},
    {"downNormal", {10, 10}},
    {"downHover", {10, 10}, Hover},
    {"leftNormal", {10, 10}},
    {"leftHover", {10, 10}, Hover},
    {"leftDisabled", {10, 10}, Disabled},
    {"rightNormal", {10, 10}},
    {"rightHover", {10, 10}, Hover},
    {"rightDisabled", {10, 10}, Disabled},
    {"drag", {10, 10}},
    {"workSpace", {24, 24}},
    {"arrow", {8, 4}},
    {"toTop", {16, 16}},
    {"toBottom", {16, 16}},
    {"collect", {16, 16}},
    {"collected", {16, 16}, On},
    {"search", {16, 16}},
    {"spinUp", {10, 10}},
    {"spinDown", {10, 10}},
    {"boxChecked", {16, 16}, On},
    {"boxUnchecked", {16, 16}},
    {"radioChecked", {16, 16}, On},
    {"radioUnchecked", {16, 16}},
};

const QStringList sheets{u":/norvane/norvanelight.css"_s, u":/res/addressLight.css"_s,
                         u":/res/dockLight.css"_s, u":/res/ribbonLight.css"_s,
                         u":/res/ribbonDark.css"_s};

// Everything else is stored as it is.
const QStringList compressed{u":/res/addressLight.css"_s, u":/res/dockLight.css"_s,
                             u":/res/ribbonLight.css"_s, u":/res/ribbonDark.css"_s,
                             u":/res/menu.svg"_s};

QString pathOf(const Drawing &drawing)
{
    return u":/res/"_s + QLatin1StringView(drawing.name) + u".svg"_s;
}

QStringList allPaths()
{
    QStringList paths = sheets;
    for (const Drawing &drawing : drawings)
        paths << pathOf(drawing);
    return paths;
}

QByteArray read(const QString &path)
{
    QFile file(path);
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
}

QImage render(const QString &name, QSize size, qreal ratio)
{
    const QIcon icon(u":/res/"_s + name + u".svg"_s);
    QImage image = icon.pixmap(size, ratio).toImage().convertToFormat(QImage::Format_ARGB32);
    image.setDevicePixelRatio(1);
    return image;
}

QRect inkedRect(const QImage &image)
{
    QRect inked;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qAlpha(image.pixel(x, y)) >= 128)
                inked |= QRect(x, y, 1, 1);
        }
    }
    return inked;
}

} // namespace

class Resources : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void holdTheseEntriesAndNoOthers();
    void storageForm_data();
    void storageForm();
    void drawnSize_data() { eachDrawing(); }
    void drawnSize();
    void paintsAtOneAndTwoPixelsADot_data() { eachDrawing(); }
    void paintsAtOneAndTwoPixelsADot();
    void isOfOneColour_data() { eachDrawing(); }
    void isOfOneColour();
    void isCentred_data() { eachDrawing(); }
    void isCentred();
    void mirrored_data();
    void mirrored();
    void arrowPointsWhereItSays_data();
    void arrowPointsWhereItSays();
    void variantsDifferInColourOnly_data();
    void variantsDifferInColourOnly();
    void twoDrawingsOfCloseStayRegistered();

private:
    static void eachDrawing();
};

void Resources::eachDrawing()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QRgb>("colour");
    for (const Drawing &drawing : drawings)
        QTest::newRow(drawing.name)
            << QString::fromLatin1(drawing.name) << drawing.size << drawing.colour;
}

void Resources::holdTheseEntriesAndNoOthers()
{
    QStringList found;
    for (const QString &root : {u":/norvane"_s, u":/res"_s}) {
        QDirIterator it(root, QDir::Files, QDirIterator::Subdirectories);
        while (it.hasNext())
            found << it.next();
    }
    QStringList expected = allPaths();
    found.sort();
    expected.sort();
    QCOMPARE(found, expected);
}

void Resources::storageForm_data()
{
    QTest::addColumn<QString>("path");
    const QStringList paths = allPaths();
    for (const QString &path : paths)
        QTest::newRow(path.toLatin1().constData()) << path;
}

void Resources::storageForm()
{
    QFETCH(QString, path);
    const QResource resource(path);
    QVERIFY(resource.isValid());
    const bool packed = compressed.contains(path);
    QCOMPARE(resource.compressionAlgorithm(),
             packed ? QResource::ZlibCompression : QResource::NoCompression);
    QCOMPARE(resource.uncompressedData(), read(path));
    QCOMPARE(resource.size() < resource.uncompressedSize(), packed);
}

void Resources::drawnSize()
{
    QFETCH(QString, name);
    QFETCH(QSize, size);
    QXmlStreamReader reader(read(u":/res/"_s + name + u".svg"_s));
    QVERIFY(reader.readNextStartElement());
    QCOMPARE(reader.name(), u"svg");
    const QString width = QString::number(size.width());
    const QString height = QString::number(size.height());
    QCOMPARE(reader.attributes().value("width"_L1), width);
    QCOMPARE(reader.attributes().value("height"_L1), height);
    QCOMPARE(reader.attributes().value("viewBox"_L1), u"0 0 "_s + width + u' ' + height);
}

// Without the icon engine of Qt SVG an icon is empty or not sharper at two pixels a dot.
void Resources::paintsAtOneAndTwoPixelsADot()
{
    QFETCH(QString, name);
    QFETCH(QSize, size);
    for (const int ratio : {1, 2}) {
        const QImage image = render(name, size, ratio);
        QCOMPARE(image.size(), size * ratio);
        QVERIFY(inkedRect(image).isValid());
    }
}

void Resources::isOfOneColour()
{
    QFETCH(QString, name);
    QFETCH(QSize, size);
    QFETCH(QRgb, colour);
    const QImage image = render(name, size, 8);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QRgb pixel = image.pixel(x, y);
            if (qAlpha(pixel) < 64)
                continue;
            // What is half transparent was rounded on its way through premultiplied values.
            const int slack = qAlpha(pixel) == 255 ? 0 : 4;
            QCOMPARE_LE(qAbs(qRed(pixel) - qRed(colour)), slack);
            QCOMPARE_LE(qAbs(qGreen(pixel) - qGreen(colour)), slack);
            QCOMPARE_LE(qAbs(qBlue(pixel) - qBlue(colour)), slack);
        }
    }
}

// A line one pixel wide cannot lie in the middle of an even number of pixels: half a one is left.
void Resources::isCentred()
{
    QFETCH(QString, name);
    QFETCH(QSize, size);
    constexpr int Scale = 8;
    const QRect inked = inkedRect(render(name, size, Scale));
    const int left = inked.left();
    const int top = inked.top();
    const int right = size.width() * Scale - 1 - inked.right();
    const int bottom = size.height() * Scale - 1 - inked.bottom();
    QCOMPARE_LE(qAbs(left - right), Scale + 2);
    QCOMPARE_LE(qAbs(top - bottom), Scale + 2);
}

void Resources::mirrored_data()
{
    QTest::addColumn<QString>("other");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<bool>("sideways");
    QTest::newRow("backward") << u"forward"_s << QSize(16, 16) << true;
    QTest::newRow("leftArrowNormal") << u"rightArrowNormal"_s << QSize(17, 17) << true;
    QTest::newRow("leftArrowPressed") << u"rightArrowPressed"_s << QSize(17, 17) << true;
    QTest::newRow("leftNormal") << u"rightNormal"_s << QSize(10, 10) << true;
    QTest::newRow("upArrowNormal") << u"downArrowNormal"_s << QSize(17, 17) << false;
    QTest::newRow("upArrowPressed") << u"downArrowPressed"_s << QSize(17, 17) << false;
    QTest::newRow("spinUp") << u"spinDown"_s << QSize(10, 10) << false;
    QTest::newRow("toTop") << u"toBottom"_s << QSize(16, 16) << false;
}

void Resources::mirrored()
{
    QFETCH(QString, other);
    QFETCH(QSize, size);
    QFETCH(bool, sideways);
    const QImage image = render(QString::fromLatin1(QTest::currentDataTag()), size, 4);
    const QImage mirror = render(other, size, 4).mirrored(sideways, !sideways);
    QVERIFY(image != mirror.mirrored(sideways, !sideways));
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            QCOMPARE_LE(qAbs(qAlpha(image.pixel(x, y)) - qAlpha(mirror.pixel(x, y))), 8);
    }
}

void Resources::arrowPointsWhereItSays_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("turnToPointDown");
    QTest::newRow("arrow") << QSize(8, 4) << 0;
    QTest::newRow("arrowDown") << QSize(8, 8) << 0;
    QTest::newRow("downNormal") << QSize(10, 10) << 0;
    QTest::newRow("downArrowNormal") << QSize(17, 17) << 0;
    QTest::newRow("spinDown") << QSize(10, 10) << 0;
    QTest::newRow("spinUp") << QSize(10, 10) << 180;
    QTest::newRow("upArrowNormal") << QSize(17, 17) << 180;
    QTest::newRow("dirup") << QSize(16, 16) << 180;
    QTest::newRow("arrowRight") << QSize(8, 8) << 90;
    QTest::newRow("rightNormal") << QSize(10, 10) << 90;
    QTest::newRow("rightArrowNormal") << QSize(17, 17) << 90;
    QTest::newRow("forward") << QSize(16, 16) << 90;
    QTest::newRow("leftNormal") << QSize(10, 10) << 270;
    QTest::newRow("leftArrowNormal") << QSize(17, 17) << 270;
    QTest::newRow("backward") << QSize(16, 16) << 270;
}

// Seen from the point, an arrow gets wider from row to row until its barbs end.
void Resources::arrowPointsWhereItSays()
{
    QFETCH(QSize, size);
    QFETCH(int, turnToPointDown);
    const QImage image = render(QString::fromLatin1(QTest::currentDataTag()), size, 4)
                             .transformed(QTransform().rotate(turnToPointDown));
    const QRect inked = inkedRect(image);
    const auto widthOfRow = [&](int above) {
        return inkedRect(image.copy(0, inked.bottom() - above, image.width(), 1)).width();
    };
    QCOMPARE_GT(widthOfRow(6), widthOfRow(2));
    QCOMPARE_GT(widthOfRow(10), widthOfRow(6));
}

void Resources::variantsDifferInColourOnly_data()
{
    QTest::addColumn<QString>("variant");
    QTest::addColumn<QSize>("size");
    const auto row = [](const QString &name, const QString &variant, QSize size) {
        QTest::newRow(qPrintable(name + u'/' + variant)) << variant << size;
    };
    for (const QString &side : {u"up"_s, u"down"_s, u"left"_s, u"right"_s})
        row(side + u"ArrowNormal"_s, side + u"ArrowPressed"_s, QSize(17, 17));
    for (const QString &name : {u"add"_s, u"down"_s, u"left"_s, u"right"_s})
        row(name + u"Normal"_s, name + u"Hover"_s, QSize(10, 10));
    for (const QString &name : {u"left"_s, u"right"_s})
        row(name + u"Normal"_s, name + u"Disabled"_s, QSize(10, 10));
}

void Resources::variantsDifferInColourOnly()
{
    QFETCH(QString, variant);
    QFETCH(QSize, size);
    const QString name = QString::fromLatin1(QTest::currentDataTag()).section(u'/', 0, 0);
    const QImage image = render(name, size, 4);
    const QImage other = render(variant, size, 4);
    QVERIFY(image != other);
    QCOMPARE(image.convertToFormat(QImage::Format_Alpha8),
             other.convertToFormat(QImage::Format_Alpha8));
}

// A look-up finds one of the two; which one is Qt's business. Taking one bundle out shows the
// drawing of the other.
void Resources::twoDrawingsOfCloseStayRegistered()
{
    const QString path = u":/res/close.svg"_s;
    QByteArray ofRibbon;
    QByteArray ofDock;
    {
        Q_CLEANUP_RESOURCE(norvane_dock);
        const auto restore = qScopeGuard([] { Q_INIT_RESOURCE(norvane_dock); });
        QVERIFY(!QFile::exists(u":/res/dockLight.css"_s));
        ofRibbon = read(path);
    }
    {
        Q_CLEANUP_RESOURCE(norvane_ribbon);
        const auto restore = qScopeGuard([] { Q_INIT_RESOURCE(norvane_ribbon); });
        QVERIFY(!QFile::exists(u":/res/ribbonLight.css"_s));
        ofDock = read(path);
    }
    QVERIFY(!ofRibbon.isEmpty());
    QVERIFY(!ofDock.isEmpty());
    QVERIFY(ofRibbon != ofDock);

    const QByteArray found = read(path);
    QVERIFY(found == ofRibbon || found == ofDock);
}

NORVANE_TEST_MAIN(Resources)
#include "tst_Resources.moc"
