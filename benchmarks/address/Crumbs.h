// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtWidgets/QFrame>
#include <QtWidgets/QMenu>

#include <memory>

namespace Norvane {
class AddressBar;
}

// A row of buttons, one for each folder of a path, with menus of the folders in them.
class Crumbs
{
public:
    virtual ~Crumbs() = default;

    virtual QWidget *widget() = 0;
    virtual void setPath(const QString &path) = 0;
    // The menu of the last button.
    virtual QMenu *lastMenu() = 0;
};

// Our own classes.
class BarCrumbs : public Crumbs
{
public:
    BarCrumbs();
    ~BarCrumbs() override;

    QWidget *widget() override;
    void setPath(const QString &path) override;
    QMenu *lastMenu() override;

private:
    std::unique_ptr<Norvane::AddressBar> m_bar;
};

// The same of Qt's classes alone: tool buttons in a row.
class PlainCrumbs : public Crumbs
{
public:
    PlainCrumbs();

    QWidget *widget() override { return &m_row; }
    void setPath(const QString &path) override;
    QMenu *lastMenu() override;

private:
    QFrame m_row;
};
