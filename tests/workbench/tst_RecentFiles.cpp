// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "Files.h"
#include "TestCase.h"
#include "files/RecentFiles.h"

#include <QtTest/QSignalSpy>
#include <QtWidgets/QMenu>

using Workbench::RecentFiles;

class tst_RecentFiles : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void keepsTheLatestFirst();
    void keepsTenAtMost();
    void isKeptFromStartToStart();
    void fillsAMenu();
    void showsAmpersandsAsTheyAre();
    void clears();
};

static QString path(int number)
{
    return QStringLiteral("/folder/%1.txt").arg(number);
}

static QStringList texts(const QMenu &menu)
{
    QStringList texts;
    const QList<QAction *> actions = menu.actions();
    for (const QAction *action : actions) {
        if (!action->isSeparator())
            texts << action->text();
    }
    return texts;
}

void tst_RecentFiles::initTestCase()
{
    QCoreApplication::setOrganizationName(QStringLiteral("Norvane"));
    QCoreApplication::setApplicationName(QStringLiteral("workbench-test"));
}

void tst_RecentFiles::keepsTheLatestFirst()
{
    RecentFiles recent;
    recent.clear();
    for (int number : {1, 2, 3, 1})
        recent.add(path(number));
    QCOMPARE(recent.paths(), (QStringList{path(1), path(3), path(2)}));
    recent.remove(path(3));
    QCOMPARE(recent.paths(), (QStringList{path(1), path(2)}));
}

void tst_RecentFiles::keepsTenAtMost()
{
    RecentFiles recent;
    recent.clear();
    for (int number = 1; number <= 12; ++number)
        recent.add(path(number));
    QCOMPARE(recent.paths().size(), 10);
    QCOMPARE(recent.paths().constFirst(), path(12));
    QCOMPARE(recent.paths().constLast(), path(3));
}

void tst_RecentFiles::isKeptFromStartToStart()
{
    {
        RecentFiles recent;
        recent.clear();
        recent.add(path(7));
    }
    QCOMPARE(RecentFiles().paths(), QStringList{path(7)});
}

void tst_RecentFiles::fillsAMenu()
{
    RecentFiles recent;
    recent.clear();
    recent.add(path(1));
    QMenu menu;
    recent.fill(&menu);
    recent.add(path(2));
    Q_EMIT menu.aboutToShow();
    QCOMPARE(texts(menu).size(), 3);
    QVERIFY(texts(menu).at(0).startsWith(QStringLiteral("2.txt")));
    QVERIFY(texts(menu).at(1).startsWith(QStringLiteral("1.txt")));
    QCOMPARE(menu.actions().constFirst()->toolTip(), QDir::toNativeSeparators(path(2)));

    QSignalSpy picked(&recent, &RecentFiles::picked);
    menu.actions().at(1)->trigger();
    QCOMPARE(picked.count(), 1);
    QCOMPARE(picked.first().first().toString(), path(1));
}

void tst_RecentFiles::showsAmpersandsAsTheyAre()
{
    RecentFiles recent;
    recent.clear();
    recent.add(QStringLiteral("/salt & pepper/this & that.txt"));
    QMenu menu;
    recent.fill(&menu);
    Q_EMIT menu.aboutToShow();
    QVERIFY(texts(menu).constFirst().startsWith(QStringLiteral("this && that.txt")));
    QVERIFY(texts(menu).constFirst().endsWith(QStringLiteral("salt && pepper")));
}

void tst_RecentFiles::clears()
{
    RecentFiles recent;
    recent.add(path(1));
    QMenu menu;
    recent.fill(&menu);
    Q_EMIT menu.aboutToShow();
    menu.actions().constLast()->trigger();
    QVERIFY(recent.paths().isEmpty());
    Q_EMIT menu.aboutToShow();
    QCOMPARE(menu.actions().size(), 1);
    QVERIFY(!menu.actions().constFirst()->isEnabled());
}

NORVANE_TEST_MAIN(tst_RecentFiles)
#include "tst_RecentFiles.moc"
