// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "picture/PictureReplaceCommand.h"

#include "picture/PictureView.h"

namespace Workbench {

PictureReplaceCommand::PictureReplaceCommand(PictureView *view, const QImage &image,
                                             const QRect &selection)
    : m_view(view)
    , m_before(view->image())
    , m_selectionBefore(view->selection())
    , m_after(image)
    , m_selectionAfter(selection)
{
}

void PictureReplaceCommand::undo()
{
    m_view->setImage(m_before);
    m_view->setSelection(m_selectionBefore);
}

void PictureReplaceCommand::redo()
{
    m_view->setImage(m_after);
    m_view->setSelection(m_selectionAfter);
}

} // namespace Workbench
