// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "Counter.h"
#include "Look.h"
#include "PaintWitness.h"
#include "PlainSubject.h"
#include "Recorder.h"
#include "RibbonSubject.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QJsonDocument>
#include <QtGui/QAction>
#include <QtWidgets/QApplication>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QVBoxLayout>

#include <cstdio>
#include <memory>

namespace {

constexpr int permanentPages = 6;
constexpr int widest = 1600;
constexpr int narrowest = 600;

QList<PageActions> createActions(int pages, int groups, int actions, QObject *parent)
{
    QList<PageActions> result(pages, PageActions(groups, GroupActions(actions)));
    int number = 0;
    for (PageActions &page : result) {
        for (GroupActions &group : page) {
            for (int a = 0; a < actions; ++a) {
                const bool large = a % (largeRun + smallRun) < largeRun;
                const QString text =
                    large ? QStringLiteral("Arrange\nparts %1") : QStringLiteral("Adjust %1");
                group[a] = new QAction(Look::createIcon(number), text.arg(number), parent);
                ++number;
            }
        }
    }
    return result;
}

QToolButton *firstButton(const Subject &subject, int page)
{
    return subject.page(page)->findChild<QToolButton *>();
}

struct Options
{
    bool ribbon = false;
    bool filledFirst = false;
    bool quick = false;
    QString picture;
};

void run(const Options &options, const QList<PageActions> &pages, Recorder *recorder)
{
    std::unique_ptr<Subject> subject;
    QWidget window;
    auto *layout = new QVBoxLayout(&window);
    layout->setContentsMargins(0, 0, 0, 0);
    // A wide page must not keep the window from getting narrow.
    layout->setSizeConstraint(QLayout::SetNoConstraint);
    PaintWitness witness;
    const auto place = [&] {
        layout->addWidget(subject->bar());
        layout->addStretch();
    };

    recorder->memory(QStringLiteral("before fill"));
    recorder->measure(QStringLiteral("fill"), 1, [&](int) {
        if (options.ribbon)
            subject = std::make_unique<RibbonSubject>();
        else
            subject = std::make_unique<PlainSubject>();
        if (!options.filledFirst)
            place();
        subject->fill(pages, int(pages.size()) - permanentPages);
    });
    recorder->memory(QStringLiteral("after fill"));

    witness.watch(firstButton(*subject, 0));
    window.resize(widest, 400);
    recorder->measure(QStringLiteral("first paint"), 1, [&](int) {
        if (options.filledFirst)
            place();
        window.show();
        witness.wait();
    });
    recorder->memory(QStringLiteral("after first paint"));
    if (!options.picture.isEmpty()) {
        window.grab().save(options.picture);
        return;
    }

    const auto visit = [&](int page) {
        witness.watch(firstButton(*subject, page));
        subject->setCurrentPage(page);
        witness.wait();
    };
    recorder->measure(QStringLiteral("first visit"), permanentPages - 1,
                      [&](int i) { visit(i + 1); });
    recorder->memory(QStringLiteral("after visits"));
    recorder->measure(QStringLiteral("page switch"),
                      options.quick ? permanentPages : 40 * permanentPages,
                      [&](int i) { visit(i % permanentPages); });

    const int step = 10;
    visit(0);
    recorder->measure(QStringLiteral("resize step"), (widest - narrowest) / step, [&](int i) {
        witness.watch(firstButton(*subject, 0));
        window.resize(widest - (i + 1) * step, 400);
        witness.wait();
    });
    window.resize(widest, 400);
    QCoreApplication::processEvents();

    const auto changeSection = [&](int section) {
        const int first = permanentPages + 2 * section;
        witness.watch(firstButton(*subject, first));
        subject->changeSection(first, first + 1);
        witness.wait();
    };
    recorder->measure(QStringLiteral("first section change"), 2, changeSection);
    recorder->measure(QStringLiteral("section change"), options.quick ? 4 : 40,
                      [&](int i) { changeSection(i % 2); });

    visit(0);
    const auto setEnabled = [&](bool enabled) {
        witness.watch(firstButton(*subject, 0));
        for (const PageActions &page : pages) {
            for (const GroupActions &group : page) {
                for (QAction *action : group)
                    action->setEnabled(enabled);
            }
        }
        witness.wait();
    };
    recorder->measure(QStringLiteral("disable and enable all"), options.quick ? 1 : 5, [&](int) {
        setEnabled(false);
        setEnabled(true);
    });
}

} // namespace

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    Look::apply();

    const QCommandLineOption ribbon(QStringLiteral("ribbon"),
                                    QStringLiteral("Measure the ribbon, else plain Qt."));
    const QCommandLineOption filledFirst(
        QStringLiteral("filled-first"), QStringLiteral("Fill the bar before it is in its window."));
    const QCommandLineOption count(QStringLiteral("count"),
                                   QStringLiteral("Count calls and events instead of the time."));
    const QCommandLineOption quick(QStringLiteral("quick"),
                                   QStringLiteral("Repeat each phase a few times only."));
    const QCommandLineOption picture(QStringLiteral("picture"),
                                     QStringLiteral("Save the first frame and end."),
                                     QStringLiteral("file"));
    QCommandLineParser parser;
    parser.addHelpOption();
    parser.addPositionalArgument(QStringLiteral("size"),
                                 QStringLiteral("Pages x groups x actions, e.g. 10x8x6."));
    parser.addOptions({ribbon, filledFirst, count, quick, picture});
    parser.process(app);

    const QStringList size = parser.positionalArguments().value(0).split(u'x');
    const int pages = size.value(0).toInt();
    const int groups = size.value(1).toInt();
    const int actions = size.value(2).toInt();
    Options options;
    options.ribbon = parser.isSet(ribbon);
    options.filledFirst = parser.isSet(filledFirst);
    options.quick = parser.isSet(quick);
    options.picture = parser.value(picture);
    // Two sections need four more pages.
    if (pages < permanentPages + 4 || groups < 1 || actions < 1)
        parser.showHelp(1);

    Counter *counter = nullptr;
    if (parser.isSet(count)) {
        counter = new Counter(QStringLiteral("Fusion"));
        app.installEventFilter(counter);
        QApplication::setStyle(counter);
    }

    QObject owner;
    Recorder recorder(counter);
    run(options, createActions(pages, groups, actions, &owner), &recorder);
    std::puts(QJsonDocument(recorder.result()).toJson(QJsonDocument::Compact).constData());
    return 0;
}
