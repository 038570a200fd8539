// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "RibbonStackedWidget.h"

#include <QtCore/QHash>

namespace Norvane {

class OffstagePages;

class RibbonStackedWidgetPrivate
{
    Q_DECLARE_PUBLIC(RibbonStackedWidget)

public:
    virtual ~RibbonStackedWidgetPrivate() = default;

    // Callers rely on its size, the number of different titles, as the bound of hiding and showing.
    QHash<QString, RibbonPage *> pages;
    RibbonStackedWidget *q_ptr = nullptr;
    OffstagePages *offstagePages = nullptr;
};

} // namespace Norvane
