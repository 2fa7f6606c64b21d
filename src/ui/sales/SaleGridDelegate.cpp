#include "ui/sales/SaleGridDelegate.h"

#include "sales/SaleLinesModel.h"

namespace sandogh {

bool SaleGridDelegate::isNumberColumn(int column) {
    switch (column) {
        case SaleLinesModel::ColRow:
        case SaleLinesModel::ColQuantity:
        case SaleLinesModel::ColUnitPrice:
        case SaleLinesModel::ColTax:
        case SaleLinesModel::ColTotal:
            return true;
        default:
            return false;
    }
}

Qt::Alignment SaleGridDelegate::alignmentOf(int column) {
    // Absolute: flush right whatever the layout direction, as amounts are written.
    return isNumberColumn(column) ? Qt::AlignRight | Qt::AlignAbsolute | Qt::AlignVCenter
                                  : Qt::AlignLeading | Qt::AlignVCenter;
}

void SaleGridDelegate::initStyleOption(QStyleOptionViewItem* option,
                                       const QModelIndex& index) const {
    QStyledItemDelegate::initStyleOption(option, index);
    option->displayAlignment = alignmentOf(index.column());
    if (isNumberColumn(index.column())) {
        // Digits and separators read left to right inside the right-to-left grid.
        option->direction = Qt::LeftToRight;
    }
}

}  // namespace sandogh
