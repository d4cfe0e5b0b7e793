// SPDX-License-Identifier: MIT
#include "fileformats/format_loss.h"

#include <algorithm>
#include <limits>

void CLossCounter::Add(LossKind kind, int count)
{
    if (count <= 0) {
        return;
    }
    const auto place = std::ranges::lower_bound(m_losses, kind, {}, &FormatLoss::kind);
    if (place == m_losses.end() || place->kind != kind) {
        m_losses.insert(place, {kind, count});
    } else {
        place->count += std::min(count, std::numeric_limits<int>::max() - place->count);
    }
}

int CLossCounter::Count(LossKind kind) const
{
    const auto place = std::ranges::find(m_losses, kind, &FormatLoss::kind);
    return place == m_losses.end() ? 0 : place->count;
}
