// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "Folders.h"
#include "Popup.h"
#include "Shot.h"
#include "TestCase.h"

#include <address/AddressEntry.h>

#include <QtCore/QMetaMethod>
#include <QtGui/QScreen>
#include <QtTest/QSignalSpy>
#include <QtWidgets/QProxyStyle>

#include <memory>

using Norvane::AddressEntry;

class tst_AddressEntry : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void hasOneSignalOfItsOwn();
    void startsWithoutMenu();
    void offersTheFoldersInIt();
    void offersNothingWithoutFolders_data();
    void offersNothingWithoutFolders();
    void offersTheRootsFolders();
    void hasTheIconsOfTheStyle();
    void namesWithAnythingInThem_data();
    void namesWithAnythingInThem();

    void isAsWideAsItsParts_data();
    void isAsWideAsItsParts();
    void rootIsAsWideAsItsArrow();

    void clickOnTheNameReportsItsPath_data();
    void clickOnTheNameReportsItsPath();
    void otherButtonsGoToTheParent_data();
    void otherButtonsGoToTheParent();
    void releaseOutsideReportsNothing();
    void pressOnTheArrowOpensTheMenu();
    void pressOnTheNameOpensNothing();
    void everyPressOnTheRootOpensItsMenu();
    void pickedFolderIsReported();
    void folderInTheRootIsReported();
    void menuThatIsClosedReportsNothing();
    void menuTellsOfItsActions();
    void menuOpensAgain();
    void reportMayDeleteTheCrumb_data();
    void reportMayDeleteTheCrumb();

    void menuOpensUnderTheArrow();
    void menuStaysOnTheScreen();
    void menuTakesTheRoomThatItNeeds_data();
    void menuTakesTheRoomThatItNeeds();
    void longMenuIsOneColumnThatScrolls();
    void longMenuKeepsALimitOfItsOwn();
    void longMenuMeasuresItsActionsNoMoreOftenThanAnother();
    void menuOpensUnderTheRootWhereQtPutsIt();
    void showOfTheMenuIsConsumed();
    void tearOffMenuIsHidden();

    void scaleIsAsAsked();
    void idleCrumbHasNoBackground();
    void plainBackgrounds();
    void splitBackgrounds();
    void rootBackgrounds();
    void pressNeedsNoMouseToBeSeen();
    void hoverGoesWithTheMouse();
    void hoverGoesWithTheMenu();
    void nameIsBlackAndCentred();
    void rootDrawsNoName();
    void ampersandIsDrawn();
    void arrowPointsDownWhileItIsPressed();
    void arrowStandsAtTheEnd();
    void isTheMirrorImageFromTheRight();
    void menuOpensUnderTheArrowFromTheRight();
};

namespace {

constexpr QColor backdrop(255, 0, 255);
constexpr QColor border(51, 51, 51);
constexpr QColor white(255, 255, 255);
constexpr QColor light(245, 245, 245);
constexpr QColor pressed(217, 217, 217);
constexpr QColor active(180, 222, 255);

constexpr int arrowPart = 16;

//! A text whose letters are blocks that fill their cells.
QString blocks(int count)
{
    return QString(count, QChar(0x2588));
}

//! One crumb in a window in a colour that nothing else has.
class Window : public QWidget
{
public:
    Window(const QString &text, const QString &path)
        : entry(new AddressEntry(this))
    {
        QPalette colours;
        colours.setColor(QPalette::Window, backdrop);
        setPalette(colours);
        resize(400, 60);
        entry->setText(text);
        entry->setPath(path);
        entry->move(20, 10);
    }

    bool open()
    {
        if (!Gui::open(this))
            return false;
        Gui::moveMouse(this, QPoint(width() - 2, height() - 2));
        return true;
    }

    int advance() const { return entry->fontMetrics().horizontalAdvance(entry->text()); }
    int textPart() const { return 4 + 6 + advance(); }
    QPoint onText() const { return {5, 11}; }
    QPoint onArrow() const { return {entry->width() - 5, 11}; }

    AddressEntry *const entry;
    int presses = 0;

protected:
    void mousePressEvent(QMouseEvent *) override { ++presses; }
};

//! A crumb with the folders "a", "b" and "c" and one without folders.
struct Fixture
{
    Folders folders{{QStringLiteral("split/a"), QStringLiteral("split/b"),
                     QStringLiteral("split/c"), QStringLiteral("plain")}};
    Window split{blocks(3), folders.path(QStringLiteral("split"))};
    Window plain{blocks(3), folders.path(QStringLiteral("plain"))};
    Window root{QString(), QString()};
};

QStringList textsOf(const QMenu *menu)
{
    QStringList texts;
    const QList<QAction *> actions = menu->actions();
    for (const QAction *action : actions)
        texts << action->text();
    return texts;
}

//! Opens the menu of the window's crumb with the mouse.
bool openMenu(Window *window, const std::function<void()> &look)
{
    return whileOpen(
        window->entry->menu(), [window] { Gui::press(window->entry, window->onArrow()); }, look);
}

/*!
    Empty when one pixel of the screen is painted as border over the height of a crumb: the first
    one of each of \a lefts and the last one of \a right, and the pixel beside it is not.
*/
QString otherBorders(const Shot &shot, const QList<int> &lefts, int right)
{
    const int ratio = shot.ratio();
    QList<QPoint> columns{QPoint((right + 1) * ratio - 1, -1)};
    for (const int left : lefts)
        columns << QPoint(left * ratio, 1);
    for (const QPoint column : std::as_const(columns)) {
        for (int y = 0; y < 22 * ratio; ++y) {
            if (shot.device(column.x(), y) != border
                || shot.device(column.x() + column.y(), y) == border)
                return QStringLiteral("no border at %1, %2").arg(column.x()).arg(y);
        }
    }
    return {};
}

void pick(QMenu *menu, const QString &text)
{
    const QList<QAction *> actions = menu->actions();
    const auto action = std::find_if(actions.cbegin(), actions.cend(),
                                     [text](const QAction *a) { return a->text() == text; });
    QVERIFY(action != actions.cend());
    const QRect row = menu->actionGeometry(*action);
    QTest::mouseClick(menu->windowHandle(), Qt::LeftButton, {},
                      QPoint(row.left() + 10, row.center().y()));
}

} // namespace

void tst_AddressEntry::hasOneSignalOfItsOwn()
{
    const QMetaObject &meta = AddressEntry::staticMetaObject;
    QCOMPARE(meta.superClass(), &QToolButton::staticMetaObject);
    QCOMPARE(meta.methodCount(), meta.methodOffset() + 1);
    const QMetaMethod signal = meta.method(meta.methodOffset());
    QCOMPARE(signal.methodSignature(), "signalClicked(QString)");
    QCOMPARE(signal.parameterNames(), QByteArrayList{"path"});
}

void tst_AddressEntry::startsWithoutMenu()
{
    QWidget parent;
    const AddressEntry entry(&parent);
    QCOMPARE(entry.parentWidget(), &parent);
    QVERIFY(entry.hasMouseTracking());
    QVERIFY(!entry.menu());
    QCOMPARE(entry.popupMode(), QToolButton::DelayedPopup);
}

void tst_AddressEntry::offersTheFoldersInIt()
{
    const Folders folders(
        {QStringLiteral("b"), QStringLiteral("a"), QStringLiteral("C"), QStringLiteral(".h")});
    QVERIFY(QFile(folders.path(QStringLiteral("file"))).open(QIODevice::WriteOnly));
    AddressEntry entry;
    const QSignalSpy clicks(&entry, &AddressEntry::signalClicked);
    entry.setPath(folders.path());
    QCOMPARE(entry.popupMode(), QToolButton::MenuButtonPopup);
    QVERIFY(entry.menu());
    QCOMPARE(entry.menu()->parentWidget(), &entry);
    QCOMPARE(textsOf(entry.menu()),
             (QStringList{QStringLiteral("C"), QStringLiteral("a"), QStringLiteral("b")}));
    const QIcon icon = QApplication::style()->standardIcon(QStyle::SP_DirIcon);
    QVERIFY(!icon.isNull());
    const QList<QAction *> actions = entry.menu()->actions();
    for (const QAction *action : actions) {
        QCOMPARE(action->parent(), entry.menu());
        QCOMPARE(action->icon().pixmap(16).toImage(), icon.pixmap(16).toImage());
    }
    QCOMPARE(clicks.count(), 0);
}

void tst_AddressEntry::offersNothingWithoutFolders_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("empty") << QStringLiteral("empty");
    QTest::newRow("gone") << QStringLiteral("gone");
    QTest::newRow("file") << QStringLiteral("file");
    QTest::newRow("hidden ones only") << QStringLiteral("hidden");
    QTest::newRow("too long") << QString(10000, u'x');
}

void tst_AddressEntry::offersNothingWithoutFolders()
{
    QFETCH(QString, path);
    const Folders folders({QStringLiteral("empty"), QStringLiteral("hidden/.sub")});
    QVERIFY(QFile(folders.path(QStringLiteral("file"))).open(QIODevice::WriteOnly));
    AddressEntry entry;
    entry.setPath(folders.path(path));
    QVERIFY(!entry.menu());
    QCOMPARE(entry.popupMode(), QToolButton::DelayedPopup);
}

void tst_AddressEntry::offersTheRootsFolders()
{
    AddressEntry entry;
    entry.setPath(QString());
    QCOMPARE(entry.popupMode(), QToolButton::InstantPopup);
    QCOMPARE(textsOf(entry.menu()),
             QDir(QStringLiteral("/")).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name));
    const QIcon icon = QApplication::style()->standardIcon(QStyle::SP_DirIcon);
    QCOMPARE(entry.menu()->actions().constFirst()->icon().pixmap(16).toImage(),
             icon.pixmap(16).toImage());
}

void tst_AddressEntry::hasTheIconsOfTheStyle()
{
    class Style : public QProxyStyle
    {
    public:
        Style()
            : QProxyStyle(QStringLiteral("Fusion"))
        {
        }

        QIcon standardIcon(StandardPixmap icon, const QStyleOption *option,
                           const QWidget *widget) const override
        {
            if (icon != SP_DirIcon)
                return QProxyStyle::standardIcon(icon, option, widget);
            QPixmap red(16, 16);
            red.fill(Qt::red);
            return red;
        }
    };
    const Folders folders({QStringLiteral("a")});
    const auto shown = [&folders] {
        AddressEntry entry;
        entry.setPath(folders.path());
        const QIcon icon = entry.menu()->actions().constFirst()->icon();
        return icon.pixmap(QSize(16, 16), 1).toImage().pixelColor(8, 8);
    };
    QVERIFY(shown() != QColor(Qt::red));
    QApplication::setStyle(new Style);
    const QColor other = shown();
    QApplication::setStyle(QStringLiteral("Fusion"));
    QCOMPARE(other, QColor(Qt::red));
    QVERIFY(shown() != QColor(Qt::red));
}

void tst_AddressEntry::namesWithAnythingInThem_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("ampersand") << QStringLiteral("a & b");
    QTest::newRow("mnemonic") << QStringLiteral("&file");
    QTest::newRow("two ampersands") << QStringLiteral("&&");
    QTest::newRow("placeholder") << QStringLiteral("%1 %n");
    QTest::newRow("line feed") << QStringLiteral("two\nlines");
    QTest::newRow("tab") << QStringLiteral("two\tcells");
    QTest::newRow("markup") << QStringLiteral("<b>bold<");
    QTest::newRow("blank") << QStringLiteral(" ");
    QTest::newRow("longest") << QString(255, u'x');
    QTest::newRow("other script") << QStringLiteral("目录");
    QTest::newRow("right to left") << QStringLiteral("تجربة");
    QTest::newRow("not in the plane") << QStringLiteral("𝄞");
}

void tst_AddressEntry::namesWithAnythingInThem()
{
    QFETCH(QString, name);
    const Folders folders({name});
    Window window(QStringLiteral("parent"), folders.path());
    QVERIFY(window.open());
    QCOMPARE(textsOf(window.entry->menu()), QStringList{name});
    const QSignalSpy clicks(window.entry, &AddressEntry::signalClicked);
    QVERIFY(openMenu(&window, [&window, name] { pick(window.entry->menu(), name); }));
    QCOMPARE(clicks.count(), 1);
    QCOMPARE(clicks.at(0), QVariantList{folders.path(name)});
}

void tst_AddressEntry::isAsWideAsItsParts_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("nothing") << QString();
    QTest::newRow("one") << QStringLiteral("x");
    QTest::newRow("words") << QStringLiteral("My Documents");
    QTest::newRow("ampersand") << QStringLiteral("a & b");
    QTest::newRow("long") << QString(200, u'W');
}

void tst_AddressEntry::isAsWideAsItsParts()
{
    QFETCH(QString, text);
    const Folders folders({QStringLiteral("split/a"), QStringLiteral("plain")});
    Window split(text, folders.path(QStringLiteral("split")));
    Window plain(text, folders.path(QStringLiteral("plain")));
    QVERIFY(split.open());
    QVERIFY(plain.open());
    const int advance = QFontMetrics(QApplication::font()).horizontalAdvance(text);
    QCOMPARE(split.entry->size(), QSize(4 + advance + 6 + 16, 22));
    QCOMPARE(plain.entry->size(), QSize(4 + advance + 4, 22));
    for (const AddressEntry *entry : {split.entry, plain.entry}) {
        QCOMPARE(entry->minimumSize(), entry->size());
        QCOMPARE(entry->maximumSize(), entry->size());
    }
}

void tst_AddressEntry::rootIsAsWideAsItsArrow()
{
    for (const QString &text : {QString(), QStringLiteral("text")}) {
        Window window(text, QString());
        QVERIFY(window.open());
        QCOMPARE(window.entry->size(), QSize(16, 22));
    }
}

void tst_AddressEntry::clickOnTheNameReportsItsPath_data()
{
    QTest::addColumn<bool>("split");
    QTest::newRow("split") << true;
    QTest::newRow("plain") << false;
}

void tst_AddressEntry::clickOnTheNameReportsItsPath()
{
    QFETCH(bool, split);
    Fixture f;
    Window &window = split ? f.split : f.plain;
    QVERIFY(window.open());
    QSignalSpy clicks(window.entry, &AddressEntry::signalClicked);
    Gui::press(window.entry, window.onText());
    QVERIFY(window.entry->isDown());
    QCOMPARE(clicks.count(), 0);
    Gui::release(window.entry, window.onText());
    QVERIFY(!window.entry->isDown());
    const QString path = f.folders.path(split ? QStringLiteral("split") : QStringLiteral("plain"));
    QCOMPARE(clicks.count(), 1);
    QCOMPARE(clicks.takeFirst(), QVariantList{path});
    if (!split) {
        // There is no arrow part at the end.
        Gui::click(window.entry, window.onArrow());
        QCOMPARE(clicks.count(), 1);
    }
    QCOMPARE(window.presses, 0);
}

void tst_AddressEntry::otherButtonsGoToTheParent_data()
{
    QTest::addColumn<Qt::MouseButton>("button");
    QTest::newRow("right") << Qt::RightButton;
    QTest::newRow("middle") << Qt::MiddleButton;
}

void tst_AddressEntry::otherButtonsGoToTheParent()
{
    QFETCH(Qt::MouseButton, button);
    Fixture f;
    QVERIFY(f.split.open());
    const QSignalSpy clicks(f.split.entry, &AddressEntry::signalClicked);
    for (const QPoint position : {f.split.onText(), f.split.onArrow()}) {
        Gui::press(f.split.entry, position, button);
        QVERIFY(!f.split.entry->isDown());
        Gui::release(f.split.entry, position, button);
    }
    QCOMPARE(clicks.count(), 0);
    QCOMPARE(f.split.presses, 2);
    QVERIFY(!QApplication::activePopupWidget());
}

void tst_AddressEntry::releaseOutsideReportsNothing()
{
    Fixture f;
    QVERIFY(f.split.open());
    const QSignalSpy clicks(f.split.entry, &AddressEntry::signalClicked);
    Gui::press(f.split.entry, f.split.onText());
    Gui::moveMouse(f.split.entry, QPoint(5, 40));
    Gui::release(f.split.entry, QPoint(5, 40));
    QVERIFY(!f.split.entry->isDown());
    QCOMPARE(clicks.count(), 0);
}

void tst_AddressEntry::pressOnTheArrowOpensTheMenu()
{
    Fixture f;
    QVERIFY(f.split.open());
    const QSignalSpy clicks(f.split.entry, &AddressEntry::signalClicked);
    bool down = false;
    QVERIFY(openMenu(&f.split, [&] { down = f.split.entry->isDown(); }));
    QVERIFY(down);
    QVERIFY(!f.split.entry->isDown());
    Gui::release(f.split.entry, f.split.onArrow());
    QCOMPARE(clicks.count(), 0);

    // Each end of the arrow part.
    for (const int x : {f.split.textPart(), f.split.textPart() + arrowPart - 1}) {
        QVERIFY(whileOpen(
            f.split.entry->menu(), [&] { Gui::press(f.split.entry, QPoint(x, 21)); }, [] {}));
        Gui::release(f.split.entry, QPoint(x, 21));
    }
}

void tst_AddressEntry::pressOnTheNameOpensNothing()
{
    Fixture f;
    QVERIFY(f.split.open());
    const QSignalSpy shown(f.split.entry->menu(), &QMenu::aboutToShow);
    for (const int x : {0, f.split.textPart() - 1})
        Gui::click(f.split.entry, QPoint(x, 11));
    QCOMPARE(shown.count(), 0);
}

void tst_AddressEntry::everyPressOnTheRootOpensItsMenu()
{
    Window window{QString(), QString()};
    QVERIFY(window.open());
    const QSignalSpy clicks(window.entry, &AddressEntry::signalClicked);
    for (const QPoint position : {QPoint(0, 0), QPoint(8, 11), QPoint(15, 21)}) {
        QVERIFY(
            whileOpen(window.entry->menu(), [&] { Gui::press(window.entry, position); }, [] {}));
        Gui::release(window.entry, position);
    }
    QCOMPARE(clicks.count(), 0);
}

void tst_AddressEntry::pickedFolderIsReported()
{
    Fixture f;
    QVERIFY(f.split.open());
    const QSignalSpy clicks(f.split.entry, &AddressEntry::signalClicked);
    QVERIFY(openMenu(&f.split, [&] { pick(f.split.entry->menu(), QStringLiteral("b")); }));
    QCOMPARE(clicks.count(), 1);
    QCOMPARE(clicks.at(0), QVariantList{f.folders.path(QStringLiteral("split/b"))});

    QVERIFY(openMenu(&f.split, [&] {
        QWindow *menu = f.split.entry->menu()->windowHandle();
        for (const Qt::Key key : {Qt::Key_Up, Qt::Key_Return})
            QTest::keyClick(menu, key);
    }));
    QCOMPARE(clicks.count(), 2);
    QCOMPARE(clicks.at(1), QVariantList{f.folders.path(QStringLiteral("split/c"))});
}

void tst_AddressEntry::folderInTheRootIsReported()
{
    Window window{QString(), QString()};
    QVERIFY(window.open());
    const QString name = textsOf(window.entry->menu()).constFirst();
    const QSignalSpy clicks(window.entry, &AddressEntry::signalClicked);
    QVERIFY(openMenu(&window, [&] { pick(window.entry->menu(), name); }));
    QCOMPARE(clicks.count(), 1);
    QCOMPARE(clicks.at(0), QVariantList{QString(u'/' + name)});
}

void tst_AddressEntry::menuThatIsClosedReportsNothing()
{
    Fixture f;
    QVERIFY(f.split.open());
    const QSignalSpy clicks(f.split.entry, &AddressEntry::signalClicked);
    QVERIFY(openMenu(&f.split, [&] {
        QTest::mouseClick(f.split.entry->menu()->windowHandle(), Qt::LeftButton, {},
                          QPoint(-300, -30));
    }));
    QVERIFY(!QApplication::activePopupWidget());
    QCOMPARE(clicks.count(), 0);
}

void tst_AddressEntry::menuTellsOfItsActions()
{
    const Folders folders({QStringLiteral("a"), QStringLiteral("b")});
    AddressEntry entry;
    entry.setPath(folders.path());
    QMenu *menu = entry.menu();
    QAction *b = menu->actions().constLast();
    QSignalSpy hovers(menu, &QMenu::hovered);
    QSignalSpy picks(menu, &QMenu::triggered);
    const QSignalSpy clicks(&entry, &AddressEntry::signalClicked);
    // As assistive tools do, without a menu that is seen.
    b->hover();
    QCOMPARE(hovers.count(), 1);
    QCOMPARE(qvariant_cast<QAction *>(hovers.takeFirst().constFirst()), b);
    QCOMPARE(picks.count(), 0);
    b->trigger();
    QCOMPARE(picks.count(), 1);
    QCOMPARE(qvariant_cast<QAction *>(picks.takeFirst().constFirst()), b);
    QCOMPARE(clicks.count(), 1);
    QCOMPARE(clicks.constFirst(), QVariantList{folders.path(QStringLiteral("b"))});
    menu->removeAction(b);
    b->hover();
    b->trigger();
    menu->addAction(b);
    b->hover();
    b->trigger();
    QCOMPARE(hovers.count(), 1);
    QCOMPARE(picks.count(), 1);
    QCOMPARE(clicks.count(), 2);
}

void tst_AddressEntry::menuOpensAgain()
{
    Fixture f;
    QVERIFY(f.split.open());
    for (int i = 0; i < 3; ++i) {
        QVERIFY(openMenu(&f.split, [] { }));
        Gui::release(f.split.entry, f.split.onArrow());
        QVERIFY(!f.split.entry->isDown());
    }
    const QSignalSpy clicks(f.split.entry, &AddressEntry::signalClicked);
    Gui::click(f.split.entry, f.split.onText());
    QCOMPARE(clicks.count(), 1);
}

void tst_AddressEntry::reportMayDeleteTheCrumb_data()
{
    QTest::addColumn<bool>("fromMenu");
    QTest::addColumn<bool>("later");
    for (const bool fromMenu : {false, true}) {
        for (const bool later : {false, true})
            QTest::addRow("%s, %s", fromMenu ? "menu" : "name", later ? "later" : "at once")
                << fromMenu << later;
    }
}

void tst_AddressEntry::reportMayDeleteTheCrumb()
{
    QFETCH(bool, fromMenu);
    QFETCH(bool, later);
    Fixture f;
    QVERIFY(f.split.open());
    const QPointer<AddressEntry> entry = f.split.entry;
    QObject::connect(entry, &AddressEntry::signalClicked, &f.split, [entry, later] {
        if (later)
            entry->deleteLater();
        else
            delete entry.get();
    });
    if (fromMenu)
        QVERIFY(openMenu(&f.split, [&] { pick(entry->menu(), QStringLiteral("a")); }));
    else
        Gui::click(entry, f.split.onText());
    QTRY_VERIFY(!entry);
}

void tst_AddressEntry::menuOpensUnderTheArrow()
{
    Fixture f;
    QVERIFY(f.split.open());
    f.split.move(100, 100);
    QPoint position;
    QSize size;
    QVERIFY(openMenu(&f.split, [&] {
        position = f.split.entry->menu()->pos();
        size = f.split.entry->menu()->size();
    }));
    QCOMPARE(position, f.split.entry->mapToGlobal(QPoint(f.split.textPart(), 22)));
    QCOMPARE(size, f.split.entry->menu()->sizeHint());
}

void tst_AddressEntry::menuStaysOnTheScreen()
{
    Fixture f;
    QVERIFY(f.split.open());
    const QRect screen = f.split.screen()->availableGeometry();
    // The crumb itself is on the screen, most of its menu would not be.
    const QPoint corner = screen.bottomRight() - f.split.entry->geometry().bottomRight();
    f.split.move(corner - QPoint(2, 2));
    QRect geometry;
    QVERIFY(openMenu(&f.split, [&] { geometry = f.split.entry->menu()->geometry(); }));
    QVERIFY(screen.contains(geometry));
    QCOMPARE(geometry.size(), f.split.entry->menu()->sizeHint());
}

void tst_AddressEntry::menuTakesTheRoomThatItNeeds_data()
{
    QTest::addColumn<bool>("root");
    QTest::addColumn<double>("crumb");
    QTest::addColumn<double>("actions");
    QTest::addColumn<double>("top");
    QTest::addColumn<double>("bottom");
    // In heights of the screen.
    QTest::newRow("fits below") << false << 0.25 << 0.5 << 0.25 << 0.75;
    QTest::newRow("fits on the screen") << false << 0.25 << 0.85 << 0.15 << 1.0;
    QTest::newRow("too long") << false << 0.25 << 1.5 << 0.25 << 1.0;
    QTest::newRow("too long for little room") << false << 0.6 << 1.5 << 0.0 << 1.0;
    QTest::newRow("root's, too long") << true << 0.25 << 1.5 << 0.0 << 1.0;
}

void tst_AddressEntry::menuTakesTheRoomThatItNeeds()
{
    QFETCH(bool, root);
    QFETCH(double, crumb);
    QFETCH(double, actions);
    const Folders folders({QStringLiteral("a")});
    Window window(QString(), root ? QString() : folders.path());
    const QRect screen = window.screen()->availableGeometry();
    QMenu *menu = window.entry->menu();
    const int height = menu->actionGeometry(menu->actions().constFirst()).height();
    QVERIFY(height > 0);
    menu->clear();
    for (int i = 0; i < int(screen.height() * actions / height); ++i)
        menu->addAction(QString::number(i));
    QVERIFY(window.open());
    window.move(0, screen.top() + int(screen.height() * crumb) - window.entry->geometry().bottom());
    QRect geometry;
    QVERIFY(openMenu(&window, [&] { geometry = menu->geometry(); }));
    const auto isAbout = [&screen, height](int value, double part) {
        return qAbs(value - screen.height() * part) <= height;
    };
    QFETCH(double, top);
    QVERIFY(isAbout(geometry.top() - screen.top(), top));
    QFETCH(double, bottom);
    QVERIFY(isAbout(geometry.bottom() - screen.top(), bottom));
}

void tst_AddressEntry::longMenuIsOneColumnThatScrolls()
{
    Folders folders;
    for (int i = 0; i < 300; ++i)
        folders.make(QStringLiteral("%1").arg(i, 3, 10, QChar(u'0')));
    Window window(blocks(3), folders.path());
    QVERIFY(window.open());
    const QRect screen = window.screen()->availableGeometry();
    const QSignalSpy clicks(window.entry, &AddressEntry::signalClicked);
    QMenu *menu = window.entry->menu();
    QRect geometry;
    bool oneColumn = true;
    QRect last;
    QVERIFY(openMenu(&window, [&] {
        geometry = menu->geometry();
        const QList<QAction *> actions = menu->actions();
        const int left = menu->actionGeometry(actions.constFirst()).left();
        for (QAction *action : actions)
            oneColumn = oneColumn && menu->actionGeometry(action).left() == left;
        QTest::keyClick(menu->windowHandle(), Qt::Key_End);
        last = menu->actionGeometry(actions.constLast());
        pick(menu, QStringLiteral("299"));
    }));
    QVERIFY(oneColumn);
    QVERIFY(screen.contains(geometry));
    QCOMPARE(geometry.topLeft(), window.entry->mapToGlobal(QPoint(window.textPart(), 22)));
    QVERIFY(geometry.height() > screen.height() / 2);
    QCOMPARE(geometry.bottom(), screen.bottom());
    QVERIFY(last.bottom() < screen.height());
    QCOMPARE(clicks.count(), 1);
    QCOMPARE(clicks.at(0), QVariantList{folders.path(QStringLiteral("299"))});
}

void tst_AddressEntry::longMenuKeepsALimitOfItsOwn()
{
    Folders folders;
    for (int i = 0; i < 300; ++i)
        folders.make(QString::number(i));
    Window window(blocks(3), folders.path());
    QVERIFY(window.open());
    QMenu *menu = window.entry->menu();
    menu->setMaximumHeight(150);
    int height = 0;
    QVERIFY(openMenu(&window, [&] { height = menu->height(); }));
    QCOMPARE(height, 150);
    QCOMPARE(menu->maximumHeight(), 150);
}

void tst_AddressEntry::longMenuMeasuresItsActionsNoMoreOftenThanAnother()
{
    class Style : public QProxyStyle
    {
    public:
        QSize sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &size,
                               const QWidget *widget) const override
        {
            measured += type == CT_MenuItem ? 1 : 0;
            return QProxyStyle::sizeFromContents(type, option, size, widget);
        }

        mutable int measured = 0;
    };
    constexpr int count = 300;
    Folders folders;
    for (int i = 0; i < count; ++i)
        folders.make(QString::number(i));
    Style style;
    Window window(blocks(3), folders.path());
    window.entry->menu()->setStyle(&style);
    // Twice: a change of what was done for the first time must not remain.
    for (int i = 0; i < 2; ++i) {
        window.move(0, 50 * i);
        QVERIFY(window.open());
        style.measured = 0;
        QRect geometry;
        QVERIFY(openMenu(&window, [&] { geometry = window.entry->menu()->geometry(); }));
        // For its place, when that is known, and for the size that it gets.
        QCOMPARE_LE(style.measured, 3 * count);
        QCOMPARE_GE(style.measured, count);
        QCOMPARE(geometry.top(), window.entry->mapToGlobal(QPoint(0, 22)).y());
        QCOMPARE(geometry.bottom(), window.screen()->availableGeometry().bottom());
        QCOMPARE(window.entry->menu()->maximumHeight(), QWIDGETSIZE_MAX);
    }
}

void tst_AddressEntry::menuOpensUnderTheRootWhereQtPutsIt()
{
    Window window{QString(), QString()};
    QVERIFY(window.open());
    window.move(100, 100);
    window.entry->menu()->clear();
    window.entry->menu()->addAction(QStringLiteral("one"));
    QPoint position;
    QVERIFY(openMenu(&window, [&] { position = window.entry->menu()->pos(); }));
    QCOMPARE(position, window.entry->mapToGlobal(QPoint(0, 22)));
}

void tst_AddressEntry::showOfTheMenuIsConsumed()
{
    class Watch : public QObject
    {
    public:
        bool eventFilter(QObject *, QEvent *event) override
        {
            shows += event->type() == QEvent::Show;
            return false;
        }
        int shows = 0;
    };
    Fixture f;
    Watch watch;
    // The last filter sees events first, and lets this one see what it does not take.
    for (Window *window : {&f.split, &f.root}) {
        window->entry->menu()->installEventFilter(&watch);
        window->entry->menu()->installEventFilter(window->entry);
    }
    QVERIFY(f.split.open());
    QVERIFY(openMenu(&f.split, [] { }));
    QCOMPARE(watch.shows, 0);
    QVERIFY(f.root.open());
    QVERIFY(openMenu(&f.root, [] { }));
    QCOMPARE(watch.shows, 1);
}

void tst_AddressEntry::tearOffMenuIsHidden()
{
    Fixture f;
    QVERIFY(f.split.open());
    QMenu *menu = f.split.entry->menu();
    menu->setTearOffEnabled(true);
    menu->showTearOffMenu(QPoint(300, 300));
    QVERIFY(menu->isTearOffMenuVisible());
    const QSignalSpy shown(menu, &QMenu::aboutToShow);
    // The menu itself may close again with the window that went.
    openMenu(&f.split, [] { });
    QCOMPARE(shown.count(), 1);
    QVERIFY(!menu->isTearOffMenuVisible());
}

void tst_AddressEntry::scaleIsAsAsked()
{
    Window window{QString(), QString()};
    const int scale = qMax(1, qEnvironmentVariableIntValue("QT_SCALE_FACTOR"));
    QCOMPARE(Shot(window.entry).ratio(), scale);
}

void tst_AddressEntry::idleCrumbHasNoBackground()
{
    Fixture f;
    for (Window *window : {&f.split, &f.plain, &f.root}) {
        QVERIFY(window->open());
        const Shot shot(window->entry);
        const int width = window->entry->width();
        QCOMPARE(shot.otherThan(backdrop, QRect(0, 0, 3, 22)), QString());
        QCOMPARE(shot.otherThan(backdrop, QRect(width - 3, 0, 3, 22)), QString());
        QCOMPARE(shot.otherThan(backdrop, QRect(0, 0, width, 1)), QString());
        QCOMPARE(shot.otherThan(backdrop, QRect(0, 21, width, 1)), QString());
    }
}

void tst_AddressEntry::plainBackgrounds()
{
    Fixture f;
    QVERIFY(f.plain.open());
    const int width = f.plain.entry->width();
    const auto wrong = [&](const QColor &fill) {
        const Shot shot(f.plain.entry);
        return otherBorders(shot, {0}, width - 1)
            + shot.otherThan(fill,
                             QRegion(1, 0, 2, 22) + QRegion(width - 3, 0, 2, 22)
                                 + QRegion(1, 0, width - 2, 1) + QRegion(1, 21, width - 2, 1))
            + shot.otherThan(backdrop,
                             QRegion(-1, 0, 1, 22) + QRegion(width, 0, 1, 22)
                                 + QRegion(0, -1, width, 1) + QRegion(0, 22, width, 1));
    };
    Gui::moveMouse(f.plain.entry, f.plain.onText());
    QCOMPARE(wrong(white), QString());
    Gui::press(f.plain.entry, f.plain.onText());
    QCOMPARE(wrong(pressed), QString());
    Gui::release(f.plain.entry, f.plain.onText());
    QCOMPARE(wrong(white), QString());
}

void tst_AddressEntry::splitBackgrounds()
{
    Fixture f;
    QVERIFY(f.split.open());
    const int width = f.split.entry->width();
    const int textPart = f.split.textPart();
    const auto wrong = [&](const QColor &text, const QColor &arrow) {
        const Shot shot(f.split.entry);
        return otherBorders(shot, {0, textPart}, width - 1)
            + shot.otherThan(text,
                             QRegion(1, 0, 2, 22) + QRegion(textPart - 5, 0, 5, 22)
                                 + QRegion(1, 0, textPart - 1, 1) + QRegion(1, 21, textPart - 1, 1))
            + shot.otherThan(arrow,
                             QRegion(textPart + 1, 0, 3, 22) + QRegion(width - 4, 0, 3, 22)
                                 + QRegion(textPart + 1, 0, 14, 1)
                                 + QRegion(textPart + 1, 21, 14, 1))
            + shot.otherThan(backdrop, QRegion(-1, 0, 1, 22) + QRegion(width, 0, 1, 22));
    };
    Gui::moveMouse(f.split.entry, f.split.onText());
    QCOMPARE(wrong(white, light), QString());
    Gui::moveMouse(f.split.entry, QPoint(textPart, 11));
    QCOMPARE(wrong(light, white), QString());
    Gui::moveMouse(f.split.entry, QPoint(textPart - 1, 11));
    QCOMPARE(wrong(white, light), QString());
    Gui::press(f.split.entry, f.split.onText());
    QCOMPARE(wrong(pressed, light), QString());
    Gui::release(f.split.entry, f.split.onText());

    QString whileMenuOpens;
    const QObject context;
    QObject::connect(f.split.entry->menu(), &QMenu::aboutToShow, &context,
                     [&] { whileMenuOpens = wrong(active, pressed); });
    QVERIFY(openMenu(&f.split, [] { }));
    QCOMPARE(whileMenuOpens, QString());
}

void tst_AddressEntry::rootBackgrounds()
{
    Window window{QString(), QString()};
    QVERIFY(window.open());
    const auto wrong = [&](const QColor &fill) {
        const Shot shot(window.entry);
        return otherBorders(shot, {0}, 15)
            + shot.otherThan(fill, QRegion(1, 0, 3, 22) + QRegion(12, 0, 3, 22));
    };
    Gui::moveMouse(window.entry, QPoint(8, 11));
    QCOMPARE(wrong(white), QString());
    QString whileMenuOpens;
    const QObject context;
    QObject::connect(window.entry->menu(), &QMenu::aboutToShow, &context,
                     [&] { whileMenuOpens = wrong(pressed); });
    QVERIFY(openMenu(&window, [] { }));
    QCOMPARE(whileMenuOpens, QString());
}

// A finger or a pen comes without having hovered.
void tst_AddressEntry::pressNeedsNoMouseToBeSeen()
{
    Fixture f;
    QVERIFY(f.plain.open());
    const QPointF position(f.plain.onText());
    QCOMPARE(Shot(f.plain.entry).device(0, 0), backdrop);
    QMouseEvent press(QEvent::MouseButtonPress, position, f.plain.entry->mapToGlobal(position),
                      Qt::LeftButton, Qt::LeftButton, {});
    QApplication::sendEvent(f.plain.entry, &press);
    const Shot shot(f.plain.entry);
    QCOMPARE(shot.device(0, 0), border);
    QCOMPARE(shot.otherThan(pressed, QRect(1, 0, 2, 22)), QString());
    QMouseEvent release(QEvent::MouseButtonRelease, position, f.plain.entry->mapToGlobal(position),
                        Qt::LeftButton, {}, {});
    QApplication::sendEvent(f.plain.entry, &release);
}

void tst_AddressEntry::hoverGoesWithTheMouse()
{
    Fixture f;
    QVERIFY(f.plain.open());
    Gui::moveMouse(f.plain.entry, f.plain.onText());
    QCOMPARE(Shot(f.plain.entry).device(0, 0), border);
    Gui::moveMouse(&f.plain, QPoint(2, 2));
    QCOMPARE(Shot(f.plain.entry).device(0, 0), backdrop);
}

void tst_AddressEntry::hoverGoesWithTheMenu()
{
    Fixture f;
    QVERIFY(f.split.open());
    Gui::moveMouse(f.split.entry, f.split.onArrow());
    int closed = 0;
    const QObject context;
    // After the crumb's own answer to the signal.
    QObject::connect(f.split.entry->menu(), &QMenu::aboutToHide, &context, [&] {
        ++closed;
        QCOMPARE(Shot(f.split.entry).device(0, 0), backdrop);
    });
    QVERIFY(openMenu(&f.split, [] { }));
    QCOMPARE(closed, 1);
    // Without a mouse that leaves the crumb for the menu.
    Gui::moveMouse(&f.split, QPoint(f.split.width() - 2, f.split.height() - 2));
    QVERIFY(whileOpen(
        f.split.entry->menu(),
        [&f] { QTest::mousePress(f.split.entry, Qt::LeftButton, {}, f.split.onArrow()); }, [] {}));
    QCOMPARE(closed, 2);
}

void tst_AddressEntry::nameIsBlackAndCentred()
{
    Fixture f;
    for (Window *window : {&f.split, &f.plain}) {
        QVERIFY(window->open());
        const Shot shot(window->entry);
        const int ratio = shot.ratio();
        const QRect ink = shot.bounds(Qt::black, QRect(0, 0, 4 + window->advance() + 4, 22));
        const QFontMetrics metrics = window->entry->fontMetrics();
        QVERIFY2(qAbs(ink.left() - 4 * ratio) <= ratio, qPrintable(QString::number(ink.left())));
        QVERIFY(qAbs(ink.right() + 1 - (4 + window->advance()) * ratio) <= ratio);
        const int top = (22 - metrics.height()) / 2;
        const QRect letters = metrics.boundingRect(window->entry->text());
        QVERIFY(qAbs(ink.top() - (top + metrics.ascent() + letters.top()) * ratio) <= ratio);
    }
}

void tst_AddressEntry::rootDrawsNoName()
{
    Window with(blocks(1), QString());
    Window without{QString(), QString()};
    QVERIFY(with.open());
    QVERIFY(without.open());
    QCOMPARE(with.entry->grab().toImage(), without.entry->grab().toImage());
}

void tst_AddressEntry::ampersandIsDrawn()
{
    const Folders folders;
    Window with(QStringLiteral("&a"), folders.path());
    Window without(QStringLiteral("a"), folders.path());
    QVERIFY(with.open());
    QVERIFY(without.open());
    QVERIFY(with.entry->width() > without.entry->width());
    const Shot shot(with.entry);
    const int ampersand = with.entry->fontMetrics().horizontalAdvance(u'&');
    QVERIFY(!shot.bounds(Qt::black, QRect(4, 0, ampersand, 22)).isEmpty());
}

void tst_AddressEntry::arrowPointsDownWhileItIsPressed()
{
    Fixture f;
    QVERIFY(f.split.open());
    const QRect arrow(f.split.entry->width() - 12, 7, 8, 8);
    // An arrow to the right is higher than wide, one down is wider than high.
    const auto ink = [&] { return Shot(f.split.entry).bounds(Qt::black, arrow).size(); };
    const QSize idle = ink();
    QVERIFY(idle.height() > idle.width());
    Gui::moveMouse(f.split.entry, f.split.onArrow());
    QCOMPARE(ink(), idle);
    Gui::moveMouse(f.split.entry, f.split.onText());
    Gui::press(f.split.entry, f.split.onText());
    QCOMPARE(ink(), idle);
    Gui::release(f.split.entry, f.split.onText());
    QSize opening;
    const QObject context;
    QObject::connect(f.split.entry->menu(), &QMenu::aboutToShow, &context,
                     [&] { opening = ink(); });
    QVERIFY(openMenu(&f.split, [] { }));
    QVERIFY(opening.width() > opening.height());
}

void tst_AddressEntry::arrowStandsAtTheEnd()
{
    Fixture f;
    for (Window *window : {&f.split, &f.root}) {
        QVERIFY(window->open());
        const Shot shot(window->entry);
        const int width = window->entry->width();
        const QRect part(width - arrowPart, 0, arrowPart, 22);
        const QRect ink = shot.bounds(Qt::black, part);
        const int ratio = shot.ratio();
        const QRect expected(QPoint(width - 12, 7) * ratio, QSize(8, 8) * ratio);
        QVERIFY(!ink.isEmpty());
        QVERIFY(expected.contains(ink));
    }
    QVERIFY(f.plain.open());
    QVERIFY(
        Shot(f.plain.entry).bounds(Qt::black, QRect(4 + f.plain.advance(), 0, 4, 22)).isEmpty());
}

void tst_AddressEntry::isTheMirrorImageFromTheRight()
{
    Fixture f;
    QVERIFY(f.split.open());
    const int width = f.split.entry->width();
    for (const QPoint from : {QPoint(-5, 5), f.split.onText(), f.split.onArrow()}) {
        f.split.setLayoutDirection(Qt::LeftToRight);
        Gui::moveMouse(f.split.entry, from);
        const QImage picture = Gui::picture(f.split.entry);
        f.split.setLayoutDirection(Qt::RightToLeft);
        Gui::moveMouse(f.split.entry, QPoint(width - 1 - from.x(), from.y()));
        const QImage other = Gui::picture(f.split.entry).mirrored(true, false);
        // Letters do not start at the same part of a pixel, and blending rounds.
        const int ratio = qRound(picture.devicePixelRatio());
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                if (x >= 3 * ratio && x < picture.width() - 20 * ratio)
                    continue;
                const QColor expected = picture.pixelColor(x, y);
                const QColor actual = other.pixelColor(x, y);
                QVERIFY(qAbs(expected.red() - actual.red()) <= 4);
                QVERIFY(qAbs(expected.green() - actual.green()) <= 4);
                QVERIFY(qAbs(expected.blue() - actual.blue()) <= 4);
            }
        }
        const QPoint letter = QPoint(8, 8) * ratio;
        QCOMPARE(other.pixelColor(letter), picture.pixelColor(letter));
    }
}

void tst_AddressEntry::menuOpensUnderTheArrowFromTheRight()
{
    Fixture f;
    QVERIFY(f.split.open());
    f.split.move(300, 100);
    f.split.setLayoutDirection(Qt::RightToLeft);
    QRect geometry;
    QVERIFY(whileOpen(
        f.split.entry->menu(), [&] { Gui::press(f.split.entry, QPoint(5, 11)); },
        [&] { geometry = f.split.entry->menu()->geometry(); }));
    QCOMPARE(geometry.topRight() + QPoint(1, 0),
             f.split.entry->mapToGlobal(QPoint(f.split.entry->width() - f.split.textPart(), 22)));
    // The name is on the other side now.
    Gui::press(f.split.entry, QPoint(f.split.entry->width() - 5, 11));
    QVERIFY(!f.split.entry->menu()->isVisible());
    Gui::release(f.split.entry, QPoint(f.split.entry->width() - 5, 11));
}

NORVANE_TEST_MAIN(tst_AddressEntry)
#include "tst_AddressEntry.moc"
