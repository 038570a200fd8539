// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "AddressBar_p.h"

#include "AddressStrip.h"
#include "AddressTree.h"
#include "StyleSheet.h"

#include <QtCore/QDir>
#include <QtGui/QAction>
#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QMenu>
#include <QtWidgets/QPushButton>

namespace Norvane {

namespace {

class DirectionFilter : public QObject
{
public:
    DirectionFilter(AddressBarPrivate *bar, QObject *parent)
        : QObject(parent)
        , m_bar(bar)
    {
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::LayoutDirectionChange)
            m_bar->turnArrows();
        return QObject::eventFilter(watched, event);
    }

private:
    AddressBarPrivate *const m_bar;
};

} // namespace

void AddressBarPrivate::init()
{
    Q_Q(AddressBar);
    auto *row = new QHBoxLayout(q);
    row->setContentsMargins(5, 0, 5, 0);
    row->setSpacing(5);
    auto *buttons = new QHBoxLayout;
    buttons->setContentsMargins(0, 0, 0, 0);
    buttons->setSpacing(1);
    const auto addButton = [this, q, buttons](const QString &icon, const QString &name) {
        auto *button = new QPushButton(q);
        button->setObjectName(QStringLiteral("addressButton"));
        button->setAccessibleName(name);
        button->setFlat(true);
        button->setIcon(QIcon(icon));
        buttons->addWidget(button);
        QObject::connect(button, &QPushButton::clicked, q, [this, button] { follow(button); });
        return button;
    };
    backwardButton = addButton(QStringLiteral(":/res/backward.svg"), AddressBar::tr("Back"));
    forwardButton = addButton(QStringLiteral(":/res/forward.svg"), AddressBar::tr("Forward"));
    arrows = {backwardButton->icon(), forwardButton->icon()};
    q->installEventFilter(new DirectionFilter(this, q));
    turnArrows();
    dirupButton = addButton(QStringLiteral(":/res/dirup.svg"), AddressBar::tr("Up"));
    browseButton = addButton(QStringLiteral(":/res/browse.svg"), AddressBar::tr("Browse"));
    strip = new AddressStrip(q);
    row->addLayout(buttons);
    row->addWidget(strip);
    q->setContextMenuPolicy(Qt::CustomContextMenu);
    clipboard = QGuiApplication::clipboard();
    createContextMenu();
}

// Back is where the text comes from. Icons that the application has set stay.
void AddressBarPrivate::turnArrows()
{
    Q_Q(AddressBar);
    const auto turn = [this](QPushButton *button, const QIcon &arrow) {
        const qint64 key = button->icon().cacheKey();
        if (key == arrows.first.cacheKey() || key == arrows.second.cacheKey())
            button->setIcon(arrow);
    };
    turn(backwardButton, q->isRightToLeft() ? arrows.second : arrows.first);
    turn(forwardButton, q->isRightToLeft() ? arrows.first : arrows.second);
}

void AddressBarPrivate::createContextMenu()
{
    Q_Q(AddressBar);
    const auto createAction = [q](const QString &text, const auto &act) {
        auto *action = new QAction(text, q);
        QObject::connect(action, &QAction::triggered, q, act);
        return action;
    };
    cutAction = createAction(AddressBar::tr("Cut"), [this] {
        clipboard->setText(strip->path());
        strip->edit(QString());
    });
    cutAction->setShortcut(QKeySequence::Cut);
    copyAction =
        createAction(AddressBar::tr("Copy"), [this] { clipboard->setText(strip->path()); });
    copyAction->setShortcut(QKeySequence::Copy);
    pasteAction = createAction(AddressBar::tr("Paste"), [this] { strip->edit(clipboard->text()); });
    pasteAction->setShortcut(QKeySequence::Paste);
    pasteAndGoAction =
        createAction(AddressBar::tr("Paste and Go"), [this] { strip->setPath(clipboard->text()); });
    selectAllAction =
        createAction(AddressBar::tr("Select All"), [this] { strip->edit(strip->path()); });
    selectAllAction->setShortcut(QKeySequence::SelectAll);
    deleteAction = createAction(AddressBar::tr("Delete"), [this] { strip->edit(QString()); });
    deleteAction->setShortcut(QKeySequence::Delete);

    contextMenu = new QMenu(nullptr);
    contextMenu->addActions(
        {cutAction, copyAction, pasteAction, pasteAndGoAction, selectAllAction, deleteAction});
    QObject::connect(q, &QWidget::customContextMenuRequested, q,
                     [this, q](QPoint position) { contextMenu->exec(q->mapToGlobal(position)); });
}

QPushButton *AddressBarPrivate::button(AddressBar::AddressButton button) const
{
    switch (button) {
    case AddressBar::Backward:
        return backwardButton;
    case AddressBar::Forward:
        return forwardButton;
    case AddressBar::DirUp:
        return dirupButton;
    case AddressBar::Browse:
        return browseButton;
    }
    return nullptr;
}

void AddressBarPrivate::follow(QPushButton *clicked)
{
    if (clicked == backwardButton)
        strip->goBackward();
    else if (clicked == forwardButton)
        strip->goForward();
    else if (clicked == dirupButton)
        strip->goUp();
    else if (clicked == browseButton)
        strip->browse();
}

AddressTree *AddressBarPrivate::ensureTree()
{
    Q_Q(AddressBar);
    if (tree)
        return tree;
    tree = new AddressTree(nullptr);
    tree->setStyleSheet(q->styleSheet());
    tree->slotPathChanged(strip->path());
    QObject::connect(tree, &AddressTree::signalPathChanged, strip, &AddressStrip::slotPathChanged);
    QObject::connect(tree, &AddressTree::signalFileOpen, q, &AddressBar::signalFileOpen);
    QObject::connect(strip, &AddressStrip::signalPathChanged, tree, &AddressTree::slotPathChanged);
    return tree;
}

void AddressBarPrivate::pushSuffixes()
{
    if (tree)
        tree->setSuffixes(suffixes);
}

AddressBar::AddressBar(QWidget *parent)
    : AddressBar(*new AddressBarPrivate, parent)
{
    Q_D(AddressBar);
    setFixedHeight(24);
    setStyleSheet(StyleSheet::read(QStringLiteral(":/res/addressLight.css")));
    connect(d->strip, &AddressStrip::signalActionsEnabled, this,
            [d](bool backward, bool forward, bool dirup) {
                d->backwardButton->setEnabled(backward);
                d->forwardButton->setEnabled(forward);
                d->dirupButton->setEnabled(dirup);
            });
    connect(d->strip, &AddressStrip::signalPathChanged, this, &AddressBar::signalPathChanged);
    d->strip->resetPath(QDir::homePath());
}

AddressBar::AddressBar(AddressBarPrivate &dd, QWidget *parent)
    : QFrame(parent)
    , d_ptr(&dd)
{
    Q_D(AddressBar);
    d->q_ptr = this;
    d->init();
}

AddressBar::~AddressBar()
{
    Q_D(AddressBar);
    // An editor that loses the focus navigates: it must not outlive what its signals reach.
    delete d->strip;
    delete d->contextMenu;
    if (d->tree && !d->tree->parent())
        delete d->tree;
}

QString AddressBar::path() const
{
    Q_D(const AddressBar);
    return d->strip->path();
}

void AddressBar::setPath(const QString &path)
{
    Q_D(AddressBar);
    d->strip->setPath(path);
}

void AddressBar::resetPath(const QString &path)
{
    Q_D(AddressBar);
    d->strip->resetPath(path);
}

void AddressBar::setButtonIcon(AddressButton button, const QIcon &icon)
{
    Q_D(AddressBar);
    if (QPushButton *target = d->button(button))
        target->setIcon(icon);
}

void AddressBar::addSuffix(const QString &suffix)
{
    Q_D(AddressBar);
    if (d->suffixes.contains(suffix))
        return;
    d->suffixes.append(suffix);
    d->pushSuffixes();
}

void AddressBar::removeSuffix(const QString &suffix)
{
    Q_D(AddressBar);
    if (d->suffixes.removeOne(suffix))
        d->pushSuffixes();
}

void AddressBar::clearSuffixs()
{
    Q_D(AddressBar);
    d->suffixes.clear();
    // Even if there were none: so a tree can be told what it does not know yet.
    d->pushSuffixes();
}

QTreeView *AddressBar::treeView()
{
    Q_D(AddressBar);
    return d->ensureTree();
}

void AddressBar::addNewAction(QAction *action)
{
    Q_D(AddressBar);
    d->ensureTree()->addNewAction(action);
}

QString AddressBar::actionTriggeredPath()
{
    Q_D(AddressBar);
    return d->ensureTree()->targetPath();
}

} // namespace Norvane
