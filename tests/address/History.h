// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

//! What an address strip is meant to do, without widgets.
struct History
{
    QString path;
    QStringList paths;
    int index = -1;
    bool crumbs = false;
    QStringList log;

    void tell()
    {
        log << QStringLiteral("%1%2%3")
                   .arg(index != 0)
                   .arg(index != paths.size() - 1)
                   .arg(!path.isEmpty());
    }
    void show(qsizetype at)
    {
        index = int(at);
        crumbs = true;
        tell();
        log << path;
    }
    void navigate(const QString &to)
    {
        QString next = QString(to).replace(u'\\', u'/');
        while (next.endsWith(u'/'))
            next.chop(1);
        if (to.isEmpty() || next == path)
            return;
        path = next;
        if (paths.isEmpty() || paths.last() != path)
            paths = paths.mid(0, index + 1) << path;
        show(paths.size() - 1);
        tell();
    }
    void reset(const QString &to)
    {
        paths.clear();
        index = -1;
        navigate(to);
    }
    void step(int by)
    {
        if (index + by < 0 || index + by >= paths.size())
            return;
        path = paths.at(index + by);
        show(index + by);
    }
    void up()
    {
        const QString above = path.section(u'/', 0, -2);
        crumbs = false;
        navigate(above.isEmpty() ? QStringLiteral("/") : above);
        tell();
    }
    void slot(const QString &to)
    {
        crumbs = false;
        navigate(to);
    }
    void edit()
    {
        crumbs = false;
        path.replace(u'/', u'\\');
    }
};
