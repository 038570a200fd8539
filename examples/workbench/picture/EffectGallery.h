// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "picture/PictureEffect.h"

#include <Norvane/RibbonGallery.h>

#include <QtCore/QHash>

namespace Workbench {

/*!
    Offers all effects, each with a preview.
*/
class EffectGallery : public Norvane::RibbonGallery
{
    Q_OBJECT

public:
    explicit EffectGallery(QWidget *parent = nullptr);

Q_SIGNALS:
    void picked(const Workbench::PictureEffect &effect);

private:
    QHash<const QAction *, PictureEffect> m_effects;
};

} // namespace Workbench
