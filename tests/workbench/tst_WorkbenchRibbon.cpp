// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "WorkbenchWindow.h"

#include "HelpDialog.h"

#include <QtWidgets/QTreeWidget>

using namespace Workbench;

class tst_WorkbenchRibbon : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void showsNoTemporaryPageWithoutADocument();
    void showsThePageOfTheDocumentInFront();
    void staysOnAPageThatStays();
    void goesFromATemporaryPageToItsCounterpart();
    void goesHomeWhenTheLastDocumentCloses();
    void keepsThePageAmongDocumentsOfAKind();
    void marksTemporaryPages();
    void explainsEveryCommand();
    void drawsEveryIcon();
    void hasNoShortcutTwice();
    void hasTitlesInOneLine();
    void opensTheMenuOfADelayedButtonWithTheRightButton();
    void opensNoMenuOfADelayedButtonWithTheLeftButton();
    void closesOthersFromTheMenu();
    void opensNoMenuWhereThereIsNone();
    void helps();
};

static const QStringList plain{QStringLiteral("Home"), QStringLiteral("View")};
static const QStringList withText = plain + QStringList{QStringLiteral("Text")};
static const QStringList withPicture = plain + QStringList{QStringLiteral("Picture")};

static QStringList samples(const Files &files)
{
    return {files.write(QStringLiteral("a.txt"), "a"), files.write(QStringLiteral("b.txt"), "b"),
            files.writeQuarters(QStringLiteral("c.png"), QSize(8, 8))};
}

void tst_WorkbenchRibbon::showsNoTemporaryPageWithoutADocument()
{
    const WorkbenchWindow window;
    QCOMPARE(window.pages(), plain);
    QCOMPARE(window.currentPage(), QStringLiteral("Home"));
}

void tst_WorkbenchRibbon::showsThePageOfTheDocumentInFront()
{
    const Files files;
    const WorkbenchWindow window(samples(files));
    QCOMPARE(window.pages(), withPicture);
    window.clickTab(QStringLiteral("a.txt"));
    QCOMPARE(window.pages(), withText);
    window.clickTab(QStringLiteral("c.png"));
    QCOMPARE(window.pages(), withPicture);
}

void tst_WorkbenchRibbon::staysOnAPageThatStays()
{
    const Files files;
    const WorkbenchWindow window(samples(files));
    for (const QString &page : plain) {
        window.clickPage(page);
        for (const char *file : {"a.txt", "c.png", "b.txt", "c.png"}) {
            window.clickTab(QString::fromLatin1(file));
            QCOMPARE(window.document()->title(), QString::fromLatin1(file));
            QCOMPARE(window.currentPage(), page);
        }
    }
}

void tst_WorkbenchRibbon::goesFromATemporaryPageToItsCounterpart()
{
    const Files files;
    const WorkbenchWindow window(samples(files));
    window.clickPage(QStringLiteral("Picture"));
    window.clickTab(QStringLiteral("a.txt"));
    QCOMPARE(window.currentPage(), QStringLiteral("Text"));
    QVERIFY(window.button(QStringLiteral("Sort")));
    QVERIFY(!window.button(QStringLiteral("Fit")));
    window.clickTab(QStringLiteral("c.png"));
    QCOMPARE(window.currentPage(), QStringLiteral("Picture"));
    QVERIFY(window.button(QStringLiteral("Fit")));
    QVERIFY(!window.button(QStringLiteral("Sort")));
}

void tst_WorkbenchRibbon::goesHomeWhenTheLastDocumentCloses()
{
    const Files files;
    const WorkbenchWindow window({files.write(QStringLiteral("a.txt"), "a")});
    window.clickPage(QStringLiteral("Text"));
    window.clickCloseButton(0);
    QCOMPARE(window.pages(), plain);
    QCOMPARE(window.currentPage(), QStringLiteral("Home"));
    QVERIFY(window.button(QStringLiteral("Open")));
}

void tst_WorkbenchRibbon::keepsThePageAmongDocumentsOfAKind()
{
    const Files files;
    const WorkbenchWindow window(samples(files));
    window.clickTab(QStringLiteral("a.txt"));
    window.clickPage(QStringLiteral("Text"));
    window.clickTab(QStringLiteral("b.txt"));
    QCOMPARE(window.currentPage(), QStringLiteral("Text"));
    QVERIFY(window.button(QStringLiteral("Sort")));
}

void tst_WorkbenchRibbon::marksTemporaryPages()
{
    const Files files;
    const WorkbenchWindow window(samples(files));
    const auto besides = [&](const QString &title) {
        const QList<QAbstractButton *> tabs = window.ribbon()->findChildren<QAbstractButton *>();
        for (QAbstractButton *tab : tabs) {
            if (tab->text() == title && tab->inherits("Norvane::RibbonTab")) {
                const QPoint corner(tab->mapTo(window.ribbon(), QPoint(-1, 10)));
                return Gui::pixel(window.ribbon(), corner);
            }
        }
        return QColor();
    };
    QCOMPARE(besides(QStringLiteral("Picture")), QColor(17, 113, 190));
    QVERIFY(besides(QStringLiteral("View")) != QColor(17, 113, 190));
}

void tst_WorkbenchRibbon::explainsEveryCommand()
{
    const WorkbenchWindow window;
    const QList<QAction *> commands = window.commands();
    for (const QAction *command : commands) {
        QVERIFY2(!command->toolTip().isEmpty(), qPrintable(command->text()));
        QVERIFY2(!command->toolTip().contains(u'\n'), qPrintable(command->text()));
        QVERIFY2(command->toolTip() != command->text(), qPrintable(command->text()));
        const QString keys = command->shortcut().toString(QKeySequence::NativeText);
        // This one is what the button with the menu does, and has that button's keys.
        const bool isSort = command->text() == QStringLiteral("Sort A to Z");
        QVERIFY2(!keys.isEmpty() || command->menu() || isSort, qPrintable(command->text()));
        QVERIFY2(command->toolTip().contains(keys), qPrintable(command->text()));
        // The ribbon draws the text as it is.
        QVERIFY2(!command->text().contains(u'&'), qPrintable(command->text()));
    }
}

void tst_WorkbenchRibbon::drawsEveryIcon()
{
    const WorkbenchWindow window;
    const QList<QAction *> commands = window.commands();
    for (const QAction *command : commands) {
        for (int size : {16, 24}) {
            const QImage image = command->icon().pixmap(QSize(size, size), 1.0).toImage();
            QCOMPARE(image.size(), QSize(size, size));
            int drawn = 0;
            for (int y = 0; y < size; ++y) {
                for (int x = 0; x < size; ++x)
                    drawn += image.pixelColor(x, y).alpha() > 40;
            }
            QVERIFY2(drawn > size, qPrintable(command->text()));
        }
    }
}

void tst_WorkbenchRibbon::hasNoShortcutTwice()
{
    const WorkbenchWindow window;
    QStringList keys;
    const QList<QAction *> commands = window.commands();
    for (const QAction *command : commands) {
        const QList<QKeySequence> shortcuts = command->shortcuts();
        for (const QKeySequence &key : shortcuts)
            keys << key.toString();
    }
    QVERIFY(keys.size() > 25);
    QCOMPARE(keys.removeDuplicates(), 0);
}

void tst_WorkbenchRibbon::hasTitlesInOneLine()
{
    const Files files;
    const WorkbenchWindow window(samples(files));
    for (const QString &page : withPicture) {
        window.clickPage(page);
        QList<int> heights;
        const QList<QWidget *> titles =
            window.ribbon()->findChildren<QWidget *>(QStringLiteral("groupTitle"));
        for (const QWidget *title : titles) {
            const QPoint place = title->mapTo(window.ribbon(), QPoint());
            if (title->isVisible() && window.ribbon()->rect().contains(place))
                heights << place.y();
        }
        QVERIFY(heights.size() > 1);
        QCOMPARE(heights, QList<int>(heights.size(), heights.first()));
    }
}

void tst_WorkbenchRibbon::opensTheMenuOfADelayedButtonWithTheRightButton()
{
    const Files files;
    const WorkbenchWindow window(samples(files));
    const QToolButton *close = window.button(QStringLiteral("Close"));
    WorkbenchWindow::openMenu(
        [&] {
            Gui::click(close, Qt::RightButton);
            QContextMenuEvent event(QContextMenuEvent::Mouse, close->rect().center(),
                                    close->mapToGlobal(close->rect().center()));
            QCoreApplication::sendEvent(window.button(QStringLiteral("Close")), &event);
        },
        [](QMenu *menu) { WorkbenchWindow::pickEntry(menu, QStringLiteral("Close All")); });
    QCOMPARE(window.tabs()->documents().size(), 0);
}

void tst_WorkbenchRibbon::opensNoMenuOfADelayedButtonWithTheLeftButton()
{
    const Files files;
    const WorkbenchWindow window(samples(files));
    Gui::click(window.button(QStringLiteral("Close")), QPoint(20, 60));
    QVERIFY(!QApplication::activePopupWidget());
    QCOMPARE(window.tabs()->documents().size(), 2);
}

void tst_WorkbenchRibbon::closesOthersFromTheMenu()
{
    const Files files;
    const WorkbenchWindow window(samples(files));
    window.clickTab(QStringLiteral("b.txt"));
    QAction *closeOthers = window.command(QStringLiteral("Close Others"));
    QVERIFY(closeOthers && closeOthers->isEnabled());
    closeOthers->trigger();
    QCOMPARE(window.tabs()->documents().size(), 1);
    QCOMPARE(window.document()->title(), QStringLiteral("b.txt"));
}

void tst_WorkbenchRibbon::opensNoMenuWhereThereIsNone()
{
    const WorkbenchWindow window;
    for (QPoint position :
         {QPoint(5, 5), QPoint(900, 80),
          window.button(QStringLiteral("Undo"))->mapTo(window.ribbon(), QPoint(3, 3)),
          // Disabled without a document.
          window.button(QStringLiteral("Close"))->mapTo(window.ribbon(), QPoint(3, 3))}) {
        QContextMenuEvent event(QContextMenuEvent::Mouse, position,
                                window.ribbon()->mapToGlobal(position));
        QCoreApplication::sendEvent(window.ribbon(), &event);
        QVERIFY(!QApplication::activePopupWidget());
    }
}

void tst_WorkbenchRibbon::helps()
{
    const WorkbenchWindow window;
    int commands = 0;
    bool open = false;
    const ModalAnswer answer([&](QWidget *dialog) {
        if (const auto *list = dialog->findChild<QTreeWidget *>()) {
            commands = list->topLevelItemCount();
            open = !list->findItems(QStringLiteral("Open"), Qt::MatchExactly).isEmpty();
        }
        QTest::keyClick(dialog, Qt::Key_Escape);
    });
    Gui::click(window.findChild<QToolButton *>(QStringLiteral("helpButton")));
    QVERIFY(answer.answered);
    QVERIFY(open);
    QVERIFY(commands > 25);
}

NORVANE_TEST_MAIN(tst_WorkbenchRibbon)
#include "tst_WorkbenchRibbon.moc"
