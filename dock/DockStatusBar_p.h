// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "DockStatusBar.h"

#include <QtCore/QPointer>

#include <optional>

namespace Norvane {

class DockStatusBarPrivate
{
    Q_DECLARE_PUBLIC(DockStatusBar)

public:
    DockStatusBarPrivate();
    virtual ~DockStatusBarPrivate();

    void place();

    QPointer<QWidget> panel;
    QWidget *panelHolder;
    DockStatusBar *q_ptr = nullptr;
    std::optional<int> offset;
};

} // namespace Norvane
