// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "Subject.h"

#include <QtWidgets/QMainWindow>

#include <array>

class QDockWidget;

// Qt's own docking: a QDockWidget for each view, all of an area behind one another.
class DockWidgetSubject : public Subject
{
public:
    DockWidgetSubject();

    QWidget *window() override { return &m_window; }
    void addView(int panel, QWidget *widget) override;
    void setMinimized(bool minimized) override;
    QByteArray save() const override;
    void restore(const QByteArray &state) override;

private:
    QMainWindow m_window;
    std::array<QDockWidget *, 3> m_first{};
    QList<QDockWidget *> m_left;
    int m_count = 0;
};
