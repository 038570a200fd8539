// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "tour/TourPlayer.h"

#include <QtCore/QStringList>
#include <QtCore/QTemporaryDir>

class QMenu;
class QTabBar;
class QToolButton;
class QTreeView;

namespace Norvane {
class AddressBar;
}

namespace Workbench {

class Document;
class DocumentTabs;
class MainWindow;

/*!
    Shows what the program can do: goes through its features with mouse and keyboard, on copies of
    the samples, and leaves a picture of each scene.
*/
class Tour : public QObject
{
    Q_OBJECT

public:
    //! \a paths are shown first, as they are; they are not changed.
    Tour(MainWindow *window, const QString &samples, const QStringList &paths,
         const QString &pictureFolder);

    void start();

Q_SIGNALS:
    //! \a error is empty if everything came about.
    void finished(const QString &error);

private:
    void showPaths();
    void openSamples();
    void browse();
    void makeText();
    void editText();
    void find();
    void findInAll();
    void minimizePanels();
    void convertText();
    void zoom();
    void editPicture();
    void applyEffects();
    void insertSnippet();
    void closeUnsaved();
    void setOptions();
    void readHelp();

    void addPageClick(const QString &title);
    void addTabClick(const QString &file);
    void addButtonClick(const QString &command, std::function<bool()> until);
    //! Picks \a entry of the menu that is open.
    void addMenuPick(const QString &entry, std::function<bool()> until);

    QWidget *ribbonTab(const QString &title) const;
    QToolButton *button(const QString &command) const;
    //! The names of the visible items of a gallery's popup or strip, row by row.
    static QStringList items(const QWidget *gallery);
    DocumentTabs *tabs() const;
    //! The tab bar of the section in front.
    QTabBar *tabBar() const;
    Document *document() const;
    Norvane::AddressBar *addressBar() const;
    QTreeView *fileTree() const;
    QString copyOf(const QString &file) const;

    MainWindow *m_window;
    TourPlayer m_player;
    QTemporaryDir m_folder;
    QString m_samples;
    QStringList m_paths;
};

} // namespace Workbench
