// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QCoreApplication>
#include <QtCore/QList>
#include <QtCore/QString>

#include <optional>

class QTextDocument;

namespace Workbench {

/*!
    Keeps with every line of a text document how that line ends.

    The ends are stored in the block formats, so that undo restores them with the text, and a new
    line ends as the one that it was made from.
*/
class LineEnds
{
    Q_DECLARE_TR_FUNCTIONS(Workbench::LineEnds)

public:
    //! Paragraph separators (U+2029) are kept, but not offered.
    enum class LineEnd { Lf, CrLf, Cr, ParagraphSeparator };

    //! The ends that a text can be converted to.
    static QList<LineEnd> offered();
    static QString name(LineEnd end);

    //! Makes \a text the document's content; the undo history starts anew.
    static void load(QTextDocument *document, const QString &text);
    //! The content with every line's own end.
    static QString text(const QTextDocument *document);

    //! The end of all lines, or nothing if they differ.
    static std::optional<LineEnd> common(const QTextDocument *document);
    //! Makes all lines end with \a end, as one step that can be undone.
    static void convert(QTextDocument *document, LineEnd end);
};

} // namespace Workbench
