// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QList>
#include <QtCore/QObject>

#include <memory>

namespace Norvane {
class DockContentWidget;
}

namespace Workbench {

class Document;

/*!
    The open documents, one tab each, with a section for the texts and one for the pictures. It
    knows nothing of dialogs: who connects to closeRequested() decides whether documents may go.
*/
class DocumentTabs : public QObject
{
    Q_OBJECT

public:
    explicit DocumentTabs(Norvane::DockContentWidget *content);

    //! In the order in which they were opened.
    QList<Document *> documents() const;
    //! Null if none is open.
    Document *currentDocument() const;
    void setCurrentDocument(Document *document);
    //! The document of the file at \a path, whatever way the path is written; null if none.
    Document *find(const QString &path) const;

    //! Brings the new tab to the front.
    void add(std::unique_ptr<Document> document);
    //! Without asking.
    void remove(Document *document);

Q_SIGNALS:
    //! Documents were opened or closed, or one stands for another file now.
    void documentsChanged();
    void documentAdded(Workbench::Document *document);
    void currentDocumentChanged(Workbench::Document *document);
    void closeRequested(const QList<Workbench::Document *> &documents);

private:
    void showTitle(Document *document);
    void updateCurrent();
    void request(int mode, int section, int index);

    Norvane::DockContentWidget *m_content;
    QList<Document *> m_documents;
    Document *m_current = nullptr;
};

} // namespace Workbench
