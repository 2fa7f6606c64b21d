#include "data/repositories/DocumentNumbering.h"

#include "data/Database.h"
#include "data/SqlQuery.h"
#include "data/procedures/ReturningInsert.h"

namespace sandogh {

namespace {

const QString kModule = QStringLiteral("DocumentNumbering");

// The number expression is spelled as the partial indexes of the schema spell it, so
// that each maximum is read from the end of one index range. The maximum stands alone in
// its subquery: SQLite reads a bare MAX() from an index, not one wrapped in COALESCE.
const QString kLastDocNo = QStringLiteral(
    "SELECT COALESCE((SELECT MAX(CAST(DocNo AS BIGINT)) FROM Whs_QTYDocH "
    "WHERE TransType = :transType AND DocType IS NULL), 0)");
const QString kLastDocNoOfDate = QStringLiteral(
    "SELECT COALESCE((SELECT MAX(CAST(DocNo AS BIGINT)) FROM Whs_QTYDocH "
    "WHERE TransType = :transType AND DocType IS NULL AND DocDate = :docDate), 0)");
const QString kLastInternalDocNo = QStringLiteral(
    "SELECT COALESCE((SELECT MAX(CAST(DocNo AS BIGINT)) FROM Whs_QTYDocHInternal "
    "WHERE TransType = :transType), 0)");
// Receipts and their returns share a run: "Where (TransType=1 or TransType=4)", taken as
// the larger of the two maxima so that each is one index seek.
const QString kLastReceiptDocNo = QStringLiteral(
    "SELECT COALESCE(MAX(LastDocNo), 0) FROM ("
    "SELECT MAX(CAST(DocNo AS BIGINT)) AS LastDocNo FROM Whs_QTYDocHInternal WHERE TransType = 1 "
    "UNION ALL "
    "SELECT MAX(CAST(DocNo AS BIGINT)) AS LastDocNo FROM Whs_QTYDocHInternal WHERE TransType = 4"
    ") Runs");

// The largest number (or key) that the statement reads, plus one; 0 when it failed.
qint64 plusOne(Session& session, const QString& sql, const SqlBinds& binds = {}) {
    SqlQuery q(session, sql);
    for (const auto& [name, value] : binds) {
        q.bindValue(name, value);
    }
    if (!q.exec() || !q.next()) {
        return 0;
    }
    return q.int64(0) + 1;
}

}  // namespace

DocumentNumbering::DocumentNumbering(Database& database) : m_database(database) {}

DocumentNumbering::Statements DocumentNumbering::statements() {
    return {kLastDocNo, kLastDocNoOfDate, kLastInternalDocNo, kLastReceiptDocNo};
}

std::optional<DocumentNumbering::NumberedVoucher> DocumentNumbering::insertSaleVoucher(
    Session& session, const SaleVoucherRequest& request) {
    // The sale's own header is already written, without a number (NULL is no number to
    // the maximum nor to the typed-number count).
    const bool typed = !request.typedDocNo.isEmpty();
    const QString kind =
        QStringLiteral("FROM Whs_QTYDocH WHERE TransType = :transType AND DocType IS NULL");
    QString docNo;
    QString taken = QStringLiteral("0");
    if (typed) {
        docNo = QStringLiteral("CAST(:docNo AS VARCHAR(20))");
        taken = QStringLiteral("(SELECT COUNT(Code) ") + kind +
                QStringLiteral(" AND DocNo = :docNo AND DocDate = :docDate)");
    } else {
        docNo = QStringLiteral("CAST(COALESCE((SELECT MAX(CAST(DocNo AS BIGINT)) ") + kind +
                (request.daily ? QStringLiteral(" AND DocDate = :docDate") : QString()) +
                QStringLiteral("), 0) + 1 AS VARCHAR(20))");
    }
    const QString note = session.dialect().concat(
        {QStringLiteral(":notePrefix"), QStringLiteral("N.DocNo"), QStringLiteral(":noteSuffix")});
    const QString sql = procedures::ReturningInsert::statement(
        session.backend(),
        QStringLiteral("INSERT INTO tblDocumentH (Code, Date, Time, UserID, Serial, Note)"),
        QStringLiteral("SELECT COALESCE((SELECT MAX(Code) FROM tblDocumentH), 0) + 1, :date, "
                       ":time, :userId, N.DocNo, ") +
            note + QStringLiteral(" FROM (SELECT ") + docNo + QStringLiteral(" AS DocNo, ") +
            taken + QStringLiteral(" AS Taken) N WHERE N.Taken = 0"),
        QStringLiteral("ID, Code, Serial, Note"));
    SqlQuery q(session, sql);
    q.bind(QStringLiteral(":transType"), request.transType);
    if (typed) {
        q.bind(QStringLiteral(":docNo"), request.typedDocNo);
    }
    if (typed || request.daily) {
        q.bind(QStringLiteral(":docDate"), request.date);
    }
    q.bind(QStringLiteral(":date"), request.voucherDate);
    q.bind(QStringLiteral(":time"), request.voucherTime);
    q.bind(QStringLiteral(":userId"), request.userId);
    q.bind(QStringLiteral(":notePrefix"), request.notePrefix);
    q.bind(QStringLiteral(":noteSuffix"), request.noteSuffix);
    if (!q.exec()) {
        return std::nullopt;
    }
    NumberedVoucher numbered;
    if (!q.next()) {
        // Only a typed number that the date has leaves the insert without a row.
        if (!typed) {
            return std::nullopt;
        }
        numbered.typedTaken = true;
        return numbered;
    }
    numbered.voucherId = q.int64(0);
    numbered.voucherCode = q.int64(1);
    numbered.docNo = q.text(2);
    numbered.note = q.text(3);
    return numbered;
}

qint64 DocumentNumbering::nextCode(Session& session) {
    return plusOne(session, QStringLiteral("SELECT COALESCE(MAX(Code), 0) FROM Whs_QTYDocH"));
}

qint64 DocumentNumbering::nextInternalCode(Session& session) {
    return plusOne(session,
                   QStringLiteral("SELECT COALESCE(MAX(Code), 0) FROM Whs_QTYDocHInternal"));
}

qint64 DocumentNumbering::nextDocNo(Session& session, int transType) {
    return plusOne(session, kLastDocNo, {{QStringLiteral(":transType"), transType}});
}

qint64 DocumentNumbering::nextDocNoOfDate(Session& session, int transType, const QString& date) {
    return plusOne(session, kLastDocNoOfDate,
                   {{QStringLiteral(":transType"), transType}, {QStringLiteral(":docDate"), date}});
}

qint64 DocumentNumbering::nextInternalDocNo(Session& session, int transType) {
    if (transType == 1 || transType == 4) {
        return plusOne(session, kLastReceiptDocNo);
    }
    return plusOne(session, kLastInternalDocNo, {{QStringLiteral(":transType"), transType}});
}

qint64 DocumentNumbering::nextCode() {
    Session s = m_database.session(kModule, QStringLiteral("nextCode"));
    return nextCode(s);
}

qint64 DocumentNumbering::nextInternalCode() {
    Session s = m_database.session(kModule, QStringLiteral("nextInternalCode"));
    return nextInternalCode(s);
}

qint64 DocumentNumbering::nextDocNo(int transType) {
    Session s = m_database.session(kModule, QStringLiteral("nextDocNo"));
    return nextDocNo(s, transType);
}

qint64 DocumentNumbering::nextDocNoOfDate(int transType, const QString& date) {
    Session s = m_database.session(kModule, QStringLiteral("nextDocNoOfDate"));
    return nextDocNoOfDate(s, transType, date);
}

qint64 DocumentNumbering::nextSaleDocNo(int transType, const QString& date, bool daily) {
    // Per date, a date without documents starts at 1 whether or not it is the latest
    // date of the kind, so a back-dated sale does not repeat a number of its own day.
    return daily ? nextDocNoOfDate(transType, date) : nextDocNo(transType);
}

qint64 DocumentNumbering::nextInternalDocNo(int transType) {
    Session s = m_database.session(kModule, QStringLiteral("nextInternalDocNo"));
    return nextInternalDocNo(s, transType);
}

QString DocumentNumbering::lastDocDate(int transType) {
    Session s = m_database.session(kModule, QStringLiteral("lastDocDate"));
    return s.scalarText(QStringLiteral("SELECT MAX(DocDate) FROM Whs_QTYDocH "
                                       "WHERE TransType = :transType AND DocType IS NULL"),
                        {{QStringLiteral(":transType"), transType}});
}

std::optional<bool> DocumentNumbering::isSupplierDocNoRepeated(int transType,
                                                               const QString& docNo) {
    Session s = m_database.session(kModule, QStringLiteral("isSupplierDocNoRepeated"));
    const QVariant count =
        s.scalar(QStringLiteral("SELECT COUNT(Code) FROM Whs_QTYDocH WHERE DocType IS NULL "
                                "AND TransType = :transType AND LTRIM(RTRIM(DocNo)) = :docNo"),
                 {{QStringLiteral(":transType"), transType}, {QStringLiteral(":docNo"), docNo}});
    if (!count.isValid()) {
        return std::nullopt;
    }
    return count.toLongLong() > 0;
}

std::optional<bool> DocumentNumbering::isSaleDocNoTaken(int transType, const QString& docNo,
                                                        const QString& date) {
    Session s = m_database.session(kModule, QStringLiteral("isSaleDocNoTaken"));
    const QVariant count =
        s.scalar(QStringLiteral("SELECT COUNT(Code) FROM Whs_QTYDocH WHERE TransType = :transType "
                                "AND DocType IS NULL AND DocNo = :docNo AND DocDate = :docDate"),
                 {{QStringLiteral(":transType"), transType},
                  {QStringLiteral(":docNo"), docNo},
                  {QStringLiteral(":docDate"), date}});
    if (!count.isValid()) {
        return std::nullopt;
    }
    return count.toLongLong() > 0;
}

}  // namespace sandogh
