#include "app/ShopInfo.h"

#include "data/Database.h"
#include "data/SqlQuery.h"

namespace sandogh {

const QString& ShopInfo::defaultShopName() {
    static const QString name =
        QStringLiteral("صندوق — نرم‌افزار فروشگاهی");
    return name;
}

QString ShopInfo::shopName() {
    Session session = m_database.session(QStringLiteral("frmLogin"), QStringLiteral("CompanyName"));
    const Dialect& dialect = session.dialect();
    SqlQuery q(session, QStringLiteral("SELECT ") + dialect.top(1) +
                            QStringLiteral("Company_Name FROM Company") + dialect.limit(1));
    if (!q.exec() || !q.next()) {
        return defaultShopName();
    }
    const QString name = q.text(0).trimmed();
    return name.isEmpty() ? defaultShopName() : name;
}

QString ShopInfo::displayGreeting() {
    Session session = m_database.session(QStringLiteral("frmMain"), QStringLiteral("Form_Load"));
    const Dialect& dialect = session.dialect();
    SqlQuery q(session, QStringLiteral("SELECT ") + dialect.top(1) +
                            QStringLiteral("Display FROM Display") + dialect.limit(1));
    if (!q.exec() || !q.next()) {
        return QString::fromLatin1(kDefaultGreeting);
    }
    return q.text(0);
}

QString ShopInfo::stationName(int stationId) {
    Session session = m_database.session(QStringLiteral("frmMain"), QStringLiteral("StationName"));
    return session
        .scalarText(QStringLiteral("SELECT Station_Name FROM Stations WHERE ID = :id"),
                    {{QStringLiteral(":id"), stationId}})
        .trimmed();
}

}  // namespace sandogh
