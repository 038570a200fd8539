// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "text/TextSnippet.h"

#include <Norvane/RibbonGallery.h>

#include <QtCore/QHash>

namespace Workbench {

/*!
    Offers all snippets, each with a preview.
*/
class SnippetGallery : public Norvane::RibbonGallery
{
    Q_OBJECT

public:
    explicit SnippetGallery(QWidget *parent = nullptr);

Q_SIGNALS:
    void picked(const QString &text);

private:
    QHash<const QAction *, TextSnippet> m_snippets;
};

} // namespace Workbench
