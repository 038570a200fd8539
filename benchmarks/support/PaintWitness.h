// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtWidgets/QWidget>

// Returns when no event is left.
void settle();

// Knows whether a widget has been painted since it was asked to watch for it.
class PaintWitness : public QObject
{
    Q_OBJECT

public:
    void watch(QWidget *widget);

    // Returns when the widget is painted and nothing is left to do.
    void wait();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QPointer<QWidget> m_widget;
    bool m_painted = false;
};
