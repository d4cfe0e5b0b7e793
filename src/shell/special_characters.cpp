// SPDX-License-Identifier: MIT
#include "shell/special_characters.h"

#include "resources/texts.h"
#include "settings/shell_settings.h"
#include "shell/text_numbers.h"

#include <algorithm>
#include <array>
#include <initializer_list>

namespace {

struct Range
{
    char16_t first;
    char16_t last;
};

QString FromRanges(std::initializer_list<Range> ranges)
{
    QString characters;
    for (const Range &range : ranges) {
        for (char32_t character = range.first; character <= range.last; ++character) {
            characters += QChar(char16_t(character));
        }
    }
    return characters;
}

// Kept: U+026B stands twice.
constexpr char16_t Phonetic[] =
    u"\u0251\u0250\u0252\u00E6\u0253\u0299\u03B2\u0254\u0255\u00E7\u0257\u0256\u00F0\u02A4"
    u"\u0259\u0258\u025A\u025B\u025C\u025D\u025E\u025F\u0284\u0260\u0262\u029B\u0266\u0267"
    u"\u0127\u0265\u029C\u0268\u026A\u029D\u026D\u026C\u026B\u026E\u029F\u0271\u026F\u0270"
    u"\u014B\u0273\u0272\u0274\u00F8\u0275\u0278\u03B8\u0153\u0276\u0298\u0279\u027A\u027E"
    u"\u027B\u0280\u0281\u027D\u0282\u0283\u0288\u02A7\u0289\u028B\u028A\u028C\u0263\u0264"
    u"\u028D\u03C7\u028E\u028F\u0291\u0290\u0292\u0294\u02A1\u0295\u02A2\u01C0\u01C1\u01C2"
    u"\u01C3\u02C8\u02CC\u02D0\u02D1\u02BC\u02B4\u02B0\u02B1\u02B2\u02B7\u02E0\u02E4\u02DE"
    u"\u0325\u030A\u0324\u032A\u032C\u0330\u033A\u033C\u033B\u031A\u0339\u0303\u031C\u031F"
    u"\u0320\u0308\u0334\u026B\u033D\u031D\u0329\u031E\u032F\u0318\u0319\u0306\u030B\u0301"
    u"\u0304\u0300\u030F\u2193\u2191\u2192\u2197\u2198";

/// Code point by code point, so that one character stays one character.
QString UpperCase(const QString &text)
{
    QString upper;
    for (const char32_t character : text.toUcs4()) {
        upper += QChar::fromUcs4(QChar::toUpper(character));
    }
    return upper;
}

}

const QString &CharactersOf(CharacterSet set)
{
    static const std::array<QString, 6> sets = {
        QString(),
        FromRanges({{u'a', u'z'}}),
        FromRanges({{0x00E0, 0x00FF}}),
        FromRanges({{0x037E, 0x037E}, {0x0384, 0x038A}, {0x038C, 0x038C}, {0x038E, 0x03A1}, {0x03A3, 0x03CE}}),
        FromRanges({{0x0430, 0x0435}, {0x0451, 0x0451}, {0x0436, 0x044F}}),
        QString::fromUtf16(Phonetic),
    };
    return sets.at(size_t(set));
}

CSpecialCharacters::CSpecialCharacters(EasyKeySettings &settings, const CTexts &texts)
    : m_settings(settings), m_texts(texts)
{
}

CharacterSet CSpecialCharacters::Set() const
{
    return CharacterSet(std::clamp(m_settings.subset, 0, int(CharacterSet::Phonetic)));
}

int CSpecialCharacters::Count() const
{
    return ShowsOwn() ? int(m_settings.keys.size()) + 1 : int(CharactersOf(Set()).size());
}

QString CSpecialCharacters::Text(int row) const
{
    if (ShowsOwn()) {
        return m_settings.keys.value(row);
    }
    return CharactersOf(Set()).mid(row, row < 0 ? 0 : 1);
}

bool CSpecialCharacters::IsRowForAdding(int row) const
{
    return ShowsOwn() && row == m_settings.keys.size();
}

QString CSpecialCharacters::Shortcut(int row) const
{
    constexpr int Digits = 10;
    if (!ShowsOwn() || row < 0 || row >= Digits || IsRowForAdding(row)) {
        return {};
    }
    return m_texts.Get(Text::CtrlKey) + u'+' + QString::number((row + 1) % Digits);
}

CharacterChoice CSpecialCharacters::Choose(int row, bool shift, bool ctrl)
{
    if (IsRowForAdding(row)) {
        return {CharacterAction::BeginAdding, {}};
    }
    const QString text = shift ? UpperCase(Text(row)) : Text(row);
    if (text.isEmpty()) {
        return {};
    }
    if (ctrl && !ShowsOwn()) {
        m_settings.keys.append(text);
        return {CharacterAction::Added, text};
    }
    return {CharacterAction::Send, text};
}

bool CSpecialCharacters::Edit(int row, const QString &text)
{
    // Own characters are stored joined by line feeds.
    const QString edited = QString(text).remove(u'\n').trimmed();
    if (!ShowsOwn() || row < 0 || row >= Count() || edited.isEmpty()) {
        return false;
    }
    if (IsRowForAdding(row)) {
        m_settings.keys.append(edited);
    } else {
        m_settings.keys[row] = edited;
    }
    return true;
}

bool CSpecialCharacters::Remove(int row)
{
    if (!ShowsOwn() || row < 0 || row >= m_settings.keys.size()) {
        return false;
    }
    m_settings.keys.removeAt(row);
    return true;
}

QString CSpecialCharacters::DigitText(int digit, bool shift) const
{
    const QString text = m_settings.keys.value(digit == 0 ? 9 : digit - 1);
    return shift ? UpperCase(text) : text;
}

QRect DockedRect(int dock, const QRect &frame, int ownWidth, const QRect &workArea)
{
    if (dock == 0) {
        return {};
    }
    const int left = dock == 2 ? frame.x() + frame.width() : frame.x() - ownWidth;
    return FittedRect(QRect(left, frame.y(), ownWidth, frame.height()), workArea);
}

QRect StoredRect(const EasyKeySettings &settings)
{
    constexpr int Farthest = 1000000; // Far beyond any desktop, and far from where numbers end.
    constexpr int Largest = 0x7FFF;
    const qint64 width = qint64(settings.right) - settings.left;
    const qint64 height = qint64(settings.bottom) - settings.top;
    if (width <= 0 || height <= 0) {
        return {};
    }
    return {std::clamp(settings.left, -Farthest, Farthest), std::clamp(settings.top, -Farthest, Farthest),
        int(std::min<qint64>(width, Largest)), int(std::min<qint64>(height, Largest))};
}

QRect FittedRect(QRect rect, const QRect &workArea)
{
    rect.setSize(rect.size().boundedTo(workArea.size()));
    rect.moveLeft(std::clamp(rect.left(), workArea.left(), workArea.left() + workArea.width() - rect.width()));
    rect.moveTop(std::clamp(rect.top(), workArea.top(), workArea.top() + workArea.height() - rect.height()));
    return rect;
}
