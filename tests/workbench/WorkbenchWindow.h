// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "DocumentTabs.h"
#include "Files.h"
#include "Gui.h"
#include "MainWindow.h"
#include "TestCase.h"
#include "picture/PictureDocument.h"
#include "picture/PictureView.h"
#include "ribbon/WorkbenchRibbon.h"
#include "text/TextDocument.h"
#include "text/TextEditor.h"

#include <Norvane/DockContentWidget.h>
#include <Norvane/RibbonBar.h>

#include <QtCore/QTimer>
#include <QtGui/QAction>
#include <QtTest/QTest>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QTabBar>
#include <QtWidgets/QTabWidget>
#include <QtWidgets/QToolButton>

#include <functional>

//! The program's window, and the parts of it that a user sees and reaches.
class WorkbenchWindow : public Workbench::MainWindow
{
public:
    explicit WorkbenchWindow(const QStringList &paths = {})
    {
        QCoreApplication::setOrganizationName(QStringLiteral("Norvane"));
        QCoreApplication::setApplicationName(QStringLiteral("workbench-test"));
        show();
        activateWindow();
        opened = QTest::qWaitForWindowActive(this, patience);
        open(paths);
        // The first document makes its place among the panels.
        QCoreApplication::processEvents();
    }

    Workbench::DocumentTabs *tabs() const { return findChild<Workbench::DocumentTabs *>(); }
    Norvane::DockContentWidget *content() const
    {
        return findChild<Norvane::DockContentWidget *>();
    }
    Norvane::RibbonBar *ribbon() const { return findChild<Norvane::RibbonBar *>(); }
    QList<QAction *> commands() const
    {
        return findChild<Workbench::WorkbenchRibbon *>()->commands();
    }
    Workbench::Document *document() const { return tabs()->currentDocument(); }
    Workbench::TextDocument *text() const
    {
        return qobject_cast<Workbench::TextDocument *>(document());
    }
    Workbench::PictureDocument *picture() const
    {
        return qobject_cast<Workbench::PictureDocument *>(document());
    }
    Workbench::TextEditor *editor() const
    {
        return document()->findChild<Workbench::TextEditor *>();
    }
    Workbench::PictureView *view() const
    {
        return document()->findChild<Workbench::PictureView *>();
    }

    //! The titles of the ribbon's visible tabs.
    QStringList pages() const
    {
        QStringList titles;
        const QList<QAbstractButton *> tabs = ribbonTabs();
        for (const QAbstractButton *tab : tabs) {
            if (tab->isVisible())
                titles << tab->text();
        }
        return titles;
    }
    QString currentPage() const
    {
        const QList<QAbstractButton *> tabs = ribbonTabs();
        for (const QAbstractButton *tab : tabs) {
            if (tab->isChecked())
                return tab->text();
        }
        return QString();
    }
    void clickPage(const QString &title) const
    {
        const QList<QAbstractButton *> tabs = ribbonTabs();
        for (const QAbstractButton *tab : tabs) {
            if (tab->text() == title)
                Gui::click(tab);
        }
    }
    void clickTab(const QString &file) const
    {
        const QList<Workbench::Document *> documents = tabs()->documents();
        for (Workbench::Document *document : documents) {
            if (document->title() != file)
                continue;
            const int section = content()->sectionOf(document);
            if (section != content()->currentSection()) {
                auto *sections = content()->findChild<QTabBar *>(QStringLiteral("dockSectionBar"));
                Gui::click(sections, sections->tabRect(section).center());
            }
            Gui::click(tabBar(document), tabRect(document).topLeft() + QPoint(12, 12));
        }
    }
    static QTabBar *tabBar(const Workbench::Document *document)
    {
        // The document lies in the stack of its section.
        return static_cast<QTabWidget *>(document->parentWidget()->parentWidget())->tabBar();
    }
    //! Of the document that was opened as number \a index.
    void clickCloseButton(int index) const
    {
        const QRect tab = tabRect(tabs()->documents().at(index));
        Gui::click(tabBar(tabs()->documents().at(index)),
                   QPoint(tab.right() - 11, tab.center().y()));
    }
    QString tabText(int index) const
    {
        Workbench::Document *document = tabs()->documents().at(index);
        return content()->tabText(content()->sectionOf(document), content()->tabOf(document));
    }
    QString tabToolTip(int index) const
    {
        Workbench::Document *document = tabs()->documents().at(index);
        return content()->tabToolTip(content()->sectionOf(document), content()->tabOf(document));
    }
    void setCurrent(int index) const { tabs()->setCurrentDocument(tabs()->documents().at(index)); }
    int currentIndex() const { return int(tabs()->documents().indexOf(document())); }

    //! The visible button of the command; null if its page is not in front.
    QToolButton *button(const QString &command) const
    {
        const QList<QToolButton *> buttons = ribbon()->findChildren<QToolButton *>();
        for (QToolButton *button : buttons) {
            if (button->isVisible() && button->defaultAction()
                && button->defaultAction()->text() == command)
                return button;
        }
        return nullptr;
    }
    //! The command, wherever its button is.
    QAction *command(const QString &text) const
    {
        const QList<QAction *> actions = commands();
        for (QAction *action : actions) {
            if (action->text() == text)
                return action;
        }
        return nullptr;
    }
    //! Clicks on the part of the button that does not open a menu.
    void clickButton(const QString &command) const
    {
        const QToolButton *clicked = button(command);
        if (!clicked) {
            QTest::qFail(qPrintable(command + QStringLiteral(" has no visible button")), __FILE__,
                         __LINE__);
            return;
        }
        Gui::click(clicked, QPoint(clicked->width() / 2, 11));
    }
    //! Opens the button's menu with the mouse and picks an entry with it.
    void pick(const QString &command, const QString &entry) const
    {
        const QToolButton *opener = button(command);
        openMenu([opener] { Gui::click(opener, QPoint(opener->width() / 2, 60)); },
                 [&entry](QMenu *menu) { pickEntry(menu, entry); });
    }

    //! Does something that opens a menu, and something else while the menu is open.
    static void openMenu(const std::function<void()> &open,
                         const std::function<void(QMenu *)> &then)
    {
        QTimer timer;
        bool done = false;
        QObject::connect(&timer, &QTimer::timeout, &timer, [&] {
            auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
            if (!menu || !menu->isVisible())
                return;
            timer.stop();
            then(menu);
            done = true;
        });
        timer.start(5);
        open();
        QTRY_VERIFY(done);
        QTRY_VERIFY(!QApplication::activePopupWidget());
    }
    static void pickEntry(QMenu *menu, const QString &entry)
    {
        const QList<QAction *> actions = menu->actions();
        for (QAction *action : actions) {
            if (action->text() == entry) {
                Gui::moveMouse(menu, menu->actionGeometry(action).center());
                Gui::click(menu, menu->actionGeometry(action).center());
                return;
            }
        }
        menu->close();
        QTest::qFail(qPrintable(entry + QStringLiteral(" is not in the menu")), __FILE__, __LINE__);
    }

    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) const
    {
        QTest::keyClick(windowHandle(), key, modifiers);
    }

    //! To the widget that has the focus.
    void type(const QString &text) const
    {
        for (QChar c : text)
            QTest::keyClick(windowHandle(), c.toLatin1());
    }

    bool opened = false;

private:
    QRect tabRect(Workbench::Document *document) const
    {
        return tabBar(document)->tabRect(content()->tabOf(document));
    }

    QList<QAbstractButton *> ribbonTabs() const
    {
        QList<QAbstractButton *> tabs;
        const QList<QAbstractButton *> buttons = ribbon()->findChildren<QAbstractButton *>();
        for (auto *button : buttons) {
            if (button->inherits("Norvane::RibbonTab"))
                tabs << button;
        }
        return tabs;
    }
};

//! Waits for the next modal dialog that is meant and deals with it once.
class ModalAnswer : public QObject
{
public:
    explicit ModalAnswer(
        const std::function<void(QWidget *)> &answer,
        const std::function<bool(QWidget *)> &isMeant = [](QWidget *) { return true; })
    {
        connect(&m_timer, &QTimer::timeout, this, [this, answer, isMeant] {
            QWidget *dialog = QApplication::activeModalWidget();
            if (!dialog || !dialog->isVisible() || !dialog->windowHandle()->isExposed()
                || !isMeant(dialog))
                return;
            m_timer.stop();
            answered = true;
            answer(dialog);
        });
        m_timer.start(5);
    }

    bool answered = false;

private:
    QTimer m_timer;
};

//! Clicks on a button of the next message box that has it, and keeps what the box said.
class BoxAnswer
{
public:
    explicit BoxAnswer(QMessageBox::StandardButton button)
        : m_answer(
              [this, button](QWidget *dialog) {
                  auto *box = static_cast<QMessageBox *>(dialog);
                  text = box->text();
                  information = box->informativeText();
                  const QList<QLabel *> labels = box->findChildren<QLabel *>();
                  for (const QLabel *label : labels)
                      plain = plain
                          && (label->text().isEmpty() || label->textFormat() == Qt::PlainText);
                  Gui::click(box->button(button));
              },
              [button](QWidget *dialog) {
                  auto *box = qobject_cast<QMessageBox *>(dialog);
                  return box && box->button(button);
              })
    {
    }

    bool answered() const { return m_answer.answered; }

    QString text;
    QString information;
    //! No name of a file is taken for markup.
    bool plain = true;

private:
    ModalAnswer m_answer;
};
