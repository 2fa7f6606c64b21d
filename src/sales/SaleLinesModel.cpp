#include "sales/SaleLinesModel.h"

#include "common/AmountText.h"
#include "sales/SaleTexts.h"

namespace sandogh {

namespace {

QString quantityText(double value) {
    return QString::fromStdString(AmountText::formatDecimals(value));
}

QString amountText(double value) {
    return QString::fromStdString(AmountText::formatWhole(value));
}

}  // namespace

SaleLinesModel::SaleLinesModel(QObject* parent) : QAbstractTableModel(parent) {}

QString SaleLinesModel::headerText(int column) {
    switch (column) {
        case ColRow:
            return SaleTexts::headerRow();
        case ColBarcode:
            return SaleTexts::headerBarcode();
        case ColName:
            return SaleTexts::headerName();
        case ColQuantity:
            return SaleTexts::headerQuantity();
        case ColUnitPrice:
            return SaleTexts::headerUnitPrice();
        case ColTax:
            return SaleTexts::headerTax();
        case ColTotal:
            return SaleTexts::headerTotal();
        case ColSeller:
            return SaleTexts::headerSeller();
        default:
            return {};
    }
}

bool SaleLinesModel::isHiddenColumn(int column) {
    return column == ColSelector || column == ColDiscount || column == ColGoodsKind ||
           column == ColStockFlag;
}

int SaleLinesModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : lineCount();
}

int SaleLinesModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant SaleLinesModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= lineCount() || index.column() >= ColumnCount) {
        return {};
    }
    const SaleLine& l = m_lines.at(index.row());
    if (role == ValueRole || role == Qt::EditRole) {
        switch (index.column()) {
            case ColRow:
                return index.row() + 1;
            case ColBarcode:
                return l.barcode;
            case ColName:
                return l.name;
            case ColQuantity:
                return l.quantity;
            case ColUnitPrice:
                return l.unitPrice;
            case ColTax:
                return l.taxPercent;
            case ColTotal:
                return l.total;
            case ColDiscount:
                return l.lineDiscount;
            case ColSeller:
                return l.seller;
            case ColGoodsKind:
                return l.goodsKind;
            case ColStockFlag:
                return l.stockFlag;
            default:
                return {};
        }
    }
    if (role == Qt::DisplayRole) {
        switch (index.column()) {
            case ColRow:
                return QString::number(index.row() + 1);
            case ColBarcode:
                return l.barcode;
            case ColName:
                return l.name;
            case ColQuantity:
                return quantityText(l.quantity);
            case ColUnitPrice:
                return amountText(l.unitPrice);
            case ColTax:
                return quantityText(l.taxPercent);
            case ColTotal:
                return amountText(l.total);
            case ColDiscount:
                return quantityText(l.lineDiscount);
            case ColSeller:
                return l.seller;
            case ColGoodsKind:
                return QString::number(l.goodsKind);
            case ColStockFlag:
                return QString::number(l.stockFlag);
            default:
                return {};
        }
    }
    return {};
}

QVariant SaleLinesModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation == Qt::Horizontal && role == Qt::DisplayRole && section >= 0 &&
        section < ColumnCount) {
        return headerText(section);
    }
    return QAbstractTableModel::headerData(section, orientation, role);
}

int SaleLinesModel::findBarcode(const QString& barcode) const {
    for (int row = 0; row < lineCount(); ++row) {
        if (m_lines.at(row).barcode.compare(barcode, Qt::CaseInsensitive) == 0) {
            return row;
        }
    }
    return -1;
}

double SaleLinesModel::total() const {
    double sum = 0;
    for (const SaleLine& l : m_lines) {
        sum += l.total;
    }
    return sum;
}

int SaleLinesModel::append(const SaleLine& line) {
    const int row = lineCount();
    beginInsertRows({}, row, row);
    m_lines.append(line);
    endInsertRows();
    return row;
}

bool SaleLinesModel::replace(int row, const SaleLine& line) {
    if (row < 0 || row >= lineCount()) {
        return false;
    }
    m_lines[row] = line;
    emit dataChanged(index(row, 0), index(row, ColumnCount - 1));
    return true;
}

bool SaleLinesModel::remove(int row) {
    if (row < 0 || row >= lineCount()) {
        return false;
    }
    beginRemoveRows({}, row, row);
    m_lines.removeAt(row);
    endRemoveRows();
    // The line numbers of the rows below moved up.
    if (row < lineCount()) {
        emit dataChanged(index(row, ColRow), index(lineCount() - 1, ColRow));
    }
    return true;
}

void SaleLinesModel::setLines(const QList<SaleLine>& lines) {
    beginResetModel();
    m_lines = lines;
    endResetModel();
}

void SaleLinesModel::clear() {
    setLines({});
}

}  // namespace sandogh
