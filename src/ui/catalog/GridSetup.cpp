#include "ui/catalog/GridSetup.h"

#include <QHeaderView>
#include <QItemSelectionModel>
#include <QStandardItemModel>
#include <QTableView>

namespace sandogh {

QStandardItemModel* GridSetup::configure(QTableView* grid, const QStringList& headers) {
    auto* model = new QStandardItemModel(0, int(headers.size()), grid);
    model->setHorizontalHeaderLabels(headers);
    grid->setModel(model);
    grid->setSelectionBehavior(QAbstractItemView::SelectRows);
    grid->setSelectionMode(QAbstractItemView::SingleSelection);
    grid->setEditTriggers(QAbstractItemView::NoEditTriggers);
    grid->setAlternatingRowColors(true);
    grid->verticalHeader()->setVisible(false);
    grid->horizontalHeader()->setStretchLastSection(true);
    grid->horizontalHeader()->setHighlightSections(false);
    return model;
}

int GridSetup::selectedRow(const QTableView* grid) {
    const QItemSelectionModel* selection = grid->selectionModel();
    if (selection == nullptr) {
        return -1;
    }
    const QModelIndexList rows = selection->selectedRows();
    if (!rows.isEmpty()) {
        return rows.first().row();
    }
    const QModelIndex current = selection->currentIndex();
    return current.isValid() ? current.row() : -1;
}

void GridSetup::selectRow(QTableView* grid, int row) {
    if (grid->model() == nullptr || row < 0 || row >= grid->model()->rowCount()) {
        return;
    }
    // Through the selection model: the view's own selectRow() looks for the first column
    // at the viewport's edge, which a right-to-left grid does not always find.
    const QModelIndex index = grid->model()->index(row, 0);
    grid->selectionModel()->setCurrentIndex(
        index, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    grid->scrollTo(index);
}

}  // namespace sandogh
