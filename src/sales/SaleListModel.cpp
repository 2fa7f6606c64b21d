#include "sales/SaleListModel.h"

#include <algorithm>

#include "common/AmountText.h"
#include "data/Database.h"
#include "data/repositories/InternalSaleListQuery.h"

namespace sandogh {

SaleListModel::SaleListModel(Database& database, QObject* parent)
    : SaleListModel(database, DocumentFamily::Ordinary, parent) {}

SaleListModel::SaleListModel(Database& database, DocumentFamily family, QObject* parent)
    : QAbstractTableModel(parent), m_database(database), m_family(family) {}

void SaleListModel::load(SaleList::Choice choice, const SaleListQuery::Filter& filter) {
    beginResetModel();
    m_choice = choice;
    m_filter = filter;
    m_rows.clear();
    m_position = {};
    m_atEnd = false;
    endResetModel();
    fetchMore();
}

int SaleListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int SaleListModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant SaleListModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= m_rows.size()) {
        return {};
    }
    const SaleListQuery::Row& r = m_rows.at(index.row());
    if (role == Qt::TextAlignmentRole) {
        return QVariant::fromValue(Qt::AlignCenter);
    }
    if (role != Qt::DisplayRole && role != Qt::EditRole) {
        return {};
    }
    switch (index.column()) {
        case DocNo:
            return r.docNo;
        case DocDate:
            return r.docDate;
        case CustomerName:
            return r.customerName;
        case DocSum:
            return role == Qt::DisplayRole
                       ? QVariant(QString::fromStdString(AmountText::formatWhole(r.docSum)))
                       : QVariant(r.docSum);
        case Base:
            return r.base;
        case VoucherCode:
            return r.voucherCode;
        case Code:
            return r.code;
        case DocumentHID:
            return r.documentHId;
        case CustomerCounter:
            return r.customerId;
        default:
            return {};
    }
}

QVariant SaleListModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation == Qt::Horizontal && role == Qt::DisplayRole && section >= 0 &&
        section < ColumnCount) {
        return SaleList::columnNames(m_family).at(section);
    }
    return QAbstractTableModel::headerData(section, orientation, role);
}

bool SaleListModel::canFetchMore(const QModelIndex& parent) const {
    return !parent.isValid() && !m_atEnd;
}

void SaleListModel::fetchMore(const QModelIndex& parent) {
    if (parent.isValid() || m_atEnd) {
        return;
    }
    const int limit = SaleList::limit(m_choice);
    const int wanted =
        limit > 0 ? std::min<int>(SaleList::kPageRows, limit - m_rows.size()) : SaleList::kPageRows;
    QList<SaleListQuery::Row> page;
    {
        const bool internal = m_family == DocumentFamily::Internal;
        Session s = m_database.session(
            internal ? QStringLiteral("frmSaleInterList") : QStringLiteral("frmSaleList"),
            QStringLiteral("FillGrid"));
        const bool descending = SaleList::descending(m_choice);
        page = internal ? InternalSaleListQuery::page(s, m_filter, descending, m_position, wanted)
                        : SaleListQuery::page(s, m_filter, descending, m_position, wanted);
    }
    m_atEnd = page.size() < wanted || (limit > 0 && m_rows.size() + page.size() >= limit);
    if (page.isEmpty()) {
        return;
    }
    m_position = SaleListQuery::positionAfter(page, m_position);
    beginInsertRows({}, static_cast<int>(m_rows.size()),
                    static_cast<int>(m_rows.size() + page.size() - 1));
    m_rows.append(page);
    endInsertRows();
}

}  // namespace sandogh
