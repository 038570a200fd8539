// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "RibbonGroup.h"

#include <QtCore/QPointer>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>

class QFrame;

namespace Norvane {

class RibbonGroupPrivate
{
    Q_DECLARE_PUBLIC(RibbonGroup)

public:
    RibbonGroupPrivate();
    virtual ~RibbonGroupPrivate();

    QFrame *createSeparator();

    QToolButton::ToolButtonPopupMode popupMode = QToolButton::DelayedPopup;
    QPointer<QLabel> titleLabel;
    QPointer<QHBoxLayout> contentLayout;
    QList<RibbonSubgroup *> subgroups;
    RibbonGroup *q_ptr = nullptr;
};

} // namespace Norvane
