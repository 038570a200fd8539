// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "RibbonButton_p.h"

#include "IconFile.h"

#include <QtGui/QAction>
#include <QtGui/QMouseEvent>
#include <QtGui/QPainter>
#include <QtGui/QTextOption>
#include <QtWidgets/QMenu>

namespace Norvane {

namespace {

// Pens and brushes are shared: a ribbon has thousands of buttons.
struct Palette
{
    QPen text{Qt::black, 0};
    QPen border{QColor(125, 125, 125), 1};
    QPen light{QColor(191, 191, 191), 1};
    QPen accent{QColor(38, 140, 221), 1};
    QBrush normal{Qt::white};
    QBrush pressed{QColor(245, 245, 245)};
    QBrush checked{QColor(217, 217, 217)};
};

const Palette &palette()
{
    static const Palette palette;
    return palette;
}

} // namespace

RibbonButtonPrivate::RibbonButtonPrivate()
    : textPen(palette().text)
    , borderPen(palette().border)
    , lightPen(palette().light)
    , accentPen(palette().accent)
    , normalBrush(palette().normal)
    , pressedBrush(palette().pressed)
    , checkedBrush(palette().checked)
{
}

RibbonButtonPrivate::~RibbonButtonPrivate() = default;

bool RibbonButtonPrivate::isLarge() const
{
    return q_func()->toolButtonStyle() == Qt::ToolButtonTextUnderIcon;
}

bool RibbonButtonPrivate::isSmall() const
{
    return q_func()->toolButtonStyle() == Qt::ToolButtonTextBesideIcon;
}

QMenu *RibbonButtonPrivate::menu() const
{
    const QAction *action = q_func()->defaultAction();
    return action ? action->menu<QMenu *>() : nullptr;
}

QString RibbonButtonPrivate::text() const
{
    const QAction *action = q_func()->defaultAction();
    return action ? action->text() : QString();
}

QSize RibbonButtonPrivate::textSize() const
{
    const QString text = this->text();
    const QFont &font = q_func()->font();
    if (!measured || measured->text != text || measured->font != font
        || measured->large != isLarge()) {
        measured =
            std::make_unique<MeasuredText>(MeasuredText{text, font, isLarge(), measureText(text)});
    }
    return measured->size;
}

QSize RibbonButtonPrivate::measureText(const QString &text) const
{
    const QFontMetrics metrics = q_func()->fontMetrics();
    if (!isLarge() || !text.contains(u'\n'))
        return metrics.size(Qt::TextSingleLine, text);
    QSize size = metrics.size(Qt::TextWordWrap, text);
    const QStringList lines = text.split(u'\n');
    if (lines.size() == 2) {
        size.setWidth(std::max(metrics.size(Qt::TextSingleLine, lines.first()).width(),
                               metrics.size(Qt::TextSingleLine, lines.last()).width()));
    }
    return size;
}

QSize RibbonButtonPrivate::measure()
{
    Q_Q(RibbonButton);
    if (isLarge()) {
        textWidth = textSize().width();
        const int width =
            std::max(largeIconSize.width() + 2 * largeIconMargin, textWidth + 2 * largeTextMargin);
        const int menuTop = largeMenuTop + largeIconTop + largeIconSize.height();
        menuRect = QRect(0, menuTop, width, largeHeight - menuTop);
        return {width, largeHeight};
    }
    if (isSmall()) {
        textWidth = q->fontMetrics().horizontalAdvance(text());
        const int textEnd = smallLeftMargin + smallIconSize.width() + smallIconTextGap + textWidth;
        const int arrowRoom = arrowGap + arrowSize.width() + arrowRightMargin;
        menuRect =
            QRect(textEnd + menuRectOverlap, 0, arrowRoom - menuRectOverlap, smallSize.height());
        const bool withArrow = q->popupMode() != QToolButton::DelayedPopup;
        return {textEnd + (withArrow ? arrowRoom : smallRightMargin), smallSize.height()};
    }
    return smallSize;
}

void RibbonButtonPrivate::setArrowHovered(bool on)
{
    Q_Q(RibbonButton);
    if (arrowHovered == on)
        return;
    arrowHovered = on;
    q->update();
}

void RibbonButtonPrivate::paintBackground(QPainter &painter) const
{
    Q_Q(const RibbonButton);
    painter.save();
    painter.translate(0.5, 0.5);
    if (menu() && q->popupMode() != QToolButton::InstantPopup) {
        paintSplitBackground(painter);
    } else {
        painter.setPen(borderPen);
        if (q->isDown())
            painter.setBrush(menu() ? checkedBrush : pressedBrush);
        else
            painter.setBrush(q->isChecked() ? checkedBrush : normalBrush);
        painter.drawRoundedRect(q->rect().adjusted(0, 0, -1, -1), radius, radius);
    }
    painter.restore();
}

void RibbonButtonPrivate::paintSplitBackground(QPainter &painter) const
{
    Q_Q(const RibbonButton);
    const bool large = isLarge();
    const int width = q->width();
    const int height = q->height();

    // The half under the mouse: rounded at the outside, squared at the divider.
    QRect half;
    QRect squared;
    if (large && arrowHovered) {
        half = QRect(0, menuRect.top(), width, menuRect.height());
        squared = QRect(0, menuRect.top(), width, menuRect.height() / 2);
    } else if (large) {
        const int mainHeight = height - menuRect.height();
        half = QRect(0, 0, width, mainHeight);
        squared = QRect(0, mainHeight / 2 + 1, width, mainHeight / 2);
    } else if (arrowHovered) {
        half = QRect(menuRect.left(), 0, menuRect.width(), height);
        squared = QRect(menuRect.left(), 0, menuRect.width() / 2, height);
    } else {
        const int mainWidth = width - menuRect.width();
        half = QRect(0, 0, mainWidth, height);
        squared = QRect(mainWidth / 2 + 1, 0, mainWidth / 2, height);
    }
    painter.setPen(Qt::NoPen);
    painter.setBrush(q->isDown() || q->isChecked() ? checkedBrush : normalBrush);
    painter.drawRoundedRect(half, radius, radius);
    painter.drawRect(squared);

    painter.setPen(borderPen);
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(q->rect().adjusted(0, 0, -1, -1), radius, radius);

    if (large && !arrowHovered)
        painter.setPen(lightPen);
    else if (large && q->isDown())
        painter.setPen(accentPen);
    if (large)
        painter.drawLine(1, menuRect.top(), width - 2, menuRect.top());
    else
        painter.drawLine(menuRect.left(), 1, menuRect.left(), height - 2);
}

void RibbonButtonPrivate::paintIcon(QPainter &painter) const
{
    Q_Q(const RibbonButton);
    const QAction *action = q->defaultAction();
    if (!action)
        return;
    const QSize size = isLarge() ? largeIconSize : smallIconSize;
    const QPixmap pixmap = action->icon().pixmap(
        size, q->devicePixelRatio(), q->isEnabled() ? QIcon::Normal : QIcon::Disabled, QIcon::Off);
    if (pixmap.isNull())
        return;
    const QPoint topLeft = isLarge()
        ? QPoint(std::max(largeIconMargin, (q->width() - size.width()) / 2), largeIconTop)
        : QPoint(smallLeftMargin, (q->height() - size.height()) / 2);
    painter.drawPixmap(QRect(topLeft, size), pixmap);
}

void RibbonButtonPrivate::paintText(QPainter &painter) const
{
    Q_Q(const RibbonButton);
    painter.setPen(q->isEnabled() ? textPen : lightPen);
    const QSize size = textSize();
    if (isLarge()) {
        const QPoint topLeft(std::max(largeTextMargin, (q->width() - textWidth) / 2),
                             largeIconSize.height() + largeIconTextGap + largeIconTop);
        painter.drawText(QRect(topLeft, size), Qt::AlignHCenter, text());
    } else {
        const QPoint topLeft(smallLeftMargin + smallIconSize.width() + smallIconTextGap,
                             (q->height() - q->fontMetrics().height()) / 2);
        painter.drawText(QRectF(topLeft, size), text(), QTextOption());
    }
}

void RibbonButtonPrivate::paintArrow(QPainter &painter) const
{
    Q_Q(const RibbonButton);
    if (!menu() || !(isLarge() || isSmall()))
        return;
    const QPixmap pixmap =
        IconFile::pixmap(QStringLiteral(":/res/arrow.svg"), arrowSize, q->devicePixelRatio(),
                         q->isEnabled() ? QIcon::Normal : QIcon::Disabled);
    painter.setBrush(Qt::NoBrush);
    if (isLarge()) {
        painter.drawPixmap((q->width() - arrowSize.width()) / 2,
                           q->height() - largeArrowBottom - arrowSize.height(), pixmap);
    } else {
        painter.drawPixmap(q->width() - arrowGap - arrowSize.width(),
                           (q->height() - arrowSize.height()) / 2, pixmap);
    }
}

RibbonButton::RibbonButton(QWidget *parent)
    : RibbonButton(*new RibbonButtonPrivate, parent)
{
    setAttribute(Qt::WA_MouseTracking);
}

RibbonButton::RibbonButton(RibbonButtonPrivate &dd, QWidget *parent)
    : QToolButton(parent)
    , d_ptr(&dd)
{
    Q_D(RibbonButton);
    d->q_ptr = this;
}

RibbonButton::~RibbonButton() = default;

void RibbonButton::bindAction(QAction *action)
{
    Q_D(RibbonButton);
    if (auto *menu = action->menu<QMenu *>()) {
        connect(menu, &QMenu::aboutToHide, this, [this, d] {
            d->hovered = false;
            update();
        });
        menu->installEventFilter(this);
    }
    setDefaultAction(action);
    // After the tool button's own connections: the list of a later signal would have to grow for
    // theirs, and Qt keeps the outgrown one.
    connect(action, &QAction::visibleChanged, this,
            [this, action] { setVisible(action->isVisible()); });
    if (!action->isVisible())
        hide();
}

bool RibbonButton::eventFilter(QObject *watched, QEvent *event)
{
    Q_D(RibbonButton);
    QMenu *menu = d->menu();
    if (!menu || watched != menu || event->type() != QEvent::Show)
        return false;
    menu->move(menu->x(), menu->y() - 1);
    return true;
}

void RibbonButton::mousePressEvent(QMouseEvent *event)
{
    Q_D(RibbonButton);
    if (event->button() != Qt::LeftButton) {
        event->ignore();
        return;
    }
    d->hovered = true;
    setDown(true);
    if (!d->menu() || popupMode() == QToolButton::DelayedPopup)
        return;
    if (popupMode() == QToolButton::MenuButtonPopup) {
        const bool onArrow = d->menuRect.contains(event->position().toPoint());
        d->setArrowHovered(onArrow);
        if (!onArrow)
            return;
        d->menuFromArrow = true;
    }
    // The menu's actions may delete the button: nothing may follow.
    showMenu();
}

void RibbonButton::mouseMoveEvent(QMouseEvent *event)
{
    Q_D(RibbonButton);
    d->setArrowHovered(d->menuRect.contains(event->position().toPoint()));
    QAbstractButton::mouseMoveEvent(event);
}

void RibbonButton::enterEvent(QEnterEvent *event)
{
    Q_D(RibbonButton);
    d->hovered = true;
    update();
    QToolButton::enterEvent(event);
}

void RibbonButton::leaveEvent(QEvent *event)
{
    Q_D(RibbonButton);
    d->hovered = false;
    update();
    QToolButton::leaveEvent(event);
}

void RibbonButton::paintEvent(QPaintEvent *event)
{
    Q_UNUSED(event)
    Q_D(RibbonButton);
    QPainter painter(this);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing
                           | QPainter::SmoothPixmapTransform);
    if ((d->hovered && isEnabled()) || isChecked())
        d->paintBackground(painter);
    d->paintIcon(painter);
    d->paintText(painter);
    d->paintArrow(painter);
}

void RibbonButton::resizeEvent(QResizeEvent *event)
{
    Q_D(RibbonButton);
    QWidget::resizeEvent(event);
    setFixedSize(d->measure());
}

} // namespace Norvane
