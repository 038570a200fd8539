// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "Patience.h"

#include <address/AddressEntry.h>
#include <address/AddressStrip.h>

#include <QtTest/QTest>
#include <QtWidgets/QLayout>

#include <algorithm>

inline QList<Norvane::AddressEntry *> entriesOf(const Norvane::AddressStrip *strip)
{
    QList<Norvane::AddressEntry *> entries;
    for (int i = 0; i < strip->layout()->count(); ++i) {
        if (auto *entry =
                qobject_cast<Norvane::AddressEntry *>(strip->layout()->itemAt(i)->widget()))
            entries << entry;
    }
    return entries;
}

//! What the crumbs say, without the root.
inline QStringList crumbsOf(const Norvane::AddressStrip *strip)
{
    QStringList texts;
    const QList<Norvane::AddressEntry *> entries = entriesOf(strip);
    for (const Norvane::AddressEntry *entry : entries)
        texts << entry->text();
    return texts.mid(1);
}

//! Crumbs are shown when control returns to the event loop.
inline bool waitForCrumbs(const Norvane::AddressStrip *strip)
{
    return QTest::qWaitFor(
        [strip] {
            const QList<Norvane::AddressEntry *> entries = entriesOf(strip);
            return std::all_of(
                entries.begin(), entries.end(),
                [](const Norvane::AddressEntry *entry) { return entry->isVisible(); });
        },
        patience);
}

inline bool isEditing(const Norvane::AddressStrip *strip)
{
    return strip->hasFocus() && strip->focusPolicy() == Qt::StrongFocus
        && strip->cursor().shape() == Qt::IBeamCursor && strip->layout()->count() == 0;
}

inline bool showsCrumbs(const Norvane::AddressStrip *strip)
{
    return !strip->hasFocus() && strip->focusPolicy() == Qt::NoFocus
        && strip->cursor().shape() == Qt::ArrowCursor && strip->text().isEmpty()
        && strip->layout()->count() == strip->path().count(u'/') + 2;
}

inline QString withBackslashes(QString path)
{
    return path.replace(u'/', u'\\');
}
