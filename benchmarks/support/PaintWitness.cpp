// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "PaintWitness.h"

#include <QtCore/QAbstractEventDispatcher>
#include <QtCore/QCoreApplication>
#include <QtCore/QEvent>

void settle()
{
    while (QAbstractEventDispatcher::instance()->processEvents(QEventLoop::AllEvents)) { }
}

void PaintWitness::watch(QWidget *widget)
{
    if (m_widget)
        m_widget->removeEventFilter(this);
    m_widget = widget;
    m_widget->installEventFilter(this);
    m_painted = false;
}

void PaintWitness::wait()
{
    for (int i = 0; !m_painted; ++i) {
        if (i == 1000)
            qFatal("%s is never painted", m_widget->metaObject()->className());
        QCoreApplication::processEvents();
    }
    settle();
}

bool PaintWitness::eventFilter(QObject *watched, QEvent *event)
{
    Q_UNUSED(watched)
    m_painted = m_painted || event->type() == QEvent::Paint;
    return false;
}
