// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QList>
#include <QtWidgets/QTabWidget>

#include <memory>

namespace Workbench {

class Document;

/*!
    The open documents, one tab each. It knows nothing of dialogs: who connects to
    tabCloseRequested() decides whether a document may go.
*/
class DocumentTabs : public QTabWidget
{
    Q_OBJECT

public:
    explicit DocumentTabs(QWidget *parent = nullptr);

    QList<Document *> documents() const;
    Document *document(int index) const;
    //! Null if none is open.
    Document *currentDocument() const;
    //! The document of the file at \a path, whatever way the path is written; null if none.
    Document *find(const QString &path) const;

    //! Brings the new tab to the front.
    void add(std::unique_ptr<Document> document);
    //! Without asking.
    void remove(Document *document);

Q_SIGNALS:
    void currentDocumentChanged(Workbench::Document *document);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void showTitle(Document *document);
};

} // namespace Workbench
