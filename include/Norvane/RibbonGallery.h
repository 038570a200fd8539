// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <Norvane/NorvaneExport.h>

#include <QtWidgets/QWidget>

#include <memory>

class QAction;

namespace Norvane {

class RibbonGalleryPrivate;

/*!
    A catalogue of actions for a ribbon group, 68 pixels high in a ribbon. A strip shows the first
    few actions; the button at its end opens the whole catalogue in a popup over the strip, with a
    search field, titled groups that the user can re-order, and the items that the user collects.

    \code
    auto *gallery = new Norvane::RibbonGallery;
    gallery->setCollectEnabled(true);
    gallery->addItem(tr("Blur"), softenAction);
    gallery->addItem(tr("Blur"), motionAction);
    connect(gallery, &Norvane::RibbonGallery::signalTriggered, this, &Window::applyEffect);
    ribbonGroup->addWidget(gallery);
    \endcode

    Actions stay the caller's. An action that is deleted leaves its item in the popup, without
    effect. The strip follows the catalogue when the gallery is shown, after the popup was closed
    and when the user moves a group, not when items are added.

    Groups are numbered from 0 in the order in which the popup shows them, which changes when the
    user moves one; the items of a group keep the numbers of their addition.
*/
class NORVANE_EXPORT RibbonGallery : public QWidget
{
    Q_OBJECT
    Q_DECLARE_PRIVATE(RibbonGallery)
    Q_DISABLE_COPY_MOVE(RibbonGallery)

public:
    //! Makes a gallery without groups.
    explicit RibbonGallery(QWidget *parent = nullptr);
    ~RibbonGallery() override;

    //! Adds a group at the end and returns its index. Several groups may have the same title.
    int addGroup(const QString &title);

    /*!
        Adds an item for \a action to the first group whose title is exactly \a group, which is
        added first if there is none, and returns the item's index in the group.

        A null action adds the group if it is missing, but no item, and returns -1. An action may
        be added several times, to one group or to more; each time, even if it fails because of the
        group, is one more emission of signalTriggered().
    */
    int addItem(const QString &group, QAction *action);

    /*!
        \overload

        Returns -1 if there is no group \a group.
    */
    int addItem(int group, QAction *action);

    //! The size of icons, in pixels, of items that are made from now on; 24 x 24 at first.
    void setIconSize(const QSize &size);
    //! The size, in pixels, of items that are made from now on; 90 x 60 at first.
    void setActionSize(const QSize &size);

    //! Sets whether items that are added from now on can be collected; at first they cannot.
    void setCollectEnabled(bool enabled);

    /*!
        Sets the number of cells in the strip, which is also the number of items in a row by which
        the popup estimates its height; 6 at first. The strip follows at its next change.

        Below 1 the strip is empty, and the estimate takes 1. At most 1000 cells are empty ones.
    */
    void setDispalyCount(int count);

    /*!
        Collects item \a item of group \a group, or un-collects it, and returns whether this was
        done: not if collecting is not enabled, nor if there is no such item. Each call that
        collects adds one more copy to the collected items; each that un-collects removes one.
    */
    bool setItemCollected(int group, int item, bool collected);

    /*!
        A placeholder: "AAAA" if the display count is 0, else nothing. Neither collected items nor
        the order of the groups are saved.
    */
    QByteArray saveState() const;
    //! Does nothing.
    void restoreState(const QByteArray &state);

Q_SIGNALS:
    //! Emitted when \a action is triggered, by the gallery or otherwise, with the popup closed.
    void signalTriggered(QAction *action);

protected:
    RibbonGallery(RibbonGalleryPrivate &dd, QWidget *parent);

    void showEvent(QShowEvent *event) override;

    const std::unique_ptr<RibbonGalleryPrivate> d_ptr;
};

} // namespace Norvane
