// SPDX-License-Identifier: MIT
#pragma once

#include "model/word_list.h"

/// The texts in which entries are copied and from which they are pasted. Reading takes any text.

/// A line per entry, with AllColumns the columns separated by tabs.
QString EntriesAsText(const CWordList &list, CWordList::Selection entries, int column);
/// A document in Rich Text Format with a paragraph per entry, flagged terms in bold.
QByteArray EntriesAsRichText(const CWordList &list, CWordList::Selection entries, int column);
/// Records, which lose nothing: five lines per entry, each term behind its flag ("0" or "1"), then the note.
QString EntriesAsRecords(const CWordList &list, CWordList::Selection entries);

/// The entries of records, up to the first record that is not complete.
CWordList EntriesFromRecords(QStringView records);
/// An entry from each line that holds two terms and perhaps a note, separated by a character that is found out
/// line by line. Other lines are left out.
CWordList EntriesFromText(QStringView text);
