#include "sales/ReceiptReader.h"

#include "common/PersianWords.h"
#include "data/Database.h"
#include "data/Dialect.h"
#include "data/SqlQuery.h"
#include "data/repositories/InternalReceiptRepository.h"
#include "data/repositories/ReceiptPayments.h"
#include "settings/MessageService.h"

namespace sandogh {

namespace {

const QString kModule = QStringLiteral("SaleReceipt");

// The parties of the parameter table, persons and companies; either can be the customer.
constexpr int kPersonTypeNo = 10;
constexpr int kCompanyTypeNo = 11;
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
    SqlQuery q(session,
               QStringLiteral(
                   "SELECT H.Code, COALESCE(H.CompanyID,0) CompanyID, COALESCE(T.Name,'') "
                   "DiscountDescription, COALESCE(O.Name,'') OverheadName, COALESCE(H.DocNo,''), "
                   "COALESCE(H.DocDate,''), COALESCE(H.DocTime,''), COALESCE(H.TransType,0), "
                   "COALESCE(H.DocSum,0), COALESCE(H.Discount,0), COALESCE(H.Sarbar,0), "
                   "COALESCE(H.ReceivedPrice,0), COALESCE(P.Name,''), "
                   "COALESCE(H.DiscountTypeId,0), COALESCE(H.OverheadID,0), "
                   "CASE WHEN T.Id IS NULL THEN 0 ELSE COALESCE(T.IsImpactGift,1) END "
                   "FROM Whs_QTYDocH H LEFT OUTER JOIN DiscountType T ON H.DiscountTypeId = T.Id "
                   "LEFT OUTER JOIN Overhead O ON H.OverheadID = O.Id "
                   "LEFT OUTER JOIN tblPaymentType P ON H.PayType = P.Code "
                   "WHERE H.Code = :code"));
    q.bind(QStringLiteral(":code"), code);
    if (!q.exec()) {
        return Status::Failed;
    }
    if (!q.next()) {
        return Status::NotFound;
    }
    receipt.code = q.int64(0);
    receipt.customerId = q.integer(1);
    receipt.discountName = q.text(2).trimmed();
    receipt.overheadName = q.text(3).trimmed();
    receipt.docNo = q.text(4).trimmed();
    receipt.docDate = q.date(5);
    receipt.docTime = q.text(6).trimmed();
    receipt.transType = q.integer(7);
    receipt.docSum = q.number(8);
    receipt.discount = q.number(9);
    receipt.overhead = q.number(10);
    receipt.received = q.number(11);
    receipt.payTypeName = q.text(12).trimmed();
    receipt.discountTypeId = q.integer(13);
    receipt.overheadId = q.integer(14);
    receipt.discountIsGift = receipt.discountTypeId != 0 && q.integer(15) != 0;
    return Status::Ok;
}

std::optional<double> ReceiptReader::documentTotal(qint64 code, bool& failed) {
    Session session = m_database.session(kModule, QStringLiteral("DocSum"));
    SqlQuery q(session, QStringLiteral("Select DocSum From Whs_QtyDocH Where Code = :code"));
    q.bind(QStringLiteral(":code"), code);
    q.setLogging(FailureLogging::Quiet);
    failed = !q.exec();
    if (failed && !session.state()->connectionMessageShown) {
        m_messages.show(Database::connectionFailureMessage(), MessageStyle::CriticalPlain);
    }
    if (failed || !q.next()) {
        return std::nullopt;
    }
    return q.number(0);
}

bool ReceiptReader::readLines(qint64 code, ReceiptData& receipt) {
    Session session = m_database.session(kModule, QStringLiteral("ReadLines"));
    SqlQuery q(session, QStringLiteral("SELECT D.EAN_Code, COALESCE(G.Name,''), COALESCE(D.Qty,0), "
                                       "COALESCE(D.Fee,0), COALESCE(D.Price,0) "
                                       "FROM Whs_QTYDocD D LEFT OUTER JOIN Goods G "
                                       "ON G.EAN_Code = D.EAN_Code WHERE D.Code = :code "
                                       "ORDER BY D.ID"));
    q.bind(QStringLiteral(":code"), code);
    if (!q.exec()) {
        return false;
    }
    receipt.lines.clear();
    while (q.next()) {
        receipt.lines.append(ReceiptLine{q.text(0).trimmed(), q.text(1).trimmed(), q.number(2),
                                         q.number(3), q.number(4)});
    }
    return true;
}

bool ReceiptReader::readCustomer(ReceiptData& receipt) {
    if (receipt.customerId == 0) {
        return true;
    }
    Session session = m_database.session(kModule, QStringLiteral("ReadCustomer"));
    const Dialect& dialect = session.dialect();
    SqlQuery q(session,
               QStringLiteral("SELECT Counter, ") +
                   dialect.concat({QStringLiteral("COALESCE(Name,'')"), QStringLiteral("' '"),
                                   QStringLiteral("COALESCE(Value1,'')")}) +
                   QStringLiteral(" AS CompanyName FROM Types WHERE (TypeNo = :persons "
                                  "OR TypeNo = :companies) AND Counter = :customer"));
    q.bind(QStringLiteral(":persons"), kPersonTypeNo);
    q.bind(QStringLiteral(":companies"), kCompanyTypeNo);
    q.bind(QStringLiteral(":customer"), receipt.customerId);
    if (!q.exec()) {
        return false;
    }
    receipt.customerName = q.next() ? q.text(1).trimmed() : QString();
    return true;
}

void ReceiptReader::readShop(ReceiptData& receipt) {
    Session session = m_database.session(kModule, QStringLiteral("ReadShop"));
    const Dialect& dialect = session.dialect();
    SqlQuery q(session, QStringLiteral("SELECT ") + dialect.top(1) +
                            QStringLiteral("Company_Name, Company_Tel, Company_Address "
                                           "FROM Company") +
                            dialect.limit(1));
    if (q.exec() && q.next()) {
        receipt.shopName = q.text(0).trimmed();
        receipt.shopTel = q.text(1).trimmed();
        receipt.shopAddress = q.text(2).trimmed();
    }
}

QString ReceiptReader::sentenceOfTheDay() {
    Session session = m_database.session(kModule, QStringLiteral("Sentence"));
    const Dialect& dialect = session.dialect();
    SqlQuery q(session, QStringLiteral("Select ") + dialect.top(1) +
                            QStringLiteral("* From Sentences Order By ") + dialect.randomOrder() +
                            dialect.limit(1));
    if (!q.exec() || !q.next()) {
        return {};
    }
    const QString description = q.text(QStringLiteral("Description")).trimmed();
    const QString author = q.text(QStringLiteral("Author")).trimmed();
    if (description.isEmpty()) {
        return {};
    }
    return description + QStringLiteral(" : ") + author;
}

}  // namespace sandogh
