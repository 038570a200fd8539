// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtWidgets/QFrame>

#include <memory>

namespace Norvane {

class RibbonTabBarPrivate;

//! The row of page tabs of a RibbonBar, numbered from 0 in order of addition.
class RibbonTabBar : public QFrame
{
    Q_OBJECT
    Q_DECLARE_PRIVATE(RibbonTabBar)
    Q_DISABLE_COPY_MOVE(RibbonTabBar)

public:
    explicit RibbonTabBar(QWidget *parent = nullptr);
    ~RibbonTabBar() override;

    //! Adds a tab at the right end and returns its index. The first tab added is checked.
    int addTab(const QString &text, bool temporary);
    int count() const;

    void hideTab(int index);
    void showTab(int index);
    void setTabEnabled(int index, bool enabled);

    //! Checks the tab \a index without emitting idClicked().
    void setCurrentIndex(int index);
    bool isTabTemporary(int index) const;

Q_SIGNALS:
    //! Emitted when the user clicks the tab \a index.
    void idClicked(int index);

protected:
    RibbonTabBar(RibbonTabBarPrivate &dd, QWidget *parent);

    void paintEvent(QPaintEvent *event) override;

    const std::unique_ptr<RibbonTabBarPrivate> d_ptr;
};

} // namespace Norvane
