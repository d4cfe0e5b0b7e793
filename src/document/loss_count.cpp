// SPDX-License-Identifier: MIT
#include "document/loss_count.h"

CLossCount::CLossCount(const CWordList &list, const Format &format) : m_list(list), m_format(format)
{
    connect(this, &CLossCount::ThreadDone, this, &CLossCount::TakeLosses, Qt::QueuedConnection);
}

void CLossCount::Count(const FormatWriteOptions &options)
{
    constexpr int Short = 50'000; // Entries, which take less time than anybody notices.
    if (m_list.Count() <= Short) {
        m_losses = LossesOf(m_list, m_format, options);
        m_isCounted = true;
        return;
    }
    m_options = options;
    m_isCounted = false;
    m_isOutdated = m_isCounting;
    if (!m_isCounting) {
        m_isCounting = true;
        m_countedOptions = options;
        Start();
    }
}

void CLossCount::Run()
{
    m_countedLosses = LossesOf(m_list, m_format, m_countedOptions);
    Q_EMIT ThreadDone();
}

void CLossCount::TakeLosses()
{
    Stop(true); // It is about to end.
    m_isCounting = false;
    if (m_isOutdated) {
        Count(m_options);
        return;
    }
    m_losses = m_countedLosses;
    m_isCounted = true;
    Q_EMIT Counted();
}
