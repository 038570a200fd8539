// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "RibbonButton.h"

#include <QtGui/QBrush>
#include <QtGui/QPen>

namespace Norvane {

class RibbonButtonPrivate
{
    Q_DECLARE_PUBLIC(RibbonButton)

public:
    RibbonButtonPrivate();
    virtual ~RibbonButtonPrivate();

    bool isLarge() const;
    bool isSmall() const;
    QMenu *menu() const;
    QString text() const;
    QSize textSize() const;
    QSize measureText(const QString &text) const;
    QSize measure();
    void setArrowHovered(bool on);

    void paintBackground(QPainter &painter) const;
    void paintSplitBackground(QPainter &painter) const;
    void paintIcon(QPainter &painter) const;
    void paintText(QPainter &painter) const;
    void paintArrow(QPainter &painter) const;

    bool hovered = false;
    bool arrowHovered = false;
    bool menuFromArrow = false;
    QRect menuRect;
    int textWidth = 0;
    int largeHeight = 72;
    QSize smallSize{22, 22};
    int radius = 2;
    QSize largeIconSize{24, 24};
    QSize smallIconSize{16, 16};
    int largeIconTop = 7;
    int largeMenuTop = 4;
    int largeIconTextGap = 6;
    int largeArrowBottom = 8;
    int largeIconMargin = 6;
    int smallLeftMargin = 3;
    int smallIconTextGap = 5;
    int smallRightMargin = 10;
    int largeTextMargin = 5;
    QSize arrowSize{8, 4};
    int arrowGap = 6;
    int arrowRightMargin = 8;
    int menuRectOverlap = 2;
    QPen textPen;
    QPen borderPen;
    QPen lightPen;
    QPen accentPen;
    QBrush normalBrush;
    QBrush pressedBrush;
    QBrush checkedBrush;
    RibbonButton *q_ptr = nullptr;

    // Measuring a text takes as long as painting it. Only buttons that were seen have one.
    struct MeasuredText
    {
        QString text;
        QFont font;
        bool large;
        QSize size;
    };
    mutable std::unique_ptr<MeasuredText> measured;
};

} // namespace Norvane
