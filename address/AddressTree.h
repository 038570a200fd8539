// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtWidgets/QTreeView>

#include <memory>

class QAction;

namespace Norvane {

class AddressTreePrivate;

/*!
    The content of the address bar's folder: opens, copies, moves, renames, deletes and creates
    files and folders with a context menu, with keys and by dragging. Hidden entries are not listed.

    What it does to the user's files, without asking first:
    - Delete moves the selected entries to the trash. Where the trash does not take them they are
      deleted for good.
    - A cut removes its source after the paste, in the same way, even if the copy failed or is not
      complete. Hidden entries of a folder are not in its copy, nor is what cannot be read.
    - What a paste or a drop replaces is removed in the same way, before the copy is tried.
    - A drop moves from the same drive and copies from another. Where paths begin with "/", the
      first three characters of the two paths tell whether the drive is the same. After a drop the
      clipboard holds what was dropped, or nothing after a move.
    - Symbolic links are copied as what they lead to and removed as links.
*/
class AddressTree : public QTreeView
{
    Q_OBJECT
    Q_DECLARE_PRIVATE(AddressTree)
    Q_DISABLE_COPY_MOVE(AddressTree)

public:
    explicit AddressTree(QWidget *parent = nullptr);
    ~AddressTree() override;

    //! Files with one of these suffixes, in the same case, are reported with signalFileOpen().
    void setSuffixes(const QStringList &suffixes);

    //! Appends \a action to the "New" menu. Null is ignored.
    void addNewAction(QAction *action);

    //! The current entry's path if anything is selected, or else that of the shown folder.
    QString targetPath() const;

    //! The paths of the selected entries in the order of selection.
    QStringList selectedPaths() const;

Q_SIGNALS:
    //! A file with one of the suffixes was double-clicked.
    void signalFileOpen(const QString &path);

    //! A folder was double-clicked. The tree shows it when slotPathChanged() tells it to.
    void signalPathChanged(const QString &path);

public Q_SLOTS:
    /*!
        Shows the folder with the stored path \a path. If that is the folder above the one shown,
        the latter is selected, otherwise nothing is. If it does not exist, the tree still shows
        what it did.
    */
    void slotPathChanged(const QString &path);

protected:
    AddressTree(AddressTreePrivate &dd, QWidget *parent);

    void keyPressEvent(QKeyEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dropEvent(QDropEvent *event) override;

    const std::unique_ptr<AddressTreePrivate> d_ptr;
};

} // namespace Norvane
