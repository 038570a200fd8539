// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "views/FilesView.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtGui/QFileSystemModel>
#include <QtWidgets/QHeaderView>

namespace Workbench {

FilesView::FilesView(QWidget *parent)
    : QTreeView(parent)
    , m_model(new QFileSystemModel(this))
{
    setFrameShape(QFrame::NoFrame);
    setHeaderHidden(true);
    setUniformRowHeights(true);
    m_model->setRootPath(QDir::homePath());
    setModel(m_model);
    setRootIndex(m_model->index(QDir::homePath()));
    for (int column = 1; column < m_model->columnCount(); ++column)
        hideColumn(column);
    header()->setStretchLastSection(true);
    connect(this, &QAbstractItemView::activated, this, [this](const QModelIndex &index) {
        if (!m_model->isDir(index))
            Q_EMIT opened(m_model->filePath(index));
    });
}

void FilesView::showFile(const QString &path)
{
    const QString folder = QFileInfo(path).absolutePath();
    const QString root = m_model->rootPath();
    if (folder != root && !folder.startsWith(root + u'/')) {
        m_model->setRootPath(folder);
        setRootIndex(m_model->index(folder));
    }
    const QModelIndex index = m_model->index(path);
    setCurrentIndex(index);
    scrollTo(index);
}

} // namespace Workbench
