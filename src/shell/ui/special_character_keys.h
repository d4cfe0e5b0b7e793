// SPDX-License-Identifier: MIT
#pragma once

#include "platform/ui/key_sender.h"
#include "shell/special_characters.h"

#include <QElapsedTimer>
#include <QObject>
#include <QPointer>

#include <memory>

class CSpecialCharacterWindow;
class QKeyEvent;
class QWidget;

/// Special characters in every window of the program: F9 opens and closes their window, Ctrl and a digit type
/// one of the user's own. Types what is chosen where the user was typing. Owns the window, so it must go before
/// the application does.
class CSpecialCharacterKeys : public QObject
{
    Q_OBJECT

public:
    /// Neither is owned.
    CSpecialCharacterKeys(EasyKeySettings &settings, const CTexts &texts, QObject *parent = nullptr);
    ~CSpecialCharacterKeys() override;

    /// What F9 does: opens the window; gives an open one the keyboard focus; closes it when it has the focus.
    void Toggle();
    bool IsOpen() const { return m_open; }
    /// Call it when the main window was activated, moved or resized.
    void DockBeside(const QWidget &frame);
    /// Keeps the window's place in the settings.
    void Close();
    /// Call it when the settings are others: an open window shows them.
    void Renew();

Q_SIGNALS:
    void OpenChanged(bool open);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void Open();
    void MakeWindow();
    void Closed();
    void FollowFocus();
    void Dock();
    void ChooseWaiting();
    bool HandleKey(const QKeyEvent &event);
    void Send(const QString &text);
    /// The widget of ours that the user is typing in; none while that is another program.
    QWidget *Target() const;
    void RememberTarget(QWidget *focus);
    void RememberOtherProgram(Qt::ApplicationState state);
    void GiveFocusBack();

    CSpecialCharacters m_characters;
    const CTexts &m_texts;
    CKeySender m_sender;
    std::unique_ptr<CSpecialCharacterWindow> m_window;
    bool m_open = false;
    QPointer<QWidget> m_target; // The last one outside the window that had the keyboard focus.
    QPointer<QWidget> m_untold; // That the focus went to the window.
    QPointer<const QWidget> m_frame;
    QElapsedTimer m_inactive; // Since another program came to the front.
};
