// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QElapsedTimer>
#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QTimer>

#include <functional>

class QWidget;

namespace Workbench {

/*!
    Plays steps one after the other: does something, then waits until it has had its effect. It
    goes on while dialogs and menus are open.
*/
class TourPlayer : public QObject
{
    Q_OBJECT

public:
    //! Pictures of \a window, and of what stands over it, go to \a folder.
    TourPlayer(QWidget *window, const QString &folder);

    //! \a until is asked again and again; the tour fails if it stays false.
    void add(const QString &name, std::function<void()> act, std::function<bool()> until);
    //! Takes a picture of what the steps so far have led to.
    void addPicture(const QString &name);
    void start();

Q_SIGNALS:
    //! \a error is empty if every step had its effect.
    void finished(const QString &error);

private:
    struct Step
    {
        QString name;
        std::function<void()> act;
        std::function<bool()> until;
    };

    void tick();
    bool takePicture(const QString &name);

    QWidget *m_window;
    QString m_folder;
    QList<Step> m_steps;
    QTimer m_timer;
    QElapsedTimer m_waited;
    qsizetype m_step = 0;
    int m_pictures = 0;
    bool m_acted = false;
};

} // namespace Workbench
