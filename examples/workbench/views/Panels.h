// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QObject>

namespace Norvane {
class AddressBar;
class DockContainer;
} // namespace Norvane

namespace Workbench {

class Document;
class DocumentTabs;
class FileCommands;
class FilesView;
class FindResultsView;
class LogView;
class OutlineView;
class PropertiesView;

//! The views in the panels around the documents.
class Panels : public QObject
{
    Q_OBJECT

public:
    Panels(Norvane::DockContainer *container, Norvane::AddressBar *bar, DocumentTabs *tabs,
           FileCommands *files);

    //! The document in front, or null.
    void setDocument(Document *document);
    //! Brings the find results to the front and asks for the text to find.
    void startFinding();
    void log(const QString &text);

private:
    Norvane::DockContainer *m_container;
    FilesView *m_files;
    OutlineView *m_outline;
    PropertiesView *m_properties;
    FindResultsView *m_results;
    LogView *m_log;
    Document *m_document = nullptr;
};

} // namespace Workbench
