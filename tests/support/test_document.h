// SPDX-License-Identifier: MIT
#pragma once

#include "document/win32_doc.h"
#include "resources/texts.h"
#include "settings/editor_settings.h"
#include "support/lists.h"
#include "support/scripted_prompt.h"

/// A document with everything it needs, on a fixed day.
struct TestDocument
{
    CTexts texts;
    EditorSettings settings;
    CScriptedPrompt prompt;
    CWin32Doc document{{texts, settings, prompt, [] { return QDate(2004, 5, 6); }}};

    TestDocument() { document.OnNewDocument(); }
    explicit TestDocument(const QStringList &entries) : TestDocument()
    {
        for (const QString &entry : entries) {
            document.BeginChange().Insert(MakeEntry(entry));
        }
        document.BeginChange().SetSaved(true);
    }
};
