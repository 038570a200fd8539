// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "Files.h"
#include "TestCase.h"
#include "picture/PictureDocument.h"
#include "picture/PictureEffect.h"
#include "picture/PictureView.h"

#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>
#include <QtTest/QSignalSpy>

#include <optional>

using namespace Workbench;

class tst_PictureDocument : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void turns_data();
    void turns();
    void undoesAllTurnsExactly();
    void showsThatItIsAtWork();
    void crops();
    void cropsNothing();
    void copiesTheSelection();
    void cuts_data();
    void cuts();
    void pastesAtTheSelection();
    void growsForWhatIsPasted();
    void pastesNothing();
    void writesTheFormatOfTheSuffix_data();
    void writesTheFormatOfTheSuffix();
    void refusesFormatsThatItCannotWrite();
    void putsTransparencyOnWhite();
    void readsByContent();
    void refusesWhatIsNoPicture();
    void isCleanWhereItWasSaved();
    void summarises();
};

static bool load(PictureDocument *document, const QString &path)
{
    QString error;
    const bool loaded = document->load(path, &error);
    if (!loaded)
        qCritical("%s", qPrintable(error));
    return loaded;
}

static QImage image(const PictureDocument &document)
{
    return document.findChild<PictureView *>()->image();
}

static void select(PictureDocument *document, QRect selection)
{
    document->findChild<PictureView *>()->setSelection(selection);
}

// The colours of the quarters, row by row.
static QString corners(const QImage &image)
{
    QString names;
    for (QPoint corner : {QPoint(0, 0), QPoint(image.width() - 1, 0), QPoint(0, image.height() - 1),
                          QPoint(image.width() - 1, image.height() - 1)}) {
        const QColor color = image.pixelColor(corner);
        names += color == QColor(Qt::red) ? u'R'
            : color == QColor(Qt::green)  ? u'G'
            : color == QColor(Qt::blue)   ? u'B'
            : color == QColor(Qt::white)  ? u'W'
                                          : u'?';
    }
    return names;
}

void tst_PictureDocument::turns_data()
{
    using Turn = PictureTurnCommand::Turn;
    QTest::addColumn<int>("turn");
    QTest::addColumn<QString>("after");
    QTest::addColumn<QSize>("size");
    QTest::newRow("left") << int(Turn::Left) << QStringLiteral("GWRB") << QSize(20, 40);
    QTest::newRow("right") << int(Turn::Right) << QStringLiteral("BRWG") << QSize(20, 40);
    QTest::newRow("horizontally") << int(Turn::FlipHorizontally) << QStringLiteral("GRWB")
                                  << QSize(40, 20);
    QTest::newRow("vertically") << int(Turn::FlipVertically) << QStringLiteral("BWRG")
                                << QSize(40, 20);
}

void tst_PictureDocument::turns()
{
    QFETCH(int, turn);
    QFETCH(QString, after);
    QFETCH(QSize, size);
    const Files files;
    PictureDocument document;
    QVERIFY(load(&document, files.writeQuarters(QStringLiteral("a.png"), QSize(40, 20))));
    QCOMPARE(corners(image(document)), QStringLiteral("RGBW"));

    document.turn(PictureTurnCommand::Turn(turn));
    QCOMPARE(corners(image(document)), after);
    QCOMPARE(image(document).size(), size);
    QVERIFY(document.isModified());
    QString error;
    QVERIFY2(document.save(&error), qPrintable(error));
    QCOMPARE(corners(QImage(files.path(QStringLiteral("a.png")))), after);

    document.undo();
    QCOMPARE(image(document), Files::quarters(QSize(40, 20)));
    document.redo();
    QCOMPARE(corners(image(document)), after);
}

void tst_PictureDocument::undoesAllTurnsExactly()
{
    using Turn = PictureTurnCommand::Turn;
    const Files files;
    PictureDocument document;
    QVERIFY(load(&document, files.writeQuarters(QStringLiteral("a.png"), QSize(31, 17))));
    for (Turn turn : {Turn::Left, Turn::FlipVertically, Turn::Right, Turn::Right,
                      Turn::FlipHorizontally, Turn::Left})
        document.turn(turn);
    while (document.canUndo())
        document.undo();
    QCOMPARE(image(document), Files::quarters(QSize(31, 17)));
    QVERIFY(!document.isModified());
    QVERIFY(document.canRedo());
}

void tst_PictureDocument::showsThatItIsAtWork()
{
    const Files files;
    PictureDocument document;
    QVERIFY(load(&document, files.writeQuarters(QStringLiteral("a.png"), QSize(40, 20))));
    std::optional<Qt::CursorShape> shape;
    const auto look = [&](const QImage &image) {
        if (const QCursor *cursor = QGuiApplication::overrideCursor())
            shape = cursor->shape();
        return image;
    };
    document.apply({QString(), QString(), look});
    QCOMPARE(shape, Qt::WaitCursor);
    QVERIFY(!QGuiApplication::overrideCursor());
}

void tst_PictureDocument::crops()
{
    const Files files;
    PictureDocument document;
    QVERIFY(load(&document, files.writeQuarters(QStringLiteral("a.png"), QSize(40, 20))));
    QVERIFY(!document.canCrop());
    select(&document, QRect(15, 5, 10, 12));
    QVERIFY(document.canCrop());
    document.cropToSelection();
    QCOMPARE(image(document), Files::quarters(QSize(40, 20)).copy(15, 5, 10, 12));
    QVERIFY(!document.canCrop());
    QString error;
    QVERIFY(document.save(&error));
    QCOMPARE(QImage(files.path(QStringLiteral("a.png"))).size(), QSize(10, 12));

    document.undo();
    QCOMPARE(image(document).size(), QSize(40, 20));
    QCOMPARE(document.findChild<PictureView *>()->selection(), QRect(15, 5, 10, 12));
}

void tst_PictureDocument::cropsNothing()
{
    const Files files;
    PictureDocument document;
    QVERIFY(load(&document, files.writeQuarters(QStringLiteral("a.png"), QSize(40, 20))));
    document.cropToSelection();
    QVERIFY(!document.isModified());
    document.selectAll();
    QVERIFY(document.canCopy());
    QVERIFY(!document.canCrop());
}

void tst_PictureDocument::copiesTheSelection()
{
    const Files files;
    PictureDocument document;
    QVERIFY(load(&document, files.writeQuarters(QStringLiteral("a.png"), QSize(40, 20))));
    QVERIFY(!document.canCopy());
    select(&document, QRect(18, 8, 4, 4));
    document.copy();
    const QImage copied = QGuiApplication::clipboard()->image();
    QCOMPARE(copied.size(), QSize(4, 4));
    QCOMPARE(corners(copied), QStringLiteral("RGBW"));
    QVERIFY(!document.isModified());
    QVERIFY(document.canPaste());
    QGuiApplication::clipboard()->clear();
}

void tst_PictureDocument::cuts_data()
{
    QTest::addColumn<bool>("transparent");
    QTest::newRow("leaves transparency") << true;
    QTest::newRow("leaves white") << false;
}

void tst_PictureDocument::cuts()
{
    QFETCH(bool, transparent);
    const Files files;
    QImage before(10, 10, transparent ? QImage::Format_ARGB32 : QImage::Format_RGB32);
    before.fill(Qt::red);
    QVERIFY(before.save(files.path(QStringLiteral("a.png"))));
    PictureDocument document;
    QVERIFY(load(&document, files.path(QStringLiteral("a.png"))));
    select(&document, QRect(2, 3, 4, 5));
    document.cut();
    const QImage after = image(document);
    for (int y = 0; y < 10; ++y) {
        for (int x = 0; x < 10; ++x) {
            const QColor left = transparent ? QColor(0, 0, 0, 0) : QColor(Qt::white);
            QCOMPARE(after.pixelColor(x, y),
                     QRect(2, 3, 4, 5).contains(x, y) ? left : QColor(Qt::red));
        }
    }
    QCOMPARE(QGuiApplication::clipboard()->image().size(), QSize(4, 5));
    QCOMPARE(QGuiApplication::clipboard()->image().pixelColor(0, 0), QColor(Qt::red));
    document.undo();
    QCOMPARE(image(document).pixelColor(3, 4), QColor(Qt::red));
    QGuiApplication::clipboard()->clear();
}

void tst_PictureDocument::pastesAtTheSelection()
{
    const Files files;
    PictureDocument document;
    QVERIFY(load(&document, files.writeQuarters(QStringLiteral("a.png"), QSize(40, 20))));
    QGuiApplication::clipboard()->setImage(Files::quarters(QSize(4, 4)));
    select(&document, QRect(30, 12, 8, 3));
    document.paste();
    QCOMPARE(image(document).size(), QSize(40, 20));
    QCOMPARE(corners(image(document).copy(30, 12, 4, 4)), QStringLiteral("RGBW"));
    QCOMPARE(image(document).pixelColor(29, 12), QColor(Qt::white));
    QCOMPARE(document.findChild<PictureView *>()->selection(), QRect(30, 12, 4, 4));
    document.undo();
    QCOMPARE(image(document), Files::quarters(QSize(40, 20)));
    QGuiApplication::clipboard()->clear();
}

void tst_PictureDocument::growsForWhatIsPasted()
{
    const Files files;
    PictureDocument document;
    QVERIFY(load(&document, files.writeQuarters(QStringLiteral("a.png"), QSize(10, 10))));
    QGuiApplication::clipboard()->setImage(Files::quarters(QSize(30, 4)));
    document.paste();
    QCOMPARE(image(document).size(), QSize(30, 10));
    QCOMPARE(corners(image(document).copy(0, 0, 30, 4)), QStringLiteral("RGBW"));
    QCOMPARE(image(document).pixelColor(0, 9), QColor(Qt::blue));
    QCOMPARE(image(document).pixelColor(29, 9), QColor(Qt::white));
    QGuiApplication::clipboard()->clear();
}

void tst_PictureDocument::pastesNothing()
{
    const Files files;
    PictureDocument document;
    QVERIFY(load(&document, files.writeQuarters(QStringLiteral("a.png"), QSize(10, 10))));
    QGuiApplication::clipboard()->setText(QStringLiteral("text"));
    QVERIFY(!document.canPaste());
    document.paste();
    document.cut();
    document.copy();
    QVERIFY(!document.isModified());
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("text"));
    QGuiApplication::clipboard()->clear();
}

void tst_PictureDocument::writesTheFormatOfTheSuffix_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("start");
    QTest::newRow("png") << QStringLiteral("b.png") << QByteArray("\x89PNG");
    QTest::newRow("capitals") << QStringLiteral("b.PNG") << QByteArray("\x89PNG");
    QTest::newRow("jpg") << QStringLiteral("b.jpg") << QByteArray("\xFF\xD8\xFF");
    QTest::newRow("jpeg") << QStringLiteral("b.jpeg") << QByteArray("\xFF\xD8\xFF");
    QTest::newRow("bmp") << QStringLiteral("b.bmp") << QByteArray("BM");
}

void tst_PictureDocument::writesTheFormatOfTheSuffix()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, start);
    const Files files;
    PictureDocument document;
    QVERIFY(load(&document, files.writeQuarters(QStringLiteral("a.png"), QSize(40, 20))));
    QString error;
    QVERIFY2(document.saveAs(files.path(name), &error), qPrintable(error));
    QVERIFY(files.read(name).startsWith(start));
    QCOMPARE(QImage(files.path(name)).size(), QSize(40, 20));
    QCOMPARE(document.title(), name);
}

void tst_PictureDocument::refusesFormatsThatItCannotWrite()
{
    const Files files;
    PictureDocument document;
    QVERIFY(load(&document, files.writeQuarters(QStringLiteral("a.png"), QSize(40, 20))));
    for (const QString &name :
         {QStringLiteral("b.txt"), QStringLiteral("b"), QStringLiteral("b.svg")}) {
        QString error;
        QVERIFY(!document.saveAs(files.path(name), &error));
        QVERIFY(error.contains(QStringLiteral("*.png")));
        QVERIFY(!QFile::exists(files.path(name)));
    }
    QCOMPARE(document.title(), QStringLiteral("a.png"));
}

void tst_PictureDocument::putsTransparencyOnWhite()
{
    const Files files;
    QImage before(16, 16, QImage::Format_ARGB32);
    before.fill(Qt::transparent);
    QVERIFY(before.save(files.path(QStringLiteral("a.png"))));
    PictureDocument document;
    QVERIFY(load(&document, files.path(QStringLiteral("a.png"))));
    QString error;
    for (const QString &name : {QStringLiteral("b.jpg"), QStringLiteral("b.bmp")}) {
        QVERIFY(document.saveAs(files.path(name), &error));
        QCOMPARE(QImage(files.path(name)).pixelColor(8, 8), QColor(Qt::white));
    }
    QVERIFY(document.saveAs(files.path(QStringLiteral("c.png")), &error));
    QCOMPARE(QImage(files.path(QStringLiteral("c.png"))).pixelColor(8, 8).alpha(), 0);
}

void tst_PictureDocument::readsByContent()
{
    const Files files;
    QVERIFY(Files::quarters(QSize(8, 8)).save(files.path(QStringLiteral("a.png")), "BMP"));
    PictureDocument document;
    QVERIFY(load(&document, files.path(QStringLiteral("a.png"))));
    QCOMPARE(image(document).size(), QSize(8, 8));
}

void tst_PictureDocument::refusesWhatIsNoPicture()
{
    const Files files;
    QString error;
    PictureDocument document;
    QVERIFY(!document.load(files.write(QStringLiteral("a.png"), "no picture"), &error));
    QVERIFY(!error.isEmpty());
    const QByteArray whole = [&] {
        files.writeQuarters(QStringLiteral("b.png"), QSize(40, 20));
        return files.read(QStringLiteral("b.png"));
    }();
    error.clear();
    QVERIFY(!document.load(files.write(QStringLiteral("c.png"), whole.first(20)), &error));
    QVERIFY(!error.isEmpty());
}

void tst_PictureDocument::isCleanWhereItWasSaved()
{
    const Files files;
    PictureDocument document;
    QVERIFY(load(&document, files.writeQuarters(QStringLiteral("a.png"), QSize(40, 20))));
    document.turn(PictureTurnCommand::Turn::Left);
    QString error;
    QVERIFY(document.save(&error));
    QVERIFY(!document.isModified());
    QSignalSpy changed(&document, &Document::changed);
    document.undo();
    QVERIFY(document.isModified());
    QVERIFY(changed.count() > 0);
    document.redo();
    QVERIFY(!document.isModified());
}

void tst_PictureDocument::summarises()
{
    const Files files;
    PictureDocument document;
    QVERIFY(load(&document, files.writeQuarters(QStringLiteral("a.png"), QSize(40, 20))));
    QVERIFY(document.summary().contains(QStringLiteral("40 × 20")));
    QVERIFY(!document.summary().contains(QStringLiteral("Selection")));
    select(&document, QRect(1, 2, 3, 4));
    QVERIFY(document.summary().contains(QStringLiteral("Selection 3 × 4 at 1, 2")));
}

NORVANE_TEST_MAIN(tst_PictureDocument)
#include "tst_PictureDocument.moc"
