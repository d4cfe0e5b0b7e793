// SPDX-License-Identifier: MIT
#include "quiz/ui/quiz_settings1.h"

#include "platform/ui/label.h"
#include "platform/ui/number_field.h"
#include "platform/ui/setting_controls.h"
#include "quiz/quiz_settings_form.h"
#include "quiz/text_numbers.h"
#include "resources/texts.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QRadioButton>

CQuizSettings1::CQuizSettings1(CQuizSettingsForm &form, QWidget *parent) : QWidget(parent)
{
    const CTexts &texts = form.texts();
    QuizSettings &values = form.values;
    auto *rows = new QFormLayout;
    rows->addRow(MakeWrappedLabel(texts.Get(Text::QuizSettingsRoundsQuestion), this));
    AddRow(*rows, texts.Get(Text::QuizSettingsRounds),
        MakeNumber(this, "quizNumber", CQuizSettingsForm::Others, values.quizNumber));

    auto *checks = new QVBoxLayout;
    const auto addCheck = [&](const char *name, int caption, bool &value) {
        checks->addWidget(MakeCheckBox(this, name, texts.Get(caption), value));
    };
    addCheck("showResult", Text::QuizSettingsShowResult, values.showResult);
    addCheck(
        "selectedTestedWordsAfterQuiz", Text::QuizSettingsSelectWords, values.selectedTestedWordsAfterQuiz);
    addCheck("learning", Text::QuizSettingsLearning, values.learning);
    addCheck("allowChanges", Text::QuizSettingsAllowChanges, values.allowChanges);

    auto *order = new QFormLayout;
    AddRow(*order, texts.Get(Text::QuizSettingsOrder),
        MakeChoice(this, "order", texts.Get(Text::QuizOrders), values.order));

    auto *languages = new QGroupBox(texts.Get(Text::QuizSettingsLanguages), this);
    languages->setObjectName(QStringLiteral("languages"));
    auto *directions = new QVBoxLayout(languages);
    const auto addDirection = [&](const char *name, QuizDirection direction) {
        directions->addWidget(
            MakeRadioButton(languages, name, form.directionCaption(direction), direction, values.showLanguage));
    };
    addDirection("fromLanguage1", QuizDirection::FromLanguage1);
    addDirection("fromLanguage2", QuizDirection::FromLanguage2);

    auto *layout = new QVBoxLayout(this);
    layout->addLayout(rows);
    layout->addLayout(checks);
    layout->addLayout(order);
    layout->addWidget(languages);
    layout->addStretch(1);
}
