#include "ui/catalog/GoodsListModel.h"

#include "common/AmountText.h"
#include "ui/catalog/CatalogCaptions.h"

namespace sandogh {

GoodsListModel::GoodsListModel(Database& database, QObject* parent)
    : QAbstractTableModel(parent), database_(database) {
    search(GoodsListQuery::SearchColumn::None, {});
}

void GoodsListModel::search(GoodsListQuery::SearchColumn column, const QString& text) {
    column_ = column;
    text_ = text;
    refresh();
}

void GoodsListModel::refresh() {
    beginResetModel();
    query_ = std::make_unique<GoodsListQuery>(database_, column_, text_);
    rows_.clear();
    next_ = {};
    atEnd_ = false;
    pages_ = 0;
    endResetModel();
    fetchMore({});
}

int GoodsListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : int(rows_.size());
}

int GoodsListModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant GoodsListModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= rows_.size()) {
        return {};
    }
    const GoodsListQuery::Row& r = rows_.at(index.row());
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
    return !parent.isValid() && !atEnd_;
}

void GoodsListModel::fetchMore(const QModelIndex& parent) {
    if (parent.isValid() || atEnd_ || !query_) {
        return;
    }
    const GoodsListQuery::Page page = query_->fetch(next_, kPageRows);
    if (!page.ok) {
        atEnd_ = true;  // reported already; scrolling does not ask again
        return;
    }
    ++pages_;
    atEnd_ = page.atEnd;
    next_ = page.next;
    if (page.rows.isEmpty()) {
        return;
    }
    const int first = int(rows_.size());
    beginInsertRows({}, first, first + int(page.rows.size()) - 1);
    rows_ << page.rows;
    endInsertRows();
}

int GoodsListModel::rowOf(const QString& barcode) const {
    for (qsizetype i = 0; i < rows_.size(); ++i) {
        if (rows_.at(i).barcode == barcode) {
            return int(i);
        }
    }
    return -1;
}

}  // namespace sandogh
