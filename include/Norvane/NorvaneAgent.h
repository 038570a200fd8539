// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <Norvane/NorvaneExport.h>

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QSharedPointer>

QT_BEGIN_NAMESPACE
class QDialog;
class QMainWindow;
class QWidget;
QT_END_NAMESPACE

namespace Norvane {
class AddressBar;
class DockContainer;
class RibbonBar;
class RibbonPage;
} // namespace Norvane

class NorvaneAgentPrivate;

/*!
    Makes a framed window of a plain one: a ribbon bar over an address bar and docks in a main
    window, or a ribbon bar over the content of a dialog.

    \code
    QMainWindow window;
    NorvaneAgent agent;
    agent.setup(&window, true, true);
    auto *home = agent.ribbonBar()->addPage(QObject::tr("Home"), false);
    \endcode

    The agent keeps the ribbon in step with the sections of the content: whenever the current
    section changes it hides all temporary pages and shows those that are bound to the section.

    The library's look is light: making an agent asks the whole application for the light colour
    scheme, and a setup replaces the style sheet of the application. The application object must
    exist before the agent is made.

    The window owns everything that a setup puts into it, and an agent that is destroyed leaves it
    as it is. The ribbon bar of an agent without a setup is the caller's.
*/
class NORVANE_EXPORT NorvaneAgent : public QObject
{
    Q_OBJECT
    Q_DECLARE_PRIVATE(NorvaneAgent)
    Q_DISABLE_COPY_MOVE(NorvaneAgent)

public:
    //! Makes the ribbon bar, and asks the application for the light colour scheme.
    explicit NorvaneAgent(QObject *parent = nullptr);
    ~NorvaneAgent() override;

    /*!
        Gives \a window a new central widget with the ribbon bar, below it the address bar if
        \a withAddressBar is true, and a dock container. If \a withDockPanels is true the container
        takes over the window's status bar, otherwise the bars of its three panels are hidden.
        The style sheet of the application becomes that of \a window followed by the library's.

        Only the first call of either overload does anything, even if its window is null.
    */
    void setup(QMainWindow *window, bool withAddressBar, bool withDockPanels);

    /*!
        Lays \a dialog out: the ribbon bar, a grey line and \a content, which may be null. The
        style sheet of the application becomes that of \a dialog followed by the library's.

        Only the first call of either overload does anything, even if its dialog is null or has a
        layout already, which is kept.
    */
    void setup(QDialog *dialog, QWidget *content);

    /*!
        Binds \a pages to \a section of the content, instead of those that were bound before.
        Returns false, and does nothing, if \a pages is empty or there is no dock container.

        The pages are shown from the next change to the section on, and the first of them becomes
        the current one; if the first one is null the current page stays. Pages that are not in the
        ribbon bar, or were deleted, are passed over. A section without pages selects page 0.
    */
    bool bindRibbonPagesAndDockPartition(const QList<Norvane::RibbonPage *> &pages, int section);

    //! Never null before the window is destroyed.
    Norvane::RibbonBar *ribbonBar() const;

    //! Null if the setup made none, and after the window was destroyed.
    Norvane::AddressBar *addressBar() const;

    //! Null before the setup of a main window, for a dialog, and after the window was destroyed.
    Norvane::DockContainer *dockContainer() const;

protected:
    NorvaneAgent(NorvaneAgentPrivate &dd, QObject *parent);

    const QSharedPointer<NorvaneAgentPrivate> d_ptr;
};
