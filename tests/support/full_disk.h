// SPDX-License-Identifier: MIT
#pragma once

#include <csignal>
#include <functional>
#include <sys/resource.h>

/// Runs `save` while no file can grow beyond some bytes: writing fails as on a full disk.
inline bool WithFullDisk(rlim_t bytes, const std::function<bool()> &save)
{
    rlimit limit = {};
    getrlimit(RLIMIT_FSIZE, &limit);
    const rlimit low = {bytes, limit.rlim_max};
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    setrlimit(RLIMIT_FSIZE, &low);
    const bool saved = save();
    setrlimit(RLIMIT_FSIZE, &limit);
    std::signal(SIGXFSZ, handler);
    return saved;
}
