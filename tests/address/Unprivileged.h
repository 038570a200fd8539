// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QtGlobal>
#include <QtCore/QtLogging>

#include <unistd.h>

//! A user who may not do everything, for as long as this lives.
class Unprivileged
{
public:
    Unprivileged()
        : m_user(getuid())
    {
        if (m_user == 0 && setresuid(65534, 65534, 0) != 0)
            qWarning("cannot become somebody else");
    }
    ~Unprivileged()
    {
        if (m_user == 0 && (seteuid(0) != 0 || setresuid(0, 0, 0) != 0))
            qWarning("cannot become root again");
    }
    Q_DISABLE_COPY_MOVE(Unprivileged)

private:
    uid_t m_user;
};
