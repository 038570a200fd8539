// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "Subject.h"

#include <QtWidgets/QMainWindow>

namespace Norvane {
class DockContainer;
}

// Our own classes.
class DockSubject : public Subject
{
public:
    DockSubject();

    QWidget *window() override { return &m_window; }
    void addView(int panel, QWidget *widget) override;
    void setMinimized(bool minimized) override;
    QByteArray save() const override;
    void restore(const QByteArray &state) override;

private:
    QMainWindow m_window;
    Norvane::DockContainer *m_container;
};
