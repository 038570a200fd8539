// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>
#include <QtGui/QImage>

//! Files in a folder of their own, as bytes.
class Files
{
public:
    QString path(const QString &name) const { return m_folder.filePath(name); }
    QString folder() const { return m_folder.path(); }

    QString write(const QString &name, const QByteArray &bytes) const
    {
        QFile file(path(name));
        return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size()
            ? file.fileName()
            : QString();
    }

    QByteArray read(const QString &name) const
    {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
    }

    //! A picture in which no two quarters are alike: red, green over blue, white.
    static QImage quarters(QSize size)
    {
        QImage image(size, QImage::Format_RGB32);
        for (int y = 0; y < size.height(); ++y) {
            for (int x = 0; x < size.width(); ++x) {
                const bool left = x < size.width() / 2;
                const bool top = y < size.height() / 2;
                image.setPixelColor(
                    x, y, top ? (left ? Qt::red : Qt::green) : (left ? Qt::blue : Qt::white));
            }
        }
        return image;
    }

    QString writeQuarters(const QString &name, QSize size) const
    {
        return quarters(size).save(path(name)) ? path(name) : QString();
    }

private:
    QTemporaryDir m_folder;
};
