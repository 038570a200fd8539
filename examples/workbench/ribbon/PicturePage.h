// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "picture/PictureTurnCommand.h"
#include "ribbon/DocumentPage.h"

namespace Workbench {

class EffectGallery;
class PictureDocument;

/*!
    What applies to pictures only; shown while one is in front.
*/
class PicturePage : public DocumentPage
{
    Q_OBJECT

public:
    explicit PicturePage(QWidget *parent = nullptr);

protected:
    void refresh() override;

private:
    PictureDocument *picture() const;
    QAction *addTurn(const Command &command, PictureTurnCommand::Turn turn);

    QList<QAction *> m_turns;
    QAction *m_crop;
    QAction *m_fit;
    QAction *m_actualSize;
    EffectGallery *m_effects;
};

} // namespace Workbench
