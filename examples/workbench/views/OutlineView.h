// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QPointer>
#include <QtCore/QTimer>
#include <QtWidgets/QListWidget>

namespace Workbench {

class Document;
class TextDocument;

/*!
    The headings of the text in front: lines marked by #, underlined lines, names in brackets, or,
    in a text without any, the first line of every paragraph. A click goes there.
*/
class OutlineView : public QListWidget
{
    Q_OBJECT

public:
    explicit OutlineView(QWidget *parent = nullptr);

    //! Null, or a document of another kind, empties the view.
    void setDocument(Document *document);

private:
    void fill();
    void go(const QListWidgetItem *item);

    QPointer<TextDocument> m_document;
    QTimer m_timer;
};

} // namespace Workbench
