// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

#include <functional>

class CCommandActions;
class CTexts;
class CWin32Doc;
class IEditorView;
class IUserPrompt;
class QWidget;
struct DictionarySettings;

/// The command that makes a list of the words of a dictionary. Without one it tells how to get some.
class CDictionaryListCommand : public QObject
{
public:
    /// Nothing is owned.
    CDictionaryListCommand(CCommandActions &actions, IEditorView &view, CWin32Doc &document,
        const DictionarySettings &settings, const CTexts &texts, IUserPrompt &prompt,
        const std::function<void(const QString &section)> &openHelp, QWidget &mainWindow);
};
