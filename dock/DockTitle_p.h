// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "DockTitle.h"

class QAction;
class QLabel;
class QPushButton;

namespace Norvane {

class DockTitlePrivate
{
    Q_DECLARE_PUBLIC(DockTitle)

public:
    DockTitlePrivate();
    virtual ~DockTitlePrivate();

    QPushButton *collapseButton;
    QLabel *titleLabel;
    QPushButton *menuButton;
    QMenu *menu;
    QAction *minimizeAction;
    DockTitle *q_ptr = nullptr;
};

} // namespace Norvane
