#include "sales/SaleDelete.h"

#include <QSet>

#include "data/Database.h"
#include "data/Transaction.h"
#include "data/procedures/StockDocumentWriter.h"
#include "data/procedures/StockProcedures.h"
#include "data/procedures/VoucherProcedures.h"
#include "data/repositories/InternalSaleDeleteRepository.h"
#include "data/repositories/SaleEditRepository.h"
#include "settings/MessageService.h"

namespace sandogh {

namespace {

using namespace procedures;

const QString kModule = QStringLiteral("frmDeleteFactor");
const QString kInternalModule = QStringLiteral("frmDeleteFactorInternal");

// A deleted sale gives back one loyalty gift whatever number it took: kept as the shops have
// always had it, though saving counts the gifts by the discount amount.
constexpr int kGiftsGivenBack = 1;

}  // namespace

QString SaleDelete::notFoundText() {
    return QStringLiteral("فاكتور مورد نظر يافت نشد.");
}

QString SaleDelete::movementsText() {
    return QStringLiteral(
        "رکورد مورد نظر داراي گردش مي باشد .\r\nابتدا وابستگي ها را حذف نماييد .");
}

QString SaleDelete::doneText() {
    return QStringLiteral("عمليات حذف با موفقيت انجام شد");
}

QString SaleDelete::nothingTickedText() {
    return QStringLiteral("هيچ موردي براي حذف يافت نشد ");
}

QString SaleDelete::internalDoneText() {
    return QStringLiteral("فاكتور مورد نظر حذف گرديد.");
}

SaleDelete::SaleDelete(Database& database, MessageService& messages, const Clock& clock,
                       SaleAudit::Desk desk)
    : m_database(database), m_messages(messages), m_clock(clock), m_desk(desk) {}

SaleDelete::Outcome SaleDelete::deleteOne(int transType, const QString& docNo,
                                          const QString& docDate) {
    std::optional<SaleDeleteRepository::Found> found;
    {
        Session s = m_database.session(kModule, QStringLiteral("Find"));
        bool failed = false;
        found =
            SaleDeleteRepository::find(s, transType, docNo.trimmed(), docDate.trimmed(), failed);
        if (failed) {
            return Outcome::Failed;
        }
    }
    if (!found) {
        m_messages.show(notFoundText(), MessageStyle::Critical);
        return Outcome::NotFound;
    }
    const Outcome outcome = deleteDocument(transType, *found);
    if (outcome == Outcome::Deleted) {
        m_messages.show(doneText(), MessageStyle::Information);
    }
    return outcome;
}

SaleDelete::Outcome SaleDelete::deleteGroup(const QList<SaleDeleteRepository::ListRow>& ticked) {
    if (ticked.isEmpty()) {
        m_messages.show(nothingTickedText(), MessageStyle::Critical);
        return Outcome::NothingTicked;
    }
    for (const SaleDeleteRepository::ListRow& row : ticked) {
        SaleDeleteRepository::Found found{row.code, row.documentHId, 0, row.companyId};
        {
            // The discount kind is not in the list: read it as the single delete does.
            Session s = m_database.session(kModule, QStringLiteral("Find"));
            bool failed = false;
            const auto again =
                SaleDeleteRepository::find(s, row.transType, row.docNo, row.docDate, failed);
            if (failed) {
                return Outcome::Failed;
            }
            if (again && again->code == row.code) {
                found = *again;
            }
        }
        const Outcome outcome = deleteDocument(row.transType, found);
        if (outcome != Outcome::Deleted) {
            return outcome;
        }
    }
    m_messages.show(doneText(), MessageStyle::Information);
    return Outcome::Deleted;
}

SaleDelete::Outcome SaleDelete::deleteInternal(int transType, const QString& docNo) {
    Session s = m_database.session(kInternalModule, QStringLiteral("cmdDelete"));
    if (!s) {
        return Outcome::Failed;
    }
    // The look-up runs inside the transaction with the deletes, so what is deleted is what
    // was found; any failed step rolls the whole document back.
    Transaction tx(s);
    if (!tx.isActive()) {
        m_messages.show(Database::connectionFailureMessage(), MessageStyle::CriticalPlain);
        return Outcome::Failed;
    }
    bool failed = false;
    const std::optional<qint64> code =
        InternalSaleDeleteRepository::find(s, transType, docNo.trimmed(), failed);
    if (!failed && !code) {
        tx.rollback();
        m_messages.show(notFoundText(), MessageStyle::Critical);
        return Outcome::NotFound;
    }
    std::optional<QStringList> barcodes;
    if (!failed) {
        barcodes = InternalSaleDeleteRepository::barcodes(s, *code);
    }
    // Without lines there is nothing to recompute (an empty list would repair every article).
    const bool deleted = !failed && barcodes &&
                         StockDocumentWriter::deleteInternalDocument(s, *code) &&
                         (barcodes->isEmpty() || sp_StockRepair(s, *barcodes)) && tx.commit();
    if (!deleted) {
        if (tx.isActive()) {
            tx.rollback();
        }
        m_messages.show(Database::connectionFailureMessage(), MessageStyle::CriticalPlain);
        return Outcome::Failed;
    }
    m_messages.show(internalDoneText(), MessageStyle::Information);
    return Outcome::Deleted;
}

bool SaleDelete::CanFactorDelete(Session& session, qint64 code, int transType, qint64 documentHId) {
    const qint64 movements = SaleDeleteRepository::movements(session, code, transType, documentHId);
    m_hadMovements = movements > 0;
    if (movements < 0) {
        return false;
    }
    if (movements > 0) {
        m_messages.show(movementsText(), MessageStyle::Critical);
        return false;
    }
    return true;
}

bool SaleDelete::DelRoutine(Session& s, const SaleDeleteRepository::Found& document) {
    bool failed = false;
    const QList<SaleEditRepository::Line> lines =
        SaleEditRepository::lines(s, document.code, &failed);
    if (failed) {
        return false;
    }
    QStringList barcodes;
    for (const SaleEditRepository::Line& l : lines) {
        if (!barcodes.contains(l.line.eanCode)) {
            barcodes << l.line.eanCode;
        }
    }
    if (!SaleAudit::record(s, m_clock, m_desk, SaleAuditRepository::Delete, document.code)) {
        return false;
    }
    if (!StockDocumentWriter::deleteDocument(s, document.code)) {
        return false;
    }
    // Without lines there is nothing to recompute (an empty list would repair every article).
    if (!barcodes.isEmpty() && !sp_StockRepair(s, barcodes)) {
        return false;
    }
    if (document.companyId != 0 &&
        SaleDeleteRepository::isGiftDiscount(s, document.discountTypeId) &&
        !SaleDeleteRepository::giveGiftsBack(s, document.companyId, kGiftsGivenBack)) {
        return false;
    }
    if (!SaleDeleteRepository::deleteGiftCardItems(s, document.code)) {
        return false;
    }
    if (document.documentHId != 0 && (!sp_tblDocumentD_DeleteRow(s, document.documentHId) ||
                                      !sp_tblDocumentH_DeleteRow(s, document.documentHId))) {
        return false;
    }
    return true;
}

SaleDelete::Outcome SaleDelete::deleteDocument(int transType,
                                               const SaleDeleteRepository::Found& document) {
    Session s = m_database.session(kModule, QStringLiteral("DelRoutine"));
    if (!s) {
        return Outcome::Failed;
    }
    // The check runs inside the transaction, so a payment hung on the document meanwhile
    // is seen before anything is deleted.
    Transaction tx(s);
    if (!tx.isActive()) {
        m_messages.show(Database::connectionFailureMessage(), MessageStyle::CriticalPlain);
        return Outcome::Failed;
    }
    if (!CanFactorDelete(s, document.code, transType, document.documentHId)) {
        tx.rollback();
        return m_hadMovements ? Outcome::HasMovements : Outcome::Failed;
    }
    const bool deleted = DelRoutine(s, document) && tx.commit();
    if (!deleted) {
        if (tx.isActive()) {
            tx.rollback();
        }
        m_messages.show(Database::connectionFailureMessage(), MessageStyle::CriticalPlain);
        return Outcome::Failed;
    }
    return Outcome::Deleted;
}

}  // namespace sandogh
