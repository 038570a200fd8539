// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtWidgets/QTabBar>

#include <optional>

namespace Norvane {

/*!
    A bar of closable tabs that stays fast with a thousand of them. QTabBar makes a widget for each
    close button, and at every insertion it moves all of them and asks the style for the size of all
    tabs, ten times. Here the close buttons are painted, and a size is kept until what it depends on
    changes.
*/
class DockTabBar : public QTabBar
{
    Q_OBJECT

public:
    explicit DockTabBar(QWidget *parent = nullptr);

protected:
    QSize tabSizeHint(int index) const override;
    QSize minimumTabSizeHint(int index) const override;
    void initStyleOption(QStyleOptionTab *option, int index) const override;
    void tabInserted(int index) override;
    void tabLayoutChange() override;
    void tabRemoved(int index) override;

    bool event(QEvent *event) override;
    void changeEvent(QEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    // What the size of a tab depends on.
    struct Look
    {
        QString text;
        int state = -1;

        friend bool operator==(const Look &one, const Look &other) noexcept
        {
            return one.state == other.state && one.text == other.text;
        }
        friend bool operator!=(const Look &one, const Look &other) noexcept
        {
            return !(one == other);
        }
    };
    struct Sizes
    {
        QSize hint{0, 0};
        QSize minimum{0, 0};
    };
    struct Tab
    {
        bool isKnown() const { return look.state >= 0; }

        Look look;
        Sizes sizes;
    };

    struct CloseLook
    {
        ButtonPosition side;
        QSize size;
    };

    void beginLayout() const;
    void lookAtEach() const;
    Sizes lookAt(int index, const Look &look) const;
    Sizes sizesOf(int index) const;
    Look lookOf(int index) const;
    bool hasCloseButton(int index) const;
    //! Whether there is a widget that an application set, or that QTabBar made a moment ago.
    bool hasOwnButton(int index) const;
    const CloseLook &closeLook() const;
    void forgetSizes();
    QRect closeRect(int index) const;
    //! The tab whose close button is at \a position, or -1.
    int closeAt(QPoint position) const;
    void setHovered(int index);
    void paintCloseButton(QPainter *painter, int index) const;

    // Qt matches the rules of a close button with the parent of the widget that is painted.
    QWidget *m_closeButton;
    mutable QList<Tab> m_tabs;
    mutable int m_first = 0;
    mutable int m_last = -1;
    mutable int m_current = -1;
    mutable bool m_layingOut = false;
    mutable bool m_changing = false;
    mutable std::optional<CloseLook> m_closeLook;
    mutable bool m_measuring = false;
    int m_knownCount = 0;
    int m_hovered = -1;
    int m_pressed = -1;
    QPoint m_pressPosition;
    bool m_dragging = false;
};

} // namespace Norvane
