// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtWidgets/QToolButton>

namespace Norvane {

/*!
    A tool button that is polished when it is painted for the first time.

    Finding the rules of a style sheet takes longer than all else that a button does before it is
    painted, and of a large catalogue only a few rows are ever seen. A sheet that gives such buttons
    another size must select on a property: the size of others is asked for before.
*/
class LazyToolButton : public QToolButton
{
public:
    using QToolButton::QToolButton;

    //! Polishes the button if it is not polished yet.
    void polish();

    //! Does not ask the style if the size is fixed.
    QSize sizeHint() const override;

protected:
    bool event(QEvent *event) override;
};

} // namespace Norvane
