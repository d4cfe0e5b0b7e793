// SPDX-License-Identifier: MIT
#include "tools/importing.h"

#include "document/file_filters.h"
#include "document/list_placeholders.h"
#include "document/win32_doc.h"
#include "platform/file_chooser.h"
#include "platform/local_formats.h"
#include "platform/plain_text.h"
#include "resources/texts.h"
#include "tools/file_filter_values.h"
#include "tools/text_numbers.h"

#include <QFileInfo>
#include <QStandardPaths>

#include <array>

CImporting::CImporting(CWin32Doc &document, ImportSettings &settings, const CTexts &texts, QObject *parent)
    : QObject(parent), values(settings), m_document(document), m_settings(settings), m_texts(texts),
      m_position(document.InsertionPoint()), m_files(texts)
{
    connect(&m_collecting, &CFileCollecting::MessagesWaiting, this, &CImporting::TakeCollected,
        Qt::QueuedConnection);
    connect(&m_thread, &CImportThread::MessagesWaiting, this, &CImporting::TakeMessages, Qt::QueuedConnection);
}

CImporting::~CImporting()
{
    Finish();
}

bool CImporting::CanStart() const
{
    return m_stage == Stage::Choosing && !m_isCollecting && m_files.rowCount() > 0;
}

void CImporting::ChooseFiles(IFileChooser &chooser)
{
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    const QString folder = m_document.Path().isEmpty() ? documents : QFileInfo(m_document.Path()).path();
    const QStringList files = chooser.ChooseFilesToOpen({.title = m_texts.Get(Text::ImportChooseTitle),
        .filters = OpenFilters(m_texts),
        .start = FirstGiven(m_lastFolder, folder)});
    if (!files.isEmpty()) {
        m_lastFolder = QFileInfo(files.first()).path();
        AddFiles(files);
    }
}

void CImporting::AddFiles(const QStringList &paths)
{
    if (m_stage == Stage::Choosing && !paths.isEmpty()) {
        m_files.Add(paths);
        Q_EMIT Changed();
        Q_EMIT FilesAdded();
    }
}

void CImporting::Collect(const QStringList &paths)
{
    if (m_stage != Stage::Choosing || paths.isEmpty()) {
        return;
    }
    if (m_isCollecting) {
        m_toCollect += paths;
        return;
    }
    m_isCollecting = true;
    m_collecting.Collect(paths);
    Q_EMIT Changed();
}

void CImporting::Remove(const std::vector<int> &rows)
{
    if (m_stage == Stage::Choosing) {
        m_files.Remove(rows);
        Q_EMIT Changed();
    }
}

void CImporting::StopCollecting()
{
    m_toCollect.clear();
    m_collecting.Stop(true);
    TakeCollected();
}

void CImporting::TakeCollected()
{
    bool isEnd = false;
    QStringList files;
    for (const CollectedFiles &message : m_collecting.TakeMessages()) {
        files += message.files;
        m_folder = message.folder.isEmpty() ? m_folder : message.folder;
        isEnd = isEnd || message.isEnd;
    }
    m_files.Add(files);
    if (isEnd) {
        m_isCollecting = false;
        m_folder.clear();
        Collect(std::exchange(m_toCollect, {}));
    }
    Q_EMIT Changed();
    if (isEnd && !m_isCollecting) {
        Q_EMIT FilesAdded();
    }
}

ImportOptions CImporting::Options() const
{
    return {.useFilter = values.useFilter,
        .languageMatch = LanguageMatch(values.languageMatch),
        .ignoreDuplicates = values.ignoreDuplicates,
        .filter = FilterOf(values)};
}

void CImporting::Start()
{
    if (!CanStart()) {
        return;
    }
    m_settings = values;
    m_stage = Stage::Importing;
    m_thread.Import(m_document.List(), m_position, m_files.Paths(), Options());
    Q_EMIT Changed();
}

void CImporting::Cancel()
{
    m_thread.Stop(false);
}

void CImporting::Finish()
{
    StopCollecting();
    if (m_stage == Stage::Importing) {
        m_thread.Stop(true);
        TakeMessages();
    }
}

void CImporting::TakeMessages()
{
    // The stage tells when the end has come: then Changed() is told with it, and Ended() after it.
    const Stage before = m_stage;
    for (const ImportMessage &message : m_thread.TakeMessages()) {
        std::visit([this](const auto &taken) { Take(taken); }, message);
    }
    Q_EMIT Changed();
    if (m_stage != before) {
        Q_EMIT Ended();
    }
}

void CImporting::Take(const NewFileMessage &message)
{
    m_totals = message.totals;
    m_file = message.file;
    m_files.FileStarted(message.file);
}

void CImporting::Take(const FileReadMessage &message)
{
    m_files.FileRead(message);
    ++m_filesRead;
}

void CImporting::Take(const ImportEndMessage &message)
{
    m_totals = message.totals;
    m_filesRead = m_totals.Files();
    m_stage = Stage::Done;
    m_files.Ended();
    CWordList imported = m_thread.TakeList();
    m_document.Change([&imported](CWordList &list) { list = std::move(imported); });
}

QString CImporting::FileCount() const
{
    return m_texts.Fill(Text::FileCount, {FormatNumber(m_files.rowCount())});
}

QString CImporting::StatusLine() const
{
    switch (m_stage) {
    case Stage::Choosing:
        return m_folder.isEmpty() ? QString() : m_texts.Fill(Text::SearchingIn, {ShownShort(m_folder)});
    case Stage::Importing:
        return m_texts.Fill(Text::ReadingFile,
            {FormatNumber(m_file + 1), FormatNumber(m_files.rowCount()), ShownShort(m_files.NameOf(m_file))});
    case Stage::Done:
        break;
    }
    return m_texts.Get(Text::Done);
}

QString CImporting::Summary() const
{
    const std::array counts = {m_totals.importedFiles, m_totals.ignoredFiles, m_totals.badFiles,
        m_totals.importedEntries, m_totals.ignoredEntries};
    QString summary = StatusLine();
    for (int i = 0; i < int(counts.size()); ++i) {
        summary += QStringLiteral(". ") + m_texts.Get(Text::ImportedFiles + i) + u' '
            + FormatNumber(counts[size_t(i)]);
    }
    return summary;
}
