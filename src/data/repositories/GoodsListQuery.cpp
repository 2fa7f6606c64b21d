#include "data/repositories/GoodsListQuery.h"

#include "data/Database.h"
#include "data/SqlQuery.h"
#include "data/repositories/GoodsSearchQuery.h"

namespace sandogh {

namespace {

const QString kModule = QStringLiteral("GoodsListQuery");

}  // namespace

GoodsListQuery::GoodsListQuery(Database& database, SearchColumn column, const QString& text)
    : m_database(database), m_column(column), m_text(text.trimmed()) {
    if (m_column == SearchColumn::Barcode) {
        m_text.remove(QLatin1Char('\''));
    }
    if (m_text.isEmpty()) {
        m_column = SearchColumn::None;
    }
}

QString GoodsListQuery::prefixUpperBound(const QString& prefix) {
    if (prefix.isEmpty()) {
        return {};
    }
    QString bound = prefix;
    const QChar last = bound.back();
    bound.back() = QChar(char16_t(last.unicode() + 1));
    return bound;
}

QString GoodsListQuery::escapeLike(const QString& text) {
    QString escaped;
    escaped.reserve(text.size());
    for (const QChar c : text) {
        if (c == QLatin1Char('\\') || c == QLatin1Char('%') || c == QLatin1Char('_') ||
            c == QLatin1Char('[')) {
            escaped += QLatin1Char('\\');
        }
        escaped += c;
    }
    return escaped;
}

QString GoodsListQuery::orderColumn() const {
    switch (m_column) {
        case SearchColumn::SpecCode:
            return QStringLiteral("G.Spec_Code");
        case SearchColumn::Name:
            return QStringLiteral("G.Name");
        case SearchColumn::None:
        case SearchColumn::Barcode:
            break;
    }
    return QStringLiteral("G.EAN_Code");
}

QString GoodsListQuery::pageSql(bool atStart, int rows) const {
    const Dialect& dialect = m_database.dialect();
    const QString key = orderColumn();
    // The barcode is unique: it orders alone. The other keys repeat and take ID after them.
    const bool unique = key == QLatin1String("G.EAN_Code");
    QString sql = QStringLiteral("SELECT ") + dialect.top(rows) +
                  QStringLiteral(
                      "G.ID, G.EAN_Code, COALESCE(G.Spec_Code, ''), COALESCE(G.Name, ''), "
                      "COALESCE(G.EnName, ''), COALESCE(U.Name, ''), COALESCE(G.Cost, 0), "
                      "COALESCE(S.Stock, 0), COALESCE(G.ISActive, 0) "
                      "FROM Goods G LEFT JOIN Stock S ON S.Barcode = G.EAN_Code "
                      "LEFT JOIN Types U ON U.Counter = G.Unit WHERE 1 = 1");
    switch (m_column) {
        case SearchColumn::Barcode:
        case SearchColumn::SpecCode:
            sql += QStringLiteral(" AND %1 >= :low AND %1 < :high AND %1 LIKE :pattern ESCAPE '\\'")
                       .arg(key);
            break;
        case SearchColumn::Name:
            // The search form of the name (NameKey) against the typed text's.
            sql += QStringLiteral(" AND G.NameKey LIKE :pattern ESCAPE '\\'");
            break;
        case SearchColumn::None:
            break;
    }
    if (!atStart) {
        sql +=
            unique
                ? QStringLiteral(" AND %1 > :lastKey").arg(key)
                : QStringLiteral(" AND %1 >= :lastKey AND (%1 > :lastKeyAgain OR G.ID > :lastId)")
                      .arg(key);
    }
    sql += QStringLiteral(" ORDER BY ") + key;
    if (!unique) {
        sql += QStringLiteral(", G.ID");
    }
    return sql + dialect.limit(rows);
}

GoodsListQuery::Page GoodsListQuery::fetch(const Position& after, int rows) {
    Page page;
    if (rows <= 0) {
        page.ok = true;
        page.next = after;
        return page;
    }
    Session s = m_database.session(kModule, QStringLiteral("fetch"));
    // One row more than asked tells whether another page follows.
    SqlQuery q(s, pageSql(after.atStart, rows + 1));
    switch (m_column) {
        case SearchColumn::Barcode:
        case SearchColumn::SpecCode:
            q.bind(QStringLiteral(":low"), m_text);
            q.bind(QStringLiteral(":high"), prefixUpperBound(m_text));
            q.bind(QStringLiteral(":pattern"), escapeLike(m_text) + QLatin1Char('%'));
            break;
        case SearchColumn::Name:
            q.bind(QStringLiteral(":pattern"), QLatin1Char('%') +
                                                   escapeLike(GoodsSearchQuery::searchKey(m_text)) +
                                                   QLatin1Char('%'));
            break;
        case SearchColumn::None:
            break;
    }
    if (!after.atStart) {
        q.bind(QStringLiteral(":lastKey"), after.key);
        if (orderColumn() != QLatin1String("G.EAN_Code")) {
            q.bind(QStringLiteral(":lastKeyAgain"), after.key);
            q.bind(QStringLiteral(":lastId"), after.id);
        }
    }
    if (!q.exec()) {
        return page;
    }
    page.ok = true;
    bool more = false;
    while (q.next()) {
        if (page.rows.size() == rows) {
            more = true;  // the extra row
            break;
        }
        Row r;
        r.id = q.integer(0);
        r.barcode = q.text(1);
        r.specCode = q.text(2);
        r.name = q.text(3);
        r.enName = q.text(4);
        r.unitName = q.text(5);
        r.cost = q.number(6);
        r.stock = q.number(7);
        r.active = q.integer(8) == 1;
        page.rows << r;
    }
    page.atEnd = !more;
    if (page.rows.isEmpty()) {
        page.next = after;
        page.atEnd = true;
        return page;
    }
    const Row& last = page.rows.constLast();
    page.next.atStart = false;
    page.next.id = last.id;
    switch (m_column) {
        case SearchColumn::SpecCode:
            page.next.key = last.specCode;
            break;
        case SearchColumn::Name:
            page.next.key = last.name;
            break;
        case SearchColumn::None:
        case SearchColumn::Barcode:
            page.next.key = last.barcode;
            break;
    }
    return page;
}

}  // namespace sandogh
