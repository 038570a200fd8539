// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "views/LogView.h"

#include <QtCore/QTime>

namespace Workbench {

LogView::LogView(QWidget *parent)
    : QPlainTextEdit(parent)
{
    setFrameShape(QFrame::NoFrame);
    setReadOnly(true);
    setMaximumBlockCount(1000);
}

void LogView::add(const QString &text)
{
    appendPlainText(
        tr("%1  %2").arg(QTime::currentTime().toString(QStringLiteral("HH:mm:ss")), text));
}

} // namespace Workbench
