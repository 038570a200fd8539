// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtWidgets/QToolButton>

#include <memory>

namespace Norvane {

class AddressEntryPrivate;

/*!
    One crumb of the address strip: the name of a folder, and an arrow if there are folders in it.
    The name and each folder of the arrow's menu can be chosen. The crumb of the empty path has no
    name and offers the drives, or the folders in "/" where there are no drives.

    A crumb takes its fixed size when it is resized, so its text and path are set before it is
    shown.
*/
class AddressEntry : public QToolButton
{
    Q_OBJECT
    Q_DECLARE_PRIVATE(AddressEntry)
    Q_DISABLE_COPY_MOVE(AddressEntry)

public:
    explicit AddressEntry(QWidget *parent = nullptr);
    ~AddressEntry() override;

    //! Sets the stored path and reads the folders in it, once. It is called once.
    void setPath(const QString &path);

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    //! Emitted with the crumb's own path, or with that of the chosen folder in it.
    void signalClicked(const QString &path);

protected:
    AddressEntry(AddressEntryPrivate &dd, QWidget *parent);

    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void enterEvent(QEnterEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

    const std::unique_ptr<AddressEntryPrivate> d_ptr;
};

} // namespace Norvane
