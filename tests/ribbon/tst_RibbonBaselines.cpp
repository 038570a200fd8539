// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "Baseline.h"
#include "RibbonWindow.h"
#include "TestCase.h"

#include <Norvane/RibbonCorner.h>
#include <Norvane/RibbonSubgroup.h>

#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMenu>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QSpinBox>

using namespace Norvane;

// Whole pages against pictures that were looked at.
class tst_RibbonBaselines : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void page_data();
    void page();
};

namespace {

QAction *addAction(QObject *owner, const QString &text, const QString &icon)
{
    return new QAction(QIcon(QStringLiteral(":/res/%1.svg").arg(icon)), text, owner);
}

void fillControls(RibbonPage *page, QMenu *menu)
{
    menu->addAction(QStringLiteral("Item"));
    RibbonGroup *large = page->addGroup(QStringLiteral("Large"));
    large->addAction(addAction(page, QStringLiteral("One"), QStringLiteral("search")));
    large->addAction(addAction(page, QStringLiteral("Two\nlines"), QStringLiteral("collect")));
    QAction *disabled = addAction(page, QStringLiteral("Disabled"), QStringLiteral("collected"));
    disabled->setEnabled(false);
    large->addAction(disabled);
    QAction *checked = addAction(page, QStringLiteral("Checked"), QStringLiteral("toTop"));
    checked->setCheckable(true);
    checked->setChecked(true);
    large->addAction(checked);
    large->addSeparator();
    large->addMenu(menu, QToolButton::MenuButtonPopup);
    RibbonSubgroup *small = page->addGroup(QStringLiteral("Small"))->addSubgroup();
    small->addAction(addAction(page, QStringLiteral("Small"), QStringLiteral("browse")));
    small->addMenu(menu, QToolButton::InstantPopup);
    small->addActions({disabled, checked, addAction(page, {}, QStringLiteral("toBottom"))});
}

void fillWidgets(RibbonPage *page)
{
    RibbonGroup *group = page->addGroup(QStringLiteral("Widgets"));
    RibbonSubgroup *left = group->addSubgroup();
    left->addWidget(new QSpinBox);
    auto *choice = new QComboBox;
    choice->addItem(QStringLiteral("Choice"));
    left->addWidget(choice);
    left->addWidget(new QLineEdit(QStringLiteral("Text")));
    RibbonSubgroup *right = group->addSubgroup();
    auto *box = new QCheckBox(QStringLiteral("Box"));
    box->setChecked(true);
    right->addWidget(box);
    right->addWidget(new QRadioButton(QStringLiteral("Radio")));
}

} // namespace

void tst_RibbonBaselines::page_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<bool>("rightToLeft");
    QTest::addColumn<int>("index");
    QTest::newRow("controls") << 620 << false << 0;
    QTest::newRow("widgets") << 620 << false << 1;
    QTest::newRow("narrow") << 240 << false << 0;
    QTest::newRow("mirrored") << 620 << true << 0;
}

void tst_RibbonBaselines::page()
{
    QFETCH(int, width);
    QFETCH(bool, rightToLeft);
    QFETCH(int, index);
    QMenu menu(QStringLiteral("Menu"));
    menu.setIcon(QIcon(QStringLiteral(":/res/browse.svg")));
    RibbonWindow window(width);
    if (rightToLeft)
        window.setLayoutDirection(Qt::RightToLeft);
    fillControls(window.bar->addPage(QStringLiteral("Controls"), false), &menu);
    fillWidgets(window.bar->addPage(QStringLiteral("Widgets"), false));
    auto *temporary = new RibbonPage;
    window.bar->addPage(QStringLiteral("Temporary"), temporary, true);
    window.bar->corner()->addWidget(new QLabel(QStringLiteral("Corner")));
    window.bar->setCurrentIndex(index);
    QVERIFY(window.open());
    const QImage actual = Gui::picture(window.bar).convertToFormat(QImage::Format_RGB32);

    const QString wrong = Baseline::compare(actual, QFINDTESTDATA("baselines"));
    QVERIFY2(wrong.isEmpty(), qPrintable(wrong));
}

NORVANE_TEST_MAIN(tst_RibbonBaselines)
#include "tst_RibbonBaselines.moc"
