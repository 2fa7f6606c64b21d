#include "data/repositories/DocumentTotalsRepository.h"

#include "data/Session.h"
#include "data/SqlQuery.h"

namespace sandogh {

namespace {

const QString kDayOfStation = QStringLiteral(
    "SELECT COALESCE(SUM(COALESCE(DocSum, 0)), 0), COALESCE(SUM(COALESCE(ReceivedPrice, 0)), 0) "
    "FROM %1 WHERE DocDate = :today AND COALESCE(StationID, 0) = :station "
    "AND (TransType = :transType)");

const QString kDayOfShop = QStringLiteral(
    "SELECT COALESCE(SUM(COALESCE(ReceivedPrice, 0)), 0), COUNT(Code) FROM Whs_QtyDocH "
    "WHERE TransType = :transType AND DocType IS NULL AND DocDate = :today");

}  // namespace

std::optional<DocumentTotalsRepository::Sums> DocumentTotalsRepository::ofStation(
    Session& session, int stationId, const QString& date, int transType, DocumentFamily family) {
    SqlQuery q(session, kDayOfStation.arg(headerTableOf(family)));
    q.bind(QStringLiteral(":today"), date);
    q.bind(QStringLiteral(":station"), stationId);
    q.bind(QStringLiteral(":transType"), transType);
    if (!q.exec()) {
        return std::nullopt;
    }
    Sums sums;
    if (q.next()) {
        sums.docSum = q.number(0);
        sums.received = q.number(1);
    }
    return sums;
}

std::optional<DocumentTotalsRepository::Sums> DocumentTotalsRepository::ofShop(
    Session& session, int transType, const QString& date) {
    SqlQuery q(session, kDayOfShop);
    q.bind(QStringLiteral(":transType"), transType);
    q.bind(QStringLiteral(":today"), date);
    if (!q.exec()) {
        return std::nullopt;
    }
    Sums sums;
    if (q.next()) {
        sums.received = q.number(0);
        sums.count = q.int64(1);
    }
    return sums;
}

double DocumentTotalsRepository::netPurchases(Session& session, int customer, int saleType,
                                              int returnType) {
    return session.scalarNumber(
        QStringLiteral("SELECT COALESCE(SUM(CASE WHEN TransType = :sale THEN DocSum ELSE -DocSum "
                       "END),0) FROM Whs_QTYDocH WHERE CompanyID = :customer AND DocType IS NULL "
                       "AND TransType IN (:sales, :returns)"),
        {{QStringLiteral(":sale"), saleType},
         {QStringLiteral(":customer"), customer},
         {QStringLiteral(":sales"), saleType},
         {QStringLiteral(":returns"), returnType}});
}

}  // namespace sandogh
