// SPDX-License-Identifier: MIT
#include "quiz/accept_offer.h"

#include "platform/plain_text.h"
#include "quiz/quiz_session.h"
#include "quiz/text_numbers.h"
#include "resources/texts.h"

namespace {

AcceptOffer offerAbout(AcceptOffer::Kind kind, const QuizQuestion &question, const QString &answer)
{
    return {kind, answer, question.entry.GetText(question.questionColumn)};
}

}

AcceptOffer acceptOffer(const CQuizSession &session, int position, const QString &answer)
{
    return session.mayAccept(position, answer)
        ? offerAbout(AcceptOffer::Kind::Accept, session.questionAt(position), answer)
        : AcceptOffer();
}

AcceptOffer takeBackOffer(const CQuizSession &session)
{
    const auto &accepted = session.acceptedAnswer();
    return accepted
        ? offerAbout(AcceptOffer::Kind::TakeBack, session.questionAt(accepted->position), accepted->answer)
        : AcceptOffer();
}

QString acceptCaption(const AcceptOffer &offer, const CTexts &texts)
{
    if (offer.kind == AcceptOffer::Kind::Nothing) {
        return texts.Get(Text::AcceptAnswer);
    }
    return texts.Fill(offer.kind == AcceptOffer::Kind::Accept ? Text::AcceptThisAnswer : Text::TakeBackAnswer,
        {ShownInCaption(offer.answer), ShownInCaption(offer.word)});
}

QString acceptedLine(const AcceptOffer &offer, const QString &key, const CTexts &texts)
{
    if (offer.kind != AcceptOffer::Kind::TakeBack) {
        return {};
    }
    constexpr qsizetype Longest = 40;
    return texts.Fill(
        Text::AnswerWasAccepted, {ShownShort(offer.answer, Longest), ShownShort(offer.word, Longest), key});
}
