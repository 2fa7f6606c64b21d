#include "data/repositories/PurchaseDocuments.h"

#include "data/Database.h"
#include "data/Dialect.h"
#include "data/SqlQuery.h"

namespace sandogh {

namespace {

const QString kModule = QStringLiteral("frmBuy");

bool readLines(SqlQuery& q, QList<PurchaseDocuments::SourceLine>& lines) {
    if (!q.exec()) {
        return false;
    }
    while (q.next()) {
        PurchaseDocuments::SourceLine line;
        line.barcode = q.text(0).trimmed();
        line.name = q.text(1);
        line.qty = q.number(2);
        line.mFee = q.number(3);
        line.discount = q.number(4);
        line.taxValue = q.number(5);
        lines << line;
    }
    return true;
}

}  // namespace

PurchaseDocuments::PurchaseDocuments(Database& database) : m_database(database) {}

PurchaseDocuments::Lists PurchaseDocuments::lists() {
    Session s = m_database.session(kModule, QStringLiteral("Form_Load"));
    const auto read = [&s](const QString& sql, const SqlBinds& binds) {
        QList<Item> items;
        SqlQuery q(s, sql);
        for (const auto& [name, value] : binds) {
            q.bindValue(name, value);
        }
        if (q.exec()) {
            while (q.next()) {
                items << Item{q.integer(0), q.text(1)};
            }
        }
        return items;
    };
    Lists lists;
    lists.warehouses = read(QStringLiteral("SELECT Code, COALESCE(Name, '') AS Name FROM "
                                           "tblWarehouse WHERE ISActive = :active ORDER BY Code"),
                            {{QStringLiteral(":active"), 1}});
    lists.paymentKinds = read(
        QStringLiteral("SELECT Code, COALESCE(Name, '') FROM tblPaymentType ORDER BY Code"), {});
    SqlQuery groups(s, QStringLiteral("SELECT ID, COALESCE(Code, 0), COALESCE(Name, '') FROM "
                                      "tblAccountingGroup ORDER BY Code"));
    if (groups.exec()) {
        while (groups.next()) {
            lists.accountingGroups
                << Item{groups.integer(0), groups.text(1) + QStringLiteral(" - ") + groups.text(2)};
        }
    }
    return lists;
}

std::optional<bool> PurchaseDocuments::goodsExists(const QString& barcode) {
    Session s = m_database.session(kModule, QStringLiteral("txtBarcode_KeyDown"));
    const QVariant count =
        s.scalar(QStringLiteral("SELECT COUNT(ID) FROM Goods WHERE EAN_Code = :barcode"),
                 {{QStringLiteral(":barcode"), barcode}});
    if (!count.isValid()) {
        return std::nullopt;
    }
    return count.toLongLong() > 0;
}

std::optional<PurchaseDocuments::Article> PurchaseDocuments::article(const QString& barcode) {
    Session s = m_database.session(kModule, QStringLiteral("FillLine"));
    // The newest purchase line is the largest line ID of the article's ordinary purchases,
    // one seek on the (EAN_Code, ID) index of the lines.
    SqlQuery q(
        s, QStringLiteral("SELECT G.EAN_Code, COALESCE(G.Name, ''), COALESCE(S.Stock, 0), "
                          "COALESCE(L.MFee, 0), COALESCE(L.Discount, 0), COALESCE(L.TaxValue, 0), "
                          "COALESCE(U.Name, ''), COALESCE(G.Cost, 0) FROM Goods G "
                          "LEFT JOIN Stock S ON S.Barcode = G.EAN_Code "
                          "LEFT JOIN Types U ON U.Counter = G.Unit "
                          "LEFT JOIN Whs_QTYDocD L ON L.ID = (SELECT MAX(D.ID) FROM Whs_QTYDocD D "
                          "INNER JOIN Whs_QTYDocH H ON H.Code = D.Code WHERE H.TransType = 1 "
                          "AND H.DocType IS NULL AND D.EAN_Code = G.EAN_Code) "
                          "WHERE G.EAN_Code = :barcode"));
    q.bind(QStringLiteral(":barcode"), barcode);
    if (!q.exec() || !q.next()) {
        return std::nullopt;
    }
    Article a;
    a.barcode = q.text(0).trimmed();
    a.name = q.text(1);
    a.stock = q.number(2);
    a.mFee = q.number(3);
    a.discount = q.number(4);
    a.taxValue = q.number(5);
    a.unitName = q.text(6);
    a.cost = q.number(7);
    return a;
}

std::optional<PurchaseDocuments::Source> PurchaseDocuments::preInvoice(qint64 code) {
    Session s = m_database.session(kModule, QStringLiteral("LoadPreFactor"));
    SqlQuery q(
        s, QStringLiteral("SELECT D.EAN_Code, G.Name AS Name, COALESCE(D.Qty, 0), "
                          "COALESCE(D.Price, 0) AS MFee, 0 AS Discount, 0 AS TaxValue, "
                          "COALESCE(H.Discount, 0), COALESCE(H.Note, '') AS Note, "
                          "COALESCE(H.CompanyID, 0) AS CompanyID FROM tblPreFactorH H "
                          "INNER JOIN tblPreFactorD D ON H.ID = D.PreFactorHID "
                          "INNER JOIN Goods G ON D.EAN_Code = G.EAN_Code WHERE H.Code = :code"));
    q.bind(QStringLiteral(":code"), code);
    Source source;
    if (!q.exec()) {
        return std::nullopt;
    }
    while (q.next()) {
        SourceLine line;
        line.barcode = q.text(0).trimmed();
        line.name = q.text(1);
        line.qty = q.number(2);
        line.mFee = q.number(3);
        source.lines << line;
        source.discount = q.number(6);
        source.note = q.text(7);
        source.companyId = q.integer(8);
    }
    if (source.lines.isEmpty()) {
        return std::nullopt;
    }
    return source;
}

std::optional<PurchaseDocuments::Source> PurchaseDocuments::document(int transType,
                                                                     const QString& docNo) {
    Session s = m_database.session(kModule, QStringLiteral("LoadDocument"));
    const Dialect& d = s.dialect();
    SqlQuery h(s, QStringLiteral("SELECT ") + d.top(1) +
                      QStringLiteral("Code, COALESCE(CompanyID, 0), COALESCE(Discount, 0), "
                                     "COALESCE(Sarbar, 0), COALESCE(Note, ''), "
                                     "COALESCE(Base, '') FROM Whs_QTYDocH WHERE TransType = "
                                     ":transType AND DocType IS NULL AND DocNo = :docNo "
                                     "ORDER BY Code DESC") +
                      d.limit(1));
    h.bind(QStringLiteral(":transType"), transType).bind(QStringLiteral(":docNo"), docNo);
    if (!h.exec() || !h.next()) {
        return std::nullopt;
    }
    Source source;
    const qint64 code = h.int64(0);
    source.companyId = h.integer(1);
    source.discount = h.number(2);
    source.sarbar = h.number(3);
    source.note = h.text(4);
    source.base = h.text(5);
    SqlQuery q(s, QStringLiteral("SELECT D.EAN_Code, COALESCE(G.Name, ''), COALESCE(D.Qty, 0), "
                                 "COALESCE(D.MFee, 0), COALESCE(D.Discount, 0), "
                                 "COALESCE(D.TaxValue, 0) FROM Whs_QTYDocD D "
                                 "LEFT JOIN Goods G ON G.EAN_Code = D.EAN_Code "
                                 "WHERE D.Code = :code ORDER BY D.ID"));
    q.bind(QStringLiteral(":code"), code);
    if (!readLines(q, source.lines) || source.lines.isEmpty()) {
        return std::nullopt;
    }
    return source;
}

std::optional<PurchaseDocuments::Repeats> PurchaseDocuments::repeats(int transType,
                                                                     const QString& docNo,
                                                                     int supplier) {
    Session s = m_database.session(kModule, QStringLiteral("CheckRepeat"));
    SqlQuery q(s, QStringLiteral("SELECT COUNT(Code), COALESCE(SUM(CASE WHEN CompanyID = "
                                 ":supplier THEN 1 ELSE 0 END), 0) FROM Whs_QTYDocH WHERE "
                                 "DocType IS NULL AND TransType = :transType AND "
                                 "LTRIM(RTRIM(DocNo)) = :docNo"));
    q.bind(QStringLiteral(":supplier"), supplier)
        .bind(QStringLiteral(":transType"), transType)
        .bind(QStringLiteral(":docNo"), docNo.trimmed());
    if (!q.exec() || !q.next()) {
        return std::nullopt;
    }
    return Repeats{q.int64(0), q.int64(1)};
}

bool PurchaseDocuments::deleteLines(Session& session, qint64 code) {
    return session.exec(QStringLiteral("DELETE FROM Whs_QTYDocD WHERE Code = :code"),
                        {{QStringLiteral(":code"), code}});
}

bool PurchaseDocuments::handOverSerials(Session& session, qint64 code, qint64 pendingCode) {
    return session.exec(
        QStringLiteral("UPDATE Serial SET Code = :code WHERE Code = :pending"),
        {{QStringLiteral(":code"), code}, {QStringLiteral(":pending"), pendingCode}});
}

}  // namespace sandogh
