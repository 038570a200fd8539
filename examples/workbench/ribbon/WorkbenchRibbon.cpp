// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "ribbon/WorkbenchRibbon.h"

#include "Icons.h"
#include "ribbon/HomePage.h"
#include "ribbon/PicturePage.h"
#include "ribbon/TextPage.h"
#include "ribbon/ViewPage.h"

#include <Norvane/RibbonCorner.h>

#include <QtGui/QAction>
#include <QtWidgets/QMenu>
#include <QtWidgets/QToolButton>

namespace Workbench {

WorkbenchRibbon::WorkbenchRibbon(FileCommands *files, RecentFiles *recent, TextOptions *textOptions,
                                 QWidget *parent)
    : Norvane::RibbonBar(parent)
{
    auto *home = new HomePage(files, recent);
    connect(home, &HomePage::wanted, this, [this, home] { setCurrentPage(home); });
    connect(home, &HomePage::findInAllWanted, this, &WorkbenchRibbon::findInAllWanted);
    m_homePage = home;
    m_viewPage = new ViewPage(textOptions);
    connect(m_viewPage, &ViewPage::fullScreenWanted, this, &WorkbenchRibbon::fullScreenWanted);
    m_textPage = new TextPage(textOptions);
    m_picturePage = new PicturePage;
    m_pages = {m_homePage, m_viewPage, m_textPage, m_picturePage};
    addPage(tr("Home"), m_homePage, false);
    addPage(tr("View"), m_viewPage, false);
    addPage(tr("Text"), m_textPage, true);
    addPage(tr("Picture"), m_picturePage, true);
    hideTemporaryPages();
    addHelpButton();
    connect(this, &QWidget::customContextMenuRequested, this, &WorkbenchRibbon::openMenuOfButton);
}

void WorkbenchRibbon::setDocument(Document *document)
{
    for (DocumentPage *page : std::as_const(m_pages))
        page->setDocument(document);
    showPagesFor(document ? std::optional(document->kind()) : std::nullopt);
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
    corner()->addWidget(button);
}

void WorkbenchRibbon::showPagesFor(std::optional<Document::Kind> kind)
{
    if (m_kind == kind)
        return;
    m_kind = kind;
    const bool currentGoes = currentPage() == m_textPage || currentPage() == m_picturePage;
    hideTemporaryPages();
    DocumentPage *page = nullptr;
    if (kind)
        page = *kind == Document::Kind::Text ? m_textPage : m_picturePage;
    if (page)
        showPage(indexOf(page));
    // Whoever stands on Home or View stays there.
    if (currentGoes)
        setCurrentPage(page ? page : m_homePage);
}

void WorkbenchRibbon::openMenuOfButton(QPoint position)
{
    const auto *button = qobject_cast<QToolButton *>(childAt(position));
    QMenu *menu = button && button->defaultAction() ? button->defaultAction()->menu() : nullptr;
    if (menu && button->isEnabled())
        menu->popup(button->mapToGlobal(QPoint(0, button->height())));
}

} // namespace Workbench
