#include "data/DemoSeeder.h"

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

// " WHERE column = :w0" or " WHERE column IN (:w0, :w1, ...)"; empty without a column.
QString condition(const DemoSeeder::Where& where) {
    if (where.column.isEmpty()) {
        return {};
    }
    if (where.values.size() == 1) {
        return QStringLiteral(" WHERE %1 = :w0").arg(where.column);
    }
    QStringList placeholders;
    for (qsizetype i = 0; i < where.values.size(); ++i) {
        placeholders << QStringLiteral(":w%1").arg(i);
    }
    return QStringLiteral(" WHERE %1 IN (%2)")
        .arg(where.column, placeholders.join(QStringLiteral(", ")));
}

void bind(SqlQuery& q, const DemoSeeder::Where& where) {
    if (where.column.isEmpty()) {
        return;
    }
    for (qsizetype i = 0; i < where.values.size(); ++i) {
        q.bindValue(QStringLiteral(":w%1").arg(i), where.values.at(i));
    }
}

}  // namespace

QSet<QString> DemoSeeder::keys(const QString& table, const QString& column, const Where& where) {
    const QHash<QString, qint64> rows =
        read(QStringLiteral("SELECT %1 FROM %2").arg(column, table), where, false);
    return QSet<QString>(rows.keyBegin(), rows.keyEnd());
}

QHash<QString, qint64> DemoSeeder::numbersByKey(const QString& table, const QString& keyColumn,
                                                const QString& numberColumn, const Where& where) {
    return read(QStringLiteral("SELECT %1, %2 FROM %3").arg(keyColumn, numberColumn, table), where,
                true);
}

QHash<QString, qint64> DemoSeeder::read(const QString& select, const Where& where,
                                        bool withNumber) {
    QHash<QString, qint64> found;
    if (!ok()) {
        return found;
    }
    const QString sql = select + condition(where);
    SqlQuery q(m_session, sql);
    bind(q, where);
    if (!q.exec()) {
        fail(sql, q.error().text());
        return found;
    }
    while (q.next()) {
        found.insert(q.text(0).trimmed().toLower(), withNumber ? q.int64(1) : 0);
    }
    return found;
}

qint64 DemoSeeder::count(const QString& table) {
    return number(QStringLiteral("SELECT COUNT(*) FROM ") + table, {});
}

qint64 DemoSeeder::largest(const QString& table, const QString& column, const Where& where) {
    return number(QStringLiteral("SELECT COALESCE(MAX(%1), 0) FROM %2").arg(column, table), where);
}

qint64 DemoSeeder::number(const QString& select, const Where& where) {
    if (!ok()) {
        return 0;
    }
    const QString sql = select + condition(where);
    SqlQuery q(m_session, sql);
    bind(q, where);
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
