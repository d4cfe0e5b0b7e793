// SPDX-License-Identifier: MIT
#pragma once

#include "fileformats/formats.h"
#include "model/word_list.h"
#include "platform/thread.h"

#include <QObject>

/// Counts what a copy of a list in another format would not have, on a thread of its own where the list is
/// long: a million entries take half a second.
class CLossCount : public QObject, public CThread
{
    Q_OBJECT

public:
    /// `format` is a row of the table.
    CLossCount(const CWordList &list, const Format &format);
    ~CLossCount() override { Stop(true); }
    CLossCount(const CLossCount &) = delete;
    CLossCount &operator=(const CLossCount &) = delete;

    /// Of a short list the losses are known when this returns; of others Counted() tells it, of the last
    /// options asked for.
    void Count(const FormatWriteOptions &options);
    bool IsCounted() const { return m_isCounted; }
    const FormatLosses &Losses() const { return m_losses; }

Q_SIGNALS:
    void Counted();
    /// Emitted on the thread, for this object alone.
    void ThreadDone();

protected:
    void Run() override;

private:
    void TakeLosses();

    const CWordList m_list;
    const Format &m_format;
    FormatWriteOptions m_options; // That were asked for last.
    bool m_isCounted = false;
    bool m_isCounting = false; // On the thread.
    bool m_isOutdated = false; // Other options were asked for meanwhile.
    FormatLosses m_losses;
    // The thread's, while it counts.
    FormatWriteOptions m_countedOptions;
    FormatLosses m_countedLosses;
};
