// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class CElidedLabel;
class CSpecialCharacterList;
class CSpecialCharacterModel;
class CSpecialCharacters;
class CTexts;
class QComboBox;
class QLabel;
class QWindow;

/// The tool window of special characters. Clicks never give it the keyboard focus, which stays where the user
/// is typing; it takes the focus only when told to, and while an own character is edited.
class CSpecialCharacterWindow : public QWidget
{
    Q_OBJECT

public:
    /// Neither is owned.
    CSpecialCharacterWindow(CSpecialCharacters &characters, const CTexts &texts);
    ~CSpecialCharacterWindow() override;

    /// Shows the window where the settings say, without the focus. `above` is the window that it stays above
    /// where the display system knows no windows that stay above all; may be null.
    void Open(QWindow *above);
    /// Stays above this window from now on, where the one that it stays above has gone.
    void StayAbove(QWindow &window);
    /// Makes it the active window, to be used by keyboard.
    void TakeFocus();
    bool HasFocus() const;
    /// A click that waits types now; see CSpecialCharacterList.
    void ChooseWaiting();
    /// Docks it beside a window, as the settings say, if that one is in its normal state.
    void DockBeside(const QWidget &other);
    /// The line below the characters; empty for none.
    void ShowMessage(const QString &message);
    /// True for the widgets of the window and of what pops up from it.
    bool Holds(const QObject *object) const;

Q_SIGNALS:
    void TextChosen(const QString &text);
    void DockingChosen();
    /// Before TakeFocus() takes the focus from another window.
    void TakingFocus();
    /// The focus was wanted for an edit only, which ended.
    void FocusNoLongerNeeded();
    /// Before the window goes; its place is in the settings.
    void Closing();

protected:
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    QComboBox *MakeCombo(int items, int current, const char *name);
    QLabel *MakeCaption(int text, QWidget &buddy);
    void SetAcceptsFocus(bool accepts);
    void RestorePlace();
    void StorePlace();
    void ShowSet(int set);
    void ShowHelp();
    void Choose(int item, Qt::KeyboardModifiers modifiers);
    void BeginEdit(int item);
    void EndEdit();
    void Remove(int item);

    CSpecialCharacters &m_characters;
    const CTexts &m_texts;
    CSpecialCharacterModel *m_model;
    CSpecialCharacterList *m_list;
    QLabel *m_help;
    CElidedLabel *m_message;
    bool m_focusForEdit = false;
};
