// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "Gui.h"
#include "PreviewIcon.h"
#include "TestCase.h"

#include <QtGui/QPainter>
#include <QtTest/QTest>
#include <QtWidgets/QToolButton>

using namespace Workbench;

class tst_PreviewIcon : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void isDrawnWhenItIsSeen();
    void isDrawnAnewForAnotherSize();
    void isFaintWhenDisabled();
    void isPainted();
};

// Blue, and counted.
static QIcon counted(int *draws)
{
    return QIcon(new PreviewIcon([draws](QSize size) {
        ++*draws;
        QImage image(size, QImage::Format_RGB32);
        image.fill(Qt::blue);
        return image;
    }));
}

void tst_PreviewIcon::isDrawnWhenItIsSeen()
{
    int draws = 0;
    QToolButton button;
    button.setIconSize(QSize(20, 10));
    button.setIcon(counted(&draws));
    button.setFixedSize(40, 40);
    QCOMPARE(draws, 0);
    QVERIFY(Gui::open(&button));
    QTRY_COMPARE(draws, 1);
    QCOMPARE(Gui::pixel(&button, QPoint(20, 20)), QColor(Qt::blue));
    button.update();
    QCoreApplication::processEvents();
    QCOMPARE(draws, 1);
}

void tst_PreviewIcon::isDrawnAnewForAnotherSize()
{
    int draws = 0;
    const QIcon icon = counted(&draws);
    QCOMPARE(icon.pixmap(QSize(20, 10), 1).size(), QSize(20, 10));
    QCOMPARE(icon.pixmap(QSize(20, 10), 2).size(), QSize(40, 20));
    QCOMPARE(icon.pixmap(QSize(20, 10), 2).devicePixelRatio(), 2.0);
    QCOMPARE(draws, 2);
}

void tst_PreviewIcon::isFaintWhenDisabled()
{
    int draws = 0;
    const QIcon icon = counted(&draws);
    const QImage faint = icon.pixmap(QSize(4, 4), 1, QIcon::Disabled).toImage();
    QVERIFY(qAbs(faint.pixelColor(1, 1).alpha() - 102) <= 1);
    QCOMPARE(icon.pixmap(QSize(4, 4), 1).toImage().pixelColor(1, 1), QColor(Qt::blue));
}

void tst_PreviewIcon::isPainted()
{
    int draws = 0;
    QImage image(30, 30, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    counted(&draws).paint(&painter, QRect(10, 10, 5, 5));
    painter.end();
    QCOMPARE(image.pixelColor(10, 10), QColor(Qt::blue));
    QCOMPARE(image.pixelColor(14, 14), QColor(Qt::blue));
    QCOMPARE(image.pixelColor(15, 15), QColor(Qt::white));
    QCOMPARE(draws, 1);
}

NORVANE_TEST_MAIN(tst_PreviewIcon)
#include "tst_PreviewIcon.moc"
