// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "DockSubject.h"

#include <Norvane/DockContainer.h>
#include <Norvane/DockContentWidget.h>
#include <Norvane/DockPanelWidget.h>

#include <QtWidgets/QAbstractButton>

using namespace Norvane;

DockSubject::DockSubject()
    : m_container(new DockContainer)
{
    m_window.setCentralWidget(m_container);
    m_container->setupMainWindow(&m_window);
    m_container->contentWidget()->addSection(QStringLiteral("Documents"));
    m_container->contentWidget()->addTab(0, new QWidget, QStringLiteral("document"));
}

void DockSubject::addView(int panel, QWidget *widget)
{
    m_container->panelWidget(DockContainer::DockArea(panel))
        ->addView(widget, QIcon(QStringLiteral(":/res/menu.svg")), QStringLiteral("view"));
}

void DockSubject::setMinimized(bool minimized)
{
    DockPanelWidget *panelWidget = m_container->panelWidget(DockContainer::LeftDockArea);
    if (panelWidget->isMinimized() != minimized)
        panelWidget->panel()->findChild<QAbstractButton *>()->click();
}

QByteArray DockSubject::save() const
{
    return m_container->saveState();
}

void DockSubject::restore(const QByteArray &state)
{
    m_container->restoreState(state);
}
