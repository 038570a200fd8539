// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "ButtonSubject.h"
#include "GallerySubject.h"
#include "ListSubject.h"
#include "Look.h"
#include "PaintWitness.h"
#include "Recorder.h"

#include <QtCore/QJsonDocument>
#include <QtGui/QAction>
#include <QtGui/QKeyEvent>
#include <QtGui/QWindow>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMenu>

#include <cstdio>
#include <memory>

namespace {

constexpr int groupCount = 10;
constexpr int repetitions = 20;

std::unique_ptr<Subject> create(const QString &side)
{
    if (side == QStringLiteral("gallery"))
        return std::make_unique<GallerySubject>();
    if (side == QStringLiteral("list"))
        return std::make_unique<ListSubject>();
    return std::make_unique<ButtonSubject>();
}

// Every action has two words and its number, so that each letter of a search finds fewer.
QList<GroupActions> createActions(int count, QObject *parent)
{
    static const QStringList kinds = {QStringLiteral("soft"),  QStringLiteral("strong"),
                                      QStringLiteral("warm"),  QStringLiteral("cold"),
                                      QStringLiteral("light"), QStringLiteral("dark"),
                                      QStringLiteral("fine")};
    static const QStringList names = {
        QStringLiteral("blur"),  QStringLiteral("tone"),  QStringLiteral("edge"),
        QStringLiteral("grain"), QStringLiteral("glow"),  QStringLiteral("shade"),
        QStringLiteral("frame"), QStringLiteral("paint"), QStringLiteral("mosaic"),
        QStringLiteral("wave"),  QStringLiteral("noise")};
    QList<GroupActions> groups(groupCount);
    for (int i = 0; i < count; ++i) {
        const QString text = QStringLiteral("%1 %2 %3")
                                 .arg(kinds.at(i % kinds.size()), names.at(i % names.size()))
                                 .arg(i);
        groups[i * groupCount / count] << new QAction(Look::createIcon(i % 60), text, parent);
    }
    return groups;
}

// The way of a key on a real screen: through the popup's window to what has the focus there.
void type(const Subject &subject, int key, const QString &text)
{
    QWindow *window = subject.menu()->windowHandle();
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
    QCoreApplication::sendEvent(window, &press);
    QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier, text);
    QCoreApplication::sendEvent(window, &release);
    settle();
}

// Searches for words, a number, something that all have and something that none has.
void measureSearch(const Subject &subject, Recorder *recorder)
{
    static const QStringList searches = {QStringLiteral("blur 12"), QStringLiteral("soft"),
                                         QStringLiteral("xyz"), QStringLiteral("o"),
                                         QStringLiteral("ark")};
    for (qsizetype i = 0; i < searches.size(); ++i) {
        const QString &text = searches.at(i);
        recorder->measure(QStringLiteral("type %1").arg(i), int(text.size()),
                          [&](int at) { type(subject, Qt::Key_A, text.mid(at, 1)); });
        if (subject.edit()->text() != text)
            qFatal("the search field does not get the keys");
        recorder->measure(QStringLiteral("delete %1").arg(i), int(text.size()),
                          [&](int) { type(subject, Qt::Key_Backspace, {}); });
    }
}

void measureGallery(GallerySubject *subject, Recorder *recorder)
{
    const auto collect = [&](bool collected) {
        return [=](int i) {
            subject->setCollected(0, i, collected);
            settle();
        };
    };
    recorder->measure(QStringLiteral("collect"), repetitions, collect(true));
    recorder->measure(QStringLiteral("un-collect"), repetitions, collect(false));
    recorder->measure(QStringLiteral("move"), repetitions, [&](int) {
        subject->moveFirstGroup();
        settle();
    });
    recorder->measure(QStringLiteral("refresh"), 1000, [&](int) { subject->refreshStrip(); });
}

// A strip that is made anew with all its cells empty but one.
void measureCells(const QList<GroupActions> &groups, Recorder *recorder)
{
    for (const int count : {100, 1000}) {
        GallerySubject subject;
        subject.window()->show();
        settle();
        subject.setCellCount(count);
        subject.fill({{groups.constFirst().constFirst()}});
        recorder->measure(QStringLiteral("%1 cells").arg(count), 1, [&](int) {
            subject.refreshStrip();
            settle();
        });
    }
}

void run(const QString &side, const QList<GroupActions> &groups, bool filledFirst,
         const QString &picture, Recorder *recorder)
{
    const std::unique_ptr<Subject> subject = create(side);
    const auto show = [&] {
        subject->window()->show();
        settle();
    };
    if (!filledFirst)
        show();
    recorder->memory(QStringLiteral("before adding"));
    recorder->measure(QStringLiteral("add"), 1, [&](int) {
        subject->fill(groups);
        settle();
    });
    recorder->memory(QStringLiteral("after adding"));
    // A gallery fills its strip, which gives the popup its width, when it is shown.
    subject->window()->hide();
    recorder->measure(QStringLiteral("show"), 1, [&](int) { show(); });

    PaintWitness witness;
    const auto open = [&](int) {
        witness.watch(subject->firstItem());
        subject->open();
        witness.wait();
    };
    const auto close = [&](int) {
        subject->menu()->close();
        settle();
    };
    recorder->measure(QStringLiteral("open first"), 1, open);
    recorder->memory(QStringLiteral("after opening"));
    if (!picture.isEmpty()) {
        subject->menu()->grab().save(picture);
        return;
    }
    close(0);
    for (int i = 0; i < repetitions; ++i) {
        recorder->measure(QStringLiteral("open again %1").arg(i), 1, open);
        recorder->measure(QStringLiteral("close %1").arg(i), 1, close);
    }
    if (!subject->edit())
        return;
    open(0);
    subject->edit()->setFocus();
    measureSearch(*subject, recorder);
    if (auto *gallery = dynamic_cast<GallerySubject *>(subject.get()))
        measureGallery(gallery, recorder);
    type(*subject, Qt::Key_A, QStringLiteral("x"));
    recorder->measure(QStringLiteral("searched close"), 1, close);
    if (side == QStringLiteral("gallery"))
        measureCells(groups, recorder);
}

} // namespace

// bench_gallery gallery|list|buttons COUNT [filled-first] [picture FILE]
int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    Look::apply();
    const QStringList arguments = QApplication::arguments();
    const int count = arguments.value(2).toInt();
    if (count < groupCount) {
        std::fputs("bench_gallery gallery|list|buttons COUNT [filled-first] [picture FILE]\n",
                   stderr);
        return 1;
    }
    const qsizetype picture = arguments.indexOf(QStringLiteral("picture"));
    QObject owner;
    Recorder recorder(nullptr);
    run(arguments.at(1), createActions(count, &owner),
        arguments.contains(QStringLiteral("filled-first")),
        picture < 0 ? QString() : arguments.value(picture + 1), &recorder);
    std::puts(QJsonDocument(recorder.result()).toJson(QJsonDocument::Compact).constData());
    return 0;
}
