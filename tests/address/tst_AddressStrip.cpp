// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "Crumbs.h"
#include "Fault.h"
#include "Folders.h"
#include "History.h"
#include "Modal.h"
#include "Popup.h"
#include "Steps.h"
#include "TestCase.h"
#include "Unprivileged.h"

#include <address/AddressEntry.h>
#include <address/AddressStrip.h>

#include <QtCore/QMetaMethod>
#include <QtCore/QRandomGenerator>
#include <QtCore/QScopeGuard>
#include <QtCore/QStringListModel>
#include <QtTest/QSignalSpy>
#include <QtWidgets/QCompleter>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QStyle>
#include <QtWidgets/QVBoxLayout>

#include <memory>

using Norvane::AddressEntry;
using Norvane::AddressStrip;

class tst_AddressStrip : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void hasTwoSignalsAndASlot();
    void startsEmpty();

    void storesWhatItIsGiven_data();
    void storesWhatItIsGiven();
    void ignoresTheEmptyAndTheCurrentPath();
    void reportsANavigation();
    void showsTheDriveAgain();

    void buildsCrumbs();
    void buildsOnlyTheRootForASeparator();
    void standsCrumbsInARow();
    void keepsCrumbsAtTheirPlacesWhenTheyDoNotFit();
    void standsCrumbsFromTheRight();
    void asksForNoRoomForItsCrumbs();
    void replacesCrumbsAtOnce();
    void reportsThePathOfEveryChange();
    void followsAClickedCrumb();
    void followsAPickedFolder();
    void showsFoldersThatAreGone();
    void showsFoldersThatGoWhileTheyAreListed();
    void showsFoldersThatMayNotBeRead();
    void showsAPathOfTenThousandCharacters();

    void keepsAHistory();
    void movesToTheLastEntryOnly();
    void resetsItsHistory();
    void emptiesItsHistoryOnResetToTheCurrentPath();
    void ignoresStepsBeyondTheHistory();
    void tellsWhichWaysLeadOn();
    void goesUp();
    void goesUpFromWhatIsGone();
    void losesItsCrumbsToTheSlotWithTheCurrentPath();

    void editsAfterAClick();
    void takesTheFocusForNoSpecialReason();
    void editsWhatItIsGiven();
    void forgetsTheTextOfAHiddenEditor();
    void ignoresOtherButtons_data();
    void ignoresOtherButtons();
    void takesClicksInTheEditor();
    void commitsTypedText_data();
    void commitsTypedText();
    void commitsAMixedSpelling();
    void commitsTheRoot();
    void commitsADriveAsItIs();
    void commitsBlanks();
    void leavesTheEditorOnEmptyText();
    void refusesWhatDoesNotExist();
    void leavesOtherKeysToTheEditor();
    void ignoresReturnBesideTheEditor();

    void leavesTheEditor_data();
    void leavesTheEditor();
    void tellsThatEditingIsOverAfterItsNavigation();
    void staysInTheEditorWhenItIsClicked();
    void rewritesTheHistoryWhenTheEditorIsLeft();
    void keepsTheEmptyPathWithoutCrumbs();
    void buildsCrumbsOnceWhenItLosesTheFocus_data();
    void buildsCrumbsOnceWhenItLosesTheFocus();

    void letsAFolderBeChosen();
    void staysWhereItIsWhenNoFolderIsChosen();
    void staysWhereItIsWhenTheSameFolderIsChosen();
    void followsItsCompleter();
    void takesAStoredPathFromItsCompleterAsItIs();

    void isDeletedWithTheFocus_data();
    void isDeletedWithTheFocus();
    void isDeletedByWhoeverHearsOfAChange();
    void agreesWithAModel_data();
    void agreesWithAModel();
};

namespace {

//! A strip over something else that can be clicked.
class Window : public QWidget
{
public:
    explicit Window(int width = 700)
        : strip(new AddressStrip)
        , patch(new QWidget)
        , field(new QLineEdit)
    {
        auto *column = new QVBoxLayout(this);
        column->addWidget(strip);
        column->addWidget(patch, 1);
        column->addWidget(field);
        resize(width, 150);
    }

    bool open()
    {
        if (!Gui::open(this) || !QTest::qWaitForWindowActive(this, patience))
            return false;
        Gui::moveMouse(patch, patch->rect().center());
        return true;
    }

    //! Clicks as a person does, who moves the mouse there first.
    void click(QWidget *widget, Qt::MouseButton button = Qt::LeftButton)
    {
        click(widget, widget->rect().center(), button);
    }

    void click(QWidget *widget, QPoint position, Qt::MouseButton button = Qt::LeftButton)
    {
        Gui::moveMouse(widget, position);
        Gui::click(widget, position, button);
    }

    //! Clicks into the strip where there are no crumbs.
    void clickIntoStrip(Qt::MouseButton button = Qt::LeftButton)
    {
        click(strip, QPoint(strip->width() - 3, strip->height() / 2), button);
    }

    void type(const QString &text) { QTest::keyClicks(QApplication::focusWidget(), text); }

    AddressStrip *const strip;
    QWidget *const patch;
    QLineEdit *const field;
    int releases = 0;

protected:
    void mouseReleaseEvent(QMouseEvent *) override { ++releases; }
};

//! Why the widget got the focus, each time.
class FocusReasons : public QObject
{
public:
    explicit FocusReasons(QWidget *widget) { widget->installEventFilter(this); }

    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::FocusIn)
            reasons << static_cast<QFocusEvent *>(event)->reason();
        return false;
    }

    QList<Qt::FocusReason> reasons;
};

//! The whole history, found out by walking it, and the index, at which the strip stands again.
struct Walk
{
    explicit Walk(AddressStrip *strip)
    {
        bool backward = true;
        bool forward = true;
        const QObject context;
        QObject::connect(strip, &AddressStrip::signalActionsEnabled, &context,
                         [&](bool back, bool forth) {
                             backward = back;
                             forward = forth;
                         });
        int back = 0;
        while (backward) {
            const QSignalSpy changes(strip, &AddressStrip::signalPathChanged);
            strip->goBackward();
            if (changes.isEmpty())
                break;
            ++back;
        }
        index = back;
        paths << strip->path();
        for (;;) {
            const QSignalSpy changes(strip, &AddressStrip::signalPathChanged);
            strip->goForward();
            if (changes.isEmpty())
                break;
            paths << strip->path();
        }
        for (qsizetype i = paths.size() - 1; i > index; --i)
            strip->goBackward();
    }

    QStringList paths;
    int index;
};

//! Everything that the strip says, in order.
class Log
{
public:
    explicit Log(AddressStrip *strip)
    {
        QObject::connect(strip, &AddressStrip::signalPathChanged, &m_context,
                         [this](const QString &path) { lines << path; });
        QObject::connect(strip, &AddressStrip::signalActionsEnabled, &m_context,
                         [this](bool backward, bool forward, bool dirup) {
                             lines
                                 << QStringLiteral("%1%2%3").arg(backward).arg(forward).arg(dirup);
                         });
    }

    QStringList take() { return std::exchange(lines, {}); }

    QStringList lines;

private:
    QObject m_context;
};

} // namespace

void tst_AddressStrip::hasTwoSignalsAndASlot()
{
    const QMetaObject &meta = AddressStrip::staticMetaObject;
    QCOMPARE(meta.superClass(), &QLineEdit::staticMetaObject);
    const QByteArrayList signatures{"signalPathChanged(QString)",
                                    "signalActionsEnabled(bool,bool,bool)",
                                    "slotPathChanged(QString)"};
    QCOMPARE(meta.methodCount(), meta.methodOffset() + signatures.size());
    for (int i = 0; i < signatures.size(); ++i) {
        const QMetaMethod method = meta.method(meta.methodOffset() + i);
        QCOMPARE(method.methodSignature(), signatures.at(i));
        QCOMPARE(method.methodType(), i < 2 ? QMetaMethod::Signal : QMetaMethod::Slot);
    }
    QCOMPARE(meta.method(meta.methodOffset() + 1).parameterNames(),
             (QByteArrayList{"backward", "forward", "dirup"}));
}

void tst_AddressStrip::startsEmpty()
{
    QWidget parent;
    const AddressStrip strip(&parent);
    QCOMPARE(strip.parentWidget(), &parent);
    QCOMPARE(strip.path(), QString());
    QCOMPARE(strip.focusPolicy(), Qt::NoFocus);
    QCOMPARE(strip.cursor().shape(), Qt::ArrowCursor);
    QCOMPARE(strip.contextMenuPolicy(), Qt::NoContextMenu);
    const auto *model = qobject_cast<QStringListModel *>(strip.completer()->model());
    QVERIFY(model);
    QCOMPARE(model->rowCount(), 0);
    const auto *layout = qobject_cast<QHBoxLayout *>(strip.layout());
    QVERIFY(layout);
    QCOMPARE(layout->contentsMargins(), QMargins());
    QCOMPARE(layout->spacing(), 0);
    QCOMPARE(layout->alignment(), Qt::AlignLeft);
    QCOMPARE(layout->count(), 0);
}

void tst_AddressStrip::storesWhatItIsGiven_data()
{
    QTest::addColumn<QString>("given");
    QTest::addColumn<QString>("stored");
    QTest::newRow("stored") << QStringLiteral("/usr/x") << QStringLiteral("/usr/x");
    QTest::newRow("backslashes") << QStringLiteral("C:\\Users\\x\\")
                                 << QStringLiteral("C:/Users/x");
    QTest::newRow("drive") << QStringLiteral("C:") << QStringLiteral("C:/");
    QTest::newRow("drive with separator") << QStringLiteral("C:\\") << QStringLiteral("C:/");
    QTest::newRow("at the end") << QStringLiteral("/usr//\\") << QStringLiteral("/usr");
    QTest::newRow("doubled") << QStringLiteral("/usr//x") << QStringLiteral("/usr//x");
    QTest::newRow("relative") << QStringLiteral("a/b") << QStringLiteral("a/b");
    QTest::newRow("blanks") << QStringLiteral("   ") << QStringLiteral("   ");
    QTest::newRow("blanks around") << QStringLiteral(" /usr ") << QStringLiteral(" /usr ");
    QTest::newRow("two letters") << QStringLiteral("CC") << QStringLiteral("CC");
    QTest::newRow("separator") << QStringLiteral("/") << QString();
    QTest::newRow("separators") << QStringLiteral("\\//") << QString();
}

void tst_AddressStrip::storesWhatItIsGiven()
{
    QFETCH(QString, given);
    QFETCH(QString, stored);
    AddressStrip strip;
    strip.setPath(QStringLiteral("/before"));
    Log log(&strip);
    strip.setPath(given);
    QCOMPARE(strip.path(), stored);
    QCOMPARE(log.lines.size(), 3);
    QCOMPARE(log.lines.at(1), stored);
    const QStringList names = stored.split(u'/', Qt::SkipEmptyParts);
    QCOMPARE(crumbsOf(&strip), names);
}

void tst_AddressStrip::ignoresTheEmptyAndTheCurrentPath()
{
    AddressStrip strip;
    Log log(&strip);
    strip.setPath(QString());
    strip.setPath(QStringLiteral("/"));
    QCOMPARE(log.take(), QStringList());
    QCOMPARE(strip.layout()->count(), 0);

    strip.setPath(QStringLiteral("/usr"));
    const QList<AddressEntry *> entries = entriesOf(&strip);
    log.take();
    for (const QString &path : {QString(), QStringLiteral("/usr"), QStringLiteral("/usr/"),
                                QStringLiteral("\\usr"), QStringLiteral("\\usr\\/")})
        strip.setPath(path);
    QCOMPARE(log.take(), QStringList());
    QCOMPARE(entriesOf(&strip), entries);
}

void tst_AddressStrip::reportsANavigation()
{
    const Folders folders({QStringLiteral("a")});
    AddressStrip strip;
    Log log(&strip);
    const QString path = folders.path(QStringLiteral("a"));
    QStringList crumbs;
    QObject::connect(&strip, &AddressStrip::signalPathChanged, &strip,
                     [&] { crumbs = crumbsOf(&strip); });
    strip.setPath(path);
    QCOMPARE(log.take(), (QStringList{QStringLiteral("001"), path, QStringLiteral("001")}));
    QCOMPARE(crumbs, path.mid(1).split(u'/'));
    strip.setPath(QStringLiteral("/usr"));
    QCOMPARE(log.take(),
             (QStringList{QStringLiteral("101"), QStringLiteral("/usr"), QStringLiteral("101")}));
    strip.goBackward();
    QCOMPARE(log.take(), (QStringList{QStringLiteral("011"), path}));
    strip.goForward();
    QCOMPARE(log.take(), (QStringList{QStringLiteral("101"), QStringLiteral("/usr")}));
}

void tst_AddressStrip::showsTheDriveAgain()
{
    // The drive is stored with a separator that the given path loses before it is compared.
    AddressStrip strip;
    strip.setPath(QStringLiteral("C:"));
    Log log(&strip);
    strip.setPath(QStringLiteral("C:/"));
    QCOMPARE(log.lines.size(), 3);
    QCOMPARE(strip.path(), QStringLiteral("C:/"));
    QCOMPARE(crumbsOf(&strip), QStringList{QStringLiteral("C:")});
    QCOMPARE(Walk(&strip).paths, QStringList{QStringLiteral("C:/")});
}

void tst_AddressStrip::buildsCrumbs()
{
    const Folders folders({QStringLiteral("a/one"), QStringLiteral("a/two")});
    AddressStrip strip;
    const QString path = folders.path(QStringLiteral("a"));
    strip.setPath(path);

    const auto *label = qobject_cast<QLabel *>(strip.layout()->itemAt(0)->widget());
    QVERIFY(label);
    QCOMPARE(label->parentWidget(), &strip);
    QCOMPARE(label->size(), QSize(24, 24));
    QCOMPARE(label->minimumSize(), label->maximumSize());
    QCOMPARE(label->margin(), 4);
    QVERIFY(label->hasScaledContents());
    const QIcon icon = strip.style()->standardIcon(QStyle::SP_DirOpenIcon);
    QCOMPARE(label->pixmap().toImage(),
             icon.pixmap(QSize(16, 16), label->devicePixelRatio()).toImage());

    const QList<AddressEntry *> entries = entriesOf(&strip);
    const QStringList names = path.split(u'/');
    QCOMPARE(entries.size(), strip.layout()->count() - 1);
    QCOMPARE(entries.size(), names.size());
    for (int i = 0; i < entries.size(); ++i) {
        QCOMPARE(entries.at(i)->parentWidget(), &strip);
        QCOMPARE(entries.at(i)->text(), names.at(i));
        QCOMPARE(entries.at(i)->focusPolicy(), Qt::NoFocus);
        QCOMPARE(entries.at(i)->sizePolicy(),
                 QSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred,
                             entries.at(i)->sizePolicy().controlType()));
    }
    QCOMPARE(entries.first()->popupMode(), QToolButton::InstantPopup);
    QCOMPARE(entries.last()->menu()->actions().size(), 2);
}

void tst_AddressStrip::buildsOnlyTheRootForASeparator()
{
    AddressStrip strip;
    strip.setPath(QStringLiteral("/usr"));
    strip.setPath(QStringLiteral("/"));
    QCOMPARE(strip.layout()->count(), 2);
    QCOMPARE(entriesOf(&strip).size(), 1);
    QCOMPARE(entriesOf(&strip).constFirst()->popupMode(), QToolButton::InstantPopup);
}

void tst_AddressStrip::standsCrumbsInARow()
{
    const Folders folders({QStringLiteral("a/two words/c")});
    Window window;
    window.strip->setPath(folders.path(QStringLiteral("a/two words")));
    QVERIFY(window.open());
    for (const QString &sub : {QStringLiteral("a/two words/c"), QStringLiteral("a")}) {
        window.strip->setPath(folders.path(sub));
        QVERIFY(waitForCrumbs(window.strip));
        QCOMPARE(window.strip->layout()->itemAt(0)->widget()->x(), 0);
        int x = 24;
        const QFontMetrics metrics(QApplication::font());
        const QList<AddressEntry *> entries = entriesOf(window.strip);
        for (const AddressEntry *entry : entries) {
            const int advance = metrics.horizontalAdvance(entry->text());
            int width = 4 + advance + (entry->menu() ? 6 + 16 : 4);
            if (entry == entries.first())
                width = 16;
            QCOMPARE(entry->geometry(), QRect(x, (window.strip->height() - 22) / 2, width, 22));
            x += width;
        }
    }
}

void tst_AddressStrip::keepsCrumbsAtTheirPlacesWhenTheyDoNotFit()
{
    const Folders folders({QStringLiteral("one folder/another folder/a third folder")});
    Window window(200);
    QVERIFY(window.open());
    window.strip->setPath(folders.path(QStringLiteral("one folder/another folder/a third folder")));
    QVERIFY(waitForCrumbs(window.strip));
    const auto wrong = [&] {
        int x = 24;
        const QList<AddressEntry *> entries = entriesOf(window.strip);
        for (const AddressEntry *entry : entries) {
            if (entry->x() != x || entry->minimumWidth() != entry->width()) {
                return QStringLiteral("%1 is at %2, not %3")
                    .arg(entry->text())
                    .arg(entry->x())
                    .arg(x);
            }
            x += entry->width();
        }
        return x > window.strip->width() ? QString() : QStringLiteral("everything fits");
    };
    QCOMPARE(wrong(), QString());
    window.resize(120, 150);
    QCoreApplication::processEvents();
    QCOMPARE(wrong(), QString());
    window.resize(220, 150);
    QCoreApplication::processEvents();
    QCOMPARE(wrong(), QString());
}

void tst_AddressStrip::standsCrumbsFromTheRight()
{
    const Folders folders({QStringLiteral("one folder/another folder")});
    for (const int width : {700, 200}) {
        Window window(width);
        window.setLayoutDirection(Qt::RightToLeft);
        QVERIFY(window.open());
        window.strip->setPath(folders.path(QStringLiteral("one folder/another folder")));
        QVERIFY(waitForCrumbs(window.strip));
        int right = window.strip->width() - 24;
        const QList<AddressEntry *> entries = entriesOf(window.strip);
        for (const AddressEntry *entry : entries) {
            QCOMPARE(entry->geometry().right() + 1, right);
            right -= entry->width();
        }
        QCOMPARE(right < 0, width == 200);
    }
}

void tst_AddressStrip::asksForNoRoomForItsCrumbs()
{
    Window window;
    const QSize hint = window.strip->sizeHint();
    const QSize minimum = window.strip->minimumSizeHint();
    window.strip->setPath(QStringLiteral("/a long path/") + QString(300, u'x'));
    QVERIFY(window.open());
    QCOMPARE(window.strip->sizeHint(), hint);
    QCOMPARE(window.strip->minimumSizeHint(), minimum);
    QCOMPARE(window.strip->minimumWidth(), 0);
    QCOMPARE(window.width(), 700);
}

void tst_AddressStrip::replacesCrumbsAtOnce()
{
    // Whoever hears of a change may open a dialog, and the old crumbs are deleted only after it.
    Window window;
    QVERIFY(window.open());
    window.strip->setPath(QStringLiteral("/one/two/three"));
    QVERIFY(waitForCrumbs(window.strip));
    const QList<AddressEntry *> before = entriesOf(window.strip);
    bool visible = false;
    QObject::connect(window.strip, &AddressStrip::signalPathChanged, &window, [&] {
        for (const AddressEntry *entry : before)
            visible = visible || entry->isVisible();
    });
    window.strip->setPath(QStringLiteral("/four"));
    QVERIFY(!visible);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(window.strip->findChildren<AddressEntry *>().size(), 2);
    QCOMPARE(window.strip->findChildren<QLabel *>().size(), 1);
    QVERIFY(waitForCrumbs(window.strip));
}

void tst_AddressStrip::reportsThePathOfEveryChange()
{
    AddressStrip strip;
    strip.setPath(QStringLiteral("/usr"));
    const QMetaObject::Connection onward =
        QObject::connect(&strip, &AddressStrip::signalPathChanged, &strip,
                         [&strip] { strip.setPath(QStringLiteral("/usr/lib")); });
    const QSignalSpy changes(&strip, &AddressStrip::signalPathChanged);
    // Who hears of a change after one that navigates on still hears of this change.
    strip.setPath(QStringLiteral("/usr/share"));
    QCOMPARE(changes,
             (QList{QVariantList{QStringLiteral("/usr/lib")},
                    QVariantList{QStringLiteral("/usr/share")}}));
    QVERIFY(QObject::disconnect(onward));
    QCOMPARE(strip.path(), QStringLiteral("/usr/lib"));
}

void tst_AddressStrip::followsAClickedCrumb()
{
    const Folders folders({QStringLiteral("a/b")});
    Window window;
    QVERIFY(window.open());
    window.strip->setPath(folders.path(QStringLiteral("a/b")));
    QSignalSpy changes(window.strip, &AddressStrip::signalPathChanged);
    const QList<AddressEntry *> entries = entriesOf(window.strip);
    window.click(entries.at(entries.size() - 2), QPoint(4, 11));
    QCOMPARE(changes.count(), 1);
    QCOMPARE(changes.takeFirst(), QVariantList{folders.path(QStringLiteral("a"))});
    QCOMPARE(window.strip->path(), folders.path(QStringLiteral("a")));
    QVERIFY(showsCrumbs(window.strip));
    // The last crumb is the current path.
    window.click(entriesOf(window.strip).constLast(), QPoint(4, 11));
    QCOMPARE(changes.count(), 0);
    QVERIFY(showsCrumbs(window.strip));
}

void tst_AddressStrip::followsAPickedFolder()
{
    const Folders folders({QStringLiteral("a"), QStringLiteral("b")});
    Window window;
    QVERIFY(window.open());
    window.strip->setPath(folders.path());
    QSignalSpy changes(window.strip, &AddressStrip::signalPathChanged);
    AddressEntry *last = entriesOf(window.strip).constLast();
    QVERIFY(whileOpen(
        last->menu(),
        [&] {
            Gui::moveMouse(last, QPoint(last->width() - 4, 11));
            Gui::press(last, QPoint(last->width() - 4, 11));
        },
        [&] {
            for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Return})
                QTest::keyClick(last->menu()->windowHandle(), key);
        }));
    QCOMPARE(changes.count(), 1);
    QCOMPARE(changes.takeFirst(), QVariantList{folders.path(QStringLiteral("b"))});
    QVERIFY(showsCrumbs(window.strip));
}

void tst_AddressStrip::showsFoldersThatAreGone()
{
    const Folders folders({QStringLiteral("a/b/c")});
    Window window;
    QVERIFY(window.open());
    window.strip->setPath(folders.path(QStringLiteral("a/b")));
    QVERIFY(folders.remove(QStringLiteral("a")));
    const QList<AddressEntry *> entries = entriesOf(window.strip);
    window.click(entries.at(entries.size() - 2), QPoint(4, 11));
    QCOMPARE(window.strip->path(), folders.path(QStringLiteral("a")));
    QVERIFY(!entriesOf(window.strip).constLast()->menu());
    window.strip->goBackward();
    QCOMPARE(window.strip->path(), folders.path(QStringLiteral("a/b")));
    QVERIFY(showsCrumbs(window.strip));
}

void tst_AddressStrip::showsFoldersThatGoWhileTheyAreListed()
{
    const QStringList names{QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")};
    for (qsizetype i = 0; i < names.size(); ++i) {
        const Folders folders({QStringLiteral("a/b/c/d")});
        Window window;
        QVERIFY(window.open());
        Log log(window.strip);
        // Before it come the root and the temporary folder's own crumbs.
        const auto number = folders.path().count(u'/') + 2 + i;
        bool removed = false;
        {
            const Delay delay(Fault::OpenFolder, int(number),
                              [&] { removed = folders.remove(QStringLiteral("a")); });
            window.strip->setPath(folders.path(QStringLiteral("a/b/c")));
        }
        QVERIFY(removed);
        QCOMPARE(window.strip->path(), folders.path(QStringLiteral("a/b/c")));
        QCOMPARE(crumbsOf(window.strip).last(3), names);
        // The crumbs before the one that was slow know what they had.
        const QList<AddressEntry *> entries = entriesOf(window.strip).last(3);
        for (qsizetype k = 0; k < entries.size(); ++k)
            QCOMPARE(entries.at(k)->menu() != nullptr, k < i);
        QCOMPARE(log.take().filter(QStringLiteral("/")), QStringList{window.strip->path()});
        QVERIFY(waitForCrumbs(window.strip));
        window.click(entries.constFirst(), QPoint(4, 11));
        QCOMPARE(window.strip->path(), folders.path(QStringLiteral("a")));
    }
}

void tst_AddressStrip::showsFoldersThatMayNotBeRead()
{
    const Unprivileged user;
    const Folders folders({QStringLiteral("locked/sub")});
    const QString locked = folders.path(QStringLiteral("locked"));
    QVERIFY(QFile::setPermissions(locked, {}));
    const auto unlock = qScopeGuard([&] {
        QFile::setPermissions(locked, QFile::ReadUser | QFile::WriteUser | QFile::ExeUser);
    });
    Window window;
    QVERIFY(window.open());
    Log log(window.strip);
    window.strip->setPath(locked);
    QCOMPARE(log.take(), (QStringList{QStringLiteral("001"), locked, QStringLiteral("001")}));
    QVERIFY(showsCrumbs(window.strip));
    QVERIFY(!entriesOf(window.strip).constLast()->menu());
    window.strip->goUp();
    QCOMPARE(window.strip->path(), folders.path());
    // It exists, so it can be typed, too.
    window.clickIntoStrip();
    window.type(locked);
    QTest::keyClick(window.windowHandle(), Qt::Key_Return);
    QCOMPARE(window.strip->path(), locked);
    QVERIFY(showsCrumbs(window.strip));
}

void tst_AddressStrip::showsAPathOfTenThousandCharacters()
{
    Window window;
    QVERIFY(window.open());
    const QString name = u'/' + QString(9999, u'x');
    window.strip->setPath(name);
    QCOMPARE(crumbsOf(window.strip), QStringList{name.mid(1)});
    QVERIFY(!window.grab().isNull());
    const QString deep = QStringLiteral("/x").repeated(5000);
    window.strip->setPath(deep);
    QCOMPARE(window.strip->path(), deep);
    QCOMPARE(entriesOf(window.strip).size(), 5001);
    QVERIFY(showsCrumbs(window.strip));
    window.strip->edit(QString());
    window.strip->goBackward();
    QCOMPARE(window.strip->path(), name);
    QVERIFY(showsCrumbs(window.strip));
}

void tst_AddressStrip::keepsAHistory()
{
    const QString a = QStringLiteral("/a");
    const QString b = QStringLiteral("/b");
    const QString c = QStringLiteral("/c");
    const QString d = QStringLiteral("/d");
    AddressStrip strip;
    for (const QString &path : {a, b, c})
        strip.setPath(path);
    Walk walk(&strip);
    QCOMPARE(walk.paths, (QStringList{a, b, c}));
    QCOMPARE(walk.index, 2);

    strip.goBackward();
    strip.goBackward();
    QCOMPARE(strip.path(), a);
    strip.setPath(d);
    walk = Walk(&strip);
    QCOMPARE(walk.paths, (QStringList{a, d}));
    QCOMPARE(walk.index, 1);
}

void tst_AddressStrip::movesToTheLastEntryOnly()
{
    const QString a = QStringLiteral("/a");
    const QString b = QStringLiteral("/b");
    const QString c = QStringLiteral("/c");
    AddressStrip strip;
    for (const QString &path : {a, b, c})
        strip.setPath(path);
    strip.goBackward();
    strip.goBackward();
    strip.setPath(c);
    const Walk walk(&strip);
    QCOMPARE(walk.paths, (QStringList{a, b, c}));
    QCOMPARE(walk.index, 2);
}

void tst_AddressStrip::resetsItsHistory()
{
    AddressStrip strip;
    strip.setPath(QStringLiteral("/a"));
    strip.setPath(QStringLiteral("/b"));
    Log log(&strip);
    strip.resetPath(QStringLiteral("\\usr\\"));
    QCOMPARE(log.take(),
             (QStringList{QStringLiteral("001"), QStringLiteral("/usr"), QStringLiteral("001")}));
    QCOMPARE(Walk(&strip).paths, QStringList{QStringLiteral("/usr")});
}

void tst_AddressStrip::emptiesItsHistoryOnResetToTheCurrentPath()
{
    Window window;
    QVERIFY(window.open());
    AddressStrip *strip = window.strip;
    for (const QString &path : {QStringLiteral("/a"), QStringLiteral("/b")})
        strip->setPath(path);
    Log log(strip);
    for (const QString &path : {QStringLiteral("/b"), QStringLiteral("/b/"), QString()}) {
        strip->resetPath(path);
        strip->goBackward();
        strip->goForward();
        QCOMPARE(log.take(), QStringList());
        QCOMPARE(strip->path(), QStringLiteral("/b"));
        QVERIFY(showsCrumbs(strip));
    }
    strip->setPath(QStringLiteral("/c"));
    QCOMPARE(log.take(),
             (QStringList{QStringLiteral("001"), QStringLiteral("/c"), QStringLiteral("001")}));
}

void tst_AddressStrip::ignoresStepsBeyondTheHistory()
{
    AddressStrip strip;
    Log log(&strip);
    strip.goBackward();
    strip.goForward();
    QCOMPARE(log.take(), QStringList());
    strip.setPath(QStringLiteral("/a"));
    log.take();
    strip.goBackward();
    strip.goForward();
    QCOMPARE(log.take(), QStringList());
    QCOMPARE(crumbsOf(&strip), QStringList{QStringLiteral("a")});
}

void tst_AddressStrip::tellsWhichWaysLeadOn()
{
    const Folders folders({QStringLiteral("a/b")});
    AddressStrip strip;
    Log log(&strip);
    const auto last = [&] { return log.take().constLast(); };
    strip.setPath(folders.path(QStringLiteral("a")));
    QCOMPARE(last(), QStringLiteral("001"));
    strip.setPath(QStringLiteral("/"));
    QCOMPARE(last(), QStringLiteral("100"));
    strip.setPath(folders.path(QStringLiteral("a/gone")));
    QCOMPARE(last(), QStringLiteral("101"));
    strip.setPath(folders.path(QStringLiteral("gone/gone")));
    QCOMPARE(last(), QStringLiteral("100"));
    strip.setPath(folders.path(QStringLiteral("a/b/..")));
    QCOMPARE(last(), QStringLiteral("101"));
}

void tst_AddressStrip::goesUp()
{
    const Folders folders({QStringLiteral("a/b")});
    Window window;
    QVERIFY(window.open());
    window.strip->setPath(folders.path(QStringLiteral("a/b")));
    Log log(window.strip);
    window.strip->goUp();
    const QString a = folders.path(QStringLiteral("a"));
    QCOMPARE(log.take(),
             (QStringList{QStringLiteral("101"), a, QStringLiteral("101"), QStringLiteral("101")}));
    QVERIFY(showsCrumbs(window.strip));
    while (!window.strip->path().isEmpty()) {
        const qsizetype separators = window.strip->path().count(u'/');
        window.strip->goUp();
        QCOMPARE(window.strip->path().count(u'/'), separators - 1);
        QVERIFY(showsCrumbs(window.strip));
    }
    QCOMPARE(log.take().constLast(), QStringLiteral("100"));
    window.strip->goUp();
    QCOMPARE(window.strip->path(), QString());
    QCOMPARE(log.take(), QStringList{QStringLiteral("100")});
}

void tst_AddressStrip::goesUpFromWhatIsGone()
{
    const Folders folders({QStringLiteral("a/b")});
    AddressStrip strip;
    strip.setPath(folders.path(QStringLiteral("a/b")));
    QVERIFY(folders.remove(QStringLiteral("a/b")));
    strip.goUp();
    QCOMPARE(strip.path(), folders.path(QStringLiteral("a")));

    // Nothing is above what has lost its parent too, and the crumbs go, as with the current path.
    strip.setPath(folders.path(QStringLiteral("a/b")));
    QVERIFY(folders.remove(QStringLiteral("a")));
    Log log(&strip);
    strip.goUp();
    QCOMPARE(strip.path(), folders.path(QStringLiteral("a/b")));
    QCOMPARE(log.take(), QStringList{QStringLiteral("100")});
    QCOMPARE(strip.layout()->count(), 0);
}

void tst_AddressStrip::losesItsCrumbsToTheSlotWithTheCurrentPath()
{
    AddressStrip strip;
    Log log(&strip);
    strip.slotPathChanged(QStringLiteral("/a"));
    QCOMPARE(log.lines.size(), 3);
    QCOMPARE(crumbsOf(&strip), QStringList{QStringLiteral("a")});
    log.take();
    strip.slotPathChanged(QStringLiteral("/a"));
    QCOMPARE(log.take(), QStringList());
    QCOMPARE(strip.layout()->count(), 0);
    strip.slotPathChanged(QStringLiteral("/b"));
    QCOMPARE(crumbsOf(&strip), QStringList{QStringLiteral("b")});
}

void tst_AddressStrip::editsAfterAClick()
{
    const Folders folders;
    Window window;
    QVERIFY(window.open());
    window.strip->setPath(folders.path());
    QVERIFY(showsCrumbs(window.strip));
    Log log(window.strip);
    const QPoint free(window.strip->width() - 3, 5);
    Gui::moveMouse(window.strip, free);
    Gui::press(window.strip, free);
    QVERIFY(showsCrumbs(window.strip));
    Gui::release(window.strip, free);
    QVERIFY(isEditing(window.strip));
    const QString edited = withBackslashes(folders.path());
    QCOMPARE(window.strip->text(), edited);
    QCOMPARE(window.strip->selectedText(), edited);
    QCOMPARE(window.strip->path(), edited);
    QCOMPARE(log.take(), QStringList());
}

void tst_AddressStrip::takesTheFocusForNoSpecialReason()
{
    Window window;
    QVERIFY(window.open());
    window.strip->setPath(QStringLiteral("/usr"));
    const FocusReasons focus(window.strip);
    window.clickIntoStrip();
    QCOMPARE(focus.reasons, QList{Qt::OtherFocusReason});
    window.click(window.patch);
    window.strip->edit(QStringLiteral("text"));
    QCOMPARE(focus.reasons, (QList{Qt::OtherFocusReason, Qt::OtherFocusReason}));
}

void tst_AddressStrip::editsWhatItIsGiven()
{
    const Folders folders;
    Window window;
    QVERIFY(window.open());
    window.strip->setPath(folders.path());
    for (const QString &text :
         {QStringLiteral("any/text"), QString(), QStringLiteral("two\nlines")}) {
        window.strip->edit(text);
        QVERIFY(isEditing(window.strip));
        QCOMPARE(window.strip->text().size(), text.size());
        QCOMPARE(window.strip->selectedText().size(), text.size());
        QCOMPARE(window.strip->path(), withBackslashes(folders.path()));
    }
    window.click(window.patch);
    QVERIFY(showsCrumbs(window.strip));
    QCOMPARE(window.strip->path(), folders.path());
}

void tst_AddressStrip::forgetsTheTextOfAHiddenEditor()
{
    // What is not seen has no focus that it could lose.
    AddressStrip strip;
    strip.setPath(QStringLiteral("/usr"));
    strip.edit(QStringLiteral("text"));
    strip.setPath(QStringLiteral("/var"));
    QCOMPARE(strip.text(), QString());
    QCOMPARE(crumbsOf(&strip), QStringList{QStringLiteral("var")});
}

void tst_AddressStrip::ignoresOtherButtons_data()
{
    QTest::addColumn<Qt::MouseButton>("button");
    QTest::newRow("right") << Qt::RightButton;
    QTest::newRow("middle") << Qt::MiddleButton;
    QTest::newRow("back") << Qt::BackButton;
}

void tst_AddressStrip::ignoresOtherButtons()
{
    QFETCH(Qt::MouseButton, button);
    Window window;
    QVERIFY(window.open());
    window.strip->setPath(QStringLiteral("/usr"));
    window.clickIntoStrip(button);
    QCOMPARE(window.releases, 1);
    QVERIFY(showsCrumbs(window.strip));
    window.click(entriesOf(window.strip).constLast(), QPoint(4, 11), button);
    QVERIFY(showsCrumbs(window.strip));
    window.releases = 0;
    window.clickIntoStrip();
    QCOMPARE(window.releases, 0);
    QVERIFY(isEditing(window.strip));
    window.clickIntoStrip(button);
    QCOMPARE(window.releases, 1);
    QVERIFY(isEditing(window.strip));
    QCOMPARE(window.strip->text(), QStringLiteral("\\usr"));
}

void tst_AddressStrip::takesClicksInTheEditor()
{
    Window window;
    QVERIFY(window.open());
    window.strip->setPath(QStringLiteral("/usr"));
    window.clickIntoStrip();
    QVERIFY(window.strip->hasSelectedText());
    window.clickIntoStrip();
    QVERIFY(isEditing(window.strip));
    QVERIFY(!window.strip->hasSelectedText());
    QCOMPARE(window.strip->cursorPosition(), 4);
    window.type(QStringLiteral("x"));
    QCOMPARE(window.strip->text(), QStringLiteral("\\usrx"));
}

void tst_AddressStrip::commitsTypedText_data()
{
    QTest::addColumn<QString>("pattern");
    QTest::newRow("slashes") << QStringLiteral("%1/a/b c");
    QTest::newRow("slash at the end") << QStringLiteral("%1/a/b c/");
    QTest::newRow("doubled") << QStringLiteral("%1//a///b c//");
    QTest::newRow("mixed") << QStringLiteral("%1\\a/b c\\");
    QTest::newRow("blanks around") << QStringLiteral("%1/ a /  b c ");
}

void tst_AddressStrip::commitsTypedText()
{
    QFETCH(QString, pattern);
    const Folders folders({QStringLiteral("a/b c")});
    Window window;
    QVERIFY(window.open());
    window.strip->setPath(QStringLiteral("/usr"));
    window.clickIntoStrip();
    Log log(window.strip);
    const QSignalSpy returns(window.strip, &QLineEdit::returnPressed);
    window.type(pattern.arg(folders.path()));
    QCOMPARE(log.take(), QStringList());
    QTest::keyClick(window.windowHandle(), Qt::Key_Return);
    const QString path = folders.path(QStringLiteral("a/b c"));
    QCOMPARE(window.strip->path(), path);
    // The key is the strip's, not the line edit's.
    QCOMPARE(returns.count(), 0);
    QCOMPARE(log.take(), (QStringList{QStringLiteral("101"), path, QStringLiteral("101")}));
    QVERIFY(showsCrumbs(window.strip));
    QCOMPARE(Walk(window.strip).paths, (QStringList{QStringLiteral("/usr"), path}));
}

void tst_AddressStrip::commitsAMixedSpelling()
{
    // Relative names are those of the program's own folder, of drives too.
    const Folders folders({QStringLiteral("C:/Data/Sub")});
    const QString before = QDir::currentPath();
    const auto restore = qScopeGuard([before] { QDir::setCurrent(before); });
    QVERIFY(QDir::setCurrent(folders.path()));
    Window window;
    QVERIFY(window.open());
    window.strip->setPath(QStringLiteral("/usr"));
    window.clickIntoStrip();
    QSignalSpy changes(window.strip, &AddressStrip::signalPathChanged);
    window.type(QStringLiteral("C:/Data\\Sub"));
    QTest::keyClick(window.windowHandle(), Qt::Key_Return);
    QCOMPARE(changes.count(), 1);
    QCOMPARE(changes.takeFirst(), QVariantList{QStringLiteral("C:/Data/Sub")});
    QCOMPARE(crumbsOf(window.strip),
             (QStringList{QStringLiteral("C:"), QStringLiteral("Data"), QStringLiteral("Sub")}));
}

void tst_AddressStrip::commitsTheRoot()
{
    for (const QString &text : {QStringLiteral("/"), QStringLiteral("\\"), QStringLiteral("//")}) {
        Window window;
        QVERIFY(window.open());
        window.strip->setPath(QStringLiteral("/usr"));
        window.clickIntoStrip();
        window.type(text);
        QTest::keyClick(window.windowHandle(), Qt::Key_Return);
        QCOMPARE(window.strip->path(), QString());
        QCOMPARE(entriesOf(window.strip).size(), 1);
        QCOMPARE(Walk(window.strip).paths, (QStringList{QStringLiteral("/usr"), QString()}));
    }
}

void tst_AddressStrip::commitsADriveAsItIs()
{
    // Without a separator in it, it is no other path when the editor is left.
    const Folders folders({QStringLiteral("C:")});
    const QString before = QDir::currentPath();
    const auto restore = qScopeGuard([before] { QDir::setCurrent(before); });
    QVERIFY(QDir::setCurrent(folders.path()));
    Window window;
    QVERIFY(window.open());
    window.strip->setPath(QStringLiteral("/usr"));
    window.clickIntoStrip();
    QSignalSpy changes(window.strip, &AddressStrip::signalPathChanged);
    window.type(QStringLiteral("C:"));
    QTest::keyClick(window.windowHandle(), Qt::Key_Return);
    QCOMPARE(window.strip->path(), QStringLiteral("C:"));
    QCOMPARE(changes.count(), 0);
    QCOMPARE(window.strip->layout()->count(), 0);
    QVERIFY(!window.strip->hasFocus());

    window.clickIntoStrip();
    QVERIFY(isEditing(window.strip));
    window.type(QStringLiteral("C:\\"));
    QTest::keyClick(window.windowHandle(), Qt::Key_Return);
    QCOMPARE(window.strip->path(), QStringLiteral("C:"));
    window.strip->setPath(QStringLiteral("/usr"));
    QVERIFY(showsCrumbs(window.strip));
}

void tst_AddressStrip::commitsBlanks()
{
    // Nothing is left of them, and nothing is what stands for the program's own folder.
    Window window;
    QVERIFY(window.open());
    window.strip->setPath(QStringLiteral("/usr"));
    window.clickIntoStrip();
    Log log(window.strip);
    window.type(QStringLiteral("   "));
    QTest::keyClick(window.windowHandle(), Qt::Key_Return);
    QCOMPARE(window.strip->path(), QString());
    QCOMPARE(log.take(), QStringList());
    QVERIFY(!window.strip->hasFocus());
    window.strip->setPath(QStringLiteral("/usr"));
    QVERIFY(showsCrumbs(window.strip));
}

void tst_AddressStrip::leavesTheEditorOnEmptyText()
{
    Window window;
    QVERIFY(window.open());
    window.strip->setPath(QStringLiteral("/usr"));
    window.clickIntoStrip();
    QTest::keyClick(window.windowHandle(), Qt::Key_Backspace);
    QCOMPARE(window.strip->text(), QString());
    QVERIFY(isEditing(window.strip));
    QTest::keyClick(window.windowHandle(), Qt::Key_Return);
    QVERIFY(showsCrumbs(window.strip));
    QCOMPARE(window.strip->path(), QStringLiteral("/usr"));
}

void tst_AddressStrip::refusesWhatDoesNotExist()
{
    const Folders folders({QStringLiteral("a/b")});
    QVERIFY(QFile(folders.path(QStringLiteral("file"))).open(QIODevice::WriteOnly));
    for (const QString &text :
         {folders.path(QStringLiteral("gone")), folders.path(QStringLiteral("file")),
          QStringLiteral("no such folder"), QString(10000, u'x')}) {
        Window window;
        QVERIFY(window.open());
        window.strip->setPath(folders.path());
        window.strip->edit(text);
        QString title;
        QString message;
        QMessageBox::Icon icon = QMessageBox::NoIcon;
        QMessageBox::StandardButtons buttons;
        QWidget *parent = nullptr;
        QVERIFY(whileModal([&] { QTest::keyClick(window.windowHandle(), Qt::Key_Return); },
                           [&](QWidget *modal) {
                               auto *box = qobject_cast<QMessageBox *>(modal);
                               title = box->windowTitle();
                               message = box->text();
                               icon = box->icon();
                               buttons = box->standardButtons();
                               parent = box->parentWidget();
                               Gui::click(box->button(QMessageBox::Ok));
                           }));
        QCOMPARE(title, QStringLiteral("Error"));
        QCOMPARE(message,
                 QStringLiteral("The director entered does not exist, please checek the spelling "
                                "and try again."));
        QCOMPARE(icon, QMessageBox::Critical);
        QCOMPARE(buttons, QMessageBox::StandardButtons(QMessageBox::Ok));
        QCOMPARE(parent, window.strip);
        window.click(window.patch);
        QTRY_VERIFY(showsCrumbs(window.strip));
        QCOMPARE(window.strip->path(), folders.path());
    }
}

void tst_AddressStrip::leavesOtherKeysToTheEditor()
{
    Window window;
    QVERIFY(window.open());
    window.strip->setPath(QStringLiteral("/usr"));
    window.clickIntoStrip();
    Log log(window.strip);
    const QSignalSpy returns(window.strip, &QLineEdit::returnPressed);
    QTest::keyClick(window.windowHandle(), Qt::Key_Enter);
    QCOMPARE(returns.count(), 1);
    QTest::keyClick(window.windowHandle(), Qt::Key_Escape);
    QTest::keyClick(window.windowHandle(), Qt::Key_Home);
    window.type(QStringLiteral("x"));
    QCOMPARE(window.strip->text(), QStringLiteral("x\\usr"));
    QVERIFY(isEditing(window.strip));
    QCOMPARE(log.take(), QStringList());
}

void tst_AddressStrip::ignoresReturnBesideTheEditor()
{
    AddressStrip strip;
    strip.setPath(QStringLiteral("/usr"));
    Log log(&strip);
    QTest::keyClick(&strip, Qt::Key_Return);
    QCOMPARE(log.take(), QStringList());
    QCOMPARE(crumbsOf(&strip), QStringList{QStringLiteral("usr")});
}

void tst_AddressStrip::leavesTheEditor_data()
{
    using Leave = std::function<void(Window *)>;
    QTest::addColumn<Leave>("leave");
    const auto row = [](const char *name, const Leave &leave) { QTest::newRow(name) << leave; };
    row("click on what takes no focus", [](Window *window) { window->click(window->patch); });
    row("click on what takes the focus", [](Window *window) { window->click(window->field); });
    row("right click", [](Window *window) { window->click(window->patch, Qt::RightButton); });
    row("tab", [](Window *window) { QTest::keyClick(window->windowHandle(), Qt::Key_Tab); });
    row("other window", [](Window *window) {
        QWidget other;
        QVERIFY(Gui::open(&other));
        QVERIFY(QTest::qWaitForWindowActive(&other, patience));
        QTRY_VERIFY(!window->strip->hasFocus());
    });
    row("click into other window", [](Window *window) {
        QWidget other;
        other.setWindowFlag(Qt::WindowDoesNotAcceptFocus);
        other.setAttribute(Qt::WA_ShowWithoutActivating);
        other.move(0, 400);
        QVERIFY(Gui::open(&other));
        Gui::moveMouse(window->patch, QPoint(1, 1));
        Gui::click(&other);
        QVERIFY(!window->strip->hasFocus());
    });
    row("menu", [](Window *window) {
        QMenu menu;
        menu.addAction(QStringLiteral("one"));
        menu.popup(window->mapToGlobal(QPoint(50, 50)));
        QTRY_COMPARE(QApplication::activePopupWidget(), &menu);
        menu.close();
    });
    row("hiding", [](Window *window) {
        window->strip->hide();
        window->strip->show();
    });
    row("disabling", [](Window *window) {
        window->strip->setEnabled(false);
        window->strip->setEnabled(true);
    });
    row("clearing the focus", [](Window *window) { window->strip->clearFocus(); });
}

void tst_AddressStrip::leavesTheEditor()
{
    QFETCH(std::function<void(Window *)>, leave);
    const Folders folders({QStringLiteral("a")});
    Window window;
    QVERIFY(window.open());
    const QString path = folders.path(QStringLiteral("a"));
    window.strip->setPath(QStringLiteral("/usr"));
    window.strip->setPath(path);
    window.clickIntoStrip();
    QVERIFY(isEditing(window.strip));
    window.type(QStringLiteral("not committed"));
    Log log(window.strip);
    leave(&window);
    QVERIFY(showsCrumbs(window.strip));
    QCOMPARE(window.strip->path(), path);
    QCOMPARE(log.take(), (QStringList{QStringLiteral("101"), path, QStringLiteral("101")}));
    QCOMPARE(crumbsOf(window.strip), path.mid(1).split(u'/'));
    QCOMPARE(Walk(window.strip).paths, (QStringList{QStringLiteral("/usr"), path}));
}

void tst_AddressStrip::tellsThatEditingIsOverAfterItsNavigation()
{
    Window window;
    QVERIFY(window.open());
    window.strip->setPath(QStringLiteral("/usr"));
    window.clickIntoStrip();
    window.type(QStringLiteral("not committed"));
    QStringList told;
    QObject::connect(window.strip, &AddressStrip::signalPathChanged, &window,
                     [&told](const QString &path) { told << path; });
    QObject::connect(window.strip, &QLineEdit::editingFinished, &window,
                     [&told] { told << QStringLiteral("finished"); });
    window.click(window.patch);
    QCOMPARE(told, (QStringList{QStringLiteral("/usr"), QStringLiteral("finished")}));
}

void tst_AddressStrip::staysInTheEditorWhenItIsClicked()
{
    Window window;
    QVERIFY(window.open());
    window.strip->setPath(QStringLiteral("/usr"));
    window.clickIntoStrip();
    for (int x = 1; x < window.strip->width(); x += 97) {
        window.click(window.strip, QPoint(x, 5));
        QVERIFY(isEditing(window.strip));
    }
    // A pen presses without the mouse having come.
    Gui::moveMouse(window.patch, QPoint(1, 1));
    QVERIFY(!window.strip->underMouse());
    const QPointF position(5, 5);
    QMouseEvent press(QEvent::MouseButtonPress, position, window.strip->mapToGlobal(position),
                      Qt::LeftButton, Qt::LeftButton, {});
    QApplication::sendEvent(window.strip, &press);
    QVERIFY(isEditing(window.strip));
}

void tst_AddressStrip::rewritesTheHistoryWhenTheEditorIsLeft()
{
    const QString a = QStringLiteral("/a");
    const QString b = QStringLiteral("/b");
    const QString c = QStringLiteral("/c");
    Window window;
    QVERIFY(window.open());
    for (const QString &path : {a, b, c})
        window.strip->setPath(path);
    window.strip->goBackward();
    Log log(window.strip);
    window.clickIntoStrip();
    window.click(window.patch);
    QCOMPARE(log.take(), (QStringList{QStringLiteral("101"), b, QStringLiteral("101")}));
    const Walk walk(window.strip);
    QCOMPARE(walk.paths, (QStringList{a, b, b}));
    QCOMPARE(walk.index, 2);
}

void tst_AddressStrip::keepsTheEmptyPathWithoutCrumbs()
{
    // The empty path has no separator that editing could change, so leaving is no navigation.
    Window window;
    QVERIFY(window.open());
    window.strip->setPath(QStringLiteral("/usr"));
    window.strip->setPath(QStringLiteral("/"));
    Log log(window.strip);
    window.clickIntoStrip();
    QVERIFY(isEditing(window.strip));
    window.click(window.patch);
    QCOMPARE(log.take(), QStringList());
    QCOMPARE(window.strip->layout()->count(), 0);
    QCOMPARE(window.strip->focusPolicy(), Qt::NoFocus);
    window.strip->goBackward();
    QVERIFY(showsCrumbs(window.strip));
}

void tst_AddressStrip::buildsCrumbsOnceWhenItLosesTheFocus_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("next");
    QTest::newRow("other path") << QStringLiteral("/usr") << QStringLiteral("/var");
    QTest::newRow("same path") << QStringLiteral("/usr") << QStringLiteral("/usr");
    // Given with its separator it differs from what is stored while it is compared.
    QTest::newRow("drive") << QStringLiteral("/usr") << QStringLiteral("C:/");
    QTest::newRow("same drive") << QStringLiteral("C:/") << QStringLiteral("C:/");
    QTest::newRow("from a drive") << QStringLiteral("C:/") << QStringLiteral("/usr");
}

void tst_AddressStrip::buildsCrumbsOnceWhenItLosesTheFocus()
{
    QFETCH(QString, path);
    QFETCH(QString, next);
    using Go = std::function<void(AddressStrip *)>;
    const QList<Go> ways{[next](AddressStrip *strip) { strip->setPath(next); },
                         [next](AddressStrip *strip) { strip->resetPath(next); },
                         [next](AddressStrip *strip) { strip->slotPathChanged(next); },
                         [](AddressStrip *strip) { strip->goBackward(); }};
    for (const Go &go : ways) {
        Window window;
        QVERIFY(window.open());
        window.strip->setPath(next);
        window.strip->setPath(QStringLiteral("/between"));
        window.strip->goBackward();
        window.strip->setPath(QStringLiteral("/between"));
        window.strip->setPath(path);
        window.clickIntoStrip();
        QVERIFY(isEditing(window.strip));
        QSignalSpy changes(window.strip, &AddressStrip::signalPathChanged);
        go(window.strip);
        QCOMPARE(changes.count(), 1);
        QVERIFY(!window.strip->hasFocus());
        QCOMPARE(window.strip->focusPolicy(), Qt::NoFocus);
        QCOMPARE(window.strip->cursor().shape(), Qt::ArrowCursor);
        QCOMPARE(crumbsOf(window.strip), window.strip->path().split(u'/', Qt::SkipEmptyParts));
        QCOMPARE(window.strip->layout()->count(), crumbsOf(window.strip).size() + 2);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCOMPARE(window.strip->findChildren<AddressEntry *>().size(),
                 entriesOf(window.strip).size());
    }
}

void tst_AddressStrip::letsAFolderBeChosen()
{
    const Folders folders({QStringLiteral("a"), QStringLiteral("b")});
    Window window;
    QVERIFY(window.open());
    const QString a = folders.path(QStringLiteral("a"));
    const QString b = folders.path(QStringLiteral("b"));
    window.strip->setPath(a);
    QSignalSpy changes(window.strip, &AddressStrip::signalPathChanged);
    QString title;
    QString start;
    bool foldersOnly = false;
    QWidget *parent = nullptr;
    QVERIFY(whileModal([&] { window.strip->browse(); },
                       [&](QWidget *modal) {
                           auto *dialog = qobject_cast<QFileDialog *>(modal);
                           title = dialog->windowTitle();
                           start = dialog->directory().absolutePath();
                           foldersOnly = dialog->testOption(QFileDialog::ShowDirsOnly);
                           parent = dialog->parentWidget();
                           auto *name = dialog->findChild<QLineEdit *>();
                           name->setText(b);
                           QTest::keyClick(name, Qt::Key_Return);
                       }));
    QCOMPARE(title, QStringLiteral("Select Folder"));
    QCOMPARE(start, a);
    QVERIFY(foldersOnly);
    QCOMPARE(parent, window.strip);
    QCOMPARE(changes.count(), 1);
    QCOMPARE(changes.takeFirst(), QVariantList{b});
    QVERIFY(showsCrumbs(window.strip));
}

void tst_AddressStrip::staysWhereItIsWhenNoFolderIsChosen()
{
    Window window;
    QVERIFY(window.open());
    window.strip->setPath(QStringLiteral("/"));
    Log log(window.strip);
    window.strip->setPath(QStringLiteral("/usr"));
    window.strip->goUp();
    log.take();
    QString start;
    QVERIFY(whileModal([&] { window.strip->browse(); },
                       [&](QWidget *modal) {
                           start = qobject_cast<QFileDialog *>(modal)->directory().absolutePath();
                           QTest::keyClick(modal, Qt::Key_Escape);
                       }));
    QCOMPARE(start, QStringLiteral("/"));
    QCOMPARE(log.take(), QStringList());
    QVERIFY(entriesOf(window.strip).size() == 1);
}

void tst_AddressStrip::staysWhereItIsWhenTheSameFolderIsChosen()
{
    const Folders folders({QStringLiteral("a")});
    QVERIFY(QFile::link(folders.path(QStringLiteral("a")), folders.path(QStringLiteral("link"))));
    Window window;
    QVERIFY(window.open());
    window.strip->setPath(folders.path(QStringLiteral("a")));
    Log log(window.strip);
    for (const QString &name : {QStringLiteral("a"), QStringLiteral("link")}) {
        QVERIFY(whileModal([&] { window.strip->browse(); },
                           [&](QWidget *modal) {
                               auto *edit = modal->findChild<QLineEdit *>();
                               edit->setText(folders.path(name));
                               QTest::keyClick(edit, Qt::Key_Return);
                           }));
        QCOMPARE(log.take(), QStringList());
        QVERIFY(showsCrumbs(window.strip));
    }
}

void tst_AddressStrip::followsItsCompleter()
{
    Window window;
    QVERIFY(window.open());
    window.strip->setPath(QStringLiteral("/usr"));
    window.clickIntoStrip();
    QSignalSpy changes(window.strip, &AddressStrip::signalPathChanged);
    Q_EMIT window.strip->completer()->activated(QStringLiteral("C:\\Data"));
    QCOMPARE(changes.count(), 1);
    QCOMPARE(changes.takeFirst(), QVariantList{QStringLiteral("C:/Data")});
    QVERIFY(showsCrumbs(window.strip) || crumbsOf(window.strip).size() == 2);
}

void tst_AddressStrip::takesAStoredPathFromItsCompleterAsItIs()
{
    // It is the path before it is compared with it, so that it is no change.
    Window window;
    QVERIFY(window.open());
    window.strip->setPath(QStringLiteral("/usr"));
    Log log(window.strip);
    Q_EMIT window.strip->completer()->activated(QStringLiteral("/var"));
    QCOMPARE(window.strip->path(), QStringLiteral("/var"));
    QCOMPARE(log.take(), QStringList());
    QCOMPARE(window.strip->layout()->count(), 0);
    QCOMPARE(Walk(window.strip).paths, QStringList{QStringLiteral("/var")});
}

void tst_AddressStrip::isDeletedWithTheFocus_data()
{
    QTest::addColumn<bool>("withWindow");
    QTest::newRow("alone") << false;
    QTest::newRow("with its window") << true;
}

void tst_AddressStrip::isDeletedWithTheFocus()
{
    QFETCH(bool, withWindow);
    auto window = std::make_unique<Window>();
    QVERIFY(window->open());
    window->strip->setPath(QStringLiteral("/usr"));
    window->clickIntoStrip();
    QVERIFY(isEditing(window->strip));
    if (!withWindow)
        delete window->strip;
    window.reset();
    QVERIFY(!QApplication::focusWidget());
    // The application still has events that the strip looked at.
    QWidget other;
    QVERIFY(Gui::open(&other));
    Gui::click(&other);
}

void tst_AddressStrip::isDeletedByWhoeverHearsOfAChange()
{
    using Go = std::function<void(Window *)>;
    const QList<Go> ways{
        [](Window *window) { window->strip->setPath(QStringLiteral("/var")); },
        [](Window *window) { window->strip->goUp(); },
        [](Window *window) { window->strip->goBackward(); },
        [](Window *window) { window->click(entriesOf(window->strip).at(1), QPoint(4, 11)); },
        // Qt itself is not done with a widget that is losing the focus, so this one goes later.
        [](Window *window) {
            window->clickIntoStrip();
            window->click(window->patch);
        },
        [](Window *window) {
            window->clickIntoStrip();
            QTest::keyClick(window->windowHandle(), Qt::Key_Return);
        },
    };
    for (qsizetype way = 0; way < ways.size(); ++way) {
        Window window;
        QVERIFY(window.open());
        window.strip->setPath(QStringLiteral("/usr"));
        window.strip->setPath(QStringLiteral("/usr/lib"));
        const QPointer<AddressStrip> strip = window.strip;
        QObject::connect(strip, &AddressStrip::signalPathChanged, &window, [strip, way] {
            if (way < 4)
                delete strip.get();
            else
                strip->deleteLater();
        });
        ways.at(way)(&window);
        QTRY_VERIFY(!strip);
    }
}

void tst_AddressStrip::agreesWithAModel_data()
{
    QTest::addColumn<quint32>("seed");
    for (quint32 seed = 1; seed <= 40; ++seed)
        QTest::addRow("seed %u", seed) << seed;
}

void tst_AddressStrip::agreesWithAModel()
{
    QFETCH(quint32, seed);
    const Folders folders(
        {QStringLiteral("a/b/c"), QStringLiteral("a/d"), QStringLiteral("e f/g")});
    const QStringList paths{folders.path(),
                            folders.path(QStringLiteral("a")),
                            folders.path(QStringLiteral("a/b")),
                            folders.path(QStringLiteral("a/b/c")),
                            folders.path(QStringLiteral("a/d/")),
                            withBackslashes(folders.path(QStringLiteral("e f/g"))),
                            QStringLiteral("/")};

    const auto play = [&](const QList<Steps::Step> &steps, QStringList *story) -> QString {
        Window window(1200);
        if (!window.open())
            return QStringLiteral("no window");
        History model;
        Log log(window.strip);
        const auto tell = [story](const QString &what) { story->append(what); };
        for (const Steps::Step &step : steps) {
            const QString &path = paths.at(step.number % paths.size());
            switch (step.kind) {
            case 0:
                tell(QStringLiteral("go to ") + path);
                window.strip->setPath(path);
                model.navigate(path);
                break;
            case 1:
                tell(QStringLiteral("reset to ") + path);
                window.strip->resetPath(path);
                model.reset(path);
                break;
            case 2:
            case 3:
                tell(QStringLiteral("back"));
                window.strip->goBackward();
                model.step(-1);
                break;
            case 4:
                tell(QStringLiteral("forward"));
                window.strip->goForward();
                model.step(1);
                break;
            case 5:
                tell(QStringLiteral("up"));
                window.strip->goUp();
                model.up();
                break;
            case 6:
                tell(QStringLiteral("slot ") + path);
                window.strip->slotPathChanged(path);
                model.slot(path);
                break;
            case 7: {
                const QList<AddressEntry *> entries = entriesOf(window.strip);
                if (entries.size() < 2)
                    continue;
                const qsizetype at = 1 + step.number % (entries.size() - 1);
                tell(QStringLiteral("click crumb %1").arg(at));
                window.click(entries.at(at), QPoint(4, 11));
                model.navigate(u'/' + model.path.mid(1).split(u'/').mid(0, at).join(u'/'));
                break;
            }
            case 8:
                tell(QStringLiteral("click in and elsewhere"));
                window.clickIntoStrip();
                model.edit();
                if (!isEditing(window.strip) || window.strip->path() != model.path)
                    return QStringLiteral("not edited");
                window.click(step.number % 2 ? window.patch : window.field);
                model.navigate(model.path);
                break;
            default:
                tell(QStringLiteral("type ") + path);
                window.clickIntoStrip();
                model.edit();
                window.type(path);
                QTest::keyClick(window.windowHandle(), Qt::Key_Return);
                model.path = withBackslashes(path);
                while (model.path.size() > 1 && model.path.endsWith(u'\\'))
                    model.path.chop(1);
                model.navigate(model.path);
                break;
            }
            if (window.strip->path() != model.path)
                return QStringLiteral("path %1, not %2").arg(window.strip->path(), model.path);
            if (log.take() != std::exchange(model.log, {}))
                return QStringLiteral("other signals");
            if ((window.strip->layout()->count() != 0) != model.crumbs)
                return QStringLiteral("crumbs %1").arg(window.strip->layout()->count());
            if (model.crumbs
                && crumbsOf(window.strip) != model.path.split(u'/', Qt::SkipEmptyParts))
                return QStringLiteral("other crumbs");
        }
        return {};
    };

    QRandomGenerator random(seed);
    QList<Steps::Step> steps;
    for (int i = 0; i < 60; ++i)
        steps << Steps::Step{random.bounded(10), random.bounded(1000)};
    const QString wrong = Steps::play(steps, play);
    QVERIFY2(wrong.isEmpty(), qPrintable(wrong));
}

NORVANE_TEST_MAIN(tst_AddressStrip)
#include "tst_AddressStrip.moc"
