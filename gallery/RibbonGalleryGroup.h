// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtWidgets/QFrame>

#include <memory>

class QAction;
class QIcon;

namespace Norvane {

class RibbonGalleryGroupPrivate;
class RibbonGalleryItem;

//! A titled section of a RibbonGalleryPopup: a title bar over items that flow in rows.
class RibbonGalleryGroup : public QFrame
{
    Q_OBJECT
    Q_DECLARE_PRIVATE(RibbonGalleryGroup)
    Q_DISABLE_COPY_MOVE(RibbonGalleryGroup)

public:
    //! Where the group stands in the popup, which decides where it can be moved to.
    enum Position {
        Fixed, //!< Apart from the others: not to be moved.
        Top,
        Middle,
        Bottom
    };
    Q_ENUM(Position)

    RibbonGalleryGroup(const QIcon &icon, const QString &title, QWidget *parent = nullptr);
    ~RibbonGalleryGroup() override;

    //! Adds an item for \a action at the end and returns its index. The group owns the item.
    int addItem(QAction *action, const QSize &iconSize, const QSize &fixedSize,
                bool collectEnabled);
    int count() const;
    //! The item at \a index, or null.
    RibbonGalleryItem *item(int index) const;

    //! Tells whether the item at \a index is collected; false if there is none.
    bool isItemCollected(int index) const;
    /*!
        Collects the item at \a index, or un-collects it, and returns whether there is one. Emits
        the item's signalCollected(), even if nothing changes.
    */
    bool setItemCollected(int index, bool collected);
    //! Does the same with the first item of \a action.
    bool setItemCollected(QAction *action, bool collected);
    //! Deletes the first item of \a action and returns whether there was one.
    bool removeItem(QAction *action);
    //! Shows or hides the item at \a index, which must exist.
    void setItemVisible(int index, bool visible);

    //! Shows the buttons that move the group away from \a position, and hides the others.
    void setPosition(Position position);
    QString title() const;
    /*!
        Shows the items whose text contains \a text and hides the others; the group is shown if
        there is one, which is returned, and hidden otherwise. If many items change, their frame is
        left hidden: showItems() follows when the group has its place.
    */
    bool filter(const QString &text);
    /*!
        Shows the frame with the items, which get their places first, or hides it; it keeps its
        room then, and they stay what they are, hidden or not. The frame of few items and one that
        has the focus is always shown.
    */
    void showItems(bool show);
    //! Tells whether the items that are not hidden are shown with the group.
    bool showsItems() const;
    //! Has the items laid out again when the event loop is reached.
    void updateLayout();

Q_SIGNALS:
    //! Never emitted: who wants to know connects to the items.
    void signalCollect(Norvane::RibbonGalleryItem *item, bool collected);
    //! A button was clicked that asks for the group to be moved to \a position.
    void signalPositionChange(Norvane::RibbonGalleryGroup::Position position);

protected:
    RibbonGalleryGroup(RibbonGalleryGroupPrivate &dd, const QIcon &icon, const QString &title,
                       QWidget *parent);

    const std::unique_ptr<RibbonGalleryGroupPrivate> d_ptr;
};

} // namespace Norvane
