#include "sales/InternalReceive.h"

#include <QFile>
#include <QFileInfo>
#include <QStringList>

#include "data/Database.h"
#include "data/JalaliDay.h"
#include "data/Transaction.h"
#include "data/procedures/StockDocumentWriter.h"
#include "data/repositories/CenterBranchesRepository.h"
#include "data/repositories/DocumentNumbering.h"
#include "data/repositories/InternalTransferRepository.h"
#include "sales/InternalSend.h"
#include "sales/TransferFile.h"
#include "settings/Clock.h"
#include "settings/MessageService.h"

namespace sandogh {

namespace {

using namespace procedures;

const QString kModule = QStringLiteral("frmReceiveFactor");
// Larger files are no transfer file of this program; refused before reading them whole.
constexpr qint64 kMaxFileBytes = 64LL * 1024 * 1024;

}  // namespace

QString InternalReceive::fileFilter() {
    return QStringLiteral("All (*.txt)|*.txt");
}

QString InternalReceive::dialogFilter() {
    // "Caption|pattern" of the older file dialogs; Qt's take "Caption (pattern)", which
    // the caption already is.
    return fileFilter().section(u'|', 0, 0);
}

QString InternalReceive::badNameText() {
    return QStringLiteral("فايل مورد نظر نامعتبر مي باشد");
}

QString InternalReceive::noFileText() {
    return QStringLiteral("هيچ فايلي براي باز کردن انتخاب نشده است");
}

QString InternalReceive::unknownGoodsText() {
    return QStringLiteral(
        "تعدادي از کالاهاي موجود در فاکتور مورد نظر در سيستم موجود نيستند,لطفا ابتدا برنامه انتقال "
        "کالا را اجرا نماييد.");
}

QString InternalReceive::garbledText() {
    return QStringLiteral("فايل مورد نظر ناقص است يا تغيير کرده است؛ هيچ فاکتوري از آن دريافت نشد");
}

QString InternalReceive::alreadyReceivedText() {
    return QStringLiteral("فاکتورهاي اين فايل قبلا دريافت شده اند");
}

QString InternalReceive::doneText() {
    return InternalSend::doneText();
}

QString InternalReceive::senderName() {
    return QStringLiteral("مرکز");
}

QString InternalReceive::referenceOf(const QString& shopId, const TransferInvoice& invoice) {
    return QStringLiteral("%1|%2|%3").arg(shopId).arg(invoice.code).arg(invoice.docDate);
}

InternalReceive::InternalReceive(Database& database, MessageService& messages, const Clock& clock,
                                 Desk desk)
    : m_database(database), m_messages(messages), m_clock(clock), m_desk(desk) {}

InternalReceive::Outcome InternalReceive::refuse(Outcome outcome, const QString& text,
                                                 Outcome* out) {
    if (!text.isEmpty()) {
        m_messages.show(text, MessageStyle::Critical);
    }
    if (out != nullptr) {
        *out = outcome;
    }
    return outcome;
}

std::optional<TransferBatch> InternalReceive::open(const QString& path, Outcome* outcome) {
    m_problem.clear();
    if (path.trimmed().isEmpty()) {
        m_problem = QStringLiteral("no file");
        refuse(Outcome::NoFile, noFileText(), outcome);
        return std::nullopt;
    }
    if (QFileInfo(path).fileName().compare(InternalSend::fileName(), Qt::CaseInsensitive) != 0) {
        m_problem = QStringLiteral("the file is not named ") + InternalSend::fileName();
        refuse(Outcome::BadName, badNameText(), outcome);
        return std::nullopt;
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || file.size() > kMaxFileBytes) {
        m_problem = QStringLiteral("cannot read the file");
        refuse(Outcome::BadName, badNameText(), outcome);
        return std::nullopt;
    }
    std::optional<TransferBatch> batch = TransferFile::parse(file.readAll(), &m_problem);
    if (!batch) {
        refuse(Outcome::Garbled, garbledText(), outcome);
        return std::nullopt;
    }
    QStringList barcodes;
    for (const TransferInvoice& invoice : batch->invoices) {
        for (const TransferLine& line : invoice.lines) {
            barcodes << line.barcode;
        }
    }
    std::optional<QStringList> missing;
    {
        Session s = m_database.session(kModule, QStringLiteral("CheckGoods"));
        missing = InternalTransferRepository::missingGoods(s, barcodes);
    }
    if (!missing) {
        refuse(Outcome::Failed, QString(), outcome);
        return std::nullopt;
    }
    if (!missing->isEmpty()) {
        m_problem = QStringLiteral("unknown articles: ") + missing->join(QStringLiteral(" "));
        refuse(Outcome::UnknownGoods, unknownGoodsText(), outcome);
        return std::nullopt;
    }
    return batch;
}

InternalReceive::Outcome InternalReceive::receive(const QString& path) {
    Outcome outcome = Outcome::Failed;
    const std::optional<TransferBatch> batch = open(path, &outcome);
    return batch ? receive(*batch) : outcome;
}

InternalReceive::Outcome InternalReceive::receive(const TransferBatch& batch) {
    m_received = 0;
    m_skipped = 0;
    const QDateTime now = m_clock.now();
    Session s = m_database.session(kModule, QStringLiteral("cmdReceive_Click"));
    Transaction tx(s);
    if (!tx.isActive() || !StockDocumentWriter::lockWriters(s)) {
        return Outcome::Failed;
    }
    const int centre = CenterBranchesRepository::centre(s);
    bool ok = centre > 0;
    int received = 0;
    int skipped = 0;
    for (const TransferInvoice& invoice : batch.invoices) {
        if (!ok) {
            break;
        }
        const QString reference = referenceOf(batch.shopId, invoice);
        const std::optional<bool> already = InternalTransferRepository::received(s, reference);
        if (!already) {
            ok = false;
            break;
        }
        if (*already) {
            ++skipped;
            continue;
        }
        StockDocumentHeader h;
        h.docNo = QString::number(DocumentNumbering::nextInternalDocNo(s, kPurchase));
        h.transType = kPurchase;
        h.companyId = centre;
        h.docDate = JalaliDay::dateText(now.date());
        h.docTime = now.time().toString(QStringLiteral("HH:mm:ss"));
        h.userId = m_desk.userId;
        h.stationId = m_desk.stationId;
        h.docSum = invoice.docSum;
        h.discount = invoice.discount;
        h.note = invoice.note;
        h.atf = invoice.docNo;
        h.base = reference;
        const qint64 code =
            h.docNo != QLatin1String("0") ? StockDocumentWriter::insertInternalHeader(s, h) : 0;
        ok = code > 0;
        for (const TransferLine& line : invoice.lines) {
            if (!ok) {
                break;
            }
            StockDocumentLine l;
            l.eanCode = line.barcode;
            l.qty = line.qty;
            l.fee = line.fee;
            l.price = line.price;
            ok = StockDocumentWriter::insertInternalLine(s, code, l) > 0;
        }
        ok = ok && StockDocumentWriter::addInternalToStock(s, code);
        ++received;
    }
    if (!ok) {
        tx.rollback();
        return Outcome::Failed;
    }
    if (received == 0) {
        tx.rollback();
        m_skipped = skipped;
        m_messages.show(alreadyReceivedText(), MessageStyle::Critical);
        return Outcome::AlreadyReceived;
    }
    if (!tx.commit()) {
        return Outcome::Failed;
    }
    m_received = received;
    m_skipped = skipped;
    m_messages.show(doneText(), MessageStyle::Information);
    return Outcome::Received;
}

}  // namespace sandogh
