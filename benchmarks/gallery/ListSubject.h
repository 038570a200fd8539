// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "Subject.h"

#include <QtCore/QSortFilterProxyModel>
#include <QtGui/QStandardItemModel>

class QListView;

// The same items in a list view without groups, searched by a proxy model.
class ListSubject : public PlainSubject
{
public:
    ListSubject();

    void fill(const QList<GroupActions> &groups) override;
    QWidget *firstItem() const override;
    QLineEdit *edit() const override { return m_edit; }

private:
    QStandardItemModel m_model;
    QSortFilterProxyModel m_matches;
    QLineEdit *m_edit;
    QListView *m_view;
};
