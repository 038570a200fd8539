// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "PreviewIcon.h"

#include <QtGui/QPainter>

namespace Workbench {

PreviewIcon::PreviewIcon(Draw draw)
    : m_draw(std::move(draw))
{
}

void PreviewIcon::paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state)
{
    const qreal ratio = painter->device()->devicePixelRatio();
    painter->drawPixmap(rect, pixmap(rect.size() * ratio, mode, state));
}

QPixmap PreviewIcon::pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state)
{
    Q_UNUSED(state)
    if (m_preview.size() != size)
        m_preview = QPixmap::fromImage(m_draw(size));
    if (mode != QIcon::Disabled)
        return m_preview;
    QPixmap faint(size);
    faint.fill(Qt::transparent);
    QPainter painter(&faint);
    painter.setOpacity(0.4);
    painter.drawPixmap(0, 0, m_preview);
    return faint;
}

QIconEngine *PreviewIcon::clone() const
{
    return new PreviewIcon(*this);
}

} // namespace Workbench
