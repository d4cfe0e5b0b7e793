// SPDX-License-Identifier: MIT
#pragma once

#include "editor/suggestions.h"

class CSuggestionList;
class CTexts;
class CWin32Doc;
class CWin32View;

/// Offers translations in the view when a term of a new entry is about to be typed and the other is there.
class CTermSuggestions : public QObject
{
public:
    /// Belongs to the view; nothing else is owned.
    CTermSuggestions(
        CWin32View &view, CWin32Doc &document, const DictionarySettings &settings, const CTexts &texts);

private:
    CSuggestions m_suggestions;
};
