#include "sales/InternalSaleSaver.h"

#include "data/Database.h"
#include "data/Transaction.h"
#include "data/procedures/StockDocumentWriter.h"
#include "data/repositories/DocumentNumbering.h"
#include "data/repositories/DocumentTotalsRepository.h"
#include "data/repositories/InternalSaleRepository.h"
#include "sales/InternalSaleSession.h"
#include "sales/InternalSaleTexts.h"
#include "sales/SaleSession.h"
#include "settings/Clock.h"
#include "settings/MessageService.h"

namespace sandogh {

using procedures::StockDocumentWriter;

namespace {
const QString kModule = QStringLiteral("frmSaleInter");
}  // namespace

InternalSaleSaver::InternalSaleSaver(Database& database, MessageService& messages,
                                     const Clock& clock)
    : m_database(database), m_messages(messages), m_clock(clock) {}

void InternalSaleSaver::setReceiptHook(ReceiptHook hook) {
    m_receipt = std::move(hook);
}

InternalSaleCheck InternalSaleSaver::check(InternalSaleSession& sale) {
    const auto refuse = [this](const QString& text, InternalSaleCheck which) {
        m_messages.show(text, MessageStyle::Critical);
        return which;
    };
    if (sale.branchId() == 0) {
        return refuse(InternalSaleTexts::noBranch(), InternalSaleCheck::Branch);
    }
    if (sale.entry().isEmpty()) {
        return refuse(InternalSaleTexts::noGoods(), InternalSaleCheck::Goods);
    }
    if (sale.docNo().isEmpty() && !sale.docNoTyped()) {
        sale.proposeDocNo();
    }
    if (sale.docNo().isEmpty()) {
        return refuse(InternalSaleTexts::noDocNo(), InternalSaleCheck::DocNo);
    }
    const bool isReturn = sale.entry().mode() == SaleMode::Return;
    if (isReturn &&
        InternalSaleRepository::invoiceNumber(sale.returnedInvoice()) == QLatin1String("0")) {
        return refuse(InternalSaleTexts::noReturnedInvoice(), InternalSaleCheck::ReturnedInvoice);
    }
    if (sale.docNoTyped()) {
        Session s = m_database.session(kModule, QStringLiteral("CheckDocNo"));
        const std::optional<bool> taken = InternalSaleRepository::docNoTaken(
            s, sale.entry().transType(), sale.docNo(), sale.editedCode());
        if (taken && *taken) {
            return refuse(InternalSaleTexts::docNoTaken(), InternalSaleCheck::DocNoTaken);
        }
    }
    return InternalSaleCheck::None;
}

InternalSaleResult InternalSaleSaver::save(InternalSaleSession& sale, bool print) {
    InternalSaleResult r;
    r.refusedBy = check(sale);
    if (r.refusedBy != InternalSaleCheck::None) {
        return r;
    }
    // A second return of the same invoice replaces the first only when the user says so.
    bool replace = false;
    if (sale.entry().mode() == SaleMode::Return) {
        Session s = m_database.session(kModule, QStringLiteral("EarlierReturn"));
        const auto earlier =
            InternalSaleRepository::earlierReturn(s, sale.returnedInvoice(), sale.editedCode());
        if (!earlier) {
            return r;
        }
        if (*earlier) {
            if (!m_messages.show(InternalSaleTexts::earlierReturn() + (*earlier)->docNo,
                                 MessageStyle::QuestionYesNoDefaultNo,
                                 InternalSaleTexts::noticeTitle())) {
                r.refusedBy = InternalSaleCheck::EarlierReturn;
                return r;
            }
            replace = true;
        }
    }

    bool written = false;
    bool taken = false;
    {
        Session s = m_database.session(kModule, QStringLiteral("cmdSave"));
        if (!s) {
            return r;
        }
        Transaction tx(s);
        written = tx.isActive() && write(s, sale, replace, r, taken) && tx.commit();
        if (!written && tx.isActive()) {
            tx.rollback();
        }
    }
    if (taken) {
        // Another desk wrote the typed number, or returned the invoice, since the checks.
        m_messages.show(r.refusedBy == InternalSaleCheck::DocNoTaken
                            ? InternalSaleTexts::docNoTaken()
                            : InternalSaleTexts::earlierReturn() + r.replacedDocNo,
                        MessageStyle::Critical);
        InternalSaleResult refused;
        refused.refusedBy = r.refusedBy;
        return refused;
    }
    if (!written) {
        m_messages.show(Database::connectionFailureMessage(), MessageStyle::CriticalPlain);
        return InternalSaleResult{};
    }
    r.saved = true;
    sale.setDocNo(r.docNo, sale.docNoTyped());
    if (print && m_receipt) {
        m_receipt(r, sale);
    }
    return r;
}

bool InternalSaleSaver::write(Session& s, InternalSaleSession& sale, bool replace,
                              InternalSaleResult& r, bool& taken) {
    // Desks saving at once take turns from here to their commit: the key and the number
    // are read after the previous desk's commit.
    if (!StockDocumentWriter::lockWriters(s)) {
        return false;
    }
    const SaleSession& entry = sale.entry();
    const int transType = entry.transType();
    // A corrected document is written again under its key: the old one goes first, its
    // stock taken back.
    const qint64 edited = sale.editedCode();
    if (edited != 0 && !StockDocumentWriter::deleteInternalDocument(s, edited)) {
        return false;
    }
    // The earlier return goes first, so that its number is free for the new one.
    const bool isReturn = entry.mode() == SaleMode::Return;
    if (isReturn) {
        const auto earlier = InternalSaleRepository::earlierReturn(s, sale.returnedInvoice());
        if (!earlier) {
            return false;
        }
        if (*earlier) {
            r.replacedDocNo = (*earlier)->docNo;
            if (!replace) {
                r.refusedBy = InternalSaleCheck::EarlierReturn;
                taken = true;
                return false;
            }
            if (!StockDocumentWriter::deleteInternalDocument(s, (*earlier)->code)) {
                return false;
            }
        }
    }
    if (sale.docNoTyped()) {
        const std::optional<bool> used =
            InternalSaleRepository::docNoTaken(s, transType, sale.docNo());
        if (!used) {
            return false;
        }
        if (*used) {
            r.refusedBy = InternalSaleCheck::DocNoTaken;
            taken = true;
            return false;
        }
        r.docNo = sale.docNo();
    } else {
        const qint64 next = DocumentNumbering::nextInternalDocNo(s, transType);
        if (next <= 0) {
            return false;
        }
        r.docNo = QString::number(next);
    }
    const qint64 code = edited != 0 ? edited : InternalSaleRepository::nextCode(s);
    if (code <= 0) {
        return false;
    }

    InternalSaleRepository::Header h;
    h.code = code;
    h.docNo = r.docNo;
    h.transType = transType;
    h.branchId = sale.branchId();
    h.docDate = entry.saleDate();
    h.userId = entry.userId();
    h.docSum = entry.total();
    h.docTime = m_clock.now().toString(QStringLiteral("HH:mm:ss"));
    h.receivedPrice = entry.total();
    h.stationId = entry.station();
    h.salesType = entry.salesType();
    h.atf = isReturn ? sale.returnedInvoice() : QString();
    QList<InternalSaleRepository::Line> lines;
    for (const SaleLine& line : entry.lines()) {
        lines << InternalSaleRepository::Line{line.barcode, line.quantity, line.unitPrice,
                                              line.total, line.name};
    }
    if (!InternalSaleRepository::insertHeader(s, h) ||
        !InternalSaleRepository::insertLines(s, code, lines) ||
        !StockDocumentWriter::addInternalToStock(s, code)) {
        return false;
    }
    r.code = code;
    r.docSum = h.docSum;
    return true;
}

PreviousInvoice InternalSaleSaver::previousInvoice(int stationId) {
    PreviousInvoice previous;
    Session s = m_database.session(kModule, QStringLiteral("PrevFactor"));
    if (const auto last = InternalSaleRepository::previousInvoice(s, stationId)) {
        previous.docNo = last->docNo;
        previous.received = last->received;
    }
    return previous;
}

DailyTotals::Figures InternalSaleSaver::dailyTotals(int stationId, const QString& date) {
    DailyTotals::Figures figures = DailyTotals(m_database).read(stationId, date);
    Session s = m_database.session(kModule, QStringLiteral("DailySale"));
    const auto sales =
        DocumentTotalsRepository::ofStation(s, stationId, date, 2, DocumentFamily::Internal);
    const auto returns =
        DocumentTotalsRepository::ofStation(s, stationId, date, 3, DocumentFamily::Internal);
    if (!sales || !returns) {
        figures.ok = false;
        return figures;
    }
    figures.salesSum += sales->docSum;
    figures.salesReceived += sales->received;
    figures.returnsSum += returns->docSum;
    figures.returnsReceived += returns->received;
    return figures;
}

}  // namespace sandogh
