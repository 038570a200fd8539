// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtWidgets/QFrame>

class QLabel;

namespace Workbench {

/*!
    A strip above a document that says what the reader should know, until it is closed. It is
    hidden while it has no text.
*/
class NoticeBar : public QFrame
{
    Q_OBJECT

public:
    explicit NoticeBar(QWidget *parent = nullptr);

    QString text() const;
    void setText(const QString &text);

private:
    QLabel *m_label;
};

} // namespace Workbench
