// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "ribbon/WorkbenchRibbon.h"

#include "Icons.h"
#include "ribbon/HomePage.h"
#include "ribbon/PicturePage.h"
#include "ribbon/TextPage.h"
#include "ribbon/ViewPage.h"

#include <Norvane/RibbonBar.h>
#include <Norvane/RibbonCorner.h>

#include <QtGui/QAction>
#include <QtWidgets/QMenu>
#include <QtWidgets/QToolButton>

namespace Workbench {

WorkbenchRibbon::WorkbenchRibbon(Norvane::RibbonBar *bar, FileCommands *files, RecentFiles *recent,
                                 TextOptions *textOptions)
    : QObject(bar)
    , m_bar(bar)
{
    auto *home = new HomePage(files, recent);
    connect(home, &HomePage::wanted, this, [this, home] { m_bar->setCurrentPage(home); });
    connect(home, &HomePage::findInAllWanted, this, &WorkbenchRibbon::findInAllWanted);
    m_homePage = home;
    m_viewPage = new ViewPage(textOptions);
    connect(m_viewPage, &ViewPage::fullScreenWanted, this, &WorkbenchRibbon::fullScreenWanted);
    connect(m_viewPage, &ViewPage::optionsWanted, this, &WorkbenchRibbon::optionsWanted);
    m_textPage = new TextPage(textOptions);
    m_picturePage = new PicturePage;
    m_pages = {m_homePage, m_viewPage, m_textPage, m_picturePage};
    bar->addPage(tr("Home"), m_homePage, false);
    bar->addPage(tr("View"), m_viewPage, false);
    bar->addPage(tr("Text"), m_textPage, true);
    bar->addPage(tr("Picture"), m_picturePage, true);
    bar->hideTemporaryPages();
    addHelpButton();
    connect(bar, &QWidget::customContextMenuRequested, this, &WorkbenchRibbon::openMenuOfButton);
}

DocumentPage *WorkbenchRibbon::page(Document::Kind kind) const
{
    return kind == Document::Kind::Text ? m_textPage : m_picturePage;
}

void WorkbenchRibbon::setDocument(Document *document)
{
    for (DocumentPage *page : std::as_const(m_pages))
        page->setDocument(document);
    if (m_bar->currentPage() == m_textPage || m_bar->currentPage() == m_picturePage)
        m_bar->setCurrentPage(document ? page(document->kind()) : m_homePage);
}

void WorkbenchRibbon::setFullScreen(bool fullScreen)
{
    m_viewPage->setFullScreen(fullScreen);
}

QList<QAction *> WorkbenchRibbon::commands() const
{
    QList<QAction *> commands;
    for (const DocumentPage *page : m_pages)
        commands += page->commands();
    return commands << m_help;
}

void WorkbenchRibbon::addHelpButton()
{
    m_help = new QAction(icon(QLatin1StringView("help")), tr("Help"), this);
    m_help->setShortcut(QKeySequence(Qt::Key_F1));
    m_help->setToolTip(tr("Keyboard shortcuts, and what this program is (F1)"));
    connect(m_help, &QAction::triggered, this, &WorkbenchRibbon::helpWanted);

    auto *button = new QToolButton;
    button->setObjectName(QStringLiteral("helpButton"));
    button->setDefaultAction(m_help);
    button->setFocusPolicy(Qt::NoFocus);
    button->setIconSize(QSize(16, 16));
    button->setFixedSize(24, 24);
    button->setStyleSheet(QStringLiteral(
        "QToolButton { border: none; border-radius: 2px; background-color: transparent; }"
        "QToolButton:hover { background-color: rgb(38, 140, 221); }"
        "QToolButton:pressed { background-color: rgb(0, 90, 160); }"));
    m_bar->corner()->addWidget(button);
}

void WorkbenchRibbon::openMenuOfButton(QPoint position)
{
    const auto *button = qobject_cast<QToolButton *>(m_bar->childAt(position));
    QMenu *menu = button && button->defaultAction() ? button->defaultAction()->menu() : nullptr;
    if (menu && button->isEnabled())
        menu->popup(button->mapToGlobal(QPoint(0, button->height())));
}

} // namespace Workbench
