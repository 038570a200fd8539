// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "tour/TourPlayer.h"

#include <QtCore/QDir>
#include <QtGui/QPainter>
#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>

namespace Workbench {

static constexpr int longestWait = 60000;

TourPlayer::TourPlayer(QWidget *window, const QString &folder)
    : m_window(window)
    , m_folder(folder)
{
    m_timer.setInterval(10);
    connect(&m_timer, &QTimer::timeout, this, &TourPlayer::tick);
}

void TourPlayer::add(const QString &name, std::function<void()> act, std::function<bool()> until)
{
    m_steps.append({name, std::move(act), std::move(until)});
}

void TourPlayer::addPicture(const QString &name)
{
    m_steps.append({name, [] {}, [this, name] { return takePicture(name); }});
}

void TourPlayer::start()
{
    m_waited.start();
    m_timer.start();
}

void TourPlayer::tick()
{
    if (m_step == m_steps.size()) {
        m_timer.stop();
        Q_EMIT finished(QString());
        return;
    }
    const Step &step = m_steps.at(m_step);
    if (!m_acted) {
        m_acted = true;
        step.act();
    } else if (step.until()) {
        ++m_step;
        m_acted = false;
        m_waited.restart();
    } else if (m_waited.elapsed() > longestWait) {
        m_timer.stop();
        takePicture(QStringLiteral("failed"));
        Q_EMIT finished(tr("“%1” did not come about").arg(step.name));
    }
}

bool TourPlayer::takePicture(const QString &name)
{
    QPixmap picture = m_window->grab();
    QPainter painter(&picture);
    // A grab holds no other windows: menus, dialogs and tool tips are drawn over it.
    const QList<QWidget *> widgets = QApplication::topLevelWidgets();
    for (QWidget *widget : widgets) {
        if (widget != m_window && widget->isVisible()) {
            const QRect place(m_window->mapFromGlobal(widget->pos()), widget->size());
            painter.drawPixmap(place.topLeft(), widget->grab());
            painter.setPen(QColor(125, 125, 125));
            painter.drawRect(place.adjusted(-1, -1, 0, 0));
        }
    }
    painter.end();
    const QString file =
        QStringLiteral("%1-%2.png").arg(m_pictures + 1, 2, 10, QChar(u'0')).arg(name);
    if (!picture.save(QDir(m_folder).filePath(file)))
        return false;
    ++m_pictures;
    return true;
}

} // namespace Workbench
