// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

// Notes in two sections with panels around them. The layout is kept from one run to the next.

#include <Norvane/DockContainer.h>
#include <Norvane/DockContentWidget.h>
#include <Norvane/DockPanelWidget.h>

#include <QtCore/QFile>
#include <QtCore/QSettings>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLabel>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QMainWindow>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QTreeWidget>

using Norvane::DockContainer;
using Norvane::DockContentWidget;

static const QList<QPair<QString, QStringList>> sections{
    {"Home", {"Shopping\nBread, cheese\nTwo lemons", "Garden\nSow the beans\nMend the fence"}},
    {"Travel", {"Night trains\nMalmö 22:34\nBerlin 6:10", "Islands\nFerry at noon\nTake the tent"}},
};

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    // The library's sheet, for what stands in the status bar.
    QFile sheet(":/norvane/norvanelight.css");
    if (sheet.open(QIODevice::ReadOnly))
        app.setStyleSheet(sheet.readAll());

    QMainWindow window;
    auto *docks = new DockContainer(&window);
    window.setCentralWidget(docks);
    docks->setupMainWindow(&window);

    const auto addView = [docks](DockContainer::DockArea area, QWidget *view, const QString &text) {
        const QIcon icon(":/icons/" + text.toLower() + ".svg");
        docks->panelWidget(area)->addView(view, icon, text);
    };
    auto *notes = new QTreeWidget;
    notes->setHeaderHidden(true);
    notes->setIndentation(12);
    auto *outline = new QListWidget;
    auto *properties = new QLabel;
    properties->setMargin(8);
    properties->setAlignment(Qt::AlignTop | Qt::AlignLeading);
    auto *log = new QPlainTextEdit;
    log->setReadOnly(true);
    addView(DockContainer::LeftDockArea, notes, "Files");
    docks->panelWidget(DockContainer::LeftDockArea)
        ->tabifyView(0, outline, QIcon(":/icons/outline.svg"), "Outline");
    addView(DockContainer::RightDockArea, properties, "Properties");
    addView(DockContainer::BottomDockArea, log, "Log");

    DockContentWidget *content = docks->contentWidget();
    const auto showNote = [content, outline, properties] {
        auto *note =
            qobject_cast<QPlainTextEdit *>(content->currentWidget(content->currentSection()));
        const QString text = note ? note->toPlainText() : QString();
        outline->clear();
        outline->addItems(text.split('\n'));
        properties->setText(QString("%1 characters\n%2 words")
                                .arg(text.size())
                                .arg(text.simplified().split(' ', Qt::SkipEmptyParts).size()));
    };
    const auto openNote = [content, log, showNote](int section, const QString &text) {
        auto *note = new QPlainTextEdit(text);
        QObject::connect(note, &QPlainTextEdit::textChanged, content, showNote);
        const QString title = text.section('\n', 0, 0);
        content->setCurrentTab(section, content->addTab(section, note, title));
        log->appendPlainText("Opened " + title);
    };
    QObject::connect(content, &DockContentWidget::signalCurrentSectionChanged, outline, showNote);
    QObject::connect(content, &DockContentWidget::signalCurrentTabChanged, outline, showNote);
    QObject::connect(notes, &QTreeWidget::itemDoubleClicked, content, [=](QTreeWidgetItem *item) {
        if (QTreeWidgetItem *parent = item->parent()) {
            const int section = notes->indexOfTopLevelItem(parent);
            openNote(section, sections[section].second[parent->indexOfChild(item)]);
        }
    });
    QObject::connect(content, &DockContentWidget::signalTabCloseRequested, content,
                     [content, log](Norvane::CloseMode mode, int section, int index) {
                         for (int tab = content->tabCount(section) - 1; tab >= 0; --tab) {
                             const bool wanted[] = {tab == index, tab<index, tab> index,
                                                    tab != index, true};
                             if (!wanted[mode])
                                 continue;
                             log->appendPlainText("Closed " + content->tabText(section, tab));
                             QWidget *note = content->widget(section, tab);
                             content->removeTab(section, tab);
                             note->deleteLater();
                         }
                     });

    for (const auto &[title, texts] : sections) {
        const int section = content->addSection(title);
        auto *parent = new QTreeWidgetItem(notes, {title});
        for (const QString &text : texts) {
            auto *item = new QTreeWidgetItem(parent, {text.section('\n', 0, 0)});
            item->setIcon(0, QIcon(":/icons/text-file.svg"));
            openNote(section, text);
        }
    }
    notes->expandAll();
    content->setCurrentTab(0, 0);

    window.resize(1000, 600);
    QSettings settings("Norvane", "dock-example");
    docks->restoreState(settings.value("docks").toByteArray());
    window.show();
    const int status = QApplication::exec();
    settings.setValue("docks", docks->saveState());
    return status;
}
