// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtWidgets/QMainWindow>

class QLabel;

namespace Workbench {

class Document;
class DocumentTabs;
class FileCommands;
class RecentFiles;
class TextOptions;
class WorkbenchRibbon;

/*!
    The window: the ribbon over the documents, and the status bar under them.
*/
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit MainWindow(QWidget *parent = nullptr);
    ~MainWindow() override;

    //! Files and folders.
    void open(const QStringList &paths);

protected:
    void closeEvent(QCloseEvent *event) override;
    void changeEvent(QEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    void setDocument(Document *document);
    void showDocument();
    void setFullScreen(bool fullScreen);

    TextOptions *m_textOptions;
    RecentFiles *m_recent;
    DocumentTabs *m_tabs;
    FileCommands *m_files;
    WorkbenchRibbon *m_ribbon;
    QLabel *m_summary;
    Document *m_document = nullptr;
};

} // namespace Workbench
