// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "DockView.h"

#include <QtCore/QPointer>

namespace Norvane {

class DockTitle;

class DockViewPrivate
{
    Q_DECLARE_PUBLIC(DockView)

public:
    DockViewPrivate();
    virtual ~DockViewPrivate();

    bool isOffstage() const;

    DockTitle *title;
    QPointer<QWidget> widget;
    DockView *q_ptr = nullptr;
};

} // namespace Norvane
