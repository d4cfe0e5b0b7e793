// SPDX-License-Identifier: MIT
#include "fileformats/html_text.h"

#include <algorithm>
#include <array>

namespace {

struct Reference
{
    QStringView name;
    char16_t character;
};
constexpr std::array References = {Reference{u"amp", u'&'}, Reference{u"lt", u'<'}, Reference{u"gt", u'>'},
    Reference{u"quot", u'"'}, Reference{u"apos", u'\''}, Reference{u"nbsp", u' '}, Reference{u"ndash", u'–'},
    Reference{u"mdash", u'—'}, Reference{u"hellip", u'…'}, Reference{u"auml", u'ä'}, Reference{u"ouml", u'ö'},
    Reference{u"aring", u'å'}, Reference{u"uuml", u'ü'}, Reference{u"szlig", u'ß'}, Reference{u"eacute", u'é'},
    Reference{u"egrave", u'è'}, Reference{u"Auml", u'Ä'}, Reference{u"Ouml", u'Ö'}, Reference{u"Aring", u'Å'},
    Reference{u"Uuml", u'Ü'}, Reference{u"Eacute", u'É'}, Reference{u"laquo", u'«'}, Reference{u"raquo", u'»'},
    Reference{u"rarr", u'→'}, Reference{u"larr", u'←'}};

constexpr std::array<QStringView, 14> LineElements = {
    u"br", u"div", u"p", u"li", u"ul", u"ol", u"tr", u"td", u"th", u"table", u"hr", u"h1", u"h2", u"h3"};
constexpr std::array<QStringView, 5> MediaElements = {u"img", u"audio", u"video", u"object", u"svg"};

template<class Names>
bool Holds(const Names &names, QStringView name)
{
    return std::ranges::any_of(
        names, [name](QStringView known) { return name.compare(known, Qt::CaseInsensitive) == 0; });
}

/// A reference stands at `i`, where an ampersand is. Appends its character and returns its length; 0 when there
/// is none.
qsizetype AppendReference(QStringView html, qsizetype i, QString &text)
{
    constexpr qsizetype Longest = 10;
    const qsizetype length = html.sliced(i, std::min(Longest, html.size() - i)).indexOf(u';');
    if (length < 2) {
        return 0;
    }
    const QStringView name = html.sliced(i + 1, length - 1);
    if (name.startsWith(u'#')) {
        const bool isHex = name.size() > 1 && (name[1] == u'x' || name[1] == u'X');
        bool isNumber = false;
        const char32_t character = name.sliced(isHex ? 2 : 1).toUInt(&isNumber, isHex ? 16 : 10);
        if (!isNumber || character == 0 || character > QChar::LastValidCodePoint
            || QChar::isSurrogate(character)) {
            return 0;
        }
        text += QChar::fromUcs4(character);
        return length + 1;
    }
    const auto *const found = std::ranges::find(References, name, &Reference::name);
    if (found == References.end()) {
        return 0;
    }
    text += QChar(found->character);
    return length + 1;
}

/// Where the element that begins at `i` ends, behind its ">"; 0 when there is none. A ">" in quotes is none.
qsizetype EndOfElement(QStringView html, qsizetype i)
{
    constexpr qsizetype Longest = 10'000; // So that what nothing closes is not looked for again and again.
    if (i + 1 >= html.size()
        || !(html[i + 1].isLetter() || html[i + 1] == u'/' || html[i + 1] == u'!' || html[i + 1] == u'?')) {
        return 0;
    }
    QChar quote;
    const qsizetype last = std::min(html.size(), i + Longest);
    for (qsizetype k = i + 1; k < last; ++k) {
        const QChar unit = html[k];
        if (!quote.isNull()) {
            quote = unit == quote ? QChar() : quote;
        } else if (unit == u'>') {
            return k + 1;
        } else if ((unit == u'"' || unit == u'\'') && html[k - 1] == u'=') {
            quote = unit;
        }
    }
    return 0;
}

QStringView NameOfElement(QStringView element)
{
    QStringView name = element.sliced(element.size() > 1 && element[1] == u'/' ? 2 : 1);
    const auto end = std::ranges::find_if(name, [](QChar unit) { return !unit.isLetterOrNumber(); });
    return name.first(end - name.begin());
}

/// Where what stands between this element and its end tag ends: no text but a style or a program.
qsizetype EndOfHidden(QStringView html, qsizetype from, QStringView name)
{
    const QString end = QStringLiteral("</") + name.toString();
    const qsizetype found = html.indexOf(end, from, Qt::CaseInsensitive);
    return found < 0 ? html.size() : found;
}

/// The end of a sound, "[sound:...]", that stands at `i`; 0 when there is none.
qsizetype EndOfSound(QStringView html, qsizetype i)
{
    constexpr QStringView Start = u"[sound:";
    constexpr qsizetype Longest = 300;
    if (!html.sliced(i).startsWith(Start)) {
        return 0;
    }
    const qsizetype end = html.sliced(i, std::min(Longest, html.size() - i)).indexOf(u']');
    return end < 0 ? 0 : i + end + 1;
}

}

HtmlText TextOfHtml(QStringView html)
{
    HtmlText result;
    result.text.reserve(html.size());
    int openEnds = 0; // A text in which many elements have no end is none.
    constexpr int MostOpenEnds = 100;
    for (qsizetype i = 0; i < html.size();) {
        const QChar unit = html[i];
        if (unit == u'&') {
            if (const qsizetype length = AppendReference(html, i, result.text); length > 0) {
                i += length;
                continue;
            }
        } else if (unit == u'<' && openEnds < MostOpenEnds) {
            if (const qsizetype end = EndOfElement(html, i); end > 0) {
                const QStringView name = NameOfElement(html.sliced(i, end - i));
                const bool begins = html[i + 1] != u'/';
                result.hadMarkup = true;
                result.hadMedia = result.hadMedia || (begins && Holds(MediaElements, name));
                if (Holds(LineElements, name)) {
                    result.text += u' ';
                }
                i = begins && (name == u"style" || name == u"script") ? EndOfHidden(html, end, name) : end;
                continue;
            }
            ++openEnds;
        } else if (unit == u'[') {
            if (const qsizetype end = EndOfSound(html, i); end > 0) {
                result.hadMedia = true;
                i = end;
                continue;
            }
        }
        result.text += unit;
        ++i;
    }
    return result;
}
