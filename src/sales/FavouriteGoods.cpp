#include "sales/FavouriteGoods.h"

#include "data/Database.h"
#include "settings/MachineSettings.h"

namespace sandogh {

FavouriteGoods::FavouriteGoods(Database& database, MachineSettings& settings)
    : m_database(database), m_settings(settings) {}

QList<FavouriteGoods::Item> FavouriteGoods::list(int tab, Order order) {
    Session session = m_database.session(QStringLiteral("frmSale"), QStringLiteral("FillGoods"));
    return GoodsLookups::favourites(session, tab, order);
}

QString FavouriteGoods::columnOrder() const {
    return m_settings.saleGoodsColumnOrder();
}

bool FavouriteGoods::saveColumnOrder(const QString& order) {
    return m_settings.setSaleGoodsColumnOrder(order);
}

}  // namespace sandogh
