// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <atomic>
#include <functional>

class CFilePatterns;

/// What a walk tells of; any may be missing. Paths begin with that of the folder that the walk began in.
struct FolderWalkVisits
{
    /// Before the files in it.
    std::function<void(const QString &folder)> folder = {};
    /// Of whatever matches and is no folder; it need not be a file that can be read.
    std::function<void(const QString &path, const QString &name)> file = {};
    std::function<void(const QString &folder)> unreadable = {};
};

/// Goes through a folder, in the order of names: first its files, then, if wanted, the folders in it. Each
/// folder is visited once, whatever links lead to it, and by its own name rather than by that of a link: those
/// behind links come last. `keepGoing` set to false ends the walk.
void WalkFolder(const QString &folder, bool subfolders, const CFilePatterns &patterns,
    const FolderWalkVisits &visits, const std::atomic<bool> &keepGoing);
