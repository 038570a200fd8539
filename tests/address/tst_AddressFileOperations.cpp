// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "Answers.h"
#include "Fault.h"
#include "Files.h"
#include "OpenedUrls.h"
#include "TestCase.h"
#include "Unprivileged.h"

#include <address/AddressFileOperations.h>

#include <QtCore/QFileInfo>
#include <QtCore/QMimeData>
#include <QtCore/QRegularExpression>
#include <QtCore/QScopeGuard>
#include <QtGui/QClipboard>

#include <cerrno>
#include <functional>

#include <fcntl.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

using Norvane::AddressFileOperations;
using namespace Qt::StringLiterals;

class tst_AddressFileOperations : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void numbersItsChecks();
    void checksACopy_data();
    void checksACopy();
    void findsThePathOfTheSourceAnywhere();
    void checksACopyThroughLinks_data();
    void checksACopyThroughLinks();
    void checksACopyOfPipes();
    void marksTheClipboard();

    void pastes_data();
    void pastes();
    void pastesNothing_data();
    void pastesNothing();
    void pastesLocalFilesOnly();
    void pastesWhatIsMarked_data();
    void pastesWhatIsMarked();
    void numbersCopies();
    void takesNoNumberOfALink();
    void leavesWhatIsCutIntoItsOwnFolder();

    void asksAboutAFile_data();
    void asksAboutAFile();
    void asksAboutAFolder_data();
    void asksAboutAFolder();
    void asksAboutEverySource();
    void reportsWhatCannotBeCopied_data();
    void reportsWhatCannotBeCopied();
    void mergesFolders();
    void reportsAFolderInTheWayOfAMerge();
    void mergesInTheOrderOfNames();
    void copiesFilesInTheOrderOfNames();
    void makesTheFoldersAboveACopy();
    void copiesNoHiddenEntries();
    void leavesPipesAlone();

    void cuts();
    void removesWhatItCutAfterAFailedCopy_data();
    void removesWhatItCutAfterAFailedCopy();
    void outlivesChangesWhileItAsks_data();
    void outlivesChangesWhileItAsks();
    void keepsALinkThatLeadsNowhereWhileItAsks();
    void pastesWhatWasOnTheClipboard();

    void copiesWhatLinksLeadTo();
    void removesLinksOnly_data();
    void removesLinksOnly();
    void replacesLinksOnly();
    void endsInLinkLoops();
    void copiesNoFolderIntoItselfThroughLinks();
    void removesNothingThatItWouldCopy_data();
    void removesNothingThatItWouldCopy();

    void removes_data();
    void removes();
    void removesForGood_data();
    void removesForGood();
    void removesForGoodWhatHasNoNameInTheTrash();
    void leavesWhatMayNotBeRemoved();
    void createsFolders();
    void createsAFolderWhereThereIsNone();
    void opensFilesOnly();

    void takesEveryName_data();
    void takesEveryName();
    void refusesNamesThatAreTooLong();
    void leavesOutNamesThatCannotBeDecoded();

    void survivesFaults_data();
    void survivesFaults();
    void survivesDelays_data();
    void survivesDelays();
    void replacesNothingThatCameMeanwhile_data();
    void replacesNothingThatCameMeanwhile();
    void removesNoTargetOfALinkThatCameMeanwhile();
    void saysThatItCannotReplace();
    void survivesAFullDisk();
};

namespace {

void toClipboard(const QStringList &paths, const QByteArray &mark)
{
    auto *data = new QMimeData;
    QList<QUrl> urls;
    for (const QString &path : paths)
        urls << QUrl::fromLocalFile(path);
    data->setUrls(urls);
    if (!mark.isNull())
        data->setData(u"application/x-cut-or-copy"_s, mark);
    QGuiApplication::clipboard()->setMimeData(data);
}

void paste(const QString &folder)
{
    AddressFileOperations().paste(QGuiApplication::clipboard(), folder);
}

void paste(const QStringList &paths, const QString &folder, bool cut = false)
{
    toClipboard(paths, cut ? "cut" : "copy");
    paste(folder);
}

bool clipboardIsEmpty()
{
    const QMimeData *data = QGuiApplication::clipboard()->mimeData();
    return !data || data->formats().isEmpty();
}

QString conflict(const QString &name)
{
    return u"This folder already contains a file named "_s + name
        + u". Do you want to replace the existing file or save the new file as a copy?"_s;
}

QString refusal(const QString &source, const QString &target, const QString &reason)
{
    return u"Cannot copy or move the file from "_s + source + u" to "_s + target + u". "_s + reason;
}

constexpr QLatin1StringView subfolder("The Target folder is a subfolder of the source folder.");
constexpr QLatin1StringView sameName("A file with the same name already exist.");

bool makePipe(const QString &path)
{
    return mkfifo(QFile::encodeName(path).constData(), 0600) == 0;
}

void setWritable(const QString &path, bool writable)
{
    chmod(QFile::encodeName(path).constData(), writable ? 0700 : 0500);
}

} // namespace

void tst_AddressFileOperations::numbersItsChecks()
{
    using Operations = AddressFileOperations;
    QCOMPARE(int(Operations::SourceMissing), 0);
    QCOMPARE(int(Operations::SamePath), 1);
    QCOMPARE(int(Operations::TargetInsideSource), 2);
    QCOMPARE(int(Operations::FileExists), 3);
    QCOMPARE(int(Operations::FolderExists), 4);
    QCOMPARE(int(Operations::TypeClash), 5);
    QCOMPARE(int(Operations::PermissionDenied), 6);
    QCOMPARE(int(Operations::TargetFree), 7);
}

void tst_AddressFileOperations::checksACopy_data()
{
    using Check = AddressFileOperations::CopyCheck;
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("target");
    QTest::addColumn<Check>("expected");
    const auto row = [](const char *name, const QString &source, const QString &target, Check is) {
        QTest::newRow(name) << source << target << is;
    };
    using Operations = AddressFileOperations;
    row("missing", u"no"_s, u"d/no"_s, Operations::SourceMissing);
    row("missing, onto a file", u"no"_s, u"f"_s, Operations::SourceMissing);
    row("missing, onto itself", u"no"_s, u"no"_s, Operations::SourceMissing);
    row("missing, into itself", u"no"_s, u"no/no"_s, Operations::SourceMissing);
    row("link to nothing", u"nowhere"_s, u"d/nowhere"_s, Operations::SourceMissing);
    row("file onto itself", u"f"_s, u"f"_s, Operations::SamePath);
    row("folder onto itself", u"d"_s, u"d"_s, Operations::SamePath);
    row("onto itself by another way", u"f"_s, u"d/../f"_s, Operations::SamePath);
    row("into itself", u"d"_s, u"d/d"_s, Operations::TargetInsideSource);
    row("deep into itself", u"d"_s, u"d/e/d"_s, Operations::TargetInsideSource);
    row("into itself, onto a folder", u"d"_s, u"d/e"_s, Operations::TargetInsideSource);
    row("into what begins alike", u"d"_s, u"dd/d"_s, Operations::TargetInsideSource);
    row("into what begins alike, in another case", u"d"_s, u"Dd/d"_s, Operations::TargetFree);
    row("file into what begins alike", u"f"_s, u"ff/f"_s, Operations::TargetInsideSource);
    row("file into itself", u"f"_s, u"f/f"_s, Operations::TargetInsideSource);
    row("beside itself", u"d"_s, u"Copy_2_of_d"_s, Operations::TargetFree);
    row("beside itself, named alike", u"d"_s, u"dd2"_s, Operations::TargetFree);
    row("file, free", u"f"_s, u"d/free"_s, Operations::TargetFree);
    row("folder, free", u"dd"_s, u"d/free"_s, Operations::TargetFree);
    row("into a missing folder", u"f"_s, u"no/f"_s, Operations::TargetFree);
    row("onto a link to nothing", u"f"_s, u"nowhere"_s, Operations::TargetFree);
    row("file onto file", u"f"_s, u"g"_s, Operations::FileExists);
    row("folder onto folder", u"dd"_s, u"d"_s, Operations::FolderExists);
    row("file onto folder", u"f"_s, u"d"_s, Operations::TypeClash);
    row("folder onto file", u"d"_s, u"f"_s, Operations::TypeClash);
}

void tst_AddressFileOperations::checksACopy()
{
    QFETCH(QString, source);
    QFETCH(QString, target);
    const Files files({u"d/e"_s, u"dd"_s, u"ff"_s, u"f=1"_s, u"g=2"_s, u"nowhere->no"_s});
    QTEST(AddressFileOperations::check(QFileInfo(files.path(source)),
                                       QFileInfo(QDir::cleanPath(files.path(target)))),
          "expected");
    QTEST(
        AddressFileOperations::check(QFileInfo(files.path(source)), QFileInfo(files.path(target))),
        "expected");
}

void tst_AddressFileOperations::findsThePathOfTheSourceAnywhere()
{
    const Files files({u"f=1"_s});
    const QString source = files.path(u"f"_s);
    QCOMPARE(AddressFileOperations::check(QFileInfo(source),
                                          QFileInfo(files.path(u"backup"_s) + source + u"s/f"_s)),
             AddressFileOperations::TargetInsideSource);
    // But only in the folder that the target lies in.
    QCOMPARE(AddressFileOperations::check(QFileInfo(source),
                                          QFileInfo(files.path(u"backup"_s) + source)),
             AddressFileOperations::TargetFree);
}

void tst_AddressFileOperations::checksACopyThroughLinks_data()
{
    using Check = AddressFileOperations::CopyCheck;
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("target");
    QTest::addColumn<Check>("expected");
    const auto row = [](const char *name, const QString &source, const QString &target, Check is) {
        QTest::newRow(name) << source << target << is;
    };
    using Operations = AddressFileOperations;
    row("file by another way", u"d/f"_s, u"way/f"_s, Operations::SamePath);
    row("back", u"way/f"_s, u"d/f"_s, Operations::SamePath);
    row("link onto what it leads to", u"link"_s, u"d/f"_s, Operations::SamePath);
    row("link to a folder onto it", u"way"_s, u"d"_s, Operations::SamePath);
    row("file onto a link to it", u"d/f"_s, u"link"_s, Operations::FileExists);
    row("link onto itself", u"link"_s, u"link"_s, Operations::SamePath);
    row("link onto another file", u"link"_s, u"g"_s, Operations::FileExists);
    row("link to a folder, free", u"way"_s, u"free"_s, Operations::TargetFree);
}

void tst_AddressFileOperations::checksACopyThroughLinks()
{
    QFETCH(QString, source);
    QFETCH(QString, target);
    const Files files({u"d"_s, u"d/f=1"_s, u"g=2"_s, u"way->d"_s, u"link->d/f"_s});
    QTEST(
        AddressFileOperations::check(QFileInfo(files.path(source)), QFileInfo(files.path(target))),
        "expected");
}

void tst_AddressFileOperations::checksACopyOfPipes()
{
    const Files files({u"f=1"_s, u"d"_s});
    const QFileInfo pipe(files.path(u"p"_s));
    const QFileInfo other(files.path(u"q"_s));
    QVERIFY(makePipe(pipe.filePath()) && makePipe(other.filePath()));
    const QFileInfo file(files.path(u"f"_s));
    const QFileInfo folder(files.path(u"d"_s));
    QCOMPARE(AddressFileOperations::check(pipe, other), AddressFileOperations::FolderExists);
    QCOMPARE(AddressFileOperations::check(pipe, folder), AddressFileOperations::FolderExists);
    QCOMPARE(AddressFileOperations::check(pipe, file), AddressFileOperations::TypeClash);
    QCOMPARE(AddressFileOperations::check(file, pipe), AddressFileOperations::TypeClash);
}

void tst_AddressFileOperations::marksTheClipboard()
{
    const QList<QUrl> urls{QUrl::fromLocalFile(u"/b"_s), QUrl::fromLocalFile(u"/a%1#?"_s)};
    const std::unique_ptr<QMimeData> cut(AddressFileOperations::clipboardData(urls, true));
    QCOMPARE(cut->urls(), urls);
    QCOMPARE(cut->data(u"application/x-cut-or-copy"_s), "cut");
    QCOMPARE(cut->data(u"text/uri-list"_s), "file:///b\r\nfile:///a%251%23%3F\r\n");
    const std::unique_ptr<QMimeData> copy(AddressFileOperations::clipboardData({}, false));
    QVERIFY(copy->hasUrls());
    QCOMPARE(copy->urls(), QList<QUrl>());
    QCOMPARE(copy->data(u"application/x-cut-or-copy"_s), "copy");
}

void tst_AddressFileOperations::pastes_data()
{
    QTest::addColumn<QStringList>("sources");
    QTest::addColumn<QString>("target");
    QTest::addColumn<QStringList>("more");
    QTest::newRow("file") << QStringList{u"f"_s} << u"to"_s << QStringList{u"to/f=1"_s};
    QTest::newRow("beside a file") << QStringList{u"f"_s} << u"to/t"_s << QStringList{u"to/f=1"_s};
    QTest::newRow("folder") << QStringList{
        u"d"_s} << u"to"_s << QStringList{u"to/d/"_s, u"to/d/e/"_s, u"to/d/e/g=3"_s, u"to/d/f=2"_s};
    QTest::newRow("folder with separator")
        << QStringList{u"d/e/"_s} << u"to"_s << QStringList{u"to/e/"_s, u"to/e/g=3"_s};
    QTest::newRow("several") << QStringList{u"f"_s, u"empty"_s} << u"to"_s
                             << QStringList{u"to/empty/"_s, u"to/f=1"_s};
}

void tst_AddressFileOperations::pastes()
{
    QFETCH(QStringList, sources);
    QFETCH(QString, target);
    QFETCH(QStringList, more);
    const Files files(
        {u"f=1"_s, u"d/e"_s, u"d/f=2"_s, u"d/e/g=3"_s, u"empty"_s, u"to"_s, u"to/t=t"_s});
    QStringList expected = files.entries() + more;
    expected.sort();
    for (QString &source : sources)
        source = files.path(source);
    const Answers answers;
    paste(sources, files.path(target));
    QCOMPARE(files.entries(), expected);
    QCOMPARE(answers.texts(), QStringList());
    QCOMPARE(files.trashed(), QStringList());
    QVERIFY(!clipboardIsEmpty());
}

void tst_AddressFileOperations::pastesNothing_data()
{
    QTest::addColumn<QString>("target");
    QTest::newRow("missing folder") << u"no"_s;
    QTest::newRow("folder below a file") << u"f/no"_s;
    QTest::newRow("nowhere") << QString();
}

void tst_AddressFileOperations::pastesNothing()
{
    QFETCH(QString, target);
    const Files files({u"f=1"_s, u"cwd"_s});
    const QStringList before = files.entries();
    const QString here = QDir::currentPath();
    QVERIFY(QDir::setCurrent(files.path(u"cwd"_s)));
    const auto back = qScopeGuard([here] { QDir::setCurrent(here); });
    for (const bool cut : {false, true}) {
        paste({files.path(u"f"_s)}, target.isEmpty() ? target : files.path(target), cut);
        QCOMPARE(files.entries(), before);
        QCOMPARE(QGuiApplication::clipboard()->mimeData()->urls().size(), 1);
    }
}

void tst_AddressFileOperations::pastesLocalFilesOnly()
{
    const Files files({u"f=1"_s, u"to"_s});
    const Answers answers;
    auto *data = new QMimeData;
    data->setUrls({QUrl(u"https://example.org/f"_s), QUrl::fromLocalFile(files.path(u"f"_s))});
    QGuiApplication::clipboard()->setMimeData(data);
    paste(files.path(u"to"_s));
    QCOMPARE(files.entries(), QStringList({u"f=1"_s, u"to/"_s, u"to/f=1"_s}));

    QGuiApplication::clipboard()->setText(files.path(u"f"_s));
    paste(files.path());
    QGuiApplication::clipboard()->clear();
    paste(files.path());
    QCOMPARE(files.entries(), QStringList({u"f=1"_s, u"to/"_s, u"to/f=1"_s}));
    QCOMPARE(answers.texts(), QStringList());
}

void tst_AddressFileOperations::pastesWhatIsMarked_data()
{
    QTest::addColumn<QByteArray>("mark");
    QTest::addColumn<bool>("moved");
    QTest::newRow("cut") << QByteArray("cut") << true;
    QTest::newRow("copy") << QByteArray("copy") << false;
    QTest::newRow("unmarked") << QByteArray() << false;
    QTest::newRow("capital letters") << QByteArray("CUT") << false;
    QTest::newRow("longer") << QByteArray("cut\n") << false;
    QTest::newRow("with an end") << QByteArray("cut\0", 4) << false;
}

void tst_AddressFileOperations::pastesWhatIsMarked()
{
    QFETCH(QByteArray, mark);
    QFETCH(bool, moved);
    const Files files({u"f=1"_s, u"to"_s});
    toClipboard({files.path(u"f"_s)}, mark);
    paste(files.path(u"to"_s));
    QCOMPARE(files.entries(),
             moved ? QStringList({u"to/"_s, u"to/f=1"_s})
                   : QStringList({u"f=1"_s, u"to/"_s, u"to/f=1"_s}));
    QCOMPARE(clipboardIsEmpty(), moved);
}

void tst_AddressFileOperations::numbersCopies()
{
    const Files files({u"a.txt=1"_s, u"d"_s, u"d/f=2"_s, u"Copy_4_of_a.txt=4"_s});
    const Answers answers;
    const QStringList sources{files.path(u"a.txt"_s), files.path(u"d"_s)};
    for (int i = 0; i < 3; ++i)
        paste(sources, files.path());
    QCOMPARE(files.entries(),
             QStringList({u"Copy_2_of_a.txt=1"_s, u"Copy_2_of_d/"_s, u"Copy_2_of_d/f=2"_s,
                          u"Copy_3_of_a.txt=1"_s, u"Copy_3_of_d/"_s, u"Copy_3_of_d/f=2"_s,
                          u"Copy_4_of_a.txt=4"_s, u"Copy_4_of_d/"_s, u"Copy_4_of_d/f=2"_s,
                          u"Copy_5_of_a.txt=1"_s, u"a.txt=1"_s, u"d/"_s, u"d/f=2"_s}));
    QCOMPARE(answers.texts(), QStringList());
}

void tst_AddressFileOperations::takesNoNumberOfALink()
{
    const Files files({u"a=1"_s, u"Copy_2_of_a->no"_s});
    paste({files.path(u"a"_s)}, files.path());
    QCOMPARE(files.entries(), QStringList({u"Copy_2_of_a->no"_s, u"Copy_3_of_a=1"_s, u"a=1"_s}));
}

void tst_AddressFileOperations::leavesWhatIsCutIntoItsOwnFolder()
{
    const Files files({u"a=1"_s, u"d"_s, u"d/f=2"_s});
    const QStringList before = files.entries();
    const Answers answers;
    paste({files.path(u"a"_s), files.path(u"d"_s)}, files.path(), true);
    QCOMPARE(files.entries(), before);
    QCOMPARE(files.trashed(), QStringList());
    QCOMPARE(answers.texts(), QStringList());
    QVERIFY(clipboardIsEmpty());
}

void tst_AddressFileOperations::asksAboutAFile_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<bool>("cut");
    QTest::addColumn<QStringList>("left");
    QTest::addColumn<QStringList>("trashed");
    const QStringList before{u"f=new"_s, u"to/"_s, u"to/f=old"_s};
    const QStringList replaced{u"f=new"_s, u"to/"_s, u"to/f=new"_s};
    const QStringList both{u"f=new"_s, u"to/"_s, u"to/Copy_2_of_f=new"_s, u"to/f=old"_s};
    QTest::newRow("replace") << u"Replace Current"_s << false << replaced
                             << QStringList{u"f=old"_s};
    QTest::newRow("save") << u"Save a Copy"_s << false << both << QStringList();
    QTest::newRow("skip") << u"Skip"_s << false << before << QStringList();
    QTest::newRow("cancel") << u"Cancel"_s << false << before << QStringList();
    QTest::newRow("escape") << QString() << false << before << QStringList();
    // The trash has two files of that name then, and only the first keeps it.
    QTest::newRow("cut, replace") << u"Replace Current"_s << true << replaced.mid(1)
                                  << QStringList{u"f=old"_s, u"f-*=new"_s};
    QTest::newRow("cut, save") << u"Save a Copy"_s << true << both.mid(1)
                               << QStringList{u"f=new"_s};
    QTest::newRow("cut, skip") << u"Skip"_s << true << before << QStringList();
    QTest::newRow("cut, cancel") << u"Cancel"_s << true << before << QStringList();
    QTest::newRow("cut, escape") << QString() << true << before << QStringList();
}

void tst_AddressFileOperations::asksAboutAFile()
{
    QFETCH(QString, button);
    QFETCH(bool, cut);
    const Files files({u"f=new"_s, u"to"_s, u"to/f=old"_s});
    const Answers answers({{button}});
    paste({files.path(u"f"_s)}, files.path(u"to"_s), cut);
    QTEST(files.entries(), "left");
    QStringList trashed = files.trashed();
    trashed.replaceInStrings(QRegularExpression(u"^f-\\d+"_s), u"f-*"_s);
    std::sort(trashed.rbegin(), trashed.rend());
    QTEST(trashed, "trashed");
    QCOMPARE(answers.boxes().size(), 1);
    const Answers::Box box = answers.boxes().constFirst();
    QCOMPARE(box.title, u"information"_s);
    QCOMPARE(box.text, conflict(u"f"_s));
    // A name is no markup.
    QCOMPARE(box.format, Qt::PlainText);
    QCOMPARE(box.icon, QMessageBox::NoIcon);
    QCOMPARE(box.parent, nullptr);
    QCOMPARE(box.buttons,
             QStringList({u"Replace Current"_s, u"Save a Copy"_s, u"Skip"_s, u"Cancel"_s}));
    QCOMPARE(clipboardIsEmpty(), cut);
}

void tst_AddressFileOperations::asksAboutAFolder_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<bool>("cut");
    QTest::addColumn<QStringList>("left");
    const QStringList source{u"d/"_s, u"d/f=new"_s};
    const QStringList before{u"to/"_s, u"to/d/"_s, u"to/d/f=old"_s, u"to/d/g=old"_s};
    const QStringList merged{u"to/"_s, u"to/d/"_s, u"to/d/f=new"_s, u"to/d/g=old"_s};
    QTest::newRow("replace") << u"Replace Current"_s << false << source + merged;
    QTest::newRow("cancel") << u"Cancel"_s << false << source + before;
    QTest::newRow("escape") << QString() << false << source + before;
    QTest::newRow("cut, replace") << u"Replace Current"_s << true << merged;
    QTest::newRow("cut, cancel") << u"Cancel"_s << true << source + before;
}

void tst_AddressFileOperations::asksAboutAFolder()
{
    QFETCH(QString, button);
    QFETCH(bool, cut);
    const Files files({u"d"_s, u"d/f=new"_s, u"to/d"_s, u"to/d/f=old"_s, u"to/d/g=old"_s});
    const Answers answers({{button}});
    paste({files.path(u"d"_s)}, files.path(u"to"_s), cut);
    QTEST(files.entries(), "left");
    QCOMPARE(answers.boxes().size(), 1);
    const Answers::Box box = answers.boxes().constFirst();
    QCOMPARE(box.title, u"information"_s);
    QCOMPARE(box.text, conflict(u"d"_s));
    QCOMPARE(box.buttons, QStringList({u"Replace Current"_s, u"Cancel"_s}));
}

void tst_AddressFileOperations::asksAboutEverySource()
{
    const Files files({u"a=1"_s, u"b=1"_s, u"c=1"_s, u"d=1"_s, u"e=1"_s, u"to"_s, u"to/a=2"_s,
                       u"to/b=2"_s, u"to/c=2"_s, u"to/e=2"_s, u"to/Copy_2_of_e=2"_s});
    QStringList sources;
    for (const QString &name : {u"a"_s, u"b"_s, u"c"_s, u"d"_s, u"e"_s})
        sources << files.path(name);
    const Answers answers({{u"Cancel"_s}, {u"Replace Current"_s}, {}, {u"Save a Copy"_s}});
    paste(sources, files.path(u"to"_s));
    QCOMPARE(files.entries(u"to"_s),
             QStringList({u"Copy_2_of_e=2"_s, u"Copy_3_of_e=1"_s, u"a=2"_s, u"b=1"_s, u"c=2"_s,
                          u"d=1"_s, u"e=2"_s}));
    QCOMPARE(answers.texts(),
             QStringList({conflict(u"a"_s), conflict(u"b"_s), conflict(u"c"_s), conflict(u"e"_s)}));
}

void tst_AddressFileOperations::reportsWhatCannotBeCopied_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("target");
    QTest::addColumn<QString>("reason");
    QTest::newRow("missing") << u"no"_s << u"to"_s << QString();
    QTest::newRow("link to nothing") << u"nowhere"_s << u"to"_s << QString();
    QTest::newRow("into itself") << u"d"_s << u"d"_s << QString(subfolder);
    QTest::newRow("deep into itself") << u"d"_s << u"d/e"_s << QString(subfolder);
    QTest::newRow("into what begins alike") << u"d"_s << u"dd"_s << QString(subfolder);
    QTest::newRow("file onto folder") << u"f"_s << u"clash"_s << QString(sameName);
    QTest::newRow("folder onto file") << u"d"_s << u"clash"_s << QString(sameName);
}

void tst_AddressFileOperations::reportsWhatCannotBeCopied()
{
    QFETCH(QString, source);
    QFETCH(QString, target);
    QFETCH(QString, reason);
    for (const bool cut : {false, true}) {
        const Files files({u"f=1"_s, u"d/e"_s, u"dd"_s, u"to"_s, u"nowhere->no"_s, u"clash/f"_s,
                           u"clash/d=1"_s, u"last=1"_s});
        QStringList expected = files.entries();
        expected << target + u"/last=1"_s;
        if (cut)
            expected.removeOne(u"last=1"_s);
        expected.sort();
        const QString from = files.path(source);
        const QString to = files.path(target) + u'/' + source;
        const Answers answers;
        paste({from, files.path(u"last"_s)}, files.path(target), cut);
        QCOMPARE(files.entries(), expected);
        QCOMPARE(answers.boxes().size(), 1);
        const Answers::Box box = answers.boxes().constFirst();
        QCOMPARE(box.title, u"Copy Error"_s);
        QCOMPARE(box.format, Qt::PlainText);
        QCOMPARE(box.text,
                 reason.isEmpty() ? u"Source file does not exist"_s : refusal(from, to, reason));
        QCOMPARE(box.buttons, QStringList{u"OK"_s});
        QCOMPARE(box.icon, QMessageBox::NoIcon);
        QCOMPARE(box.parent, nullptr);
        QCOMPARE(clipboardIsEmpty(), cut);
    }
}

void tst_AddressFileOperations::mergesFolders()
{
    const QStringList entries{u"d/sub"_s,        u"d/same=1"_s,       u"d/new=1"_s,
                              u"d/folder=1"_s,   u"d/sub/same=1"_s,   u"d/sub/new=1"_s,
                              u"to/d/sub"_s,     u"to/d/folder"_s,    u"to/d/same=2"_s,
                              u"to/d/other=2"_s, u"to/d/sub/same=2"_s};
    for (const bool overwrite : {false, true}) {
        const Files files(entries);
        const Answers answers;
        AddressFileOperations().copy(files.path(u"d"_s), files.path(u"to/d"_s), overwrite);
        const QString kept = overwrite ? u"=1"_s : u"=2"_s;
        QCOMPARE(files.entries(u"to/d"_s),
                 QStringList({u"folder/"_s, u"new=1"_s, u"other=2"_s, u"same"_s + kept, u"sub/"_s,
                              u"sub/new=1"_s, u"sub/same"_s + kept}));
        QCOMPARE(files.trashed().size(), overwrite ? 2 : 0);
        QCOMPARE(answers.texts(), QStringList());
    }
}

void tst_AddressFileOperations::reportsAFolderInTheWayOfAMerge()
{
    const Files files({u"d/a"_s, u"d/b"_s, u"d/b/f=1"_s, u"to/d"_s, u"to/d/a=2"_s});
    const Answers answers({{u"Replace Current"_s}, {u"OK"_s}});
    paste({files.path(u"d"_s)}, files.path(u"to"_s));
    QCOMPARE(files.entries(u"to/d"_s), QStringList({u"a=2"_s, u"b/"_s, u"b/f=1"_s}));
    QCOMPARE(answers.texts(),
             QStringList({conflict(u"d"_s),
                          refusal(files.path(u"d/a"_s), files.path(u"to/d/a"_s), sameName)}));
}

// As a person reads them: capitals do not come first.
void tst_AddressFileOperations::mergesInTheOrderOfNames()
{
    const Files files({u"d/b"_s, u"d/A"_s, u"d/C"_s, u"d/a1"_s, u"to/d"_s, u"to/d/b=2"_s,
                       u"to/d/A=2"_s, u"to/d/C=2"_s, u"to/d/a1=2"_s});
    const QStringList names{u"A"_s, u"a1"_s, u"b"_s, u"C"_s};
    QCOMPARE(QDir(files.path(u"d"_s)).entryList(QDir::Dirs | QDir::NoDotAndDotDot), names);
    const Answers answers({{u"Replace Current"_s}});
    paste({files.path(u"d"_s)}, files.path(u"to"_s));
    QStringList expected{conflict(u"d"_s)};
    for (const QString &name : names) {
        expected << refusal(files.path(u"d/"_s + name), files.path(u"to/d/"_s + name), sameName);
    }
    QCOMPARE(answers.texts(), expected);
}

void tst_AddressFileOperations::copiesFilesInTheOrderOfNames()
{
    const QStringList names{u"A"_s, u"a1"_s, u"b"_s, u"C"_s};
    for (int failing = 1; failing <= names.size(); ++failing) {
        const Files files({u"d"_s, u"d/b=1"_s, u"d/A=1"_s, u"d/C=1"_s, u"d/a1=1"_s});
        {
            const Fault fault(Fault::OpenToRead, failing, failing, EACCES);
            AddressFileOperations().copy(files.path(u"d"_s), files.path(u"to"_s), false);
        }
        QStringList left = names;
        left.removeAt(failing - 1);
        QCOMPARE(QDir(files.path(u"to"_s)).entryList(QDir::Files), left);
    }
}

void tst_AddressFileOperations::makesTheFoldersAboveACopy()
{
    const Files files({u"d/e"_s, u"d/f=1"_s});
    AddressFileOperations().copy(files.path(u"d"_s), files.path(u"no/such/folder"_s), false);
    QCOMPARE(
        files.entries(u"no"_s),
        QStringList({u"such/"_s, u"such/folder/"_s, u"such/folder/e/"_s, u"such/folder/f=1"_s}));
}

void tst_AddressFileOperations::copiesNoHiddenEntries()
{
    const Files files({u"d/.hidden"_s, u"d/.f=1"_s, u"d/f=1"_s, u"to"_s, u".g=1"_s});
    paste({files.path(u"d"_s), files.path(u".g"_s)}, files.path(u"to"_s));
    QCOMPARE(files.entries(u"to"_s), QStringList({u".g=1"_s, u"d/"_s, u"d/f=1"_s}));
}

void tst_AddressFileOperations::leavesPipesAlone()
{
    const Files files({u"d"_s, u"d/link->p"_s, u"to/p"_s});
    QVERIFY(makePipe(files.path(u"d/p"_s)) && makePipe(files.path(u"q"_s)));
    const Answers answers({{u"Replace Current"_s}});
    // To open a pipe would wait for somebody at its other end.
    paste({files.path(u"q"_s), files.path(u"d"_s), files.path(u"d/p"_s)}, files.path(u"to"_s));
    QCOMPARE(files.entries(u"to"_s), QStringList({u"d/"_s, u"p/"_s}));
    QCOMPARE(answers.texts(), QStringList{conflict(u"p"_s)});
}

void tst_AddressFileOperations::cuts()
{
    const Files files({u"f=1"_s, u"d/e"_s, u"d/f=2"_s, u"d/.f=3"_s, u"to"_s});
    const Answers answers;
    paste({files.path(u"f"_s), files.path(u"d"_s)}, files.path(u"to"_s), true);
    QCOMPARE(files.entries(),
             QStringList({u"to/"_s, u"to/d/"_s, u"to/d/e/"_s, u"to/d/f=2"_s, u"to/f=1"_s}));
    // What the copy lacks can be had from the trash.
    QCOMPARE(files.trashed(), QStringList({u"d/"_s, u"d/.f=3"_s, u"d/e/"_s, u"d/f=2"_s, u"f=1"_s}));
    QCOMPARE(answers.texts(), QStringList());
    QVERIFY(clipboardIsEmpty());
}

void tst_AddressFileOperations::removesWhatItCutAfterAFailedCopy_data()
{
    QTest::addColumn<Files::Trash>("trash");
    QTest::addColumn<QStringList>("trashed");
    QTest::newRow("into the trash")
        << Files::Trash::Working << QStringList{u"d/"_s, u"d/f=1"_s, u"f=1"_s};
    QTest::newRow("for good") << Files::Trash::Missing << QStringList();
}

void tst_AddressFileOperations::removesWhatItCutAfterAFailedCopy()
{
    QFETCH(Files::Trash, trash);
    const Unprivileged user;
    const Files files({u"f=1"_s, u"d"_s, u"d/f=1"_s, u"to"_s}, trash);
    setWritable(files.path(u"to"_s), false);
    const auto writable = qScopeGuard([&] { setWritable(files.path(u"to"_s), true); });
    const Answers answers;
    paste({files.path(u"f"_s), files.path(u"d"_s)}, files.path(u"to"_s), true);
    QCOMPARE(files.entries(), QStringList{u"to/"_s});
    QTEST(files.trashed(), "trashed");
    QCOMPARE(answers.texts(), QStringList());
    QVERIFY(clipboardIsEmpty());
}

void tst_AddressFileOperations::outlivesChangesWhileItAsks_data()
{
    QTest::addColumn<QString>("gone");
    QTest::addColumn<QString>("button");
    QTest::addColumn<bool>("cut");
    QTest::addColumn<QStringList>("left");
    QTest::addColumn<int>("errors");
    const QString replace = u"Replace Current"_s;
    const QString save = u"Save a Copy"_s;
    const QStringList source{u"f=new"_s};
    const QStringList target{u"to/"_s, u"to/f=old"_s};
    const QStringList copied{u"to/"_s, u"to/f=new"_s};
    for (const QString &button : {replace, save}) {
        const QByteArray name = button.toLatin1();
        QTest::addRow("source, copy, %s", name.constData())
            << u"f"_s << button << false << target << 1;
        QTest::addRow("source, cut, %s", name.constData())
            << u"f"_s << button << true << target << 0;
        QTest::addRow("target, copy, %s", name.constData())
            << u"to/f"_s << button << false << source + copied << 0;
        QTest::addRow("target, cut, %s", name.constData())
            << u"to/f"_s << button << true << copied << 0;
        QTest::addRow("folder, copy, %s", name.constData())
            << u"to"_s << button << false << source << 0;
        // A cut removes its source whatever became of the copy.
        QTest::addRow("folder, cut, %s", name.constData())
            << u"to"_s << button << true << QStringList() << 0;
    }
}

void tst_AddressFileOperations::outlivesChangesWhileItAsks()
{
    QFETCH(QString, gone);
    QFETCH(QString, button);
    QFETCH(bool, cut);
    QFETCH(int, errors);
    const Files files({u"f=new"_s, u"to"_s, u"to/f=old"_s});
    const auto vanish = [&] {
        const QFileInfo info(files.path(gone));
        QVERIFY(info.isDir() ? QDir(info.filePath()).removeRecursively()
                             : QFile::remove(info.filePath()));
    };
    const Answers answers({{button, vanish}});
    paste({files.path(u"f"_s)}, files.path(u"to"_s), cut);
    QTEST(files.entries(), "left");
    QStringList texts{conflict(u"f"_s)};
    if (errors > 0)
        texts << u"Source file does not exist"_s;
    QCOMPARE(answers.texts(), texts);
}

void tst_AddressFileOperations::keepsALinkThatLeadsNowhereWhileItAsks()
{
    const Files files({u"f=new"_s, u"link->f"_s, u"to"_s, u"to/link=old"_s});
    const Answers answers(
        {{u"Replace Current"_s, [&] { QVERIFY(QFile::remove(files.path(u"f"_s))); }}});
    paste({files.path(u"link"_s)}, files.path(u"to"_s), true);
    QVERIFY(QFileInfo(files.path(u"link"_s)).isSymLink());
    QVERIFY(files.entries().contains(u"to/link=old"_s));
    QCOMPARE(files.trashed(), QStringList());
    QCOMPARE(answers.texts(), QStringList{conflict(u"link"_s)});
}

void tst_AddressFileOperations::pastesWhatWasOnTheClipboard()
{
    const Files files({u"a=1"_s, u"b=1"_s, u"c=1"_s, u"to"_s, u"to/a=2"_s});
    const auto change = [&] { toClipboard({files.path(u"c"_s)}, "copy"); };
    const Answers answers({{u"Replace Current"_s, change}});
    paste({files.path(u"a"_s), files.path(u"b"_s)}, files.path(u"to"_s), true);
    QCOMPARE(files.entries(), QStringList({u"c=1"_s, u"to/"_s, u"to/a=1"_s, u"to/b=1"_s}));
    QVERIFY(clipboardIsEmpty());
}

void tst_AddressFileOperations::copiesWhatLinksLeadTo()
{
    const Files files({u"t"_s, u"t/f=1"_s, u"file->t/f"_s, u"folder->t"_s, u"d"_s,
                       u"d/file->../t/f"_s, u"d/folder->../t"_s, u"d/no->nowhere"_s, u"to"_s});
    const Answers answers;
    paste({files.path(u"file"_s), files.path(u"folder"_s), files.path(u"d"_s)},
          files.path(u"to"_s));
    QCOMPARE(files.entries(u"to"_s),
             QStringList({u"d/"_s, u"d/file=1"_s, u"d/folder/"_s, u"d/folder/f=1"_s, u"file=1"_s,
                          u"folder/"_s, u"folder/f=1"_s}));
    QCOMPARE(answers.texts(), QStringList());
}

void tst_AddressFileOperations::removesLinksOnly_data()
{
    QTest::addColumn<Files::Trash>("trash");
    QTest::addColumn<QString>("name");
    for (const Files::Trash trash : {Files::Trash::Working, Files::Trash::Missing}) {
        for (const char *name : {"file", "folder", "nowhere", "itself", "d"}) {
            QTest::addRow("%s, %s", name, trash == Files::Trash::Working ? "trash" : "no trash")
                << trash << QString::fromLatin1(name);
        }
    }
}

void tst_AddressFileOperations::removesLinksOnly()
{
    QFETCH(Files::Trash, trash);
    QFETCH(QString, name);
    const QStringList target{u"t/"_s, u"t/e/"_s, u"t/f=1"_s};
    const Files files({u"t/e"_s, u"t/f=1"_s}, trash);
    const QString to = files.path(u"t"_s);
    if (name == u"file"_s)
        files.make({u"file->"_s + to + u"/f"_s});
    else if (name == u"folder"_s)
        files.make({u"folder->"_s + to});
    else if (name == u"nowhere"_s)
        files.make({u"nowhere->no"_s});
    else if (name == u"itself"_s)
        files.make({u"itself->itself"_s});
    else
        files.make({u"d"_s, u"d/file->"_s + to + u"/f"_s, u"d/folder->"_s + to});
    QVERIFY(files.entries() != target);
    AddressFileOperations operations;
    QVERIFY(operations.remove(files.path(name)));
    QCOMPARE(files.entries(), target);
    QCOMPARE(files.trashed().isEmpty(), trash == Files::Trash::Missing);
    QCOMPARE(operations.trashPath().isEmpty(), trash == Files::Trash::Missing);
}

void tst_AddressFileOperations::replacesLinksOnly()
{
    const Files files({u"f=new"_s, u"t=old"_s, u"to"_s, u"to/f->../t"_s});
    const Answers answers({{u"Replace Current"_s}});
    paste({files.path(u"f"_s)}, files.path(u"to"_s));
    QCOMPARE(files.entries(), QStringList({u"f=new"_s, u"t=old"_s, u"to/"_s, u"to/f=new"_s}));
    QCOMPARE(files.trashed(), QStringList{u"f->../t"_s});
}

void tst_AddressFileOperations::endsInLinkLoops()
{
    const Files files({u"d/e"_s, u"d/f=1"_s, u"d/one->../d"_s, u"d/two->."_s, u"d/e/up->.."_s,
                       u"d/e/g=2"_s, u"d/to->../to"_s, u"to"_s});
    const Answers answers;
    paste({files.path(u"d"_s)}, files.path(u"to"_s));
    QCOMPARE(files.entries(u"to"_s), QStringList({u"d/"_s, u"d/e/"_s, u"d/e/g=2"_s, u"d/f=1"_s}));
    // A link to what lies above, copied to where it leads.
    files.make({u"d/above->.."_s});
    paste({files.path(u"d/above"_s)}, files.path(u"to"_s));
    QCOMPARE(answers.texts(),
             QStringList{refusal(files.path(u"d/above"_s), files.path(u"to/above"_s), subfolder)});
    paste({files.path(u"d/e/up"_s)}, files.path(u"d/e"_s));
    QCOMPARE(answers.boxes().size(), 1);
    QVERIFY(files.entries().contains(u"d/e/Copy_2_of_up/f=1"_s));
    QVERIFY(!files.entries().join(u'\n').contains(u"Copy_2_of_up/e"_s));
}

void tst_AddressFileOperations::copiesNoFolderIntoItselfThroughLinks()
{
    const Files files({u"d/e"_s, u"d/f=1"_s, u"way->d/e"_s});
    const QStringList before = files.entries();
    const Answers answers;
    paste({files.path(u"d"_s)}, files.path(u"way"_s), true);
    paste({files.path(u"d/e"_s)}, files.path(u"way"_s), true);
    paste({files.path(u"way"_s)}, files.path(u"d/e"_s), true);
    QCOMPARE(files.entries(), before);
    QCOMPARE(answers.texts(),
             QStringList({refusal(files.path(u"d"_s), files.path(u"way/d"_s), subfolder),
                          refusal(files.path(u"d/e"_s), files.path(u"way/e"_s), subfolder),
                          refusal(files.path(u"way"_s), files.path(u"d/e/way"_s), subfolder)}));
}

void tst_AddressFileOperations::removesNothingThatItWouldCopy_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("target");
    QTest::newRow("file by another way") << u"d/f"_s << u"way"_s;
    QTest::newRow("folder by another way") << u"d/e"_s << u"way"_s;
    QTest::newRow("link onto what it leads to") << u"f"_s << u"d"_s;
    QTest::newRow("link to a folder onto it") << u"e"_s << u"d"_s;
    QTest::newRow("folder of links onto what they lead to") << u"l/d"_s << u""_s;
}

void tst_AddressFileOperations::removesNothingThatItWouldCopy()
{
    QFETCH(QString, source);
    QFETCH(QString, target);
    const QStringList entries{
        u"d/e"_s,    u"d/f=1"_s, u"d/e/g=2"_s,          u"way->d"_s,          u"f->d/f"_s,
        u"e->d/e"_s, u"l/d"_s,   u"l/d/f->../../d/f"_s, u"l/d/e->../../d/e"_s};
    const Files files(entries);
    const QStringList before = files.entries();
    const Answers answers({{u"Replace Current"_s}});
    paste({files.path(source)}, target.isEmpty() ? files.path() : files.path(target));
    QStringList after = files.entries();
    after.removeIf([](const QString &entry) { return entry.contains(u"Copy_2_of_"_s); });
    QCOMPARE(after, before);
    QCOMPARE(files.trashed(), QStringList());
}

void tst_AddressFileOperations::removes_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QStringList>("trashed");
    QTest::newRow("file") << u"f"_s << QStringList{u"f=1"_s};
    QTest::newRow("hidden file") << u".f"_s << QStringList{u".f=2"_s};
    QTest::newRow("folder") << u"d"_s << QStringList{u"d/"_s, u"d/.g=3"_s, u"d/e/"_s, u"d/e/g=4"_s};
    QTest::newRow("nothing") << u"no"_s << QStringList();
    QTest::newRow("nowhere") << u"no/no"_s << QStringList();
}

void tst_AddressFileOperations::removes()
{
    QFETCH(QString, name);
    QFETCH(QStringList, trashed);
    const Files files({u"f=1"_s, u".f=2"_s, u"d/e"_s, u"d/.g=3"_s, u"d/e/g=4"_s});
    QStringList left = files.entries();
    left.removeIf([&](const QString &entry) { return trashed.contains(entry); });
    AddressFileOperations operations(u"/before"_s);
    QCOMPARE(operations.trashPath(), u"/before"_s);
    QCOMPARE(operations.remove(files.path(name)), !trashed.isEmpty());
    QCOMPARE(files.entries(), left);
    QCOMPARE(files.trashed(), trashed);
    QCOMPARE(operations.trashPath(),
             trashed.isEmpty() ? QString() : files.home() + u"/.local/share/Trash/files/"_s + name);
}

void tst_AddressFileOperations::removesForGood_data()
{
    QTest::addColumn<QString>("trash");
    QTest::newRow("no place for a trash") << QString();
    QTest::newRow("a link for a trash") << u"link"_s;
    QTest::newRow("a file for a trash") << u"file"_s;
    QTest::newRow("a trash that may not be written") << u"read-only"_s;
}

void tst_AddressFileOperations::removesForGood()
{
    QFETCH(QString, trash);
    const Unprivileged user;
    const Files files({u"f=1"_s, u"d/e"_s, u"d/.g=2"_s, u"d/e/h=3"_s}, Files::Trash::Missing);
    const QString share = files.home() + u"/.local/share"_s;
    const QString place = share + u"/Trash"_s;
    QDir(files.home()).mkpath(trash.isEmpty() ? u"."_s : u".local/share"_s);
    if (trash == u"link"_s) {
        QDir(files.home()).mkpath(u"elsewhere/files"_s);
        QDir(files.home()).mkpath(u"elsewhere/info"_s);
        QVERIFY(QFile::link(files.home() + u"/elsewhere"_s, place));
    } else if (trash == u"file"_s) {
        QVERIFY(QFile(place).open(QIODevice::WriteOnly));
    } else if (trash == u"read-only"_s) {
        QVERIFY(QDir().mkpath(place + u"/files"_s) && QDir().mkpath(place + u"/info"_s));
        setWritable(place + u"/files"_s, false);
        setWritable(place + u"/info"_s, false);
    }
    AddressFileOperations operations(u"/before"_s);
    QVERIFY(operations.remove(files.path(u"f"_s)));
    QVERIFY(operations.remove(files.path(u"d"_s)));
    QVERIFY(!operations.remove(files.path(u"d"_s)));
    QCOMPARE(operations.trashPath(), QString());
    QCOMPARE(files.entries(), QStringList());
    QVERIFY(QDir(files.home() + u"/elsewhere/files"_s).isEmpty());
    setWritable(place + u"/files"_s, true);
    setWritable(place + u"/info"_s, true);
}

void tst_AddressFileOperations::removesForGoodWhatHasNoNameInTheTrash()
{
    // The trash keeps a note named after the file, with ten letters more.
    const QString fits(245, u'a');
    const QString tooLong(246, u'b');
    const Files files({fits + u"=1"_s, tooLong + u"=2"_s});
    AddressFileOperations operations;
    QVERIFY(operations.remove(files.path(tooLong)));
    QCOMPARE(operations.trashPath(), QString());
    QVERIFY(operations.remove(files.path(fits)));
    QCOMPARE(files.entries(), QStringList());
    QCOMPARE(files.trashed(), QStringList{fits + u"=1"_s});
}

void tst_AddressFileOperations::leavesWhatMayNotBeRemoved()
{
    const Unprivileged user;
    const Files files({u"d"_s, u"d/e"_s, u"d/e/f=1"_s}, Files::Trash::Missing);
    setWritable(files.path(u"d"_s), false);
    const auto writable = qScopeGuard([&] { setWritable(files.path(u"d"_s), true); });
    AddressFileOperations operations;
    QVERIFY(!operations.remove(files.path(u"d"_s)));
    QVERIFY(QFileInfo::exists(files.path(u"d/e"_s)));
}

void tst_AddressFileOperations::createsFolders()
{
    const Files files({u"d"_s, u"d/New Folder (3)=1"_s, u"d/New Folder (5)->no"_s});
    QStringList made;
    for (int i = 0; i < 4; ++i)
        made << AddressFileOperations::createFolder(files.path(u"d"_s)).mid(files.path().size());
    QCOMPARE(made,
             QStringList({u"/d/New Folder"_s, u"/d/New Folder (2)"_s, u"/d/New Folder (4)"_s,
                          u"/d/New Folder (6)"_s}));
    QCOMPARE(files.entries(u"d"_s),
             QStringList({u"New Folder (2)/"_s, u"New Folder (3)=1"_s, u"New Folder (4)/"_s,
                          u"New Folder (5)->no"_s, u"New Folder (6)/"_s, u"New Folder/"_s}));
}

void tst_AddressFileOperations::createsAFolderWhereThereIsNone()
{
    const Files files;
    AddressFileOperations::createFolder(files.path(u"gone"_s));
    QCOMPARE(files.entries(), QStringList({u"gone/"_s, u"gone/New Folder/"_s}));
}

void tst_AddressFileOperations::opensFilesOnly()
{
    const Files files({u"f=1"_s, u"d"_s, u"link->f"_s, u"no->nowhere"_s, u"a#b?c%41=1"_s});
    const OpenedUrls opened;
    for (const QString &name : {u"d"_s, u"no"_s, u"missing"_s})
        AddressFileOperations::open(files.path(name));
    AddressFileOperations::open({});
    QCOMPARE(opened.paths, QStringList());
    QStringList paths;
    for (const QString &name : {u"f"_s, u"link"_s, u"a#b?c%41"_s}) {
        paths << files.path(name);
        AddressFileOperations::open(paths.constLast());
    }
    QCOMPARE(opened.paths, paths);
}

void tst_AddressFileOperations::takesEveryName_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("percent") << u"%1 %2 %n %41"_s;
    QTest::newRow("line feed") << u"line\nfeed"_s;
    QTest::newRow("ampersand") << u"one & two && three"_s;
    QTest::newRow("markup") << u"<b>bold<b>&amp;"_s;
    QTest::newRow("blanks") << u"  blanks  "_s;
    QTest::newRow("backslash") << u"back\\slash"_s;
    QTest::newRow("of a URL") << u"a#b?c:d@e;f"_s;
    QTest::newRow("of a shell") << u"*?[a]~$(x)`'\""_s;
    QTest::newRow("of an option") << u"-rf"_s;
    QTest::newRow("drive") << u"C:"_s;
    QTest::newRow("letters") << u"äöü 文件 🙂"_s;
    QTest::newRow("control") << u"\x01\x1b[31m\x7f"_s;
    QTest::newRow("230 bytes") << QString(115, u'ä');
}

void tst_AddressFileOperations::takesEveryName()
{
    QFETCH(QString, name);
    const QString numbered = u"Copy_2_of_"_s + name;
    const auto sorted = [](QStringList list) {
        list.sort();
        return list;
    };
    for (const bool folder : {false, true}) {
        const Files files({u"from"_s, u"to"_s});
        const auto entry = [&](const QString &path) {
            if (!folder)
                return QStringList{path + u"=1"_s};
            return QStringList{path + u'/', path + u'/' + name + u"=1"_s};
        };
        if (folder)
            QVERIFY(QDir().mkpath(files.path(u"from/"_s + name)));
        files.write(u"from/"_s + name + (folder ? u'/' + name : QString()), "1");
        QCOMPARE(files.entries(u"from"_s), sorted(entry(name)));
        const QString source = files.path(u"from/"_s + name);
        const Answers answers({{u"Replace Current"_s}, {u"Cancel"_s}, {u"OK"_s}});
        AddressFileOperations operations;

        paste({source}, files.path(u"to"_s));
        QCOMPARE(files.entries(u"to"_s), sorted(entry(name)));
        paste({source}, files.path(u"to"_s));
        QCOMPARE(files.entries(u"to"_s), sorted(entry(name)));
        QCOMPARE(files.trashed(), QStringList{name + u"=1"_s});
        paste({source}, files.path(u"from"_s));
        QCOMPARE(files.entries(u"from"_s), sorted(entry(name) + entry(numbered)));
        paste({source}, files.path(u"to"_s), true);
        QCOMPARE(answers.texts(), QStringList({conflict(name), conflict(name)}));
        QVERIFY(operations.remove(files.path(u"to/"_s + name)));
        QVERIFY(!operations.trashPath().isEmpty());
        QCOMPARE(files.entries(u"to"_s), QStringList());
        paste({source}, files.path(u"to"_s), true);
        QCOMPARE(files.entries(u"from"_s), sorted(entry(numbered)));
        QCOMPARE(files.entries(u"to"_s), sorted(entry(name)));
        paste({source}, files.path(u"to"_s));
        QCOMPARE(answers.texts().constLast(), u"Source file does not exist"_s);

        const QString made = AddressFileOperations::createFolder(files.path(u"to/"_s + name));
        QCOMPARE(QFileInfo(made).isDir(), folder);
    }
}

void tst_AddressFileOperations::refusesNamesThatAreTooLong()
{
    const QString name(255, u'x');
    const QString shorter(245, u'y');
    const Files files({u"to"_s, name + u"=1"_s, shorter + u"=2"_s});
    const Answers answers({{u"Save a Copy"_s}});
    paste({files.path(shorter)}, files.path());
    QCOMPARE(files.entries().constFirst(), u"Copy_2_of_"_s + shorter + u"=2"_s);
    for (const QString &left : {u"Copy_2_of_"_s + shorter, shorter})
        QVERIFY(QFile::remove(files.path(left)));
    paste({files.path(name)}, files.path(u"to"_s));
    QCOMPARE(files.entries(u"to"_s), QStringList{name + u"=1"_s});
    // There is no room for the number.
    paste({files.path(name)}, files.path());
    paste({files.path(name)}, files.path(u"to"_s));
    QCOMPARE(files.entries(), QStringList({u"to/"_s, u"to/"_s + name + u"=1"_s, name + u"=1"_s}));
    QCOMPARE(answers.texts(), QStringList{conflict(name)});
}

void tst_AddressFileOperations::leavesOutNamesThatCannotBeDecoded()
{
    const Files files({u"d/e"_s, u"d/f=1"_s, u"to"_s});
    const auto raw = [&](const char *name) { return QFile::encodeName(files.path()) + '/' + name; };
    const QByteArray file = raw("d/in\xffvalid");
    const QByteArray folder = raw("d/e/in\xffvalid");
    QVERIFY(::close(::creat(file.constData(), 0600)) == 0);
    QVERIFY(::mkdir(folder.constData(), 0700) == 0);
    const auto exists = [](const QByteArray &path) {
        return ::access(path.constData(), F_OK) == 0;
    };
    // Names before and after it, in whatever order the folder has.
    for (int i = 0; i < 50; ++i)
        files.make({u"d/%1=1"_s.arg(i)});
    const Answers answers;
    paste({files.path(u"d"_s)}, files.path(u"to"_s));
    QCOMPARE(files.entries(u"to/d"_s).size(), 52);
    QVERIFY(exists(file) && exists(folder));
    QCOMPARE(answers.texts(), QStringList({u"unknown error!"_s, u"unknown error!"_s}));
    // What cannot be named is not deleted for good either.
    QVERIFY(QDir(files.home() + u"/.local"_s).removeRecursively());
    QVERIFY(!AddressFileOperations().remove(files.path(u"d"_s)));
    QVERIFY(exists(file) && exists(folder));
    QVERIFY(QDir(files.home()).mkpath(u".local/share"_s));
    QVERIFY(AddressFileOperations().remove(files.path(u"d"_s)));
    const QByteArray trashed = QFile::encodeName(files.home()) + "/.local/share/Trash/files/d/";
    QVERIFY(exists(trashed + "in\xffvalid") && exists(trashed + "e/in\xffvalid"));
    // What tidies up after the test cannot name them either.
    QVERIFY(::unlink((trashed + "in\xffvalid").constData()) == 0);
    QVERIFY(::rmdir((trashed + "e/in\xffvalid").constData()) == 0);
    QCOMPARE(answers.boxes().size(), 2);
}

void tst_AddressFileOperations::survivesFaults_data()
{
    QTest::addColumn<int>("call");
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("last");
    QTest::addColumn<QStringList>("missing");
    const auto row = [](const char *name, Fault::Call call, int first, int last,
                        const QStringList &missing) {
        QTest::newRow(name) << int(call) << first << last << missing;
    };
    const QStringList all{u"a=1"_s, u"b=2"_s, u"e/c=3"_s};
    row("first file cannot be read", Fault::OpenToRead, 1, 1, {u"a=1"_s});
    row("second file cannot be read", Fault::OpenToRead, 2, 2, {u"b=2"_s});
    row("no file can be made", Fault::OpenToWrite, 1, 1000, all);
    row("no file can be filled", Fault::Fill, 1, 1000, all);
    row("no file can be named", Fault::Name, 1, 1000, all);
    row("nothing can be listed", Fault::OpenFolder, 1, 1, all + QStringList{u"e/"_s});
    row("nothing below can be listed", Fault::OpenFolder, 2, 2, {u"e/c=3"_s});
}

// What fails is missing and nothing else is; nothing half-made is left.
void tst_AddressFileOperations::survivesFaults()
{
    QFETCH(int, call);
    QFETCH(int, first);
    QFETCH(int, last);
    QFETCH(QStringList, missing);
    const QStringList made{u"d/e"_s, u"d/a=1"_s, u"d/b=2"_s, u"d/e/c=3"_s};
    QStringList expected{u"a=1"_s, u"b=2"_s, u"e/"_s, u"e/c=3"_s};
    expected.removeIf([&](const QString &entry) { return missing.contains(entry); });
    const Files files(made);
    const Answers answers;
    AddressFileOperations operations;
    {
        const Fault fault(Fault::Call(call), first, last, call == Fault::Fill ? ENOSPC : EACCES);
        operations.copy(files.path(u"d"_s), files.path(u"to"_s), false);
        QVERIFY(fault.calls() >= first);
    }
    QCOMPARE(files.entries(u"to"_s), expected);
    QCOMPARE(answers.texts(), QStringList());
}

using Change = std::function<bool(const Files &)>;

void tst_AddressFileOperations::survivesDelays_data()
{
    QTest::addColumn<int>("call");
    QTest::addColumn<int>("number");
    QTest::addColumn<Change>("meanwhile");
    QTest::addColumn<QStringList>("copied");
    QTest::addColumn<int>("errors");
    const auto remove = [](const QString &name) -> Change {
        return [name](const Files &files) { return QDir(files.path(name)).removeRecursively(); };
    };
    const auto add = [](const char *name, Fault::Call call, int number, const Change &meanwhile,
                        const QStringList &copied, int errors) {
        QTest::newRow(name) << int(call) << number << meanwhile << copied << errors;
    };
    const QString d = u"d/"_s;
    const QString e = u"d/e/"_s;
    add("source goes before it is listed", Fault::OpenFolder, 1, remove(u"d"_s), {d}, 0);
    add("source goes before a file is read", Fault::OpenToRead, 1, remove(u"d"_s), {d}, 1);
    add("source goes while a file is read", Fault::OpenToWrite, 1, remove(u"d"_s), {d, u"d/a=1"_s},
        1);
    add("source goes before a file is named", Fault::Name, 1, remove(u"d"_s), {d, u"d/a=1"_s}, 1);
    add("folder goes before it is listed", Fault::OpenFolder, 2, remove(u"d/e"_s),
        {d, u"d/a=1"_s, u"d/b=2"_s, e}, 0);
    add("folder goes before a file is read", Fault::OpenToRead, 3, remove(u"d/e"_s),
        {d, u"d/a=1"_s, u"d/b=2"_s, e}, 0);
    const QStringList rest{d, e, u"d/e/c=3"_s};
    add("target goes before a file is read", Fault::OpenToRead, 1, remove(u"to/d"_s), rest, 0);
    add("target goes before a file is made", Fault::OpenToWrite, 1, remove(u"to/d"_s), rest, 0);
    add("target goes before a file is named", Fault::Name, 1, remove(u"to/d"_s), rest, 0);
    add("everything goes", Fault::OpenToRead, 2, remove({}), {}, 1);
}

// A person's other program does not wait for a disk that is slow.
void tst_AddressFileOperations::survivesDelays()
{
    QFETCH(int, call);
    QFETCH(int, number);
    QFETCH(Change, meanwhile);
    QFETCH(QStringList, copied);
    QFETCH(int, errors);
    for (const bool cut : {false, true}) {
        const Files files({u"d/e"_s, u"d/a=1"_s, u"d/b=2"_s, u"d/e/c=3"_s, u"to"_s});
        const Answers answers;
        bool done = false;
        {
            const Delay delay(Fault::Call(call), number, [&] { done = meanwhile(files); });
            paste({files.path(u"d"_s)}, files.path(u"to"_s), cut);
        }
        QVERIFY(done);
        QStringList made = files.entries(u"to"_s);
        made.sort();
        copied.sort();
        QCOMPARE(made, copied);
        QCOMPARE(answers.texts(), QStringList(errors, u"Source file does not exist"_s));
        QCOMPARE(clipboardIsEmpty(), cut);
    }
}

void tst_AddressFileOperations::replacesNothingThatCameMeanwhile_data()
{
    QTest::addColumn<int>("call");
    QTest::newRow("before it is read") << int(Fault::OpenToRead);
    QTest::newRow("before it is made") << int(Fault::OpenToWrite);
    QTest::newRow("before it is named") << int(Fault::Name);
}

void tst_AddressFileOperations::replacesNothingThatCameMeanwhile()
{
    QFETCH(int, call);
    for (const QString &other : {u"to/f=other"_s, u"to/f/g=other"_s}) {
        const Files files({u"f=new"_s, u"to"_s});
        const Answers answers;
        {
            const Delay delay(Fault::Call(call), 1, [&] {
                if (other.contains(u"/g"_s))
                    files.make({u"to/f"_s});
                files.make({other});
            });
            paste({files.path(u"f"_s)}, files.path(u"to"_s));
            QVERIFY(delay.isOver());
        }
        QVERIFY(files.entries().contains(other));
        QVERIFY(files.entries().contains(u"f=new"_s));
        QCOMPARE(answers.texts(), QStringList());
    }
}

void tst_AddressFileOperations::removesNoTargetOfALinkThatCameMeanwhile()
{
    const Files files({u"d"_s, u"d/f=1"_s, u"kept"_s, u"kept/g=2"_s});
    const Fault fault(Fault::Name, 1, 1, EXDEV);
    const Delay delay(Fault::Name, 1, [&] {
        QDir(files.path(u"d"_s)).removeRecursively();
        files.make({u"d->"_s + files.path(u"kept"_s)});
    });
    AddressFileOperations().remove(files.path(u"d"_s));
    QVERIFY(delay.isOver());
    QCOMPARE(files.entries(), QStringList({u"kept/"_s, u"kept/g=2"_s}));
}

void tst_AddressFileOperations::saysThatItCannotReplace()
{
    for (const bool folder : {false, true}) {
        const Files files({u"d"_s, u"d/f=new"_s, u"to"_s, u"to/f=old"_s}, Files::Trash::Missing);
        const QString source = files.path(u"d/f"_s);
        const QString target = files.path(u"to/f"_s);
        const QByteArray line =
            QFile::encodeName(u"Error: copy file from "_s + source + u" to "_s + target);
        QTest::ignoreMessage(QtDebugMsg, line.constData());
        const Fault fault(Fault::Unlink, 1, 1, EBUSY);
        AddressFileOperations operations;
        if (folder)
            operations.copy(files.path(u"d"_s), files.path(u"to"_s), true);
        else
            operations.copy(source, target, true);
        QCOMPARE(fault.calls(), 1);
        QCOMPARE(files.entries(u"to"_s), QStringList{u"f=old"_s});
    }
}

void tst_AddressFileOperations::survivesAFullDisk()
{
    const Files files({u"d"_s, u"d/small=1"_s, u"to"_s});
    files.write(u"d/large"_s, QByteArray(300'000, 'x'));
    const QByteArray disk = QFile::encodeName(files.path(u"to"_s));
    if (::mount("tmpfs", disk.constData(), "tmpfs", 0, "size=128k") != 0)
        QSKIP("a disk can only be mounted by root");
    const auto away = qScopeGuard([&] { ::umount2(disk.constData(), MNT_DETACH); });
    const Answers answers;
    paste({files.path(u"d"_s)}, files.path(u"to"_s));
    QCOMPARE(files.entries(u"to"_s), QStringList({u"d/"_s, u"d/small=1"_s}));
    QVERIFY(QFileInfo::exists(files.path(u"d/large"_s)));
    QCOMPARE(answers.texts(), QStringList());
}

NORVANE_TEST_MAIN(tst_AddressFileOperations)
#include "tst_AddressFileOperations.moc"
