#include "app/DemoSeeder.h"

#include <QStringList>

#include "data/SqlQuery.h"

namespace sandogh {

bool DemoSeeder::fail(const QString& what, const QString& why) {
    if (m_error.isEmpty()) {
        m_error = what + QStringLiteral(": ") + why;
    }
    return false;
}

namespace {

void bindAll(SqlQuery& q, const SqlBinds& binds) {
    for (const auto& [name, value] : binds) {
        q.bindValue(name, value);
    }
}

}  // namespace

QSet<QString> DemoSeeder::keys(const QString& sql, const SqlBinds& binds) {
    const QHash<QString, qint64> rows = numbersByKey(sql, binds);
    return QSet<QString>(rows.keyBegin(), rows.keyEnd());
}

QHash<QString, qint64> DemoSeeder::numbersByKey(const QString& sql, const SqlBinds& binds) {
    QHash<QString, qint64> found;
    if (!ok()) {
        return found;
    }
    SqlQuery q(m_session, sql);
    bindAll(q, binds);
    if (!q.exec()) {
        fail(sql, q.error().text());
        return found;
    }
    while (q.next()) {
        found.insert(q.text(0).trimmed().toLower(), q.int64(1));
    }
    return found;
}

qint64 DemoSeeder::count(const QString& table) {
    return number(QStringLiteral("SELECT COUNT(*) FROM ") + table);
}

qint64 DemoSeeder::number(const QString& sql, const SqlBinds& binds) {
    if (!ok()) {
        return 0;
    }
    SqlQuery q(m_session, sql);
    bindAll(q, binds);
    if (!q.exec() || !q.next()) {
        fail(sql, q.error().isError() ? q.error().text() : QStringLiteral("no row"));
        return 0;
    }
    return q.int64(0);
}

bool DemoSeeder::insert(const QString& table, const Row& row) {
    if (!ok()) {
        return false;
    }
    QStringList columns;
    QStringList placeholders;
    for (qsizetype i = 0; i < row.size(); ++i) {
        columns << row.at(i).first;
        placeholders << QStringLiteral(":v%1").arg(i);
    }
    SqlQuery q(m_session, QStringLiteral("INSERT INTO %1 (%2) VALUES (%3)")
                              .arg(table, columns.join(QStringLiteral(", ")),
                                   placeholders.join(QStringLiteral(", "))));
    for (qsizetype i = 0; i < row.size(); ++i) {
        q.bindValue(placeholders.at(i), row.at(i).second);
    }
    if (!q.exec()) {
        return fail(QStringLiteral("adding to ") + table, q.error().text());
    }
    ++m_added[table];
    return true;
}

}  // namespace sandogh
