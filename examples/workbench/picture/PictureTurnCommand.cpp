// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "picture/PictureTurnCommand.h"

#include "picture/PictureView.h"

#include <QtGui/QTransform>

namespace Workbench {

PictureTurnCommand::PictureTurnCommand(PictureView *view, Turn turn)
    : m_view(view)
    , m_turn(turn)
{
}

void PictureTurnCommand::undo()
{
    switch (m_turn) {
    case Turn::Left:
        apply(Turn::Right);
        break;
    case Turn::Right:
        apply(Turn::Left);
        break;
    case Turn::FlipHorizontally:
    case Turn::FlipVertically:
        apply(m_turn);
        break;
    }
}

void PictureTurnCommand::redo()
{
    apply(m_turn);
}

void PictureTurnCommand::apply(Turn turn)
{
    const QImage image = m_view->image();
    switch (turn) {
    case Turn::Left:
        m_view->setImage(image.transformed(QTransform().rotate(-90)));
        break;
    case Turn::Right:
        m_view->setImage(image.transformed(QTransform().rotate(90)));
        break;
    case Turn::FlipHorizontally:
        m_view->setImage(image.mirrored(true, false));
        break;
    case Turn::FlipVertically:
        m_view->setImage(image.mirrored(false, true));
        break;
    }
}

} // namespace Workbench
