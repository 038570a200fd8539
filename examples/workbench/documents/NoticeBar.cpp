// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "documents/NoticeBar.h"

#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>

namespace Workbench {

NoticeBar::NoticeBar(QWidget *parent)
    : QFrame(parent)
    , m_label(new QLabel)
    , m_answer(new QPushButton)
{
    setObjectName(QStringLiteral("noticeBar"));
    setStyleSheet(
        QStringLiteral("QFrame#noticeBar { background-color: rgb(255, 244, 206); border: none;"
                       " border-bottom: 1px solid rgb(222, 200, 130); }"
                       "QLabel { color: black; }"));
    m_label->setWordWrap(true);
    m_label->setTextFormat(Qt::PlainText);
    m_label->setTextInteractionFlags(Qt::TextSelectableByMouse);

    m_answer->setFocusPolicy(Qt::NoFocus);
    connect(m_answer, &QPushButton::clicked, this, &NoticeBar::answered);
    auto *close = new QPushButton(tr("Got it"));
    close->setObjectName(QStringLiteral("closeNotice"));
    close->setFocusPolicy(Qt::NoFocus);
    connect(close, &QPushButton::clicked, this, [this] { setText(QString()); });

    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(10, 5, 6, 5);
    layout->setSpacing(12);
    layout->addWidget(m_label, 1);
    layout->addWidget(m_answer, 0, Qt::AlignTop);
    layout->addWidget(close, 0, Qt::AlignTop);
    hide();
}

QString NoticeBar::text() const
{
    return m_label->text();
}

void NoticeBar::setText(const QString &text)
{
    m_label->setText(text);
    m_answer->hide();
    setVisible(!text.isEmpty());
}

void NoticeBar::ask(const QString &text, const QString &answer)
{
    setText(text);
    m_answer->setText(answer);
    m_answer->show();
}

} // namespace Workbench
