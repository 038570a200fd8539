// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "TestCase.h"
#include "text/TextCodec.h"

using Workbench::TextCodec;

Q_DECLARE_METATYPE(Workbench::TextCodec::Encoding)

class tst_TextCodec : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void readsAndWritesTheSameBytes_data();
    void readsAndWritesTheSameBytes();
    void keepsEveryByteOfWhatIsNoUtf8();
    void saysWhatIsDamaged_data();
    void saysWhatIsDamaged();
    void refusesCharactersThatAnEncodingLacks();
    void namesEveryEncodingDifferently();
};

void tst_TextCodec::readsAndWritesTheSameBytes_data()
{
    using Encoding = TextCodec::Encoding;
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("text");
    QTest::addColumn<Encoding>("encoding");

    QTest::newRow("empty") << QByteArray() << QString() << Encoding::Utf8;
    QTest::newRow("UTF-8") << QByteArray("caf\xC3\xA9 \xF0\x9F\x98\x80\n")
                           << QStringLiteral("café 😀\n") << Encoding::Utf8;
    QTest::newRow("with BOM") << QByteArray("\xEF\xBB\xBF\xC3\xA9") << QStringLiteral("é")
                              << Encoding::Utf8Bom;
    QTest::newRow("only a BOM") << QByteArray("\xEF\xBB\xBF") << QString() << Encoding::Utf8Bom;
    QTest::newRow("two BOMs") << QByteArray("\xEF\xBB\xBF\xEF\xBB\xBFx")
                              << QStringLiteral("\uFEFFx") << Encoding::Utf8Bom;
    QTest::newRow("UTF-16 LE") << QByteArray("\xFF\xFE\xE9\x00\x3D\xD8\x00\xDE", 8)
                               << QStringLiteral("é😀") << Encoding::Utf16Le;
    QTest::newRow("UTF-16 BE") << QByteArray("\xFE\xFF\x00\xE9\xD8\x3D\xDE\x00", 8)
                               << QStringLiteral("é😀") << Encoding::Utf16Be;
    QTest::newRow("Latin-1") << QByteArray("caf\xE9") << QStringLiteral("café") << Encoding::Latin1;
    QTest::newRow("real U+FFFD") << QByteArray("a\xEF\xBF\xBD"
                                               "b")
                                 << QStringLiteral("a\uFFFDb") << Encoding::Utf8;
}

void tst_TextCodec::readsAndWritesTheSameBytes()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, text);
    QFETCH(TextCodec::Encoding, encoding);

    const TextCodec::Decoded decoded = TextCodec::decode(bytes);
    QCOMPARE(decoded.text, text);
    QCOMPARE(decoded.encoding, encoding);
    QVERIFY(!decoded.damaged);
    QCOMPARE(decoded.guessed, encoding == TextCodec::Encoding::Latin1);
    QCOMPARE(TextCodec::encode(text, encoding), bytes);
}

void tst_TextCodec::keepsEveryByteOfWhatIsNoUtf8()
{
    QByteArray bytes;
    for (int byte = 1; byte < 256; ++byte)
        bytes += char(byte);
    const TextCodec::Decoded decoded = TextCodec::decode(bytes);
    QCOMPARE(decoded.encoding, TextCodec::Encoding::Latin1);
    QVERIFY(decoded.guessed);
    QCOMPARE(TextCodec::encode(decoded.text, decoded.encoding), bytes);
}

void tst_TextCodec::saysWhatIsDamaged_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("UTF-16 with half a character") << QByteArray("\xFF\xFE\x41\x00\x42", 5);
    QTest::newRow("UTF-8 with BOM and a wrong byte") << QByteArray("\xEF\xBB\xBF"
                                                                   "a\xFF");
}

void tst_TextCodec::saysWhatIsDamaged()
{
    QFETCH(QByteArray, bytes);
    const TextCodec::Decoded decoded = TextCodec::decode(bytes);
    QVERIFY(decoded.damaged);
    QVERIFY(!decoded.guessed);
}

void tst_TextCodec::refusesCharactersThatAnEncodingLacks()
{
    QVERIFY(!TextCodec::encode(QStringLiteral("5 €"), TextCodec::Encoding::Latin1));
    QVERIFY(TextCodec::encode(QStringLiteral("5 €"), TextCodec::Encoding::Utf8));
    const QString half(QChar(0xD83D));
    QVERIFY(!TextCodec::encode(half, TextCodec::Encoding::Utf8));
}

void tst_TextCodec::namesEveryEncodingDifferently()
{
    QStringList names;
    const QList<TextCodec::Encoding> encodings = TextCodec::encodings();
    for (TextCodec::Encoding encoding : encodings)
        names << TextCodec::name(encoding);
    QCOMPARE(names.size(), 5);
    QCOMPARE(names.removeDuplicates(), 0);
}

NORVANE_TEST_MAIN(tst_TextCodec)
#include "tst_TextCodec.moc"
