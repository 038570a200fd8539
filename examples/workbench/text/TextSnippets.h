// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "text/TextSnippet.h"

#include <QtCore/QCoreApplication>

namespace Workbench {

/*!
    All snippets that there are, in groups, in the order in which they are offered.
*/
class TextSnippets
{
    Q_DECLARE_TR_FUNCTIONS(Workbench::TextSnippets)

public:
    static QList<TextSnippetGroup> groups();

private:
    static TextSnippet fixed(const QString &name, const QString &text);
};

} // namespace Workbench
