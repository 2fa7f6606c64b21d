#include "purchase/PurchaseLinesModel.h"

#include <QRegularExpression>

#include "common/AmountText.h"
#include "purchase/PurchaseTotals.h"

namespace sandogh {

PurchaseLinesModel::PurchaseLinesModel(QObject* parent) : QAbstractTableModel(parent) {
    connect(this, &QAbstractItemModel::dataChanged, this, &PurchaseLinesModel::linesChanged);
    connect(this, &QAbstractItemModel::rowsInserted, this, &PurchaseLinesModel::linesChanged);
    connect(this, &QAbstractItemModel::rowsRemoved, this, &PurchaseLinesModel::linesChanged);
    connect(this, &QAbstractItemModel::modelReset, this, &PurchaseLinesModel::linesChanged);
}

QString PurchaseLinesModel::headerText(int column) {
    switch (column) {
        case ColBarcode:
            return QStringLiteral("بارکد");
        case ColName:
            return QStringLiteral("نام کالا");
        case ColUnit:
            return QStringLiteral("واحد");
        case ColQty:
            return QStringLiteral("تعداد");
        case ColMFee:
            return QStringLiteral("فی");
        case ColDiscount:
            return QStringLiteral("تخفیف %");
        case ColTaxValue:
            return QStringLiteral("مالیات %");
        case ColFee:
            return QStringLiteral("فی خالص");
        case ColPrice:
            return QStringLiteral("مبلغ");
        default:
            return {};
    }
}

bool PurchaseLinesModel::isEditableColumn(int column) {
    return column == ColQty || column == ColMFee || column == ColDiscount || column == ColTaxValue;
}

int PurchaseLinesModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : lineCount();
}

int PurchaseLinesModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant PurchaseLinesModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= lineCount()) {
        return {};
    }
    const PurchaseLine& l = m_lines.at(index.row());
    QVariant value;
    switch (index.column()) {
        case ColBarcode:
            value = l.barcode;
            break;
        case ColName:
            value = l.name;
            break;
        case ColUnit:
            value = l.unitName;
            break;
        case ColQty:
            value = l.qty;
            break;
        case ColMFee:
            value = l.mFee;
            break;
        case ColDiscount:
            value = l.discount;
            break;
        case ColTaxValue:
            value = l.taxValue;
            break;
        case ColFee:
            value = l.fee;
            break;
        case ColPrice:
            value = l.price;
            break;
        default:
            return {};
    }
    if (role == ValueRole) {
        return value;
    }
    const bool number = index.column() >= ColQty;
    if (role == Qt::DisplayRole) {
        return number ? QVariant(PurchaseTotals::format(value.toDouble())) : value;
    }
    if (role == Qt::EditRole) {
        // Text, so that the grid edits it in a line box that takes any amount.
        return number ? QVariant(QString::number(value.toDouble(), 'f', 3)
                                     .remove(QRegularExpression(QStringLiteral("\\.?0+$"))))
                      : value;
    }
    if (role == Qt::TextAlignmentRole && number) {
        return QVariant::fromValue(Qt::AlignVCenter | Qt::AlignLeft);
    }
    return {};
}

QVariant PurchaseLinesModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (role != Qt::DisplayRole) {
        return {};
    }
    return orientation == Qt::Horizontal ? QVariant(headerText(section)) : QVariant(section + 1);
}

Qt::ItemFlags PurchaseLinesModel::flags(const QModelIndex& index) const {
    Qt::ItemFlags f = QAbstractTableModel::flags(index);
    if (index.isValid() && isEditableColumn(index.column())) {
        f |= Qt::ItemIsEditable;
    }
    return f;
}

bool PurchaseLinesModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (role != Qt::EditRole || !index.isValid() || index.row() >= lineCount() ||
        !isEditableColumn(index.column())) {
        return false;
    }
    std::optional<double> number;
    if (value.typeId() == QMetaType::QString) {
        number = AmountText::parseStrict(value.toString().trimmed().toStdString());
    } else {
        bool ok = false;
        const double d = value.toDouble(&ok);
        if (ok) {
            number = d;
        }
    }
    if (!number || *number < 0) {
        return false;
    }
    PurchaseLine& l = m_lines[index.row()];
    switch (index.column()) {
        case ColQty:
            l.qty = *number;
            break;
        case ColMFee:
            l.mFee = *number;
            break;
        case ColDiscount:
            l.discount = *number;
            break;
        default:
            l.taxValue = *number;
            break;
    }
    l.recompute();
    emit dataChanged(this->index(index.row(), 0), this->index(index.row(), ColumnCount - 1));
    return true;
}

int PurchaseLinesModel::append(PurchaseLine line) {
    line.recompute();
    const int row = lineCount();
    beginInsertRows({}, row, row);
    m_lines << line;
    endInsertRows();
    return row;
}

void PurchaseLinesModel::removeLine(int row) {
    if (row < 0 || row >= lineCount()) {
        return;
    }
    beginRemoveRows({}, row, row);
    m_lines.removeAt(row);
    endRemoveRows();
}

void PurchaseLinesModel::clear() {
    beginResetModel();
    m_lines.clear();
    endResetModel();
}

}  // namespace sandogh
