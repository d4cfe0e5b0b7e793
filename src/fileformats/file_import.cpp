// SPDX-License-Identifier: MIT
#include "fileformats/file_import.h"

#include "platform/collation.h"

#include <QHashFunctions>

#include <algorithm>

size_t CFileImport::TextsHash::operator()(const CWordEntry *entry) const
{
    return qHashMulti(QHashSeed::globalSeed(), entry->GetText(0), entry->GetText(1), entry->GetNote());
}

bool CFileImport::TextsEqual::operator()(const CWordEntry *a, const CWordEntry *b) const
{
    return a->GetText(0) == b->GetText(0) && a->GetText(1) == b->GetText(1) && a->GetNote() == b->GetNote();
}

CFileImport::CFileImport(CWordList target, int position, const ImportOptions &options)
    : m_target(std::move(target)),
      m_position(position < 0 ? m_target.Count() : std::min(position, m_target.Count())), m_options(options),
      m_filter(options.filter)
{
}

FileImport CFileImport::ImportFile(const QString &path, const KeepGoing &keepGoing)
{
    CWordList file;
    FileImport outcome;
    const FormatReading reading = ReadListFile(file, path, {.keepGoing = &keepGoing});
    if (!IsRefused(reading.result)) {
        outcome = ImportList(file, keepGoing);
    }
    outcome.read = reading.result;
    outcome.losses = reading.losses;
    return outcome;
}

FileImport CFileImport::ImportList(const CWordList &file, const KeepGoing &keepGoing)
{
    FileImport outcome;
    outcome.fault = FaultOf(file);
    if (outcome.fault != FileFault::None) {
        outcome.result = ImportResult::Ignored;
        return outcome;
    }
    // A list that no file may hold could not be saved.
    if (file.Count() > FileLimits::MostEntries - m_target.Count()) {
        outcome.fault = FileFault::ListFull;
        return outcome;
    }
    outcome.result = ImportResult::Imported;
    InsertEntries(file, keepGoing, outcome);
    return outcome;
}

FileFault CFileImport::FaultOf(const CWordList &file) const
{
    if (!m_options.useFilter) {
        return FileFault::None;
    }
    return HasLanguagesOf(file) ? m_filter.FaultOf(WordListSummary::Of(file)) : FileFault::Languages;
}

bool CFileImport::SameLanguage(int own, const CWordList &file, int language) const
{
    return CSwedishCollator::ForThisThread().Equal(m_target.GetLanguage(own), file.GetLanguage(language));
}

bool CFileImport::HasLanguagesOf(const CWordList &file) const
{
    const bool straight1 = SameLanguage(0, file, 0);
    const bool straight2 = SameLanguage(1, file, 1);
    const bool crossed1 = SameLanguage(0, file, 1);
    const bool crossed2 = SameLanguage(1, file, 0);
    switch (m_options.languageMatch) {
    case LanguageMatch::Any:
        return true;
    case LanguageMatch::One:
        return straight1 || straight2 || crossed1 || crossed2;
    case LanguageMatch::Both:
        return (straight1 && straight2) || (crossed1 && crossed2);
    }
    return true;
}

bool CFileImport::IsCrossed(const CWordList &file) const
{
    // Kept: one such pair is enough, also where the languages stand the right way round as well.
    const bool isCrossed = SameLanguage(0, file, 1) || SameLanguage(1, file, 0);
    return isCrossed && !(m_options.prefersStraight && (SameLanguage(0, file, 0) || SameLanguage(1, file, 1)));
}

void CFileImport::InsertEntries(const CWordList &file, const KeepGoing &keepGoing, FileImport &outcome)
{
    const bool checksDuplicates = m_options.useFilter && m_options.ignoreDuplicates;
    if (checksDuplicates && !m_isKnownFilled) {
        m_target.ForEach([this](int, const CWordEntry &entry) { m_known.insert(&entry); });
        m_isKnownFilled = true;
    }
    const bool crossed = IsCrossed(file);
    CWordList wanted;
    wanted.Reserve(file.Count());
    for (int index = 0; index < file.Count() && keepGoing; ++index) {
        CWordEntry entry = file.Entry(index);
        if (crossed) {
            entry.SwapFields(true, false, 0, 1); // Kept: a flag stays with its number, not with its term.
        }
        if (checksDuplicates && m_known.contains(&entry)) {
            ++outcome.ignoredEntries;
            continue;
        }
        wanted.Insert(std::move(entry));
        if (checksDuplicates) {
            m_known.insert(&wanted.Entry(wanted.Count() - 1));
        }
    }
    // At once: one by one, a long list would be moved for each.
    m_target.InsertAll(wanted, m_position);
    m_position += wanted.Count();
    outcome.importedEntries = wanted.Count();
}
