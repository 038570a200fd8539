// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "AddressEntry_p.h"

#include "AddressPath.h"
#include "IconFile.h"

#include <QtCore/QApplicationStatic>
#include <QtCore/QPointer>
#include <QtGui/QMouseEvent>
#include <QtGui/QPainter>
#include <QtGui/QScreen>
#include <QtWidgets/QApplication>
#include <QtWidgets/QMenu>
#include <QtWidgets/QStyle>

namespace Norvane {

namespace {

// All crumbs share what the style gives: asking it takes longer than building a crumb.
struct StyleIcons
{
    void update()
    {
        if (style == QApplication::style())
            return;
        style = QApplication::style();
        drive = style->standardIcon(QStyle::SP_DriveHDIcon);
        folder = style->standardIcon(QStyle::SP_DirIcon);
    }

    QPointer<QStyle> style;
    QIcon drive;
    QIcon folder;
};
Q_APPLICATION_STATIC(StyleIcons, styleIcons, )

// A menu that connects its actions by functions. Others do so by the names of signals and slots,
// and look them up again for every action, which is a third of what building them takes.
class CrumbMenu : public QMenu
{
public:
    using QMenu::QMenu;

    // Before anything else knows the menu: a native one of the system's would have to be told.
    void fill(const QStringList &names, const QIcon &icon)
    {
        m_filling = true;
        // From the end: a menu looks for the action before which it inserts another, and of ten
        // thousand it would look at all, each time.
        QAction *next = nullptr;
        for (auto name = names.crbegin(); name != names.crend(); ++name) {
            auto *action = new QAction(icon, *name, this);
            connect(action, &QAction::triggered, this,
                    [this, action] { Q_EMIT triggered(action); });
            connect(action, &QAction::hovered, this, [this, action] { Q_EMIT hovered(action); });
            insertAction(next, action);
            next = action;
        }
        m_filling = false;
        // Once, so that the menu knows that it has to measure its actions.
        QActionEvent changed(QEvent::ActionChanged, next);
        actionEvent(&changed);
    }

protected:
    void actionEvent(QActionEvent *event) override
    {
        if (!m_filling)
            QMenu::actionEvent(event);
    }

private:
    bool m_filling = false;
};

} // namespace

AddressEntryPrivate::AddressEntryPrivate()
    : borderPen(QColor(51, 51, 51), 1, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin)
    , normalBrush(QColor(255, 255, 255))
    , lightBrush(QColor(245, 245, 245))
    , pressedBrush(QColor(217, 217, 217))
    , activeBrush(QColor(180, 222, 255))
{
    borderPen.setCosmetic(true);
    styleIcons->update();
    driveIcon = styleIcons->drive;
    folderIcon = styleIcons->folder;
}

AddressEntryPrivate::~AddressEntryPrivate() = default;

bool AddressEntryPrivate::isSplit() const
{
    return q_func()->popupMode() == QToolButton::MenuButtonPopup;
}

int AddressEntryPrivate::textPartWidth() const
{
    return textLeft + textArrowGap + textWidth;
}

QRect AddressEntryPrivate::visual(const QRect &rect) const
{
    Q_Q(const AddressEntry);
    return QStyle::visualRect(q->layoutDirection(), q->rect(), rect);
}

QSize AddressEntryPrivate::measure()
{
    Q_Q(AddressEntry);
    QSize size(22, 22);
    textWidth = q->fontMetrics().horizontalAdvance(q->text());
    if (isSplit()) {
        arrowRect = QRect(QPoint(textPartWidth(), 0), arrowPartSize);
        size.setWidth(textPartWidth() + arrowPartSize.width());
    } else if (q->popupMode() == QToolButton::InstantPopup) {
        arrowRect = QRect(QPoint(0, 0), arrowPartSize);
        size.setWidth(arrowPartSize.width());
    } else {
        size.setWidth(textLeft + textRight + textWidth);
    }
    return size;
}

void AddressEntryPrivate::setArrowHovered(bool on)
{
    Q_Q(AddressEntry);
    if (arrowHovered == on)
        return;
    arrowHovered = on;
    q->update();
}

void AddressEntryPrivate::createMenu(const QStringList &names, const QIcon &icon)
{
    Q_Q(AddressEntry);
    auto *menu = new CrumbMenu(q);
    q->setMenu(menu);
    menu->fill(names, icon);
    menu->installEventFilter(q);
    // Columns would run out of the screen's side. A sheet takes a while, and few menus are opened.
    QObject::connect(
        menu, &QMenu::aboutToShow, q,
        [menu] { menu->setStyleSheet(QStringLiteral("QMenu { menu-scrollable: 1; }")); },
        Qt::SingleShotConnection);
    QObject::connect(menu, &QMenu::aboutToShow, q, [this] { limitMenu(); });
    QObject::connect(menu, &QMenu::aboutToHide, q, [this] { hovered = false; });
    QObject::connect(menu, &QMenu::triggered, q, [this, q](const QAction *action) {
        Q_EMIT q->signalClicked(
            AddressPath::child(path, action->text(), AddressPath::nativeStyle()));
    });
}

// A menu that is longer than the screen reaches from the crumb to the end, if there is much room.
void AddressEntryPrivate::limitMenu() const
{
    Q_Q(const AddressEntry);
    QMenu *menu = q->menu();
    const QRect screen = q->screen()->availableGeometry();
    const int room = screen.bottom() + 1 - q->mapToGlobal(QPoint(0, q->height())).y();
    if (!isSplit() || room <= screen.height() / 2 || menu->sizeHint().height() <= screen.height())
        return;
    // Before it is shown, because a menu measures all its actions again when its size changes.
    QObject::connect(
        menu, &QMenu::aboutToHide, q,
        [menu, limit = menu->maximumHeight()] { menu->setMaximumHeight(limit); },
        Qt::SingleShotConnection);
    menu->setMaximumHeight(qMin(room, menu->maximumHeight()));
}

// Under the arrow, as long as the screen has room there.
void AddressEntryPrivate::placeMenu() const
{
    Q_Q(const AddressEntry);
    QMenu *menu = q->menu();
    const QRect below = visual(QRect(textPartWidth(), q->height(), menu->width(), 0));
    QPoint position = q->mapToGlobal(below.topLeft());
    const QRect screen = q->screen()->availableGeometry();
    position.setX(qMax(screen.left(), qMin(position.x(), screen.right() + 1 - menu->width())));
    position.setY(qMin(position.y(), screen.bottom() + 1 - menu->height()));
    menu->move(position);
}

void AddressEntryPrivate::paintBackground(QPainter &painter) const
{
    Q_Q(const AddressEntry);
    const int width = q->width();
    const int height = q->height();
    painter.save();
    painter.setPen(Qt::NoPen);
    if (isSplit()) {
        const QRect textPart = visual(QRect(0, 0, textPartWidth(), height));
        const QRect arrowPart = visual(QRect(textPartWidth(), 0, arrowPartSize.width(), height));
        if (arrowHovered) {
            painter.fillRect(arrowPart, q->isDown() ? pressedBrush : normalBrush);
            painter.fillRect(textPart, q->isDown() ? activeBrush : lightBrush);
        } else {
            painter.fillRect(textPart, q->isDown() ? pressedBrush : normalBrush);
            painter.fillRect(arrowPart, lightBrush);
        }
    } else {
        painter.fillRect(q->rect(), q->isDown() ? pressedBrush : normalBrush);
    }
    // A cosmetic pen is one pixel of the screen wide, so it is these that are halved.
    const qreal pixel = 1 / q->devicePixelRatio();
    painter.translate(pixel / 2, pixel / 2);
    painter.setPen(borderPen);
    const auto drawBorder = [&painter, bottom = height - pixel](qreal x) {
        painter.drawLine(QPointF(x, 0), QPointF(x, bottom));
    };
    drawBorder(0);
    if (isSplit())
        drawBorder(q->isRightToLeft() ? width - textPartWidth() - pixel : textPartWidth());
    drawBorder(width - pixel);
    painter.restore();
}

void AddressEntryPrivate::paintText(QPainter &painter) const
{
    Q_Q(const AddressEntry);
    const int width = q->fontMetrics().size(Qt::TextSingleLine, q->text()).width();
    painter.setPen(Qt::black);
    painter.drawText(visual(QRect(textLeft, 0, width, q->height())),
                     Qt::AlignVCenter | Qt::TextSingleLine, q->text());
}

void AddressEntryPrivate::paintArrow(QPainter &painter) const
{
    Q_Q(const AddressEntry);
    const QString file = q->isDown() && arrowHovered ? QStringLiteral(":/res/arrowDown.svg")
                                                     : QStringLiteral(":/res/arrowRight.svg");
    // In the mirror the arrow points to the left.
    if (q->isRightToLeft())
        painter.setTransform(QTransform(-1, 0, 0, 1, q->width(), 0), true);
    painter.drawPixmap(q->width() - arrowRight - arrowSize.width(),
                       (q->height() - arrowSize.height()) / 2,
                       IconFile::pixmap(file, arrowSize, q->devicePixelRatio(), QIcon::Normal));
}

AddressEntry::AddressEntry(QWidget *parent)
    : AddressEntry(*new AddressEntryPrivate, parent)
{
    setAttribute(Qt::WA_MouseTracking);
    connect(this, &QAbstractButton::clicked, this, [this] {
        Q_D(const AddressEntry);
        Q_EMIT signalClicked(d->path);
    });
}

AddressEntry::AddressEntry(AddressEntryPrivate &dd, QWidget *parent)
    : QToolButton(parent)
    , d_ptr(&dd)
{
    Q_D(AddressEntry);
    d->q_ptr = this;
}

AddressEntry::~AddressEntry() = default;

void AddressEntry::setPath(const QString &path)
{
    Q_D(AddressEntry);
    d->path = path;
    setAccessibleName(path.isEmpty() ? tr("Root") : path);
    const AddressPath::Style style = AddressPath::nativeStyle();
    const QStringList names = AddressPath::children(path, style);
    if (path.isEmpty()) {
        const bool drives = style == AddressPath::Style::DriveLetters;
        d->createMenu(names, drives ? d->driveIcon : d->folderIcon);
        setPopupMode(QToolButton::InstantPopup);
    } else if (!names.isEmpty()) {
        d->createMenu(names, d->folderIcon);
        setPopupMode(QToolButton::MenuButtonPopup);
    }
}

bool AddressEntry::eventFilter(QObject *watched, QEvent *event)
{
    Q_D(AddressEntry);
    QMenu *menu = this->menu();
    if (menu && watched == menu && event->type() == QEvent::Show && d->isSplit()) {
        d->placeMenu();
        menu->hideTearOffMenu();
        return true;
    }
    return QToolButton::eventFilter(watched, event);
}

void AddressEntry::mousePressEvent(QMouseEvent *event)
{
    Q_D(AddressEntry);
    if (event->button() != Qt::LeftButton) {
        event->ignore();
        return;
    }
    d->hovered = true;
    setDown(true);
    if (!menu() || popupMode() == QToolButton::DelayedPopup)
        return;
    d->setArrowHovered(d->visual(d->arrowRect).contains(event->position().toPoint()));
    if (!d->arrowHovered)
        return;
    d->menuShown = true;
    // The menu's actions may delete the crumb: nothing may follow.
    showMenu();
}

void AddressEntry::mouseMoveEvent(QMouseEvent *event)
{
    Q_D(AddressEntry);
    event->accept();
    d->setArrowHovered(d->visual(d->arrowRect).contains(event->position().toPoint()));
    QToolButton::mouseMoveEvent(event);
}

void AddressEntry::enterEvent(QEnterEvent *event)
{
    Q_D(AddressEntry);
    d->hovered = true;
    update();
    QToolButton::enterEvent(event);
}

void AddressEntry::leaveEvent(QEvent *event)
{
    Q_D(AddressEntry);
    d->hovered = false;
    update();
    QToolButton::leaveEvent(event);
}

void AddressEntry::paintEvent(QPaintEvent *event)
{
    Q_UNUSED(event)
    Q_D(AddressEntry);
    QPainter painter(this);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing
                           | QPainter::SmoothPixmapTransform);
    if (d->hovered)
        d->paintBackground(painter);
    if (popupMode() != QToolButton::InstantPopup)
        d->paintText(painter);
    if (menu())
        d->paintArrow(painter);
}

void AddressEntry::resizeEvent(QResizeEvent *event)
{
    Q_D(AddressEntry);
    QToolButton::resizeEvent(event);
    setFixedSize(d->measure());
}

} // namespace Norvane
