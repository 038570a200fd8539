// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "tour/Tour.h"

#include "DocumentTabs.h"
#include "MainWindow.h"
#include "picture/PictureDocument.h"
#include "picture/PictureView.h"
#include "ribbon/FindField.h"
#include "text/TextDocument.h"
#include "text/TextEditor.h"
#include "tour/Input.h"
#include "views/FilesView.h"
#include "views/FindResultsView.h"

#include <Norvane/AddressBar.h>
#include <Norvane/DockContainer.h>
#include <Norvane/DockContentWidget.h>
#include <Norvane/DockPanelWidget.h>

#include <QtCore/QDate>
#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtGui/QAction>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QStyle>
#include <QtWidgets/QTabBar>
#include <QtWidgets/QTabWidget>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QTreeView>
#include <QtWidgets/QTreeWidget>

#include <algorithm>
#include <utility>

namespace Workbench {

using namespace Qt::StringLiterals;

// The first visible widget of a kind under root that fits.
template<typename Widget, typename Predicate>
static Widget *findVisible(const QWidget *root, Predicate fits)
{
    for (Widget *widget : root->findChildren<Widget *>()) {
        if (widget->isVisible() && fits(widget))
            return widget;
    }
    return nullptr;
}

static QByteArray content(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

Tour::Tour(MainWindow *window, const QString &samples, const QStringList &paths,
           const QString &pictureFolder)
    : m_window(window)
    , m_player(window, pictureFolder)
    , m_samples(samples)
    , m_paths(paths)
{
    connect(&m_player, &TourPlayer::finished, this, &Tour::finished);
    // The samples are shown in any case.
    m_paths.removeIf([&](const QString &path) { return QFileInfo(path) == QFileInfo(m_samples); });
    showPaths();
    openSamples();
    browse();
    makeText();
    editText();
    find();
    findInAll();
    minimizePanels();
    convertText();
    insertSnippet();
    zoom();
    editPicture();
    applyEffects();
    closeUnsaved();
    setOptions();
    readHelp();
}

void Tour::start()
{
    m_player.start();
}

void Tour::showPaths()
{
    m_player.add(
        u"showing the window"_s,
        [this] {
            m_window->resize(1100, 720);
            m_window->activateWindow();
        },
        [this] { return m_window->isActiveWindow() && m_window->width() == 1100; });
    if (m_paths.isEmpty())
        return;
    m_player.add(
        u"opening the files that were named"_s,
        [this] {
            // It may have to say that one cannot be opened, and wait until that was read.
            QMetaObject::invokeMethod(
                m_window, [this] { m_window->open(m_paths); }, Qt::QueuedConnection);
        },
        [this] { return document() || QApplication::activeModalWidget(); });
    m_player.addPicture(u"files"_s);
    m_player.add(
        u"reading what could not be opened"_s,
        [] {
            if (QWidget *box = QApplication::activeModalWidget())
                Input::press(box, Qt::Key_Escape);
        },
        [] { return !QApplication::activeModalWidget(); });
    m_player.add(
        u"closing them"_s,
        [this] {
            const QList<Document *> documents = tabs()->documents();
            for (Document *document : documents)
                tabs()->remove(document);
        },
        [this] { return tabs()->documents().isEmpty(); });
}

void Tour::openSamples()
{
    m_player.add(
        u"opening copies of the samples"_s,
        [this] {
            const QDir samples(m_samples);
            const QStringList files = samples.entryList(QDir::Files);
            for (const QString &file : files)
                QFile::copy(samples.filePath(file), copyOf(file));
            QDir(m_folder.path()).mkdir(u"Postcards"_s);
            QFile::copy(samples.filePath(u"Harbour.png"_s), copyOf(u"Postcards/Pier.png"_s));
            m_window->open({m_folder.path()});
        },
        [this] { return tabs()->find(copyOf(u"About.txt"_s)); });
    addTabClick(u"About.txt"_s);
    m_player.add(
        u"pointing at a button"_s,
        [this] {
            QToolButton *open = button(u"Open"_s);
            Input::moveTo(open, open->rect().center() - QPoint(0, 20));
        },
        [this] { return button(u"Open"_s)->underMouse(); });
    m_player.addPicture(u"home"_s);
}

void Tour::browse()
{
    const auto isIn = [this](const QString &folder) { return addressBar()->path() == folder; };
    const auto strip = [this] { return addressBar()->findChild<QLineEdit *>(); };
    m_player.add(
        u"opening the menu of a crumb"_s,
        [this] {
            const QString folder = QFileInfo(m_folder.path()).fileName();
            auto *crumb = findVisible<QToolButton>(
                addressBar(), [&](const QToolButton *button) { return button->text() == folder; });
            const QRect arrow(crumb->width() - 16, 0, 16, crumb->height());
            Input::click(
                crumb, QStyle::visualRect(crumb->layoutDirection(), crumb->rect(), arrow).center());
        },
        [] { return QApplication::activePopupWidget() != nullptr; });
    m_player.addPicture(u"folders"_s);
    addMenuPick(u"Postcards"_s, [this, isIn] {
        return isIn(copyOf(u"Postcards"_s))
            && fileTree()->model()->rowCount(fileTree()->rootIndex()) == 1;
    });
    m_player.add(
        u"opening a file of the tree"_s,
        [this] {
            const QModelIndex index = fileTree()->model()->index(0, 0, fileTree()->rootIndex());
            Input::doubleClick(fileTree()->viewport(), fileTree()->visualRect(index).center());
        },
        [this] { return document()->title() == u"Pier.png"; });
    m_player.addPicture(u"opened-from-tree"_s);
    m_player.add(
        u"editing the path"_s,
        [strip] {
            const int end = strip()->isRightToLeft() ? 20 : strip()->width() - 20;
            Input::click(strip(), QPoint(end, strip()->height() / 2));
        },
        [strip] { return strip()->hasFocus(); });
    m_player.addPicture(u"path"_s);
    m_player.add(
        u"typing another path"_s,
        [this] {
            Input::type(m_window, m_folder.path());
            Input::press(m_window, Qt::Key_Return);
        },
        [this, isIn] {
            return isIn(m_folder.path())
                && fileTree()->model()->rowCount(fileTree()->rootIndex()) == 8;
        });
}

void Tour::makeText()
{
    const auto menu = [] { return qobject_cast<QMenu *>(QApplication::activePopupWidget()); };
    m_player.add(
        u"asking for what can be done"_s,
        [this] {
            Input::click(fileTree()->viewport(), QPoint(40, fileTree()->viewport()->height() - 4),
                         Qt::RightButton);
        },
        [menu] { return menu() != nullptr; });
    addMenuPick(u"New"_s, [menu] { return menu() && menu()->title() == u"New"; });
    m_player.addPicture(u"new"_s);
    addMenuPick(u"Text Document"_s,
                [this] { return fileTree()->viewport()->findChild<QLineEdit *>() != nullptr; });
    m_player.addPicture(u"new-name"_s);
    m_player.add(
        u"naming the new text"_s,
        [this] {
            Input::type(m_window, u"Ferries.txt"_s);
            Input::press(m_window, Qt::Key_Return);
        },
        [this] { return document()->title() == u"Ferries.txt"; });
    addTabClick(u"About.txt"_s);
}

void Tour::editText()
{
    m_player.add(
        u"typing"_s,
        [this] {
            document()->setFocus();
            Input::type(m_window, u"From the tour: "_s);
        },
        [this] {
            return document()->isModified()
                && document()->findChild<TextEditor *>()->toPlainText().startsWith(
                    u"From the tour: "_s);
        });
    m_player.addPicture(u"typed"_s);
    addButtonClick(u"Undo"_s, [this] { return !document()->isModified(); });
    addButtonClick(u"Redo"_s, [this] { return document()->isModified(); });
    addButtonClick(u"Save"_s, [this] {
        return content(copyOf(u"About.txt"_s)).startsWith("From the tour: Welcome");
    });
    m_player.addPicture(u"saved"_s);
}

void Tour::find()
{
    m_player.add(
        u"going to the find field"_s, [this] { Input::click(m_window->findChild<FindField *>()); },
        [this] { return m_window->findChild<FindField *>()->hasFocus(); });
    m_player.add(
        u"finding"_s, [this] { Input::type(m_window, u"islands"_s); },
        [this] {
            return document()->findChild<TextEditor *>()->textCursor().selectedText().toLower()
                == u"islands";
        });
    m_player.addPicture(u"found"_s);
}

void Tour::findInAll()
{
    addButtonClick(u"Find in All"_s, [this] {
        return m_window->findChild<QLineEdit *>(u"findAllField"_s)->hasFocus();
    });
    const auto results = [this] {
        return m_window->findChild<FindResultsView *>()->findChild<QTreeWidget *>();
    };
    m_player.add(
        u"finding in all texts"_s,
        [this] {
            Input::type(m_window, u"the"_s);
            Input::press(m_window, Qt::Key_Return);
        },
        [results] { return results()->topLevelItemCount() > 3; });
    m_player.addPicture(u"find-in-all"_s);
    m_player.add(
        u"going to a place that was found"_s,
        [results] {
            QTreeWidget *tree = results();
            Input::click(tree->viewport(), tree->visualItemRect(tree->topLevelItem(1)).center());
        },
        [this] {
            return document()->findChild<TextEditor *>()->textCursor().selectedText().toLower()
                == u"the";
        });
}

void Tour::minimizePanels()
{
    const auto panel = [this] {
        return m_window->findChild<Norvane::DockContainer *>()->panelWidget(
            Norvane::DockContainer::RightDockArea);
    };
    const auto click = [panel] { Input::click(panel()->panel()->findChild<QPushButton *>()); };
    m_player.add(u"sending a panel to its bar"_s, click,
                 [panel] { return panel()->isMinimized(); });
    m_player.addPicture(u"minimized"_s);
    m_player.add(u"bringing it back"_s, click, [panel] { return !panel()->isMinimized(); });
}

void Tour::convertText()
{
    addTabClick(u"Menu.txt"_s);
    addPageClick(u"Text"_s);
    m_player.addPicture(u"text-page"_s);
    addButtonClick(u"Sort"_s, [this] { return document()->isModified(); });
    addButtonClick(u"Encoding"_s, [] { return QApplication::activePopupWidget() != nullptr; });
    m_player.addPicture(u"encoding-menu"_s);
    addMenuPick(TextCodec::name(TextCodec::Encoding::Utf16Le), [this] {
        return static_cast<TextDocument *>(document())->encoding() == TextCodec::Encoding::Utf16Le;
    });
    m_player.addPicture(u"sorted"_s);
}

void Tour::insertSnippet()
{
    m_player.add(
        u"going to the end of the text"_s,
        [this] {
            QWidget *text = document()->findChild<TextEditor *>()->viewport();
            Input::click(text, text->rect().bottomLeft() + QPoint(20, -20));
        },
        [this] { return !document()->findChild<TextEditor *>()->textCursor().hasSelection(); });
    addButtonClick(u"ISO Date"_s, [this] {
        return document()->findChild<TextEditor *>()->toPlainText().contains(
            QDate::currentDate().toString(Qt::ISODate));
    });
    m_player.addPicture(u"snippet"_s);
}

void Tour::zoom()
{
    addPageClick(u"View"_s);
    addButtonClick(u"Zoom\nIn"_s, [this] { return document()->zoom() > 1; });
    addButtonClick(u"Wrap\nLines"_s, [this] {
        return document()->findChild<TextEditor *>()->lineWrapMode() != QPlainTextEdit::NoWrap;
    });
    addTabClick(u"About.txt"_s);
    m_player.addPicture(u"view-page"_s);
}

void Tour::editPicture()
{
    const auto size = [this] { return document()->findChild<PictureView *>()->image().size(); };
    addTabClick(u"Harbour.png"_s);
    addPageClick(u"Picture"_s);
    addButtonClick(u"Rotate\nRight"_s, [size] { return size() == QSize(400, 640); });
    m_player.addPicture(u"rotated"_s);
    addButtonClick(u"Rotate\nLeft"_s, [size] { return size() == QSize(640, 400); });
    m_player.add(
        u"selecting the lighthouse"_s,
        [this] {
            auto *view = document()->findChild<PictureView *>();
            Input::drag(view->viewport(), view->fromImage(QPointF(20, 120)).toPoint(),
                        view->fromImage(QPointF(380, 370)).toPoint());
        },
        [this] { return static_cast<PictureDocument *>(document())->canCrop(); });
    m_player.addPicture(u"selected"_s);
    addButtonClick(u"Crop to\nSelection"_s, [size] { return size() == QSize(360, 250); });
    addButtonClick(u"Actual\nSize"_s,
                   [this] { return !static_cast<PictureDocument *>(document())->isFitted(); });
    addButtonClick(u"Fit"_s,
                   [this] { return static_cast<PictureDocument *>(document())->isFitted(); });
    m_player.addPicture(u"cropped"_s);
}

void Tour::applyEffects()
{
    const auto popup = [] { return QApplication::activePopupWidget(); };
    const auto strip = [this] {
        return findVisible<QWidget>(
            m_window, [](const QWidget *widget) { return widget->objectName() == u"itemsFrame"; });
    };
    m_player.add(
        u"opening the effects"_s,
        [this] {
            Input::click(findVisible<QPushButton>(m_window, [](const QPushButton *button) {
                return button->objectName() == u"popupButton";
            }));
        },
        [popup] { return popup() != nullptr; });
    m_player.addPicture(u"effects"_s);
    m_player.add(
        u"searching for effects"_s,
        [popup] {
            Input::click(popup()->findChild<QLineEdit *>());
            Input::type(popup(), u"S"_s);
        },
        [popup] { return items(popup()).constFirst() == u"Shadows"; });
    m_player.addPicture(u"effects-searched"_s);
    m_player.add(
        u"collecting an effect"_s,
        [popup] {
            Input::click(
                findVisible<QToolButton>(
                    popup(), [](const QToolButton *item) { return item->text() == u"Sepia"; }),
                QPoint(9, 9));
        },
        [popup] { return items(popup()).count(u"Sepia"_s) == 2; });
    m_player.add(
        u"looking at all effects again"_s,
        [popup] {
            Input::click(popup()->findChild<QLineEdit *>());
            Input::press(popup(), Qt::Key_Backspace);
        },
        [popup] { return items(popup()).contains(u"Brighter"_s); });
    m_player.add(
        u"moving a group to the bottom"_s,
        [popup] {
            const auto *title = findVisible<QLabel>(
                popup(), [](const QLabel *label) { return label->text() == u"Tone"; });
            Input::click(findVisible<QPushButton>(title->parentWidget(),
                                                  [](const QPushButton *) { return true; }));
        },
        [popup] { return items(popup()).at(1) == u"Grey"; });
    m_player.addPicture(u"effects-collected"_s);
    m_player.add(
        u"closing the effects"_s, [popup] { Input::press(popup(), Qt::Key_Escape); },
        [popup, strip] { return !popup() && items(strip()).constFirst() == u"Sepia"; });
    const auto colour = [this] {
        return document()->findChild<PictureView *>()->image().pixelColor(5, 5);
    };
    addButtonClick(u"Sepia"_s, [colour] { return colour().red() > colour().blue() + 20; });
    m_player.addPicture(u"effect"_s);
}

void Tour::closeUnsaved()
{
    const auto box = [] { return qobject_cast<QMessageBox *>(QApplication::activeModalWidget()); };
    m_player.add(
        u"closing what is not saved"_s,
        [this] {
            const QRect tab = tabBar()->tabRect(tabBar()->currentIndex());
            const QRect button(tab.right() - 12, tab.top(), 3, tab.height());
            Input::click(tabBar(),
                         QStyle::visualRect(tabBar()->layoutDirection(), tab, button).center());
        },
        [box] { return box() != nullptr; });
    m_player.addPicture(u"close-asks"_s);
    m_player.add(
        u"thinking better of it"_s, [box] { Input::click(box()->button(QMessageBox::Cancel)); },
        [this] {
            return QApplication::activeModalWidget() == nullptr
                && document()->title() == u"Harbour.png";
        });
}

void Tour::readHelp()
{
    m_player.add(
        u"asking for help"_s,
        [this] { Input::click(m_window->findChild<QToolButton *>(u"helpButton"_s)); },
        [] { return QApplication::activeModalWidget() != nullptr; });
    m_player.addPicture(u"help"_s);
    m_player.add(
        u"leaving the help"_s,
        [] { Input::press(QApplication::activeModalWidget(), Qt::Key_Escape); },
        [] { return QApplication::activeModalWidget() == nullptr; });
}

void Tour::setOptions()
{
    addPageClick(u"View"_s);
    addButtonClick(u"Options"_s, [] { return QApplication::activeModalWidget() != nullptr; });
    m_player.addPicture(u"options"_s);
    m_player.add(
        u"leaving the options"_s,
        [] { Input::press(QApplication::activeModalWidget(), Qt::Key_Escape); },
        [] { return QApplication::activeModalWidget() == nullptr; });
}

void Tour::addPageClick(const QString &title)
{
    m_player.add(
        u"going to the page "_s + title, [this, title] { Input::click(ribbonTab(title)); },
        [this, title] { return qobject_cast<QPushButton *>(ribbonTab(title))->isChecked(); });
}

void Tour::addTabClick(const QString &file)
{
    const auto content = [this] { return m_window->findChild<Norvane::DockContentWidget *>(); };
    m_player.add(
        u"going to the section of "_s + file,
        [this, file, content] {
            auto *sections = content()->findChild<QTabBar *>(u"dockSectionBar"_s);
            const int section = content()->sectionOf(tabs()->find(copyOf(file)));
            Input::click(sections, sections->tabRect(section).center());
        },
        [this, file, content] {
            return content()->currentSection() == content()->sectionOf(tabs()->find(copyOf(file)));
        });
    m_player.add(
        u"bringing "_s + file + u" to the front"_s,
        [this, file, content] {
            const int index = content()->tabOf(tabs()->find(copyOf(file)));
            Input::click(tabBar(), tabBar()->tabRect(index).center());
        },
        [this, file] { return document()->title() == file; });
}

void Tour::addButtonClick(const QString &command, std::function<bool()> until)
{
    // The upper part of a button with a menu does what the button says.
    m_player.add(
        u"clicking on "_s + command,
        [this, command] {
            QToolButton *clicked = button(command);
            Input::click(clicked,
                         QPoint(clicked->width() / 2, std::min(14, clicked->height() / 2)));
        },
        std::move(until));
}

void Tour::addMenuPick(const QString &entry, std::function<bool()> until)
{
    m_player.add(
        u"picking "_s + entry,
        [entry] {
            auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
            const QList<QAction *> actions = menu->actions();
            for (QAction *action : actions) {
                if (action->text() == entry)
                    Input::click(menu, menu->actionGeometry(action).center());
            }
        },
        std::move(until));
}

QWidget *Tour::ribbonTab(const QString &title) const
{
    return findVisible<QPushButton>(m_window,
                                    [&](const QPushButton *tab) { return tab->text() == title; });
}

QToolButton *Tour::button(const QString &command) const
{
    return findVisible<QToolButton>(m_window, [&](const QToolButton *button) {
        return button->defaultAction() && button->defaultAction()->text() == command;
    });
}

QStringList Tour::items(const QWidget *gallery)
{
    QList<const QToolButton *> items;
    const auto buttons = gallery->findChildren<QToolButton *>();
    for (const QToolButton *item : buttons) {
        // Markers and the sign in the search field have no text.
        if (item->isVisible() && !item->text().isEmpty())
            items << item;
    }
    const auto place = [gallery](const QToolButton *item) {
        const QPoint corner = item->mapTo(gallery, QPoint());
        return std::pair(corner.y(), gallery->isRightToLeft() ? -corner.x() : corner.x());
    };
    std::sort(items.begin(), items.end(),
              [&](const QToolButton *a, const QToolButton *b) { return place(a) < place(b); });
    QStringList names;
    for (const QToolButton *item : std::as_const(items))
        names << item->text();
    return names;
}

DocumentTabs *Tour::tabs() const
{
    return m_window->findChild<DocumentTabs *>();
}

QTabBar *Tour::tabBar() const
{
    // A document lies in the stack of its section.
    return static_cast<QTabWidget *>(document()->parentWidget()->parentWidget())->tabBar();
}

Document *Tour::document() const
{
    return tabs()->currentDocument();
}

Norvane::AddressBar *Tour::addressBar() const
{
    return m_window->findChild<Norvane::AddressBar *>();
}

QTreeView *Tour::fileTree() const
{
    return m_window->findChild<FilesView *>()->tree();
}

QString Tour::copyOf(const QString &file) const
{
    return m_folder.filePath(file);
}

} // namespace Workbench
