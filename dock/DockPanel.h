// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QSharedPointer>
#include <QtWidgets/QFrame>

class QIcon;

namespace Norvane {

class DockPanelPrivate;

/*!
    The bar of a dock panel: one DockButton per page, numbered from 0 in order of addition. At most
    one button is checked; a click on the checked one leaves none checked.
*/
class DockPanel : public QFrame
{
    Q_OBJECT
    Q_DECLARE_PRIVATE(DockPanel)
    Q_DISABLE_COPY_MOVE(DockPanel)

public:
    explicit DockPanel(Qt::Orientation orientation, QWidget *parent = nullptr);
    ~DockPanel() override;

    //! Adds a button for a page with one view and returns its id. The first button is checked.
    int addButton(const QString &text, const QIcon &icon);

    //! Adds a second view to button \a index, and returns \a index, or -1 if there is none.
    int tabifyButton(int index, const QString &text, const QIcon &icon);

    void addSeparator();

    //! Checks button \a index and unchecks the others. Emits nothing, as setChecked().
    void setCurrentIndex(int index);
    void setChecked(int index, bool checked);
    void setButtonVisible(int index, bool visible);

    //! The id of the checked button, or -1.
    int checkedId() const;
    Qt::Orientation orientation() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    //! A click checked button \a index, or unchecked the current one (-1).
    void signalCurrentChanged(int index);

protected:
    DockPanel(DockPanelPrivate &dd, QWidget *parent);

    const QSharedPointer<DockPanelPrivate> d_ptr;
};

} // namespace Norvane
