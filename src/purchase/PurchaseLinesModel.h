#pragma once

#include <QAbstractTableModel>
#include <QList>

#include "purchase/PurchaseLine.h"

namespace sandogh {

// The grid of the purchase screen: barcode, name, unit, Qty, MFee, Discount, TaxValue, Fee
// and Price. Quantity, list price, discount and tax are edited in place; Fee and Price
// follow. Numbers are shown "##,###.###" and kept as numbers (ValueRole).
class PurchaseLinesModel : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column {
        ColBarcode = 0,
        ColName,
        ColUnit,
        ColQty,
        ColMFee,
        ColDiscount,
        ColTaxValue,
        ColFee,
        ColPrice,
        ColumnCount,
    };
    static constexpr int ValueRole = Qt::UserRole + 1;

    explicit PurchaseLinesModel(QObject* parent = nullptr);

    static QString headerText(int column);
    static bool isEditableColumn(int column);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    // Takes a number (or its text with "," separators) for the editable columns; a text that
    // is not a number, or a negative one, is refused and the cell keeps its value.
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;

    const QList<PurchaseLine>& lines() const { return m_lines; }
    const PurchaseLine& line(int row) const { return m_lines.at(row); }
    int lineCount() const { return static_cast<int>(m_lines.size()); }

    // Appends a line (Fee and Price computed) and returns its row.
    int append(PurchaseLine line);
    void removeLine(int row);
    void clear();

signals:
    // Any change of a line's figures, or of the set of lines.
    void linesChanged();

private:
    QList<PurchaseLine> m_lines;
};

}  // namespace sandogh
