// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "ribbon/PicturePage.h"

#include "picture/EffectGallery.h"
#include "picture/PictureDocument.h"

#include <Norvane/RibbonGroup.h>
#include <Norvane/RibbonSubgroup.h>

#include <QtGui/QAction>

namespace Workbench {

using namespace Qt::StringLiterals;

PicturePage::PicturePage(QWidget *parent)
    : DocumentPage(parent)
{
    using Turn = PictureTurnCommand::Turn;

    Norvane::RibbonGroup *turns = addGroup(tr("Turn"));
    turns->addAction(addTurn({tr("Rotate\nLeft"),
                              "rotate-left"_L1,
                              tr("Turn the picture a quarter to the left"),
                              {QKeySequence(u"Ctrl+Shift+R"_s)}},
                             Turn::Left));
    turns->addAction(addTurn({tr("Rotate\nRight"),
                              "rotate-right"_L1,
                              tr("Turn the picture a quarter to the right"),
                              {QKeySequence(u"Ctrl+R"_s)}},
                             Turn::Right));
    Norvane::RibbonSubgroup *flips = addColumn(turns);
    flips->addAction(addTurn({tr("Flip Horizontally"),
                              "flip-horizontal"_L1,
                              tr("Swap left and right"),
                              {QKeySequence(u"Ctrl+H"_s)}},
                             Turn::FlipHorizontally));
    flips->addAction(addTurn({tr("Flip Vertically"),
                              "flip-vertical"_L1,
                              tr("Swap top and bottom"),
                              {QKeySequence(u"Ctrl+Shift+H"_s)}},
                             Turn::FlipVertically));

    m_crop = addCommand({tr("Crop to\nSelection"),
                         "crop"_L1,
                         tr("Cut off all but the selection, which you drag with the mouse"),
                         {QKeySequence(u"Ctrl+Shift+X"_s)}});
    connect(m_crop, &QAction::triggered, this, [this] { picture()->cropToSelection(); });
    addGroup(tr("Selection"))->addAction(m_crop);

    Norvane::RibbonGroup *size = addGroup(tr("Size"));
    m_fit = addCommand({tr("Fit"),
                        "fit"_L1,
                        tr("Show the whole picture as large as possible"),
                        {QKeySequence(u"Ctrl+9"_s)}});
    m_fit->setCheckable(true);
    connect(m_fit, &QAction::triggered, this,
            [this](bool checked) { picture()->setFitted(checked); });
    m_actualSize = addCommand({tr("Actual\nSize"),
                               "actual-size"_L1,
                               tr("Show every pixel of the picture as one"),
                               {QKeySequence(u"Ctrl+1"_s)}});
    connect(m_actualSize, &QAction::triggered, this, [this] { picture()->setZoom(1); });
    size->addAction(m_fit);
    size->addAction(m_actualSize);

    m_effects = new EffectGallery;
    connect(m_effects, &EffectGallery::picked, this,
            [this](const PictureEffect &effect) { picture()->apply(effect); });
    addColumn(addGroup(tr("Effects")))->addWidget(m_effects);
    PicturePage::refresh();
}

QAction *PicturePage::addTurn(const Command &command, PictureTurnCommand::Turn turn)
{
    QAction *action = addCommand(command);
    connect(action, &QAction::triggered, this, [this, turn] { picture()->turn(turn); });
    m_turns << action;
    return action;
}

PictureDocument *PicturePage::picture() const
{
    return qobject_cast<PictureDocument *>(document());
}

void PicturePage::refresh()
{
    const PictureDocument *picture = this->picture();
    for (QAction *action : std::as_const(m_turns))
        action->setEnabled(picture);
    m_crop->setEnabled(picture && picture->canCrop());
    m_fit->setEnabled(picture);
    m_fit->setChecked(picture && picture->isFitted());
    m_actualSize->setEnabled(picture);
    m_effects->setEnabled(picture);
}

} // namespace Workbench
