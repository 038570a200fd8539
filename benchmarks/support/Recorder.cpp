// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "Recorder.h"

#include "Counter.h"

#include <QtCore/QFile>
#include <QtCore/QJsonArray>

#include <malloc.h>
#include <time.h>

#if __has_include(<valgrind/callgrind.h>)
#    include <valgrind/callgrind.h>
#else
#    define CALLGRIND_ZERO_STATS
#    define CALLGRIND_DUMP_STATS_AT(reason)
#endif

namespace {

double processorMilliseconds()
{
    timespec now{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return double(now.tv_sec) * 1e3 + double(now.tv_nsec) / 1e6;
}

double residentBytes()
{
    QFile status(QStringLiteral("/proc/self/statm"));
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    return status.readAll().split(' ').value(1).toDouble() * 4096;
}

double heapBytes()
{
    const struct mallinfo2 info = mallinfo2();
    return double(info.uordblks) + double(info.hblkhd);
}

} // namespace

Recorder::Recorder(Counter *counter)
    : m_counter(counter)
{
}

void Recorder::measure(const QString &phase, int repetitions, const std::function<void(int)> &run)
{
    QJsonArray values;
    const QByteArray reason = (phase + u'/' + QString::number(repetitions)).toUtf8();
    CALLGRIND_ZERO_STATS;
    for (int i = 0; i < repetitions; ++i) {
        if (m_counter)
            m_counter->reset();
        const double start = processorMilliseconds();
        run(i);
        const double end = processorMilliseconds();
        values.append(m_counter ? QJsonValue(m_counter->toJson()) : QJsonValue(end - start));
    }
    CALLGRIND_DUMP_STATS_AT(reason.constData());
    m_result.insert(phase, values);
}

void Recorder::memory(const QString &phase)
{
    // What was freed must not pass for resident.
    malloc_trim(0);
    m_result.insert(QStringLiteral("memory ") + phase,
                    QJsonObject{{QStringLiteral("heap"), heapBytes()},
                                {QStringLiteral("resident"), residentBytes()}});
}
