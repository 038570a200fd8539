// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "DocumentTabs.h"

#include "Icons.h"
#include "documents/Document.h"

#include <Norvane/DockContentWidget.h>

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtGui/QGuiApplication>
#include <QtGui/QPainter>

namespace Workbench {

static QPixmap placeholder(const QFont &font)
{
    const qreal ratio = qGuiApp->devicePixelRatio();
    const QSize size(320, 160);
    QPixmap pixmap(size * ratio);
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    icon(QLatin1StringView("open")).paint(&painter, QRect(size.width() / 2 - 32, 0, 64, 64));
    painter.setFont(font);
    painter.setPen(QColor(110, 110, 110));
    painter.drawText(QRect(0, 84, size.width(), 70), Qt::AlignHCenter | Qt::AlignTop,
                     DocumentTabs::tr("Open a text or a picture,\nor drop files here."));
    return pixmap;
}

DocumentTabs::DocumentTabs(Norvane::DockContentWidget *content)
    : QObject(content)
    , m_content(content)
{
    // In the order of Document::Kind.
    content->addSection(tr("Texts"));
    content->addSection(tr("Pictures"));
    content->setPlaceholderPixmap(placeholder(content->font()));
    content->setAutoHide(false);
    connect(content, &Norvane::DockContentWidget::signalCurrentTabChanged, this,
            &DocumentTabs::updateCurrent);
    connect(content, &Norvane::DockContentWidget::signalCurrentSectionChanged, this,
            &DocumentTabs::updateCurrent);
    connect(content, &Norvane::DockContentWidget::signalTabCloseRequested, this,
            &DocumentTabs::request);
}

QList<Document *> DocumentTabs::documents() const
{
    return m_documents;
}

Document *DocumentTabs::currentDocument() const
{
    return qobject_cast<Document *>(m_content->currentWidget(m_content->currentSection()));
}

void DocumentTabs::setCurrentDocument(Document *document)
{
    m_content->setCurrentTab(m_content->sectionOf(document), m_content->tabOf(document));
}

Document *DocumentTabs::find(const QString &path) const
{
    // A file that does not exist (any more) has no canonical path.
    const auto identity = [](const QString &path) {
        const QFileInfo info(path);
        return info.exists() ? info.canonicalFilePath() : info.absoluteFilePath();
    };
    const QString wanted = identity(path);
    for (Document *document : m_documents) {
        if (identity(document->path()) == wanted)
            return document;
    }
    return nullptr;
}

void DocumentTabs::add(std::unique_ptr<Document> document)
{
    Document *added = document.release();
    m_documents << added;
    m_content->addTab(int(added->kind()), added, added->title());
    showTitle(added);
    connect(added, &Document::changed, this, [this, added] { showTitle(added); });
    connect(added, &Document::saved, this, &DocumentTabs::documentsChanged);
    setCurrentDocument(added);
    added->setFocus();
    Q_EMIT documentAdded(added);
    Q_EMIT documentsChanged();
}

void DocumentTabs::remove(Document *document)
{
    m_documents.removeOne(document);
    m_content->removeTab(m_content->sectionOf(document), m_content->tabOf(document));
    document->deleteLater();
    Q_EMIT documentsChanged();
}

void DocumentTabs::showTitle(Document *document)
{
    const int section = m_content->sectionOf(document);
    const int index = m_content->tabOf(document);
    QString title = document->title();
    title.replace(u'&', QStringLiteral("&&"));
    m_content->setTabText(section, index, document->isModified() ? tr("%1 *").arg(title) : title);
    m_content->setTabToolTip(section, index, QDir::toNativeSeparators(document->path()));
}

void DocumentTabs::updateCurrent()
{
    Document *current = currentDocument();
    if (current == m_current)
        return;
    m_current = current;
    Q_EMIT currentDocumentChanged(current);
}

void DocumentTabs::request(int mode, int section, int index)
{
    QList<Document *> documents;
    for (int i = 0; i < m_content->tabCount(section); ++i) {
        const bool wanted = mode == Norvane::CloseAll
            || (mode == Norvane::CloseCurrent && i == index)
            || (mode == Norvane::CloseAllLeft && i < index)
            || (mode == Norvane::CloseAllRight && i > index)
            || (mode == Norvane::CloseAllExceptCurrent && i != index);
        if (wanted)
            documents << qobject_cast<Document *>(m_content->widget(section, i));
    }
    Q_EMIT closeRequested(documents);
}

} // namespace Workbench
