// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "PlainSubject.h"

#include <QtWidgets/QFrame>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QTabWidget>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QVBoxLayout>

namespace {

// Flat, as the ribbon's buttons are: a raised one would have its frame to paint in addition.
QToolButton *createButton(QAction *action, Qt::ToolButtonStyle style, int iconSize, QWidget *parent)
{
    auto *button = new QToolButton(parent);
    button->setFocusPolicy(Qt::NoFocus);
    button->setAutoRaise(true);
    button->setToolButtonStyle(style);
    button->setIconSize(QSize(iconSize, iconSize));
    button->setDefaultAction(action);
    return button;
}

template<typename Layout>
Layout *createLayout(QWidget *parent, int spacing)
{
    auto *layout = new Layout(parent);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(spacing);
    return layout;
}

// The same widgets in the same nesting as in a ribbon: a row of large buttons and columns of small
// ones over a title, and a line at the right end.
QWidget *createGroup(const GroupActions &actions, QWidget *parent)
{
    auto *group = new QWidget(parent);
    auto *content = createLayout<QHBoxLayout>(nullptr, 4);
    QVBoxLayout *column = nullptr;
    for (qsizetype a = 0; a < actions.size(); ++a) {
        const qsizetype position = a % (largeRun + smallRun);
        if (position < largeRun) {
            content->addWidget(createButton(actions.at(a), Qt::ToolButtonTextUnderIcon, 24, group));
            continue;
        }
        if (position == largeRun) {
            auto *subgroup = new QWidget(group);
            column = createLayout<QVBoxLayout>(subgroup, 2);
            content->addWidget(subgroup);
        }
        column->addWidget(
            createButton(actions.at(a), Qt::ToolButtonTextBesideIcon, 16, column->parentWidget()));
    }
    auto *title = new QLabel(QStringLiteral("Group"), group);
    title->setAlignment(Qt::AlignCenter);
    auto *contentAndTitle = createLayout<QVBoxLayout>(nullptr, 0);
    contentAndTitle->addLayout(content);
    contentAndTitle->addWidget(title);
    auto *separator = new QFrame(group);
    separator->setFrameShape(QFrame::VLine);
    auto *row = createLayout<QHBoxLayout>(group, 3);
    row->addLayout(contentAndTitle);
    row->addWidget(separator);
    return group;
}

} // namespace

PlainSubject::PlainSubject()
    : m_bar(new QTabWidget)
{
    m_bar->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QWidget *PlainSubject::bar() const
{
    return m_bar;
}

void PlainSubject::fill(const QList<PageActions> &pages, int temporary)
{
    m_temporary = temporary;
    for (qsizetype p = 0; p < pages.size(); ++p) {
        auto *page = new QWidget;
        auto *row = createLayout<QHBoxLayout>(page, 0);
        row->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
        // What does not fit is clipped, as in a ribbon. Else every button would be squeezed, and
        // its text shortened at every painting.
        row->setSizeConstraint(QLayout::SetMinimumSize);
        const int index = m_bar->addTab(page, QStringLiteral("Page %1").arg(p));
        m_bar->setTabVisible(index, p < pages.size() - temporary);
        for (const GroupActions &actions : pages.at(p))
            row->addWidget(createGroup(actions, page));
    }
}

QWidget *PlainSubject::page(int index) const
{
    return m_bar->widget(index);
}

void PlainSubject::setCurrentPage(int index)
{
    m_bar->setCurrentIndex(index);
}

void PlainSubject::changeSection(int firstPage, int secondPage)
{
    for (int p = m_bar->count() - m_temporary; p < m_bar->count(); ++p)
        m_bar->setTabVisible(p, false);
    m_bar->setTabVisible(firstPage, true);
    m_bar->setTabVisible(secondPage, true);
    m_bar->setCurrentIndex(firstPage);
}
