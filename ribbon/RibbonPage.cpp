// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "RibbonPage_p.h"

#include "DeferredPolish.h"
#include "RibbonGroup.h"

#include <QtWidgets/QHBoxLayout>

namespace Norvane {

RibbonPagePrivate::RibbonPagePrivate()
    : layout(new QHBoxLayout)
{
    layout->setContentsMargins(3, 0, 0, 0);
    layout->setSpacing(0);
    layout->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
}

RibbonPagePrivate::~RibbonPagePrivate() = default;

RibbonPage::RibbonPage(QWidget *parent)
    : RibbonPage(*new RibbonPagePrivate, parent)
{
}

RibbonPage::RibbonPage(RibbonPagePrivate &dd, QWidget *parent)
    : QWidget(parent)
    , d_ptr(&dd)
{
    Q_D(RibbonPage);
    d->q_ptr = this;
    setLayout(d->layout);
    new DeferredPolish(this);
}

RibbonPage::~RibbonPage() = default;

RibbonGroup *RibbonPage::addGroup(const QString &title)
{
    Q_D(RibbonPage);
    ensurePolished();
    auto *group = new RibbonGroup(title, this);
    d->layout->addWidget(group);
    d->groups.append(group);
    return group;
}

RibbonGroup *RibbonPage::group(int index) const
{
    Q_D(const RibbonPage);
    return d->groups.value(index);
}

int RibbonPage::indexOf(RibbonGroup *group) const
{
    Q_D(const RibbonPage);
    return int(d->groups.indexOf(group));
}

} // namespace Norvane
