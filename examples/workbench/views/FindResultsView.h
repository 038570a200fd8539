// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtWidgets/QWidget>

class QLineEdit;
class QTreeWidget;
class QTreeWidgetItem;

namespace Workbench {

class Document;
class DocumentTabs;

//! Finds a text in all open texts and lists the places. A click on one goes there.
class FindResultsView : public QWidget
{
    Q_OBJECT

public:
    explicit FindResultsView(DocumentTabs *tabs, QWidget *parent = nullptr);

    //! Puts the cursor into the field for the wanted text.
    void start(const QString &text);

private:
    void find();
    void go(const QTreeWidgetItem *item);

    DocumentTabs *m_tabs;
    QLineEdit *m_wanted;
    QTreeWidget *m_results;
};

} // namespace Workbench
