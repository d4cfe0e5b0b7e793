// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

/// The window that a question belongs to and that it blocks: the active one, else the one that is in front of
/// the others. None only when the program shows no window.
QWidget *OwnerWindow();
