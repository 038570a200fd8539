// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "DockButton.h"

namespace Norvane {

class DockButtonPrivate
{
    Q_DECLARE_PUBLIC(DockButton)

public:
    explicit DockButtonPrivate(Qt::Orientation orientation);
    virtual ~DockButtonPrivate();

    QIcon composite(qreal ratio) const;
    void updateIcon();

    QList<QIcon> icons;
    QStringList texts;
    Qt::Orientation orientation;
    DockButton *q_ptr = nullptr;
};

} // namespace Norvane
