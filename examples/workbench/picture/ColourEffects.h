// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "picture/PictureEffect.h"

#include <QtCore/QCoreApplication>

namespace Workbench {

/*!
    Effects that change the colours of a picture.
*/
class ColourEffects
{
    Q_DECLARE_TR_FUNCTIONS(Workbench::ColourEffects)

public:
    static PictureEffectGroup group();
};

} // namespace Workbench
