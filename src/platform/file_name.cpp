// SPDX-License-Identifier: MIT
#include "platform/file_name.h"

#include <QDir>
#include <QStringDecoder>
#include <QUrl>

#include <algorithm>
#include <climits>
#include <optional>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr char16_t FirstByteMark = 0xDC00; // The surrogate of a byte is this and the byte.

/// The length of the UTF-8 character at the start of `bytes`; 0 when there is none.
qsizetype CharacterLength(QByteArrayView bytes)
{
    for (qsizetype length = 1; length <= std::min<qsizetype>(4, bytes.size()); ++length) {
        if (bytes.first(length).isValidUtf8()) {
            return length;
        }
    }
    return 0;
}

/// None when there is nothing of this name.
std::optional<struct stat> StatusOf(const QString &path)
{
    struct stat status = {};
    return !path.contains(QChar::Null) && ::stat(EncodeFileName(path).constData(), &status) == 0
        ? std::optional(status)
        : std::nullopt;
}

bool IsByteMark(QChar unit)
{
    return unit.unicode() >= FirstByteMark + 0x80 && unit.unicode() <= FirstByteMark + 0xFF;
}

}

QString DecodeFileName(QByteArrayView bytes)
{
    // A byte-order mark is a character of a name like any other.
    const auto decode = [](QByteArrayView part) -> QString {
        return QStringDecoder(QStringDecoder::Utf8, QStringConverter::Flag::ConvertInitialBom).decode(part);
    };
    if (bytes.isValidUtf8()) {
        return decode(bytes);
    }
    QString name;
    while (!bytes.isEmpty()) {
        const qsizetype length = CharacterLength(bytes);
        if (length > 0) {
            name += decode(bytes.first(length));
        } else {
            name += QChar(FirstByteMark + uchar(bytes.front()));
        }
        bytes = bytes.sliced(std::max<qsizetype>(length, 1));
    }
    return name;
}

QByteArray EncodeFileName(QStringView name)
{
    QByteArray bytes;
    qsizetype begin = 0;
    for (qsizetype i = 0; i < name.size(); ++i) {
        if (name.at(i).isHighSurrogate()) {
            ++i; // What follows is its other half.
        } else if (IsByteMark(name.at(i))) {
            bytes += name.mid(begin, i - begin).toUtf8();
            bytes += char(name.at(i).unicode() - FirstByteMark);
            begin = i + 1;
        }
    }
    return bytes + name.mid(begin).toUtf8();
}

QString LocalFileOf(const QUrl &url)
{
    const QString path = url.toLocalFile();
    return path.contains(QChar::ReplacementCharacter)
        ? DecodeFileName(QByteArray::fromPercentEncoding(url.path(QUrl::FullyEncoded).toLatin1()))
        : path;
}

QStringList LocalFilesOf(const QList<QUrl> &urls)
{
    QStringList files;
    for (const QUrl &url : urls) {
        if (url.isLocalFile()) {
            files.append(LocalFileOf(url));
        }
    }
    return files;
}

QString AbsoluteFilePath(const QString &path)
{
    if (QDir::isAbsolutePath(path)) {
        return QDir::cleanPath(path);
    }
    QByteArray folder(PATH_MAX, '\0');
    const bool isKnown = ::getcwd(folder.data(), size_t(folder.size())) != nullptr;
    return QDir::cleanPath((isKnown ? DecodeFileName(folder.constData()) : QString()) + u'/' + path);
}

bool FileExists(const QString &path)
{
    return StatusOf(path).has_value();
}

bool IsFolder(const QString &path)
{
    const auto status = StatusOf(path);
    return status && S_ISDIR(status->st_mode);
}

bool IsSameFile(const QString &path, const QString &other)
{
    const auto first = StatusOf(path);
    const auto second = StatusOf(other);
    return first && second && first->st_dev == second->st_dev && first->st_ino == second->st_ino;
}
