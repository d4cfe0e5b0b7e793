// SPDX-License-Identifier: MIT
#include "quiz/wrong_answers_model.h"

#include "platform/plain_text.h"
#include "quiz/quiz_session.h"
#include "quiz/text_numbers.h"
#include "resources/texts.h"

namespace {

using Kind = DifferencePart::Kind;

/// `text` with a mark in place of its middle when it is long.
QString shortened(const QString &text)
{
    constexpr qsizetype Kept = 40;
    if (text.size() <= 3 * Kept) {
        return text;
    }
    qsizetype start = Kept;
    qsizetype end = text.size() - Kept;
    start += text.at(start).isLowSurrogate() ? 1 : 0;
    end += text.at(end).isLowSurrogate() ? 1 : 0;
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

QString slipName(Slip slip, const CTexts &texts)
{
    return slip == Slip::None ? QString() : texts.Get(Text::SlipLetterCase + int(slip) - int(Slip::LetterCase));
}

QString differenceInWords(const AnswerDifference &difference, const CTexts &texts)
{
    QStringList steps;
    for (const DifferencePart &step : stepsOf(difference.parts)) {
        steps.append(stepInWords(step, texts));
    }
    const QString sentence = texts.Fill(Text::DifferenceInWords,
        {shortened(difference.typed), shortened(difference.expected),
            steps.join(texts.Get(Text::QuotedSeparator))});
    const QString slip = slipName(difference.slip, texts);
    return slip.isEmpty() ? sentence : sentence + u' ' + slip + u'.';
}

CWrongAnswersModel::CWrongAnswersModel(const CQuizSession &session, const CTexts &texts, QObject *parent)
    : QAbstractListModel(parent), m_session(session), m_texts(texts)
{
}

void CWrongAnswersModel::setPosition(int position)
{
    beginResetModel();
    m_position = position;
    m_answers = position < 0 ? QStringList() : m_session.wrongAnswers(position);
    m_answers.removeDuplicates();
    endResetModel();
}

AcceptOffer CWrongAnswersModel::acceptOffer(int row) const
{
    const bool exists = row >= 0 && row < m_answers.size();
    return exists ? ::acceptOffer(m_session, m_position, m_answers.at(row)) : AcceptOffer();
}

int CWrongAnswersModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_answers.size());
}

QVariant CWrongAnswersModel::data(const QModelIndex &index, int role) const
{
    if ((role != Qt::DisplayRole && role != MarkupRole) || !checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    const QString &answer = m_answers.at(index.row());
    if (answer.isEmpty()) {
        const QString text = m_texts.Get(Text::EmptyAnswer);
        return role == MarkupRole ? QStringLiteral("<i>") + text.toHtmlEscaped() + QStringLiteral("</i>")
                                  : text;
    }
    const QuizQuestion question = m_session.questionAt(m_position);
    const AnswerDifference difference =
        answerDifference(question.entry, question.answerColumn(), answer, m_session.checkingOptions());
    if (role == Qt::DisplayRole) {
        return differenceInWords(difference, m_texts);
    }
    const QString slip = slipName(difference.slip, m_texts);
    return differenceAsHtml(difference)
        + (slip.isEmpty() ? QString()
                          : QStringLiteral("&nbsp;&nbsp;<i>") + slip.toHtmlEscaped() + QStringLiteral("</i>"));
}
