// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QFileSystemWatcher>
#include <QtCore/QObject>
#include <QtCore/QTimer>

namespace Workbench {

class DocumentTabs;

/*!
    Lets the open documents follow their files: when the system says that one was changed, and
    whenever the user comes back to the program.
*/
class FileWatch : public QObject
{
    Q_OBJECT

public:
    explicit FileWatch(DocumentTabs *tabs);

Q_SIGNALS:
    //! Something happened that the user cannot see otherwise.
    void message(const QString &text);

private:
    void watchFiles();
    void followFiles();

    DocumentTabs *m_tabs;
    QFileSystemWatcher m_watcher;
    QTimer m_settled;
};

} // namespace Workbench
