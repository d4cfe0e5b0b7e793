// SPDX-License-Identifier: MIT
#include "quiz/difference_text.h"

#include "platform/plain_text.h"
#include "quiz/quiz_session.h"
#include "quiz/text_numbers.h"
#include "resources/texts.h"

#include <utility>

namespace {

using Kind = DifferencePart::Kind;

/// `text` with a mark in place of its middle when it is long.
QString shortened(const QString &text)
{
    constexpr qsizetype Kept = 40;
    if (text.size() <= 3 * Kept) {
        return text;
    }
    // At the ends of words, unless one is longer than what is kept.
    qsizetype start = StartLength(text, Kept);
    if (const qsizetype blank = text.lastIndexOf(u' ', start); blank > Kept / 2) {
        start = blank;
    }
    qsizetype end = StartLength(text, text.size() - Kept);
    if (const qsizetype blank = text.indexOf(u' ', end); blank >= 0 && blank < text.size() - Kept / 2) {
        end = blank + 1;
    }
    return text.left(start) + QChar(u'…') + text.mid(end);
}

QString escaped(const QString &text)
{
    // Blanks must not run into one.
    return shortened(text).toHtmlEscaped().replace(u' ', QChar(QChar::Nbsp));
}

QString tagged(const QString &text, const char *tag)
{
    const QString name = QLatin1StringView(tag);
    return text.isEmpty() ? QString() : u'<' + name + u'>' + escaped(text) + QStringLiteral("</") + name + u'>';
}

/// The differing stretches, each as one step.
QList<DifferencePart> stepsOf(const QList<DifferencePart> &parts)
{
    QList<DifferencePart> steps;
    bool afterSame = true;
    for (const DifferencePart &part : parts) {
        const bool same = part.kind == Kind::Same;
        if (!same && afterSame) {
            steps.append(part);
        } else if (!same) {
            steps.last().typed += part.typed;
            steps.last().expected += part.expected;
        }
        afterSame = same;
    }
    return steps;
}

QString stepInWords(const DifferencePart &step, const CTexts &texts)
{
    if (step.typed.isEmpty()) {
        return texts.Fill(Text::StepAdd, {shortened(step.expected)});
    }
    if (step.expected.isEmpty()) {
        return texts.Fill(Text::StepLeaveOut, {shortened(step.typed)});
    }
    return texts.Fill(Text::StepChange, {shortened(step.typed), shortened(step.expected)});
}

AnswerDifference differenceOf(const CQuizSession &session, int position, const QString &answer)
{
    const QuizQuestion question = session.questionAt(position);
    return answerDifference(question.entry, question.answerColumn(), answer, session.checkingOptions());
}

}

QString differenceAsHtml(const AnswerDifference &difference)
{
    QString typed;
    QString expected;
    for (const DifferencePart &part : difference.parts) {
        const bool same = part.kind == Kind::Same;
        typed += same ? escaped(part.typed) : tagged(part.typed, "s");
        expected += same ? escaped(part.expected) : tagged(part.expected, "u");
    }
    return Isolated(typed) + QStringLiteral(" → ") + Isolated(expected);
}

QString slipNames(Slips slips, const CTexts &texts)
{
    constexpr std::pair<Slip, int> Names[] = {{Slip::LetterCase, Text::SlipLetterCase},
        {Slip::Accent, Text::SlipAccent}, {Slip::PunctuationOrBlanks, Text::SlipPunctuation},
        {Slip::SameLook, Text::SlipSameLook}, {Slip::OneLetter, Text::SlipOneLetter},
        {Slip::Exchange, Text::SlipExchange}, {Slip::OtherWord, Text::SlipOtherWord}};
    QStringList names;
    for (const auto &[slip, name] : Names) {
        if (slips.testFlag(slip)) {
            names.append(texts.Get(name));
        }
    }
    return names.join(QStringLiteral("; "));
}

QString differenceInWords(const AnswerDifference &difference, const CTexts &texts)
{
    const QString typed = shortened(difference.typed);
    const QString expected = shortened(difference.expected);
    if (difference.slips & (Slip::OtherWord | Slip::SameLook)) {
        return texts.Fill(Text::DifferenceAsWhole, {typed, expected}); // Steps would say nothing.
    }
    QStringList steps;
    for (const DifferencePart &step : stepsOf(difference.parts)) {
        steps.append(stepInWords(step, texts));
    }
    return texts.Fill(Text::DifferenceInWords, {typed, expected, steps.join(texts.Get(Text::QuotedSeparator))});
}

namespace {

/// What is said behind a difference: the word that the answer would be right for, else the names of slips.
QString remarkOn(const CQuizSession &session, const CTexts &texts, int position, const QString &answer,
    const AnswerDifference &difference)
{
    if (const std::optional<int> other = session.otherWordOf(position, answer)) {
        const QuizQuestion question = session.questionAt(*other);
        return texts.Fill(Text::AnswerBelongsTo, {shortened(question.entry.GetText(question.questionColumn))});
    }
    return slipNames(difference.slips, texts);
}

}

QString wrongAnswerAsHtml(const CQuizSession &session, const CTexts &texts, int position, const QString &answer)
{
    if (answer.isEmpty()) {
        return QStringLiteral("<i>") + texts.Get(Text::EmptyAnswer).toHtmlEscaped() + QStringLiteral("</i>");
    }
    const AnswerDifference difference = differenceOf(session, position, answer);
    const QString remark = remarkOn(session, texts, position, answer, difference);
    return differenceAsHtml(difference)
        + (remark.isEmpty()
                ? QString()
                : QStringLiteral("&nbsp;&nbsp;<i>") + remark.toHtmlEscaped() + QStringLiteral("</i>"));
}

QString wrongAnswerInWords(
    const CQuizSession &session, const CTexts &texts, int position, const QString &answer)
{
    if (answer.isEmpty()) {
        return texts.Get(Text::EmptyAnswer);
    }
    const AnswerDifference difference = differenceOf(session, position, answer);
    const QString remark = remarkOn(session, texts, position, answer, difference);
    const QString sentence = differenceInWords(difference, texts);
    return remark.isEmpty() ? sentence : sentence + u' ' + remark + u'.';
}
