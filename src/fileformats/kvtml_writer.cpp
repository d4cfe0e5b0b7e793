// SPDX-License-Identifier: MIT
#include "fileformats/foreign_entries.h"
#include "fileformats/kvtml.h"
#include "fileformats/plain_formats.h"
#include "fileformats/text_output.h"
#include "model/word_list.h"
#include "platform/language_names.h"

#include <algorithm>

namespace {

/// Whether XML may hold this code unit.
bool IsXmlUnit(QChar unit)
{
    return (unit >= u' ' || unit == u'\t' || unit == u'\n' || unit == u'\r') && unit < u'\uFFFE';
}

bool CanBeXml(const QString &text)
{
    return text.isValidUtf16() && std::ranges::all_of(text, IsXmlUnit);
}

class CXml
{
public:
    explicit CXml(CTextOutput &output) : m_output(output) { }

    /// What is no text but the file's own.
    void Line(QStringView markup)
    {
        m_output.Write(markup);
        m_output.Write(u"\n");
    }
    /// An element with text in it; none for no text.
    void Element(QStringView indent, QStringView name, const QString &text)
    {
        if (text.isEmpty()) {
            return;
        }
        m_output.Write(indent);
        m_output.Write(u"<");
        m_output.Write(name);
        m_output.Write(u">");
        Text(text);
        m_output.Write(u"</");
        m_output.Write(name);
        m_output.Write(u">\n");
    }

private:
    void Text(const QString &text)
    {
        for (const QChar unit : text) {
            if (unit == u'&') {
                m_output.Write(u"&amp;");
            } else if (unit == u'<') {
                m_output.Write(u"&lt;");
            } else if (unit == u'>') {
                m_output.Write(u"&gt;");
            } else if (unit == u'\r') {
                m_output.Write(u"&#13;");
            } else {
                m_output.Write(IsXmlUnit(unit) ? unit.unicode() : u'\uFFFD');
            }
        }
    }

    CTextOutput &m_output;
};

/// What is in front of the first colon is the title, as in the lists that come with the program.
void WriteComments(const QString &comments, CXml &xml)
{
    const qsizetype colon = comments.indexOf(QStringLiteral(": "));
    const bool hasBoth = colon > 0 && colon + 2 < comments.size();
    xml.Element(u"    ", u"title", hasBoth ? comments.first(colon) : comments);
    if (hasBoth) {
        xml.Element(u"    ", u"comment", comments.sliced(colon + 2));
    }
}

}

void KvtmlFormat::Count(const CWordList &list, const FormatWriteOptions & /*options*/, CLossCounter &losses)
{
    list.ForEach([&](int, const CWordEntry &entry) {
        losses.Add(LossKind::EntriesWithoutTerms, int(!entry.HasTerm()));
        losses.Add(LossKind::Flags, int(entry.GetFlag(0)) + int(entry.GetFlag(1)));
        for (int field = 0; field < CWordEntry::FieldCount; ++field) {
            losses.Add(LossKind::Characters, int(!CanBeXml(entry.GetField(field))));
        }
    });
    CountProperties(list, true, true, losses);
}

bool KvtmlFormat::Write(const CWordList &list, QIODevice &device, const FormatWriteOptions &options)
{
    CTextOutput output(device, TextEncoding::Utf8, false);
    CXml xml(output);
    xml.Line(u"<?xml version=\"1.0\" encoding=\"UTF-8\"?>");
    xml.Line(u"<!DOCTYPE kvtml PUBLIC \"kvtml2.dtd\" \"http://edu.kde.org/kvtml/kvtml2.dtd\">");
    xml.Line(u"<kvtml version=\"2.0\">");
    xml.Line(u"  <information>");
    xml.Element(u"    ", u"generator", QStringLiteral("Ordelin"));
    WriteComments(list.GetComments(), xml);
    xml.Element(u"    ", u"author", list.GetAuthor());
    xml.Line(u"  </information>");
    xml.Line(u"  <identifiers>");
    const CLanguageNames names;
    for (const int language : {0, 1}) {
        xml.Line(language == 0 ? u"    <identifier id=\"0\">" : u"    <identifier id=\"1\">");
        xml.Element(u"      ", u"name", list.GetLanguage(language));
        xml.Element(
            u"      ", u"locale", CLanguageNames::ShortCodeOf(names.CodeOf(list.GetLanguage(language))));
        xml.Line(u"    </identifier>");
    }
    xml.Line(u"  </identifiers>");
    xml.Line(u"  <entries>");
    int id = 0;
    list.ForEach([&](int, const CWordEntry &entry) {
        if (!entry.HasTerm()) {
            return;
        }
        xml.Line(QStringLiteral("    <entry id=\"%1\">").arg(id++));
        for (const int language : {0, 1}) {
            xml.Line(language == 0 ? u"      <translation id=\"0\">" : u"      <translation id=\"1\">");
            xml.Element(
                u"        ", u"text", WithAlternativeMark(entry.GetText(language), options.alternatives));
            if (language == 0) {
                xml.Element(u"        ", u"comment", entry.GetNote());
            }
            xml.Line(u"      </translation>");
        }
        xml.Line(u"    </entry>");
    });
    xml.Line(u"  </entries>");
    xml.Line(u"</kvtml>");
    return output.Finish();
}
