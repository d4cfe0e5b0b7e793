// SPDX-License-Identifier: MIT
#pragma once

#include <QStringView>

#include <vector>

struct UCollator;

/// Compares texts by Swedish rules (å, ä, ö after z; CLDR root order for the rest), letter case ignored,
/// accents and punctuation counted. Independent of the process's locale. A collator belongs to one thread.
class CSwedishCollator
{
public:
    CSwedishCollator();
    ~CSwedishCollator();
    CSwedishCollator(const CSwedishCollator &) = delete;
    CSwedishCollator &operator=(const CSwedishCollator &) = delete;

    /// The calling thread's own collator, made at its first use.
    static const CSwedishCollator &ForThisThread();

    /// Below, equal to or above 0 as `a` sorts before, with or after `b`.
    int Compare(QStringView a, QStringView b) const;
    bool Equal(QStringView a, QStringView b) const { return a == b || Compare(a, b) == 0; }

    /// Appends the zero-terminated sort key of `text`: keys order by strcmp as the texts order by Compare().
    void AppendSortKey(QStringView text, std::vector<char> &keys) const;

private:
    UCollator *m_collator;
};
