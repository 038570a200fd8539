// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGui/QImage>
#include <QtWidgets/QAbstractScrollArea>

#include <optional>

namespace Workbench {

/*!
    Shows a picture, scaled, and lets the user drag a selection over it. Selections are in the
    picture's own pixels.
*/
class PictureView : public QAbstractScrollArea
{
    Q_OBJECT

public:
    explicit PictureView(QWidget *parent = nullptr);

    QImage image() const;
    //! Takes away the selection.
    void setImage(const QImage &image);

    QRect selection() const;
    void setSelection(const QRect &selection);

    qreal zoom() const;
    //! Ends fitting.
    void setZoom(qreal zoom);

    //! Whether the zoom follows the view's size, so that the picture just fits.
    bool isFitted() const;
    void setFitted(bool fitted);

    //! Where the picture's pixel \a position is seen in the viewport.
    QPointF fromImage(QPointF position) const;

Q_SIGNALS:
    void selectionChanged();
    void zoomChanged();
    //! The user turned the wheel with Ctrl held: \a steps is above 0 to zoom in.
    void zoomWanted(int steps);

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    QPointF origin() const;
    QSizeF scaledSize() const;
    QPoint toImage(QPointF position) const;
    void applyZoom(qreal zoom);
    void fit();
    void updateScrollBars();

    QImage m_image;
    QRect m_selection;
    std::optional<QPoint> m_dragStart;
    qreal m_zoom = 1;
    bool m_fitted = false;
    bool m_wasShown = false;
};

} // namespace Workbench
