// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "Subject.h"

class QTabWidget;

class PlainSubject : public Subject
{
public:
    PlainSubject();

    QWidget *bar() const override;
    void fill(const QList<PageActions> &pages, int temporary) override;
    QWidget *page(int index) const override;
    void setCurrentPage(int index) override;
    void changeSection(int firstPage, int secondPage) override;

private:
    QTabWidget *m_bar;
    int m_temporary = 0;
};
