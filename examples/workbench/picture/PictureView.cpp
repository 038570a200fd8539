// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "picture/PictureView.h"

#include <QtGui/QMouseEvent>
#include <QtGui/QPainter>
#include <QtGui/QPainterPath>
#include <QtWidgets/QScrollBar>

#include <algorithm>
#include <cmath>

namespace Workbench {

static constexpr int margin = 16;

static QBrush checkerboard()
{
    QPixmap tile(16, 16);
    tile.fill(Qt::white);
    QPainter painter(&tile);
    painter.fillRect(0, 0, 8, 8, QColor(225, 225, 225));
    painter.fillRect(8, 8, 8, 8, QColor(225, 225, 225));
    return QBrush(tile);
}

PictureView::PictureView(QWidget *parent)
    : QAbstractScrollArea(parent)
{
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::StrongFocus);
    viewport()->setCursor(Qt::CrossCursor);
    connect(horizontalScrollBar(), &QScrollBar::valueChanged, viewport(),
            qOverload<>(&QWidget::update));
    connect(verticalScrollBar(), &QScrollBar::valueChanged, viewport(),
            qOverload<>(&QWidget::update));
}

QImage PictureView::image() const
{
    return m_image;
}

void PictureView::setImage(const QImage &image)
{
    m_image = image;
    m_dragStart.reset();
    if (m_fitted)
        fit();
    updateScrollBars();
    setSelection(QRect());
}

QRect PictureView::selection() const
{
    return m_selection;
}

void PictureView::setSelection(const QRect &selection)
{
    m_selection = selection & m_image.rect();
    viewport()->update();
    Q_EMIT selectionChanged();
}

qreal PictureView::zoom() const
{
    return m_zoom;
}

void PictureView::setZoom(qreal zoom)
{
    m_fitted = false;
    applyZoom(zoom);
}

bool PictureView::isFitted() const
{
    return m_fitted;
}

void PictureView::setFitted(bool fitted)
{
    m_fitted = fitted;
    if (fitted)
        fit();
    Q_EMIT zoomChanged();
}

QPointF PictureView::fromImage(QPointF position) const
{
    return origin() + position * m_zoom;
}

void PictureView::paintEvent(QPaintEvent *)
{
    QPainter painter(viewport());
    painter.fillRect(viewport()->rect(), QColor(214, 214, 214));
    const QRectF target(origin(), scaledSize());
    if (m_image.hasAlphaChannel()) {
        painter.setBrushOrigin(target.topLeft());
        painter.fillRect(target, checkerboard());
    }
    // Enlarged, every pixel of the picture is to be seen as it is.
    painter.setRenderHint(QPainter::SmoothPixmapTransform, m_zoom * devicePixelRatio() < 2);
    painter.drawImage(target, m_image);
    painter.setPen(QColor(150, 150, 150));
    painter.drawRect(target.adjusted(-0.5, -0.5, 0.5, 0.5));

    if (m_selection.isEmpty())
        return;
    const QRectF selected(fromImage(m_selection.topLeft()), QSizeF(m_selection.size()) * m_zoom);
    QPainterPath outside;
    outside.addRect(target);
    outside.addRect(selected);
    painter.fillPath(outside, QColor(0, 0, 0, 90));
    painter.setPen(Qt::white);
    painter.drawRect(selected);
    QPen dashes(QColor(0, 75, 135), 0, Qt::DashLine);
    painter.setPen(dashes);
    painter.drawRect(selected);
}

void PictureView::resizeEvent(QResizeEvent *event)
{
    QAbstractScrollArea::resizeEvent(event);
    if (m_fitted)
        fit();
    updateScrollBars();
}

void PictureView::showEvent(QShowEvent *event)
{
    QAbstractScrollArea::showEvent(event);
    if (m_wasShown)
        return;
    m_wasShown = true;
    const QSizeF size = scaledSize();
    if (size.width() > viewport()->width() || size.height() > viewport()->height())
        setFitted(true);
}

void PictureView::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return;
    m_dragStart = toImage(event->position());
    setSelection(QRect());
}

void PictureView::mouseMoveEvent(QMouseEvent *event)
{
    if (!m_dragStart)
        return;
    const QPoint end = toImage(event->position());
    const QPoint topLeft(std::min(m_dragStart->x(), end.x()), std::min(m_dragStart->y(), end.y()));
    const QPoint bottomRight(std::max(m_dragStart->x(), end.x()),
                             std::max(m_dragStart->y(), end.y()));
    // The corners lie between pixels.
    setSelection(QRect(topLeft, bottomRight - QPoint(1, 1)));
}

void PictureView::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        m_dragStart.reset();
}

void PictureView::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape && !m_selection.isEmpty())
        setSelection(QRect());
    else
        QAbstractScrollArea::keyPressEvent(event);
}

void PictureView::wheelEvent(QWheelEvent *event)
{
    if (!(event->modifiers() & Qt::ControlModifier)) {
        QAbstractScrollArea::wheelEvent(event);
        return;
    }
    if (event->angleDelta().y() != 0)
        Q_EMIT zoomWanted(event->angleDelta().y() > 0 ? 1 : -1);
    event->accept();
}

QPointF PictureView::origin() const
{
    const QSizeF size = scaledSize();
    const auto along = [](qreal view, qreal picture, const QScrollBar *bar) {
        return picture + 2 * margin <= view ? std::floor((view - picture) / 2)
                                            : qreal(margin - bar->value());
    };
    return QPointF(along(viewport()->width(), size.width(), horizontalScrollBar()),
                   along(viewport()->height(), size.height(), verticalScrollBar()));
}

QSizeF PictureView::scaledSize() const
{
    return QSizeF(m_image.size()) * m_zoom;
}

QPoint PictureView::toImage(QPointF position) const
{
    const QPoint point = ((position - origin()) / m_zoom).toPoint();
    return QPoint(std::clamp(point.x(), 0, m_image.width()),
                  std::clamp(point.y(), 0, m_image.height()));
}

void PictureView::applyZoom(qreal zoom)
{
    zoom = std::clamp(zoom, 0.02, 32.0);
    // What is in the middle of the view stays there.
    const QPointF middle = QRectF(viewport()->rect()).center();
    const QPointF kept = (middle - origin()) / m_zoom;
    m_zoom = zoom;
    updateScrollBars();
    const QPointF moved = fromImage(kept) - middle;
    horizontalScrollBar()->setValue(horizontalScrollBar()->value() + qRound(moved.x()));
    verticalScrollBar()->setValue(verticalScrollBar()->value() + qRound(moved.y()));
    viewport()->update();
    Q_EMIT zoomChanged();
}

void PictureView::fit()
{
    if (m_image.isNull())
        return;
    // Without the scroll bars, which a picture that fits does not need.
    const QSizeF room = QSizeF(maximumViewportSize()) - QSizeF(2 * margin, 2 * margin);
    applyZoom(std::min(room.width() / m_image.width(), room.height() / m_image.height()));
}

void PictureView::updateScrollBars()
{
    const QSize size = scaledSize().toSize() + QSize(2 * margin, 2 * margin);
    const auto setUp = [](QScrollBar *bar, int content, int view) {
        bar->setRange(0, std::max(0, content - view));
        bar->setPageStep(view);
        bar->setSingleStep(20);
    };
    setUp(horizontalScrollBar(), size.width(), viewport()->width());
    setUp(verticalScrollBar(), size.height(), viewport()->height());
    viewport()->update();
}

} // namespace Workbench
