// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "picture/PictureEffect.h"

#include <QtCore/QCoreApplication>

namespace Workbench {

/*!
    Effects that change how soft and how sharp a picture is.
*/
class FocusEffects
{
    Q_DECLARE_TR_FUNCTIONS(Workbench::FocusEffects)

public:
    static PictureEffectGroup group();
};

} // namespace Workbench
