#include "data/repositories/PurchasePrices.h"

#include "data/Database.h"
#include "data/SqlQuery.h"
#include "data/procedures/StockDocumentProcedures.h"

namespace sandogh {

namespace {

const QString kModule = QStringLiteral("PurchasePrices");

// The purchase lines of an article, ordinary purchases only.
const QString kPurchaseLines = QStringLiteral(
    " FROM Whs_QTYDocD D INNER JOIN Whs_QTYDocH H ON H.Code = D.Code "
    "WHERE H.TransType = 1 AND H.DocType IS NULL AND D.EAN_Code = :barcode");

}  // namespace

PurchasePrices::PurchasePrices(Database& database) : m_database(database) {}

double PurchasePrices::averagePurchasePrice(Session& session, const QString& barcode) {
    // "* 1.0": SQLite keeps whole amounts as integers and would divide them as integers.
    return session.scalarNumber(
        QStringLiteral("SELECT SUM(D.Price) * 1.0 / CASE SUM(D.Qty) WHEN 0 THEN 1 "
                       "ELSE SUM(D.Qty) END") +
            kPurchaseLines,
        {{QStringLiteral(":barcode"), barcode}});
}

double PurchasePrices::averageFee(Session& session, const QString& barcode) {
    return session.scalarNumber(QStringLiteral("SELECT AVG(D.Fee)") + kPurchaseLines,
                                {{QStringLiteral(":barcode"), barcode}});
}

double PurchasePrices::lineProfit(Session& session, const QString& barcode) {
    const Dialect& d = session.dialect();
    // "/ 100.0" for the same reason as above; the percent of MFee may have a fraction.
    return session.scalarNumber(
        QStringLiteral("SELECT COALESCE((SELECT COALESCE(Cost, 0) FROM Goods WHERE EAN_Code = "
                       ":barcode) - (SELECT ") +
            d.top(1) +
            QStringLiteral("COALESCE(D.MFee, 0) - ((D.MFee * D.Discount) / 100.0) "
                           "FROM Whs_QTYDocH H LEFT JOIN Whs_QTYDocD D ON H.Code = D.Code "
                           "WHERE H.TransType = 1 AND H.DocType IS NULL "
                           "AND D.EAN_Code = :purchaseBarcode ORDER BY D.ID DESC") +
            d.limit(1) + QStringLiteral("), 0) AS Profit"),
        {{QStringLiteral(":barcode"), barcode}, {QStringLiteral(":purchaseBarcode"), barcode}});
}

PurchasePrices::Terms PurchasePrices::lastPurchaseTerms(Session& session, const QString& barcode) {
    const Dialect& d = session.dialect();
    SqlQuery q(session, QStringLiteral("SELECT ") + d.top(1) +
                            QStringLiteral("D.MFee, D.Discount, D.TaxValue") + kPurchaseLines +
                            QStringLiteral(" ORDER BY D.ID DESC") + d.limit(1));
    q.bind(QStringLiteral(":barcode"), barcode);
    Terms terms;
    if (q.exec() && q.next()) {
        terms.mFee = q.number(0);
        terms.discount = q.number(1);
        terms.taxValue = q.number(2);
    }
    return terms;
}

double PurchasePrices::lastPurchasePrice(const QString& barcode) {
    Session s = m_database.session(kModule, QStringLiteral("lastPurchasePrice"));
    return procedures::sp_tblWhs_QTYDocD_GetLastBuyPrice(s, barcode);
}

double PurchasePrices::averagePurchasePrice(const QString& barcode) {
    Session s = m_database.session(kModule, QStringLiteral("averagePurchasePrice"));
    return averagePurchasePrice(s, barcode);
}

double PurchasePrices::averageFee(const QString& barcode) {
    Session s = m_database.session(kModule, QStringLiteral("averageFee"));
    return averageFee(s, barcode);
}

double PurchasePrices::lineProfit(const QString& barcode) {
    Session s = m_database.session(kModule, QStringLiteral("lineProfit"));
    return lineProfit(s, barcode);
}

PurchasePrices::Terms PurchasePrices::lastPurchaseTerms(const QString& barcode) {
    Session s = m_database.session(kModule, QStringLiteral("lastPurchaseTerms"));
    return lastPurchaseTerms(s, barcode);
}

}  // namespace sandogh
