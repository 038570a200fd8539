// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "LazyToolButton.h"

#include <memory>

namespace Norvane {

class RibbonGalleryItemPrivate;

/*!
    One action of a gallery: a button with a marker in its top left corner, a star that tells
    whether the item is collected and collects it when it is clicked.

    A collected item always shows the filled marker. Another one shows the hollow marker while the
    mouse is over it, if collecting is enabled, which at first it is not.
*/
class RibbonGalleryItem : public LazyToolButton
{
    Q_OBJECT
    Q_DECLARE_PRIVATE(RibbonGalleryItem)
    Q_DISABLE_COPY_MOVE(RibbonGalleryItem)

public:
    //! The item does not own \a action, which may be null or be deleted first.
    explicit RibbonGalleryItem(QAction *action, QWidget *parent = nullptr);
    ~RibbonGalleryItem() override;

    //! Disabling hides the marker at once, also that of a collected item.
    void setCollectEnabled(bool enabled);

    bool isCollected() const;

    //! Emits signalCollected(), even if \a collected is what the item is already.
    void setCollected(bool collected);

Q_SIGNALS:
    //! The last thing that the item does when its marker is clicked: it may be deleted then.
    void signalCollected(bool collect);

protected:
    RibbonGalleryItem(RibbonGalleryItemPrivate &dd, QAction *action, QWidget *parent);

    void enterEvent(QEnterEvent *event) override;
    void leaveEvent(QEvent *event) override;

    const std::unique_ptr<RibbonGalleryItemPrivate> d_ptr;
};

} // namespace Norvane
