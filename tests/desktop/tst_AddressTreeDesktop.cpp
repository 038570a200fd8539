// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "RealMouse.h"
#include "TestCase.h"

#include <address/AddressTree.h>
#include <tests/address/Files.h>

#include <QtCore/QProcess>
#include <QtCore/QTimer>
#include <QtGui/QFileSystemModel>
#include <QtWidgets/QApplication>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>

#include <cstdio>

using Norvane::AddressTree;
using namespace Qt::StringLiterals;

class tst_AddressTreeDesktop : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void asksInTheMiddleOfADrag_data();
    void asksInTheMiddleOfADrag();
    void asksOftenInTheMiddleOfADrag();
    void dropsIntoAFolderOfItsOwn();
    void isDeletedInTheMiddleOfADrag();
    void asksAfterItsMenu();
};

namespace {

//! A window with a tree: the first on the left of the screen, the second on the right.
class Tree : public AddressTree
{
public:
    Tree(const QString &folder, int place)
        : AddressTree(nullptr)
        , m_folder(folder)
    {
        setGeometry(60 + place * 760, 80, 640, 400);
        slotPathChanged(folder);
    }

    bool open() { return RealMouse::open(this) && settle(); }

    //! Waits until it shows what is in the folder, in its final order.
    bool settle()
    {
        return QTest::qWaitFor(
            [this] {
                // Folders come first only when the model knows what each entry is.
                const QStringList names =
                    QDir(m_folder).entryList(QDir::AllEntries | QDir::NoDotAndDotDot,
                                             QDir::DirsFirst | QDir::Name | QDir::IgnoreCase);
                if (files()->rowCount(rootIndex()) != names.size())
                    return false;
                int bottom = -1;
                for (const QString &name : names) {
                    const QRect place = rect(name);
                    if (place.top() <= bottom)
                        return false;
                    bottom = place.bottom();
                }
                return true;
            },
            patience);
    }

    QFileSystemModel *files() const { return qobject_cast<QFileSystemModel *>(model()); }
    QRect rect(const QString &name) const
    {
        return visualRect(files()->index(m_folder + u'/' + name));
    }
    QPoint place(const QString &name) const { return viewport()->mapToGlobal(rect(name).center()); }
    QPoint emptyPlace() const
    {
        return viewport()->mapToGlobal(viewport()->rect().bottomRight() - QPoint(20, 20));
    }

private:
    const QString m_folder;
};

//! Clicks the button with this text, or presses Escape, in each box that opens while it lives.
class Clicks : public QObject
{
public:
    explicit Clicks(const QStringList &buttons, const std::function<void()> &before = {})
        : m_buttons(buttons)
        , m_before(before)
    {
        connect(&m_poll, &QTimer::timeout, this, &Clicks::look);
        m_poll.start(10);
    }

    int boxes() const { return m_boxes; }

private:
    void look()
    {
        const QPointer<QMessageBox> box =
            qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (!box || box == m_answered || !box->isActiveWindow())
            return;
        m_answered = box;
        const QString text = m_buttons.value(m_boxes++);
        if (m_before)
            m_before();
        if (text.isEmpty()) {
            RealMouse::key(u"Escape"_s);
            return;
        }
        const QList<QAbstractButton *> buttons = box->buttons();
        for (const QAbstractButton *button : buttons) {
            if (button->text().remove(u'&') == text) {
                RealMouse::move(button);
                RealMouse::click();
                return;
            }
        }
    }

    const QStringList m_buttons;
    const std::function<void()> m_before;
    QPointer<QMessageBox> m_answered;
    int m_boxes = 0;
    QTimer m_poll;
};

//! A window with a tree in a program of its own, on the left of the screen.
class OtherProgram
{
public:
    ~OtherProgram()
    {
        m_process.terminate();
        m_process.waitForFinished();
    }

    //! Returns where the first entry is on the screen.
    QPoint open(const QString &folder)
    {
        m_process.start(QCoreApplication::applicationFilePath(), {u"--show"_s, folder});
        if (!QTest::qWaitFor([this] { return m_process.canReadLine(); }, 20'000))
            return {};
        const QByteArrayList place = m_process.readLine().trimmed().split(' ');
        return {place.value(0).toInt(), place.value(1).toInt()};
    }

private:
    QProcess m_process;
};

int showInAProgramOfItsOwn(int argc, char **argv)
{
    const QApplication app(argc, argv);
    Tree tree(QCoreApplication::arguments().at(2), 0);
    if (!tree.open())
        return 1;
    const QModelIndex first = tree.files()->index(0, 0, tree.rootIndex());
    const QPoint place = tree.viewport()->mapToGlobal(tree.visualRect(first).center());
    std::printf("%d %d\n", place.x(), place.y());
    std::fflush(stdout);
    return QApplication::exec();
}

} // namespace

void tst_AddressTreeDesktop::asksInTheMiddleOfADrag_data()
{
    QTest::addColumn<bool>("otherProgram");
    QTest::addColumn<QString>("button");
    QTest::addColumn<QStringList>("left");
    const QStringList from{u"from/"_s, u"from/g=new"_s, u"to/"_s};
    const QStringList kept{u"from/"_s, u"from/f=new"_s, u"from/g=new"_s, u"to/"_s, u"to/f=old"_s};
    for (const bool other : {false, true}) {
        const char *where = other ? "from another program" : "from another window";
        QTest::addRow("%s, replace", where)
            << other << u"Replace Current"_s << from + QStringList{u"to/f=new"_s};
        QTest::addRow("%s, save", where)
            << other << u"Save a Copy"_s
            << from + QStringList{u"to/Copy_2_of_f=new"_s, u"to/f=old"_s};
        QTest::addRow("%s, cancel", where) << other << u"Cancel"_s << kept;
        QTest::addRow("%s, escape", where) << other << QString() << kept;
    }
}

void tst_AddressTreeDesktop::asksInTheMiddleOfADrag()
{
    QFETCH(bool, otherProgram);
    QFETCH(QString, button);
    QFETCH(QStringList, left);
    const Files files({u"from"_s, u"from/f=new"_s, u"from/g=new"_s, u"to"_s, u"to/f=old"_s});
    OtherProgram program;
    Tree source(files.path(u"from"_s), 0);
    Tree target(files.path(u"to"_s), 1);
    QPoint start;
    if (otherProgram)
        start = program.open(files.path(u"from"_s));
    else
        QVERIFY(source.open());
    QVERIFY(target.open());
    if (!otherProgram)
        start = source.place(u"f"_s);
    QVERIFY(!start.isNull());
    const Clicks clicks({button});
    const RealMouse::Drag drag(start, target.emptyPlace());
    QTRY_COMPARE(clicks.boxes(), 1);
    QTRY_VERIFY(!QApplication::activeModalWidget());
    QTRY_COMPARE(files.entries(), left);
    QTRY_VERIFY(!QApplication::mouseButtons());

    // The mouse belongs to the windows again.
    QVERIFY(target.settle());
    RealMouse::moveTo(target.place(u"f"_s));
    RealMouse::click();
    QTRY_COMPARE(target.selectedPaths(), QStringList{files.path(u"to/f"_s)});
    if (otherProgram)
        return;
    QVERIFY(source.settle());
    RealMouse::moveTo(source.place(u"g"_s));
    RealMouse::click();
    QTRY_COMPARE(source.selectedPaths(), QStringList{files.path(u"from/g"_s)});
    // Not where it was clicked, which would be a double click.
    const RealMouse::Drag again(source.place(u"g"_s) + QPoint(40, 0), target.emptyPlace());
    QTRY_VERIFY(QFileInfo::exists(files.path(u"to/g"_s)));
    QTRY_VERIFY(!QFileInfo::exists(files.path(u"from/g"_s)));
    QTRY_VERIFY(!QApplication::mouseButtons());
}

void tst_AddressTreeDesktop::asksOftenInTheMiddleOfADrag()
{
    const Files files({u"from/d"_s, u"from/d/f=new"_s, u"from/e=new"_s, u"from/f=new"_s, u"to"_s,
                       u"to/d"_s, u"to/d/f=old"_s, u"to/e"_s, u"to/f=old"_s});
    Tree source(files.path(u"from"_s), 0);
    Tree target(files.path(u"to"_s), 1);
    QVERIFY(source.open() && target.open());
    source.selectAll();
    const Clicks clicks({u"Replace Current"_s, u"OK"_s, u"Save a Copy"_s});
    const RealMouse::Drag drag(source.place(u"f"_s), target.emptyPlace());
    QTRY_COMPARE(clicks.boxes(), 3);
    QTRY_COMPARE(files.entries(),
                 QStringList({u"from/"_s, u"from/e=new"_s, u"to/"_s, u"to/Copy_2_of_f=new"_s,
                              u"to/d/"_s, u"to/d/f=new"_s, u"to/e/"_s, u"to/f=old"_s}));
    QTRY_VERIFY(!QApplication::activeModalWidget());
    QTRY_VERIFY(!QApplication::mouseButtons());
}

void tst_AddressTreeDesktop::dropsIntoAFolderOfItsOwn()
{
    const Files files({u"d"_s, u"d/f=old"_s, u"f=new"_s});
    Tree tree(files.path(), 0);
    QVERIFY(tree.open());
    const Clicks clicks({u"Replace Current"_s});
    // The rows are closer than a drag takes to begin.
    const RealMouse::Drag drag(tree.place(u"f"_s), tree.place(u"d"_s) + QPoint(60, 0));
    QTRY_COMPARE(clicks.boxes(), 1);
    QTRY_COMPARE(files.entries(), QStringList({u"d/"_s, u"d/f=new"_s}));
    QVERIFY(tree.settle());
    RealMouse::moveTo(tree.place(u"d"_s));
    RealMouse::click();
    QTRY_COMPARE(tree.selectedPaths(), QStringList{files.path(u"d"_s)});
}

void tst_AddressTreeDesktop::isDeletedInTheMiddleOfADrag()
{
    const Files files({u"from"_s, u"from/f=new"_s, u"to"_s, u"to/f=old"_s});
    Tree source(files.path(u"from"_s), 0);
    const QPointer<Tree> target = new Tree(files.path(u"to"_s), 1);
    QVERIFY(source.open() && target->open());
    const Clicks clicks({u"Replace Current"_s}, [&] { delete target.data(); });
    const RealMouse::Drag drag(source.place(u"f"_s), target->emptyPlace());
    QTRY_COMPARE(clicks.boxes(), 1);
    QTRY_COMPARE(files.entries(), QStringList({u"from/"_s, u"to/"_s, u"to/f=new"_s}));
    QVERIFY(!target);
    QVERIFY(source.settle());
}

void tst_AddressTreeDesktop::asksAfterItsMenu()
{
    const Files files({u"from"_s, u"from/f=new"_s, u"to"_s, u"to/f=old"_s});
    Tree source(files.path(u"from"_s), 0);
    Tree target(files.path(u"to"_s), 1);
    QVERIFY(source.open() && target.open());
    const Clicks clicks({u"Replace Current"_s});
    const auto pick = [](const Tree &tree, QPoint place, const QString &text) {
        bool picked = false;
        QTimer poll;
        connect(&poll, &QTimer::timeout, &poll, [&] {
            auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
            if (picked || !menu || !menu->windowHandle()->isExposed())
                return;
            picked = true;
            const QList<QAction *> actions = menu->actions();
            for (QAction *action : actions) {
                if (action->text() == text)
                    RealMouse::move(menu, menu->actionGeometry(action).center());
            }
            RealMouse::click();
        });
        poll.start(10);
        RealMouse::moveTo(place);
        RealMouse::click(3);
        QTRY_VERIFY(picked && !QApplication::activePopupWidget());
        QVERIFY(!tree.isHidden());
    };
    pick(source, source.place(u"f"_s), u"Copy"_s);
    pick(target, target.emptyPlace(), u"Paste"_s);
    QTRY_COMPARE(clicks.boxes(), 1);
    QTRY_COMPARE(files.entries(u"to"_s), QStringList{u"f=new"_s});
}

int main(int argc, char **argv)
{
    if (argc == 3 && qstrcmp(argv[1], "--show") == 0)
        return showInAProgramOfItsOwn(argc, argv);
    return runTestCase(argc, argv, [] { return new tst_AddressTreeDesktop; });
}

#include "tst_AddressTreeDesktop.moc"
