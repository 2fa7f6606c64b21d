#include "data/repositories/PartyBalance.h"

#include "data/Database.h"
#include "data/SqlQuery.h"

namespace sandogh {

PartyBalance::PartyBalance(Database& database) : m_database(database) {}

PartyBalance::Totals PartyBalance::totals(Session& session, int counter) {
    Totals t;
    const SqlBinds party{{QStringLiteral(":counter"), counter}};
    // A party without a Credit adds nothing to its sales rather than blanking the total.
    SqlQuery sales(session,
                   QStringLiteral("SELECT COALESCE((SELECT SUM(DocSum) FROM Whs_QTYDocH H "
                                  "WHERE H.CompanyID = Types.Counter AND H.TransType = 2), 0) "
                                  "+ COALESCE(Types.Credit, 0), COALESCE(Types.Credit, 0) "
                                  "FROM Types WHERE Types.Counter = :counter"));
    sales.bind(QStringLiteral(":counter"), counter);
    if (!sales.exec() || !sales.next()) {
        return t;
    }
    t.salesTotal = sales.number(0);
    t.credit = sales.number(1);
    t.receivedTotal =
        session.scalarNumber(QStringLiteral("SELECT COALESCE(SUM(H.ReceivedPrice), 0) "
                                            "FROM Whs_QTYDocH H WHERE H.CompanyID = :counter "
                                            "AND H.TransType = 2"),
                             party) +
        session.scalarNumber(
            QStringLiteral("SELECT COALESCE(SUM(O.ReceivedPrice), 0) FROM OtherPayment O "
                           "INNER JOIN Whs_QTYDocH H ON H.Code = O.Code "
                           "WHERE H.CompanyID = :counter AND H.TransType = 2"),
            party);
    t.returnsTotal =
        session.scalarNumber(QStringLiteral("SELECT COALESCE(SUM(DocSum), 0) FROM Whs_QTYDocH "
                                            "WHERE CompanyID = :counter AND TransType = 3"),
                             party);
    t.purchaseCount = session.scalarInt64(
        QStringLiteral("SELECT COUNT(Code) FROM Whs_QTYDocH WHERE TransType = 2 "
                       "AND CompanyID = :counter"),
        party);
    return t;
}

PartyBalance::Totals PartyBalance::totals(int counter) {
    Session s = m_database.session(QStringLiteral("PartyBalance"), QStringLiteral("totals"));
    return totals(s, counter);
}

}  // namespace sandogh
