// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

struct stat;

/// Makes the open file `to` be to others what the file at `path`, whose status is given, is to them: owner,
/// group, access list, extended attributes and permissions. Returns false when some of it can't be kept.
[[nodiscard]] bool KeepAttributes(const QByteArray &path, const struct stat &status, int to);
