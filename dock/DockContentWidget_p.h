// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "DockContentWidget.h"

#include <QtCore/QHash>
#include <QtGui/QPixmap>

#include <array>

class QAction;
class QTabBar;
class QTabWidget;

namespace Norvane {

class DockContentWidgetPrivate
{
    Q_DECLARE_PUBLIC(DockContentWidget)

public:
    DockContentWidgetPrivate();
    virtual ~DockContentWidgetPrivate();

    bool hasTabs() const;
    //! The section's tab widget if it has a tab \a index, else null.
    QTabWidget *tabsWith(int section, int index) const;
    void refreshPlaceholder();
    void onTabChanged(const QTabWidget *tabs, int index);
    void onSectionChanged(int section);
    void onLastTabGone();
    void showMenu(const QTabBar *bar, const QPoint &position);

    QHash<int, QTabWidget *> sectionTabs;
    QTabWidget *sectionWidget;
    int menuTab = -1;
    int lastSection = -1;
    int lastTab = -1;
    QPixmap placeholder;
    std::array<QAction *, 5> closeActions;
    bool autoHide = true;
    DockContentWidget *q_ptr = nullptr;
    bool removing = false;
};

} // namespace Norvane
