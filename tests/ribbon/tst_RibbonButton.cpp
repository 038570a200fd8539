// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "Scene.h"
#include "TestCase.h"

#include <QtTest/QSignalSpy>

using Norvane::RibbonButton;

namespace {

constexpr auto large = Qt::ToolButtonTextUnderIcon;
constexpr auto small = Qt::ToolButtonTextBesideIcon;
constexpr auto iconOnly = Qt::ToolButtonIconOnly;

int singleLineWidth(const QFont &font, const QString &text)
{
    return QFontMetrics(font).size(Qt::TextSingleLine, text).width();
}

//! A text of exactly \a width pixels in the application's font.
QString textOfWidth(int width)
{
    QStringList texts{QString()};
    const QString letters = QStringLiteral("ilmx");
    for (qsizetype i = 0; i < texts.size(); ++i) {
        if (singleLineWidth(QApplication::font(), texts.at(i)) == width)
            return texts.at(i);
        if (texts.at(i).size() < 6) {
            for (const QChar letter : letters)
                texts << texts.at(i) + letter;
        }
    }
    return {};
}

} // namespace

class tst_RibbonButton : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void metaObject();
    void newButton();
    void withoutAction();

    void bindActionMakesItTheDefaultAction();
    void bindActionWithMenuLeavesQtsPopupMode();
    void hiddenActionHidesButton();
    void hiddenWhenBound();
    void onlyVisibilityChangesReachVisibility();
    void textIconAndStateFollowTheAction();
    void actionDeletedWhileShown();
    void buttonDeletedBeforeActionAndMenu();
    void menuDeletedBeforeButton();

    void iconOnlySize_data();
    void iconOnlySize();
    void smallSize_data();
    void smallSize();
    void largeSize_data();
    void largeSize();
    void largeSizeOfNarrowTexts();
    void largeSizeInOwnFont();
    void smallSizeInOwnFont();
    void sizeIsTakenAtTheFirstResize();
    void sizeIsTakenAgainAtEachResizeOnly();
    void oddTexts_data();
    void oddTexts();
};

void tst_RibbonButton::metaObject()
{
    const QMetaObject &meta = RibbonButton::staticMetaObject;
    QCOMPARE(meta.className(), "Norvane::RibbonButton");
    QCOMPARE(meta.superClass(), &QToolButton::staticMetaObject);
    QCOMPARE(meta.methodOffset(), meta.methodCount());
    QCOMPARE(meta.propertyOffset(), meta.propertyCount());
    QCOMPARE(meta.enumeratorOffset(), meta.enumeratorCount());
}

void tst_RibbonButton::newButton()
{
    QWidget parent;
    RibbonButton button(&parent);
    QCOMPARE(button.parentWidget(), &parent);
    QVERIFY(button.hasMouseTracking());
    QVERIFY(!button.defaultAction());
    QCOMPARE(button.popupMode(), QToolButton::DelayedPopup);
    QVERIFY(!button.isDown());
}

void tst_RibbonButton::withoutAction()
{
    for (const auto style : {large, small, iconOnly}) {
        Scene scene;
        RibbonButton button(&scene);
        button.setToolButtonStyle(style);
        QVERIFY(scene.open());
        QSignalSpy clicked(&button, &QToolButton::clicked);
        scene.moveMouseTo(&button, QPoint(5, 5));
        scene.grab();
        scene.click(&button, QPoint(5, 5));
        QCOMPARE(clicked.count(), 1);
    }
}

void tst_RibbonButton::bindActionMakesItTheDefaultAction()
{
    QAction action(QStringLiteral("Open"));
    RibbonButton button;
    button.bindAction(&action);
    QCOMPARE(button.defaultAction(), &action);
    QCOMPARE(button.actions(), {&action});
    QCOMPARE(button.popupMode(), QToolButton::DelayedPopup);
}

void tst_RibbonButton::bindActionWithMenuLeavesQtsPopupMode()
{
    QMenu menu;
    RibbonButton button;
    button.bindAction(menu.menuAction());
    QCOMPARE(button.popupMode(), QToolButton::MenuButtonPopup);
}

void tst_RibbonButton::hiddenActionHidesButton()
{
    QAction action(QStringLiteral("Open"));
    Scene scene;
    const RibbonButton *button = scene.addButton(large, &action, QToolButton::DelayedPopup);
    QVERIFY(scene.open());
    QVERIFY(button->isVisible());
    action.setVisible(false);
    QVERIFY(button->isHidden());
    action.setVisible(true);
    QVERIFY(button->isVisible());
}

void tst_RibbonButton::hiddenWhenBound()
{
    QAction action(QStringLiteral("Open"));
    action.setVisible(false);
    Scene scene;
    const RibbonButton *button = scene.addButton(large, &action, QToolButton::DelayedPopup);
    QVERIFY(scene.open());
    QVERIFY(!button->isVisible());
    action.setVisible(true);
    QVERIFY(button->isVisible());
    QCOMPARE(button->height(), 72);
}

void tst_RibbonButton::onlyVisibilityChangesReachVisibility()
{
    QAction action(QStringLiteral("Open"));
    Scene scene;
    RibbonButton *button = scene.addButton(large, &action, QToolButton::DelayedPopup);
    QVERIFY(scene.open());
    button->hide();
    action.setText(QStringLiteral("Open again"));
    action.setEnabled(false);
    action.setVisible(true);
    QVERIFY(button->isHidden());
}

void tst_RibbonButton::textIconAndStateFollowTheAction()
{
    QAction action(QStringLiteral("Open"));
    RibbonButton button;
    button.bindAction(&action);
    QVERIFY(!button.isCheckable());
    action.setCheckable(true);
    action.setChecked(true);
    action.setToolTip(QStringLiteral("Opens a file"));
    action.setEnabled(false);
    QVERIFY(button.isCheckable());
    QVERIFY(button.isChecked());
    QCOMPARE(button.toolTip(), QStringLiteral("Opens a file"));
    QVERIFY(!button.isEnabled());
}

void tst_RibbonButton::actionDeletedWhileShown()
{
    for (const auto style : {large, small, iconOnly}) {
        auto *menu = new QMenu;
        auto *action = new QAction(QStringLiteral("Open"));
        action->setMenu(menu);
        Scene scene;
        RibbonButton *button = scene.addButton(style, action, QToolButton::MenuButtonPopup);
        QVERIFY(scene.open());
        scene.moveMouseTo(button, QPoint(5, 5));
        delete action;
        QVERIFY(button->isVisible());
        QVERIFY(!button->defaultAction());
        scene.grab();
        scene.click(button, QPoint(5, button->height() - 5));
        scene.click(button, QPoint(button->width() - 5, button->height() - 5));
        button->setFixedSize(5, 5);
        scene.grab();
        delete menu;
    }
}

void tst_RibbonButton::buttonDeletedBeforeActionAndMenu()
{
    QMenu menu;
    menu.addAction(QStringLiteral("Recent"));
    QAction action(QStringLiteral("Open"));
    action.setMenu(&menu);
    Scene scene;
    const RibbonButton *button = scene.addButton(large, &action, QToolButton::MenuButtonPopup);
    QVERIFY(scene.open());
    delete button;
    action.setVisible(false);
    action.setVisible(true);
    QVERIFY(whileOpen(&menu, [&] { menu.exec(scene.mapToGlobal(QPoint(5, 5))); }, [] {}));
}

void tst_RibbonButton::menuDeletedBeforeButton()
{
    for (const auto mode :
         {QToolButton::DelayedPopup, QToolButton::MenuButtonPopup, QToolButton::InstantPopup}) {
        for (const bool isMenusOwnAction : {false, true}) {
            QAction action(QStringLiteral("Open"));
            auto *menu = new QMenu;
            if (!isMenusOwnAction)
                action.setMenu(menu);
            Scene scene;
            RibbonButton *button =
                scene.addButton(large, isMenusOwnAction ? menu->menuAction() : &action, mode);
            QVERIFY(scene.open());
            scene.moveMouseTo(button, QPoint(10, 60));
            delete menu;
            scene.grab();
            QSignalSpy clicked(button, &QToolButton::clicked);
            scene.click(button, QPoint(10, 60));
            QCOMPARE(clicked.count(), 1);
            scene.grab();
        }
    }
}

void tst_RibbonButton::iconOnlySize_data()
{
    QTest::addColumn<Qt::ToolButtonStyle>("style");
    QTest::addColumn<QToolButton::ToolButtonPopupMode>("mode");

    QTest::newRow("icon-only") << iconOnly << QToolButton::DelayedPopup;
    QTest::newRow("icon-only, split") << iconOnly << QToolButton::MenuButtonPopup;
    QTest::newRow("icon-only, instant") << iconOnly << QToolButton::InstantPopup;
    QTest::newRow("text-only") << Qt::ToolButtonTextOnly << QToolButton::DelayedPopup;
    QTest::newRow("the style's choice") << Qt::ToolButtonFollowStyle << QToolButton::DelayedPopup;
}

void tst_RibbonButton::iconOnlySize()
{
    QFETCH(const Qt::ToolButtonStyle, style);
    QFETCH(const QToolButton::ToolButtonPopupMode, mode);
    QAction action(QStringLiteral("A long text that does not count"));
    Scene scene;
    const RibbonButton *button = scene.addButton(style, &action, mode);
    QVERIFY(scene.open());
    QCOMPARE(button->size(), QSize(22, 22));
    QCOMPARE(button->minimumSize(), QSize(22, 22));
    QCOMPARE(button->maximumSize(), QSize(22, 22));
}

void tst_RibbonButton::smallSize_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QToolButton::ToolButtonPopupMode>("mode");
    QTest::addColumn<bool>("hasMenu");
    QTest::addColumn<int>("widthBesideText");

    const QStringList texts{QString(), QStringLiteral("Cut"), QStringLiteral("Save &As..."),
                            QStringLiteral("Trailing  "), QStringLiteral("שמור בשם")};
    for (const QString &text : texts) {
        for (const bool hasMenu : {false, true}) {
            const auto add = [&](const char *name, QToolButton::ToolButtonPopupMode mode,
                                 int width) {
                QTest::addRow("%s, %s, %s", qPrintable(text), name, hasMenu ? "menu" : "no menu")
                    << text << mode << hasMenu << width;
            };
            add("delayed", QToolButton::DelayedPopup, 34);
            add("split", QToolButton::MenuButtonPopup, 46);
            add("instant", QToolButton::InstantPopup, 46);
        }
    }
}

void tst_RibbonButton::smallSize()
{
    QFETCH(const QString, text);
    QFETCH(const QToolButton::ToolButtonPopupMode, mode);
    QFETCH(const bool, hasMenu);
    QFETCH(const int, widthBesideText);
    QMenu menu;
    QAction action(text);
    if (hasMenu)
        action.setMenu(&menu);
    Scene scene;
    const RibbonButton *button = scene.addButton(small, &action, mode);
    QVERIFY(scene.open());
    const int advance = QFontMetrics(QApplication::font()).horizontalAdvance(text);
    const QSize expected(widthBesideText + advance, 22);
    QCOMPARE(button->size(), expected);
    QCOMPARE(button->minimumSize(), expected);
    QCOMPARE(button->maximumSize(), expected);
}

void tst_RibbonButton::largeSize_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("textWidth");

    const QFont font = QApplication::font();
    const auto single = [font](const QString &text) { return singleLineWidth(font, text); };
    const auto wrapped = [font](const QString &text) {
        return QFontMetrics(font).size(Qt::TextWordWrap, text).width();
    };
    const auto oneLine = [&](const char *name, const QString &text) {
        QTest::newRow(name) << text << single(text);
    };
    const auto twoLines = [&](const char *name, const QString &first, const QString &second) {
        QTest::newRow(name) << first + u'\n' + second << qMax(single(first), single(second));
    };
    const auto moreLines = [&](const char *name, const QString &text) {
        QTest::newRow(name) << text << wrapped(text);
    };

    oneLine("empty", QString());
    oneLine("short", QStringLiteral("Go"));
    oneLine("one line", QStringLiteral("Paste Special"));
    oneLine("spaces at the end", QStringLiteral("Paste Special   "));
    oneLine("ampersand", QStringLiteral("Save && &Close"));
    oneLine("right to left", QStringLiteral("שמור בשם"));
    oneLine("tabulator", QStringLiteral("Save\tas"));
    twoLines("first line wider", QStringLiteral("Conditional"), QStringLiteral("Format"));
    twoLines("second line wider", QStringLiteral("Crop to"), QStringLiteral("Selection Now"));
    twoLines("spaces at the end of a line", QStringLiteral("Conditional      "),
             QStringLiteral("Format"));
    twoLines("second line empty", QStringLiteral("Conditional"), QString());
    twoLines("first line empty", QString(), QStringLiteral("Conditional"));
    twoLines("both lines empty", QString(), QString());
    moreLines("three lines", QStringLiteral("One of\nthree of these\nlines"));
    moreLines("three lines, the last empty", QStringLiteral("One of three\nof these\n"));
    moreLines("three lines, spaces", QStringLiteral("One of three         \nof\nthese"));
}

void tst_RibbonButton::largeSize()
{
    QFETCH(const QString, text);
    QFETCH(const int, textWidth);
    for (const auto mode :
         {QToolButton::DelayedPopup, QToolButton::MenuButtonPopup, QToolButton::InstantPopup}) {
        for (const bool hasMenu : {false, true}) {
            QMenu menu;
            QAction action(text);
            if (hasMenu)
                action.setMenu(&menu);
            Scene scene;
            const RibbonButton *button = scene.addButton(large, &action, mode);
            QVERIFY(scene.open());
            const QSize expected(qMax(36, textWidth + 10), 72);
            QCOMPARE(button->size(), expected);
            QCOMPARE(button->minimumSize(), expected);
            QCOMPARE(button->maximumSize(), expected);
        }
    }
}

void tst_RibbonButton::largeSizeOfNarrowTexts()
{
    const auto widthFor = [](int textWidth) {
        const QString text = textOfWidth(textWidth);
        QAction action(text);
        Scene scene;
        const RibbonButton *button = scene.addButton(large, &action, QToolButton::DelayedPopup);
        return !text.isEmpty() && scene.open() ? button->width() : -1;
    };
    QCOMPARE(widthFor(25), 36);
    QCOMPARE(widthFor(26), 36);
    QCOMPARE(widthFor(27), 37);
    QCOMPARE(widthFor(28), 38);
}

void tst_RibbonButton::largeSizeInOwnFont()
{
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(20);
    QAction action(QStringLiteral("Paste Special"));
    action.setFont(font);
    Scene scene;
    const RibbonButton *button = scene.addButton(large, &action, QToolButton::DelayedPopup);
    QVERIFY(scene.open());
    QCOMPARE(button->size(), QSize(singleLineWidth(font, action.text()) + 10, 72));
}

void tst_RibbonButton::smallSizeInOwnFont()
{
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(20);
    QAction action(QStringLiteral("Paste Special"));
    action.setFont(font);
    Scene scene;
    const RibbonButton *button = scene.addButton(small, &action, QToolButton::DelayedPopup);
    QVERIFY(scene.open());
    QCOMPARE(button->size(), QSize(34 + QFontMetrics(font).horizontalAdvance(action.text()), 22));
}

void tst_RibbonButton::sizeIsTakenAtTheFirstResize()
{
    QAction action(QStringLiteral("Cut"));
    Scene scene;
    RibbonButton *button = scene.addButton(small, &action, QToolButton::DelayedPopup);
    QCOMPARE(button->minimumSize(), QSize(0, 0));
    QCOMPARE(button->maximumSize(), QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX));
    // What is set until then counts.
    button->setPopupMode(QToolButton::InstantPopup);
    action.setText(QStringLiteral("Cut it out"));
    QVERIFY(scene.open());
    QCOMPARE(button->width(),
             46 + QFontMetrics(button->font()).horizontalAdvance(QStringLiteral("Cut it out")));
}

void tst_RibbonButton::sizeIsTakenAgainAtEachResizeOnly()
{
    QAction action(QStringLiteral("Cut"));
    Scene scene;
    RibbonButton *button = scene.addButton(small, &action, QToolButton::DelayedPopup);
    QVERIFY(scene.open());
    const int advance = QFontMetrics(button->font()).horizontalAdvance(QStringLiteral("Cut"));
    const QSize before(34 + advance, 22);
    QCOMPARE(button->size(), before);

    action.setText(QStringLiteral("Cut what is selected"));
    button->setPopupMode(QToolButton::MenuButtonPopup);
    QPixmap pixmap(16, 16);
    pixmap.fill(Qt::red);
    action.setIcon(pixmap);
    scene.resize(300, 110);
    QCoreApplication::processEvents();
    QCOMPARE(button->size(), before);

    button->setFixedSize(50, 50);
    const int newAdvance = QFontMetrics(button->font()).horizontalAdvance(action.text());
    QCOMPARE(button->size(), QSize(46 + newAdvance, 22));
    QCOMPARE(button->maximumSize(), QSize(46 + newAdvance, 22));

    button->setToolButtonStyle(large);
    QCoreApplication::processEvents();
    QCOMPARE(button->size(), QSize(46 + newAdvance, 22));
    button->setFixedSize(50, 50);
    QCOMPARE(button->size(), QSize(singleLineWidth(button->font(), action.text()) + 10, 72));
}

void tst_RibbonButton::oddTexts_data()
{
    QTest::addColumn<QString>("text");

    QTest::newRow("only an ampersand") << QStringLiteral("&");
    QTest::newRow("only line feeds") << QStringLiteral("\n\n\n\n");
    QTest::newRow("carriage returns") << QStringLiteral("One\r\nTwo\r\nThree");
    QTest::newRow("mark-up") << QStringLiteral("<b>Bold</b>");
    QTest::newRow("null characters") << QString(5, QChar(0));
    QTest::newRow("half a surrogate pair") << QString(QChar(0xd83d));
    QTest::newRow("both directions") << QStringLiteral("Save שמור\nas בשם");
    QTest::newRow("long") << QStringLiteral("long ").repeated(2000);
    QTest::newRow("many lines") << QStringLiteral("line\n").repeated(2000);
}

void tst_RibbonButton::oddTexts()
{
    QFETCH(const QString, text);
    for (const auto style : {large, small, iconOnly}) {
        for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
            QAction action(text);
            Scene scene;
            scene.setLayoutDirection(direction);
            RibbonButton *button = scene.addButton(style, &action, QToolButton::MenuButtonPopup);
            QVERIFY(scene.open());
            scene.moveMouseTo(button, QPoint(5, 5));
            scene.grab();
            QSignalSpy triggered(&action, &QAction::triggered);
            scene.click(button, QPoint(5, 5));
            QCOMPARE(triggered.count(), 1);
            QCOMPARE(button->height(), style == large ? 72 : 22);
        }
    }
}

NORVANE_TEST_MAIN(tst_RibbonButton)
#include "tst_RibbonButton.moc"
