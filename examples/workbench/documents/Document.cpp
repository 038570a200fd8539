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
    connect(m_noticeBar, &NoticeBar::answered, this, &Document::readAgain);
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
    m_known = m_seen = stamp();
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
    // What was to be said of the file before is settled.
    if (!(m_seen == m_known))
        setNotice(QString());
    m_known = m_seen = stamp();
    markSaved();
    Q_EMIT saved();
    Q_EMIT changed();
    return true;
}

bool Document::isFileForeign() const
{
    const Stamp now = stamp();
    return now.size >= 0 && !(now == m_known);
}

void Document::followFile()
{
    const Stamp now = stamp();
    if (now == m_seen)
        return;
    m_seen = now;
    if (now == m_known) {
        setNotice(QString());
    } else if (now.size < 0) {
        markUnsaved();
        setNotice(tr("The file is gone. What you see here is in no file until you save it."));
        Q_EMIT changed();
    } else if (isModified()) {
        m_noticeBar->ask(tr("Another program changed the file. Saving replaces what it wrote; "
                            "reading the file again loses what you did here."),
                         tr("Read Again"));
    } else {
        readAgain();
    }
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

Document::Stamp Document::stamp() const
{
    const QFileInfo info(m_path);
    return info.exists() ? Stamp{info.lastModified(), info.size()} : Stamp();
}

void Document::readAgain()
{
    setNotice(QString());
    QString error;
    if (load(m_path, &error)) {
        markSaved();
        Q_EMIT followed();
    } else {
        markUnsaved();
        setNotice(tr("Another program changed the file, and it could not be read again: %1 What "
                     "you see here is in no file until you save it.")
                      .arg(error));
    }
    Q_EMIT changed();
}

void Document::setNotice(const QString &notice)
{
    m_noticeBar->setText(notice);
}

} // namespace Workbench
