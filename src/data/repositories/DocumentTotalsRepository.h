#pragma once

#include <QString>
#include <optional>

#include "data/repositories/DocumentFamily.h"

namespace sandogh {

class Session;

// Sums over the stock documents (Whs_QtyDocH): a day's documents of one transaction type
// for the desk's daily totals and the shop's daily summary, and a customer's net purchases
// for the loyalty gifts.
class DocumentTotalsRepository {
public:
    struct Sums {
        double docSum = 0;    // SUM(DocSum)
        double received = 0;  // SUM(ReceivedPrice)
        qint64 count = 0;     // documents counted (the shop's summary only)
    };

    // The documents of this cash desk (StationID) on the day, ordinary or internal; nothing
    // when the statement failed.
    static std::optional<Sums> ofStation(Session& session, int stationId, const QString& date,
                                         int transType,
                                         DocumentFamily family = DocumentFamily::Ordinary);
    // The shop's documents without a DocType on the day; nothing when the statement failed.
    static std::optional<Sums> ofShop(Session& session, int transType, const QString& date);
    // The customer's sales less returns (DocSum) without a DocType; 0 when the statement failed.
    static double netPurchases(Session& session, int customer, int saleType, int returnType);
};

}  // namespace sandogh
