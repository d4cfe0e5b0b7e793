// SPDX-License-Identifier: MIT
#include "fileformats/kvtml_reader.h"
#include "platform/language_names.h"

// The second version: languages have identifiers, by which each translation says its own.

void CKvtmlReader::ReadBody2()
{
    while (NextChild()) {
        if (Is(u"information")) {
            ReadInformation();
        } else if (Is(u"identifiers")) {
            ReadIdentifiers();
        } else if (Is(u"entries")) {
            while (NextChild()) {
                if (Is(u"entry")) {
                    ReadEntry2();
                } else {
                    m_xml.skipCurrentElement();
                }
            }
        } else {
            // The groups of the entries, which a list has not.
            m_losses.Add(LossKind::Details, int(Is(u"lessons")));
            m_xml.skipCurrentElement();
        }
    }
}

void CKvtmlReader::ReadInformation()
{
    while (NextChild()) {
        if (Is(u"title")) {
            m_title = Text();
        } else if (Is(u"author")) {
            m_author = Text();
        } else if (Is(u"comment")) {
            m_comment = Text();
        } else {
            m_xml.skipCurrentElement();
        }
    }
}

void CKvtmlReader::ReadIdentifiers()
{
    while (NextChild()) {
        if (!Is(u"identifier")) {
            m_xml.skipCurrentElement();
            continue;
        }
        const QString id = Attribute(u"id");
        m_ids.append(id.isEmpty() ? QString::number(m_ids.size()) : id);
        QString name;
        QString code;
        while (NextChild()) {
            if (Is(u"name")) {
                name = Text();
            } else if (Is(u"locale")) {
                code = Text();
            } else {
                m_xml.skipCurrentElement();
            }
        }
        m_names.append(name.isEmpty() ? CLanguageNames::NameOf(code) : name);
    }
}

void CKvtmlReader::ReadEntry2()
{
    std::array<Translation, 2> chosen;
    for (int place = 0; NextChild();) {
        if (Is(u"translation")) {
            const int language = LanguageOf(Attribute(u"id"), place++);
            Choose(language, ReadTranslation2(), chosen);
        } else {
            m_xml.skipCurrentElement();
        }
    }
    Insert(chosen);
}

int CKvtmlReader::LanguageOf(const QString &id, int place) const
{
    if (id.isEmpty()) {
        return place;
    }
    for (const int wanted : m_options.languages) {
        if (m_ids.isEmpty() ? QString::number(wanted) == id : m_ids.value(wanted) == id) {
            return wanted;
        }
    }
    return -1;
}

CKvtmlReader::Translation CKvtmlReader::ReadTranslation2()
{
    Translation translation;
    while (NextChild()) {
        if (Is(u"text")) {
            translation.text = Text();
        } else if (Is(u"comment")) {
            translation.remark = Text();
        } else if (IsGrade(m_xml.name())) {
            translation.hasGrade = true;
            m_xml.skipCurrentElement();
        } else {
            translation.hasDetails = true;
            m_xml.skipCurrentElement();
        }
    }
    return translation;
}
