// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "DockPanel_p.h"

#include "DockButton.h"

#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QButtonGroup>

namespace Norvane {

DockPanelPrivate::DockPanelPrivate(Qt::Orientation orientation)
    : buttonGroup(new QButtonGroup)
    , orientation(orientation)
{
    // An exclusive group would not let the user uncheck the current button.
    buttonGroup->setExclusive(false);
}

DockPanelPrivate::~DockPanelPrivate() = default;

QBoxLayout *DockPanelPrivate::layout() const
{
    return static_cast<QBoxLayout *>(q_ptr->layout());
}

QSize DockPanelPrivate::buttonSize(int views) const
{
    const int icons = views * iconSize.height() + (views - 1) * iconGap;
    return QSize(iconSize.width(), icons) + QSize(2 * buttonPadding, 2 * buttonPadding);
}

void DockPanelPrivate::append(QWidget *widget)
{
    Q_Q(DockPanel);
    layout()->addWidget(widget);
    if (orientation == Qt::Vertical)
        return;
    // A horizontal bar may be placed by hand, so it keeps its own width. A widget that is not
    // shown yet is not counted.
    if (q->isVisible())
        widget->show();
    layout()->invalidate();
    q->setFixedWidth(layout()->sizeHint().width());
}

void DockPanelPrivate::onClicked(int id)
{
    Q_Q(DockPanel);
    if (!buttonGroup->button(id)->isChecked()) {
        Q_EMIT q->signalCurrentChanged(-1);
        return;
    }
    q->setCurrentIndex(id);
    Q_EMIT q->signalCurrentChanged(id);
}

DockPanel::DockPanel(Qt::Orientation orientation, QWidget *parent)
    : DockPanel(*new DockPanelPrivate(orientation), parent)
{
}

DockPanel::DockPanel(DockPanelPrivate &dd, QWidget *parent)
    : QFrame(parent)
    , d_ptr(&dd)
{
    Q_D(DockPanel);
    d->q_ptr = this;
    d->buttonGroup->setParent(this);
    connect(d->buttonGroup, &QButtonGroup::idClicked, this, [d](int id) { d->onClicked(id); });
    QSizePolicy policy = sizePolicy();
    if (d->orientation == Qt::Vertical) {
        setProperty("orientation", QStringLiteral("vertical"));
        auto *column = new QVBoxLayout(this);
        column->setContentsMargins(0, 6, 0, 6);
        column->setAlignment(Qt::AlignTop | Qt::AlignHCenter);
        policy.setVerticalPolicy(QSizePolicy::Expanding);
    } else {
        setProperty("orientation", QStringLiteral("horizontal"));
        auto *row = new QHBoxLayout(this);
        row->setContentsMargins(6, 0, 6, 0);
        row->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
        policy.setHorizontalPolicy(QSizePolicy::Expanding);
    }
    setSizePolicy(policy);
    d->layout()->setSpacing(6);
    if (d->orientation == Qt::Horizontal) {
        addSeparator();
        // Whoever places the bar by hand asks for its height before any layout has set it.
        resize(DockPanel::sizeHint());
    }
}

DockPanel::~DockPanel() = default;

int DockPanel::addButton(const QString &text, const QIcon &icon)
{
    Q_D(DockPanel);
    const int id = int(d->viewCounts.size());
    auto *button = new DockButton(d->orientation, this);
    button->setFixedSize(d->buttonSize(1));
    button->setIconSize(d->iconSize);
    button->setIcons({icon});
    button->setTexts({text});
    d->buttonGroup->addButton(button, id);
    d->append(button);
    if (id == 0)
        button->setChecked(true);
    d->viewCounts.append(1);
    return id;
}

int DockPanel::tabifyButton(int index, const QString &text, const QIcon &icon)
{
    Q_D(DockPanel);
    if (index < 0 || index >= d->viewCounts.size())
        return -1;
    const int views = ++d->viewCounts[index];
    const QSize size = d->buttonSize(views);
    auto *button = static_cast<DockButton *>(d->buttonGroup->button(index));
    button->setFixedSize(size);
    button->setIconSize(size - QSize(2 * d->buttonPadding, 2 * d->buttonPadding));
    button->setIcons(button->icons() << icon);
    button->setTexts(button->texts() << text);
    return index;
}

void DockPanel::addSeparator()
{
    Q_D(DockPanel);
    auto *separator = new QFrame(this);
    separator->setFrameShape(d->orientation == Qt::Horizontal ? QFrame::VLine : QFrame::HLine);
    d->append(separator);
}

void DockPanel::setCurrentIndex(int index)
{
    Q_D(DockPanel);
    if (index < 0 || index >= d->viewCounts.size())
        return;
    for (int id = 0; id < d->viewCounts.size(); ++id)
        setChecked(id, id == index);
}

void DockPanel::setChecked(int index, bool checked)
{
    Q_D(DockPanel);
    if (QAbstractButton *button = d->buttonGroup->button(index))
        button->setChecked(checked);
}

void DockPanel::setButtonVisible(int index, bool visible)
{
    Q_D(DockPanel);
    if (QAbstractButton *button = d->buttonGroup->button(index))
        button->setVisible(visible);
}

int DockPanel::checkedId() const
{
    Q_D(const DockPanel);
    return d->buttonGroup->checkedId();
}

Qt::Orientation DockPanel::orientation() const
{
    Q_D(const DockPanel);
    return d->orientation;
}

QSize DockPanel::sizeHint() const
{
    return DockPanel::minimumSizeHint();
}

QSize DockPanel::minimumSizeHint() const
{
    Q_D(const DockPanel);
    const QSize size = QFrame::minimumSizeHint();
    if (d->orientation == Qt::Vertical)
        return size;
    // As high with its first button as without one.
    const QMargins margins = layout()->contentsMargins();
    return size.expandedTo({0, d->buttonSize(1).height() + margins.top() + margins.bottom()});
}

} // namespace Norvane
