#include "data/repositories/DocumentReader.h"

#include "data/Dialect.h"
#include "data/Session.h"
#include "data/SqlQuery.h"

namespace sandogh {

namespace {

using Line = DocumentReader::Line;
using Document = DocumentReader::Document;

// Lines read as: barcode, name, quantity, unit price, tax, kind, whether the article is
// in Goods, then optionally the line discount, the seller's ID and name.
bool readLines(SqlQuery& q, QList<Line>& lines, bool withSeller) {
    if (!q.exec()) {
        return false;
    }
    while (q.next()) {
        Line l;
        l.barcode = q.text(0);
        l.name = q.text(1).trimmed();
        l.quantity = q.number(2);
        l.unitPrice = q.number(3);
        l.taxPercent = q.number(4);
        l.goodsKind = q.integer(5);
        l.inGoods = q.integer(6) != 0;
        if (withSeller) {
            l.lineDiscount = q.number(7);
            l.sellerId = q.integer(8);
            l.seller = q.text(9);
        }
        lines << l;
    }
    return true;
}

}  // namespace

std::optional<Document> DocumentReader::savedDocument(Session& session, int transType,
                                                      const QString& docNo, const QString& docDate,
                                                      std::optional<int> docType) {
    const Dialect& d = session.dialect();
    QString sql = QStringLiteral("SELECT ") + d.top(1) +
                  QStringLiteral(
                      "Code, COALESCE(Discount, 0), COALESCE(Base, ''), "
                      "COALESCE(Note, ''), COALESCE(CompanyID, 0) FROM Whs_QTYDocH "
                      "WHERE TransType = :transType AND DocNo = :docNo");
    sql += docType ? QStringLiteral(" AND DocType = :docType")
                   : QStringLiteral(" AND DocType IS NULL");
    if (!docDate.isEmpty()) {
        sql += QStringLiteral(" AND DocDate = :docDate");
    }
    sql += QStringLiteral(" ORDER BY Code DESC") + d.limit(1);
    SqlQuery header(session, sql);
    header.bind(QStringLiteral(":transType"), transType);
    header.bind(QStringLiteral(":docNo"), docNo);
    if (docType) {
        header.bind(QStringLiteral(":docType"), *docType);
    }
    if (!docDate.isEmpty()) {
        header.bind(QStringLiteral(":docDate"), docDate);
    }
    if (!header.exec() || !header.next()) {
        return std::nullopt;
    }
    Document doc;
    doc.code = header.int64(0);
    doc.discount = header.number(1);
    doc.base = header.text(2);
    doc.note = header.text(3);
    doc.companyId = header.integer(4);

    SqlQuery lines(session,
                   QStringLiteral("SELECT D.EAN_Code, COALESCE(G.Name, ''), COALESCE(D.Qty, 0), "
                                  "COALESCE(D.Fee, 0), COALESCE(D.TaxValue, 0), "
                                  "COALESCE(G.GType, 0), CASE WHEN G.ID IS NULL THEN 0 ELSE 1 END, "
                                  "COALESCE(D.Discount, 0), COALESCE(D.UserID, 0), "
                                  "COALESCE(U.UserName, '') FROM Whs_QTYDocD D "
                                  "LEFT JOIN Goods G ON G.EAN_Code = D.EAN_Code "
                                  "LEFT JOIN Users U ON U.ID = D.UserID WHERE D.Code = :code "
                                  "ORDER BY D.ID"));
    lines.bind(QStringLiteral(":code"), doc.code);
    if (!readLines(lines, doc.lines, true) || doc.lines.isEmpty()) {
        return std::nullopt;
    }
    return doc;
}

std::optional<Document> DocumentReader::preInvoice(Session& session, qint64 code) {
    const Dialect& d = session.dialect();
    SqlQuery header(session, QStringLiteral("SELECT ") + d.top(1) +
                                 QStringLiteral("ID, COALESCE(Discount, 0), COALESCE(Note, ''), "
                                                "COALESCE(CompanyID, 0) FROM tblPreFactorH "
                                                "WHERE Code = :code ORDER BY ID DESC") +
                                 d.limit(1));
    header.bind(QStringLiteral(":code"), code);
    if (!header.exec() || !header.next()) {
        return std::nullopt;
    }
    Document doc;
    const qint64 id = header.int64(0);
    doc.discount = header.number(1);
    doc.note = header.text(2);
    doc.companyId = header.integer(3);

    SqlQuery lines(
        session, QStringLiteral("SELECT D.EAN_Code, COALESCE(G.Name, ''), COALESCE(D.Qty, 0), "
                                "COALESCE(D.Price, 0), COALESCE(G.TaxValue, 0), "
                                "COALESCE(G.GType, 0), CASE WHEN G.ID IS NULL THEN 0 ELSE 1 END "
                                "FROM tblPreFactorD D LEFT JOIN Goods G ON G.EAN_Code = D.EAN_Code "
                                "WHERE D.PreFactorHID = :id"));
    lines.bind(QStringLiteral(":id"), id);
    if (!readLines(lines, doc.lines, false) || doc.lines.isEmpty()) {
        return std::nullopt;
    }
    return doc;
}

std::optional<Document> DocumentReader::branchRequest(Session& session, const QString& docNo,
                                                      int branchCode, int requestDocType,
                                                      const QString& linkedDatabase) {
    const Dialect& d = session.dialect();
    QString sql = QStringLiteral("SELECT ") + d.top(1) +
                  QStringLiteral("H.BranchCode, H.Code FROM ") +
                  d.table(QStringLiteral("RequestH"), linkedDatabase) +
                  QStringLiteral(" H WHERE H.DocType = :docType AND H.DocNo = :docNo");
    if (branchCode != 0) {
        sql += QStringLiteral(" AND H.BranchCode = :branch");
    }
    sql += QStringLiteral(" ORDER BY H.Code DESC") + d.limit(1);
    SqlQuery header(session, sql);
    header.bind(QStringLiteral(":docType"), requestDocType);
    header.bind(QStringLiteral(":docNo"), docNo);
    if (branchCode != 0) {
        header.bind(QStringLiteral(":branch"), branchCode);
    }
    if (!header.exec() || !header.next()) {
        return std::nullopt;
    }
    Document doc;
    const int branch = header.integer(0);
    doc.code = header.int64(1);

    SqlQuery lines(session,
                   QStringLiteral("SELECT D.EAN_Code, COALESCE(G.Name, ''), COALESCE(D.Qty, 0), "
                                  "COALESCE(G.Cost, 0), COALESCE(G.TaxValue, 0), "
                                  "COALESCE(G.GType, 0), CASE WHEN G.ID IS NULL THEN 0 ELSE 1 END "
                                  "FROM ") +
                       d.table(QStringLiteral("RequestD"), linkedDatabase) +
                       QStringLiteral(" D LEFT JOIN Goods G ON G.EAN_Code = D.EAN_Code "
                                      "WHERE D.BranchCode = :branch AND D.Code = :code "
                                      "ORDER BY D.ID"));
    lines.bind(QStringLiteral(":branch"), branch);
    lines.bind(QStringLiteral(":code"), doc.code);
    if (!readLines(lines, doc.lines, false) || doc.lines.isEmpty()) {
        return std::nullopt;
    }
    return doc;
}

}  // namespace sandogh
