// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGui/QImage>

namespace Workbench {

/*!
    Shows the beginning of a text on a small sheet of paper.
*/
class SnippetPreview
{
public:
    static QImage draw(const QString &text, QSize size);
};

} // namespace Workbench
