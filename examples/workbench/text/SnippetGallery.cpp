// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "text/SnippetGallery.h"

#include "PreviewIcon.h"
#include "text/SnippetPreview.h"
#include "text/TextSnippets.h"

#include <QtGui/QAction>

namespace Workbench {

SnippetGallery::SnippetGallery(QWidget *parent)
    : Norvane::RibbonGallery(parent)
{
    setDispalyCount(5);
    setIconSize(QSize(48, 32));
    setActionSize(QSize(78, 60));
    setCollectEnabled(true);
    const QList<TextSnippetGroup> groups = TextSnippets::groups();
    for (const TextSnippetGroup &group : groups) {
        const int index = addGroup(group.title);
        for (const TextSnippet &snippet : group.snippets) {
            const auto draw = [snippet](QSize size) {
                return SnippetPreview::draw(snippet.text(), size);
            };
            auto *action = new QAction(QIcon(new PreviewIcon(draw)), snippet.name, this);
            action->setToolTip(tr("Insert “%1”").arg(snippet.name));
            m_snippets.insert(action, snippet);
            addItem(index, action);
        }
    }
    connect(this, &RibbonGallery::signalTriggered, this,
            [this](QAction *action) { Q_EMIT picked(m_snippets.value(action).text()); });
}

} // namespace Workbench
