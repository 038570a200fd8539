// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "Baseline.h"
#include "Crumbs.h"
#include "Folders.h"
#include "Popup.h"
#include "TestCase.h"

#include <Norvane/AddressBar.h>

#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

using namespace Norvane;
using namespace Qt::StringLiterals;

// Address bars against pictures that were looked at.
class tst_AddressBaselines : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void bar_data();
    void bar();
    void menu_data();
    void menu();

private:
    // The bar shows the folders by their relative paths, in which nothing is random.
    const Folders m_folders{{u"Projects/Harbour/Plans/North pier/1987"_s,
                             u"Projects/Harbour/Letters"_s, u"Projects/Harbour/Pictures"_s,
                             u"Projects/Lighthouse"_s}};
    const QString m_before = QDir::currentPath();
};

namespace {

class Window : public QWidget
{
public:
    Window()
        : bar(new AddressBar)
    {
        auto *column = new QVBoxLayout(this);
        column->setContentsMargins(0, 0, 0, 0);
        column->addWidget(bar);
        column->addStretch();
        bar->resetPath(u"Projects/Harbour/Plans"_s);
        resize(500, 40);
    }

    AddressStrip *strip() const { return bar->findChild<AddressStrip *>(); }
    QPushButton *button(int index) const { return bar->findChildren<QPushButton *>().at(index); }

    AddressBar *const bar;
};

using Way = std::function<void(Window &)>;

QPoint arrowOf(const AddressEntry *entry)
{
    return {entry->width() - 8, entry->height() / 2};
}

} // namespace

void tst_AddressBaselines::bar_data()
{
    QTest::addColumn<Way>("prepare");
    QTest::newRow("path") << Way([](Window &) { });
    QTest::newRow("last-folder") << Way(
        [](Window &window) { window.bar->setPath(u"Projects/Lighthouse"_s); });
    QTest::newRow("root") << Way([](Window &window) { window.bar->setPath(u"/"_s); });
    QTest::newRow("both-ways") << Way([](Window &window) {
        window.bar->setPath(u"Projects/Harbour"_s);
        window.bar->setPath(u"Projects"_s);
        Gui::click(window.button(AddressBar::Backward));
    });
    QTest::newRow("too-long") << Way([](Window &window) {
        window.bar->setPath(u"Projects/Harbour/Plans/North pier/1987"_s);
        window.resize(300, 40);
    });
    QTest::newRow("edited") << Way([](Window &window) {
        Gui::click(window.strip(), QPoint(window.strip()->width() - 5, 12));
    });
    QTest::newRow("hovered-name") << Way(
        [](Window &window) { Gui::moveMouse(entriesOf(window.strip()).at(2), QPoint(5, 11)); });
    QTest::newRow("hovered-arrow") << Way([](Window &window) {
        const AddressEntry *entry = entriesOf(window.strip()).at(2);
        Gui::moveMouse(entry, arrowOf(entry));
    });
    QTest::newRow("hovered-root") << Way(
        [](Window &window) { Gui::moveMouse(entriesOf(window.strip()).at(0), QPoint(5, 11)); });
    QTest::newRow("pressed-name") << Way([](Window &window) {
        Gui::moveMouse(entriesOf(window.strip()).at(2), QPoint(5, 11));
        Gui::press(entriesOf(window.strip()).at(2), QPoint(5, 11));
    });
    QTest::newRow("hovered-button")
        << Way([](Window &window) { Gui::moveMouse(window.button(2), QPoint(11, 11)); });
    QTest::newRow("pressed-button") << Way([](Window &window) {
        Gui::moveMouse(window.button(3), QPoint(11, 11));
        Gui::press(window.button(3), QPoint(11, 11));
    });
    QTest::newRow("mirrored") << Way(
        [](Window &window) { window.setLayoutDirection(Qt::RightToLeft); });
}

void tst_AddressBaselines::bar()
{
    QFETCH(Way, prepare);
    QVERIFY(QDir::setCurrent(m_folders.path()));
    QApplication::setCursorFlashTime(0);
    Window window;
    QVERIFY(Gui::open(&window));
    QVERIFY(QTest::qWaitForWindowActive(&window, patience));
    Gui::moveMouse(&window, QPoint(250, 38));
    prepare(window);
    for (int i = 0; i < 3; ++i)
        QCoreApplication::processEvents();
    QVERIFY(QDir::setCurrent(m_before));
    const QString wrong = Baseline::compare(Gui::picture(&window), QFINDTESTDATA("baselines"));
    QVERIFY2(wrong.isEmpty(), qPrintable(wrong));
    // Away from what is pressed, which would act.
    Gui::release(&window, QPoint(250, 38));
}

void tst_AddressBaselines::menu_data()
{
    QTest::addColumn<bool>("context");
    QTest::newRow("folders-menu") << false;
    QTest::newRow("context-menu") << true;
}

void tst_AddressBaselines::menu()
{
    QFETCH(bool, context);
    QVERIFY(QDir::setCurrent(m_folders.path()));
    Window window;
    QVERIFY(QDir::setCurrent(m_before));
    QVERIFY(Gui::open(&window));
    const AddressEntry *entry = entriesOf(window.strip()).at(2);
    QMenu *menu = entry->menu();
    if (context) {
        const auto *action = window.bar->findChild<QAction *>(Qt::FindDirectChildrenOnly);
        menu = qobject_cast<QMenu *>(action->associatedObjects().value(0));
    }
    QString wrong;
    QVERIFY(whileOpen(
        menu,
        [&] {
            if (context)
                Gui::press(window.strip(), QPoint(300, 12), Qt::RightButton);
            else
                Gui::press(entry, arrowOf(entry));
        },
        [&] {
            if (!context)
                QTest::keyClick(menu->windowHandle(), Qt::Key_Down);
            wrong = Baseline::compare(Gui::picture(menu), QFINDTESTDATA("baselines"));
        }));
    QVERIFY2(wrong.isEmpty(), qPrintable(wrong));
}

NORVANE_TEST_MAIN(tst_AddressBaselines)
#include "tst_AddressBaselines.moc"
