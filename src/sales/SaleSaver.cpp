#include "sales/SaleSaver.h"

#include <QDateTime>
#include <cmath>

#include "data/Database.h"
#include "data/Transaction.h"
#include "data/procedures/CentralProcedures.h"
#include "data/procedures/PaymentProcedures.h"
#include "data/procedures/StockDocumentWriter.h"
#include "data/procedures/StockProcedures.h"
#include "data/procedures/VoucherProcedures.h"
#include "data/repositories/DocumentNumbering.h"
#include "data/repositories/SaleDocumentRepository.h"
#include "devices/CompanionHandOff.h"
#include "sales/SaleSaveChecks.h"
#include "sales/SaleSaveTexts.h"
#include "sales/SaleSession.h"
#include "sales/SaleSettlement.h"
#include "sales/SaleVoucher.h"
#include "settings/Clock.h"
#include "settings/MachineSettings.h"
#include "settings/MessageService.h"

namespace sandogh {

namespace {

using namespace procedures;

const QString kModule = QStringLiteral("frmSale");

std::optional<int> warehouseOf(const QString& text) {
    bool ok = false;
    const int code = text.trimmed().toInt(&ok);
    return ok && code != 0 ? std::optional<int>(code) : std::nullopt;
}

QString numberText(double value) {
    return QString::number(value, 'f', 0);
}

}  // namespace

// Everything of one save that can be read or built before the desks' lock: the rows to
// write, without the numbers that are taken under it.
struct SaleSaver::Prepared {
    VoucherHeader voucher;
    QList<VoucherLine> voucherLines;  // without their comment (the note holds the number)
    StockDocumentHeader header;
    QList<StockDocumentLine> lines;
    QStringList missingStockRows;
    std::optional<GiftCardRow> card;
    qint64 gifts = 0;
};

struct SaleSaver::Private {
    Database& database;
    const MachineSettings& settings;
    MessageService& messages;
    const Clock& clock;
    ReceiptHook receipt;
    CompanionHandOff* companion = nullptr;

    // The reads before the transaction; false when one failed.
    bool prepare(Session& s, const SaleSession& sale, const SaleSettlement& st, Prepared& p,
                 SaleSaveResult& r);
    // The steps inside the transaction; false at the first failure. typedTaken is set when
    // a typed number turned out to be taken.
    bool write(Session& s, const SaleSession& sale, const SaleSettlement& st, Prepared& p,
               SaleSaveResult& r, GiftCardMovement& movement, bool& typedTaken);
    void afterCommit(const SaleSession& sale, const SaleSettlement& st, const SaleSaveResult& r,
                     const GiftCardMovement& movement);
    // A typed number that the day already has refuses before anything is written.
    bool typedNumberFree(const SaleSession& sale, const SaleSettlement& st);
};

SaleSaver::SaleSaver(Database& database, const MachineSettings& settings, MessageService& messages,
                     const Clock& clock)
    : d(std::make_unique<Private>(Private{database, settings, messages, clock, {}, nullptr})) {}

SaleSaver::~SaleSaver() = default;

void SaleSaver::setReceiptHook(ReceiptHook hook) {
    d->receipt = std::move(hook);
}

void SaleSaver::setCompanion(CompanionHandOff* companion) {
    d->companion = companion;
}

QString SaleSaver::nextDocNo(const SaleSession& sale) {
    const qint64 next =
        DocumentNumbering(d->database)
            .nextSaleDocNo(sale.transType(), sale.saleDate(), d->settings.resetFactorNoDaily());
    return next > 0 ? QString::number(next) : QString();
}

PreviousInvoice SaleSaver::previousInvoice(int stationId) {
    PreviousInvoice previous;
    Session s = d->database.session(kModule, QStringLiteral("PrevFactor"));
    if (const auto last = SaleDocumentRepository::lastInvoiceOfStation(s, stationId)) {
        previous.docNo = last->docNo;
        previous.received = last->received;
    }
    return previous;
}

bool SaleSaver::Private::typedNumberFree(const SaleSession& sale, const SaleSettlement& st) {
    const std::optional<bool> taken = DocumentNumbering(database).isSaleDocNoTaken(
        sale.transType(), st.docNo.trimmed(), sale.saleDate());
    if (!taken) {
        return false;
    }
    if (*taken) {
        messages.show(SaleSaveTexts::docNoTaken(), MessageStyle::Critical);
        return false;
    }
    return true;
}

SaleSaveResult SaleSaver::save(SaleSession& sale, SaleSettlement& st) {
    SaleSaveResult r;
    if (st.docNo.trimmed().isEmpty() && !st.docNoTyped) {
        st.docNo = nextDocNo(sale);
    }
    r.refusedBy = SaleSaveChecks(d->database, d->settings, d->messages).run(sale, st);
    if (r.refusedBy != SaleSaveCheck::None) {
        return r;
    }
    if (st.docNoTyped && !d->typedNumberFree(sale, st)) {
        r.refusedBy = SaleSaveCheck::DocNo;
        return r;
    }

    GiftCardMovement movement;
    bool written = false;
    bool typedTaken = false;
    {
        Session s = d->database.session(kModule, QStringLiteral("cmdSave"));
        if (!s) {
            return r;
        }
        Prepared prepared;
        if (d->prepare(s, sale, st, prepared, r)) {
            Transaction tx(s);
            written = tx.isActive() && d->write(s, sale, st, prepared, r, movement, typedTaken) &&
                      tx.commit();
            if (!written && tx.isActive()) {
                tx.rollback();
            }
        }
    }
    if (typedTaken) {
        // Another desk wrote the typed number between the check and the lock.
        d->messages.show(SaleSaveTexts::docNoTaken(), MessageStyle::Critical);
        SaleSaveResult refused;
        refused.refusedBy = SaleSaveCheck::DocNo;
        return refused;
    }
    if (!written) {
        d->messages.show(Database::connectionFailureMessage(), MessageStyle::CriticalPlain);
        return SaleSaveResult{};
    }
    r.saved = true;
    // The number written, which may differ from the proposal on the screen.
    st.docNo = r.docNo;
    d->afterCommit(sale, st, r, movement);
    return r;
}

bool SaleSaver::Private::prepare(Session& s, const SaleSession& sale, const SaleSettlement& st,
                                 Prepared& p, SaleSaveResult& r) {
    const QDateTime now = clock.now();
    const QString date = sale.saleDate();
    const SaleMode mode = sale.mode();
    const int customer = sale.customer().counter;
    const double payable = SaleSaveChecks::payable(sale, st);
    r.docSum = sale.total();
    r.received = SaleSaveChecks::received(sale, st);

    p.voucher.date = date;
    p.voucher.time = now.toString(QStringLiteral("HH:mm"));
    p.voucher.userId = sale.userId();
    const SaleVoucher::Accounts accounts = SaleVoucher::accounts(s, customer);
    p.voucherLines = SaleVoucher::lines(st, mode, payable, r.received, accounts, QString());

    StockDocumentHeader& h = p.header;
    h.transType = sale.transType();
    h.companyId = customer != 0 ? std::optional<int>(customer) : std::nullopt;
    h.docDate = date;
    h.userId = sale.userId();
    h.docSum = r.docSum;
    h.discount = st.discount;
    h.docTime = now.toString(QStringLiteral("HH:mm:ss"));
    h.sarbar = st.overhead;
    h.receivedPrice = r.received;
    h.stationId = sale.station() != 0 ? std::optional<int>(sale.station()) : std::nullopt;
    h.note = st.note;
    h.salesType = sale.salesType();
    h.shiftCode = SaleDocumentRepository::activeShift(s);
    h.payType = st.payType;
    h.warehouseCode = warehouseOf(sale.warehouse());
    h.discountTypeId = st.discountTypeId;
    h.carId = st.carId;
    h.transporter = st.transporter;
    h.kilometerEntry = st.kilometerEntry;
    h.base = st.base;
    h.returnCauseId = mode == SaleMode::Return ? st.returnCauseId : std::nullopt;
    h.overheadId = st.overheadId;

    QStringList barcodes;
    for (const SaleLine& line : sale.lines()) {
        StockDocumentLine l;
        l.eanCode = line.barcode;
        l.qty = line.quantity;
        l.fee = line.unitPrice;
        l.price = line.total;
        l.userId = line.sellerId != 0 ? line.sellerId : sale.userId();
        l.taxValue = line.taxPercent;
        p.lines << l;
        if (!barcodes.contains(line.barcode)) {
            barcodes << line.barcode;
        }
    }
    const std::optional<QStringList> missing = stockRowsMissing(s, barcodes);
    if (!missing) {
        return false;
    }
    p.missingStockRows = *missing;

    const double rebate = settings.loyaltyAmountRebate();
    if (st.loyaltyGift && customer != 0 && rebate > 0) {
        p.gifts = static_cast<qint64>(std::floor(std::floor(st.discount) / rebate));
    }
    if (st.giftCardId != 0 && st.giftCardAmount > 0) {
        p.card = sp_tblGiftCard_SelectRow(s, st.giftCardId);
        if (!p.card) {
            return false;
        }
    }
    return !s.lastError().isConnectionLost();
}

bool SaleSaver::Private::write(Session& s, const SaleSession& sale, const SaleSettlement& st,
                               Prepared& p, SaleSaveResult& r, GiftCardMovement& movement,
                               bool& typedTaken) {
    // The document first, under a key of its own and without a number: other desks write
    // theirs at the same time (StockDocumentWriter::insertHeaderUnlocked).
    const QString date = sale.saleDate();
    p.header.docNo.clear();
    p.header.documentHId.reset();
    r.code = StockDocumentWriter::insertHeaderUnlocked(s, p.header);
    if (r.code <= 0 || !StockDocumentWriter::insertLines(s, r.code, p.lines)) {
        return false;
    }

    // Desks saving at the same moment take turns from here to their commit: the invoice
    // number and the voucher code are each the largest plus one, read after the previous
    // desk's commit. Only what needs the numbers follows, and what touches rows that the
    // writers holding the lock from their start change too (Stock, serial numbers, the
    // customer, gift cards), so that no desk waits for rows of one waiting for the lock.
    if (!StockDocumentWriter::lockWriters(s)) {
        return false;
    }
    DocumentNumbering::SaleVoucherRequest request;
    request.transType = sale.transType();
    request.date = date;
    request.daily = settings.resetFactorNoDaily();
    request.typedDocNo = st.docNoTyped ? st.docNo.trimmed() : QString();
    request.voucherDate = p.voucher.date;
    request.voucherTime = p.voucher.time;
    request.userId = p.voucher.userId;
    const QString marker(QChar(0x1));
    const QString note = SaleVoucher::note(sale.mode(), marker, date);
    request.notePrefix = note.section(marker, 0, 0);
    request.noteSuffix = note.section(marker, 1);
    const std::optional<DocumentNumbering::NumberedVoucher> numbered =
        DocumentNumbering::insertSaleVoucher(s, request);
    if (!numbered) {
        return false;
    }
    if (numbered->typedTaken) {
        typedTaken = true;
        return false;
    }
    r.docNo = numbered->docNo;
    r.voucherId = numbered->voucherId;
    for (VoucherLine& row : p.voucherLines) {
        row.comment = numbered->note;
    }
    if (!sp_tblDocumentD_InsertRows(s, r.voucherId, p.voucherLines) ||
        !StockDocumentWriter::setNumber(s, r.code, r.docNo, r.voucherId) ||
        !StockDocumentWriter::bindPendingSerials(s, r.code) ||
        !StockDocumentWriter::addToStock(s, r.code, p.missingStockRows)) {
        return false;
    }

    const int customer = sale.customer().counter;
    if (p.gifts > 0 && !SaleDocumentRepository::addGiftsTaken(s, customer, p.gifts, date)) {
        return false;
    }
    if (p.card) {
        movement.giftCardId = p.card->id;
        movement.date = date;
        movement.time = p.voucher.time;
        movement.amount = st.giftCardAmount;
        movement.userId = sale.userId();
        movement.customerId = customer;
        movement.docHCode = r.code;
        movement.id = static_cast<int>(sp_tblGiftCardItem_Insert(s, movement));
        if (movement.id <= 0) {
            return false;
        }
        r.giftCardItemId = movement.id;
    }
    return true;
}

void SaleSaver::Private::afterCommit(const SaleSession& sale, const SaleSettlement& st,
                                     const SaleSaveResult& r, const GiftCardMovement& movement) {
    // The sale is saved: what follows may fail (its failure is reported) without undoing it.
    Session s = database.session(kModule, QStringLiteral("AfterSave"));
    const QString central = settings.linkedDatabase();
    if (movement.id > 0 && settings.linkedSystemActive() && !central.isEmpty()) {
        sp_SyncInsertGiftCardItem(s, settings.linkedServerName(), central, movement);
    }
    if (st.preInvoiceCode) {
        SaleDocumentRepository::closePreInvoice(s, *st.preInvoiceCode);
    }
    s.release();
    if (st.printReceipt && receipt) {
        receipt(r, sale, st);
    }
    // The notice goes to the customer: without one there is no one to send it to.
    if (settings.sendFactor() && companion != nullptr && sale.customer().isValid()) {
        const double total = r.docSum - st.discount + st.overhead;
        companion->send(SaleSaveTexts::smsCommand() + QString::number(sale.customer().counter) +
                        u',' + SaleSaveTexts::smsNumber() + r.docNo + SaleSaveTexts::smsTotal() +
                        numberText(total));
    }
}

}  // namespace sandogh
