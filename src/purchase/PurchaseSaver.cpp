#include "purchase/PurchaseSaver.h"

#include <QDateTime>
#include <QStringList>

#include "data/Database.h"
#include "data/Dialect.h"
#include "data/Transaction.h"
#include "data/procedures/StockDocumentWriter.h"
#include "data/procedures/StockProcedures.h"
#include "data/procedures/TypesProcedures.h"
#include "data/procedures/VoucherProcedures.h"
#include "data/repositories/DocumentNumbering.h"
#include "data/repositories/PurchaseDocuments.h"
#include "purchase/PurchaseSession.h"
#include "purchase/PurchaseTexts.h"
#include "settings/Clock.h"
#include "settings/MessageService.h"

namespace sandogh {

namespace {

using namespace procedures;

const QString kModule = QStringLiteral("frmBuy");

// The desks' lock that every save taking largest-plus-one numbers serialises on.
const QString kWritersLock = QStringLiteral("Whs_QTYDocH");

// The document's time is written hours, minutes and then the day of the month, not the
// seconds: the purchase screens have always written it so and lists read it as written.
const QString kDocTimePattern = QStringLiteral("HH:mm:dd");
// The voucher's time: hours and minutes.
const QString kVoucherTimePattern = QStringLiteral("HH:mm");

// Serial numbers typed for a document wait under this key until it is saved.
constexpr qint64 kPendingSerialCode = 1;

enum class Outcome { Written, Failed, NoSupplierAccount };

Outcome write(Session& s, const PurchaseSession& purchase, const QDateTime& now,
              PurchaseSaveResult& r) {
    const QString lock = s.dialect().writersLockSql();
    if (!lock.isEmpty() && !s.exec(lock, {{QStringLiteral(":name"), kWritersLock}})) {
        return Outcome::Failed;
    }
    const PurchaseHeader& h = purchase.header();
    const bool isReturn = purchase.isReturn();
    if (purchase.docNoIsProposed()) {
        const qint64 next = DocumentNumbering::nextDocNo(s, purchase.transType());
        if (next <= 0) {
            return Outcome::Failed;
        }
        r.docNo = QString::number(next);
    } else {
        r.docNo = h.docNo.trimmed();
    }

    // 1-2. The voucher.
    VoucherHeader voucher;
    voucher.code = sp_tblDocumentH_GetNewCode(s);
    if (voucher.code <= 0) {
        return Outcome::Failed;
    }
    voucher.date = h.docDate;
    voucher.time = now.toString(kVoucherTimePattern);
    voucher.userId = purchase.userId();
    voucher.note =
        (isReturn ? PurchaseTexts::returnVoucherNote() : PurchaseTexts::purchaseVoucherNote()) +
        r.docNo + u' ' + PurchaseTexts::voucherNoteDate() + h.docDate;
    r.voucherId = sp_tblDocumentH_Insert(s, voucher);
    if (r.voucherId <= 0) {
        return Outcome::Failed;
    }
    r.voucherCode = voucher.code;

    // 3-5. The purchase's account and the supplier's, on opposite sides.
    VoucherLine line;
    line.documentHId = r.voucherId;
    line.accountingGroupId = h.accountingGroupId;
    line.comment = voucher.note;
    (isReturn ? line.credit : line.debt) = r.payable;
    if (sp_tblDocumentD_Insert(s, line) <= 0) {
        return Outcome::Failed;
    }
    const std::optional<TypesRow> supplier = sp_Types_SelectRow(s, h.supplier);
    if (!supplier) {
        return Outcome::Failed;
    }
    if (supplier->accountingGroupId == 0) {
        return Outcome::NoSupplierAccount;
    }
    line.accountingGroupId = supplier->accountingGroupId;
    std::swap(line.debt, line.credit);
    if (sp_tblDocumentD_Insert(s, line) <= 0) {
        return Outcome::Failed;
    }

    // 6. The header.
    StockDocumentHeader doc;
    doc.docNo = r.docNo;
    doc.transType = purchase.transType();
    doc.companyId = h.supplier;
    doc.docDate = h.docDate;
    doc.userId = purchase.userId();
    doc.docSum = r.docSum;
    doc.discount = h.discount;
    doc.docTime = now.toString(kDocTimePattern);
    doc.sarbar = h.sarbar;
    doc.payType = h.payType;
    doc.base = h.base;
    doc.note = h.note;
    doc.documentHId = r.voucherId;
    doc.isUpdatable = 1;
    doc.warehouseCode = h.warehouseCode;
    r.code = StockDocumentWriter::insertHeader(s, doc);
    if (r.code <= 0) {
        return Outcome::Failed;
    }

    // 7-10. Earlier lines, serial numbers, the lines, stock.
    if (!PurchaseDocuments::deleteLines(s, r.code) ||
        !PurchaseDocuments::handOverSerials(s, r.code, kPendingSerialCode)) {
        return Outcome::Failed;
    }
    for (const PurchaseLine& l : purchase.lines().lines()) {
        StockDocumentLine row;
        row.eanCode = l.barcode;
        row.qty = l.qty;
        row.mFee = l.mFee;
        row.discount = l.discount;
        row.fee = l.fee;
        row.price = l.price;
        row.taxValue = l.taxValue;
        if (StockDocumentWriter::insertLine(s, r.code, row) <= 0) {
            return Outcome::Failed;
        }
    }
    // Stock follows the document's own lines, as the sale's does: the result of a scoped
    // sp_StockRepair, at a cost that does not grow with the articles' history.
    return StockDocumentWriter::addToStock(s, r.code) ? Outcome::Written : Outcome::Failed;
}

}  // namespace

PurchaseSaver::PurchaseSaver(Database& database, MessageService& messages, const Clock& clock)
    : m_database(database), m_messages(messages), m_clock(clock) {}

PurchaseSaveResult PurchaseSaver::save(PurchaseSession& purchase) {
    PurchaseSaveResult r;
    r.refusedBy = purchase.check();
    if (r.refusedBy != PurchaseCheck::None) {
        return r;
    }
    const PurchaseHeader& h = purchase.header();
    r.docSum = purchase.totals().sum;
    r.payable = r.docSum - h.discount + h.sarbar;

    Outcome outcome = Outcome::Failed;
    {
        Session s = m_database.session(kModule, QStringLiteral("SaveRoutine"));
        if (!s) {
            return PurchaseSaveResult{};
        }
        Transaction tx(s);
        if (tx.isActive()) {
            outcome = write(s, purchase, m_clock.now(), r);
            if (outcome == Outcome::Written && !tx.commit()) {
                outcome = Outcome::Failed;
            }
        }
        if (tx.isActive()) {
            tx.rollback();
        }
    }
    if (outcome == Outcome::NoSupplierAccount) {
        m_messages.show(PurchaseTexts::supplierWithoutAccount(), MessageStyle::Critical);
        PurchaseSaveResult refused;
        refused.refusedBy = PurchaseCheck::SupplierAccount;
        return refused;
    }
    if (outcome != Outcome::Written) {
        m_messages.show(Database::connectionFailureMessage(), MessageStyle::CriticalPlain);
        return PurchaseSaveResult{};
    }
    r.saved = true;
    return r;
}

}  // namespace sandogh
