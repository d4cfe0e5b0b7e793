// SPDX-License-Identifier: MIT
#pragma once

class QIcon;
class QString;

/// An icon from an SVG file, which is read when the icon is painted first. Selected, it has the colour of
/// highlighted text; disabled, it fades into what lies behind it. Null where there is no such file.
QIcon DrawnIcon(const QString &path);
