// SPDX-License-Identifier: MIT
#pragma once

#include "fileformats/format_loss.h"
#include "fileformats/format_options.h"
#include "model/word_entry.h"

#include <QStringView>

/// The texts of an entry as another program has them.
struct ForeignTexts
{
    QStringView term1;
    QStringView term2;
    QStringView note = {};
    bool flag1 = false;
    bool flag2 = false;
};

/// Makes entries of the texts of other programs. What a list takes otherwise than it was meant, or can't hold,
/// is counted.
class CForeignEntries
{
public:
    /// `losses` must outlive this.
    CForeignEntries(const TermOptions &options, CLossCounter &losses);

    CWordEntry Make(const ForeignTexts &texts);

private:
    QString AsTerm(QStringView text);
    QString AsNote(QStringView text);
    void CountSyntax(const QString &text);

    TermOptions m_options;
    CLossCounter &m_losses;
};

/// The term as another program takes it: with this mark between its alternatives.
QString WithAlternativeMark(const QString &term, AlternativeMark mark);
