// SPDX-License-Identifier: MIT
#include "fileformats/glossary_version.h"
#include "fileformats/text_encoder.h"
#include "fileformats/text_file_reader.h"
#include "fileformats/word_list_file.h"
#include "model/word_list.h"
#include "platform/plain_text.h"
#include "platform/safe_file.h"

namespace {

/// What a list needs of its file; found in one walk, since a long list is more than the processor's caches
/// hold.
struct Needs
{
    const GlossaryVersion &version; ///< The smallest one that holds the list.
    qsizetype units; ///< The most code units that the file can take.
};

/// As Needs::units, of the lines in front of the records.
qsizetype HeaderUnits(const CWordList &list)
{
    constexpr qsizetype FormatCountsAndLineEnds = 100;
    qsizetype units = FormatCountsAndLineEnds + list.GetAuthor().size() + list.GetComments().size();
    for (const int language : {0, 1}) {
        units += list.GetLanguage(language).size() + list.GetQuestionTemplate(language).size();
    }
    return units;
}

Needs NeedsOf(const CWordList &list)
{
    constexpr qsizetype LineEndsAndFlags = 11;
    bool fitsOld = list.GetQuestionTemplate(0).isEmpty() && list.GetQuestionTemplate(1).isEmpty();
    bool anyFlag = false;
    qsizetype units = HeaderUnits(list);
    list.ForEach([&](int, const CWordEntry &entry) {
        fitsOld = fitsOld && entry.FitsOldFormat();
        anyFlag = anyFlag || entry.GetFlag(0) || entry.GetFlag(1);
        units += entry.GetText(0).size() + entry.GetText(1).size() + entry.GetNote().size() + LineEndsAndFlags;
    });
    if (fitsOld) {
        return {Glossary::Version20, units};
    }
    if (anyFlag) {
        return {Glossary::Version23, units};
    }
    return {list.AnyNote() ? Glossary::Version23Mini : Glossary::Version23Micro, units};
}

/// The content of a file, which is made line by line.
class CLines
{
public:
    CLines(TextEncoding encoding, qsizetype units) : m_encoder(encoding) { m_encoder.Reserve(units); }

    void Append(QStringView line)
    {
        m_encoder.Append(line);
        m_encoder.AppendLineEnd();
        m_tooLong = m_tooLong || line.size() > CTextFileReader::LongestLine;
    }
    bool Lossy() const { return m_encoder.Lossy(); }
    QByteArrayView Bytes() const { return m_encoder.Bytes(); }
    bool AnyTooLong() const { return m_tooLong; }

private:
    CTextEncoder m_encoder;
    bool m_tooLong = false;
};

void AppendHeader(const CWordList &list, const GlossaryVersion &version, CLines &lines)
{
    lines.Append(version.header);
    lines.Append(OneLine(list.GetAuthor()));
    lines.Append(OneLine(list.GetComments()));
    lines.Append(OneLine(list.GetLanguage(0)));
    lines.Append(OneLine(list.GetLanguage(1)));
    lines.Append(QString::number(list.Count()));
    if (version.hasQuestions) {
        for (const int direction : {0, 1}) {
            lines.Append(list.GetAdaptQuestion(direction) ? u"1" : u"0");
            lines.Append(OneLine(list.GetQuestionTemplate(direction)));
        }
    }
    lines.Append({});
}

void AppendRecord(const CWordEntry &entry, const GlossaryVersion &version, CLines &lines)
{
    if (version.hasFlagLine) {
        const char16_t flags[] = {entry.GetFlag(0) ? u'1' : u'0', u' ', entry.GetFlag(1) ? u'1' : u'0'};
        lines.Append(QStringView(flags, version.hasNote ? 3 : 1));
    }
    lines.Append(entry.GetText(0));
    lines.Append(entry.GetText(1));
    if (version.hasNote) {
        lines.Append(entry.GetNote());
    }
}

/// The content of the file; what the encoding lacks ends it.
CLines Encoded(const CWordList &list, const Needs &needs, TextEncoding encoding)
{
    CLines lines(encoding, needs.units);
    AppendHeader(list, needs.version, lines);
    list.ForEach([&](int, const CWordEntry &entry) {
        if (!lines.Lossy()) {
            AppendRecord(entry, needs.version, lines);
        }
    });
    return lines;
}

CLines Encoded(const CWordList &list, const WriteOptions &options)
{
    const Needs needs = NeedsOf(list);
    if (!options.forceUnicode) {
        CLines lines = Encoded(list, needs, TextEncoding::Ansi);
        if (!lines.Lossy()) {
            return lines;
        }
    }
    return Encoded(list, needs, TextEncoding::Utf16LittleEndian);
}

/// False for a file that would be refused when it is opened again.
bool CanBeRead(const CWordList &list, const CLines &lines)
{
    return !lines.AnyTooLong() && lines.Bytes().size() <= FileLimits::MostBytes
        && list.Count() <= FileLimits::MostEntries;
}

bool WriteBytes(QByteArrayView bytes, QIODevice &device)
{
    return device.write(bytes.data(), bytes.size()) == bytes.size();
}

}

bool WriteWordListFile(CWordList &list, const QString &path, const WriteOptions &options)
{
    const CLines lines = Encoded(list, options);
    CSafeFile file;
    if (!CanBeRead(list, lines) || !file.Open(path, options.backupFolder)) {
        return false;
    }
    if (!WriteBytes(lines.Bytes(), file.Device())) {
        file.Cancel();
        return false;
    }
    if (!file.Commit()) {
        return false;
    }
    list.SetSaved(true);
    return true;
}

bool WriteWordList(CWordList &list, QIODevice &device, const WriteOptions &options)
{
    const CLines lines = Encoded(list, options);
    if (!CanBeRead(list, lines) || !WriteBytes(lines.Bytes(), device)) {
        return false;
    }
    list.SetSaved(true);
    return true;
}
