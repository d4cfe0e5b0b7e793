// SPDX-License-Identifier: MIT
#pragma once

#include "editor/duplicates.h"

#include <QObject>

class CCommandActions;

/// The commands of the menu of tools.
class CToolsCommands : public QObject
{
public:
    /// Nothing is owned.
    CToolsCommands(CCommandActions &actions, IEditorView &view, CWin32Doc &document,
        const EditorSettings &settings, const CTexts &texts, IUserPrompt &prompt, QObject *parent);

private:
    void MergeSoon(CCommandActions &actions);

    CDuplicates m_duplicates;
};
