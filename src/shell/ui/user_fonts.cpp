// SPDX-License-Identifier: MIT
#include "shell/ui/user_fonts.h"

#include "settings/shell_settings.h"

UserFonts FontsOf(const MiscSettings &settings)
{
    if (!settings.useOtherFont) {
        return {};
    }
    const QFont font(settings.fontName, settings.fontSize);
    return {settings.useOtherFontQuizOnly ? std::nullopt : std::optional(font), font};
}
