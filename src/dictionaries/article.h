// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QStringList>

/// The translations that an article of a bilingual dictionary holds, in its order, each once, without grammar,
/// pronunciation, usage, examples and references. `article` is UTF-8 as the converters of FreeDict write it:
/// the headword in a line of its own, then the senses, numbered when they are several. Bounded in number and
/// length.
QStringList TranslationsIn(const QByteArray &article);

/// The headword of such an article as it is written, without grammar and pronunciation.
QString HeadwordOf(const QByteArray &article);
