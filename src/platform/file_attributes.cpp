// SPDX-License-Identifier: MIT
#include "platform/file_attributes.h"

#include <QByteArrayList>

#include <cerrno>
#include <optional>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace {

constexpr const char *AccessList = "system.posix_acl_access";

/// What a call that fills a buffer gives; it is asked for the size first. None when it fails.
template<class Call>
std::optional<QByteArray> Filled(Call call)
{
    const ssize_t size = call(nullptr, 0);
    if (size <= 0) {
        return size == 0 ? std::optional(QByteArray()) : std::nullopt;
    }
    QByteArray bytes(size, '\0');
    const ssize_t filled = call(bytes.data(), size_t(size));
    if (filled < 0) {
        return std::nullopt;
    }
    bytes.resize(filled);
    return bytes;
}

/// The names of the extended attributes; none when they can't be told.
std::optional<QByteArrayList> AttributeNames(const QByteArray &path)
{
    const auto joined =
        Filled([&](char *buffer, size_t size) { return ::listxattr(path.constData(), buffer, size); });
    if (!joined) {
        return errno == ENOTSUP ? std::optional(QByteArrayList()) : std::nullopt;
    }
    QByteArrayList names = joined->split('\0');
    names.removeAll(QByteArray());
    return names;
}

bool KeepExtendedAttributes(const QByteArray &path, int to)
{
    const std::optional<QByteArrayList> names = AttributeNames(path);
    if (!names) {
        return false;
    }
    for (const QByteArray &name : *names) {
        const auto value = Filled([&](char *buffer, size_t size) {
            return ::getxattr(path.constData(), name.constData(), buffer, size);
        });
        const auto now =
            Filled([&](char *buffer, size_t size) { return ::fgetxattr(to, name.constData(), buffer, size); });
        if (!value
            || (now != value
                && ::fsetxattr(to, name.constData(), value->constData(), size_t(value->size()), 0) != 0)) {
            return false;
        }
    }
    // A folder may give its new files a list that the old one didn't have.
    return names->contains(AccessList) || ::fremovexattr(to, AccessList) == 0 || errno == ENODATA
        || errno == ENOTSUP;
}

}

bool KeepAttributes(const QByteArray &path, const struct stat &status, int to)
{
    struct stat now = {};
    if (::fstat(to, &now) != 0) {
        return false;
    }
    // The owner first: changing it takes permissions away.
    const bool sameOwner = now.st_uid == status.st_uid && now.st_gid == status.st_gid;
    return (sameOwner || ::fchown(to, status.st_uid, status.st_gid) == 0) && KeepExtendedAttributes(path, to)
        && ::fchmod(to, status.st_mode & 07777) == 0;
}
