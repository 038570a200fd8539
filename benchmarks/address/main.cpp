// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "Calls.h"
#include "Crumbs.h"
#include "Look.h"
#include "Recorder.h"

#include <Norvane/AddressBar.h>

#include <QtCore/QAbstractEventDispatcher>
#include <QtCore/QDir>
#include <QtCore/QElapsedTimer>
#include <QtCore/QJsonDocument>
#include <QtCore/QMimeData>
#include <QtGui/QClipboard>
#include <QtGui/QFileSystemModel>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QFileIconProvider>
#include <QtWidgets/QTreeView>

#include <cstdio>

#include <time.h>

namespace {

void settle()
{
    while (QAbstractEventDispatcher::instance()->processEvents(QEventLoop::AllEvents)) { }
    // Outside of an event loop nothing else does it.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

int microseconds(const QElapsedTimer &timer)
{
    return int(timer.nsecsElapsed() / 1000);
}

// Of all threads, which other programs disturb least.
int processorMicroseconds()
{
    timespec now{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return int(now.tv_sec * 1'000'000 + now.tv_nsec / 1000);
}

std::unique_ptr<Crumbs> createCrumbs(const QString &side)
{
    if (side == QStringLiteral("bar"))
        return std::make_unique<BarCrumbs>();
    return std::make_unique<PlainCrumbs>();
}

// From one of two paths to the other and back.
void measureRebuild(const QString &side, const QString &one, const QString &other,
                    Recorder *recorder)
{
    const std::unique_ptr<Crumbs> crumbs = createCrumbs(side);
    crumbs->widget()->resize(1000, 24);
    crumbs->widget()->show();
    crumbs->setPath(one);
    settle();
    const auto pathOf = [&](int i) { return i % 2 == 0 ? other : one; };
    recorder->measure(QStringLiteral("rebuild"), 20, [&](int i) { crumbs->setPath(pathOf(i)); });
    settle();
    recorder->measure(QStringLiteral("rebuild until painted"), 20, [&](int i) {
        crumbs->setPath(pathOf(i));
        settle();
    });
}

void measureMenu(const QString &side, const QString &folder, Recorder *recorder)
{
    const std::unique_ptr<Crumbs> crumbs = createCrumbs(side);
    crumbs->widget()->resize(1000, 24);
    crumbs->widget()->show();
    settle();
    QStringList names;
    recorder->measure(QStringLiteral("list"), 5, [&](int) {
        names = QDir(folder).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
    });
    recorder->measure(QStringLiteral("build"), 1, [&](int) { crumbs->setPath(folder); });
    settle();
    QMenu *menu = crumbs->lastMenu();
    if (!menu || menu->actions().size() != names.size())
        qFatal("the menu lacks folders");
    recorder->measure(QStringLiteral("popup"), 1, [&](int) {
        menu->popup({});
        settle();
    });
    menu->hide();
}

// Whether a view has painted rows.
class RowWitness : public QObject
{
public:
    explicit RowWitness(QTreeView *view)
        : m_view(view)
    {
        view->viewport()->installEventFilter(this);
    }

    bool seen = false;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        Q_UNUSED(watched)
        if (event->type() == QEvent::Paint)
            seen = m_view->model()->rowCount(m_view->rootIndex()) > 0;
        return false;
    }

private:
    QTreeView *m_view;
};

// Qt's thread sends the first hundred rows, with the two that no view shows, and then the others.
constexpr int firstEntries = 102;

// Loads a folder until all rows are there, with what a person sees of it meanwhile.
void measureLoad(const QString &side, const QString &folder, int count, Recorder *recorder)
{
    Norvane::AddressBar bar;
    // Without a theme the model's own would paint none, which is less work.
    QFileIconProvider plainIcons;
    QFileSystemModel plainModel;
    plainModel.setIconProvider(&plainIcons);
    QTreeView plainView;
    QTreeView *view = &plainView;
    QElapsedTimer timer;
    if (side == QStringLiteral("bar")) {
        view = bar.treeView();
    } else {
        plainModel.setReadOnly(false);
        plainView.setModel(&plainModel);
        plainView.setRootIndex(plainModel.setRootPath(QDir::homePath()));
    }
    view->resize(600, 800);
    view->show();
    settle();
    recorder->memory(QStringLiteral("before"));
    RowWitness witness(view);
    // Whether the others come before these are painted would be a matter of chance in a small
    // folder, and with it how much of the work is done at a stretch.
    Calls::holdReaders(firstEntries);
    const int start = processorMicroseconds();
    timer.start();
    if (side == QStringLiteral("bar"))
        QMetaObject::invokeMethod(view, "slotPathChanged", folder);
    else
        plainView.setRootIndex(plainModel.setRootPath(folder));
    int first = 0;
    int longest = microseconds(timer);
    for (int rows = 0; rows < count;) {
        QElapsedTimer turn;
        turn.start();
        // What waits for something to happen is no stall.
        if (!QAbstractEventDispatcher::instance()->processEvents(QEventLoop::AllEvents)) {
            if (witness.seen)
                Calls::releaseReaders();
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 1);
        }
        longest = qMax(longest, microseconds(turn));
        rows = view->model()->rowCount(view->rootIndex());
        if (first == 0 && witness.seen)
            first = microseconds(timer);
    }
    recorder->add(QStringLiteral("loaded"), microseconds(timer));
    QElapsedTimer turn;
    turn.start();
    settle();
    longest = qMax(longest, microseconds(turn));
    recorder->add(QStringLiteral("settled"), microseconds(timer));
    recorder->add(QStringLiteral("processor"), processorMicroseconds() - start);
    recorder->add(QStringLiteral("first rows"), first == 0 ? microseconds(timer) : first);
    recorder->add(QStringLiteral("longest stall"), longest);
    recorder->memory(QStringLiteral("loaded"));
}

int inotifyWatches()
{
    int watches = 0;
    const QFileInfoList entries = QDir(QStringLiteral("/proc/self/fdinfo")).entryInfoList();
    for (const QFileInfo &entry : entries) {
        QFile file(entry.filePath());
        if (file.open(QIODevice::ReadOnly))
            watches += int(file.readAll().count("inotify wd"));
    }
    return watches;
}

// Goes through the folders in a folder, up and down: with the bar, with the bar and its tree, or
// with a view of Qt's alone.
void measureNavigations(const QString &side, const QString &folder, int navigations,
                        Recorder *recorder)
{
    Norvane::AddressBar bar;
    bar.resize(1000, 24);
    QFileSystemModel plainModel;
    QTreeView plainView;
    if (side == QStringLiteral("plain")) {
        plainView.setModel(&plainModel);
        plainView.show();
    } else {
        bar.show();
    }
    if (side == QStringLiteral("bar and tree"))
        bar.treeView()->show();
    const QStringList names = QDir(folder).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    int opendirs = 0;
    int stats = 0;
    const auto navigate = [&](int i) {
        const QString path = i % 2 == 0 ? folder + u'/' + names.at(i / 2 % names.size()) : folder;
        Calls::take();
        if (side == QStringLiteral("plain"))
            plainView.setRootIndex(plainModel.setRootPath(path));
        else
            bar.setPath(path);
        const Calls::Counts counts = Calls::take();
        opendirs = qMax(opendirs, counts.opendirs);
        stats = qMax(stats, counts.stats);
        settle();
    };
    // Every folder once, which stays in the model.
    for (int i = 0; i < 2 * names.size(); ++i)
        navigate(i);
    recorder->memory(QStringLiteral("before"));
    recorder->add(QStringLiteral("watches before"), inotifyWatches());
    opendirs = 0;
    stats = 0;
    for (int i = 0; i < navigations; ++i)
        navigate(i);
    recorder->add(QStringLiteral("watches after"), inotifyWatches());
    recorder->memory(QStringLiteral("after"));
    recorder->add(QStringLiteral("opendirs"), opendirs);
    recorder->add(QStringLiteral("stats"), stats);
}

void copyPlain(const QString &source, const QString &target)
{
    if (QFileInfo(source).isFile()) {
        QFile::copy(source, target);
        return;
    }
    QDir().mkpath(target);
    const QDir from(source);
    const QStringList files = from.entryList(QDir::Files);
    for (const QString &name : files)
        QFile::copy(from.filePath(name), target + u'/' + name);
    const QStringList folders = from.entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString &name : folders)
        copyPlain(from.filePath(name), target + u'/' + name);
}

void measureCopy(const QString &side, const QString &source, const QString &target,
                 Recorder *recorder)
{
    Norvane::AddressBar bar;
    bar.setPath(target);
    QTreeView *tree = bar.treeView();
    settle();
    auto *data = new QMimeData;
    data->setUrls({QUrl::fromLocalFile(source)});
    QGuiApplication::clipboard()->setMimeData(data);
    const int start = processorMicroseconds();
    if (side == QStringLiteral("bar")) {
        QKeyEvent paste(QEvent::KeyPress, Qt::Key_V, Qt::ControlModifier);
        QCoreApplication::sendEvent(tree, &paste);
    } else {
        copyPlain(source, target + u'/' + QFileInfo(source).fileName());
    }
    recorder->add(QStringLiteral("copied"), processorMicroseconds() - start);
}

} // namespace

int main(int argc, char **argv)
{
    const QApplication app(argc, argv);
    Look::apply();
    const QStringList arguments = QCoreApplication::arguments();
    const QString what = arguments.value(1);
    const QString side = arguments.value(2);
    const QString folder = arguments.value(3);
    Recorder recorder(nullptr);
    if (what == QStringLiteral("rebuild"))
        measureRebuild(side, folder, arguments.value(4), &recorder);
    else if (what == QStringLiteral("menu"))
        measureMenu(side, folder, &recorder);
    else if (what == QStringLiteral("load"))
        measureLoad(side, folder, arguments.value(4).toInt(), &recorder);
    else if (what == QStringLiteral("navigate"))
        measureNavigations(side, folder, arguments.value(4).toInt(), &recorder);
    else if (what == QStringLiteral("copy"))
        measureCopy(side, folder, arguments.value(4), &recorder);
    std::puts(QJsonDocument(recorder.result()).toJson(QJsonDocument::Compact).constData());
}
