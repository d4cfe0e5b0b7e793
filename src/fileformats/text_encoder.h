// SPDX-License-Identifier: MIT
#pragma once

#include "fileformats/text_encoding.h"

#include <QByteArray>
#include <QStringView>

/// Encodes texts into memory, one behind the other, with the byte-order mark of the encoding in front.
class CTextEncoder
{
public:
    explicit CTextEncoder(TextEncoding encoding);
    /// Makes room for that many code units to come, so that the memory is taken once.
    void Reserve(qsizetype units);

    void Append(QStringView text);
    /// CR LF, in every encoding.
    void AppendLineEnd() { Append(u"\r\n"); }

    QByteArrayView Bytes() const { return QByteArrayView(m_bytes).first(m_size); }
    /// Forgets the bytes so far, of which no character was incomplete.
    void Clear() { m_size = 0; }
    /// True once a text held a character that the code page lacks; a question mark stands for it.
    bool Lossy() const { return m_lossy; }

private:
    TextEncoding m_encoding;
    QByteArray m_bytes; // Longer than what is in use, so that texts are written into room that is there.
    qsizetype m_size = 0;
    bool m_lossy = false;
};
