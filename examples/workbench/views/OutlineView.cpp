// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "views/OutlineView.h"

#include "text/TextDocument.h"

#include <QtCore/QRegularExpression>
#include <QtGui/QTextBlock>

namespace Workbench {

// More would be no overview.
static constexpr int mostEntries = 1000;

OutlineView::OutlineView(QWidget *parent)
    : QListWidget(parent)
{
    setFrameShape(QFrame::NoFrame);
    setUniformItemSizes(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    // Typing goes on while the outline waits for a pause.
    m_timer.setSingleShot(true);
    m_timer.setInterval(150);
    connect(&m_timer, &QTimer::timeout, this, &OutlineView::fill);
    connect(this, &QListWidget::itemClicked, this, &OutlineView::go);
    connect(this, &QListWidget::itemActivated, this, &OutlineView::go);
}

void OutlineView::setDocument(Document *document)
{
    if (m_document)
        m_document->content()->disconnect(this);
    m_document = qobject_cast<TextDocument *>(document);
    if (m_document) {
        connect(m_document->content(), &QTextDocument::contentsChanged, &m_timer,
                qOverload<>(&QTimer::start));
    }
    fill();
}

void OutlineView::fill()
{
    clear();
    if (!m_document)
        return;
    static const QRegularExpression marked(QStringLiteral("^(#{1,6})\\s+(.+)$"));
    static const QRegularExpression bracketed(QStringLiteral("^\\[(.+)\\]\\s*$"));
    static const QRegularExpression underline(QStringLiteral("^(=+|-+)\\s*$"));
    QList<std::pair<QString, int>> headings;
    QList<std::pair<QString, int>> paragraphs;
    QTextBlock before;
    for (QTextBlock block = m_document->content()->begin(); block.isValid(); block = block.next()) {
        if (headings.size() >= mostEntries || paragraphs.size() >= mostEntries)
            break;
        const QString line = block.text();
        const QString above = before.isValid() ? before.text().trimmed() : QString();
        if (const auto match = marked.match(line); match.hasMatch()) {
            const QString indent((match.capturedLength(1) - 1) * 2, u' ');
            headings.append({indent + match.captured(2), block.position()});
        } else if (const auto match = bracketed.match(line); match.hasMatch()) {
            headings.append({match.captured(1), block.position()});
        } else if (!above.isEmpty() && underline.match(line).hasMatch()) {
            headings.append({above, before.position()});
        } else if (above.isEmpty() && !line.trimmed().isEmpty()) {
            paragraphs.append({line.trimmed(), block.position()});
        }
        before = block;
    }
    const QList<std::pair<QString, int>> &shown = headings.isEmpty() ? paragraphs : headings;
    // As wide as the list, where a longer one ends in dots.
    const QSize size(0, fontMetrics().height());
    for (const auto &[text, position] : shown) {
        auto *item = new QListWidgetItem(text, this);
        item->setData(Qt::UserRole, position);
        item->setToolTip(text);
        item->setSizeHint(size);
    }
}

void OutlineView::go(const QListWidgetItem *item)
{
    if (m_document)
        m_document->select(item->data(Qt::UserRole).toInt(), 0);
}

} // namespace Workbench
