// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QEvent>
#include <QtCore/QHash>
#include <QtWidgets/QApplication>
#include <QtWidgets/QProxyStyle>
#include <QtWidgets/QStyleFactory>
#include <QtWidgets/QWidget>

/*!
    Counts how often each widget is polished: the events, which each widget gets from itself once,
    and the style's work, which a change of the sheet or of the parent can repeat.
*/
class PolishCounter : public QObject
{
public:
    PolishCounter()
    {
        QApplication::setStyle(new Style(this));
        qApp->installEventFilter(this);
    }
    ~PolishCounter() override
    {
        QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Polish)
            ++events[watched];
        return false;
    }

    QHash<const QObject *, int> events;
    QHash<const QObject *, int> styled;

private:
    struct Style : QProxyStyle
    {
        explicit Style(PolishCounter *counter)
            : QProxyStyle(QStringLiteral("Fusion"))
            , counter(counter)
        {
        }
        using QProxyStyle::polish;
        void polish(QWidget *widget) override
        {
            ++counter->styled[widget];
            QProxyStyle::polish(widget);
        }
        PolishCounter *const counter;
    };
};
