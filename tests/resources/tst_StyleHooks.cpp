// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "TestCase.h"

#include <Norvane/RibbonBar.h>
#include <dock/DockPanel.h>
#include <dock/DockTitle.h>
#include <dock/DockView.h>

#include <QtCore/QFile>
#include <QtCore/QScopeGuard>
#include <QtWidgets/QApplication>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QFrame>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMainWindow>
#include <QtWidgets/QMenu>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QStatusBar>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

const QColor Grey(191, 191, 191);
const QColor Ink(68, 68, 68);
const QColor On(0, 75, 135);

QString sheet(const QString &path)
{
    QFile file(path);
    return file.open(QFile::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

bool alike(const QColor &a, const QColor &b)
{
    constexpr int Slack = 12;
    return qAbs(a.red() - b.red()) <= Slack && qAbs(a.green() - b.green()) <= Slack
        && qAbs(a.blue() - b.blue()) <= Slack;
}

bool shows(QWidget *widget, const QRect &rect, const QColor &colour)
{
    const QImage image = widget->grab(rect).toImage();
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (alike(image.pixelColor(x, y), colour))
                return true;
        }
    }
    return false;
}

bool shows(QWidget *widget, const QColor &colour)
{
    return shows(widget, widget->rect(), colour);
}

} // namespace

class StyleHooks : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void verticalPanelIs35Wide();
    void separatorOfVerticalPanelIsOnePixelHigh();
    void panelHasALineTowardsTheContent_data();
    void panelHasALineTowardsTheContent();
    void horizontalPanelIsGreyWithThinSeparators();
    void tabifiedViewHasALineAbove();
    void statusBarOfTheDock();
    void scrollBarArrows_data();
    void scrollBarArrows();
    void indicators();
    void spinAndComboArrows();
    void ribbonSheetEndsWithItsBarAndTheFrameSheetStays();
};

void StyleHooks::verticalPanelIs35Wide()
{
    QWidget host;
    host.setStyleSheet(sheet(u":/res/dockLight.css"_s));
    auto *layout = new QHBoxLayout(&host);
    auto *panel = new Norvane::DockPanel(Qt::Vertical);
    layout->addWidget(panel);
    layout->addWidget(new QWidget, 1);
    host.resize(300, 200);
    host.show();
    QCOMPARE(panel->width(), 35);
    QCOMPARE(panel->grab().toImage().pixelColor(17, 50), QColor(230, 230, 230));
}

void StyleHooks::separatorOfVerticalPanelIsOnePixelHigh()
{
    QWidget host;
    host.setStyleSheet(sheet(u":/res/dockLight.css"_s));
    auto *hostLayout = new QHBoxLayout(&host);
    auto *panel = new Norvane::DockPanel(Qt::Vertical);
    hostLayout->addWidget(panel);
    panel->addSeparator();
    auto *separator = panel->findChild<QFrame *>();
    panel->addButton(u"view"_s, QIcon());
    host.resize(300, 200);
    host.show();
    QCOMPARE(separator->height(), 1);
    QCOMPARE(separator->grab().toImage().pixelColor(separator->width() / 2, 0), Grey);
}

void StyleHooks::panelHasALineTowardsTheContent_data()
{
    QTest::addColumn<bool>("lineAtLeft");
    QTest::addColumn<bool>("lineAtRight");
    QTest::newRow("left") << false << true;
    QTest::newRow("right") << true << false;
    QTest::newRow("bottom") << false << false;
}

void StyleHooks::panelHasALineTowardsTheContent()
{
    QFETCH(bool, lineAtLeft);
    QFETCH(bool, lineAtRight);
    QWidget host;
    host.setStyleSheet(sheet(u":/res/dockLight.css"_s));
    const bool across = qstrcmp(QTest::currentDataTag(), "bottom") == 0;
    Norvane::DockPanel panel(across ? Qt::Horizontal : Qt::Vertical, &host);
    panel.setMaximumWidth(60);
    panel.setMinimumWidth(60);
    panel.setProperty("direction", QString::fromLatin1(QTest::currentDataTag()));
    panel.setGeometry(0, 0, 60, 100);
    host.show();
    const QImage image = panel.grab().toImage();
    const int right = image.width() - 1;
    QCOMPARE(image.pixelColor(0, 90) == Grey, lineAtLeft);
    QCOMPARE(image.pixelColor(right, 90) == Grey, lineAtRight);
    QCOMPARE(image.pixelColor(1, 90), QColor(230, 230, 230));
    QCOMPARE(image.pixelColor(right - 1, 90), QColor(230, 230, 230));
}

void StyleHooks::horizontalPanelIsGreyWithThinSeparators()
{
    qApp->setStyleSheet(sheet(u":/norvane/norvanelight.css"_s));
    const auto restore = qScopeGuard([] { qApp->setStyleSheet({}); });
    Norvane::DockPanel panel(Qt::Horizontal);
    auto *separator = panel.findChild<QFrame *>();
    auto *line = new QFrame(&panel);
    line->setFrameShape(QFrame::HLine);
    panel.layout()->addWidget(line);
    panel.setFixedSize(200, 35);
    panel.show();
    QCOMPARE(panel.grab().toImage().pixelColor(2, 17), QColor(230, 230, 230));
    QCOMPARE(separator->width(), 1);
    QCOMPARE(separator->grab().toImage().pixelColor(0, separator->height() / 2), Grey);
    QCOMPARE_GT(line->maximumWidth(), 1);
}

void StyleHooks::tabifiedViewHasALineAbove()
{
    for (const bool tabified : {false, true}) {
        QWidget host;
        host.setStyleSheet(sheet(u":/res/dockLight.css"_s));
        Norvane::DockView view;
        view.setParent(&host);
        view.setProperty("tabified", tabified);
        view.setGeometry(0, 0, 80, 60);
        host.show();
        const QImage image = view.grab().toImage();
        QCOMPARE(image.pixelColor(40, 0) == Grey, tabified);
        for (const QPoint &inside : {QPoint(40, 1), QPoint(0, 40), QPoint(79, 40), QPoint(40, 59)})
            QVERIFY(image.pixelColor(inside) != Grey);
    }
}

void StyleHooks::statusBarOfTheDock()
{
    qApp->setStyleSheet(sheet(u":/norvane/norvanelight.css"_s));
    const auto restore = qScopeGuard([] { qApp->setStyleSheet({}); });
    QMainWindow window;
    QStatusBar *bar = window.statusBar();
    bar->setObjectName(u"dockStatusBar"_s);
    window.resize(300, 200);
    window.show();
    // 35 and the line above them.
    QCOMPARE(bar->height(), 36);
    window.resize(300, 400);
    QCOMPARE(bar->height(), 36);
    const QImage image = bar->grab().toImage();
    QCOMPARE(image.pixelColor(100, 0), Grey);
    QCOMPARE(image.pixelColor(100, 1), QColor(230, 230, 230));

    QMainWindow plainWindow;
    QStatusBar *plain = plainWindow.statusBar();
    plainWindow.resize(300, 200);
    plainWindow.show();
    QCOMPARE_LT(plain->height(), 35);
    QVERIFY(plain->grab().toImage().pixelColor(100, 0) != Grey);
}

void StyleHooks::scrollBarArrows_data()
{
    QTest::addColumn<Qt::Orientation>("orientation");
    QTest::addColumn<bool>("first");
    QTest::newRow("up") << Qt::Vertical << true;
    QTest::newRow("down") << Qt::Vertical << false;
    QTest::newRow("left") << Qt::Horizontal << true;
    QTest::newRow("right") << Qt::Horizontal << false;
}

void StyleHooks::scrollBarArrows()
{
    QFETCH(Qt::Orientation, orientation);
    QFETCH(bool, first);
    QWidget host;
    host.setStyleSheet(sheet(u":/res/dockLight.css"_s));
    auto *bar = new QScrollBar(orientation, &host);
    bar->setRange(0, 100);
    bar->setValue(50);
    const bool vertical = orientation == Qt::Vertical;
    bar->setGeometry(0, 0, vertical ? 17 : 200, vertical ? 200 : 17);
    host.resize(200, 200);
    host.show();
    const int end = first ? 0 : 183;
    const QRect button(vertical ? 0 : end, vertical ? end : 0, 17, 17);
    QVERIFY(shows(bar, button, Ink));
    QVERIFY(!shows(bar, button, Qt::white));
    QCOMPARE(bar->grab(button).toImage().pixelColor(1, 1), QColor(241, 241, 241));

    QTest::mousePress(bar, Qt::LeftButton, {}, button.center());
    QCOMPARE(bar->value(), first ? 49 : 51);
    QVERIFY(shows(bar, button, Qt::white));
    QVERIFY(!shows(bar, button, Ink));
    QCOMPARE(bar->grab(button).toImage().pixelColor(1, 1), QColor(120, 120, 120));
    QTest::mouseRelease(bar, Qt::LeftButton, {}, button.center());
    QVERIFY(shows(bar, button, Ink));
}

void StyleHooks::indicators()
{
    QWidget host;
    host.setStyleSheet(sheet(u":/res/ribbonLight.css"_s));
    auto *layout = new QVBoxLayout(&host);
    auto *box = new QCheckBox;
    layout->addWidget(box);
    auto *radio = new QRadioButton;
    layout->addWidget(radio);
    host.show();
    for (QAbstractButton *button :
         {static_cast<QAbstractButton *>(box), static_cast<QAbstractButton *>(radio)}) {
        QVERIFY(shows(button, Ink));
        QVERIFY(!shows(button, On));
        QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(8, button->height() / 2));
        QVERIFY(button->isChecked());
        QVERIFY(shows(button, On));
        QVERIFY(!shows(button, Ink));
    }
}

void StyleHooks::spinAndComboArrows()
{
    QWidget host;
    host.setStyleSheet(sheet(u":/res/ribbonLight.css"_s));
    auto *layout = new QVBoxLayout(&host);
    auto *spin = new QSpinBox;
    spin->setSpecialValueText(u" "_s);
    layout->addWidget(spin);
    auto *combo = new QComboBox;
    layout->addWidget(combo);
    host.resize(200, 100);
    host.show();
    const QRect buttons(spin->width() - 20, 0, 20, spin->height() / 2);
    QVERIFY(shows(spin, buttons, Ink));
    QVERIFY(shows(spin, buttons.translated(0, spin->height() / 2), Ink));
    QVERIFY(shows(combo, QRect(combo->width() - 20, 0, 20, combo->height()), Ink));
    QVERIFY(!shows(combo, QRect(0, 0, combo->width() - 20, combo->height()), Ink));
}

void StyleHooks::ribbonSheetEndsWithItsBarAndTheFrameSheetStays()
{
    qApp->setStyleSheet(sheet(u":/norvane/norvanelight.css"_s));
    const auto restore = qScopeGuard([] { qApp->setStyleSheet({}); });
    const QColor border(125, 125, 125);
    auto bar = std::make_unique<Norvane::RibbonBar>();
    QLineEdit edit(bar.get());
    edit.setGeometry(10, 40, 80, 24);
    bar->show();
    QCOMPARE(edit.grab().toImage().pixelColor(0, 12), border);

    edit.setParent(nullptr);
    bar.reset();
    edit.show();
    QVERIFY(edit.grab().toImage().pixelColor(0, 12) != border);

    QMenu menu;
    QAction *action = menu.addAction(u"Open"_s);
    menu.popup(QPoint(0, 0));
    // 28 and the line around it.
    QCOMPARE(menu.actionGeometry(action).height(), 30);
    QCOMPARE(menu.grab().toImage().pixelColor(0, menu.height() / 2), border);
}

NORVANE_TEST_MAIN(StyleHooks)
#include "tst_StyleHooks.moc"
