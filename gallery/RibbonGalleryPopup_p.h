// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "RibbonGalleryGroup.h"
#include "RibbonGalleryPopup.h"

#include <QtCore/QList>

class QLabel;
class QLineEdit;
class QPushButton;
class QVBoxLayout;

namespace Norvane {

class RibbonGalleryPopupPrivate
{
    Q_DECLARE_PUBLIC(RibbonGalleryPopup)

public:
    RibbonGalleryPopupPrivate();
    virtual ~RibbonGalleryPopupPrivate();

    void reorder();
    void move(RibbonGalleryGroup *group, RibbonGalleryGroup::Position position);
    void collect(QAction *action, bool collected);
    void uncollect(QAction *action);
    void filter(const QString &text);
    void heedGestures(bool heed);
    void showNearItems();
    int estimate(const RibbonGalleryGroup *group) const;
    void updateHeight();

    QList<RibbonGalleryGroup *> groups;
    RibbonGalleryGroup *collectedGroup;
    QVBoxLayout *groupsLayout;
    QLineEdit *searchEdit;
    QPushButton *closeButton;
    QLabel *noMatchLabel;
    QFrame *contentFrame;
    bool collectEnabled = false;
    int displayCount = 6;
    RibbonGalleryPopup *q_ptr = nullptr;

    // The gallery's, whatever sizes an item was added with.
    QSize iconSize{24, 24};
    QSize actionSize{90, 60};
};

} // namespace Norvane
