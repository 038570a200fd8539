// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "picture/PictureEffect.h"

#include <QtCore/QCoreApplication>

namespace Workbench {

/*!
    Effects that turn a picture into something like a drawing or a painting.
*/
class ArtisticEffects
{
    Q_DECLARE_TR_FUNCTIONS(Workbench::ArtisticEffects)

public:
    static PictureEffectGroup group();
};

} // namespace Workbench
