// SPDX-License-Identifier: MIT
#include "quiz/ui/quiz_settings_dialog.h"
#include "resources/texts.h"
#include "support/scripted_prompt.h"
#include "support/silent_sounds.h"
#include "support/widgets.h"

namespace {

/// The window over settings of its own; `settings` are those that OK stores.
struct Window
{
    CTexts texts;
    CScriptedChooser chooser;
    CSilentSounds sounds;
    QuizSettings &settings;
    CQuizSettingsDialog dialog{CQuizSettingsForm(
        settings, {u"A&B"_s, u"Engelska"_s}, texts, chooser, sounds, {QStringLiteral(ORDELIN_SOURCE_DIR)})};

    explicit Window(QuizSettings &stored) : settings(stored) { dialog.open(); }

    /// The names of the controls that can't be used.
    QStringList Disabled() const
    {
        QStringList names;
        for (const QWidget *widget : dialog.findChildren<QWidget *>()) {
            const bool control = qobject_cast<const QSpinBox *>(widget) != nullptr
                || qobject_cast<const QCheckBox *>(widget) != nullptr;
            if (control && !widget->isEnabled()) {
                names.append(widget->objectName());
            }
        }
        names.sort();
        return names;
    }
};

/// Every setting of the pages in one line.
QString Describe(const QuizSettings &s)
{
    const QList<int> numbers = {s.quizNumber, s.showResult, s.selectedTestedWordsAfterQuiz, s.learning,
        s.allowChanges, int(s.order), int(s.showLanguage), int(s.wordsToQuiz), s.numberOfWords, s.partOfWords,
        int(s.includeFlaggedWords), s.includeFlaggedProbability, int(s.characterCheck), s.ignoreCase,
        s.showAnswer, s.showAnswerIfOneCorrect, s.playRight, s.playWrong, int(s.requiz), s.requizMax,
        s.requizNumber};
    QStringList parts;
    for (const int number : numbers) {
        parts.append(QString::number(number));
    }
    return parts.join(u' ') + u' ' + s.rightSoundFile + u' ' + s.wrongSoundFile;
}

}

class QuizSettingsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void storesWhatIsShown()
    {
        QuizSettings settings;
        const QString factory = u"3 1 1 0 1 2 0 0 20 50 2 20 0 0 1 0 1 1 2 1 3 right.wav wrong.wav"_s;
        {
            Window shown(settings);
            VerifyAccessibleNames(&shown.dialog);
            QCOMPARE(Find<QRadioButton>(&shown.dialog, "fromLanguage1")->text(), u"&Från A&&B till Engelska"_s);
            QCOMPARE(Find<QRadioButton>(&shown.dialog, "fromLanguage2")->text(), u"F&rån Engelska till A&&B"_s);
            shown.dialog.accept();
            QCOMPARE(Describe(settings), factory);
        }
        {
            Window changed(settings);
            for (QCheckBox *box : changed.dialog.findChildren<QCheckBox *>()) {
                box->toggle();
            }
            for (QSpinBox *number : changed.dialog.findChildren<QSpinBox *>()) {
                number->setValue(number->maximum());
            }
            for (QComboBox *choice : changed.dialog.findChildren<QComboBox *>()) {
                choice->setCurrentIndex(1);
            }
            for (const char *button : {"fromLanguage2", "noRequiz"}) {
                Find<QRadioButton>(&changed.dialog, button)->click();
            }
            Find<QLineEdit>(&changed.dialog, "fileRight")->setText(u"a.wav"_s);
            Find<QLineEdit>(&changed.dialog, "fileWrong")->clear();
            QCOMPARE(Describe(settings), factory);
            changed.dialog.accept();
        }
        const QString stored = u"100 0 0 1 0 1 1 1 1000 100 1 99 1 1 0 1 0 0 0 0 100 a.wav "_s;
        QCOMPARE(Describe(settings), stored);
        Window again(settings);
        again.dialog.accept();
        QCOMPARE(Describe(settings), stored);
    }

    void requizButtons()
    {
        QuizSettings settings;
        for (const auto &[button, requiz] : {std::pair("noRequiz", Requiz::None), {"askAgain", Requiz::AtOnce},
                 {"requizAfter", Requiz::AfterRound}}) {
            Window window(settings);
            Find<QRadioButton>(&window.dialog, button)->click();
            QTest::keyClick(&window.dialog, Qt::Key_Escape);
            QVERIFY(!window.dialog.isVisible() && settings.requiz != requiz);
            window.dialog.accept();
            QCOMPARE(settings.requiz, requiz);
            const Window again(settings);
            QVERIFY2(Find<QRadioButton>(&again.dialog, button)->isChecked(), button);
        }
    }

    void rowsThatApply()
    {
        QuizSettings settings;
        const Window window(settings);
        const auto choose = [&](int words, int flagged, const char *requiz, bool limit) {
            Find<QComboBox>(&window.dialog, "wordsToQuiz")->setCurrentIndex(words);
            Find<QComboBox>(&window.dialog, "includeFlaggedWords")->setCurrentIndex(flagged);
            Find<QRadioButton>(&window.dialog, requiz)->click();
            Find<QCheckBox>(&window.dialog, "requizMax")->setChecked(limit);
            return window.Disabled().join(u' ');
        };
        QCOMPARE(window.Disabled().join(u' '), u"numberOfWords partOfWords requizMax requizNumber"_s);
        QCOMPARE(choose(1, 0, "requizAfter", true), u"includeFlaggedProbability partOfWords"_s);
        QCOMPARE(choose(2, 1, "requizAfter", false), u"includeFlaggedProbability numberOfWords requizNumber"_s);
        QCOMPARE(choose(3, 2, "noRequiz", true), u"numberOfWords partOfWords requizMax requizNumber"_s);
    }

    void choosingSounds()
    {
        QuizSettings settings;
        Window window(settings);
        window.chooser.paths = {QString(), u"/x/ding.wav"_s};
        auto *const file = Find<QLineEdit>(&window.dialog, "fileWrong");
        Find<QPushButton>(&window.dialog, "fileWrongBrowse")->click();
        QCOMPARE(file->text(), u"wrong.wav"_s);
        QCOMPARE(window.chooser.asked.first().start, QStringLiteral(ORDELIN_SOURCE_DIR "/sounds/wrong.wav"));
        QCOMPARE(window.chooser.asked.first().filters, (QStringList{u"Ljud (*.wav)"_s, u"Alla filer (*)"_s}));
        Find<QPushButton>(&window.dialog, "fileWrongBrowse")->click();
        QCOMPARE(file->text(), u"/x/ding.wav"_s);
        Find<QPushButton>(&window.dialog, "fileWrongPlay")->click(); // There is no such file.
        Find<QPushButton>(&window.dialog, "fileRightPlay")->click();
        QCOMPARE(window.sounds.played, QStringList{QStringLiteral(ORDELIN_SOURCE_DIR "/sounds/right.wav")});
        window.dialog.accept();
        QCOMPARE(settings.wrongSoundFile, u"/x/ding.wav"_s);
        QCOMPARE(settings.rightSoundFile, u"right.wav"_s);
    }
};

QTEST_MAIN(QuizSettingsTest)
#include "quiz_settings_test.moc"
