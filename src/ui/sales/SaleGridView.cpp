#include "ui/sales/SaleGridView.h"

#include <QHeaderView>

#include "sales/SaleLinesModel.h"
#include "ui/sales/SaleGridDelegate.h"

namespace sandogh {

namespace {

// Widths that fit the longest value a desk rings up, in pixels at the grid's font.
constexpr int kRowWidth = 48;
constexpr int kBarcodeWidth = 150;
constexpr int kQuantityWidth = 90;
constexpr int kAmountWidth = 120;
constexpr int kTaxWidth = 64;
constexpr int kTotalWidth = 140;
constexpr int kSellerWidth = 110;
constexpr int kRowHeight = 34;

}  // namespace

SaleGridView::SaleGridView(SaleLinesModel& lines, QWidget* parent) : QTableView(parent) {
    setObjectName(QStringLiteral("Grid1"));
    setModel(&lines);
    setItemDelegate(new SaleGridDelegate(this));
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setAlternatingRowColors(true);
    setWordWrap(false);
    setCornerButtonEnabled(false);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(kRowHeight);

    for (int column = 0; column < SaleLinesModel::ColumnCount; ++column) {
        setColumnHidden(column, SaleLinesModel::isHiddenColumn(column));
    }
    QHeaderView* header = horizontalHeader();
    header->setHighlightSections(false);
    header->setSectionsClickable(false);
    header->setMinimumSectionSize(40);
    header->setSectionResizeMode(QHeaderView::Interactive);
    header->setSectionResizeMode(SaleLinesModel::ColName, QHeaderView::Stretch);
    setColumnWidth(SaleLinesModel::ColRow, kRowWidth);
    setColumnWidth(SaleLinesModel::ColBarcode, kBarcodeWidth);
    setColumnWidth(SaleLinesModel::ColQuantity, kQuantityWidth);
    setColumnWidth(SaleLinesModel::ColUnitPrice, kAmountWidth);
    setColumnWidth(SaleLinesModel::ColTax, kTaxWidth);
    setColumnWidth(SaleLinesModel::ColTotal, kTotalWidth);
    setColumnWidth(SaleLinesModel::ColSeller, kSellerWidth);

    connect(&lines, &QAbstractItemModel::rowsInserted, this, &SaleGridView::onRowsInserted);
    connect(&lines, &QAbstractItemModel::dataChanged, this, &SaleGridView::onDataChanged);
}

int SaleGridView::selectedRow() const {
    const QModelIndex current = currentIndex();
    if (!current.isValid() || model()->rowCount() == 0) {
        return -1;
    }
    return current.row();
}

void SaleGridView::selectLine(int row) {
    if (row < 0 || row >= model()->rowCount()) {
        return;
    }
    const QModelIndex index = model()->index(row, SaleLinesModel::ColName);
    setCurrentIndex(index);
    scrollTo(index);
}

void SaleGridView::onRowsInserted(const QModelIndex& parent, int /*first*/, int last) {
    if (!parent.isValid()) {
        selectLine(last);
    }
}

void SaleGridView::onDataChanged(const QModelIndex& topLeft, const QModelIndex& bottomRight) {
    // A whole line rewritten (a merge or a quantity change); renumbering after a delete
    // touches only the line number column and leaves the current line alone.
    if (topLeft.column() == 0 && bottomRight.column() == SaleLinesModel::ColumnCount - 1) {
        selectLine(topLeft.row());
    }
}

}  // namespace sandogh
