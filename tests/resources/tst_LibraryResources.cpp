// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "TestCase.h"

#include <QtCore/QFile>
#include <QtCore/QLibrary>

using namespace Qt::StringLiterals;

class LibraryResources : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void comeWithTheLibrary();
};

void LibraryResources::comeWithTheLibrary()
{
    // One entry of each bundle that no other bundle has.
    const QStringList paths{u":/norvane/norvanelight.css"_s, u":/res/addressLight.css"_s,
                            u":/res/dockLight.css"_s, u":/res/ribbonLight.css"_s};
    for (const QString &path : paths)
        QVERIFY2(!QFile::exists(path), qPrintable(path));

    QLibrary library(QStringLiteral(NORVANE_LIBRARY));
    QVERIFY2(library.load(), qPrintable(library.errorString()));
    for (const QString &path : paths)
        QVERIFY2(QFile::exists(path), qPrintable(path));
}

NORVANE_TEST_MAIN(LibraryResources)
#include "tst_LibraryResources.moc"
