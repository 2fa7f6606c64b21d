#include "data/scales/ScaleTickets.h"

#include "data/Dialect.h"
#include "data/Session.h"
#include "data/SqlQuery.h"
#include "data/schema/ShopSchema.h"

namespace sandogh {

namespace {

std::optional<QList<ScaleTickets::Line>> lines(SqlQuery& q) {
    if (!q.exec()) {
        return std::nullopt;
    }
    QList<ScaleTickets::Line> found;
    while (q.next()) {
        found.append({QString::number(q.int64(0)), q.number(1)});
    }
    return found;
}

}  // namespace

std::optional<QList<ScaleTickets::Line>> ScaleTickets::mizanLines(Session& session,
                                                                  const QString& key) {
    const QString table = session.dialect().table(QStringLiteral("MizanNetDetail"),
                                                  QString::fromLatin1(kMizanNetDatabase));
    SqlQuery q(session, QStringLiteral("SELECT PluNo, CASE Weight WHEN 0 THEN Qty ELSE Weight "
                                       "END AS QTY FROM ") +
                            table + QStringLiteral(" WHERE TotalBarcode = :key"));
    q.bind(QStringLiteral(":key"), key);
    return lines(q);
}

std::optional<QList<ScaleTickets::Line>> ScaleTickets::onlineSalesLines(Session& session,
                                                                        const QString& date,
                                                                        int receipt, int scale) {
    const Dialect& d = session.dialect();
    const QString table =
        d.table(QStringLiteral("Sales"), QString::fromLatin1(kOnlineSalesDatabase));
    SqlQuery q(session, QStringLiteral("SELECT COALESCE(ItemCode, 0) AS ItemCode, "
                                       "COALESCE(Amount, 0) AS Amount FROM ") +
                            table + QStringLiteral(" WHERE ") + d.quote(QStringLiteral("Date")) +
                            QStringLiteral(" = :date AND Receipt = :receipt AND ScaleNo = :scale"));
    q.bind(QStringLiteral(":date"), date);
    q.bind(QStringLiteral(":receipt"), receipt);
    q.bind(QStringLiteral(":scale"), scale);
    return lines(q);
}

}  // namespace sandogh
