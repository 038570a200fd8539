// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "picture/PictureEffects.h"

#include "picture/ArtisticEffects.h"
#include "picture/ColourEffects.h"
#include "picture/FocusEffects.h"
#include "picture/GeometryEffects.h"
#include "picture/ToneEffects.h"

namespace Workbench {

QList<PictureEffectGroup> PictureEffects::groups()
{
    return {ToneEffects::group(), ColourEffects::group(), FocusEffects::group(),
            GeometryEffects::group(), ArtisticEffects::group()};
}

} // namespace Workbench
