// SPDX-License-Identifier: MIT
#include "platform/collation.h"

#include <unicode/ucol.h>

namespace {

const UChar *Units(QStringView text)
{
    return reinterpret_cast<const UChar *>(text.utf16());
}

}

CSwedishCollator::CSwedishCollator()
{
    UErrorCode status = U_ZERO_ERROR;
    m_collator = ucol_open("sv", &status);
    if (U_FAILURE(status)) {
        qFatal("The collation rules of ICU are missing: %s", u_errorName(status));
    }
    ucol_setStrength(m_collator, UCOL_SECONDARY);
    ucol_setAttribute(m_collator, UCOL_ALTERNATE_HANDLING, UCOL_NON_IGNORABLE, &status);
}

CSwedishCollator::~CSwedishCollator()
{
    ucol_close(m_collator);
}

const CSwedishCollator &CSwedishCollator::ForThisThread()
{
    static thread_local const CSwedishCollator collator;
    return collator;
}

int CSwedishCollator::Compare(QStringView a, QStringView b) const
{
    return ucol_strcoll(m_collator, Units(a), int(a.size()), Units(b), int(b.size()));
}

void CSwedishCollator::AppendSortKey(QStringView text, std::vector<char> &keys) const
{
    const size_t start = keys.size();
    // Three bytes a unit hold nearly every key of Latin text; the others are asked for a second time.
    int room = int(text.size()) * 3 + 16;
    keys.resize(start + size_t(room));
    const auto fill = [&] {
        return ucol_getSortKey(
            m_collator, Units(text), int(text.size()), reinterpret_cast<uint8_t *>(keys.data() + start), room);
    };
    int needed = fill();
    if (needed > room) {
        room = needed;
        keys.resize(start + size_t(room));
        needed = fill();
    }
    keys.resize(start + size_t(needed));
}
