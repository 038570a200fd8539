// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <Norvane/NorvaneExport.h>

#include <QtWidgets/QFrame>

#include <memory>

namespace Norvane {

class RibbonCornerPrivate;

/*!
    The area at the right end of the ribbon's tab row, for widgets that are there whichever page is
    shown: a help button, a user name.

    The corner of a ribbon is reached through RibbonBar::corner(). Nothing is ever removed from it
    by the ribbon; a widget that is deleted leaves it.
*/
class NORVANE_EXPORT RibbonCorner : public QFrame
{
    Q_OBJECT
    Q_DECLARE_PRIVATE(RibbonCorner)
    Q_DISABLE_COPY_MOVE(RibbonCorner)

public:
    //! Makes an empty corner. A ribbon bar brings its own.
    explicit RibbonCorner(QWidget *parent = nullptr);
    ~RibbonCorner() override;

    /*!
        Adds \a widget at the right end, 2 pixels from its neighbour; the corner becomes its
        parent. The tab row keeps its height of 28 pixels however tall \a widget is. A null
        pointer is ignored.
    */
    void addWidget(QWidget *widget);

protected:
    RibbonCorner(RibbonCornerPrivate &dd, QWidget *parent);

    const std::unique_ptr<RibbonCornerPrivate> d_ptr;
};

} // namespace Norvane
