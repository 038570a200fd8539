// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "text/TextEditor.h"

#include "text/TextOptions.h"

#include <QtCore/QMimeData>
#include <QtGui/QKeyEvent>
#include <QtGui/QWheelEvent>

#include <algorithm>

namespace Workbench {

TextEditor::TextEditor(TextOptions *options, QWidget *parent)
    : QPlainTextEdit(parent)
    , m_options(options)
{
    setFrameShape(QFrame::NoFrame);
    // Each paragraph has the direction of its own text, whatever that of the program is.
    setLayoutDirection(Qt::LeftToRight);
    document()->setDocumentMargin(8);
    connect(m_options, &TextOptions::changed, this, &TextEditor::applyOptions);
    applyOptions();
}

qreal TextEditor::zoom() const
{
    return m_zoom;
}

void TextEditor::setZoom(qreal zoom)
{
    m_zoom = std::clamp(zoom, 0.25, 8.0);
    applyOptions();
}

bool TextEditor::canInsertFromMimeData(const QMimeData *source) const
{
    return !source->hasUrls() && QPlainTextEdit::canInsertFromMimeData(source);
}

void TextEditor::keyPressEvent(QKeyEvent *event)
{
    // Shift+Enter would put a U+2028 into the file.
    if (event->matches(QKeySequence::InsertLineSeparator) && !isReadOnly()) {
        textCursor().insertBlock();
        ensureCursorVisible();
        return;
    }
    QPlainTextEdit::keyPressEvent(event);
}

void TextEditor::wheelEvent(QWheelEvent *event)
{
    if (!(event->modifiers() & Qt::ControlModifier)) {
        QPlainTextEdit::wheelEvent(event);
        return;
    }
    if (event->angleDelta().y() != 0)
        Q_EMIT zoomWanted(event->angleDelta().y() > 0 ? 1 : -1);
    event->accept();
}

void TextEditor::applyOptions()
{
    QFont zoomed = m_options->font();
    zoomed.setPointSizeF(std::max(1.0, zoomed.pointSizeF() * m_zoom));
    // The sheet of the panels has a font for all text in them; the widget's own sheet comes first.
    setStyleSheet(QStringLiteral("QPlainTextEdit { font-family: \"%1\"; }").arg(zoomed.family()));
    setFont(zoomed);
    setTabStopDistance(m_options->tabWidth() * QFontMetricsF(zoomed).horizontalAdvance(u' '));
    setLineWrapMode(m_options->wrap() ? QPlainTextEdit::WidgetWidth : QPlainTextEdit::NoWrap);
}

} // namespace Workbench
