// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "RibbonSubject.h"

#include <Norvane/RibbonBar.h>
#include <Norvane/RibbonGroup.h>
#include <Norvane/RibbonPage.h>
#include <Norvane/RibbonSubgroup.h>

using namespace Norvane;

RibbonSubject::RibbonSubject()
    : m_bar(new RibbonBar(nullptr))
{
}

QWidget *RibbonSubject::bar() const
{
    return m_bar;
}

void RibbonSubject::fill(const QList<PageActions> &pages, int temporary)
{
    for (qsizetype p = 0; p < pages.size(); ++p) {
        RibbonPage *page =
            m_bar->addPage(QStringLiteral("Page %1").arg(p), p >= pages.size() - temporary);
        for (const GroupActions &actions : pages.at(p)) {
            RibbonGroup *group = page->addGroup(QStringLiteral("Group"));
            RibbonSubgroup *subgroup = nullptr;
            for (qsizetype a = 0; a < actions.size(); ++a) {
                const qsizetype position = a % (largeRun + smallRun);
                if (position < largeRun) {
                    group->addAction(actions.at(a));
                    continue;
                }
                if (position == largeRun)
                    subgroup = group->addSubgroup();
                subgroup->addAction(actions.at(a));
            }
        }
    }
}

QWidget *RibbonSubject::page(int index) const
{
    return m_bar->page(index);
}

void RibbonSubject::setCurrentPage(int index)
{
    m_bar->setCurrentIndex(index);
}

void RibbonSubject::changeSection(int firstPage, int secondPage)
{
    m_bar->hideTemporaryPages();
    m_bar->setPageVisible(firstPage, true);
    m_bar->setPageVisible(secondPage, true);
    m_bar->setCurrentIndex(firstPage);
}
