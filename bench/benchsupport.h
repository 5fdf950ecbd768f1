#pragma once

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QList>
#include <QString>
#include <algorithm>
#include <functional>

namespace Bench {

inline double median(QList<double> values)
{
    if (values.isEmpty())
        return 0;
    std::sort(values.begin(), values.end());
    const int n = values.size();
    return n % 2 ? values.at(n / 2) : (values.at(n / 2 - 1) + values.at(n / 2)) / 2;
}

// Milliseconds of one run of work, including the layout and paint it causes.
inline double timeIt(const std::function<void()> &work)
{
    QElapsedTimer timer;
    timer.start();
    work();
    QCoreApplication::processEvents();
    return timer.nsecsElapsed() / 1e6;
}

// The process's peak resident memory so far, in KiB (VmHWM).
inline qint64 peakMemoryKiB()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return -1;
    for (const QByteArray &line : status.readAll().split('\n')) {
        if (line.startsWith("VmHWM:"))
            return line.mid(6).trimmed().split(' ').first().toLongLong();
    }
    return -1;
}

} // namespace Bench
