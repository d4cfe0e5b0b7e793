// SPDX-License-Identifier: MIT
#include "commandline/arguments.h"

#include "commandline/text_numbers.h"

#include <algorithm>

QString Option::Written() const
{
    const QString written = QStringLiteral("--") + Name();
    switch (kind) {
    case Kind::Flag:
        break;
    case Kind::Text:
        return written + QStringLiteral("=TEXT");
    case Kind::Number:
        return written + QStringLiteral("=N");
    case Kind::Color:
        return written + QStringLiteral("=RRGGBB");
    case Kind::Choice:
        return written + u'=' + QLatin1StringView(choices);
    case Kind::Optional:
        return written + QStringLiteral("[=") + QLatin1StringView(choices) + u']';
    }
    return written;
}

bool CArguments::ParseValue(const Option &option, const QString &text, Value &value)
{
    bool valid = true;
    value.text = text;
    switch (option.kind) {
    case Option::Kind::Flag:
    case Option::Kind::Text:
        break;
    case Option::Kind::Number:
        value.number = text.toInt(&valid);
        valid = valid && value.number >= option.lowest && value.number <= option.highest;
        break;
    case Option::Kind::Color: {
        const int color = text.toInt(&valid, 16);
        valid = valid && text.size() == 6 && color >= 0;
        value.number = (color & 0xFF) << 16 | (color & 0xFF00) | color >> 16;
        break;
    }
    case Option::Kind::Choice:
    case Option::Kind::Optional:
        value.number = int(option.Choices().indexOf(text));
        valid = value.number >= 0;
        break;
    }
    return valid;
}

std::optional<CArguments> CArguments::Parse(
    const QStringList &arguments, std::span<const Option> options, Fault &fault)
{
    CArguments parsed;
    bool isOption = true;
    for (qsizetype i = 0; i < arguments.size(); ++i) {
        const QString &argument = arguments.at(i);
        if (isOption && argument == QStringLiteral("--")) {
            isOption = false;
            continue;
        }
        if (!isOption || argument.size() < 2 || !argument.startsWith(u'-')) {
            parsed.m_files.append(argument);
            continue;
        }
        const qsizetype equals = argument.indexOf(u'=');
        const QString name = argument.startsWith(QStringLiteral("--"))
            ? argument.mid(2, equals < 0 ? -1 : equals - 2)
            : QString();
        const auto option = std::ranges::find(options, name, &Option::Name);
        if (option == options.end()) {
            fault = {Text::UnknownOption, {argument}};
            return std::nullopt;
        }
        const bool takesNext = option->kind != Option::Kind::Flag && option->kind != Option::Kind::Optional;
        const bool isMissing = takesNext && equals < 0 && i + 1 == arguments.size();
        const bool isTooMuch = option->kind == Option::Kind::Flag && equals >= 0;
        if (isMissing || isTooMuch) {
            fault = {isMissing ? Text::MissingValue : Text::ValueTooMuch, {option->Written()}};
            return std::nullopt;
        }
        QString text = equals >= 0 ? argument.mid(equals + 1) : QString();
        if (equals < 0 && takesNext) {
            text = arguments.at(++i);
        } else if (equals < 0 && option->kind == Option::Kind::Optional) {
            text = option->Choices().constFirst();
        }
        Value value;
        if (!ParseValue(*option, text, value)) {
            fault = option->kind == Option::Kind::Number ? Fault{Text::NumberOutside,
                        {text, option->Written(), QString::number(option->lowest),
                            QString::number(option->highest)}}
                                                         : Fault{Text::WrongValue, {text, option->Written()}};
            return std::nullopt;
        }
        parsed.m_values.insert(name, value);
    }
    return parsed;
}

std::optional<QString> CArguments::Text(const char *option) const
{
    return Has(option) ? std::optional(m_values.value(QLatin1StringView(option)).text) : std::nullopt;
}

std::optional<int> CArguments::Number(const char *option) const
{
    return Has(option) ? std::optional(m_values.value(QLatin1StringView(option)).number) : std::nullopt;
}

std::optional<quint32> CArguments::Color(const char *option) const
{
    const std::optional<int> number = Number(option);
    return number ? std::optional(quint32(*number)) : std::nullopt;
}

std::optional<int> CArguments::Choice(const char *option) const
{
    return Number(option);
}
