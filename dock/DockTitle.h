// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QSharedPointer>
#include <QtWidgets/QFrame>

class QMenu;

namespace Norvane {

class DockTitlePrivate;

//! The title bar of a DockView: a collapse button, the view's name, and a button for its menu.
class DockTitle : public QFrame
{
    Q_OBJECT
    Q_DECLARE_PRIVATE(DockTitle)
    Q_DISABLE_COPY_MOVE(DockTitle)

public:
    explicit DockTitle(QWidget *parent = nullptr);
    ~DockTitle() override;

    void setText(const QString &text);
    //! The menu, which the title owns. Its first action is "minimize to bar".
    QMenu *menu() const;
    //! The collapse button is hidden until it is shown with this.
    void setCollapseButtonVisible(bool visible);

Q_SIGNALS:
    //! The collapse button was clicked and is checked now if \a collapsed is true.
    void signalCollapsed(bool collapsed);
    //! "minimize to bar" was chosen.
    void signalMinimize();

protected:
    DockTitle(DockTitlePrivate &dd, QWidget *parent);

    const QSharedPointer<DockTitlePrivate> d_ptr;
};

} // namespace Norvane
