// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "Subject.h"

class QVBoxLayout;

// The same items as tool buttons, each with a hidden marker button, in grids with titles.
class ButtonSubject : public PlainSubject
{
public:
    ButtonSubject();

    void fill(const QList<GroupActions> &groups) override;
    QWidget *firstItem() const override;
    QLineEdit *edit() const override { return nullptr; }

private:
    QWidget *m_content;
    QVBoxLayout *m_column;
};
