// SPDX-License-Identifier: MIT
#include "document/loss_texts.h"

#include "platform/local_formats.h"
#include "resources/texts.h"

QString LossesAsText(const FormatLosses &losses, const CTexts &texts, QStringView between)
{
    QStringList lines;
    for (const FormatLoss &loss : losses) {
        lines.append(texts.Fill(LossText(loss.kind), {FormatNumber(loss.count)}));
    }
    return lines.join(between);
}
