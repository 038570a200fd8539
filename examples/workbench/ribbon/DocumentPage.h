// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <Norvane/RibbonPage.h>

#include <QtCore/QList>
#include <QtCore/QPointer>
#include <QtGui/QKeySequence>

class QAction;
class QMenu;

namespace Norvane {
class RibbonGroup;
class RibbonSubgroup;
} // namespace Norvane

namespace Workbench {

class Document;

/*!
    A ribbon page whose commands act on the document in front.
*/
class DocumentPage : public Norvane::RibbonPage
{
    Q_OBJECT

public:
    //! The document in front, or null.
    void setDocument(Document *document);

    //! All commands, for the window: shortcuts of a page that is not in front are dead.
    QList<QAction *> commands() const;

protected:
    struct Command
    {
        QString text;
        QLatin1StringView icon;
        //! What it does; the shortcut is appended.
        QString toolTip;
        QList<QKeySequence> shortcuts = {};
    };

    explicit DocumentPage(QWidget *parent = nullptr);

    Document *document() const;

    QAction *addCommand(const Command &command);
    //! A command with a menu.
    QMenu *addMenuCommand(const Command &command);
    //! A command that stands in \a menu only.
    QAction *addCommand(const Command &command, QMenu *menu);

    //! A column of small buttons, as high as the rest of a group: titles stand in one line so.
    static Norvane::RibbonSubgroup *addColumn(Norvane::RibbonGroup *group, int height = 72);

    //! Shows the state of document(); called whenever that changes.
    virtual void refresh() = 0;

private:
    void setUp(QAction *action, const Command &command);

    QPointer<Document> m_document;
    QList<QAction *> m_commands;
};

} // namespace Workbench
