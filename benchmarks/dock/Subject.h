// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QPointer>

class QTabWidget;
class QWidget;

// A window with panels on three sides of a centre with documents.
class Subject
{
public:
    virtual ~Subject() = default;

    virtual QWidget *window() = 0;
    // Adds a view to one of the panels: 0 is the left, 1 the right, 2 the bottom one.
    virtual void addView(int panel, QWidget *widget) = 0;
    // Sends the left panel away or brings it back.
    virtual void setMinimized(bool minimized) = 0;
    virtual QByteArray save() const = 0;
    virtual void restore(const QByteArray &state) = 0;
};
