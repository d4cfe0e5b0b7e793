// SPDX-License-Identifier: MIT
#include "quiz/ui/quiz_settings_dialog.h"
#include "support/scripted_prompt.h"
#include "support/silent_sounds.h"

#include "resources/texts.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QTest>

namespace {

/// The window over settings of its own; `settings` are those that OK stores.
struct Window
{
    CTexts texts;
    CScriptedChooser chooser;
    CSilentSounds sounds;
    QuizSettings &settings;
    CQuizSettingsDialog dialog{CQuizSettingsForm(settings, {QStringLiteral("A&B"), QStringLiteral("Engelska")},
        texts, chooser, sounds, {QStringLiteral(ORDELIN_SOURCE_DIR)})};

    explicit Window(QuizSettings &stored) : settings(stored) { dialog.open(); }

    template<class Control>
    Control *Find(const char *name) const
    {
        return dialog.findChild<Control *>(QLatin1StringView(name));
    }
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
    void storesWhatIsShown();
    void cancelStoresNothing();
    void requizButtons();
    void rowsThatApply();
    void choosingSounds();
    void valuesOutsideTheirRanges();
};

void QuizSettingsTest::storesWhatIsShown()
{
    QuizSettings settings;
    const QString factory = QStringLiteral("3 1 1 0 1 2 0 0 20 50 2 20 0 0 1 0 1 1 2 1 3 right.wav wrong.wav");
    {
        Window shown(settings);
        for (const QWidget *widget : shown.dialog.findChildren<QWidget *>()) {
            const bool control = widget->focusPolicy() != Qt::NoFocus && !widget->objectName().isEmpty()
                && !widget->objectName().startsWith(u"qt_");
            QVERIFY2(!control || !widget->accessibleName().isEmpty()
                    || qobject_cast<const QPushButton *>(widget) != nullptr,
                qPrintable(widget->objectName()));
        }
        QCOMPARE(shown.Find<QRadioButton>("fromLanguage1")->text(), QStringLiteral("&Från A&&B till Engelska"));
        QCOMPARE(shown.Find<QRadioButton>("fromLanguage2")->text(), QStringLiteral("F&rån Engelska till A&&B"));
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
            changed.Find<QRadioButton>(button)->click();
        }
        changed.Find<QLineEdit>("fileRight")->setText(QStringLiteral("a.wav"));
        changed.Find<QLineEdit>("fileWrong")->clear();
        QCOMPARE(Describe(settings), factory);
        changed.dialog.accept();
    }
    const QString stored = QStringLiteral("100 0 0 1 0 1 1 1 1000 100 1 99 1 1 0 1 0 0 0 0 100 a.wav ");
    QCOMPARE(Describe(settings), stored);
    Window again(settings);
    again.dialog.accept();
    QCOMPARE(Describe(settings), stored);
}

void QuizSettingsTest::cancelStoresNothing()
{
    QuizSettings settings;
    Window window(settings);
    window.Find<QSpinBox>("quizNumber")->setValue(7);
    window.Find<QRadioButton>("fromLanguage2")->click();
    QTest::keyClick(&window.dialog, Qt::Key_Escape);
    QVERIFY(!window.dialog.isVisible());
    QCOMPARE(settings.quizNumber, 3);
    QCOMPARE(settings.showLanguage, QuizDirection::FromLanguage1);
}

void QuizSettingsTest::requizButtons()
{
    const char *const buttons[] = {"noRequiz", "askAgain", "requizAfter"};
    constexpr Requiz Values[] = {Requiz::None, Requiz::AtOnce, Requiz::AfterRound};
    QuizSettings settings;
    for (int i = 0; i < 3; ++i) {
        Window chosen(settings);
        chosen.Find<QRadioButton>(buttons[i])->click();
        chosen.dialog.accept();
        QCOMPARE(settings.requiz, Values[i]);
        const Window again(settings);
        QVERIFY2(again.Find<QRadioButton>(buttons[i])->isChecked(), buttons[i]);
    }
}

void QuizSettingsTest::rowsThatApply()
{
    QuizSettings settings;
    const Window window(settings);
    const auto choose = [&](int words, int flagged, const char *requiz, bool limit) {
        window.Find<QComboBox>("wordsToQuiz")->setCurrentIndex(words);
        window.Find<QComboBox>("includeFlaggedWords")->setCurrentIndex(flagged);
        window.Find<QRadioButton>(requiz)->click();
        window.Find<QCheckBox>("requizMax")->setChecked(limit);
        return window.Disabled().join(u' ');
    };
    QCOMPARE(window.Disabled().join(u' '), QStringLiteral("numberOfWords partOfWords requizMax requizNumber"));
    QCOMPARE(choose(1, 0, "requizAfter", true), QStringLiteral("includeFlaggedProbability partOfWords"));
    QCOMPARE(choose(2, 1, "requizAfter", false),
        QStringLiteral("includeFlaggedProbability numberOfWords requizNumber"));
    QCOMPARE(
        choose(3, 2, "noRequiz", true), QStringLiteral("numberOfWords partOfWords requizMax requizNumber"));
}

void QuizSettingsTest::choosingSounds()
{
    QuizSettings settings;
    Window window(settings);
    window.chooser.paths = {QString(), QStringLiteral("/x/ding.wav")};
    auto *const file = window.Find<QLineEdit>("fileWrong");
    window.Find<QPushButton>("fileWrongBrowse")->click();
    QCOMPARE(file->text(), QStringLiteral("wrong.wav"));
    QCOMPARE(window.chooser.asked.first().start, QStringLiteral(ORDELIN_SOURCE_DIR "/sounds/wrong.wav"));
    QCOMPARE(window.chooser.asked.first().filters,
        (QStringList{QStringLiteral("Ljud (*.wav)"), QStringLiteral("Alla filer (*)")}));
    window.Find<QPushButton>("fileWrongBrowse")->click();
    QCOMPARE(file->text(), QStringLiteral("/x/ding.wav"));
    window.Find<QPushButton>("fileWrongPlay")->click(); // There is no such file.
    window.Find<QPushButton>("fileRightPlay")->click();
    QCOMPARE(window.sounds.played, QStringList{QStringLiteral(ORDELIN_SOURCE_DIR "/sounds/right.wav")});
    window.dialog.accept();
    QCOMPARE(settings.wrongSoundFile, QStringLiteral("/x/ding.wav"));
    QCOMPARE(settings.rightSoundFile, QStringLiteral("right.wav"));
}

void QuizSettingsTest::valuesOutsideTheirRanges()
{
    QuizSettings settings;
    settings.numberOfWords = -5;
    settings.partOfWords = 3000;
    Window window(settings);
    QCOMPARE(window.Find<QSpinBox>("numberOfWords")->value(), 1);
    QCOMPARE(window.Find<QSpinBox>("partOfWords")->value(), 100);
    auto *const rounds = window.Find<QSpinBox>("quizNumber");
    rounds->selectAll();
    QTest::keyClicks(rounds, QStringLiteral("7000"));
    QTest::keyClick(rounds, Qt::Key_Return);
    QVERIFY(!window.dialog.isVisible());
    QCOMPARE(settings.quizNumber, 100);
    QCOMPARE(settings.numberOfWords, 1);
    QCOMPARE(settings.partOfWords, 100);
}

QTEST_MAIN(QuizSettingsTest)
#include "quiz_settings_test.moc"
