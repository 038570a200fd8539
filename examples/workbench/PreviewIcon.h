// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGui/QIconEngine>
#include <QtGui/QPixmap>

#include <functional>

namespace Workbench {

/*!
    An icon that is drawn when it is seen for the first time, in the size that it is seen in.
*/
class PreviewIcon : public QIconEngine
{
public:
    //! Gets a size in device pixels.
    using Draw = std::function<QImage(QSize)>;

    explicit PreviewIcon(Draw draw);

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override;
    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override;
    QIconEngine *clone() const override;

private:
    Draw m_draw;
    QPixmap m_preview;
};

} // namespace Workbench
