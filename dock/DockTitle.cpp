// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "DockTitle_p.h"

#include <QtCore/QApplicationStatic>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMenu>
#include <QtWidgets/QPushButton>

namespace Norvane {

namespace {

// A drawing is read again for every icon that is made of it, so all titles share theirs.
struct Icons
{
    Icons()
        : menu(QStringLiteral(":/res/menu.svg"))
    {
        collapse.addFile(QStringLiteral(":/res/downArrowNormal.svg"), {}, QIcon::Normal,
                         QIcon::Off);
        collapse.addFile(QStringLiteral(":/res/rightArrowNormal.svg"), {}, QIcon::Normal,
                         QIcon::On);
    }

    QIcon collapse;
    QIcon menu;
};
Q_APPLICATION_STATIC(Icons, icons, )

} // namespace

DockTitlePrivate::DockTitlePrivate()
    : collapseButton(new QPushButton)
    , titleLabel(new QLabel)
    , menuButton(new QPushButton)
    , menu(new QMenu)
    , minimizeAction(menu->addAction(DockTitle::tr("minimize to bar")))
{
    collapseButton->setFlat(true);
    collapseButton->setCheckable(true);
    collapseButton->setIcon(icons->collapse);
    collapseButton->setIconSize({17, 17});
    collapseButton->hide();
    QSizePolicy policy = titleLabel->sizePolicy();
    policy.setVerticalPolicy(QSizePolicy::Expanding);
    titleLabel->setSizePolicy(policy);
    menuButton->setFlat(true);
    menuButton->setIcon(icons->menu);
    menuButton->setIconSize({10, 10});
}

DockTitlePrivate::~DockTitlePrivate()
{
    delete menu;
}

DockTitle::DockTitle(QWidget *parent)
    : DockTitle(*new DockTitlePrivate, parent)
{
}

DockTitle::DockTitle(DockTitlePrivate &dd, QWidget *parent)
    : QFrame(parent)
    , d_ptr(&dd)
{
    Q_D(DockTitle);
    d->q_ptr = this;
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(4, 0, 4, 0);
    row->setSpacing(4);
    row->addWidget(d->collapseButton);
    row->addWidget(d->titleLabel);
    row->addWidget(d->menuButton);
    setContextMenuPolicy(Qt::CustomContextMenu);
    connect(d->collapseButton, &QPushButton::clicked, this, &DockTitle::signalCollapsed);
    connect(d->minimizeAction, &QAction::triggered, this, &DockTitle::signalMinimize);
    connect(d->menuButton, &QPushButton::clicked, this,
            [d] { d->menu->exec(d->menuButton->mapToGlobal(QPoint(0, d->menuButton->height()))); });
    connect(this, &QWidget::customContextMenuRequested, this,
            [this, d](const QPoint &position) { d->menu->exec(mapToGlobal(position)); });
}

DockTitle::~DockTitle() = default;

void DockTitle::setText(const QString &text)
{
    Q_D(DockTitle);
    d->titleLabel->setText(text);
    d->collapseButton->setAccessibleName(tr("Collapse %1").arg(text));
    d->menuButton->setAccessibleName(tr("Menu of %1").arg(text));
}

QMenu *DockTitle::menu() const
{
    Q_D(const DockTitle);
    return d->menu;
}

void DockTitle::setCollapseButtonVisible(bool visible)
{
    Q_D(DockTitle);
    d->collapseButton->setVisible(visible);
}

} // namespace Norvane
