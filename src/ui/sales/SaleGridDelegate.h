#pragma once

#include <QStyledItemDelegate>

namespace sandogh {

// Draws the cells of the sale's line grid: numbers (line number, quantity, unit price,
// tax, line total) stand flush right so that their last digits line up under one
// another, texts follow the reading direction.
class SaleGridDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    static bool isNumberColumn(int column);
    static Qt::Alignment alignmentOf(int column);

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
};

}  // namespace sandogh
