#pragma once

#include <QList>
#include <QString>

#include "data/repositories/GoodsLookups.h"

namespace sandogh {

class Database;
class MachineSettings;

// The favourites grid dgGoods: the active favourite goods of one tab, ordered by a
// column, and the user's column order of the grid kept in the settings
// ("Tools"/"frmSaledgGoodsColOrder"). Choosing a cell adds the article as if scanned
// (SaleSession::addGoods).
class FavouriteGoods {
public:
    using Item = GoodsLookups::Favourite;
    // The columns the list may be ordered by.
    using Order = GoodsLookups::FavouriteOrder;

    FavouriteGoods(Database& database, MachineSettings& settings);

    QList<Item> list(int tab, Order order = Order::Name);
    QString columnOrder() const;
    bool saveColumnOrder(const QString& order);

private:
    Database& m_database;
    MachineSettings& m_settings;
};

}  // namespace sandogh
