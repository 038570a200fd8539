// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "Gui.h"
#include "TestCase.h"

#include <Norvane/DockContainer.h>
#include <Norvane/DockContentWidget.h>
#include <Norvane/DockPanelWidget.h>
#include <dock/DockState.h>

#include <QtCore/QRandomGenerator>
#include <QtCore/QtEndian>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QSplitter>

using namespace Norvane;
using namespace Qt::StringLiterals;

class tst_DockState : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void writesWhatItReads();
    void readsEveryLayoutOfASplitter();
    void readsAPaneThatWasNeverShown();
    void readsTheLayoutOfALaterQt();
    void refusesWhatNoSplitterWrites_data();
    void refusesWhatNoSplitterWrites();
    void refusesSizesWithTheSeparator();
    void changesNothingForARefusedState();
    void harmsNothingWithAnAcceptedState();
};

namespace {

// Where things stand in the state of a splitter with three panes.
constexpr qsizetype sizesAt = 12;
constexpr qsizetype collapsibleAt = 24;
constexpr qsizetype handleWidthAt = 25;
constexpr qsizetype opaqueAt = 29;
constexpr qsizetype orientationAt = 30;
constexpr qsizetype opaqueSetAt = 34;

QByteArray with(QByteArray bytes, qsizetype position, qint32 value)
{
    qToBigEndian(value, bytes.data() + position);
    return bytes;
}

QByteArray withByte(QByteArray bytes, qsizetype position, char value)
{
    bytes[position] = value;
    return bytes;
}

class Container : public DockContainer
{
public:
    Container()
    {
        for (DockArea area : {LeftDockArea, RightDockArea, BottomDockArea}) {
            for (int i = 0; i < 2; ++i)
                panelWidget(area)->addView(new QWidget, QIcon(), u"view"_s);
        }
        const int section = contentWidget()->addSection(u"Texts"_s);
        contentWidget()->addTab(section, new QWidget, u"one"_s);
        resize(900, 600);
    }

    QSplitter *outer() const { return findChild<QSplitter *>(Qt::FindDirectChildrenOnly); }

    // Everything that a restore may touch.
    QVariantList look() const
    {
        QVariantList all{saveState(),
                         size(),
                         minimumSizeHint(),
                         outer()->orientation(),
                         outer()->handleWidth(),
                         outer()->childrenCollapsible()};
        const QList<QSplitter *> splitters = findChildren<QSplitter *>();
        for (const QSplitter *splitter : splitters)
            all << QVariant::fromValue(splitter->sizes()) << splitter->orientation();
        for (DockArea area : {LeftDockArea, RightDockArea, BottomDockArea}) {
            all << panelWidget(area)->isMinimized() << panelWidget(area)->panel()->geometry()
                << panelWidget(area)->stackedWidget()->geometry();
        }
        return all;
    }
};

void settle()
{
    for (int i = 0; i < 3; ++i)
        QCoreApplication::processEvents();
}

} // namespace

void tst_DockState::writesWhatItReads()
{
    QSplitter splitter;
    for (int i = 0; i < 3; ++i)
        splitter.addWidget(new QWidget);
    splitter.resize(600, 100);
    splitter.setSizes({100, 400, 100});
    const DockState state{splitter.saveState(), 1, 2000, 0x01020304};
    const QByteArray bytes = state.toBytes();
    QCOMPARE(bytes.size(), state.splitter.size() + 13);
    QCOMPARE(bytes.first(state.splitter.size()), state.splitter);
    QCOMPARE(bytes.last(13), QByteArray::fromHex("7c01000000d007000004030201"));
    const auto read = DockState::fromBytes(with(bytes, 0, 0xff), splitter.saveState());
    QVERIFY(!read); // a width of 0x01020304 is beyond every widget

    const DockState sane{splitter.saveState(), 1, 2000, 70000};
    const auto again = DockState::fromBytes(sane.toBytes(), splitter.saveState());
    QVERIFY(again);
    const DockState known = again.value_or(DockState());
    QCOMPARE(known.splitter, sane.splitter);
    QCOMPARE(known.leftWidth, 1);
    QCOMPARE(known.bottomHeight, 2000);
    QCOMPARE(known.rightWidth, 70000);
}

void tst_DockState::readsEveryLayoutOfASplitter()
{
    QRandomGenerator random(1);
    int separators = 0;
    for (int round = 0; round < 300; ++round) {
        QSplitter splitter;
        for (int i = 0; i < 3; ++i) {
            auto *pane = new QWidget;
            pane->setMinimumWidth(random.bounded(2) ? 0 : random.bounded(200));
            splitter.addWidget(pane);
            splitter.setStretchFactor(i, i == 1 ? 5 : 1);
        }
        splitter.setHandleWidth(random.bounded(8));
        splitter.setChildrenCollapsible(random.bounded(4) > 0);
        if (random.bounded(3) == 0)
            splitter.setOpaqueResize(random.bounded(2));
        if (random.bounded(4) == 0)
            splitter.widget(random.bounded(3))->hide();
        splitter.resize(random.bounded(1, 4000), 100);
        splitter.show();
        const QByteArray current = splitter.saveState();
        for (int layout = 0; layout < 100; ++layout) {
            if (random.bounded(10) == 0)
                splitter.resize(random.bounded(1, 4000), 100);
            splitter.setSizes({random.bounded(3) ? random.bounded(2000) : 0,
                               random.bounded(1, 2000),
                               random.bounded(3) ? random.bounded(2000) : 0});
            const QByteArray bytes = DockState{splitter.saveState(), random.bounded(2000),
                                               random.bounded(2000), random.bounded(2000)}
                                         .toBytes();
            if (bytes.count('\x7c') > 1) {
                ++separators;
                continue;
            }
            QVERIFY2(DockState::fromBytes(bytes, current), bytes.toHex());
        }
    }
    QVERIFY(separators > 0);
}

void tst_DockState::readsAPaneThatWasNeverShown()
{
    QByteArray states[2];
    for (const bool hidden : {false, true}) {
        QSplitter splitter;
        for (int i = 0; i < 3; ++i)
            splitter.addWidget(new QWidget);
        splitter.widget(0)->setHidden(hidden);
        splitter.resize(600, 100);
        splitter.show();
        states[hidden] = splitter.saveState();
    }
    QCOMPARE(states[true].mid(sizesAt, 4), QByteArray(4, '\xff'));
    QVERIFY(DockState::fromBytes(DockState{states[true], 1, 2, 3}.toBytes(), states[false]));
}

void tst_DockState::readsTheLayoutOfALaterQt()
{
    QSplitter splitter;
    for (int i = 0; i < 3; ++i)
        splitter.addWidget(new QWidget);
    splitter.resize(600, 100);
    splitter.show();
    // A new version number and more at the end, as earlier versions of Qt have done it.
    const QByteArray later = with(splitter.saveState(), 4, 9) + "later";
    QVERIFY(DockState::fromBytes(DockState{later, 1, 2, 3}.toBytes(), later));
    QVERIFY(!DockState::fromBytes(DockState{later, 1, 2, 3}.toBytes(), splitter.saveState()));
    QVERIFY(
        !DockState::fromBytes(DockState{with(later, orientationAt, 2), 1, 2, 3}.toBytes(), later));
    // One that stands in another order is left to its splitter, as long as the size is right.
    const QByteArray other = later.first(12) + QByteArray(30, '\x15');
    QVERIFY(DockState::fromBytes(DockState{other, 1, 2, 3}.toBytes(), other));
    QVERIFY(!DockState::fromBytes(DockState{other + '\x15', 1, 2, 3}.toBytes(), other));
    const QByteArray brief = later.first(12) + "brief";
    QVERIFY(DockState::fromBytes(DockState{brief, 1, 2, 3}.toBytes(), brief));
}

void tst_DockState::refusesWhatNoSplitterWrites_data()
{
    QTest::addColumn<QByteArray>("state");
    QSplitter splitter;
    for (int i = 0; i < 3; ++i)
        splitter.addWidget(new QWidget);
    splitter.setHandleWidth(0);
    splitter.resize(600, 100);
    splitter.show();
    const QByteArray good = splitter.saveState();
    const QByteArray tail = DockState{{}, 10, 20, 30}.toBytes();
    const auto row = [&](const char *name, const QByteArray &bytes) {
        QTest::newRow(name) << bytes + tail;
    };
    row("empty", {});
    row("magic", with(good, 0, 0x100));
    row("version", with(good, 4, 2));
    row("two panes", with(good, 8, 2));
    row("a million panes", with(good, 8, 1000000));
    row("negative size", with(good, sizesAt, -2));
    row("size beyond every widget", with(good, sizesAt + 4, QWIDGETSIZE_MAX + 1));
    row("no sizes", with(with(with(good, sizesAt, 0), sizesAt + 4, 0), sizesAt + 8, 0));
    row("never laid out", with(with(with(good, sizesAt, -1), sizesAt + 4, -1), sizesAt + 8, -1));
    row("huge handle", with(good, handleWidthAt, 0x40000000));
    row("wide handle", with(good, handleWidthAt, 2000));
    row("another handle", with(good, handleWidthAt, 7));
    row("panes that do not collapse", withByte(good, collapsibleAt, 0));
    row("neither collapsible nor not", withByte(good, collapsibleAt, 2));
    row("neither opaque nor not", withByte(good, opaqueAt, 2));
    row("neither asked for nor not", withByte(good, opaqueSetAt, 5));
    row("negative handle", with(good, handleWidthAt, -5));
    row("vertical", with(good, orientationAt, Qt::Vertical));
    row("no orientation", with(good, orientationAt, 0));
    row("longer", good + '\0');
    row("shorter", good.chopped(1));
    QTest::newRow("no remembered sizes") << good + '\x7c';
    QTest::newRow("too few remembered sizes") << good + tail.chopped(1);
    QTest::newRow("without separator") << good;
    QTest::newRow("two separators") << good + tail + '\x7c';
    QTest::newRow("remembered twice") << good + tail + tail;
    QTest::newRow("negative width") << good + DockState{{}, -1, 20, 30}.toBytes();
    QTest::newRow("negative height") << good + DockState{{}, 10, -20, 30}.toBytes();
    QTest::newRow("width beyond every widget")
        << good + DockState{{}, 10, 20, QWIDGETSIZE_MAX + 1}.toBytes();
    QTest::newRow("nothing") << QByteArray();
}

void tst_DockState::refusesWhatNoSplitterWrites()
{
    QFETCH(QByteArray, state);
    Container container;
    QVERIFY(Gui::open(&container));
    settle();
    QVERIFY(!DockState::fromBytes(state, container.outer()->saveState()));
    const QVariantList before = container.look();
    container.restoreState(state);
    settle();
    QCOMPARE(container.look(), before);
}

void tst_DockState::refusesSizesWithTheSeparator()
{
    Container container;
    QVERIFY(Gui::open(&container));
    container.outer()->setSizes({124, 626, 80});
    QByteArray state = container.saveState();
    QVERIFY(state.count('\x7c') == 2);
    QVERIFY(!DockState::fromBytes(state, container.outer()->saveState()));
    container.outer()->setSizes({100, 650, 80});
    state = container.saveState();
    QVERIFY(DockState::fromBytes(state, container.outer()->saveState()));
    state.replace(state.size() - 12, 1, "\x7c");
    QVERIFY(!DockState::fromBytes(state, container.outer()->saveState()));
}

void tst_DockState::changesNothingForARefusedState()
{
    Container container;
    QVERIFY(Gui::open(&container));
    container.outer()->setSizes({150, 600, 80});
    settle();
    const QByteArray good = container.saveState();
    QVERIFY(DockState::fromBytes(good, container.outer()->saveState()));
    const QVariantList before = container.look();

    QList<QByteArray> states;
    for (qsizetype length = 0; length < good.size(); ++length)
        states << good.first(length);
    for (qsizetype position = 0; position < good.size(); ++position) {
        for (int flip : {0x01, 0x80, 0xff}) {
            QByteArray state = good;
            state[position] = char(state.at(position) ^ flip);
            states << state;
        }
    }
    QRandomGenerator random(7);
    for (int i = 0; i < 2500; ++i) {
        QByteArray state = good;
        for (int change = random.bounded(1, 5); change > 0; --change) {
            const qsizetype position = random.bounded(int(state.size()));
            switch (random.bounded(4)) {
            case 0:
                state.insert(position, char(random.bounded(256)));
                break;
            case 1:
                state.remove(position, 1);
                break;
            default:
                state[position] = char(random.bounded(256));
                break;
            }
        }
        states << state;
    }
    int refused = 0;
    for (const QByteArray &state : std::as_const(states)) {
        const bool accepted =
            DockState::fromBytes(state, container.outer()->saveState()).has_value();
        container.restoreState(state);
        if (accepted) {
            // What it may change is looked at by another test.
            container.restoreState(good);
            for (auto area : {DockContainer::LeftDockArea, DockContainer::RightDockArea})
                container.panelWidget(area)->setMinimized(false);
            container.resize(900, 600);
        } else {
            ++refused;
        }
        settle();
        QVERIFY2(container.look() == before, state.toHex());
    }
    QVERIFY(refused > 1500);
}

void tst_DockState::harmsNothingWithAnAcceptedState()
{
    QRandomGenerator random(11);
    for (int i = 0; i < 100; ++i) {
        Container container;
        QVERIFY(Gui::open(&container));
        QByteArray state = container.saveState();
        for (qsizetype pane = 0; pane < 3; ++pane) {
            const qint32 size =
                random.bounded(4) ? random.bounded(3000) : random.bounded(QWIDGETSIZE_MAX);
            state = with(state, sizesAt + 4 * pane, size);
        }
        for (qsizetype remembered = 0; remembered < 3; ++remembered) {
            const qint32 size =
                random.bounded(4) ? random.bounded(3000) : random.bounded(QWIDGETSIZE_MAX);
            qToLittleEndian(size, state.data() + state.size() - 12 + 4 * remembered);
        }
        if (!DockState::fromBytes(state, container.outer()->saveState()))
            continue;
        container.restoreState(state);
        settle();
        QCOMPARE(container.size(), QSize(900, 600));
        QCOMPARE(container.outer()->orientation(), Qt::Horizontal);
        // Every pane can be sent away and brought back, the centre with it.
        for (auto area : {DockContainer::LeftDockArea, DockContainer::RightDockArea}) {
            DockPanelWidget *panelWidget = container.panelWidget(area);
            panelWidget->setViewVisible(0, true);
            settle();
            const QList<QAbstractButton *> buttons =
                panelWidget->panel()->findChildren<QAbstractButton *>();
            for (int click = 0; click < 2; ++click) {
                Gui::click(
                    buttons.at(panelWidget->currentIndex() < 0 ? 0 : panelWidget->currentIndex()));
                settle();
            }
            QVERIFY(!panelWidget->isMinimized());
            QVERIFY2(panelWidget->stackedWidget()->width() > 0, state.toHex());
        }
        QVERIFY2(container.outer()->widget(1)->width() > 0, state.toHex());
        QCOMPARE(container.size(), QSize(900, 600));
    }
}

NORVANE_TEST_MAIN(tst_DockState)
#include "tst_DockState.moc"
