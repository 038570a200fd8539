// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "views/Panels.h"

#include "Icons.h"
#include "files/FileCommands.h"
#include "text/TextDocument.h"
#include "views/FilesView.h"
#include "views/FindResultsView.h"
#include "views/LogView.h"
#include "views/OutlineView.h"
#include "views/PropertiesView.h"

#include <Norvane/DockContainer.h>
#include <Norvane/DockPanelWidget.h>

#include <QtWidgets/QMenu>

namespace Workbench {

using namespace Qt::StringLiterals;
using Norvane::DockContainer;
using Norvane::DockPanelWidget;

Panels::Panels(DockContainer *container, Norvane::AddressBar *bar, DocumentTabs *tabs,
               FileCommands *files)
    : QObject(container)
    , m_container(container)
    , m_files(new FilesView(bar, files))
    , m_outline(new OutlineView)
    , m_properties(new PropertiesView)
    , m_results(new FindResultsView(tabs))
    , m_log(new LogView)
{
    DockPanelWidget *left = container->panelWidget(DockContainer::LeftDockArea);
    left->addView(m_files->tree(), icon("files"_L1), tr("Files"));
    left->tabifyView(0, m_outline, icon("outline"_L1), tr("Outline"));
    DockPanelWidget *right = container->panelWidget(DockContainer::RightDockArea);
    right->addView(m_properties, icon("properties"_L1), tr("Properties"));
    DockPanelWidget *bottom = container->panelWidget(DockContainer::BottomDockArea);
    bottom->addView(m_results, icon("find-all"_L1), tr("Find Results"));
    bottom->addView(m_log, icon("log"_L1), tr("Log"));
    bottom->menu(m_log)->addAction(tr("Clear"), m_log, &QPlainTextEdit::clear);

    connect(files, &FileCommands::message, this, &Panels::log);
}

void Panels::setDocument(Document *document)
{
    if (m_document)
        m_document->disconnect(this);
    m_document = document;
    m_outline->setDocument(document);
    m_properties->showDocument(document);
    if (!document)
        return;
    // A section that comes to the front shows another document first, whose folder is not meant.
    QMetaObject::invokeMethod(
        m_files,
        [this, document] {
            if (document == m_document)
                m_files->showFile(document->path());
        },
        Qt::QueuedConnection);
    connect(document, &Document::changed, this,
            [this, document] { m_properties->showDocument(document); });
}

void Panels::startFinding()
{
    DockPanelWidget *bottom = m_container->panelWidget(DockContainer::BottomDockArea);
    if (bottom->isMinimized())
        bottom->setViewVisible(0, true);
    bottom->setCurrentIndex(0);
    const auto *text = qobject_cast<TextDocument *>(m_document);
    m_results->start(text ? text->selectedText() : QString());
}

void Panels::log(const QString &text)
{
    m_log->add(text);
}

} // namespace Workbench
