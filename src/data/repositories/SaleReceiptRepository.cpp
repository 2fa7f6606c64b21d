#include "data/repositories/SaleReceiptRepository.h"

#include "data/Dialect.h"
#include "data/Session.h"
#include "data/SqlQuery.h"

namespace sandogh {

namespace {

// The parties of the parameter table, persons and companies; either can be the customer.
constexpr int kPersonTypeNo = 10;
constexpr int kCompanyTypeNo = 11;

}  // namespace

std::optional<std::optional<SaleReceiptRepository::Header>> SaleReceiptRepository::header(
    Session& session, qint64 code) {
    SqlQuery q(session,
               QStringLiteral(
                   "SELECT H.Code, COALESCE(H.CompanyID,0) CompanyID, COALESCE(T.Name,'') "
                   "DiscountDescription, COALESCE(O.Name,'') OverheadName, COALESCE(H.DocNo,''), "
                   "COALESCE(H.DocDate,''), COALESCE(H.DocTime,''), COALESCE(H.TransType,0), "
                   "COALESCE(H.DocSum,0), COALESCE(H.Discount,0), COALESCE(H.Sarbar,0), "
                   "COALESCE(H.ReceivedPrice,0), COALESCE(P.Name,''), "
                   "COALESCE(H.DiscountTypeId,0), COALESCE(H.OverheadID,0), "
                   "CASE WHEN T.Id IS NULL THEN 0 ELSE COALESCE(T.IsImpactGift,1) END "
                   "FROM Whs_QTYDocH H LEFT OUTER JOIN DiscountType T ON H.DiscountTypeId = T.Id "
                   "LEFT OUTER JOIN Overhead O ON H.OverheadID = O.Id "
                   "LEFT OUTER JOIN tblPaymentType P ON H.PayType = P.Code "
                   "WHERE H.Code = :code"));
    q.bind(QStringLiteral(":code"), code);
    if (!q.exec()) {
        return std::nullopt;
    }
    if (!q.next()) {
        return std::optional<Header>();
    }
    Header h;
    h.code = q.int64(0);
    h.customerId = q.integer(1);
    h.discountName = q.text(2).trimmed();
    h.overheadName = q.text(3).trimmed();
    h.docNo = q.text(4).trimmed();
    h.docDate = q.date(5);
    h.docTime = q.text(6).trimmed();
    h.transType = q.integer(7);
    h.docSum = q.number(8);
    h.discount = q.number(9);
    h.overhead = q.number(10);
    h.received = q.number(11);
    h.payTypeName = q.text(12).trimmed();
    h.discountTypeId = q.integer(13);
    h.overheadId = q.integer(14);
    h.discountIsGift = h.discountTypeId != 0 && q.integer(15) != 0;
    return std::optional<Header>(h);
}

std::optional<std::optional<double>> SaleReceiptRepository::docSum(Session& session, qint64 code) {
    SqlQuery q(session, QStringLiteral("Select DocSum From Whs_QtyDocH Where Code = :code"));
    q.bind(QStringLiteral(":code"), code);
    q.setLogging(FailureLogging::Quiet);
    if (!q.exec()) {
        return std::nullopt;
    }
    return q.next() ? std::optional<double>(q.number(0)) : std::optional<double>();
}

std::optional<QList<ReceiptLine>> SaleReceiptRepository::lines(Session& session, qint64 code) {
    SqlQuery q(session, QStringLiteral("SELECT D.EAN_Code, COALESCE(G.Name,''), COALESCE(D.Qty,0), "
                                       "COALESCE(D.Fee,0), COALESCE(D.Price,0) "
                                       "FROM Whs_QTYDocD D LEFT OUTER JOIN Goods G "
                                       "ON G.EAN_Code = D.EAN_Code WHERE D.Code = :code "
                                       "ORDER BY D.ID"));
    q.bind(QStringLiteral(":code"), code);
    if (!q.exec()) {
        return std::nullopt;
    }
    QList<ReceiptLine> lines;
    while (q.next()) {
        lines.append(ReceiptLine{q.text(0).trimmed(), q.text(1).trimmed(), q.number(2), q.number(3),
                                 q.number(4)});
    }
    return lines;
}

std::optional<QString> SaleReceiptRepository::customerName(Session& session, int counter) {
    const Dialect& dialect = session.dialect();
    SqlQuery q(session,
               QStringLiteral("SELECT Counter, ") +
                   dialect.concat({QStringLiteral("COALESCE(Name,'')"), QStringLiteral("' '"),
                                   QStringLiteral("COALESCE(Value1,'')")}) +
                   QStringLiteral(" AS CompanyName FROM Types WHERE (TypeNo = :persons "
                                  "OR TypeNo = :companies) AND Counter = :customer"));
    q.bind(QStringLiteral(":persons"), kPersonTypeNo);
    q.bind(QStringLiteral(":companies"), kCompanyTypeNo);
    q.bind(QStringLiteral(":customer"), counter);
    if (!q.exec()) {
        return std::nullopt;
    }
    return q.next() ? q.text(1).trimmed() : QString();
}

std::optional<SaleReceiptRepository::Shop> SaleReceiptRepository::shop(Session& session) {
    const Dialect& dialect = session.dialect();
    SqlQuery q(session, QStringLiteral("SELECT ") + dialect.top(1) +
                            QStringLiteral("Company_Name, Company_Tel, Company_Address "
                                           "FROM Company") +
                            dialect.limit(1));
    if (!q.exec() || !q.next()) {
        return std::nullopt;
    }
    return Shop{q.text(0).trimmed(), q.text(1).trimmed(), q.text(2).trimmed()};
}

std::optional<SaleReceiptRepository::Sentence> SaleReceiptRepository::randomSentence(
    Session& session) {
    const Dialect& dialect = session.dialect();
    SqlQuery q(session, QStringLiteral("Select ") + dialect.top(1) +
                            QStringLiteral("* From Sentences Order By ") + dialect.randomOrder() +
                            dialect.limit(1));
    if (!q.exec() || !q.next()) {
        return std::nullopt;
    }
    return Sentence{q.text(QStringLiteral("Description")).trimmed(),
                    q.text(QStringLiteral("Author")).trimmed()};
}

}  // namespace sandogh
