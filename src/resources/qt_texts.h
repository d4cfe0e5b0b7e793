// SPDX-License-Identifier: MIT
#pragma once

#include <QTranslator>

class CTexts;

/// Gives the toolkit's own buttons and dialogs their texts from the string table, so that they speak the
/// language of the program. Texts of the toolkit that are not listed stay in English; they are not shown by the
/// program.
class CQtTexts : public QTranslator
{
public:
    /// `texts` is not owned and must outlive the translator.
    explicit CQtTexts(const CTexts &texts, QObject *parent = nullptr);

    bool isEmpty() const override { return false; }
    QString translate(
        const char *context, const char *sourceText, const char *disambiguation, int n) const override;

private:
    const CTexts &m_texts;
};
