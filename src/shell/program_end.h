// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <optional>

/// Decides what becomes of unsaved changes and of the settings when the program ends, in whichever way it does:
/// the user closes it, a signal ends it, or the session does, which asks first and may go on in spite of that.
/// Changes are told apart by the document's change counter.
class CProgramEnd
{
public:
    /// The questions of the start were answered, so that the next run is no first one.
    void StartIsOver() { m_startIsOver = !m_isFromOutside; }
    /// The user ends the program, and has answered for the changes.
    void UserCloses() { m_sessionEnds = false; }
    /// A signal asks nobody, so it throws nothing away.
    void Signalled();
    /// The session wants to end, and the user was asked about unsaved changes: these are given up or saved, or,
    /// when there is no number, the session shall go on.
    void SessionAsks(std::optional<quint64> givenUp) { m_givenUp = givenUp; }
    /// Whoever types on wants to keep what was given up.
    void UserTyped() { m_givenUp.reset(); }
    /// Once the session wanted to end, what the system asks for is no question for the user any more.
    void SessionEnds() { m_sessionEnds = true; }
    /// The program is asked to quit. Returns true when the session asks, which is an end from outside.
    bool Quits();

    /// Nobody can be asked or told any more.
    bool IsFromOutside() const { return m_isFromOutside; }
    /// Whether the copy of unsaved changes stays for the next start. While the session only wants to end it is
    /// written as well, for whoever ends the session may end the program without another word.
    bool KeepsCopy(quint64 changeCounter) const;
    bool SavesSettings(bool isFirstRun) const { return !isFirstRun || m_startIsOver; }

private:
    bool m_startIsOver = false;
    bool m_sessionEnds = false;
    bool m_isFromOutside = false;
    std::optional<quint64> m_givenUp;
};
