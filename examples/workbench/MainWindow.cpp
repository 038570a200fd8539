// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "MainWindow.h"

#include "DocumentTabs.h"
#include "HelpDialog.h"
#include "documents/Document.h"
#include "files/FileCommands.h"
#include "files/FileWatch.h"
#include "files/RecentFiles.h"
#include "options/Options.h"
#include "options/OptionsDialog.h"
#include "ribbon/DocumentPage.h"
#include "ribbon/WorkbenchRibbon.h"
#include "views/Panels.h"

#include <Norvane/DockContainer.h>
#include <Norvane/NorvaneAgent.h>
#include <Norvane/RibbonBar.h>
#include <Norvane/RibbonPage.h>

#include <QtCore/QMimeData>
#include <QtCore/QSettings>
#include <QtCore/QTimer>
#include <QtGui/QAction>
#include <QtGui/QCloseEvent>
#include <QtGui/QDrag>
#include <QtGui/QDropEvent>
#include <QtWidgets/QLabel>
#include <QtWidgets/QStatusBar>

namespace Workbench {

static QStringList localFiles(const QMimeData *data)
{
    QStringList paths;
    const QList<QUrl> urls = data->urls();
    for (const QUrl &url : urls) {
        if (url.isLocalFile())
            paths << url.toLocalFile();
    }
    return paths;
}

static NorvaneAgent *frame(QMainWindow *window)
{
    auto *agent = new NorvaneAgent(window);
    agent->setup(window, true, true);
    return agent;
}

MainWindow::MainWindow(QWidget *parent)
    : QMainWindow(parent)
    , m_agent(frame(this))
    , m_options(new Options(this))
    , m_recent(new RecentFiles(this))
    , m_tabs(new DocumentTabs(m_agent->dockContainer()->contentWidget()))
    , m_files(new FileCommands(m_tabs, m_recent, m_options->text(), this))
    , m_ribbon(new WorkbenchRibbon(m_agent->ribbonBar(), m_files, m_recent, m_options->text()))
    , m_panels(new Panels(m_agent->dockContainer(), m_agent->addressBar(), m_tabs, m_files))
    , m_message(new QLabel)
    , m_summary(new QLabel)
{
    bindPages();
    for (QLabel *label : {m_message, m_summary}) {
        label->setContentsMargins(6, 0, 6, 0);
        statusBar()->addPermanentWidget(label);
    }
    setAcceptDrops(true);
    resize(1024, 700);

    // Here the commands' shortcuts work whichever page is in front.
    addActions(m_ribbon->commands());

    connect(m_tabs, &DocumentTabs::currentDocumentChanged, this, &MainWindow::setDocument);
    connect(m_tabs, &DocumentTabs::closeRequested, m_files,
            qOverload<const QList<Document *> &>(&FileCommands::close));
    connect(m_files, &FileCommands::message, this, &MainWindow::showMessage);
    connect(new FileWatch(m_tabs), &FileWatch::message, this, &MainWindow::showMessage);
    connect(m_ribbon, &WorkbenchRibbon::findInAllWanted, m_panels, &Panels::startFinding);
    connect(m_ribbon, &WorkbenchRibbon::fullScreenWanted, this, &MainWindow::setFullScreen);
    connect(m_ribbon, &WorkbenchRibbon::helpWanted, this,
            [this] { HelpDialog(m_ribbon->commands(), this).exec(); });
    connect(m_ribbon, &WorkbenchRibbon::optionsWanted, this,
            [this] { OptionsDialog(m_options, this).exec(); });
    setDocument(nullptr);
    restoreLayout();
}

MainWindow::~MainWindow()
{
    // The tabs go one by one, and each would still be shown.
    m_tabs->disconnect(this);
}

void MainWindow::open(const QStringList &paths)
{
    m_files->openPaths(paths);
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    if (m_options->keepsLayout())
        saveLayout();
    else
        resetLayout();
    // What is being dragged has a window of its own, which would keep the program running. Its
    // source is still needed, so that no document goes before the window.
    if (findChild<QDrag *>())
        QDrag::cancel();
    event->setAccepted(isHidden() || m_files->mayCloseAll());
}

void MainWindow::changeEvent(QEvent *event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::WindowStateChange)
        m_ribbon->setFullScreen(isFullScreen());
}

void MainWindow::dragEnterEvent(QDragEnterEvent *event)
{
    if (!localFiles(event->mimeData()).isEmpty())
        event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent *event)
{
    event->acceptProposedAction();
    const QStringList paths = localFiles(event->mimeData());
    // A box that says what could not be opened must not hold up the other side of the drop.
    QMetaObject::invokeMethod(this, [this, paths] { open(paths); }, Qt::QueuedConnection);
}

void MainWindow::bindPages()
{
    // The page comes with its section, but nobody is taken away from another one.
    for (const auto kind : {Document::Kind::Text, Document::Kind::Picture})
        m_agent->bindRibbonPagesAndDockPartition({nullptr, m_ribbon->page(kind)}, int(kind));
}

void MainWindow::setDocument(Document *document)
{
    if (m_document)
        m_document->disconnect(this);
    m_document = document;
    if (m_document)
        connect(m_document, &Document::changed, this, &MainWindow::showDocument);
    m_ribbon->setDocument(document);
    m_panels->setDocument(document);
    showDocument();
}

void MainWindow::showDocument()
{
    m_summary->setText(m_document ? m_document->summary() : QString());
    setWindowFilePath(m_document ? m_document->path() : QString());
    setWindowTitle(m_document ? tr("%1[*] – Norvane Workbench").arg(m_document->title())
                              : tr("Norvane Workbench"));
    setWindowModified(m_document && m_document->isModified());
}

void MainWindow::setFullScreen(bool fullScreen)
{
    setWindowState(windowState().setFlag(Qt::WindowFullScreen, fullScreen));
}

// The status bar's own messages would hide the panel's buttons in it.
void MainWindow::showMessage(const QString &text)
{
    // A long path would push them aside, too.
    const QString shown = fontMetrics().elidedText(text, Qt::ElideMiddle, width() / 3);
    m_message->setText(shown);
    m_message->setToolTip(text);
    QTimer::singleShot(8000, m_message, [this, shown] {
        if (m_message->text() == shown)
            m_message->clear();
    });
}

void MainWindow::resetLayout()
{
    QSettings().remove(QStringLiteral("layout"));
}

void MainWindow::restoreLayout()
{
    if (!m_options->keepsLayout())
        return;
    const QSettings settings;
    restoreGeometry(settings.value(QStringLiteral("layout/window")).toByteArray());
    m_agent->dockContainer()->restoreState(
        settings.value(QStringLiteral("layout/docks")).toByteArray());
}

void MainWindow::saveLayout() const
{
    QSettings settings;
    settings.setValue(QStringLiteral("layout/window"), saveGeometry());
    settings.setValue(QStringLiteral("layout/docks"), m_agent->dockContainer()->saveState());
}

} // namespace Workbench
