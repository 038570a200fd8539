// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

// A viewer of texts: an address bar over its tree of files and the text that is open.

#include <Norvane/AddressBar.h>

#include <QtCore/QDir>
#include <QtGui/QAction>
#include <QtWidgets/QApplication>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QSplitter>
#include <QtWidgets/QTreeView>
#include <QtWidgets/QVBoxLayout>

int main(int argc, char **argv)
{
    QApplication app(argc, argv);

    QWidget window;
    auto *address = new Norvane::AddressBar;
    auto *text = new QPlainTextEdit;
    QTreeView *tree = address->treeView();
    for (int column = 2; column < tree->model()->columnCount(); ++column)
        tree->hideColumn(column);
    auto *splitter = new QSplitter;
    splitter->addWidget(tree);
    splitter->addWidget(text);
    splitter->setSizes({300, 500});
    auto *layout = new QVBoxLayout(&window);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(address);
    layout->addWidget(splitter, 1);

    text->setReadOnly(true);
    text->setPlaceholderText("Double-click a text in the tree to read it.");

    // Files with these suffixes are opened here, others by the system.
    for (const char *suffix : {"txt", "md", "cpp", "h", "cmake"})
        address->addSuffix(suffix);
    QObject::connect(address, &Norvane::AddressBar::signalFileOpen, &window,
                     [text, &window](const QString &path) {
                         QFile file(path);
                         if (file.open(QIODevice::ReadOnly)) {
                             text->setPlainText(QString::fromUtf8(file.readAll()));
                             window.setWindowFilePath(path);
                         }
                     });

    QAction newText("Text File");
    QObject::connect(&newText, &QAction::triggered, address, [address] {
        const QFileInfo place(address->actionTriggeredPath());
        const QDir folder(place.isDir() ? place.filePath() : place.path());
        QFile file(folder.filePath("New Text.txt"));
        if (!file.open(QIODevice::NewOnly))
            QMessageBox::warning(address, "New Text", file.errorString());
    });
    address->addNewAction(&newText);

    const QStringList arguments = QApplication::arguments();
    if (arguments.size() > 1)
        address->setPath(QFileInfo(arguments[1]).absoluteFilePath());
    window.resize(800, 520);
    window.show();
    return QApplication::exec();
}
