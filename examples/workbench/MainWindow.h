// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtWidgets/QMainWindow>

class NorvaneAgent;
class QLabel;

namespace Workbench {

class Document;
class DocumentTabs;
class FileCommands;
class Options;
class Panels;
class RecentFiles;
class WorkbenchRibbon;

/*!
    The window: the ribbon over the documents, panels around them, and the status bar below. Where
    its panels were when it was closed it remembers for the next time.
*/
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit MainWindow(QWidget *parent = nullptr);
    ~MainWindow() override;

    //! Forgets where panels and window were.
    static void resetLayout();

    //! Files and folders.
    void open(const QStringList &paths);

protected:
    void closeEvent(QCloseEvent *event) override;
    void changeEvent(QEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    void bindPages();
    void setDocument(Document *document);
    void showDocument();
    void setFullScreen(bool fullScreen);
    void showMessage(const QString &text);
    void restoreLayout();
    void saveLayout() const;

    NorvaneAgent *m_agent;
    Options *m_options;
    RecentFiles *m_recent;
    DocumentTabs *m_tabs;
    FileCommands *m_files;
    WorkbenchRibbon *m_ribbon;
    Panels *m_panels;
    QLabel *m_message;
    QLabel *m_summary;
    Document *m_document = nullptr;
};

} // namespace Workbench
