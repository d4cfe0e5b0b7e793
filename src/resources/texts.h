// SPDX-License-Identifier: MIT
#pragma once

#include "platform/user_prompt.h"
#include "resources/placeholders.h"
#include "resources/string_table.h"

#include <QString>
#include <QStringList>

/// The source of every text the user sees: a language module where one is loaded, and the program's own Swedish
/// texts where it has none or lacks a number.
class CTexts
{
public:
    /// Loads the program's own texts.
    CTexts();

    /// Lets the texts of a module stand before the program's own. Returns false when `module` is none.
    [[nodiscard]] bool LoadModule(const QByteArray &module);
    /// The program's own language, whatever module is loaded.
    const CStringTable &Own() const { return m_own; }
    /// The module file of the program's own texts, from which translations are made.
    static QByteArray OwnModule();

    QString Get(int number) const { return TextOf(m_module, number); }
    /// A text of any module, with the program's own in place of one that it lacks or that can't be shown: an
    /// empty one where there is something to say, or an endless one.
    QString TextOf(const CStringTable &module, int number) const;
    /// The text with its placeholders filled; see FillText().
    QString Fill(int number, const QStringList &values, FilledFor use = FilledFor::Screen) const
    {
        return FillText(Get(number), values, use);
    }
    PromptText Prompt(int number, const QStringList &values = {}) const
    {
        return {number, Fill(number, values)};
    }

private:
    CStringTable m_own;
    CStringTable m_module;
};
