// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <Norvane/NorvaneExport.h>

#include <QtWidgets/QWidget>

#include <memory>

namespace Norvane {

class RibbonGroup;
class RibbonPagePrivate;

/*!
    The content of one ribbon tab: a row of groups, packed to the left. Groups that do not fit in
    the page's width are clipped; the page never widens its window.

    Made by RibbonBar::addPage(), or by the application and handed to it.
*/
class NORVANE_EXPORT RibbonPage : public QWidget
{
    Q_OBJECT
    Q_DECLARE_PRIVATE(RibbonPage)
    Q_DISABLE_COPY_MOVE(RibbonPage)

public:
    //! Makes an empty page, for RibbonBar::addPage().
    explicit RibbonPage(QWidget *parent = nullptr);
    ~RibbonPage() override;

    //! Adds a group titled \a title at the right end of the row, owned by the page.
    RibbonGroup *addGroup(const QString &title);

    //! The group at \a index in order of addition, or null if \a index is out of range.
    RibbonGroup *group(int index) const;

    //! The position of \a group, or -1 if it is not one of this page's.
    int indexOf(RibbonGroup *group) const;

protected:
    RibbonPage(RibbonPagePrivate &dd, QWidget *parent);

    const std::unique_ptr<RibbonPagePrivate> d_ptr;
};

} // namespace Norvane
