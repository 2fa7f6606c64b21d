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
        QStringList statements = Dialect::createTable(t, foreignKeys);
        if (t.clustered && !t.primaryKey.isEmpty()) {
            statements.first() += QStringLiteral(" WITHOUT ROWID");
        }
        return statements;
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

QStringList SqliteDialect::createTextSearch(const TextSearchDef& search) const {
    // An FTS5 table over the key column, its rows being the table's rows (external
    // content): the trigram tokenizer finds any run of three or more characters, and the
    // triggers keep it in step with every insert, delete and change of the key.
    const QString fts = quote(search.name);
    const QString source = quote(search.table);
    const QString key = quote(search.keyColumn);
    const QString id = quote(search.idColumn);
    const QString remove =
        QStringLiteral("INSERT INTO %1(%1, rowid, %2) VALUES ('delete', old.%3, old.%2);")
            .arg(fts, key, id);
    const QString add =
        QStringLiteral("INSERT INTO %1(rowid, %2) VALUES (new.%3, new.%2);").arg(fts, key, id);
    const QString trigger = QStringLiteral("CREATE TRIGGER %1 AFTER %2 ON %3 BEGIN %4 END");
    QStringList statements = Dialect::createTextSearch(search);
    statements << QStringLiteral(
                      "CREATE VIRTUAL TABLE %1 USING fts5(%2, content=%3, "
                      "content_rowid=%4, tokenize='trigram')")
                      .arg(fts, key, source, id)
               << trigger.arg(quote(search.name + QStringLiteral("_Insert")),
                              QStringLiteral("INSERT"), source, add)
               << trigger.arg(quote(search.name + QStringLiteral("_Delete")),
                              QStringLiteral("DELETE"), source, remove)
               << trigger.arg(quote(search.name + QStringLiteral("_Update")),
                              QStringLiteral("UPDATE OF ") + key, source,
                              remove + QLatin1Char(' ') + add)
               << QStringLiteral("INSERT INTO %1(%1) VALUES ('rebuild')").arg(fts);
    return statements;
}

}  // namespace sandogh
