// SPDX-License-Identifier: MIT
#include "require.h"
#include "resources/texts.h"

/// Loads any bytes as a language module: every text that the program asks for is there, bounded, and can be
/// filled.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const CTexts texts;
    static const QList<int> numbers = texts.Own().Numbers();
    CStringTable module;
    const bool loaded = module.Load(QByteArray(reinterpret_cast<const char *>(data), qsizetype(size)));
    Require(loaded || (module.Numbers().isEmpty() && module.Picture().isEmpty()));
    const QStringList values = {QStringLiteral("%s"), QStringLiteral("%1 %d"), QString()};
    for (const int number : module.Numbers() + numbers.first(50)) {
        const QString text = texts.TextOf(module, number);
        Require(!numbers.contains(number) || !text.isEmpty());
        Require(text.size() <= 10000);
        Require(FillText(text, values, FilledFor::Storage).size() <= text.size() + 10);
    }
    return 0;
}
