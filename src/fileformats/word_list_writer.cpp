// SPDX-License-Identifier: MIT
#include "fileformats/glossary_version.h"
#include "fileformats/text_file_writer.h"
#include "fileformats/word_list_file.h"
#include "model/word_list.h"
#include "platform/windows_1252.h"

namespace {

bool FitsCodePage(const CWordList &list)
{
    for (const QString &text : {list.GetComments(), list.GetAuthor(), list.GetLanguage(0), list.GetLanguage(1),
             list.GetQuestionTemplate(0), list.GetQuestionTemplate(1)}) {
        if (!FitsWindows1252(text)) {
            return false;
        }
    }
    for (int index = 0; index < list.Count(); ++index) {
        const CWordEntry &entry = list.Entry(index);
        if (!FitsWindows1252(entry.GetText(0)) || !FitsWindows1252(entry.GetText(1))
            || !FitsWindows1252(entry.GetNote())) {
            return false;
        }
    }
    return true;
}

const GlossaryVersion &SmallestVersion(const CWordList &list, bool forceOldFormat)
{
    bool fitsOld = list.GetQuestionTemplate(0).isEmpty() && list.GetQuestionTemplate(1).isEmpty();
    bool anyFlag = false;
    for (int index = 0; index < list.Count() && (fitsOld || !anyFlag); ++index) {
        const CWordEntry &entry = list.Entry(index);
        fitsOld = fitsOld && entry.FitsOldFormat();
        anyFlag = anyFlag || entry.GetFlag(0) || entry.GetFlag(1);
    }
    if (forceOldFormat || fitsOld) {
        return Glossary::Version20;
    }
    if (anyFlag) {
        return Glossary::Version23;
    }
    return list.AnyNote() ? Glossary::Version23Mini : Glossary::Version23Micro;
}

/// A line break inside a header text would shift every line behind it; each becomes one blank.
QString OneLine(QString text)
{
    text.replace(QStringLiteral("\r\n"), QStringLiteral(" "));
    text.replace(u'\r', u' ');
    text.replace(u'\n', u' ');
    return text;
}

void WriteHeader(const CWordList &list, CTextFileWriter &writer, const GlossaryVersion &version)
{
    const auto line = [&](const QString &text) {
        writer.Write(OneLine(text));
        writer.NewLine();
    };
    writer.Write(version.header);
    writer.NewLine();
    line(list.GetAuthor());
    line(list.GetComments());
    line(list.GetLanguage(0));
    line(list.GetLanguage(1));
    line(QString::number(list.Count()));
    if (version.hasQuestions) {
        for (const int direction : {0, 1}) {
            writer.WriteChar(list.GetAdaptQuestion(direction) ? u'1' : u'0');
            writer.NewLine();
            line(list.GetQuestionTemplate(direction));
        }
    }
    writer.NewLine();
}

void WriteRecord(const CWordEntry &entry, CTextFileWriter &writer, const GlossaryVersion &version)
{
    if (version.hasFlagLine) {
        writer.WriteChar(entry.GetFlag(0) ? u'1' : u'0');
        if (version.hasNote) {
            writer.Write(entry.GetFlag(1) ? u" 1" : u" 0");
        }
        writer.NewLine();
    }
    writer.Write(entry.GetText(0));
    writer.NewLine();
    writer.Write(entry.GetText(1));
    writer.NewLine();
    if (version.hasNote) {
        writer.Write(entry.GetNote());
        writer.NewLine();
    }
}

TextEncoding EncodingFor(const CWordList &list, const WriteOptions &options)
{
    return options.forceUnicode || !FitsCodePage(list) ? TextEncoding::Utf16LittleEndian : TextEncoding::Ansi;
}

bool WriteAll(CWordList &list, CTextFileWriter &writer, const WriteOptions &options)
{
    const GlossaryVersion &version = SmallestVersion(list, options.forceOldFormat);
    WriteHeader(list, writer, version);
    for (int index = 0; index < list.Count(); ++index) {
        WriteRecord(list.Entry(index), writer, version);
    }
    if (!writer.Close()) {
        return false;
    }
    list.SetSaved(true);
    return true;
}

}

bool WriteWordListFile(CWordList &list, const QString &path, const WriteOptions &options)
{
    CTextFileWriter writer;
    return writer.Open(path, EncodingFor(list, options), options.backupFolder)
        && WriteAll(list, writer, options);
}

bool WriteWordList(CWordList &list, QIODevice &device, const WriteOptions &options)
{
    CTextFileWriter writer;
    writer.Open(device, EncodingFor(list, options));
    return WriteAll(list, writer, options);
}
