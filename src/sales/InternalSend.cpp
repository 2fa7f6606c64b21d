#include "sales/InternalSend.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include "data/Database.h"
#include "data/Transaction.h"
#include "data/procedures/StockDocumentWriter.h"
#include "data/repositories/CenterBranchesRepository.h"
#include "data/repositories/ShopDetailsRepository.h"
#include "sales/SaleDelete.h"
#include "sales/TransferFile.h"
#include "settings/BranchTransferSettings.h"
#include "settings/MessageService.h"

namespace sandogh {

namespace {

const QString kModule = QStringLiteral("frmTransFactor");
// The folder the branches' program has always read the file from.
const QString kWindowsFolder = QStringLiteral("C:\\Velbari");
const QString kHomeFolder = QStringLiteral("Velbari");

}  // namespace

QString InternalSend::fileName() {
    return QStringLiteral("RptFactors.txt");
}

QString InternalSend::noBranchesText() {
    return QStringLiteral(" هيچ مشتري يا شعبه اي در سيستم تعريف نشده است");
}

QString InternalSend::sentText() {
    return QStringLiteral("ارسال شده");
}

QString InternalSend::notSentText() {
    return QStringLiteral("ارسال نشده");
}

QString InternalSend::nothingTickedText() {
    return QStringLiteral("هيچ موردي براي ارسال انتخاب نشده است");
}

QString InternalSend::doneText() {
    return QStringLiteral("عمليات با موفقيت انجام شد");
}

QString InternalSend::folderFailedText() {
    return QStringLiteral("پوشه فايل انتقال ساخته يا نوشته نشد: ");
}

QString InternalSend::folder(const BranchTransferSettings* settings) {
#ifdef Q_OS_WIN
    Q_UNUSED(settings);
    return kWindowsFolder;
#else
    const QString kept = settings != nullptr ? settings->folder() : QString();
    return kept.isEmpty() ? QDir::home().filePath(kHomeFolder) : kept;
#endif
}

QString InternalSend::shopId(Database& database) {
    const QString name = ShopDetailsRepository(database).companyName();
    return name.isEmpty() ? QString::fromLatin1(kUnnamedShop) : name;
}

QString InternalSend::pathIn(const QString& folder) {
    return QDir(folder).filePath(fileName());
}

InternalSend::InternalSend(Database& database, MessageService& messages)
    : m_database(database), m_messages(messages) {}

std::optional<QList<CenterBranch>> InternalSend::branches() {
    Session s = m_database.session(kModule, QStringLiteral("FillBranches"));
    std::optional<QList<CenterBranch>> rows =
        CenterBranchesRepository::ofKind(s, CenterBranchesRepository::kBranch);
    if (rows && rows->isEmpty()) {
        m_messages.show(noBranchesText(), MessageStyle::Critical);
    }
    return rows;
}

QList<InternalTransferRepository::Invoice> InternalSend::invoices(int branchId) {
    Session s = m_database.session(kModule, QStringLiteral("FillGrid"));
    return InternalTransferRepository::invoices(s, branchId)
        .value_or(QList<InternalTransferRepository::Invoice>{});
}

InternalSend::Outcome InternalSend::send(int branchId, const QList<qint64>& ticked,
                                         const QString& path, const QString& shopId) {
    if (ticked.isEmpty()) {
        m_messages.show(nothingTickedText(), MessageStyle::Critical);
        return Outcome::NothingTicked;
    }
    const QString folder = QFileInfo(path).absolutePath();
    if (!QDir().mkpath(folder)) {
        m_messages.show(folderFailedText() + folder, MessageStyle::Critical);
        return Outcome::Failed;
    }
    Session s = m_database.session(kModule, QStringLiteral("cmdSend_Click"));
    Transaction tx(s);
    if (!tx.isActive() || !procedures::StockDocumentWriter::lockWriters(s)) {
        return Outcome::Failed;
    }
    TransferBatch batch{shopId.left(TransferFile::kMaxShopId), branchId, {}};
    for (const qint64 code : ticked) {
        bool failed = false;
        const std::optional<InternalTransferRepository::Invoice> found =
            InternalTransferRepository::invoice(s, branchId, code, failed);
        const std::optional<QList<InternalTransferRepository::Line>> lines =
            found ? InternalTransferRepository::lines(s, code) : std::nullopt;
        if (!failed && !found) {
            // Deleted or moved to another branch since the list was read.
            tx.rollback();
            m_messages.show(SaleDelete::notFoundText(), MessageStyle::Critical);
            return Outcome::Failed;
        }
        if (failed || !lines || !InternalTransferRepository::markSent(s, code)) {
            tx.rollback();
            return Outcome::Failed;
        }
        TransferInvoice invoice{
            found->code, found->docNo, found->docDate, found->docSum, found->discount, found->note,
            {}};
        for (const InternalTransferRepository::Line& l : *lines) {
            invoice.lines << TransferLine{l.barcode, l.qty, l.fee, l.price};
        }
        batch.invoices << invoice;
    }
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(TransferFile::write(batch)) < 0 ||
        !file.commit()) {
        tx.rollback();
        m_messages.show(folderFailedText() + path, MessageStyle::Critical);
        return Outcome::Failed;
    }
    if (!tx.commit()) {
        // The invoices stay unsent, so the file must not stay behind as if they were.
        QFile::remove(path);
        return Outcome::Failed;
    }
    m_writtenFile = path;
    m_messages.show(doneText(), MessageStyle::Information);
    return Outcome::Sent;
}

}  // namespace sandogh
