// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "DockPanel.h"

#include <QtCore/QList>
#include <QtCore/QSize>

class QBoxLayout;
class QButtonGroup;

namespace Norvane {

class DockPanelPrivate
{
    Q_DECLARE_PUBLIC(DockPanel)

public:
    explicit DockPanelPrivate(Qt::Orientation orientation);
    virtual ~DockPanelPrivate();

    QBoxLayout *layout() const;
    QSize buttonSize(int views) const;
    void append(QWidget *widget);
    void onClicked(int id);

    QButtonGroup *buttonGroup;
    QSize iconSize{24, 24};
    int iconGap = 3;
    int buttonPadding = 3;
    Qt::Orientation orientation;
    QList<int> viewCounts;
    DockPanel *q_ptr = nullptr;
};

} // namespace Norvane
