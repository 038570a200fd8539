// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

// A ribbon over a text: buttons large and small, a font box, the corner, and a page that is there
// only while there is something to use it on.

#include <Norvane/RibbonBar.h>
#include <Norvane/RibbonCorner.h>
#include <Norvane/RibbonGroup.h>
#include <Norvane/RibbonPage.h>
#include <Norvane/RibbonSubgroup.h>

#include <QtGui/QAction>
#include <QtWidgets/QApplication>
#include <QtWidgets/QFontComboBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMainWindow>
#include <QtWidgets/QTextEdit>

template<typename Slot>
static QAction *action(QTextEdit *edit, const QString &icon, const QString &text, Slot slot)
{
    auto *action = new QAction(QIcon(":/icons/" + icon + ".svg"), text, edit);
    QObject::connect(action, &QAction::triggered, edit, slot);
    return action;
}

static void addHomePage(Norvane::RibbonBar *ribbon, QTextEdit *edit)
{
    auto *paste = action(edit, "paste", "Paste", &QTextEdit::paste);
    auto *cut = action(edit, "cut", "Cut", &QTextEdit::cut);
    auto *copy = action(edit, "copy", "Copy", &QTextEdit::copy);
    auto *undo = action(edit, "undo", "Undo", &QTextEdit::undo);
    auto *redo = action(edit, "redo", "Redo", &QTextEdit::redo);
    auto *larger = action(edit, "zoom-in", "Larger", [edit] { edit->zoomIn(); });
    auto *smaller = action(edit, "zoom-out", "Smaller", [edit] { edit->zoomOut(); });
    for (QAction *later : {cut, copy, undo, redo})
        later->setEnabled(false);
    QObject::connect(edit, &QTextEdit::copyAvailable, cut, &QAction::setEnabled);
    QObject::connect(edit, &QTextEdit::copyAvailable, copy, &QAction::setEnabled);
    QObject::connect(edit, &QTextEdit::undoAvailable, undo, &QAction::setEnabled);
    QObject::connect(edit, &QTextEdit::redoAvailable, redo, &QAction::setEnabled);
    auto *family = new QFontComboBox;
    QObject::connect(family, &QFontComboBox::currentFontChanged, edit,
                     [edit](const QFont &font) { edit->setFontFamily(font.family()); });

    Norvane::RibbonPage *home = ribbon->addPage("Home", false);
    Norvane::RibbonGroup *clipboard = home->addGroup("Clipboard");
    clipboard->addAction(paste);
    Norvane::RibbonSubgroup *column = clipboard->addSubgroup();
    column->addAction(cut);
    column->addAction(copy);
    Norvane::RibbonGroup *font = home->addGroup("Font");
    font->addAction(larger);
    font->addAction(smaller);
    font->addSubgroup()->addWidget(family);
    Norvane::RibbonGroup *editing = home->addGroup("Editing");
    editing->addAction(undo);
    editing->addAction(redo);
}

static void addViewPage(Norvane::RibbonBar *ribbon, QTextEdit *edit)
{
    auto *wrap = action(edit, "wrap", "Wrap\nLines", [edit](bool on) {
        edit->setLineWrapMode(on ? QTextEdit::WidgetWidth : QTextEdit::NoWrap);
    });
    wrap->setCheckable(true);
    wrap->setChecked(true);
    ribbon->addPage("View", false)->addGroup("Text")->addAction(wrap);
}

static void addSelectionPage(Norvane::RibbonBar *ribbon, QTextEdit *edit)
{
    auto *upper = action(edit, "upper-case", "Upper\nCase", [edit] {
        edit->insertPlainText(edit->textCursor().selectedText().toUpper());
    });
    auto *lower = action(edit, "lower-case", "Lower\nCase", [edit] {
        edit->insertPlainText(edit->textCursor().selectedText().toLower());
    });

    Norvane::RibbonPage *selection = ribbon->addPage("Selection", true);
    selection->addGroup("Letters")->addActions({upper, lower});
    QObject::connect(edit, &QTextEdit::copyAvailable, ribbon, [ribbon, selection](bool selected) {
        if (!selected && ribbon->currentPage() == selection)
            ribbon->setCurrentIndex(0);
        ribbon->setPageVisible(ribbon->indexOf(selection), selected);
    });
}

int main(int argc, char **argv)
{
    QApplication app(argc, argv);

    QMainWindow window;
    auto *edit = new QTextEdit(&window);
    auto *ribbon = new Norvane::RibbonBar(&window);
    window.setMenuWidget(ribbon);
    window.setCentralWidget(edit);
    addHomePage(ribbon, edit);
    addViewPage(ribbon, edit);
    addSelectionPage(ribbon, edit);

    auto *size = new QLabel;
    size->setStyleSheet("color: white; margin-right: 8px");
    ribbon->corner()->addWidget(size);
    QObject::connect(edit, &QTextEdit::textChanged, size, [edit, size] {
        size->setText(QString("%1 characters").arg(edit->toPlainText().size()));
    });

    edit->setText("Select some text, and a page for it comes up.");
    window.resize(720, 440);
    window.show();
    return QApplication::exec();
}
