// SPDX-License-Identifier: MIT
#include "editor/clipboard_data.h"

#include "editor/clipboard_text.h"
#include "platform/file_name.h"
#include "platform/windows_1252.h"

#include <QMimeData>
#include <QUrl>
#include <QtEndian>

namespace {

// Each form of the data has a name as a kind of content, and the three that have one of their own have that one
// as well, by which other programs ask for it. By that one the data ends with a zero, as it did where a block
// of memory has no length.
struct FormNames
{
    QLatin1StringView kind;
    QLatin1StringView name;
};
constexpr FormNames Records = {QLatin1StringView("application/x-ornbury-workshops-ordelin-2.3-unicode"),
    QLatin1StringView("Ornbury Workshops Ordelin 2.3 Unicode")}; // UTF-16LE
constexpr FormNames Records8Bit = {QLatin1StringView("application/x-ornbury-workshops-ordelin-2.3"),
    QLatin1StringView("Ornbury Workshops Ordelin 2.3")};
constexpr FormNames RichText = {QLatin1StringView("text/rtf"), QLatin1StringView("Rich Text Format")};
constexpr QLatin1StringView RichTextOlderKind("application/rtf");
constexpr QLatin1StringView Text8Bit("text/plain;charset=windows-1252");

/// `zero` is as long as a character.
void SetForm(QMimeData &data, const FormNames &names, const QByteArray &bytes, const QByteArray &zero)
{
    data.setData(names.kind, bytes);
    data.setData(names.name, bytes + zero);
}

bool HasForm(const QMimeData &data, const FormNames &names)
{
    return data.hasFormat(names.kind) || data.hasFormat(names.name);
}

QByteArray To8Bit(QStringView text)
{
    QByteArray bytes;
    bytes.reserve(text.size());
    AppendWindows1252(text, bytes);
    return bytes;
}

// Unit by unit, since a codec would exchange halves of surrogate pairs.
QByteArray ToUtf16(QStringView text)
{
    QByteArray bytes(text.size() * 2, Qt::Uninitialized);
    qToLittleEndian<char16_t>(text.utf16(), text.size(), bytes.data());
    return bytes;
}

QString FromUtf16(const QByteArray &bytes)
{
    QString text(bytes.size() / 2, Qt::Uninitialized);
    qFromLittleEndian<char16_t>(bytes.constData(), text.size(), text.data());
    return text;
}

QString From8Bit(const QByteArray &bytes)
{
    return DecodeWindows1252(bytes);
}

/// The text of a form, without a zero at its end.
template<class Decode>
QString FormText(const QMimeData &data, const FormNames &names, Decode decode)
{
    if (data.hasFormat(names.kind)) {
        return decode(data.data(names.kind));
    }
    const QString text = decode(data.data(names.name));
    const qsizetype end = text.indexOf(QChar(u'\0'));
    return end < 0 ? text : text.first(end);
}

}

std::unique_ptr<QMimeData> ClipboardDataOf(const CWordList &list, CWordList::Selection entries, int column)
{
    auto data = std::make_unique<QMimeData>();
    const QString text = EntriesAsText(list, entries, column);
    data->setData(Text8Bit, To8Bit(text));
    data->setText(text);
    const QByteArray zero(1, '\0');
    const QByteArray richText = EntriesAsRichText(list, entries, column);
    SetForm(*data, RichText, richText, zero);
    data->setData(RichTextOlderKind, richText);
    if (column == AllColumns) {
        const QString records = EntriesAsRecords(list, entries);
        SetForm(*data, Records, ToUtf16(records), zero + zero);
        SetForm(*data, Records8Bit, To8Bit(records), zero);
    }
    return data;
}

QStringList FilesFromData(const QMimeData &data)
{
    return LocalFilesOf(data.urls());
}

bool MayHoldEntries(const QMimeData &data)
{
    return data.hasText() || HasForm(data, Records) || HasForm(data, Records8Bit) || data.hasFormat(Text8Bit);
}

bool HoldsText(const QMimeData &data)
{
    return !data.hasUrls() && (data.hasText() || data.hasFormat(Text8Bit));
}

QString TextFromData(const QMimeData &data)
{
    return data.hasText() ? data.text() : DecodeWindows1252(data.data(Text8Bit));
}

CWordList EntriesFromData(const QMimeData &data)
{
    if (HasForm(data, Records)) {
        return EntriesFromRecords(FormText(data, Records, FromUtf16));
    }
    if (HasForm(data, Records8Bit)) {
        return EntriesFromRecords(FormText(data, Records8Bit, From8Bit));
    }
    return EntriesFromText(TextFromData(data));
}
