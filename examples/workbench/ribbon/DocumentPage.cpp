// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "ribbon/DocumentPage.h"

#include "Icons.h"
#include "documents/Document.h"

#include <Norvane/RibbonGroup.h>
#include <Norvane/RibbonSubgroup.h>

#include <QtGui/QAction>
#include <QtWidgets/QMenu>

namespace Workbench {

DocumentPage::DocumentPage(QWidget *parent)
    : Norvane::RibbonPage(parent)
{
}

void DocumentPage::setDocument(Document *document)
{
    if (m_document)
        m_document->disconnect(this);
    m_document = document;
    if (m_document)
        connect(m_document, &Document::changed, this, &DocumentPage::refresh);
    refresh();
}

QList<QAction *> DocumentPage::commands() const
{
    return m_commands;
}

Document *DocumentPage::document() const
{
    return m_document;
}

QAction *DocumentPage::addCommand(const Command &command)
{
    auto *action = new QAction(this);
    setUp(action, command);
    return action;
}

QMenu *DocumentPage::addMenuCommand(const Command &command)
{
    auto *menu = new QMenu(this);
    setUp(menu->menuAction(), command);
    return menu;
}

QAction *DocumentPage::addCommand(const Command &command, QMenu *menu)
{
    QAction *action = addCommand(command);
    menu->addAction(action);
    return action;
}

Norvane::RibbonSubgroup *DocumentPage::addColumn(Norvane::RibbonGroup *group, int height)
{
    Norvane::RibbonSubgroup *column = group->addSubgroup();
    column->setFixedHeight(height);
    return column;
}

void DocumentPage::setUp(QAction *action, const Command &command)
{
    action->setText(command.text);
    action->setIcon(icon(command.icon));
    action->setShortcuts(command.shortcuts);
    const QString keys = action->shortcut().toString(QKeySequence::NativeText);
    action->setToolTip(keys.isEmpty()
                           ? command.toolTip
                           : tr("%1 (%2)", "what it does, key").arg(command.toolTip, keys));
    m_commands << action;
}

} // namespace Workbench
