// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "RibbonGalleryGroup.h"

#include <QtCore/QList>

class QLabel;
class QPushButton;

namespace Norvane {

class RibbonGalleryLayout;

class RibbonGalleryGroupPrivate
{
    Q_DECLARE_PUBLIC(RibbonGalleryGroup)

public:
    RibbonGalleryGroupPrivate();
    virtual ~RibbonGalleryGroupPrivate();

    int indexOf(const QAction *action) const;
    const QStringList &searchedTexts();
    void setHidden(RibbonGalleryItem *item, bool hidden);
    bool hasFocus() const;

    QList<RibbonGalleryItem *> items;
    QLabel *iconLabel;
    QLabel *titleLabel;
    QFrame *groupFrame;
    RibbonGalleryLayout *itemsLayout;
    QPushButton *toTopButton;
    QPushButton *toBottomButton;
    RibbonGalleryGroup *q_ptr = nullptr;

    // What the items say, if it was asked for since something changed: it takes longer to ask them
    // than to search through it.
    QStringList texts;
};

} // namespace Norvane
