#include "sales/SaleSaver.h"

#include <QDateTime>
#include <cmath>

#include "data/Database.h"
#include "data/Dialect.h"
#include "data/SqlQuery.h"
#include "data/Transaction.h"
#include "data/procedures/CentralProcedures.h"
#include "data/procedures/PaymentProcedures.h"
#include "data/procedures/StockDocumentWriter.h"
#include "data/procedures/StockProcedures.h"
#include "data/procedures/VoucherProcedures.h"
#include "data/repositories/DocumentNumbering.h"
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

// The kind of write transaction that saving a sale serialises on (Dialect::writersLockSql).
const QString kWritersLock = QStringLiteral("Whs_QTYDocH");

// Serial numbers typed during a sale wait under this document key until the sale is saved.
constexpr qint64 kPendingSerialCode = 1;

std::optional<int> shiftOf(Session& session) {
    SqlQuery q(session,
               QStringLiteral("SELECT Code, Name FROM tblShift WHERE LastActiveShift = 1"));
    if (q.exec() && q.next()) {
        return q.integer(0);
    }
    return std::nullopt;
}

std::optional<int> warehouseOf(const QString& text) {
    bool ok = false;
    const int code = text.trimmed().toInt(&ok);
    return ok && code != 0 ? std::optional<int>(code) : std::nullopt;
}

QString numberText(double value) {
    return QString::number(value, 'f', 0);
}

}  // namespace

struct SaleSaver::Private {
    Database& database;
    const MachineSettings& settings;
    MessageService& messages;
    const Clock& clock;
    ReceiptHook receipt;
    CompanionHandOff* companion = nullptr;

    // The steps inside the transaction; false at the first failure.
    bool write(Session& s, const SaleSession& sale, const SaleSettlement& st, SaleSaveResult& r,
               GiftCardMovement& movement);
    void afterCommit(const SaleSession& sale, const SaleSettlement& st, const SaleSaveResult& r,
                     const GiftCardMovement& movement);
    // Refreshes an allocated number, or checks a typed one; false refuses the save.
    bool number(const SaleSession& sale, SaleSettlement& st);
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
    const Dialect& dialect = s.dialect();
    SqlQuery q(s, QStringLiteral("SELECT ") + dialect.top(1) +
                      QStringLiteral("COALESCE(DocNo, '0'), COALESCE(ReceivedPrice, 0) FROM "
                                     "Whs_QTYDocH WHERE StationID = :station AND (TransType = 2 "
                                     "OR TransType = 3) ORDER BY Code DESC") +
                      dialect.limit(1));
    q.bind(QStringLiteral(":station"), stationId);
    if (q.exec() && q.next()) {
        previous.docNo = q.text(0, QStringLiteral("0"));
        previous.received = q.number(1);
    }
    return previous;
}

bool SaleSaver::Private::number(const SaleSession& sale, SaleSettlement& st) {
    if (!st.docNoTyped) {
        const qint64 next = DocumentNumbering(database).nextSaleDocNo(
            sale.transType(), sale.saleDate(), settings.resetFactorNoDaily());
        if (next <= 0) {
            return false;
        }
        st.docNo = QString::number(next);
        return true;
    }
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
    if (!d->number(sale, st)) {
        r.refusedBy = SaleSaveCheck::DocNo;
        return r;
    }

    GiftCardMovement movement;
    bool written = false;
    {
        Session s = d->database.session(kModule, QStringLiteral("cmdSave"));
        if (!s) {
            return r;
        }
        Transaction tx(s);
        written = tx.isActive() && d->write(s, sale, st, r, movement) && tx.commit();
        if (!written && tx.isActive()) {
            tx.rollback();
        }
    }
    if (!written) {
        d->messages.show(Database::connectionFailureMessage(), MessageStyle::CriticalPlain);
        return SaleSaveResult{};
    }
    r.saved = true;
    d->afterCommit(sale, st, r, movement);
    return r;
}

bool SaleSaver::Private::write(Session& s, const SaleSession& sale, const SaleSettlement& st,
                               SaleSaveResult& r, GiftCardMovement& movement) {
    // Desks saving at the same moment take turns here: each takes its voucher and document
    // keys as the largest plus one, and a desk that lost the race for a key would wait for
    // the winner's whole transaction before it could try the next one.
    const QString lock = s.dialect().writersLockSql();
    if (!lock.isEmpty() && !s.exec(lock, {{QStringLiteral(":name"), kWritersLock}})) {
        return false;
    }
    const QDateTime now = clock.now();
    const QString date = sale.saleDate();
    const SaleMode mode = sale.mode();
    const int customer = sale.customer().counter;
    const double payable = SaleSaveChecks::payable(sale, st);
    r.docNo = st.docNo.trimmed();
    r.docSum = sale.total();
    r.received = SaleSaveChecks::received(sale, st);

    // The voucher; its number is taken inside its insert (the largest plus one, as
    // sp_tblDocumentH_GetNewCode reads it), so two desks never share one.
    VoucherHeader voucher;
    voucher.date = date;
    voucher.time = now.toString(QStringLiteral("HH:mm"));
    voucher.userId = sale.userId();
    voucher.serial = r.docNo;
    voucher.note = SaleVoucher::note(mode, r.docNo, date);
    r.voucherId = sp_tblDocumentH_Insert(s, voucher);
    if (r.voucherId <= 0) {
        return false;
    }
    const SaleVoucher::Accounts accounts = SaleVoucher::accounts(s, customer);
    for (VoucherLine row :
         SaleVoucher::lines(st, mode, payable, r.received, accounts, voucher.note)) {
        row.documentHId = r.voucherId;
        if (sp_tblDocumentD_Insert(s, row) <= 0) {
            return false;
        }
    }

    StockDocumentHeader h;
    h.docNo = r.docNo;
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
    h.shiftCode = shiftOf(s);
    h.payType = st.payType;
    h.documentHId = r.voucherId;
    h.warehouseCode = warehouseOf(sale.warehouse());
    h.discountTypeId = st.discountTypeId;
    h.carId = st.carId;
    h.transporter = st.transporter;
    h.kilometerEntry = st.kilometerEntry;
    h.base = st.base;
    h.returnCauseId = mode == SaleMode::Return ? st.returnCauseId : std::nullopt;
    h.overheadId = st.overheadId;
    r.code = StockDocumentWriter::insertHeader(s, h);
    if (r.code <= 0) {
        return false;
    }
    if (!s.exec(QStringLiteral("UPDATE Serial SET Code = :code WHERE Code = :pending"),
                {{QStringLiteral(":code"), r.code},
                 {QStringLiteral(":pending"), kPendingSerialCode}})) {
        return false;
    }
    QStringList barcodes;
    for (const SaleLine& line : sale.lines()) {
        StockDocumentLine l;
        l.eanCode = line.barcode;
        l.qty = line.quantity;
        l.fee = line.unitPrice;
        l.price = line.total;
        l.userId = line.sellerId != 0 ? line.sellerId : sale.userId();
        l.taxValue = line.taxPercent;
        if (StockDocumentWriter::insertLine(s, r.code, l) <= 0) {
            return false;
        }
        if (!barcodes.contains(line.barcode)) {
            barcodes << line.barcode;
        }
    }
    if (!sp_StockRepair(s, barcodes)) {
        return false;
    }

    const double rebate = settings.loyaltyAmountRebate();
    if (st.loyaltyGift && customer != 0 && rebate > 0) {
        const qint64 gifts = static_cast<qint64>(std::floor(std::floor(st.discount) / rebate));
        if (!s.exec(QStringLiteral("UPDATE Types SET DiscountTakenTotal = "
                                   "COALESCE(DiscountTakenTotal, 0) + :gifts, "
                                   "LastDiscountTakenDate = :date WHERE Counter = :customer"),
                    {{QStringLiteral(":gifts"), gifts},
                     {QStringLiteral(":date"), date},
                     {QStringLiteral(":customer"), customer}})) {
            return false;
        }
    }

    if (st.giftCardId != 0 && st.giftCardAmount > 0) {
        const std::optional<GiftCardRow> card = sp_tblGiftCard_SelectRow(s, st.giftCardId);
        if (!card) {
            return false;
        }
        movement.giftCardId = card->id;
        movement.date = date;
        movement.time = voucher.time;
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
        s.exec(QStringLiteral("UPDATE tblPreFactorH SET IsTrenchant = :closed WHERE Code = :code"),
               {{QStringLiteral(":closed"), 1}, {QStringLiteral(":code"), *st.preInvoiceCode}});
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
