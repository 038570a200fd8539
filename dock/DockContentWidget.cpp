// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "DockContentWidget_p.h"

#include "DockTabWidget.h"

#include <QtCore/QScopedValueRollback>
#include <QtGui/QMouseEvent>
#include <QtWidgets/QMenu>
#include <QtWidgets/QTabBar>
#include <QtWidgets/QVBoxLayout>

#include <algorithm>

namespace Norvane {

DockContentWidgetPrivate::DockContentWidgetPrivate()
    : sectionWidget(new QTabWidget)
{
    sectionWidget->setObjectName(QStringLiteral("dockSectionWidget"));
    sectionWidget->tabBar()->setObjectName(QStringLiteral("dockSectionBar"));
    sectionWidget->setTabPosition(QTabWidget::South);
    for (QAction *&action : closeActions)
        action = new QAction;
}

DockContentWidgetPrivate::~DockContentWidgetPrivate()
{
    qDeleteAll(closeActions);
}

bool DockContentWidgetPrivate::hasTabs() const
{
    return std::any_of(sectionTabs.cbegin(), sectionTabs.cend(),
                       [](const QTabWidget *tabs) { return tabs->count() > 0; });
}

QTabWidget *DockContentWidgetPrivate::tabsWith(int section, int index) const
{
    QTabWidget *tabs = sectionTabs.value(section);
    return tabs && index >= 0 && index < tabs->count() ? tabs : nullptr;
}

void DockContentWidgetPrivate::refreshPlaceholder()
{
    Q_Q(DockContentWidget);
    q->setPixmap(sectionWidget->isHidden() ? placeholder : QPixmap());
}

void DockContentWidgetPrivate::onTabChanged(const QTabWidget *tabs, int index)
{
    Q_Q(DockContentWidget);
    const int section = sectionWidget->indexOf(tabs->parentWidget());
    // Through the tab widget, not its bar: that makes the section current if none is visible.
    sectionWidget->setTabVisible(section, tabs->count() > 0);
    if (section == lastSection && index == lastTab)
        return;
    if (index >= 0) {
        Q_EMIT q->signalCurrentTabChanged(section, index);
        lastSection = section;
        lastTab = index;
    }
}

void DockContentWidgetPrivate::onSectionChanged(int section)
{
    Q_Q(DockContentWidget);
    Q_EMIT q->signalCurrentSectionChanged(section);
    if (const QTabWidget *tabs = sectionTabs.value(section)) {
        const int tab = tabs->currentIndex();
        if (section != lastSection || tab != lastTab) {
            Q_EMIT q->signalCurrentTabChanged(section, tab);
            lastTab = tab;
        }
    }
    lastSection = section;
}

void DockContentWidgetPrivate::onLastTabGone()
{
    Q_Q(DockContentWidget);
    if (q->isVisible()) {
        sectionWidget->hide();
        refreshPlaceholder();
        if (autoHide)
            Q_EMIT q->signalVisibleChanged(false);
    }
    Q_EMIT q->signalCurrentSectionChanged(-1);
    Q_EMIT q->signalCurrentTabChanged(-1, -1);
    lastSection = -1;
    lastTab = -1;
}

void DockContentWidgetPrivate::showMenu(const QTabBar *bar, const QPoint &position)
{
    const int tab = bar->tabAt(position);
    if (tab < 0)
        return;
    menuTab = tab;
    QMenu menu;
    menu.addAction(closeActions[CloseCurrent]);
    if (tab > 0)
        menu.addAction(closeActions[CloseAllLeft]);
    if (tab < bar->count() - 1)
        menu.addAction(closeActions[CloseAllRight]);
    if (bar->count() > 1) {
        menu.addAction(closeActions[CloseAllExceptCurrent]);
        menu.addAction(closeActions[CloseAll]);
    }
    menu.exec(bar->mapToGlobal(position));
}

DockContentWidget::DockContentWidget(QWidget *parent)
    : DockContentWidget(*new DockContentWidgetPrivate, parent)
{
    Q_D(DockContentWidget);
    d->closeActions[CloseCurrent]->setText(tr("Close Current"));
    d->closeActions[CloseAllLeft]->setText(tr("Close All Left"));
    d->closeActions[CloseAllRight]->setText(tr("Close All Right"));
    d->closeActions[CloseAllExceptCurrent]->setText(tr("Close All(Except Current)"));
    d->closeActions[CloseAll]->setText(tr("Close All"));
    connect(d->sectionWidget, &QTabWidget::currentChanged, this,
            [d](int section) { d->onSectionChanged(section); });
    for (int mode = CloseCurrent; mode <= CloseAll; ++mode) {
        connect(d->closeActions[mode], &QAction::triggered, this, [this, d, mode] {
            Q_EMIT signalTabCloseRequested(CloseMode(mode), currentSection(), d->menuTab);
        });
    }
}

DockContentWidget::DockContentWidget(DockContentWidgetPrivate &dd, QWidget *parent)
    : QLabel(parent)
    , d_ptr(&dd)
{
    Q_D(DockContentWidget);
    d->q_ptr = this;
    setAlignment(Qt::AlignCenter);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(d->sectionWidget);
    d->sectionWidget->hide();
}

DockContentWidget::~DockContentWidget()
{
    Q_D(DockContentWidget);
    // Nobody is told of the tabs that go with the widget.
    d->sectionWidget->disconnect(this);
    for (const QTabWidget *tabs : std::as_const(d->sectionTabs)) {
        tabs->disconnect(this);
        tabs->tabBar()->disconnect(this);
    }
}

int DockContentWidget::addSection(const QString &text)
{
    Q_D(DockContentWidget);
    auto *tabs = new DockTabWidget;
    tabs->installEventFilter(this);
    auto *page = new QWidget;
    auto *row = new QHBoxLayout(page);
    row->setContentsMargins(3, 3, 3, 3);
    row->addWidget(tabs);
    const int section = d->sectionWidget->addTab(page, text);
    d->sectionWidget->setTabVisible(section, false);
    QTabBar *bar = tabs->tabBar();
    bar->setContextMenuPolicy(Qt::CustomContextMenu);
    d->sectionTabs.insert(section, tabs);
    connect(bar, &QWidget::customContextMenuRequested, this,
            [d, bar](const QPoint &position) { d->showMenu(bar, position); });
    connect(bar, &QTabBar::tabCloseRequested, this, [this](int index) {
        Q_EMIT signalTabCloseRequested(CloseCurrent, currentSection(), index);
    });
    connect(tabs, &QTabWidget::currentChanged, this,
            [d, tabs](int index) { d->onTabChanged(tabs, index); });
    connect(tabs, &DockTabWidget::removed, this, [d] {
        if (!d->removing && !d->hasTabs())
            d->onLastTabGone();
    });
    return section;
}

int DockContentWidget::addTab(int section, QWidget *widget, const QString &text)
{
    Q_D(DockContentWidget);
    QTabWidget *tabs = d->sectionTabs.value(section);
    if (!tabs || !widget)
        return -1;
    if (tabs->indexOf(widget) >= 0)
        return tabs->indexOf(widget);
    const bool hadTabs = d->hasTabs();
    const int tab = tabs->addTab(widget, text);
    if (d->sectionWidget->isHidden()) {
        d->sectionWidget->show();
        d->refreshPlaceholder();
    }
    if (!isVisible())
        Q_EMIT signalVisibleChanged(true);
    if (!hadTabs) {
        Q_EMIT signalCurrentSectionChanged(section);
        d->lastSection = section;
        d->lastTab = tab;
    }
    return tab;
}

void DockContentWidget::removeTab(int section, int index)
{
    Q_D(DockContentWidget);
    QTabWidget *tabs = d->sectionTabs.value(section);
    if (!tabs)
        return;
    {
        const QScopedValueRollback removing(d->removing, true);
        tabs->removeTab(index);
    }
    if (!d->hasTabs())
        d->onLastTabGone();
}

int DockContentWidget::sectionCount() const
{
    Q_D(const DockContentWidget);
    return d->sectionWidget->count();
}

QString DockContentWidget::sectionText(int section)
{
    Q_D(DockContentWidget);
    return d->sectionWidget->tabText(section);
}

int DockContentWidget::currentSection() const
{
    Q_D(const DockContentWidget);
    return d->sectionWidget->currentIndex();
}

int DockContentWidget::currentTab(int section) const
{
    Q_D(const DockContentWidget);
    const QTabWidget *tabs = d->sectionTabs.value(section);
    return tabs ? tabs->currentIndex() : -1;
}

QWidget *DockContentWidget::currentWidget(int section) const
{
    Q_D(const DockContentWidget);
    const QTabWidget *tabs = d->sectionTabs.value(section);
    return tabs ? tabs->currentWidget() : nullptr;
}

QWidget *DockContentWidget::widget(int section, int index) const
{
    Q_D(const DockContentWidget);
    const QTabWidget *tabs = d->sectionTabs.value(section);
    return tabs ? tabs->widget(index) : nullptr;
}

int DockContentWidget::tabCount(int section) const
{
    Q_D(const DockContentWidget);
    const QTabWidget *tabs = d->sectionTabs.value(section);
    return tabs ? tabs->count() : -1;
}

bool DockContentWidget::contains(QWidget *widget)
{
    return sectionOf(widget) >= 0;
}

int DockContentWidget::sectionOf(QWidget *widget) const
{
    Q_D(const DockContentWidget);
    for (int section = 0; section < sectionCount(); ++section) {
        if (d->sectionTabs.value(section)->indexOf(widget) >= 0)
            return section;
    }
    return -1;
}

int DockContentWidget::tabOf(QWidget *widget) const
{
    Q_D(const DockContentWidget);
    const QTabWidget *tabs = d->sectionTabs.value(sectionOf(widget));
    return tabs ? tabs->indexOf(widget) : -1;
}

void DockContentWidget::setCurrentTab(int section, int index)
{
    Q_D(DockContentWidget);
    QTabWidget *tabs = d->sectionTabs.value(section);
    if (!tabs)
        return;
    d->sectionWidget->setCurrentIndex(section);
    tabs->setCurrentIndex(index);
}

bool DockContentWidget::isTabEnabled(int section, int index) const
{
    Q_D(const DockContentWidget);
    const QTabWidget *tabs = d->sectionTabs.value(section);
    return tabs && tabs->isTabEnabled(index);
}

void DockContentWidget::setTabEnabled(int section, int index, bool enabled)
{
    Q_D(DockContentWidget);
    if (QTabWidget *tabs = d->sectionTabs.value(section))
        tabs->setTabEnabled(index, enabled);
}

bool DockContentWidget::isTabVisible(int section, int index) const
{
    Q_D(const DockContentWidget);
    const QTabWidget *tabs = d->sectionTabs.value(section);
    return tabs && tabs->isTabVisible(index);
}

void DockContentWidget::setTabVisible(int section, int index, bool visible)
{
    Q_D(DockContentWidget);
    if (QTabWidget *tabs = d->sectionTabs.value(section))
        tabs->setTabVisible(index, visible);
}

QString DockContentWidget::tabText(int section, int index)
{
    Q_D(DockContentWidget);
    const QTabWidget *tabs = d->sectionTabs.value(section);
    return tabs ? tabs->tabText(index) : QString();
}

void DockContentWidget::setTabText(int section, int index, const QString &text)
{
    Q_D(DockContentWidget);
    if (QTabWidget *tabs = d->tabsWith(section, index))
        tabs->setTabText(index, text);
}

QString DockContentWidget::tabToolTip(int section, int index)
{
    Q_D(DockContentWidget);
    const QTabWidget *tabs = d->tabsWith(section, index);
    return tabs ? tabs->tabBar()->tabToolTip(index) : QString();
}

void DockContentWidget::setTabToolTip(int section, int index, const QString &toolTip)
{
    Q_D(DockContentWidget);
    if (const QTabWidget *tabs = d->tabsWith(section, index))
        tabs->tabBar()->setTabToolTip(index, toolTip);
}

QVariant DockContentWidget::tabData(int section, int index)
{
    Q_D(DockContentWidget);
    const QTabWidget *tabs = d->tabsWith(section, index);
    return tabs ? tabs->tabBar()->tabData(index) : QVariant();
}

void DockContentWidget::setTabData(int section, int index, const QVariant &data)
{
    Q_D(DockContentWidget);
    if (const QTabWidget *tabs = d->tabsWith(section, index))
        tabs->tabBar()->setTabData(index, data);
}

bool DockContentWidget::isSectionVisible(int section) const
{
    Q_D(const DockContentWidget);
    return d->sectionWidget->isTabVisible(section);
}

void DockContentWidget::setSectionVisible(int section, bool visible)
{
    Q_D(DockContentWidget);
    d->sectionWidget->setTabVisible(section, visible);
}

bool DockContentWidget::isSectionEnbaled(int section) const
{
    Q_D(const DockContentWidget);
    return d->sectionWidget->isTabEnabled(section);
}

void DockContentWidget::setSectionEnabled(int section, bool enabled)
{
    Q_D(DockContentWidget);
    d->sectionWidget->setTabEnabled(section, enabled);
}

bool DockContentWidget::isSectionBarVisible() const
{
    Q_D(const DockContentWidget);
    return d->sectionWidget->isVisible();
}

void DockContentWidget::setSectionBarVisible(bool visible)
{
    Q_D(DockContentWidget);
    d->sectionWidget->setVisible(visible);
}

void DockContentWidget::setPlaceholderPixmap(const QPixmap &pixmap)
{
    Q_D(DockContentWidget);
    d->placeholder = pixmap;
    d->refreshPlaceholder();
}

void DockContentWidget::setAutoHide(bool autoHide)
{
    Q_D(DockContentWidget);
    setVisible(!autoHide);
    d->autoHide = autoHide;
}

// A label asks for the place that its picture needs, whatever is in its layout.
QSize DockContentWidget::sizeHint() const
{
    return minimumSizeHint().expandedTo(layout()->sizeHint());
}

QSize DockContentWidget::minimumSizeHint() const
{
    return layout()->minimumSize();
}

bool DockContentWidget::eventFilter(QObject *watched, QEvent *event)
{
    Q_D(DockContentWidget);
    if (event->type() == QEvent::MouseButtonRelease) {
        const auto *mouse = static_cast<QMouseEvent *>(event);
        auto *tabs = qobject_cast<DockTabWidget *>(watched);
        const int section = tabs ? d->sectionTabs.key(tabs, -1) : -1;
        if (section >= 0 && mouse->button() == Qt::MiddleButton) {
            // The bar lets the click through to the tab widget.
            const int tab = tabs->tabBar()->tabAt(mouse->position().toPoint());
            if (tab >= 0)
                Q_EMIT signalTabCloseRequested(CloseCurrent, section, tab);
        }
    }
    return QLabel::eventFilter(watched, event);
}

} // namespace Norvane
