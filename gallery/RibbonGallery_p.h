// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "RibbonGallery.h"

#include <QtCore/QList>
#include <QtCore/QSize>

class QHBoxLayout;
class QMenu;
class QPushButton;
class QWidgetAction;

namespace Norvane {

class RibbonGalleryItem;
class RibbonGalleryPopup;

class RibbonGalleryPrivate
{
    Q_DECLARE_PUBLIC(RibbonGallery)

public:
    RibbonGalleryPrivate();
    virtual ~RibbonGalleryPrivate();

    void initialise();
    bool displays(const QList<QAction *> &actions) const;
    void refresh();
    void addPlaceholder();
    void trigger(QAction *action);
    int room() const;
    void openPopup();
    void fitPopup(int height);

    QHBoxLayout *itemsLayout;
    QPushButton *popupButton;
    QMenu *popupMenu;
    RibbonGalleryPopup *popup = nullptr;
    QList<QAction *> displayedActions;
    QList<RibbonGalleryItem *> items;
    QSize iconSize{24, 24};
    QSize actionSize{90, 60};
    bool collectEnabled = false;
    int displayCount = 6;
    RibbonGallery *q_ptr = nullptr;

    QWidgetAction *popupAction = nullptr;
    QList<QAction *> placeholders;
};

} // namespace Norvane
