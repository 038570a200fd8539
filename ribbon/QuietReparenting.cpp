// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "QuietReparenting.h"

#include "StyleChangeEater.h"

#include <QtCore/QEvent>
#include <QtWidgets/QWidget>

namespace Norvane {

QuietReparenting::QuietReparenting(QWidget *widget, QWidget *firstChild)
    : QObject(widget)
    , m_widget(widget)
    , m_parent(widget->parentWidget())
{
    widget->installEventFilter(this);
    firstChild->installEventFilter(this);
}

QuietReparenting::~QuietReparenting() = default;

bool QuietReparenting::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_widget && event->type() == QEvent::ParentChange) {
        m_parent = m_widget->parentWidget();
        if (m_styleKeeper) {
            m_widget->setStyleSheet(m_sheet);
            m_eater.reset();
            m_styleKeeper.reset();
        }
    } else if (watched != m_widget && event->type() == QEvent::StyleChange && !m_styleKeeper
               && m_widget->parentWidget() != m_parent && !m_widget->styleSheet().isEmpty()
               && !m_widget->testAttribute(Qt::WA_WState_Polished)) {
        m_sheet = m_widget->styleSheet();
        // Qt goes on to use the style, which must outlive the sheet.
        m_styleKeeper = std::make_unique<QWidget>();
        m_styleKeeper->setStyle(m_widget->style());
        m_eater = std::make_unique<StyleChangeEater>();
        m_widget->setStyleSheet({});
    }
    return false;
}

} // namespace Norvane
