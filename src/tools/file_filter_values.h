// SPDX-License-Identifier: MIT
#pragma once

#include "fileformats/word_list_filter.h"

/// The filter that a section of settings describes. Import and file search have the same fields.
template<class Section>
WordListFilter FilterOf(const Section &values)
{
    return {.minimum = values.useMiniValue ? std::optional(values.miniValue) : std::nullopt,
        .maximum = values.useMaxValue ? std::optional(values.maxValue) : std::nullopt,
        .author = values.author,
        .comments = values.comments,
        .languages = {values.lang1, values.lang2}};
}
