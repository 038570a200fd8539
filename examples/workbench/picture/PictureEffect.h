// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtGui/QImage>

#include <functional>

namespace Workbench {

//! Something that makes another picture of a picture.
struct PictureEffect
{
    QString name;
    //! What it does.
    QString purpose;
    //! Returns a null picture if the result would be too large.
    std::function<QImage(const QImage &)> apply;
};

struct PictureEffectGroup
{
    QString title;
    QList<PictureEffect> effects;
};

} // namespace Workbench
