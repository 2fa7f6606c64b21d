#pragma once

#include <QString>
#include <optional>

#include "data/Session.h"

namespace sandogh {

// What saving a sale reads and stamps around its stock document, on the caller's session:
// the active shift, the accounts of its voucher, the loyalty gifts taken by the customer,
// the pre-invoice it closes and the last invoice of a cash desk.
class SaleDocumentRepository {
public:
    // The shift in force (tblShift.LastActiveShift = 1), or nothing.
    static std::optional<int> activeShift(Session& session);
    // tblAccountingGroup.ID of the first account of that name (lowest ID), 0 when none.
    static int accountByName(Session& session, const QString& name);
    // The customer's own account (Types.AccountingGroupID joined to the chart), 0 when none.
    static int customerAccount(Session& session, int customerCounter);
    // Types.DiscountTakenTotal of the customer raised by gifts, LastDiscountTakenDate set.
    static bool addGiftsTaken(Session& session, int customerCounter, qint64 gifts,
                              const QString& date);
    // tblPreFactorH.IsTrenchant set: the pre-invoice became a sale.
    static bool closePreInvoice(Session& session, qint64 preInvoiceCode);

    // The last sale or return (TransType 2 or 3) of a station, newest Code first.
    struct LastInvoice {
        QString docNo;
        double received = 0;
    };
    static std::optional<LastInvoice> lastInvoiceOfStation(Session& session, int stationId);
};

}  // namespace sandogh
