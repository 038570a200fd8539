// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "Files.h"
#include "TestCase.h"

#include <address/AddressFileModel.h>

#include <QtCore/QMimeDatabase>
#include <QtGui/QAbstractFileIconProvider>
#include <QtWidgets/QApplication>
#include <QtWidgets/QStyle>

#include <memory>

using Norvane::AddressFileModel;
using namespace Qt::StringLiterals;

class tst_AddressFileModel : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void hasNoSignalsOrSlots();
    void alignsItsColumns();
    void answersEverythingElseLikeItsBase();
    void namesEveryTypeLikeItsBase();
    void namesTypesInTheLanguageOfTheTime();
    void hasIconsWithoutATheme();
    void isDeletedWhileItReads();
};

namespace {

//! A model with one column more than there is.
class WideModel : public AddressFileModel
{
public:
    using AddressFileModel::createIndex;

    int columnCount(const QModelIndex &parent) const override
    {
        return AddressFileModel::columnCount(parent) + 1;
    }
};

} // namespace

void tst_AddressFileModel::hasNoSignalsOrSlots()
{
    const QMetaObject &meta = AddressFileModel::staticMetaObject;
    QCOMPARE(meta.superClass(), &QFileSystemModel::staticMetaObject);
    QCOMPARE(meta.methodCount(), meta.methodOffset());
}

void tst_AddressFileModel::alignsItsColumns()
{
    const Files files({u"f=1"_s, u"d"_s});
    WideModel model;
    model.setRootPath(files.path());
    for (const QString &name : {u"f"_s, u"d"_s}) {
        const QModelIndex index = model.index(files.path(name));
        for (int column = 0; column < 4; ++column) {
            const QVariant alignment = model.data(index.siblingAtColumn(column), //
                                                  Qt::TextAlignmentRole);
            QCOMPARE(alignment.typeId(), int(QMetaType::Int));
            QCOMPARE(alignment.toInt(), 129);
        }
        const QModelIndex beyond = model.createIndex(index.row(), 4, index.internalPointer());
        QCOMPARE(model.data(beyond, Qt::TextAlignmentRole),
                 model.QFileSystemModel::data(beyond, Qt::TextAlignmentRole));
        QVERIFY(model.data(beyond, Qt::TextAlignmentRole) != 129);
    }
    QVERIFY(!model.data({}, Qt::TextAlignmentRole).isValid());
}

void tst_AddressFileModel::answersEverythingElseLikeItsBase()
{
    const Files files({u"f.txt=1"_s, u"d"_s, u"unknown.?=x"_s});
    AddressFileModel model;
    QFileSystemModel base;
    for (QFileSystemModel *each : {static_cast<QFileSystemModel *>(&model), &base}) {
        each->setRootPath(files.path());
        QTRY_COMPARE(each->rowCount(each->index(files.path())), 3);
    }
    for (const QString &name : {u"f.txt"_s, u"d"_s, u"unknown.?"_s}) {
        for (int column = 0; column < 4; ++column) {
            const QModelIndex ours = model.index(files.path(name)).siblingAtColumn(column);
            const QModelIndex theirs = base.index(files.path(name)).siblingAtColumn(column);
            for (int role = Qt::DisplayRole; role <= QFileSystemModel::FilePermissions; ++role) {
                if (role == Qt::TextAlignmentRole || role == Qt::DecorationRole)
                    continue;
                QCOMPARE(model.data(ours, role), base.data(theirs, role));
            }
        }
    }
}

void tst_AddressFileModel::namesEveryTypeLikeItsBase()
{
    // Names with every suffix that is known, with and without what tells types apart in them, and
    // what is no file or has no suffix.
    QSet<QString> suffixes;
    const QList<QMimeType> types = QMimeDatabase().allMimeTypes();
    for (const QMimeType &type : types) {
        const QStringList known = type.suffixes();
        for (const QString &suffix : known) {
            if (!suffix.contains(u'/'))
                suffixes << suffix;
        }
    }
    QVERIFY(suffixes.size() > 500);
    QTemporaryDir folder;
    const QDir dir(folder.path());
    const auto write = [&dir](const QString &name, const QByteArray &content) {
        QFile file(dir.filePath(name));
        return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
    };
    for (const QString &suffix : std::as_const(suffixes)) {
        QVERIFY(write(u"text."_s + suffix, "text\n"));
        QVERIFY(write(u"picture."_s + suffix, "\x89PNG\r\n\x1a\n"));
    }
    for (const QString &name : {u"README"_s, u"Makefile"_s, u"CMakeLists.txt"_s, u"a.tar.gz"_s,
                                u"a.so.1"_s, u"none"_s, u"x.unknown"_s, u"a~"_s})
        QVERIFY(write(name, "text\n"));
    QVERIFY(write(u"empty"_s, {}));
    QVERIFY(dir.mkdir(u"folder.txt"_s));
    QVERIFY(QFile::link(dir.filePath(u"README"_s), dir.filePath(u"link"_s)));
    QVERIFY(QFile::link(dir.filePath(u"no"_s), dir.filePath(u"link to nothing"_s)));
    const AddressFileModel model;
    const QAbstractFileIconProvider base;
    const QFileInfoList infos = dir.entryInfoList(QDir::AllEntries | QDir::System | QDir::NoDotDot);
    QVERIFY(infos.size() > 1000);
    // Twice, because what was found for one file must do for the next.
    for (int i = 0; i < 2; ++i) {
        for (const QFileInfo &info : infos)
            QCOMPARE(model.iconProvider()->type(info), base.type(info));
    }
    QCOMPARE(model.iconProvider()->type(QFileInfo(u"/"_s)), base.type(QFileInfo(u"/"_s)));
    QCOMPARE(model.iconProvider()->type(QFileInfo()), base.type(QFileInfo()));
}

void tst_AddressFileModel::namesTypesInTheLanguageOfTheTime()
{
    const Files files({u"f.txt=1"_s});
    const QFileInfo info(files.path(u"f.txt"_s));
    const AddressFileModel model;
    const QAbstractFileIconProvider base;
    const QString english = model.iconProvider()->type(info);
    const auto back = qScopeGuard([before = QLocale()] { QLocale::setDefault(before); });
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    QCOMPARE(model.iconProvider()->type(info), base.type(info));
    QVERIFY(model.iconProvider()->type(info) != english);
}

void tst_AddressFileModel::hasIconsWithoutATheme()
{
    const Files files({u"f.txt=1"_s, u"d"_s, u"link->f.txt"_s});
    AddressFileModel model;
    model.setRootPath(files.path());
    QTRY_COMPARE(model.rowCount(model.index(files.path())), 3);
    const auto shown = [](const QIcon &icon) { return icon.pixmap(16, 1).toImage(); };
    const auto expected = [&](QStyle::StandardPixmap icon) {
        return shown(QApplication::style()->standardIcon(icon));
    };
    const auto actual = [&](const QString &name) {
        const QModelIndex index = model.index(files.path(name));
        return shown(qvariant_cast<QIcon>(model.data(index, Qt::DecorationRole)));
    };
    QVERIFY(!expected(QStyle::SP_FileIcon).isNull());
    QCOMPARE(actual(u"f.txt"_s), expected(QStyle::SP_FileIcon));
    QCOMPARE(actual(u"link"_s), expected(QStyle::SP_FileLinkIcon));
    QCOMPARE(actual(u"d"_s), expected(QStyle::SP_DirIcon));
}

void tst_AddressFileModel::isDeletedWhileItReads()
{
    QStringList names;
    for (int i = 0; i < 500; ++i)
        names << u"%1.txt=1"_s.arg(i);
    const Files files(names);
    for (int i = 0; i < 20; ++i) {
        auto model = std::make_unique<AddressFileModel>();
        model->setRootPath(files.path());
        const QModelIndex root = model->index(files.path());
        // At once, and when a part is there.
        QVERIFY(i % 2 == 0 || QTest::qWaitFor([&] { return model->rowCount(root) > 0; }, patience));
    }
}

NORVANE_TEST_MAIN(tst_AddressFileModel)
#include "tst_AddressFileModel.moc"
