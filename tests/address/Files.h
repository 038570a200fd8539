// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QDir>
#include <QtCore/QDirIterator>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QTemporaryDir>

/*!
    Files in a temporary folder of their own, beside a home folder whose trash receives what is
    removed. Without a trash nothing can be moved there.

    Texts show a file as "name=content", a folder as "name/" and a link as "name->target".
*/
class Files
{
public:
    enum class Trash { Working, Missing };

    explicit Files(const QStringList &entries = {}, Trash trash = Trash::Working)
        : m_home(qgetenv("HOME"))
    {
        QDir(m_folder.path()).mkpath(QStringLiteral("files"));
        QDir(m_folder.path()).mkpath(QStringLiteral("home"));
        qputenv("HOME", QFile::encodeName(home()));
        if (trash == Trash::Working)
            QDir(home()).mkpath(QStringLiteral(".local/share"));
        make(entries);
    }

    ~Files() { qputenv("HOME", m_home); }
    Q_DISABLE_COPY_MOVE(Files)

    QString home() const { return m_folder.filePath(QStringLiteral("home")); }
    QString path() const { return m_folder.filePath(QStringLiteral("files")); }
    QString path(const QString &name) const { return path() + u'/' + name; }

    //! Makes what the texts show, in order.
    void make(const QStringList &entries) const
    {
        for (const QString &entry : entries) {
            const qsizetype link = entry.indexOf(QStringLiteral("->"));
            const qsizetype file = entry.lastIndexOf(u'=');
            if (link >= 0)
                QFile::link(entry.mid(link + 2), path(entry.left(link)));
            else if (file >= 0)
                write(entry.left(file), entry.mid(file + 1).toUtf8());
            else
                QDir(path()).mkpath(entry);
        }
    }

    void write(const QString &name, const QByteArray &content) const
    {
        QFile file(path(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            qWarning("cannot write %s", qPrintable(file.fileName()));
    }

    //! Everything that is in the folder, in order.
    QStringList entries(const QString &name = {}) const
    {
        return below(name.isEmpty() ? path() : path(name));
    }

    //! Everything that is in the trash, in order.
    QStringList trashed() const
    {
        return below(home() + QStringLiteral("/.local/share/Trash/files"));
    }

private:
    static QStringList below(const QString &folder)
    {
        QStringList entries;
        QDirIterator it(folder,
                        QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                        QDirIterator::Subdirectories);
        while (it.hasNext()) {
            const QFileInfo info = it.nextFileInfo();
            const QString name = QDir(folder).relativeFilePath(info.filePath());
            if (info.isSymLink())
                entries << name + QStringLiteral("->") + info.readSymLink();
            else if (info.isDir())
                entries << name + u'/';
            else
                entries << name + u'=' + content(info);
        }
        entries.sort();
        return entries;
    }

    static QString content(const QFileInfo &info)
    {
        QFile file(info.filePath());
        // To read a pipe would wait for its writer.
        return info.isFile() && file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll())
                                                               : QString();
    }

    QTemporaryDir m_folder;
    QByteArray m_home;
};
