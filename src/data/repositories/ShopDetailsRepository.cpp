#include "data/repositories/ShopDetailsRepository.h"

#include "data/Database.h"
#include "data/SqlQuery.h"

namespace sandogh {

QString ShopDetailsRepository::companyName() {
    Session session = m_database.session(QStringLiteral("frmLogin"), QStringLiteral("CompanyName"));
    const Dialect& dialect = m_database.dialect();
    SqlQuery q(session, QStringLiteral("SELECT ") + dialect.top(1) +
                            QStringLiteral("Company_Name FROM Company") + dialect.limit(1));
    if (!q.exec() || !q.next()) {
        return {};
    }
    return q.text(0).trimmed();
}

QString ShopDetailsRepository::greeting() {
    Session session = m_database.session(QStringLiteral("frmMain"), QStringLiteral("Form_Load"));
    const Dialect& dialect = m_database.dialect();
    SqlQuery q(session, QStringLiteral("SELECT ") + dialect.top(1) +
                            QStringLiteral("Display FROM Display") + dialect.limit(1));
    if (!q.exec() || !q.next()) {
        return QString::fromLatin1(kDefaultGreeting);
    }
    return q.text(0);
}

QString ShopDetailsRepository::stationName(int stationId) {
    Session session = m_database.session(QStringLiteral("frmMain"), QStringLiteral("StationName"));
    return session
        .scalarText(QStringLiteral("SELECT Station_Name FROM Stations WHERE ID = :id"),
                    {{QStringLiteral(":id"), stationId}})
        .trimmed();
}

}  // namespace sandogh
