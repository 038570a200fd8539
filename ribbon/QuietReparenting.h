// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtCore/QString>

#include <memory>

class QWidget;

namespace Norvane {

class StyleChangeEater;

/*!
    Keeps a widget with a style sheet of its own from polishing all its descendants, twice each,
    when it gets a parent before it was ever shown. The sheet is taken off while the widget goes
    over to its parent, and is on again when the call that gave the parent returns.
*/
class QuietReparenting : public QObject
{
    Q_OBJECT

public:
    //! \a firstChild is the first child widget of \a widget, which owns the object.
    QuietReparenting(QWidget *widget, QWidget *firstChild);
    ~QuietReparenting() override;

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QWidget *const m_widget;
    QPointer<QWidget> m_parent;
    QString m_sheet;
    std::unique_ptr<QWidget> m_styleKeeper;
    std::unique_ptr<StyleChangeEater> m_eater;
};

} // namespace Norvane
