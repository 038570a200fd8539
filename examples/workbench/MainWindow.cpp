// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "MainWindow.h"

#include "DocumentTabs.h"
#include "HelpDialog.h"
#include "documents/Document.h"
#include "files/FileCommands.h"
#include "files/RecentFiles.h"
#include "ribbon/WorkbenchRibbon.h"
#include "text/TextOptions.h"

#include <QtCore/QMimeData>
#include <QtGui/QAction>
#include <QtGui/QCloseEvent>
#include <QtGui/QDropEvent>
#include <QtWidgets/QLabel>
#include <QtWidgets/QStatusBar>
#include <QtWidgets/QVBoxLayout>

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

MainWindow::MainWindow(QWidget *parent)
    : QMainWindow(parent)
    , m_textOptions(new TextOptions(this))
    , m_recent(new RecentFiles(this))
    , m_tabs(new DocumentTabs)
    , m_files(new FileCommands(m_tabs, m_recent, m_textOptions, this))
    , m_ribbon(new WorkbenchRibbon(m_files, m_recent, m_textOptions))
    , m_summary(new QLabel)
{
    auto *content = new QWidget;
    auto *layout = new QVBoxLayout(content);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_ribbon);
    layout->addWidget(m_tabs, 1);
    setCentralWidget(content);
    statusBar()->addPermanentWidget(m_summary);
    setAcceptDrops(true);
    resize(1024, 700);

    // Here the commands' shortcuts work whichever page is in front.
    addActions(m_ribbon->commands());

    connect(m_tabs, &DocumentTabs::currentDocumentChanged, this, &MainWindow::setDocument);
    connect(m_tabs, &QTabWidget::tabCloseRequested, this,
            [this](int index) { m_files->close(m_tabs->document(index)); });
    connect(m_files, &FileCommands::message, this,
            [this](const QString &text) { statusBar()->showMessage(text, 8000); });
    connect(m_ribbon, &WorkbenchRibbon::fullScreenWanted, this, &MainWindow::setFullScreen);
    connect(m_ribbon, &WorkbenchRibbon::helpWanted, this,
            [this] { HelpDialog(m_ribbon->commands(), this).exec(); });
    setDocument(nullptr);
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
    event->setAccepted(m_files->closeAll());
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

void MainWindow::setDocument(Document *document)
{
    if (m_document)
        m_document->disconnect(this);
    m_document = document;
    if (m_document)
        connect(m_document, &Document::changed, this, &MainWindow::showDocument);
    m_ribbon->setDocument(document);
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

} // namespace Workbench
