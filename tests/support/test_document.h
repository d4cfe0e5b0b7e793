// SPDX-License-Identifier: MIT
#pragma once

#include "document/win32_doc.h"
#include "resources/texts.h"
#include "settings/settings.h"
#include "settings/settings_changes.h"
#include "support/lists.h"
#include "support/scripted_prompt.h"

/// A document with everything it needs, on a fixed day.
struct TestDocument
{
    CTexts texts;
    Settings allSettings;
    CSettingsChanges settingsChanges;
    EditorSettings &settings = allSettings.editor;
    CScriptedPrompt prompt;
    bool canStartPrograms = true;
    QList<QStringList> started; // Program and arguments.
    CWin32Doc document{{texts, settings, prompt, [] { return QDate(2004, 5, 6); },
        [this](const QString &program, const QStringList &arguments, const std::function<void()> &failed) {
            started.append(QStringList{program} + arguments);
            if (!canStartPrograms) {
                failed();
            }
        }}};

    TestDocument()
    {
        settings.standardComments = QStringLiteral("Skapad %date");
        document.OnNewDocument();
    }
    /// Entries in the form of MakeEntry(), with commas between them.
    explicit TestDocument(const QString &entries) : TestDocument(entries.split(u',', Qt::SkipEmptyParts)) { }
    explicit TestDocument(const QStringList &entries) : TestDocument()
    {
        CWordList list = document.List();
        for (const QString &entry : entries) {
            list.Insert(MakeEntry(entry));
        }
        list.SetSaved(true);
        document.ReplaceList(std::move(list));
    }
    QString Entries() const { return Joined(document.List()); }
};
