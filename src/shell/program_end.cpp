// SPDX-License-Identifier: MIT
#include "shell/program_end.h"

void CProgramEnd::Signalled()
{
    m_givenUp.reset();
    m_isFromOutside = true;
}

bool CProgramEnd::Quits()
{
    const bool bySession = m_sessionEnds && !m_isFromOutside;
    m_isFromOutside = m_isFromOutside || bySession;
    return bySession;
}

bool CProgramEnd::KeepsCopy(quint64 changeCounter) const
{
    return (m_isFromOutside || m_sessionEnds) && !(m_sessionEnds && m_givenUp == changeCounter);
}
