// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QTimer>
#include <QtGui/QWindow>
#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>

#include <functional>

//! Answers the modal window that \a act opens with \a answer. Returns whether one was opened.
inline bool whileModal(const std::function<void()> &act,
                       const std::function<void(QWidget *)> &answer)
{
    bool opened = false;
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, &poll, [&] {
        QWidget *window = QApplication::activeModalWidget();
        if (!window || !window->windowHandle() || !window->windowHandle()->isExposed())
            return;
        poll.stop();
        opened = true;
        answer(window);
    });
    poll.start(1);
    act();
    return opened;
}
