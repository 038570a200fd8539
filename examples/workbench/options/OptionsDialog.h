// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtWidgets/QDialog>

class NorvaneAgent;
class QCheckBox;
class QFontComboBox;
class QPlainTextEdit;
class QSpinBox;
class QStackedWidget;

namespace Workbench {

class Options;

//! Lets the user change the options, which take effect when the dialog is accepted.
class OptionsDialog : public QDialog
{
    Q_OBJECT

public:
    explicit OptionsDialog(Options *options, QWidget *parent = nullptr);

    void accept() override;

private:
    QWidget *makeTextForm();
    QWidget *makeFilesForm();
    QWidget *makeWindowForm();
    void fillRibbon();
    void fill(const QFont &font, int tabWidth, const QStringList &suffixes, bool keepLayout);
    void showDefaults();
    void showSample();
    QFont font() const;
    QStringList suffixes() const;

    Options *m_options;
    NorvaneAgent *m_agent;
    QStackedWidget *m_forms;
    QFontComboBox *m_family;
    QSpinBox *m_size;
    QSpinBox *m_tabWidth;
    QPlainTextEdit *m_sample;
    QPlainTextEdit *m_suffixes;
    QCheckBox *m_keepLayout;
};

} // namespace Workbench
