// SPDX-License-Identifier: MIT
#include "require.h"
#include "resources/texts.h"
#include "settings/app_settings.h"
#include "settings/ini_text.h"

/// Reads any bytes as a settings file. What was read comes back from what is written of it, and settings that
/// were loaded and saved once are stable.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const CTexts texts;
    const IniValues values = ParseIni(QByteArrayView(data, qsizetype(size)));
    Require(ParseIni(FormatIni(values)) == values);

    CMemoryStore store;
    for (auto value = values.cbegin(); value != values.cend(); ++value) {
        const QString section = value.key().section(u'/', 0, -2).replace(u'/', u'\\');
        store.Write(CAppSettings::RootPath() + u'\\' + section, value.key().section(u'/', -1), *value);
    }
    const auto saved = [&store] {
        CAppSettings settings(store, texts);
        settings.Exchange(true);
        settings.Exchange(false);
        auto sections = store.Sections();
        sections[CAppSettings::RootPath() + QStringLiteral("\\easykey")].remove(QStringLiteral("keys"));
        return sections;
    };
    // But for the list, in which an empty last item is none.
    const auto once = saved();
    Require(saved() == once);
    return 0;
}
