// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtWidgets/QTreeView>

class QFileSystemModel;

namespace Workbench {

//! The files of a folder and below. A double click or Return asks for a file to be opened.
class FilesView : public QTreeView
{
    Q_OBJECT

public:
    explicit FilesView(QWidget *parent = nullptr);

    //! Shows where the file at \a path lies.
    void showFile(const QString &path);

Q_SIGNALS:
    void opened(const QString &path);

private:
    QFileSystemModel *m_model;
};

} // namespace Workbench
