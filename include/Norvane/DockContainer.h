// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <Norvane/NorvaneExport.h>

#include <QtCore/QSharedPointer>
#include <QtWidgets/QFrame>

class QMainWindow;

namespace Norvane {

class DockContainerPrivate;
class DockContentWidget;
class DockPanelWidget;

/*!
    Dock panels on the left, on the right and at the bottom of a DockContentWidget.

    \code
    auto *docks = new Norvane::DockContainer;
    docks->panelWidget(Norvane::DockContainer::LeftDockArea)->addView(files, icon, tr("Files"));
    const int texts = docks->contentWidget()->addSection(tr("Texts"));
    docks->contentWidget()->addTab(texts, new QTextEdit, tr("readme.txt"));
    \endcode

    A panel that is minimized to its bar gives its place to the centre and gets it back when it is
    restored. The content is hidden until it has a tab.
*/
class NORVANE_EXPORT DockContainer : public QFrame
{
    Q_OBJECT
    Q_DECLARE_PRIVATE(DockContainer)
    Q_DISABLE_COPY_MOVE(DockContainer)

public:
    //! The places of the panels.
    enum DockArea { LeftDockArea, RightDockArea, BottomDockArea };
    Q_ENUM(DockArea)

    //! Makes a container with three empty panels and an empty, hidden content.
    explicit DockContainer(QWidget *parent = nullptr);
    ~DockContainer() override;

    //! The panel at \a area. Any value but 0 and 2 gives the right one.
    DockPanelWidget *panelWidget(DockArea area) const;
    //! The centre.
    DockContentWidget *contentWidget() const;

    /*!
        Gives \a window a status bar that carries the bottom panel's bar, lined up with the content.
        The window owns the status bar and deletes the one that it had. Nothing happens if \a window
        is null or has it already; another window takes the status bar over.
    */
    void setupMainWindow(QMainWindow *window);

    //! Lets the panels and the content be dragged to nothing, or not. The centre never can be.
    void setPanelCollapsible(bool collapsible);

    //! Shows or hides the panes of all three panels; their bars stay.
    void setAllDockViewVisible(bool visible);

    //! Lines the bottom bar in the status bar up with the content.
    void updateState();

    /*!
        The sizes of the panes, for restoreState(). Only the sizes that are known are saved, not
        which views there are.
    */
    QByteArray saveState() const;

    /*!
        Restores what saveState() returned. A state that saveState() cannot have returned is ignored
        whole, and so is one with the byte 0x7C in a size (a width of 124 or 380 pixels, say): that
        byte separates the parts of a state. The height of the bottom panel is remembered and not
        applied.
    */
    void restoreState(const QByteArray &state);

protected:
    DockContainer(DockContainerPrivate &dd, QWidget *parent);

    bool eventFilter(QObject *watched, QEvent *event) override;
    void showEvent(QShowEvent *event) override;

    const QSharedPointer<DockContainerPrivate> d_ptr;
};

} // namespace Norvane
