// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

class QMimeData;

/// The system's clipboard. Whatever decides is handed one of these; the one in tests is a clipboard of its own.
class IClipboard
{
public:
    IClipboard() = default;
    virtual ~IClipboard() = default;
    IClipboard(const IClipboard &) = delete;
    IClipboard &operator=(const IClipboard &) = delete;

    /// What it holds, until it is changed; none where it can't be read.
    virtual const QMimeData *Data() const = 0;
    virtual void SetData(std::unique_ptr<QMimeData> data) = 0;
};
