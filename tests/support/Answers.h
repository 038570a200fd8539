// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QPointer>
#include <QtCore/QTimer>
#include <QtGui/QWindow>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>

#include <functional>

/*!
    Answers the message boxes that open while it lives, in order, by clicking the button with the
    given text; no text is the Escape key. A box too many is closed with its last button, and
    tells of itself in boxes() like all the others.
*/
class Answers : public QObject
{
public:
    struct Answer
    {
        QString button;
        std::function<void()> before = {};
    };

    struct Box
    {
        QString title;
        QString text;
        Qt::TextFormat format;
        QStringList buttons;
        QMessageBox::Icon icon;
        const QWidget *parent;
    };

    explicit Answers(const QList<Answer> &answers = {})
        : m_answers(answers)
    {
        connect(&m_poll, &QTimer::timeout, this, &Answers::look);
        m_poll.start(1);
    }

    QList<Box> boxes() const { return m_boxes; }

    QStringList texts() const
    {
        QStringList texts;
        for (const Box &box : m_boxes)
            texts << box.text;
        return texts;
    }

private:
    void look()
    {
        auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (!box || box == m_answered || !box->windowHandle() || !box->windowHandle()->isExposed())
            return;
        m_answered = box;
        Box seen{box->windowTitle(), box->text(),        box->textFormat(), {},
                 box->icon(),        box->parentWidget()};
        const QList<QAbstractButton *> buttons = box->buttons();
        for (const QAbstractButton *button : buttons)
            seen.buttons << button->text().remove(u'&');
        m_boxes << seen;
        const Answer answer =
            m_answers.isEmpty() ? Answer{seen.buttons.constLast()} : m_answers.takeFirst();
        if (answer.before)
            answer.before();
        if (m_answered && answer.button.isEmpty())
            QTest::keyClick(m_answered->windowHandle(), Qt::Key_Escape);
        else if (m_answered)
            click(seen.buttons.indexOf(answer.button));
    }

    void click(qsizetype index)
    {
        QVERIFY2(index >= 0, "the box has no such button");
        const QAbstractButton *button = m_answered->buttons().at(index);
        QTest::mouseClick(m_answered->windowHandle(), Qt::LeftButton, {},
                          button->mapTo(m_answered, button->rect().center()));
    }

    QList<Answer> m_answers;
    QList<Box> m_boxes;
    QPointer<QMessageBox> m_answered;
    QTimer m_poll;
};
