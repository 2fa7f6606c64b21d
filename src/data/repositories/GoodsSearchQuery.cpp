#include "data/repositories/GoodsSearchQuery.h"

#include <QRegularExpression>
#include <QSet>
#include <algorithm>

#include "common/TextHelpers.h"
#include "data/Database.h"
#include "data/Dialect.h"
#include "data/SqlQuery.h"
#include "data/repositories/GoodsListQuery.h"

namespace sandogh {

namespace {

const QString kModule = QStringLiteral("GoodsSearchQuery");

// The trigram index finds runs of three characters or more.
constexpr int kIndexedWord = 3;

const QString kColumns = QStringLiteral(
    "G.ID, G.EAN_Code, COALESCE(G.Spec_Code, ''), COALESCE(G.ComplexCode, ''), "
    "COALESCE(G.Name, ''), COALESCE(G.Cost, 0), COALESCE(S.Stock, 0) "
    "FROM Goods G LEFT JOIN Stock S ON S.Barcode = G.EAN_Code WHERE G.ISActive = 1");

bool readRows(SqlQuery& q, QList<GoodsSearchQuery::Row>& out) {
    if (!q.exec()) {
        return false;
    }
    while (q.next()) {
        GoodsSearchQuery::Row r;
        r.id = q.integer(0);
        r.barcode = q.text(1);
        r.specCode = q.text(2);
        r.complexCode = q.text(3);
        r.name = q.text(4);
        r.cost = q.number(5);
        r.stock = q.number(6);
        out << r;
    }
    return true;
}

bool usesFts(const Dialect& dialect) {
    return dialect.backend() == Backend::SQLite;
}

// An FTS5 phrase of the word: inside double quotes, its own quotes doubled.
QString phrase(const QString& word) {
    QString quoted = word;
    quoted.replace(QLatin1Char('"'), QStringLiteral("\"\""));
    return QLatin1Char('"') + quoted + QLatin1Char('"');
}

}  // namespace

GoodsSearchQuery::GoodsSearchQuery(Database& database) : m_database(database) {}

QString GoodsSearchQuery::searchKey(const QString& text) {
    return QString::fromStdString(TextHelpers::searchKey(text.toStdString())).toLower();
}

QString GoodsSearchQuery::nameSql(const QStringList& words, int rows) const {
    const Dialect& d = m_database.dialect();
    QString sql = QStringLiteral("SELECT ") + d.top(rows) + kColumns;
    bool anyIndexed = false;
    for (qsizetype i = 0; i < words.size(); ++i) {
        if (usesFts(d) && words.at(i).size() >= kIndexedWord) {
            anyIndexed = true;
            continue;
        }
        sql += QStringLiteral(" AND G.NameKey LIKE :word%1 ESCAPE '\\'").arg(i);
    }
    if (anyIndexed) {
        sql += QStringLiteral(
            " AND G.ID IN (SELECT rowid FROM GoodsNameSearch WHERE GoodsNameSearch MATCH "
            ":phrases)");
    }
    return sql + d.limit(rows);
}

bool GoodsSearchQuery::findNames(Session& session, const QStringList& words, int rows,
                                 QList<Row>& out) {
    SqlQuery q(session, nameSql(words, rows));
    QStringList phrases;
    for (qsizetype i = 0; i < words.size(); ++i) {
        if (usesFts(session.dialect()) && words.at(i).size() >= kIndexedWord) {
            phrases << phrase(words.at(i));
        } else {
            q.bind(QStringLiteral(":word%1").arg(i),
                   QLatin1Char('%') + GoodsListQuery::escapeLike(words.at(i)) + QLatin1Char('%'));
        }
    }
    if (!phrases.isEmpty()) {
        q.bind(QStringLiteral(":phrases"), phrases.join(QLatin1Char(' ')));
    }
    QList<Row> found;
    if (!readRows(q, found)) {
        return false;
    }
    // In the order of the names as they are searched, whichever letters they are kept in.
    QList<std::pair<QString, Row>> keyed;
    for (const Row& r : std::as_const(found)) {
        keyed.append({searchKey(r.name), r});
    }
    std::sort(keyed.begin(), keyed.end(), [](const auto& a, const auto& b) {
        return a.first == b.first ? a.second.id < b.second.id : a.first < b.first;
    });
    for (const auto& entry : std::as_const(keyed)) {
        out << entry.second;
    }
    return true;
}

bool GoodsSearchQuery::findCodes(Session& session, const QString& code, int rows, QList<Row>& out) {
    const Dialect& d = session.dialect();
    // Barcodes and structured codes by prefix, as a range of their index; the
    // Spec_Code whole.
    for (const QString& column : {QStringLiteral("G.EAN_Code"), QStringLiteral("G.ComplexCode")}) {
        SqlQuery q(session,
                   QStringLiteral("SELECT ") + d.top(rows) + kColumns +
                       QStringLiteral(" AND %1 >= :low AND %1 < :high ORDER BY %1").arg(column) +
                       d.limit(rows));
        q.bind(QStringLiteral(":low"), code);
        q.bind(QStringLiteral(":high"), GoodsListQuery::prefixUpperBound(code));
        if (!readRows(q, out)) {
            return false;
        }
    }
    SqlQuery q(session, QStringLiteral("SELECT ") + d.top(rows) + kColumns +
                            QStringLiteral(" AND G.Spec_Code = :code") + d.limit(rows));
    q.bind(QStringLiteral(":code"), code);
    return readRows(q, out);
}

GoodsSearchQuery::Result GoodsSearchQuery::find(const QString& typed, int rows) {
    Result result;
    // Codes keep their case; digits are read as ASCII.
    const QString code =
        QString::fromStdString(TextHelpers::searchKey(typed.trimmed().toStdString()));
    const QStringList words =
        searchKey(typed).split(QRegularExpression(QStringLiteral("\\s+")), Qt::SkipEmptyParts);
    if (words.isEmpty() || rows <= 0) {
        result.ok = true;
        return result;
    }
    Session session = m_database.session(kModule, QStringLiteral("find"));
    QList<Row> found;
    if (words.size() == 1 && !findCodes(session, code, rows, found)) {
        return result;
    }
    if (!findNames(session, words, rows, found)) {
        return result;
    }
    QSet<int> seen;
    for (const Row& r : std::as_const(found)) {
        if (result.rows.size() == rows) {
            break;
        }
        if (!seen.contains(r.id)) {
            seen.insert(r.id);
            result.rows << r;
        }
    }
    result.ok = true;
    return result;
}

}  // namespace sandogh
