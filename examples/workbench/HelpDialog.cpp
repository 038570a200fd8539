// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "HelpDialog.h"

#include "Texts.h"

#include <QtCore/QCoreApplication>
#include <QtGui/QAction>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLabel>
#include <QtWidgets/QTreeWidget>
#include <QtWidgets/QVBoxLayout>

namespace Workbench {

static QTreeWidget *shortcutList(const QList<QAction *> &commands)
{
    auto *list = new QTreeWidget;
    list->setColumnCount(2);
    list->setRootIsDecorated(false);
    list->setAlternatingRowColors(true);
    list->setHeaderLabels({HelpDialog::tr("Command"), HelpDialog::tr("Keys")});
    for (const QAction *command : commands) {
        if (command->shortcut().isEmpty())
            continue;
        QString text = command->text();
        text.replace(u'\n', u' ');
        const QString keys =
            QKeySequence::listToString(command->shortcuts(), QKeySequence::NativeText)
                .replace(QStringLiteral("; "), QStringLiteral(",  "));
        auto *item = new QTreeWidgetItem(list, {text, isolated(keys)});
        item->setIcon(0, command->icon());
    }
    list->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    list->header()->setStretchLastSection(false);
    list->header()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
    return list;
}

HelpDialog::HelpDialog(const QList<QAction *> &commands, QWidget *parent)
    : QDialog(parent)
{
    setWindowTitle(tr("Help"));

    auto *picture = new QLabel;
    picture->setPixmap(windowIcon().pixmap(QSize(48, 48), devicePixelRatio()));
    auto *about = new QLabel(
        tr("<b>Norvane Workbench %1</b><br>A viewer and editor for texts and pictures that shows "
           "the Norvane widgets at work.")
            .arg(QCoreApplication::applicationVersion()));
    about->setWordWrap(true);
    auto *top = new QHBoxLayout;
    top->setSpacing(12);
    top->addWidget(picture, 0, Qt::AlignTop);
    top->addWidget(about, 1);

    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(16, 16, 16, 12);
    layout->setSpacing(12);
    layout->addLayout(top);
    layout->addWidget(shortcutList(commands), 1);
    layout->addWidget(buttons);
    resize(460, 520);
}

} // namespace Workbench
