// SPDX-License-Identifier: MIT
#include "editor/clipboard_data.h"

#include "editor/clipboard_text.h"
#include "platform/file_name.h"
#include "platform/windows_1252.h"

#include <QMimeData>
#include <QUrl>
#include <QtEndian>

namespace {

// The names by which the forms are known to other programs. Data on the clipboard has a length, so none of them
// ends with a zero.
constexpr QLatin1StringView Records("application/x-ornbury-workshops-ordelin-2.3-unicode"); // UTF-16LE
constexpr QLatin1StringView Records8Bit("application/x-ornbury-workshops-ordelin-2.3");
constexpr QLatin1StringView Text8Bit("text/plain;charset=windows-1252");
constexpr QLatin1StringView RichText("text/rtf");
constexpr QLatin1StringView RichTextOlderName("application/rtf");

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

}

std::unique_ptr<QMimeData> ClipboardDataOf(const CWordList &list, CWordList::Selection entries, int column)
{
    auto data = std::make_unique<QMimeData>();
    const QString text = EntriesAsText(list, entries, column);
    data->setData(Text8Bit, To8Bit(text));
    data->setText(text);
    const QByteArray richText = EntriesAsRichText(list, entries, column);
    data->setData(RichText, richText);
    data->setData(RichTextOlderName, richText);
    if (column < 0) {
        const QString records = EntriesAsRecords(list, entries);
        data->setData(Records, ToUtf16(records));
        data->setData(Records8Bit, To8Bit(records));
    }
    return data;
}

QStringList FilesFromData(const QMimeData &data)
{
    QStringList files;
    for (const QUrl &url : data.urls()) {
        if (url.isLocalFile()) {
            files.append(LocalFileOf(url));
        }
    }
    return files;
}

bool MayHoldEntries(const QMimeData &data)
{
    return data.hasText() || data.hasFormat(Records) || data.hasFormat(Records8Bit) || data.hasFormat(Text8Bit);
}

CWordList EntriesFromData(const QMimeData &data)
{
    if (data.hasFormat(Records)) {
        return EntriesFromRecords(FromUtf16(data.data(Records)));
    }
    if (data.hasFormat(Records8Bit)) {
        return EntriesFromRecords(DecodeWindows1252(data.data(Records8Bit)));
    }
    return EntriesFromText(data.hasText() ? data.text() : DecodeWindows1252(data.data(Text8Bit)));
}
