// SPDX-License-Identifier: MIT
#pragma once

#include "tools/ui/table_pages.h"

#include <QObject>
#include <QPainter>
#include <QTimer>

#include <memory>

class QPagedPaintDevice;

/// Puts pages of a table on paper or into a file, one after the other from the event loop, so that the windows
/// answer meanwhile.
class CTablePageWriter : public QObject
{
    Q_OBJECT

public:
    explicit CTablePageWriter(QObject *parent = nullptr);
    ~CTablePageWriter() override;

    /// Pages from `first` to `last`, counted from 0; those that there aren't are left out. The device must live
    /// until the end or until Stop(). Returns false when nothing can be painted on it.
    [[nodiscard]] bool Start(
        std::shared_ptr<CTablePages> pages, QPagedPaintDevice &device, int first, int last);
    /// Gives up; Ended() is not told.
    void Stop();
    bool IsWorking() const { return m_timer.isActive(); }

Q_SIGNALS:
    /// The table is being laid out.
    void LaidOut(int percent);
    void PageBegun(int page, int count);
    /// The device is complete, and may be taken away, when it succeeded.
    void Ended(bool succeeded);

private:
    void GoOn();
    void End(bool succeeded);

    std::shared_ptr<CTablePages> m_pages;
    QPagedPaintDevice *m_device = nullptr;
    QPainter m_painter;
    QTimer m_timer;
    int m_next = 0;
    int m_last = 0;
    bool m_isFirst = true;
};
