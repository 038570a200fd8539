// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGui/QUndoCommand>

namespace Workbench {

class PictureView;

/*!
    A turn or a flip. It is undone by its opposite, so that no second picture is kept.
*/
class PictureTurnCommand : public QUndoCommand
{
public:
    enum class Turn { Left, Right, FlipHorizontally, FlipVertically };

    PictureTurnCommand(PictureView *view, Turn turn);

    void undo() override;
    void redo() override;

private:
    void apply(Turn turn);

    PictureView *m_view;
    Turn m_turn;
};

} // namespace Workbench
