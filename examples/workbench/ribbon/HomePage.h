// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "ribbon/DocumentPage.h"

namespace Workbench {

class FileCommands;
class FindField;
class RecentFiles;

/*!
    Files, clipboard, history and search: what applies to every document.
*/
class HomePage : public DocumentPage
{
    Q_OBJECT

public:
    HomePage(FileCommands *files, RecentFiles *recent, QWidget *parent = nullptr);

Q_SIGNALS:
    //! The user wants to type into a field of this page, which has to be in front.
    void wanted();
    void findInAllWanted();

protected:
    void refresh() override;

private:
    void addFileGroup(RecentFiles *recent);
    void addClipboardGroup();
    void addHistoryGroup();
    void addFindGroup();
    void startFinding();

    FileCommands *m_files;
    FindField *m_findField;
    QAction *m_save;
    QAction *m_saveAll;
    QAction *m_saveAs;
    QAction *m_close;
    QAction *m_closeOthers;
    QAction *m_closeAll;
    QAction *m_cut;
    QAction *m_copy;
    QAction *m_paste;
    QAction *m_selectAll;
    QAction *m_undo;
    QAction *m_redo;
    QList<QAction *> m_findActions;
};

} // namespace Workbench
