#include "data/SqliteDialect.h"

namespace sandogh {

QString SqliteDialect::quote(const QString& identifier) const {
    QString escaped = identifier;
    escaped.replace(QLatin1Char('"'), QStringLiteral("\"\""));
    return QLatin1Char('"') + escaped + QLatin1Char('"');
}

QString SqliteDialect::table(const QString& name, const QString& database) const {
    return database.isEmpty() ? quote(name) : quote(database) + QLatin1Char('.') + quote(name);
}

QString SqliteDialect::castBigInt(const QString& expression) const {
    return QStringLiteral("CAST(%1 AS INTEGER)").arg(expression);
}

QString SqliteDialect::columnType(const ColumnDef& column) const {
    switch (column.type) {
        case ColumnType::Int:
        case ColumnType::BigInt:
        case ColumnType::Bool:
            return QStringLiteral("INTEGER");
        case ColumnType::Money:
            return QStringLiteral("NUMERIC");
        case ColumnType::Float:
            return QStringLiteral("REAL");
        case ColumnType::Text:
            return QStringLiteral("VARCHAR(%1)").arg(textLength(column));
        case ColumnType::LongText:
            return QStringLiteral("TEXT");
        case ColumnType::Blob:
            return QStringLiteral("BLOB");
    }
    return QStringLiteral("TEXT");
}

QString SqliteDialect::identityDefinition(const ColumnDef& /*column*/) const {
    // Only a rowid alias allocates numbers; it is the table's primary key.
    return QStringLiteral("INTEGER PRIMARY KEY AUTOINCREMENT");
}

QString SqliteDialect::primaryKeyClause(const TableDef& table) const {
    return QStringLiteral("PRIMARY KEY (%1)").arg(quotedList(table.primaryKey));
}

QStringList SqliteDialect::createTable(const TableDef& t,
                                       const QList<ForeignKeyDef>& foreignKeys) const {
    QString identityName;
    for (const ColumnDef& c : t.columns) {
        if (c.identity) {
            identityName = c.name;
        }
    }
    if (identityName.isEmpty()) {
        return Dialect::createTable(t, foreignKeys);
    }
    // The identity column is the rowid primary key, so a declared primary key of other
    // columns is kept as a unique constraint (same rule, same read-back of columns).
    TableDef rowidTable = t;
    rowidTable.primaryKey.clear();
    QStringList statements = Dialect::createTable(rowidTable, foreignKeys);
    const bool keyIsIdentity = t.primaryKey.size() == 1 &&
                               t.primaryKey.first().compare(identityName, Qt::CaseInsensitive) == 0;
    if (!t.primaryKey.isEmpty() && !keyIsIdentity) {
        QString& create = statements.first();
        create.chop(1);
        create += QStringLiteral(", UNIQUE (%1))").arg(quotedList(t.primaryKey));
    }
    return statements;
}

QString SqliteDialect::createIndex(const IndexDef& index) const {
    // The index name carries the schema; the table is named without it.
    const QString name = index.database.isEmpty()
                             ? quote(index.name)
                             : quote(index.database) + QLatin1Char('.') + quote(index.name);
    return QStringLiteral("CREATE %1INDEX %2 ON %3 (%4)%5")
        .arg(index.unique ? QStringLiteral("UNIQUE ") : QString(), name, quote(index.table),
             indexKeys(index), indexWhere(index));
}

QStringList SqliteDialect::addForeignKey(const ForeignKeyDef& /*foreignKey*/) const {
    return {};
}

}  // namespace sandogh
