#include "data/repositories/SaleDocumentRepository.h"

#include "data/Dialect.h"
#include "data/SqlQuery.h"

namespace sandogh {

std::optional<int> SaleDocumentRepository::activeShift(Session& session) {
    SqlQuery q(session,
               QStringLiteral("SELECT Code, Name FROM tblShift WHERE LastActiveShift = 1"));
    if (q.exec() && q.next()) {
        return q.integer(0);
    }
    return std::nullopt;
}

int SaleDocumentRepository::accountByName(Session& session, const QString& name) {
    const Dialect& dialect = session.dialect();
    SqlQuery q(session, QStringLiteral("SELECT ") + dialect.top(1) +
                            QStringLiteral("ID FROM tblAccountingGroup WHERE Name = :name "
                                           "ORDER BY ID") +
                            dialect.limit(1));
    q.bind(QStringLiteral(":name"), name);
    return q.exec() && q.next() ? q.integer(0) : 0;
}

int SaleDocumentRepository::customerAccount(Session& session, int customerCounter) {
    SqlQuery q(session,
               QStringLiteral("SELECT Ac.ID FROM tblAccountingGroup Ac INNER JOIN Types T "
                              "ON Ac.ID = T.AccountingGroupID WHERE T.Counter = :customer"));
    q.bind(QStringLiteral(":customer"), customerCounter);
    return q.exec() && q.next() ? q.integer(0) : 0;
}

bool SaleDocumentRepository::addGiftsTaken(Session& session, int customerCounter, qint64 gifts,
                                           const QString& date) {
    return session.exec(QStringLiteral("UPDATE Types SET DiscountTakenTotal = "
                                       "COALESCE(DiscountTakenTotal, 0) + :gifts, "
                                       "LastDiscountTakenDate = :date WHERE Counter = :customer"),
                        {{QStringLiteral(":gifts"), gifts},
                         {QStringLiteral(":date"), date},
                         {QStringLiteral(":customer"), customerCounter}});
}

bool SaleDocumentRepository::closePreInvoice(Session& session, qint64 preInvoiceCode) {
    return session.exec(
        QStringLiteral("UPDATE tblPreFactorH SET IsTrenchant = :closed WHERE Code = :code"),
        {{QStringLiteral(":closed"), 1}, {QStringLiteral(":code"), preInvoiceCode}});
}

std::optional<SaleDocumentRepository::LastInvoice> SaleDocumentRepository::lastInvoiceOfStation(
    Session& session, int stationId) {
    const Dialect& dialect = session.dialect();
    SqlQuery q(session, QStringLiteral("SELECT ") + dialect.top(1) +
                            QStringLiteral("COALESCE(DocNo, '0'), COALESCE(ReceivedPrice, 0) FROM "
                                           "Whs_QTYDocH WHERE StationID = :station AND (TransType "
                                           "= 2 OR TransType = 3) ORDER BY Code DESC") +
                            dialect.limit(1));
    q.bind(QStringLiteral(":station"), stationId);
    if (q.exec() && q.next()) {
        return LastInvoice{q.text(0, QStringLiteral("0")), q.number(1)};
    }
    return std::nullopt;
}

}  // namespace sandogh
