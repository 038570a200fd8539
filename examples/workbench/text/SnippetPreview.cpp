// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "text/SnippetPreview.h"

#include <QtGui/QFontDatabase>
#include <QtGui/QPainter>

namespace Workbench {

QImage SnippetPreview::draw(const QString &text, QSize size)
{
    QImage preview(size, QImage::Format_ARGB32_Premultiplied);
    preview.fill(Qt::transparent);
    QPainter painter(&preview);
    painter.setRenderHint(QPainter::Antialiasing);
    const qreal scale = size.width() / 48.0;
    painter.scale(scale, scale);
    const QRectF sheet(0.5, 0.5, 47, size.height() / scale - 1);
    painter.setPen(QColor(145, 145, 145));
    painter.setBrush(Qt::white);
    painter.drawRect(sheet);

    const QString start = text.trimmed();
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    // A sign alone is shown as large as it fits.
    font.setPixelSize(start.size() == 1 ? 22 : 7);
    painter.setFont(font);
    painter.setPen(QColor(35, 75, 120));
    painter.drawText(sheet.adjusted(3, 2, -2, -1),
                     start.size() == 1 ? int(Qt::AlignCenter) : Qt::AlignLeft | Qt::TextWordWrap,
                     start);
    return preview;
}

} // namespace Workbench
