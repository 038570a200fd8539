// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

// The lines of the documentation, in a program of an Austrian. The exit status tells what it read.

#include <AddressBar.h>

#include <QtCore/QDebug>
#include <QtCore/QLocale>
#include <QtCore/QTranslator>
#include <QtGui/QAction>
#include <QtWidgets/QApplication>

int main(int argc, char **argv)
{
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Austria));
    QApplication app(argc, argv);
#include "translations.inc"
    const Norvane::AddressBar bar;
    const QList<QAction *> actions = bar.findChildren<QAction *>();
    for (const QAction *action : actions) {
        if (action->text() == QLatin1String("Ausschneiden"))
            return 0;
        qCritical() << "not German:" << action->text();
    }
    return 1;
}
