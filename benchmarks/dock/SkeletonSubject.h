// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "Subject.h"

#include <QtWidgets/QMainWindow>

#include <array>

class QBoxLayout;
class QSplitter;
class QStackedWidget;

// The same splitters, stacks, bars and tabs, of Qt's classes alone and without a style sheet.
class SkeletonSubject : public Subject
{
public:
    SkeletonSubject();

    QWidget *window() override { return &m_window; }
    void addView(int panel, QWidget *widget) override;
    void setMinimized(bool minimized) override;
    QByteArray save() const override;
    void restore(const QByteArray &state) override;

private:
    QMainWindow m_window;
    QSplitter *m_outer;
    std::array<QBoxLayout *, 3> m_bars;
    std::array<QStackedWidget *, 3> m_stacks;
    int m_width = 0;
};
