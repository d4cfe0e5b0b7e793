// SPDX-License-Identifier: MIT
#pragma once

class CTexts;
class QString;
struct TablePdfOrder;

/// What the program does with the libraries of windows. It is a module of its own, which is loaded when it is
/// needed: without them a verb of the command line begins in half the time.
struct WindowPart
{
    /// Opens the main window, and ends with the program. Returns the exit code.
    int (*run)(int &argc, char **argv, const QString &file, bool newList);
    /// WriteTablePdf().
    bool (*writePdf)(const TablePdfOrder &order, const CTexts &texts);
};

inline constexpr const char *WindowPartFunction = "OrdelinWindowPart";
/// The one thing that the module gives to others.
extern "C" __attribute__((visibility("default"))) const WindowPart *OrdelinWindowPart();
