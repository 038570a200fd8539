// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "TestCase.h"

#include <QtCore/QRegularExpression>
#include <QtCore/QTemporaryDir>
#include <QtGui/QFontDatabase>
#include <QtWidgets/QApplication>
#include <QtWidgets/QStyleFactory>

#include <memory>

void TestCase::init()
{
    // What the offscreen plugin cannot do, it says at every menu and of every window of a fixed
    // size; that is nobody's fault.
    static const QRegularExpression anyOther(QStringLiteral("^(?!This plugin does not support )"));
    QTest::failOnWarning(anyOther);
}

void TestCase::cleanup()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    const QWidgetList left = QApplication::topLevelWidgets();
    QStringList names;
    for (const QWidget *widget : left)
        names << QString::fromLatin1(widget->metaObject()->className()) + u' '
                + widget->objectName();
    QVERIFY2(left.isEmpty(), qPrintable(QStringLiteral("left behind: ") + names.join(u", ")));
}

int runTestCase(int argc, char **argv, const std::function<QObject *()> &create)
{
    const QTemporaryDir home;
    qputenv("HOME", home.path().toLocal8Bit());
    for (const char *variable : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME"})
        qunsetenv(variable);

    QApplication app(argc, argv);
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    Q_INIT_RESOURCE(testsupport);
    QFontDatabase::addApplicationFont(QStringLiteral(":/testsupport/fonts/DejaVuSans.ttf"));
    // The sheets ask for a font that most machines lack; what stands in for it must not vary.
    QFont::insertSubstitution(QStringLiteral("微软雅黑"), QStringLiteral("DejaVu Sans"));
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(12);
    QApplication::setFont(font);

    const std::unique_ptr<QObject> test(create());
    return QTest::qExec(test.get(), argc, argv);
}
