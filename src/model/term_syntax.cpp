// SPDX-License-Identifier: MIT
#include "model/term_syntax.h"

#include <algorithm>

namespace {

constexpr QChar Separator = u'*';
constexpr QChar CommentOpener = u'[';
constexpr QChar CommentCloser = u']';

bool IsControl(QChar unit)
{
    return unit < u' ' || unit == u'\x7F';
}

/// True when CleanSpaces() would leave the text as it is; most texts are, and are not copied then.
bool IsClean(QStringView text)
{
    bool afterSpace = true; // A space at the start counts as a second one.
    for (const QChar unit : text) {
        const bool space = unit == u' ';
        if (IsControl(unit) || (space && afterSpace)) {
            return false;
        }
        afterSpace = space;
    }
    return text.isEmpty() || !afterSpace;
}

/// Of a text that holds no two spaces in a row.
bool BeginsWithEmptyComment(QStringView text)
{
    return text.startsWith(u"[]") || text.startsWith(u"[ ]");
}

}

void CleanSpaces(QString &text)
{
    if (IsClean(text)) {
        return;
    }
    QString clean;
    clean.reserve(text.size());
    for (const QChar unit : std::as_const(text)) {
        const QChar cleaned = IsControl(unit) ? QChar(u' ') : unit;
        if (cleaned != u' ' || (!clean.isEmpty() && clean.back() != u' ')) {
            clean.append(cleaned);
        }
    }
    if (clean.endsWith(u' ')) {
        clean.chop(1);
    }
    text = clean;
}

void RemoveEmptyComments(QString &text)
{
    if (!text.contains(CommentOpener)) {
        return;
    }
    // The part of the text already scanned, reversed: its end is what follows the character at hand.
    QString following;
    following.reserve(text.size());
    for (qsizetype i = text.size() - 1; i >= 0; --i) {
        const QChar unit = text.at(i);
        if (unit == CommentOpener) {
            qsizetype closer = following.size() - 1;
            while (closer >= 0 && following.at(closer) == u' ') {
                --closer;
            }
            if (closer >= 0 && following.at(closer) == CommentCloser) {
                following.truncate(closer);
                continue;
            }
        }
        following.append(unit);
    }
    std::reverse(following.begin(), following.end());
    text = following;
}

bool NextToken(QStringView &source, QStringView &token, QChar separator)
{
    const qsizetype found = source.indexOf(separator);
    token = source.first(found < 0 ? source.size() : found);
    source = source.sliced(found < 0 ? source.size() : found + 1);
    return found >= 0;
}

QStringList SplitAlternatives(const QString &text)
{
    QStringList alternatives;
    QStringView rest = text;
    for (bool more = true; more;) {
        QStringView piece;
        more = NextToken(rest, piece, Separator);
        QString alternative = piece.toString();
        // Kept: in this order, so a comment of control characters alone stays, as one of a space.
        RemoveEmptyComments(alternative);
        CleanSpaces(alternative);
        if (!alternative.isEmpty()) {
            alternatives.append(alternative);
        }
    }
    return alternatives;
}

bool IsSimpleTerm(QStringView text)
{
    bool afterSpace = true; // A space at the start counts as a second one.
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar unit = text[i];
        if (unit > CommentOpener && unit != u'\x7F') { // A letter, or another one without a meaning here.
            afterSpace = false;
            continue;
        }
        const bool space = unit == u' ';
        if ((space && afterSpace) || unit == Separator || IsControl(unit)
            || (unit == CommentOpener && BeginsWithEmptyComment(text.sliced(i)))) {
            return false;
        }
        afterSpace = space;
    }
    return text.isEmpty() || !afterSpace;
}

QString NormalizeTerm(const QString &text)
{
    return IsSimpleTerm(text) ? text : SplitAlternatives(text).join(AlternativeJoint);
}

QString StripComments(const QString &text)
{
    // As in RemoveEmptyComments(), the text is scanned from its end and what follows is kept reversed.
    QString following;
    following.reserve(text.size());
    qsizetype i = text.size() - 1;
    for (; i >= 0; --i) {
        const QChar unit = text.at(i);
        if (unit == CommentOpener) {
            const qsizetype closer = following.lastIndexOf(CommentCloser);
            if (closer < 0) {
                break;
            }
            following.truncate(closer);
            continue;
        }
        following.append(unit);
    }
    std::reverse(following.begin(), following.end());
    return NormalizeTerm(text.left(i + 1) + following);
}

std::optional<QString> SuggestTermCorrection(const QString &text)
{
    if (!text.contains(u',') && !text.contains(u'(') && !text.contains(u')')) {
        return std::nullopt;
    }
    QString corrected = text;
    int depth = 0;
    for (QChar &unit : corrected) {
        if (unit == u'(') {
            unit = CommentOpener;
        } else if (unit == u')') {
            unit = CommentCloser;
        }
        if (unit == u',' && depth == 0) {
            unit = Separator; // Depth is 0 already, so this separator has nothing to reset.
        } else if (unit == CommentOpener) {
            ++depth;
        } else if (unit == CommentCloser) {
            depth = std::max(depth - 1, 0);
        } else if (unit == Separator) {
            depth = 0;
        }
    }
    if (corrected == text) {
        return std::nullopt;
    }
    return NormalizeTerm(corrected);
}
