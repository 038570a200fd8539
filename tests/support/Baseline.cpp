// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "Baseline.h"

#include <QtCore/QDir>
#include <QtTest/QTest>

namespace {

// The rasteriser may round an edge otherwise on another processor; a moved or missing line, letter
// or icon differs by more, and in more places.
constexpr int toleratedDifference = 24;
constexpr double toleratedShare = 0.001;

double differingShare(const QImage &one, const QImage &other)
{
    if (one.size() != other.size())
        return 1;
    qint64 differing = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            const QColor a = one.pixelColor(x, y);
            const QColor b = other.pixelColor(x, y);
            differing += qAbs(a.red() - b.red()) > toleratedDifference
                || qAbs(a.green() - b.green()) > toleratedDifference
                || qAbs(a.blue() - b.blue()) > toleratedDifference;
        }
    }
    return double(differing) / (double(one.width()) * one.height());
}

} // namespace

QString Baseline::compare(const QImage &actual, const QString &folder)
{
    const QString name = QStringLiteral("%1@%2x.png")
                             .arg(QLatin1StringView(QTest::currentDataTag()))
                             .arg(qRound(actual.devicePixelRatio()));
    const QString path = folder + u'/' + name;
    if (qEnvironmentVariableIsSet("NORVANE_UPDATE_BASELINES") && !actual.save(path))
        return QStringLiteral("%1 cannot be written").arg(path);
    const double share = differingShare(actual, QImage(path));
    if (share <= toleratedShare)
        return {};
    actual.save(name);
    return QStringLiteral("%1 of the pixels differ from %2; what was painted is in %3")
        .arg(share)
        .arg(path, QDir::current().absoluteFilePath(name));
}
