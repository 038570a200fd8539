// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "Icons.h"
#include "MainWindow.h"
#include "tour/Tour.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QDir>
#include <QtCore/QSettings>
#include <QtCore/QTemporaryDir>
#include <QtWidgets/QApplication>

#include <cstdio>

using namespace Qt::StringLiterals;

static QString sampleFolder()
{
    return QDir::cleanPath(QCoreApplication::applicationDirPath() + u'/'
                           + QStringLiteral(NORVANE_WORKBENCH_SAMPLES));
}

static int runTour(const QString &pictureFolder, const QStringList &paths)
{
    // A tour leaves nothing behind but its pictures.
    const QTemporaryDir settings;
    QSettings::setDefaultFormat(QSettings::IniFormat);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, settings.path());

    if (!QDir().mkpath(pictureFolder)) {
        std::fprintf(stderr, "%s\n",
                     qPrintable(QCoreApplication::translate("main", "Cannot make the folder “%1”")
                                    .arg(pictureFolder)));
        return 1;
    }
    Workbench::MainWindow window;
    Workbench::Tour tour(&window, sampleFolder(), paths, pictureFolder);
    QObject::connect(&tour, &Workbench::Tour::finished, &window, [](const QString &error) {
        if (!error.isEmpty())
            std::fprintf(stderr, "%s\n", qPrintable(error));
        QCoreApplication::exit(error.isEmpty() ? 0 : 1);
    });
    window.show();
    tour.start();
    return QApplication::exec();
}

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    QApplication::setApplicationName(u"norvane-workbench"_s);
    QApplication::setApplicationDisplayName(QString());
    QApplication::setOrganizationName(u"Norvane"_s);
    QApplication::setApplicationVersion(QStringLiteral(NORVANE_WORKBENCH_VERSION));
    QApplication::setWindowIcon(Workbench::icon("workbench"_L1));

    QCommandLineParser parser;
    parser.setApplicationDescription(
        QCoreApplication::translate("main", "A viewer and editor for texts and pictures."));
    parser.addHelpOption();
    parser.addVersionOption();
    const QCommandLineOption samples(u"samples"_s,
                                     QCoreApplication::translate("main", "Open the sample files."));
    const QCommandLineOption tour(
        u"tour"_s,
        QCoreApplication::translate(
            "main",
            "Go through the features without a hand on the mouse, on copies of the sample "
            "files, and leave a picture of every scene in <folder>."),
        u"folder"_s);
    const QCommandLineOption resetLayout(
        u"reset-layout"_s,
        QCoreApplication::translate("main", "Forget where the panels and the window were."));
    parser.addOptions({samples, tour, resetLayout});
    parser.addPositionalArgument(u"files"_s,
                                 QCoreApplication::translate("main", "Files and folders to open."),
                                 u"[files...]"_s);
    parser.process(app);

    if (parser.isSet(tour))
        return runTour(parser.value(tour), parser.positionalArguments());

    if (parser.isSet(resetLayout))
        Workbench::MainWindow::resetLayout();
    QStringList paths = parser.positionalArguments();
    if (parser.isSet(samples))
        paths << sampleFolder();
    Workbench::MainWindow window;
    window.show();
    window.open(paths);
    return QApplication::exec();
}
