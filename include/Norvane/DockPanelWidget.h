// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <Norvane/NorvaneExport.h>

#include <QtCore/QObject>
#include <QtCore/QSharedPointer>

class QIcon;
class QMenu;
class QWidget;

namespace Norvane {

class DockPanelWidgetPrivate;

/*!
    One dock panel: a bar of buttons, panel(), and a stack of pages, stackedWidget(), which the
    DockContainer places apart from each other. Each button stands for one page, which shows one
    view or, tabified, two. A click on a button shows its page; a click on the current page's button
    minimizes the panel to its bar, and a click on any button brings it back.

    Pages are numbered from 0 in order of addition and are never removed. An index out of range is
    ignored.

    The bar and the stack belong to the widgets that they are put into.
*/
class NORVANE_EXPORT DockPanelWidget : public QObject
{
    Q_OBJECT
    Q_DECLARE_PRIVATE(DockPanelWidget)
    Q_DISABLE_COPY_MOVE(DockPanelWidget)

public:
    //! The side of the content that a panel is on.
    enum DockPanelDirection { LeftDirection, RightDirection, BottomDirection };
    Q_ENUM(DockPanelDirection)

    //! Makes a panel without pages. Its bar and its stack have no parent yet.
    explicit DockPanelWidget(DockPanelDirection direction, QWidget *parent = nullptr);
    ~DockPanelWidget() override;

    //! The bar of buttons.
    QWidget *panel() const;
    //! The stack of pages.
    QWidget *stackedWidget() const;

    /*!
        Adds a page with a view of \a widget and returns the page's index. The view owns the widget
        and deletes it when it goes. A null pointer makes an empty view; a widget that another view
        holds moves here.
    */
    int addView(QWidget *widget, const QIcon &icon, const QString &text);

    /*!
        Adds a second view to page \a index: below the first one in a side panel, right of it in the
        bottom panel. Returns its position in the page, 1, or -1 if the page does not exist or holds
        two views.
    */
    int tabifyView(int index, QWidget *widget, const QIcon &icon, const QString &text);

    //! Adds a line to the bar, after the buttons so far.
    void addSeparator();

    //! The number of pages.
    int count() const;

    //! The current page, or -1 while the stack is less than a pixel wide.
    int currentIndex() const;
    //! Shows page \a index and checks its button; emits at most signalCurrentIndexChanged().
    void setCurrentIndex(int index);

    //! Whether page \a index can be seen now, as only the current page can.
    bool isViewVisible(int index) const;

    /*!
        Shows or hides the button of page \a index. Hiding that of the page which is shown makes
        page 0 current, or page 1 if \a index is 0; showing one brings a minimized panel back at
        that page and emits signalMinimized(false).
    */
    void setViewVisible(int index, bool visible);

    //! The menu in the title of the view that holds \a widget, or null. The view owns it.
    QMenu *menu(QWidget *widget) const;

    //! Marks the panel as minimized or not, on its button too. Emits nothing and resizes nothing.
    void setMinimized(bool minimized);
    //! Whether the panel is minimized to its bar.
    bool isMinimized() const;

Q_SIGNALS:
    //! The user sent the panel to its bar, or brought it back.
    void signalMinimized(bool minimized);
    //! Another page was made current, by the user or by the application.
    void signalCurrentIndexChanged(int index);

protected:
    DockPanelWidget(DockPanelWidgetPrivate &dd, QWidget *parent);

    const QSharedPointer<DockPanelWidgetPrivate> d_ptr;
};

} // namespace Norvane
