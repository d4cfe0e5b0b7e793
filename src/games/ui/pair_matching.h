// SPDX-License-Identifier: MIT
#pragma once

#include "games/pair_matching_form.h"
#include "quiz/ui/whole_round_dialog.h"

class CPairTable;
class QLabel;

/// The window of pair matching.
class CPairMatchingDialog : public CWholeRoundDialog
{
    Q_OBJECT

public:
    CPairMatchingDialog(const QuizWindowServices &services, std::shared_ptr<CPairMatchingForm> form);

protected:
    void showQuestion() override;
    void showState() override;
    QString spokenQuestion() const override;

private:
    CPairMatchingDialog(
        const QuizWindowServices &services, std::shared_ptr<CPairMatchingForm> form, CPairTable *table);
    void checkOrGoOn();
    /// After answers changed places.
    void showMoved(bool moved);

    std::shared_ptr<CPairMatchingForm> m_form;
    CPairTable *m_pairs;
    QLabel *m_hint;
};
