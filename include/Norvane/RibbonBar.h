// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <Norvane/NorvaneExport.h>

#include <QtWidgets/QFrame>

#include <memory>

namespace Norvane {

class RibbonBarPrivate;
class RibbonCorner;
class RibbonPage;

/*!
    A row of tabs over a stack that shows one RibbonPage at a time, 123 pixels high.

    \code
    auto *ribbon = new Norvane::RibbonBar;
    auto *home = ribbon->addPage(tr("Home"), false);
    home->addGroup(tr("File"))->addAction(openAction);
    \endcode

    A page's index is its position in order of addition, from 0; pages are never removed. A page
    is \e temporary if it belongs to some part of the application's content and comes and goes
    with it: its tab stands on a blue block, and hideTemporaryPages() hides all such pages at once.

    An index out of range and a page that is not in the bar are ignored by every operation.
*/
class NORVANE_EXPORT RibbonBar : public QFrame
{
    Q_OBJECT
    Q_DECLARE_PRIVATE(RibbonBar)
    Q_DISABLE_COPY_MOVE(RibbonBar)

public:
    //! Makes a bar without pages.
    explicit RibbonBar(QWidget *parent = nullptr);
    ~RibbonBar() override;

    /*!
        Adds \a page under a tab with the text \a title and returns its index; the bar becomes the
        page's owner. The tab is visible even if \a temporary is true.

        A page that is in this bar already keeps its place, and its index is returned; a null
        pointer or a page of another bar is ignored and -1 returned.
    */
    int addPage(const QString &title, RibbonPage *page, bool temporary);

    /*!
        Adds a new page under a tab with the text \a title and returns the page, which the bar
        owns. The tab is hidden at once if \a temporary is true. Page 0 is shown again, while the
        checked tab stays checked; signalCurrentPageChanged() is not emitted.
    */
    RibbonPage *addPage(const QString &title, bool temporary);

    //! Whether \a page is in this bar.
    bool contains(RibbonPage *page) const;
    //! The number of pages, hidden ones too.
    int count() const;

    //! The index of \a page, or -1.
    int indexOf(RibbonPage *page) const;

    //! The page at \a index, or null.
    RibbonPage *page(int index) const;

    //! The page that is shown, or null in an empty bar.
    RibbonPage *currentPage() const;

    //! The area right of the tabs.
    RibbonCorner *corner() const;

    //! Shows page \a index and checks its tab. Does not emit signalCurrentPageChanged().
    void setCurrentIndex(int index);

    //! \overload
    void setCurrentPage(RibbonPage *page);

    /*!
        Hides page \a index and its tab. The current page is not changed: hiding the page that is
        shown leaves the stack empty until another is made current.

        The bound for a page is the number of \e different titles: of pages that share a title the
        last ones keep their widget as it is.
    */
    void hidePage(int index);

    //! Shows page \a index and its tab, with the bound of hidePage(). Does not make it current.
    void showPage(int index);

    //! hidePage() if \a hidden is true, else showPage().
    void setPageHidden(int index, bool hidden);
    //! showPage() if \a visible is true, else hidePage().
    void setPageVisible(int index, bool visible);

    //! Enables or disables the tab \a index; the page itself stays as it is.
    void setPageEnabled(int index, bool enabled);

    //! Hides every temporary page and its tab, whichever is current.
    void hideTemporaryPages();

Q_SIGNALS:
    //! Emitted when the user clicks the tab \a index, and by nothing else.
    void signalCurrentPageChanged(int index);

protected:
    RibbonBar(RibbonBarPrivate &dd, QWidget *parent);

    const std::unique_ptr<RibbonBarPrivate> d_ptr;
};

} // namespace Norvane
