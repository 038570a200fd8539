// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "picture/PictureEffect.h"

namespace Workbench {

/*!
    Shows what an effect does to a small sample picture.
*/
class EffectPreview
{
public:
    static QImage draw(const PictureEffect &effect, QSize size);

    //! The picture without an effect: a house by a lake under the evening sun.
    static QImage sample(QSize size);
};

} // namespace Workbench
