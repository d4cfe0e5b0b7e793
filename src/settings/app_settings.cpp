// SPDX-License-Identifier: MIT
#include "settings/app_settings.h"

#include "platform/user_prompt.h"
#include "resources/texts.h"
#include "settings/text_numbers.h"

namespace {

/// Factory values with the texts of the language in force.
class CLocalFactoryValues : public CFactoryValues
{
public:
    explicit CLocalFactoryValues(const CTexts &texts) : m_texts(texts) { }
    void NumberedText(const char * /*name*/, QString &value, int textNumber) override
    {
        value = m_texts.Get(textNumber);
    }

private:
    const CTexts &m_texts;
};

/// A list as its items joined by line breaks.
QString JoinList(const QStringList &items)
{
    return items.join(u'\n');
}

QStringList SplitList(const QString &text)
{
    if (text.isEmpty()) {
        return {};
    }
    QStringList items = text.split(u'\n');
    if (items.last().isEmpty()) {
        items.removeLast(); // Behind a final line break there is no further item.
    }
    for (QString &item : items) {
        item = item.trimmed();
    }
    return items;
}

/// Loads or saves every setting that it visits, in one section.
class CExchange
{
public:
    CExchange(CRegistrySettings &settings, bool load, const char *section)
        : m_settings(settings), m_load(load), m_section(QString::fromLatin1(section))
    {
    }

    void Flag(const char *name, bool &value, bool /*factory*/) { KeptFlag(name, value); }
    void KeptFlag(const char *name, bool &value)
    {
        m_settings.ExchangeBool(m_load, value, m_section, QString::fromLatin1(name));
    }
    void Integer(const char *name, int &value, int lower, int upper, int /*factory*/)
    {
        m_settings.ExchangeInt(m_load, value, m_section, QString::fromLatin1(name), lower, upper);
    }
    template<class Enumeration>
    void Choice(const char *name, Enumeration &value, Enumeration last, Enumeration /*factory*/)
    {
        int number = int(value);
        Integer(name, number, 0, int(last), 0);
        value = Enumeration(number);
    }
    void Color(const char *name, quint32 &value, quint32 /*factory*/)
    {
        m_settings.ExchangeColor(m_load, value, m_section, QString::fromLatin1(name));
    }
    void Text(const char *name, QString &value, const char * /*factory*/, const char *otherSection = nullptr)
    {
        const QString section = otherSection != nullptr ? QString::fromLatin1(otherSection) : m_section;
        m_settings.ExchangeString(m_load, value, section, QString::fromLatin1(name));
    }
    void NumberedText(const char *name, QString &value, int /*textNumber*/) { KeptText(name, value); }
    void KeptText(const char *name, QString &value)
    {
        m_settings.ExchangeString(m_load, value, m_section, QString::fromLatin1(name));
    }
    void List(const char *name, QStringList &value)
    {
        QString text = JoinList(value);
        KeptText(name, text);
        if (m_load) {
            value = SplitList(text);
        }
    }

private:
    CRegistrySettings &m_settings;
    bool m_load;
    QString m_section;
};

}

CAppSettings::CAppSettings(ISettingsStore &store, const CTexts &texts)
    : CRegistrySettings(store), m_texts(texts)
{
}

template<class Visit>
void CAppSettings::ForEachSection(Visit visit)
{
    visit(misc, "misc");
    visit(editor, "editor");
    visit(easykey, "easykey");
    visit(quiz, "quiz");
    visit(quizChallenge, "quiz\\quizchallenge");
    visit(fallingWord, "quiz\\fallingword");
    visit(quizWindows, "quiz");
    visit(import, "import");
    visit(createTable, "createTable");
    visit(filesearch, "filesearch");
    visit(result, "result");
    visit(find, "find");
    visit(arrange, "arrange");
    visit(dictionaries, "dictionaries");
}

void CAppSettings::Exchange(bool load)
{
    if (load) {
        SetDefaults();
    }
    Key().SelectSection(QStringLiteral("misc"));
    if (!Key().Exists(QStringLiteral("autoOpen"))) {
        isFirstRun = true;
    }
    ForEachSection([&](auto &section, const char *name) {
        CExchange exchange(*this, load, name);
        section.Visit(exchange);
    });
    Key().Flush();
}

void CAppSettings::SetDefaults()
{
    CLocalFactoryValues values(m_texts);
    ForEachSection([&](auto &section, const char * /*name*/) { section.Visit(values); });
}

bool CAppSettings::ResetToFactory(IUserPrompt &prompt)
{
    if (!prompt.Confirm(m_texts.Prompt(Text::ReallyReset), PromptIcon::Information, PromptButtons::YesNoCancel,
            PromptAnswer::No)) {
        return false;
    }
    SetDefaults();
    return true;
}
