// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QObject>

class QWidget;

namespace Norvane {

/*!
    Keeps the widgets of a page from being polished before the page is seen for the first time.

    Polishing is nearly all that a ribbon under a style sheet costs, and most of its pages are not
    looked at for long, if ever. What would polish a widget of a hidden page are the request that
    every new widget posts to itself, swallowed here; the window's show, which descends into every
    child and stops at one that is polished already, as a page is before it gets its first group;
    and layouts that ask for size hints, which the bar's layout does not do with its pages.
*/
class DeferredPolish : public QObject
{
    Q_OBJECT

public:
    //! Watches over \a page, which owns it, until \a page is shown.
    explicit DeferredPolish(QWidget *page);

    /*!
        Makes \a parent the parent of \a widget, a new one of ours that was made without a parent.
        A frame or tool button asks its style at once when it is made under a style sheet or comes
        under one; as long as \a parent is not visible nobody needs the answer, which costs as
        much as polishing and is kept for every widget.
    */
    static void adopt(QWidget *widget, QWidget *parent);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void watch(QObject *widget);
    void finish();

    QWidget *const m_page;
    bool m_styleChanged = false;
};

} // namespace Norvane
