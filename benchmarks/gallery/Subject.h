// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QList>
#include <QtWidgets/QWidget>

class QAction;
class QLineEdit;
class QMenu;

namespace Norvane {
class RibbonGroup;
}

// The actions of a catalogue, by group.
using GroupActions = QList<QAction *>;

// What is measured: a catalogue in a popup that belongs to a widget in a ribbon.
class Subject
{
public:
    Subject();
    virtual ~Subject() = default;

    QWidget *window() { return &m_window; }
    virtual void fill(const QList<GroupActions> &groups) = 0;
    // The catalogue's first item, or what paints it.
    virtual QWidget *firstItem() const = 0;
    virtual QMenu *menu() const = 0;
    virtual void open() = 0;
    // The search field, if there is one.
    virtual QLineEdit *edit() const = 0;

protected:
    Norvane::RibbonGroup *ribbonGroup() const { return m_group; }

private:
    QWidget m_window;
    Norvane::RibbonGroup *m_group;
};

// A catalogue of Qt's classes alone, in a popup of the size that the gallery's has here.
class PlainSubject : public Subject
{
public:
    PlainSubject();

    QMenu *menu() const override { return m_menu; }
    void open() override;

protected:
    // Puts what the popup shows into its menu.
    void setContent(QWidget *content);

private:
    QWidget *m_widget;
    QMenu *m_menu;
};
