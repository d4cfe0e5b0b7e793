// SPDX-License-Identifier: MIT
#pragma once

#include <QFont>

#include <optional>

struct MiscSettings;

/// The user's own font, for the texts that are learnt; none for the desktop's.
struct UserFonts
{
    std::optional<QFont> view = {};
    std::optional<QFont> quizzes = {};
};

UserFonts FontsOf(const MiscSettings &settings);
