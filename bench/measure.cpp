// SPDX-License-Identifier: MIT
#include "measure.h"

#include <QByteArray>
#include <QFile>

#include <malloc.h>

#include <algorithm>
#include <chrono>
#include <vector>

namespace {

/// A value of the process's status in bytes.
qint64 Status(const QByteArray &name)
{
    QFile file(QStringLiteral("/proc/self/status"));
    if (!file.open(QIODevice::ReadOnly)) {
        return 0;
    }
    const QByteArray status = file.readAll();
    const qsizetype start = status.indexOf(name) + name.size() + 1;
    return status.mid(start, status.indexOf("kB", start) - start).trimmed().toLongLong() * 1024;
}

void ResetPeak()
{
    malloc_trim(0);
    QFile file(QStringLiteral("/proc/self/clear_refs"));
    if (file.open(QIODevice::WriteOnly)) {
        file.write("5");
    }
}

}

qint64 MemoryInUse()
{
    malloc_trim(0);
    return Status("VmRSS");
}

Measurement Measure(int repeats, const std::function<void()> &prepare, const std::function<void()> &operation)
{
    Measurement result;
    std::vector<double> seconds;
    for (int i = 0; i < repeats; ++i) {
        prepare();
        ResetPeak();
        const qint64 before = Status("VmRSS");
        const auto start = std::chrono::steady_clock::now();
        operation();
        const std::chrono::duration<double> elapsed = std::chrono::steady_clock::now() - start;
        seconds.push_back(elapsed.count());
        result.peakBytes = std::max(result.peakBytes, Status("VmHWM") - before);
    }
    const auto median = seconds.begin() + qptrdiff(seconds.size() / 2);
    std::nth_element(seconds.begin(), median, seconds.end());
    result.seconds = *median;
    return result;
}
