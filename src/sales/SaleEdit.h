#pragma once

#include <QList>
#include <QString>
#include <optional>

#include "data/procedures/StockDocumentHeader.h"
#include "data/procedures/VoucherLine.h"
#include "sales/SaleAudit.h"

namespace sandogh {

class Clock;
class Database;
class MachineSettings;
class MessageService;

// One line of a saved sale in the editor. id is the Whs_QTYDocD row it was read from, 0
// for a line added in the editor.
struct SaleEditLine {
    qint64 id = 0;
    QString barcode;
    QString name;
    double qty = 0;
    double mFee = 0;      // the unit price before the line discount
    double discount = 0;  // percent of mFee
    double fee = 0;       // the net unit price
    double price = 0;     // the line amount
    double taxValue = 0;

    // fee and price from qty, mFee and discount.
    void recompute();
    bool sameAs(const SaleEditLine& other) const;
};

// A saved sale or return as the editor holds it.
struct SaleEditDocument {
    procedures::StockDocumentHeader header;
    QList<SaleEditLine> lines;
    double received = 0;  // ReceivedPrice

    double total() const;
    double payable() const { return total() - header.discount + header.sarbar; }
};

// frmSaleUpdate without its widgets: a saved sale or return loaded, and saved again in
// one transaction after the checks of saving ("مبلغ فاکتور نمي تواند منفي باشد", for a
// sale "مبلغ دريافت شده بيش از مبلغ کل فاکتور مي باشد.", and with the stock check on,
// "تعداد وارده غير مجاز مي باشد" for more than is in stock): the audit record of the
// document as it was, removed lines deleted by their ID, added and changed lines written
// anew (MFee and Discount, no UserID), the header's discount and total, the voucher
// rebuilt (header note, rows deleted and written again: what came in stays on the accounts
// it was paid into, SaleEditVoucher), and the stock repaired for every article touched.
class SaleEdit {
public:
    enum class Refusal {
        None,
        NegativeTotal,
        ReceivedMore,
        Stock,
        NotFound,
        Failed,
        PaymentSplit,     // the received amount changed where the payment split cannot follow
        VoucherMismatch,  // the saved voucher does not fit the document's amounts
    };

    SaleEdit(Database& database, const MachineSettings& settings, MessageService& messages,
             const Clock& clock, SaleAudit::Desk desk);

    // The document Code = code; nothing when it is not there or cannot be read.
    std::optional<SaleEditDocument> load(qint64 code);
    // Writes the edited document; None when saved.
    Refusal save(const SaleEditDocument& edited);

private:
    bool write(Session& s, const SaleEditDocument& edited,
               const QList<procedures::VoucherLine>& voucherRows, QStringList& touched);
    Refusal check(Session& s, const SaleEditDocument& edited);
    Refusal planVoucher(Session& s, const SaleEditDocument& edited,
                        QList<procedures::VoucherLine>& rows);

    Database& m_database;
    const MachineSettings& m_settings;
    MessageService& m_messages;
    const Clock& m_clock;
    SaleAudit::Desk m_desk;
};

}  // namespace sandogh
