// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QJsonObject>
#include <QtCore/QString>

#include <functional>

class Counter;

// Runs the phases of one program run and keeps what was measured: the processor time of each
// repetition in milliseconds, or what was counted. Under Callgrind it also leaves one dump for each
// phase, with the phase's name and its repetitions as the reason of the dump.
class Recorder
{
public:
    explicit Recorder(Counter *counter);

    void measure(const QString &phase, int repetitions, const std::function<void(int)> &run);
    void memory(const QString &phase);
    void add(const QString &name, int value) { m_result.insert(name, value); }

    QJsonObject result() const { return m_result; }

private:
    Counter *m_counter;
    QJsonObject m_result;
};
