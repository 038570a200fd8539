// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "TestCase.h"

#include <Norvane/RibbonBar.h>

#include <QtCore/QFile>
#include <QtCore/QRegularExpression>
#include <QtCore/QScopeGuard>
#include <QtCore/QStringDecoder>
#include <QtGui/QPixmap>
#include <QtWidgets/QWidget>

using namespace Qt::StringLiterals;

class StyleSheets : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void bytes_data() { sheets(); }
    void bytes();
    void lineEnds_data() { sheets(); }
    void lineEnds();
    void heading_data() { sheets(); }
    void heading();
    void rules_data() { sheets(); }
    void rules();
    void isUnderstood_data() { sheets(); }
    void isUnderstood();
    void namesPicturesThatExist_data() { sheets(); }
    void namesPicturesThatExist();
    void ribbonBarCarriesItsSheet();
    void missingSheetIsSilent();

private:
    static void sheets();
    static QByteArray read(const QString &path);
    static QByteArray sheet();
};

void StyleSheets::sheets()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<int>("size");
    QTest::addColumn<int>("ruleCount");
    QTest::addColumn<QString>("title");
    QTest::newRow("frame") << u":/norvane/norvanelight.css"_s << 1400 << 12 << QString();
    QTest::newRow("address") << u":/res/addressLight.css"_s << 1887 << 11 << u"Address Bar"_s;
    QTest::newRow("dock") << u":/res/dockLight.css"_s << 8723 << 62 << u"Dock Container"_s;
    QTest::newRow("ribbon") << u":/res/ribbonLight.css"_s << 7574 << 56 << u"Ribbon bar"_s;
    QTest::newRow("dark ribbon") << u":/res/ribbonDark.css"_s << 2776 << 24 << u"Ribbon bar"_s;
}

QByteArray StyleSheets::read(const QString &path)
{
    QFile file(path);
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
}

QByteArray StyleSheets::sheet()
{
    QFETCH(QString, path);
    return read(path);
}

void StyleSheets::bytes()
{
    QFETCH(int, size);
    const QByteArray bytes = sheet();
    QCOMPARE(bytes.size(), size);
    QVERIFY(!bytes.startsWith("\xef\xbb\xbf"));
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString text = decoder(bytes);
    QVERIFY(!decoder.hasError());
    QCOMPARE(text.toUtf8(), bytes);
}

void StyleSheets::lineEnds()
{
    const QByteArray bytes = sheet();
    QVERIFY(bytes.contains("\r\n"));
    QCOMPARE(bytes.count('\n'), bytes.count("\r\n"));
    QCOMPARE(bytes.count('\r'), bytes.count("\r\n"));
    QVERIFY(bytes.endsWith('}'));
    QVERIFY(!bytes.contains('\t'));
    QVERIFY(!bytes.contains(" \r\n"));
}

void StyleSheets::heading()
{
    QFETCH(QString, title);
    const QString text = QString::fromUtf8(sheet());
    QCOMPARE(text.count(u"/*"), title.isEmpty() ? 0 : 1);
    if (title.isEmpty())
        return;
    static const QRegularExpression comment(u"^/\\*\\*? ([A-Za-z ]+?) (-+ )?\\*/\\r\\n[^\\r]"_s);
    const QRegularExpressionMatch match = comment.match(text);
    QVERIFY2(match.hasMatch(), qPrintable(text.left(60)));
    QCOMPARE(match.captured(1), title);
}

void StyleSheets::rules()
{
    QFETCH(QString, path);
    QFETCH(int, ruleCount);
    QFETCH(QString, title);

    QString text = QString::fromUtf8(sheet());
    if (!title.isEmpty())
        text.remove(0, text.indexOf(u"\r\n"_s) + 2);
    const QStringList actual = text.split(u"\r\n\r\n"_s);

    QStringList expected;
    const QString list = QString::fromUtf8(read(u":/rules/"_s + path.section(u'/', -1)));
    const QStringList lines = list.split(u'\n', Qt::SkipEmptyParts);
    for (const QString &line : lines) {
        if (line.startsWith(u"# ") || line == u"#")
            continue;
        const QStringList declarations = line.section(u" | "_s, 1).trimmed().split(u"; "_s);
        expected << line.section(u" | "_s, 0, 0) + u"\r\n{\r\n    "_s
                + declarations.join(u";\r\n    ") + u";\r\n}"_s;
    }

    QCOMPARE(expected.size(), ruleCount);
    for (int i = 0; i < qMin(actual.size(), expected.size()); ++i)
        QCOMPARE(actual.at(i), expected.at(i));
    QCOMPARE(actual.size(), expected.size());
}

// Qt warns about a sheet that it cannot parse, and drops the whole of it.
void StyleSheets::isUnderstood()
{
    QWidget widget;
    widget.setStyleSheet(QString::fromUtf8(sheet()));
    widget.ensurePolished();
}

void StyleSheets::namesPicturesThatExist()
{
    static const QRegularExpression url(u"url\\(([^)]*)\\)"_s);
    const QString text = QString::fromUtf8(sheet());
    for (const QRegularExpressionMatch &match : url.globalMatch(text)) {
        const QString picture = match.captured(1);
        QVERIFY2(!QPixmap(picture).isNull(), qPrintable(picture));
    }
}

void StyleSheets::ribbonBarCarriesItsSheet()
{
    const Norvane::RibbonBar bar;
    QCOMPARE(bar.styleSheet().toUtf8(), read(u":/res/ribbonLight.css"_s));
}

void StyleSheets::missingSheetIsSilent()
{
    Q_CLEANUP_RESOURCE(norvane_ribbon);
    const auto restore = qScopeGuard([] { Q_INIT_RESOURCE(norvane_ribbon); });
    QVERIFY(!QFile::exists(u":/res/ribbonLight.css"_s));
    const Norvane::RibbonBar bar;
    QVERIFY(bar.styleSheet().isEmpty());
}

NORVANE_TEST_MAIN(StyleSheets)
#include "tst_StyleSheets.moc"
