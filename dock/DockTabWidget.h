// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtWidgets/QTabWidget>

namespace Norvane {

//! The tabs of one section of a DockContentWidget.
class DockTabWidget : public QTabWidget
{
    Q_OBJECT

public:
    explicit DockTabWidget(QWidget *parent = nullptr);

Q_SIGNALS:
    //! A tab was removed, or its widget was deleted.
    void removed();

protected:
    void tabRemoved(int index) override;
};

} // namespace Norvane
