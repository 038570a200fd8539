// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QSharedPointer>
#include <QtWidgets/QFrame>

class QMenu;

namespace Norvane {

class DockViewPrivate;

//! One widget of the application on a page of a dock panel, under a DockTitle.
class DockView : public QFrame
{
    Q_OBJECT
    Q_DECLARE_PRIVATE(DockView)
    Q_DISABLE_COPY_MOVE(DockView)

public:
    explicit DockView(QWidget *parent = nullptr);
    ~DockView() override;

    void setTitle(const QString &text);

    /*!
        Shows \a widget, which the view then owns, and deletes the one that was shown before.
       Nothing happens if \a widget is shown already; a null pointer leaves the view without a
       widget.
    */
    void setWidget(QWidget *widget);
    //! The widget, or null if none was set or it was deleted.
    QWidget *widget() const;

    QMenu *menu() const;
    //! The title bar's height in pixels.
    int titleHeight() const;
    void setCollapseButtonVisible(bool visible);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    //! "minimize to bar" was chosen.
    void signalMinimize();
    //! The collapse button was clicked. The view itself stays as it is.
    void signalCollapsed(bool collapsed);

protected:
    DockView(DockViewPrivate &dd, QWidget *parent);

    bool event(QEvent *event) override;

    const QSharedPointer<DockViewPrivate> d_ptr;
};

} // namespace Norvane
