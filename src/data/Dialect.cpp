#include "data/Dialect.h"

#include "data/PostgresDialect.h"
#include "data/SqlServerDialect.h"
#include "data/SqliteDialect.h"

namespace sandogh {

std::unique_ptr<Dialect> Dialect::create(Backend backend) {
    switch (backend) {
        case Backend::SQLite:
            return std::make_unique<SqliteDialect>();
        case Backend::PostgreSQL:
            return std::make_unique<PostgresDialect>();
        case Backend::SqlServer:
            return std::make_unique<SqlServerDialect>();
    }
    return nullptr;
}

QString Dialect::top(int /*rows*/) const {
    return {};
}

QString Dialect::limit(int rows) const {
    return QStringLiteral(" LIMIT %1").arg(rows);
}

QString Dialect::concat(const QStringList& expressions) const {
    return QLatin1Char('(') + expressions.join(QStringLiteral(" || ")) + QLatin1Char(')');
}

QString Dialect::castBigInt(const QString& expression) const {
    return QStringLiteral("CAST(%1 AS BIGINT)").arg(expression);
}

QString Dialect::isNull(const QString& expression, const QString& fallback) const {
    return QStringLiteral("COALESCE(%1, %2)").arg(expression, fallback);
}

int Dialect::textLength(const ColumnDef& column) {
    return column.length > 0 ? column.length : 255;
}

QString Dialect::quotedList(const QStringList& identifiers) const {
    QStringList quoted;
    for (const QString& id : identifiers) {
        quoted << quote(id);
    }
    return quoted.join(QStringLiteral(", "));
}

QString Dialect::columnDefinition(const ColumnDef& column) const {
    if (column.identity) {
        return quote(column.name) + QLatin1Char(' ') + identityDefinition(column);
    }
    QString s = quote(column.name) + QLatin1Char(' ') + columnType(column);
    if (!column.nullable) {
        s += QStringLiteral(" NOT NULL");
    }
    if (!column.defaultValue.isEmpty()) {
        s += QStringLiteral(" DEFAULT ") + column.defaultValue;
    }
    return s;
}

QString Dialect::primaryKeyClause(const TableDef& table) const {
    return QStringLiteral("CONSTRAINT %1 PRIMARY KEY (%2)")
        .arg(quote(QStringLiteral("PK_") + table.name), quotedList(table.primaryKey));
}

QString Dialect::foreignKeyClause(const ForeignKeyDef& fk) const {
    return QStringLiteral("CONSTRAINT %1 FOREIGN KEY (%2) REFERENCES %3 (%4)")
        .arg(quote(fk.name), quotedList(fk.columns), table(fk.refTable), quotedList(fk.refColumns));
}

QStringList Dialect::createTable(const TableDef& t, const QList<ForeignKeyDef>& fks) const {
    QStringList parts;
    for (const ColumnDef& c : t.columns) {
        parts << columnDefinition(c);
    }
    if (!t.primaryKey.isEmpty()) {
        parts << primaryKeyClause(t);
    }
    for (const ForeignKeyDef& fk : fks) {
        parts << foreignKeyClause(fk);
    }
    return {QStringLiteral("CREATE TABLE %1 (%2)")
                .arg(table(t.name, t.database), parts.join(QStringLiteral(", ")))};
}

QStringList Dialect::addColumn(const AddColumnDef& add) const {
    return {QStringLiteral("ALTER TABLE %1 ADD COLUMN %2")
                .arg(table(add.table, add.database), columnDefinition(add.column))};
}

QString Dialect::indexKeys(const IndexDef& index) const {
    QStringList keys;
    for (const QString& c : index.columns) {
        keys << quote(c);
    }
    keys << index.expressions;
    return keys.join(QStringLiteral(", "));
}

QString Dialect::indexWhere(const IndexDef& index) {
    return index.where.isEmpty() ? QString() : QStringLiteral(" WHERE ") + index.where;
}

QString Dialect::createIndex(const IndexDef& index) const {
    return QStringLiteral("CREATE %1INDEX %2 ON %3 (%4)%5")
        .arg(index.unique ? QStringLiteral("UNIQUE ") : QString(), quote(index.name),
             table(index.table, index.database), indexKeys(index), indexWhere(index));
}

QStringList Dialect::addForeignKey(const ForeignKeyDef& fk) const {
    return {QStringLiteral("ALTER TABLE %1 ADD %2").arg(table(fk.table), foreignKeyClause(fk))};
}

QString Dialect::createOtherDatabase(const QString& /*database*/) const {
    return {};
}

}  // namespace sandogh
