// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "options/OptionsDialog.h"

#include "Icons.h"
#include "options/Options.h"
#include "text/TextOptions.h"

#include <Norvane/NorvaneAgent.h>
#include <Norvane/RibbonBar.h>
#include <Norvane/RibbonGroup.h>
#include <Norvane/RibbonPage.h>

#include <QtCore/QRegularExpression>
#include <QtGui/QAction>
#include <QtGui/QActionGroup>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QFontComboBox>
#include <QtWidgets/QFormLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QStackedWidget>

namespace Workbench {

using namespace Qt::StringLiterals;

OptionsDialog::OptionsDialog(Options *options, QWidget *parent)
    : QDialog(parent)
    , m_options(options)
    , m_agent(new NorvaneAgent(this))
    , m_forms(new QStackedWidget)
{
    setWindowTitle(tr("Options"));
    m_forms->addWidget(makeTextForm());
    m_forms->addWidget(makeFilesForm());
    m_forms->addWidget(makeWindowForm());
    m_forms->setContentsMargins(16, 16, 16, 8);

    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    buttons->setContentsMargins(16, 8, 16, 12);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto *content = new QWidget;
    auto *column = new QVBoxLayout(content);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(m_forms, 1);
    column->addWidget(buttons);
    m_agent->setup(this, content);
    fillRibbon();

    fill(options->text()->font(), options->text()->tabWidth(), options->suffixes(),
         options->keepsLayout());
    resize(500, 460);
    m_family->setFocus();
}

void OptionsDialog::accept()
{
    m_options->text()->setFont(font());
    m_options->text()->setTabWidth(m_tabWidth->value());
    m_options->setSuffixes(suffixes());
    m_options->setKeepsLayout(m_keepLayout->isChecked());
    QDialog::accept();
}

QWidget *OptionsDialog::makeTextForm()
{
    m_family = new QFontComboBox;
    m_family->setEditable(false);
    m_family->setFontFilters(QFontComboBox::ScalableFonts);
    m_size = new QSpinBox;
    m_size->setRange(6, 72);
    m_size->setSuffix(tr(" pt"));
    m_tabWidth = new QSpinBox;
    m_tabWidth->setRange(1, 16);
    m_sample = new QPlainTextEdit(
        u"The quick brown fox\n\tjumps over\n\t\tthe lazy dog.\n0123456789 {}[]()"_s);
    m_sample->setReadOnly(true);
    m_sample->setFocusPolicy(Qt::NoFocus);
    m_sample->setLineWrapMode(QPlainTextEdit::NoWrap);
    connect(m_family, &QFontComboBox::currentFontChanged, this, &OptionsDialog::showSample);
    connect(m_size, &QSpinBox::valueChanged, this, &OptionsDialog::showSample);
    connect(m_tabWidth, &QSpinBox::valueChanged, this, &OptionsDialog::showSample);
    connect(m_tabWidth, &QSpinBox::valueChanged, this, [this](int spaces) {
        m_tabWidth->setSuffix(spaces == 1 ? tr(" space") : tr(" spaces"));
    });

    auto *form = new QWidget;
    auto *rows = new QFormLayout(form);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->addRow(tr("&Font:"), m_family);
    rows->addRow(tr("Si&ze:"), m_size);
    rows->addRow(tr("&Tab width:"), m_tabWidth);
    rows->addRow(tr("Sample:"), m_sample);
    return form;
}

QWidget *OptionsDialog::makeFilesForm()
{
    auto *about = new QLabel(tr("Files with these &endings open here when they are double-clicked "
                                "in the Files panel. All others open in the system's program."));
    about->setWordWrap(true);
    m_suffixes = new QPlainTextEdit;
    m_suffixes->setTabChangesFocus(true);
    about->setBuddy(m_suffixes);

    auto *form = new QWidget;
    auto *column = new QVBoxLayout(form);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(about);
    column->addWidget(m_suffixes, 1);
    return form;
}

QWidget *OptionsDialog::makeWindowForm()
{
    m_keepLayout = new QCheckBox(tr("&Keep the layout"));
    auto *about = new QLabel(tr("The window and its panels come back where they were when the "
                                "program was closed."));
    about->setWordWrap(true);
    about->setIndent(22);

    auto *form = new QWidget;
    auto *column = new QVBoxLayout(form);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(m_keepLayout);
    column->addWidget(about);
    column->addStretch(1);
    return form;
}

void OptionsDialog::fillRibbon()
{
    Norvane::RibbonPage *page = m_agent->ribbonBar()->addPage(tr("Options"), false);
    Norvane::RibbonGroup *forms = page->addGroup(tr("Options for"));
    auto *choice = new QActionGroup(this);
    const auto addForm = [&](const QString &text, QLatin1StringView picture,
                             const QString &toolTip) {
        auto *action = new QAction(icon(picture), text, choice);
        action->setCheckable(true);
        action->setToolTip(toolTip);
        const int index = int(choice->actions().size()) - 1;
        connect(action, &QAction::triggered, this,
                [this, index] { m_forms->setCurrentIndex(index); });
        action->setChecked(index == 0);
        forms->addAction(action);
    };
    addForm(tr("Texts"), "options-text"_L1, tr("How texts are shown"));
    addForm(tr("Files"), "options-files"_L1, tr("Which files open in this program"));
    addForm(tr("Window"), "options-window"_L1, tr("What the program remembers of its window"));

    auto *defaults = new QAction(icon("options-defaults"_L1), tr("Restore\nDefaults"), this);
    defaults->setToolTip(tr("Set all options to what they were at first"));
    connect(defaults, &QAction::triggered, this, &OptionsDialog::showDefaults);
    page->addGroup(tr("All Options"))->addAction(defaults);
}

void OptionsDialog::fill(const QFont &font, int tabWidth, const QStringList &suffixes,
                         bool keepLayout)
{
    m_family->setCurrentFont(font);
    m_size->setValue(font.pointSize());
    m_tabWidth->setValue(tabWidth);
    m_suffixes->setPlainText(suffixes.join(u' '));
    m_keepLayout->setChecked(keepLayout);
    showSample();
}

void OptionsDialog::showDefaults()
{
    fill(TextOptions::defaultFont(), TextOptions::defaultTabWidth, Options::defaultSuffixes(),
         true);
}

void OptionsDialog::showSample()
{
    m_sample->setFont(font());
    m_sample->setTabStopDistance(m_tabWidth->value()
                                 * QFontMetricsF(m_sample->font()).horizontalAdvance(u' '));
}

QFont OptionsDialog::font() const
{
    QFont font = m_options->text()->font();
    font.setFamilies({m_family->currentFont().family()});
    font.setPointSize(m_size->value());
    return font;
}

// However they are separated, with or without their dots.
QStringList OptionsDialog::suffixes() const
{
    static const QRegularExpression between(u"[\\s,;*.]+"_s);
    QStringList suffixes = m_suffixes->toPlainText().toLower().split(between, Qt::SkipEmptyParts);
    suffixes.removeDuplicates();
    return suffixes;
}

} // namespace Workbench
