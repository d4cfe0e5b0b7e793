// SPDX-License-Identifier: MIT
#include "quiz/ui/quiz_settings2.h"

#include "platform/ui/label.h"
#include "platform/ui/number_field.h"
#include "platform/ui/setting_controls.h"
#include "quiz/quiz_settings_form.h"
#include "quiz/text_numbers.h"
#include "resources/texts.h"

#include <QComboBox>
#include <QFormLayout>
#include <QLabel>

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
        QLabel *const explanation = MakeWrappedLabel(texts.Get(text), this);
        rows->addRow(explanation);
        return explanation;
    };
    const auto addNumber = [&](int question, int caption, int unit, QWidget *number) {
        QList<QWidget *> row = {explain(question)};
        return row + AddRow(*rows, texts.Get(caption), number, texts.Get(unit));
    };

    explain(Text::QuizSettingsWordsQuestion);
    auto *words = MakeChoice(this, "wordsToQuiz", texts.Get(Text::QuizWordChoices), values.wordsToQuiz);
    AddRow(*rows, texts.Get(Text::QuizSettingsWords), words);
    m_number =
        addNumber(Text::QuizSettingsNumberQuestion, Text::QuizSettingsNumber, Text::QuizSettingsNumberUnit,
            MakeNumber(this, "numberOfWords", CQuizSettingsForm::NumberOfWords, values.numberOfWords));
    m_share = addNumber(Text::QuizSettingsShareQuestion, Text::QuizSettingsShare, Text::QuizSettingsPercent,
        MakeNumber(this, "partOfWords", CQuizSettingsForm::Others, values.partOfWords));

    explain(Text::QuizSettingsFlaggedQuestion);
    auto *flagged =
        MakeChoice(this, "includeFlaggedWords", texts.Get(Text::FlaggedChoices), values.includeFlaggedWords);
    AddRow(*rows, texts.Get(Text::QuizSettingsFlagged), flagged);
    m_probability = addNumber(Text::QuizSettingsProbabilityQuestion, Text::QuizSettingsProbability,
        Text::QuizSettingsPercent,
        MakeNumber(this, "includeFlaggedProbability", CQuizSettingsForm::Probability,
            values.includeFlaggedProbability));

    connect(words, &QComboBox::currentIndexChanged, this, &CQuizSettings2::updateEnabled);
    connect(flagged, &QComboBox::currentIndexChanged, this, &CQuizSettings2::updateEnabled);
    updateEnabled();
}

void CQuizSettings2::updateEnabled()
{
    SetAllEnabled(m_number, m_form.isNumberUsed());
    SetAllEnabled(m_share, m_form.isShareUsed());
    SetAllEnabled(m_probability, m_form.isProbabilityUsed());
}
