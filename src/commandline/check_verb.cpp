// SPDX-License-Identifier: MIT
#include "commandline/check_verb.h"

#include "commandline/list_check.h"
#include "commandline/list_files.h"
#include "commandline/list_json.h"
#include "commandline/options.h"

#include <QJsonObject>

namespace {

constexpr Option Options[] = {JsonOption, FromOption};

/// How each kind of finding is named, in the order of the kinds.
struct KindRow
{
    const char *name;
    int text;
};
constexpr KindRow Kinds[] = {
    {"missing-term", Text::MissingTerm},
    {"shared-alternative", Text::SharedAlternative},
    {"open-bracket", Text::OpenBracket},
    {"stray-bracket", Text::StrayBracket},
    {"decomposed", Text::Decomposed},
    {"odd-blank", Text::OddBlank},
};

constexpr const char *Fields[] = {"term1", "term2", "note", "language1", "language2", "author", "comments"};

/// The number of an entry for people.
int Number(int entry)
{
    return entry + 1;
}

QJsonObject JsonOf(const ListFinding &finding)
{
    QJsonObject json = {{QStringLiteral("kind"), QLatin1StringView(Kinds[int(finding.kind)].name)},
        {QStringLiteral("field"), QLatin1StringView(Fields[finding.field])},
        {QStringLiteral("text"), finding.text}};
    if (finding.entry != NoEntry) {
        json.insert(QStringLiteral("entry"), Number(finding.entry));
    }
    if (finding.other != NoEntry) {
        json.insert(QStringLiteral("other"), Number(finding.other));
    }
    return json;
}

QString LineOf(
    const QString &file, const ListFinding &finding, const CWordList &list, const VerbServices &services)
{
    QStringList values = {finding.text};
    if (finding.kind == ListFinding::Kind::MissingTerm) {
        const QString &language = list.GetLanguage(finding.field);
        values = {language.isEmpty() ? QString::number(finding.field + 1) : language};
    } else if (finding.kind == ListFinding::Kind::SharedAlternative) {
        values.append(QString::number(Number(finding.other)));
    }
    const QString place =
        finding.entry == NoEntry ? QString() : QString::number(Number(finding.entry)) + QStringLiteral(": ");
    return ShownInLine(file) + QStringLiteral(":") + (place.isEmpty() ? QStringLiteral(" ") : place)
        + Filled(services, Kinds[int(finding.kind)].text, values) + u'\n';
}

}

std::span<const Option> CheckOptions()
{
    return Options;
}

VerbResult RunCheck(const CArguments &arguments, const VerbServices &services)
{
    const bool asJson = arguments.Has("json");
    bool anyFound = false;
    bool anyFailed = false;
    QJsonArray json;
    for (const QString &file : arguments.Files()) {
        const auto read = ReadListOf(file, arguments, services);
        if (!read) {
            anyFailed = true;
            continue;
        }
        QJsonArray findings;
        CheckList(read->list, [&](const ListFinding &finding) {
            anyFound = true;
            if (asJson) {
                findings.append(JsonOf(finding));
            } else {
                services.console.Print(LineOf(file, finding, read->list, services));
            }
        });
        json.append(QJsonObject{{QStringLiteral("file"), file}, {QStringLiteral("findings"), findings}});
    }
    if (asJson) {
        services.console.Print(JsonText(json));
    }
    if (anyFailed) {
        return VerbResult::Failed;
    }
    return anyFound ? VerbResult::Found : VerbResult::Done;
}
