// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QList>
#include <QtWidgets/QDialog>

class QAction;

namespace Workbench {

/*!
    Says what the program is and which keys work in it.
*/
class HelpDialog : public QDialog
{
    Q_OBJECT

public:
    //! Lists those of \a commands that have a shortcut.
    explicit HelpDialog(const QList<QAction *> &commands, QWidget *parent = nullptr);
};

} // namespace Workbench
