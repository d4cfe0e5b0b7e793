// SPDX-License-Identifier: MIT
#include "quiz/ui/self_test.h"

#include "quiz/text_numbers.h"
#include "quiz/ui/shown_text.h"
#include "resources/texts.h"

#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr QuizParts Parts =
    QuizPart::Skip | QuizPart::Flag | QuizPart::Answer | QuizPart::Change | QuizPart::WordLine;

}

CSelfTest::CSelfTest(const QuizWindowServices &services, std::unique_ptr<CSelfTestForm> form)
    : CWordByWordDialog(services, *form, Parts), m_form(std::move(form)),
      m_answer(new CShownText("answer", texts().Get(Text::SelfTestAnswerField), this))
{
    m_answer->setFont(largeFont());
    // Nothing moves when it comes into view.
    QSizePolicy policy = m_answer->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    m_answer->setSizePolicy(policy);
    fields()->addWidget(m_answer);
    button(QuizPart::Answer)->setText(texts().Get(Text::SelfTestShow));
    connect(button(QuizPart::Answer), &QPushButton::clicked, this, &CSelfTest::showAnswer);
    connect(button(QuizPart::Flag), &QPushButton::clicked, this, [this] { goOn(m_form->flag()); });
}

void CSelfTest::showCurrentWord()
{
    CWordByWordDialog::showCurrentWord();
    m_answer->showText(m_form->answer());
    m_answer->hide();
    button(QuizPart::Answer)->setEnabled(true);
    makeNext(*button(QuizPart::Answer));
}

void CSelfTest::showAnswer()
{
    m_answer->show();
    makeNext(*button(QuizPart::Skip));
    button(QuizPart::Answer)->setEnabled(false);
    speak(m_form->answer());
}

void CSelfTest::makeNext(QPushButton &next)
{
    next.setDefault(true);
    next.setFocus();
}

void CSelfTest::focusInput()
{
    button(m_answer->isHidden() ? QuizPart::Answer : QuizPart::Skip)->setFocus();
}
