// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "StyleSheet.h"

#include <QtCore/QFile>

namespace Norvane {

QString StyleSheet::read(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

} // namespace Norvane
