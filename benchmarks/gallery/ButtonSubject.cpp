// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "ButtonSubject.h"

#include <QtGui/QAction>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QVBoxLayout>

namespace {

constexpr int columns = 6;

QToolButton *createButton(QAction *action, QWidget *parent)
{
    auto *button = new QToolButton(parent);
    button->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    button->setIconSize({24, 24});
    button->setDefaultAction(action);
    button->setFixedSize(90, 60);
    auto *marker = new QToolButton(button);
    marker->setCheckable(true);
    marker->setIconSize({16, 16});
    marker->setIcon(QIcon(QStringLiteral(":/res/collect.svg")));
    marker->hide();
    return button;
}

} // namespace

ButtonSubject::ButtonSubject()
    : m_content(new QWidget)
    , m_column(new QVBoxLayout(m_content))
{
    m_column->setContentsMargins(0, 0, 0, 0);
    m_column->setSpacing(0);
    auto *area = new QScrollArea;
    area->setWidgetResizable(true);
    area->setWidget(m_content);
    setContent(area);
}

void ButtonSubject::fill(const QList<GroupActions> &groups)
{
    for (const GroupActions &actions : groups) {
        auto *frame = new QFrame(m_content);
        auto *grid = new QGridLayout(frame);
        grid->setContentsMargins(3, 5, 3, 5);
        grid->setSpacing(0);
        for (int i = 0; i < actions.size(); ++i)
            grid->addWidget(createButton(actions.at(i), frame), i / columns, i % columns);
        m_column->addWidget(new QLabel(QStringLiteral("Group")));
        m_column->addWidget(frame);
    }
}

QWidget *ButtonSubject::firstItem() const
{
    return m_content->findChild<QToolButton *>();
}
