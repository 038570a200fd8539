// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QHash>
#include <QtCore/QJsonObject>
#include <QtWidgets/QProxyStyle>

class QToolButton;

// Counts what is done to the buttons of a strip. It sees every event and every style call of the
// program, so nothing may be timed while it is in place.
class Counter : public QProxyStyle
{
    Q_OBJECT

public:
    enum Kind { Polishes, SizesFromContents, Paints, Resizes, KindCount };

    explicit Counter(const QString &baseStyle);

    void reset();
    // For each kind the sum over all buttons and the most that one button had.
    QJsonObject toJson() const;

    using QProxyStyle::polish;
    void polish(QWidget *widget) override;
    QSize sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &size,
                           const QWidget *widget) const override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    using Counts = QHash<const QToolButton *, int>;

    void count(Kind kind, const QObject *object) const;

    mutable Counts m_counts[KindCount];
};
