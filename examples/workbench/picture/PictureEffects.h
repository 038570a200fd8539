// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "picture/PictureEffect.h"

namespace Workbench {

/*!
    All effects that there are, in groups, in the order in which they are offered.
*/
class PictureEffects
{
public:
    static QList<PictureEffectGroup> groups();
};

} // namespace Workbench
