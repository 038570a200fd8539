// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "ListSubject.h"

#include <QtGui/QAction>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListView>
#include <QtWidgets/QVBoxLayout>

ListSubject::ListSubject()
    : m_edit(new QLineEdit)
    , m_view(new QListView)
{
    m_matches.setSourceModel(&m_model);
    m_view->setModel(&m_matches);
    m_view->setViewMode(QListView::IconMode);
    m_view->setMovement(QListView::Static);
    m_view->setResizeMode(QListView::Adjust);
    m_view->setUniformItemSizes(true);
    m_view->setGridSize({90, 60});
    m_view->setIconSize({24, 24});
    auto *content = new QWidget;
    auto *column = new QVBoxLayout(content);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(m_edit);
    column->addWidget(m_view);
    setContent(content);
    QObject::connect(m_edit, &QLineEdit::textChanged, &m_matches,
                     &QSortFilterProxyModel::setFilterFixedString);
}

void ListSubject::fill(const QList<GroupActions> &groups)
{
    for (const GroupActions &actions : groups) {
        for (const QAction *action : actions)
            m_model.appendRow(new QStandardItem(action->icon(), action->text()));
    }
}

QWidget *ListSubject::firstItem() const
{
    return m_view->viewport();
}
