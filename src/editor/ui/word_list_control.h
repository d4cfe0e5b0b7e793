// SPDX-License-Identifier: MIT
#pragma once

#include <QTableView>

class CWordListModel;

/// The table of the word list: whole rows are selected, rows have one height, columns share the width.
class CWordListControl : public QTableView
{
    Q_OBJECT

public:
    explicit CWordListControl(QWidget *parent = nullptr);

    /// Gives the columns their widths: the number column fits its numbers, the others share what is left.
    void layoutColumns();

protected:
    QRegion visualRegionForSelection(const QItemSelection &selection) const override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void layoutRows();
};
