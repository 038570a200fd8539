// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QList>
#include <QtCore/QString>

#include <functional>

namespace Workbench {

//! A piece of text to be put into texts. Its lines end with line feeds.
struct TextSnippet
{
    QString name;
    //! The text as it is now: that of some depends on the time.
    std::function<QString()> text;
};

struct TextSnippetGroup
{
    QString title;
    QList<TextSnippet> snippets;
};

} // namespace Workbench
