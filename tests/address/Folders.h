// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "Gui.h"

#include <QtCore/QDir>
#include <QtCore/QTemporaryDir>

//! Folders to walk through, in a temporary folder of their own.
class Folders
{
public:
    explicit Folders(const QStringList &paths = {})
    {
        for (const QString &path : paths)
            make(path);
    }

    QString path(const QString &relative = {}) const
    {
        return relative.isEmpty() ? m_folder.path() : m_folder.filePath(relative);
    }

    QString make(const QString &relative) const
    {
        return QDir(path()).mkpath(relative) ? path(relative) : QString();
    }

    bool remove(const QString &relative) const { return QDir(path(relative)).removeRecursively(); }

private:
    QTemporaryDir m_folder;
};
