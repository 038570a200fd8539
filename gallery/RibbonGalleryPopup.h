// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtWidgets/QScrollArea>

#include <memory>

class QAction;

namespace Norvane {

class RibbonGalleryPopupPrivate;

/*!
    The whole catalogue of a RibbonGallery: a search field over the group of collected items and
    the gallery's own groups. The popup stands in a menu, which its close button closes.

    Its height is an estimate from the number of items: 98 pixels for a group's title and its first
    row, 74 for each further row, with as many items in a row as the gallery displays.
*/
class RibbonGalleryPopup : public QScrollArea
{
    Q_OBJECT
    Q_DECLARE_PRIVATE(RibbonGalleryPopup)
    Q_DISABLE_COPY_MOVE(RibbonGalleryPopup)

public:
    //! What the popup is wider than its gallery when it has to scroll.
    static constexpr int ScrollBarWidth = 17;

    explicit RibbonGalleryPopup(QWidget *parent = nullptr);
    ~RibbonGalleryPopup() override;

    //! Adds a group at the end and returns its index.
    int addGroup(const QString &title, const QIcon &icon);
    //! The index of the first group with exactly this title, or -1.
    int indexOfGroup(const QString &title) const;

    /*!
        Adds an item for \a action to group \a group and returns its index there, or -1 if there is
        no such group or no action. The popup heeds the collecting of the item only if
        \a collectEnabled is true.
    */
    int addItem(int group, QAction *action, const QSize &iconSize, const QSize &actionSize,
                bool collectEnabled);
    //! Returns whether there is such an item.
    bool setItemCollected(int group, int item, bool collected);

    //! Sets whether a search covers the collected items.
    void setCollectEnabled(bool enabled);
    //! A count below 1 counts as 1 for the height.
    void setDisplayCount(int count);
    //! Sets the sizes of items that are put among the collected ones from now on.
    void setCollectedSizes(const QSize &iconSize, const QSize &actionSize);

    /*!
        The first actions of the catalogue, as many as the gallery displays: those of collected
        items, then those of all other items.
    */
    QList<QAction *> displayedActions() const;

    //! The height of the visible groups, or of all groups, with the search field.
    int computedHeight(bool countHiddenGroups);

    /*!
        Makes the content \a contentHeight pixels high and as wide as the popup without its scroll
        bar, which it has if the content is higher.
    */
    void sizeContent(int contentHeight);

    //! Lays out the content and shows the items that are near to what is seen of it.
    void arrange();

    //! "AAAA" if the display count is 0, else nothing.
    QByteArray saveState() const;

Q_SIGNALS:
    //! A group was moved.
    void signalGroupUpdated();
    //! Emitted also if \a height is what it was.
    void signalHeightChanged(int height);
    //! Emitted when the event loop is reached after the popup was hidden.
    void signalUpdateDisplayedItems();

protected:
    RibbonGalleryPopup(RibbonGalleryPopupPrivate &dd, QWidget *parent);

    bool eventFilter(QObject *watched, QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

    const std::unique_ptr<RibbonGalleryPopupPrivate> d_ptr;
};

} // namespace Norvane
