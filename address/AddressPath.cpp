// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "AddressPath.h"

#include "AddressFolder.h"

#include <QtCore/QDir>
#include <QtCore/QRegularExpression>

namespace Norvane::AddressPath {

Style nativeStyle()
{
#ifdef Q_OS_WIN
    return Style::DriveLetters;
#else
    return Style::SingleRoot;
#endif
}

QList<Crumb> crumbs(const QString &path, Style style)
{
    const QStringList names = path.split(u'/', Qt::SkipEmptyParts);
    const bool rooted = style == Style::SingleRoot && path.startsWith(u'/');
    QList<Crumb> crumbs;
    crumbs.reserve(names.size());
    QString prefix = rooted ? QStringLiteral("/") : QString();
    for (const QString &name : names) {
        prefix += name;
        crumbs.append({name, prefix});
        prefix += u'/';
    }
    return crumbs;
}

QString stored(const QString &path)
{
    QString stored = path;
    stored.replace(u'\\', u'/');
    while (stored.endsWith(u'/'))
        stored.chop(1);
    return stored;
}

bool isBareDrive(const QString &path, Style style)
{
    const bool rooted = style == Style::SingleRoot && path.startsWith(u'/');
    return path.size() == 2 && path.contains(u':') && !rooted;
}

QString folder(const QString &path)
{
    return QString(path).replace(u'\\', u'/') + u'/';
}

QStringList children(const QString &path, Style style)
{
    if (path.isEmpty() && style == Style::DriveLetters) {
        QStringList names;
        const QFileInfoList drives = QDir::drives();
        for (const QFileInfo &drive : drives)
            names << driveName(drive.absoluteDir().path());
        return names;
    }
    QStringList names = AddressFolder::names(folder(path), AddressFolder::Wanted::Folders).folders;
    names.sort();
    return names;
}

QString child(const QString &path, const QString &name, Style style)
{
    if (path.isEmpty() && style == Style::DriveLetters)
        return name;
    return path + u'/' + name;
}

QString driveName(const QString &root)
{
    return root.split(u'/').first();
}

QString typed(const QString &text, Style style)
{
    static const QRegularExpression separator(QStringLiteral("[\\\\/]"));
    QStringList names = text.split(separator, Qt::SkipEmptyParts);
    for (QString &name : names)
        name = name.trimmed();
    const bool rooted = style == Style::SingleRoot && separator.match(text.left(1)).hasMatch();
    return (rooted ? QStringLiteral("\\") : QString()) + names.join(u'\\');
}

} // namespace Norvane::AddressPath
