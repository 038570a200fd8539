// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "picture/PictureEffect.h"

#include <QtCore/QCoreApplication>

namespace Workbench {

/*!
    Effects that change the size of a picture, and where things are in it.
*/
class GeometryEffects
{
    Q_DECLARE_TR_FUNCTIONS(Workbench::GeometryEffects)

public:
    static PictureEffectGroup group();
};

} // namespace Workbench
