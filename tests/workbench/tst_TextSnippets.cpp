// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "TestCase.h"
#include "text/SnippetPreview.h"
#include "text/TextSnippets.h"

#include <QtCore/QDateTime>
#include <QtCore/QSet>
#include <QtTest/QTest>

using namespace Workbench;

class tst_TextSnippets : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void areAllDifferent();
    void tellTheTime();
    void arePreviewed();
};

static QString text(const char *name)
{
    const QList<TextSnippetGroup> groups = TextSnippets::groups();
    for (const TextSnippetGroup &group : groups) {
        for (const TextSnippet &snippet : group.snippets) {
            if (snippet.name == QLatin1StringView(name))
                return snippet.text();
        }
    }
    qFatal("There is no such snippet");
}

void tst_TextSnippets::areAllDifferent()
{
    QSet<QString> names;
    QSet<QString> texts;
    int count = 0;
    const QList<TextSnippetGroup> groups = TextSnippets::groups();
    for (const TextSnippetGroup &group : groups) {
        QVERIFY(!group.title.isEmpty());
        for (const TextSnippet &snippet : group.snippets) {
            ++count;
            names << snippet.name;
            texts << snippet.text();
            QVERIFY(!snippet.text().isEmpty());
            QVERIFY(!snippet.text().contains(u'\r'));
        }
    }
    QCOMPARE(names.size(), count);
    QCOMPARE(texts.size(), count);
}

void tst_TextSnippets::tellTheTime()
{
    // Midnight may come between.
    QTRY_COMPARE(text("ISO Date"), QDate::currentDate().toString(Qt::ISODate));
    const QDateTime before = QDateTime::currentDateTime().addMSecs(-1000);
    const QDateTime stamp = QDateTime::fromString(text("Time Stamp"), Qt::ISODate);
    QVERIFY(stamp > before && stamp <= QDateTime::currentDateTime());
    QVERIFY(text("Date").contains(QString::number(QDate::currentDate().year())));
}

void tst_TextSnippets::arePreviewed()
{
    const QImage empty = SnippetPreview::draw(QString(), QSize(48, 32));
    QCOMPARE(empty.size(), QSize(48, 32));
    QCOMPARE(empty.pixelColor(24, 16), QColor(Qt::white));
    const QImage sign = SnippetPreview::draw(QStringLiteral("W"), QSize(96, 64));
    QCOMPARE(sign.size(), QSize(96, 64));
    QVERIFY(sign != SnippetPreview::draw(QString(), QSize(96, 64)));
    QVERIFY(SnippetPreview::draw(QStringLiteral("One\ntwo"), QSize(48, 32))
            != SnippetPreview::draw(QStringLiteral("One"), QSize(48, 32)));
}

NORVANE_TEST_MAIN(tst_TextSnippets)
#include "tst_TextSnippets.moc"
