// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "Scene.h"
#include "TestCase.h"

#include <QtGui/QEnterEvent>
#include <QtTest/QSignalSpy>
#include <QtWidgets/QProxyStyle>

using Norvane::RibbonButton;

namespace {

constexpr auto large = Qt::ToolButtonTextUnderIcon;
constexpr auto small = Qt::ToolButtonTextBesideIcon;
constexpr auto iconOnly = Qt::ToolButtonIconOnly;

constexpr QColor unpainted = Scene::backdrop;
constexpr QColor white(255, 255, 255);

//! A menu with two entries that counts the events it gets to see.
class Menu : public QMenu
{
public:
    Menu()
    {
        addAction(QStringLiteral("First"));
        addAction(QStringLiteral("Second"));
    }

    int shows = 0;
    int hides = 0;

protected:
    bool event(QEvent *event) override
    {
        shows += event->type() == QEvent::Show;
        hides += event->type() == QEvent::Hide;
        return QMenu::event(event);
    }
};

class PaintCounter : public QObject
{
public:
    explicit PaintCounter(QObject *watched) { watched->installEventFilter(this); }

    bool eventFilter(QObject *, QEvent *event) override
    {
        count += event->type() == QEvent::Paint;
        return false;
    }

    int count = 0;
};

//! Opens a delayed menu at once: there is no delay to wait for.
class HastyStyle : public QProxyStyle
{
public:
    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *data) const override
    {
        return hint == SH_ToolButton_PopupDelay
            ? 0
            : QProxyStyle::styleHint(hint, option, widget, data);
    }
};

//! A press that comes out of nothing, without the mouse having moved there.
void sendPress(RibbonButton *button, QPoint position, Qt::MouseButton mouseButton)
{
    QMouseEvent press(QEvent::MouseButtonPress, position, button->mapToGlobal(position),
                      mouseButton, mouseButton, {});
    QCoreApplication::sendEvent(button, &press);
}

void sendEnter(RibbonButton *button, QPoint position)
{
    QEnterEvent enter(position, button->mapTo(button->window(), position),
                      button->mapToGlobal(position));
    QCoreApplication::sendEvent(button, &enter);
}

} // namespace

class tst_RibbonButtonMouse : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void leftClickTriggers_data();
    void leftClickTriggers();
    void checkableActionToggles();
    void doubleClickTriggersTwice();
    void otherButtonsDoNothing_data();
    void otherButtonsDoNothing();
    void leftPressHoversWithoutEnter();
    void releaseOutside();
    void releaseAfterComingBack();
    void disabledButton_data();
    void disabledButton();
    void actionDeletesButton();

    void enterReachesTheAction();
    void hoverComesAndGoesOnScreen();
    void arrowHoverRepaintsOnlyWhenItChanges();

    void splitMainPartTriggers_data();
    void splitMainPartTriggers();
    void splitMenuPartOpens_data();
    void splitMenuPartOpens();
    void splitIconOnlyHasNoMenuPart();
    void splitButtonWithoutMenuTriggers();
    void instantMenuOpensFromEverywhere_data();
    void instantMenuOpensFromEverywhere();
    void delayedMenuIsNeverOpened_data();
    void delayedMenuIsNeverOpened();
    void entryIsPicked();
    void menuOpensAgain();
    void menuOpensOnePixelHigher_data();
    void menuOpensOnePixelHigher();
    void everyShowOfTheMenuIsMovedAndConsumed();
    void menuSetLaterStaysWhereQtPutsIt();
    void exchangedMenuIsLeftAlone();
    void hoverGoesWithTheMenu();
    void entryDeletesButton();
    void menuDeletedWhileOpen();
};

void tst_RibbonButtonMouse::leftClickTriggers_data()
{
    QTest::addColumn<Qt::ToolButtonStyle>("style");
    QTest::addColumn<QToolButton::ToolButtonPopupMode>("mode");

    for (const auto style : {large, small, iconOnly}) {
        QTest::addRow("style %d, delayed", int(style)) << style << QToolButton::DelayedPopup;
        QTest::addRow("style %d, split", int(style)) << style << QToolButton::MenuButtonPopup;
        QTest::addRow("style %d, instant", int(style)) << style << QToolButton::InstantPopup;
    }
}

void tst_RibbonButtonMouse::leftClickTriggers()
{
    QFETCH(const Qt::ToolButtonStyle, style);
    QFETCH(const QToolButton::ToolButtonPopupMode, mode);
    QAction action;
    Scene scene;
    RibbonButton *button = scene.addButton(style, &action, mode);
    QVERIFY(scene.open());
    QSignalSpy triggered(&action, &QAction::triggered);
    QSignalSpy pressed(button, &QToolButton::pressed);
    QSignalSpy released(button, &QToolButton::released);
    QSignalSpy clicked(button, &QToolButton::clicked);
    int clicks = 0;
    for (const QPoint position :
         {QPoint(3, 3), button->rect().center(), button->rect().bottomRight() - QPoint(2, 2)}) {
        scene.press(button, position);
        QVERIFY(button->isDown());
        QCOMPARE(triggered.count(), clicks);
        scene.release(button, position);
        ++clicks;
        QVERIFY(!button->isDown());
        QCOMPARE(triggered.count(), clicks);
        QCOMPARE(clicked.count(), clicks);
        QCOMPARE(released.count(), clicks);
    }
    // The press is the button's own, not the tool button's.
    QCOMPARE(pressed.count(), 0);
}

void tst_RibbonButtonMouse::checkableActionToggles()
{
    QAction action;
    action.setCheckable(true);
    Scene scene;
    RibbonButton *button = scene.addButton(large, &action, QToolButton::DelayedPopup);
    QVERIFY(scene.open());
    QSignalSpy toggled(&action, &QAction::toggled);
    scene.click(button, QPoint(10, 10));
    QVERIFY(action.isChecked());
    QVERIFY(button->isChecked());
    scene.click(button, QPoint(10, 10));
    QVERIFY(!action.isChecked());
    QVERIFY(!button->isChecked());
    QCOMPARE(toggled.count(), 2);
}

void tst_RibbonButtonMouse::doubleClickTriggersTwice()
{
    QAction action;
    Scene scene;
    RibbonButton *button = scene.addButton(large, &action, QToolButton::DelayedPopup);
    QVERIFY(scene.open());
    QSignalSpy triggered(&action, &QAction::triggered);
    QTest::mouseDClick(scene.windowHandle(), Qt::LeftButton, {},
                       button->mapTo(&scene, QPoint(10, 10)));
    QCOMPARE(triggered.count(), 2);
}

void tst_RibbonButtonMouse::otherButtonsDoNothing_data()
{
    QTest::addColumn<Qt::MouseButton>("mouseButton");
    QTest::addColumn<QToolButton::ToolButtonPopupMode>("mode");
    QTest::addColumn<bool>("withMenu");

    const QMap<Qt::MouseButton, const char *> buttons{
        {Qt::RightButton, "right"}, {Qt::MiddleButton, "middle"}, {Qt::BackButton, "back"}};
    for (auto it = buttons.begin(); it != buttons.end(); ++it) {
        QTest::addRow("%s", it.value()) << it.key() << QToolButton::DelayedPopup << false;
        QTest::addRow("%s, split", it.value()) << it.key() << QToolButton::MenuButtonPopup << true;
        QTest::addRow("%s, instant", it.value()) << it.key() << QToolButton::InstantPopup << true;
    }
}

void tst_RibbonButtonMouse::otherButtonsDoNothing()
{
    QFETCH(const Qt::MouseButton, mouseButton);
    QFETCH(const QToolButton::ToolButtonPopupMode, mode);
    QFETCH(const bool, withMenu);
    Menu menu;
    QAction action;
    if (withMenu)
        action.setMenu(&menu);
    Scene scene;
    RibbonButton *button = scene.addButton(large, &action, mode);
    QVERIFY(scene.open());
    QSignalSpy triggered(&action, &QAction::triggered);
    QSignalSpy shown(&menu, &QMenu::aboutToShow);
    const QPoint position(10, 50);

    sendPress(button, position, mouseButton);
    QVERIFY(!button->isDown());
    QCOMPARE(Shot(button).otherThan(unpainted, QRegion(button->rect()) - arrowOf(button)),
             QString());

    scene.moveMouseTo(button, position);
    scene.press(button, position, mouseButton);
    QVERIFY(!button->isDown());
    QCOMPARE(Shot(button).at(10, 40), white);
    scene.release(button, position, mouseButton);
    QCOMPARE(triggered.count(), 0);
    QCOMPARE(shown.count(), 0);
}

void tst_RibbonButtonMouse::leftPressHoversWithoutEnter()
{
    QAction action;
    Scene scene;
    RibbonButton *button = scene.addButton(large, &action, QToolButton::DelayedPopup);
    QVERIFY(scene.open());
    sendPress(button, QPoint(10, 10), Qt::LeftButton);
    QVERIFY(button->isDown());
    QCOMPARE(Shot(button).at(10, 10), QColor(245, 245, 245));
}

// Nothing takes the look of a pressed button from it but the release, wherever that is.
void tst_RibbonButtonMouse::releaseOutside()
{
    QAction action;
    Scene scene;
    RibbonButton *button = scene.addButton(large, &action, QToolButton::DelayedPopup);
    QVERIFY(scene.open());
    QSignalSpy triggered(&action, &QAction::triggered);
    scene.moveMouseTo(button, QPoint(10, 10));
    scene.press(button, QPoint(10, 10));
    scene.moveMouseTo(button, QPoint(60, 10));
    QVERIFY(button->isDown());
    scene.release(button, QPoint(60, 10));
    QVERIFY(!button->isDown());
    QCOMPARE(triggered.count(), 0);
}

void tst_RibbonButtonMouse::releaseAfterComingBack()
{
    QAction action;
    Scene scene;
    RibbonButton *button = scene.addButton(large, &action, QToolButton::DelayedPopup);
    QVERIFY(scene.open());
    QSignalSpy triggered(&action, &QAction::triggered);
    scene.press(button, QPoint(10, 10));
    scene.moveMouseTo(button, QPoint(60, 10));
    scene.moveMouseTo(button, QPoint(10, 60));
    scene.release(button, QPoint(10, 60));
    QCOMPARE(triggered.count(), 1);

    scene.press(&scene, QPoint(2, 2));
    scene.moveMouseTo(button, QPoint(10, 10));
    scene.release(button, QPoint(10, 10));
    QCOMPARE(triggered.count(), 1);
}

void tst_RibbonButtonMouse::disabledButton_data()
{
    QTest::addColumn<QToolButton::ToolButtonPopupMode>("mode");

    QTest::newRow("delayed") << QToolButton::DelayedPopup;
    QTest::newRow("split") << QToolButton::MenuButtonPopup;
    QTest::newRow("instant") << QToolButton::InstantPopup;
}

void tst_RibbonButtonMouse::disabledButton()
{
    QFETCH(const QToolButton::ToolButtonPopupMode, mode);
    Menu menu;
    QAction action;
    action.setMenu(&menu);
    action.setEnabled(false);
    Scene scene;
    RibbonButton *button = scene.addButton(large, &action, mode);
    QVERIFY(scene.open());
    QSignalSpy triggered(&action, &QAction::triggered);
    QSignalSpy shown(&menu, &QMenu::aboutToShow);
    scene.click(button, QPoint(10, 10));
    scene.click(button, QPoint(10, 50));
    QCOMPARE(triggered.count(), 0);
    QCOMPARE(shown.count(), 0);
}

void tst_RibbonButtonMouse::actionDeletesButton()
{
    QAction action;
    Scene scene;
    QPointer<RibbonButton> button = scene.addButton(large, &action, QToolButton::DelayedPopup);
    QVERIFY(scene.open());
    connect(&action, &QAction::triggered, &action, [&button] { delete button; });
    scene.click(button, QPoint(10, 10));
    QVERIFY(!button);
}

void tst_RibbonButtonMouse::enterReachesTheAction()
{
    QAction action;
    Scene scene;
    RibbonButton *button = scene.addButton(large, &action, QToolButton::DelayedPopup);
    QVERIFY(scene.open());
    QSignalSpy hovered(&action, &QAction::hovered);
    scene.moveMouseTo(button, QPoint(10, 10));
    scene.moveMouseTo(button, QPoint(12, 12));
    QCOMPARE(hovered.count(), 1);
}

void tst_RibbonButtonMouse::hoverComesAndGoesOnScreen()
{
    QAction action;
    Scene scene;
    RibbonButton *button = scene.addButton(large, &action, QToolButton::DelayedPopup);
    QVERIFY(scene.open());
    const PaintCounter paints(button);
    const auto colourOnScreen = [&] {
        const QImage image = scene.screen()->grabWindow(scene.winId()).toImage();
        const int ratio = image.width() / scene.width();
        return image.pixelColor((button->pos() + QPoint(10, 10)) * ratio);
    };
    QTRY_COMPARE(colourOnScreen(), unpainted);
    scene.moveMouseTo(button, QPoint(10, 10));
    QTRY_COMPARE(colourOnScreen(), white);
    scene.moveMouseTo(&scene, QPoint(1, 1));
    QTRY_COMPARE(colourOnScreen(), unpainted);
    QVERIFY(paints.count > 0);
}

void tst_RibbonButtonMouse::arrowHoverRepaintsOnlyWhenItChanges()
{
    Menu menu;
    QAction action;
    action.setMenu(&menu);
    Scene scene;
    RibbonButton *button = scene.addButton(large, &action, QToolButton::MenuButtonPopup);
    QVERIFY(scene.open());
    scene.moveMouseTo(button, QPoint(10, 10));
    QCoreApplication::processEvents();
    const PaintCounter paints(button);
    scene.moveMouseTo(button, QPoint(20, 34));
    QCoreApplication::processEvents();
    QCOMPARE(paints.count, 0);
    scene.moveMouseTo(button, QPoint(20, 35));
    QTRY_COMPARE(paints.count, 1);
    scene.moveMouseTo(button, QPoint(10, 60));
    QCoreApplication::processEvents();
    QCOMPARE(paints.count, 1);
    scene.moveMouseTo(button, QPoint(10, 10));
    QTRY_COMPARE(paints.count, 2);
}

void tst_RibbonButtonMouse::splitMainPartTriggers_data()
{
    QTest::addColumn<Qt::ToolButtonStyle>("style");
    QTest::addColumn<QPoint>("position");

    QTest::newRow("large, top") << large << QPoint(18, 1);
    QTest::newRow("large, last row") << large << QPoint(18, 34);
    QTest::newRow("large, right edge") << large << QPoint(34, 10);
    QTest::newRow("small, left") << small << QPoint(1, 10);
    QTest::newRow("small, last column") << small << QPoint(25, 10);
}

void tst_RibbonButtonMouse::splitMainPartTriggers()
{
    QFETCH(const Qt::ToolButtonStyle, style);
    QFETCH(const QPoint, position);
    Menu menu;
    QAction action;
    action.setMenu(&menu);
    Scene scene;
    RibbonButton *button = scene.addButton(style, &action, QToolButton::MenuButtonPopup);
    QVERIFY(scene.open());
    QSignalSpy triggered(&action, &QAction::triggered);
    QSignalSpy shown(&menu, &QMenu::aboutToShow);
    scene.moveMouseTo(button, position);
    scene.press(button, position);
    QVERIFY(button->isDown());
    QCOMPARE(triggered.count(), 0);
    scene.release(button, position);
    QCOMPARE(triggered.count(), 1);
    QVERIFY(!button->isDown());
    QCOMPARE(shown.count(), 0);
}

void tst_RibbonButtonMouse::splitMenuPartOpens_data()
{
    QTest::addColumn<Qt::ToolButtonStyle>("style");
    QTest::addColumn<QPoint>("position");
    QTest::addColumn<bool>("movedThere");

    const auto rows = [](const char *name, Qt::ToolButtonStyle style, QPoint position) {
        QTest::addRow("%s", name) << style << position << true;
        QTest::addRow("%s, out of nothing", name) << style << position << false;
    };
    rows("large, first row", large, QPoint(18, 35));
    rows("large, bottom", large, QPoint(1, 70));
    rows("small, first column", small, QPoint(26, 10));
    rows("small, right", small, QPoint(45, 20));
}

void tst_RibbonButtonMouse::splitMenuPartOpens()
{
    QFETCH(const Qt::ToolButtonStyle, style);
    QFETCH(const QPoint, position);
    QFETCH(const bool, movedThere);
    Menu menu;
    QAction action;
    action.setMenu(&menu);
    Scene scene;
    RibbonButton *button = scene.addButton(style, &action, QToolButton::MenuButtonPopup);
    QVERIFY(scene.open());
    QSignalSpy triggered(&action, &QAction::triggered);
    scene.moveMouseTo(button, QPoint(5, 5));
    if (movedThere)
        scene.moveMouseTo(button, position);
    QVERIFY(whileOpen(
        &menu, [&] { scene.press(button, position); }, [&] { QVERIFY(button->isDown()); }));
    QVERIFY(!button->isDown());
    scene.release(button, position);
    QCOMPARE(triggered.count(), 0);
}

void tst_RibbonButtonMouse::splitIconOnlyHasNoMenuPart()
{
    Menu menu;
    QAction action;
    action.setMenu(&menu);
    Scene scene;
    RibbonButton *button = scene.addButton(iconOnly, &action, QToolButton::MenuButtonPopup);
    QVERIFY(scene.open());
    QSignalSpy triggered(&action, &QAction::triggered);
    QSignalSpy shown(&menu, &QMenu::aboutToShow);
    for (const QPoint position : {QPoint(1, 1), QPoint(20, 10), QPoint(10, 20)})
        scene.click(button, position);
    QCOMPARE(triggered.count(), 3);
    QCOMPARE(shown.count(), 0);
}

void tst_RibbonButtonMouse::splitButtonWithoutMenuTriggers()
{
    QAction action;
    Scene scene;
    RibbonButton *button = scene.addButton(large, &action, QToolButton::MenuButtonPopup);
    QVERIFY(scene.open());
    QSignalSpy triggered(&action, &QAction::triggered);
    scene.click(button, QPoint(10, 60));
    QCOMPARE(triggered.count(), 1);
}

void tst_RibbonButtonMouse::instantMenuOpensFromEverywhere_data()
{
    QTest::addColumn<Qt::ToolButtonStyle>("style");
    QTest::addColumn<QPoint>("position");

    QTest::newRow("large, top") << large << QPoint(10, 2);
    QTest::newRow("large, bottom") << large << QPoint(10, 70);
    QTest::newRow("small, left") << small << QPoint(2, 10);
    QTest::newRow("small, right") << small << QPoint(44, 10);
    QTest::newRow("icon-only") << iconOnly << QPoint(10, 10);
}

void tst_RibbonButtonMouse::instantMenuOpensFromEverywhere()
{
    QFETCH(const Qt::ToolButtonStyle, style);
    QFETCH(const QPoint, position);
    Menu menu;
    QAction action;
    action.setMenu(&menu);
    Scene scene;
    RibbonButton *button = scene.addButton(style, &action, QToolButton::InstantPopup);
    QVERIFY(scene.open());
    QSignalSpy triggered(&action, &QAction::triggered);
    QVERIFY(whileOpen(
        &menu, [&] { scene.press(button, position); }, [&] { QVERIFY(button->isDown()); }));
    QVERIFY(!button->isDown());
    scene.release(button, position);
    QCOMPARE(triggered.count(), 0);
}

void tst_RibbonButtonMouse::delayedMenuIsNeverOpened_data()
{
    QTest::addColumn<Qt::ToolButtonStyle>("style");
    QTest::addColumn<QPoint>("position");

    QTest::newRow("large, top") << large << QPoint(10, 2);
    QTest::newRow("large, bottom") << large << QPoint(10, 60);
    QTest::newRow("small, left") << small << QPoint(2, 10);
    QTest::newRow("small, right") << small << QPoint(31, 10);
    QTest::newRow("icon-only") << iconOnly << QPoint(10, 10);
}

void tst_RibbonButtonMouse::delayedMenuIsNeverOpened()
{
    QFETCH(const Qt::ToolButtonStyle, style);
    QFETCH(const QPoint, position);
    Menu menu;
    QAction action;
    action.setMenu(&menu);
    Scene scene;
    RibbonButton *button = scene.addButton(style, &action, QToolButton::DelayedPopup);
    HastyStyle hasty;
    button->setStyle(&hasty);
    QVERIFY(scene.open());
    QSignalSpy triggered(&action, &QAction::triggered);
    scene.moveMouseTo(button, position);
    QVERIFY(!whileOpen(&menu, [&] { scene.press(button, position); }, [] {}));
    QVERIFY(button->isDown());
    scene.release(button, position);
    QCOMPARE(triggered.count(), 1);
    button->setStyle(nullptr);
}

void tst_RibbonButtonMouse::entryIsPicked()
{
    Menu menu;
    QAction action;
    action.setMenu(&menu);
    Scene scene;
    RibbonButton *button = scene.addButton(large, &action, QToolButton::MenuButtonPopup);
    QVERIFY(scene.open());
    QSignalSpy triggered(&action, &QAction::triggered);
    QSignalSpy first(menu.actions().constFirst(), &QAction::triggered);
    QSignalSpy second(menu.actions().constLast(), &QAction::triggered);
    QVERIFY(whileOpen(
        &menu, [&] { scene.press(button, QPoint(10, 50)); },
        [&] {
            const QPoint entry = menu.actionGeometry(menu.actions().constLast()).center();
            QTest::mouseMove(menu.windowHandle(), entry);
            QTest::mouseClick(menu.windowHandle(), Qt::LeftButton, {}, entry);
            QVERIFY(!menu.isVisible());
        }));
    scene.release(button, QPoint(10, 50));
    QCOMPARE(triggered.count(), 0);
    QCOMPARE(first.count(), 0);
    QCOMPARE(second.count(), 1);
}

void tst_RibbonButtonMouse::menuOpensAgain()
{
    Menu menu;
    QAction action;
    action.setMenu(&menu);
    Scene scene;
    RibbonButton *button = scene.addButton(large, &action, QToolButton::MenuButtonPopup);
    QVERIFY(scene.open());
    for (int i = 0; i < 3; ++i) {
        QVERIFY(whileOpen(&menu, [&] { scene.press(button, QPoint(10, 50)); }, [] {}));
        scene.release(button, QPoint(10, 50));
        QVERIFY(!button->isDown());
    }
    QCOMPARE(menu.hides, 3);
}

void tst_RibbonButtonMouse::menuOpensOnePixelHigher_data()
{
    leftClickTriggers_data();
}

void tst_RibbonButtonMouse::menuOpensOnePixelHigher()
{
    QFETCH(const Qt::ToolButtonStyle, style);
    QFETCH(const QToolButton::ToolButtonPopupMode, mode);
    Menu menu;
    QAction action;
    action.setMenu(&menu);
    Scene scene;
    scene.move(60, 40);
    RibbonButton *button = scene.addButton(style, &action, mode);
    QVERIFY(scene.open());
    QPoint place;
    QVERIFY(whileOpen(&menu, [&] { button->showMenu(); }, [&] { place = menu.pos(); }));

    QMenu qtsMenu;
    qtsMenu.addActions(menu.actions());
    QToolButton qtsButton(&scene);
    qtsButton.setMenu(&qtsMenu);
    qtsButton.setGeometry(button->geometry());
    qtsButton.show();
    QPoint qtsPlace;
    QVERIFY(whileOpen(&qtsMenu, [&] { qtsButton.showMenu(); }, [&] { qtsPlace = qtsMenu.pos(); }));
    QCOMPARE(place, qtsPlace - QPoint(0, 1));
}

// Also when it is not the button that opens it.
void tst_RibbonButtonMouse::everyShowOfTheMenuIsMovedAndConsumed()
{
    Menu menu;
    QAction action;
    action.setMenu(&menu);
    Scene scene;
    RibbonButton *button = scene.addButton(large, &action, QToolButton::MenuButtonPopup);
    QVERIFY(scene.open());
    QVERIFY(whileOpen(&menu, [&] { scene.press(button, QPoint(10, 50)); }, [] {}));
    scene.release(button, QPoint(10, 50));
    QCOMPARE(menu.shows, 0);
    QCOMPARE(menu.hides, 1);

    const QPoint place = scene.mapToGlobal(QPoint(30, 20));
    QVERIFY(whileOpen(
        &menu, [&] { menu.exec(place); }, [&] { QCOMPARE(menu.pos(), place - QPoint(0, 1)); }));
    QCOMPARE(menu.shows, 0);
    QCOMPARE(menu.hides, 2);
}

void tst_RibbonButtonMouse::menuSetLaterStaysWhereQtPutsIt()
{
    Menu menu;
    QAction action;
    Scene scene;
    RibbonButton *button = scene.addButton(large, &action, QToolButton::InstantPopup);
    action.setMenu(&menu);
    QVERIFY(scene.open());
    QVERIFY(whileOpen(
        &menu, [&] { scene.press(button, QPoint(10, 50)); },
        [&] { QCOMPARE(menu.pos(), button->mapToGlobal(QPoint(0, 72))); }));
    scene.release(button, QPoint(10, 50));
    QCOMPARE(menu.shows, 1);
}

void tst_RibbonButtonMouse::exchangedMenuIsLeftAlone()
{
    Menu former;
    Menu menu;
    QAction action;
    action.setMenu(&former);
    Scene scene;
    scene.addButton(large, &action, QToolButton::MenuButtonPopup);
    action.setMenu(&menu);
    QVERIFY(scene.open());
    const QPoint place = scene.mapToGlobal(QPoint(30, 20));
    QVERIFY(
        whileOpen(&former, [&] { former.exec(place); }, [&] { QCOMPARE(former.pos(), place); }));
    QCOMPARE(former.shows, 1);
    QVERIFY(whileOpen(&menu, [&] { menu.exec(place); }, [&] { QCOMPARE(menu.pos(), place); }));
    QCOMPARE(menu.shows, 1);
}

void tst_RibbonButtonMouse::hoverGoesWithTheMenu()
{
    Menu menu;
    QAction action;
    action.setMenu(&menu);
    Scene scene;
    RibbonButton *button = scene.addButton(large, &action, QToolButton::MenuButtonPopup);
    QVERIFY(scene.open());
    bool aboutToHide = false;
    // Connected after the button's own connection: it sees what that has done.
    connect(&menu, &QMenu::aboutToHide, button, [&] {
        aboutToHide = true;
        QCOMPARE(Shot(button).at(10, 10), unpainted);
    });
    QVERIFY(whileOpen(
        &menu, [&] { menu.exec(scene.mapToGlobal(QPoint(200, 20))); },
        [&] {
            sendEnter(button, QPoint(10, 10));
            QCOMPARE(Shot(button).at(10, 10), white);
        }));
    QVERIFY(aboutToHide);
}

void tst_RibbonButtonMouse::entryDeletesButton()
{
    for (const auto mode : {QToolButton::MenuButtonPopup, QToolButton::InstantPopup}) {
        Menu menu;
        QAction action;
        action.setMenu(&menu);
        Scene scene;
        QPointer<RibbonButton> button = scene.addButton(large, &action, mode);
        QVERIFY(scene.open());
        QAction *entry = menu.actions().constFirst();
        connect(entry, &QAction::triggered, &menu, [&button] { delete button; });
        QVERIFY(whileOpen(
            &menu, [&] { scene.press(button, QPoint(10, 50)); },
            [&] {
                QTest::mouseClick(menu.windowHandle(), Qt::LeftButton, {},
                                  menu.actionGeometry(entry).center());
            }));
        scene.release(&scene, QPoint(2, 2));
        QVERIFY(!button);
    }
}

void tst_RibbonButtonMouse::menuDeletedWhileOpen()
{
    auto *menu = new Menu;
    QAction action;
    action.setMenu(menu);
    Scene scene;
    RibbonButton *button = scene.addButton(large, &action, QToolButton::InstantPopup);
    QVERIFY(scene.open());
    QVERIFY(whileOpen(
        menu, [&] { scene.press(button, QPoint(10, 50)); },
        [&] {
            menu->deleteLater();
            menu->close();
        }));
    scene.release(button, QPoint(10, 50));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!action.menu());
    QSignalSpy triggered(&action, &QAction::triggered);
    scene.click(button, QPoint(10, 50));
    QCOMPARE(triggered.count(), 1);
}

NORVANE_TEST_MAIN(tst_RibbonButtonMouse)
#include "tst_RibbonButtonMouse.moc"
