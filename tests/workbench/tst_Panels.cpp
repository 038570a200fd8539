// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "WorkbenchWindow.h"

#include "views/FindResultsView.h"
#include "views/LogView.h"
#include "views/OutlineView.h"
#include "views/PropertiesView.h"

#include <Norvane/DockContainer.h>
#include <Norvane/DockPanelWidget.h>

#include <QtCore/QScopeGuard>
#include <QtCore/QSettings>
#include <QtGui/QTextLayout>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QSplitter>
#include <QtWidgets/QTreeWidget>

using namespace Workbench;
using namespace Qt::StringLiterals;

class tst_Panels : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void keepsTextsAndPicturesInSections();
    void closesByEveryEntryOfTheMenu_data();
    void closesByEveryEntryOfTheMenu();
    void asksForEachUnsavedDocument();
    void closesByAMiddleClick();
    void showsThePlaceholderWithoutDocuments();
    void listsTheHeadingsOfTheText();
    void goesToAHeading();
    void showsLongHeadingsFromTheirBeginning();
    void showsTheProperties();
    void hasRoomForTheProperties();
    void keepsValuesInTheirOrder();
    void findsInAllTexts();
    void findsInAllTextsBehindAPicture();
    void logsWhatWasDone();
    void remembersTheLayout();
    void forgetsTheLayout();
    void bringsTheFindPanelBack();
};

namespace {

Norvane::DockContainer *docksOf(const WorkbenchWindow &window)
{
    return window.findChild<Norvane::DockContainer *>();
}

QSplitter *panesOf(const WorkbenchWindow &window)
{
    return docksOf(window)->findChild<QSplitter *>(Qt::FindDirectChildrenOnly);
}

QStringList entries(const QListWidget *list)
{
    QStringList texts;
    for (int i = 0; i < list->count(); ++i)
        texts << list->item(i)->text();
    return texts;
}

} // namespace

void tst_Panels::keepsTextsAndPicturesInSections()
{
    const Files files;
    const WorkbenchWindow window({files.write(u"a.txt"_s, "a"),
                                  files.writeQuarters(u"b.png"_s, QSize(8, 8)),
                                  files.write(u"c.txt"_s, "c")});
    QCOMPARE(window.content()->sectionText(0), u"Texts"_s);
    QCOMPARE(window.content()->sectionText(1), u"Pictures"_s);
    QCOMPARE(window.content()->tabCount(0), 2);
    QCOMPARE(window.content()->tabCount(1), 1);
    QCOMPARE(window.content()->currentSection(), 0);
    window.clickTab(u"b.png"_s);
    QCOMPARE(window.content()->currentSection(), 1);
    QCOMPARE(window.document()->title(), u"b.png"_s);
    QVERIFY(window.pages().contains(u"Picture"_s));
    QVERIFY(!window.pages().contains(u"Text"_s));
}

void tst_Panels::closesByEveryEntryOfTheMenu_data()
{
    QTest::addColumn<QString>("entry");
    QTest::addColumn<QStringList>("left");
    QTest::newRow("this") << u"Close Current"_s
                          << QStringList({u"a.txt"_s, u"c.txt"_s, u"d.txt"_s});
    QTest::newRow("left") << u"Close All Left"_s
                          << QStringList({u"b.txt"_s, u"c.txt"_s, u"d.txt"_s});
    QTest::newRow("right") << u"Close All Right"_s << QStringList({u"a.txt"_s, u"b.txt"_s});
    QTest::newRow("others") << u"Close All(Except Current)"_s << QStringList(u"b.txt"_s);
    QTest::newRow("all") << u"Close All"_s << QStringList();
}

void tst_Panels::closesByEveryEntryOfTheMenu()
{
    QFETCH(QString, entry);
    QFETCH(QStringList, left);
    const Files files;
    QStringList paths{files.writeQuarters(u"picture.png"_s, QSize(8, 8))};
    for (const auto *name : {"a.txt", "b.txt", "c.txt", "d.txt"})
        paths << files.write(QString::fromLatin1(name), name);
    const WorkbenchWindow window(paths);
    QTabBar *bar = WorkbenchWindow::tabBar(window.tabs()->documents().at(2));
    const QPoint position = bar->tabRect(1).center();
    WorkbenchWindow::openMenu(
        [&] {
            QContextMenuEvent event(QContextMenuEvent::Mouse, position, bar->mapToGlobal(position));
            QCoreApplication::sendEvent(bar, &event);
        },
        [&](QMenu *menu) { WorkbenchWindow::pickEntry(menu, entry); });
    QStringList titles;
    const QList<Document *> documents = window.tabs()->documents();
    for (const Document *document : documents)
        titles << document->title();
    QCOMPARE(titles, QStringList(u"picture.png"_s) + left);
}

void tst_Panels::asksForEachUnsavedDocument()
{
    const Files files;
    const WorkbenchWindow window({files.write(u"a.txt"_s, "a"), files.write(u"b.txt"_s, "b")});
    window.setCurrent(0);
    QTest::keyClicks(window.editor(), u"x"_s);
    BoxAnswer box(QMessageBox::Cancel);
    window.clickCloseButton(0);
    QVERIFY(box.answered());
    QCOMPARE(window.tabs()->documents().size(), 2);
    BoxAnswer discard(QMessageBox::Discard);
    window.clickCloseButton(0);
    QVERIFY(discard.answered());
    QCOMPARE(window.tabs()->documents().size(), 1);
}

void tst_Panels::closesByAMiddleClick()
{
    const Files files;
    const WorkbenchWindow window({files.write(u"a.txt"_s, "a"), files.write(u"b.txt"_s, "b")});
    QTabBar *bar = WorkbenchWindow::tabBar(window.document());
    Gui::click(bar, bar->tabRect(0).topLeft() + QPoint(12, 12), Qt::MiddleButton);
    QCOMPARE(window.tabs()->documents().size(), 1);
    QCOMPARE(window.document()->title(), u"b.txt"_s);
}

void tst_Panels::showsThePlaceholderWithoutDocuments()
{
    const Files files;
    const WorkbenchWindow window;
    QVERIFY(window.content()->isVisible());
    QVERIFY(!window.content()->pixmap().isNull());
    QVERIFY(window.content()->height() > window.height() / 3);
}

void tst_Panels::listsTheHeadingsOfTheText()
{
    const Files files;
    WorkbenchWindow window(
        {files.write(u"a.md"_s, "# One\ntext\n\n## Two\n\nThree\n=====\nmore\n")});
    auto *outline = window.findChild<OutlineView *>();
    QCOMPARE(entries(outline), QStringList({u"One"_s, u"  Two"_s, u"Three"_s}));
    window.open({files.write(u"b.ini"_s, "[first]\na=1\n[second]\n")});
    QCOMPARE(entries(outline), QStringList({u"first"_s, u"second"_s}));
    window.open({files.write(u"c.txt"_s, "Dear Ann,\nyes.\n\nBye\n")});
    QCOMPARE(entries(outline), QStringList({u"Dear Ann,"_s, u"Bye"_s}));
    window.editor()->setPlainText(u"# New"_s);
    QTRY_COMPARE(entries(outline), QStringList(u"New"_s));
    window.open({files.writeQuarters(u"d.png"_s, QSize(8, 8))});
    QVERIFY(entries(outline).isEmpty());
}

void tst_Panels::goesToAHeading()
{
    const Files files;
    const WorkbenchWindow window({files.write(u"a.md"_s, "# One\ntext\n\n## Two\nmore\n")});
    auto *outline = window.findChild<OutlineView *>();
    Gui::click(outline->viewport(), outline->visualItemRect(outline->item(1)).center());
    QCOMPARE(window.editor()->textCursor().blockNumber(), 3);
}

void tst_Panels::showsLongHeadingsFromTheirBeginning()
{
    for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        QGuiApplication::setLayoutDirection(direction);
        const auto restore =
            qScopeGuard([] { QGuiApplication::setLayoutDirection(Qt::LayoutDirectionAuto); });
        const Files files;
        const WorkbenchWindow window({files.write(u"a.txt"_s, QByteArray("word ").repeated(99))});
        auto *outline = window.findChild<OutlineView *>();
        QCOMPARE(outline->count(), 1);
        const QRect entry = outline->visualItemRect(outline->item(0));
        QCOMPARE(entry.width(), outline->viewport()->width());
        QCOMPARE_GE(entry.height(), outline->fontMetrics().height());
        QVERIFY(!outline->horizontalScrollBar()->isVisible());
    }
}

void tst_Panels::showsTheProperties()
{
    const Files files;
    const WorkbenchWindow window({files.write(u"a.txt"_s, "abc")});
    const auto *properties = window.findChild<PropertiesView *>();
    const auto value = [&](const QString &name) {
        const QList<QTreeWidgetItem *> items = properties->findItems(name, Qt::MatchExactly);
        return items.isEmpty() ? QString() : items.constFirst()->text(1);
    };
    QCOMPARE(value(u"Name"_s), u"a.txt"_s);
    QCOMPARE(value(u"Kind"_s), u"Text"_s);
    QCOMPARE(value(u"State"_s), u"Saved"_s);
    QTest::keyClicks(window.editor(), u"x"_s);
    QCOMPARE(value(u"State"_s), u"Not saved"_s);
}

void tst_Panels::hasRoomForTheProperties()
{
    MainWindow::resetLayout();
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedKingdom));
    const auto restore = qScopeGuard([] { QLocale::setDefault(QLocale::system()); });
    const Files files;
    const WorkbenchWindow window({files.write(u"a.txt"_s, "abc")});
    const auto *properties = window.findChild<PropertiesView *>();
    QTRY_COMPARE(properties->header()->length(), properties->viewport()->width());
    const QList<QTreeWidgetItem *> changed = properties->findItems(u"Changed"_s, Qt::MatchExactly);
    QCOMPARE(changed.size(), 1);
    QCOMPARE_GE(properties->visualItemRect(changed.constFirst()).width(),
                properties->columnWidth(0)
                    + properties->fontMetrics().horizontalAdvance(changed.constFirst()->text(1)));
}

void tst_Panels::keepsValuesInTheirOrder()
{
    const Files files;
    const QString picture = files.writeQuarters(u"p.png"_s, QSize(8, 4));
    for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        QGuiApplication::setLayoutDirection(direction);
        const auto restore =
            qScopeGuard([] { QGuiApplication::setLayoutDirection(Qt::LayoutDirectionAuto); });
        const WorkbenchWindow window({picture});
        const auto *properties = window.findChild<PropertiesView *>();
        const QString content =
            properties->findItems(u"Content"_s, Qt::MatchExactly).value(0)->text(1);
        QTextLayout layout(content, properties->font());
        QTextOption option;
        option.setTextDirection(properties->layoutDirection());
        layout.setTextOption(option);
        layout.beginLayout();
        const QTextLine line = layout.createLine();
        layout.endLayout();
        QVERIFY(content.contains(u"8 × 4 pixels"_s));
        QCOMPARE_LT(line.cursorToX(int(content.indexOf(u'4'))),
                    line.cursorToX(int(content.indexOf(u'x'))));
    }
}

void tst_Panels::findsInAllTexts()
{
    const Files files;
    const WorkbenchWindow window({files.write(u"a.txt"_s, "one\ntwo one\n"),
                                  files.writeQuarters(u"p.png"_s, QSize(8, 8)),
                                  files.write(u"b.txt"_s, "none\n")});
    window.key(Qt::Key_F, Qt::ControlModifier | Qt::ShiftModifier);
    auto *field = window.findChild<QLineEdit *>(u"findAllField"_s);
    QTRY_VERIFY(field->hasFocus());
    window.type(u"one"_s);
    window.key(Qt::Key_Return);
    auto *results = window.findChild<FindResultsView *>()->findChild<QTreeWidget *>();
    QTRY_COMPARE(results->topLevelItemCount(), 3);
    QCOMPARE(results->topLevelItem(1)->text(0), u"a.txt"_s);
    QCOMPARE(results->topLevelItem(1)->text(1), u"2"_s);
    QCOMPARE(results->topLevelItem(1)->text(2), u"two one"_s);
    Gui::click(results->viewport(), results->visualItemRect(results->topLevelItem(1)).center());
    QCOMPARE(window.document()->title(), u"a.txt"_s);
    QCOMPARE(window.editor()->textCursor().position(), 11);
    QCOMPARE(window.editor()->textCursor().selectedText(), u"one"_s);

    // A place in a document that was closed leads nowhere.
    window.clickCloseButton(0);
    QCOMPARE(window.tabs()->documents().size(), 2);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    Gui::click(results->viewport(), results->visualItemRect(results->topLevelItem(0)).center());
    field->setText(u"absent"_s);
    field->setFocus();
    window.key(Qt::Key_Return);
    QTRY_COMPARE(results->topLevelItemCount(), 1);
    QVERIFY(results->topLevelItem(0)->text(0).contains(u"absent"_s));
}

void tst_Panels::findsInAllTextsBehindAPicture()
{
    const Files files;
    const WorkbenchWindow window(
        {files.write(u"a.txt"_s, "one\n"), files.writeQuarters(u"p.png"_s, QSize(8, 8))});
    QVERIFY(window.picture());
    window.key(Qt::Key_F, Qt::ControlModifier | Qt::ShiftModifier);
    QTRY_VERIFY(window.findChild<QLineEdit *>(u"findAllField"_s)->hasFocus());
    window.type(u"one"_s);
    window.key(Qt::Key_Return);
    auto *results = window.findChild<FindResultsView *>()->findChild<QTreeWidget *>();
    QTRY_COMPARE(results->topLevelItemCount(), 1);
    Gui::click(results->viewport(), results->visualItemRect(results->topLevelItem(0)).center());
    QCOMPARE(window.document()->title(), u"a.txt"_s);
}

void tst_Panels::logsWhatWasDone()
{
    const Files files;
    const WorkbenchWindow window({files.write(u"a.txt"_s, "a")});
    QTest::keyClicks(window.editor(), u"x"_s);
    window.key(Qt::Key_S, Qt::ControlModifier);
    QTRY_VERIFY(window.findChild<LogView *>()->toPlainText().contains(u"a.txt"_s));
}

void tst_Panels::remembersTheLayout()
{
    QList<int> sizes;
    {
        WorkbenchWindow window;
        window.resize(700, 600);
        sizes = {171, panesOf(window)->width() - 171 - 230, 230};
        panesOf(window)->setSizes(sizes);
        window.close();
    }
    const WorkbenchWindow window;
    QTRY_COMPARE(window.size(), QSize(700, 600));
    QTRY_COMPARE(panesOf(window)->sizes(), sizes);
    MainWindow::resetLayout();
}

void tst_Panels::forgetsTheLayout()
{
    MainWindow::resetLayout();
    QList<int> fresh;
    {
        WorkbenchWindow window;
        fresh = panesOf(window)->sizes();
        panesOf(window)->setSizes({300, 400, 250});
        window.close();
    }
    MainWindow::resetLayout();
    const WorkbenchWindow window;
    QTRY_COMPARE(panesOf(window)->sizes(), fresh);
}

void tst_Panels::bringsTheFindPanelBack()
{
    const Files files;
    const WorkbenchWindow window({files.write(u"a.txt"_s, "a")});
    auto *bottom = docksOf(window)->panelWidget(Norvane::DockContainer::BottomDockArea);
    Gui::click(bottom->panel()->findChildren<QAbstractButton *>().constFirst());
    QVERIFY(bottom->isMinimized());
    window.key(Qt::Key_F, Qt::ControlModifier | Qt::ShiftModifier);
    QTRY_VERIFY(!bottom->isMinimized());
    QTRY_VERIFY(window.findChild<QLineEdit *>(u"findAllField"_s)->hasFocus());
    QVERIFY(bottom->stackedWidget()->height() > 0);
}

NORVANE_TEST_MAIN(tst_Panels)
#include "tst_Panels.moc"
