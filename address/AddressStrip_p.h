// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "AddressStrip.h"

#include <QtCore/QStringList>

class QCompleter;
class QStringListModel;

namespace Norvane {

class AddressEntry;

class AddressStripPrivate
{
    Q_DECLARE_PUBLIC(AddressStrip)

public:
    AddressStripPrivate();
    virtual ~AddressStripPrivate();

    void navigate(const QString &path);
    void step(int by);
    void rebuild(int index);
    void addRootIcon();
    void addEntry(const QString &text, const QString &path);
    void showCrumbs();
    void clearCrumbs();
    void updateButtons();
    void commit();

    QString path;
    QStringList history;
    int index = -1;
    QCompleter *completer;
    QStringListModel *model;
    AddressStrip *q_ptr = nullptr;

    // Building the crumbs takes the focus away, and losing the focus navigates.
    bool rebuilding = false;
};

} // namespace Norvane
