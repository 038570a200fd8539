// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QCoreApplication>
#include <QtCore/QEvent>
#include <QtWidgets/QWidget>

namespace Norvane {

/*!
    As long as it lives no widget that is not polished yet hears of a change of its style. Frames
    and tool buttons ask the new style at once, which under a style sheet costs as much as polishing
    and is done again then.
*/
class StyleChangeEater : public QObject
{
public:
    StyleChangeEater() { QCoreApplication::instance()->installEventFilter(this); }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        return event->type() == QEvent::StyleChange && watched->isWidgetType()
            && !static_cast<QWidget *>(watched)->testAttribute(Qt::WA_WState_Polished);
    }
};

} // namespace Norvane
