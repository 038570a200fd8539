// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtWidgets/QFrame>

class QLabel;
class QPushButton;

namespace Workbench {

/*!
    A strip above a document that says what the reader should know, or asks, until it is closed. It
    is hidden while it has no text.
*/
class NoticeBar : public QFrame
{
    Q_OBJECT

public:
    explicit NoticeBar(QWidget *parent = nullptr);

    QString text() const;
    void setText(const QString &text);
    //! Shows \a text with a button \a answer.
    void ask(const QString &text, const QString &answer);

Q_SIGNALS:
    //! The button of ask() was clicked.
    void answered();

private:
    QLabel *m_label;
    QPushButton *m_answer;
};

} // namespace Workbench
