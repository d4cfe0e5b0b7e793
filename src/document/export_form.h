// SPDX-License-Identifier: MIT
#pragma once

#include "document/loss_count.h"

#include <QStringList>

class CTexts;

/// What is chosen before a copy of a list is written in a format that can't hold all of it, and what the copy
/// would not have. Choices are indices into lists of texts. Knows no window.
class CExportForm : public QObject
{
    Q_OBJECT

public:
    /// `list` and `texts` must outlive this. The path tells how a separated text is laid out at first.
    CExportForm(const CWordList &list, const Format &format, const QString &path, const CTexts &texts);

    const CTexts &Texts() const { return m_texts; }
    /// What is chosen.
    const FormatWriteOptions &Options() const { return m_options; }

    /// Which choices the format has.
    bool HasLayout() const { return m_format.id == FormatId::SeparatedText; }
    bool HasTerms() const { return m_format.id == FormatId::PlainText; }
    bool HasAlternatives() const { return !HasTerms(); }

    QString Separators() const;
    int Separator() const;
    void ChooseSeparator(int index);
    int Encoding() const { return int(*Layout().encoding); }
    void ChooseEncoding(int index);
    bool HasHeading() const { return Layout().hasHeading; }
    void ChooseHeading(bool hasHeading);
    bool WritesMark() const { return Layout().writesMark; }
    void ChooseMark(bool writesMark);
    /// Windows-1252 has no mark.
    bool CanHaveMark() const { return *Layout().encoding != TextEncoding::Ansi; }
    QString TermChoices() const;
    int Terms() const { return int(m_options.plainText); }
    void ChooseTerms(int index);
    int Alternatives() const { return int(m_options.alternatives); }
    void ChooseAlternatives(int index);

    /// Whether it is known what a copy would not have; before that nobody should write one.
    bool IsCounted() const { return m_count.IsCounted(); }
    /// What it would not have, a line each behind a line that introduces them; or that it would have all; or
    /// that this is being counted.
    QString Losses() const;

Q_SIGNALS:
    /// It is known now, some time after a choice.
    void Counted();

private:
    const SeparatedTextOptions &Layout() const { return *m_options.separated; }
    void Count() { m_count.Count(m_options); }

    const CWordList &m_list;
    const Format &m_format;
    const CTexts &m_texts;
    FormatWriteOptions m_options;
    CLossCount m_count;
};
