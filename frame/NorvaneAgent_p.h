// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "NorvaneAgent.h"

#include "AddressBar.h"
#include "DockContainer.h"
#include "RibbonBar.h"
#include "RibbonPage.h"

#include <QtCore/QHash>
#include <QtCore/QPointer>

#include <mutex>

class NorvaneAgentPrivate
{
    Q_DECLARE_PUBLIC(NorvaneAgent)

public:
    NorvaneAgentPrivate();
    virtual ~NorvaneAgentPrivate();

    void setUpWindow(QMainWindow *window, bool withAddressBar, bool withDockPanels);
    void setUpDialog(QDialog *dialog, QWidget *content);
    void showPagesOf(int section);

    QPointer<Norvane::RibbonBar> ribbonBar;
    QPointer<Norvane::AddressBar> addressBar;
    QPointer<Norvane::DockContainer> dockContainer;
    std::once_flag setupOnce;
    QHash<int, QList<QPointer<Norvane::RibbonPage>>> pageBindings;
    NorvaneAgent *q_ptr = nullptr;
};
