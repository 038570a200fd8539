// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "SkeletonSubject.h"

#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMenu>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QSplitter>
#include <QtWidgets/QStackedWidget>
#include <QtWidgets/QStatusBar>
#include <QtWidgets/QTabBar>
#include <QtWidgets/QTabWidget>

SkeletonSubject::SkeletonSubject()
    : m_outer(new QSplitter)
{
    const auto direction = [](int panel) {
        return panel == 2 ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom;
    };
    auto *central = new QFrame;
    auto *row = new QHBoxLayout(central);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    for (int panel = 0; panel < 3; ++panel) {
        auto *bar = new QFrame;
        m_bars[panel] = new QBoxLayout(direction(panel), bar);
        m_bars[panel]->setContentsMargins(0, 0, 0, 0);
        m_bars[panel]->setAlignment(Qt::AlignTop | Qt::AlignLeft);
        m_stacks[panel] = new QStackedWidget;
    }
    auto *sections = new QTabWidget;
    sections->setTabPosition(QTabWidget::South);
    auto *tabs = new QTabWidget;
    tabs->setTabsClosable(true);
    tabs->addTab(new QWidget, QStringLiteral("document"));
    sections->addTab(tabs, QStringLiteral("Documents"));
    auto *inner = new QSplitter(Qt::Vertical);
    inner->setHandleWidth(0);
    inner->addWidget(sections);
    inner->addWidget(m_stacks[2]);
    inner->setStretchFactor(0, 50);
    inner->setStretchFactor(1, 1);
    auto *centre = new QWidget;
    auto *column = new QVBoxLayout(centre);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(inner);
    m_outer->setHandleWidth(0);
    m_outer->addWidget(m_stacks[0]);
    m_outer->addWidget(centre);
    m_outer->addWidget(m_stacks[1]);
    m_outer->setStretchFactor(0, 1);
    m_outer->setStretchFactor(1, 5);
    m_outer->setStretchFactor(2, 1);
    row->addWidget(m_bars[0]->parentWidget());
    row->addWidget(m_outer);
    row->addWidget(m_bars[1]->parentWidget());
    m_window.setCentralWidget(central);
    m_window.statusBar()->addWidget(m_bars[2]->parentWidget(), 1);
}

void SkeletonSubject::addView(int panel, QWidget *widget)
{
    auto *button = new QPushButton;
    button->setCheckable(true);
    button->setFixedSize(30, 30);
    button->setIconSize({24, 24});
    button->setIcon(QIcon(QStringLiteral(":/res/menu.svg")));
    m_bars[panel]->addWidget(button);

    auto *collapse = new QPushButton;
    collapse->setFlat(true);
    collapse->hide();
    auto *menu = new QPushButton;
    menu->setFlat(true);
    menu->setIcon(QIcon(QStringLiteral(":/res/menu.svg")));
    auto *title = new QFrame;
    auto *titleRow = new QHBoxLayout(title);
    titleRow->setContentsMargins(4, 0, 4, 0);
    titleRow->addWidget(collapse);
    titleRow->addWidget(new QLabel(QStringLiteral("view")));
    titleRow->addWidget(menu);
    auto *actions = new QMenu(title);
    actions->addAction(QStringLiteral("minimize to bar"));
    auto *view = new QFrame;
    auto *column = new QVBoxLayout(view);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(title);
    column->addWidget(widget);
    auto *page = new QSplitter(panel == 2 ? Qt::Horizontal : Qt::Vertical);
    page->addWidget(view);
    m_stacks[panel]->addWidget(page);
}

void SkeletonSubject::setMinimized(bool minimized)
{
    QList<int> sizes = m_outer->sizes();
    if (minimized) {
        m_width = sizes.at(0);
        sizes[1] += m_width;
        sizes[0] = 0;
    } else {
        sizes[0] = m_width;
        sizes[1] -= m_width;
    }
    static_cast<QPushButton *>(m_bars[0]->itemAt(0)->widget())->setChecked(!minimized);
    m_outer->setSizes(sizes);
}

QByteArray SkeletonSubject::save() const
{
    return m_outer->saveState();
}

void SkeletonSubject::restore(const QByteArray &state)
{
    m_outer->restoreState(state);
}
