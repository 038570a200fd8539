// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "Gui.h"
#include "TestCase.h"

#include <dock/DockButton.h>
#include <dock/DockPanel.h>
#include <style/StyleSheet.h>

#include <QtTest/QSignalSpy>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QButtonGroup>

using namespace Norvane;
using namespace Qt::StringLiterals;

class tst_DockPanel : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void isLaidOutByItsOrientation();
    void startsWithASeparatorWhenHorizontal();
    void numbersItsButtonsInOrder();
    void checksOnlyTheFirstButton();
    void followsClicks();
    void emitsNothingForCalls();
    void growsAButtonWithASecondView();
    void ignoresIndexesOutOfRange();
    void hidesButtons();
    void keepsTheWidthOfItsContents();
    void hasItsHeightBeforeItIsLaidOut();
    void drawsSeparatorsAcross();
};

namespace {

QIcon icon(Qt::GlobalColor colour = Qt::red)
{
    QPixmap pixmap(24, 24);
    pixmap.fill(colour);
    return QIcon(pixmap);
}

QList<DockButton *> buttonsOf(const DockPanel &panel)
{
    return panel.findChildren<DockButton *>(Qt::FindDirectChildrenOnly);
}

QList<QFrame *> separatorsOf(const DockPanel &panel)
{
    return panel.findChildren<QFrame *>(Qt::FindDirectChildrenOnly);
}

QList<bool> checksOf(const DockPanel &panel)
{
    QList<bool> checks;
    const QList<DockButton *> buttons = buttonsOf(panel);
    for (const DockButton *button : buttons)
        checks << button->isChecked();
    return checks;
}

} // namespace

void tst_DockPanel::isLaidOutByItsOrientation()
{
    const DockPanel column(Qt::Vertical);
    QCOMPARE(column.orientation(), Qt::Vertical);
    QCOMPARE(column.property("orientation"), u"vertical"_s);
    QVERIFY(qobject_cast<QVBoxLayout *>(column.layout()));
    QCOMPARE(column.layout()->contentsMargins(), QMargins(0, 6, 0, 6));
    QCOMPARE(column.layout()->alignment(), Qt::AlignTop | Qt::AlignHCenter);
    QCOMPARE(column.layout()->spacing(), 6);
    QCOMPARE(column.sizePolicy().verticalPolicy(), QSizePolicy::Expanding);

    const DockPanel row(Qt::Horizontal);
    QCOMPARE(row.orientation(), Qt::Horizontal);
    QCOMPARE(row.property("orientation"), u"horizontal"_s);
    QVERIFY(qobject_cast<QHBoxLayout *>(row.layout()));
    QCOMPARE(row.layout()->contentsMargins(), QMargins(6, 0, 6, 0));
    QCOMPARE(row.layout()->alignment(), Qt::AlignLeft | Qt::AlignVCenter);
    QCOMPARE(row.layout()->spacing(), 6);
    QCOMPARE(row.sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);

    const auto *group = row.findChild<QButtonGroup *>(Qt::FindDirectChildrenOnly);
    QVERIFY(group);
    QVERIFY(!group->exclusive());
}

void tst_DockPanel::startsWithASeparatorWhenHorizontal()
{
    const DockPanel row(Qt::Horizontal);
    QCOMPARE(separatorsOf(row).size(), 1);
    QCOMPARE(separatorsOf(row).constFirst()->frameShape(), QFrame::VLine);
    QCOMPARE(separatorsOf(DockPanel(Qt::Vertical)).size(), 0);
}

void tst_DockPanel::numbersItsButtonsInOrder()
{
    DockPanel panel(Qt::Vertical);
    QCOMPARE(panel.addButton(u"a"_s, icon()), 0);
    panel.addSeparator();
    QCOMPARE(panel.addButton(u"b"_s, icon()), 1);
    QCOMPARE(panel.addButton(QString(), QIcon()), 2);
    panel.resize(35, 300);
    QVERIFY(Gui::open(&panel));
    int y = 6;
    const int lineHeight = separatorsOf(panel).constFirst()->height();
    const QList<DockButton *> buttons = buttonsOf(panel);
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(buttons.at(i)->y(), y);
        QCOMPARE(buttons.at(i)->size(), QSize(30, 30));
        QCOMPARE(buttons.at(i)->iconSize(), QSize(24, 24));
        y += 30 + 6 + (i == 0 ? lineHeight + 6 : 0);
    }
}

void tst_DockPanel::checksOnlyTheFirstButton()
{
    DockPanel panel(Qt::Vertical);
    QCOMPARE(panel.checkedId(), -1);
    QSignalSpy changed(&panel, &DockPanel::signalCurrentChanged);
    for (int i = 0; i < 3; ++i)
        panel.addButton(QString::number(i), icon());
    QCOMPARE(checksOf(panel), QList<bool>({true, false, false}));
    QCOMPARE(panel.checkedId(), 0);
    QCOMPARE(changed.count(), 0);
}

void tst_DockPanel::followsClicks()
{
    DockPanel panel(Qt::Vertical);
    for (int i = 0; i < 3; ++i)
        panel.addButton(QString::number(i), icon());
    panel.resize(35, 300);
    QVERIFY(Gui::open(&panel));
    QSignalSpy changed(&panel, &DockPanel::signalCurrentChanged);
    const QList<DockButton *> buttons = buttonsOf(panel);

    Gui::click(buttons.at(2));
    QCOMPARE(checksOf(panel), QList<bool>({false, false, true}));
    QCOMPARE(changed, QList<QVariantList>({{2}}));
    Gui::click(buttons.at(2));
    QCOMPARE(checksOf(panel), QList<bool>({false, false, false}));
    QCOMPARE(panel.checkedId(), -1);
    QCOMPARE(changed, QList<QVariantList>({{2}, {-1}}));
    Gui::click(buttons.at(1));
    QCOMPARE(checksOf(panel), QList<bool>({false, true, false}));
    QCOMPARE(changed, QList<QVariantList>({{2}, {-1}, {1}}));

    buttons.at(0)->setFocus();
    QTest::keyClick(buttons.at(0), Qt::Key_Space);
    QCOMPARE(checksOf(panel), QList<bool>({true, false, false}));
    QCOMPARE(changed.count(), 4);
}

void tst_DockPanel::emitsNothingForCalls()
{
    DockPanel panel(Qt::Horizontal);
    for (int i = 0; i < 3; ++i)
        panel.addButton(QString::number(i), icon());
    QSignalSpy changed(&panel, &DockPanel::signalCurrentChanged);
    panel.setCurrentIndex(1);
    QCOMPARE(checksOf(panel), QList<bool>({false, true, false}));
    panel.setChecked(2, true);
    QCOMPARE(checksOf(panel), QList<bool>({false, true, true}));
    panel.setCurrentIndex(2);
    QCOMPARE(checksOf(panel), QList<bool>({false, false, true}));
    panel.setChecked(2, false);
    QCOMPARE(checksOf(panel), QList<bool>({false, false, false}));
    panel.setButtonVisible(0, false);
    QCOMPARE(changed.count(), 0);
}

void tst_DockPanel::growsAButtonWithASecondView()
{
    for (Qt::Orientation orientation : {Qt::Vertical, Qt::Horizontal}) {
        DockPanel panel(orientation);
        panel.addButton(u"a"_s, icon());
        panel.addButton(u"b"_s, icon());
        panel.tabifyButton(1, u"c"_s, icon(Qt::blue));
        const QList<DockButton *> buttons = buttonsOf(panel);
        QCOMPARE(buttons.at(0)->size(), QSize(30, 30));
        QCOMPARE(buttons.at(1)->size(), QSize(30, 57));
        QCOMPARE(buttons.at(1)->iconSize(), QSize(24, 51));
        QCOMPARE(buttons.at(1)->texts(), QStringList({u"b"_s, u"c"_s}));
        QCOMPARE(buttons.at(1)->icons().size(), 2);
        QCOMPARE(panel.addButton(u"d"_s, icon()), 2);
    }
}

void tst_DockPanel::ignoresIndexesOutOfRange()
{
    DockPanel panel(Qt::Vertical);
    QCOMPARE(panel.tabifyButton(0, u"a"_s, icon()), -1);
    panel.addButton(u"a"_s, icon());
    for (int index : {-2, -1, 1, 1000}) {
        panel.setCurrentIndex(index);
        panel.setChecked(index, true);
        panel.setButtonVisible(index, false);
        QCOMPARE(panel.tabifyButton(index, u"b"_s, icon()), -1);
    }
    QCOMPARE(checksOf(panel), QList<bool>({true}));
    QCOMPARE(buttonsOf(panel).constFirst()->texts(), QStringList({u"a"_s}));
    QVERIFY(!buttonsOf(panel).constFirst()->isHidden());
}

void tst_DockPanel::hidesButtons()
{
    DockPanel panel(Qt::Vertical);
    for (int i = 0; i < 3; ++i)
        panel.addButton(QString::number(i), icon());
    panel.resize(35, 300);
    QVERIFY(Gui::open(&panel));
    const QList<DockButton *> buttons = buttonsOf(panel);
    panel.setButtonVisible(1, false);
    QVERIFY(!buttons.at(1)->isVisible());
    QTRY_COMPARE(buttons.at(2)->y(), 6 + 30 + 6);
    panel.setButtonVisible(1, true);
    QVERIFY(buttons.at(1)->isVisible());
    QTRY_COMPARE(buttons.at(2)->y(), 6 + 2 * (30 + 6));
}

void tst_DockPanel::keepsTheWidthOfItsContents()
{
    for (bool shown : {false, true}) {
        QWidget window;
        window.resize(600, 100);
        auto *panel = new DockPanel(Qt::Horizontal, &window);
        if (shown)
            QVERIFY(Gui::open(&window));
        const int line = separatorsOf(*panel).constFirst()->sizeHint().width();
        QCOMPARE(panel->width(), 6 + line + 6);
        panel->addButton(u"a"_s, icon());
        QCOMPARE(panel->width(), 6 + line + 6 + 30 + 6);
        panel->addSeparator();
        panel->addButton(u"b"_s, icon());
        QCOMPARE(panel->width(), 6 + line + 6 + 30 + 6 + line + 6 + 30 + 6);
        QCOMPARE(panel->minimumWidth(), panel->maximumWidth());
    }
}

void tst_DockPanel::hasItsHeightBeforeItIsLaidOut()
{
    DockPanel panel(Qt::Horizontal);
    QCOMPARE(panel.height(), 30);
    panel.addButton(u"a"_s, icon());
    QCOMPARE(panel.height(), 30);
    QCOMPARE(panel.sizeHint().height(), 30);
}

void tst_DockPanel::drawsSeparatorsAcross()
{
    DockPanel column(Qt::Vertical);
    column.addSeparator();
    QCOMPARE(separatorsOf(column).constFirst()->frameShape(), QFrame::HLine);
    column.setStyleSheet(StyleSheet::read(u":/res/dockLight.css"_s));
    column.addButton(u"a"_s, icon());
    column.resize(35, 200);
    QVERIFY(Gui::open(&column));
    DockPanel row(Qt::Horizontal);
    row.addSeparator();
    QCOMPARE(separatorsOf(row).constLast()->frameShape(), QFrame::VLine);
    const QFrame *line = separatorsOf(column).constFirst();
    QCOMPARE(line->height(), 1);
    QCOMPARE(Gui::pixel(&column, line->geometry().center()), QColor(191, 191, 191));
}

NORVANE_TEST_MAIN(tst_DockPanel)
#include "tst_DockPanel.moc"
