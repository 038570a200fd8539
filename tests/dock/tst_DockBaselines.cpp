// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "Baseline.h"
#include "DockWindow.h"
#include "TestCase.h"

#include <style/StyleSheet.h>

#include <QtWidgets/QApplication>
#include <QtWidgets/QLabel>
#include <QtWidgets/QStatusBar>

using namespace Norvane;
using namespace Qt::StringLiterals;

// Whole windows with docks against pictures that were looked at.
class tst_DockBaselines : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void window_data();
    void window();
};

namespace {

QIcon icon(const QString &name)
{
    return QIcon(u":/res/%1.svg"_s.arg(name));
}

QLabel *label(const QString &text)
{
    auto *label = new QLabel(text);
    label->setAlignment(Qt::AlignCenter);
    return label;
}

using Way = std::function<void(DockWindow &)>;

} // namespace

void tst_DockBaselines::window_data()
{
    QTest::addColumn<Way>("prepare");
    QTest::newRow("window") << Way([](DockWindow &) { });
    QTest::newRow("minimized") << Way([](DockWindow &window) {
        Gui::click(DockWindow::button(window.left, 0));
        Gui::click(DockWindow::button(window.bottom, 0));
    });
    QTest::newRow("many-tabs") << Way([](DockWindow &window) {
        for (int i = 0; i < 12; ++i)
            window.content->addTab(0, label(QString::number(i)), u"document %1.txt"_s.arg(i));
        window.content->setTabEnabled(0, 1, false);
    });
    QTest::newRow("no-documents") << Way([](DockWindow &window) {
        QPixmap picture = icon(u"browse"_s).pixmap(QSize(48, 48), window.devicePixelRatio());
        window.content->setPlaceholderPixmap(picture);
        window.content->setAutoHide(false);
        while (window.content->tabCount(0) > 0)
            delete window.content->widget(0, 0);
        delete window.content->widget(1, 0);
    });
    QTest::newRow("mirrored") << Way(
        [](DockWindow &window) { window.setLayoutDirection(Qt::RightToLeft); });
}

void tst_DockBaselines::window()
{
    QFETCH(Way, prepare);
    DockWindow window(0);
    window.container->setupMainWindow(&window);
    window.statusBar()->setStyleSheet(StyleSheet::read(u":/norvane/norvanelight.css"_s));
    window.left->addView(label(u"files"_s), icon(u"browse"_s), u"Files"_s);
    window.left->tabifyView(0, label(u"outline"_s), icon(u"search"_s), u"Outline"_s);
    window.left->addSeparator();
    window.left->addView(label(u"more"_s), icon(u"collect"_s), u"More"_s);
    window.right->addView(label(u"properties"_s), icon(u"toTop"_s), u"Properties"_s);
    window.bottom->addView(label(u"find"_s), icon(u"search"_s), u"Find"_s);
    window.bottom->tabifyView(0, label(u"log"_s), icon(u"collected"_s), u"Log"_s);
    window.bottom->addView(label(u"other"_s), icon(u"toBottom"_s), u"Other"_s);
    window.content->addSection(u"Pictures"_s);
    window.content->addTab(0, label(u"one"_s), u"one.txt"_s);
    window.content->addTab(0, label(u"two"_s), u"another text.txt"_s);
    window.content->addTab(1, label(u"three"_s), u"picture.png"_s);
    window.resize(800, 500);
    QVERIFY(Gui::open(&window));
    prepare(window);
    for (int i = 0; i < 3; ++i)
        QCoreApplication::processEvents();
    Gui::moveMouse(&window, window.rect().center());
    const QString wrong = Baseline::compare(Gui::picture(&window), QFINDTESTDATA("baselines"));
    QVERIFY2(wrong.isEmpty(), qPrintable(wrong));
}

NORVANE_TEST_MAIN(tst_DockBaselines)
#include "tst_DockBaselines.moc"
