// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtWidgets/QLayout>

#include <memory>

namespace Norvane {

class RibbonGalleryLayoutPrivate;

/*!
    Arranges items of their preferred sizes in rows from left to right, in order of addition. An
    item that does not fit begins a new row; the first item of a row stays, however wide it is.

    The layout owns its items, not their widgets.
*/
class RibbonGalleryLayout : public QLayout
{
    Q_OBJECT
    Q_DECLARE_PRIVATE(RibbonGalleryLayout)
    Q_DISABLE_COPY_MOVE(RibbonGalleryLayout)

public:
    /*!
        Sets each of the four margins to \a margin. A negative spacing leaves the distance between
        items, or rows, to the style.
    */
    RibbonGalleryLayout(QWidget *parent, int margin, int hSpacing, int vSpacing);
    ~RibbonGalleryLayout() override;

    void addItem(QLayoutItem *item) override;
    //! The item at \a index, or null.
    QLayoutItem *itemAt(int index) const override;
    //! Removes the item at \a index, or nothing, and returns it to the caller, who owns it then.
    QLayoutItem *takeAt(int index) override;
    int count() const override;

    QSize sizeHint() const override;
    //! The size of the largest item, with the margins.
    QSize minimumSize() const override;
    Qt::Orientations expandingDirections() const override;
    void setGeometry(const QRect &rect) override;
    void invalidate() override;
    bool hasHeightForWidth() const override;
    int heightForWidth(int width) const override;

protected:
    RibbonGalleryLayout(RibbonGalleryLayoutPrivate &dd, QWidget *parent, int margin, int hSpacing,
                        int vSpacing);

    const std::unique_ptr<RibbonGalleryLayoutPrivate> d_ptr;
};

} // namespace Norvane
