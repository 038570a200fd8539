// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "picture/EffectGallery.h"

#include "PreviewIcon.h"
#include "picture/EffectPreview.h"
#include "picture/PictureEffects.h"

#include <QtGui/QAction>

namespace Workbench {

EffectGallery::EffectGallery(QWidget *parent)
    : Norvane::RibbonGallery(parent)
{
    // As many in a row as a group has.
    setDispalyCount(7);
    setIconSize(QSize(48, 32));
    setActionSize(QSize(78, 60));
    setCollectEnabled(true);
    const QList<PictureEffectGroup> groups = PictureEffects::groups();
    for (const PictureEffectGroup &group : groups) {
        const int index = addGroup(group.title);
        for (const PictureEffect &effect : group.effects) {
            const auto draw = [effect](QSize size) { return EffectPreview::draw(effect, size); };
            auto *action = new QAction(QIcon(new PreviewIcon(draw)), effect.name, this);
            action->setToolTip(effect.purpose);
            m_effects.insert(action, effect);
            addItem(index, action);
        }
    }
    connect(this, &RibbonGallery::signalTriggered, this,
            [this](QAction *action) { Q_EMIT picked(m_effects.value(action)); });
}

} // namespace Workbench
