// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "RibbonTab_p.h"

namespace Norvane {

RibbonTab::RibbonTab(const QString &text, QWidget *parent)
    : RibbonTab(*new RibbonTabPrivate, text, parent)
{
}

RibbonTab::RibbonTab(RibbonTabPrivate &dd, const QString &text, QWidget *parent)
    : QPushButton(text, parent)
    , d_ptr(&dd)
{
    Q_D(RibbonTab);
    d->q_ptr = this;
    setCheckable(true);
    setFocusPolicy(Qt::NoFocus);
}

RibbonTab::~RibbonTab() = default;

bool RibbonTab::isTemporary() const
{
    Q_D(const RibbonTab);
    return d->temporary;
}

void RibbonTab::setTemporary(bool temporary)
{
    Q_D(RibbonTab);
    d->temporary = temporary;
}

QSize RibbonTab::sizeHint() const
{
    Q_D(const RibbonTab);
    const int height = QPushButton::sizeHint().height();
    return {2 * d->padding + fontMetrics().horizontalAdvance(text()), height};
}

} // namespace Norvane
