// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QObject>

#include <memory>

class QWidget;

namespace Norvane {

/*!
    Keeps the widgets of a page from being polished before the page is seen for the first time.

    Polishing is nearly all that a ribbon or a dock panel under a style sheet costs, and most of
    their pages are not looked at for long, if ever. What would polish a widget of a hidden page are
    the request that every new widget posts to itself, swallowed here; the window's show, which
    descends into every child and stops at one that is polished already, as a page is before it gets
    its first child; and layouts that ask for size hints, which those of the pages do not.
*/
class DeferredPolish : public QObject
{
    Q_OBJECT

public:
    //! Watches over \a page, which owns it, until \a page is shown.
    explicit DeferredPolish(QWidget *page);
    ~DeferredPolish() override;

    /*!
        Returns where a new widget that will be a child of \a parent is to be made: outside of any
        style sheet when \a parent is on a page that was never shown, else in \a parent itself.
        Frames and tool buttons ask their style when they are made. Under a sheet that costs as much
        as polishing, and Qt keeps the answer, which takes more memory than the widget.
    */
    static QWidget *nursery(QWidget *parent);
    //! Spares new children of \a parent that are hidden the request that they post to themselves.
    static void putOffHiddenChildren(const QWidget *parent);
    //! Brings \a widget from the nursery to \a parent.
    static void adopt(QWidget *widget, QWidget *parent);

    //! Tells whether \a widget is on a page that was never shown.
    static bool isUnseen(const QWidget *widget);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void finish();

    QWidget *const m_page;
    std::unique_ptr<QWidget> m_nursery;
};

} // namespace Norvane
