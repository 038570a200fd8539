// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <functional>

/*!
    Sequences of random steps that are played against a model. A step is a kind and a number, of
   which the player makes what is possible at that point, so that any part of a sequence can be
   played.
*/
namespace Steps {

struct Step
{
    int kind;
    int number;
};

//! Plays the steps, writes down what it did, and returns what is wrong, or nothing.
using Play = std::function<QString(const QList<Step> &, QStringList *)>;

//! Plays \a steps. When something is wrong, returns it with the shortest story that leads to it.
inline QString play(QList<Step> steps, const Play &player)
{
    QStringList story;
    QString wrong = player(steps, &story);
    if (wrong.isEmpty())
        return {};
    for (qsizetype length = steps.size() / 2; length > 0; length /= 2) {
        for (qsizetype at = 0; at + length <= steps.size();) {
            QList<Step> fewer = steps;
            fewer.remove(at, length);
            QStringList shorter;
            const QString still = player(fewer, &shorter);
            if (still.isEmpty()) {
                at += length;
                continue;
            }
            steps = fewer;
            wrong = still;
            story = shorter;
        }
    }
    return QStringLiteral("%1 after: %2").arg(wrong, story.join(QStringLiteral(", ")));
}

} // namespace Steps
