// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "views/FindResultsView.h"

#include "DocumentTabs.h"
#include "text/TextDocument.h"

#include <QtCore/QPointer>
#include <QtGui/QTextBlock>
#include <QtGui/QTextCursor>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTreeWidget>

namespace Workbench {

static constexpr int mostPlaces = 5000;

FindResultsView::FindResultsView(DocumentTabs *tabs, QWidget *parent)
    : QWidget(parent)
    , m_tabs(tabs)
    , m_wanted(new QLineEdit)
    , m_results(new QTreeWidget)
{
    m_wanted->setObjectName(QStringLiteral("findAllField"));
    m_wanted->setAccessibleName(tr("Find in all open texts"));
    m_wanted->setPlaceholderText(tr("Find in all open texts"));
    m_wanted->setClearButtonEnabled(true);
    m_wanted->setMaximumWidth(320);
    auto *button = new QPushButton(tr("Find All"));
    auto *row = new QHBoxLayout;
    row->setContentsMargins(4, 4, 4, 4);
    row->addWidget(m_wanted, 1);
    row->addWidget(button);
    row->addStretch();
    m_results->setFrameShape(QFrame::NoFrame);
    m_results->setRootIsDecorated(false);
    m_results->setUniformRowHeights(true);
    m_results->setHeaderLabels({tr("Document"), tr("Line"), tr("Text")});
    m_results->header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    m_results->header()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addLayout(row);
    column->addWidget(m_results, 1);
    connect(m_wanted, &QLineEdit::returnPressed, this, &FindResultsView::find);
    connect(button, &QPushButton::clicked, this, &FindResultsView::find);
    connect(m_results, &QTreeWidget::itemClicked, this, &FindResultsView::go);
    connect(m_results, &QTreeWidget::itemActivated, this, &FindResultsView::go);
}

void FindResultsView::start(const QString &text)
{
    if (!text.isEmpty())
        m_wanted->setText(text);
    m_wanted->setFocus(Qt::ShortcutFocusReason);
    m_wanted->selectAll();
}

void FindResultsView::find()
{
    m_results->clear();
    const QString wanted = m_wanted->text();
    if (wanted.isEmpty())
        return;
    QList<QTreeWidgetItem *> items;
    const QList<Document *> documents = m_tabs->documents();
    for (Document *document : documents) {
        auto *text = qobject_cast<TextDocument *>(document);
        if (!text)
            continue;
        QTextCursor cursor = text->content()->find(wanted);
        while (!cursor.isNull() && items.size() < mostPlaces) {
            const QTextBlock block = cursor.block();
            auto *item =
                new QTreeWidgetItem({document->title(), QString::number(block.blockNumber() + 1),
                                     block.text().trimmed()});
            item->setData(0, Qt::UserRole, QVariant::fromValue(QPointer<QObject>(document)));
            item->setData(1, Qt::UserRole, cursor.selectionStart());
            item->setTextAlignment(1, Qt::AlignRight | Qt::AlignVCenter);
            items << item;
            cursor = text->content()->find(wanted, cursor);
        }
    }
    if (items.isEmpty())
        items << new QTreeWidgetItem({tr("“%1” was not found").arg(wanted)});
    m_results->addTopLevelItems(items);
}

void FindResultsView::go(const QTreeWidgetItem *item)
{
    const auto document = item->data(0, Qt::UserRole).value<QPointer<QObject>>();
    auto *text = qobject_cast<TextDocument *>(document.data());
    if (!text || !m_tabs->documents().contains(text))
        return;
    m_tabs->setCurrentDocument(text);
    text->select(item->data(1, Qt::UserRole).toInt(), int(m_wanted->text().size()));
    text->setFocus();
}

} // namespace Workbench
