#include "sales/ReceiptReader.h"

#include "common/PersianWords.h"
#include "data/Database.h"
#include "data/repositories/InternalReceiptRepository.h"
#include "data/repositories/ReceiptPayments.h"
#include "data/repositories/SaleReceiptRepository.h"
#include "settings/MessageService.h"

namespace sandogh {

namespace {

const QString kModule = QStringLiteral("SaleReceipt");

constexpr int kSaleReturnTransType = 3;

}  // namespace

const QString& ReceiptReader::rialWord() {
    static const QString word = QStringLiteral("ريال");
    return word;
}

const QString& ReceiptReader::tomanWord() {
    static const QString word = QStringLiteral("تومان");
    return word;
}

const QString& ReceiptReader::reprintTitle() {
    static const QString title = QStringLiteral("چاپ مجدد");
    return title;
}

const QString& ReceiptReader::notFoundText() {
    static const QString text = QStringLiteral("فاكتور مورد نظر يافت نشد.");
    return text;
}

QString ReceiptReader::totalInWords(double total, bool isRial) {
    const QString words = QString::fromStdString(PersianWords::number(std::max(0.0, total)));
    return words + QLatin1Char(' ') + (isRial ? rialWord() : tomanWord());
}

ReceiptReader::Status ReceiptReader::read(qint64 code, bool isRial, ReceiptData& receipt) {
    const Status header = readHeader(code, receipt);
    if (header != Status::Ok) {
        return header;
    }
    bool failed = false;
    const std::optional<double> total = documentTotal(code, failed);
    if (!total) {
        return failed ? Status::Failed : Status::NotFound;
    }
    receipt.totalInWords = totalInWords(*total, isRial);
    if (!readLines(code, receipt) || !readCustomer(receipt)) {
        return Status::Failed;
    }
    Session session = m_database.session(kModule, QStringLiteral("ReadPayments"));
    const std::optional<ReceiptPayments::Split> split =
        ReceiptPayments::read(session, code, receipt.transType == kSaleReturnTransType);
    if (!split) {
        return Status::Failed;
    }
    receipt.payments.clear();
    for (const ReceiptPayments::Part& part : split->parts) {
        receipt.payments.append({part.account, part.amount});
    }
    receipt.giftCard = split->giftCard;
    readShop(receipt);
    receipt.sentence = sentenceOfTheDay();
    return Status::Ok;
}

ReceiptReader::Status ReceiptReader::readInternal(qint64 code, bool isRial, ReceiptData& receipt) {
    Session session = m_database.session(kModule, QStringLiteral("ReadInternal"));
    bool failed = false;
    const std::optional<InternalReceiptRepository::Header> header =
        InternalReceiptRepository::header(session, code, failed);
    if (!header) {
        return failed ? Status::Failed : Status::NotFound;
    }
    const std::optional<QList<InternalReceiptRepository::Line>> lines =
        InternalReceiptRepository::lines(session, code);
    if (!lines) {
        return Status::Failed;
    }
    receipt.code = header->code;
    receipt.docNo = header->docNo;
    receipt.docDate = header->docDate;
    receipt.docTime = header->docTime;
    receipt.transType = header->transType;
    receipt.customerId = header->branchId;
    receipt.customerName = header->branchName;
    receipt.docSum = header->docSum;
    receipt.discount = header->discount;
    receipt.overhead = header->overhead;
    receipt.received = header->received;
    receipt.totalInWords = totalInWords(header->docSum, isRial);
    receipt.lines.clear();
    for (const InternalReceiptRepository::Line& l : *lines) {
        receipt.lines.append(ReceiptLine{l.barcode, l.name, l.quantity, l.fee, l.price});
    }
    receipt.payments.clear();
    readShop(receipt);
    receipt.sentence = sentenceOfTheDay();
    return Status::Ok;
}

ReceiptReader::Status ReceiptReader::readHeader(qint64 code, ReceiptData& receipt) {
    Session session = m_database.session(kModule, QStringLiteral("ReadHeader"));
    const auto read = SaleReceiptRepository::header(session, code);
    if (!read) {
        return Status::Failed;
    }
    if (!*read) {
        return Status::NotFound;
    }
    const SaleReceiptRepository::Header& h = **read;
    receipt.code = h.code;
    receipt.customerId = h.customerId;
    receipt.discountName = h.discountName;
    receipt.overheadName = h.overheadName;
    receipt.docNo = h.docNo;
    receipt.docDate = h.docDate;
    receipt.docTime = h.docTime;
    receipt.transType = h.transType;
    receipt.docSum = h.docSum;
    receipt.discount = h.discount;
    receipt.overhead = h.overhead;
    receipt.received = h.received;
    receipt.payTypeName = h.payTypeName;
    receipt.discountTypeId = h.discountTypeId;
    receipt.overheadId = h.overheadId;
    receipt.discountIsGift = h.discountIsGift;
    return Status::Ok;
}

std::optional<double> ReceiptReader::documentTotal(qint64 code, bool& failed) {
    Session session = m_database.session(kModule, QStringLiteral("DocSum"));
    const std::optional<std::optional<double>> total = SaleReceiptRepository::docSum(session, code);
    failed = !total;
    if (failed && !session.state()->connectionMessageShown) {
        m_messages.show(Database::connectionFailureMessage(), MessageStyle::CriticalPlain);
    }
    return failed ? std::nullopt : *total;
}

bool ReceiptReader::readLines(qint64 code, ReceiptData& receipt) {
    Session session = m_database.session(kModule, QStringLiteral("ReadLines"));
    std::optional<QList<ReceiptLine>> lines = SaleReceiptRepository::lines(session, code);
    if (!lines) {
        return false;
    }
    receipt.lines = std::move(*lines);
    return true;
}

bool ReceiptReader::readCustomer(ReceiptData& receipt) {
    if (receipt.customerId == 0) {
        return true;
    }
    Session session = m_database.session(kModule, QStringLiteral("ReadCustomer"));
    const std::optional<QString> name =
        SaleReceiptRepository::customerName(session, receipt.customerId);
    if (!name) {
        return false;
    }
    receipt.customerName = *name;
    return true;
}

void ReceiptReader::readShop(ReceiptData& receipt) {
    Session session = m_database.session(kModule, QStringLiteral("ReadShop"));
    if (const auto shop = SaleReceiptRepository::shop(session)) {
        receipt.shopName = shop->name;
        receipt.shopTel = shop->tel;
        receipt.shopAddress = shop->address;
    }
}

QString ReceiptReader::sentenceOfTheDay() {
    Session session = m_database.session(kModule, QStringLiteral("Sentence"));
    const auto sentence = SaleReceiptRepository::randomSentence(session);
    if (!sentence || sentence->description.isEmpty()) {
        return {};
    }
    return sentence->description + QStringLiteral(" : ") + sentence->author;
}

}  // namespace sandogh
