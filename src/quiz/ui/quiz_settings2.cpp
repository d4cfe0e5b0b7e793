// SPDX-License-Identifier: MIT
#include "quiz/ui/quiz_settings2.h"

#include "quiz/ui/setting_controls.h"
#include "resources/text_numbers.h"
#include "resources/texts.h"

#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QSpinBox>

CQuizSettings2::CQuizSettings2(CQuizSettingsForm &form, QWidget *parent) : QWidget(parent), m_form(form)
{
    const CTexts &texts = form.texts();
    QuizSettings &values = form.values;
    auto *rows = new QFormLayout(this);
    const int gap = fontMetrics().lineSpacing() / 2;
    const auto explain = [&](int text) {
        if (rows->rowCount() > 0) {
            rows->setItem(rows->rowCount(), QFormLayout::SpanningRole, new QSpacerItem(0, gap));
        }
        QLabel *const explanation = makeExplanation(this, texts.Get(text));
        rows->addRow(explanation);
        return explanation;
    };
    const auto addNumber = [&](int question, int caption, int unit, QSpinBox *number) {
        QList<QWidget *> row = {explain(question)};
        return row + addRow(*rows, texts.Get(caption), number, texts.Get(unit));
    };

    explain(Text::QuizSettingsWordsQuestion);
    auto *words = makeChoice(this, "wordsToQuiz", texts.Get(Text::QuizWordChoices), values.wordsToQuiz);
    addRow(*rows, texts.Get(Text::QuizSettingsWords), words);
    m_number =
        addNumber(Text::QuizSettingsNumberQuestion, Text::QuizSettingsNumber, Text::QuizSettingsNumberUnit,
            makeNumber(this, "numberOfWords", CQuizSettingsForm::NumberOfWords, values.numberOfWords));
    m_share = addNumber(Text::QuizSettingsShareQuestion, Text::QuizSettingsShare, Text::QuizSettingsPercent,
        makeNumber(this, "partOfWords", CQuizSettingsForm::Others, values.partOfWords));

    explain(Text::QuizSettingsFlaggedQuestion);
    auto *flagged =
        makeChoice(this, "includeFlaggedWords", texts.Get(Text::FlaggedChoices), values.includeFlaggedWords);
    addRow(*rows, texts.Get(Text::QuizSettingsFlagged), flagged);
    m_probability = addNumber(Text::QuizSettingsProbabilityQuestion, Text::QuizSettingsProbability,
        Text::QuizSettingsPercent,
        makeNumber(
            this, "includeFlaggedProbability", CQuizSettingsForm::Others, values.includeFlaggedProbability));

    connect(words, &QComboBox::currentIndexChanged, this, &CQuizSettings2::UpdateEnabled);
    connect(flagged, &QComboBox::currentIndexChanged, this, &CQuizSettings2::UpdateEnabled);
    UpdateEnabled();
}

void CQuizSettings2::UpdateEnabled()
{
    setAllEnabled(m_number, m_form.IsNumberUsed());
    setAllEnabled(m_share, m_form.IsShareUsed());
    setAllEnabled(m_probability, m_form.IsProbabilityUsed());
}
