// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "DockWidgetSubject.h"

#include <QtWidgets/QDockWidget>
#include <QtWidgets/QTabWidget>

DockWidgetSubject::DockWidgetSubject()
{
    auto *tabs = new QTabWidget;
    tabs->addTab(new QWidget, QStringLiteral("document"));
    m_window.setCentralWidget(tabs);
}

void DockWidgetSubject::addView(int panel, QWidget *widget)
{
    static constexpr std::array areas{Qt::LeftDockWidgetArea, Qt::RightDockWidgetArea,
                                      Qt::BottomDockWidgetArea};
    auto *dock = new QDockWidget(QStringLiteral("view"));
    dock->setObjectName(QString::number(m_count++));
    dock->setWidget(widget);
    if (m_first[panel])
        m_window.tabifyDockWidget(m_first[panel], dock);
    else
        m_window.addDockWidget(areas[panel], dock);
    if (!m_first[panel])
        m_first[panel] = dock;
    if (panel == 0)
        m_left << dock;
}

void DockWidgetSubject::setMinimized(bool minimized)
{
    for (QDockWidget *dock : std::as_const(m_left))
        dock->setVisible(!minimized);
}

QByteArray DockWidgetSubject::save() const
{
    return m_window.saveState();
}

void DockWidgetSubject::restore(const QByteArray &state)
{
    m_window.restoreState(state);
}
