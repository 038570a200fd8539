// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "views/PropertiesView.h"

#include "Texts.h"
#include "documents/Document.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QLocale>
#include <QtWidgets/QHeaderView>

namespace Workbench {

PropertiesView::PropertiesView(QWidget *parent)
    : QTreeWidget(parent)
{
    setFrameShape(QFrame::NoFrame);
    setRootIsDecorated(false);
    // The pane's share of a small window would cut off when the file was changed.
    setMinimumWidth(30 * fontMetrics().averageCharWidth());
    setColumnCount(2);
    setHeaderLabels({tr("Property"), tr("Value")});
    header()->setMinimumSectionSize(0);
    header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    header()->setSectionResizeMode(1, QHeaderView::Stretch);
}

void PropertiesView::showDocument(const Document *document)
{
    clear();
    if (!document)
        return;
    const QFileInfo file(document->path());
    const QLocale locale;
    add(tr("Name"), document->title());
    add(tr("Folder"), QDir::toNativeSeparators(file.absolutePath()));
    add(tr("Kind"), document->kind() == Document::Kind::Text ? tr("Text") : tr("Picture"));
    add(tr("Content"), document->summary());
    if (file.exists()) {
        add(tr("Size"), locale.formattedDataSize(file.size()));
        add(tr("Changed"), locale.toString(file.lastModified(), QLocale::ShortFormat));
    }
    add(tr("State"), document->isModified() ? tr("Not saved") : tr("Saved"));
    add(tr("Zoom"), tr("%1%").arg(qRound(document->zoom() * 100)));
}

void PropertiesView::add(const QString &name, const QString &value)
{
    auto *item = new QTreeWidgetItem(this, {name, isolated(value)});
    item->setToolTip(1, value);
}

} // namespace Workbench
