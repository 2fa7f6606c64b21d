#pragma once

#include <QString>
#include <functional>
#include <memory>

#include "sales/PreviousInvoice.h"
#include "sales/SaleSaveResult.h"

namespace sandogh {

class Clock;
class CompanionHandOff;
class Database;
class MachineSettings;
class MessageService;
class SaleSession;
struct SaleSettlement;

// cmdSave without its widgets: the checks (SaleSaveChecks), the look-ups, then one
// transaction on one session taking the invoice number and writing the voucher (tblDocumentH/D),
// the stock document (Whs_QTYDocH/D, header key allocated by its own insert), the serial numbers,
// the stock totals of its articles, the loyalty gifts taken and the gift card movement. Any failure
// rolls everything back, shows the connection message and leaves the sale as it was, so
// that saving again works. After the commit: the copy of the card movement to the central
// database, the pre-invoice closed, the receipt, the SMS hand-off.
//
// The sale itself (lines, customer, mode, date) is never changed here: the screen clears
// it after a successful save (SaleSession::newSale) and shows nextDocNo() and
// previousInvoice().
class SaleSaver {
public:
    // Called after the commit when the settlement asks for a receipt (chkPrint).
    using ReceiptHook =
        std::function<void(const SaleSaveResult&, const SaleSession&, const SaleSettlement&)>;

    // The edges are not owned and must outlive the saver.
    SaleSaver(Database& database, const MachineSettings& settings, MessageService& messages,
              const Clock& clock);
    ~SaleSaver();

    void setReceiptHook(ReceiptHook hook);
    // The companion program for the SMS hand-off; null: no SMS.
    void setCompanion(CompanionHandOff* companion);

    // Checks and saves. The settlement's docNo on entry is the screen's proposal (filled
    // when empty); the number written is taken under the desks' lock, returned in the
    // result and left in the settlement. A typed number (docNoTyped) is written as typed,
    // or refused with its message when the sale's date already has it.
    SaleSaveResult save(SaleSession& sale, SaleSettlement& settlement);

    // The invoice number of the next sale of the session's kind and date (daily numbering
    // restarts at 1 on each date); empty when the look-up failed.
    QString nextDocNo(const SaleSession& sale);
    // The last sale or return of a station (lblPrevFactor / lblPrevPrice).
    PreviousInvoice previousInvoice(int stationId);

private:
    struct Prepared;
    struct Private;
    std::unique_ptr<Private> d;
};

}  // namespace sandogh
