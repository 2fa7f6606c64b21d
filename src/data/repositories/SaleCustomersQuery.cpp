#include "data/repositories/SaleCustomersQuery.h"

#include "common/TextHelpers.h"
#include "data/Dialect.h"
#include "data/Session.h"
#include "data/SqlQuery.h"
#include "data/repositories/TypedSearch.h"

namespace sandogh {

namespace {

QString customerSelect() {
    return QStringLiteral(
        "SELECT Counter, COALESCE(T.Code, '0') AS Code, COALESCE(T.Name, '') AS Name, "
        "COALESCE(Value1, '') AS Family, COALESCE(Account, 0) AS Account, "
        "COALESCE(Value2, '') AS Tel, COALESCE(Value5, '') AS Mobile, "
        "COALESCE(Value7, '') AS Address, COALESCE(Value9, '') AS Birthday, "
        "COALESCE(GC.DiscountPercent, 0) AS DiscountPercent, COALESCE(GC.Color, 0) AS Color, "
        "COALESCE(GC.Name, '') AS GCName "
        "FROM Types T LEFT OUTER JOIN tblCustomerGroup GC ON T.CstGrpCode = GC.Code "
        "WHERE (TypeNo = 10 OR TypeNo = 11) ");
}

bool readCustomers(SqlQuery& q, QList<SaleCustomer>& found) {
    if (!q.exec()) {
        return false;
    }
    while (q.next()) {
        SaleCustomer c;
        c.counter = q.integer(0);
        c.code = q.text(1);
        c.name = q.text(2);
        c.family = q.text(3);
        c.account = q.int64(4);
        c.tel = q.text(5);
        c.mobile = q.text(6);
        c.address = q.text(7);
        c.birthday = q.text(8);
        c.discountPercent = q.number(9);
        c.color = q.int64(10);
        c.groupName = q.text(11);
        found << c;
    }
    return true;
}

}  // namespace

std::optional<QList<SaleCustomer>> SaleCustomersQuery::search(Session& session, Mode mode,
                                                              const QString& text) {
    // Compared as people type: both the typed text and the columns in their search form
    // (Persian letters, ASCII digits, no zero-width non-joiner, lower case).
    const Dialect& d = session.dialect();
    const QString pattern = TypedSearch::contains(text);
    const auto folded = [&d](const QString& column) {
        return d.searchKeyExpression(column) + QStringLiteral(" LIKE ");
    };
    QString sql = customerSelect();
    SqlBinds binds;
    switch (mode) {
        case Mode::Telephone:
            // As the shop has always searched: the OR is not bracketed, so a row whose
            // Value3 holds the text is found whatever its TypeNo.
            sql += QStringLiteral(" AND ") + folded(QStringLiteral("COALESCE(Value2, '')")) +
                   QStringLiteral(":tel ESCAPE '\\'  OR ") +
                   folded(QStringLiteral("COALESCE(Value3, '')")) +
                   QStringLiteral(":tel3 ESCAPE '\\'");
            binds = {{QStringLiteral(":tel"), pattern}, {QStringLiteral(":tel3"), pattern}};
            break;
        case Mode::Mobile:
            sql += QStringLiteral(" AND ") + folded(QStringLiteral("COALESCE(Value5, '')")) +
                   QStringLiteral(":mobile ESCAPE '\\'");
            binds = {{QStringLiteral(":mobile"), pattern}};
            break;
        case Mode::NameFamily:
            sql += QStringLiteral(" AND ") +
                   folded(d.concat({QStringLiteral("COALESCE(T.Name, '')"), QStringLiteral("' '"),
                                    QStringLiteral("COALESCE(Value1, '')")})) +
                   QStringLiteral(":name ESCAPE '\\'");
            binds = {{QStringLiteral(":name"), pattern}};
            break;
        case Mode::Code:
            sql += QStringLiteral(" AND T.Code = :code ");
            binds = {{QStringLiteral(":code"), QString::fromStdString(TextHelpers::toAsciiDigits(
                                                   text.trimmed().toStdString()))}};
            break;
    }
    SqlQuery q(session, sql);
    for (const auto& [name, value] : binds) {
        q.bindValue(name, value);
    }
    QList<SaleCustomer> found;
    if (!readCustomers(q, found)) {
        return std::nullopt;
    }
    return found;
}

SaleCustomer SaleCustomersQuery::byCounter(Session& session, int counter) {
    SqlQuery q(session, customerSelect() + QStringLiteral(" AND Counter = :counter"));
    q.bind(QStringLiteral(":counter"), counter);
    QList<SaleCustomer> found;
    if (!readCustomers(q, found) || found.isEmpty()) {
        return {};
    }
    return found.first();
}

}  // namespace sandogh
