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

namespace {

// Texts come and go with documents; a limit keeps those that went from adding up.
constexpr qsizetype mostSizes = 4096;

} // namespace

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
        const Sizes sizes = sizesOf(index);
        return m_overfull ? QSize(sizes.minimum.width(), sizes.hint.height()) : sizes.hint;
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

QSize DockTabBar::sizeHint() const
{
    const QSize size = QTabBar::sizeHint();
    return m_overfull ? QSize(m_width, size.height()) : size;
}

void DockTabBar::tabLayoutChange()
{
    m_layingOut = false;
    QTabBar::tabLayoutChange();
}

void DockTabBar::beginLayout() const
{
    m_current = currentIndex();
    // For one tab that comes QTabBar lays all out five times.
    if (!std::exchange(m_inserting, count() > m_knownCount))
        lookAtEach();
    // Tabs that are cut short and still do not fit all get their least width. Asked for, it is
    // theirs at once; otherwise QTabBar takes the room from one after the other.
    m_overfull = m_leastWidth > width() && (shape() == RoundedNorth || shape() == RoundedSouth);
}

void DockTabBar::lookAtEach() const
{
    m_first = 0;
    m_last = count() - 1;
    while (m_first < m_last && !isTabVisible(m_first))
        ++m_first;
    while (m_last > m_first && !isTabVisible(m_last))
        --m_last;
    if (m_tabs.size() < count())
        m_tabs.resize(count());
    int width = 0;
    int leastWidth = 0;
    for (int index = m_first; index <= m_last; ++index) {
        if (!isTabVisible(index))
            continue;
        if (m_tabs.size() > count() && !(m_tabs.at(index).look == lookOf(index)))
            m_tabs.removeAt(index);
        const Sizes sizes = lookAt(index);
        width += sizes.hint.width();
        leastWidth += sizes.minimum.width();
    }
    m_tabs.resize(count());
    m_width = width;
    m_leastWidth = leastWidth;
}

DockTabBar::Sizes DockTabBar::sizesOf(int index) const
{
    if (index < 0 || index >= m_tabs.size())
        return {};
    // Those at the ends and beside the current one change their look with what others do.
    const bool middle =
        index > m_first + 1 && index < m_last - 1 && std::abs(index - m_current) > 1;
    return middle ? m_tabs.at(index).sizes : lookAt(index);
}

DockTabBar::Sizes DockTabBar::lookAt(int index) const
{
    const Look look = lookOf(index);
    if (m_tabs.at(index).look == look)
        return m_tabs.at(index).sizes;
    const auto known = m_sizes.constFind(look);
    if (known != m_sizes.constEnd())
        return keep(index, {look, *known});
    const auto measure = [this, index] {
        const QScopedValueRollback measuring(m_measuring, true);
        return Sizes{tabSizeHint(index), QTabBar::minimumTabSizeHint(index)};
    };
    const Sizes sizes = measure();
    // While a tab is inserted or removed Qt still has another one for the first or the last.
    if (m_knownCount != count() && (index <= m_first + 1 || index >= m_last - 1))
        return keep(index, {{}, sizes});
    if (m_sizes.size() >= mostSizes)
        m_sizes.clear();
    m_sizes.insert(look, sizes);
    return keep(index, {look, sizes});
}

DockTabBar::Sizes DockTabBar::keep(int index, const Tab &tab) const
{
    Tab &kept = m_tabs[index];
    m_width += tab.sizes.hint.width() - kept.sizes.hint.width();
    m_leastWidth += tab.sizes.minimum.width() - kept.sizes.minimum.width();
    kept = tab;
    return tab.sizes;
}

DockTabBar::Look DockTabBar::lookOf(int index) const
{
    const QIcon icon = tabIcon(index);
    int state = 0;
    for (const bool is :
         {index == m_first, index == m_last, index == m_current, index == m_current - 1,
          index == m_current + 1, isTabEnabled(index), hasCloseButton(index)})
        state = 2 * state + is;
    return {tabText(index), icon.isNull() ? 0 : icon.cacheKey(), state};
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
    // QTabBar makes a button for every new tab of a closable bar.
    if (QWidget *button = tabsClosable() ? tabButton(index, closeLook().side) : nullptr) {
        setTabButton(index, closeLook().side, nullptr);
        delete button;
    }
    m_inserting = false;
    m_knownCount = count();
    m_pressed = -1;
    setHovered(-1);
    QTabBar::tabInserted(index);
}

void DockTabBar::tabRemoved(int index)
{
    m_knownCount = count();
    m_pressed = -1;
    setHovered(-1);
    QTabBar::tabRemoved(index);
}

void DockTabBar::forgetSizes()
{
    m_sizes.clear();
    m_tabs.clear();
    m_inserting = false;
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
    return index >= 0 && hasCloseButton(index) && isTabEnabled(index)
            && closeRect(index).contains(position)
        ? index
        : -1;
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
    option.state.setFlag(QStyle::State_Enabled, isEnabled() && isTabEnabled(index));
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
