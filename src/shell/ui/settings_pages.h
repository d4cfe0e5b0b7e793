// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

class CEditingSettingsForm;
class CNewListSettingsForm;
class CSettingsForm;
class CTexts;
class CViewSettingsForm;
class QWidget;

// The pages of the window of settings. Each shows the values of its form, which must outlive it, and keeps them
// up to date. The caller owns the page.

/// `reset` is called when the user asks for the factory values.
QWidget *MakeGeneralSettingsPage(CSettingsForm &form, const std::function<void()> &reset);
QWidget *MakeEditingSettingsPage(CEditingSettingsForm &form, const CTexts &texts);
QWidget *MakeNewListSettingsPage(CNewListSettingsForm &form, const CTexts &texts);
QWidget *MakeViewSettingsPage(CViewSettingsForm &form, const CTexts &texts);
QWidget *MakeDictionarySettingsPage(CSettingsForm &sheet);
