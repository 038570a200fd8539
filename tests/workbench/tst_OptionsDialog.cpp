// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "WorkbenchWindow.h"

#include "options/Options.h"
#include "options/OptionsDialog.h"
#include "text/TextOptions.h"

#include <QtCore/QSettings>
#include <QtGui/QFontInfo>
#include <QtTest/QSignalSpy>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QFontComboBox>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QStackedWidget>

using namespace Qt::StringLiterals;
using namespace Workbench;

class tst_OptionsDialog : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void showsTheOptions();
    void keepsWhatIsAccepted();
    void dropsWhatIsCancelled();
    void restoresTheDefaults();
    void readsSuffixesHoweverTheyAreWritten();
    void changesTheTextsInFront();
    void leavesTheLayoutAsItIs();

protected Q_SLOTS:
    void cleanup();
};

namespace {

//! The dialog, and what a user reaches in it.
class Dialog : public OptionsDialog
{
public:
    using OptionsDialog::OptionsDialog;

    void clickCommand(const QString &text)
    {
        const QList<QToolButton *> buttons = findChildren<QToolButton *>();
        for (const QToolButton *button : buttons) {
            if (button->defaultAction() && button->defaultAction()->text() == text)
                Gui::click(button, {button->width() / 2, 11});
        }
    }
    void click(QDialogButtonBox::StandardButton button)
    {
        Gui::click(findChild<QDialogButtonBox *>()->button(button));
    }
    template<typename Widget>
    Widget *visible() const
    {
        const QList<Widget *> widgets = findChildren<Widget *>();
        for (Widget *widget : widgets) {
            if (widget->isVisible())
                return widget;
        }
        return nullptr;
    }
    // Size, then tab width.
    QSpinBox *number(int index) const { return findChildren<QSpinBox *>().at(index); }
};

} // namespace

void tst_OptionsDialog::initTestCase()
{
    QCoreApplication::setOrganizationName(u"Norvane"_s);
    QCoreApplication::setApplicationName(u"workbench-test"_s);
}

void tst_OptionsDialog::cleanup()
{
    QSettings().clear();
    TestCase::cleanup();
}

void tst_OptionsDialog::showsTheOptions()
{
    Options options;
    options.text()->setTabWidth(7);
    options.setSuffixes({u"abc"_s, u"def"_s});
    options.setKeepsLayout(false);
    Dialog dialog(&options);
    QVERIFY(Gui::open(&dialog));
    QCOMPARE(dialog.visible<QFontComboBox>()->currentFont().family(),
             QFontInfo(options.text()->font()).family());
    QCOMPARE(dialog.number(0)->value(), options.text()->font().pointSize());
    QCOMPARE(dialog.number(1)->value(), 7);
    dialog.clickCommand(u"Files"_s);
    QVERIFY(!dialog.visible<QSpinBox>());
    QCOMPARE(dialog.visible<QPlainTextEdit>()->toPlainText(), u"abc def"_s);
    dialog.clickCommand(u"Window"_s);
    QVERIFY(!dialog.visible<QPlainTextEdit>());
    QVERIFY(!dialog.visible<QCheckBox>()->isChecked());
    dialog.clickCommand(u"Texts"_s);
    QVERIFY(dialog.visible<QSpinBox>());
}

void tst_OptionsDialog::keepsWhatIsAccepted()
{
    {
        Options options;
        Dialog dialog(&options);
        QVERIFY(Gui::open(&dialog));
        dialog.number(0)->setValue(21);
        dialog.number(1)->setValue(3);
        dialog.clickCommand(u"Window"_s);
        auto *keep = dialog.visible<QCheckBox>();
        Gui::click(keep, {10, keep->height() / 2});
        QCOMPARE(options.text()->tabWidth(), TextOptions::defaultTabWidth);
        dialog.click(QDialogButtonBox::Ok);
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
        QCOMPARE(options.text()->tabWidth(), 3);
    }
    const Options later;
    QCOMPARE(later.text()->font().pointSize(), 21);
    QCOMPARE(later.text()->tabWidth(), 3);
    QVERIFY(!later.keepsLayout());
    QCOMPARE(later.suffixes(), Options::defaultSuffixes());
}

void tst_OptionsDialog::dropsWhatIsCancelled()
{
    Options options;
    const QSignalSpy changes(options.text(), &TextOptions::changed);
    Dialog dialog(&options);
    QVERIFY(Gui::open(&dialog));
    dialog.number(1)->setValue(9);
    dialog.clickCommand(u"Files"_s);
    dialog.visible<QPlainTextEdit>()->setPlainText(u"xyz"_s);
    dialog.click(QDialogButtonBox::Cancel);
    QCOMPARE(dialog.result(), int(QDialog::Rejected));
    QCOMPARE(changes.count(), 0);
    QCOMPARE(options.suffixes(), Options::defaultSuffixes());
    QCOMPARE(Options().text()->tabWidth(), TextOptions::defaultTabWidth);
}

void tst_OptionsDialog::restoresTheDefaults()
{
    Options options;
    options.text()->setTabWidth(11);
    options.setSuffixes({});
    options.setKeepsLayout(false);
    Dialog dialog(&options);
    QVERIFY(Gui::open(&dialog));
    dialog.clickCommand(u"Restore\nDefaults"_s);
    QCOMPARE(options.text()->tabWidth(), 11);
    dialog.click(QDialogButtonBox::Ok);
    QCOMPARE(options.text()->tabWidth(), TextOptions::defaultTabWidth);
    QCOMPARE(options.suffixes(), Options::defaultSuffixes());
    QVERIFY(options.suffixes().contains(u"txt"_s));
    QVERIFY(options.suffixes().contains(u"png"_s));
    QVERIFY(options.keepsLayout());
}

void tst_OptionsDialog::readsSuffixesHoweverTheyAreWritten()
{
    Options options;
    const QSignalSpy changes(&options, &Options::suffixesChanged);
    Dialog dialog(&options);
    QVERIFY(Gui::open(&dialog));
    dialog.clickCommand(u"Files"_s);
    dialog.visible<QPlainTextEdit>()->setPlainText(u" .TXT, *.md;\n txt\tlog ,,"_s);
    dialog.click(QDialogButtonBox::Ok);
    QCOMPARE(options.suffixes(), QStringList({u"txt"_s, u"md"_s, u"log"_s}));
    QCOMPARE(changes.count(), 1);
}

void tst_OptionsDialog::changesTheTextsInFront()
{
    const Files files;
    const WorkbenchWindow window({files.write(u"a.txt"_s, "a\tb")});
    const qreal before = window.editor()->tabStopDistance();
    const ModalAnswer answer([](QWidget *dialog) {
        const QList<QSpinBox *> numbers = dialog->findChildren<QSpinBox *>();
        numbers.at(1)->setValue(8);
        Gui::click(dialog->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok));
    });
    window.key(Qt::Key_Comma, Qt::ControlModifier);
    QVERIFY(answer.answered);
    QCOMPARE(window.editor()->tabStopDistance(), 2 * before);
    QVERIFY(!window.document()->isModified());
}

void tst_OptionsDialog::leavesTheLayoutAsItIs()
{
    Options().setKeepsLayout(false);
    // Within the screen, beyond which no geometry is restored.
    const QSize small(780, 640);
    {
        WorkbenchWindow window;
        QVERIFY(window.size() != small);
        window.resize(small);
        window.close();
    }
    QVERIFY(WorkbenchWindow().size() != small);
    Options().setKeepsLayout(true);
    {
        WorkbenchWindow window;
        window.resize(small);
        window.close();
    }
    QCOMPARE(WorkbenchWindow().size(), small);
}

NORVANE_TEST_MAIN(tst_OptionsDialog)
#include "tst_OptionsDialog.moc"
