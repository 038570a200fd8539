// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "DockSubject.h"
#include "DockWidgetSubject.h"
#include "Look.h"
#include "PaintWitness.h"
#include "Recorder.h"
#include "SkeletonSubject.h"

#include <Norvane/DockContainer.h>
#include <Norvane/DockContentWidget.h>

#include <QtCore/QJsonDocument>
#include <QtWidgets/QApplication>
#include <QtWidgets/QTabWidget>
#include <QtWidgets/QVBoxLayout>

#include <cstdio>

namespace {

class PolishWitness : public QObject
{
public:
    PolishWitness() { qApp->installEventFilter(this); }

    int count = 0;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        Q_UNUSED(watched)
        count += event->type() == QEvent::Polish || event->type() == QEvent::StyleChange;
        return false;
    }
};

std::unique_ptr<Subject> create(const QString &side)
{
    if (side == QStringLiteral("dock"))
        return std::make_unique<DockSubject>();
    if (side == QStringLiteral("skeleton"))
        return std::make_unique<SkeletonSubject>();
    return std::make_unique<DockWidgetSubject>();
}

void measureViews(const QString &side, int views, int restores, Recorder *recorder)
{
    std::unique_ptr<Subject> subject;
    recorder->measure(QStringLiteral("start"), 1, [&](int) {
        subject = create(side);
        for (int i = 0; i < views; ++i)
            subject->addView(i % 3, new QWidget);
        subject->window()->resize(1200, 800);
        subject->window()->show();
        settle();
    });
    // Hiding the dock widgets of a main window takes seconds when there are many.
    const bool slow = side == QStringLiteral("dockwidgets");
    recorder->measure(QStringLiteral("minimize"), slow ? 4 : 40, [&](int i) {
        subject->setMinimized(i % 2 == 0);
        settle();
    });
    QByteArray state;
    recorder->measure(QStringLiteral("save"), 200, [&](int) { state = subject->save(); });
    recorder->measure(QStringLiteral("restore"), slow ? 2 : 10, [&](int) {
        subject->restore(state);
        settle();
    });
    recorder->memory(QStringLiteral("before restores"));
    const qsizetype widgets = QApplication::allWidgets().size();
    if (restores > 0) {
        recorder->measure(QStringLiteral("many restores"), restores, [&](int) {
            subject->restore(state);
            settle();
        });
    }
    recorder->memory(QStringLiteral("after restores"));
    recorder->add(QStringLiteral("more widgets"), int(QApplication::allWidgets().size() - widgets));
}

// Tabs of sections, added to a window that is shown, switched and removed.
void measureTabs(const QString &side, int tabs, int sections, Recorder *recorder)
{
    QWidget window;
    auto *layout = new QVBoxLayout(&window);
    Norvane::DockContainer *container = nullptr;
    QList<QTabWidget *> plain;
    if (side == QStringLiteral("dock")) {
        container = new Norvane::DockContainer;
        layout->addWidget(container);
        for (int i = 0; i < sections; ++i)
            container->contentWidget()->addSection(QStringLiteral("section"));
    } else {
        auto *outer = new QTabWidget;
        outer->setTabPosition(QTabWidget::South);
        layout->addWidget(outer);
        for (int i = 0; i < sections; ++i) {
            plain << new QTabWidget;
            plain.constLast()->setTabsClosable(true);
            plain.constLast()->setMovable(true);
            outer->addTab(plain.constLast(), QStringLiteral("section"));
        }
    }
    window.resize(1200, 800);
    window.show();
    settle();
    recorder->measure(QStringLiteral("add"), 1, [&](int) {
        for (int i = 0; i < tabs; ++i) {
            const QString text = QStringLiteral("document %1.txt").arg(i);
            if (container)
                container->contentWidget()->addTab(i % sections, new QWidget, text);
            else
                plain.at(i % sections)->addTab(new QWidget, text);
        }
        settle();
    });
    const int inFirst = tabs / sections;
    recorder->measure(QStringLiteral("switch"), 100, [&](int i) {
        const int index = i * 37 % inFirst;
        if (container)
            container->contentWidget()->setCurrentTab(0, index);
        else
            plain.at(0)->setCurrentIndex(index);
        settle();
    });
    recorder->measure(QStringLiteral("remove"), 1, [&](int) {
        for (int i = 0; i < tabs; ++i) {
            QWidget *widget;
            if (container) {
                widget = container->contentWidget()->widget(i % sections, 0);
                container->contentWidget()->removeTab(i % sections, 0);
            } else {
                widget = plain.at(i % sections)->widget(0);
                plain.at(i % sections)->removeTab(0);
            }
            delete widget;
        }
        settle();
    });
}

// What a minimize does to widgets: none is made, none polished again.
void countMinimize(int views, Recorder *recorder)
{
    DockSubject subject;
    for (int i = 0; i < views; ++i)
        subject.addView(i % 3, new QWidget);
    subject.window()->resize(1200, 800);
    subject.window()->show();
    settle();
    const qsizetype widgets = QApplication::allWidgets().size();
    PolishWitness witness;
    for (int i = 0; i < 10; ++i) {
        subject.setMinimized(i % 2 == 0);
        settle();
    }
    recorder->add(QStringLiteral("widgets made"), int(QApplication::allWidgets().size() - widgets));
    recorder->add(QStringLiteral("widgets polished"), witness.count);
}

} // namespace

// bench_dock views SIDE COUNT RESTORES | tabs SIDE COUNT SECTIONS | count COUNT
int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    Look::apply();
    const QStringList arguments = QApplication::arguments();
    const QString what = arguments.value(1);
    Recorder recorder(nullptr);
    if (what == QStringLiteral("views")) {
        measureViews(arguments.value(2), arguments.value(3).toInt(), arguments.value(4).toInt(),
                     &recorder);
    } else if (what == QStringLiteral("tabs")) {
        measureTabs(arguments.value(2), arguments.value(3).toInt(), arguments.value(4).toInt(),
                    &recorder);
    } else if (what == QStringLiteral("count")) {
        countMinimize(arguments.value(2).toInt(), &recorder);
    } else {
        std::fputs(
            "bench_dock views SIDE COUNT RESTORES | tabs SIDE COUNT SECTIONS | count COUNT\n",
            stderr);
        return 1;
    }
    std::puts(QJsonDocument(recorder.result()).toJson(QJsonDocument::Compact).constData());
    return 0;
}
