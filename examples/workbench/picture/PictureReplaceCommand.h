// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QRect>
#include <QtGui/QImage>
#include <QtGui/QUndoCommand>

namespace Workbench {

class PictureView;

/*!
    Puts another picture in the place of the shown one.
*/
class PictureReplaceCommand : public QUndoCommand
{
public:
    //! \a selection is selected in the new \a image.
    PictureReplaceCommand(PictureView *view, const QImage &image, const QRect &selection = QRect());

    void undo() override;
    void redo() override;

private:
    PictureView *m_view;
    QImage m_before;
    QRect m_selectionBefore;
    QImage m_after;
    QRect m_selectionAfter;
};

} // namespace Workbench
