// SPDX-License-Identifier: MIT
#pragma once

#include <QRect>
#include <QString>

class CTexts;
struct EasyKeySettings;

/// The sets of characters that are hard to type. The number of a set is the one in the settings.
enum class CharacterSet { Own, Latin1, Latin2, Greek, Cyrillic, Phonetic };

/// The characters of a set in their order, none for the user's own; every one is a single code unit.
const QString &CharactersOf(CharacterSet set);

/// What choosing a character leads to.
enum class CharacterAction {
    Nothing,
    Send, ///< The text is to be typed.
    Added, ///< The text was added to the user's own characters.
    BeginAdding, ///< The user wants to write a new one.
};
struct CharacterChoice
{
    CharacterAction action = CharacterAction::Nothing;
    QString text;
};

/// What the special-character window shows and what choosing in it does. The rows are the characters of the set
/// in force; the user's own have one row more, for adding. Lives as long as the settings, which it changes.
class CSpecialCharacters
{
public:
    /// Neither is owned.
    CSpecialCharacters(EasyKeySettings &settings, const CTexts &texts);

    EasyKeySettings &Settings() const { return m_settings; }
    bool ShowsOwn() const { return Set() == CharacterSet::Own; }
    int Count() const;
    /// Empty for the row for adding and beyond the rows.
    QString Text(int row) const;
    bool IsRowForAdding(int row) const;
    /// The keys that type an own character, as shown beside it; empty beyond the tenth.
    QString Shortcut(int row) const;

    CharacterChoice Choose(int row, bool shift, bool ctrl);
    /// Changes an own character, or adds one in the row for adding. Returns false when nothing was changed: an
    /// empty text is refused.
    bool Edit(int row, const QString &text);
    /// Whether a text has anything that can be an own character.
    static bool IsAcceptable(const QString &text) { return !text.trimmed().isEmpty(); }
    bool Remove(int row);
    /// The own character of Ctrl and a digit; empty when there is none.
    QString DigitText(int digit, bool shift) const;

private:
    CharacterSet Set() const;

    EasyKeySettings &m_settings;
    const CTexts &m_texts;
};

/// Where the window stands beside another one: at its left (1) or right (2) side, as high as it, moved and cut
/// so that it lies within the work area. Both rectangles are those with the frame. No rectangle for no docking
/// (0).
QRect DockedRect(int dock, const QRect &frame, int ownWidth, const QRect &workArea);

/// The place of the window in the settings; empty for none, or for one that can't be.
QRect StoredRect(const EasyKeySettings &settings);

/// The rectangle moved, and cut where it is too large, so that it lies within the work area.
QRect FittedRect(QRect rect, const QRect &workArea);
