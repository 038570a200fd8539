// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "DockTabBar.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QScopedValueRollback>
#include <QtGui/QHelpEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QApplication>
#include <QtWidgets/QStyleOptionTab>
#include <QtWidgets/QToolTip>

#include <cstdlib>
#include <utility>

namespace Norvane {

DockTabBar::DockTabBar(QWidget *parent)
    : QTabBar(parent)
    , m_closeButton(new QWidget(this))
{
    m_closeButton->hide();
    setMouseTracking(true);
    connect(this, &QTabBar::tabMoved, this, [this] { setHovered(-1); });
}

QSize DockTabBar::tabSizeHint(int index) const
{
    if (!m_measuring) {
        // A layout asks for all tabs in turn, so that one look at them is enough.
        if (!std::exchange(m_layingOut, false))
            beginLayout();
        return sizesOf(index).hint;
    }
    QSize size = QTabBar::tabSizeHint(index);
    if (size.isValid() && hasCloseButton(index))
        size.rwidth() += closeLook().size.width() + 4;
    return size;
}

QSize DockTabBar::minimumTabSizeHint(int index) const
{
    // A layout asks for it after the hint.
    m_layingOut = true;
    return index < m_tabs.size() ? m_tabs.at(index).sizes.minimum : QSize();
}

void DockTabBar::tabLayoutChange()
{
    m_layingOut = false;
    QTabBar::tabLayoutChange();
}

void DockTabBar::beginLayout() const
{
    m_current = currentIndex();
    // For one tab that comes QTabBar lays all out five times, for one that goes twice.
    if (!m_changing)
        lookAtEach();
    m_changing = m_changing || count() != m_knownCount;
}

void DockTabBar::lookAtEach() const
{
    m_first = 0;
    m_last = count() - 1;
    while (m_first < m_last && !isTabVisible(m_first))
        ++m_first;
    while (m_last > m_first && !isTabVisible(m_last))
        --m_last;
    for (int index = m_first; index <= m_last; ++index) {
        if (!isTabVisible(index))
            continue;
        const Look look = lookOf(index);
        // Where the first one differs one came or went; those behind it are known already.
        if (index < m_tabs.size() && m_tabs.size() != count() && m_tabs.at(index).look != look) {
            if (m_tabs.size() > count())
                m_tabs.removeAt(index);
            else
                m_tabs.insert(index, Tab());
        }
        if (index >= m_tabs.size())
            m_tabs.resize(index + 1);
        lookAt(index, look);
    }
    m_tabs.resize(count());
}

DockTabBar::Sizes DockTabBar::sizesOf(int index) const
{
    if (index < 0 || index >= m_tabs.size())
        return {};
    // Which tab is the current one changes after the first layout for one that comes.
    const Tab &tab = m_tabs.at(index);
    return tab.isKnown() && std::abs(index - m_current) > 2 ? tab.sizes
                                                            : lookAt(index, lookOf(index));
}

DockTabBar::Sizes DockTabBar::lookAt(int index, const Look &look) const
{
    Tab &tab = m_tabs[index];
    if (tab.look == look)
        return tab.sizes;
    const QScopedValueRollback measuring(m_measuring, true);
    tab = {look, {tabSizeHint(index), QTabBar::minimumTabSizeHint(index)}};
    // For one that comes Qt has another one for the last at first; and what has buttons of its own
    // may change its size with them.
    if (count() > m_knownCount || hasOwnButton(index))
        tab.look = {};
    return tab.sizes;
}

DockTabBar::Look DockTabBar::lookOf(int index) const
{
    int state = 0;
    for (const bool is : {index == m_first, index == m_last, index == m_current,
                          index == m_current - 1, index == m_current + 1, isTabEnabled(index),
                          hasCloseButton(index), hasOwnButton(index), !tabIcon(index).isNull()})
        state = 2 * state + is;
    return {tabText(index), state};
}

void DockTabBar::initStyleOption(QStyleOptionTab *option, int index) const
{
    // Nobody reads a text that lies far outside of the bar, where a tab that is moved may bring it
    // in at most from beside it; QTabBar cuts all texts short whenever it paints.
    const QRect place = tabRect(index);
    if (!place.intersects(rect().adjusted(-width(), -height(), width(), height()))) {
        option->initFrom(this);
        option->rect = place;
        option->shape = shape();
        return;
    }
    QTabBar::initStyleOption(option, index);
    if (!hasCloseButton(index))
        return;
    if (closeLook().side == LeftSide)
        option->leftButtonSize = closeLook().size;
    else
        option->rightButtonSize = closeLook().size;
    option->text = tabText(index);
    const QRect text = style()->subElementRect(QStyle::SE_TabBarTabText, option, this);
    option->text =
        fontMetrics().elidedText(option->text, elideMode(), text.width(), Qt::TextShowMnemonic);
}

void DockTabBar::tabInserted(int index)
{
    m_knownCount = count();
    // QTabBar makes a button for every new tab of a closable bar.
    if (QWidget *button = tabButton(index, closeLook().side)) {
        setTabButton(index, closeLook().side, nullptr);
        delete button;
    }
    m_changing = false;
    m_pressed = -1;
    setHovered(-1);
    QTabBar::tabInserted(index);
}

void DockTabBar::tabRemoved(int index)
{
    m_changing = false;
    m_knownCount = count();
    m_pressed = -1;
    setHovered(-1);
    QTabBar::tabRemoved(index);
}

void DockTabBar::forgetSizes()
{
    m_tabs.clear();
    m_changing = false;
    m_closeLook.reset();
}

bool DockTabBar::event(QEvent *event)
{
    if (event->type() == QEvent::Polish)
        forgetSizes();
    if (event->type() == QEvent::ToolTip) {
        const auto *help = static_cast<QHelpEvent *>(event);
        if (closeAt(help->pos()) >= 0) {
            QToolTip::showText(help->globalPos(),
                               QCoreApplication::translate("CloseButton", "Close Tab"), this);
            return true;
        }
    }
    return QTabBar::event(event);
}

void DockTabBar::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::StyleChange || event->type() == QEvent::FontChange)
        forgetSizes();
    QTabBar::changeEvent(event);
}

void DockTabBar::leaveEvent(QEvent *event)
{
    setHovered(-1);
    QTabBar::leaveEvent(event);
}

void DockTabBar::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton && closeAt(event->position().toPoint()) >= 0)
        mousePressEvent(event);
    else
        QTabBar::mouseDoubleClickEvent(event);
}

void DockTabBar::mousePressEvent(QMouseEvent *event)
{
    m_pressPosition = event->position().toPoint();
    const int index = event->button() == Qt::LeftButton ? closeAt(m_pressPosition) : -1;
    if (index < 0) {
        QTabBar::mousePressEvent(event);
        return;
    }
    m_pressed = index;
    update(closeRect(index));
}

void DockTabBar::mouseMoveEvent(QMouseEvent *event)
{
    const QPoint position = event->position().toPoint();
    if (m_pressed >= 0) {
        setHovered(closeRect(m_pressed).contains(position) ? m_pressed : -1);
        return;
    }
    setHovered(event->buttons() == Qt::NoButton ? closeAt(position) : -1);
    // A tab on its way is painted where only QTabBar knows.
    m_dragging = m_dragging
        || (isMovable() && event->buttons() == Qt::LeftButton
            && (position - m_pressPosition).manhattanLength() > QApplication::startDragDistance());
    QTabBar::mouseMoveEvent(event);
}

void DockTabBar::mouseReleaseEvent(QMouseEvent *event)
{
    if (m_pressed < 0 || event->button() != Qt::LeftButton) {
        if (m_dragging && event->button() == Qt::LeftButton) {
            m_dragging = false;
            update();
        }
        QTabBar::mouseReleaseEvent(event);
        return;
    }
    const int index = std::exchange(m_pressed, -1);
    const QRect button = closeRect(index);
    update(button);
    if (button.contains(event->position().toPoint()))
        Q_EMIT tabCloseRequested(index);
}

void DockTabBar::paintEvent(QPaintEvent *event)
{
    QTabBar::paintEvent(event);
    if (m_dragging)
        return;
    QPainter painter(this);
    for (int index = 0; index < count(); ++index) {
        if (hasCloseButton(index) && tabRect(index).intersects(event->rect()))
            paintCloseButton(&painter, index);
    }
}

bool DockTabBar::hasCloseButton(int index) const
{
    return tabsClosable() && !tabButton(index, closeLook().side);
}

bool DockTabBar::hasOwnButton(int index) const
{
    return tabButton(index, LeftSide) || tabButton(index, RightSide);
}

const DockTabBar::CloseLook &DockTabBar::closeLook() const
{
    if (!m_closeLook) {
        const QStyle *style = this->style();
        const int side = style->styleHint(QStyle::SH_TabBar_CloseButtonPosition, nullptr, this);
        const QSize size(
            style->pixelMetric(QStyle::PM_TabCloseIndicatorWidth, nullptr, m_closeButton),
            style->pixelMetric(QStyle::PM_TabCloseIndicatorHeight, nullptr, m_closeButton));
        m_closeLook = CloseLook{ButtonPosition(side), size};
    }
    return *m_closeLook;
}

QRect DockTabBar::closeRect(int index) const
{
    if (!isTabVisible(index))
        return {};
    QStyleOptionTab option;
    initStyleOption(&option, index);
    const QRect place =
        style()->subElementRect(closeLook().side == LeftSide ? QStyle::SE_TabBarTabLeftButton
                                                             : QStyle::SE_TabBarTabRightButton,
                                &option, this);
    return {place.topLeft(), closeLook().size};
}

int DockTabBar::closeAt(QPoint position) const
{
    const int index = tabAt(position);
    return index >= 0 && hasCloseButton(index) && closeRect(index).contains(position) ? index : -1;
}

void DockTabBar::setHovered(int index)
{
    if (m_hovered == index)
        return;
    m_hovered = index;
    update();
}

void DockTabBar::paintCloseButton(QPainter *painter, int index) const
{
    const QRect place = closeRect(index);
    if (place.isEmpty())
        return;
    QStyleOption option;
    option.initFrom(this);
    option.rect = QRect(QPoint(), place.size());
    option.state &= ~(QStyle::State_MouseOver | QStyle::State_HasFocus);
    option.state |= QStyle::State_AutoRaise;
    option.state.setFlag(QStyle::State_Selected, index == currentIndex());
    option.state.setFlag(QStyle::State_MouseOver, index == m_hovered);
    option.state.setFlag(QStyle::State_Raised, index == m_hovered && index != m_pressed);
    option.state.setFlag(QStyle::State_Sunken, index == m_hovered && index == m_pressed);
    painter->save();
    painter->translate(place.topLeft());
    style()->drawPrimitive(QStyle::PE_IndicatorTabClose, &option, painter, m_closeButton);
    painter->restore();
}

} // namespace Norvane
