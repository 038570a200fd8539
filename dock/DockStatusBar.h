// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtWidgets/QStatusBar>

#include <memory>

namespace Norvane {

class DockStatusBarPrivate;

//! A status bar that carries the bottom dock panel's bar, lined up with the content above it.
class DockStatusBar : public QStatusBar
{
    Q_OBJECT
    Q_DECLARE_PRIVATE(DockStatusBar)
    Q_DISABLE_COPY_MOVE(DockStatusBar)

public:
    explicit DockStatusBar(QWidget *parent = nullptr);
    ~DockStatusBar() override;

    //! Takes \a panel over as it is: its height now is the height that it has in the bar.
    void setPanel(QWidget *panel);

    /*!
        Places the panel's left edge at \a x, in the bar's coordinates, or further left where it
        would stick out on the right. It is kept there when the bar's size changes.
    */
    void setPanelOffset(int x);

    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    DockStatusBar(DockStatusBarPrivate &dd, QWidget *parent);

    const std::unique_ptr<DockStatusBarPrivate> d_ptr;
};

} // namespace Norvane
