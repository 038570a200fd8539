// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "Subject.h"

namespace Norvane {
class RibbonGallery;
}

// Our own gallery.
class GallerySubject : public Subject
{
public:
    GallerySubject();

    void fill(const QList<GroupActions> &groups) override;
    QWidget *firstItem() const override;
    QMenu *menu() const override;
    void open() override;
    QLineEdit *edit() const override;

    // Does what a marker's click does.
    void setCollected(int group, int item, bool collected);
    // Clicks the button that moves the group at the top to the bottom.
    void setCellCount(int count);
    void moveFirstGroup();
    // Has the gallery look whether its strip still shows the right actions.
    void refreshStrip();

private:
    QWidget *popup() const;

    Norvane::RibbonGallery *m_gallery;
};
