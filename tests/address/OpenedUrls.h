// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QObject>
#include <QtCore/QUrl>
#include <QtGui/QDesktopServices>

//! Takes the local files that would be opened with the system's programs.
class OpenedUrls : public QObject
{
    Q_OBJECT

public:
    OpenedUrls() { QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "take"); }
    ~OpenedUrls() override { QDesktopServices::unsetUrlHandler(QStringLiteral("file")); }

    QStringList paths;

public Q_SLOTS:
    void take(const QUrl &url) { paths << url.toLocalFile(); }
};
