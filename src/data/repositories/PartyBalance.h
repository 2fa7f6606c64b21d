#pragma once

#include "data/Session.h"

namespace sandogh {

class Database;

// The figures of one party (a Types row of TypeNo 10 or 11) over its documents.
class PartyBalance {
public:
    struct Totals {
        // Sum of DocSum of the party's sales (TransType 2) plus the party's Credit.
        double salesTotal = 0;
        double credit = 0;
        // ReceivedPrice of the sales plus the OtherPayment rows received against them.
        double receivedTotal = 0;
        // Sum of DocSum of the party's sale returns (TransType 3), shown beside the others.
        double returnsTotal = 0;
        // The number of the party's sales ("number of purchases" of a customer).
        qint64 purchaseCount = 0;
    };

    explicit PartyBalance(Database& database);

    // All zero for an unknown party or a failed look-up.
    Totals totals(int counter);
    static Totals totals(Session& session, int counter);

private:
    Database& m_database;
};

}  // namespace sandogh
