// SPDX-License-Identifier: MIT
#pragma once

#include "platform/clipboard.h"

/// The clipboard of the window system.
class CSystemClipboard : public IClipboard
{
public:
    const QMimeData *Data() const override;
    void SetData(std::unique_ptr<QMimeData> data) override;
};
