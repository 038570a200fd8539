// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtWidgets/QPlainTextEdit>

namespace Workbench {

//! What the program did, with the time.
class LogView : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit LogView(QWidget *parent = nullptr);

    void add(const QString &text);
};

} // namespace Workbench
