#pragma once

#include "purchase/PurchaseSaveResult.h"

namespace sandogh {

class Clock;
class Database;
class MessageService;
class PurchaseSession;

// SaveRoutine without its widgets. After the checks, one transaction on one session, under
// the desks' lock: the voucher (its code taken here), its line on the purchase's accounting
// group and its line on the supplier's, the stock document header (key taken by its insert,
// number taken here unless the supplier's own was typed), the earlier lines removed, the
// pending serial numbers handed over, the lines, and the stock of the document's articles.
// Any failure rolls everything back and leaves the purchase as it was, ready to save again.
// A purchase never touches Goods.
class PurchaseSaver {
public:
    PurchaseSaver(Database& database, MessageService& messages, const Clock& clock);

    PurchaseSaveResult save(PurchaseSession& purchase);

private:
    Database& m_database;
    MessageService& m_messages;
    const Clock& m_clock;
};

}  // namespace sandogh
