// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "TestCase.h"

#include <tests/gallery/GalleryWindow.h>

#include <QtGui/QAccessible>

using namespace Norvane;
using namespace Qt::StringLiterals;

//! Runs where assistive tools listen, which Qt takes from there being a bus for them.
class tst_GalleryAssistiveTools : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void findItemsThatAreFarAway();
};

// They would not read what is not shown.
void tst_GalleryAssistiveTools::findItemsThatAreFarAway()
{
    QTRY_VERIFY(QAccessible::isActive());
    QStringList texts;
    for (int i = 0; i < 100; ++i)
        texts << u"Item %1"_s.arg(i);
    GalleryWindow window;
    window.setGeometry(50, 60, 700, 300);
    for (const QString &title : {u"One"_s, u"Two"_s, u"Three"_s, u"Four"_s})
        window.add(title, texts);
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window, patience));
    window.popupButton()->click();
    QVERIFY(QTest::qWaitForWindowExposed(window.menu(), patience));
    // The search in between finds some of each.
    for (const QString &text : {QString(), u"5"_s, QString()}) {
        window.edit()->setText(text);
        for (int group = 0; group < 4; ++group) {
            for (int i = 0; i < 100; ++i) {
                RibbonGalleryItem *item = window.item(group, i);
                QCOMPARE(item->isVisible(), item->text().contains(text));
                const QAccessibleInterface *told = QAccessible::queryAccessibleInterface(item);
                QCOMPARE(bool(told->state().invisible), !item->text().contains(text));
            }
        }
    }
    window.menu()->close();
}

int main(int argc, char **argv)
{
    qputenv("AT_SPI_BUS_ADDRESS", qgetenv("DBUS_SESSION_BUS_ADDRESS"));
    // On this bus there is nobody to register with.
    qputenv("QT_LOGGING_RULES", "qt.accessibility.atspi.warning=false");
    return runTestCase(argc, argv, [] { return new tst_GalleryAssistiveTools; });
}

#include "tst_GalleryAssistiveTools.moc"
