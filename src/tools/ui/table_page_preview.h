// SPDX-License-Identifier: MIT
#pragma once

#include "tools/ui/table_pages.h"

#include <QWidget>

#include <memory>

/// Shows a page of a table as it comes on paper, as large as there is room.
class CTablePagePreview : public QWidget
{
    Q_OBJECT

public:
    explicit CTablePagePreview(std::shared_ptr<const CTablePages> pages, QWidget *parent = nullptr);

    /// From 0; nothing is shown of a page that there isn't yet.
    void ShowPage(int page);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    std::shared_ptr<const CTablePages> m_pages;
    int m_page = 0;
};
