// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

#include <optional>
#include <span>

/// A long option of a verb. Its value follows a "=" or is the next argument.
struct Option
{
    enum class Kind {
        Flag, ///< Has no value.
        Text,
        Number, ///< From `lowest` to `highest`.
        Color, ///< Six hexadecimal digits, red first.
        Choice, ///< One of `choices`.
        Optional ///< The same, or no value, which stands for the first of them; a value follows a "=".
    };

    /// Without the hyphens.
    const char *name;
    Kind kind;
    /// The number of the text that says what it does.
    int help;
    /// With "|" between them.
    const char *choices = "";
    int lowest = 0;
    int highest = 0;

    QString Name() const { return QLatin1StringView(name); }
    QStringList Choices() const { return QString(QLatin1StringView(choices)).split(u'|'); }
    /// As it is written: with its hyphens and what stands for its value.
    QString Written() const;
};

/// What follows a verb: the files it is about, and its options, whose values are valid.
class CArguments
{
public:
    struct Fault
    {
        int text = 0; ///< The number of the text that says what is wrong.
        QStringList values = {};
    };

    /// "--" ends the options, and "-" alone is a file. Nothing when anything is wrong, which `fault` tells.
    static std::optional<CArguments> Parse(
        const QStringList &arguments, std::span<const Option> options, Fault &fault);

    const QStringList &Files() const { return m_files; }
    bool Has(const char *option) const { return m_values.contains(QLatin1StringView(option)); }
    /// Of an option that is given several times the last counts. Nothing without it.
    std::optional<QString> Text(const char *option) const;
    std::optional<int> Number(const char *option) const;
    /// 0x00BBGGRR
    std::optional<quint32> Color(const char *option) const;
    /// Which of the choices it is, from 0.
    std::optional<int> Choice(const char *option) const;

private:
    struct Value
    {
        QString text = {};
        int number = 0;
    };
    static bool ParseValue(const Option &option, const QString &text, Value &value);

    QStringList m_files;
    QHash<QString, Value> m_values;
};
