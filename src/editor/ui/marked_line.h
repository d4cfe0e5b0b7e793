// SPDX-License-Identifier: MIT
#pragma once

#include "editor/mark_in_sight.h"

class QPainter;
class QRect;
class QTextCharFormat;

/// Draws as much of a text as there is room for on a line, in the font and the pen of the painter, with its
/// mark in sight and bold, and in `format` besides.
void DrawMarkedLine(
    QPainter &painter, const QRect &room, const MarkedText &marked, const QTextCharFormat &format);
