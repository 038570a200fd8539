// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "Gui.h"
#include "TestCase.h"

#include <dock/DockButton.h>
#include <dock/DockPanel.h>
#include <dock/DockStatusBar.h>

#include <QtWidgets/QLayout>
#include <QtWidgets/QPushButton>

using namespace Norvane;
using namespace Qt::StringLiterals;

class tst_DockStatusBar : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void hasItsName();
    void carriesThePanelAtItsHeight();
    void fitsAPanelThatWasNeverLaidOut();
    void keepsAPanelHiddenThatWasHidden();
    void placesThePanelAtTheOffset();
    void placesThePanelFromTheRight();
    void keepsThePanelInsideOnTheRight();
    void keepsThePanelInPlaceWhenItIsResized();
    void doesNothingWithoutAPanel();
    void survivesItsPanel();
};

namespace {

QWidget *panelOf(int width, int height)
{
    auto *panel = new QWidget;
    panel->setFixedSize(width, height);
    return panel;
}

} // namespace

void tst_DockStatusBar::hasItsName()
{
    const DockStatusBar bar;
    QCOMPARE(bar.objectName(), u"dockStatusBar"_s);
}

void tst_DockStatusBar::carriesThePanelAtItsHeight()
{
    DockStatusBar bar;
    QWidget *panel = panelOf(100, 40);
    auto *row = new QHBoxLayout(panel);
    row->setContentsMargins(9, 9, 9, 9);
    bar.setPanel(panel);
    QCOMPARE(row->contentsMargins(), QMargins(0, 1, 0, 0));
    QWidget *holder = panel->parentWidget();
    QCOMPARE(holder->parentWidget(), &bar);
    QVERIFY(!holder->layout());
    QCOMPARE(holder->height(), 40);
    bar.resize(600, 50);
    QVERIFY(Gui::open(&bar));
    QVERIFY(panel->isVisible());
    QVERIFY(holder->width() > 500);
    panel->setFixedHeight(60);
    QCOMPARE(holder->minimumHeight(), 40);
    QCOMPARE(holder->maximumHeight(), 40);
}

void tst_DockStatusBar::fitsAPanelThatWasNeverLaidOut()
{
    auto *panel = new DockPanel(Qt::Horizontal);
    DockStatusBar bar;
    bar.setPanel(panel);
    QCOMPARE(panel->parentWidget()->height(), 31);
    bar.resize(600, 40);
    QVERIFY(Gui::open(&bar));
    panel->addButton(u"late"_s, QIcon());
    const auto *button = panel->findChild<DockButton *>();
    QTRY_VERIFY(button->isVisible());
    QTRY_COMPARE(button->y(), 1);
    QVERIFY(panel->rect().contains(button->geometry()));
    QVERIFY(bar.rect().contains(QRect(button->mapTo(&bar, QPoint()), button->size())));
}

void tst_DockStatusBar::keepsAPanelHiddenThatWasHidden()
{
    DockStatusBar bar;
    QWidget *panel = panelOf(100, 30);
    panel->hide();
    bar.setPanel(panel);
    QVERIFY(Gui::open(&bar));
    QVERIFY(!panel->isVisible());
}

void tst_DockStatusBar::placesThePanelAtTheOffset()
{
    DockStatusBar bar;
    QWidget *panel = panelOf(100, 30);
    bar.setPanel(panel);
    bar.resize(600, 40);
    QVERIFY(Gui::open(&bar));
    for (int x : {200, 35, 0}) {
        bar.setPanelOffset(x);
        QCOMPARE(panel->mapTo(&bar, QPoint()).x(), x);
        QCOMPARE(panel->y(), 0);
    }
}

void tst_DockStatusBar::placesThePanelFromTheRight()
{
    DockStatusBar bar;
    QWidget *panel = panelOf(100, 30);
    bar.setPanel(panel);
    bar.addPermanentWidget(new QPushButton);
    bar.resize(600, 40);
    QVERIFY(Gui::open(&bar));
    bar.setPanelOffset(35);
    bar.setLayoutDirection(Qt::RightToLeft);
    QTRY_COMPARE(panel->mapTo(&bar, QPoint(100, 0)).x(), 600 - 35);
    bar.setPanelOffset(200);
    QCOMPARE(panel->mapTo(&bar, QPoint(100, 0)).x(), 600 - 200);
    bar.setPanelOffset(10000);
    QCOMPARE(panel->x(), 0);
}

void tst_DockStatusBar::keepsThePanelInsideOnTheRight()
{
    DockStatusBar bar;
    QWidget *panel = panelOf(100, 30);
    bar.setPanel(panel);
    bar.resize(600, 40);
    QVERIFY(Gui::open(&bar));
    const int room = panel->parentWidget()->width();
    const int left = panel->parentWidget()->x();
    bar.setPanelOffset(left + room - 100);
    QCOMPARE(panel->x(), room - 100);
    bar.setPanelOffset(left + room - 99);
    QCOMPARE(panel->x(), room - 100);
    bar.setPanelOffset(10000);
    QCOMPARE(panel->x(), room - 100);
    panel->setFixedWidth(room + 50);
    bar.setPanelOffset(left);
    QCOMPARE(panel->x(), -50);
}

void tst_DockStatusBar::keepsThePanelInPlaceWhenItIsResized()
{
    DockStatusBar bar;
    QWidget *panel = panelOf(100, 30);
    bar.setPanel(panel);
    bar.setPanelOffset(300);
    bar.resize(600, 40);
    QVERIFY(Gui::open(&bar));
    QTRY_COMPARE(panel->mapTo(&bar, QPoint()).x(), 300);
    bar.resize(300, 40);
    QTRY_COMPARE(panel->geometry().right(), panel->parentWidget()->rect().right());
    bar.resize(600, 40);
    QTRY_COMPARE(panel->mapTo(&bar, QPoint()).x(), 300);
}

void tst_DockStatusBar::doesNothingWithoutAPanel()
{
    DockStatusBar bar;
    bar.setPanelOffset(100);
    bar.setPanel(nullptr);
    bar.setPanelOffset(100);
    QVERIFY(Gui::open(&bar));
    QWidget *panel = panelOf(50, 30);
    bar.setPanel(panel);
    QVERIFY(panel->isVisible());
}

void tst_DockStatusBar::survivesItsPanel()
{
    DockStatusBar bar;
    QWidget *panel = panelOf(100, 30);
    bar.setPanel(panel);
    const QWidget *holder = panel->parentWidget();
    QVERIFY(Gui::open(&bar));
    delete panel;
    bar.setPanelOffset(50);
    bar.resize(200, 40);
    QCoreApplication::processEvents();
    QVERIFY(holder->children().isEmpty());
    QCOMPARE(holder->height(), 30);
}

NORVANE_TEST_MAIN(tst_DockStatusBar)
#include "tst_DockStatusBar.moc"
