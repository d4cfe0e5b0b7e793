// SPDX-License-Identifier: MIT
#include "quiz/standard_quiz_form.h"
#include "support/test_form.h"

#include <QRegularExpression>

namespace {

using Next = CWordByWordForm::Next;

struct Quiz
{
    Quiz(const QString &entries, const QuizSettings &given) : test(entries), settings(given) { }

    TestDocument test;
    QuizSettings settings;
    TestForm<CStandardQuizForm> made{test, settings};
    CStandardQuizForm &form = made.form;

    /// The question and the statistics, as: term round/rounds word/words right/answers. A round that repeats
    /// has "om" and its number behind the first number.
    QString State() const
    {
        static const QRegularExpression words(u"Vad heter \"|\" på \\w+\\?|Förhör |Glosa | rätt|\\."_s);
        const QString state = form.question() + u' ' + form.roundText() + u' ' + form.wordProgress()->text
            + u' ' + form.rightProgress().text;
        return QString(state).remove(words).replace(u"Omförhör"_s, u"om"_s).replace(u" av "_s, u"/"_s);
    }
};

/// Plays a quiz by script and returns for each step the state, and the number of the text shown after the
/// answer. A step is an answer, "-" to skip, "!" for the button "I was right", or "term 1=term 2" to change the
/// entry asked.
QStringList Play(const QString &entries, const QuizSettings &settings, const QString &script)
{
    Quiz quiz(entries, settings);
    CStandardQuizForm &form = quiz.form;
    QStringList steps;
    auto next = Next::SameWord;
    for (const QString &step : script.split(u' ')) {
        if (next == Next::Over) {
            break;
        }
        steps.append(quiz.State());
        if (step == u'-') {
            next = form.skip();
        } else if (step == u'!') {
            steps.last() += u' ' + acceptCaption(form.acceptOffer(), quiz.test.texts);
            next = form.takeAcceptOffer();
        } else if (step.contains(u'=')) {
            quiz.made.session->changeEntry(
                form.currentEntry(), step.section(u'=', 0, 0), step.section(u'=', 1, 1), {});
            form.entriesChanged();
        } else {
            const auto outcome = form.answer(QString(step).replace(u'_', u' '));
            steps.last() += outcome.feedback ? u" %1"_s.arg(outcome.feedback->number) : QString();
            next = form.advance(outcome.verdict);
        }
    }
    steps.append(next == Next::Over ? u"over"_s : quiz.State());
    return steps;
}

}

class StandardQuizFormTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void wholeQuizzes()
    {
        const QString animals = u"hund * vovve|dog,katt|cat * puss"_s;
        const QString letters = u"a|x,b|y"_s;
        QuizSettings backwards = InOrder(Requiz::None);
        backwards.order = QuizOrder::Backwards;
        backwards.showLanguage = QuizDirection::FromLanguage2;
        QuizSettings repeated = InOrder(Requiz::AfterRound, 2);
        repeated.requizNumber = 2;
        repeated.showAnswer = false;
        QuizSettings endless = repeated;
        endless.quizNumber = 1;
        endless.requizMax = false;
        const struct
        {
            QString entries;
            QuizSettings settings;
            QString script;
            QString steps; // As Play() returns them.
        } rows[] = {
            // Two rounds in order.
            {animals, InOrder(Requiz::None, 2), u"_dog_ puss _ -"_s,
                u"hund * vovve 1/2 1/2 0/0; katt 1/2 2/2 1/1 63004; "
                "hund * vovve 2/2 1/2 2/2 63003; katt 2/2 2/2 2/3; over"_s},
            // Backwards, the other direction.
            {animals, backwards, u"puss vovve"_s,
                u"cat * puss 1/1 1/2 0/0 63005; dog 1/1 2/2 0/1 63004; over"_s},
            // Again at once.
            {letters, InOrder(Requiz::AtOnce), u"- 0 _ y"_s,
                u"a 1/1 1/2 0/0; b 1/1 2/2 0/0 63005; b 1/1 2/2 0/1 63003; b 1/1 2/2 0/2; "
                "over"_s},
            // At most two repeats after each round.
            {letters, repeated, u"0 0 0 y 0 x 0 y"_s,
                u"a 1/2 1/2 0/0; b 1/2 2/2 0/1; a 1/2 om 1/2 1/2 0/2; "
                "b 1/2 om 1/2 2/2 0/3; a 1/2 om 2/2 1/1 1/4; a 2/2 1/2 1/5; "
                "b 2/2 2/2 2/6; b 2/2 om 1/2 1/1 2/7; over"_s},
            // Repeats without a maximum.
            {letters, endless, u"x 0 0 0 y"_s,
                u"a 1/1 1/2 0/0; b 1/1 2/2 1/1; b 1/1 om 1 1/1 1/2; b 1/1 om 2 1/1 1/3; "
                "b 1/1 om 3 1/1 1/4; over"_s},
            // An entry changes before it would be repeated.
            {letters, endless, u"x 0 b=0 -"_s,
                u"a 1/1 1/2 0/0; b 1/1 2/2 1/1; b 1/1 om 1 1/1 1/2; b 1/1 om 1 1/1 2/2; "
                "over"_s},
            // An entry changes in the middle of a round.
            {letters, InOrder(Requiz::AtOnce), u"0 aa=0 0 y"_s,
                u"a 1/1 1/2 0/0 63005; a 1/1 1/2 0/1; aa 1/1 1/2 1/1; b 1/1 2/2 2/2; over"_s},
            // I was right: a word asked again is left, and comes back.
            {letters, InOrder(Requiz::AtOnce), u"! 0 ! ! 0 - ! y"_s,
                u"a 1/1 1/2 0/0 Ja&g hade rätt; a 1/1 1/2 0/0 63005; "
                "a 1/1 1/2 0/1 Ja&g hade rätt: 0 = a; b 1/1 2/2 1/1 Ån&gra: 0 = a; "
                "a 1/1 1/2 0/1 63005; a 1/1 1/2 0/2; b 1/1 2/2 0/2 Ja&g hade rätt; "
                "b 1/1 2/2 0/2; over"_s},
            // I was right: a word left behind is not repeated.
            {letters, endless, u"0 ! y"_s,
                u"a 1/1 1/2 0/0; b 1/1 2/2 0/1 Ja&g hade rätt: 0 = a; b 1/1 2/2 1/1; over"_s},
        };
        for (const auto &row : rows) {
            QCOMPARE(Play(row.entries, row.settings, row.script).join(u"; "), row.steps);
        }
    }

    void learning()
    {
        Quiz quiz(u"a|b [x] * c"_s, InOrder(Requiz::None));
        QCOMPARE(quiz.form.roundText(), u"Förhör 1 av 1."_s);
        QCOMPARE(quiz.form.prefilledAnswer(), QString());
        quiz.settings.learning = true;
        QCOMPARE(quiz.form.prefilledAnswer(), u"b [x] * c"_s);
        QCOMPARE(quiz.form.answer(quiz.form.prefilledAnswer()).verdict, AnswerVerdict::Right);
        Quiz nothingToAsk({}, InOrder(Requiz::AtOnce, 3));
        QVERIFY(nothingToAsk.form.skip() == Next::Over);
        QVERIFY(nothingToAsk.form.acceptOffer().kind == AcceptOffer::Kind::Nothing);
    }
};

QTEST_APPLESS_MAIN(StandardQuizFormTest)
#include "standard_quiz_form_test.moc"
