// SPDX-License-Identifier: MIT
#include "document/list_placeholders.h"

#include "model/word_list.h"
#include "platform/local_formats.h"
#include "resources/placeholders.h"

QString ExpandListPlaceholders(const QString &text, const CWordList &list, QDate today)
{
    QList<Placeholder> placeholders = {{QStringLiteral("%language1"), list.GetLanguage(0)},
        {QStringLiteral("%language2"), list.GetLanguage(1)}, {QStringLiteral("%comments"), list.GetComments()},
        {QStringLiteral("%author"), list.GetAuthor()}, {QStringLiteral("%nwords"), FormatNumber(list.Count())}};
    const QString date = FormatShortDate(today);
    if (!date.isEmpty()) {
        placeholders.append({QStringLiteral("%date"), date});
    }
    return FillInOrder(text, placeholders, FilledFor::Storage);
}

QString AsFileName(QString text)
{
    text.removeIf([](QChar character) { return QStringView(u"\\/:*?\"<>|").contains(character); });
    return text;
}
