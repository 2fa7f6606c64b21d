#include "data/repositories/SaleListQuery.h"

#include "data/Dialect.h"
#include "data/Session.h"
#include "data/SqlQuery.h"
#include "data/repositories/GoodsSearchQuery.h"

namespace sandogh {

namespace {

// The number as the index orders it (spelled as the schema's index spells it).
const QString kNumber = QStringLiteral("CAST(DocNo AS BIGINT)");

// What TextHelpers::searchKey folds, as pairs of (from, to): Arabic yeh, alef maksura and
// Arabic kaf to the Persian letters, Persian and Arabic-Indic digits to ASCII, and the
// zero-width non-joiner removed.
QList<QPair<QString, QString>> foldPairs() {
    QList<QPair<QString, QString>> pairs{
        {QString(QChar(0x064A)), QString(QChar(0x06CC))},
        {QString(QChar(0x0649)), QString(QChar(0x06CC))},
        {QString(QChar(0x0643)), QString(QChar(0x06A9))},
        {QString(QChar(0x200C)), QString()},
    };
    for (int d = 0; d < 10; ++d) {
        pairs.append({QString(QChar(0x06F0 + d)), QString::number(d)});
        pairs.append({QString(QChar(0x0660 + d)), QString::number(d)});
    }
    return pairs;
}

// The typed text as the stored keys hold theirs.
QString keyOf(const QString& typed) {
    return GoodsSearchQuery::searchKey(typed.trimmed());
}

// Whether the SQLite trigram table narrows the search: it holds runs of three characters.
bool usesTrigramTable(Session& session, const QString& typed) {
    return session.backend() == Backend::SQLite && keyOf(typed).size() >= 3;
}

}  // namespace

QString SaleListQuery::searchKeySql(const QString& expression, const QString& key) {
    // Fixed characters of the fold, not values: written into the statement as literals. A
    // character is folded only when what it folds to is in the searched key (otherwise it
    // cannot take part in a match); the zero-width non-joiner always goes. Each REPLACE costs
    // a pass over every customer's name, so a name typed without digits takes three.
    QString sql = expression;
    for (const auto& [from, to] : foldPairs()) {
        if (to.isEmpty() || key.contains(to)) {
            sql = QStringLiteral("REPLACE(%1, '%2', '%3')").arg(sql, from, to);
        }
    }
    return sql;
}

QString SaleListQuery::statement(Session& session, const Filter& filter, bool descending,
                                 bool atStart, int rows) {
    const Dialect& d = session.dialect();
    const QString customerName =
        d.concat({QStringLiteral("COALESCE(T.Name, '')"), QStringLiteral("' '"),
                  QStringLiteral("COALESCE(T.Value1, '')")});
    QString sql = QStringLiteral("SELECT ") + d.top(rows) + QStringLiteral("H.DocNo, H.DocDate, ") +
                  customerName +
                  QStringLiteral(
                      ", H.DocSum, H.Base, V.Code, H.Code, H.DocumentHID, "
                      "H.CompanyID, ") +
                  kNumber +
                  QStringLiteral(
                      " FROM Whs_QTYDocH H LEFT OUTER JOIN Types T ON "
                      "H.CompanyID = T.Counter LEFT OUTER JOIN tblDocumentH V ON "
                      "V.ID = H.DocumentHID WHERE H.TransType = :transType AND "
                      "H.DocType IS NULL");
    if (!filter.docNo.trimmed().isEmpty()) {
        sql += QStringLiteral(" AND H.DocNo = :docNo");
    }
    if (!filter.docDate.trimmed().isEmpty()) {
        sql += filter.docDate.trimmed() == QLatin1String(SqlQuery::kEmptyDate)
                   ? QStringLiteral(
                         " AND (H.DocDate IS NULL OR H.DocDate = '' OR "
                         "H.DocDate = :docDate)")
                   : QStringLiteral(" AND H.DocDate = :docDate");
    }
    // Customer and Base by their stored search keys. On SQLite the rows holding the text are
    // first taken from the key's trigram index (a word of three characters or more), then
    // compared with the key as before; PostgreSQL finds LIKE through its trigram index
    // itself; SQL Server compares every key.
    if (!filter.customer.trimmed().isEmpty()) {
        sql += QStringLiteral(
            " AND H.CompanyID IN (SELECT C.Counter FROM Types C WHERE C.NameKey LIKE :customer");
        if (usesTrigramTable(session, filter.customer)) {
            sql += QStringLiteral(
                " AND C.Counter IN (SELECT rowid FROM PartyNameSearch WHERE NameKey LIKE "
                ":customerIndexed)");
        }
        sql += QLatin1Char(')');
    }
    if (!filter.base.trimmed().isEmpty()) {
        sql += QStringLiteral(" AND H.BaseKey LIKE :base");
        if (usesTrigramTable(session, filter.base)) {
            sql += QStringLiteral(
                " AND H.Code IN (SELECT rowid FROM DocumentBaseSearch WHERE BaseKey LIKE "
                ":baseIndexed)");
        }
    }
    return sql + keysetTail(session, kNumber, descending, atStart, rows);
}

QString SaleListQuery::keysetTail(Session& session, const QString& number, bool descending,
                                  bool atStart, int rows) {
    QString sql;
    if (!atStart) {
        const QString cmp = descending ? QStringLiteral("<") : QStringLiteral(">");
        if (session.backend() == Backend::SqlServer) {
            sql += QStringLiteral(
                       " AND (%1 %2 :afterNumber OR (%1 = :afterNumber2 AND H.Code "
                       "%2 :afterCode))")
                       .arg(number, cmp);
        } else {
            sql +=
                QStringLiteral(" AND (%1, H.Code) %2 (:afterNumber, :afterCode)").arg(number, cmp);
        }
    }
    const QString order = descending ? QStringLiteral(" DESC") : QString();
    return sql + QStringLiteral(" ORDER BY ") + number + order + QStringLiteral(", H.Code") +
           order + session.dialect().limit(rows);
}

void SaleListQuery::bindAfter(SqlQuery& q, Session& session, const Position& after) {
    if (after.atStart) {
        return;
    }
    q.bind(QStringLiteral(":afterNumber"), after.number);
    q.bind(QStringLiteral(":afterCode"), after.code);
    if (session.backend() == Backend::SqlServer) {
        q.bind(QStringLiteral(":afterNumber2"), after.number);
    }
}

QList<SaleListQuery::Row> SaleListQuery::page(Session& session, const Filter& filter,
                                              bool descending, const Position& after, int rows) {
    QList<Row> result;
    if (rows <= 0) {
        return result;
    }
    SqlQuery q(session, statement(session, filter, descending, after.atStart, rows));
    q.bind(QStringLiteral(":transType"), filter.transType);
    if (!filter.docNo.trimmed().isEmpty()) {
        q.bind(QStringLiteral(":docNo"), filter.docNo.trimmed());
    }
    if (!filter.docDate.trimmed().isEmpty()) {
        q.bind(QStringLiteral(":docDate"), filter.docDate.trimmed());
    }
    const auto bindKey = [&](const QString& typed, const QString& name) {
        if (typed.trimmed().isEmpty()) {
            return;
        }
        const QString pattern = QLatin1Char('%') + keyOf(typed) + QLatin1Char('%');
        q.bind(name, pattern);
        if (usesTrigramTable(session, typed)) {
            q.bind(name + QStringLiteral("Indexed"), pattern);
        }
    };
    bindKey(filter.customer, QStringLiteral(":customer"));
    bindKey(filter.base, QStringLiteral(":base"));
    bindAfter(q, session, after);
    if (!q.exec()) {
        return result;
    }
    while (q.next()) {
        Row r;
        r.docNo = q.text(0);
        r.docDate = q.date(1);
        r.customerName = q.text(2).trimmed();
        r.docSum = q.number(3);
        r.base = q.text(4);
        r.voucherCode = q.int64(5);
        r.code = q.int64(6);
        r.documentHId = q.int64(7);
        r.customerId = q.integer(8);
        r.number = q.int64(9);
        result << r;
    }
    return result;
}

SaleListQuery::Position SaleListQuery::positionAfter(const QList<Row>& rows,
                                                     const Position& after) {
    if (rows.isEmpty()) {
        return after;
    }
    return {false, rows.last().number, rows.last().code};
}

}  // namespace sandogh
