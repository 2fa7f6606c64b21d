#pragma once

#include <QStringList>

class QStandardItemModel;
class QTableView;

namespace sandogh {

// The look of the read-only grids of the back office lists: whole rows selected one at a
// time, no editing in place, the last column taking the rest of the width.
class GridSetup {
public:
    // Gives the grid a model with these column headers (owned by the grid).
    static QStandardItemModel* configure(QTableView* grid, const QStringList& headers);
    // The selected row of the grid, -1 without one.
    static int selectedRow(const QTableView* grid);
    // Selects a row of the grid and shows it.
    static void selectRow(QTableView* grid, int row);
};

}  // namespace sandogh
