// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "NorvaneAgent_p.h"

#include "DockContentWidget.h"
#include "DockPanelWidget.h"
#include "StyleSheet.h"

#include <QtGui/QStyleHints>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDialog>
#include <QtWidgets/QMainWindow>
#include <QtWidgets/QVBoxLayout>

using namespace Norvane;

static QVBoxLayout *makeColumn(QWidget *widget)
{
    auto *column = new QVBoxLayout(widget);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    return column;
}

static void applyStyleSheet(const QWidget *base)
{
    qApp->setStyleSheet(base->styleSheet()
                        + StyleSheet::read(QStringLiteral(":/norvane/norvanelight.css")));
}

NorvaneAgentPrivate::NorvaneAgentPrivate()
    : ribbonBar(new RibbonBar)
{
}

NorvaneAgentPrivate::~NorvaneAgentPrivate() = default;

void NorvaneAgentPrivate::setUpWindow(QMainWindow *window, bool withAddressBar, bool withDockPanels)
{
    Q_Q(NorvaneAgent);
    if (!window)
        return;

    auto *centre = new QWidget;
    window->setCentralWidget(centre);
    auto *column = makeColumn(centre);
    column->addWidget(ribbonBar);
    if (withAddressBar) {
        addressBar = new AddressBar;
        column->addWidget(addressBar);
    }
    dockContainer = new DockContainer;
    column->addWidget(dockContainer);

    if (withDockPanels) {
        dockContainer->setupMainWindow(window);
    } else {
        for (const auto area : {DockContainer::LeftDockArea, DockContainer::BottomDockArea,
                                DockContainer::RightDockArea})
            dockContainer->panelWidget(area)->panel()->hide();
    }

    QObject::connect(dockContainer->contentWidget(),
                     &DockContentWidget::signalCurrentSectionChanged, q,
                     [this](int section) { showPagesOf(section); });
    applyStyleSheet(window);
}

void NorvaneAgentPrivate::setUpDialog(QDialog *dialog, QWidget *content)
{
    if (!dialog || dialog->layout())
        return;

    auto *line = new QFrame;
    line->setFrameShape(QFrame::HLine);
    line->setFixedHeight(1);
    // Applications find the line by this text, so its semicolon stays inside the parenthesis.
    line->setStyleSheet(QStringLiteral("border:none; background-color: rgb(125, 125, 125;)"));

    auto *column = makeColumn(dialog);
    column->addWidget(ribbonBar);
    column->addWidget(line);
    if (content)
        column->addWidget(content);
    applyStyleSheet(dialog);
}

void NorvaneAgentPrivate::showPagesOf(int section)
{
    if (!ribbonBar)
        return;
    ribbonBar->hideTemporaryPages();
    const QList<QPointer<RibbonPage>> pages = pageBindings.value(section);
    if (pages.isEmpty()) {
        ribbonBar->setCurrentIndex(0);
        return;
    }
    for (qsizetype i = 0; i < pages.size(); ++i) {
        if (!pages.at(i))
            continue;
        const int index = ribbonBar->indexOf(pages.at(i));
        ribbonBar->setPageVisible(index, true);
        if (i == 0)
            ribbonBar->setCurrentIndex(index);
    }
}

NorvaneAgent::NorvaneAgent(QObject *parent)
    : NorvaneAgent(*new NorvaneAgentPrivate, parent)
{
}

NorvaneAgent::NorvaneAgent(NorvaneAgentPrivate &dd, QObject *parent)
    : QObject(parent)
    , d_ptr(&dd)
{
    d_ptr->q_ptr = this;
    QGuiApplication::styleHints()->setColorScheme(Qt::ColorScheme::Light);
}

NorvaneAgent::~NorvaneAgent() = default;

void NorvaneAgent::setup(QMainWindow *window, bool withAddressBar, bool withDockPanels)
{
    Q_D(NorvaneAgent);
    std::call_once(d->setupOnce, [&] { d->setUpWindow(window, withAddressBar, withDockPanels); });
}

void NorvaneAgent::setup(QDialog *dialog, QWidget *content)
{
    Q_D(NorvaneAgent);
    std::call_once(d->setupOnce, [&] { d->setUpDialog(dialog, content); });
}

bool NorvaneAgent::bindRibbonPagesAndDockPartition(const QList<RibbonPage *> &pages, int section)
{
    Q_D(NorvaneAgent);
    if (pages.isEmpty() || !d->dockContainer)
        return false;
    d->pageBindings.insert(section, {pages.cbegin(), pages.cend()});
    return true;
}

RibbonBar *NorvaneAgent::ribbonBar() const
{
    Q_D(const NorvaneAgent);
    return d->ribbonBar;
}

AddressBar *NorvaneAgent::addressBar() const
{
    Q_D(const NorvaneAgent);
    return d->addressBar;
}

DockContainer *NorvaneAgent::dockContainer() const
{
    Q_D(const NorvaneAgent);
    return d->dockContainer;
}
