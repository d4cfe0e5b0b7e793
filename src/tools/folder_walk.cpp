// SPDX-License-Identifier: MIT
#include "tools/folder_walk.h"

#include "platform/collation.h"
#include "platform/file_name.h"
#include "tools/file_patterns.h"

#include <QStringList>

#include <algorithm>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <set>
#include <sys/stat.h>
#include <utility>
#include <vector>

namespace {

struct CloseFolder
{
    void operator()(DIR *folder) const { ::closedir(folder); }
};
using OpenFolder = std::unique_ptr<DIR, CloseFolder>;

/// What is in one folder, in the order of names.
struct FolderContent
{
    QStringList files;
    QStringList folders;
    QStringList links; ///< To folders.
};

void Sort(QStringList &names)
{
    const CSwedishCollator &collator = CSwedishCollator::ForThisThread();
    std::ranges::sort(names, [&collator](const QString &a, const QString &b) {
        const int order = collator.Compare(a, b);
        return order != 0 ? order < 0 : a < b;
    });
}

/// Whether a name, or what a link of this name leads to, is a folder.
bool IsFolderIn(DIR *folder, const char *name, int flags)
{
    struct stat status = {};
    return ::fstatat(::dirfd(folder), name, &status, flags) == 0 && S_ISDIR(status.st_mode);
}

class CFolderWalk
{
public:
    CFolderWalk(bool subfolders, const CFilePatterns &patterns, const FolderWalkVisits &visits,
        const std::atomic<bool> &keepGoing)
        : m_subfolders(subfolders), m_patterns(patterns), m_visits(visits), m_keepGoing(keepGoing)
    {
    }

    void Walk(const QString &root)
    {
        m_folders = {root};
        while (!m_folders.empty() && m_keepGoing) {
            const QString folder = m_folders.back();
            m_folders.pop_back();
            Visit(folder);
            if (m_folders.empty()) {
                m_folders.assign(m_links.rbegin(), m_links.rend());
                m_links.clear();
            }
        }
    }

private:
    void Visit(const QString &folder)
    {
        const OpenFolder open(::opendir(EncodeFileName(folder).constData()));
        struct stat status = {};
        if (!open || ::fstat(::dirfd(open.get()), &status) != 0) {
            Tell(m_visits.unreadable, folder);
            return;
        }
        if (!m_visited.emplace(status.st_dev, status.st_ino).second) {
            return;
        }
        Tell(m_visits.folder, folder);
        const FolderContent content = Read(open.get());
        const QString start = folder.endsWith(u'/') ? folder : folder + u'/';
        for (const QString &name : content.files) {
            if (!m_keepGoing) {
                return;
            }
            if (m_visits.file) {
                m_visits.file(start + name, name);
            }
        }
        for (auto name = content.folders.rbegin(); name != content.folders.rend(); ++name) {
            m_folders.push_back(start + *name); // The first one on top.
        }
        for (const QString &name : content.links) {
            m_links.push_back(start + name);
        }
    }

    FolderContent Read(DIR *folder) const
    {
        FolderContent content;
        while (const dirent *const entry = m_keepGoing ? ::readdir(folder) : nullptr) {
            const QByteArrayView bytes(entry->d_name);
            if (bytes == "." || bytes == "..") {
                continue;
            }
            const bool isLink = entry->d_type == DT_LNK;
            const QString name = DecodeFileName(bytes);
            if (entry->d_type == DT_DIR
                || (entry->d_type == DT_UNKNOWN && IsFolderIn(folder, entry->d_name, AT_SYMLINK_NOFOLLOW))) {
                content.folders.append(name);
            } else if ((isLink || entry->d_type == DT_UNKNOWN) && IsFolderIn(folder, entry->d_name, 0)) {
                content.links.append(name);
            } else if (m_patterns.Match(name)) {
                content.files.append(name);
            }
        }
        if (!m_subfolders) {
            content.folders.clear();
            content.links.clear();
        }
        Sort(content.files);
        Sort(content.folders);
        Sort(content.links);
        return content;
    }

    static void Tell(const std::function<void(const QString &)> &visit, const QString &folder)
    {
        if (visit) {
            visit(folder);
        }
    }

    bool m_subfolders;
    const CFilePatterns &m_patterns;
    const FolderWalkVisits &m_visits;
    const std::atomic<bool> &m_keepGoing;
    std::vector<QString> m_folders; // To be visited, the next one last.
    std::vector<QString> m_links;
    std::set<std::pair<dev_t, ino_t>> m_visited;
};

}

void WalkFolder(const QString &folder, bool subfolders, const CFilePatterns &patterns,
    const FolderWalkVisits &visits, const std::atomic<bool> &keepGoing)
{
    CFolderWalk(subfolders, patterns, visits, keepGoing).Walk(folder);
}
