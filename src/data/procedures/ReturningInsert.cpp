#include "data/procedures/ReturningInsert.h"

#include "data/SqlQuery.h"
#include "data/procedures/KeyConflictRetry.h"

namespace sandogh::procedures {

namespace {

QStringList placeholders(const QStringList& columns) {
    QStringList names;
    for (const QString& c : columns) {
        names << QLatin1Char(':') + c;
    }
    return names;
}

}  // namespace

QString ReturningInsert::statement(Backend backend, const QString& head, const QString& source,
                                   const QString& returned) {
    if (backend == Backend::SqlServer) {
        return head + QStringLiteral(" OUTPUT INSERTED.") + returned + QLatin1Char(' ') + source;
    }
    return head + QLatin1Char(' ') + source + QStringLiteral(" RETURNING ") + returned;
}

QStringList ReturningInsert::columnsOf(const ColumnValues& values) {
    QStringList columns;
    for (const auto& [column, value] : values) {
        columns << column;
    }
    return columns;
}

QString ReturningInsert::values(Backend backend, const QString& table, const QStringList& columns,
                                const QString& returned) {
    const QString head =
        QStringLiteral("INSERT INTO %1 (%2)").arg(table, columns.join(QStringLiteral(", ")));
    const QString source =
        QStringLiteral("VALUES (%1)").arg(placeholders(columns).join(QStringLiteral(", ")));
    return statement(backend, head, source, returned);
}

QString ReturningInsert::maxPlusOne(Backend backend, const QString& table, const QString& key,
                                    const QStringList& columns, const QString& returned) {
    QStringList all{key};
    all << columns;
    const QString head =
        QStringLiteral("INSERT INTO %1 (%2)").arg(table, all.join(QStringLiteral(", ")));
    QStringList selected{QStringLiteral("COALESCE(MAX(%1), 0) + 1").arg(key)};
    selected << placeholders(columns);
    const QString source =
        QStringLiteral("SELECT %1 FROM %2").arg(selected.join(QStringLiteral(", ")), table);
    return statement(backend, head, source, returned.isEmpty() ? key : returned);
}

qint64 ReturningInsert::run(Session& session, const QString& sql, const ColumnValues& values,
                            DbError& error) {
    SqlQuery q(session, sql);
    q.setLogging(FailureLogging::QuietKeyConflicts);
    for (const auto& [column, value] : values) {
        q.bindValue(QLatin1Char(':') + column, value);
    }
    if (!q.exec()) {
        error = q.error();
        return 0;
    }
    if (!q.next()) {
        error.kind = DbErrorKind::Other;
        error.driverText = QStringLiteral("the insert returned no key");
        error.sql = sql;
        return 0;
    }
    return q.int64(0);
}

qint64 ReturningInsert::allocate(Session& session, const QString& table, const QString& key,
                                 const ColumnValues& values) {
    const QString sql = maxPlusOne(session.backend(), table, key, columnsOf(values));
    return KeyConflictRetry::run(session,
                                 [&](DbError& error) { return run(session, sql, values, error); });
}

qint64 ReturningInsert::insert(Session& session, const QString& table, const ColumnValues& values,
                               const QString& returned) {
    DbError error;
    const qint64 key =
        run(session, ReturningInsert::values(session.backend(), table, columnsOf(values), returned),
            values, error);
    if (error.isKeyConflict() && session.state() != nullptr) {
        session.state()->fail(error, FailureLogging::Log);
    }
    return key;
}

}  // namespace sandogh::procedures
