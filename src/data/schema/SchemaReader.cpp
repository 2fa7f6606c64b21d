#include "data/schema/SchemaReader.h"

#include "data/Dialect.h"
#include "data/SqlQuery.h"

namespace sandogh {

namespace {

QMap<QString, QStringList> readSqlite(Session& session, const QString& database) {
    QMap<QString, QStringList> result;
    const QString schema = database.isEmpty() ? QStringLiteral("main") : database;
    // Ordinary tables only: a word index (FTS5) is a virtual table with shadow tables of
    // its own, which the other backends do not have.
    SqlQuery names(session, QStringLiteral("SELECT name FROM pragma_table_list WHERE schema = "
                                           ":schema AND type = :type AND name NOT LIKE :internal"));
    names.bind(QStringLiteral(":schema"), schema);
    names.bind(QStringLiteral(":type"), QStringLiteral("table"));
    names.bind(QStringLiteral(":internal"), QStringLiteral("sqlite%"));
    if (!names.exec()) {
        return {};
    }
    QStringList tables;
    while (names.next()) {
        tables << names.text(0);
    }
    for (const QString& table : std::as_const(tables)) {
        SqlQuery columns(session,
                         QStringLiteral("SELECT name FROM pragma_table_info(:table, :schema)"));
        columns.bind(QStringLiteral(":table"), table);
        columns.bind(QStringLiteral(":schema"), schema);
        if (!columns.exec()) {
            return {};
        }
        QStringList& list = result[table.toLower()];
        while (columns.next()) {
            list << columns.text(0).toLower();
        }
    }
    return result;
}

QMap<QString, QStringList> readInformationSchema(Session& session, const QString& sql,
                                                 const QString& schema) {
    QMap<QString, QStringList> result;
    SqlQuery q(session, sql);
    q.bind(QStringLiteral(":schema"), schema);
    if (!q.exec()) {
        return {};
    }
    while (q.next()) {
        result[q.text(0).toLower()] << q.text(1).toLower();
    }
    return result;
}

}  // namespace

QMap<QString, QStringList> SchemaReader::tables(Session& session, const QString& database) {
    if (!session.isValid()) {
        return {};
    }
    switch (session.backend()) {
        case Backend::SQLite:
            return readSqlite(session, database);
        case Backend::PostgreSQL:
            return readInformationSchema(
                session,
                QStringLiteral(
                    "SELECT c.table_name, c.column_name FROM information_schema.columns c "
                    "JOIN information_schema.tables t ON t.table_schema = c.table_schema "
                    "AND t.table_name = c.table_name AND t.table_type = 'BASE TABLE' "
                    "WHERE c.table_schema = :schema "
                    "ORDER BY c.table_name, c.ordinal_position"),
                database.isEmpty() ? QStringLiteral("public") : database.toLower());
        case Backend::SqlServer: {
            const QString prefix = database.isEmpty()
                                       ? QString()
                                       : session.dialect().quote(database) + QLatin1Char('.');
            return readInformationSchema(
                session,
                QStringLiteral(
                    "SELECT c.TABLE_NAME, c.COLUMN_NAME FROM %1INFORMATION_SCHEMA.COLUMNS c "
                    "JOIN %1INFORMATION_SCHEMA.TABLES t ON t.TABLE_SCHEMA = c.TABLE_SCHEMA "
                    "AND t.TABLE_NAME = c.TABLE_NAME AND t.TABLE_TYPE = 'BASE TABLE' "
                    "WHERE c.TABLE_SCHEMA = :schema "
                    "ORDER BY c.TABLE_NAME, c.ORDINAL_POSITION")
                    .arg(prefix),
                QStringLiteral("dbo"));
        }
    }
    return {};
}

bool SchemaReader::tableExists(Session& session, const QString& table, const QString& database) {
    return tables(session, database).contains(table.toLower());
}

}  // namespace sandogh
