// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "DocumentTabs.h"

#include "Icons.h"
#include "documents/Document.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtGui/QPainter>
#include <QtWidgets/QTabBar>

namespace Workbench {

DocumentTabs::DocumentTabs(QWidget *parent)
    : QTabWidget(parent)
{
    setDocumentMode(true);
    setTabsClosable(true);
    setMovable(true);
    setElideMode(Qt::ElideNone);
    tabBar()->setStyleSheet(QStringLiteral(
        "QTabBar::close-button { image: url(:/workbench/icons/tab-close.svg); }"
        "QTabBar::close-button:hover { image: url(:/workbench/icons/tab-close-hover.svg); }"));
    connect(this, &QTabWidget::currentChanged, this,
            [this] { Q_EMIT currentDocumentChanged(currentDocument()); });
}

QList<Document *> DocumentTabs::documents() const
{
    QList<Document *> documents;
    for (int i = 0; i < count(); ++i)
        documents << document(i);
    return documents;
}

Document *DocumentTabs::document(int index) const
{
    return qobject_cast<Document *>(widget(index));
}

Document *DocumentTabs::currentDocument() const
{
    return document(currentIndex());
}

Document *DocumentTabs::find(const QString &path) const
{
    // A file that does not exist (any more) has no canonical path.
    const auto identity = [](const QString &path) {
        const QFileInfo info(path);
        return info.exists() ? info.canonicalFilePath() : info.absoluteFilePath();
    };
    const QString wanted = identity(path);
    const QList<Document *> open = documents();
    for (Document *document : open) {
        if (identity(document->path()) == wanted)
            return document;
    }
    return nullptr;
}

void DocumentTabs::add(std::unique_ptr<Document> document)
{
    Document *added = document.release();
    addTab(added, QString());
    showTitle(added);
    connect(added, &Document::changed, this, [this, added] { showTitle(added); });
    setCurrentWidget(added);
    added->setFocus();
}

void DocumentTabs::remove(Document *document)
{
    removeTab(indexOf(document));
    document->deleteLater();
}

void DocumentTabs::paintEvent(QPaintEvent *event)
{
    QTabWidget::paintEvent(event);
    if (count() > 0)
        return;
    QPainter painter(this);
    const QRect picture(width() / 2 - 32, height() / 2 - 72, 64, 64);
    icon(QLatin1StringView("open")).paint(&painter, picture);
    painter.setPen(palette().color(QPalette::Disabled, QPalette::WindowText));
    painter.drawText(QRect(0, picture.bottom() + 16, width(), 60), Qt::AlignHCenter | Qt::AlignTop,
                     tr("Open a text or a picture,\nor drop files here."));
}

void DocumentTabs::showTitle(Document *document)
{
    const int index = indexOf(document);
    QString title = document->title();
    title.replace(u'&', QStringLiteral("&&"));
    setTabText(index, document->isModified() ? tr("%1 *").arg(title) : title);
    setTabToolTip(index, QDir::toNativeSeparators(document->path()));
    setTabIcon(index,
               icon(document->kind() == Document::Kind::Text ? QLatin1StringView("text-file")
                                                             : QLatin1StringView("picture-file")));
}

} // namespace Workbench
