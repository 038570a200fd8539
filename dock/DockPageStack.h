// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtWidgets/QStackedWidget>

#include <optional>

namespace Norvane {

/*!
    The pages of a dock panel. It remembers how large they want to be, which splitters ask several
    times at every step of a handle and which Qt's stack has all pages measure again each time. What
    a hidden page wants in the meantime counts when it is shown.
*/
class DockPageStack : public QStackedWidget
{
    Q_OBJECT

public:
    explicit DockPageStack(QWidget *parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent *event) override;

private:
    mutable std::optional<QSize> m_hint;
    mutable std::optional<QSize> m_minimum;
};

} // namespace Norvane
