// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "AddressEntry.h"

#include <QtGui/QBrush>
#include <QtGui/QIcon>
#include <QtGui/QPen>

namespace Norvane {

class AddressEntryPrivate
{
    Q_DECLARE_PUBLIC(AddressEntry)

public:
    AddressEntryPrivate();
    virtual ~AddressEntryPrivate();

    bool isSplit() const;
    int textPartWidth() const;
    //! Where \a rect of the left-to-right crumb is.
    QRect visual(const QRect &rect) const;
    QSize measure();
    void setArrowHovered(bool on);
    void createMenu(const QStringList &names, const QIcon &icon);
    void limitMenu() const;
    void placeMenu() const;

    void paintBackground(QPainter &painter) const;
    void paintText(QPainter &painter) const;
    void paintArrow(QPainter &painter) const;

    QString path;
    bool hovered = false;
    bool arrowHovered = false;
    bool menuShown = false;
    QRect arrowRect;
    int textWidth = 0;
    QIcon driveIcon;
    QIcon folderIcon;
    int textLeft = 4;
    int textRight = 4;
    QSize arrowSize{8, 8};
    int arrowRight = 4;
    int extraMargin = 4;
    int textArrowGap = 6;
    QSize arrowPartSize{arrowSize.width() + 8, 22};
    QPen borderPen;
    QBrush normalBrush;
    QBrush lightBrush;
    QBrush pressedBrush;
    QBrush activeBrush;
    AddressEntry *q_ptr = nullptr;
};

} // namespace Norvane
