#pragma once

#include <QString>
#include <functional>

#include "sales/DailyTotals.h"
#include "sales/InternalSaleResult.h"
#include "sales/PreviousInvoice.h"

namespace sandogh {

class Clock;
class Database;
class InternalSaleSession;
class MessageService;
class Session;

// Saving an internal sale. The checks run first, each showing its message under "اخطار!":
// a branch, lines, an invoice number, for a return the number of the invoice it returns,
// and a typed number not yet used by the kind. A return of an invoice that was returned
// before is shown under "توجه!" with the earlier return's number and saved only when the
// user agrees; the earlier return is then removed in the same transaction.
//
// One transaction on one session: the desks' lock, then the key (largest plus one) and,
// unless typed, the invoice number; the earlier return's lines and header out (its stock
// taken back); the header, the lines and the document's stock. Any failure rolls everything
// back, shows the connection message and leaves the sale as it was. No voucher and no gift
// card movement. After the commit the receipt hook runs when printing is asked for; the
// session is never cleared here.
class InternalSaleSaver {
public:
    using ReceiptHook = std::function<void(const InternalSaleResult&, const InternalSaleSession&)>;

    InternalSaleSaver(Database& database, MessageService& messages, const Clock& clock);

    void setReceiptHook(ReceiptHook hook);
    InternalSaleResult save(InternalSaleSession& sale, bool print = false);

    // The last internal sale or return of a desk.
    PreviousInvoice previousInvoice(int stationId);
    // The day's sales and returns of a desk: its internal and its ordinary documents.
    DailyTotals::Figures dailyTotals(int stationId, const QString& date);

private:
    InternalSaleCheck check(InternalSaleSession& sale);
    bool write(Session& s, InternalSaleSession& sale, bool replace, InternalSaleResult& r,
               bool& taken);

    Database& m_database;
    MessageService& m_messages;
    const Clock& m_clock;
    ReceiptHook m_receipt;
};

}  // namespace sandogh
