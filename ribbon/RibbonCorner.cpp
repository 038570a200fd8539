// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "RibbonCorner_p.h"

#include <QtWidgets/QHBoxLayout>

namespace Norvane {

RibbonCornerPrivate::RibbonCornerPrivate()
    : layout(new QHBoxLayout)
    , widgets(std::make_unique<QList<QWidget *>>())
{
    layout->setContentsMargins(0, 0, 5, 0);
    layout->setSpacing(2);
}

RibbonCornerPrivate::~RibbonCornerPrivate() = default;

RibbonCorner::RibbonCorner(QWidget *parent)
    : RibbonCorner(*new RibbonCornerPrivate, parent)
{
}

RibbonCorner::RibbonCorner(RibbonCornerPrivate &dd, QWidget *parent)
    : QFrame(parent)
    , d_ptr(&dd)
{
    Q_D(RibbonCorner);
    d->q_ptr = this;
    setLayout(d->layout);
}

RibbonCorner::~RibbonCorner() = default;

void RibbonCorner::addWidget(QWidget *widget)
{
    Q_D(RibbonCorner);
    if (!widget)
        return;
    d->layout->addWidget(widget);
    d->widgets->append(widget);
}

} // namespace Norvane
