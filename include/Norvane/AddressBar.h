// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <Norvane/NorvaneExport.h>

#include <QtWidgets/QFrame>

#include <memory>

class QAction;
class QIcon;
class QTreeView;

namespace Norvane {

class AddressBarPrivate;

/*!
    A folder's path as a row of crumbs with menus of their sub-folders, behind buttons that lead
    backward, forward, up and to a dialog. A click beside the crumbs lets the user edit the path as
    text; the context menu cuts, copies and pastes it. treeView() shows what is in the folder.

    \code
    auto *bar = new Norvane::AddressBar;
    bar->addSuffix(QStringLiteral("txt"));
    connect(bar, &Norvane::AddressBar::signalFileOpen, this, &MainWindow::open);
    splitter->addWidget(bar->treeView());
    \endcode

    A new bar shows the user's home folder.

    Paths have "/" between their names and none at the end; a bare drive is "C:/". Where paths start
    with "/", the folder "/" itself is the empty path.
*/
class NORVANE_EXPORT AddressBar : public QFrame
{
    Q_OBJECT
    Q_DECLARE_PRIVATE(AddressBar)
    Q_DISABLE_COPY_MOVE(AddressBar)

public:
    //! The buttons of the bar, from left to right.
    enum AddressButton {
        Backward,
        Forward,
        DirUp,
        Browse,
    };

    //! Makes a bar that shows the home folder.
    explicit AddressBar(QWidget *parent = nullptr);

    //! Deletes the tree too if it still has no parent.
    ~AddressBar() override;

    //! The shown path. While the user edits it, it has "\" for every "/".
    QString path() const;

    /*!
        Shows \a path and adds it to the history; entries after the shown one are dropped. Names may
        be separated by "/" or "\", also at the end; "/" alone leads to the empty path. The path
        does not have to exist. The empty path and the shown one are ignored, without a signal.
    */
    void setPath(const QString &path);

    /*!
        Empties the history, then does the same as setPath(). With the shown path nothing is
        emitted, and the history stays empty until the next change.
    */
    void resetPath(const QString &path);

    //! Another value than those of AddressButton is ignored.
    void setButtonIcon(AddressButton button, const QIcon &icon);

    /*!
        Adds \a suffix, without a dot, to those of the files that the application opens itself: they
        are announced by signalFileOpen(). Suffixes differ by case, and each is kept once.

        The tree takes the suffixes over with each change that is made after the first call of
        treeView(). Suffixes from before reach it with the first such change.
    */
    void addSuffix(const QString &suffix);

    //! Removes \a suffix; one that was not added is ignored.
    void removeSuffix(const QString &suffix);

    //! Removes all suffixes.
    void clearSuffixs();

    /*!
        The view of the shown folder, which is made by the first call. It follows the bar, and the
        bar follows it when the user enters a folder.

        It has no parent: the caller puts it somewhere and becomes its owner. As long as it has no
        parent it belongs to the bar.
    */
    QTreeView *treeView();

    /*!
        Adds \a action to the "New" menu of the tree, which is made if there is none yet. The action
        stays the caller's; a null pointer is ignored.
    */
    void addNewAction(QAction *action);

    /*!
        Where an action of the "New" menu is meant to act: the path of the tree's current item if
        something is selected, else the folder that the tree shows, or showed until it was deleted.
        The tree is made if there is none yet.
    */
    QString actionTriggeredPath();

Q_SIGNALS:
    //! Emitted when the user opens a file in the tree that has one of the suffixes.
    void signalFileOpen(const QString &path);

    /*!
        Emitted after each change of the path, whoever made it, and when the user leaves the editor,
        even without a change. Whoever deletes the bar in answer to it uses deleteLater(): Qt is not
        done yet with an editor that is losing the focus.
    */
    void signalPathChanged(const QString &path);

protected:
    AddressBar(AddressBarPrivate &dd, QWidget *parent);

    const std::unique_ptr<AddressBarPrivate> d_ptr;
};

} // namespace Norvane
