// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "AccessibleButton.h"
#include "AccessibleStack.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QHash>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QStackedWidget>

namespace Norvane {

using namespace Qt::StringLiterals;

namespace {

// What a widget is cannot be seen from the Qt class that it derives from. Classes are asked for
// by name, from the most derived one on.
QAccessibleInterface *createAccessible(const QString &className, QObject *object)
{
    static const QHash<QString, QAccessible::Role> roles{
        {u"Norvane::RibbonTabBar"_s, QAccessible::PageTabList},
        {u"Norvane::RibbonTab"_s, QAccessible::PageTab},
        {u"Norvane::RibbonStackedWidget"_s, QAccessible::LayeredPane},
        {u"Norvane::RibbonPage"_s, QAccessible::PropertyPage},
        {u"Norvane::RibbonGroup"_s, QAccessible::Grouping},
        {u"Norvane::RibbonButton"_s, QAccessible::Button},
        {u"Norvane::RibbonGalleryGroup"_s, QAccessible::Grouping},
        {u"Norvane::RibbonGalleryItem"_s, QAccessible::Button},
        {u"Norvane::RibbonGalleryMarker"_s, QAccessible::CheckBox},
        {u"Norvane::DockPanel"_s, QAccessible::ToolBar},
        {u"Norvane::DockButton"_s, QAccessible::Button},
        {u"Norvane::AddressStrip"_s, QAccessible::ToolBar},
        {u"Norvane::AddressEntry"_s, QAccessible::Button},
    };
    const auto role = roles.constFind(className);
    auto *widget = qobject_cast<QWidget *>(object);
    if (role == roles.constEnd() || !widget)
        return nullptr;
    if (auto *button = qobject_cast<QAbstractButton *>(widget))
        return new AccessibleButton(button, *role);
    if (auto *stack = qobject_cast<QStackedWidget *>(widget))
        return new AccessibleStack(stack);
    return new QAccessibleWidget(widget, *role);
}

void installFactory()
{
    QAccessible::installFactory(createAccessible);
}
// Qt forgets the factories with the application.
Q_COREAPP_STARTUP_FUNCTION(installFactory)

} // namespace

} // namespace Norvane
