// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

class CStringTable;
class CTexts;
class QLocale;

/// A language that the program can speak, in its own words.
struct LanguageEntry
{
    /// The module's file; empty for the program's own language.
    QString path = {};
    QString name = {};
    /// Compared with LanguageAbbreviation().
    QString abbreviation = {};
    QString caption = {};
    QString question = {};
    QString list = {};
    QString confirmation = {};
    QString cancel = {};
    QString ok = {};
    QString invalidFile = {};
    QString fromNextStart = {};
    /// A PNG file; whether it can be shown is for the window to find out.
    QByteArray picture = {};
    /// False for a module made for another version, of which only path and name are known.
    bool valid = true;
};

enum class ModuleTest { Ok = 0, CannotLoad = 2, OtherVersion = 3 };

/// Reads a module and compares its version with the program's own. What is no regular file, unreasonably large
/// or no module can't be loaded. `module` is filled when the test gives Ok, and then holds what the module file
/// holds; `entry`, which may be null, is filled with what the result allows.
ModuleTest TestLanguageModule(
    const QString &path, const CTexts &texts, QByteArray &module, LanguageEntry *entry = nullptr);

/// The program's own language, then the modules in each of the folders and anywhere below their "ordmod", in
/// the order of their paths. Folders are not searched through symbolic links, so that none is searched forever.
QList<LanguageEntry> FindLanguages(const CTexts &texts, const QStringList &folders);

/// The three-letter abbreviation of a locale's language that modules are compared with, in lower case: those
/// that differ by country or by history as listed, else the ISO 639-2 code.
QString LanguageAbbreviation(const QLocale &locale);
