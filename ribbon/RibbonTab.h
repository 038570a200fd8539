// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtWidgets/QPushButton>

#include <memory>

namespace Norvane {

class RibbonTabPrivate;

//! One tab of the RibbonTabBar: a checkable button that knows whether its page is temporary.
class RibbonTab : public QPushButton
{
    Q_OBJECT
    Q_DECLARE_PRIVATE(RibbonTab)
    Q_DISABLE_COPY_MOVE(RibbonTab)

public:
    explicit RibbonTab(const QString &text, QWidget *parent = nullptr);
    ~RibbonTab() override;

    bool isTemporary() const;
    void setTemporary(bool temporary);

    //! As wide as the text and 10 pixels on each side of it.
    QSize sizeHint() const override;

protected:
    RibbonTab(RibbonTabPrivate &dd, const QString &text, QWidget *parent);

    const std::unique_ptr<RibbonTabPrivate> d_ptr;
};

} // namespace Norvane
