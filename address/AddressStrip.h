// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtWidgets/QLineEdit>

#include <memory>

namespace Norvane {

class AddressStripPrivate;

/*!
    The current path as a row of crumbs, or, after a click beside the crumbs, as text to be edited.
    Return commits the text, losing the focus goes back to the crumbs. The strip also keeps the
    history of paths.

    While a text is edited, path() has "\" for every "/", and leaving the editor navigates to it:
    the path then differs from the stored one, so it becomes the newest entry of the history, and
    entries after the shown one are dropped. Whoever reads the history relies on both.
*/
class AddressStrip : public QLineEdit
{
    Q_OBJECT
    Q_DECLARE_PRIVATE(AddressStrip)
    Q_DISABLE_COPY_MOVE(AddressStrip)

public:
    explicit AddressStrip(QWidget *parent = nullptr);
    ~AddressStrip() override;

    QString path() const;

    /*!
        Navigates to \a path, which may have "\" or "/" between its names and at its end, and does
        not have to exist. Drops the history after the shown entry and appends \a path, unless it
        is the last entry already. The empty path and the current one are ignored; "/" alone leads
        to the empty path.
    */
    void setPath(const QString &path);

    /*!
        Empties the history and navigates to \a path. With the current path the history stays empty
        and nothing is emitted.
    */
    void resetPath(const QString &path);

    //! Shows the previous entry of the history; without one, nothing happens.
    void goBackward();

    //! Shows the next entry of the history; without one, nothing happens.
    void goForward();

    //! Navigates to the folder above.
    void goUp();

    //! Lets the user choose a folder in a dialog and navigates to it.
    void browse();

    //! Replaces the crumbs by an editor with \a text selected.
    void edit(const QString &text);

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    //! Emitted whenever crumbs were built, after they were.
    void signalPathChanged(const QString &path);

    //! Tells which ways lead on from the current path. A navigation tells it twice.
    void signalActionsEnabled(bool backward, bool forward, bool dirup);

public Q_SLOTS:
    //! Navigates as setPath() does, but the current path loses its crumbs until the next change.
    void slotPathChanged(const QString &path);

protected:
    AddressStrip(AddressStripPrivate &dd, QWidget *parent);

    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

    const std::unique_ptr<AddressStripPrivate> d_ptr;
};

} // namespace Norvane
