#include "sales/SaleEdit.h"

#include <QMap>
#include <algorithm>
#include <cmath>

#include "data/Database.h"
#include "data/Transaction.h"
#include "data/procedures/StockDocumentProcedures.h"
#include "data/procedures/StockDocumentWriter.h"
#include "data/procedures/StockProcedures.h"
#include "data/procedures/VoucherProcedures.h"
#include "data/repositories/ReceiptPayments.h"
#include "data/repositories/SaleEditRepository.h"
#include "sales/SaleEditVoucher.h"
#include "sales/SaleSaveTexts.h"
#include "sales/SaleTexts.h"
#include "sales/SaleVoucher.h"
#include "settings/MachineSettings.h"
#include "settings/MessageService.h"

namespace sandogh {

namespace {

using namespace procedures;

const QString kModule = QStringLiteral("frmSaleUpdate");

SaleMode modeOf(int transType) {
    return transType == kSaleReturn ? SaleMode::Return : SaleMode::Sale;
}

QMap<QString, double> quantities(const QList<SaleEditLine>& lines) {
    QMap<QString, double> q;
    for (const SaleEditLine& l : lines) {
        q[l.barcode] += l.qty;
    }
    return q;
}

QList<SaleEditLine> savedLines(Session& s, qint64 code, bool& failed) {
    QList<SaleEditLine> lines;
    for (const SaleEditRepository::Line& r : SaleEditRepository::lines(s, code, &failed)) {
        SaleEditLine l;
        l.id = r.line.id;
        l.barcode = r.line.eanCode;
        l.name = r.name;
        l.qty = r.line.qty;
        l.mFee = r.line.mFee;
        l.discount = r.line.discount;
        l.fee = r.line.fee;
        l.price = r.line.price;
        l.taxValue = r.line.taxValue;
        lines << l;
    }
    return lines;
}

}  // namespace

void SaleEditLine::recompute() {
    fee = mFee - mFee * discount / 100.0;
    price = fee * qty;
}

bool SaleEditLine::sameAs(const SaleEditLine& o) const {
    return barcode == o.barcode && qty == o.qty && mFee == o.mFee && discount == o.discount &&
           fee == o.fee && price == o.price && taxValue == o.taxValue;
}

double SaleEditDocument::total() const {
    double sum = 0;
    for (const SaleEditLine& l : lines) {
        sum += l.price;
    }
    return sum;
}

SaleEdit::SaleEdit(Database& database, const MachineSettings& settings, MessageService& messages,
                   const Clock& clock, SaleAudit::Desk desk)
    : m_database(database)
    , m_settings(settings)
    , m_messages(messages)
    , m_clock(clock)
    , m_desk(desk) {}

std::optional<SaleEditDocument> SaleEdit::load(qint64 code) {
    Session s = m_database.session(kModule, QStringLiteral("frmSaleUdateSetup"));
    const std::optional<StockDocumentHeader> h = sp_tblWhs_QTYDocH_SelectRow(s, code);
    if (!h) {
        return std::nullopt;
    }
    bool failed = false;
    SaleEditDocument doc;
    doc.header = *h;
    doc.lines = savedLines(s, code, failed);
    doc.received = h->receivedPrice;
    if (failed) {
        return std::nullopt;
    }
    return doc;
}

SaleEdit::Refusal SaleEdit::check(Session& s, const SaleEditDocument& edited) {
    const double payable = edited.payable();
    if (payable < 0) {
        m_messages.show(SaleSaveTexts::negativeTotal(), MessageStyle::Critical);
        return Refusal::NegativeTotal;
    }
    const bool sale = edited.header.transType == kSale;
    if (sale && edited.received > payable) {
        m_messages.show(SaleSaveTexts::receivedMore(), MessageStyle::Critical);
        return Refusal::ReceivedMore;
    }
    if (sale && m_settings.stockCheckEnabled()) {
        // The document's own lines are in the stock already: only what the edit adds is
        // taken from what is on hand.
        bool failed = false;
        const QMap<QString, double> before = quantities(savedLines(s, edited.header.code, failed));
        if (failed) {
            return Refusal::Failed;
        }
        const QMap<QString, double> after = quantities(edited.lines);
        for (auto it = after.cbegin(); it != after.cend(); ++it) {
            const double more = it.value() - before.value(it.key());
            if (more > 0 && more > SP_ComputeWarehouseQtyByEanCode(s, it.key(), {})) {
                m_messages.show(SaleTexts::quantityNotAllowed(), MessageStyle::Critical);
                return Refusal::Stock;
            }
        }
    }
    return Refusal::None;
}

SaleEdit::Refusal SaleEdit::save(const SaleEditDocument& edited) {
    Session s = m_database.session(kModule, QStringLiteral("cmdSave"));
    if (!s) {
        return Refusal::Failed;
    }
    Refusal refusal = check(s, edited);
    QList<VoucherLine> voucherRows;
    if (refusal == Refusal::None) {
        refusal = planVoucher(s, edited, voucherRows);
    }
    if (refusal != Refusal::None) {
        return refusal;
    }
    Transaction tx(s);
    QStringList touched;
    const bool saved = tx.isActive() && write(s, edited, voucherRows, touched) && tx.commit();
    if (!saved) {
        if (tx.isActive()) {
            tx.rollback();
        }
        m_messages.show(Database::connectionFailureMessage(), MessageStyle::CriticalPlain);
        return Refusal::Failed;
    }
    return Refusal::None;
}

SaleEdit::Refusal SaleEdit::planVoucher(Session& s, const SaleEditDocument& edited,
                                        QList<VoucherLine>& rows) {
    const qint64 hid = edited.header.documentHId.value_or(0);
    if (hid == 0) {
        return Refusal::None;
    }
    const qint64 code = edited.header.code;
    const std::optional<StockDocumentHeader> h = sp_tblWhs_QTYDocH_SelectRow(s, code);
    const SaleMode mode = modeOf(edited.header.transType);
    const std::optional<ReceiptPayments::Split> split =
        ReceiptPayments::read(s, code, mode == SaleMode::Return);
    bool failed = false;
    SaleEditVoucher::Saved saved;
    saved.rows = SaleEditRepository::voucherRows(s, hid, &failed);
    if (!h || !split || failed) {
        return Refusal::Failed;
    }
    saved.payable = h->docSum - h->discount + h->sarbar;
    saved.received = h->receivedPrice;
    saved.giftCard = split->giftCard;
    const SaleVoucher::Accounts accounts =
        SaleVoucher::accounts(s, edited.header.companyId.value_or(0));
    const QString note = SaleVoucher::note(mode, edited.header.docNo, edited.header.docDate);
    switch (SaleEditVoucher::rebuild(saved, mode, edited.payable(), edited.received, accounts, note,
                                     rows)) {
        case SaleEditVoucher::Outcome::Kept:
            return Refusal::None;
        case SaleEditVoucher::Outcome::SplitReceived:
            m_messages.show(SaleEditVoucher::splitReceivedText(), MessageStyle::Critical);
            return Refusal::PaymentSplit;
        case SaleEditVoucher::Outcome::Mismatch:
            break;
    }
    m_messages.show(SaleEditVoucher::mismatchText(), MessageStyle::Critical);
    return Refusal::VoucherMismatch;
}

bool SaleEdit::write(Session& s, const SaleEditDocument& edited,
                     const QList<VoucherLine>& voucherRows, QStringList& touched) {
    const qint64 code = edited.header.code;
    bool failed = false;
    const QList<SaleEditLine> before = savedLines(s, code, failed);
    if (failed || !SaleAudit::record(s, m_clock, m_desk, SaleAuditRepository::Edit, code)) {
        return false;
    }
    const auto touch = [&touched](const QString& barcode) {
        if (!touched.contains(barcode)) {
            touched << barcode;
        }
    };
    QMap<qint64, SaleEditLine> kept;
    for (const SaleEditLine& l : edited.lines) {
        if (l.id != 0) {
            kept.insert(l.id, l);
        }
    }
    // Removed and changed lines go; changed ones are written again below.
    for (const SaleEditLine& old : before) {
        const auto it = kept.constFind(old.id);
        if (it != kept.cend() && it->sameAs(old)) {
            continue;
        }
        touch(old.barcode);
        if (!SaleEditRepository::deleteLine(s, old.id)) {
            return false;
        }
    }
    for (const SaleEditLine& l : edited.lines) {
        const bool unchanged = std::any_of(before.cbegin(), before.cend(), [&l](const auto& o) {
            return o.id == l.id && o.sameAs(l);
        });
        if (unchanged) {
            continue;
        }
        touch(l.barcode);
        StockDocumentLine line;
        line.eanCode = l.barcode;
        line.qty = l.qty;
        line.mFee = l.mFee;
        line.discount = l.discount;
        line.fee = l.fee;
        line.price = l.price;
        line.taxValue = l.taxValue;
        if (StockDocumentWriter::insertLine(s, code, line) <= 0) {
            return false;
        }
    }
    const double total = edited.total();
    if (!SaleEditRepository::updateHeader(s, code, edited.header.discount, total,
                                          edited.received)) {
        return false;
    }
    if (edited.header.documentHId && *edited.header.documentHId != 0) {
        const qint64 hid = *edited.header.documentHId;
        std::optional<VoucherHeader> voucher = sp_tblDocumentH_SelectRow(s, hid);
        if (!voucher) {
            return false;
        }
        voucher->note = SaleVoucher::note(modeOf(edited.header.transType), edited.header.docNo,
                                          edited.header.docDate);
        if (!sp_tblDocumentH_Update(s, *voucher) || !sp_tblDocumentD_DeleteRow(s, hid)) {
            return false;
        }
        for (VoucherLine row : voucherRows) {
            row.documentHId = hid;
            if (sp_tblDocumentD_Insert(s, row) <= 0) {
                return false;
            }
        }
    }
    return touched.isEmpty() || sp_StockRepair(s, touched);
}

}  // namespace sandogh
