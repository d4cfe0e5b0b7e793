// SPDX-License-Identifier: MIT
#include "commandline/list_check.h"

#include "model/word_list.h"

#include <QHash>

#include <algorithm>
#include <array>

namespace {

using Kind = ListFinding::Kind;
using Tell = std::function<void(const ListFinding &)>;

/// Whether a composed form of the text is another; most texts have nothing to compose, and are not converted.
bool IsDecomposed(const QString &text)
{
    constexpr char16_t FirstMark = 0x0300;
    return std::ranges::any_of(text, [](QChar unit) { return unit.unicode() >= FirstMark; })
        && text.normalized(QString::NormalizationForm_C) != text;
}

bool IsInvisible(QChar unit)
{
    return unit == u'\u200B' || unit == u'\u2060' || unit == u'\uFEFF';
}

/// Whether the punctuation keeps a distance that doesn't break, as in French.
bool KeepsDistance(QChar before, QChar after)
{
    return before == u'«' || after == u'»' || after == u'?' || after == u'!' || after == u':' || after == u';';
}

bool IsOddBlank(QChar before, QChar blank, QChar after)
{
    if (before.isNull() || after.isNull() || before.isSpace() || after.isSpace()) {
        return true;
    }
    return (blank != u' ' && !KeepsDistance(before, after)) || QStringView(u",)]").contains(after)
        || QStringView(u"([").contains(before);
}

bool HasOddBlank(const QString &text)
{
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar unit = text.at(i);
        const QChar before = i > 0 ? text.at(i - 1) : QChar();
        const QChar after = i + 1 < text.size() ? text.at(i + 1) : QChar();
        if (IsInvisible(unit) || (unit.isSpace() && IsOddBlank(before, unit, after))) {
            return true;
        }
    }
    return false;
}

/// Brackets of comments don't nest.
bool HasOpenBracket(const QString &text)
{
    bool isComment = false;
    int round = 0;
    for (const QChar unit : text) {
        if (unit == u'[' && std::exchange(isComment, true)) {
            return true;
        }
        if (unit == u']') {
            isComment = false;
        }
        round += int(unit == u'(') - int(unit == u')' && round > 0);
    }
    return isComment || round > 0;
}

bool HasStrayBracket(const QString &text)
{
    bool isComment = false;
    return std::ranges::any_of(text, [&isComment](QChar unit) {
        const bool isStray = unit == u']' && !isComment;
        isComment = unit == u'[' || (isComment && unit != u']');
        return isStray;
    });
}

void CheckText(const QString &text, int entry, int field, const Tell &tell)
{
    if (IsDecomposed(text)) {
        tell({.kind = Kind::Decomposed, .entry = entry, .field = field, .text = text});
    }
    if (HasOddBlank(text)) {
        tell({.kind = Kind::OddBlank, .entry = entry, .field = field, .text = text});
    }
}

/// The alternatives of one language so far, each with the first entry that has it. They are those of the list,
/// which stays as it is meanwhile.
using Users = QHash<QStringView, int>;

void CheckAlternatives(const CWordEntry &entry, int index, int language, Users &users, const Tell &tell)
{
    for (const QString &alternative : entry.Alternatives(language)) {
        const ListFinding found = {.entry = index, .field = language, .text = alternative};
        const auto report = [&](Kind kind, int other = NoEntry) {
            ListFinding finding = found;
            finding.kind = kind;
            finding.other = other;
            tell(finding);
        };
        if (HasOpenBracket(alternative)) {
            report(Kind::OpenBracket);
        }
        if (HasStrayBracket(alternative)) {
            report(Kind::StrayBracket);
        }
        const auto user = users.constFind(alternative);
        if (user == users.constEnd()) {
            users.insert(alternative, index);
        } else if (*user != index) {
            report(Kind::SharedAlternative, *user);
        }
    }
}

}

void CheckList(const CWordList &list, const Tell &tell)
{
    const QString properties[] = {
        list.GetLanguage(0), list.GetLanguage(1), list.GetAuthor(), list.GetComments()};
    for (int i = 0; i < ListFinding::PropertyCount; ++i) {
        CheckText(properties[i], NoEntry, ListFinding::FirstProperty + i, tell);
    }
    std::array<Users, CWordEntry::LanguageCount> users;
    list.ForEach([&](int index, const CWordEntry &entry) {
        for (const int language : {0, 1}) {
            if (entry.GetText(language).isEmpty()) {
                tell({.kind = Kind::MissingTerm, .entry = index, .field = language});
            }
            CheckAlternatives(entry, index, language, users[size_t(language)], tell);
        }
        for (int field = 0; field < CWordEntry::FieldCount; ++field) {
            CheckText(entry.GetField(field), index, field, tell);
        }
    });
}
