// SPDX-License-Identifier: MIT
#pragma once

#include <QListWidget>
#include <QPointer>

class CSpokenText;
class CTexts;
class QLineEdit;

/// Translations below the line in which a term is about to be typed. Never takes the focus: Down and Up choose
/// one, Enter takes it into the line, Escape closes, and any other key closes and is typed as if nothing had
/// been there.
class CSuggestionList : public QListWidget
{
    Q_OBJECT

public:
    /// Is shown within `area`, which owns it.
    CSuggestionList(const CTexts &texts, QWidget &area);

    /// The next suggestions are for this line, as long as it is empty and has the keyboard.
    void Await(QLineEdit &line);
    void Offer(const QStringList &translations);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool KeyPressed(int key);
    void MoveChoice(int step);
    void Take(const QListWidgetItem &item);
    void PlaceBelowLine();
    void Close();

    const CTexts &m_texts;
    CSpokenText *m_spoken;
    QPointer<QLineEdit> m_line;
};
