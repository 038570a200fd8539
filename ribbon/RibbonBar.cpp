// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "RibbonBar_p.h"

#include "QuietReparenting.h"
#include "RibbonCorner.h"
#include "RibbonPage.h"
#include "RibbonStackedWidget.h"
#include "RibbonTabBar.h"
#include "StyleSheet.h"

#include <QtWidgets/QHBoxLayout>

namespace Norvane {

namespace {

// Asks for the height of the stack alone. Its pages would make the window as wide as the widest of
// them, even a hidden one, and each would measure its widgets before anyone has seen it.
class StackItem : public QWidgetItem
{
public:
    using QWidgetItem::QWidgetItem;

    QSize sizeHint() const override { return minimumSize(); }
    QSize minimumSize() const override { return {0, wid->minimumHeight()}; }
    QSize maximumSize() const override { return wid->maximumSize(); }
    Qt::Orientations expandingDirections() const override { return Qt::Horizontal; }
    bool hasHeightForWidth() const override { return false; }
};

} // namespace

RibbonBarPrivate::RibbonBarPrivate()
    : tabBar(new RibbonTabBar)
    , stackedWidget(new RibbonStackedWidget)
{
    corner = new RibbonCorner;
}

RibbonBarPrivate::~RibbonBarPrivate() = default;

RibbonBar::RibbonBar(QWidget *parent)
    : RibbonBar(*new RibbonBarPrivate, parent)
{
    Q_D(RibbonBar);
    setObjectName(QStringLiteral("RibbonBar"));
    setContextMenuPolicy(Qt::CustomContextMenu);
    setStyleSheet(StyleSheet::read(QStringLiteral(":/res/ribbonLight.css")));
    connect(d->tabBar, &RibbonTabBar::idClicked, d->stackedWidget,
            &QStackedWidget::setCurrentIndex);
    connect(d->tabBar, &RibbonTabBar::idClicked, this, &RibbonBar::signalCurrentPageChanged);
}

RibbonBar::RibbonBar(RibbonBarPrivate &dd, QWidget *parent)
    : QFrame(parent)
    , d_ptr(&dd)
{
    Q_D(RibbonBar);
    d->q_ptr = this;
    auto *row = new QHBoxLayout;
    row->addWidget(d->tabBar);
    row->addItem(new QSpacerItem(0, 0, QSizePolicy::Expanding, QSizePolicy::Minimum));
    row->addWidget(d->corner);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addLayout(row);
    d->stackedWidget->setParent(this);
    column->addItem(new StackItem(d->stackedWidget));
    setFixedHeight(column->sizeHint().height());
    // A taller widget in the corner is cut: it must not push the pages out of the bar.
    d->corner->setMaximumHeight(d->tabBar->height());
    new QuietReparenting(this, d->tabBar);
}

RibbonBar::~RibbonBar() = default;

int RibbonBar::addPage(const QString &title, RibbonPage *page, bool temporary)
{
    Q_D(RibbonBar);
    // The numbers of tabs and pages must stay equal, so no page may leave its place in a stack.
    if (!page || qobject_cast<RibbonStackedWidget *>(page->parentWidget()))
        return indexOf(page);
    d->tabBar->addTab(title, temporary);
    return d->stackedWidget->addPage(title, page);
}

RibbonPage *RibbonBar::addPage(const QString &title, bool temporary)
{
    Q_D(RibbonBar);
    const int index = d->tabBar->addTab(title, temporary);
    if (temporary)
        d->tabBar->hideTab(index);
    return d->stackedWidget->addPage(title);
}

bool RibbonBar::contains(RibbonPage *page) const
{
    return indexOf(page) >= 0;
}

int RibbonBar::count() const
{
    Q_D(const RibbonBar);
    return d->stackedWidget->count();
}

int RibbonBar::indexOf(RibbonPage *page) const
{
    Q_D(const RibbonBar);
    return d->stackedWidget->indexOf(page);
}

RibbonPage *RibbonBar::page(int index) const
{
    Q_D(const RibbonBar);
    return d->stackedWidget->page(index);
}

RibbonPage *RibbonBar::currentPage() const
{
    Q_D(const RibbonBar);
    return qobject_cast<RibbonPage *>(d->stackedWidget->currentWidget());
}

RibbonCorner *RibbonBar::corner() const
{
    Q_D(const RibbonBar);
    return d->corner;
}

void RibbonBar::setCurrentIndex(int index)
{
    Q_D(RibbonBar);
    if (index < 0 || index >= count())
        return;
    d->tabBar->setCurrentIndex(index);
    d->stackedWidget->setCurrentIndex(index);
}

void RibbonBar::setCurrentPage(RibbonPage *page)
{
    setCurrentIndex(indexOf(page));
}

void RibbonBar::hidePage(int index)
{
    Q_D(RibbonBar);
    d->tabBar->hideTab(index);
    d->stackedWidget->hidePage(index);
}

void RibbonBar::showPage(int index)
{
    Q_D(RibbonBar);
    d->tabBar->showTab(index);
    d->stackedWidget->showPage(index);
}

void RibbonBar::setPageHidden(int index, bool hidden)
{
    if (hidden)
        hidePage(index);
    else
        showPage(index);
}

void RibbonBar::setPageVisible(int index, bool visible)
{
    setPageHidden(index, !visible);
}

void RibbonBar::setPageEnabled(int index, bool enabled)
{
    Q_D(RibbonBar);
    d->tabBar->setTabEnabled(index, enabled);
}

void RibbonBar::hideTemporaryPages()
{
    Q_D(RibbonBar);
    for (int i = 0; i < d->tabBar->count(); ++i) {
        if (d->tabBar->isTabTemporary(i))
            hidePage(i);
    }
}

} // namespace Norvane
