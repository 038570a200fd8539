// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "Baseline.h"
#include "GalleryWindow.h"
#include "TestCase.h"

using namespace Norvane;
using namespace Qt::StringLiterals;

// Strips and popups against pictures that were looked at.
class tst_GalleryBaselines : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void strip_data();
    void strip();
    void popup_data();
    void popup();
};

namespace {

// Small enough for a popup that does not have to scroll on a small screen.
void fill(GalleryWindow *window)
{
    window->gallery->setDispalyCount(4);
    const QList<QPair<QString, QStringList>> groups = {
        {u"Tone"_s, {u"Lighter"_s, u"Darker"_s, u"Two\nlines"_s}},
        {u"A text that is too long"_s, {u"Far too long for its cell"_s, u"Disabled"_s}}};
    const QStringList drawings = {u"search"_s, u"browse"_s, u"toTop"_s, u"toBottom"_s};
    for (const auto &[title, texts] : groups) {
        for (const QString &text : texts) {
            QAction *action = window->createAction(text);
            action->setIcon(QIcon(u":/res/%1.svg"_s.arg(drawings.at(text.size() % 4))));
            action->setEnabled(text != u"Disabled"_s);
            window->gallery->addItem(title, action);
        }
    }
}

} // namespace

void tst_GalleryBaselines::strip_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("mouse");
    QTest::newRow("strip") << 4 << QString();
    QTest::newRow("strip hovered") << 4 << u"hovers"_s;
    QTest::newRow("strip pressed") << 4 << u"presses"_s;
    QTest::newRow("strip with placeholders") << 7 << u"hovers"_s;
}

void tst_GalleryBaselines::strip()
{
    QFETCH(int, count);
    QFETCH(QString, mouse);
    GalleryWindow window;
    fill(&window);
    window.gallery->setDispalyCount(count);
    QVERIFY(window.open());
    RibbonGalleryItem *cell = window.cells().at(1);
    if (!mouse.isEmpty())
        Gui::moveMouse(cell, {45, 30});
    if (mouse == u"presses"_s)
        Gui::press(cell, {45, 30});
    const QImage actual = Gui::picture(window.gallery);
    if (mouse == u"presses"_s)
        Gui::release(&window, {5, 190});
    const QString wrong = Baseline::compare(actual, QFINDTESTDATA("baselines"));
    QVERIFY2(wrong.isEmpty(), qPrintable(wrong));
}

void tst_GalleryBaselines::popup_data()
{
    QTest::addColumn<QString>("search");
    QTest::addColumn<bool>("collected");
    QTest::newRow("catalogue") << QString() << false;
    QTest::newRow("collected") << QString() << true;
    QTest::newRow("found") << u"er"_s << false;
    QTest::newRow("nothing found") << u"x"_s << false;
}

void tst_GalleryBaselines::popup()
{
    QFETCH(QString, search);
    QFETCH(bool, collected);
    GalleryWindow window;
    fill(&window);
    QVERIFY(window.open());
    if (collected)
        window.gallery->setItemCollected(0, 1, true);
    QVERIFY(window.openPopup());
    if (!search.isEmpty())
        window.search(search);
    // The cursor blinks.
    window.popup()->setFocus();
    if (collected) {
        QTRY_COMPARE(window.item(0, 0)->y(), 5);
        Gui::moveMouse(window.item(0, 0), {45, 30});
    }
    QCoreApplication::processEvents();
    const QImage actual = Gui::picture(window.menu());
    window.closePopup();
    const QString wrong = Baseline::compare(actual, QFINDTESTDATA("baselines"));
    QVERIFY2(wrong.isEmpty(), qPrintable(wrong));
}

NORVANE_TEST_MAIN(tst_GalleryBaselines)
#include "tst_GalleryBaselines.moc"
