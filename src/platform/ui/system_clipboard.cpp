// SPDX-License-Identifier: MIT
#include "platform/ui/system_clipboard.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

const QMimeData *CSystemClipboard::Data() const
{
    return QGuiApplication::clipboard()->mimeData();
}

void CSystemClipboard::SetData(std::unique_ptr<QMimeData> data)
{
    QGuiApplication::clipboard()->setMimeData(data.release());
}
