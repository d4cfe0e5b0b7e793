// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

class QSocketNotifier;

/// Turns SIGTERM and SIGHUP (and SIGINT) into a signal on the thread of the event loop, so that the program can
/// end in order. One at a time lives in the program; without it the signals do what they did before.
class CExitSignals : public QObject
{
    Q_OBJECT

public:
    explicit CExitSignals(QObject *parent = nullptr);
    ~CExitSignals() override;

Q_SIGNALS:
    void ExitRequested();

private:
    QSocketNotifier *m_notifier = nullptr;
};
