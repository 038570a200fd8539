// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QObject>

class QFileSystemModel;
class QTreeView;

namespace Norvane {
class AddressBar;
}

namespace Workbench {

class FileCommands;

/*!
    The address bar's tree as a view: texts and pictures are opened here, other files by the
    system's programs, and new texts are made where the user wants them.
*/
class FilesView : public QObject
{
    Q_OBJECT

public:
    FilesView(Norvane::AddressBar *bar, FileCommands *files);

    QTreeView *tree() const;
    //! Shows where the file at \a path lies.
    void showFile(const QString &path);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void createText();

    Norvane::AddressBar *m_bar;
    FileCommands *m_files;
    QTreeView *m_tree;
    QFileSystemModel *m_model;
};

} // namespace Workbench
