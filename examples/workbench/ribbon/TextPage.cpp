// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "ribbon/TextPage.h"

#include "text/SnippetGallery.h"
#include "text/TextDocument.h"
#include "text/TextEdits.h"
#include "text/TextOptions.h"

#include <Norvane/RibbonGroup.h>
#include <Norvane/RibbonSubgroup.h>

#include <QtCore/QSignalBlocker>
#include <QtGui/QAction>
#include <QtGui/QActionGroup>
#include <QtWidgets/QFontComboBox>
#include <QtWidgets/QMenu>
#include <QtWidgets/QSpinBox>

namespace Workbench {

using namespace Qt::StringLiterals;

TextPage::TextPage(TextOptions *options, QWidget *parent)
    : DocumentPage(parent)
    , m_options(options)
{
    addFontGroup();
    addFileFormatGroup();
    addLinesGroup();
    addCaseGroup();
    addSnippetsGroup();
    TextPage::refresh();
}

void TextPage::addFontGroup()
{
    m_family = new QFontComboBox;
    m_family->setEditable(false);
    m_family->setFontFilters(QFontComboBox::ScalableFonts);
    m_family->setFixedSize(170, 22);
    m_family->setAccessibleName(tr("Font"));
    m_family->setToolTip(tr("The font of all texts"));
    m_size = new QSpinBox;
    m_size->setRange(6, 72);
    m_size->setSuffix(tr(" pt"));
    m_size->setFixedSize(76, 22);
    m_size->setAccessibleName(tr("Font size"));
    m_size->setToolTip(tr("The font size of all texts"));
    showFont();
    connect(m_options, &TextOptions::changed, this, &TextPage::showFont);
    connect(m_family, &QFontComboBox::currentFontChanged, this, [this](const QFont &family) {
        QFont font = m_options->font();
        font.setFamilies({family.family()});
        m_options->setFont(font);
    });
    connect(m_size, &QSpinBox::valueChanged, this, [this](int size) {
        QFont font = m_options->font();
        font.setPointSize(size);
        m_options->setFont(font);
    });

    Norvane::RibbonSubgroup *column = addColumn(addGroup(tr("Font")));
    column->addWidget(m_family);
    column->addWidget(m_size);
}

void TextPage::addFileFormatGroup()
{
    Norvane::RibbonGroup *group = addGroup(tr("File Format"));

    m_encodingMenu =
        addMenuCommand({tr("Encoding"), "encoding"_L1, tr("How the text is stored in the file")});
    m_encodings = new QActionGroup(this);
    const QList<TextCodec::Encoding> encodings = TextCodec::encodings();
    for (TextCodec::Encoding encoding : encodings) {
        QAction *action = m_encodingMenu->addAction(TextCodec::name(encoding));
        action->setCheckable(true);
        action->setData(int(encoding));
        m_encodings->addAction(action);
        connect(action, &QAction::triggered, this,
                [this, encoding] { text()->setEncoding(encoding); });
    }
    group->addMenu(m_encodingMenu, QToolButton::InstantPopup);

    m_lineEndMenu =
        addMenuCommand({tr("Line Ends"), "line-ends"_L1, tr("How every line of the file ends")});
    m_lineEnds = new QActionGroup(this);
    const QList<LineEnds::LineEnd> ends = LineEnds::offered();
    for (LineEnds::LineEnd end : ends) {
        QAction *action = m_lineEndMenu->addAction(LineEnds::name(end));
        action->setCheckable(true);
        action->setData(int(end));
        m_lineEnds->addAction(action);
        connect(action, &QAction::triggered, this, [this, end] { text()->setLineEnd(end); });
    }
    group->addMenu(m_lineEndMenu, QToolButton::InstantPopup);
}

void TextPage::addLinesGroup()
{
    Norvane::RibbonGroup *group = addGroup(tr("Lines"));

    QMenu *sortMenu = addMenuCommand({tr("Sort"),
                                      "sort"_L1,
                                      tr("Sort the selected lines, or all, from A to Z"),
                                      {QKeySequence(u"F9"_s)}});
    const auto ascending = [](QTextCursor *cursor) {
        TextEdits::sortLines(cursor, Qt::AscendingOrder);
    };
    const auto descending = [](QTextCursor *cursor) {
        TextEdits::sortLines(cursor, Qt::DescendingOrder);
    };
    connect(sortMenu->menuAction(), &QAction::triggered, this,
            [this, ascending] { text()->edit(ascending); });
    sortMenu->addAction(addEdit({tr("Sort A to Z"), "sort-ascending"_L1,
                                 tr("Sort the selected lines, or all, from A to Z")},
                                ascending));
    sortMenu->addAction(addEdit({tr("Sort Z to A"),
                                 "sort-descending"_L1,
                                 tr("Sort the selected lines, or all, from Z to A"),
                                 {QKeySequence(u"Shift+F9"_s)}},
                                descending));
    m_edits << sortMenu->menuAction();
    group->addMenu(sortMenu, QToolButton::MenuButtonPopup);

    Norvane::RibbonSubgroup *column = addColumn(group);
    column->addAction(addEdit(
        {tr("Indent"), "indent"_L1, tr("Move the lines to the right"), {QKeySequence(u"Ctrl+]"_s)}},
        &TextEdits::indent));
    column->addAction(addEdit({tr("Outdent"),
                               "outdent"_L1,
                               tr("Move the lines to the left"),
                               {QKeySequence(u"Ctrl+["_s)}},
                              &TextEdits::outdent));
}

void TextPage::addCaseGroup()
{
    Norvane::RibbonSubgroup *column = addColumn(addGroup(tr("Letters")));
    column->addAction(addEdit(
        {tr("Upper Case"),
         "upper-case"_L1,
         tr("Make the selection, or the word, CAPITALS"),
         {QKeySequence(u"Ctrl+Alt+U"_s)}},
        [](QTextCursor *cursor) { TextEdits::setCase(cursor, TextEdits::LetterCase::Upper); }));
    column->addAction(addEdit(
        {tr("Lower Case"),
         "lower-case"_L1,
         tr("Make the selection, or the word, small letters"),
         {QKeySequence(u"Ctrl+Alt+L"_s)}},
        [](QTextCursor *cursor) { TextEdits::setCase(cursor, TextEdits::LetterCase::Lower); }));
}

void TextPage::addSnippetsGroup()
{
    m_snippets = new SnippetGallery;
    connect(m_snippets, &SnippetGallery::picked, this, [this](const QString &snippet) {
        text()->edit([&snippet](QTextCursor *cursor) { TextEdits::insert(cursor, snippet); });
    });
    addColumn(addGroup(tr("Snippets")))->addWidget(m_snippets);
}

QAction *TextPage::addEdit(const Command &command, void (*edit)(QTextCursor *))
{
    QAction *action = addCommand(command);
    connect(action, &QAction::triggered, this, [this, edit] { text()->edit(edit); });
    m_edits << action;
    return action;
}

TextDocument *TextPage::text() const
{
    return qobject_cast<TextDocument *>(document());
}

void TextPage::showFont()
{
    const QSignalBlocker familyBlocker(m_family);
    const QSignalBlocker sizeBlocker(m_size);
    m_family->setCurrentFont(m_options->font());
    m_size->setValue(m_options->font().pointSize());
}

void TextPage::refresh()
{
    const TextDocument *text = this->text();
    const bool editable = text && !text->isReadOnly();
    for (QAction *action : std::as_const(m_edits))
        action->setEnabled(editable);
    m_snippets->setEnabled(editable);
    m_encodingMenu->menuAction()->setEnabled(editable);
    m_lineEndMenu->menuAction()->setEnabled(editable);
    if (!text)
        return;
    const QList<QAction *> encodings = m_encodings->actions();
    for (QAction *action : encodings)
        action->setChecked(action->data().toInt() == int(text->encoding()));
    const auto end = text->lineEnd();
    const QList<QAction *> lineEnds = m_lineEnds->actions();
    for (QAction *action : lineEnds)
        action->setChecked(end && action->data().toInt() == int(*end));
}

} // namespace Workbench
