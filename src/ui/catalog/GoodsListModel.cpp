#include "ui/catalog/GoodsListModel.h"

#include "common/AmountText.h"
#include "ui/catalog/CatalogCaptions.h"

namespace sandogh {

GoodsListModel::GoodsListModel(Database& database, QObject* parent)
    : QAbstractTableModel(parent), m_database(database) {
    search(GoodsListQuery::SearchColumn::None, {});
}

void GoodsListModel::search(GoodsListQuery::SearchColumn column, const QString& text) {
    m_column = column;
    m_text = text;
    refresh();
}

void GoodsListModel::refresh() {
    beginResetModel();
    m_query = std::make_unique<GoodsListQuery>(m_database, m_column, m_text);
    m_rows.clear();
    m_next = {};
    m_atEnd = false;
    m_pages = 0;
    endResetModel();
    fetchMore({});
}

int GoodsListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : int(m_rows.size());
}

int GoodsListModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant GoodsListModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= m_rows.size()) {
        return {};
    }
    const GoodsListQuery::Row& r = m_rows.at(index.row());
    if (role == Qt::CheckStateRole && index.column() == Active) {
        return r.active ? Qt::Checked : Qt::Unchecked;
    }
    if (role != Qt::DisplayRole) {
        return {};
    }
    switch (index.column()) {
        case Barcode:
            return r.barcode;
        case SpecCode:
            return r.specCode;
        case Name:
            return r.name;
        case EnName:
            return r.enName;
        case Unit:
            return r.unitName;
        case Cost:
            return QString::fromStdString(AmountText::formatWhole(r.cost));
        case Stock:
            return QString::fromStdString(AmountText::format(r.stock, 3));
        default:
            break;
    }
    return {};
}

QVariant GoodsListModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return QAbstractTableModel::headerData(section, orientation, role);
    }
    using namespace catalogcaptions;
    switch (section) {
        case Barcode:
            return kBarcode;
        case SpecCode:
            return kSpecCode;
        case Name:
            return kGoodsName;
        case EnName:
            return kNameEng;
        case Unit:
            return kUnit;
        case Cost:
            return kCost;
        case Stock:
            return kStock;
        case Active:
            return kActive;
        default:
            break;
    }
    return {};
}

bool GoodsListModel::canFetchMore(const QModelIndex& parent) const {
    return !parent.isValid() && !m_atEnd;
}

void GoodsListModel::fetchMore(const QModelIndex& parent) {
    if (parent.isValid() || m_atEnd || !m_query) {
        return;
    }
    const GoodsListQuery::Page page = m_query->fetch(m_next, kPageRows);
    if (!page.ok) {
        m_atEnd = true;  // reported already; scrolling does not ask again
        return;
    }
    ++m_pages;
    m_atEnd = page.atEnd;
    m_next = page.next;
    if (page.rows.isEmpty()) {
        return;
    }
    const int first = int(m_rows.size());
    beginInsertRows({}, first, first + int(page.rows.size()) - 1);
    m_rows << page.rows;
    endInsertRows();
}

int GoodsListModel::rowOf(const QString& barcode) const {
    for (qsizetype i = 0; i < m_rows.size(); ++i) {
        if (m_rows.at(i).barcode == barcode) {
            return int(i);
        }
    }
    return -1;
}

}  // namespace sandogh
