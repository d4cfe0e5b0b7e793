// SPDX-License-Identifier: MIT
#pragma once

#include "model/word_list.h"

#include <QStringList>

#include <memory>

class QMimeData;

/// What a copy of entries puts on the clipboard: text and rich text for other programs, and of all columns
/// also the program's own records, for this program and other running copies of it.
std::unique_ptr<QMimeData> ClipboardDataOf(const CWordList &list, CWordList::Selection entries, int column);

/// The files that data is a list of, by their paths; none for other data.
QStringList FilesFromData(const QMimeData &data);
/// Whether there is a form that entries can be read from; reads none of it.
bool MayHoldEntries(const QMimeData &data);
/// Whether there is a text that is no list of files; reads none of it.
bool HoldsText(const QMimeData &data);
/// That text.
QString TextFromData(const QMimeData &data);
/// The entries of the best form that is there: records before text.
CWordList EntriesFromData(const QMimeData &data);
