// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "Files.h"
#include "TestCase.h"

#include <address/AddressFileModel.h>

using Norvane::AddressFileModel;
using namespace Qt::StringLiterals;

class tst_AddressFileModel : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void hasNoSignalsOrSlots();
    void alignsItsColumns();
    void answersEverythingElseLikeItsBase();
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
            QCOMPARE(model.fileIcon(ours).name(), base.fileIcon(theirs).name());
            QCOMPARE(model.fileIcon(ours).isNull(), base.fileIcon(theirs).isNull());
        }
    }
}

NORVANE_TEST_MAIN(tst_AddressFileModel)
#include "tst_AddressFileModel.moc"
