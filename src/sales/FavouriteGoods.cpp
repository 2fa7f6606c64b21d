#include "sales/FavouriteGoods.h"

#include "data/Database.h"
#include "data/SqlQuery.h"
#include "settings/MachineSettings.h"

namespace sandogh {

namespace {

QString orderColumn(FavouriteGoods::Order order) {
    switch (order) {
        case FavouriteGoods::Order::Barcode:
            return QStringLiteral("Ean_Code");
        case FavouriteGoods::Order::Cost:
            return QStringLiteral("Cost");
        case FavouriteGoods::Order::Name:
            break;
    }
    return QStringLiteral("Name");
}

}  // namespace

FavouriteGoods::FavouriteGoods(Database& database, MachineSettings& settings)
    : m_database(database), m_settings(settings) {}

QList<FavouriteGoods::Item> FavouriteGoods::list(int tab, Order order) {
    Session session = m_database.session(QStringLiteral("frmSale"), QStringLiteral("FillGoods"));
    SqlQuery q(session, QStringLiteral("SELECT Ean_Code, Name, Cost, COALESCE(Pic, '') AS Pic "
                                       "FROM Goods WHERE ISActive = 1 AND ISFavorite = 1 "
                                       "AND FavoriteTab = :tab ORDER BY ") +
                            orderColumn(order));
    q.bind(QStringLiteral(":tab"), tab);
    QList<Item> items;
    if (!q.exec()) {
        return items;
    }
    while (q.next()) {
        items.append({q.text(0), q.text(1).trimmed(), q.number(2), q.text(3)});
    }
    return items;
}

QString FavouriteGoods::columnOrder() const {
    return m_settings.saleGoodsColumnOrder();
}

bool FavouriteGoods::saveColumnOrder(const QString& order) {
    return m_settings.setSaleGoodsColumnOrder(order);
}

}  // namespace sandogh
