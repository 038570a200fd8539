// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "documents/Document.h"

#include "documents/NoticeBar.h"

#include <QtCore/QFileInfo>
#include <QtCore/QSaveFile>
#include <QtWidgets/QVBoxLayout>

#include <algorithm>
#include <array>

namespace Workbench {

static constexpr std::array<qreal, 16> zoomSteps = {0.1, 0.25, 0.33, 0.5, 0.67, 0.8, 0.9, 1,
                                                    1.1, 1.25, 1.5,  2,   3,    4,   8,   16};

Document::Document(QWidget *parent)
    : QWidget(parent)
    , m_layout(new QVBoxLayout(this))
    , m_noticeBar(new NoticeBar)
{
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setSpacing(0);
    m_layout->addWidget(m_noticeBar);
}

Document::~Document() = default;

QString Document::path() const
{
    return m_path;
}

QString Document::title() const
{
    return QFileInfo(m_path).fileName();
}

QString Document::notice() const
{
    return m_noticeBar->text();
}

bool Document::load(const QString &path, QString *error)
{
    // Opening a pipe or a device would wait for its other end.
    const QFileInfo info(path);
    if (info.exists() && !info.isFile()) {
        *error = tr("It is not a file.");
        return false;
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        *error = file.errorString();
        return false;
    }
    if (!read(file, error))
        return false;
    m_path = info.absoluteFilePath();
    return true;
}

bool Document::save(QString *error)
{
    return saveAs(m_path, error);
}

bool Document::saveAs(const QString &path, QString *error)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly)) {
        *error = file.errorString();
        return false;
    }
    if (!write(file, error))
        return false;
    if (!file.commit()) {
        *error = file.errorString();
        return false;
    }
    m_path = QFileInfo(path).absoluteFilePath();
    markSaved();
    Q_EMIT changed();
    return true;
}

void Document::zoomIn()
{
    const auto next = std::upper_bound(zoomSteps.begin(), zoomSteps.end(), zoom() + 0.001);
    if (next != zoomSteps.end())
        setZoom(*next);
}

void Document::zoomOut()
{
    const auto here = std::lower_bound(zoomSteps.begin(), zoomSteps.end(), zoom() - 0.001);
    if (here != zoomSteps.begin())
        setZoom(*std::prev(here));
}

void Document::setView(QWidget *view)
{
    m_layout->addWidget(view);
    setFocusProxy(view);
}

void Document::setNotice(const QString &notice)
{
    m_noticeBar->setText(notice);
}

} // namespace Workbench
