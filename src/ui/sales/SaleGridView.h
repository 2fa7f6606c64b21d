#pragma once

#include <QTableView>

namespace sandogh {

class SaleLinesModel;

// The line grid Grid1 of the sale screen: one row per line over the sale's lines model,
// the columns without a header (selector, line discount, goods kind, stock flag) hidden,
// the goods name taking the spare width, whole rows selected one at a time. The line
// just added or changed becomes the current line, so that the line keys act on it.
class SaleGridView : public QTableView {
    Q_OBJECT

public:
    explicit SaleGridView(SaleLinesModel& lines, QWidget* parent = nullptr);

    // The current line (model row), or -1 when the grid is empty or none is chosen.
    int selectedRow() const;
    void selectLine(int row);

private:
    void onRowsInserted(const QModelIndex& parent, int first, int last);
    void onDataChanged(const QModelIndex& topLeft, const QModelIndex& bottomRight);
};

}  // namespace sandogh
