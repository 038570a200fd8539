// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "picture/PictureEffect.h"

#include <QtCore/QCoreApplication>

namespace Workbench {

/*!
    Effects that change how light and dark a picture is.
*/
class ToneEffects
{
    Q_DECLARE_TR_FUNCTIONS(Workbench::ToneEffects)

public:
    static PictureEffectGroup group();
};

} // namespace Workbench
