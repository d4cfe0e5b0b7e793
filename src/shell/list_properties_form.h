// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <array>

class CTexts;
class CWin32Doc;

/// What the window of a list's properties shows and decides.
class CListPropertiesForm
{
public:
    /// Neither is owned.
    CListPropertiesForm(CWin32Doc &document, const CTexts &texts);

    const CTexts &Texts() const { return m_texts; }

    // What is shown of the list and can't be changed here.
    QString Path() const;
    QString EntryCount() const;
    QString FlaggedCaption(int language) const;
    QString FlaggedCount(int language) const;

    /// The question of a quiz whose list has none of its own.
    QString FactoryQuestion() const;
    /// The caption of the box for an own question from language `direction`, 0 or 1, to the other.
    QString AdaptCaption(int direction) const;
    /// What a quiz would ask about the list's first entry; nothing for an empty list.
    QString Example(int direction) const;

    /// Makes the values those of the list, as one step for undo where one differs.
    void Accept();

    std::array<QString, 2> languages;
    QString author;
    QString comments;
    /// By the language that is asked.
    std::array<bool, 2> adaptQuestion;
    std::array<QString, 2> questionTemplate;

private:
    CWin32Doc &m_document;
    const CTexts &m_texts;
};
