// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "Subject.h"

#include <Norvane/RibbonBar.h>
#include <Norvane/RibbonGroup.h>
#include <Norvane/RibbonPage.h>

#include <QtWidgets/QMenu>
#include <QtWidgets/QVBoxLayout>
#include <QtWidgets/QWidgetAction>

Subject::Subject()
{
    auto *bar = new Norvane::RibbonBar;
    m_group = bar->addPage(QStringLiteral("Page"), false)->addGroup(QStringLiteral("Group"));
    auto *column = new QVBoxLayout(&m_window);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(bar);
    column->addStretch();
    m_window.resize(700, 300);
}

PlainSubject::PlainSubject()
    : m_widget(new QWidget)
    , m_menu(new QMenu(m_widget))
{
    m_widget->setFixedSize(568, 68);
    ribbonGroup()->addWidget(m_widget);
}

void PlainSubject::open()
{
    m_menu->popup(m_widget->mapToGlobal(QPoint()));
}

void PlainSubject::setContent(QWidget *content)
{
    content->setFixedSize(588, 735);
    auto *action = new QWidgetAction(m_widget);
    action->setDefaultWidget(content);
    m_menu->addAction(action);
}
