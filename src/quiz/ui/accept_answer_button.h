// SPDX-License-Identifier: MIT
#pragma once

class CTexts;
class QPushButton;
class QWidget;

/// The button "I was right" of a window, with a key that works everywhere in it. It starts disabled.
QPushButton *makeAcceptAnswerButton(const CTexts &texts, QWidget *window);
