// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "Counter.h"

#include <QtCore/QEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QToolButton>

#include <algorithm>
#include <numeric>

Counter::Counter(const QString &baseStyle)
    : QProxyStyle(baseStyle)
{
}

void Counter::reset()
{
    for (Counts &counts : m_counts)
        counts.clear();
}

QJsonObject Counter::toJson() const
{
    static const QString names[KindCount] = {QStringLiteral("polishes"),
                                             QStringLiteral("sizes from contents"),
                                             QStringLiteral("paints"), QStringLiteral("resizes")};
    QJsonObject result;
    for (int kind = 0; kind < KindCount; ++kind) {
        const QList<int> values = m_counts[kind].values();
        result.insert(
            names[kind],
            QJsonObject{{QStringLiteral("sum"), std::accumulate(values.begin(), values.end(), 0)},
                        {QStringLiteral("most"),
                         values.isEmpty() ? 0 : *std::max_element(values.begin(), values.end())}});
    }
    return result;
}

void Counter::polish(QWidget *widget)
{
    count(Polishes, widget);
    QProxyStyle::polish(widget);
}

QSize Counter::sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &size,
                                const QWidget *widget) const
{
    count(SizesFromContents, widget);
    return QProxyStyle::sizeFromContents(type, option, size, widget);
}

bool Counter::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Paint)
        count(Paints, watched);
    else if (event->type() == QEvent::Resize)
        count(Resizes, watched);
    return false;
}

void Counter::count(Kind kind, const QObject *object) const
{
    // Only a tab bar's own arrows have no action.
    const auto *button = qobject_cast<const QToolButton *>(object);
    if (button && button->defaultAction())
        ++m_counts[kind][button];
}
