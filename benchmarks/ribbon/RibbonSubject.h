// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "Subject.h"

namespace Norvane {
class RibbonBar;
}

class RibbonSubject : public Subject
{
public:
    RibbonSubject();

    QWidget *bar() const override;
    void fill(const QList<PageActions> &pages, int temporary) override;
    QWidget *page(int index) const override;
    void setCurrentPage(int index) override;
    void changeSection(int firstPage, int secondPage) override;

private:
    Norvane::RibbonBar *m_bar;
};
