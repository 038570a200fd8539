// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "RibbonStackedWidget_p.h"

#include "OffstagePages.h"
#include "RibbonPage.h"

namespace Norvane {

RibbonStackedWidget::RibbonStackedWidget(QWidget *parent)
    : RibbonStackedWidget(*new RibbonStackedWidgetPrivate, parent)
{
}

RibbonStackedWidget::RibbonStackedWidget(RibbonStackedWidgetPrivate &dd, QWidget *parent)
    : QStackedWidget(parent)
    , d_ptr(&dd)
{
    Q_D(RibbonStackedWidget);
    d->q_ptr = this;
    d->offstagePages = new OffstagePages(this);
    setFixedHeight(95);
}

RibbonStackedWidget::~RibbonStackedWidget() = default;

int RibbonStackedWidget::addPage(const QString &title, RibbonPage *page)
{
    Q_D(RibbonStackedWidget);
    d->offstagePages->watch(page);
    addWidget(page);
    d->pages.insert(title, page);
    return indexOf(page);
}

RibbonPage *RibbonStackedWidget::addPage(const QString &title)
{
    auto *page = new RibbonPage;
    addPage(title, page);
    setCurrentIndex(0);
    return page;
}

void RibbonStackedWidget::hidePage(int index)
{
    Q_D(RibbonStackedWidget);
    if (index >= d->pages.size())
        return;
    if (QWidget *page = widget(index))
        page->hide();
}

void RibbonStackedWidget::showPage(int index)
{
    Q_D(RibbonStackedWidget);
    if (index >= d->pages.size())
        return;
    if (QWidget *page = widget(index))
        page->show();
}

RibbonPage *RibbonStackedWidget::page(int index) const
{
    return qobject_cast<RibbonPage *>(widget(index));
}

} // namespace Norvane
