// SPDX-License-Identifier: MIT
#include "shell/samples.h"

#include "fileformats/word_list_file.h"
#include "model/word_list.h"
#include "platform/collation.h"
#include "platform/regular_file.h"

#include <QBuffer>
#include <QDir>
#include <QRegularExpression>
#include <QSet>

#include <algorithm>

namespace {

/// In bytes: all of them are read whenever the menu opens.
constexpr qint64 LargestSample = 1 << 18;
constexpr int MostSamples = 100;

SampleList Described(const CWordList &list, const QString &path, const QString &name)
{
    static const QRegularExpression end(QStringLiteral("[:.]"));
    const QString comments = list.GetComments().section(end, 0, 0).trimmed();
    return {.path = path,
        .title = comments.isEmpty() ? name : comments,
        .languages = QStringLiteral("%1 – %2").arg(list.GetLanguage(0), list.GetLanguage(1))};
}

}

QList<SampleList> FindSamples(const QStringList &dataFolders)
{
    QList<SampleList> samples;
    QSet<QString> names;
    for (const QString &folder : dataFolders) {
        const QDir samplesFolder(folder + QStringLiteral("/samples"));
        for (const QString &name : samplesFolder.entryList({QStringLiteral("*.gls")}, QDir::Files)) {
            const QString path = samplesFolder.filePath(name);
            std::optional<QByteArray> content = ReadRegularFile(path, LargestSample);
            if (!content || names.contains(name) || samples.size() == MostSamples) {
                continue;
            }
            names.insert(name);
            QBuffer buffer(&*content);
            CWordList list;
            if (buffer.open(QIODevice::ReadOnly) && ReadWordList(list, buffer) == ReadResult::Read) {
                samples.append(Described(list, path, name));
            }
        }
    }
    std::ranges::sort(samples, [](const SampleList &a, const SampleList &b) {
        return CSwedishCollator::ForThisThread().Compare(a.title, b.title) < 0;
    });
    return samples;
}
