// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QList>

class QAction;
class QWidget;

// The actions of a ribbon, by page and group.
using GroupActions = QList<QAction *>;
using PageActions = QList<GroupActions>;

// In every group two actions with large buttons are followed by a column of up to three small ones.
constexpr int largeRun = 2;
constexpr int smallRun = 3;

// What is measured: a strip of pages filled with actions. The last `temporary` pages belong to
// sections, two pages to each, and are hidden at first.
class Subject
{
public:
    virtual ~Subject() = default;

    virtual QWidget *bar() const = 0;
    virtual void fill(const QList<PageActions> &pages, int temporary) = 0;
    virtual QWidget *page(int index) const = 0;
    virtual void setCurrentPage(int index) = 0;
    // Hides the temporary pages, shows two of them and makes the first of the two current.
    virtual void changeSection(int firstPage, int secondPage) = 0;
};
