// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

class QString;

/// How a quiz meets the editor and the main window, which it does not know.
class IQuizHost
{
public:
    IQuizHost() = default;
    virtual ~IQuizHost() = default;
    IQuizHost(const IQuizHost &) = delete;
    IQuizHost &operator=(const IQuizHost &) = delete;

    // Named as the main window names its functions, which carries them out.
    // NOLINTBEGIN(readability-identifier-naming)
    /// The entries selected in the view, ascending.
    virtual std::vector<int> SelectedEntries() const = 0;
    virtual void SelectEntries(const std::vector<int> &entries) = 0;
    virtual void ShowMainWindow(bool show) = 0;
    /// Gives the keyboard back to the list.
    virtual void FocusList() = 0;
    /// Opens the help at a section, by the name of its anchor; at its beginning when that is empty.
    virtual void ShowHelp(const QString &section) = 0;
    // NOLINTEND(readability-identifier-naming)
};
