// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "RibbonWindow.h"
#include "TestCase.h"

using namespace Norvane;

class tst_QuietReparenting : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void stylesNothingThatNobodySees();
    void leavesTheSheetAsItIs_data();
    void leavesTheSheetAsItIs();
    void looksAsIfFilledInItsWindow();
    void survivesManyParents();
};

namespace {

void fill(RibbonBar *bar, QObject *owner)
{
    for (int page = 0; page < 3; ++page) {
        RibbonGroup *group = bar->addPage(QChar(u'A' + page), false)->addGroup(QStringLiteral("G"));
        for (int i = 0; i < 3; ++i)
            group->addAction(new QAction(QStringLiteral("Action"), owner));
    }
}

void place(RibbonBar *bar, QWidget *window)
{
    auto *column = new QVBoxLayout(window);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(bar);
    column->addStretch();
    window->resize(600, 200);
}

} // namespace

void tst_QuietReparenting::stylesNothingThatNobodySees()
{
    QWidget window;
    auto *bar = new RibbonBar;
    fill(bar, &window);
    place(bar, &window);
    for (int i = 0; i < bar->count(); ++i) {
        const QWidgetList widgets = bar->page(i)->group(0)->findChildren<QWidget *>();
        QVERIFY(widgets.size() >= 5);
        for (const QWidget *widget : widgets)
            QVERIFY2(!widget->testAttribute(Qt::WA_StyleSheet), widget->metaObject()->className());
    }
}

void tst_QuietReparenting::leavesTheSheetAsItIs_data()
{
    QTest::addColumn<QString>("application");
    QTest::addColumn<QString>("window");
    QTest::addColumn<QString>("addition");
    const QString rule = QStringLiteral("QLabel { color: red; }");
    QTest::newRow("alone") << QString() << QString() << QString();
    QTest::newRow("sheet of the application") << rule << QString() << QString();
    QTest::newRow("sheet of the window") << QString() << rule << QString();
    QTest::newRow("extended") << QString() << QString() << rule;
    QTest::newRow("all three") << rule << rule << rule;
}

void tst_QuietReparenting::leavesTheSheetAsItIs()
{
    QFETCH(QString, application);
    QFETCH(QString, window);
    QFETCH(QString, addition);
    const auto restore = qScopeGuard([] { qApp->setStyleSheet(QString()); });
    qApp->setStyleSheet(application);
    QWidget parent;
    parent.setStyleSheet(window);
    auto *bar = new RibbonBar;
    bar->setStyleSheet(bar->styleSheet() + addition);
    const QString sheet = bar->styleSheet();
    fill(bar, &parent);
    QCOMPARE(bar->styleSheet(), sheet);
    place(bar, &parent);
    QCOMPARE(bar->styleSheet(), sheet);
    QVERIFY(Gui::open(&parent));
    QCOMPARE(bar->styleSheet(), sheet);
    QCOMPARE(Gui::pixel(Gui::picture(bar), {590, 10}), QColor(0, 64, 115));
}

void tst_QuietReparenting::looksAsIfFilledInItsWindow()
{
    QWidget before;
    auto *filledFirst = new RibbonBar;
    fill(filledFirst, &before);
    place(filledFirst, &before);
    QWidget after;
    auto *filledLast = new RibbonBar;
    place(filledLast, &after);
    fill(filledLast, &after);
    QVERIFY(Gui::open(&before));
    QVERIFY(Gui::open(&after));
    for (int i = 0; i < 3; ++i) {
        filledFirst->setCurrentIndex(i);
        filledLast->setCurrentIndex(i);
        QTRY_COMPARE(Gui::picture(filledFirst), Gui::picture(filledLast));
    }
}

void tst_QuietReparenting::survivesManyParents()
{
    QWidget one;
    RibbonBar bar;
    const QString sheet = bar.styleSheet();
    fill(&bar, &bar);
    for (int i = 0; i < 3; ++i) {
        QWidget two;
        bar.setParent(&one);
        bar.setParent(&two);
        bar.setParent(&two);
        QCOMPARE(bar.styleSheet(), sheet);
        bar.setParent(nullptr);
    }
    bar.setParent(&one);
    QVERIFY(Gui::open(&one));
    bar.setParent(nullptr);
    bar.setStyleSheet(QString());
    bar.setParent(&one);
    QCOMPARE(bar.styleSheet(), QString());
    bar.show();
    QVERIFY(bar.isVisible());
}

NORVANE_TEST_MAIN(tst_QuietReparenting)
#include "tst_QuietReparenting.moc"
