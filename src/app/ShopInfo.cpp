#include "app/ShopInfo.h"

#include "data/repositories/ShopDetailsRepository.h"

namespace sandogh {

const QString& ShopInfo::defaultShopName() {
    static const QString name =
        QStringLiteral("صندوق — نرم‌افزار فروشگاهی");
    return name;
}

QString ShopInfo::shopName() {
    const QString name = ShopDetailsRepository(m_database).companyName();
    return name.isEmpty() ? defaultShopName() : name;
}

QString ShopInfo::displayGreeting() {
    return ShopDetailsRepository(m_database).greeting();
}

QString ShopInfo::stationName(int stationId) {
    return ShopDetailsRepository(m_database).stationName(stationId);
}

}  // namespace sandogh
