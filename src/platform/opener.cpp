// SPDX-License-Identifier: MIT
#include "platform/opener.h"

#include <QElapsedTimer>
#include <QPointer>
#include <QProcess>

#include <unistd.h>

namespace {

/// What ran for longer had opened something, however it ended. In milliseconds.
constexpr qint64 OpeningTime = 30000;

}

void StartOpener(
    const QString &program, const QStringList &arguments, QObject &context, std::function<void()> failed)
{
    // Without an owner, and left to itself at the program's end: its destructor would end what was opened.
    auto *const process = new QProcess;
    process->setProgram(program);
    process->setArguments(arguments);
    process->setStandardInputFile(QProcess::nullDevice());
    process->setStandardOutputFile(QProcess::nullDevice());
    process->setStandardErrorFile(QProcess::nullDevice());
    // Neither does Ctrl+C in the terminal that this program was started from.
    process->setChildProcessModifier([] { setsid(); });

    QElapsedTimer clock;
    clock.start();
    const auto ended = [process, clock, failed = std::move(failed), guard = QPointer(&context)](bool success) {
        process->deleteLater();
        if (!success && guard != nullptr && !clock.hasExpired(OpeningTime)) {
            failed();
        }
    };
    // Queued, since a start that fails may be told before this function returns.
    QObject::connect(
        process, &QProcess::errorOccurred, process,
        [ended](QProcess::ProcessError error) {
            if (error == QProcess::FailedToStart) {
                ended(false);
            }
        },
        Qt::QueuedConnection);
    QObject::connect(process, &QProcess::finished, process, [ended](int exitCode, QProcess::ExitStatus status) {
        ended(status == QProcess::NormalExit && exitCode == 0);
    });
    process->start();
}
