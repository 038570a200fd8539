// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "DockButton_p.h"

#include <QtGui/QGuiApplication>
#include <QtGui/QMouseEvent>
#include <QtGui/QPainter>
#include <QtGui/QScreen>

namespace Norvane {

namespace {

constexpr QSize cellSize(24, 24);
constexpr int cellGap = 3;

} // namespace

DockButtonPrivate::DockButtonPrivate(Qt::Orientation orientation)
    : orientation(orientation)
{
}

DockButtonPrivate::~DockButtonPrivate() = default;

QIcon DockButtonPrivate::composite(qreal ratio) const
{
    if (icons.size() <= 1)
        return icons.value(0);
    const QSize cell(qRound(cellSize.width() * ratio), qRound(cellSize.height() * ratio));
    const int gap = int(cellGap * ratio);
    const int count = int(icons.size());
    QPixmap pixmap(cell.width(), count * cell.height() + (count - 1) * gap);
    pixmap.fill(Qt::transparent);
    QPainter painter;
    if (painter.begin(&pixmap)) {
        painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
        QPoint position;
        for (const QIcon &icon : icons) {
            painter.drawPixmap(QRect(position, cell),
                               icon.pixmap(cell, 1, QIcon::Normal, QIcon::Off));
            // In a horizontal bar the second cell lies outside of the pixmap: callers rely on the
            // first view's icon standing alone there.
            if (orientation == Qt::Vertical)
                position.ry() += cell.height() + gap;
            else
                position.rx() += cell.width() + gap;
        }
    }
    return QIcon(pixmap);
}

void DockButtonPrivate::updateIcon()
{
    Q_Q(DockButton);
    const QScreen *screen = QGuiApplication::primaryScreen();
    const qreal ratio = screen ? screen->devicePixelRatio() : 1.0;
    const QIcon icon = composite(ratio);
    q->setIcon(q->isChecked()
                   ? icon
                   : QIcon(icon.pixmap(q->iconSize(), ratio, QIcon::Disabled, QIcon::Off)));
}

DockButton::DockButton(Qt::Orientation orientation, QWidget *parent)
    : DockButton(*new DockButtonPrivate(orientation), parent)
{
}

DockButton::DockButton(DockButtonPrivate &dd, QWidget *parent)
    : QPushButton(parent)
    , d_ptr(&dd)
{
    Q_D(DockButton);
    d->q_ptr = this;
    setCheckable(true);
    setMouseTracking(true);
    connect(this, &QPushButton::toggled, this, [d] { d->updateIcon(); });
    if (const QScreen *screen = QGuiApplication::primaryScreen()) {
        connect(screen, &QScreen::physicalDotsPerInchChanged, this, [d] { d->updateIcon(); });
    }
}

DockButton::~DockButton() = default;

void DockButton::setIcons(const QList<QIcon> &icons)
{
    Q_D(DockButton);
    d->icons = icons;
    d->updateIcon();
}

QList<QIcon> DockButton::icons() const
{
    Q_D(const DockButton);
    return d->icons;
}

void DockButton::setTexts(const QStringList &texts)
{
    Q_D(DockButton);
    d->texts = texts;
    setAccessibleName(texts.join(QStringLiteral(", ")));
}

QStringList DockButton::texts() const
{
    Q_D(const DockButton);
    return d->texts;
}

void DockButton::mouseMoveEvent(QMouseEvent *event)
{
    Q_D(DockButton);
    QPushButton::mouseMoveEvent(event);
    if (d->texts.isEmpty())
        return;
    const int y = event->position().toPoint().y();
    const int segment = height() / int(d->texts.size());
    int view = 0;
    // A line between two segments belongs to the upper one, the remainder at the end to the last.
    while (view < d->texts.size() - 1 && y > (view + 1) * segment)
        ++view;
    setToolTip(d->texts.at(view));
}

} // namespace Norvane
