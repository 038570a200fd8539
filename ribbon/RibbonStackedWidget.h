// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtWidgets/QStackedWidget>

#include <memory>

namespace Norvane {

class RibbonPage;
class RibbonStackedWidgetPrivate;

//! The stack of a RibbonBar's pages, 95 pixels high.
class RibbonStackedWidget : public QStackedWidget
{
    Q_OBJECT
    Q_DECLARE_PRIVATE(RibbonStackedWidget)
    Q_DISABLE_COPY_MOVE(RibbonStackedWidget)

public:
    explicit RibbonStackedWidget(QWidget *parent = nullptr);
    ~RibbonStackedWidget() override;

    int addPage(const QString &title, RibbonPage *page);

    //! Adds a new page and makes page 0 current.
    RibbonPage *addPage(const QString &title);

    //! Hides the page \a index, if that is less than the number of different titles.
    void hidePage(int index);

    //! Shows the page \a index, if that is less than the number of different titles.
    void showPage(int index);

    RibbonPage *page(int index) const;

protected:
    RibbonStackedWidget(RibbonStackedWidgetPrivate &dd, QWidget *parent);

    const std::unique_ptr<RibbonStackedWidgetPrivate> d_ptr;
};

} // namespace Norvane
