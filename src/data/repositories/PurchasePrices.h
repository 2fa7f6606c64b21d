#pragma once

#include <QString>

#include "data/Session.h"

namespace sandogh {

class Database;

// Purchase prices of an article, from the lines of ordinary purchases only (TransType 1,
// DocType NULL). Every figure is 0 when the article was never bought or the look-up failed.
class PurchasePrices {
public:
    // The list price, line discount and tax of the newest purchase line, proposed for a
    // new purchase line.
    struct Terms {
        double mFee = 0;
        double discount = 0;
        double taxValue = 0;
    };

    explicit PurchasePrices(Database& database);

    // Fee of the newest purchase line: newest document first (sp_tblWhs_QTYDocD_GetLastBuyPrice).
    double lastPurchasePrice(const QString& barcode);
    // Quantity-weighted: "Sum(price) / case Sum(Qty) when 0 then 1 else Sum(Qty) end", so a
    // zero total quantity gives the sum of the line amounts.
    double averagePurchasePrice(const QString& barcode);
    // The plain average of the lines' Fee.
    double averageFee(const QString& barcode);
    // The sale screen's profit of a line: the article's Cost less the net unit price
    // (MFee less its discount percent) of the newest purchase line, by line ID; 0 when the
    // article was never bought.
    double lineProfit(const QString& barcode);
    // MFee, Discount and TaxValue of the newest purchase line, by line ID.
    Terms lastPurchaseTerms(const QString& barcode);

    // The same on a session of the caller.
    static double averagePurchasePrice(Session& session, const QString& barcode);
    static double averageFee(Session& session, const QString& barcode);
    static double lineProfit(Session& session, const QString& barcode);
    static Terms lastPurchaseTerms(Session& session, const QString& barcode);

private:
    Database& m_database;
};

}  // namespace sandogh
