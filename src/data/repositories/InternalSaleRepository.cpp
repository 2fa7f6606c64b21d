#include "data/repositories/InternalSaleRepository.h"

#include "data/Dialect.h"
#include "data/SqlQuery.h"
#include "data/repositories/DigitText.h"

namespace sandogh {

namespace {

const QString kNextCode =
    QStringLiteral("SELECT COALESCE(MAX(Code), 0) + 1 FROM Whs_QTYDocHInternal");
const QString kDocNoTaken = QStringLiteral(
    "SELECT COUNT(*) FROM Whs_QTYDocHInternal WHERE TransType = :transType AND DocNo = :docNo "
    "AND Code <> :except");
// Atf is written as invoiceNumber() gives it, so comparing the texts compares the numbers.
const QString kEarlierReturn = QStringLiteral(
    "SELECT Code, COALESCE(DocNo, '') FROM Whs_QTYDocHInternal WHERE TransType = 3 AND "
    "Atf = :atf AND Code <> :except ORDER BY Code");
const QString kHeader = QStringLiteral(
    "SELECT Code, COALESCE(DocNo, ''), TransType, COALESCE(CompanyID, 0), COALESCE(DocDate, ''), "
    "COALESCE(UserID, 0), COALESCE(StationID, 0), COALESCE(SalesType, 1), COALESCE(Atf, ''), "
    "COALESCE(Note, '') FROM Whs_QTYDocHInternal WHERE Code = :code");
const QString kLines = QStringLiteral(
    "SELECT D.EAN_Code, COALESCE(D.Qty, 0), COALESCE(D.Fee, 0), COALESCE(D.Price, 0), "
    "COALESCE(G.Name, '') FROM Whs_QTYDocDInternal D LEFT JOIN Goods G ON G.EAN_Code = D.EAN_Code "
    "WHERE D.Code = :code ORDER BY D.ID");
const QString kHeaderColumns = QStringLiteral(
    "Code, DocNo, TransType, CompanyID, DocDate, UserID, DocSum, Discount, DocTime, Sarbar, "
    "ReceivedPrice, StationID, Note, SalesType");
const QString kHeaderValues = QStringLiteral(
    ":code, :docNo, :transType, :companyId, :docDate, :userId, :docSum, :discount, :docTime, "
    ":sarbar, :receivedPrice, :stationId, :note, :salesType");
const QString kInsertLine = QStringLiteral(
    "INSERT INTO Whs_QTYDocDInternal (Code, EAN_Code, Qty, Fee, Price) "
    "VALUES (:code, :barcode, :qty, :fee, :price)");
}  // namespace

QString InternalSaleRepository::invoiceNumber(const QString& typed) {
    return DigitText::leadingNumber(typed);
}

qint64 InternalSaleRepository::nextCode(Session& session) {
    return session.scalarInt64(kNextCode, {}, 0);
}

std::optional<bool> InternalSaleRepository::docNoTaken(Session& session, int transType,
                                                       const QString& docNo, qint64 exceptCode) {
    SqlQuery q(session, kDocNoTaken);
    q.bind(QStringLiteral(":except"), exceptCode);
    q.bind(QStringLiteral(":transType"), transType);
    q.bind(QStringLiteral(":docNo"), docNo.trimmed());
    if (!q.exec()) {
        return std::nullopt;
    }
    return q.next() && q.int64(0) > 0;
}

std::optional<std::optional<InternalSaleRepository::Document>>
InternalSaleRepository::earlierReturn(Session& session, const QString& invoiceNo,
                                      qint64 exceptCode) {
    SqlQuery q(session, kEarlierReturn);
    q.bind(QStringLiteral(":except"), exceptCode);
    q.bind(QStringLiteral(":atf"), invoiceNumber(invoiceNo));
    if (!q.exec()) {
        return std::nullopt;
    }
    if (!q.next()) {
        return std::optional<Document>();
    }
    return std::optional<Document>(Document{q.int64(0), q.text(1)});
}

std::optional<InternalSaleRepository::Saved> InternalSaleRepository::document(Session& session,
                                                                              qint64 code) {
    SqlQuery h(session, kHeader);
    h.bind(QStringLiteral(":code"), code);
    if (!h.exec() || !h.next()) {
        return std::nullopt;
    }
    Saved saved;
    Header& header = saved.header;
    header.code = h.int64(0);
    header.docNo = h.text(1);
    header.transType = h.integer(2);
    header.branchId = h.integer(3);
    header.docDate = h.text(4);
    header.userId = h.integer(5);
    header.stationId = h.integer(6);
    header.salesType = h.integer(7);
    header.atf = h.text(8);
    header.note = h.text(9);
    SqlQuery l(session, kLines);
    l.bind(QStringLiteral(":code"), code);
    if (!l.exec()) {
        return std::nullopt;
    }
    while (l.next()) {
        saved.lines << Line{l.text(0), l.number(1), l.number(2), l.number(3), l.text(4).trimmed()};
    }
    return saved;
}

bool InternalSaleRepository::insertHeader(Session& session, const Header& h) {
    const bool isReturn = !h.atf.isEmpty();
    SqlQuery q(session,
               QStringLiteral("INSERT INTO Whs_QTYDocHInternal (") + kHeaderColumns +
                   (isReturn ? QStringLiteral(", Atf) VALUES (") : QStringLiteral(") VALUES (")) +
                   kHeaderValues + (isReturn ? QStringLiteral(", :atf)") : QStringLiteral(")")));
    q.bind(QStringLiteral(":code"), h.code);
    q.bind(QStringLiteral(":docNo"), h.docNo);
    q.bind(QStringLiteral(":transType"), h.transType);
    q.bind(QStringLiteral(":companyId"), h.branchId);
    q.bind(QStringLiteral(":docDate"), h.docDate);
    q.bind(QStringLiteral(":userId"), h.userId);
    q.bind(QStringLiteral(":docSum"), h.docSum);
    q.bind(QStringLiteral(":discount"), h.discount);
    q.bind(QStringLiteral(":docTime"), h.docTime);
    q.bind(QStringLiteral(":sarbar"), h.sarbar);
    q.bind(QStringLiteral(":receivedPrice"), h.receivedPrice);
    q.bind(QStringLiteral(":stationId"), h.stationId);
    q.bind(QStringLiteral(":note"), h.note);
    q.bind(QStringLiteral(":salesType"), h.salesType);
    if (isReturn) {
        q.bind(QStringLiteral(":atf"), invoiceNumber(h.atf));
    }
    return q.exec();
}

bool InternalSaleRepository::insertLines(Session& session, qint64 code, const QList<Line>& lines) {
    for (const Line& line : lines) {
        SqlQuery q(session, kInsertLine);
        q.bind(QStringLiteral(":code"), code);
        q.bind(QStringLiteral(":barcode"), line.barcode);
        q.bind(QStringLiteral(":qty"), line.qty);
        q.bind(QStringLiteral(":fee"), line.fee);
        q.bind(QStringLiteral(":price"), line.price);
        if (!q.exec()) {
            return false;
        }
    }
    return true;
}

std::optional<InternalSaleRepository::Previous> InternalSaleRepository::previousInvoice(
    Session& session, int stationId) {
    const Dialect& d = session.dialect();
    SqlQuery q(session, QStringLiteral("SELECT ") + d.top(1) +
                            QStringLiteral("COALESCE(DocNo, '0'), COALESCE(ReceivedPrice, 0) "
                                           "FROM Whs_QTYDocHInternal WHERE StationID = :station "
                                           "AND (TransType = 2 OR TransType = 3) "
                                           "ORDER BY Code DESC") +
                            d.limit(1));
    q.bind(QStringLiteral(":station"), stationId);
    if (!q.exec()) {
        return std::nullopt;
    }
    Previous previous;
    if (q.next()) {
        previous.docNo = q.text(0);
        previous.received = q.number(1);
    }
    return previous;
}

}  // namespace sandogh
