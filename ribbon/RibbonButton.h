// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtWidgets/QToolButton>

#include <memory>

namespace Norvane {

class RibbonButtonPrivate;

/*!
    The button that stands for one action in a group. Its tool button style makes it large (text
    under the icon), small (text beside the icon) or icon-only; it measures its action's text when
    it is resized, and paints itself.
*/
class RibbonButton : public QToolButton
{
    Q_OBJECT
    Q_DECLARE_PRIVATE(RibbonButton)
    Q_DISABLE_COPY_MOVE(RibbonButton)

public:
    explicit RibbonButton(QWidget *parent = nullptr);
    ~RibbonButton() override;

    //! Makes \a action the default action; the button follows its visibility and its menu.
    void bindAction(QAction *action);

    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    RibbonButton(RibbonButtonPrivate &dd, QWidget *parent);

    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void enterEvent(QEnterEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

    const std::unique_ptr<RibbonButtonPrivate> d_ptr;
};

} // namespace Norvane
