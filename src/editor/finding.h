// SPDX-License-Identifier: MIT
#pragma once

#include "model/text_search.h"

class CTexts;
class CWin32Doc;
class IEditorView;
class IUserPrompt;
struct FindSettings;

/// Looks for text in the list and selects what it finds. Knows no window: what is looked for stands in the
/// settings, and the text itself lasts for the run of the program.
class CFinding
{
public:
    /// Nothing is owned.
    CFinding(IEditorView &view, CWin32Doc &document, FindSettings &settings, const CTexts &texts,
        IUserPrompt &prompt);

    FindSettings &Settings() const { return m_settings; }
    const QString &Text() const { return m_text; }
    void SetText(const QString &text) { m_text = text; }
    /// What the settings ask for. Column, direction and flags count in an advanced search alone.
    TextSearch Search() const;
    /// Whether there is anything to look for: a text, or flags.
    bool HasAim() const;

    /// Selects the next entry behind or before the first selected one and shows the match in it, which is
    /// returned; tells when there is none. With `takeFocus` typing goes on at the match.
    TextMatch FindNext(bool takeFocus);
    /// Selects all entries that match and returns how many they are; tells when there is none.
    int FindAll();

private:
    void TellNothingFound();

    IEditorView &m_view;
    CWin32Doc &m_document;
    FindSettings &m_settings;
    const CTexts &m_texts;
    IUserPrompt &m_prompt;
    QString m_text;
};
