// SPDX-License-Identifier: MIT
#include "fileformats/word_list_filter.h"

#include "model/word_list.h"

namespace {

/// The property whose lack is the fault.
const QString &PropertyOf(const WordListSummary &file, FileFault fault)
{
    switch (fault) {
    case FileFault::Author:
        return file.author;
    case FileFault::Comments:
        return file.comments;
    case FileFault::Language1:
        return file.languages[0];
    default:
        return file.languages[1];
    }
}

}

WordListSummary WordListSummary::Of(const CWordList &list)
{
    return {.languages = {list.GetLanguage(0), list.GetLanguage(1)},
        .author = list.GetAuthor(),
        .comments = list.GetComments(),
        .entries = list.Count()};
}

CWordListFilter::CWordListFilter(const WordListFilter &filter)
    : m_minimum(filter.minimum), m_maximum(filter.maximum)
{
    const auto want = [this](FileFault fault, const QString &text) {
        if (const QString trimmed = text.trimmed(); !trimmed.isEmpty()) {
            m_wanted.push_back({fault, CTextMatcher({.text = trimmed})});
        }
    };
    want(FileFault::Author, filter.author);
    want(FileFault::Comments, filter.comments);
    want(FileFault::Language1, filter.languages[0]);
    want(FileFault::Language2, filter.languages[1]);
}

FileFault CWordListFilter::FaultOf(const WordListSummary &file) const
{
    if (m_minimum && file.entries < *m_minimum) {
        return FileFault::TooFew;
    }
    if (m_maximum && file.entries > *m_maximum) {
        return FileFault::TooMany;
    }
    for (const Wanted &wanted : m_wanted) {
        if (!wanted.matcher.Find(PropertyOf(file, wanted.fault))) {
            return wanted.fault;
        }
    }
    return FileFault::None;
}
