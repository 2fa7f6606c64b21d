#pragma once

#include <QAbstractTableModel>
#include <QList>

#include "sales/SaleLine.h"

namespace sandogh {

// The lines of the sale as the grid Grid1 shows them: twelve columns in their fixed
// order. Columns 0 (selector), 8, 10 and 11 have no header and are hidden by the screen.
// Quantities are shown "##,###.###", amounts "##,###"; the numbers themselves are read
// back through ValueRole (or the lines), never by parsing the shown text.
class SaleLinesModel : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column {
        ColSelector = 0,
        ColRow = 1,
        ColBarcode = 2,
        ColName = 3,
        ColQuantity = 4,
        ColUnitPrice = 5,
        ColTax = 6,
        ColTotal = 7,
        ColDiscount = 8,
        ColSeller = 9,
        ColGoodsKind = 10,
        ColStockFlag = 11,
        ColumnCount = 12,
    };
    // The kept value of a cell: a double for numbers, an int for the line number, kind
    // and flag, a QString for texts.
    static constexpr int ValueRole = Qt::UserRole + 1;

    explicit SaleLinesModel(QObject* parent = nullptr);

    // Header text of a column; empty for the unnamed ones.
    static QString headerText(int column);
    // Whether the screen hides the column (0, 8, 10, 11).
    static bool isHiddenColumn(int column);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;

    const QList<SaleLine>& lines() const { return m_lines; }
    const SaleLine& line(int row) const { return m_lines.at(row); }
    int lineCount() const { return static_cast<int>(m_lines.size()); }
    bool isEmpty() const { return m_lines.isEmpty(); }

    // The first row whose barcode equals this one without regard to case; -1 for none.
    int findBarcode(const QString& barcode) const;
    // Sum of the line totals; 0 for no lines.
    double total() const;

    // Appends a line and returns its row.
    int append(const SaleLine& line);
    // Replaces a row's values (its total as given); false for a row that does not exist.
    bool replace(int row, const SaleLine& line);
    bool remove(int row);
    void setLines(const QList<SaleLine>& lines);
    void clear();

private:
    QList<SaleLine> m_lines;
};

}  // namespace sandogh
