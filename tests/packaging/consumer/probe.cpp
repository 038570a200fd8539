// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

// Linked beside the README's program, which stays as it is printed: looks at the ribbon once the
// program's event loop runs, and ends it. The exit status tells what was seen.

#include <RibbonBar.h>

#include <QtCore/QDirIterator>
#include <QtCore/QTimer>
#include <QtWidgets/QApplication>

static bool hasPixels(const QImage &image)
{
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qAlpha(image.pixel(x, y)) > 0)
                return true;
        }
    }
    return false;
}

static bool ribbonLooksRight()
{
    const QWidgetList widgets = QApplication::allWidgets();
    for (const QWidget *widget : widgets) {
        auto *ribbon = qobject_cast<const Norvane::RibbonBar *>(widget);
        if (!ribbon || !ribbon->isVisible())
            continue;
        const QImage image = const_cast<Norvane::RibbonBar *>(ribbon)->grab().toImage();
        const QColor behindTabs = image.pixelColor(image.width() * 3 / 4, 14);
        if (behindTabs == QColor(0, 64, 115))
            return true;
        qCritical() << "behind the tabs the ribbon is" << behindTabs;
    }
    qCritical("no ribbon in its colours is shown");
    return false;
}

static bool iconsHavePixels()
{
    QDirIterator icons(QStringLiteral(":/res"), {QStringLiteral("*.svg")});
    int count = 0;
    for (; icons.hasNext(); ++count) {
        const QString path = icons.next();
        if (!hasPixels(QIcon(path).pixmap(16, 16).toImage())) {
            qCritical() << path << "is empty";
            return false;
        }
    }
    if (count == 0)
        qCritical("the library brought no icons");
    return count > 0;
}

static void probe()
{
    QTimer::singleShot(0, qApp,
                       [] { QApplication::exit(ribbonLooksRight() && iconsHavePixels() ? 0 : 1); });
}
Q_COREAPP_STARTUP_FUNCTION(probe)
