// SPDX-License-Identifier: MIT
#include "model/term_syntax.h"
#include "model/text_search.h"
#include "model/word_entry.h"
#include "platform/windows_1252.h"
#include "require.h"

/// Takes any UTF-16 text as a term, a note and a search text, and checks what must hold for all of them.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    QString text(reinterpret_cast<const QChar *>(data), qsizetype(size / 2));
    NormalizeTerm(text);
    // Control characters inside a comment are the one case in which a second normalisation changes something.
    for (QChar &unit : text) {
        if (unit < u' ' || unit == u'\x7F') {
            unit = u' ';
        }
    }
    const QString normal = NormalizeTerm(text);
    Require(NormalizeTerm(normal) == normal);
    Require(SplitAlternatives(normal).join(AlternativeJoint) == normal);
    const QString stripped = StripComments(text);
    Require(NormalizeTerm(stripped) == stripped);
    if (const auto suggestion = SuggestTermCorrection(text)) {
        Require(NormalizeTerm(*suggestion) == *suggestion);
    }

    CWordEntry entry(text, normal, text);
    Require(entry.GetText(0) == normal && entry.GetText(1) == normal);
    QStringList alternatives;
    for (int k = 0; k <= entry.AlternativeCount(0); ++k) {
        alternatives.append(entry.GetAlternative(0, k, false));
        Require(entry.HasAlternative(alternatives.back(), 1, false));
    }
    Require(alternatives.join(AlternativeJoint) == normal);
    entry.SwapFields(true, true, 0, 2);
    entry.SwapFields(true, true, 0, 2);
    Require(NormalizeTerm(entry.GetText(0)) == entry.GetText(0));

    for (const bool wildcard : {false, true}) {
        for (const bool wholeWord : {false, true}) {
            const qsizetype half = text.size() / 2;
            const CTextMatcher matcher({.text = text.left(std::min<qsizetype>(half, 40)),
                .wholeWord = wholeWord,
                .wildcard = wildcard});
            if (const auto range = matcher.Find(QStringView(text).mid(half))) {
                Require(range->start >= 0 && range->length >= 0
                    && range->start + range->length <= text.size() - half);
            }
        }
    }
    QByteArray bytes;
    const bool lossless = AppendWindows1252(text, bytes);
    Require(lossless == (DecodeWindows1252(bytes) == text));
    return 0;
}
