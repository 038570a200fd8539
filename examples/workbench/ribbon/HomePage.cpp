// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "ribbon/HomePage.h"

#include "files/FileCommands.h"
#include "files/RecentFiles.h"
#include "ribbon/FindField.h"
#include "text/TextDocument.h"

#include <Norvane/RibbonGroup.h>
#include <Norvane/RibbonSubgroup.h>

#include <QtGui/QAction>
#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>
#include <QtWidgets/QMenu>

namespace Workbench {

using namespace Qt::StringLiterals;

// As high as the separator in the first group.
static constexpr int columnHeight = 80;

HomePage::HomePage(FileCommands *files, RecentFiles *recent, QWidget *parent)
    : DocumentPage(parent)
    , m_files(files)
    , m_findField(new FindField)
{
    addFileGroup(recent);
    addClipboardGroup();
    addHistoryGroup();
    addFindGroup();
    connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, this, &HomePage::refresh);
    HomePage::refresh();
}

void HomePage::addFileGroup(RecentFiles *recent)
{
    Norvane::RibbonGroup *group = addGroup(tr("File"));

    QMenu *openMenu = addMenuCommand(
        {tr("Open"), "open"_L1, tr("Open texts and pictures"), {QKeySequence::Open}});
    recent->fill(openMenu);
    connect(openMenu->menuAction(), &QAction::triggered, m_files, &FileCommands::open);
    group->addMenu(openMenu, QToolButton::MenuButtonPopup);

    QMenu *saveMenu = addMenuCommand(
        {tr("Save"), "save"_L1, tr("Save the document to its file"), {QKeySequence::Save}});
    m_save = saveMenu->menuAction();
    connect(m_save, &QAction::triggered, this, [this] { m_files->save(document()); });
    group->addMenu(saveMenu, QToolButton::MenuButtonPopup);

    m_saveAs = addCommand({tr("Save As"),
                           "save-as"_L1,
                           tr("Save the document to another file"),
                           {QKeySequence(u"Ctrl+Shift+S"_s)}});
    connect(m_saveAs, &QAction::triggered, this, [this] { m_files->saveAs(document()); });
    group->addAction(m_saveAs);

    m_saveAll = addCommand({tr("Save All"),
                            "save-all"_L1,
                            tr("Save every changed document"),
                            {QKeySequence(u"Ctrl+Alt+S"_s)}},
                           saveMenu);
    connect(m_saveAll, &QAction::triggered, m_files, &FileCommands::saveAll);

    group->addSeparator();
    // A delayed menu leaves the whole button to the click; it opens with the right button.
    QMenu *closeMenu = addMenuCommand({tr("Close"),
                                       "close"_L1,
                                       tr("Close the document; right click for more"),
                                       {QKeySequence(u"Ctrl+W"_s), QKeySequence(u"Ctrl+F4"_s)}});
    m_close = closeMenu->menuAction();
    connect(m_close, &QAction::triggered, this, [this] { m_files->close(document()); });
    m_closeOthers = addCommand({tr("Close Others"),
                                "close-others"_L1,
                                tr("Close all documents but this one"),
                                {QKeySequence(u"Ctrl+Alt+W"_s)}},
                               closeMenu);
    connect(m_closeOthers, &QAction::triggered, this, [this] { m_files->closeOthers(document()); });
    m_closeAll = addCommand({tr("Close All"),
                             "close-all"_L1,
                             tr("Close all documents"),
                             {QKeySequence(u"Ctrl+Shift+W"_s)}},
                            closeMenu);
    connect(m_closeAll, &QAction::triggered, m_files, &FileCommands::closeAll);
    group->addMenu(closeMenu, QToolButton::DelayedPopup);
}

void HomePage::addClipboardGroup()
{
    Norvane::RibbonGroup *group = addGroup(tr("Clipboard"));

    m_paste = addCommand(
        {tr("Paste"), "paste"_L1, tr("Insert what the clipboard holds"), {QKeySequence::Paste}});
    connect(m_paste, &QAction::triggered, this, [this] { document()->paste(); });
    group->addAction(m_paste);

    Norvane::RibbonSubgroup *column = addColumn(group, columnHeight);
    m_cut = addCommand(
        {tr("Cut"), "cut"_L1, tr("Move the selection to the clipboard"), {QKeySequence::Cut}});
    connect(m_cut, &QAction::triggered, this, [this] { document()->cut(); });
    m_copy = addCommand(
        {tr("Copy"), "copy"_L1, tr("Copy the selection to the clipboard"), {QKeySequence::Copy}});
    connect(m_copy, &QAction::triggered, this, [this] { document()->copy(); });
    m_selectAll = addCommand({tr("Select All"),
                              "select-all"_L1,
                              tr("Select the whole document"),
                              {QKeySequence::SelectAll}});
    connect(m_selectAll, &QAction::triggered, this, [this] { document()->selectAll(); });
    for (QAction *action : {m_cut, m_copy, m_selectAll})
        column->addAction(action);
}

void HomePage::addHistoryGroup()
{
    Norvane::RibbonSubgroup *column = addColumn(addGroup(tr("History")), columnHeight);
    m_undo =
        addCommand({tr("Undo"), "undo"_L1, tr("Take back the last change"), {QKeySequence::Undo}});
    connect(m_undo, &QAction::triggered, this, [this] { document()->undo(); });
    m_redo = addCommand({tr("Redo"),
                         "redo"_L1,
                         tr("Make the change again"),
                         {QKeySequence(u"Ctrl+Shift+Z"_s), QKeySequence(u"Ctrl+Y"_s)}});
    connect(m_redo, &QAction::triggered, this, [this] { document()->redo(); });
    column->addAction(m_undo);
    column->addAction(m_redo);
}

void HomePage::addFindGroup()
{
    Norvane::RibbonGroup *group = addGroup(tr("Find"));
    Norvane::RibbonSubgroup *column = addColumn(group, columnHeight);
    column->addWidget(m_findField);

    QAction *find =
        addCommand({tr("Find"), "find"_L1, tr("Find in the text"), {QKeySequence(u"Ctrl+F"_s)}});
    connect(find, &QAction::triggered, this, &HomePage::startFinding);
    QAction *previous = addCommand({tr("Find Previous"),
                                    "find-previous"_L1,
                                    tr("Find the previous place"),
                                    {QKeySequence(u"Shift+F3"_s)}});
    connect(previous, &QAction::triggered, m_findField, &FindField::findPrevious);
    QAction *next = addCommand(
        {tr("Find Next"), "find-next"_L1, tr("Find the next place"), {QKeySequence(u"F3"_s)}});
    connect(next, &QAction::triggered, m_findField, &FindField::findNext);
    QAction *matchCase = addCommand({tr("Match Case"),
                                     "match-case"_L1,
                                     tr("Tell capital letters from small ones"),
                                     {QKeySequence(u"Alt+C"_s)}});
    matchCase->setCheckable(true);
    connect(matchCase, &QAction::toggled, m_findField, &FindField::setMatchCase);
    QAction *wholeWords = addCommand({tr("Whole Words"),
                                      "whole-words"_L1,
                                      tr("Find whole words only"),
                                      {QKeySequence(u"Alt+W"_s)}});
    wholeWords->setCheckable(true);
    connect(wholeWords, &QAction::toggled, m_findField, &FindField::setWholeWords);

    QAction *findInAll = addCommand({tr("Find in All"),
                                     "find-all"_L1,
                                     tr("Find in all open texts"),
                                     {QKeySequence(u"Ctrl+Shift+F"_s)}});
    connect(findInAll, &QAction::triggered, this, &HomePage::findInAllWanted);

    column->addActions({previous, next, matchCase, wholeWords});
    group->addAction(findInAll);
    m_findActions = {find, previous, next, matchCase, wholeWords};
}

void HomePage::startFinding()
{
    Q_EMIT wanted();
    m_findField->setFocus(Qt::ShortcutFocusReason);
    m_findField->selectAll();
}

void HomePage::refresh()
{
    const Document *document = this->document();
    m_save->setEnabled(document && document->isModified());
    for (QAction *action : {m_saveAs, m_saveAll, m_close, m_closeOthers, m_closeAll, m_selectAll})
        action->setEnabled(document);
    m_cut->setEnabled(document && document->canCut());
    m_copy->setEnabled(document && document->canCopy());
    m_paste->setEnabled(document && document->canPaste());
    m_undo->setEnabled(document && document->canUndo());
    m_redo->setEnabled(document && document->canRedo());

    auto *text = qobject_cast<TextDocument *>(this->document());
    m_findField->setDocument(text);
    for (QAction *action : std::as_const(m_findActions))
        action->setEnabled(text);
}

} // namespace Workbench
