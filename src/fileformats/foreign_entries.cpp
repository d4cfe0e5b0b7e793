// SPDX-License-Identifier: MIT
#include "fileformats/foreign_entries.h"

#include "model/term_syntax.h"

#include <algorithm>

namespace {

bool IsPlain(char16_t unit)
{
    return unit >= u' ' && unit != u'*' && unit != u'[' && unit != u']' && unit != u'(' && unit != u')'
        && unit != u';' && unit != u',' && unit != u'/';
}

bool HoldsLineBreak(QStringView text)
{
    return text.contains(u'\n') || text.contains(u'\r');
}

/// Outer round brackets that are closed become square ones.
void SquareBrackets(QString &text)
{
    qsizetype open = -1;
    int depth = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar unit = text.at(i);
        if (unit == u'(') {
            open = depth++ == 0 ? i : open;
        } else if (unit == u')' && depth > 0 && --depth == 0) {
            text[open] = u'[';
            text[i] = u']';
        }
    }
}

bool IsSlash(const QString &text, qsizetype i)
{
    return text.at(i) == u'/' && i > 0 && text.at(i - 1) == u' ' && i + 1 < text.size()
        && text.at(i + 1) == u' ';
}

/// What separates alternatives outside brackets becomes an asterisk.
void SeparateAlternatives(QString &text, const TermOptions &options)
{
    int depth = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar unit = text.at(i);
        if (unit == u'(' || unit == u'[') {
            ++depth;
        } else if (unit == u')' || unit == u']') {
            depth = std::max(depth - 1, 0);
        } else if (depth == 0
            && ((options.semicolonsSeparate && unit == u';') || (options.commasSeparate && unit == u',')
                || (options.slashesSeparate && IsSlash(text, i)))) {
            text[i] = u'*';
        }
    }
}

/// Asterisks as a list has them: a blank on either side, and text there.
bool HasLooseAsterisk(const QString &text)
{
    for (qsizetype i = text.indexOf(u'*'); i >= 0; i = text.indexOf(u'*', i + 1)) {
        if (i < 2 || i + 2 >= text.size() || text.at(i - 1) != u' ' || text.at(i + 1) != u' ') {
            return true;
        }
    }
    return false;
}

qsizetype CountLetters(const QString &text)
{
    return std::ranges::count_if(text, [](QChar unit) { return unit > u' '; });
}

}

CForeignEntries::CForeignEntries(const TermOptions &options, CLossCounter &losses)
    : m_options(options), m_losses(losses)
{
}

CWordEntry CForeignEntries::Make(const ForeignTexts &texts)
{
    return CWordEntry(AsTerm(texts.term1), AsTerm(texts.term2), AsNote(texts.note), texts.flag1, texts.flag2);
}

QString CForeignEntries::AsTerm(QStringView text)
{
    QString term = text.toString();
    if (std::ranges::all_of(text, [](QChar unit) { return IsPlain(unit.unicode()); })) {
        return term;
    }
    m_losses.Add(LossKind::LineBreaks, int(HoldsLineBreak(text.trimmed())));
    CountSyntax(term);
    if (m_options.roundBracketsAreComments) {
        SquareBrackets(term);
    }
    SeparateAlternatives(term, m_options);
    return term;
}

void CForeignEntries::CountSyntax(const QString &text)
{
    const bool hasAsterisk = text.contains(u'*');
    const bool hasBracket = text.contains(u'[') || text.contains(u']');
    if (!hasAsterisk && !hasBracket) {
        return;
    }
    m_losses.Add(LossKind::Asterisks, int(hasAsterisk && HasLooseAsterisk(text)));
    m_losses.Add(LossKind::Brackets, int(hasBracket));
    m_losses.Add(LossKind::Letters, int(CountLetters(NormalizeTerm(text)) < CountLetters(text)));
}

QString CForeignEntries::AsNote(QStringView text)
{
    m_losses.Add(LossKind::LineBreaks, int(HoldsLineBreak(text.trimmed())));
    return text.toString();
}

QString WithAlternativeMark(const QString &term, AlternativeMark mark)
{
    QString marked = term;
    switch (mark) {
    case AlternativeMark::Asterisk:
        return marked;
    case AlternativeMark::Semicolon:
        return marked.replace(AlternativeJoint.toString(), QStringLiteral("; "));
    case AlternativeMark::Comma:
        return marked.replace(AlternativeJoint.toString(), QStringLiteral(", "));
    case AlternativeMark::Slash:
        return marked.replace(AlternativeJoint.toString(), QStringLiteral(" / "));
    }
    return marked;
}
