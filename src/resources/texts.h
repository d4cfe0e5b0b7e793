// SPDX-License-Identifier: MIT
#pragma once

#include "platform/user_prompt.h"
#include "resources/string_table.h"

#include <QString>
#include <QStringList>

/// Fills each "%s", and "%d" likewise, of `format` with the next value, and turns "%%" into "%", in one pass:
/// what stands in a value is never filled or turned. A placeholder without a value becomes empty.
QString FillText(const QString &format, const QStringList &values);

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
    QString Fill(int number, const QStringList &values) const { return FillText(Get(number), values); }
    PromptText Prompt(int number, const QStringList &values = {}) const
    {
        return {number, Fill(number, values)};
    }

private:
    CStringTable m_own;
    CStringTable m_module;
};
