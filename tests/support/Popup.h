// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QPointer>
#include <QtCore/QTimer>
#include <QtGui/QWindow>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QMenu>

#include <functional>

/*!
    Calls \a open, which is to open \a menu, and \a look as soon as the menu is there; then closes
    the menu if \a look did not. Returns whether the menu was opened.
*/
inline bool whileOpen(QMenu *menu, const std::function<void()> &open,
                      const std::function<void()> &look)
{
    bool opened = false;
    const QPointer<QMenu> guard(menu);
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, menu, [&] {
        if (QApplication::activePopupWidget() != menu || !menu->windowHandle()->isExposed())
            return;
        poll.stop();
        opened = true;
        look();
        if (guard && guard->isVisible())
            QTest::keyClick(guard->windowHandle(), Qt::Key_Escape);
    });
    poll.start(1);
    open();
    return opened;
}
