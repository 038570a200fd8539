// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "TestCase.h"

#include <address/AddressFolder.h>
#include <address/AddressPath.h>

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>

#ifdef Q_OS_UNIX
#    include "Unprivileged.h"

#    include <sys/stat.h>
#    include <unistd.h>
#endif

using namespace Norvane;
using AddressPath::Style;

Q_DECLARE_METATYPE(Norvane::AddressPath::Style)

class tst_AddressPath : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void knowsTheStyleOfTheSystem();
    void splitsPathsIntoCrumbs_data();
    void splitsPathsIntoCrumbs();
    void storesPaths_data();
    void storesPaths();
    void knowsBareDrives_data();
    void knowsBareDrives();
    void namesFoldersForTheFileSystem_data();
    void namesFoldersForTheFileSystem();
    void namesDrives_data();
    void namesDrives();
    void namesChildren_data();
    void namesChildren();
    void readsTypedText_data();
    void readsTypedText();

    void listsFoldersAsQDirDoes();
    void listsWhatComesAfterANameThatCannotBeDecoded();
    void listsWhatOnlyQtFinds();
    void listsNothingWhereNothingCanBeRead();
    void listsTheFoldersOfTheRoot();
    void listsDrives();
};

namespace {

constexpr Style Drives = Style::DriveLetters;
constexpr Style Root = Style::SingleRoot;

QTestData &addRow(const char *name, Style style)
{
    return QTest::addRow("%s, %s", name, style == Drives ? "drives" : "root") << style;
}

} // namespace

void tst_AddressPath::knowsTheStyleOfTheSystem()
{
    const bool drives = QDir::rootPath() != QStringLiteral("/");
    QCOMPARE(AddressPath::nativeStyle(), drives ? Drives : Root);
}

void tst_AddressPath::splitsPathsIntoCrumbs_data()
{
    QTest::addColumn<Style>("style");
    QTest::addColumn<QString>("path");
    QTest::addColumn<QStringList>("labels");
    QTest::addColumn<QStringList>("paths");

    const QString sub = QStringLiteral("C:/Users/x");
    const QStringList subLabels{QStringLiteral("C:"), QStringLiteral("Users"), QStringLiteral("x")};
    const QStringList subPaths{QStringLiteral("C:"), QStringLiteral("C:/Users"), sub};
    for (const Style style : {Drives, Root}) {
        addRow("nothing", style) << QString() << QStringList() << QStringList();
        addRow("separators only", style) << QStringLiteral("//") << QStringList() << QStringList();
        addRow("a drive", style) << QStringLiteral("C:/") << QStringList{QStringLiteral("C:")}
                                 << QStringList{QStringLiteral("C:")};
        addRow("in a drive", style) << sub << subLabels << subPaths;
        addRow("doubled separators", style)
            << QStringLiteral("C://Users//x/") << subLabels << subPaths;
        addRow("relative", style) << QStringLiteral("a/b")
                                  << QStringList{QStringLiteral("a"), QStringLiteral("b")}
                                  << QStringList{QStringLiteral("a"), QStringLiteral("a/b")};
        addRow("blanks", style) << QStringLiteral(" / ")
                                << QStringList{QStringLiteral(" "), QStringLiteral(" ")}
                                << QStringList{QStringLiteral(" "), QStringLiteral(" / ")};
    }
    const QString home = QStringLiteral("/home/user");
    const QStringList labels{QStringLiteral("home"), QStringLiteral("user")};
    addRow("rooted", Drives) << home << labels
                             << QStringList{QStringLiteral("home"), QStringLiteral("home/user")};
    addRow("rooted", Root) << home << labels << QStringList{QStringLiteral("/home"), home};
    addRow("two separators first", Root)
        << QStringLiteral("//home//user") << labels << QStringList{QStringLiteral("/home"), home};
    addRow("a drive's name below the root", Root)
        << QStringLiteral("/C:/x") << QStringList{QStringLiteral("C:"), QStringLiteral("x")}
        << QStringList{QStringLiteral("/C:"), QStringLiteral("/C:/x")};
}

void tst_AddressPath::splitsPathsIntoCrumbs()
{
    QFETCH(Style, style);
    QFETCH(QString, path);
    QStringList labels;
    QStringList paths;
    const QList<AddressPath::Crumb> crumbs = AddressPath::crumbs(path, style);
    for (const AddressPath::Crumb &crumb : crumbs) {
        labels << crumb.label;
        paths << crumb.path;
    }
    QTEST(labels, "labels");
    QTEST(paths, "paths");
}

void tst_AddressPath::storesPaths_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("stored");
    QTest::newRow("empty") << QString() << QString();
    QTest::newRow("root") << QStringLiteral("/") << QString();
    QTest::newRow("backslash") << QStringLiteral("\\") << QString();
    QTest::newRow("separators only") << QStringLiteral("/\\//\\") << QString();
    QTest::newRow("stored") << QStringLiteral("/home/user") << QStringLiteral("/home/user");
    QTest::newRow("at the end") << QStringLiteral("C:\\Users\\x\\") << QStringLiteral("C:/Users/x");
    QTest::newRow("many at the end") << QStringLiteral("/a/\\//") << QStringLiteral("/a");
    QTest::newRow("doubled inside") << QStringLiteral("C:\\\\a//b") << QStringLiteral("C://a//b");
    QTest::newRow("mixed") << QStringLiteral("C:/a\\b/c") << QStringLiteral("C:/a/b/c");
    QTest::newRow("drive") << QStringLiteral("C:/") << QStringLiteral("C:");
    QTest::newRow("blanks") << QStringLiteral("  ") << QStringLiteral("  ");
    QTest::newRow("relative") << QStringLiteral("a\\b") << QStringLiteral("a/b");
    const QString separators(10000, u'/');
    QTest::newRow("ten thousand separators") << QString(u'a' + separators) << QStringLiteral("a");
}

void tst_AddressPath::storesPaths()
{
    QFETCH(QString, path);
    QTEST(AddressPath::stored(path), "stored");
}

void tst_AddressPath::knowsBareDrives_data()
{
    QTest::addColumn<Style>("style");
    QTest::addColumn<QString>("path");
    QTest::addColumn<bool>("bare");
    for (const Style style : {Drives, Root}) {
        addRow("drive", style) << QStringLiteral("C:") << true;
        addRow("small drive", style) << QStringLiteral("d:") << true;
        addRow("with separator", style) << QStringLiteral("C:/") << false;
        addRow("colon alone", style) << QStringLiteral(":") << false;
        addRow("no colon", style) << QStringLiteral("CC") << false;
        addRow("nothing", style) << QString() << false;
        addRow("folder in a drive", style) << QStringLiteral("C:/a") << false;
    }
    addRow("a folder called colon", Drives) << QStringLiteral("/:") << true;
    addRow("a folder called colon", Root) << QStringLiteral("/:") << false;
}

void tst_AddressPath::knowsBareDrives()
{
    QFETCH(Style, style);
    QFETCH(QString, path);
    QTEST(AddressPath::isBareDrive(path, style), "bare");
}

void tst_AddressPath::namesFoldersForTheFileSystem_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("folder");
    QTest::newRow("root") << QString() << QStringLiteral("/");
    QTest::newRow("stored") << QStringLiteral("/home") << QStringLiteral("/home/");
    QTest::newRow("edited") << QStringLiteral("\\home\\x") << QStringLiteral("/home/x/");
    QTest::newRow("drive") << QStringLiteral("C:") << QStringLiteral("C:/");
}

void tst_AddressPath::namesFoldersForTheFileSystem()
{
    QFETCH(QString, path);
    QTEST(AddressPath::folder(path), "folder");
}

void tst_AddressPath::namesDrives_data()
{
    QTest::addColumn<QString>("root");
    QTest::addColumn<QString>("name");
    QTest::newRow("C") << QStringLiteral("C:/") << QStringLiteral("C:");
    QTest::newRow("Z") << QStringLiteral("Z:/") << QStringLiteral("Z:");
    QTest::newRow("without separator") << QStringLiteral("D:") << QStringLiteral("D:");
    QTest::newRow("root") << QStringLiteral("/") << QString();
    QTest::newRow("share") << QStringLiteral("//server/share") << QString();
}

void tst_AddressPath::namesDrives()
{
    QFETCH(QString, root);
    QTEST(AddressPath::driveName(root), "name");
}

void tst_AddressPath::namesChildren_data()
{
    QTest::addColumn<Style>("style");
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("child");
    for (const Style style : {Drives, Root}) {
        addRow("in a folder", style)
            << QStringLiteral("C:/A") << QStringLiteral("B") << QStringLiteral("C:/A/B");
        addRow("in a drive", style)
            << QStringLiteral("C:") << QStringLiteral("A") << QStringLiteral("C:/A");
    }
    addRow("above all", Drives) << QString() << QStringLiteral("D:") << QStringLiteral("D:");
    addRow("above all", Root) << QString() << QStringLiteral("home") << QStringLiteral("/home");
}

void tst_AddressPath::namesChildren()
{
    QFETCH(Style, style);
    QFETCH(QString, path);
    QFETCH(QString, name);
    QTEST(AddressPath::child(path, name, style), "child");
}

void tst_AddressPath::readsTypedText_data()
{
    QTest::addColumn<Style>("style");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("typed");
    for (const Style style : {Drives, Root}) {
        addRow("slashes", style) << QStringLiteral("C:/Data/Sub")
                                 << QStringLiteral("C:\\Data\\Sub");
        addRow("backslashes", style)
            << QStringLiteral("C:\\Data\\Sub") << QStringLiteral("C:\\Data\\Sub");
        addRow("mixed and doubled", style)
            << QStringLiteral("C:\\/Data//Sub\\\\") << QStringLiteral("C:\\Data\\Sub");
        addRow("blanks around names", style)
            << QStringLiteral(" C: / Data \\ My Sub ") << QStringLiteral("C:\\Data\\My Sub");
        addRow("a name of blanks", style)
            << QStringLiteral("C:/  /Sub") << QStringLiteral("C:\\\\Sub");
        addRow("blanks only", style) << QStringLiteral("   ") << QString();
        addRow("a drive", style) << QStringLiteral("C:") << QStringLiteral("C:");
        addRow("a drive and its separator", style) << QStringLiteral("C:/") << QStringLiteral("C:");
        addRow("relative", style) << QStringLiteral("Data") << QStringLiteral("Data");
    }
    addRow("rooted", Drives) << QStringLiteral("/home/x") << QStringLiteral("home\\x");
    addRow("rooted", Root) << QStringLiteral("/home/x") << QStringLiteral("\\home\\x");
    addRow("rooted by backslash", Root) << QStringLiteral("\\home") << QStringLiteral("\\home");
    addRow("many separators first", Root) << QStringLiteral("//\\home") << QStringLiteral("\\home");
    addRow("separator only", Drives) << QStringLiteral("/") << QString();
    addRow("separator only", Root) << QStringLiteral("/") << QStringLiteral("\\");
    addRow("a blank before the root", Root) << QStringLiteral(" /home") << QStringLiteral("\\home");
}

void tst_AddressPath::readsTypedText()
{
    QFETCH(Style, style);
    QFETCH(QString, text);
    QTEST(AddressPath::typed(text, style), "typed");
}

void tst_AddressPath::listsFoldersAsQDirDoes()
{
    const QTemporaryDir temporary;
    const QDir folder(temporary.path());
    const QStringList names{
        QStringLiteral("b"),          QStringLiteral("B"),  QStringLiteral("a"),
        QStringLiteral("ä"),          QStringLiteral("10"), QStringLiteral("9"),
        QStringLiteral("two words"),  QStringLiteral("%1"), QStringLiteral("a & b"),
        QStringLiteral("two\nlines"), QStringLiteral("-"),  QStringLiteral("𝄞"),
        QStringLiteral("ﬀ"),          QString(255, u'x')};
    for (const QString &name : names)
        QVERIFY(folder.mkdir(name));
    QVERIFY(folder.mkdir(QStringLiteral(".hidden")));
    QVERIFY(QFile(folder.filePath(QStringLiteral("file"))).open(QIODevice::WriteOnly));
    const auto link = [&folder](const QString &target, const QString &name) {
        return QFile::link(target, folder.filePath(name));
    };
    QVERIFY(link(folder.filePath(QStringLiteral("a")), QStringLiteral("link to a folder")));
    QVERIFY(link(folder.filePath(QStringLiteral("file")), QStringLiteral("link to a file")));
    QVERIFY(link(folder.filePath(QStringLiteral("gone")), QStringLiteral("broken link")));
    QVERIFY(link(folder.filePath(QStringLiteral("loop")), QStringLiteral("loop")));

    const QStringList listed = AddressPath::children(temporary.path(), AddressPath::nativeStyle());
    QCOMPARE(listed.size(), names.size() + 1);
    QCOMPARE(listed, folder.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name));
}

void tst_AddressPath::listsWhatComesAfterANameThatCannotBeDecoded()
{
#ifdef Q_OS_LINUX
    const QTemporaryDir temporary;
    const QDir folder(temporary.path());
    const auto undecodable = [&](int i) -> QByteArray {
        return QFile::encodeName(temporary.path()) + "/\xff" + QByteArray::number(i);
    };
    QStringList names;
    // Some come before it and some after it, in whatever order the folder has.
    for (int i = 0; i < 200; ++i) {
        names << QStringLiteral("%1").arg(i, 3, 10, QChar(u'0'));
        QVERIFY(folder.mkdir(names.constLast()));
        QVERIFY(::mkdir(undecodable(i).constData(), 0700) == 0);
    }
    // This is a name, not what stands for one that cannot be decoded.
    names << QStringLiteral("\uFFFD");
    QVERIFY(folder.mkdir(names.constLast()));
    QCOMPARE(AddressPath::children(temporary.path(), Root), names);
    // The temporary folder cannot remove them.
    for (int i = 0; i < 200; ++i)
        QVERIFY(::rmdir(undecodable(i).constData()) == 0);
#else
    QSKIP("Every name can be decoded here");
#endif
}

void tst_AddressPath::listsWhatOnlyQtFinds()
{
    const QStringList folders = AddressPath::children(QStringLiteral(":"), Root);
    QVERIFY(folders.contains(QStringLiteral("res")));
    QCOMPARE(folders,
             QDir(QStringLiteral(":/")).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name));
    const auto all = AddressFolder::names(QStringLiteral(":/testsupport/fonts"),
                                          AddressFolder::Wanted::FilesAndFolders);
    QCOMPARE(all.files, QStringList{QStringLiteral("DejaVuSans.ttf")});
    QCOMPARE(all.folders, QStringList());
    const QTemporaryDir temporary;
    QVERIFY(QDir(temporary.path()).mkpath(QStringLiteral("a/b")));
    const QString prefix = QStringLiteral("found");
    QDir::setSearchPaths(prefix, {QStringLiteral(":/"), temporary.path()});
    QCOMPARE(AddressPath::children(QStringLiteral("found:."), Root), folders);
    QCOMPARE(AddressPath::children(QStringLiteral("found:a"), Root),
             QStringList{QStringLiteral("b")});
    QDir::setSearchPaths(prefix, {});
}

void tst_AddressPath::listsNothingWhereNothingCanBeRead()
{
    const QTemporaryDir temporary;
    const QDir folder(temporary.path());
    for (const Style style : {Drives, Root}) {
        QCOMPARE(AddressPath::children(folder.filePath(QStringLiteral("gone")), style),
                 QStringList());
        QCOMPARE(AddressPath::children(QString(10000, u'x'), style), QStringList());
        QCOMPARE(AddressPath::children(QStringLiteral("  "), style), QStringList());
    }
    QFile file(folder.filePath(QStringLiteral("file")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(AddressPath::children(file.fileName(), Root), QStringList());
#ifdef Q_OS_UNIX
    const QString locked = folder.filePath(QStringLiteral("locked"));
    QVERIFY(folder.mkpath(QStringLiteral("locked/sub")));
    QVERIFY(QFile::setPermissions(locked, {}));
    {
        const Unprivileged user;
        QCOMPARE(AddressPath::children(locked, Root), QStringList());
    }
    QVERIFY(QFile::setPermissions(locked, QFile::ReadUser | QFile::WriteUser | QFile::ExeUser));
#endif
}

void tst_AddressPath::listsTheFoldersOfTheRoot()
{
    QCOMPARE(AddressPath::children(QString(), Root),
             QDir(QStringLiteral("/")).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name));
}

void tst_AddressPath::listsDrives()
{
    QStringList expected;
    const QFileInfoList drives = QDir::drives();
    for (const QFileInfo &drive : drives)
        expected << drive.absolutePath().section(u'/', 0, 0);
    QVERIFY(!expected.isEmpty());
    QCOMPARE(AddressPath::children(QString(), Drives), expected);
}

NORVANE_TEST_MAIN(tst_AddressPath)
#include "tst_AddressPath.moc"
