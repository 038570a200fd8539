// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QSharedPointer>
#include <QtCore/QStringList>
#include <QtGui/QIcon>
#include <QtWidgets/QPushButton>

namespace Norvane {

class DockButtonPrivate;

/*!
    A button of a DockPanel. Shows the icons of its page's views one above the other, greyed while
    it is not checked; its tool tip is the text of the view under the mouse.
*/
class DockButton : public QPushButton
{
    Q_OBJECT
    Q_DECLARE_PRIVATE(DockButton)
    Q_DISABLE_COPY_MOVE(DockButton)

public:
    explicit DockButton(Qt::Orientation orientation, QWidget *parent = nullptr);
    ~DockButton() override;

    void setIcons(const QList<QIcon> &icons);
    QList<QIcon> icons() const;
    void setTexts(const QStringList &texts);
    QStringList texts() const;

protected:
    DockButton(DockButtonPrivate &dd, QWidget *parent);

    void mouseMoveEvent(QMouseEvent *event) override;

    const QSharedPointer<DockButtonPrivate> d_ptr;
};

} // namespace Norvane
